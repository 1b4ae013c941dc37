// Copies the reference folder into the language folder, then reads, deletes and creates each page
// of the copy. The lower bound of a program that copies first and deletes pages to rewrite them.
#include "yardstick.h"

namespace {

using namespace cvlang::yardstick;

void RewritePages(const ListedFolder& folder, Buffer& buffer) {
    for (const auto& [name, isFolder] : folder.Entries()) {
        if (isFolder) {
            RewritePages(ListedFolder(folder.Number(), name), buffer);
        } else if (IsPage(name)) {
            const std::string_view page = ReadWhole(folder.Number(), name, buffer);
            Require(unlinkat(folder.Number(), name.c_str(), 0) == 0, name);
            WriteNew(folder.Number(), name, page);
        }
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return Run(argumentCount, arguments,
               [](const char* reference, const char* language, Buffer& buffer) {
                   CopyFolder(reference, language, buffer);
                   RewritePages(ListedFolder(AT_FDCWD, language), buffer);
               });
}
