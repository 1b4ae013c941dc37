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

#include "config/Configuration.h"
#include "translation/Utf16File.h"

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

/// The full path of the English map file of the selected application and base.
std::filesystem::path GetReferenceMapFilePath(const Configuration& config,
                                              std::u16string_view currentApplication,
                                              std::u16string_view BaseName);

/// The full path of a language's map file of the selected application and base.
std::filesystem::path GetLanguageMapFilePath(const Configuration& config,
                                             std::u16string_view currentApplication,
                                             std::u16string_view BaseName,
                                             std::u16string_view LangName);

/// The value of a token, or of a list entry, in a language of the selected application; empty when
/// the file cannot be opened or does not hold the token.
std::u16string GetTokenValue(const Configuration& config, std::u16string_view currentApplication,
                             std::u16string_view token, std::u16string_view BaseName,
                             std::u16string_view LangName);

/// Loads a language's map file: line k goes to element k of both arrays, element 0 stays as it is,
/// and both end at the last line. The texts lie in `file` then. A map file that cannot be opened or
/// holds no line leaves everything unchanged.
void LoadLanguageTokensIntoArrays(const Configuration& config, std::u16string_view ApplicationName,
                                  std::u16string_view BaseName, std::u16string_view LangName,
                                  Utf16File& file, TextArray& arrTokens, TextArray& arrValues);

/// The same, by the name that generation has for it.
inline constexpr auto LoadTokens = LoadLanguageTokensIntoArrays;

}  // namespace cvlang
