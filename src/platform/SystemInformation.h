// What the system tells of itself: the time, the computer's name, fresh GUIDs.
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

/// The computer's name in ANSI characters; empty when the system does not tell.
std::u16string ComputerName();

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
