// The application, base and language that an operation works on.
#pragma once

#include <string>

namespace cvlang {

struct Selection {
    std::u16string application{};  // "WebMail" or "WebAdmin"
    std::u16string base{};         // as listed: "default.net"
    std::u16string language{};     // English name as listed: "French"
};

}  // namespace cvlang
