// The text of a message's Date header.
#pragma once

#include <string>
#include <string_view>

#include "platform/SystemInformation.h"
#include "platform/TimeZone.h"

namespace cvlang {

/// English names of three letters: "Mon", "Jan".
std::string_view GetDayName(const LocalTime& date);
std::string_view GetMonthName(const LocalTime& date);

/// "Mon, 2 Jan 2006 15:04:05 +0100".
std::string FormatMailDate(const LocalTime& time, const TimeZoneInformation& zone);

}  // namespace cvlang
