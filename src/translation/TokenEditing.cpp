#include "translation/TokenEditing.h"

#include <string>
#include <utility>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "text/Strings.h"
#include "translation/Languages.h"
#include "translation/StorePaths.h"
#include "translation/TokenMapFile.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// The token of a line of a language map file. Deliberate: one character before the "[", such as a
/// second byte-order mark, is ignored.
std::u16string_view LanguageFileToken(std::u16string_view line) {
    std::u16string_view token = SplitField(line, kTab, kTokenField);
    if (!token.empty() && token.front() != u'[')
        token.remove_prefix(1);
    return token;
}

/// The token of a line of a reference map file; empty for a line with too few fields.
std::u16string_view ReferenceFileToken(std::u16string_view line) {
    return SplitField(line, kTab, kReferenceTokenField);
}

using TokenOfLine = std::u16string_view (*)(std::u16string_view line);

void RemoveLines(const fs::path& mapFile, std::u16string_view token, TokenOfLine tokenOf) {
    const ProcessLock lock(mapFile.parent_path());
    const fs::path file = FindExisting(mapFile);
    const Utf16File original(file);
    if (original.Status() != FileStatus::Okay)
        return;
    std::u16string kept;
    kept.reserve(original.Text().size() + 1);
    Lines<char16_t> lines(original.Text());
    for (std::u16string_view line; lines.Next(line);) {
        if (tokenOf(line) != token || tokenOf(line).empty())
            kept.append(line).append(kCrLf16);
    }
    const fs::path copy = FindExisting(RemovalCopy(file));
    if (!WriteUtf16File(copy, std::move(kept)))
        return;
    // Deliberate: the file is deleted before the copy is renamed.
    RemoveFile(file);
    RenameFile(copy, file);
}

/// The beginning of the names of the language map files: "WebMail-default.net-tokens-".
std::u16string LanguageFilePrefix(const fs::path& referenceMapFile) {
    const std::u16string name = TextFromPath(referenceMapFile.filename());
    return MapFilePrefix({.application = std::u16string(SplitField(name, u"-", 1)),
                          .base = std::u16string(SplitField(name, u"-", 2))}) +
           u"-";
}

}  // namespace

void UpdateToken(const Program& program, const Selection& selection, std::u16string_view token,
                 std::u16string_view value) {
    const Configuration& config = program.config;
    const std::u16string directory = config.GetProgramDirectory();
    const std::u16string abbreviation = LanguageAbbreviation(config, selection);
    const std::int32_t version = config.GetAuthoringVersion();
    RewriteKeyedLine({LanguageMapFile(directory, selection, abbreviation, version),
                      TemporaryMapFile(directory, selection, abbreviation, version)},
                     NormaliseToken(token), value, program.logs);
}

void AddTokenLine(const fs::path& referenceMapFile, std::u16string_view name,
                  std::u16string_view value) {
    const ProcessLock lock(referenceMapFile.parent_path());
    const fs::path file = FindExisting(referenceMapFile);
    const Utf16File existing(file);
    const bool inMiddleOfLine = !existing.Text().empty() && !existing.Text().ends_with(kCrLf16);
    std::u16string line(inMiddleOfLine ? kCrLf16 : u"");
    line.append(u"\t\t\t[CV_TXT-").append(name).append(u"]\t").append(value).append(kCrLf16);
    AppendTextOrThrow(file, line);
}

void RemoveFromReferenceFile(const fs::path& referenceMapFile, std::u16string_view token) {
    RemoveLines(referenceMapFile, token, ReferenceFileToken);
}

void RemoveFromLanguageFiles(const fs::path& referenceMapFile, std::u16string_view token) {
    const std::u16string prefix = ToUpper(LanguageFilePrefix(referenceMapFile));
    const fs::path folder = FindExisting(referenceMapFile.parent_path());
    for (const fs::path& name : ListFolder(folder).files) {
        const std::u16string upper = ToUpper(TextFromPath(name));
        if (upper.starts_with(prefix) && upper.ends_with(u".MAP"))
            RemoveLines(folder / name, token, LanguageFileToken);
    }
}

}  // namespace cvlang
