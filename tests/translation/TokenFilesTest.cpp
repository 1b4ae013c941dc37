#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "translation/TokenLines.h"
#include "translation/TokenMapFile.h"

namespace cvlang {
namespace {

constexpr char kReference[] = "WebMail-default-tokens.map";
constexpr char kFrench[] = "WebMail-default-tokens-fr.map";

TEST(TokenFiles, ANewTokenStartsALineOfItsOwnAndIsTakenAsItIs) {
    const FakeProgram fake;
    const std::pair<std::u16string, std::u16string> cases[] = {
        {u"", u""}, {u"x\r\n", u"x\r\n"}, {u"x\ty", u"x\ty\r\n"}, {u"x\n", u"x\n\r\n"}};
    for (const auto& [before, ended] : cases) {
        PutFile(kReference, Utf16Bytes(before));
        AddTokenLine(fake.folder / kReference, u" A]", u"v: \u3042");
        EXPECT_EQ(FileBytes(kReference), Utf16Bytes(ended + u"\t\t\t[CV_TXT- A]]\tv: \u3042\r\n"));
    }
}

TEST(TokenFiles, ATokenIsRemovedFromItsBasesFilesOnly) {
    const FakeProgram fake;
    PutFile(kReference, Utf16Bytes(u"\t\t\tA\t1\r\n\t\t\ta\t2\r\nA\tshort\r\n\t\t\tA\t3"));
    const std::u16string language = u"\uFEFFA\t1\r\n[B]\t2\r\n\r\nxA\t3\r\nAx\t4\r\n";
    const std::u16string without = u"[B]\t2\r\n\r\nAx\t4\r\n";
    const std::pair<const char*, std::u16string> files[] = {
        {kFrench, without},
        {"webmail-DEFAULT-tokens-.map", without},
        {"WebMail-default.net-tokens-fr.map", language},
        {"WebMail-default-tokens-fr.map.old", language}};
    for (const auto& [file, after] : files)
        PutFile(file, Utf16Bytes(language));
    RemoveFromReferenceFile(fake.folder / kReference, u"A");
    RemoveFromLanguageFiles(fake.folder / kReference, u"A");
    EXPECT_EQ(FileBytes(kReference), Utf16Bytes(u"\t\t\ta\t2\r\nA\tshort\r\n"));
    EXPECT_EQ(FileBytes(std::string(kReference) + "D"), "(no file)");
    for (const auto& [file, after] : files)
        EXPECT_EQ(FileBytes(file), Utf16Bytes(after)) << file;
}

TEST(TokenFiles, LinesAreLoadedAtTheirNumbersAndTheFirstWithExactlyTheTokenIsFound) {
    using Texts = std::vector<std::u16string>;
    const FakeProgram fake;
    PutFile(kFrench, Utf16Bytes(u"[CV_A] \tblank\r\n\r\n[cv_a]\tcase\r\n[CV_A]\t1\t2\r\n[CV_A]") +
                         "b");  // an odd byte at the end
    for (const std::size_t held : {std::size_t{1}, std::size_t{10}}) {
        Texts tokens(held, u"held");
        Texts values(held, u"held");
        LoadTokens(fake.config, u"WebMail", u"default", u"German", tokens, values);
        EXPECT_EQ(tokens, Texts(held, u"held"));  // as no file is there
        LoadTokens(fake.config, u"WebMail", u"default", u"French", tokens, values);
        EXPECT_EQ(tokens, (Texts{u"held", u"[CV_A] ", u"", u"[cv_a]", u"[CV_A]", u"[CV_A]"}));
        EXPECT_EQ(values, (Texts{u"held", u"blank", u"", u"case", u"1", u""}));
    }
    for (const auto& [language, value] : {std::pair{u"French", u"1"}, {u"German", u""}}) {
        EXPECT_EQ(
            GetTokenValue(fake.config, u"WebMail", u"[CV_A]: Hello [x]: y", u"default", language),
            value);
    }
}

}  // namespace
}  // namespace cvlang
