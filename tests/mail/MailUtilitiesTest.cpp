#include <gtest/gtest.h>

#include "mail/AddressList.h"
#include "mail/MailDate.h"
#include "mail/MimeNames.h"

namespace cvlang {
namespace {

constexpr LocalTime kTime{2004, 3, 7, 9, 5, 3};

TEST(MailDate, TheZoneOfThePresentTimeRoundsItsHoursAndSignsBothFields) {
    const std::pair<int, const char*> cases[] = {
        {0, "+0000"}, {60, "+0100"}, {330, "+0630"}, {-210, "-04-30"}, {345, "+0645"}};
    for (const auto& [minutesEast, zone] : cases)
        EXPECT_EQ(FormatMailDate(kTime, {-minutesEast, 7, 9, ZoneTime::Unknown}),
                  std::string("Sun, 7 Mar 2004 09:05:03 ") + zone);
    EXPECT_EQ(FormatMailDate(kTime, {-60, -60, -120, ZoneTime::Standard}),
              "Sun, 7 Mar 2004 09:05:03 +0200");
    EXPECT_EQ(FormatMailDate(kTime, {-60, -60, -120, ZoneTime::Daylight}),
              "Sun, 7 Mar 2004 09:05:03 +0300");
}

TEST(MailDate, DaysAndMonthsHaveTheirNames) {
    std::string names;
    for (int i = 0; i < 12; ++i)
        names.append(GetDayName({2004, 3, 7 + i, 0, 0, 0}))
            .append(GetMonthName({2004, i + 1, 1, 0, 0, 0}));
    EXPECT_EQ(names, "SunJanMonFebTueMarWedAprThuMayFriJunSatJulSunAugMonSepTueOctWedNovThuDec");
}

TEST(MimeNames, AreMadeOfAFreshGuid) {
    const auto guid = [] {
        return std::optional(Guid{0xABC, 0x1, 0xFFFF, {0, 9, 0x10, 0x20, 0x30, 0x40, 0x50, 0xAB}});
    };
    EXPECT_EQ(NewMIMEBoundary(guid), "--=_NextPart_000_000B_00000ABC.0001FFFF");
    const auto none = [] { return std::optional<Guid>(); };
    EXPECT_EQ(NewMIMEBoundary(none), "--=_NextPart_000_000B_01C0D501.82E05F40");
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
    using Addresses = std::vector<std::string>;
    EXPECT_EQ(MergedAddresses({" a@x ;b@x;", "", "c@x;A@x"}),
              (Addresses{"a@x", "b@x", "c@x", "A@x"}));
    EXPECT_EQ(MergedAddresses({"a@x, b@x", "", ""}), (Addresses{"a@x", "b@x"}));
    EXPECT_EQ(MergedAddresses({"a@x;", ""}), (Addresses{"a@x"}));
    EXPECT_EQ(GetAddressDomain("a@b@c"), "b@c");
    EXPECT_EQ(GetAddressDomain("a"), "(unknown)");
}

}  // namespace
}  // namespace cvlang
