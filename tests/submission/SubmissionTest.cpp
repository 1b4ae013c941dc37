#include "submission/Submission.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang::tests {

using namespace std::string_literals;

TEST(Submission, AllMapFilesOfTheBaseAreFoundByTheirExactName) {
    const TemporaryFolder folder;
    const auto reference = folder / "A-b.net-tokens.map";
    EXPECT_TRUE(MapFilesOfBase(reference, {u"A", u"b.net"}).empty());
    for (const char* name :
         {"A-b.net-tokens-fr.map", "A-b.net-tokens.map", "A-b.net-TOKENS-de.map",
          "a-b.net-tokens-it.map", "A-b.net-tokens-ja.MAP", "A-b.net-tokens-es.map.bak",
          "A-b.net-_tokens-pt.map", "A-bxnet-tokens.map", "A-b.net-tokens.fr"})
        PutFile(folder / name, "");
    std::filesystem::create_directory(folder / "A-b.net-tokens-folder.map");
    EXPECT_EQ(MapFilesOfBase(reference, {u"A", u"b.net"}),
              (std::vector{folder / "A-b.net-tokens-fr.map", reference}));
}

TEST(Submission, TheFirstFaultyAddressIsReported) {
    const std::u16string ask = u"Please specify a valid email address for the '";
    const std::tuple<std::u16string, std::u16string, std::u16string> cases[] = {
        {u"@x", u"a@b", u""},
        {u"a@@", u" @ ", u""},
        {u"", u"", ask + u"To' field."},
        {u"a@", u"", u"Invalid recipient address. " + ask + u"To' field."},
        {u"ab", u"a@b", u"Invalid recipient address. " + ask + u"To' field."},
        {u"a@b", u"", ask + u"From' field."},
        {u"a@b", u"a@", u"Invalid sender address. " + ask + u"From' field."}};
    for (const auto& [to, from, text] : cases) {
        const auto fault = ValidateMailAddresses(to, from);
        EXPECT_EQ(fault ? fault->message.text : u"", text);
    }
}

TEST(Submission, LinesOfTheBodyEndWithCrLfAndHeadersHoldNoControls) {
    const std::pair<std::u16string, std::u16string> cases[] = {
        {u"a\rb\nc\r\nd\n\re", u"a\r\nb\r\nc\r\nd\r\n\r\ne"},
        {u"a\u2028b\u2029", u"a\r\nb\r\n"},
        {u"a\tb\u0085c", u"a\tb\u0085c"}};
    for (const auto& [text, lines] : cases)
        EXPECT_EQ(WithMailLineEnds(text), lines);
    EXPECT_EQ(WithoutControls(u"a\x01z\x1F @\0b\u00E9"s), u"a z  @ b\u00E9");
}

}  // namespace cvlang::tests
