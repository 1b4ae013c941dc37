// The program's HTTP client: one request, one answer, which the caller judges.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace cvlang {

inline constexpr std::uint16_t kHttpPort = 80;

/// Sends a request and returns the bytes of the answer's body, of any status; empty when the
/// server cannot be reached. The texts go out as ANSI bytes, the path unchanged. With the verb
/// "POST", spelled exactly so, the body is declared to be a form. The function is called five
/// times a second until the answer has arrived.
std::string SendHttpRequest(
    std::u16string_view sServer, std::u16string_view sPath, std::u16string_view sPostData,
    std::u16string_view sVerb, std::uint16_t port = kHttpPort,
    const std::function<void()>& stillWaiting = [] {});

/// Gets a path from a server: the path comes first here.
std::string HttpGet(
    std::u16string_view sPath, std::u16string_view sServer, std::uint16_t port = kHttpPort,
    const std::function<void()>& stillWaiting = [] {});

}  // namespace cvlang
