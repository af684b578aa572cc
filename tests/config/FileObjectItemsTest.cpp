// Typed items, status codes and the throw mode of the configuration file.
#include "ConfigTestSupport.h"

#include <base/errors/FileObjectError.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace vex {
namespace {

// Reads text stored under V/k as T; nullopt means the read must fail with
// status 6 and leave the target unchanged.
template <class T>
void ExpectRead(const char16_t* text, std::optional<T> expected, T untouched = T{}) {
    FileObject file;
    file.SetItem(u"V", u"k", CString(text), true);
    T value = untouched;
    const bool read = file.GetItem(u"V", u"k", value);
    EXPECT_EQ(read, expected.has_value()) << CString(text).ToUtf8();
    EXPECT_EQ(value, expected.value_or(untouched)) << CString(text).ToUtf8();
    EXPECT_EQ(file.GetErrorStatus(), expected ? 0 : 6) << CString(text).ToUtf8();
}

TEST(FileObject, ReadsNumbersDecimalOrHexadecimal) {
    ExpectRead<int>(u"42", 42);
    ExpectRead<int>(u"-7", -7);
    ExpectRead<int>(u"0x1F", 31);
    ExpectRead<int>(u"0X1f", 31);
    ExpectRead<int>(u"10x", 16);  // contains "0x": read as hexadecimal 10
    ExpectRead<int>(u"12 m", 12);
    ExpectRead<int>(u"abc", std::nullopt, 5);
    ExpectRead<int>(u"", std::nullopt, 5);
    ExpectRead<int>(u"m 12", std::nullopt, 5);

    ExpectRead<unsigned>(u"4000000000", 4000000000u);
    ExpectRead<unsigned>(u"0xFFFFFFFF", 0xFFFFFFFFu);
    ExpectRead<unsigned>(u"x", std::nullopt, 9u);

    ExpectRead<long>(u"-123456", -123456L);
    ExpectRead<long>(u"0x7fff", 0x7fffL);
    ExpectRead<long>(u"-", std::nullopt, 3L);

    ExpectRead<long long>(u"-9000000000", -9000000000LL);
    ExpectRead<unsigned long long>(u"18446744073709551615", 18446744073709551615ULL);
    ExpectRead<long long>(u"big", std::nullopt, 1LL);
}

TEST(FileObject, ReadsFlagsFloatsAndColours) {
    ExpectRead<bool>(u"1", true);
    ExpectRead<bool>(u"0", false, true);
    ExpectRead<bool>(u"-3", true);
    ExpectRead<bool>(u"yes", std::nullopt, true);

    ExpectRead<double>(u"2.5", 2.5);
    ExpectRead<double>(u"-1e3", -1000.0);
    ExpectRead<double>(u"1,5", 1.0);  // the decimal point is always "."
    ExpectRead<double>(u"x1", std::nullopt, 7.0);
    ExpectRead<float>(u"0.25", 0.25f);
    ExpectRead<float>(u"", std::nullopt, 7.0f);

    // unsigned long is a colour, 0x00BBGGRR, stored as "red, green, blue".
    ExpectRead<COLORREF>(u"64, 128, 255", 0x00FF8040ul);
    ExpectRead<COLORREF>(u"1,2,3", 0x00030201ul);
    ExpectRead<COLORREF>(u"1, 2", std::nullopt, 7ul);
    ExpectRead<COLORREF>(u"16777215", std::nullopt, 7ul);

    FileObject file;
    file.SetItem(u"V", u"k", u"Gr\u00FC\u00DF", true);
    std::string narrow;
    EXPECT_TRUE(file.GetItem(u"V", u"k", narrow));
    EXPECT_EQ(narrow, Utf16ToAnsi(u"Gr\u00FC\u00DF"));
}

TEST(FileObject, WritesTypedItemsInTheirFormats) {
    FileObject file;
    file.SetItem(u"W", u"int", -5);
    file.SetItem(u"W", u"unsigned", 4000000000u);
    file.SetItem(u"W", u"long", -70000L);
    file.SetItem(u"W", u"true", true);
    file.SetItem(u"W", u"false", false);
    file.SetItem(u"W", u"int64", -9000000000LL);
    file.SetItem(u"W", u"uint64", 18446744073709551615ULL);
    file.SetItem(u"W", u"colour", RGB(64, 128, 255));
    file.SetItem(u"W", u"utf16", u"\u00B0C");
    file.SetItem(u"W", u"wide", L"wide");
    file.SetItem(u"W", u"narrow", "narrow");
    file.SetItem(u"W", u"string", std::string("std"));
    file.SetItem(u"W", u"CStringA", CStringA("cstra"));
    EXPECT_EQ(test::Describe(file),
              "[W]int=-5;unsigned=4000000000;long=-70000;true=1;false=0;int64=-9000000000;"
              "uint64=18446744073709551615;colour=64, 128, 255;utf16=\u00B0C;wide=wide;"
              "narrow=narrow;string=std;CStringA=cstra;");
}

// Doubles get the decimals they carry: GetDoublePrecision gives 0 for 3,
// 1 for 2.5 and 0.1, 4 for 1234.5678, 16 for 1e-20.
TEST(FileObject, WritesDoublesWithTheDecimalsTheyCarry) {
    struct Case {
        double value;
        const char* text;
        double readBack;
    };
    const Case cases[] = {
        {3.0, "3", 3.0},
        {2.5, "2.5", 2.5},
        {-0.1, "-0.1", -0.1},
        {1234.5678, "1234.5678", 1234.5678},
        {1e-20, "0.0000000000000000", 0.0},
    };
    for (const Case& c : cases) {
        FileObject file;
        file.SetItem(u"D", u"v", c.value);
        CString text;
        ASSERT_TRUE(file.GetItem(u"D", u"v", text));
        EXPECT_EQ(text.ToUtf8(), c.text) << c.value;
        double back = 0;
        EXPECT_TRUE(file.GetItem(u"D", u"v", back));
        EXPECT_EQ(back, c.readBack);
    }
}

TEST(FileObject, SettingAnItemReplacesInPlaceOrAppends) {
    FileObject file;
    EXPECT_FALSE(file.SetItem(u"A", u"k", u"v", false));
    EXPECT_EQ(file.GetErrorStatus(), 4);
    EXPECT_FALSE(file.HasSection(u"A"));

    EXPECT_TRUE(file.SetItem(u"A", u"x", u"1"));
    EXPECT_TRUE(file.SetItem(u"B", u"y", u"2", true));
    EXPECT_TRUE(file.SetItem(u"A", u"z", u"3", false));
    EXPECT_TRUE(file.SetItem(u"A", u"x", u"4", false));
    EXPECT_EQ(test::Describe(file), "[A]x=4;z=3;[B]y=2;");
}

// Every operation resets the status on entry and sets the code of its own
// failure. (GetItem's codes are checked with the throw mode below.)
TEST(FileObject, SetsTheStatusOfEachFailure) {
    FileObject file;
    ASSERT_TRUE(test::Parse(file, "[General]\r\nPort=4001\r\n"));
    file.SetFileName(u"");
    FobjSection section;
    CString text;
    struct Case {
        const char* operation;
        std::function<bool()> call;
        int status;
    };
    const Case cases[] = {
        {"DeleteItem, missing section", [&] { return file.DeleteItem(u"X", u"Port"); }, 4},
        {"DeleteItem, missing key", [&] { return file.DeleteItem(u"General", u"X"); }, 7},
        {"DeleteSection, missing", [&] { return file.DeleteSection(u"X"); }, 4},
        {"RenameSection, missing", [&] { return file.RenameSection(u"X", u"Y"); }, 4},
        {"GetNumItems, missing", [&] { return file.GetNumItems(u"X") != 0; }, 4},
        {"GetFirstMapEntry, missing",
         [&] { return file.GetFirstMapEntry(section, u"X", text, text); }, 4},
        {"FileSave without a name", [&] { return file.FileSave(u""); }, 8},
        {"FileOpen without a name", [&] { return file.FileOpen(u""); }, 8},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(c.call()) << c.operation;
        EXPECT_EQ(file.GetErrorStatus(), c.status) << c.operation;
        EXPECT_FALSE(file.HasKey(u"X", u"Y"));  // a success: status 0
        EXPECT_EQ(file.GetErrorStatus(), 0) << c.operation;
    }
    FileObject empty;
    EXPECT_FALSE(empty.RenameSection(u"X", u"Y"));
    EXPECT_EQ(empty.GetErrorStatus(), 2);
}

TEST(FileObject, ThrowModeThrowsForMissingItemsAndUnreadableValues) {
    FileObject file;
    ASSERT_TRUE(test::Parse(file, "[Offsets]\r\nGPS.X = 1.5\r\nName = GPS\r\n"));
    int n = 0;
    CString text;
    EXPECT_FALSE(file.GetItem(u"Offsets", u"Missing", text));  // no throw by default

    file.ThrowExceptions(true);
    EXPECT_TRUE(file.ThrowExceptions());
    struct Case {
        const char* behaviour;
        std::function<void()> call;
        FileObjectError::KIND kind;
        const char16_t* section;
        const char16_t* key;
        int status;
    };
    const Case cases[] = {
        {"missing section", [&] { file.GetItem(u"Sonar", u"Port", text); },
         FileObjectError::SECTION_NOT_FOUND, u"Sonar", u"Port", 4},
        {"missing key", [&] { file.GetItem(u"Offsets", u"GPS.Y", text); },
         FileObjectError::KEY_NOT_FOUND, u"Offsets", u"GPS.Y", 5},
        {"unreadable value", [&] { file.GetItem(u"Offsets", u"Name", n); },
         FileObjectError::VALUE_NOT_CONVERTED, u"Offsets", u"Name", 6},
    };
    for (const Case& c : cases) {
        try {
            c.call();
            ADD_FAILURE() << c.behaviour << ": no exception";
        } catch (const FileObjectError& e) {
            EXPECT_EQ(e.Kind(), c.kind) << c.behaviour;
            EXPECT_EQ(e.Section(), CString(c.section)) << c.behaviour;
            EXPECT_EQ(e.Key(), CString(c.key)) << c.behaviour;
            EXPECT_EQ(e.FileName(), CString(u"C:\\Vex\\test.ini")) << c.behaviour;
            EXPECT_EQ(file.GetErrorStatus(), c.status) << c.behaviour;
        }
    }
    EXPECT_EQ(FileObjectError(u"Offsets", u"Name", u"C:\\Vex\\test.ini",
                              FileObjectError::VALUE_NOT_CONVERTED)
                  .Format(),
              CString(u"The value of key \"Name\" in section \"Offsets\" of \"test.ini\" is not "
                      u"of the expected type."));
    double x = 0;
    EXPECT_TRUE(file.GetItem(u"Offsets", u"GPS.X", x));
    EXPECT_EQ(x, 1.5);
}

}  // namespace
}  // namespace vex
