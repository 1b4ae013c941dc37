#include "platform/ProcessLock.h"

#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "platform/Paths.h"
#include "platform/posix/Descriptor.h"

namespace cvlang {

ProcessLock::ProcessLock(const std::filesystem::path& folder) {
    using namespace std::chrono_literals;
    const auto end = std::chrono::steady_clock::now() + 5s;
    const std::filesystem::path existing = FindExisting(folder);
    const int directory = Open(Place(existing), O_RDONLY | O_DIRECTORY);
    // Polled: only a signal would end a blocking flock.
    while (directory >= 0 && flock(directory, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
           std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(5ms);
    if (directory >= 0)
        held_ = std::shared_ptr<void>(nullptr, [directory](void*) { close(directory); });
}

}  // namespace cvlang
