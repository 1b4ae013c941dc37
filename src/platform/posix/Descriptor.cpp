#include "platform/posix/Descriptor.h"

#include <unistd.h>

#include <cerrno>

namespace cvlang {

bool Descriptor::Close() {
    const bool closed = number_ < 0 || close(number_) == 0;
    number_ = -1;
    return closed;
}

int Open(const Place& place, int flags, mode_t mode) {
    return openat(place.directory, place.name, flags | O_CLOEXEC, mode);
}

bool Remove(const Place& place) {
    return unlinkat(place.directory, place.name, 0) == 0 || errno == ENOENT;
}

ssize_t Read(const Descriptor& file, char* to, std::size_t size) {
    ssize_t count = 0;
    do {
        count = read(file.Number(), to, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file.Number(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace cvlang
