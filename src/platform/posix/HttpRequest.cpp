#include "platform/HttpRequest.h"

#include <curl/curl.h>

#include <algorithm>
#include <climits>
#include <exception>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "platform/Process.h"
#include "text/Strings.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

using Transfer = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using Url = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;
using HeaderList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

struct Answer {
    CURL* transfer;
    std::string body{};
    std::exception_ptr error{};
};

/// The body's size, so that it need not grow, which would take its memory twice for a while. What
/// the server announces may be wrong, so there is a limit.
std::size_t AnnouncedSize(CURL* transfer) {
    constexpr curl_off_t kMost = 1 << 30;
    curl_off_t size = 0;
    curl_easy_getinfo(transfer, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &size);
    return static_cast<std::size_t>(std::clamp<curl_off_t>(size, 0, kMost));
}

/// Called by the library, which is written in C: no exception may pass through it.
std::size_t AppendToBody(char* bytes, std::size_t, std::size_t count, void* data) {
    auto& answer = *static_cast<Answer*>(data);
    try {
        if (answer.body.empty())
            answer.body.reserve(AnnouncedSize(answer.transfer));
        answer.body.append(bytes, count);
        return count;
    } catch (...) {
        answer.error = std::current_exception();
        return 0;
    }
}

template <typename Value>
void Set(CURL* transfer, CURLoption option, Value value) {
    if (curl_easy_setopt(transfer, option, value) != CURLE_OK)
        throw std::runtime_error("libcurl refuses option " + std::to_string(option));
}

/// What WinINet sends of its own accord, and nothing that only this library would send.
HeaderList Headers(const HttpRequest& request) {
    curl_slist* list = curl_slist_append(nullptr, "Accept:");
    list = curl_slist_append(list, "Proxy-Connection:");
    list = curl_slist_append(list, "Pragma: no-cache");
    list =
        curl_slist_append(list, request.header.empty() ? "Content-Type:" : request.header.c_str());
    return {list, curl_slist_free_all};
}

std::string Root(const HttpRequest& request) {
    const bool isIPv6 = request.host.find(':') != std::string::npos;
    std::string root("http://");
    root.append(isIPv6 ? "[" : "").append(request.host).append(isIPv6 ? "]" : "");
    return request.port == 80 ? root : root.append(":").append(std::to_string(request.port));
}

/// The first request's URL. Its target is sent as it stands instead; redirects may be relative to
/// it.
Url FirstUrl(const HttpRequest& request) {
    Url url(curl_url(), curl_url_cleanup);
    curl_url_set(url.get(), CURLUPART_URL, Root(request).c_str(), 0);
    curl_url_set(url.get(), CURLUPART_PATH, request.target.c_str(), CURLU_URLENCODE);
    return url;
}

std::string Variable(const char* name) {
    return Utf16ToUtf8(EnvironmentText(name));
}

/// Whether no_proxy names the host, a domain above it, or all hosts.
bool NeedsNoProxy(const std::string& host) {
    std::string list = ToLowerCase(Variable("no_proxy"));
    std::replace(list.begin(), list.end(), ',', ' ');
    std::istringstream names(list);
    for (std::string name; names >> name;) {
        name.insert(0, name[0] == '.' ? 0 : 1, '.');
        if (name == ".*" || EndsWithIgnoringCase('.' + host, name))
            return true;
    }
    return false;
}

/// A proxy needs the whole URL as the target. The library would take it from the URL, but without
/// blanks. So the proxy of the first request is chosen here; the library chooses those of redirects
/// by the same variables.
void SetFirstTarget(CURL* transfer, const HttpRequest& request) {
    const std::string proxy = NeedsNoProxy(request.host) ? "" : Variable("http_proxy");
    const bool isHttpProxy = !proxy.empty() && !proxy.starts_with("socks");
    Set(transfer, CURLOPT_PROXY, proxy.c_str());
    Set(transfer, CURLOPT_NOPROXY, "");
    Set(transfer, CURLOPT_REQUEST_TARGET,
        ((isHttpProxy ? Root(request) : "") + request.target).c_str());
}

void SetRequest(CURL* transfer, const HttpRequest& request) {
    Set(transfer, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_0);
    Set(transfer, CURLOPT_USERAGENT, "http generic");
    if (!request.body.empty()) {
        Set(transfer, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
        Set(transfer, CURLOPT_POSTFIELDS, request.body.data());
    }
    Set(transfer, CURLOPT_CUSTOMREQUEST, request.verb.c_str());
    Set(transfer, CURLOPT_HTTP09_ALLOWED, 1L);
    Set(transfer, CURLOPT_NOSIGNAL, 1L);
    // The network alone decides when it gives up: the library's own limit is 300 s. Probes find out
    // that a peer has died.
    Set(transfer, CURLOPT_CONNECTTIMEOUT, static_cast<long>(INT_MAX / 1000));
    Set(transfer, CURLOPT_TCP_KEEPALIVE, 1L);
}

/// Turns the request into the one that the answer redirects to. False when it redirects nowhere.
bool Redirect(CURL* transfer, CURLU* url, HttpRequest& request) {
    char* target = nullptr;
    long status = 0;
    curl_easy_getinfo(transfer, CURLINFO_REDIRECT_URL, &target);
    curl_easy_getinfo(transfer, CURLINFO_RESPONSE_CODE, &status);
    const std::string lower = ToLowerCase(target == nullptr ? "" : target);
    if (!lower.starts_with("http://") && !lower.starts_with("https://"))
        return false;
    if (status != 307 && status != 308) {  // the others ask for a plain GET
        request.verb = "GET";
        request.body.clear();
        request.header.clear();
    }
    return curl_url_set(url, CURLUPART_URL, target, CURLU_ALLOW_SPACE | CURLU_URLENCODE) ==
           CURLUE_OK;
}

}  // namespace

std::string SendRequest(const HttpRequest& request) {
    constexpr int kMostRedirects = 10;
    HttpRequest hop = request;
    const Url url = FirstUrl(request);
    for (int redirects = 0;; ++redirects) {
        const Transfer transfer(curl_easy_init(), curl_easy_cleanup);
        if (transfer == nullptr || url == nullptr)
            return {};
        Answer answer{transfer.get()};
        const HeaderList headers = Headers(hop);
        Set(transfer.get(), CURLOPT_CURLU, url.get());
        Set(transfer.get(), CURLOPT_HTTPHEADER, headers.get());
        Set(transfer.get(), CURLOPT_WRITEFUNCTION, AppendToBody);
        Set(transfer.get(), CURLOPT_WRITEDATA, &answer);
        SetRequest(transfer.get(), hop);
        if (redirects == 0)
            SetFirstTarget(transfer.get(), request);
        curl_easy_perform(transfer.get());  // what arrived before a failure counts
        if (answer.error != nullptr)
            std::rethrow_exception(answer.error);
        if (redirects == kMostRedirects || !Redirect(transfer.get(), url.get(), hop))
            return std::move(answer.body);
    }
}

}  // namespace cvlang
