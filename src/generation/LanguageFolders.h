// Where an application base's pages lie: its language root holds the reference folder and the
// languages' folders.
#pragma once

#include <string>
#include <string_view>

#include "config/Configuration.h"

namespace cvlang {

/// The language root of an application base, without a separator at its end; empty when the base
/// has none. Letter case does not matter in either name.
std::u16string GetLanguageRoot(const Configuration& config, std::u16string_view application,
                               std::u16string_view base);

/// The name of the reference folder: "SYS", or "EN" with the old names.
std::u16string GetReferenceLanguageCode(const Configuration& config);

}  // namespace cvlang
