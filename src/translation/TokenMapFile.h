// Token map files: one token a line, with the text that stands for it in one language.
//
//   language map file    token TAB value
//   reference map file   TAB TAB TAB token TAB English value
//
// A value cannot hold a line's end, and a TAB ends it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "run/Program.h"
#include "translation/Selection.h"
#include "translation/StoreFile.h"

namespace cvlang {

inline constexpr std::u16string_view kTokenPrefix = u"[CV_";

// Fields of a line, counted from 1.
inline constexpr int kTokenField = 1;
inline constexpr int kValueField = 2;
inline constexpr int kReferenceTokenField = 4;
inline constexpr int kReferenceValueField = 5;

/// Tokens or values; the texts lie elsewhere.
using TextArray = std::vector<std::u16string_view>;

/// The token of a list entry such as "[CV_TXT-HELLO]: Hello"; a text of any other form is the token
/// itself.
std::u16string_view NormaliseToken(std::u16string_view entry);

/// The value of a token, or of a list entry, in the selected language; empty when the file cannot
/// be opened or does not hold the token.
std::u16string TokenValue(const Configuration& config, std::u16string_view token,
                          const Selection& selection);

/// The same for the current application, a base and a language.
inline std::u16string GetTokenValue(const Program& program, std::u16string_view token,
                                    std::u16string BaseName, std::u16string LangName) {
    return TokenValue(program.config, token,
                      {program.CurrentApplication, std::move(BaseName), std::move(LangName)});
}

/// Loads a language's map file: line k goes to element k of both arrays, element 0 stays as it is,
/// and both end at the last line. The texts lie in `file` then. A map file that cannot be opened or
/// holds no line leaves everything unchanged.
void LoadTokens(const std::filesystem::path& path, Utf16File& file, TextArray& arrTokens,
                TextArray& arrValues);

/// The same for the selected language's map file.
void LoadLanguageTokensIntoArrays(const Configuration& config, const Selection& selection,
                                  Utf16File& file, TextArray& arrTokens, TextArray& arrValues);

/// The entries of a reference map file, in its order; none when it cannot be opened. A token
/// without a value stands alone, and only if it begins like a token.
std::vector<std::u16string> ListTokens(const std::filesystem::path& referenceMapFile);

/// The two parts of a list entry, trimmed of blanks. A value ends at its own first colon.
struct TokenEntry {
    std::u16string_view token;
    std::u16string_view value;
};
TokenEntry SplitTokenEntry(std::u16string_view entry);

}  // namespace cvlang
