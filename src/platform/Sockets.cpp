#include "platform/Sockets.h"

#include "NativeSockets.h"

namespace cvlang {

bool IsIPAddress(const std::string& host) {
    return !host.empty() && inet_addr(host.c_str()) != INADDR_NONE;
}

bool IsIPv6Address(const std::string& text) {
    in6_addr address{};
    return inet_pton(AF_INET6, text.c_str(), &address) == 1;
}

std::string ResolveHostAddress(const std::string& host) {
    if (IsIPAddress(host))
        return host;
    const hostent* found = gethostbyname(host.c_str());
    if (found == nullptr || found->h_addr_list[0] == nullptr) {
        SetLastSocketError(LookupError());
        return {};
    }
    return inet_ntoa(*reinterpret_cast<const in_addr*>(found->h_addr_list[0]));
}

SocketHandle OpenTcpSocket() {
    return static_cast<SocketHandle>(socket(AF_INET, kSocketType, IPPROTO_TCP));
}

int ConnectSocket(SocketHandle socket, const std::string& address, std::uint16_t port) {
    const auto native = static_cast<NativeSocket>(socket);
    sockaddr_in peer{};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(port);
    peer.sin_addr.s_addr = inet_addr(address.c_str());
    if (connect(native, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0)
        return -1;
    // Set after connecting, which it would limit too. Without it only the time-out is missing.
    [[maybe_unused]] const int ignored =
        setsockopt(native, SOL_SOCKET, SO_SNDTIMEO, reinterpret_cast<const char*>(&kSendTimeout),
                   sizeof kSendTimeout);
    return 0;
}

}  // namespace cvlang
