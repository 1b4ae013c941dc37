// The names in a folder, looked up without regard to letter case.
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>

namespace cvlang {

class DirectoryEntries {
  public:
    /// Reads the folder's names once; a folder that cannot be read has none.
    explicit DirectoryEntries(const std::filesystem::path& folder);

    /// The name of the entry on the disk: the exact one, otherwise one that differs only in letter
    /// case.
    std::optional<std::string> Find(const std::string& name) const;

  private:
    // Sorted, so that of two names that differ only in case the same one is always found.
    std::set<std::string> names_;
    mutable std::unordered_map<std::u16string, std::string> namesByCapitals_;
};

}  // namespace cvlang
