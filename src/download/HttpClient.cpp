#include "download/HttpClient.h"

#include <chrono>
#include <future>

#include "platform/Ansi.h"
#include "platform/HttpRequest.h"

namespace cvlang {
namespace {

constexpr std::chrono::milliseconds kStepInterval(200);

}  // namespace

std::string SendHttpRequest(std::u16string_view sServer, std::u16string_view sPath,
                            std::u16string_view sPostData, std::u16string_view sVerb,
                            std::uint16_t port, const std::function<void()>& stillWaiting) {
    HttpRequest request;
    request.host = Utf16ToAnsi(sServer);
    request.port = port;
    request.target = Utf16ToAnsi(sPath);
    request.verb = Utf16ToAnsi(sVerb);
    request.body = Utf16ToAnsi(sPostData);
    if (sVerb == u"POST")
        request.header = "Content-Type: application/x-www-form-urlencoded";
    // In a thread of its own, as the systems' clients call nobody back while they wait.
    auto body = std::async(std::launch::async, SendRequest, std::cref(request));
    while (body.wait_for(kStepInterval) == std::future_status::timeout)
        stillWaiting();
    return body.get();
}

std::string HttpGet(std::u16string_view sPath, std::u16string_view sServer, std::uint16_t port,
                    const std::function<void()>& stillWaiting) {
    return SendHttpRequest(sServer, sPath, u"", u"GET", port, stillWaiting);
}

}  // namespace cvlang
