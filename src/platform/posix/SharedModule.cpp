#include "platform/SharedModule.h"

#include <dlfcn.h>

namespace cvlang {

void* FindInModule(const char* module, const char* symbol) {
    // Never closed: a toolkit does not survive being unloaded.
    void* const handle = dlopen(module, RTLD_NOW | RTLD_LOCAL);
    return handle == nullptr ? nullptr : dlsym(handle, symbol);
}

}  // namespace cvlang
