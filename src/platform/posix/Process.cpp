#include "platform/Process.h"

#include <dlfcn.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

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

}  // namespace cvlang
