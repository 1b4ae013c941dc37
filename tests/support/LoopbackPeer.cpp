#include "support/LoopbackPeer.h"

#include <stdexcept>
#include <utility>

#include "NativeSockets.h"

namespace cvlang {

LoopbackPeer::LoopbackPeer(std::function<void(LoopbackPeer&)> serve, const char* address) {
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
    listening_ = static_cast<SocketHandle>(socket);
    const bool listens =
        bind(socket, found->ai_addr, static_cast<socklen_t>(found->ai_addrlen)) == 0 &&
        listen(socket, 1) == 0 && getsockname(socket, bound, &size) == 0;
    freeaddrinfo(found);
    if (!listens)
        throw std::runtime_error("no port of this address can be listened to");
    // At the same place for both families.
    port_ = ntohs(reinterpret_cast<const sockaddr_in*>(bound)->sin_port);
    thread_ = std::thread([this, serve = std::move(serve)] {
        client_ = Accept();
        serve(*this);
        CloseConnection(client_);
    });
}

LoopbackPeer::~LoopbackPeer() {
    Received();
    CloseConnection(listening_);
    StopSockets();
}

SocketHandle LoopbackPeer::Accept() const {
    const auto listening = static_cast<NativeSocket>(listening_);
    fd_set waiting;
    FD_ZERO(&waiting);
    FD_SET(listening, &waiting);
    timeval patience{20, 0};
    if (select(static_cast<int>(listening) + 1, &waiting, nullptr, nullptr, &patience) != 1)
        return kNoSocket;
    return static_cast<SocketHandle>(accept(listening, nullptr, nullptr));
}

std::string LoopbackPeer::Received() {
    if (thread_.joinable())
        thread_.join();
    return received_;
}

bool LoopbackPeer::ReceiveUntil(std::string_view end) {
    for (char byte = 0; ReceiveBytes(client_, &byte, 1) == 1;) {
        received_ += byte;
        if (!end.empty() && received_.ends_with(end))
            return true;
    }
    return false;
}

void LoopbackPeer::Send(std::string_view bytes) {
    for (std::ptrdiff_t sent = 0; sent >= 0 && !bytes.empty();) {
        sent = SendBytes(client_, bytes);
        bytes.remove_prefix(sent < 0 ? 0 : static_cast<std::size_t>(sent));
    }
}

void LoopbackPeer::Reset() {
    const linger atOnce{1, 0};
    setsockopt(static_cast<NativeSocket>(client_), SOL_SOCKET, SO_LINGER,
               reinterpret_cast<const char*>(&atOnce), sizeof atOnce);
    CloseConnection(std::exchange(client_, kNoSocket));
}

}  // namespace cvlang
