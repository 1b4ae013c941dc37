#include "generation/PageTranslator.h"

#include "generation/ApplicationRoots.h"
#include "generation/PageEncoding.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "translation/LanguageTable.h"

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

PageTranslator::PageTranslator(Program& program, std::u16string_view sLanguage,
                               std::u16string_view sBase, std::u16string_view sApplication,
                               const std::vector<std::u16string>& arrTokens,
                               const std::vector<std::u16string>& arrValues)
    : program_(program),
      referencePart_(FolderPart(GetReferenceLanguageCode(program.config))),
      languagePart_(FolderPart(
          ToUpper(GetLanguageAbbreviation(program.config, sApplication, sLanguage, sBase)))),
      tokens_(arrTokens, arrValues),
      substitution_(tokens_, UseCountsFor(program, arrTokens.size())) {}

void PageTranslator::TranslateFile(const fs::path& sSourcePath, bool bScriptAware) {
    if (ReadFile(sSourcePath, source_) != FileStatus::Okay) {
        // A log that cannot be written must not keep the other pages from being translated.
        [[maybe_unused]] const auto ignored = program_.logs.LogTranslationEvent(
            u"Error - could not find asp source: " + TextFromPath(sSourcePath));
        return;
    }
    page_ = kUtf8ByteOrderMark;
    if (!substitution_.Translate(source_.Bytes(), ScriptModeOf(sSourcePath, bScriptAware), page_))
        return;
    if (source_.HasAttributes())
        ResetAttributes(FindExisting(sSourcePath));
    WritePage(sSourcePath, DestinationOf(sSourcePath));
}

void PageTranslator::WritePage(const fs::path& source, const fs::path& destination) {
    std::string_view bytes = page_;
    if (bytes.substr(kUtf8ByteOrderMark.size(), kUtf8ByteOrderMark.size()) == kUtf8ByteOrderMark)
        bytes.remove_prefix(kUtf8ByteOrderMark.size());
    const bool isElsewhere = destination != source;
    const bool isNew = isElsewhere && !EntryExists(destination);
    RemoveFile(destination);
    if (!WriteFile(destination, bytes)) {
        RemoveFile(destination);
    } else if (isNew) {
        created_.insert(destination.lexically_normal());
    }
}

fs::path PageTranslator::DestinationOf(const fs::path& source) const {
    fs::path::string_type text = source.native();
    std::size_t found = text.find(referencePart_);
    if (found == fs::path::string_type::npos)
        return source;
    while (found != fs::path::string_type::npos) {
        text.replace(found, referencePart_.size(), languagePart_);
        found = text.find(referencePart_, found + languagePart_.size());
    }
    return FindExisting(text);
}

}  // namespace cvlang
