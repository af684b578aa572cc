#include <base/config/FileObject.h>
#include <base/errors/FileObjectError.h>
#include <base/framework/MemFile.h>
#include <base/units/UnitDefinition.h>
#include <base/units/UnitSettings.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vex {
namespace {

FileObject Parsed(std::string_view text) {
    const auto* begin = reinterpret_cast<const std::byte*>(text.data());
    MemFile memory(std::vector<std::byte>(begin, begin + text.size()));
    FileObject file;
    EXPECT_TRUE(file.FileOpen(memory, u"units.ini")) << text;
    return file;
}

std::string Key(const CVexUnitCnv& units, int kind) {
    return units.GetUnitKey(kind).ToUtf8();
}

TEST(UnitSettings, ChosenUnitsSurviveSavingAndReading) {
    CVexUnitCnv chosen;
    ASSERT_TRUE(UnitDefinition::SelectUnit(chosen, 1, u"ft"));
    ASSERT_TRUE(UnitDefinition::SelectUnit(chosen, 3, u"fm"));
    ASSERT_TRUE(UnitDefinition::SelectUnit(chosen, 2, u"kn"));
    ASSERT_TRUE(UnitDefinition::SelectUnit(chosen, 21, u"F"));

    FileObject file = Parsed("[Vessel]\r\nName = Hydra\r\n");
    ASSERT_TRUE(SaveUnits(chosen, file));
    CString value;
    ASSERT_TRUE(file.GetItem(u"Units", u"Depth", value));
    EXPECT_EQ(value.ToUtf8(), "fm");
    EXPECT_FALSE(file.HasKey(u"Units", u"Volume"));  // never chosen

    // Through the file's text, as a settings file on disk holds it.
    MemFile memory;
    ASSERT_TRUE(file.FileSave(memory));
    FileObject reread;
    memory.Seek(0, CFile::begin);
    ASSERT_TRUE(reread.FileOpen(memory, u"units.ini"));

    CVexUnitCnv loaded;
    ASSERT_TRUE(UnitDefinition::SelectUnit(loaded, 5, u"l"));  // replaced by the default
    ASSERT_TRUE(LoadUnits(reread, loaded));
    EXPECT_EQ(reread.GetErrorStatus(), FileObject::statusOk);
    for (int kind = 0; kind < CVexUnitCnv::kNumKinds; ++kind) {
        EXPECT_EQ(Key(loaded, kind), Key(chosen, kind)) << "kind " << kind;
        EXPECT_EQ(loaded.GetMultiplier(kind), chosen.GetMultiplier(kind)) << "kind " << kind;
        EXPECT_EQ(loaded.ConvertUnit(kind, 10.0), chosen.ConvertUnit(kind, 10.0)) << kind;
    }
}

TEST(UnitSettings, UnknownUnitsKeepTheirKindsDefaultAndAreReported) {
    struct Case {
        const char* text;
        bool ok;
        const char* depth;  // key of kind 3 afterwards
        const char* speed;  // key of kind 2 afterwards
    };
    const Case cases[] = {
        {"[Units]\r\nDepth = ft\r\nSpeed = kn\r\n", true, "ft", "kn"},
        {"[Units]\r\nDepth = Furlong\r\nSpeed = kn\r\n", false, "", "kn"},
        {"[Units]\r\nDepth = kn\r\nSpeed = kn\r\n", false, "", "kn"},  // wrong group
        {"[Units]\r\nDepth =\r\nSpeed = m\r\n", false, "", ""},
        {"[Units]\r\nDepth = FT\r\n", false, "", ""},  // keys are exact
        {"[Units]\r\nUnrelated = 1\r\n", true, "", ""},
        {"[Other]\r\nDepth = ft\r\n", true, "", ""},  // no section: the defaults
    };
    for (const Case& c : cases) {
        const FileObject file = Parsed(c.text);
        CVexUnitCnv units;
        EXPECT_EQ(LoadUnits(file, units), c.ok) << c.text;
        EXPECT_EQ(file.GetErrorStatus(),
                  c.ok ? FileObject::statusOk : FileObject::statusConversionFailed)
            << c.text;
        EXPECT_EQ(Key(units, 3), c.depth) << c.text;
        EXPECT_EQ(Key(units, 2), c.speed) << c.text;
        if (Key(units, 3).empty()) {
            EXPECT_EQ(units.GetMultiplier(3), 1.0) << c.text;
            EXPECT_EQ(units.GetUnitMnem(3).ToUtf8(), "m") << c.text;
        }
    }
}

TEST(UnitSettings, UnknownUnitThrowsInThrowModeAfterTheOthersAreRead) {
    FileObject file = Parsed("[Units]\r\nSpeed = kn\r\nDepth = Furlong\r\nLength = ft\r\n");
    file.ThrowExceptions(true);
    CVexUnitCnv units;
    try {
        LoadUnits(file, units);
        FAIL() << "no exception";
    } catch (const FileObjectError& e) {
        EXPECT_EQ(e.Kind(), FileObjectError::VALUE_NOT_CONVERTED);
        EXPECT_EQ(e.Key().ToUtf8(), "Depth");
        EXPECT_EQ(e.Section().ToUtf8(), "Units");
    }
    EXPECT_EQ(Key(units, 2), "kn");
    EXPECT_EQ(Key(units, 1), "ft");
    EXPECT_EQ(Key(units, 3), "");
}

}  // namespace
}  // namespace vex
