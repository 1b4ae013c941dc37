#include "platform/posix/DirectoryEntries.h"

#include <dirent.h>

#include <memory>

#include "platform/LetterCase.h"
#include "text/Unicode.h"

namespace cvlang {

DirectoryEntries::DirectoryEntries(const std::filesystem::path& folder) {
    // Not directory_iterator, which ends the program when memory runs out.
    const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(folder.c_str()), closedir);
    if (open == nullptr)
        return;
    while (const dirent* entry = readdir(open.get()))
        names_.insert(entry->d_name);
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
