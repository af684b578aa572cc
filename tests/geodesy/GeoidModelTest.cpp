#include <base/geodesy/GeoidModel.h>
#include <base/geodesy/GeoidModelList.h>
#include <base/geodesy/VexGeoCoordSysBase.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace vex {
namespace {

struct UnitSystem : VexGeoCoordSysBase {
    UnitSystem(double factor, const char16_t* name) : factor(factor), name(name) {}
    bool Init() override { return true; }
    double GetLinearUnitFactor() const override { return factor; }
    CString GetLinearUnitName() const override { return name; }
    double factor;
    CString name;
};

TEST(GeoidModel, InitTakesTheSystemsUnitAndFallsBackToMetres) {
    struct Case {
        double factor;
        const char16_t* name;
        double expectedFactor;
        const char16_t* expectedName;
    };
    const Case cases[] = {
        {0.3048, u"ft", 0.3048, u"ft"},
        // A system that does not know its unit means metres, whatever name it gives.
        {0.0, u"unknown", 1.0, u"m"},
    };
    for (const Case& c : cases) {
        UnitSystem system(c.factor, c.name);
        GeoidModel model;
        EXPECT_TRUE(model.Init(&system));
        EXPECT_EQ(model.GetCoordSys(), &system);
        EXPECT_EQ(model.GetUnitFactor(), c.expectedFactor) << c.factor;
        EXPECT_EQ(model.GetUnitName(), CString(c.expectedName)) << c.factor;
    }

    // Without a system the model forgets the old one but keeps its unit.
    UnitSystem feet(0.3048, u"ft");
    GeoidModel model;
    model.Init(&feet);
    EXPECT_TRUE(model.Init(nullptr));
    EXPECT_EQ(model.GetCoordSys(), nullptr);
    EXPECT_EQ(model.GetUnitName(), CString(u"ft"));
}

// A model that says which creator made it.
struct TaggedModel : GeoidModel {
    explicit TaggedModel(int tag) : tag(tag) {}
    int tag;
};

struct TaggedCreator : GeoidModelICreator {
    explicit TaggedCreator(int tag) : tag(tag) {}
    GeoidModel* Create() override { return new TaggedModel(tag); }
    int tag;
};

int TagOf(GeoidModel* made) {
    std::unique_ptr<GeoidModel> owned(made);
    return owned ? static_cast<TaggedModel*>(owned.get())->tag : -1;
}

TEST(GeoidModelList, NamesAndNumbersAreReplacedIndependently) {
    GeoidModelList& list = GeoidModelList::GetGeoidModelList();
    EXPECT_EQ(&list, &GeoidModelList::GetGeoidModelList());
    TaggedCreator egm(1), norway(2), egmAgain(3), renumbered(4);

    list.RegisterGeoidModel(u"EGM2008", 18, &egm);
    list.RegisterGeoidModel(u"Norway", 19, &norway);
    list.RegisterGeoidModel(u"EGM2008", 18, &egmAgain);
    // Same number under a new name: the number now makes this one, and the
    // old name still makes its own creator's models.
    list.RegisterGeoidModel(u"Norway 2", 19, &renumbered);

    EXPECT_EQ(TagOf(list.Create(u"EGM2008")), 3);
    EXPECT_EQ(TagOf(list.Create(static_cast<unsigned short>(18))), 3);
    EXPECT_EQ(TagOf(list.Create(u"Norway")), 2);
    EXPECT_EQ(TagOf(list.Create(static_cast<unsigned short>(19))), 4);
    EXPECT_EQ(list.Create(u"egm2008"), nullptr);
    EXPECT_EQ(list.Create(static_cast<unsigned short>(20)), nullptr);

    std::vector<CString> names{u"stale"};
    list.GetGeoidModelNames(names);
    EXPECT_EQ(names, (std::vector<CString>{u"EGM2008", u"Norway", u"Norway 2"}));
}

}  // namespace
}  // namespace vex
