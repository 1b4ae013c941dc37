#include "support/StoredSettings.h"

#include <sys/wait.h>

#include <cstdlib>

#include "support/Files.h"

namespace cvlang {

StoredSettings::StoredSettings(const std::filesystem::path& scratch,
                               const std::filesystem::path& installation) {
    PutFile(scratch / "registry.reg",
            "Windows Registry Editor Version 5.00\r\n\r\n"
            "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n"
            "\"Application Directory\"=\"" +
                installation.string() +
                "\"\r\n"
                "\"Authoring Version\"=dword:00000002\r\n");
    setenv("CORVANE_REGISTRY", (scratch / "registry.reg").c_str(), 1);
}

StoredSettings::~StoredSettings() {
    unsetenv("CORVANE_REGISTRY");
}

int ExitCodeOf(int systemStatus) {
    return WEXITSTATUS(systemStatus);
}

}  // namespace cvlang
