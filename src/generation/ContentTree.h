// A language's web content: the copy of the reference folder in which every page is translated.
#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "generation/PageTranslator.h"
#include "run/Program.h"

namespace cvlang {

/// Generates the pages of a language for an application base, over what is there already. Always
/// true, also when single files could not be written.
bool ApplyTranslation(Program& program, const Selection& selection);

/// The same for an application, a base and a language.
inline bool ApplyTranslation(Program& program, std::u16string sApplication, std::u16string sBase,
                             std::u16string sLanguage) {
    return ApplyTranslation(program,
                            {std::move(sApplication), std::move(sBase), std::move(sLanguage)});
}

/// Copies the reference folder into the language's folder, overwriting; files that only the
/// language's folder has stay. When the folder exists already, `iNoPrompt` is 0 and the program has
/// a window, the user is asked first. False when he declined.
bool PrepareLanguageFolder(Program& program, const Selection& selection, int iNoPrompt);

/// Translates the pages in a folder, those of its subfolders before its own when `bRecurse` is set.
/// Links to folders are not followed.
void TranslateFolder(const std::filesystem::path& sFolderPath, PageTranslator& pages,
                     bool bRecurse);

}  // namespace cvlang
