#include "platform/TimeZone.h"

#include <ctime>

namespace cvlang {

TimeZoneInformation SystemTimeZone() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    tzset();
    localtime_r(&now, &local);
    constexpr long kSeconds = 60;
    const int bias = static_cast<int>(timezone / kSeconds);
    // Measured rather than looked up: the sum is then right even where a zone has changed its
    // standard time.
    const int rest = static_cast<int>(-local.tm_gmtoff / kSeconds) - bias;
    if (local.tm_isdst > 0)
        return {bias, 0, rest, ZoneTime::Daylight};
    return {bias, rest, 0, ZoneTime::Standard};
}

}  // namespace cvlang
