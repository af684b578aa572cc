#include <base/strings/CVexString.h>

#include <tests/framework/CodePageGuard.h>
#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace vex {
namespace {

using Items = std::vector<std::u16string>;

Items ItemsOf(const CVexString& list) {
    Items items;
    for (const CString& item : list.SubStrings())
        items.push_back(item.Str());
    return items;
}

TEST(CVexString, SplittingKeepsEmptyItemsExceptBetweenBlanks) {
    // With the space as separator runs of spaces are one separator and spaces
    // at the ends go; tabs are not collapsed, the trim flag removes them.
    const struct {
        const char16_t* text;
        char16_t separator;
        bool trim;
        Items items;
    } cases[] = {{u"", u',', false, {u""}},
                 {u"a,,b", u',', false, {u"a", u"", u"b"}},
                 {u"a,b,", u',', false, {u"a", u"b", u""}},
                 {u"a;b,c", u';', false, {u"a", u"b,c"}},
                 {u" a ,\tb ", u',', false, {u" a ", u"\tb "}},
                 {u" a ,\tb ", u',', true, {u"a", u"b"}},
                 {u"  a   b ", u' ', false, {u"a", u"b"}},
                 {u"   ", u' ', false, {u""}},
                 {u"\ta\t b", u' ', true, {u"a", u"b"}}};
    for (const auto& c : cases) {
        const CVexString list(c.text, c.separator, c.trim);
        EXPECT_EQ(ItemsOf(list), c.items) << CString(c.text).ToUtf8();
        EXPECT_EQ(list.CountSeparators(), static_cast<int>(c.items.size()) - 1);
    }
    const CVexString none;  // not loaded: no items at all
    EXPECT_EQ(none.CountSeparators(), -1);
    EXPECT_EQ(none.String(), u"");
}

TEST(CVexString, IntItemsAreDecimalOrHexadecimal) {
    // item, success, value (99 = left unchanged). " 0x10" does not start
    // with 0x and reads as decimal up to the x.
    const struct {
        const char16_t* item;
        bool ok;
        int value;
    } cases[] = {{u"0x1F", true, 31},  {u"0X1f", true, 31}, {u"0x", false, 99},
                 {u"12abc", true, 12}, {u"-7", true, -7},   {u"0", true, 0},
                 {u"abc", false, 99},  {u"", false, 99},    {u" 0x10", true, 0}};
    for (const auto& c : cases) {
        CVexString list(u"");
        list.SetItem(0, c.item);
        int value = 99;
        EXPECT_EQ(list.GetItem(0, value), c.ok) << CString(c.item).ToUtf8();
        EXPECT_EQ(value, c.value) << CString(c.item).ToUtf8();
    }
}

TEST(CVexString, OtherItemTypesConvertAsScanfDoes) {
    const CVexString list(u"0x0;-1;65535;1e3;0.25;x", u';');
    bool flag = true;
    unsigned int u = 0;
    unsigned short h = 0;
    double d = 0;
    float f = 0;
    EXPECT_TRUE(list.GetItem(0, flag) && !flag);
    EXPECT_TRUE(list.GetItem(1, u) && u == 4294967295u);  // "%u" wraps a sign
    EXPECT_TRUE(list.GetItem(2, h) && h == 65535);
    EXPECT_TRUE(list.GetItem(3, d) && d == 1000.0);
    EXPECT_TRUE(list.GetItem(4, f) && f == 0.25f);
    // Failures leave the output as it was.
    EXPECT_FALSE(list.GetItem(5, d) || list.GetItem(-1, d) || list.GetItem(6, d));
    EXPECT_EQ(d, 1000.0);
    EXPECT_FALSE(list.GetItem(5, flag));
}

TEST(CVexString, ItemsAreSetAddedInsertedAndErased) {
    CVexString list(u"a", u'|');
    EXPECT_TRUE(list.SetItem(3, u"d"));  // grows with empty items
    EXPECT_FALSE(list.SetItem(-1, u"x"));
    EXPECT_TRUE(list.Set(1, "b"));
    list[2] = u"c";
    EXPECT_EQ(list.String(), u"a|b|c|d");
    EXPECT_THROW(list[4], std::out_of_range);
    EXPECT_THROW(list[-1], std::out_of_range);

    list += u"e";
    EXPECT_EQ((list + u"f").String(), u"a|b|c|d|e|f");
    list.Insert(0, u"<");
    list.Insert(99, u">");  // clamped: appended
    list.Erase(1, 2);
    list.Erase(4, 99);
    EXPECT_EQ(list.String(), u"<|c|d|e");
    int index = -1;
    EXPECT_TRUE(list.HasSubString(u"E", index));
    EXPECT_EQ(index, 3);
    EXPECT_FALSE(list.HasSubString(u"cd", index));
    EXPECT_EQ(index, 3);
}

TEST(CVexString, ItemBoundariesAreCharacterPositionsInTheLine) {
    const CVexString list(u"ab,,cd");
    const int cases[][3] = {{0, 0, 1}, {1, 3, -1}, {2, 4, 5}};  // item, start, end
    for (const auto& c : cases) {
        int start = 0;
        int end = 0;
        EXPECT_TRUE(list.GetItemBoundaries(c[0], start, end));
        EXPECT_EQ(start, c[1]);
        EXPECT_EQ(end, c[2]);
    }
    int start = 7;
    EXPECT_FALSE(list.GetItemBoundaries(3, start, start));
    EXPECT_EQ(start, 7);
}

TEST(CVexString, LeftAndRightEndWithTheSeparator) {
    const CVexString list(u"a,b,c");
    EXPECT_EQ(list.Left(2), u"a,b,");
    EXPECT_EQ(list.Left(-1), u"");
    EXPECT_EQ(list.Left(5), u"a,b,c,");  // more than Size: all items
    EXPECT_EQ(list.Right(3), u"a,b,c,");
    EXPECT_EQ(list.Right(4), u"");
    EXPECT_EQ(list.Right(0), u"");
}

TEST(CVexString, LoadAndSeparatorChangesSplitTheSourceAgain) {
    CVexString list(u"a;b,c");
    list.SetSeparator(u';');
    EXPECT_EQ(ItemsOf(list), (Items{u"a", u"b,c"}));
    list.AddItem(u"x");  // not in the loaded text: gone after the next split
    list.SetSeparator(u',');
    EXPECT_EQ(ItemsOf(list), (Items{u"a;b", u"c"}));

    const test::CodePageGuard windows1252(CodePage::Windows1252);
    list.LoadStringW(CStringA(" 50\xB0 , n"), true);
    EXPECT_EQ(ItemsOf(list), (Items{u"50\u00B0", u"n"}));
    CVexString copy = list;  // copies are independent
    copy.SetItem(0, u"changed");
    EXPECT_EQ(list[0], u"50\u00B0");
}

}  // namespace
}  // namespace vex
