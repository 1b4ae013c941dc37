#include "translation/TokenLines.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "translation/NewLanguage.h"
#include "translation/TokenList.h"

namespace cvlang {
namespace {

constexpr char kReference[] = "WebMail-default-tokens.map";

TEST(TokenLines, ANewTokenStartsALineOfItsOwnAndIsTakenAsItIs) {
    const FakeProgram fake;
    const std::pair<std::u16string, std::u16string> cases[] = {
        {u"", u""}, {u"x\r\n", u"x\r\n"}, {u"x\ty", u"x\ty\r\n"}, {u"x\n", u"x\n\r\n"}};
    for (const auto& [before, ended] : cases) {
        PutFile(kReference, Utf16Bytes(before));
        AddTokenLine(fake.folder / kReference, u" A]", u"v: \u3042");
        EXPECT_EQ(FileBytes(kReference), Utf16Bytes(ended + u"\t\t\t[CV_TXT- A]]\tv: \u3042\r\n"));
    }
}

TEST(TokenLines, ATokenIsRemovedFromItsBasesFilesOnly) {
    const FakeProgram fake;
    PutFile(kReference, Utf16Bytes(u"\t\t\tA\t1\r\n\t\t\ta\t2\r\nA\tshort\r\n\t\t\tA\t3"));
    const std::string language = Utf16Bytes(u"\uFEFFA\t1\r\n[B]\t2\r\n\r\nxA\t3\r\nAx\t4\r\n");
    const char* files[] = {"WebMail-default-tokens-fr.map", "webmail-DEFAULT-tokens-.map",
                           "WebMail-default.net-tokens-fr.map", "WebMail-default-tokens-fr.mapD"};
    for (const char* file : files)
        PutFile(file, language);
    RemoveFromReferenceFile(fake.folder / kReference, u"A");
    EXPECT_EQ(FileBytes(kReference), Utf16Bytes(u"\t\t\ta\t2\r\nA\tshort\r\n"));
    EXPECT_FALSE(std::filesystem::exists(std::string(kReference) + "D"));
    RemoveFromLanguageFiles(fake.folder / kReference, u"A");
    EXPECT_EQ(FileBytes(files[0]), Utf16Bytes(u"[B]\t2\r\n\r\nAx\t4\r\n"));
    EXPECT_EQ(FileBytes(files[1]), FileBytes(files[0]));
    EXPECT_EQ(FileBytes(files[2]), language);
}

TEST(TokenList, ShowsTokensWithTheirEnglishValues) {
    const FakeProgram fake;
    PutFile(kReference, Utf16Bytes(u"\t\t\t[CV_A]\tHello: you\tx\r\n\r\n\t\t\t[CV_B]\r\n\t\t\tC\r\n"
                                   u"\t\t\tD\tvalue\r\n[CV_E]\tvalue"));
    EXPECT_EQ(ListTokens(fake.folder / kReference),
              (std::vector<std::u16string>{u"[CV_A]: Hello: you", u"[CV_B]"}));
    const TokenEntry entry = SplitTokenEntry(u" [CV_A] :  Hello  : you");
    EXPECT_EQ(entry.token, u"[CV_A]");
    EXPECT_EQ(entry.value, u"Hello");
}

TEST(NewLanguage, IsAddedUnlessItsNameOrAbbreviationIsListed) {
    FakeProgram fake;
    fake.program.CurrentApplication = u"WebMail";
    constexpr char kList[] = "WebMail-default-lang.txt";
    const auto add = [&](std::u16string_view name, std::u16string_view abbreviation) {
        fake.messages.shown.clear();
        const bool added = AddLanguageToBase(fake.program, u"default", name, abbreviation);
        return added ? std::u16string() : fake.messages.shown.at(0).text;
    };
    EXPECT_EQ(add(u"x", u"x"),
              u"Could not load language file " + TextFromPath(fake.folder / kList));
    PutFile(kList, "French\tfr\n\xC9t\xE9\tee");
    EXPECT_EQ(add(u"\u00E9t\u00E9", u"x"),
              u"That language name already exists and cannot be added.");
    EXPECT_EQ(add(u"x", u"FR"), u"That language abbreviation already exists and cannot be added.");
    EXPECT_TRUE(fake.messages.shown[0].title == u"Error" &&
                fake.messages.shown[0].icon == MessageIcon::Critical);
    EXPECT_EQ(add(u"\u3042", u""), u"");
    EXPECT_EQ(FileBytes(kList), "French\tfr\r\n\xC9t\xE9\tee\r\n?\t\r\n");
}

}  // namespace
}  // namespace cvlang
