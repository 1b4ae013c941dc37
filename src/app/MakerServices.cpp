#include "app/MakerServices.h"

#include "config/TextHelpers.h"
#include "platform/Process.h"

namespace cvlang {
namespace {

/// HOST or HOST:PORT.
DistributionServer ServerFromText(std::u16string_view text) {
    DistributionServer server{std::u16string(SplitField(text, u":", 1))};
    unsigned port = 0;
    for (const char16_t c : SplitField(text, u":", 2))
        port = port * 10 + (c - u'0');
    if (port != 0)
        server.port = static_cast<std::uint16_t>(port);
    return server;
}

}  // namespace

MakerServices ConfiguredServices() {
    const std::u16string other = EnvironmentText("CORVANE_DISTRIBUTION");
    return {ServerFromText(other.empty() ? CVLANG_DISTRIBUTION : other)};
}

}  // namespace cvlang
