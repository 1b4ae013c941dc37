#include "download/HttpClient.h"

#include <gtest/gtest.h>

#include <numeric>
#include <regex>
#include <set>
#include <sstream>

#include "platform/Ansi.h"
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

}  // namespace
}  // namespace cvlang
