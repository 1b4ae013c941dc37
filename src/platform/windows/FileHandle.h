// Open files and folders, for the files in this folder only.
#pragma once

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

namespace cvlang {

/// The path in the form that file functions accept at any length.
std::wstring LongPath(const std::filesystem::path& path);

inline constexpr DWORD kLargestTransfer = 1U << 30;

class FileHandle {
  public:
    FileHandle(const std::filesystem::path& path, DWORD access, DWORD disposition,
               DWORD flags = FILE_ATTRIBUTE_NORMAL)
        : handle_(CreateFileW(LongPath(path).c_str(), access,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              disposition, flags, nullptr)) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() {
        if (IsOpen())
            CloseHandle(handle_);
    }

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

    bool WriteAll(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto size =
                static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kLargestTransfer));
            DWORD written = 0;
            if (!::WriteFile(handle_, bytes.data(), size, &written, nullptr) || written == 0)
                return false;
            bytes.remove_prefix(written);
        }
        return true;
    }

  private:
    HANDLE handle_;
};

}  // namespace cvlang
