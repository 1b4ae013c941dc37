#include "download/HttpClient.h"

#include <chrono>
#include <future>

#include "platform/Ansi.h"
#include "platform/HttpRequest.h"

namespace cvlang {

// NOLINTNEXTLINE(bugprone-easily-swappable-parameters): the order that the operation has always had
std::string SendHttpRequest(std::u16string_view sServer, std::u16string_view sPath,
                            std::u16string_view sPostData, std::u16string_view sVerb,
                            std::uint16_t port, const std::function<void()>& stillWaiting) {
    constexpr std::chrono::milliseconds kStepInterval(200);
    const HttpRequest request{
        .host = Utf16ToAnsi(sServer),
        .port = port,
        .target = Utf16ToAnsi(sPath),
        .verb = Utf16ToAnsi(sVerb),
        .body = Utf16ToAnsi(sPostData),
        .header = sVerb == u"POST" ? "Content-Type: application/x-www-form-urlencoded" : ""};
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
