#include "generation/PageTranslator.h"

#include <new>

#include "generation/LanguageFolders.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "translation/LanguageList.h"

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

bool IsScriptFile(const fs::path& path) {
    const fs::path::string_type& text = path.native();
    const auto equals = [&text](std::size_t fromEnd, char lower) {
        const auto c = text[text.size() - fromEnd];
        return c == lower || c == lower - 'a' + 'A';
    };
    return text.size() >= 3 && text[text.size() - 3] == '.' && equals(2, 'j') && equals(1, 's');
}

ScriptMode ScriptModeOf(const fs::path& path, bool scriptAware) {
    if (!scriptAware)
        return ScriptMode::Ignored;
    return IsScriptFile(path) ? ScriptMode::Always : ScriptMode::Tracked;
}

}  // namespace

PageTranslator::PageTranslator(Program& program, const Selection& selection,
                               const TextArray& arrTokens, const TextArray& arrValues)
    : program_(program),
      referencePart_(FolderPart(GetReferenceLanguageCode(program.config))),
      languagePart_(FolderPart(ToUpper(LanguageAbbreviation(program.config, selection)))),
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
            RewriteFile(folder, name, bScriptAware);
            return;
        }
    } catch (const std::bad_alloc&) {
        // A page too large for this machine is one that cannot be read.
        source_ = {};
        page_ = {};
        substitution_.ReleaseMemory();
    }
    // A log that cannot be written must not keep the other pages from being translated.
    [[maybe_unused]] const auto ignored = program_.logs.LogTranslationEvent(
        u"Error - could not find asp source: " + TextFromPath(folder.Path() / name));
}

void PageTranslator::RewriteFile(const Folder& folder, const fs::path& name, bool bScriptAware) {
    page_.Truncate(0);
    page_.Append(kUtf8ByteOrderMark);
    if (!substitution_.Translate(source_.Bytes(), ScriptModeOf(name, bScriptAware), page_))
        return;
    if (source_.HasAttributes())
        ResetAttributes(folder.Path() / name);
    const fs::path destination = DestinationOf(folder);
    if (!destination.empty()) {
        WriteElsewhere(FindExisting(destination / name));
    } else {
        WriteFileAnew(folder, name, PageBytes());
    }
}

/// The page behind one byte-order mark: its own, if it has one.
std::string_view PageTranslator::PageBytes() const {
    std::string_view bytes = page_.View();
    if (bytes.substr(kUtf8ByteOrderMark.size(), kUtf8ByteOrderMark.size()) == kUtf8ByteOrderMark)
        bytes.remove_prefix(kUtf8ByteOrderMark.size());
    return bytes;
}

void PageTranslator::WriteElsewhere(const fs::path& destination) {
    const bool isNew = !EntryExists(destination);
    RemoveFile(destination);
    if (!WriteFile(destination, PageBytes())) {
        RemoveFile(destination);
    } else if (isNew) {
        created_.insert(destination.lexically_normal());
    }
}

/// The folder that mirrors this one in the language's folder; empty when it lies there already.
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
