#include <base/data/BaseDataSource.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

// Blocks are only passed along by reference, so a stand-in object serves
// for the suite's types.
alignas(8) unsigned char standIn[64];
template <class T>
T& Ref() {
    return *reinterpret_cast<T*>(standIn);
}

// Every operation of the plain source is a one-line "unsupported"; what is
// worth checking is that the queries leave their out parameters alone, and
// the one operation that answers true.
TEST(BaseDataSource, PlainSourceLeavesOutParametersAlone) {
    BaseDataSource source;
    const BaseDataSource& constSource = source;
    const auto mode = static_cast<ADDR_MODE>(1);
    double d1 = 7, d2 = 7, d3 = 7, d4 = 7;
    std::uint16_t status = 7;
    CDataId id(1, 2, 3, 4);

    EXPECT_FALSE(source.Interpolate(1.0, 0, mode, d1, status));
    EXPECT_FALSE(source.InterpolateHeading(1.0, 0, mode, 1, 2, d1, status));
    EXPECT_FALSE(source.FindIntervalStartEnd(1.0, 0, mode, d1, d2, d3, d4, status));
    EXPECT_FALSE(constSource.GetLastAddTime(d1));
    EXPECT_FALSE(constSource.GetLastAddTimeLocal(d1));
    EXPECT_FALSE(source.GetDataBlock(0, d1, Ref<CDataBlock>()));
    EXPECT_FALSE(source.GetDataTimeStatus(0, d1, status));
    EXPECT_FALSE(constSource.GetBufferStatus(d1, status));
    EXPECT_FALSE(constSource.GetDataId(id));
    EXPECT_FALSE(source.GetInterpolAttribs(d1));
    EXPECT_FALSE(source.GetExtrapolationAttribs(d1));
    EXPECT_FALSE(source.GetTimeSpan(d1, d2));
    EXPECT_EQ(d1 + d2 + d3 + d4, 28.0);
    EXPECT_EQ(status, 7);
    EXPECT_EQ(id, CDataId(1, 2, 3, 4));
    EXPECT_TRUE(source.GetGlobalEnableRecache());
}

TEST(BaseDataSource, OptionsAndNotifyTimeAreKeptAndCopied) {
    BaseDataSource source;
    source.SetOption(0x5);
    source.ResetOption(0x1);
    EXPECT_TRUE(source.CheckOption(0x4));
    EXPECT_FALSE(source.CheckOption(0x1));
    EXPECT_TRUE(source.CheckOption(0x3 | 0x4));  // any bit of the mask
    EXPECT_FALSE(source.CheckOption(0));
    source.SetOption(0x80000000u);
    source.SetLastNotifyTime(1.7e12);

    BaseDataSource copy(source);
    EXPECT_TRUE(copy.CheckOption(0x80000000u));
    EXPECT_EQ(copy.GetLastNotifyTime(), 1.7e12);
    source.ResetOption(0xFFFFFFFFu);
    EXPECT_FALSE(source.CheckOption(0xFFFFFFFFu));
    EXPECT_TRUE(copy.CheckOption(0x4));
    BaseDataSource assigned;
    assigned = copy;
    EXPECT_TRUE(assigned.CheckOption(0x4));
}

}  // namespace
}  // namespace vex
