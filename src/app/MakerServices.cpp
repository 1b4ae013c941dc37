#include "app/MakerServices.h"

#include <limits>

#include "platform/Process.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

struct Server {
    std::u16string host;
    std::uint16_t port;
};

/// 0 when the text is no port.
std::uint16_t PortFrom(std::u16string_view text) {
    unsigned port = 0;
    for (const char16_t digit : text) {
        if (digit < u'0' || digit > u'9' || port > std::numeric_limits<std::uint16_t>::max())
            return 0;
        port = port * 10 + (digit - u'0');
    }
    return port > std::numeric_limits<std::uint16_t>::max() ? std::uint16_t{0}
                                                            : static_cast<std::uint16_t>(port);
}

/// The server that a variable of the environment names, otherwise the built-in one.
Server ServerFrom(const char* variable, std::u16string_view builtIn, std::uint16_t usualPort) {
    const std::u16string named = EnvironmentText(variable);
    const std::u16string_view text = named.empty() ? builtIn : std::u16string_view(named);
    const std::uint16_t port = PortFrom(SplitField(text, u":", 2));
    return {std::u16string(SplitField(text, u":", 1)), port == 0 ? usualPort : port};
}

}  // namespace

MakerServices ConfiguredServices() {
    const Server web = ServerFrom("CORVANE_DISTRIBUTION_SERVER", DISTRIBUTION_SERVER, kHttpPort);
    const Server mail = ServerFrom("CORVANE_SUBMISSION_SERVER", SUBMISSION_SERVER, 0);
    return {{web.host, web.port}, {SUBMISSION_MAILBOX, mail.host, mail.port}};
}

}  // namespace cvlang
