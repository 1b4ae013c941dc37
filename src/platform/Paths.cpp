#include "platform/Paths.h"

namespace cvlang {

std::u16string JoinedPath(std::initializer_list<std::u16string_view> parts) {
    std::u16string path;
    for (const std::u16string_view& part : parts) {
        if (&part != parts.begin())
            path += kSeparator;
        path += part;
    }
    return path;
}

}  // namespace cvlang
