#include "platform/posix/DirectoryEntries.h"

#include "platform/LetterCase.h"
#include "text/Unicode.h"

namespace cvlang {

DirectoryEntries::DirectoryEntries(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::directory_iterator entry(folder, ignored);
    for (; entry != std::filesystem::directory_iterator(); entry.increment(ignored))
        names_.insert(entry->path().filename().native());
}

std::optional<std::string> DirectoryEntries::Find(const std::string& name) const {
    if (names_.count(name) != 0)
        return name;
    if (namesByCapitals_.empty()) {
        for (const std::string& existing : names_)
            namesByCapitals_.emplace(ToUpper(Utf8ToUtf16(existing)), existing);
    }
    const auto found = namesByCapitals_.find(ToUpper(Utf8ToUtf16(name)));
    if (found == namesByCapitals_.end())
        return std::nullopt;
    return found->second;
}

}  // namespace cvlang
