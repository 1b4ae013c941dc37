// One HTTP/1.0 request through the system's HTTP client: WinINet on Windows, libcurl on Linux.
#pragma once

#include <cstdint>
#include <string>

namespace cvlang {

/// What goes over the wire, as bytes.
struct HttpRequest {
    std::string host;  // a name or an address (IPv6 without brackets), no scheme, no port
    std::uint16_t port = 80;
    std::string target;  // of the request line, sent unchanged, blanks too
    std::string verb;
    std::string body;
    std::string header;  // one more header line without its end, or none
};

/// Sends the request, follows redirects to http and https URLs and returns what arrived of the last
/// response's body, of any status; empty when the server cannot be reached. Nothing is taken
/// from a cache. The proxy is that of the system: on Linux of the variables http_proxy, https_proxy
/// and no_proxy. On Linux the network alone limits the time, and after ten redirects the eleventh
/// response is the last.
std::string SendRequest(const HttpRequest& request);

}  // namespace cvlang
