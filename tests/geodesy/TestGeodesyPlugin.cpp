// A stand-in for the suite's geodesy library: a plug-in that registers one
// coordinate-system type. Built twice: with the entry point the loader looks
// for, and (VEXBASE_PLUGIN_WITHOUT_ENTRY) with it misnamed.
#include <base/geodesy/VexGeoCoordSysList.h>

#if defined(_WIN32)
#define PLUGIN_EXPORT __declspec(dllexport)
#else
#define PLUGIN_EXPORT __attribute__((visibility("default")))
#endif

namespace {

class PluginFeetSystem : public vex::VexGeoCoordSysBase {
  public:
    bool Init() override { return true; }
    double GetLinearUnitFactor() const override { return 0.3048; }
    vex::CString GetLinearUnitName() const override { return u"ft"; }
};

class PluginFeetCreator : public vex::VexCoordSysICreator {
  public:
    vex::VexGeoCoordSysBase* Create() override { return new PluginFeetSystem; }
};

PluginFeetCreator g_creator;

}  // namespace

#if defined(VEXBASE_PLUGIN_WITHOUT_ENTRY)
extern "C" PLUGIN_EXPORT void RegisterCoordSystems() {
#else
extern "C" PLUGIN_EXPORT void RegisterCoordSys() {
#endif
    vex::VexGeoCoordSysList::GetCoordSysList().RegisterGeoCoordSys(u"PluginFeet", &g_creator);
}
