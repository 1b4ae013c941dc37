// Token map files: each line has a token and its text in one language.
//
//   language map file    token TAB value
//   reference map file   TAB TAB TAB token TAB English value
//
// A value cannot contain a line end, and ends at a TAB.
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

/// Tokens or values, as views of a file's text.
using TextArray = std::vector<std::u16string_view>;

/// The token of a list entry such as "[CV_TXT-HELLO]: Hello". A text of any other form is returned
/// unchanged.
std::u16string_view NormaliseToken(std::u16string_view entry);

/// The value of a token, or of a list entry, in the selected language; empty when the file cannot
/// be opened or lacks the token.
std::u16string TokenValue(const Configuration& config, std::u16string_view token,
                          const Selection& selection);

/// The same for the current application, a base and a language.
inline std::u16string GetTokenValue(const Program& program, std::u16string_view token,
                                    std::u16string BaseName, std::u16string LangName) {
    return TokenValue(program.config, token,
                      {program.CurrentApplication, std::move(BaseName), std::move(LangName)});
}

/// Loads a language's map file: line k becomes element k of both arrays, and element 0 is kept.
/// Both arrays get the size for the last line. They are views of `file`, which must outlive them.
/// Deliberate: a file that cannot be opened or is empty changes nothing.
void LoadTokens(const std::filesystem::path& path, Utf16File& file, TextArray& arrTokens,
                TextArray& arrValues);

/// The same for the selected language's map file.
void LoadLanguageTokensIntoArrays(const Configuration& config, const Selection& selection,
                                  Utf16File& file, TextArray& arrTokens, TextArray& arrValues);

/// The list entries of a reference map file, in its order; none when it cannot be opened. The entry
/// of a token without a value is the token. Tokens that do not begin with "[CV_" are left out.
std::vector<std::u16string> ListTokens(const std::filesystem::path& referenceMapFile);

/// The two parts of a list entry, without blanks at their ends. Deliberate: the value ends at its
/// first colon.
struct TokenEntry {
    std::u16string_view token;
    std::u16string_view value;
};
TokenEntry SplitTokenEntry(std::u16string_view entry);

}  // namespace cvlang
