#pragma once

#include <winsock2.h>
#include <ws2tcpip.h>

using NativeSocket = SOCKET;
inline constexpr bool kIsComplete = false;
