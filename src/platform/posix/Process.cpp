#include "platform/Process.h"

#include <dlfcn.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "platform/FileSystem.h"
#include "platform/posix/Descriptor.h"
#include "text/Unicode.h"

namespace cvlang {

std::u16string CommandLineText(int argc, const char* const* argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const char* const quote =
            argument.empty() || argument.find(' ') != argument.npos ? "\"" : "";
        line.append(i == 1 ? "" : " ").append(quote).append(argument).append(quote);
    }
    return Utf8ToUtf16(line);
}

void KeepRunningOnFailedWrites() {
    for (const int signal : {SIGXFSZ, SIGPIPE})
        std::signal(signal, SIG_IGN);
}

std::u16string EnvironmentText(const char* name) {
    const char* const text = std::getenv(name);
    return text == nullptr ? std::u16string() : Utf8ToUtf16(text);
}

void DisableSystemErrorBoxes() {}

bool WindowsCanBeSeen() {
    return true;
}

void WriteErrorLine(std::u16string_view text) {
    std::fprintf(stderr, "%s\n", Utf16ToUtf8(text).c_str());
}

void* FindInModule(const char* module, const char* symbol, std::u16string& reason) {
    // Never closed: the toolkit cannot be unloaded.
    void* const handle = dlopen(module, RTLD_NOW | RTLD_LOCAL);
    void* const found = handle == nullptr ? nullptr : dlsym(handle, symbol);
    reason = found == nullptr ? Utf8ToUtf16(dlerror()) : u"";
    return found;
}

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
