#include "mail/SmtpReply.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "mail/AddressList.h"
#include "mail/MailError.h"

namespace cvlang {
namespace {

long MinuteOf(const LocalTime& time) {
    constexpr long kHours = 24;
    constexpr long kMinutes = 60;
    const std::chrono::sys_days day = std::chrono::year(time.year) / time.month / time.day;
    const auto days = static_cast<long>(day.time_since_epoch().count());
    return (days * kHours + time.hour) * kMinutes + time.minute;
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

}  // namespace

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
    return MinuteOf(now) - MinuteOf(start);
}

std::string WaitForReply(SocketHandle socket, std::string_view replyCodeSet, const Clock& clock,
                         const LocalTime& start) {
    ReplyScanner scanner(replyCodeSet);
    std::vector<char> buffer;
    while (MinuteBoundariesBetween(start, clock()) < 1) {
        const std::string_view piece = ReceiveWaiting(socket, buffer);
        if (piece.empty()) {
            // No rest: only whoever else is ready to run goes first, as a server on this machine.
            std::this_thread::yield();
            continue;
        }
        const std::string_view code = scanner.Add(piece);
        if (!code.empty())
            return std::string(code);
    }
    return {};
}

}  // namespace cvlang
