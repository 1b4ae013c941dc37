// The system's sockets, under one name for what differs from other systems.
#pragma once

#include <winsock2.h>
#include <ws2tcpip.h>

namespace cvlang {

using NativeSocket = SOCKET;
inline constexpr int kSocketType = SOCK_STREAM;
inline constexpr DWORD kSendTimeout = 60000;  // milliseconds

inline int LookupError() {
    return WSAGetLastError();
}

}  // namespace cvlang
