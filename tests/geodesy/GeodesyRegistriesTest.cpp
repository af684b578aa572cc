#include <base/geodesy/VexGeoCoordSysList.h>
#include <base/geodesy/VexGeoDatabaseBaseList.h>
#include <base/geodesy/VexGeoStaticDatabaseList.h>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace vex {
namespace {

// Counts live objects so tests can see that a failed Init destroys its object.
std::atomic<int> g_alive{0};

template <class Base>
struct Probe : Base {
    explicit Probe(bool initWorks, int tag) : initWorks(initWorks), tag(tag) { ++g_alive; }
    ~Probe() override { --g_alive; }
    bool Init() override {
        initialised = true;
        return initWorks;
    }
    bool initWorks;
    int tag;
    bool initialised = false;
};

struct CoordSysProbe : Probe<VexGeoCoordSysBase> {
    using Probe::Probe;
    double GetLinearUnitFactor() const override { return 1.0; }
    CString GetLinearUnitName() const override { return u"m"; }
};

template <class Creator, class Object>
struct ProbeCreator : Creator {
    explicit ProbeCreator(bool initWorks = true, int tag = 0) : initWorks(initWorks), tag(tag) {}
    Object* Create() override { return new Object(initWorks, tag); }
    bool initWorks;
    int tag;
};

// The three registries differ only in names; one typed suite tests them all
// through this adapter.
struct CoordSysRegistry {
    using Object = CoordSysProbe;
    using Creator = ProbeCreator<VexCoordSysICreator, Object>;
    static VexGeoCoordSysList& List() { return VexGeoCoordSysList::GetCoordSysList(); }
    static void Register(const CString& n, Creator* c) { List().RegisterGeoCoordSys(n, c); }
    static void Unregister(const CString& n) { List().UnRegisterGeoCoordSys(n); }
    static int Types(std::vector<CString>& t) { return List().GetCoordSysTypes(t); }
};

struct DatabaseRegistry {
    using Object = Probe<VexGeoDatabaseBase>;
    using Creator = ProbeCreator<GeoDatabaseICreator, Object>;
    static VexGeoDatabaseBaseList& List() { return VexGeoDatabaseBaseList::GetGeoDatabaseList(); }
    static void Register(const CString& n, Creator* c) { List().RegisterGeoDatabase(n, c); }
    static void Unregister(const CString& n) { List().UnRegisterGeoDatabase(n); }
    static int Types(std::vector<CString>& t) { return List().GetGeoDatabaseTypes(t); }
};

struct StaticRegistry {
    using Object = Probe<VexGeoStaticDataBase>;
    using Creator = ProbeCreator<GeoStaticICreator, Object>;
    static VexGeoStaticDatabaseList& List() {
        return VexGeoStaticDatabaseList::GetGeoStaticDataList();
    }
    static void Register(const CString& n, Creator* c) { List().RegisterGeoStaicDatabase(n, c); }
    static void Unregister(const CString& n) { List().UnRegisterGeoStaicDatabase(n); }
    static int Types(std::vector<CString>& t) { return List().GetGeoStaticTypes(t); }
};

template <class R>
class GeodesyRegistry : public ::testing::Test {
  protected:
    // The registries are process-wide: every test removes what it entered.
    void TearDown() override {
        std::vector<CString> types;
        R::Types(types);
        for (const CString& type : types)
            R::Unregister(type);
    }
};

using Registries = ::testing::Types<CoordSysRegistry, DatabaseRegistry, StaticRegistry>;
TYPED_TEST_SUITE(GeodesyRegistry, Registries);

TYPED_TEST(GeodesyRegistry, ListsTypesInCaseSensitiveOrderAndReplacesByName) {
    using R = TypeParam;
    typename R::Creator first(true, 1), second(true, 2), lower(true, 3);
    R::Register(u"b", &lower);
    R::Register(u"UTM", &first);
    R::Register(u"Lambert", &first);
    R::Register(u"UTM", &second);   // replaces
    R::Register(u"Null", nullptr);  // ignored

    std::vector<CString> types{u"stale"};
    EXPECT_EQ(R::Types(types), 3);
    // Upper case sorts before lower case: plain code-unit order.
    EXPECT_EQ(types, (std::vector<CString>{u"Lambert", u"UTM", u"b"}));

    std::unique_ptr<typename R::Object> made(
        static_cast<typename R::Object*>(R::List().Create(u"UTM")));
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->tag, 2);
    EXPECT_TRUE(made->initialised);

    EXPECT_EQ(R::List().Create(u"utm"), nullptr);
    EXPECT_EQ(R::List().Create(u"Null"), nullptr);

    R::Unregister(u"UTM");
    R::Unregister(u"NotThere");
    EXPECT_EQ(R::Types(types), 2);
    EXPECT_EQ(R::List().Create(u"UTM"), nullptr);
}

TYPED_TEST(GeodesyRegistry, CreateDestroysAnObjectWhoseInitFails) {
    using R = TypeParam;
    typename R::Creator failing(false);
    R::Register(u"Broken", &failing);
    const int before = g_alive;
    EXPECT_EQ(R::List().Create(u"Broken"), nullptr);
    EXPECT_EQ(g_alive, before);
}

TYPED_TEST(GeodesyRegistry, ThreadsShareOneInstanceAndRegisterCreateAndListSafely) {
    using R = TypeParam;
    constexpr int kThreads = 4;
    constexpr int kRounds = 200;
    std::vector<typename R::Creator> creators(kThreads);
    std::vector<const void*> instances(kThreads);
    std::atomic<int> created{0};
    {
        std::vector<std::jthread> threads;
        for (int t = 0; t < kThreads; ++t) {
            threads.emplace_back([&, t] {
                instances[t] = &R::List();
                const CString name = CString(u"Thread") + CString(std::u16string(1, u'A' + t));
                std::vector<CString> types;
                for (int i = 0; i < kRounds; ++i) {
                    R::Register(name, &creators[t]);
                    std::unique_ptr<typename R::Object> object(
                        static_cast<typename R::Object*>(R::List().Create(name)));
                    if (object) ++created;
                    R::Types(types);
                    if (i % 2 == 0) R::Unregister(name);
                }
            });
        }
    }
    for (const void* instance : instances)
        EXPECT_EQ(instance, &R::List());
    // Each thread re-registers its own name before creating, so no other
    // thread can take it away in between.
    EXPECT_EQ(created, kThreads * kRounds);
}

}  // namespace
}  // namespace vex
