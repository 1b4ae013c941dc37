#include "app/MakerServices.h"

#include <gtest/gtest.h>

#include "platform/Ansi.h"
#include "support/Files.h"

namespace cvlang {
namespace {

TEST(MakerServices, AreTheBuiltInOnesUnlessTheEnvironmentNamesOthers) {
    MakerServices services = ConfiguredServices();
    EXPECT_EQ(services.distribution.host, u"www.corvane.example");
    EXPECT_EQ(services.distribution.port, 80);
    EXPECT_EQ(services.submission.server, u"mail.corvane.example");
    EXPECT_EQ(services.submission.port, 0);
    EXPECT_EQ(services.submission.mailbox, u"translations@corvane.example");
    SetVariable("CORVANE_DISTRIBUTION_SERVER", "[::1]:8080");
    SetVariable("CORVANE_SUBMISSION_SERVER", "mail-2.example:587");
    services = ConfiguredServices();
    EXPECT_EQ(services.distribution.host, u"::1");
    EXPECT_EQ(services.distribution.port, 8080);
    EXPECT_EQ(services.distribution.fault, u"");
    EXPECT_EQ(services.submission.server, u"mail-2.example");
    EXPECT_EQ(services.submission.port, 587);
    EXPECT_EQ(services.submission.fault, u"");
}

TEST(MakerServices, WhatIsNoServerIsAFaultOfTheService) {
    for (const std::string text :
         {"http://host", "host:99999", "host:80x", "host:0", "host:", ":80", "a b", "::1", "[::1",
          "[::1]80", "[::1]:", "[host]", "[]", "host/path", "user@host", "host:80:80"}) {
        SetVariable("CORVANE_DISTRIBUTION_SERVER", text);
        SetVariable("CORVANE_SUBMISSION_SERVER", text);
        const MakerServices services = ConfiguredServices();
        EXPECT_EQ(services.distribution.fault,
                  u'"' + AnsiToUtf16(text) +
                      u"\" is not the address of a server. Please set CORVANE_DISTRIBUTION_SERVER "
                      u"to HOST or HOST:PORT, an IPv6 address in brackets.");
        EXPECT_NE(services.submission.fault, u"") << text;
    }
    SetVariable("CORVANE_DISTRIBUTION_SERVER", "[2001:db8::2]");
    SetVariable("CORVANE_SUBMISSION_SERVER", "[::1]:25");
    EXPECT_EQ(ConfiguredServices().distribution.host, u"2001:db8::2");
    EXPECT_EQ(ConfiguredServices().distribution.port, 80);
    EXPECT_NE(ConfiguredServices().submission.fault, u"");  // mail is sent over IPv4 only
}

}  // namespace
}  // namespace cvlang
