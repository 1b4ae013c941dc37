#include <windows.h>

#include <cstring>
#include <utility>

#include "platform/Ansi.h"
#include "platform/Registry.h"

namespace cvlang {
namespace {

class RegistryKey {
  public:
    explicit RegistryKey(std::u16string_view key) {
        // The settings of a 32-bit mail server are in the 32-bit view.
        const std::string name = Utf16ToAnsi(key);
        if (!Open(name, KEY_READ) && !Open(name, KEY_READ | KEY_WOW64_32KEY))
            handle_ = nullptr;
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() {
        if (handle_ != nullptr)
            RegCloseKey(handle_);
    }

    /// False when the key or the value is missing. With null for `data`, only type and size are
    /// set.
    bool Query(const std::string& name, DWORD& type, void* data, DWORD& size) const {
        return handle_ != nullptr &&
               RegQueryValueExA(handle_, name.c_str(), nullptr, &type, static_cast<BYTE*>(data),
                                &size) == ERROR_SUCCESS;
    }

  private:
    bool Open(const std::string& name, REGSAM access) {
        return RegOpenKeyExA(HKEY_LOCAL_MACHINE, name.c_str(), 0, access, &handle_) ==
               ERROR_SUCCESS;
    }

    HKEY handle_ = nullptr;
};

/// The type and the bytes of a value; no bytes when it is missing.
std::pair<DWORD, std::string> Read(std::u16string_view key, std::u16string_view name) {
    const RegistryKey opened(key);
    const std::string value = Utf16ToAnsi(name);
    DWORD type = 0;
    DWORD size = 0;
    std::string bytes;
    if (opened.Query(value, type, nullptr, size)) {
        bytes.resize(size);
        // The second size counts: the first may be larger than the data.
        bytes.resize(opened.Query(value, type, bytes.data(), size) ? size : 0);
    }
    return {type, bytes};
}

class WindowsRegistry : public Registry {
  public:
    std::u16string ReadString(std::u16string_view key, std::u16string_view name) const override {
        const std::string bytes = Read(key, name).second;
        return AnsiToUtf16(std::string_view(bytes).substr(0, bytes.empty() ? 0 : bytes.size() - 1));
    }

    std::int32_t ReadDword(std::u16string_view key, std::u16string_view name) const override {
        const auto [type, bytes] = Read(key, name);
        std::int32_t number = 0;
        if (type == REG_DWORD && bytes.size() <= sizeof number)
            std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }
};

}  // namespace

std::unique_ptr<Registry> SystemRegistry() {
    return std::make_unique<WindowsRegistry>();
}

}  // namespace cvlang
