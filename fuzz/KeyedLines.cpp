// The first line is the token, the second its value, the rest the file.
#include "translation/StoreFile.h"

#include "fuzz/Fuzz.h"
#include "text/Strings.h"
#include "text/Unicode.h"
#include "translation/TokenEditing.h"

namespace cvlang {
namespace {

using Texts = std::vector<std::u16string>;

Texts FileLines() {
    return LinesOf(Utf16File("t.map").Text());
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

}  // namespace
}  // namespace cvlang

void cvlang::Try(std::string_view input) {
    const FakeProgram& fake = Surroundings();
    const std::u16string token(TrimTrailingBlanks(Utf8ToUtf16(TakeLine(input))));
    const std::u16string value = Utf8ToUtf16(TakeLine(input));
    if ((token + value).find_first_of(u"\t\r") != std::u16string::npos)
        return;
    PutFile("t.map", StoreFile(input));
    Texts lines = FileLines();
    RewriteKeyedLine({"t.map", "_t.map"}, token, value, fake.logs);
    Must(FileLines() == Expected(lines, token, value), "the token's lines change, no other does");
    Must(FileBytes("_t.map") == "(no file)", "no temporary file is left");

    PutFile("t.map", StoreFile(input));
    RemoveFromReferenceFile("t.map", token);
    std::erase_if(lines, [&token](const std::u16string& line) {
        return !token.empty() && SplitField(line, kTab, 4) == token;
    });
    Must(FileLines() == lines, "the token's lines go, no other does");
}
