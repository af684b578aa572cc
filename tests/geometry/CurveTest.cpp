#include <base/geometry/Curve.h>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

namespace vex {
namespace {

constexpr double kDeg = std::numbers::pi / 180;

TEST(Curve, SetReducesTheAnglesButKeepsTheFullCircle) {
    const double cases[][4] = {
        {0, 360, 0, 360}, {-90, 450, 270, 90}, {370, -10, 10, 350}, {360, 0, 0, 0}};
    for (const auto& c : cases) {
        const Curve arc(Point(), 1, c[0], c[1]);
        EXPECT_EQ(arc.GetStartAngle(), c[2]) << c[0];
        EXPECT_EQ(arc.GetEndAngle(), c[3]) << c[1];
    }
}

TEST(Curve, SectorAndMembershipFollowTheSweepDirection) {
    struct Case {
        double radius, start, end, sector;
        std::vector<double> inside, outside;
    };
    const Case cases[] = {{10, 10, 50, 40, {10, 50, 390}, {60, 9.5}},
                          {10, 350, 10, 20, {0, -5}, {180, 340}},  // clockwise through north
                          {-10, 50, 10, 40, {30, 50}, {60, 0}},
                          {-10, 10, 350, 20, {0, 355}, {180, 20}},  // anticlockwise through north
                          {10, 10, 350, 340, {180, 10}, {0, 355}},
                          {0, 350, 10, 20, {0, 5}, {20, 180}},  // zero radius sweeps clockwise
                          {-10, 0, 360, 360, {0, 359.9}, {}},   // full circle either way
                          {10, 30, 30, 0, {}, {30}}};           // equal angles: empty
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.radius << ": " << c.start << " -> " << c.end);
        const Curve arc(Point(), c.radius, c.start, c.end);
        EXPECT_DOUBLE_EQ(arc.SectorAngle(), c.sector);
        for (double b : c.inside)
            EXPECT_TRUE(arc.AngleInCurve(b)) << b;
        for (double b : c.outside)
            EXPECT_FALSE(arc.AngleInCurve(b)) << b;
    }
}

TEST(Curve, PointsLengthsAndRatiosUseTheRadiusMagnitude) {
    EXPECT_DOUBLE_EQ(Curve(Point(), -10, 10, 350).Bow(), 3.4906585039886);  // 20 * D_TO_R * 10
    const Curve arc(Point(100, 200, 5), -10, 100, 80);
    EXPECT_TRUE(arc.PointInSegment(Point(150, 200)));  // bearing 90; the distance is not looked at
    EXPECT_FALSE(arc.PointInSegment(Point(100, 150)));
    // An offset below 1e-7 counts as 0: this point is due south, bearing 180.
    EXPECT_TRUE(Curve(Point(5, 5), 2, 179, 180).PointInSegment(Point(5 - 1e-8, 1)));

    // radius, start, end, ratio, bearing of the point; D_TO_R's 15 decimals
    // move a point at bearing 350 by about 1e-12 here.
    const double cases[][5] = {{10, 350, 10, 0.5, 0},   {10, 350, 10, 1, 10},
                               {-10, 10, 350, 0.25, 5}, {-10, 10, 350, 0.5, 0},
                               {10, 0, 360, 0.25, 90},  {-10, 100, 80, 0.5, 90}};
    for (const auto& c : cases) {
        const Point want(1 + 10 * std::sin(c[4] * kDeg), 2 + 10 * std::cos(c[4] * kDeg), 3);
        EXPECT_LT(Curve(Point(1, 2, 3), c[0], c[1], c[2]).PointInCurveRatio(c[3]).Dist3D(want),
                  1e-10)
            << c[1] << ", " << c[3];
    }
}

TEST(Curve, ExtentsIncludeTheCompassPointsTheArcPasses) {
    // 350 -> 100 clockwise (or 100 -> 350 anticlockwise) passes north and east.
    for (const double r : {10.0, -10.0}) {
        const Extents3D box = r > 0 ? Curve(Point(0, 0, 3), r, 350, 100).GetExtents()
                                    : Curve(Point(0, 0, 3), r, 100, 350).GetExtents();
        EXPECT_NEAR(box.xmin, -1.7364817766693, 1e-10);  // 10 sin 350 deg
        EXPECT_NEAR(box.ymin, -1.7364817766693, 1e-10);  // 10 cos 100 deg
        EXPECT_TRUE(box.xmax == 10 && box.ymax == 10 && box.zmin == 3 && box.zmax == 3);
    }
    EXPECT_EQ(Curve(Point(1, 1), -2, 0, 360).GetExtents(), Extents3D(-1, -1, 0, 3, 3, 0));
}

// Random arcs: the polyline runs from end to end on the circle in steps no
// larger than asked, lies inside GetExtents, and reaches every side of it.
TEST(Curve, GetAsPointsStaysWithinTheArcsExtents) {
    std::mt19937 rng(42);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (int i = 0; i < 500; ++i) {
        const Point centre(2000 * unit(rng) - 1000, 2000 * unit(rng) - 1000, 10 * unit(rng));
        const double r = 0.01 + 300 * unit(rng), step = 0.5 + 10 * unit(rng);
        const Curve arc(centre, i % 2 ? -r : r, 720 * unit(rng) - 360, 720 * unit(rng) - 360);
        const std::vector<Point> points = arc.GetAsPoints(step);
        const Extents3D box = arc.GetExtents();
        const double slack = 1e-9 * (1000 + r);

        EXPECT_LE(points.front().Dist2D(arc.AngleToPoint(arc.GetStartAngle())), slack);
        EXPECT_EQ(points.back(), arc.AngleToPoint(arc.GetEndAngle()));
        EXPECT_NEAR((points.size() - 1) * step, arc.SectorAngle(), step);
        double reach[4] = {1e300, 1e300, 1e300, 1e300};
        for (std::size_t k = 0; k < points.size(); ++k) {
            const Point& p = points[k];
            EXPECT_NEAR(p.Dist2D(centre), r, slack);
            EXPECT_TRUE(p.x >= box.xmin - slack && p.x <= box.xmax + slack &&
                        p.y >= box.ymin - slack && p.y <= box.ymax + slack && p.z == centre.z);
            if (k > 0) {
                EXPECT_LE(p.Dist2D(points[k - 1]), 2 * r * std::sin(step * kDeg / 2) + slack);
            }
            reach[0] = std::min(reach[0], p.x - box.xmin);
            reach[1] = std::min(reach[1], box.xmax - p.x);
            reach[2] = std::min(reach[2], p.y - box.ymin);
            reach[3] = std::min(reach[3], box.ymax - p.y);
        }
        // A side reached only at a compass point is missed by at most one step's sagitta.
        for (double gap : reach)
            EXPECT_LE(gap, r * (1 - std::cos(step * kDeg / 2)) + slack);
    }
    EXPECT_EQ(Curve(Point(), 10, 30, 30).GetAsPoints().size(), 1u);
    EXPECT_EQ(Curve(Point(), 10, 0, 360).GetAsPoints(0.0).size(), 361u);     // 0 means 1 degree
    EXPECT_EQ(Curve(Point(), 10, 0, 360).GetAsPoints(1e-9).size(), 36001u);  // at most 36000 steps
}

}  // namespace
}  // namespace vex
