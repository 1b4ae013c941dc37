#include "download/HttpClient.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

#include "platform/Ansi.h"
#include "support/LoopbackPeer.h"

namespace cvlang {
namespace {

std::string Okay(std::string_view body, std::size_t declared) {
    return std::string("HTTP/1.0 200 OK\r\nContent-Length: ")
        .append(std::to_string(declared))
        .append("\r\n\r\n")
        .append(body);
}

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
        WebPeer peer(Okay("x", 1), Utf16ToAnsi(data));
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

TEST(HttpClient, ReturnsTheBytesThatCameWhateverTheyAreAndWhateverTheStatusSays) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const std::string large(50U << 20U, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {Okay("", 0), ""},
        {Okay(all, 256), all},
        {Okay(large.substr(0, 2047), 2047), large.substr(0, 2047)},
        {Okay(large.substr(0, 2048), 2048), large.substr(0, 2048)},
        {Okay(large.substr(0, 2049), 2049), large.substr(0, 2049)},
        {Okay(large, large.size()), large},
        {"HTTP/1.0 404 Not Found\r\n\r\ngone", "gone"},
        {Okay("half", 8), "half"},
        {"", ""}};
    for (const auto& [answer, body] : cases) {
        WebPeer peer(answer);
        EXPECT_TRUE(HttpGet(u"/", u"localhost", peer.Port()) == body) << answer.substr(0, 99);
    }
    EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", 1), "");
    EXPECT_EQ(HttpGet(u"/", u"no-such-host.example", 1), "");
}

}  // namespace
}  // namespace cvlang
