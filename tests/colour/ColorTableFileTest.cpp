// The colour table's configuration-file form: round trips, the texts
// written, and what malformed files do.
#include <base/colour/ColorTable.h>
#include <base/config/FileObject.h>
#include <base/errors/FileObjectError.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string_view>
#include <vector>

namespace vex {
namespace {

FileObject Parse(const char* text) {
    const std::string_view bytes(text);
    std::vector<std::byte> data(bytes.size());
    std::memcpy(data.data(), bytes.data(), bytes.size());
    MemFile memory(std::move(data));
    FileObject file;
    EXPECT_TRUE(file.FileOpen(memory, u"table.col"));
    return file;
}

CString Item(const FileObject& file, const char16_t* section, const char16_t* key) {
    CString text;
    file.GetItem(section, key, text);
    return text;
}

TEST(ColorTableFile, SaveWritesTheTextsAndOpenReadsThemBack) {
    ColorTable table;
    table.SetLowColor(RGB(1, 2, 3));
    table.SetLowColorName(u"too deep");
    table.AddEntry(-1.25, RGB(255, 0, 0), true, u"deep");
    table.AddEntry(0.1 + 0.2, RGB(9, 9, 9), false,
                   u"x");  // written with the decimals it is worth: "0.3"
    table.AddEntry(3.0, RGB(0, 128, 255), false, u"");
    table.SetDredgeDiffColTab(true);
    table.SetUnderDredgeLimit(0.75);
    table.SetInTolColorRange(RGB(1, 1, 1), RGB(2, 2, 2), 7);
    table.SetSyncWithDesignModel(true);

    FileObject file;
    ASSERT_TRUE(table.FileSave(file));
    EXPECT_EQ(Item(file, u"Colors", u"LowColor"), CString(u"1, 2, 3"));
    EXPECT_EQ(Item(file, u"Names", u"LowColor"), CString(u"too deep"));
    EXPECT_EQ(Item(file, u"Values", u"0"), CString(u"-1.25"));
    EXPECT_EQ(Item(file, u"Values", u"1"), CString(u"0.3"));
    EXPECT_EQ(Item(file, u"Values", u"2"), CString(u"3"));
    EXPECT_EQ(Item(file, u"Colors", u"2"), CString(u"0, 128, 255"));
    EXPECT_EQ(Item(file, u"Locks", u"0"), CString(u"1"));
    EXPECT_EQ(Item(file, u"Locks", u"2"), CString(u"0"));
    EXPECT_EQ(Item(file, u"DredgeDiff", u"NumColorsInTolerance"), CString(u"7"));
    EXPECT_EQ(Item(file, u"DredgeDiff", u"UnderDredgeLimit"), CString(u"0.75"));
    EXPECT_EQ(Item(file, u"DredgeDiff", u"SyncWithDesign"), CString(u"1"));
    EXPECT_EQ(file.GetNumItems(u"DredgeDiff"), 12);

    ColorTable back;
    ASSERT_TRUE(back.FileOpen(file));
    EXPECT_TRUE(back.HasOpened());
    ASSERT_EQ(back.NumEntries(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_DOUBLE_EQ(back.EntryValue(i), table.EntryValue(i)) << i;
        EXPECT_EQ(back.EntryColor(i), table.EntryColor(i));
        EXPECT_EQ(back.EntryLocked(i), table.EntryLocked(i));
        EXPECT_EQ(back.EntryName(i), table.EntryName(i));
    }
    EXPECT_EQ(back.LowColor(), RGB(1, 2, 3));
    EXPECT_EQ(back.LowColorName(), CString(u"too deep"));
    EXPECT_TRUE(back.HasDredgeDiffSection());
    EXPECT_DOUBLE_EQ(back.GetUnderDredgeLimit(), 0.75);
    COLORREF lo = 0, hi = 0;
    unsigned n = 0;
    back.GetInTolColorRange(lo, hi, n);
    EXPECT_EQ(lo, RGB(1, 1, 1));
    EXPECT_EQ(n, 7u);
    bool sync = false;
    back.GetSyncWithDesignModel(sync);
    EXPECT_TRUE(sync);

    // Saved again as a shorter table without dredge settings, nothing old stays.
    back.RemoveEntry(2);
    back.SetDredgeDiffColTab(false);
    ASSERT_TRUE(back.FileSave(file));
    ColorTable shorter;
    ASSERT_TRUE(shorter.FileOpen(file));
    EXPECT_EQ(shorter.NumEntries(), 2);
    EXPECT_FALSE(shorter.HasDredgeDiffSection());
}

TEST(ColorTableFile, MalformedAndIncompleteFiles) {
    // A missing colour for a value fails at once, keeping what was read.
    FileObject noColour = Parse("[Values]\r\n0 = 1\r\n1 = 2\r\n[Colors]\r\n0 = 1, 2, 3\r\n");
    ColorTable table;
    EXPECT_FALSE(table.FileOpen(noColour));
    EXPECT_EQ(table.NumEntries(), 1);
    EXPECT_FALSE(table.HasOpened());

    // A bad value ends the entries, status 6; the table still opens.
    FileObject badValue = Parse(
        "[Values]\r\n0 = 1\r\n1 = deep\r\n2 = 3\r\n"
        "[Colors]\r\n0 = 1, 2, 3\r\n1 = 1, 2, 3\r\n2 = 1, 2, 3\r\n"
        "[DredgeDiff]\r\nNumColorsOverDredge = 9\r\n");
    EXPECT_TRUE(table.FileOpen(badValue));
    EXPECT_EQ(table.NumEntries(), 1);
    EXPECT_EQ(badValue.GetErrorStatus(), FileObject::statusConversionFailed);
    EXPECT_TRUE(table.HasDredgeDiffSection());
    COLORREF lo = 0, hi = 0;
    unsigned n = 0;
    table.GetOverDredgeColorRange(lo, hi, n);
    EXPECT_EQ(n, 9u);
    EXPECT_EQ(hi, 0x0000FFu);  // missing colours keep their defaults

    // A bad lock is unlocked and status 6; an out-of-order entry is dropped.
    FileObject badLock = Parse(
        "[Values]\r\n0 = 1\r\n1 = 0.5\r\n2 = 2\r\n"
        "[Colors]\r\n0 = 1, 2, 3\r\n1 = 4, 5, 6\r\n2 = 7, 8, 9\r\n"
        "[Locks]\r\n0 = yes\r\n2 = 1\r\n");
    EXPECT_TRUE(table.FileOpen(badLock));
    ASSERT_EQ(table.NumEntries(), 2);
    EXPECT_FALSE(table.EntryLocked(0));
    EXPECT_TRUE(table.EntryLocked(1));
    EXPECT_EQ(table.EntryColor(1), RGB(7, 8, 9));
    EXPECT_EQ(badLock.GetErrorStatus(), FileObject::statusConversionFailed);

    // In throw mode a format error names the section, key and file.
    FileObject throwing = Parse("[Values]\r\n0 = 1\r\n[Colors]\r\n0 = red\r\n");
    throwing.ThrowExceptions(true);
    try {
        table.FileOpen(throwing);
        ADD_FAILURE() << "no exception";
    } catch (const FileObjectError& e) {
        EXPECT_EQ(e.Section(), CString(u"Colors"));
        EXPECT_EQ(e.Key(), CString(u"0"));
        EXPECT_EQ(e.FileName(), CString(u"table.col"));
    }
}

}  // namespace
}  // namespace vex
