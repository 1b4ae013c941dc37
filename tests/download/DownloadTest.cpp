#include <gtest/gtest.h>

#include <numeric>
#include <regex>
#include <set>
#include <sstream>

#include "download/HttpClient.h"
#include "download/TokenFileFetch.h"
#include "platform/Ansi.h"
#include "support/FakeProgram.h"
#include "support/LoopbackPeer.h"

namespace cvlang {
namespace {

/// WinINet writes blanks, and puts the lines in order, in its own way.
std::set<std::string> LinesOf(const std::string& request) {
    std::istringstream text(std::regex_replace(request, std::regex("%20"), " "));
    std::set<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.insert(line);
    return lines;
}

TEST(HttpClient, SendsNothingButTheRequestThatItIsAskedFor) {
    const std::tuple<std::u16string, std::u16string, std::set<std::string>> cases[] = {
        {u"GET", u"", {}},
        {u"POST",
         u"a=1&b=\u00E9",
         {"Content-Type: application/x-www-form-urlencoded\r", "Content-Length: 7\r",
          "a=1&b=\xE9"}},
        {u"post", u"a=1", {"Content-Length: 3\r", "a=1"}}};
    for (const auto& [verb, data, more] : cases) {
        WebPeer peer("HTTP/1.0 200 OK\r\n\r\n", Utf16ToAnsi(data));
        SendHttpRequest(u"127.0.0.1", u"/Tools/Web Mail/\u00E9.map", data, verb, peer.Port());
        std::set<std::string> expected = more;
        expected.insert({Utf16ToAnsi(verb) + " /Tools/Web Mail/\xE9.map HTTP/1.0\r",
                         "Host: 127.0.0.1:" + std::to_string(peer.Port()) + "\r",
                         "User-Agent: http generic\r", "\r"});
        if (kNetworkIsComplete)
            expected.insert("Pragma: no-cache\r");
        EXPECT_EQ(LinesOf(peer.Received()), expected);
    }
}

TEST(HttpClient, ReturnsEveryByteOfABodyOfAnySize) {
    for (const std::size_t size : {0U, 1U, 2047U, 2048U, 2049U, 50U << 20U}) {
        std::string body(size, '\0');
        std::iota(body.begin(), body.end(), '\0');
        WebPeer peer("HTTP/1.0 200 OK\r\nContent-Length: " + std::to_string(size) + "\r\n\r\n" +
                     body);
        EXPECT_TRUE(HttpGet(u"/", u"localhost", peer.Port()) == body) << size;
    }
}

TEST(HttpClient, ReturnsWhatCameWhateverFails) {
    const std::pair<const char*, const char*> cases[] = {
        {"HTTP/1.0 404 Not Found\r\n\r\ngone", "gone"},
        {"HTTP/1.0 200 OK\r\nContent-Length: 8\r\n\r\nhalf", "half"},
        {"", ""}};
    for (const auto& [answer, body] : cases) {
        WebPeer peer(answer);
        EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", peer.Port()), body);
    }
    LoopbackPeer reset([](LoopbackPeer& peer) {
        peer.ReceiveUntil("\r\n\r\n");
        SendBytes(peer.client, "HTTP/1.0 200 OK\r\n\r\nhalf");
        ResetConnection(std::exchange(peer.client, kNoSocket));
    });
    EXPECT_TRUE(std::string("half").starts_with(HttpGet(u"/", u"127.0.0.1", reset.Port())));
    for (const char16_t* host : {u"127.0.0.1", u"no-such-host.example"})
        EXPECT_EQ(HttpGet(u"/", host, 1), "");
}

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
    fake.registry.numbers[u"Language Authoring"] = 0;
    std::filesystem::remove(kFile);
    for (const char* spelling : {"WebMail-DEFAULT-tokens-fr.map", "webmail-default-tokens-fr.map"})
        PutFile(spelling, "mine");
    Fetch(fake, "fetched");
    std::string fetched;
    for (const auto& file : std::filesystem::directory_iterator("."))
        fetched += FileBytes(file.path());
    EXPECT_NE(fetched.find("fetched"), std::string::npos) << fetched;
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
