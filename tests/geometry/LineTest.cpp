#include <base/geometry/Line.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(Line, OffsetMovesToTheRightOfTheDirection) {
    struct Case {
        Line line;
        double d;
        Point start, end;
    };
    const Case cases[] = {{{{0, 0, 1}, {0, 10, 2}}, 2, {2, 0, 1}, {2, 10, 2}},  // north: east
                          {{{0, 0}, {0, 10}}, -2, {-2, 0}, {-2, 10}},           // negative: left
                          {{{0, 0}, {10, 0}}, 2, {0, -2}, {10, -2}},            // east: south
                          {{{0, 0}, {-3, -4}}, 5, {-4, 3}, {-7, -1}},  // south-west: north-west
                          {{{1, 1}, {1, 1}}, 1, {2, 1}, {2, 1}}};      // no direction: bearing 0
    for (const Case& c : cases) {
        const Line moved = c.line.Offset(c.d);
        EXPECT_LT(moved.start.Dist3D(c.start) + moved.end.Dist3D(c.end), 1e-12) << c.d;
    }
    Extents3D plan;  // the box of a line leaves z empty
    plan.Set(0, 0, 3, 4);
    EXPECT_EQ(Line(Point(3, 4, 12), Point(0, 0, 0)).Extents(), plan);
}

TEST(Line, GetLineXAndYFindThePointOfTheInfiniteLine) {
    const Line l(Point(0, 0), Point(10, 20));
    double v = 0;
    bool inside = false;
    ASSERT_TRUE(l.GetLineX(10, v, inside));
    EXPECT_TRUE(v == 5 && inside);
    ASSERT_TRUE(l.GetLineX(30, v, inside));
    EXPECT_TRUE(v == 15 && !inside);
    ASSERT_TRUE(l.GetLineY(10, v, inside));  // the end itself is inside
    EXPECT_TRUE(v == 20 && inside);
    // Parallel to the asked axis: false, outputs unchanged.
    EXPECT_FALSE(Line(Point(0, 5), Point(10, 5)).GetLineX(5, v, inside));
    EXPECT_FALSE(Line(Point(3, 0), Point(3, 9)).GetLineY(3, v, inside));
    EXPECT_TRUE(v == 20 && inside);
}

}  // namespace
}  // namespace vex
