#include "platform/posix/Descriptor.h"

#include <unistd.h>

#include <cerrno>

namespace cvlang {

bool Descriptor::Close() {
    const bool closed = number_ < 0 || close(number_) == 0 || errno == EINTR;
    number_ = -1;
    return closed;
}

int Open(const Place& place, int flags, mode_t mode) {
    // O_NONBLOCK: opening a pipe would wait until its other end is opened.
    constexpr int kAlways = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    return Uninterrupted(
        [&] { return openat(place.directory, place.name, flags | kAlways, mode); });
}

bool Remove(const Place& place) {
    return unlinkat(place.directory, place.name, 0) == 0 || errno == ENOENT;
}

ssize_t Read(const Descriptor& file, char* to, std::size_t size) {
    return Uninterrupted([&] { return read(file.Number(), to, size); });
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            Uninterrupted([&] { return write(file.Number(), bytes.data(), bytes.size()); });
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace cvlang
