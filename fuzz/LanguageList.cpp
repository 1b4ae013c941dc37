// The first line is the language to be added, its abbreviation behind a TAB.
#include "translation/Languages.h"

#include "fuzz/Fuzz.h"
#include "platform/Ansi.h"
#include "text/Strings.h"

void cvlang::Try(std::string_view input) {
    constexpr char kFile[] = "WebMail-default-lang.txt";
    FakeProgram& fake = Surroundings();

    const std::u16string added = AnsiToUtf16(TakeLine(input));
    PutFile(kFile, input);
    const auto before = LinesOf(std::u16string_view(AnsiToUtf16(input)));
    auto names = LoadLanguageList(fake.config, {u"WebMail", u"default"});
    Must(names.size() == before.size(), "every line is a language");
    for (std::size_t i = 0; i < std::min<std::size_t>(names.size(), 20); ++i) {
        const auto first = std::find_if(names.begin(), names.end(), [&](const auto& name) {
            return ToUpper(name) == ToUpper(names[i]);
        });
        Must(GetLanguageAbbreviation(fake.config, u"WebMail", names[i], u"default") ==
                 SplitField(before[static_cast<std::size_t>(first - names.begin())], kTab, 2),
             "the first line of a name tells its abbreviation");
    }
    const auto name = SplitField(added, kTab, 1);
    if (added.find(u'\r') == added.npos && AddLanguageToBase(fake.program, {u"WebMail", u"default"},
                                                             name, SplitField(added, kTab, 2))) {
        names.emplace_back(name);
        Must(LoadLanguageList(fake.config, {u"WebMail", u"default"}) == names,
             "a language is added behind all others");
    } else {
        Must(added.find(u'\r') != added.npos || FileBytes(kFile) == input,
             "one that is refused changes nothing");
    }
    fake.messages.shown.clear();
}
