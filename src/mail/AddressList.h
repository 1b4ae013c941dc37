// Lists of mail addresses as users write them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cvlang {

/// The text without the blanks at its ends.
std::string_view Trimmed(std::string_view text);

/// The fields of a text between the separators; an empty text has one, which is empty.
std::vector<std::string_view> SplitList(std::string_view list, char separator);

/// The list without repeated addresses. Its separator is ";" where it contains one, otherwise ",".
/// An address that is the tail of an earlier one counts as repeated, too: users' lists were always
/// cleaned that way.
std::string MergeAddressList(std::string_view list);

/// The single addresses of several lists, without repeated ones.
std::vector<std::string> MergedAddresses(const std::vector<std::string_view>& lists);

/// What follows the first "@"; "(unknown)" without one.
std::string_view GetAddressDomain(std::string_view address);

}  // namespace cvlang
