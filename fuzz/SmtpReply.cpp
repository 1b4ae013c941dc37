// The first line is the set of codes, "|" stands between the pieces in which the reply comes.
#include "mail/SmtpDialogue.h"

#include <sys/socket.h>

#include <array>

#include "fuzz/Fuzz.h"
#include "mail/HeaderValues.h"

namespace cvlang {
namespace {

std::string FirstOf(std::string_view set, std::string_view reply) {
    for (const std::string_view code : SplitList(set, ',')) {
        if (reply.find(code) != reply.npos)
            return std::string(code);
    }
    return {};
}

/// What is found in a reply that came as a whole, before the minute is over.
std::string Wait(std::string_view set, std::string_view reply) {
    std::array<int, 2> ends{};
    Must(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) == 0, "there are sockets");
    SendBytes(ends[0], reply);
    int minute = -1;
    const auto clock = [&minute] { return LocalTime{2004, 3, 7, 9, ++minute, 0}; };
    std::string code = WaitForReply(ends[1], set, clock, LocalTime{2004, 3, 7, 9, 0, 0});
    CloseConnection(ends[0]);
    CloseConnection(ends[1]);
    return code;
}

}  // namespace
}  // namespace cvlang

void cvlang::Try(std::string_view input) {
    const std::string_view set = TakeLine(input);
    ReplyScanner scanner(set);
    std::string reply;
    std::string_view found;
    for (std::string_view piece : SplitList(input, '|')) {
        if (!found.empty())
            break;
        found = scanner.Add(piece);
        reply += piece.ends_with('\0') ? piece.substr(0, piece.size() - 1) : piece;
        Must(found == FirstOf(set, reply), "the set's first code in all that came is found");
    }
    if (input.size() < 10000) {
        const auto whole = input.ends_with('\0') ? input.substr(0, input.size() - 1) : input;
        Must(Wait(set, input) == FirstOf(set, whole), "so it is when it comes over the network");
    }
}
