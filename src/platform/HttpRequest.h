// One HTTP/1.0 request through the system's HTTP client: WinINet on Windows, libcurl on Linux.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace cvlang {

/// What goes over the wire, as bytes.
struct HttpRequest {
    std::string host;  // a name or an address, without scheme and port
    std::uint16_t port = 80;
    std::string target;  // of the request line, sent as it stands, blanks too
    std::string verb;
    std::string body;
    std::string header;  // one more header line without its end, or none
    /// Called now and then until the response has arrived.
    std::function<void()> stillWaiting = [] {};
};

/// Sends the request and returns what arrived of the response's body, whatever the status said;
/// empty when the server cannot be reached. Nothing is taken from a cache, and no time-out is set.
/// Windows takes its own proxy settings, Linux uses no proxy.
std::string SendRequest(const HttpRequest& request);

}  // namespace cvlang
