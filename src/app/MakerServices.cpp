#include "app/MakerServices.h"

#include <algorithm>
#include <charconv>

#include "platform/Ansi.h"
#include "platform/Process.h"
#include "platform/Sockets.h"

namespace cvlang {
namespace {

/// 0 when the text is no port.
std::uint16_t PortFrom(std::string_view text) {
    std::uint16_t port = 0;
    const char* end = text.data() + text.size();
    return std::from_chars(text.data(), end, port).ptr == end ? port : std::uint16_t{0};
}

bool IsHost(const std::string& text, bool isIPv6) {
    constexpr auto kNameCharacters =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.-_";
    return isIPv6 ? IsIPv6Address(text)
                  : !text.empty() && text.find_first_not_of(kNameCharacters) == text.npos;
}

/// HOST, HOST:PORT, [IPV6] or [IPV6]:PORT. Without a host when the text is none of them.
DistributionServer ParseServer(const std::string& text, std::uint16_t usualPort) {
    const bool isIPv6 = text.starts_with('[');
    const std::size_t end = std::min(text.find(isIPv6 ? ']' : ':'), text.size());
    const std::string host = isIPv6 ? text.substr(1, end - 1) : text.substr(0, end);
    const std::string rest = text.substr(end);
    const std::string_view mark = isIPv6 ? "]:" : ":";
    const bool isBare = rest == mark.substr(0, mark.size() - 1);
    const std::uint16_t port =
        rest.starts_with(mark) ? PortFrom(std::string_view(rest).substr(mark.size())) : 0;
    if (!IsHost(host, isIPv6) || (!isBare && port == 0))
        return {};
    return {AnsiToUtf16(host), isBare ? usualPort : port, {}};
}

/// The server that a variable of the environment names, otherwise the built-in one.
DistributionServer ServerFrom(const char* variable, std::u16string_view builtIn,
                              std::uint16_t usualPort) {
    const std::u16string named = EnvironmentText(variable);
    const std::u16string text = named.empty() ? std::u16string(builtIn) : named;
    DistributionServer server = ParseServer(Utf16ToAnsi(text), usualPort);
    if (server.host.empty())
        server.fault = u"\"" + text + u"\" is not the address of a server. Please set " +
                       AnsiToUtf16(variable) +
                       u" to HOST or HOST:PORT, an IPv6 address in brackets.";
    return server;
}

}  // namespace

MakerServices ConfiguredServices() {
    const DistributionServer web =
        ServerFrom("CORVANE_DISTRIBUTION_SERVER", DISTRIBUTION_SERVER, kHttpPort);
    DistributionServer mail = ServerFrom("CORVANE_SUBMISSION_SERVER", SUBMISSION_SERVER, 0);
    if (mail.host.find(u':') != std::u16string::npos)
        mail.fault =
            u"Mail is sent over IPv4 only. Please set CORVANE_SUBMISSION_SERVER to a host name or "
            u"an IPv4 address.";
    return {web, {SUBMISSION_MAILBOX, mail.host, mail.port, mail.fault}};
}

}  // namespace cvlang
