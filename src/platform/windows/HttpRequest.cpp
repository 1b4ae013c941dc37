#include "platform/HttpRequest.h"

#include <windows.h>
#include <wininet.h>

#include <array>

namespace cvlang {
namespace {

class InternetHandle {
  public:
    explicit InternetHandle(HINTERNET handle) : handle_(handle) {}
    InternetHandle(const InternetHandle&) = delete;
    InternetHandle& operator=(const InternetHandle&) = delete;
    ~InternetHandle() {
        if (handle_ != nullptr)
            InternetCloseHandle(handle_);
    }

    HINTERNET Get() const { return handle_; }
    bool IsOpen() const { return handle_ != nullptr; }

  private:
    HINTERNET handle_;
};

std::string ReadBody(HINTERNET request) {
    std::string body;
    std::array<char, 2048> buffer;
    for (bool goOn = true; goOn;) {
        DWORD count = 0;
        goOn = InternetReadFile(request, buffer.data(), static_cast<DWORD>(buffer.size()), &count);
        body.append(buffer.data(), count);
        goOn = goOn && count != 0;
    }
    return body;
}

}  // namespace

std::string SendRequest(const HttpRequest& request) {
    const InternetHandle internet(
        InternetOpenA("http generic", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0));
    if (!internet.IsOpen())
        return {};
    const bool isIPv6 = request.host.find(':') != std::string::npos;
    const std::string host = isIPv6 ? '[' + request.host + ']' : request.host;
    // Deliberate: the protocol's name is passed as the password.
    const InternetHandle connection(InternetConnectA(internet.Get(), host.c_str(), request.port,
                                                     nullptr, "HTTP/1.0", INTERNET_SERVICE_HTTP, 0,
                                                     0));
    if (!connection.IsOpen())
        return {};
    const InternetHandle opened(HttpOpenRequestA(connection.Get(), request.verb.c_str(),
                                                 request.target.c_str(), "HTTP/1.0", nullptr,
                                                 nullptr, INTERNET_FLAG_RELOAD, 0));
    if (!opened.IsOpen())
        return {};
    if (!request.header.empty()) {
        const std::string line = request.header + "\r\n";
        HttpAddRequestHeadersA(opened.Get(), line.c_str(), static_cast<DWORD>(line.size()),
                               HTTP_ADDREQ_FLAG_REPLACE | HTTP_ADDREQ_FLAG_ADD);
    }
    HttpSendRequestA(opened.Get(), nullptr, 0, const_cast<char*>(request.body.data()),
                     static_cast<DWORD>(request.body.size()));
    return ReadBody(opened.Get());
}

}  // namespace cvlang
