#include "support/StoredSettings.h"

#include <windows.h>

#include <string>

namespace cvlang {

namespace {
constexpr char kKey[] = "SOFTWARE\\Corvane\\Corvane";
}

StoredSettings::StoredSettings(const std::filesystem::path&,
                               const std::filesystem::path& installation) {
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                    nullptr);
    const std::string directory = installation.string();
    RegSetValueExA(key, "Application Directory", 0, REG_SZ,
                   reinterpret_cast<const BYTE*>(directory.c_str()),
                   static_cast<DWORD>(directory.size() + 1));
    const DWORD version = 2;
    RegSetValueExA(key, "Authoring Version", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&version),
                   sizeof version);
    RegCloseKey(key);
}

StoredSettings::~StoredSettings() {
    RegDeleteKeyA(HKEY_LOCAL_MACHINE, kKey);
}

int ExitCodeOf(int systemStatus) {
    return systemStatus;
}

}  // namespace cvlang
