#include <base/platform/DynamicLibrary.h>

#include <windows.h>

#include <string>

namespace vex::platform {

void* LoadDynamicLibrary(std::u16string_view path) {
    const std::wstring native(path.begin(), path.end());
    return LoadLibraryW(native.c_str());
}

LibraryFunction FindLibraryFunction(void* module, const char* name) {
    if (module == nullptr) return nullptr;
    FARPROC function = GetProcAddress(static_cast<HMODULE>(module), name);
    // FARPROC and LibraryFunction are both plain function pointers; the cast
    // through void(*)() keeps GCC's -Wcast-function-type quiet.
    return reinterpret_cast<LibraryFunction>(reinterpret_cast<void (*)()>(function));
}

void FreeDynamicLibrary(void* module) {
    if (module != nullptr) FreeLibrary(static_cast<HMODULE>(module));
}

}  // namespace vex::platform
