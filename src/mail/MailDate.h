// The text of a message's Date header.
#pragma once

#include <string>
#include <string_view>

#include "platform/SystemInformation.h"
#include "platform/TimeZone.h"

namespace cvlang {

std::string_view GetDayName(const LocalTime& date);
std::string_view GetMonthName(const LocalTime& date);

std::string FormatMailDate(const LocalTime& time, const TimeZoneInformation& zone);

}  // namespace cvlang
