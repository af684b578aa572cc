#include <base/strings/CVexCsvString.h>

#include <base/platform/RegionalSettings.h>
#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <stdexcept>

// Expected lines written out by hand from the protection rule (quotes
// around an item that holds the separator) and the join.

namespace vex {
namespace {

using test::CodePageGuard;

// A record with the comma decimal and semicolon list of continental Europe.
CVexCsvString European(std::initializer_list<const char16_t*> items = {}) {
    CVexCsvString record(u",", u";");
    for (const char16_t* item : items)
        record += item;
    return record;
}

TEST(CVexCsvString, TakesTheUsersRegionalSettingsOrTheDefaults) {
    const platform::RegionalSettings user = platform::UserRegionalSettings();
    const CVexCsvString record;
    EXPECT_EQ(record.GetDecimalSymbol(),
              user.decimalSymbol.empty() ? CString(u",") : CString(user.decimalSymbol));
    EXPECT_EQ(record.GetSeparator(),
              user.listSeparator.empty() ? CString(u";") : CString(user.listSeparator));
}

TEST(CVexCsvString, ItemsHoldingTheSeparatorAreQuoted) {
    EXPECT_EQ(European({u"x", u"a;b"}).String(), u"x;\"a;b\"");
    EXPECT_EQ(European({u"a\"b;"})[0], u"\"a\"b;\"");  // inner quotes are not doubled
    EXPECT_EQ(European({u"a,b"})[0], u"a,b");          // not this record's separator
}

TEST(CVexCsvString, LocalDecimalReplacesPointsAfterProtecting) {
    const char16_t* cases[][4] = {
        // decimal, separator, text, stored
        {u",", u";", u"1.2;3", u"\"1,2;3\""},
        {u".", u",", u"1,5", u"\"1,5\""},
        // Protection first: the point is no comma yet, so the number stays
        // unquoted although its decimal symbol is the separator.
        {u",", u",", u"12.5", u"12,5"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CVexCsvString(c[0], c[1]).AdjustToLocalDecimal(c[2]), c[3]);
    }
}

TEST(CVexCsvString, NumbersArePrintedWithTheirDecimalsAndTheLocalSymbol) {
    CVexCsvString european = European();
    european.AddItem(12.5, 2);
    EXPECT_TRUE(european.SetItem(3, -0.125, 3));
    european.AddItem(2.75, -1);  // no decimals: "%.0f" rounds
    EXPECT_FALSE(european.SetItem(-1, 1.0, 1));
    EXPECT_EQ(european.String(), u"12,50;;;-0,125;3");
    CVexCsvString clash(u",", u",");  // the number splits when read back
    clash += u"a";
    clash.AddItem(1.5, 1);
    EXPECT_EQ(clash.String(), u"a,1,5");
}

TEST(CVexCsvString, SetItemGrowsTheListWithEmptyItems) {
    CVexCsvString record = European();
    EXPECT_TRUE(record.SetItem(3, u"v"));
    EXPECT_EQ(record.String(), u";;;v");
    EXPECT_FALSE(record.SetItem(-1, u"x"));
    CodePageGuard utf8(CodePage::Utf8);
    record.Set(0, "\xC2\xB0");
    record.Set(1, u"a;b");
    record.Set(5, CString(u"z"));
    EXPECT_EQ(record.String(), u"\u00B0;\"a;b\";;v;;z");
}

TEST(CVexCsvString, InsertEraseAndOperatorPlusKeepTheOthersInOrder) {
    CVexCsvString record = European({u"b"});
    record.Insert(0, u"a;");
    record.Insert(99, u"z");  // past the end: appended
    record.Insert(-3, u"0");  // before the front: first
    EXPECT_EQ(record.String(), u"0;\"a;\";b;z");
    const CVexCsvString longer = record + u"y";
    EXPECT_EQ(record.Size(), 4);  // operator+ leaves the record
    EXPECT_EQ(longer.String(), u"0;\"a;\";b;z;y");
    record.Erase(1);
    record.Erase(1, 50);  // as far as there are items
    record.Erase(-1, 1);
    EXPECT_EQ(record.String(), u"0");
    EXPECT_THROW(record[1], std::out_of_range);
}

TEST(CVexCsvString, FindsItemsIgnoringCaseAndEndsLeftAndRightPartsWithSeparators) {
    const CVexCsvString record = European({u"1", u"abc", u"ABC"});
    int index = -1;
    EXPECT_TRUE(record.HasSubString(u"aBc", index));
    EXPECT_EQ(index, 1);  // the first match
    EXPECT_FALSE(record.HasSubString(u"ab", index));
    EXPECT_EQ(index, 1);  // left as it was
    EXPECT_EQ(record.Left(2), u"1;abc;");
    EXPECT_EQ(record.Right(2), u"abc;ABC;");
    EXPECT_EQ(record.Left(5), u"1;abc;ABC;");
    EXPECT_EQ(record.Left(0) + record.Right(0) + record.Right(4), u"");
    EXPECT_EQ(European().String(), u"");
    EXPECT_EQ(European().CountSeparators(), -1);
}

}  // namespace
}  // namespace vex
