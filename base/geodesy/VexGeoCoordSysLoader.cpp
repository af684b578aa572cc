#include <base/geodesy/VexGeoCoordSysLoader.h>

#include <base/platform/DynamicLibrary.h>

namespace vex {
namespace {

#if defined(_WIN32)
constexpr const char16_t* kLibraryFile = u"./VEXGeoCoordSysR.dll";
#else
constexpr const char16_t* kLibraryFile = u"./libVEXGeoCoordSysR.so";
#endif

constexpr const char* kRegisterFunction = "RegisterCoordSys";

}  // namespace

VexGeoCoordSysLoader& VexGeoCoordSysLoader::Instance() {
    static VexGeoCoordSysLoader instance;
    return instance;
}

bool VexGeoCoordSysLoader::LoadDLL(const CString& name, VexGeoCoordSysBase*) {
    std::lock_guard lock(mutex_);
    if (name == kLibraryName && !loaded_) {
        // Kept even without the entry point: the library is never unloaded,
        // since types it registered elsewhere may still be in use.
        module_ = platform::LoadDynamicLibrary(kLibraryFile);
        loaded_ = module_ != nullptr;
    }
    if (!loaded_) return false;
    platform::LibraryFunction registerCoordSys =
        platform::FindLibraryFunction(module_, kRegisterFunction);
    if (registerCoordSys == nullptr) return false;
    // The lock stays held: RegisterCoordSys only touches VexGeoCoordSysList,
    // which has its own lock, and concurrent loads must not both register.
    registerCoordSys();
    return true;
}

bool VexGeoCoordSysLoader::IsLoaded() const {
    std::lock_guard lock(mutex_);
    return loaded_;
}

}  // namespace vex
