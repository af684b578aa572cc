#include <base/data/CDataInfo.h>
#include <base/data/CDataInfoArray.h>
#include <base/data/CDataInfoEx.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <unordered_set>

namespace vex {
namespace {

constexpr std::uint16_t kNone = CDataInfo::NO_INDEX;

TEST(CDataInfo, TextHasSixFieldsOnlyWithAnArrayIndex) {
    struct Case {
        CDataInfo info;
        const char16_t* text;
        bool valid;
    };
    const Case cases[] = {
        {CDataInfo(CDataId(5, 1001, 2, 0), 3, kNone), u"5,0,1001,2,3", true},
        {CDataInfo(CDataId(5, 1001, 2, 9), 3, 7), u"5,9,1001,2,3,7", true},
        {CDataInfo(CDataId(5, 1001, 2, 9), kNone, 7), u"5,9,1001,2,65535,7", false},
        {CDataInfo(CDataId(5, 1001, 2, 9), 65534, 65534), u"5,9,1001,2,65534,65534", true},
        {CDataInfo(CDataId(5, 0, 2, 9), 0, 0), u"5,9,0,2,0,0", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.info.GenerateString(), c.text);
        EXPECT_EQ(c.info.IsValid(), c.valid) << c.info;
        CDataInfo read;
        EXPECT_TRUE(read.SetFromString(c.text)) << c.info;
        EXPECT_EQ(read, c.info);
    }
}

TEST(CDataInfo, FiveFieldsKeepTheArrayIndexAndBadTextChangesNothing) {
    CDataInfo info(CDataId(1, 1, 1, 1), 1, 7);
    EXPECT_TRUE(info.SetFromString(u"1,2,3,4,5"));
    EXPECT_EQ(info, CDataInfo(CDataId(1, 3, 4, 2), 5, 7));
    EXPECT_EQ(info.GetDataId().GetKey(), u"1,2,3,4");
    EXPECT_TRUE(info.SetFromString(u"1,2,3,4,5,65535"));
    EXPECT_FALSE(info.HasArrayIndex());
    EXPECT_TRUE(info.SetFromString(u"6,2,3,4,5,6,7,8"));  // after the sixth: ignored
    EXPECT_EQ(info.GetArrayIndex(), 6);

    const CDataInfo before = info;
    for (const char16_t* bad : {u"", u"1,2,3,4", u"1,2,3,4,", u"1,2,3,4,5,", u"1,2,3,4,5,70000",
                                u"1,2,3,4,5,-1", u"1,2,3,4,5,6x", u"1,2,3,4,5 ", u"1,2,3,4, 5"}) {
        EXPECT_FALSE(info.SetFromString(bad)) << CString(bad).ToUtf8();
        EXPECT_EQ(info, before) << CString(bad).ToUtf8();
        EXPECT_EQ(info.GetDataId().GetKey(), before.GetDataId().GetKey());
    }
}

TEST(CDataInfo, OrdersByIdThenElementThenArrayIndex) {
    const CDataInfo ascending[] = {
        CDataInfo(CDataId(1, 2, 3, 4), 9, 9),     CDataInfo(CDataId(1, 2, 3, 5), 0, 0),
        CDataInfo(CDataId(1, 2, 3, 5), 1, 0),     CDataInfo(CDataId(1, 2, 3, 5), 1, 1),
        CDataInfo(CDataId(1, 2, 3, 5), 1, kNone), CDataInfo(CDataId(1, 2, 4, 0), 0, 0),
    };
    for (std::size_t i = 0; i + 1 < std::size(ascending); ++i) {
        EXPECT_TRUE(ascending[i] < ascending[i + 1]) << ascending[i];
        EXPECT_FALSE(ascending[i + 1] < ascending[i]) << ascending[i];
        EXPECT_NE(ascending[i], ascending[i + 1]);
    }
    std::unordered_set<CDataInfo> set(std::begin(ascending), std::end(ascending));
    EXPECT_EQ(set.size(), std::size(ascending));
    EXPECT_EQ(set.count(CDataInfo(CDataId(1, 2, 3, 5), 1, 1)), 1u);
}

TEST(CDataInfo, TextRoundTripsForRandomValues) {
    std::mt19937 random(614);
    std::uniform_int_distribution<int> number(0, 65535);
    const auto next = [&] { return static_cast<std::uint16_t>(number(random)); };
    for (int i = 0; i < 2000; ++i) {
        const CDataInfo info(CDataId(next(), next(), next(), next()), next(),
                             i % 4 == 0 ? kNone : next());
        CDataInfo read(CDataId(), 0, kNone);
        ASSERT_TRUE(read.SetFromString(info.GenerateString())) << info;
        EXPECT_EQ(read, info);
    }
}

TEST(CDataInfoEx, FullConstructorTurnsDefaultAttributesOn) {
    EXPECT_TRUE(CDataInfoEx().IsDefaultattribsOn());
    DATATEXTATTRIBS attribs;
    attribs.number1 = -3;
    attribs.text = u"Courier";
    attribs.flag2 = true;
    attribs.number3 = 11;
    CDataInfoEx line(CDataId(5, 1001, 2, 0), 3, 4, true, u"Heading", true, attribs, 2);
    EXPECT_TRUE(line.IsSeparator());
    EXPECT_TRUE(line.IsDefaultattribsOn());
    EXPECT_TRUE(line.IsDefaultFmtSet());
    EXPECT_EQ(line.GetUserDescription(), u"Heading");
    EXPECT_EQ(line.GetDataTxtAttr(), attribs);
    EXPECT_EQ(line.GetDecimals(), 2);
    EXPECT_EQ(line.GetDataInfo(), CDataInfo(CDataId(5, 1001, 2, 0), 3, 4));

    // SetDataInfo replaces the datum and nothing else.
    line.SetDefaultattr(false);
    line.SetDataInfo(CDataInfo(CDataId(1, 1, 1, 1), 0, kNone));
    EXPECT_EQ(line.GetElemId(), 0);
    EXPECT_EQ(line.GetUserDescription(), u"Heading");
    EXPECT_FALSE(line.IsDefaultattribsOn());
}

TEST(CDataInfoArray, CopiesAreIndependentOfTheirSource) {
    CDataInfoArray list;
    for (std::uint16_t i = 0; i < 5; ++i) {
        CDataInfoEx line(CDataInfo(CDataId(1, 1, 1, i), i, kNone));
        line.SetUserDescription(CString(std::u16string(i, u'x')));
        list.Add(line);
    }
    list[2].SetSeparator();
    CDataInfoArray copy(list);
    CDataInfoArray assigned;
    assigned.Add(CDataInfoEx());
    assigned = list;
    list[1].SetUserDescription(u"changed");
    list[3].SetElemId(99);
    list.RemoveAt(0);
    for (const CDataInfoArray* c : {&copy, &assigned}) {
        ASSERT_EQ(c->GetSize(), 5);
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(c->GetAt(i).GetElemId(), i);
            EXPECT_EQ(c->GetAt(i).GetUserDescription().GetLength(), i);
            EXPECT_EQ(c->GetAt(i).IsSeparator(), i == 2);
        }
    }
}

}  // namespace
}  // namespace vex
