#include "mail/SmtpConnection.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "mail/HeaderValues.h"
#include "mail/MailError.h"

namespace cvlang {
namespace {

/// The failure keeps its number while the socket is closed.
SocketHandle Abandon(SocketHandle socket) {
    const int reason = LastSocketError();
    CloseConnection(socket);
    SetLastSocketError(reason);
    return kNoSocket;
}

std::chrono::sys_time<std::chrono::minutes> MinuteOf(const LocalTime& time) {
    const std::chrono::sys_days day = std::chrono::year(time.year) / time.month / time.day;
    return day + std::chrono::hours(time.hour) + std::chrono::minutes(time.minute);
}

/// Receives what has come, and nothing when nothing has.
std::string_view ReceiveWaiting(SocketHandle socket, std::vector<char>& buffer) {
    const std::size_t count = WaitingBytes(socket);
    buffer.resize(std::max(buffer.size(), count + 1));
    const std::ptrdiff_t received = ReceiveBytes(socket, buffer.data(), count);
    if (received < 0)
        throw ReceiveError(LastSocketError());
    return {buffer.data(), static_cast<std::size_t>(received)};
}

/// 0 when the first send took nothing. A failure is left to the wait for the reply to find.
std::ptrdiff_t SendAll(SocketHandle socket, std::string_view bytes) {
    const std::ptrdiff_t first = SendBytes(socket, bytes);
    for (std::ptrdiff_t sent = first; sent > 0; sent = SendBytes(socket, bytes)) {
        bytes.remove_prefix(static_cast<std::size_t>(sent));
        if (bytes.empty())
            break;
    }
    return first;
}

}  // namespace

SocketHandle ConnectToHost(const std::string& host, int port,
                           const std::function<void()>& processPendingEvents) {
    const std::string address = ResolveHostAddress(host);
    const SocketHandle socket = address.empty() ? kNoSocket : OpenTcpSocket();
    if (socket == kNoSocket)
        return kNoSocket;
    processPendingEvents();
    if (ConnectSocket(socket, address, static_cast<std::uint16_t>(port)) != 0)
        return Abandon(socket);
    return socket;
}

Connection::Connection() {
    if (StartSockets() != 0)
        StopSockets();
}

Connection::~Connection() {
    Close();
    StopSockets();
}

void Connection::Close() {
    if (socket != kNoSocket)
        CloseConnection(socket);
    socket = kNoSocket;
}

ReplyScanner::ReplyScanner(std::string_view replyCodeSet) : codes_(SplitList(replyCodeSet, ',')) {
    for (const std::string_view code : codes_)
        longest_ = std::max(longest_, code.size());
}

std::string_view ReplyScanner::Add(std::string_view piece) {
    if (!piece.empty() && piece.back() == '\0')
        piece.remove_suffix(1);
    text_ += piece;
    const auto found = std::find_if(codes_.begin(), codes_.end(), [this](std::string_view code) {
        return text_.find(code) != std::string::npos;
    });
    if (found != codes_.end())
        return *found;
    text_.erase(0, text_.size() - std::min(text_.size(), longest_ - 1));
    return {};
}

long MinuteBoundariesBetween(const LocalTime& start, const LocalTime& now) {
    return static_cast<long>((MinuteOf(now) - MinuteOf(start)).count());
}

std::string WaitForReply(SocketHandle socket, std::string_view replyCodeSet, const Clock& clock,
                         const LocalTime& start) {
    ReplyScanner scanner(replyCodeSet);
    std::vector<char> buffer;
    while (MinuteBoundariesBetween(start, clock()) < 1) {
        const std::string_view piece = ReceiveWaiting(socket, buffer);
        if (piece.empty()) {
            // Busy-wait on purpose; yields to other threads and programs.
            std::this_thread::yield();
            continue;
        }
        const std::string_view code = scanner.Add(piece);
        if (!code.empty())
            return std::string(code);
    }
    return {};
}

std::string SMTPProcessClientCommand(SocketHandle socket, std::string_view command,
                                     std::string_view replyCodeSet, const Clock& clock,
                                     std::string& ErrorString) {
    const LocalTime start = clock();
    const bool tookNothing = !command.empty() && SendAll(socket, command) == 0;
    if (replyCodeSet.empty())
        return {};
    if (tookNothing)
        return std::string(kGeneralError);
    try {
        return WaitForReply(socket, replyCodeSet, clock, start);
    } catch (const ReceiveError& error) {
        ErrorString = "Windows Sockets error processing " + std::string(command) +
                      " command: " + std::to_string(error.SocketNumber());
        throw;
    }
}

}  // namespace cvlang
