#include <base/geometry/Triangle.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace vex {
namespace {

double SignedPlanArea(const Triangle& t) {
    const Point &a = t.GetPointA(), &b = t.GetPointB(), &c = t.GetPointC();
    return ((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y)) / 2;
}

// Whether p lies on the plane through t's corners, by the normal vector.
bool OnPlane(const Triangle& t, const Point& p) {
    const Point a = t.GetPointA(), u = t.GetPointB() - a, v = t.GetPointC() - a, w = p - a;
    const Point n(u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x);
    return std::fabs(n.x * w.x + n.y * w.y + n.z * w.z) <=
           1e-9 * n.Dist3D(Point()) * (1 + w.Dist3D(Point()));
}

// The share of the plan area of a triangle whose height lies below h. The
// height of a uniformly distributed point of a triangle follows the
// triangular distribution whose minimum, mode and maximum are the sorted
// corner heights; this is its distribution function.
double ShareBelow(double h, const Triangle& t) {
    double z[3] = {t.GetPointA().z, t.GetPointB().z, t.GetPointC().z};
    std::sort(z, z + 3);
    if (h <= z[0]) return 0.0;
    if (h >= z[2]) return 1.0;
    if (h <= z[1]) return (h - z[0]) * (h - z[0]) / ((z[2] - z[0]) * (z[1] - z[0]));
    return 1.0 - (z[2] - h) * (z[2] - h) / ((z[2] - z[0]) * (z[2] - z[1]));
}

TEST(Triangle, MeasuresSidesAnglesHeightAndMedianInThePlane) {
    const Triangle t(Point(0, 0, 0), Point(4, 0, 0), Point(0, 3, 6));
    EXPECT_TRUE(t.GetDistanceAB() == 4 && t.GetDistanceBC() == 5 && t.GetDistanceCA() == 3);
    EXPECT_NEAR(t.GetAngleA(), 90.0, 1e-12);
    EXPECT_NEAR(t.GetAngleB(), 36.86989764584402, 1e-12);  // atan(3/4)
    EXPECT_NEAR(t.GetAngleC(), 53.13010235415598, 1e-12);
    EXPECT_NEAR(t.GetHeight(), 3.0, 1e-15);
    EXPECT_NEAR(Triangle(Point(0, 0), Point(4, 0), Point(7, -2)).GetHeight(), 2.0, 1e-15);
    EXPECT_NEAR(t.GetDistToMiddleOfOppositeSide(), 3.605551275463989, 1e-15);  // sqrt(13)
    EXPECT_EQ(t.GetExtents(), Extents3D(0, 0, 0, 4, 3, 6));
}

TEST(Triangle, PointInTriangleIncludesTheEdgesInEitherWinding) {
    const Point a(0, 0), b(4, 0), c(0, 3);
    const Point inside[] = {{1, 1}, {2, 0}, {0, 3}, {2, 1.5}};
    const Point outside[] = {{4, 3}, {-0.1, 1}, {2, -1e-12}, {5, 0}};
    for (const Triangle& t : {Triangle(a, b, c), Triangle(a, c, b)}) {
        for (const Point& p : inside)
            EXPECT_TRUE(t.PointInTriangle(p)) << p.x << ", " << p.y;
        for (const Point& p : outside)
            EXPECT_FALSE(t.PointInTriangle(p)) << p.x << ", " << p.y;
    }
}

TEST(Triangle, ClippingCountsPiecesAndCutsAtTheLevel) {
    const Triangle slope(Point(0, 0, 0), Point(4, 0, 0), Point(0, 4, 4));  // z = y
    Triangle out[3];
    ASSERT_EQ(slope.ZMinClip(2.0, out), 1);
    EXPECT_EQ(out[0], Triangle(Point(2, 2, 2), Point(0, 4, 4), Point(0, 2, 2)));

    struct Case {
        Triangle t;
        double zMin, zMax;
        int above, between;
    };
    const Triangle flat(Point(0, 0, 1), Point(4, 0, 1), Point(0, 4, 1));
    const Triangle twoUp(Point(0, 0, 4), Point(4, 0, 4), Point(0, 4, 0));
    const Triangle steep(Point(0, 0, 0), Point(10, 0, 10), Point(5, 10, 5));
    const Case cases[] = {{slope, 4, 9, 0, 0},   // only corner C touches the level
                          {slope, 0, 0, 1, 0},   // only edge AB lies in the slab
                          {flat, 1, 1, 1, 1},    // lying flat on the level: kept
                          {twoUp, 2, 3, 2, 2},   // a quadrilateral above, a band between
                          {steep, 2, 8, 2, 3},   // the slab cuts a pentagon
                          {steep, 8, 2, 1, 0}};  // zMin above zMax: nothing between
    for (const Case& c : cases) {
        EXPECT_EQ(c.t.ZMinClip(c.zMin, out), c.above) << c.zMin;
        EXPECT_EQ(c.t.ZMinMaxClip(c.zMin, c.zMax, out), c.between) << c.zMin << ".." << c.zMax;
    }
}

// Random triangles and levels: the pieces lie on the triangle's plane within
// the levels, keep its winding, add up to the area the triangular
// distribution predicts, and every sampled point of the triangle is covered
// exactly when its height lies between the levels.
TEST(Triangle, ClippedPiecesCoverExactlyThePartBetweenTheLevels) {
    std::mt19937 rng(2024);
    std::uniform_real_distribution<double> coord(-100.0, 100.0), unit(0.0, 1.0);
    int tested = 0;
    for (int i = 0; i < 400; ++i) {
        const Triangle t(Point(coord(rng), coord(rng), coord(rng) / 2),
                         Point(coord(rng), coord(rng), coord(rng) / 2),
                         Point(coord(rng), coord(rng), coord(rng) / 2));
        const double area = SignedPlanArea(t);
        if (std::fabs(area) < 10.0) continue;  // too thin to sample
        ++tested;
        const double zMin = coord(rng) * 0.6;
        const double zMax = i % 4 == 0 ? 1e9 : zMin + 80 * unit(rng);

        Triangle pieces[3];
        const int n = i % 4 == 0 ? t.ZMinClip(zMin, pieces) : t.ZMinMaxClip(zMin, zMax, pieces);
        double sum = 0.0;
        for (int k = 0; k < n; ++k) {
            const double piece = SignedPlanArea(pieces[k]);
            EXPECT_GE(piece * area, 0.0);  // same winding (or degenerate)
            sum += piece;
            for (const Point& p :
                 {pieces[k].GetPointA(), pieces[k].GetPointB(), pieces[k].GetPointC()}) {
                EXPECT_TRUE(OnPlane(t, p) && p.z >= zMin && p.z <= zMax);
            }
        }
        EXPECT_NEAR(sum, area * (ShareBelow(zMax, t) - ShareBelow(zMin, t)),
                    1e-9 * std::fabs(area));

        for (int s = 0; s < 50; ++s) {
            double u = unit(rng), v = unit(rng);
            if (u + v > 1) u = 1 - u, v = 1 - v;
            const Point &a = t.GetPointA(), &b = t.GetPointB(), &c = t.GetPointC();
            const Point q = a + (b - a) * u + (c - a) * v;
            bool covered = false;
            for (int k = 0; k < n; ++k)
                covered = covered || pieces[k].PointInTriangle(q);
            const bool between = q.z > zMin + 1e-6 && q.z < zMax - 1e-6;
            const bool outside = q.z < zMin - 1e-6 || q.z > zMax + 1e-6;
            if (between || outside) {
                EXPECT_EQ(covered, between);
            }
        }
    }
    EXPECT_GT(tested, 300);
}

}  // namespace
}  // namespace vex
