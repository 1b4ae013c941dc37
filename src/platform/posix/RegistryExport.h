// The registry export format ("Windows Registry Editor Version 5.00"), of which HKEY_LOCAL_MACHINE
// is looked at.
//
// - [HKEY_LOCAL_MACHINE\SOFTWARE\...] begins a key; [-HKEY_...] takes it and what lies below it
// away.
//
// - "name"="text" is a string; \\ and \" stand for a backslash and a quotation mark.
//
// - "name"=dword:0000002a is a number.
//
// - "name"=hex(2):61,00,00,00 is any kind by its bytes, here 2, an expandable string in UTF-16; a
// backslash at a line's end continues it.
//
// - "name"=- takes the value away. A semicolon begins a comment.
//
// Later lines win over earlier ones, letter case does not matter in keys and names, and a line of
// any other form is passed over.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace cvlang {

/// A value as far as this program uses its kind; neither part is set for a missing value or one of
/// another kind.
struct RegistryValue {
    std::optional<std::u16string> text;
    std::optional<std::int32_t> number;
};

/// Looks a value up in the bytes of an export file, UTF-16 little-endian or UTF-8 with or without
/// byte-order mark. The key is given without "HKEY_LOCAL_MACHINE\".
RegistryValue FindInRegistryExport(std::string_view file, std::u16string_view key,
                                   std::u16string_view name);

}  // namespace cvlang
