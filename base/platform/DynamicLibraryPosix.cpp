#include <base/platform/DynamicLibrary.h>

#include <base/framework/TextEncoding.h>

#include <dlfcn.h>

#include <string>

namespace vex::platform {

void* LoadDynamicLibrary(std::u16string_view path) {
    const std::string native = Utf16ToUtf8(path);
    // RTLD_LOCAL keeps a plug-in's own symbols from standing in for another's.
    return dlopen(native.c_str(), RTLD_NOW | RTLD_LOCAL);
}

LibraryFunction FindLibraryFunction(void* module, const char* name) {
    if (module == nullptr) return nullptr;
    void* symbol = dlsym(module, name);
    // POSIX guarantees that a function's address survives this round trip.
    return reinterpret_cast<LibraryFunction>(symbol);
}

void FreeDynamicLibrary(void* module) {
    if (module != nullptr) dlclose(module);
}

}  // namespace vex::platform
