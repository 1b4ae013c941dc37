// System values: the time, the time zone, the computer's name, new GUIDs.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace cvlang {

/// A local date and time of day.
struct LocalTime {
    int year;
    int month;  // 1 to 12
    int day;    // 1 to 31
    int hour;
    int minute;
    int second;
};

/// Tells the time; tests bring their own.
using Clock = std::function<LocalTime()>;
LocalTime SystemClock();

/// Date, blank, time: in the user's regional format on Windows, as 2024-03-07 09:05:03 on Linux.
std::u16string FormatDateAndTime(const LocalTime& time);

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

/// The computer's name in ANSI characters; empty when the system does not tell.
std::u16string GetLocalComputerName();

struct Guid {
    std::uint32_t first;
    std::uint16_t second;
    std::uint16_t third;
    std::array<std::uint8_t, 8> last;
};

/// Makes a fresh GUID; nothing when the system fails to.
using GuidSource = std::function<std::optional<Guid>()>;
std::optional<Guid> NewGuid();

}  // namespace cvlang
