// Settings where the built program looks for them: in the real registry on Windows, in an export
// file on Linux.
#pragma once

#include <filesystem>

namespace cvlang {

/// Stores an installation's directory and authoring version 2 for the time of the test. `scratch`
/// is a folder for a file.
class StoredSettings {
  public:
    StoredSettings(const std::filesystem::path& scratch, const std::filesystem::path& installation);
    ~StoredSettings();
    StoredSettings(const StoredSettings&) = delete;
    StoredSettings& operator=(const StoredSettings&) = delete;
};

/// The exit code in what std::system returned.
int ExitCodeOf(int systemStatus);

}  // namespace cvlang
