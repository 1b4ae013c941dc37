#include "platform/Process.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "text/Unicode.h"

namespace cvlang {

std::u16string CommandLineText(int argc, const char* const* argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const bool quoted = argument.empty() || argument.find(' ') != std::string_view::npos;
        line += i == 1 ? "" : " ";
        line += quoted ? "\"" : "";
        line += argument;
        line += quoted ? "\"" : "";
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

}  // namespace cvlang
