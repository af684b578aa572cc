// VexGeoCoordSysLoader.h - brings the suite's geodesy library in at run
// time, so that its coordinate-system types enter VexGeoCoordSysList.
//
// The library is "./VEXGeoCoordSysR.dll" on Windows and
// "./libVEXGeoCoordSysR.so" elsewhere, looked for in the working directory.
// It must export `extern "C" void RegisterCoordSys()`, which registers its
// types. Once loaded it stays loaded for the life of the process. The loader
// is a single process-wide object; its members are safe from any thread.
//
//   if (vex::VexGeoCoordSysLoader::Instance().LoadDLL(u"VEXCoordSys"))
//       sys.reset(vex::VexGeoCoordSysList::GetCoordSysList().Create(u"UTM"));
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <mutex>

namespace vex {

class VexGeoCoordSysBase;

class VEXBASE_API VexGeoCoordSysLoader {
  public:
    // The name under which LoadDLL loads the geodesy library.
    static constexpr const char16_t* kLibraryName = u"VEXCoordSys";

    static VexGeoCoordSysLoader& Instance();

    VexGeoCoordSysLoader(const VexGeoCoordSysLoader&) = delete;
    VexGeoCoordSysLoader& operator=(const VexGeoCoordSysLoader&) = delete;

    // With name "VEXCoordSys" loads the geodesy library unless it is loaded
    // already. Then, whatever the name, calls the loaded library's
    // RegisterCoordSys and returns true. False when no library is loaded
    // (the file is missing or cannot be loaded: a later call tries again) or
    // when the loaded one lacks RegisterCoordSys (it stays loaded all the
    // same, like every library loaded here). coordSys is accepted for
    // callers' sake and not used.
    bool LoadDLL(const CString& name, VexGeoCoordSysBase* coordSys = nullptr);

    // Whether the geodesy library is loaded.
    bool IsLoaded() const;

  private:
    VexGeoCoordSysLoader() = default;

    mutable std::mutex mutex_;
    void* module_ = nullptr;
    bool loaded_ = false;
};

}  // namespace vex
