#include <base/strings/CVexFixedString.h>

#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <climits>

// Columns and fields counted out by hand on the record "ABC 12.5"
// (A=0, B=1, C=2, blank=3, "12.5" = 4..7, Size 8).

namespace vex {
namespace {

using test::CodePageGuard;

TEST(CVexFixedString, FieldsAreSelectedFromTheBaseAndCutAtTheEnd) {
    struct Case {
        int base, column, width;
        const char16_t* field;  // null: the getter fails
    };
    const Case cases[] = {
        {0, 4, 4, u"12.5"},
        {0, 4, 10, u"12.5"},  // runs past the end: cut
        {0, 0, 3, u"ABC"},
        {0, 7, 5, u"5"},
        {0, 8, 1, nullptr},  // index equals Size
        {0, -1, 1, nullptr},
        {0, 0, 0, nullptr},  // width 0
        {0, 0, -3, nullptr},
        {1, 1, 1, u"A"},
        {1, 0, 1, nullptr},  // before the first column
        {1, 5, 4, u"12.5"},
        {1, 8, 1, u"5"},
        {1, 9, 1, nullptr},
        {-5, -5, 1, u"A"},
        {0, 4, INT_MAX, u"12.5"},  // no overflow in column + width
        {0, INT_MAX, INT_MAX, nullptr},
        {INT_MIN, INT_MAX, 1, nullptr},  // column - base beyond int
        {INT_MAX, INT_MIN, 1, nullptr},
    };
    for (const Case& c : cases) {
        const CVexFixedString record(u"ABC 12.5", c.base);
        CString out = u"unchanged";
        const bool ok = record.GetItem(c.column, c.width, out);
        EXPECT_EQ(ok, c.field != nullptr) << c.base << " " << c.column << " " << c.width;
        EXPECT_EQ(out, c.field ? c.field : u"unchanged") << c.base << " " << c.column;
    }
    CVexFixedString record(u"ABC 12.5", 0);
    double value = 0;
    EXPECT_TRUE(record.GetItem(4, 10, value));
    EXPECT_EQ(value, 12.5);
    record.SetBase(4);  // the text stays
    EXPECT_EQ(record.Size(), 8);
    EXPECT_TRUE(record.GetItem(8, 4, value));
    EXPECT_EQ(value, 12.5);
}

// Reads the whole of field (as its own record) into a T that starts as 99.
template <class T>
std::pair<bool, T> ReadField(const char16_t* field, bool hex = false) {
    const CVexFixedString record(field, 0);
    T value = static_cast<T>(99);
    bool ok = false;
    if constexpr (std::is_same_v<T, unsigned int>) {
        ok = hex ? record.GetHexItem(0, record.Size(), value)
                 : record.GetItem(0, record.Size(), value);
    } else {
        ok = record.GetItem(0, record.Size(), value);
    }
    return {ok, value};
}

TEST(CVexFixedString, NumbersConvertAsScanfAndFailuresLeaveTheOutput) {
    using IntResult = std::pair<bool, int>;
    EXPECT_EQ(ReadField<int>(u"42"), IntResult(true, 42));
    EXPECT_EQ(ReadField<int>(u" -7"), IntResult(true, -7));
    EXPECT_EQ(ReadField<int>(u"12ab"), IntResult(true, 12));
    EXPECT_EQ(ReadField<int>(u"12.5"), IntResult(true, 12));
    EXPECT_EQ(ReadField<int>(u"    "), IntResult(false, 99));  // blanks only
    EXPECT_EQ(ReadField<int>(u"x1"), IntResult(false, 99));
    EXPECT_EQ(ReadField<int>(u"2147483648"), IntResult(false, 99));
    EXPECT_EQ(ReadField<int>(u"\u0661\u0662"), IntResult(false, 99));  // Arabic-Indic digits

    using UIntResult = std::pair<bool, unsigned int>;
    EXPECT_EQ(ReadField<unsigned int>(u"4294967295"), UIntResult(true, 4294967295u));
    EXPECT_EQ(ReadField<unsigned int>(u"-1"), UIntResult(false, 99));
    EXPECT_EQ(ReadField<unsigned short>(u"65535"), (std::pair<bool, unsigned short>(true, 65535)));
    EXPECT_EQ(ReadField<unsigned short>(u"65536"), (std::pair<bool, unsigned short>(false, 99)));

    EXPECT_EQ(ReadField<double>(u"1e3"), (std::pair<bool, double>(true, 1000)));
    EXPECT_EQ(ReadField<double>(u" .5 m"), (std::pair<bool, double>(true, 0.5)));
    EXPECT_EQ(ReadField<double>(u"1e999"), (std::pair<bool, double>(false, 99)));
    EXPECT_EQ(ReadField<double>(u"-"), (std::pair<bool, double>(false, 99)));
    EXPECT_EQ(ReadField<float>(u"0.25"), (std::pair<bool, float>(true, 0.25f)));

    using BoolResult = std::pair<bool, bool>;
    for (const bool start : {false, true}) {
        const CVexFixedString record(u"0 7 -1 x", 0);
        struct Case {
            int column;
            bool ok, value;
        };
        for (const Case& c : {Case{0, true, false}, Case{2, true, true}, Case{4, true, true},
                              Case{7, false, start}}) {
            bool value = start;
            EXPECT_EQ(BoolResult(record.GetItem(c.column, 2, value), value),
                      BoolResult(c.ok, c.value))
                << c.column;
        }
    }
}

TEST(CVexFixedString, HexFieldsAcceptThePrefix) {
    using Result = std::pair<bool, unsigned int>;
    EXPECT_EQ(ReadField<unsigned int>(u"ff", true), Result(true, 255));
    EXPECT_EQ(ReadField<unsigned int>(u"0x1F", true), Result(true, 31));
    EXPECT_EQ(ReadField<unsigned int>(u" FFFFFFFF", true), Result(true, 4294967295u));
    EXPECT_EQ(ReadField<unsigned int>(u"1fz", true), Result(true, 31));
    EXPECT_EQ(ReadField<unsigned int>(u"100000000", true), Result(false, 99));  // 33 bits
    EXPECT_EQ(ReadField<unsigned int>(u"0x", true), Result(false, 99));
    EXPECT_EQ(ReadField<unsigned int>(u"g", true), Result(false, 99));
    EXPECT_EQ(ReadField<unsigned int>(u"-1", true), Result(false, 99));
}

TEST(CVexFixedString, NarrowRecordsAreReadInTheActiveCodePage) {
    CVexFixedString record;
    CString field;
    {
        CodePageGuard utf8(CodePage::Utf8);
        record.LoadStringW("12\xC2\xB0");
        EXPECT_EQ(record.Size(), 3);
        EXPECT_TRUE(record.GetItem(2, 1, field));
        EXPECT_EQ(field, u"\u00B0");
    }
    CodePageGuard ansi(CodePage::Windows1252);
    record.LoadStringW("\x80 5");
    EXPECT_EQ(record.Size(), 3);
    EXPECT_TRUE(record.GetItem(0, 1, field));
    EXPECT_EQ(field, u"\u20AC");
    record.LoadStringW(CString(u"wide"));
    EXPECT_EQ(record.GetString(), u"wide");
}

}  // namespace
}  // namespace vex
