#include <base/data/CCompOffset.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <sstream>

namespace vex {
namespace {

CCompOffset Offset(std::uint32_t selection, std::uint32_t type, std::uint32_t vessel,
                   const char16_t* name, const CDataId& id, double x, double y, double z) {
    CCompOffset offset;
    offset.SetOffTrackSelection(selection);
    offset.SetOffsetType(type);
    offset.SetOffsetVesselId(vessel);
    offset.SetOffsetName(name);
    offset.SetOffsetDataId(id);
    offset.SetOffset(x, y, z);
    return offset;
}

TEST(CCompOffset, TextLeavesTheSelectionOutAndListsTheIdInTextOrder) {
    EXPECT_EQ(CCompOffset().GenerateString(), u"2,1,,0,0,0,0,0.000000,0.000000,0.000000");
    const CCompOffset offset =
        Offset(5, 3, 4294967295u, u"GPS 1", CDataId(5, 1001, 2, 9), 1.5, -0.25, 1e6);
    EXPECT_EQ(offset.GenerateString(),
              u"3,4294967295,GPS 1,5,9,1001,2,1.500000,-0.250000,1000000.000000");
    std::ostringstream out;
    out << CCompOffset();
    EXPECT_EQ(out.str(), "2,1,,0,0,0,0,0.000000,0.000000,0.000000");

    CCompOffset read;
    EXPECT_TRUE(read.SetFromString(offset.GenerateString()));
    EXPECT_EQ(read.GetOffTrackSelection(), 0u);  // not part of the text
    EXPECT_EQ(read.GetOffsetType(), 3u);
    EXPECT_EQ(read.GetOffsetVesselId(), 4294967295u);
    EXPECT_EQ(read.GetOffsetName(), u"GPS 1");
    EXPECT_EQ(read.GetOffsetDataId(), CDataId(5, 1001, 2, 9));
    EXPECT_EQ(read.GetOffsetDataId().GetKey(), u"5,9,1001,2");
    EXPECT_EQ(read.GetOffset(), Point(1.5, -0.25, 1e6));
}

// Every field present is read on its own; the result says whether all
// ten were there and read.
TEST(CCompOffset, ReadsFieldByFieldAndKeepsWhatReadBeforeAFailure) {
    struct Case {
        const char16_t* text;
        bool ok;
        const char16_t* after;  // GenerateString() afterwards
    };
    const Case cases[] = {
        {u"3,7", false, u"3,7,old,1,2,3,4,1.000000,2.000000,3.000000"},
        {u"3,7,", false, u"3,7,,1,2,3,4,1.000000,2.000000,3.000000"},
        {u"", false, u"2,1,old,1,2,3,4,1.000000,2.000000,3.000000"},
        // A bad type does not stop the fields after it.
        {u"x,5,n,9,8,7,6,0.5,0.25,-1", false, u"2,5,n,9,8,7,6,0.500000,0.250000,-1.000000"},
        // A failed id field keeps its old number; the others are stored.
        {u"1,2,n,70000,8,-7,6,0,0,0", false, u"1,2,n,1,8,3,6,0.000000,0.000000,0.000000"},
        {u"1,2,n,5,6,7,8, 1,2e1,z", false, u"1,2,n,5,6,7,8,1.000000,20.000000,3.000000"},
        {u"1,+2,n,5,6,7,8,1,2,3", false, u"1,1,n,5,6,7,8,1.000000,2.000000,3.000000"},
        {u"1,4294967296,n,5,6,7,8,1,2,3", false, u"1,1,n,5,6,7,8,1.000000,2.000000,3.000000"},
        // A name holding a comma shifts every later field.
        {u"1,2,a,b,5,6,7,8,1,2,3", false, u"1,2,a,1,5,6,7,8.000000,1.000000,2.000000"},
        {u"1,2,n,5,6,7,8,1,2,3,extra", true, u"1,2,n,5,6,7,8,1.000000,2.000000,3.000000"},
        {u"1,2,,5,6,7,8,-0x1p1,1e-7,1E3", true, u"1,2,,5,6,7,8,-2.000000,0.000000,1000.000000"},
        {u"1,2,n,5,6,7,8,1e999,0,0", false, u"1,2,n,5,6,7,8,1.000000,0.000000,0.000000"},
    };
    for (const Case& c : cases) {
        CCompOffset offset = Offset(0, 2, 1, u"old", CDataId(1, 3, 4, 2), 1, 2, 3);
        EXPECT_EQ(offset.SetFromString(c.text), c.ok) << CString(c.text).ToUtf8();
        EXPECT_EQ(offset.GenerateString(), c.after) << CString(c.text).ToUtf8();
    }
}

TEST(CCompOffset, TextRoundTripsForRandomValues) {
    std::mt19937 random(77);
    std::uniform_int_distribution<std::uint32_t> any;
    std::uniform_int_distribution<int> number(0, 65535);
    std::uniform_int_distribution<long long> thousandths(-100000000, 100000000);
    const auto next = [&] { return static_cast<std::uint16_t>(number(random)); };
    // Values with at most three decimals survive the six decimals of the text.
    const auto metres = [&] { return static_cast<double>(thousandths(random)) / 1000.0; };
    for (int i = 0; i < 1000; ++i) {
        const CCompOffset offset =
            Offset(0, 2, any(random), i % 2 ? u"Bow" : u"", CDataId(next(), next(), next(), next()),
                   metres(), metres(), metres());
        CCompOffset read = Offset(0, 1, 0, u"x", CDataId(), 0, 0, 0);
        ASSERT_TRUE(read.SetFromString(offset.GenerateString())) << offset;
        EXPECT_EQ(read.GenerateString(), offset.GenerateString());
        EXPECT_EQ(read, offset);
        EXPECT_EQ(read.GetOffsetDataId(), offset.GetOffsetDataId());
    }
}

TEST(CCompOffset, EqualityLooksOnlyAtWhatTheOffsetKindUses) {
    const CDataId a(1, 2, 3, 4);
    const CDataId b(1, 2, 3, 5);
    struct Case {
        CCompOffset left, right;
        bool equal;
    };
    const Case cases[] = {
        // Named vessel offsets: vessel and name (case counts), not X, Y, Z.
        {Offset(0, 1, 2, u"Bow", a, 1, 2, 3), Offset(0, 1, 2, u"Bow", b, 9, 9, 9), true},
        {Offset(0, 1, 2, u"Bow", a, 1, 2, 3), Offset(0, 1, 2, u"bow", a, 1, 2, 3), false},
        {Offset(0, 1, 2, u"Bow", a, 1, 2, 3), Offset(0, 1, 3, u"Bow", a, 1, 2, 3), false},
        // Fixed values: X, Y, Z exactly, nothing else.
        {Offset(0, 2, 2, u"Bow", a, 1, 2, 3), Offset(0, 2, 7, u"Aft", b, 1, 2, 3), true},
        {Offset(0, 2, 2, u"Bow", a, 1, 2, 3), Offset(0, 2, 2, u"Bow", a, 1, 2, 3.0000001), false},
        {Offset(0, 2, 1, u"", a, 0.0, 0, 0), Offset(0, 2, 1, u"", a, -0.0, 0, 0), true},
        // From a datum: the id's numbers only.
        {Offset(0, 3, 2, u"Bow", a, 1, 2, 3), Offset(0, 3, 7, u"Aft", a, 4, 5, 6), true},
        {Offset(0, 3, 2, u"Bow", a, 1, 2, 3), Offset(0, 3, 2, u"Bow", b, 1, 2, 3), false},
        // Types must match; an unknown type equals nothing, not even itself.
        {Offset(0, 2, 1, u"", a, 0, 0, 0), Offset(0, 3, 1, u"", a, 0, 0, 0), false},
        {Offset(0, 4, 1, u"", a, 0, 0, 0), Offset(0, 4, 1, u"", a, 0, 0, 0), false},
        {Offset(0, 0, 1, u"", a, 0, 0, 0), Offset(0, 0, 1, u"", a, 0, 0, 0), false},
        // A selection: same selection and data id, whatever the type.
        {Offset(1, 4, 1, u"x", a, 1, 2, 3), Offset(1, 2, 9, u"y", a, 4, 5, 6), true},
        {Offset(1, 2, 1, u"", a, 0, 0, 0), Offset(2, 2, 1, u"", a, 0, 0, 0), false},
        {Offset(1, 2, 1, u"", a, 0, 0, 0), Offset(1, 2, 1, u"", b, 0, 0, 0), false},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].left == cases[i].right, cases[i].equal) << "case " << i;
        EXPECT_EQ(cases[i].right == cases[i].left, cases[i].equal) << "case " << i;
        EXPECT_EQ(cases[i].left != cases[i].right, !cases[i].equal) << "case " << i;
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const CCompOffset unset = Offset(0, 2, 1, u"", a, nan, 0, 0);
    EXPECT_FALSE(unset == unset);
}

}  // namespace
}  // namespace vex
