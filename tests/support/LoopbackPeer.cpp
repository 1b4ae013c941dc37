#include "support/LoopbackPeer.h"

#include <stdexcept>

#include "SocketHeaders.h"

namespace cvlang {

const bool kNetworkIsComplete = kIsComplete;

LoopbackListener::LoopbackListener() {
    StartSocketLibrary();
    socket_ = OpenTcpSocket();
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const name = reinterpret_cast<sockaddr*>(&address);
    const auto socket = static_cast<NativeSocket>(socket_);
    if (bind(socket, name, size) != 0 || listen(socket, 1) != 0 ||
        getsockname(socket, name, &size) != 0)
        throw std::runtime_error("no port on this machine can be listened to");
    port_ = ntohs(address.sin_port);
}

LoopbackListener::~LoopbackListener() {
    CloseSocket(socket_);
    StopSocketLibrary();
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
    CloseSocket(socket);
}

}  // namespace cvlang
