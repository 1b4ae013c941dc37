// The first line is the token, the second its value, the rest the file.
#include "translation/StoreFile.h"

#include "fuzz/Fuzz.h"
#include "text/Strings.h"
#include "text/Unicode.h"
#include "translation/TokenEditing.h"

namespace cvlang {
namespace {

using Texts = std::vector<std::u16string>;

constexpr char kReference[] = "WebMail-default-tokens.map";
constexpr char kLanguage[] = "WebMail-default-tokens-fr.map";
constexpr char kOtherBase[] = "WebMail-default.net-tokens-fr.map";

Texts FileLines(const char* file) {
    return LinesOf(Utf16File(file).Text());
}

bool IsOfToken(std::u16string_view line, std::u16string_view token) {
    return TrimTrailingBlanks(SplitField(line, kTab, 1)) == token;
}

Texts Expected(Texts lines, std::u16string_view token, std::u16string_view value) {
    bool found = false;
    for (std::u16string& line : lines) {
        if (!IsOfToken(line, token))
            continue;
        line = std::u16string(SplitField(line, kTab, 1)).append(kTab).append(value);
        found = true;
    }
    if (!found)
        lines.push_back(std::u16string(token).append(kTab).append(value));
    return lines;
}

void TryChangesOfTokens(const std::string& bytes, std::u16string_view token,
                        std::u16string_view value) {
    for (const char* file : {kReference, kLanguage, kOtherBase})
        PutFile(file, bytes);
    const std::u16string text(Utf16File(kReference).Text());
    Texts lines = LinesOf(std::u16string_view(text));
    RemoveFromLanguageFiles(std::filesystem::absolute(kReference), token);
    Texts kept = lines;
    std::erase_if(kept, [&token](std::u16string_view line) {
        std::u16string_view first = SplitField(line, kTab, 1);
        if (!first.empty() && first.front() != u'[')
            first.remove_prefix(1);
        return !first.empty() && first == token;
    });
    Must(FileLines(kLanguage) == kept, "the token's lines go from a language's file");
    Must(FileBytes(kReference) == bytes && FileBytes(kOtherBase) == bytes, "and from no other");

    AddTokenLine(kReference, token, value);
    if (!text.empty() && !text.ends_with(u"\r\n") && (text.back() == u'\r' || text.back() == u'\n'))
        lines.emplace_back();
    lines.push_back(std::u16string(u"\t\t\t[CV_TXT-").append(token).append(u"]\t").append(value));
    Must(FileLines(kReference) == lines, "a token is added on a line of its own");
}

}  // namespace
}  // namespace cvlang

void cvlang::Try(std::string_view input) {
    const FakeProgram& fake = Surroundings();
    const std::u16string token(TrimTrailingBlanks(Utf8ToUtf16(TakeLine(input))));
    const std::u16string value = Utf8ToUtf16(TakeLine(input));
    if ((token + value).find_first_of(u"\t\r") != std::u16string::npos)
        return;
    PutFile("t.map", StoreFile(input));
    Texts lines = FileLines("t.map");
    RewriteKeyedLine({"t.map", "_t.map"}, token, value, fake.logs);
    Must(FileLines("t.map") == Expected(lines, token, value),
         "the token's lines change, no other does");
    Must(FileBytes("_t.map") == "(no file)", "no temporary file is left");

    PutFile("t.map", StoreFile(input));
    RemoveFromReferenceFile("t.map", token);
    std::erase_if(lines, [&token](const std::u16string& line) {
        return !token.empty() && SplitField(line, kTab, 4) == token;
    });
    Must(FileLines("t.map") == lines, "the token's lines go, no other does");
    TryChangesOfTokens(StoreFile(input), token, value);
}
