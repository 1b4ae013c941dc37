#include <gmock/gmock.h>

#include <algorithm>
#include <deque>
#include <numeric>
#include <regex>
#include <set>
#include <sstream>

#include "download/HttpClient.h"
#include "download/TokenFileFetch.h"
#include "support/FakeProgram.h"
#include "support/LoopbackPeer.h"

namespace cvlang::tests {

/// WinINet writes blanks and the usual port, and puts the lines in order, in its own way.
std::set<std::string> LinesOf(std::string request) {
    request = std::regex_replace(request, std::regex(":80/"), "/");
    std::istringstream text(std::regex_replace(request, std::regex("%20"), " "));
    std::set<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.insert(line);
    return lines;
}

const std::string kOkay = "HTTP/1.0 200 OK\r\n\r\n";

TEST(HttpClient, SendsNothingButTheRequestThatItIsAskedFor) {
    const std::tuple<std::string, std::string, std::string, std::set<std::string>> cases[] = {
        {"127.0.0.1", "GET", "", {}},
        {"::1", "GET", "", {}},
        {"127.0.0.1",
         "POST",
         "a=1&b=\xE9",
         {"Content-Type: application/x-www-form-urlencoded\r", "Content-Length: 7\r",
          "a=1&b=\xE9"}},
        {"127.0.0.1", "post", "a=1", {"Content-Length: 3\r", "a=1"}}};
    for (const auto& [host, verb, data, more] : cases) {
        WebPeer peer(kOkay + "body", data, host.c_str());
        EXPECT_EQ(SendHttpRequest(AnsiToUtf16(host), u"/Tools/Web Mail/\u00E9.map",
                                  AnsiToUtf16(data), AnsiToUtf16(verb), peer.Port()),
                  "body");
        const std::string named = host == "::1" ? "[::1]:" : host + ":";
        std::set<std::string> expected = more;
        expected.insert({verb + " /Tools/Web Mail/\xE9.map HTTP/1.0\r",
                         "Host: " + named + std::to_string(peer.Port()) + "\r",
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
        const std::string received = HttpGet(u"/", u"localhost", peer.Port());
        const auto differ = std::ranges::mismatch(received, body);
        EXPECT_EQ(differ.in1 - received.begin(), std::ssize(body));  // the first difference
        EXPECT_EQ(received.size(), body.size());
    }
}

TEST(HttpClient, ReturnsWhatCameWhateverFails) {
    const std::pair<const char*, const char*> cases[] = {
        {"HTTP/1.0 404 Not Found\r\n\r\ngone", "gone"},
        {"HTTP/1.0 200 OK\r\nContent-Length: 8\r\n\r\nhalf", "half"},
        {"no header", kNetworkIsComplete ? "no header" : ""},
        {"", ""}};
    for (const auto& [answer, body] : cases)
        EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", WebPeer(answer).Port()), body);
    LoopbackPeer reset([](LoopbackPeer& peer) {
        peer.ReceiveUntil("\r\n\r\n");
        peer.Send(kOkay + "half");
        peer.Reset();
    });
    EXPECT_THAT("half", testing::StartsWith(HttpGet(u"/", u"127.0.0.1", reset.Port())));
    for (const char16_t* host : {u"127.0.0.1", u"no-such-host.example"})
        EXPECT_EQ(HttpGet(u"/", host, 1), "");
}

/// An answer that redirects.
std::string RedirectTo(const std::string& url) {
    return "HTTP/1.0 301 Moved\r\nLocation: " + url + "\r\n\r\nmoved to " + url;
}

TEST(HttpClient, FollowsTenRedirectsWithRequestsOfTheSameFormButNoOtherScheme) {
    const auto at = [](const WebPeer& peer) { return "127.0.0.1:" + std::to_string(peer.Port()); };
    const std::string last = "moved to http://127.0.0.1:1/";
    std::deque<WebPeer> peers;  // WinINet has limits of its own
    peers.emplace_back(kNetworkIsComplete ? RedirectTo("http://127.0.0.1:1/") : kOkay + last);
    while (peers.size() < (kNetworkIsComplete ? 11 : 2))
        peers.emplace_back(RedirectTo("http://" + at(peers.back()) + "/new/Web Mail.map"));
    EXPECT_EQ(HttpGet(u"/new/Web Mail.map", u"127.0.0.1", peers.back().Port()), last);
    const std::string first = at(peers.back());
    std::set<std::string> expected = LinesOf(peers.back().Received());
    peers.pop_back();
    expected.erase("Host: " + first + "\r");
    expected.insert("Host: " + at(peers.back()) + "\r");
    EXPECT_EQ(LinesOf(peers.back().Received()), expected);
    if (kNetworkIsComplete) {
        WebPeer other(RedirectTo("ftp://127.0.0.1/"));
        EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", other.Port()), "moved to ftp://127.0.0.1/");
    }
}

/// Tells the system of a proxy: in the environment, and in the registry of Windows.
void SetProxy(const std::string& url) {
    SetVariable("http_proxy", url);
    if (kNetworkIsComplete)
        return;
    const std::string add =
        "reg add \"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\" /f /v ";
    const std::string enabled = url.empty() ? "0" : "1";
    const std::string command = add + "ProxyEnable /t REG_DWORD /d " + enabled + " > nul && " +
                                add + "ProxyServer /d \"" + url + "\" > nul";
    int status = -1;
    for (int tries = 3; status == -1 && tries > 0; --tries)  // Wine sometimes starts no process
        status = std::system(command.c_str());
    EXPECT_EQ(status, 0);
}

TEST(HttpClient, AsksTheProxyOfTheSystemForTheWholeUrl) {
    WebPeer proxy(kOkay + "from the proxy");
    SetProxy("http://127.0.0.1:" + std::to_string(proxy.Port()));
    EXPECT_EQ(HttpGet(u"/a b", u"www.corvane.invalid"), "from the proxy");
    EXPECT_THAT(LinesOf(proxy.Received()),
                testing::Contains("GET http://www.corvane.invalid/a b HTTP/1.0\r"));
    if (!kNetworkIsComplete)
        SetProxy("");
    WebPeer direct(kOkay + "direct");
    SetVariable("no_proxy", "x.org, 0.0.1");
    EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", direct.Port()), "direct");
    SetProxy("");
    SetVariable("no_proxy", "");
}

const std::string kFile = "WebMail-default-tokens-zu.map";

/// Fetches a language's file of WebMail default from a port of this computer.
void Fetch(FakeProgram& fake, std::uint16_t port, const std::u16string& language = u"Zulu") {
    PutFile("WebMail-default-lang.txt", "Zulu\tzu\r\n");
    FetchDefaultTranslation(fake.program, {u"127.0.0.1", port}, {u"WebMail", u"default", language});
}

TEST(TokenFileFetch, EveryAnswerButAnErrorPageReplacesTheFile) {
    FakeProgram fake;
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"<!doctype html public", "<!doctype html public"},
        {"x<!DOCTYPE HTML PUBLIC", "x<!DOCTYPE HTML PUBLIC"},
        {"<!DOCTYPE HTML>", "<!DOCTYPE HTML>"},
        {"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD\">", "mine"}};
    for (const auto& [body, after] : cases) {
        PutFile(kFile, "mine");
        std::filesystem::create_hard_link(kFile, "backup");
        WebPeer peer(kOkay + body);
        Fetch(fake, peer.Port());
        EXPECT_THAT(
            peer.Received(),
            testing::StartsWith("GET /Tools/WebMail/bases/default/Languages/" + kFile + " "));
        EXPECT_EQ(FileBytes(kFile), after);
        EXPECT_EQ(FileBytes("backup"), "mine");  // the file was deleted, not written over
        std::filesystem::remove("backup");
    }
    ASSERT_EQ(fake.messages.shown.size(), 7U);
    EXPECT_EQ(fake.messages.shown[5].text, u"Could not access File for  from the Server. File=" +
                                               TextFromPath(fake.folder / kFile));
    EXPECT_EQ(fake.messages.shown[6].text, u"Unable to fetch language token");
}

TEST(TokenFileFetch, AFileThatIsReadOnlyOrAuthoredHereIsNotOverwritten) {
    FakeProgram fake;
    PutFile(kFile, "mine");
    SetReadOnly(kFile, true);
    Fetch(fake, WebPeer(kOkay + "fetched").Port());
    SetReadOnly(kFile, false);
    fake.registry.numbers[u"Language Authoring"] = 1;
    Fetch(fake, 1);
    EXPECT_EQ(FileBytes(kFile), "mine");
    EXPECT_EQ(fake.messages.shown.size(), 2U);  // the questions
    std::filesystem::remove(kFile);
    Fetch(fake, WebPeer(kOkay + "fetched").Port());
    EXPECT_EQ(FileBytes(kFile), "fetched");
    fake.registry.numbers[u"Language Authoring"] = 2;
    PutFile("WEBMAIL-default-tokens-zu.map", "another spelling");
    Fetch(fake, WebPeer(kOkay + "fetched again").Port());
    EXPECT_EQ(FileBytes(kFile), "fetched again");
}

/// Pauses before each part of its answer.
LoopbackPeer LatePeer(int seconds) {
    return LoopbackPeer([seconds](LoopbackPeer& peer) {
        peer.ReceiveUntil("\r\n\r\n");
        for (const char* part : {kOkay.c_str(), "late", "r"}) {
            std::this_thread::sleep_for(std::chrono::seconds(seconds));
            peer.Send(part);
        }
    });
}

TEST(TokenFileFetch, AnUnknownLanguageIsWarnedOfAndProgressIsShown) {
    FakeProgram fake;
    Fetch(fake, LatePeer(2).Port(), u"Klingon");
    EXPECT_EQ(FileBytes("WebMail-default-tokens-.map"), "later");
    EXPECT_THAT(fake.messages.shown.at(1),
                testing::FieldsAre(u"Language Symbol not found", u"Warning", MessageButtons::Ok,
                                   MessageIcon::Exclamation));
    EXPECT_EQ(std::pair(fake.progress.begun, fake.progress.ended), std::pair(1, 1));
    EXPECT_GT(fake.progress.steps, 6);  // more than one a second
    const LoopbackPeer late = LatePeer(1);
    EXPECT_THROW(HttpGet(u"/", u"127.0.0.1", late.Port(), [] { throw std::bad_alloc(); }),
                 std::bad_alloc);
}

TEST(TokenFileFetch, TheSwitchWritesWholeUtf16Units) {
    FakeProgram fake;
    for (const std::string body : {"", "a", "ab", "abc"}) {
        const WebPeer peer(kOkay + body);
        EXPECT_TRUE(
            DownloadTokenFile(fake.program, {u"127.0.0.1", peer.Port()}, u"t.map", u"/", true));
        EXPECT_EQ(FileBytes("t.map"), "\xFF\xFE" + body.substr(0, body.size() / 2 * 2));
    }
}

}  // namespace cvlang::tests
