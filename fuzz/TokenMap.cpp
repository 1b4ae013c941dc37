#include "translation/TokenMapFile.h"

#include "fuzz/Fuzz.h"

void cvlang::Try(std::string_view input) {
    const FakeProgram& fake = Surroundings();
    constexpr char kFile[] = "WebMail-default-tokens-fr.map";
    PutFile(kFile, StoreFile(input));
    TextArray tokens(1, u"held");
    TextArray values(3, u"held");
    Utf16File file;
    LoadLanguageTokensIntoArrays(fake.config, {u"WebMail", u"default", u"French"}, file, tokens,
                                 values);
    const bool isEmpty = StoreFile(input).size() < 4;
    Must(isEmpty || tokens.size() == values.size(), "each token has its value");
    Must(tokens[0] == u"held" && values[0] == u"held", "the first elements stay");
    for (std::size_t i = 1; i < std::min<std::size_t>(tokens.size(), 20); ++i) {
        std::u16string asked(tokens[i]);
        if (asked.find(u"]:") != asked.npos)
            continue;
        const auto first = std::find(tokens.begin() + 1, tokens.end(), asked) - tokens.begin();
        if (asked.starts_with(kTokenPrefix) && asked.ends_with(u']'))
            asked += u": English [x]: more";
        const std::u16string_view value = values[static_cast<std::size_t>(first)];
        Must(TokenValue(fake.config, asked, {u"WebMail", u"default", u"French"}) == value,
             "a token, or its list entry, is found where it is loaded first");
    }
    for (const std::u16string& entry : ListTokens(kFile))
        Must(entry.starts_with(kTokenPrefix) && entry.find(u'\n') == entry.npos,
             "what is listed begins like a token");
}
