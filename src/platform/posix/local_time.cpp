#include <ctime>

#include "platform/clock.h"

namespace cvdeveloper {

Date now() {
    return local_date(std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
}

Date local_date(std::chrono::sys_seconds moment) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
    std::tm local{};
    localtime_r(&seconds, &local);
    // A leap second counts as the minute's last.
    const int second = local.tm_sec < 60 ? local.tm_sec : 59;
    return make_date({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
                     {local.tm_hour, local.tm_min, second});
}

}  // namespace cvdeveloper
