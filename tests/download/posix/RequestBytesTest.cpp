#include <gtest/gtest.h>

#include "download/HttpClient.h"
#include "download/WebPeer.h"

namespace cvlang {
namespace {

TEST(HttpRequest, HoldsNothingButWhatWasAskedFor) {
    WebPeer peer("HTTP/1.0 200 OK\r\n\r\n");
    HttpGet(u"/Tools/Web Mail/\u00E9.map", u"127.0.0.1", peer.Port());
    EXPECT_EQ(peer.Received(), "GET /Tools/Web Mail/\xE9.map HTTP/1.0\r\nHost: 127.0.0.1:" +
                                   std::to_string(peer.Port()) +
                                   "\r\nUser-Agent: http generic\r\nPragma: no-cache\r\n\r\n");
}

}  // namespace
}  // namespace cvlang
