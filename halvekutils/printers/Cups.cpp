// SPDX-License-Identifier: MIT
#include <halvekutils/printers/Cups.h>

#include <dlfcn.h>

namespace halvek {

namespace {

template <class Result>
Result OrMissing(Result found) {
    if (found == nullptr) throw Cups::Missing(::dlerror());
    return found;
}

}  // namespace

Cups::Cups(const char* file) {
    void* const library = OrMissing(::dlopen(file, RTLD_NOW | RTLD_LOCAL));
#define HALVEK_CUPS_LOAD(name) \
    name = reinterpret_cast<decltype(name)>(OrMissing(::dlsym(library, #name)));
    HALVEK_CUPS_FUNCTIONS(HALVEK_CUPS_LOAD)
#undef HALVEK_CUPS_LOAD
}

}  // namespace halvek
