#include "translation/TokenMapFile.h"

#include "fuzz/Fuzz.h"
#include "translation/TokenList.h"

void cvlang::Try(std::string_view input) {
    const FakeProgram& fake = Surroundings();
    constexpr char kFile[] = "WebMail-default-tokens-fr.map";
    PutFile(kFile, StoreFile(input));
    std::vector<std::u16string> tokens(1, u"held");
    std::vector<std::u16string> values(3, u"held");
    LoadTokens(fake.config, u"WebMail", u"default", u"French", tokens, values);
    const bool isEmpty = StoreFile(input).size() < 4;
    Must(isEmpty || tokens.size() == values.size(), "each token has its value");
    Must(tokens[0] == u"held" && values[0] == u"held", "the first elements stay");
    for (std::size_t i = 1; i < std::min<std::size_t>(tokens.size(), 20); ++i) {
        const auto first = std::find(tokens.begin() + 1, tokens.end(), NormaliseToken(tokens[i]));
        const auto value =
            first == tokens.end() ? u"" : values[static_cast<std::size_t>(first - tokens.begin())];
        Must(GetTokenValue(fake.config, u"WebMail", tokens[i], u"default", u"French") == value,
             "a look-up finds what is loaded first");
    }
    for (const std::u16string& entry : ListTokens(kFile))
        Must(entry.starts_with(kTokenPrefix) && entry.find(u'\n') == entry.npos,
             "what is listed begins like a token");
}
