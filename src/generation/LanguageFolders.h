// Where an application base's pages lie: its language root holds the reference folder and the
// languages' folders.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "config/Configuration.h"
#include "translation/Selection.h"

namespace cvlang {

/// The language root of an application base, without a separator at its end; empty when the base
/// has none. Letter case does not matter in either name.
std::u16string GetLanguageRoot(const Configuration& config, const Selection& selection);

/// The name of the reference folder: "SYS", or "EN" with the old names.
std::u16string GetReferenceLanguageCode(const Configuration& config);

/// What the files and folders of one run are called, worked out once.
struct LanguageFolders {
    std::int32_t authoringVersion = 0;
    std::u16string referenceCode{};
    std::u16string abbreviation{};
    // Full paths, as they are spelt on the disk.
    std::filesystem::path reference{};
    std::filesystem::path language{};
    /// False when nothing may be copied or translated. Without a language root and an abbreviation
    /// the language's folder would be the root of the drive, and every page on it would be
    /// rewritten; if it is the reference folder, the original pages would be.
    bool areUsable = false;
};

LanguageFolders FindLanguageFolders(const Configuration& config, const Selection& selection);

}  // namespace cvlang
