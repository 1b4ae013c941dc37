// What the main window does behind its controls; needs no display.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// The applications that can be translated, installed or not.
inline constexpr std::u16string_view kApplications[] = {u"WebMail", u"WebAdmin"};

/// Deliberate: the bases of this folder are listed for both applications.
inline constexpr std::u16string_view kProbedApplication = u"netwebmail";

/// Whether the application's folder has an entry of the base's name. Deliberate: a plain file
/// counts too.
bool BaseExists(const Configuration& config, std::u16string_view ApplicationName,
                std::u16string_view BaseName);

/// The installed bases in a fixed order, as listed ("default.net").
std::vector<std::u16string> DetectBases(const Configuration& config,
                                        std::u16string_view applicationFolder);

/// Generates the pages of the selection, records the language in the language table, and reports
/// success. Deliberate: failures of single pages are only logged.
void GenerateLanguage(Program& program, const Selection& selection);

/// Asks whether to remove the token from the language map files too. Yes removes it from all map
/// files of the base, No only from the reference map file, Cancel from none.
void RemoveTokenAsAsked(UserMessages& messages, const std::filesystem::path& referenceMapFile,
                        std::u16string_view token);

/// The next entry that contains a text, in any letter case. The search starts after the selected
/// entry or at the top, continues at the top, and ends with the selected entry.
std::optional<std::size_t> FindEntry(const std::vector<std::u16string>& entries,
                                     std::optional<std::size_t> selected, std::u16string_view text);

/// The next entry, in the same order, whose token has no value in the selected language's map file.
std::optional<std::size_t> FindUntranslated(const Program& program,
                                            const std::vector<std::u16string>& entries,
                                            std::optional<std::size_t> selected,
                                            const Selection& selection);

}  // namespace cvlang
