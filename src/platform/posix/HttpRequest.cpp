#include "platform/HttpRequest.h"

#include <curl/curl.h>

#include <climits>
#include <memory>

namespace cvlang {
namespace {

using Transfer = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using HeaderList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

std::size_t AppendToBody(char* bytes, std::size_t, std::size_t count, void* body) {
    static_cast<std::string*>(body)->append(bytes, count);
    return count;
}

int TellProgress(void* request, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    static_cast<const HttpRequest*>(request)->stillWaiting();
    return 0;
}

/// What WinINet sends of its own accord, and nothing that only this library would send.
HeaderList Headers(const HttpRequest& request) {
    curl_slist* list = curl_slist_append(nullptr, "Accept:");
    list = curl_slist_append(list, "Pragma: no-cache");
    list =
        curl_slist_append(list, request.header.empty() ? "Content-Type:" : request.header.c_str());
    return {list, curl_slist_free_all};
}

void SetRequest(CURL* transfer, const HttpRequest& request) {
    const std::string server = "http://" + request.host + ":" + std::to_string(request.port) + "/";
    curl_easy_setopt(transfer, CURLOPT_URL, server.c_str());
    curl_easy_setopt(transfer, CURLOPT_REQUEST_TARGET, request.target.c_str());
    curl_easy_setopt(transfer, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_0);
    curl_easy_setopt(transfer, CURLOPT_USERAGENT, "http generic");
    if (!request.body.empty()) {
        curl_easy_setopt(transfer, CURLOPT_POSTFIELDSIZE_LARGE,
                         static_cast<curl_off_t>(request.body.size()));
        curl_easy_setopt(transfer, CURLOPT_POSTFIELDS, request.body.data());
    }
    curl_easy_setopt(transfer, CURLOPT_CUSTOMREQUEST, request.verb.c_str());
}

}  // namespace

std::string SendRequest(const HttpRequest& request) {
    std::string body;
    const Transfer transfer(curl_easy_init(), curl_easy_cleanup);
    if (transfer == nullptr)
        return body;
    const HeaderList headers = Headers(request);
    SetRequest(transfer.get(), request);
    curl_easy_setopt(transfer.get(), CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(transfer.get(), CURLOPT_CONNECTTIMEOUT, LONG_MAX / 1000);
    curl_easy_setopt(transfer.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(transfer.get(), CURLOPT_HTTP09_ALLOWED, 1L);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEFUNCTION, AppendToBody);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEDATA, &body);
    curl_easy_setopt(transfer.get(), CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(transfer.get(), CURLOPT_XFERINFOFUNCTION, TellProgress);
    curl_easy_setopt(transfer.get(), CURLOPT_XFERINFODATA, &request);
    curl_easy_perform(transfer.get());  // what arrived before a failure counts
    return body;
}

}  // namespace cvlang
