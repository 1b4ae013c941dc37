// TCP over IPv4, as far as Windows and Linux differ about it. Failures have the
// numbers of the system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace cvlang {

using SocketHandle = std::intptr_t;
inline constexpr SocketHandle kNoSocket = -1;

/// Windows wants its sockets library started and cleaned up; on Linux there is nothing to do. 0 on
/// success.
int StartSockets();
int StopSockets();

/// The number of the last failure, and a way to set it back after further calls.
int LastSocketError();
void SetLastSocketError(int number);

/// Whether a text is an IPv4 address in numbers and dots.
bool IsIPAddress(const std::string& host);
/// Whether a text is an IPv6 address, without brackets.
bool IsIPv6Address(const std::string& text);
/// The host's first address in numbers and dots; empty when there is no such host.
std::string ResolveHostAddress(const std::string& host);

SocketHandle OpenTcpSocket();
/// Waits until the connection to an address in numbers and dots is open. 0 on success. From then on
/// sending fails when the peer takes nothing for a minute; one that is slow keeps its time.
int ConnectSocket(SocketHandle socket, const std::string& address, std::uint16_t port);
int CloseConnection(SocketHandle socket);

/// Sends some or all of the bytes and returns how many; negative on failure. A peer that is gone is
/// a failure, never a signal that ends the program.
std::ptrdiff_t SendBytes(SocketHandle socket, std::string_view bytes);
/// How many bytes have come and can be received without waiting.
std::size_t WaitingBytes(SocketHandle socket);
/// Receives up to so many bytes; negative on failure. Asked for none, it returns 0 at once and on
/// both systems still reports that the peer has reset the connection.
std::ptrdiff_t ReceiveBytes(SocketHandle socket, char* to, std::size_t count);

}  // namespace cvlang
