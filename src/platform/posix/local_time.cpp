#include <ctime>

#include "platform/clock.h"

namespace cvdeveloper {

Date now() {
    return local_date(std::time(nullptr));
}

Date local_date(std::time_t moment) {
    std::tm local{};
    localtime_r(&moment, &local);
    // A leap second counts as the minute's last.
    const int second = local.tm_sec < 60 ? local.tm_sec : 59;
    return make_date({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
                     {local.tm_hour, local.tm_min, second});
}

}  // namespace cvdeveloper
