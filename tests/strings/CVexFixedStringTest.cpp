#include <base/strings/CVexFixedString.h>

#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <climits>

// Columns counted out by hand on the record "ABC 12.5" (A=0, B=1, C=2,
// blank=3, "12.5" = 4..7, Size 8).

namespace vex {
namespace {

using test::CodePageGuard;

TEST(CVexFixedString, FieldsAreSelectedFromTheBaseAndCutAtTheEnd) {
    struct Case {
        int base, column, width;
        const char16_t* field;  // null: the getter fails
    };
    const Case cases[] = {
        {0, 4, 10, u"12.5"},  // runs past the end: cut
        {0, 8, 1, nullptr},   // index equals Size
        {0, -1, 1, nullptr},
        {0, 0, 0, nullptr},  // width 0
        {1, 1, 1, u"A"},
        {1, 0, 1, nullptr},  // before the first column
        {1, 8, 3, u"5"},
        {0, 4, INT_MAX, u"12.5"},        // no overflow in column + width
        {INT_MIN, INT_MAX, 1, nullptr},  // column - base beyond int
    };
    for (const Case& c : cases) {
        const CVexFixedString record(u"ABC 12.5", c.base);
        CString out = u"unchanged";
        EXPECT_EQ(record.GetItem(c.column, c.width, out), c.field != nullptr)
            << c.base << " " << c.column << " " << c.width;
        EXPECT_EQ(out, c.field ? c.field : u"unchanged") << c.base << " " << c.column;
    }
    CVexFixedString record(u"ABC 12.5", 0);
    record.SetBase(4);  // the text stays
    double value = 0;
    EXPECT_TRUE(record.GetItem(8, 4, value));
    EXPECT_EQ(value, 12.5);
}

TEST(CVexFixedString, NumbersConvertAsScanfAndFailuresLeaveTheOutput) {
    // "  42 -1 65536  1e3 x 0x1F 100000000"
    //  0123456789012345678901234567890123
    const CVexFixedString record(u"  42 -1 65536  1e3 x 0x1F 100000000", 0);
    int i = 99;
    EXPECT_TRUE(record.GetItem(0, 5, i));
    EXPECT_EQ(i, 42);
    EXPECT_FALSE(record.GetItem(0, 2, i));  // blanks only
    EXPECT_FALSE(record.GetItem(19, 1, i));
    EXPECT_EQ(i, 42);
    unsigned int u = 99;
    EXPECT_FALSE(record.GetItem(5, 2, u));  // no minus before an unsigned
    EXPECT_TRUE(record.GetHexItem(21, 4, u));
    EXPECT_EQ(u, 31u);
    EXPECT_FALSE(record.GetHexItem(26, 9, u));  // 33 bits
    EXPECT_EQ(u, 31u);
    unsigned short s = 99;
    EXPECT_FALSE(record.GetItem(8, 5, s));
    EXPECT_EQ(s, 99);
    double d = 0;
    float f = 0;
    EXPECT_TRUE(record.GetItem(13, 6, d) && record.GetItem(13, 6, f));
    EXPECT_EQ(d + f, 2000);
    bool b = false;
    EXPECT_TRUE(record.GetItem(5, 2, b));
    EXPECT_TRUE(b);
    EXPECT_TRUE(record.GetItem(21, 1, b));  // "0"
    EXPECT_FALSE(b);
    EXPECT_FALSE(record.GetItem(19, 1, b));
}

TEST(CVexFixedString, NarrowRecordsAreReadInTheActiveCodePage) {
    CVexFixedString record;
    CString field;
    {
        CodePageGuard utf8(CodePage::Utf8);
        record.LoadStringW("12\xC2\xB0");
        EXPECT_EQ(record.Size(), 3);
    }
    CodePageGuard ansi(CodePage::Windows1252);
    record.LoadStringW("\x80 5");
    EXPECT_TRUE(record.GetItem(0, 1, field));
    EXPECT_EQ(field, u"\u20AC");
}

}  // namespace
}  // namespace vex
