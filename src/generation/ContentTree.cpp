#include "generation/ContentTree.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/Ansi.h"
#include "platform/FileCopy.h"
#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "text/Strings.h"
#include "translation/StorePaths.h"
#include "translation/TokenMapFile.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

bool IsPage(const fs::path& name) {
    constexpr std::string_view kEndings[] = {".asp", ".ascx", ".aspx", ".js", ".xml"};
    return std::any_of(std::begin(kEndings), std::end(kEndings), [&](std::string_view ending) {
        return EndsWithIgnoringCase(name.native(), ending);
    });
}

/// The progress steps of a folder: one for each file that is copied, one more for each page.
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

/// Whether translating pages while they are copied gives the same result as translating them after
/// everything was copied. It does not where something is read again after it was written.
class OnePassCheck {
  public:
    OnePassCheck(const LanguageFolders& folders, bool languageIsNew)
        : languageIsNew_(languageIsNew),
          code_(PathFromText(folders.referenceCode)),
          language_(RealPath(folders.language)) {}

    bool Passes(const LanguageFolders& folders) const {
        const fs::path reference = RealPath(folders.reference);
        const fs::path& path = folders.language;
        return !IsWithin(reference, language_) && !IsWithin(language_, reference) &&
               std::find(path.begin(), path.end(), code_) == path.end() &&
               IsPlain(folders.reference) && IsPlain(path);
    }

  private:
    bool IsPlain(const fs::path& folder) const {
        const FolderListing listing = ListFolder(folder);
        // Folders behind links are not examined. Files whose names differ only in letter case may
        // be copied to the same existing file.
        if (!listing.linkedFolders.empty() || (!languageIsNew_ && HasAlikeNames(listing)))
            return false;
        for (const fs::path& name : listing.linkedFiles) {
            const fs::path target = RealPath(folder / name);
            if (target.empty() || IsWithin(target, language_))
                return false;
        }
        // Pages in a folder of the reference folder's name are written to another folder.
        return std::all_of(
            listing.folders.begin(), listing.folders.end(),
            [&](const fs::path& name) { return name != code_ && IsPlain(folder / name); });
    }

    bool languageIsNew_;
    fs::path code_;
    fs::path language_;
};

/// Copies the reference folder and translates its pages while they are copied, if the result is the
/// same. All other pages are translated where they are in the language's folder.
void GeneratePages(Program& program, const LanguageFolders& folders, PageTranslator& pages) {
    const bool isNew = CreateFolder(folders.language);
    const bool inOnePass = OnePassCheck(folders, isNew).Passes(folders);
    bool isComplete = isNew;
    CopyFolder(folders.reference, folders.language, isNew, [&](const CopiedFile& file) {
        const bool isPage = IsPage(file.target.name);
        if (!inOnePass || !isPage || !pages.TranslateCopy(file)) {
            CopyOneFile(file);
            isComplete = isComplete && !isPage;
        }
        program.progress->Step();
    });
    if (!isComplete)
        TranslateFolder(folders.language, pages, true);
}

}  // namespace

bool ApplyTranslation(Program& program, const Selection& selection) {
    const LanguageFolders folders = FindLanguageFolders(program.config, selection);
    program.progress->Expect([&] { return CountSteps(folders.reference); });
    const std::u16string directory = program.config.GetApplicationDirectory();
    const ProcessLock lock(PathFromText(directory));
    Utf16File mapFile;
    TextArray arrTokens(1);
    TextArray arrValues(1);
    LoadTokens(
        LanguageMapFile(directory, selection, folders.abbreviation, folders.authoringVersion),
        mapFile, arrTokens, arrValues);
    PageTranslator pages(program, folders, arrTokens, arrValues);
    if (folders.areUsable)
        GeneratePages(program, folders, pages);
    if (program.config.IsDebugMode())
        TraceTokenUse(program, arrTokens);
    return true;
}

bool PrepareLanguageFolder(Program& program, const Selection& selection, int iNoPrompt) {
    const LanguageFolders folders = FindLanguageFolders(program.config, selection);
    if (!folders.areUsable)
        return true;
    const bool isNew = CreateFolder(folders.language);
    if (iNoPrompt == 0 && !program.unattended && !isNew && !MayOverwrite(program))
        return false;
    CopyFolder(folders.reference, folders.language, isNew, [&](const CopiedFile& file) {
        CopyOneFile(file);
        program.progress->Step();
    });
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
        if (IsPage(name) && !pages.IsTranslated(folder, name))
            pages.TranslateFile(folder, name, true);
    }
}

}  // namespace cvlang
