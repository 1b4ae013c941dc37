// The time zone that the user's clock shows.
#pragma once

#include <functional>

namespace cvlang {

/// Which of its times a zone is in.
enum class ZoneTime { Unknown = 0, Standard = 1, Daylight = 2 };

/// Minutes that are added to a local time to get UTC: the bias, and on top of it that of the time
/// the zone is in.
struct TimeZoneInformation {
    int bias;
    int standardBias;
    int daylightBias;
    ZoneTime time;
};

/// Tells the time zone; tests bring their own.
using TimeZoneSource = std::function<TimeZoneInformation()>;
TimeZoneInformation SystemTimeZone();

}  // namespace cvlang
