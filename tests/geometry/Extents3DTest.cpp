#include <base/geometry/Extents3D.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

constexpr double kMax = 1.7976931348623157e308;
using Box = Extents3D;

TEST(Extents3D, StartsEmptyAndTheFirstPointSetsBothEnds) {
    Extents3D e;
    EXPECT_EQ(e, Box(kMax, kMax, kMax, -kMax, -kMax, -kMax));
    EXPECT_FALSE(e.IsValid());
    e.Grow(1, 2, 3);
    EXPECT_EQ(e, Box(1, 2, 3, 1, 2, 3));
    EXPECT_TRUE(e.IsValid());
    e.Grow(Point(4, 0, 3));
    e.Grow(-1, 1, 5);
    EXPECT_EQ(e, Box(-1, 0, 3, 4, 2, 5));
    EXPECT_EQ(e.GetCenter(), Point(1.5, 1, 4));
    e.SetCenter(Point(10, 10, 10));  // keeps the size
    EXPECT_EQ(e, Box(7.5, 9, 9, 12.5, 11, 11));
}

TEST(Extents3D, TwoDimensionalBoxesKeepZEmpty) {
    Extents3D e;
    e.Set(0, 1, 10, 11);
    EXPECT_EQ(e, Box(0, 1, kMax, 10, 11, -kMax));
    EXPECT_FALSE(e.IsValid());
    e.ShiftCenter(Point(1, 1, 1));  // the empty z axis stays empty
    EXPECT_EQ(e, Box(1, 2, kMax, 11, 12, -kMax));
    e.Grow(5, 5, 7);  // only the empty z axis changes
    EXPECT_EQ(e, Box(1, 2, 7, 11, 12, 7));
    e.Invalidate2D();
    EXPECT_EQ(e, Box(kMax, kMax, 7, -kMax, -kMax, 7));
    e.Normalize();  // empty axes become the whole line
    EXPECT_EQ(e, Box(-kMax, -kMax, 7, kMax, kMax, 7));
}

TEST(Extents3D, UnionAndIntersectionWorkPerAxis) {
    const Box a(0, 0, 0, 2, 2, 2), b(1, 1, 1, 3, 3, 3), empty;
    Extents3D flat;
    flat.Set(-1, -1, 1, 1);
    EXPECT_EQ(a | b, Box(0, 0, 0, 3, 3, 3));
    EXPECT_EQ(a & b, Box(1, 1, 1, 2, 2, 2));
    EXPECT_EQ(empty | a, a);
    EXPECT_EQ(a & empty, empty);
    EXPECT_EQ(a | flat, Box(-1, -1, 0, 2, 2, 2));  // z from a alone
    // x does not overlap: that axis empties, the others keep their overlap.
    EXPECT_EQ(a & Box(5, 0, 0, 6, 1, 1), Box(kMax, 0, 0, -kMax, 1, 1));
}

}  // namespace
}  // namespace vex
