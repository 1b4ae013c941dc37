#include "platform/Sockets.h"

#include "NativeSockets.h"

namespace cvlang {

std::optional<AddressNumber> AddressFromNumbers(const std::string& text) {
    const auto address = inet_addr(text.c_str());
    return address == INADDR_NONE ? std::nullopt : std::optional<AddressNumber>(address);
}

bool IsIPv6Address(const std::string& text) {
    in6_addr address{};
    return inet_pton(AF_INET6, text.c_str(), &address) == 1;
}

std::string FirstAddressOfHost(const std::string& name) {
    const hostent* host = gethostbyname(name.c_str());
    if (host == nullptr || host->h_addr_list[0] == nullptr) {
        SetLastSocketError(LookupError());
        return {};
    }
    return {host->h_addr_list[0], static_cast<std::size_t>(host->h_length)};
}

SocketHandle OpenTcpSocket() {
    return static_cast<SocketHandle>(socket(AF_INET, kSocketType, IPPROTO_TCP));
}

int ConnectSocket(SocketHandle socket, AddressNumber address, std::uint16_t port) {
    const auto native = static_cast<NativeSocket>(socket);
    sockaddr_in peer{};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(port);
    peer.sin_addr.s_addr = address;
    if (connect(native, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0)
        return -1;
    // Set after connecting, which it would limit too. Without it only the time-out is missing.
    [[maybe_unused]] const int ignored =
        setsockopt(native, SOL_SOCKET, SO_SNDTIMEO, reinterpret_cast<const char*>(&kSendTimeout),
                   sizeof kSendTimeout);
    return 0;
}

}  // namespace cvlang
