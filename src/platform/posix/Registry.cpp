#include <cstdlib>
#include <filesystem>

#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "platform/posix/RegistryExport.h"

namespace cvlang {
namespace {

/// Larger files are no settings, and could exhaust the memory.
constexpr std::uintmax_t kLargestFile = 256U << 20;

std::filesystem::path RegistryFile() {
    const char* named = std::getenv("CORVANE_REGISTRY");
    return named != nullptr && *named != '\0' ? named : "/etc/corvane/registry.reg";
}

class RegistryFromFile : public Registry {
  public:
    std::u16string ReadString(std::u16string_view key, std::u16string_view name) const override {
        return Find(key, name).text.value_or(u"");
    }

    std::int32_t ReadDword(std::u16string_view key, std::u16string_view name) const override {
        return Find(key, name).number.value_or(0);
    }

  private:
    static RegistryValue Find(std::u16string_view key, std::u16string_view name) {
        FileContent file;
        std::error_code ignored;
        const std::filesystem::path path = FindExisting(RegistryFile());
        if (std::filesystem::file_size(path, ignored) <= kLargestFile)
            ReadFile(path, file);
        return FindInRegistryExport(file.Bytes(), key, name);
    }
};

}  // namespace

std::unique_ptr<Registry> SystemRegistry() {
    return std::make_unique<RegistryFromFile>();
}

}  // namespace cvlang
