// The system's sockets, under one name for what differs from other systems.
#pragma once

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

namespace cvlang {

using NativeSocket = int;
inline constexpr int kSocketType = SOCK_STREAM | SOCK_CLOEXEC;
inline constexpr timeval kSendTimeout{60, 0};

/// The look-up of names has numbers of its own. This one of the others says it best.
inline int LookupError() {
    return EHOSTUNREACH;
}

}  // namespace cvlang
