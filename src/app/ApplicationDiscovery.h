// Which application bases are installed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "config/Configuration.h"

namespace cvlang {

/// The applications that can be translated. They are not looked for.
inline constexpr std::u16string_view kApplications[] = {u"WebMail", u"WebAdmin"};

/// The folder whose bases are looked for, whichever application is selected.
inline constexpr std::u16string_view kProbedApplication = u"netwebmail";

/// Whether an entry of the base's name, a folder or a file, exists in the application's folder.
bool BaseExists(const Configuration& config, std::u16string_view ApplicationName,
                std::u16string_view BaseName);

/// The installed bases in their usual order, as lists show them ("default.net").
std::vector<std::u16string> DetectBases(const Configuration& config,
                                        std::u16string_view applicationFolder);

}  // namespace cvlang
