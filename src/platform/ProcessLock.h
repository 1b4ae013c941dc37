// Keeping two processes of this program from changing the same files at the same time.
#pragma once

#include <filesystem>
#include <memory>

namespace cvlang {

/// Held while the files of an installation are changed. The lock is advisory and creates no file. A
/// process that waits for five seconds, or cannot lock, continues without it. A process must not
/// hold two of them.
class ProcessLock {
  public:
    /// Waits until no other process holds the lock of this folder.
    explicit ProcessLock(const std::filesystem::path& folder);

  private:
    std::shared_ptr<void> held_;  // a directory on Linux, a mutex on Windows
};

}  // namespace cvlang
