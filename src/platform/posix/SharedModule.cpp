#include "platform/SharedModule.h"

#include <dlfcn.h>

#include "text/Unicode.h"

namespace cvlang {

void* FindInModule(const char* module, const char* symbol) {
    // Never closed: the toolkit cannot be unloaded.
    void* const handle = dlopen(module, RTLD_NOW | RTLD_LOCAL);
    return handle == nullptr ? nullptr : dlsym(handle, symbol);
}

std::u16string ReasonNothingWasFound() {
    const char* const reason = dlerror();
    return reason == nullptr ? std::u16string() : Utf8ToUtf16(reason);
}

}  // namespace cvlang
