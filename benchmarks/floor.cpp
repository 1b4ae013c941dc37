// Copies the reference folder into the language folder, then reads, deletes and creates each page
// of the copy. The lower bound of a program that copies first and deletes pages to rewrite them.

#include "yardstick.h"

namespace {

using namespace yardstick;

void RewritePages(const Folder& folder, Buffer& buffer) {
    for (const auto& [name, inner] : folder.entries()) {
        if (inner) {
            RewritePages(Folder(folder.get(), name.c_str()), buffer);
        } else if (isPage(name)) {
            const std::size_t size = readWhole(folder.get(), name.c_str(), buffer);
            if (::unlinkat(folder.get(), name.c_str(), 0) != 0) {
                fail(name.c_str());
            }
            writeNew(folder.get(), name.c_str(), buffer.data(), size);
        }
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return run(argumentCount, arguments,
               [](const char* reference, const char* language, Buffer& buffer) {
                   copyFolder(reference, language, buffer);
                   RewritePages(Folder(AT_FDCWD, language), buffer);
               });
}
