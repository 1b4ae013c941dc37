#include <gtest/gtest.h>

#include "mail/Base64.h"
#include "mail/HeaderValues.h"
#include "mail/MailError.h"
#include "mail/MessageText.h"
#include "support/Files.h"

namespace cvlang {
namespace {

TEST(MailDate, TheZoneOfThePresentTimeRoundsItsHoursAndSignsBothFields) {
    const std::pair<TimeZoneInformation, const char*> cases[] = {
        {{0, 7, 9, ZoneTime::Unknown}, "+0000"},
        {{-330, 7, 9, ZoneTime::Unknown}, "+0630"},
        {{210, 7, 9, ZoneTime::Unknown}, "-04-30"},
        {{-345, 7, 9, ZoneTime::Unknown}, "+0645"},
        {{-60, -60, -120, ZoneTime::Standard}, "+0200"},
        {{-60, -60, -120, ZoneTime::Daylight}, "+0300"}};
    for (const auto& [zone, text] : cases)
        EXPECT_EQ(FormatMailDate({2004, 3, 7, 9, 5, 3}, zone),
                  std::string("Sun, 7 Mar 2004 09:05:03 ") + text);
    std::string names;
    for (int i = 0; i < 12; ++i)
        names.append(GetDayName({2004, 3, 7 + i, 0, 0, 0}))
            .append(GetMonthName({2004, i + 1, 1, 0, 0, 0}));
    EXPECT_EQ(names, "SunJanMonFebTueMarWedAprThuMayFriJunSatJulSunAugMonSepTueOctWedNovThuDec");
}

TEST(MimeNames, AreConstantWithoutAGuid) {
    const auto none = [] { return std::optional<Guid>(); };
    EXPECT_EQ(NewMIMEBoundary(none), "--=_NextPart_000_000B_01C0D501.82E05F40");
    EXPECT_EQ(NewMessageFileName(none), "00000000.MAI");
}

TEST(AddressList, RepeatedAddressesAreDroppedAndSeveralListsBecomeOne) {
    const std::pair<const char*, const char*> cases[] = {{"a@x;A@X", "a@x"},
                                                         {"b@x;a@x;A@X", "b@x;a@x;A@X"},
                                                         {"A@x;b@x;a@X;c@x", "A@x;b@x;c@x"},
                                                         {"a@x,b@x,A@X", "a@x,b@x"},
                                                         {"a@x,a@x;b@x", "a@x,a@x;b@x"},
                                                         {"ba@x;c@x;a@x", "ba@x;c@x"},
                                                         {";;a@x;;", "a@x;"}};
    for (const auto& [list, merged] : cases)
        EXPECT_EQ(MergeAddressList(list), merged);
    const std::vector<std::string> both{"a@x", "b@x"}, all{"a@x", "b@x", "c@x", "A@x"};
    EXPECT_EQ(MergedAddresses({" a@x ;b@x;", "", "c@x;A@x"}), all);
    EXPECT_EQ(MergedAddresses({"a@x, b@x", "", ""}), both);
    EXPECT_EQ(GetAddressDomain("a@b@c"), "b@c");
    EXPECT_EQ(GetAddressDomain("a"), "(unknown)");
}

TEST(Base64, EveryLengthAndEveryByteGoesThereAndBackInLines) {
    std::string bytes;
    for (std::size_t size = 0; size < 400; ++size, bytes += static_cast<char>(size * 7)) {
        const std::string text = Base64::EncodeByteArr(bytes);
        ASSERT_EQ(Base64::DecodeToByteArr(text), bytes);
        ASSERT_EQ(text.size(), Base64::EncodedSize(size));
    }
    // A full line is followed by a line break unless it is the only one.
    const std::string line(76, 'A');
    EXPECT_EQ(Base64::EncodeByteArr(std::string(57, '\0')), line);
    EXPECT_EQ(Base64::EncodeByteArr(std::string(58, '\0')), line + "\r\nAA==");
    EXPECT_EQ(Base64::EncodeByteArr(std::string(114, '\0')), line + "\r\n" + line + "\r\n");
    // Line breaks and padding are skipped, and foreign characters are zero bits.
    EXPECT_EQ(Base64::DecodeToByteArr("Z=m\r\n9v\r\nYg=="), "foob");
    EXPECT_EQ(Base64::DecodeToByteArr("\nm\xE9v"), Base64::DecodeToByteArr("AmAv"));
}

TEST(Base64, FilesAreReadAndNeverOverwritten) {
    const TemporaryFolder folder;
    ASSERT_TRUE(Base64::DecodeToFile("DQr/", folder / "new"));
    EXPECT_THROW(Base64::DecodeToFile("Zm9v", folder / "new"), MailError);
    EXPECT_EQ(FileBytes(folder / "new"), "\r\n\xFF");
    EXPECT_EQ(Base64::EncodeFile(folder / "new"), "DQr/");
    EXPECT_EQ(Base64::EncodeFile(folder / "none"), "");
}

TEST(HtmlToText, MarkupBecomesPlainText) {
    const std::pair<const char*, const char*> cases[] = {
        {"a\r\nb<BR>c<br/>d", "ab\r\ncd"},
        {"a&NBSP;b&amp;", "a b&amp;"},
        {"x<Title>A <b></TITLE>y", "xy"},
        {"x<Title>A</TITLE>y<title>a</title>z", "xyz"},
        {"1<style t>b{}</STYLE>2<STYLE T>B{}</style>3<style>c</style>", "123c"},
        {"</style>1<style>a", "1a"},
        {"<title><title><title>x", "x"},
        {"1<script>if (a<b)</script>2", "12"},
        {"<tr><td>a<TD x>b</td><div>c<LI x>d", "\r\na\r\nb\r\nc\r\nd"},
        {"<a <b>c>d < e", "c>d < e"},
        {"> <b>1<a <B>c>2", "> 12"}};
    for (const auto& [html, text] : cases)
        EXPECT_EQ(HTMLToText(html, LineBreaks::Kept), text) << html;
    EXPECT_EQ(HTMLToText("a<br>b<div>c", LineBreaks::AsMarkup), "a<BR>b<BR>c");
}

}  // namespace
}  // namespace cvlang
