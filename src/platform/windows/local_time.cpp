#include <windows.h>

#include "platform/clock.h"

namespace cvdeveloper {
namespace {

// The system counts tenths of microseconds since 1601.
constexpr std::int64_t ticks_per_second = 10'000'000;
constexpr std::int64_t seconds_from_1601_to_1970 = 11'644'473'600;

Date date_of(const SYSTEMTIME& time) {
    return make_date({time.wYear, time.wMonth, time.wDay},
                     {time.wHour, time.wMinute, time.wSecond});
}

}  // namespace

Date now() {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    return date_of(local);
}

Date local_date(std::chrono::sys_seconds moment) {
    const std::int64_t since_1970 = moment.time_since_epoch().count();
    const auto ticks =
        static_cast<std::uint64_t>((since_1970 + seconds_from_1601_to_1970) * ticks_per_second);
    const FILETIME file_time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32U)};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    // Summer time counts as it was at that moment, not as it is now.
    if (FileTimeToSystemTime(&file_time, &universal) == FALSE ||
        SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) == FALSE) {
        return {};
    }
    return date_of(local);
}

}  // namespace cvdeveloper
