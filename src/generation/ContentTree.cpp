#include "generation/ContentTree.h"

#include <algorithm>
#include <string>
#include <vector>

#include "generation/LanguageFolders.h"
#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "platform/FolderCopy.h"
#include "platform/FolderListing.h"
#include "platform/Paths.h"
#include "platform/ProcessLock.h"
#include "translation/LanguageList.h"
#include "translation/TokenMapFile.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// Names of files that are pages end so, in any case.
constexpr std::string_view kPageEndings[] = {".ASP", ".ASCX", ".ASPX", ".JS", ".XML"};

bool EndsWith(const fs::path::string_type& name, std::string_view upperEnding) {
    return name.size() >= upperEnding.size() &&
           std::equal(upperEnding.rbegin(), upperEnding.rend(), name.rbegin(),
                      [](char e, auto c) { return c == e || (e >= 'A' && c == e - 'A' + 'a'); });
}

bool IsPage(const fs::path& name) {
    return std::any_of(
        std::begin(kPageEndings), std::end(kPageEndings),
        [&name](std::string_view ending) { return EndsWith(name.native(), ending); });
}

struct ContentFolders {
    fs::path reference;
    fs::path language;
    /// Without a language root and an abbreviation the language's folder would be the root of the
    /// drive, and every page on it would be rewritten. Nothing is done then.
    bool areTheDrive = false;
};

ContentFolders FoldersOf(const Configuration& config, const Selection& selection) {
    const std::u16string root = GetLanguageRoot(config, selection);
    const std::u16string abbreviation = LanguageAbbreviation(config, selection);
    const fs::path reference = PathFromText(JoinedPath({root, GetReferenceLanguageCode(config)}));
    const fs::path folder = PathFromText(JoinedPath({root, abbreviation}));
    // Without a root the folders are those at the root of the drive, by exactly these names: Linux
    // has a /sys there.
    if (root.empty())
        return {reference, folder, abbreviation.empty()};
    return {FindExisting(reference), FindExisting(folder), false};
}

/// What is to do for a folder: each file is copied, and each page is translated then.
std::size_t CountSteps(const fs::path& folder) {
    const FolderListing listing = ListFolder(folder);
    std::size_t steps = listing.files.size();
    for (const fs::path& name : listing.files)
        steps += IsPage(name) ? 1U : 0U;
    for (const fs::path& name : listing.folders)
        steps += CountSteps(folder / name);
    return steps;
}

bool MayOverwrite(Program& program) {
    return program.messages.Show(
               {u"Web Content for this Language already exists, do you wish to overwrite it?",
                std::u16string(kProgramTitle), MessageButtons::YesNo, MessageIcon::Question}) ==
           MessageAnswer::Yes;
}

void TraceTokenUse(Program& program, const TextArray& arrTokens) {
    for (std::size_t i = 1; i < arrTokens.size(); ++i) {
        const std::string count =
            std::to_string(i < program.tokenUseCounts.size() ? program.tokenUseCounts[i] : 0);
        program.logs.LogTranslationTrace(std::u16string(arrTokens[i]) + u"\t" + AnsiToUtf16(count));
    }
}

}  // namespace

bool ApplyTranslation(Program& program, const Selection& selection) {
    program.progress->Expect(
        [&] { return CountSteps(FoldersOf(program.config, selection).reference); });
    const ProcessLock lock(PathFromText(program.config.GetApplicationDirectory()));
    if (!PrepareLanguageFolder(program, selection, 1))
        return false;
    Utf16File mapFile;
    TextArray arrTokens(1);
    TextArray arrValues(1);
    LoadLanguageTokensIntoArrays(program.config, selection, mapFile, arrTokens, arrValues);
    PageTranslator pages(program, selection, arrTokens, arrValues);
    const ContentFolders folders = FoldersOf(program.config, selection);
    if (!folders.areTheDrive)
        TranslateFolder(folders.language, pages, true);
    if (program.config.IsDebugMode())
        TraceTokenUse(program, arrTokens);
    return true;
}

bool PrepareLanguageFolder(Program& program, const Selection& selection, int iNoPrompt) {
    const ContentFolders folders = FoldersOf(program.config, selection);
    if (folders.areTheDrive)
        return true;
    const bool existed = !CreateFolder(folders.language);
    if (iNoPrompt == 0 && !program.unattended && existed && !MayOverwrite(program))
        return false;
    const auto step = [&program] { program.progress->Step(); };
    CopyFilesOf(folders.reference, folders.language, CopiedAttributes::Archive, step);
    CopyFoldersOf(folders.reference, folders.language, step);
    return true;
}

void TranslateFolder(const fs::path& sFolderPath, PageTranslator& pages, bool bRecurse) {
    const FolderListing listing = ListFolder(sFolderPath);
    if (bRecurse) {
        for (const fs::path& name : listing.folders)
            TranslateFolder(sFolderPath / name, pages, bRecurse);
    }
    const Folder folder(sFolderPath);
    for (const fs::path& name : listing.files) {
        if (IsPage(name) && !pages.HasCreated(folder, name))
            pages.TranslateFile(folder, name, true);
    }
}

}  // namespace cvlang
