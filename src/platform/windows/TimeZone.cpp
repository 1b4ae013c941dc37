#include "platform/TimeZone.h"

#include <windows.h>

namespace cvlang {

TimeZoneInformation SystemTimeZone() {
    TIME_ZONE_INFORMATION zone{};
    const DWORD result = GetTimeZoneInformation(&zone);
    const auto time = result == TIME_ZONE_ID_STANDARD   ? ZoneTime::Standard
                      : result == TIME_ZONE_ID_DAYLIGHT ? ZoneTime::Daylight
                                                        : ZoneTime::Unknown;
    return {static_cast<int>(zone.Bias), static_cast<int>(zone.StandardBias),
            static_cast<int>(zone.DaylightBias), time};
}

}  // namespace cvlang
