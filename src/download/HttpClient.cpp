#include "download/HttpClient.h"

#include "platform/Ansi.h"
#include "platform/HttpRequest.h"

namespace cvlang {

std::string SendHttpRequest(std::u16string_view sServer, std::u16string_view sPath,
                            std::u16string_view sPostData, std::u16string_view sVerb,
                            std::uint16_t port, const std::function<void()>& stillWaiting) {
    HttpRequest request;
    request.stillWaiting = stillWaiting;
    request.host = Utf16ToAnsi(sServer);
    request.port = port;
    request.target = Utf16ToAnsi(sPath);
    request.verb = Utf16ToAnsi(sVerb);
    request.body = Utf16ToAnsi(sPostData);
    if (sVerb == u"POST")
        request.header = "Content-Type: application/x-www-form-urlencoded";
    return SendRequest(request);
}

std::string HttpGet(std::u16string_view sPath, std::u16string_view sServer, std::uint16_t port,
                    const std::function<void()>& stillWaiting) {
    return SendHttpRequest(sServer, sPath, u"", u"GET", port, stillWaiting);
}

}  // namespace cvlang
