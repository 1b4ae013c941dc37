#include "mail/MailDate.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace cvlang {
namespace {

std::chrono::weekday WeekdayOf(const LocalTime& date) {
    return std::chrono::sys_days(std::chrono::year(date.year) / date.month / date.day);
}

/// At least two digits, a minus sign before them.
std::string TwoDigits(long number) {
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "%s%02ld", number < 0 ? "-" : "", std::labs(number));
    return text.data();
}

/// The hours are rounded and the minutes are added all the same, and each of the two has its own
/// minus sign: half past five is written +0630. This is meant; the mail server's own tools expect
/// these texts.
std::string ZoneText(int offset) {
    constexpr int kMinutes = 60;
    const long hours = std::lround(static_cast<double>(offset) / kMinutes);
    return (offset >= 0 ? " +" : " ") + TwoDigits(hours) + TwoDigits(offset % kMinutes);
}

int Bias(const TimeZoneInformation& zone) {
    switch (zone.time) {
        case ZoneTime::Standard:
            return zone.bias + zone.standardBias;
        case ZoneTime::Daylight:
            return zone.bias + zone.daylightBias;
        case ZoneTime::Unknown:
            break;
    }
    return zone.bias;
}

}  // namespace

std::string_view GetDayName(const LocalTime& date) {
    static constexpr std::array<std::string_view, 7> kNames = {"Sun", "Mon", "Tue", "Wed",
                                                               "Thu", "Fri", "Sat"};
    return kNames[WeekdayOf(date).c_encoding()];
}

std::string_view GetMonthName(const LocalTime& date) {
    static constexpr std::array<std::string_view, 12> kNames = {
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return kNames[static_cast<std::size_t>(date.month - 1)];
}

std::string FormatMailDate(const LocalTime& time, const TimeZoneInformation& zone) {
    std::string text(GetDayName(time));
    text.append(", ").append(std::to_string(time.day)).append(" ").append(GetMonthName(time));
    text.append(" ").append(std::to_string(time.year)).append(" ");
    text += TwoDigits(time.hour) + ":" + TwoDigits(time.minute) + ":" + TwoDigits(time.second);
    return text + ZoneText(-Bias(zone));
}

}  // namespace cvlang
