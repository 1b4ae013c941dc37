// The values of a message's headers: addresses, its date, unique names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/SystemInformation.h"

namespace cvlang {

/// The fields of a text between the separators; an empty text has one, which is empty.
std::vector<std::string_view> SplitList(std::string_view list, char separator);

/// The list without repeated addresses. Its separator is ";" where it contains one, otherwise ",".
/// Deliberate: an address that is the end of an earlier one counts as repeated, too.
std::string MergeAddressList(std::string_view list);

/// The single addresses of several lists, without repeated ones.
std::vector<std::string> MergedAddresses(const std::vector<std::string_view>& lists);

/// What follows the first "@"; "(unknown)" without one.
std::string_view GetAddressDomain(std::string_view address);

/// English names of three letters: "Mon", "Jan".
std::string_view GetDayName(const LocalTime& date);
std::string_view GetMonthName(const LocalTime& date);

/// "Mon, 2 Jan 2006 15:04:05 +0100".
std::string FormatMailDate(const LocalTime& time, const TimeZoneInformation& zone);

/// A fresh boundary; always the same one where the system makes no GUID.
std::string NewMIMEBoundary(const GuidSource& newGuid);

/// A fresh name for a message, as the mail server names its files.
std::string NewMessageFileName(const GuidSource& newGuid);

}  // namespace cvlang
