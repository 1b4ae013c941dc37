// Real files in a folder of the test's own.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace cvlang {

/// A fresh folder below the system's temporary one, removed with all that is in it when the test
/// ends. Until then it is the current folder, where the error log lies.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
    const std::filesystem::path before_ = std::filesystem::current_path();
};

/// Writes a file, creating the folders above it.
void PutFile(const std::filesystem::path& path, std::string_view bytes);

/// A file's bytes; "(no file)" when there is none.
std::string FileBytes(const std::filesystem::path& path);

/// The bytes of a text in a file of the translation store: UTF-16 behind a byte-order mark.
std::string Utf16Bytes(std::u16string_view text);

/// Takes the write permission (on Windows: sets read-only), or gives it back.
void SetReadOnly(const std::filesystem::path& path, bool readOnly);
bool IsReadOnly(const std::filesystem::path& path);

/// Sets a variable of the environment; an empty value takes it away.
void SetVariable(const std::string& name, const std::string& value);

}  // namespace cvlang
