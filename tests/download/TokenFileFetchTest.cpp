#include "download/TokenFileFetch.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "support/LoopbackPeer.h"

namespace cvlang {
namespace {

constexpr char kFile[] = "WebMail-default-tokens-fr.map";

/// A web server, and a user who fetches the French file of WebMail default from it.
struct Fetching : FakeProgram {
    /// Returns the request's first line.
    std::string Fetch(const std::string& body, const std::u16string& language = u"French") {
        WebPeer peer("HTTP/1.0 200 OK\r\n\r\n" + body);
        FetchDefaultTranslation(program, {u"127.0.0.1", peer.Port()},
                                {u"WebMail", u"default", language});
        const std::string request = peer.Received();
        return request.substr(0, request.find('\r'));
    }
};

TEST(TokenFileFetch, EveryAnswerButAnErrorPageReplacesTheFile) {
    Fetching user;
    for (const std::string body : {"", "<!doctype html public", "x<!DOCTYPE HTML PUBLIC"}) {
        PutFile(kFile, "mine");
        EXPECT_EQ(user.Fetch(body),
                  "GET /Tools/WebMail/bases/default/Languages/" + std::string(kFile) + " HTTP/1.0");
        EXPECT_EQ(FileBytes(kFile), body);
    }
    PutFile(kFile, "mine");
    user.messages.shown.clear();
    user.Fetch("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD\">");
    EXPECT_EQ(FileBytes(kFile), "mine");
    ASSERT_EQ(user.messages.shown.size(), 3U);
    EXPECT_EQ(user.messages.shown[1].text, u"Could not access File for  from the Server. File=" +
                                               TextFromPath(user.folder / kFile));
    EXPECT_EQ(user.messages.shown[2].text, u"Unable to fetch language token");
}

TEST(TokenFileFetch, AFileThatIsReadOnlyOrAuthoredHereIsNotOverwritten) {
    Fetching user;
    PutFile(kFile, "mine");
    SetReadOnly(kFile, true);
    user.Fetch("fetched");
    EXPECT_EQ(FileBytes(kFile), "mine");
    SetReadOnly(kFile, false);
    user.registry.numbers[u"Language Authoring"] = 1;
    FetchDefaultTranslation(user.program, {u"127.0.0.1", 1}, {u"WebMail", u"default", u"French"});
    EXPECT_EQ(FileBytes(kFile), "mine");
    std::filesystem::remove(kFile);
    user.Fetch("fetched");
    EXPECT_EQ(FileBytes(kFile), "fetched");
}

TEST(TokenFileFetch, AnUnknownLanguageIsWarnedOfAndTheSwitchWritesUtf16) {
    Fetching user;
    WebPeer peer("HTTP/1.0 200 OK\r\n\r\na");
    EXPECT_TRUE(DownloadTokenFile(user.program, {u"127.0.0.1", peer.Port()}, u"t.map", u"/", true));
    EXPECT_EQ(FileBytes("t.map"),
              "\xFF\xFE"
              "a");
    user.Fetch("fetched", u"Klingon");
    EXPECT_EQ(FileBytes("WebMail-default-tokens-.map"), "fetched");
    ASSERT_EQ(user.messages.shown.size(), 2U);
    const UserMessage& warning = user.messages.shown[1];
    EXPECT_TRUE(warning.text == u"Language Symbol not found" && warning.title == u"Warning" &&
                warning.icon == MessageIcon::Exclamation);
}

}  // namespace
}  // namespace cvlang
