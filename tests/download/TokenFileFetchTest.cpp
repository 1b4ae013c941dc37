#include "download/TokenFileFetch.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "support/LoopbackPeer.h"

namespace cvlang {
namespace {

constexpr char kFile[] = "WebMail-default-tokens-fr.map";

/// Fetches a language's file of WebMail default from a web server; returns the request's first
/// line.
std::string Fetch(FakeProgram& fake, const std::string& body,
                  const std::u16string& language = u"French") {
    WebPeer peer("HTTP/1.0 200 OK\r\n\r\n" + body);
    FetchDefaultTranslation(fake.program, {u"127.0.0.1", peer.Port()},
                            {u"WebMail", u"default", language});
    const std::string request = peer.Received();
    return request.substr(0, request.find('\r'));
}

TEST(TokenFileFetch, EveryAnswerButAnErrorPageReplacesTheFile) {
    FakeProgram fake;
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"<!doctype html public", "<!doctype html public"},
        {"x<!DOCTYPE HTML PUBLIC", "x<!DOCTYPE HTML PUBLIC"},
        {"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD\">", "mine"}};
    for (const auto& [body, after] : cases) {
        PutFile(kFile, "mine");
        EXPECT_EQ(Fetch(fake, body),
                  "GET /Tools/WebMail/bases/default/Languages/" + std::string(kFile) + " HTTP/1.0");
        EXPECT_EQ(FileBytes(kFile), after);
    }
    ASSERT_EQ(fake.messages.shown.size(), 6U);
    EXPECT_EQ(fake.messages.shown[4].text, u"Could not access File for  from the Server. File=" +
                                               TextFromPath(fake.folder / kFile));
    EXPECT_EQ(fake.messages.shown[5].text, u"Unable to fetch language token");
}

TEST(TokenFileFetch, AFileThatIsReadOnlyOrAuthoredHereIsNotOverwritten) {
    FakeProgram fake;
    PutFile(kFile, "mine");
    SetReadOnly(kFile, true);
    Fetch(fake, "fetched");
    EXPECT_EQ(FileBytes(kFile), "mine");
    SetReadOnly(kFile, false);
    fake.registry.numbers[u"Language Authoring"] = 1;
    FetchDefaultTranslation(fake.program, {u"127.0.0.1", 1}, {u"WebMail", u"default", u"French"});
    EXPECT_EQ(FileBytes(kFile), "mine");
    std::filesystem::remove(kFile);
    Fetch(fake, "fetched");
    EXPECT_EQ(FileBytes(kFile), "fetched");
}

TEST(TokenFileFetch, AnUnknownLanguageIsWarnedOfAndTheSwitchWritesUtf16) {
    FakeProgram fake;
    Fetch(fake, "fetched", u"Klingon");
    EXPECT_EQ(FileBytes("WebMail-default-tokens-.map"), "fetched");
    const UserMessage& warning = fake.messages.shown.at(1);
    EXPECT_TRUE(warning.text == u"Language Symbol not found" && warning.title == u"Warning" &&
                warning.icon == MessageIcon::Exclamation);
    WebPeer peer("HTTP/1.0 200 OK\r\n\r\na");
    EXPECT_TRUE(DownloadTokenFile(fake.program, {u"127.0.0.1", peer.Port()}, u"t.map", u"/", true));
    EXPECT_EQ(FileBytes("t.map"), "\xFF\xFE" + std::string("a"));
}

}  // namespace
}  // namespace cvlang
