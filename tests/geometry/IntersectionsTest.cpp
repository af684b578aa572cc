#include <base/geometry/Intersections.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

namespace vex {
namespace {

TEST(Intersections, LineLineFollowsTheToleranceRules) {
    struct Case {
        Line a, b;
        bool found;
        double x, y;
        long where;
    };
    const Case cases[] = {
        {{{0, 0}, {2, 2}}, {{0, 2}, {2, 0}}, true, 1, 1, 3},
        {{{0, 0}, {1, 1}}, {{3, 0}, {4, -1}}, true, 1.5, 1.5, 0},     // outside both segments
        {{{0, 0}, {4, 4}}, {{3, 0}, {4, -1}}, true, 1.5, 1.5, 1},     // on a only
        {{{0, 0}, {2, 1}}, {{1, -5}, {1, 5}}, true, 1, 0.5, 3},       // b vertical
        {{{1, 0}, {1 + 5e-8, 9}}, {{0, 3}, {4, 3}}, true, 1, 3, 3},   // |dx| < 1e-7: vertical
        {{{0, 0}, {1e-6, 1e5}}, {{-1, 2}, {1, 2}}, true, 0, 2, 3},    // slope 1e11: vertical
        {{{0, 0}, {1, 1}}, {{0, 1}, {1, 2 + 5e-8}}, false, 0, 0, 0},  // slopes within 1e-7
        {{{0, 0}, {0, 1}}, {{2, 0}, {2, 1}}, false, 0, 0, 0},         // both vertical
        {{{0, 0}, {1e-6, 1e5}}, {{5, 0}, {5 + 1e-6, -1e5}}, false, 0, 0, 0}};  // both steep
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << c.a.end.x << "," << c.a.end.y << " " << c.b.end.x << "," << c.b.end.y);
        Point out(-7, -7, -7);
        long where = -1;
        ASSERT_EQ(Intersect(c.a, c.b, out, where), c.found);
        const Point expected =
            c.found ? Point(c.x, c.y, -7) : Point(-7, -7, -7);  // z never written
        EXPECT_LT(out.Dist3D(expected), 1e-12);
        EXPECT_EQ(where, c.found ? c.where : -1);
    }
}

constexpr double kDeg = std::numbers::pi / 180;

Point OnCircle(const Point& centre, double radius, double bearing) {
    return centre + Point(radius * std::sin(bearing * kDeg), radius * std::cos(bearing * kDeg));
}

enum class Cover { Both, First, Neither };

// An arc of the circle through two of its points at bearings q1 and q2 that
// holds both, only the first or neither of them, with a margin of a quarter
// of their angular distance (at most 5 degrees), swept either way.
Curve ArcFor(const Point& centre, double radius, double q1, double q2, Cover cover,
             bool anticlockwise) {
    double span = std::fmod(q2 - q1 + 720, 360);  // clockwise from q1 to q2
    const bool forward = span <= 180;
    const double from = forward ? q1 : q2, to = forward ? q2 : q1;
    if (!forward) span = 360 - span;
    const double margin = std::min(5.0, span / 4);
    // Both: round the short way from one to the other; neither: the middle
    // of the long way round.
    const double middle = cover == Cover::Both    ? from + span / 2
                          : cover == Cover::First ? q1
                                                  : to + 180 - span / 2;
    const double half = cover == Cover::Both ? span / 2 + margin : margin;
    return anticlockwise ? Curve(centre, -radius, middle + half, middle - half)
                         : Curve(centre, radius, middle - half, middle + half);
}

// Random circles through two points p1, p2 at bearings at least 20 degrees
// apart; lines through both points or through p1 only; second circles
// through both, centred on the perpendicular bisector of p1-p2 away from the
// first centre; and arcs of either circle that hold both, p1 or neither.
TEST(Intersections, LinesAndArcsMeetWhereTheConstructionPutsTheCrossings) {
    std::mt19937 rng(99);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    auto coin = [&] { return unit(rng) < 0.5; };
    for (int i = 0; i < 3000; ++i) {
        const Point c1(2000 * unit(rng) - 1000, 2000 * unit(rng) - 1000, 4.0);
        const double r1 = 0.05 + 500 * unit(rng);
        const double b1 = 360 * unit(rng), b2 = b1 + 20 + 320 * unit(rng);
        const Point p1 = OnCircle(c1, r1, b1), p2 = OnCircle(c1, r1, b2);
        const Point normal = Point(p1.y - p2.y, p2.x - p1.x) / p1.Dist2D(p2);
        const Point c2 = c1 + normal * ((0.2 + 2 * unit(rng)) * r1 * (coin() ? -1 : 1));
        const double r2 = c2.Dist2D(p1);
        auto bearing = [&c2](const Point& p) { return std::atan2(p.x - c2.x, p.y - c2.y) / kDeg; };
        const Cover coverA = static_cast<Cover>(i % 3), coverB = static_cast<Cover>(i / 3 % 3);
        const Curve a = ArcFor(c1, r1, b1, b2, coverA, coin());
        const Curve b = ArcFor(c2, r2, bearing(p1), bearing(p2), coverB, coin());
        const double tolerance = 1e-9 * (1000 + r1 + r2);

        const bool wholeChord = i % 2 == 0;
        Point out[2];
        long where[2] = {};
        const long n = Intersect(Line(p1, wholeChord ? p2 : (p1 + p2) / 2), a, out, where);
        ASSERT_EQ(n, coverA == Cover::Both ? 2 : (coverA == Cover::First ? 1 : 0)) << i;
        if (n > 0) {
            EXPECT_LE(out[0].Dist3D(p1), tolerance) << i;
            EXPECT_EQ(where[0], 3);
        }
        if (n > 1) {
            EXPECT_LE(out[1].Dist3D(p2), tolerance) << i;
            EXPECT_EQ(where[1], wholeChord ? 3 : 2);  // the half chord ends before p2
        }

        std::vector<Point> expected;
        if (coverA != Cover::Neither && coverB != Cover::Neither) expected.push_back(p1);
        if (coverA == Cover::Both && coverB == Cover::Both) expected.push_back(p2);
        const long m = Intersect(a, b, out);
        ASSERT_EQ(m, static_cast<long>(expected.size())) << i;
        for (const Point& want : expected) {
            EXPECT_LE(std::min(want.Dist3D(out[0]), m > 1 ? want.Dist3D(out[1]) : 1e300),
                      tolerance);
        }
    }
}

TEST(Intersections, TouchingJoiningAndDegenerateArcs) {
    Point out[2];
    long where[2] = {};
    const Curve circle(Point(0, 0, 1), 5, 0, 360);
    ASSERT_EQ(Intersect(Line(Point(-10, 5), Point(10, 5)), circle, out, where), 1);  // tangent
    EXPECT_EQ(out[0], Point(0, 5, 1));
    EXPECT_EQ(Intersect(Line(Point(-10, 5.001), Point(10, 5.001)), circle, out, where), 0);
    EXPECT_EQ(Intersect(Line(Point(1, 1), Point(1, 1)), circle, out, where), 0);
    EXPECT_EQ(Intersect(Line(Point(0, 0), Point(1, 0)), circle, nullptr, where), 0);

    // Circles touching from outside and from inside; concentric ones never meet.
    ASSERT_EQ(Intersect(Curve(Point(0, 0), 2, 0, 360), Curve(Point(5, 0), -3, 0, 360), out), 1);
    EXPECT_EQ(out[0], Point(2, 0));
    ASSERT_EQ(Intersect(Curve(Point(0, 0), 5, 0, 360), Curve(Point(2, 0), 3, 0, 360), out), 1);
    EXPECT_EQ(out[0], Point(5, 0));
    EXPECT_EQ(Intersect(circle, circle, out), 0);

    // A radial line through an arc's end finds that end (the opposite crossing
    // is off the arc), and an arc that continues from the end meets it there,
    // whatever the rounding of the bearings.
    const Point centre(3, 4);
    for (double end = 0; end < 360; end += 7.5) {
        for (const Curve& arc :
             {Curve(centre, 10, end - 20, end), Curve(centre, -10, end, end - 20)}) {
            const Point tip = arc.AngleToPoint(end);
            ASSERT_EQ(Intersect(Line(centre, tip), arc, out, where), 1) << end;
            EXPECT_LT(out[0].Dist2D(tip), 1e-12);
            EXPECT_EQ(where[0], 3);
            const Curve next(centre + (tip - centre) * 2, 10, end + 180, end + 200);
            ASSERT_EQ(Intersect(arc, next, out), 1) << end;
            EXPECT_LT(out[0].Dist2D(tip), 1e-9);
        }
    }
}

TEST(Intersections, PointAtTwoDistancesAndItsHeight) {
    Point out(0, 0, -1);
    ASSERT_TRUE(IntersectP3(Point(0, 0), Point(6, 0), 5, 5, out));
    EXPECT_EQ(out, Point(3, 4, -1));  // left of east is north; z untouched
    ASSERT_TRUE(IntersectP3(Point(0, 0), Point(6, 0), 5, 5, out, true));
    EXPECT_EQ(out, Point(3, -4, -1));
    // r2 = sqrt(17) puts the foot at a = 3 of d = 4: z = 0 + 8 * 3 / 4.
    ASSERT_TRUE(IntersectP3Z(Point(0, 0, 0), Point(4, 0, 8), 5, std::sqrt(17.0), out));
    EXPECT_LT(out.Dist3D(Point(3, 4, 6)), 1e-14);
    // A foot beyond p2 extrapolates: a = 6 of d = 4, z = 10 + 2 * 6 / 4.
    ASSERT_TRUE(IntersectP3Z(Point(0, 0, 10), Point(0, -4, 12), 10, std::sqrt(68.0), out));
    EXPECT_LT(out.Dist3D(Point(8, -6, 13)), 1e-13);

    Point kept(9, 9, 9);
    EXPECT_FALSE(IntersectP3(Point(1, 1), Point(1, 1), 2, 2, kept));   // same point
    EXPECT_FALSE(IntersectP3Z(Point(0, 0), Point(5, 0), 2, 2, kept));  // too far apart
    EXPECT_FALSE(IntersectP3Z(Point(0, 0), Point(1, 0), 5, 1, kept));  // one inside the other
    EXPECT_EQ(kept, Point(9, 9, 9));
}

TEST(Intersections, CentreCircleFrom3PFindsTheCircumcentre) {
    Point centre(0, 0, 5);
    // Three points of the circle of radius 5 about (2, -3).
    ASSERT_TRUE(CentreCircleFrom3P(Point(7, -3), Point(2, 2), Point(-1, -7), centre));
    EXPECT_LT(centre.Dist3D(Point(2, -3, 5)), 1e-12);
    ASSERT_TRUE(
        CentreCircleFrom3P(Point(-1, 0), Point(1, 0), Point(0, 1), centre));  // vertical bisector
    EXPECT_LT(centre.Dist3D(Point(0, 0, 5)), 1e-12);

    Point kept(9, 9);
    EXPECT_FALSE(CentreCircleFrom3P(Point(0, 0), Point(1, 1), Point(3, 3), kept));  // collinear
    EXPECT_FALSE(CentreCircleFrom3P(Point(0, 0), Point(0, 0), Point(3, 1), kept));
    EXPECT_EQ(kept, Point(9, 9));
}

}  // namespace
}  // namespace vex
