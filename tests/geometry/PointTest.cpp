#include <base/geometry/FloatPoint.h>
#include <base/geometry/Point.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(Point, RotateTurnsClockwiseAboutTheCentre) {
    struct Case {
        Point p, centre;
        double angle;
        Point expected;
    };
    const Case cases[] = {{{10, 20, 5}, {0, 0}, 90, {20, -10, 5}},
                          {{3, 4}, {1, 1}, 180, {-1, -2}},
                          {{1, 0}, {0, 0}, -90, {0, 1}}};  // anticlockwise: east to north
    for (const Case& c : cases) {
        Point p = c.p;
        p.Rotate(c.angle, c.centre);
        EXPECT_LT(p.Dist3D(c.expected), 1e-12) << c.angle;
        FloatPoint f(c.p);
        f.Rotate(c.angle, FloatPoint(c.centre));
        EXPECT_LT(Point(f).Dist3D(c.expected), 1e-5) << c.angle;
    }
    // An angle of 0 changes nothing, not even by rounding; nor does dividing by 0.
    Point p(0.1, 0.7, 3);
    p.Rotate(0, Point(1e6, 1e6));
    p /= 0.0;
    EXPECT_EQ(p, Point(0.1, 0.7, 3));
}

TEST(Point, AzimuthAndElevationAreBearingsInDegrees) {
    struct Case {
        Point to;
        double azimuth;
    };
    const Case cases[] = {
        {{1, 0}, 90}, {{0, -1}, 180},   {{-1, 0}, -90}, {{1, 1}, 45},
        {{0, 0}, 0},  {{-0.0, -1}, 180}};  // a negative zero x offset is still south
    for (const Case& c : cases) {
        EXPECT_NEAR(Point().Azimuth(c.to), c.azimuth, 1e-12) << c.to.x << ", " << c.to.y;
    }
    EXPECT_EQ(Point().Azimuth(Point(0, -1)), 180.0);  // exactly: the range is (-180, 180]
    EXPECT_NEAR(Point().Elevation(Point(3, 4, 5)), 45.0, 1e-12);
    EXPECT_EQ(Point().Elevation(Point(0, 0, -2)), -90.0);
    EXPECT_EQ(Point(1, 1, 1).Dist3D(Point(4, 5, 13), true), 169.0);
}

TEST(Point, ToStringShowsSixDecimals) {
    EXPECT_EQ(Point(1.5, -2, 0.25).ToString(), CString(u"point: 1.500000, -2.000000, 0.250000"));
    EXPECT_EQ(FloatPoint(1.5f, -2, 0.25f).ToString(),
              CString(u"point: 1.500000, -2.000000, 0.250000"));
}

}  // namespace
}  // namespace vex
