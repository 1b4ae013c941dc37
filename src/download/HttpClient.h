// The program's HTTP client: one request, one answer. What the answer is worth, its callers judge.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cvlang {

inline constexpr std::uint16_t kHttpPort = 80;

/// Sends a request and returns the bytes of the answer's body, whatever its status; empty when the
/// server cannot be reached. The texts go out as ANSI bytes, the path as it stands. With the verb
/// "POST", spelled exactly so, the body is declared to be a form.
std::string SendHttpRequest(std::u16string_view sServer, std::u16string_view sPath,
                            std::u16string_view sPostData, std::u16string_view sVerb,
                            std::uint16_t port = kHttpPort);

/// Gets a path from a server: the path comes first here.
std::string HttpGet(std::u16string_view sPath, std::u16string_view sServer,
                    std::uint16_t port = kHttpPort);

}  // namespace cvlang
