#include <base/data/CDataId.h>
#include <base/framework/CharBuffer.h>

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

namespace vex {
namespace {

// The numbers in memory order, for comparing whole ids at once.
std::vector<int> Numbers(const CDataId& id) {
    return {id.GetDataType(), id.GetGroupId(), id.GetDeviceNum(), id.GetVesselId()};
}

TEST(CDataId, GroupIdRangesSayWhatKindOfProducerItIs) {
    struct Case {
        std::uint16_t groupId;
        bool device, computation, dataSource;
    };
    const Case cases[] = {
        {0, false, false, false},    {1, true, false, false},     {999, true, false, false},
        {1000, false, false, false}, {1001, false, true, false},  {1167, false, true, false},
        {1168, false, false, false}, {2000, false, false, false}, {2001, false, false, true},
        {2015, false, false, true},  {2016, false, false, false}, {65535, false, false, false},
    };
    for (const Case& c : cases) {
        const CDataId id(7, c.groupId, 1, 1);
        EXPECT_EQ(id.IsDevice(), c.device) << c.groupId;
        EXPECT_EQ(id.IsComputation(), c.computation) << c.groupId;
        EXPECT_EQ(id.IsDataSource(), c.dataSource) << c.groupId;
    }
}

TEST(CDataId, KeyListsTheVesselSecondAndFollowsEverySetter) {
    CDataId id(5, 1001, 2, 0);
    EXPECT_EQ(id.GetKey(), u"5,0,1001,2");
    EXPECT_TRUE(id.IsValid());  // vessel 0 is a vessel
    id.SetVesselId(9);
    id.SetGroupId(3);
    EXPECT_EQ(id.GetKey(), u"5,9,3,2");
    id.SetDeviceNum(65535);
    id.SetDataType(1);
    EXPECT_EQ(id.GenerateStdString(), "1,9,3,65535");
    EXPECT_TRUE(id.Set(4, 3, 2, 1));
    EXPECT_EQ(id.GenerateString(), u"4,1,3,2");
    // Valid needs data type, group and device; the vessel is not looked at.
    EXPECT_FALSE(CDataId(0, 1, 1, 1).IsValid() || CDataId(1, 0, 1, 1).IsValid() ||
                 CDataId(1, 1, 0, 1).IsValid());
}

TEST(CDataId, SetUndefinedAndLoadLeaveTheOldKey) {
    EXPECT_FALSE(CDataId().IsDefined());
    CDataId id(5, 1001, 2, 0);
    id.SetUndefined();
    EXPECT_FALSE(id.IsDefined());
    EXPECT_EQ(id.GetKey(), u"5,0,1001,2");
    EXPECT_EQ(id, CDataId(0, 1001, 2, 0));  // equality ignores the stale key

    CharBuffer buffer;
    CDataId(1, 2, 3, 4).Save(buffer);
    buffer.Seek(0);
    EXPECT_TRUE(id.Load(buffer));
    EXPECT_EQ(Numbers(id), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(id.GetKey(), u"5,0,1001,2");
    id.SetVesselId(4);  // any setter brings the key up to date
    EXPECT_EQ(id.GetKey(), u"1,4,2,3");
}

TEST(CDataId, OrdersByDataTypeGroupDeviceThenVessel) {
    // Each pair is in ascending order; the text form would order several
    // of them the other way round.
    const std::pair<CDataId, CDataId> ascending[] = {
        {CDataId(1, 5, 5, 5), CDataId(2, 0, 0, 0)},
        {CDataId(1, 2, 9, 9), CDataId(1, 3, 0, 0)},  // text "1,9,2,9" > "1,0,3,0"
        {CDataId(1, 2, 3, 9), CDataId(1, 2, 4, 0)},
        {CDataId(1, 2, 3, 4), CDataId(1, 2, 3, 5)},  // vessel decides last
        {CDataId(1, 2, 3, 9), CDataId(1, 2, 3, 10)},
    };
    for (const auto& [low, high] : ascending) {
        EXPECT_TRUE(low < high) << low << " < " << high;
        EXPECT_FALSE(high < low) << high << " < " << low;
        EXPECT_NE(low, high);
    }
    EXPECT_FALSE(CDataId(1, 2, 3, 4) < CDataId(1, 2, 3, 4));
}

TEST(CDataId, TextReadsInTextOrderAndRefusesMalformedFields) {
    struct Case {
        std::u16string text;
        bool ok;
        std::vector<int> numbers;  // memory order, when ok
    };
    const Case cases[] = {
        {u"1,2,3,4", true, {1, 3, 4, 2}},
        {u"65535,0,0,65535", true, {65535, 0, 65535, 0}},
        {u"007,0,1,1", true, {7, 1, 1, 0}},
        // A longer record (a CDataInfo's text) reads as its id.
        {u"1,2,3,4,5,6", true, {1, 3, 4, 2}},
        {u"1,2,3,4,", true, {1, 3, 4, 2}},
        {u"", false, {}},
        {u"1,2,3", false, {}},
        {u"1,2,3,", false, {}},
        {u"1,,3,4", false, {}},
        {u"65536,2,3,4", false, {}},  // sscanf would store 0
        {u"1,2,3,99999999999", false, {}},
        {u"-1,2,3,4", false, {}},  // sscanf would store 65535
        {u"+1,2,3,4", false, {}},
        {u" 1,2,3,4", false, {}},
        {u"1,2,3,4x", false, {}},
        {u"1;2;3;4", false, {}},
        {u"0x1,2,3,4", false, {}},
        {std::u16string(u"1,2\0,3,4", 8), false, {}},
        {std::u16string(u"1,2,3,4\0", 8), false, {}},
        {u"1,2,3,\xD800", false, {}},
        {u"1,2,3,4\xDC00", false, {}},
        {u"\xFF11,2,3,4", false, {}},  // a fullwidth digit is not a digit here
    };
    for (const Case& c : cases) {
        CDataId id(9, 8, 7, 6);
        id.SetUndefined();  // a stale key must stay stale after a refusal
        EXPECT_EQ(id.SetFromKey(CString(c.text)), c.ok) << CString(c.text).ToUtf8();
        if (c.ok) {
            EXPECT_EQ(Numbers(id), c.numbers) << CString(c.text).ToUtf8();
            EXPECT_EQ(CDataId(id).GetKey(), id.GetKey());
        } else {
            EXPECT_EQ(Numbers(id), (std::vector<int>{0, 8, 7, 6})) << CString(c.text).ToUtf8();
            EXPECT_EQ(id.GetKey(), u"9,6,8,7");
        }
    }
    // Narrow text is UTF-8; a byte that is not becomes U+FFFD, which no field takes.
    CDataId id;
    EXPECT_TRUE(id.SetFromString("1,2,3,4"));
    EXPECT_FALSE(id.SetFromString("5,6,7,\xFF"));
    EXPECT_FALSE(id.SetFromString(std::string_view("5,6\0,7,8", 8)));
    EXPECT_EQ(id.GetKey(), u"1,2,3,4");
}

TEST(CDataId, SavesEightLittleEndianBytesInMemoryOrder) {
    CharBuffer buffer;
    CDataId(0x0102, 0x0304, 0x0506, 0x0708).Save(buffer);
    const auto bytes = buffer.Bytes();
    const std::vector<int> expected = {2, 1, 4, 3, 6, 5, 8, 7};
    ASSERT_EQ(bytes.size(), expected.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        EXPECT_EQ(static_cast<int>(bytes[i]), expected[i]) << i;
    }

    // Fewer than 8 bytes left: nothing is read, nothing moves.
    for (std::size_t start = 1; start <= 8; ++start) {
        buffer.Seek(start);
        CDataId id(1, 1, 1, 1);
        EXPECT_FALSE(id.Load(buffer)) << start;
        EXPECT_EQ(id, CDataId(1, 1, 1, 1));
        EXPECT_EQ(buffer.GetPosition(), start);
    }
}

TEST(CDataId, TextAndBinaryFormsRoundTripForRandomIds) {
    std::mt19937 random(2026);
    std::uniform_int_distribution<int> number(0, 65535);
    const auto next = [&] { return static_cast<std::uint16_t>(number(random)); };
    CharBuffer buffer;
    std::vector<CDataId> ids;
    for (int i = 0; i < 2000; ++i) {
        const CDataId id(next(), next(), next(), next());
        CDataId fromWide;
        ASSERT_TRUE(fromWide.SetFromKey(id.GetKey())) << id;
        EXPECT_EQ(fromWide, id);
        CDataId fromNarrow;
        ASSERT_TRUE(fromNarrow.SetFromString(id.GenerateStdString())) << id;
        EXPECT_EQ(fromNarrow, id);
        id.Save(buffer);
        ids.push_back(id);
    }
    buffer.Seek(0);
    for (const CDataId& id : ids) {
        CDataId loaded;
        ASSERT_TRUE(loaded.Load(buffer));
        EXPECT_EQ(loaded, id);
    }
    EXPECT_EQ(buffer.GetRemaining(), 0u);
}

TEST(CDataId, KeysUnorderedMapsByItsNumbersAndPrintsFreshly) {
    std::unordered_map<CDataId, int> byId;
    byId[CDataId(5, 1001, 2, 0)] = 1;
    byId[CDataId(5, 1001, 2, 1)] = 2;
    // Same numbers, other key: found all the same.
    CharBuffer buffer;
    CDataId(5, 1001, 2, 0).Save(buffer);
    buffer.Seek(0);
    CDataId loaded(1, 1, 1, 1);
    ASSERT_TRUE(loaded.Load(buffer));
    EXPECT_EQ(loaded.GetKey(), u"1,1,1,1");
    EXPECT_EQ(byId.at(loaded), 1);
    EXPECT_EQ(byId.size(), 2u);

    CDataId undefined(5, 1001, 2, 0);
    undefined.SetUndefined();
    std::ostringstream out;
    out << undefined;
    EXPECT_EQ(out.str(), "0,0,1001,2");  // the value, not the stale key
}

}  // namespace
}  // namespace vex
