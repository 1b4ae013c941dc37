// Wide characters, as window toolkits use them: UTF-16 units on Windows, whole characters on Linux.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// A surrogate pair becomes one character where characters are wide enough; a lone half stays one.
std::wstring WideFromUtf16(std::u16string_view text);

/// Undoes WideFromUtf16.
std::u16string Utf16FromWide(std::wstring_view text);

}  // namespace cvlang
