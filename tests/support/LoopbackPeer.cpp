#include "support/LoopbackPeer.h"

#include <stdexcept>

#include "NativeSockets.h"

namespace cvlang {

const bool kNetworkIsComplete = NETWORK_IS_COMPLETE;

LoopbackListener::LoopbackListener(const char* address) {
    StartSockets();
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    sockaddr_storage name{};
    socklen_t size = sizeof name;
    auto* const bound = reinterpret_cast<sockaddr*>(&name);
    if (getaddrinfo(address, "0", &hints, &found) != 0)
        throw std::runtime_error("not an address of this computer");
    const auto socket = ::socket(found->ai_family, kSocketType, IPPROTO_TCP);
    socket_ = static_cast<SocketHandle>(socket);
    const bool listens =
        bind(socket, found->ai_addr, static_cast<socklen_t>(found->ai_addrlen)) == 0 &&
        listen(socket, 1) == 0 && getsockname(socket, bound, &size) == 0;
    freeaddrinfo(found);
    if (!listens)
        throw std::runtime_error("no port of this address can be listened to");
    // At the same place for both families.
    port_ = ntohs(reinterpret_cast<const sockaddr_in*>(bound)->sin_port);
}

LoopbackListener::~LoopbackListener() {
    CloseConnection(socket_);
    StopSockets();
}

SocketHandle LoopbackListener::Accept() const {
    const auto listening = static_cast<NativeSocket>(socket_);
    fd_set waiting;
    FD_ZERO(&waiting);
    FD_SET(listening, &waiting);
    timeval patience{20, 0};
    if (select(static_cast<int>(listening) + 1, &waiting, nullptr, nullptr, &patience) != 1)
        return kNoSocket;
    return static_cast<SocketHandle>(accept(listening, nullptr, nullptr));
}

void ResetConnection(SocketHandle socket) {
    const linger atOnce{1, 0};
    setsockopt(static_cast<NativeSocket>(socket), SOL_SOCKET, SO_LINGER,
               reinterpret_cast<const char*>(&atOnce), sizeof atOnce);
    CloseConnection(socket);
}

}  // namespace cvlang
