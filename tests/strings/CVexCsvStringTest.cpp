#include <base/strings/CVexCsvString.h>

#include <base/platform/RegionalSettings.h>
#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

// Expected lines written out by hand from the protection rule (quotes
// around an item that holds the separator) and the join.

namespace vex {
namespace {

using test::CodePageGuard;

// A record with the comma decimal and semicolon list of continental Europe.
CVexCsvString European() {
    return CVexCsvString(u",", u";");
}

std::vector<CString> Items(const CVexCsvString& record) {
    std::vector<CString> items;
    for (int i = 0; i < record.Size(); ++i)
        items.push_back(record[i]);
    return items;
}

TEST(CVexCsvString, TakesTheUsersRegionalSettingsOrTheDefaults) {
    const platform::RegionalSettings user = platform::UserRegionalSettings();
    const CVexCsvString record;
    EXPECT_EQ(record.GetDecimalSymbol(),
              user.decimalSymbol.empty() ? CString(u",") : CString(user.decimalSymbol));
    EXPECT_EQ(record.GetSeparator(),
              user.listSeparator.empty() ? CString(u";") : CString(user.listSeparator));
    const CVexCsvString fixed(u"", u"");  // empty symbols keep the defaults
    EXPECT_EQ(fixed.GetDecimalSymbol(), u",");
    EXPECT_EQ(fixed.GetSeparator(), u";");
}

TEST(CVexCsvString, ItemsHoldingTheSeparatorAreQuoted) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"a;b", u"\"a;b\""},
        {u"ab", u"ab"},
        {u"a\"b;", u"\"a\"b;\""},  // inner quotes are not doubled
        {u";", u"\";\""},
        {u"a,b", u"a,b"},  // the comma is not this record's separator
        {u"", u""},
    };
    for (const auto& [text, stored] : cases) {
        EXPECT_EQ(European().ProtectSeperator(text), stored);
        CVexCsvString record = European();
        record.AddItem(text);
        EXPECT_EQ(record[0], stored);
    }
    CVexCsvString record = European();
    record += u"x";
    record += u"a;b";
    EXPECT_EQ(record.String(), u"x;\"a;b\"");
    EXPECT_EQ(record.GetString(), u"x;\"a;b\"");
    EXPECT_EQ(record.CountSeparators(), 1);
}

TEST(CVexCsvString, LocalDecimalReplacesPointsAfterProtecting) {
    struct Case {
        const char16_t* decimal;
        const char16_t* separator;
        const char16_t* text;
        const char16_t* stored;
    };
    const Case cases[] = {
        {u",", u";", u"12.5", u"12,5"},
        {u",", u";", u"1.2;3", u"\"1,2;3\""},
        {u".", u",", u"12.5", u"12.5"},
        {u".", u",", u"1,5", u"\"1,5\""},
        // Protection first: the point is no comma yet, so the number stays
        // unquoted even though its decimal symbol is the separator.
        {u",", u",", u"12.5", u"12,5"},
        {u"\u066B", u",", u"-0.5",
         u"-0\u066B"
         u"5"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CVexCsvString(c.decimal, c.separator).AdjustToLocalDecimal(c.text), c.stored);
    }
}

TEST(CVexCsvString, NumbersArePrintedWithTheirDecimalsAndTheLocalSymbol) {
    CVexCsvString european = European();
    european.AddItem(12.5, 2);
    EXPECT_TRUE(european.SetItem(3, -0.125, 3));
    european.AddItem(2.75, -1);  // no decimals: "%.0f" rounds
    EXPECT_FALSE(european.SetItem(-1, 1.0, 1));
    EXPECT_EQ(european.String(), u"12,50;;;-0,125;3");

    CVexCsvString point(u".", u",");
    point.AddItem(12.5, 2);
    point.AddItem(1e6, 1);
    EXPECT_EQ(point.String(), u"12.50,1000000.0");

    // Comma for both: the number goes in unquoted and splits when read back.
    CVexCsvString clash(u",", u",");
    clash += u"a";
    clash.AddItem(1.5, 1);
    EXPECT_EQ(clash.String(), u"a,1,5");
}

TEST(CVexCsvString, SetItemGrowsTheListWithEmptyItems) {
    CVexCsvString record = European();
    EXPECT_TRUE(record.SetItem(3, u"v"));
    EXPECT_EQ(record.Size(), 4);
    EXPECT_EQ(record.String(), u";;;v");
    EXPECT_TRUE(record.SetItem(1, u"a;b"));
    EXPECT_EQ(record.String(), u";\"a;b\";;v");
    EXPECT_FALSE(record.SetItem(-1, u"x"));
    EXPECT_EQ(record.Size(), 4);

    CodePageGuard utf8(CodePage::Utf8);
    record.Set(0, "\xC2\xB0");
    record.Set(2, u"w");
    record.Set(5, CString(u"z"));
    EXPECT_EQ(record.String(), u"\u00B0;\"a;b\";w;v;;z");
}

TEST(CVexCsvString, InsertEraseAndOperatorPlusKeepTheOthersInOrder) {
    CVexCsvString record = European();
    record += u"b";
    record.Insert(0, u"a;");
    record.Insert(99, u"z");  // past the end: appended
    record.Insert(-3, u"0");  // before the front: first
    EXPECT_EQ(Items(record), (std::vector<CString>{u"0", u"\"a;\"", u"b", u"z"}));
    const CVexCsvString longer = record + u"y;";
    EXPECT_EQ(record.Size(), 4);  // operator+ leaves the record
    EXPECT_EQ(longer[4], u"\"y;\"");
    EXPECT_EQ(longer.GetSeparator(), u";");

    record.Erase(1);
    EXPECT_EQ(record.String(), u"0;b;z");
    record.Erase(1, 50);  // as far as there are items
    EXPECT_EQ(record.String(), u"0");
    record.Erase(-1, 1);
    record.Erase(1, 1);
    record.Erase(0, 0);
    EXPECT_EQ(record.String(), u"0");
    record[0] = u"edited";
    EXPECT_EQ(record.String(), u"edited");
    EXPECT_THROW(record[1], std::out_of_range);
    EXPECT_THROW(static_cast<const CVexCsvString&>(record)[-1], std::out_of_range);
}

TEST(CVexCsvString, FindsItemsIgnoringCase) {
    CVexCsvString record = European();
    record += u"x";
    record += u"abc";
    record += u"ABC";
    int index = -1;
    EXPECT_TRUE(record.HasSubString(u"ABC"));
    EXPECT_TRUE(record.HasSubString(u"aBc", index));
    EXPECT_EQ(index, 1);  // the first match
    EXPECT_FALSE(record.HasSubString(u"ab", index));
    EXPECT_EQ(index, 1);  // left as it was
}

TEST(CVexCsvString, LeftAndRightEndEveryItemWithTheSeparator) {
    CVexCsvString record = European();
    record += u"1";
    record += u"2";
    record += u"3";
    struct Case {
        int n;
        const char16_t* left;
        const char16_t* right;
    };
    const Case cases[] = {
        {2, u"1;2;", u"2;3;"}, {3, u"1;2;3;", u"1;2;3;"}, {0, u"", u""},
        {-1, u"", u""},        {5, u"1;2;3;", u""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(record.Left(c.n), c.left) << c.n;
        EXPECT_EQ(record.Right(c.n), c.right) << c.n;
    }
}

TEST(CVexCsvString, AnEmptyRecordIsAnEmptyLine) {
    CVexCsvString record = European();
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_EQ(record.String(), u"");
    EXPECT_EQ(record.CountSeparators(), -1);
    record += u"a";
    const CVexCsvString copy = record;
    record.Clear();
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_EQ(copy.String(), u"a");
}

}  // namespace
}  // namespace vex
