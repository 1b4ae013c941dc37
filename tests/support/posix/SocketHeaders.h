#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/select.h>
#include <sys/socket.h>

using NativeSocket = int;
inline constexpr bool kIsComplete = true;
