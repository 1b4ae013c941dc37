#include "app/MakerServices.h"

#include "config/TextHelpers.h"
#include "platform/Process.h"

namespace cvlang {
namespace {

struct Server {
    std::u16string host;
    std::uint16_t port;
};

/// The server that a variable of the environment names, otherwise the built-in one.
Server ServerFrom(const char* variable, std::u16string_view builtIn, std::uint16_t usualPort) {
    const std::u16string named = EnvironmentText(variable);
    const std::u16string_view text = named.empty() ? builtIn : std::u16string_view(named);
    unsigned port = 0;
    for (const char16_t digit : SplitField(text, u":", 2))
        port = port * 10 + (digit - u'0');
    return {std::u16string(SplitField(text, u":", 1)),
            port == 0 ? usualPort : static_cast<std::uint16_t>(port)};
}

}  // namespace

MakerServices ConfiguredServices() {
    const Server web = ServerFrom("CORVANE_DISTRIBUTION_SERVER", DISTRIBUTION_SERVER, kHttpPort);
    const Server mail = ServerFrom("CORVANE_SUBMISSION_SERVER", SUBMISSION_SERVER, 0);
    return {{web.host, web.port}, {SUBMISSION_MAILBOX, mail.host, mail.port}};
}

}  // namespace cvlang
