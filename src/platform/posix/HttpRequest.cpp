#include "platform/HttpRequest.h"

#include <curl/curl.h>

#include <climits>
#include <exception>
#include <memory>

namespace cvlang {
namespace {

using Transfer = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using HeaderList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

/// What the library's calls back work on. It is written in C: no exception may pass through it.
struct Exchange {
    const HttpRequest& request;
    std::string body;
    std::exception_ptr error;

    template <typename Action>
    bool Guarded(Action action) {
        try {
            action();
            return true;
        } catch (...) {
            error = std::current_exception();
            return false;
        }
    }
};

std::size_t AppendToBody(char* bytes, std::size_t, std::size_t count, void* data) {
    auto& exchange = *static_cast<Exchange*>(data);
    return exchange.Guarded([&] { exchange.body.append(bytes, count); }) ? count : 0;
}

int TellProgress(void* data, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    auto& exchange = *static_cast<Exchange*>(data);
    return exchange.Guarded([&] { exchange.request.stillWaiting(); }) ? 0 : 1;
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
    // A proxy would need another target than the one asked for.
    curl_easy_setopt(transfer, CURLOPT_PROXY, "");
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
    Exchange exchange{request, {}, {}};
    const Transfer transfer(curl_easy_init(), curl_easy_cleanup);
    if (transfer == nullptr)
        return {};
    const HeaderList headers = Headers(request);
    SetRequest(transfer.get(), request);
    curl_easy_setopt(transfer.get(), CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(transfer.get(), CURLOPT_CONNECTTIMEOUT, LONG_MAX / 1000);
    curl_easy_setopt(transfer.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(transfer.get(), CURLOPT_HTTP09_ALLOWED, 1L);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEFUNCTION, AppendToBody);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEDATA, &exchange);
    curl_easy_setopt(transfer.get(), CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(transfer.get(), CURLOPT_XFERINFOFUNCTION, TellProgress);
    curl_easy_setopt(transfer.get(), CURLOPT_XFERINFODATA, &exchange);
    curl_easy_perform(transfer.get());  // what arrived before a failure counts
    if (exchange.error != nullptr)
        std::rethrow_exception(exchange.error);
    return exchange.body;
}

}  // namespace cvlang
