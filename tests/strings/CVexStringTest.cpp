#include <base/strings/CVexString.h>

#include <tests/framework/CodePageGuard.h>
#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace vex {
namespace {

std::vector<std::u16string> Items(const CVexString& list) {
    std::vector<std::u16string> items;
    for (const CString& item : list.SubStrings())
        items.push_back(item.Str());
    return items;
}

TEST(CVexString, SplittingKeepsEmptyItemsExceptBetweenBlanks) {
    const struct {
        const char16_t* text;
        char16_t separator;
        bool trim;
        std::vector<std::u16string> items;
    } cases[] = {
        {u"", u',', false, {u""}},
        {u"a,,b", u',', false, {u"a", u"", u"b"}},
        {u"a,b,", u',', false, {u"a", u"b", u""}},
        {u",a", u',', false, {u"", u"a"}},
        {u"a;b,c", u';', false, {u"a", u"b,c"}},
        {u" a , b ", u',', false, {u" a ", u" b "}},
        {u" a ,\tb ", u',', true, {u"a", u"b"}},
        // Runs of blanks are one separator; blanks at the ends go.
        {u"  a   b ", u' ', false, {u"a", u"b"}},
        {u"   ", u' ', false, {u""}},
        // Only spaces are collapsed; the trim flag removes the tabs.
        {u"\ta\t b", u' ', true, {u"a", u"b"}},
    };
    for (const auto& c : cases) {
        const CVexString list(c.text, c.separator, c.trim);
        EXPECT_EQ(Items(list), c.items) << CString(c.text).ToUtf8();
        EXPECT_EQ(list.CountSeparators(), static_cast<int>(c.items.size()) - 1);
    }
}

TEST(CVexString, ANewListHasNoItems) {
    const CVexString list;
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(list.CountSeparators(), -1);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetSeparator(), u',');
    EXPECT_EQ(list.String(), u"");
    EXPECT_EQ(CVexString(u';').GetSeparator(), u';');
}

TEST(CVexString, IntItemsAreDecimalOrHexadecimal) {
    const struct {
        const char16_t* item;
        bool ok;
        int value;  // expected, or the untouched 99 on failure
    } cases[] = {
        {u"0x1F", true, 31},
        {u"0X1f", true, 31},
        {u"0x", false, 99},
        {u"12abc", true, 12},
        {u"-7", true, -7},
        {u"0", true, 0},
        {u"abc", false, 99},
        {u"", false, 99},
        // Not starting with 0x: read as decimal up to the x.
        {u" 0x10", true, 0},
    };
    for (const auto& c : cases) {
        CVexString list(u"");
        list.SetItem(0, c.item);
        int value = 99;
        EXPECT_EQ(list.GetItem(0, value), c.ok) << CString(c.item).ToUtf8();
        EXPECT_EQ(value, c.value) << CString(c.item).ToUtf8();
    }
}

TEST(CVexString, OtherItemTypesConvertAsScanfDoes) {
    const CVexString list(u"7;0;0x0;4294967295;-1;65535;12.5;1e3;0.25;x", u';');
    bool flag = false;
    EXPECT_TRUE(list.GetItem(0, flag));
    EXPECT_TRUE(flag);
    EXPECT_TRUE(list.GetItem(1, flag));
    EXPECT_FALSE(flag);
    flag = true;
    EXPECT_TRUE(list.GetItem(2, flag));
    EXPECT_FALSE(flag);
    unsigned int u = 0;
    EXPECT_TRUE(list.GetItem(3, u));
    EXPECT_EQ(u, 4294967295u);
    EXPECT_TRUE(list.GetItem(4, u));  // "%u" negates modulo 2^32
    EXPECT_EQ(u, 4294967295u);
    unsigned short h = 0;
    EXPECT_TRUE(list.GetItem(5, h));
    EXPECT_EQ(h, 65535);
    double d = 0;
    EXPECT_TRUE(list.GetItem(6, d));
    EXPECT_EQ(d, 12.5);
    EXPECT_TRUE(list.GetItem(7, d));
    EXPECT_EQ(d, 1000.0);
    float f = 0;
    EXPECT_TRUE(list.GetItem(8, f));
    EXPECT_EQ(f, 0.25f);
    CString s;
    EXPECT_TRUE(list.GetItem(9, s));
    EXPECT_EQ(s, u"x");

    // Failures leave the output as it was.
    d = 5.0;
    EXPECT_FALSE(list.GetItem(9, d));
    EXPECT_FALSE(list.GetItem(-1, d));
    EXPECT_FALSE(list.GetItem(10, d));
    EXPECT_EQ(d, 5.0);
    EXPECT_FALSE(list.GetItem(9, flag));
    EXPECT_FALSE(list.GetItem(10, s));
    EXPECT_EQ(s, u"x");
}

TEST(CVexString, SetItemGrowsTheListWithEmptyItems) {
    CVexString list(u"a");
    EXPECT_TRUE(list.SetItem(3, u"d"));
    EXPECT_EQ(list.String(), u"a,,,d");
    EXPECT_FALSE(list.SetItem(-1, u"x"));
    EXPECT_TRUE(list.Set(1, "b"));
    EXPECT_EQ(list.String(), u"a,b,,d");
    list[2] = u"c";
    EXPECT_EQ(static_cast<const CVexString&>(list)[2], u"c");
    EXPECT_THROW(list[4], std::out_of_range);
    EXPECT_THROW(list[-1], std::out_of_range);
}

TEST(CVexString, ItemsAreAddedInsertedAndErased) {
    CVexString list(u"b", u'|');
    list.AddItem(u"c");
    list += u"d";
    const CVexString longer = list + u"e";
    EXPECT_EQ(list.String(), u"b|c|d");  // operator+ leaves the list alone
    EXPECT_EQ(longer.String(), u"b|c|d|e");
    list.Insert(0, u"a");
    list.Insert(99, u"z");  // clamped: appended
    EXPECT_EQ(list.String(), u"a|b|c|d|z");
    list.Erase(1, 2);
    EXPECT_EQ(list.String(), u"a|d|z");
    list.Erase(2, 99);
    list.Erase(5);
    EXPECT_EQ(list.String(), u"a|d");
    list.Clear();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetSeparator(), u'|');
}

TEST(CVexString, HasSubStringIgnoresCase) {
    const CVexString list(u"Depth,Time,depth");
    int index = -1;
    EXPECT_TRUE(list.HasSubString(u"DEPTH", index));
    EXPECT_EQ(index, 0);
    EXPECT_TRUE(list.HasSubString(u"time"));
    EXPECT_FALSE(list.HasSubString(u"tim", index));
    EXPECT_EQ(index, 0);
}

TEST(CVexString, ItemBoundariesAreCharacterPositionsInTheLine) {
    const CVexString list(u"ab,,cd");
    const int cases[][3] = {{0, 0, 1}, {1, 3, -1}, {2, 4, 5}};  // item, start, end
    for (const auto& c : cases) {
        int start = 0;
        int end = 0;
        EXPECT_TRUE(list.GetItemBoundaries(c[0], start, end));
        EXPECT_EQ(start, c[1]) << c[0];
        EXPECT_EQ(end, c[2]) << c[0];
    }
    int start = 7;
    int end = 7;
    EXPECT_FALSE(list.GetItemBoundaries(3, start, end));
    EXPECT_FALSE(list.GetItemBoundaries(-1, start, end));
    EXPECT_EQ(start + end, 14);
}

TEST(CVexString, LeftAndRightEndWithTheSeparator) {
    const CVexString list(u"a,b,c");
    EXPECT_EQ(list.Left(2), u"a,b,");
    EXPECT_EQ(list.Left(0), u"");
    EXPECT_EQ(list.Left(-1), u"");
    EXPECT_EQ(list.Left(5), u"a,b,c,");  // more than Size: all items
    EXPECT_EQ(list.Right(2), u"b,c,");
    EXPECT_EQ(list.Right(3), u"a,b,c,");
    EXPECT_EQ(list.Right(4), u"");
    EXPECT_EQ(list.Right(0), u"");
    EXPECT_EQ(list.GetString(), u"a,b,c");
}

TEST(CVexString, SetSeparatorSplitsTheLoadedTextAgain) {
    CVexString list(u"a;b,c");
    EXPECT_EQ(list.Size(), 2);
    list.SetSeparator(u';');
    EXPECT_EQ(Items(list), (std::vector<std::u16string>{u"a", u"b,c"}));
    list.AddItem(u"x");  // not in the loaded text: gone after the next split
    list.SetSeparator(u',');
    EXPECT_EQ(Items(list), (std::vector<std::u16string>{u"a;b", u"c"}));
}

TEST(CVexString, LoadingReplacesTextAndTrimFlag) {
    CVexString list(u"x,y,z");
    list.LoadStringW(CString(u" p , q "), true);
    EXPECT_EQ(Items(list), (std::vector<std::u16string>{u"p", u"q"}));
    {
        const test::CodePageGuard windows1252(CodePage::Windows1252);
        list.LoadStringW(CStringA("50\xB0,n"));
    }
    EXPECT_EQ(Items(list), (std::vector<std::u16string>{u"50\u00B0", u"n"}));

    // Copies are independent.
    CVexString copy = list;
    copy.SetItem(0, u"changed");
    EXPECT_EQ(list[0], u"50\u00B0");
}

}  // namespace
}  // namespace vex
