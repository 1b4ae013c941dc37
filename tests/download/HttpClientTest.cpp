#include "download/HttpClient.h"

#include <gtest/gtest.h>

#include <regex>

#include "download/WebPeer.h"
#include "platform/Ansi.h"

namespace cvlang {
namespace {

std::string Okay(std::string_view body, std::size_t declared) {
    return std::string("HTTP/1.0 200 OK\r\nContent-Length: ")
        .append(std::to_string(declared))
        .append("\r\n\r\n")
        .append(body);
}

TEST(HttpClient, SendsExactlyTheRequestThatItIsAskedFor) {
    const std::tuple<std::u16string, std::u16string, std::string> cases[] = {
        {u"GET", u"", ""},
        {u"POST", u"a=1&b=\u00E9", "application/x-www-form-urlencoded"},
        {u"post", u"a=1&b=2", ""}};
    for (const auto& [verb, data, type] : cases) {
        WebPeer peer(Okay("x", 1), data.size());
        SendHttpRequest(u"127.0.0.1", u"/Tools/Web Mail/\u00E9.map", data, verb, peer.Port());
        // WinINet writes a blank in its own way.
        const std::string request = std::regex_replace(peer.Received(), std::regex("%20"), " ");
        EXPECT_EQ(request.substr(0, request.find('\r')),
                  std::string(verb.begin(), verb.end()) + " /Tools/Web Mail/\xE9.map HTTP/1.0");
        EXPECT_NE(request.find("User-Agent: http generic\r\n"), request.npos);
        std::smatch header;
        std::regex_search(request, header, std::regex("Content-Type: (.*)\r\n"));
        EXPECT_EQ(header[1], type);
        EXPECT_EQ(request.substr(request.find("\r\n\r\n") + 4), Utf16ToAnsi(data));
    }
}

TEST(HttpClient, ReturnsTheBodysBytesWhateverTheyAreAndWhateverTheStatusSays) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    std::string large(50U << 20U, 'x');
    for (const std::string& body : {std::string(), all, large.substr(0, 2048), large}) {
        WebPeer peer(Okay(body, body.size()));
        EXPECT_TRUE(HttpGet(u"/", u"127.0.0.1", peer.Port()) == body) << body.size();
    }
    WebPeer missing("HTTP/1.0 404 Not Found\r\n\r\ngone");
    EXPECT_EQ(HttpGet(u"/", u"localhost", missing.Port()), "gone");
}

TEST(HttpClient, AServerThatCannotBeReachedOrBreaksOffLeavesWhatCame) {
    WebPeer broken(Okay("half", 8));
    EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", broken.Port()), "half");
    WebPeer silent("");
    EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", silent.Port()), "");
    std::uint16_t closedPort = 0;
    {
        const LoopbackListener listener;
        closedPort = static_cast<std::uint16_t>(listener.Port());
    }
    EXPECT_EQ(HttpGet(u"/", u"127.0.0.1", closedPort), "");
    EXPECT_EQ(HttpGet(u"/", u"no-such-host.example", closedPort), "");
}

}  // namespace
}  // namespace cvlang
