// Where an application base's pages lie: its language root holds the reference folder and the
// languages' folders.
#pragma once

#include <string>

#include "config/Configuration.h"
#include "translation/Selection.h"

namespace cvlang {

/// The language root of an application base, without a separator at its end; empty when the base
/// has none. Letter case does not matter in either name.
std::u16string GetLanguageRoot(const Configuration& config, const Selection& selection);

/// The name of the reference folder: "SYS", or "EN" with the old names.
std::u16string GetReferenceLanguageCode(const Configuration& config);

}  // namespace cvlang
