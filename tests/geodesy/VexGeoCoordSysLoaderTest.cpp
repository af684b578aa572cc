#include <base/geodesy/VexGeoCoordSysList.h>
#include <base/geodesy/VexGeoCoordSysLoader.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace vex {
namespace {

namespace fs = std::filesystem;

// The loader looks in the working directory. The build puts a good plug-in
// in "plugin" and one without the entry point in "plugin-noexport" under
// the test's working directory; this moves into each in turn.
class WorkingDirectory {
  public:
    explicit WorkingDirectory(const fs::path& path) : previous_(fs::current_path()) {
        fs::current_path(path);
    }
    ~WorkingDirectory() { fs::current_path(previous_); }

  private:
    fs::path previous_;
};

bool PluginTypeRegistered() {
    std::unique_ptr<VexGeoCoordSysBase> system(
        VexGeoCoordSysList::GetCoordSysList().Create(u"PluginFeet"));
    return system != nullptr && system->GetLinearUnitFactor() == 0.3048 &&
           system->GetLinearUnitName() == u"ft";
}

// One test, because a loaded library stays for the life of the process:
// the failing case must come before the one that loads.
TEST(VexGeoCoordSysLoader, LoadsTheLibraryAndKeepsIt) {
    const fs::path base = fs::current_path();
    ASSERT_TRUE(fs::exists(base / "plugin")) << "run from the test's build folder";
    VexGeoCoordSysLoader& loader = VexGeoCoordSysLoader::Instance();
    EXPECT_EQ(&loader, &VexGeoCoordSysLoader::Instance());
    ASSERT_FALSE(loader.IsLoaded());

    {
        // No library file at all.
        fs::create_directories(base / "plugin-none");
        WorkingDirectory cd(base / "plugin-none");
        EXPECT_FALSE(loader.LoadDLL(u"VEXCoordSys"));
        EXPECT_FALSE(loader.IsLoaded());
    }
    {
        WorkingDirectory cd(base / "plugin");
        // Only the geodesy library's own name loads it.
        EXPECT_FALSE(loader.LoadDLL(u"OtherLibrary"));
        EXPECT_FALSE(loader.IsLoaded());
        EXPECT_TRUE(loader.LoadDLL(u"VEXCoordSys"));
        EXPECT_TRUE(loader.IsLoaded());
        EXPECT_TRUE(PluginTypeRegistered());
    }

    // Once loaded, any name registers the types again, from anywhere.
    VexGeoCoordSysList::GetCoordSysList().UnRegisterGeoCoordSys(u"PluginFeet");
    EXPECT_FALSE(PluginTypeRegistered());
    {
        WorkingDirectory cd(base / "plugin-none");
        EXPECT_TRUE(loader.LoadDLL(u"OtherLibrary"));
        EXPECT_TRUE(PluginTypeRegistered());
    }
    VexGeoCoordSysList::GetCoordSysList().UnRegisterGeoCoordSys(u"PluginFeet");
}

// A library without the entry point is loaded and kept, so it needs a
// process of its own: CTest runs it as the test geodesy_loader_noexport,
// and it stays disabled in the suite's own run.
TEST(VexGeoCoordSysLoaderAlone, DISABLED_KeepsALibraryWithoutTheEntryPointButSaysFalse) {
    const fs::path base = fs::current_path();
    VexGeoCoordSysLoader& loader = VexGeoCoordSysLoader::Instance();
    ASSERT_FALSE(loader.IsLoaded());
    {
        WorkingDirectory cd(base / "plugin-noexport");
        EXPECT_FALSE(loader.LoadDLL(u"VEXCoordSys"));
        EXPECT_TRUE(loader.IsLoaded());
        EXPECT_FALSE(PluginTypeRegistered());
    }
    {
        // The good library is not loaded in its place.
        WorkingDirectory cd(base / "plugin");
        EXPECT_FALSE(loader.LoadDLL(u"VEXCoordSys"));
        EXPECT_FALSE(PluginTypeRegistered());
    }
}

}  // namespace
}  // namespace vex
