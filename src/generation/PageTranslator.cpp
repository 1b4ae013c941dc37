#include "generation/PageTranslator.h"

#include <new>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

fs::path::string_type FolderPart(const std::u16string& name) {
    return PathFromText(kSeparator + name + kSeparator).native();
}

/// The counts are kept for the whole process and only ever grow.
std::vector<std::int32_t>& UseCountsFor(Program& program, std::size_t size) {
    if (program.tokenUseCounts.size() < size)
        program.tokenUseCounts.resize(size);
    return program.tokenUseCounts;
}

ScriptMode ScriptModeOf(const fs::path& path, bool scriptAware) {
    if (!scriptAware)
        return ScriptMode::Ignored;
    return EndsWithIgnoringCase(path.native(), ".js") ? ScriptMode::Always : ScriptMode::Tracked;
}

}  // namespace

PageTranslator::PageTranslator(Program& program, const LanguageFolders& folders,
                               const TextArray& arrTokens, const TextArray& arrValues)
    : program_(program),
      referencePart_(FolderPart(folders.referenceCode)),
      languagePart_(FolderPart(ToUpper(folders.abbreviation))),
      tokens_(arrTokens, arrValues),
      substitution_(tokens_, UseCountsFor(program, arrTokens.size())) {}

void PageTranslator::TranslateFile(const fs::path& sSourcePath, bool bScriptAware) {
    const fs::path existing = FindExisting(sSourcePath);
    TranslateFile(Folder(existing.parent_path()), existing.filename(), bScriptAware);
}

void PageTranslator::TranslateFile(const Folder& folder, const fs::path& name, bool bScriptAware) {
    program_.progress->Step();
    try {
        if (ReadFile(folder, name, source_) == FileStatus::Okay) {
            if (Substitute(name, bScriptAware))
                RewriteFile(folder, name);
            return;
        }
    } catch (const std::bad_alloc&) {
        // A page too large for this machine is one that cannot be read.
        ReleaseMemory();
    }
    // The other pages are translated even when the log cannot be written.
    [[maybe_unused]] const auto ignored = program_.logs.LogTranslationEvent(
        u"Error - could not find asp source: " + TextFromPath(folder.Path() / name));
}

bool PageTranslator::TranslateCopy(const CopiedFile& file) {
    try {
        if (ReadFile(file.from, file.name, source_) != FileStatus::Okay ||
            !Substitute(file.target.name, true))
            return false;
        if (!WritePage(file, PageBytes(), source_)) {
            substitution_.Uncount(source_.Bytes(), ScriptModeOf(file.target.name, true), page_);
            return false;
        }
    } catch (const std::bad_alloc&) {
        ReleaseMemory();
        return false;
    }
    copies_.insert((file.to.Path() / file.target.name).native());
    program_.progress->Step();
    return true;
}

bool PageTranslator::IsTranslated(const Folder& folder, const fs::path& name) const {
    if (copies_.empty() && created_.empty())
        return false;
    const fs::path path = folder.Path() / name;
    return copies_.count(path.native()) != 0 ||
           (!created_.empty() && created_.count(path.lexically_normal()) != 0);
}

bool PageTranslator::Substitute(const fs::path& name, bool bScriptAware) {
    page_.Truncate(0);
    page_.Append(kUtf8ByteOrderMark);
    return substitution_.Translate(source_.Bytes(), ScriptModeOf(name, bScriptAware), page_);
}

void PageTranslator::ReleaseMemory() {
    source_ = {};
    page_ = {};
    substitution_.ReleaseMemory();
}

void PageTranslator::RewriteFile(const Folder& folder, const fs::path& name) {
    const fs::path destination = DestinationOf(folder);
    if (!destination.empty()) {
        ResetAttributes(folder, name);
        WriteElsewhere(FindExisting(destination / name));
    } else {
        WritePage({folder, name, folder, {name, true}, CopiedAttributes::Archive}, PageBytes(),
                  source_);
    }
}

/// The page with one byte-order mark: its own, if it has one.
std::string_view PageTranslator::PageBytes() const {
    std::string_view bytes = page_.View();
    if (bytes.substr(kUtf8ByteOrderMark.size(), kUtf8ByteOrderMark.size()) == kUtf8ByteOrderMark)
        bytes.remove_prefix(kUtf8ByteOrderMark.size());
    return bytes;
}

void PageTranslator::WriteElsewhere(const fs::path& destination) {
    const bool isNew = !EntryExists(destination);
    const Folder folder(destination.parent_path());
    const fs::path name = destination.filename();
    if (RemoveFile(destination) &&
        WritePage({folder, name, folder, {name, false}, CopiedAttributes::Archive}, PageBytes(),
                  source_) &&
        isNew)
        created_.insert(destination.lexically_normal());
}

/// The mirrored path in the language's folder; empty for a folder that is in it already.
fs::path PageTranslator::DestinationOf(const Folder& source) const {
    fs::path::string_type text = source.Path().native();
    text += fs::path::preferred_separator;
    std::size_t found = text.find(referencePart_);
    if (found == fs::path::string_type::npos)
        return {};
    while (found != fs::path::string_type::npos) {
        text.replace(found, referencePart_.size(), languagePart_);
        found = text.find(referencePart_, found + languagePart_.size());
    }
    return text;
}

}  // namespace cvlang
