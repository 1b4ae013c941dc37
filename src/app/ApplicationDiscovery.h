// Which application bases are installed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "config/Configuration.h"

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

}  // namespace cvlang
