// The registry export format, of which the values below HKEY_LOCAL_MACHINE (HKLM) are read. What
// the importer of Windows accepts in a file written by hand has the same meaning here.
//
// - [HKEY_LOCAL_MACHINE\SOFTWARE\...] begins a key; [-HKEY_...] removes it and the keys below it.
//
// - "name"="text" is a string; \\, \", \n and \r are a backslash, a quotation mark and line ends.
//
// - "name"=dword:0000002a is a number.
//
// - "name"=hex(2):61,00,00,00 is any kind by its bytes, here 2, an expandable string in UTF-16. A
// backslash after a comma continues them in the next line that is neither blank nor a comment.
//
// - "name"=- removes the value. A semicolon begins a comment, also behind any of these.
//
// Later lines win over earlier ones, and letter case does not matter in keys and names. A line of
// any other form, and a value that is malformed or cut off, is ignored as a whole.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace cvlang {

/// A text or a number. Neither is set for a missing value or one of another type.
struct RegistryValue {
    std::optional<std::u16string> text;
    std::optional<std::int32_t> number;
};

/// Looks a value up in the bytes of an export file: UTF-16 little-endian or UTF-8, with or without
/// byte-order mark, or ANSI behind the header "REGEDIT4". The key is given without
/// "HKEY_LOCAL_MACHINE\".
RegistryValue FindInRegistryExport(std::string_view file, std::u16string_view key,
                                   std::u16string_view name);

}  // namespace cvlang
