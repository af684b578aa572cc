#include <base/geometry/AngleFunctions.h>

#include <gtest/gtest.h>

#include <cmath>

namespace vex {
namespace {

TEST(AngleFunctions, PolarAndGridOffsetsConvertBothWays) {
    // x, y, bearing, geo bearing, distance. 216.869... = 180 + atan(3/4) in degrees.
    const double cases[][5] = {{0, 5, 0, 0, 5},
                               {-1, 0, 270, -90, 1},
                               {1e-8, -1, 180, 180, 1},   // the tiny x counts as 0 ...
                               {-1e-8, -1, 180, 180, 1},  // ... so it cannot make -180
                               {-3, -4, 216.86989764584402, -143.13010235415598, 5},
                               {0, 0, 0, 0, 0}};
    for (const auto& c : cases) {
        double bearing = -1, dist = -1, geo = -1;
        XYToPolar(c[0], c[1], bearing, dist);
        XYToPolarGeo(Point(c[0], c[1]), geo);
        Point back(0, 0, 9);
        PolarToXY(c[2], c[4], back);
        EXPECT_TRUE(std::abs(bearing - c[2]) < 1e-12 && std::abs(geo - c[3]) < 1e-12 &&
                    dist == c[4] && back.Dist3D(Point(c[0], c[1], 9)) < 1e-7)
            << c[0] << ", " << c[1] << ": " << bearing << ", " << geo << ", " << dist;
    }
    double x = 0, y = 0;
    Rotation2D(100, 200, 10, 0, 90, x, y);  // heading east, the starboard offset points south
    EXPECT_LT(std::abs(x - 100) + std::abs(y - 190), 1e-9);
}

TEST(AngleFunctions, AnglesAreReducedIntoTheirRanges) {
    // a, TrimAngle(a), modgeo(a); 360 - 1e-20 rounds to 360, which is 0.
    const double cases[][3] = {{-30, 330, -30},    {720, 0, 0},     {190, 190, -170},
                               {-190, 170, 170},   {180, 180, 180}, {-180, 180, -180},
                               {-1e-20, 0, -1e-20}};
    for (const auto& c : cases) {
        EXPECT_EQ(TrimAngle(c[0]), c[1]) << c[0];
        EXPECT_EQ(modgeo(c[0]), c[2]) << c[0];
    }
}

TEST(AngleFunctions, InterpolateCircularGoesTheShortWayRound) {
    // lo, hi, a, b, t, expected
    const double cases[][6] = {
        {0, 360, 350, 10, 0.5, 0},          {0, 360, 10, 350, 0.25, 5},
        {0, 360, 10, 20, 0.5, 15},          {-180, 180, 170, -170, 0.5, -180},
        {-180, 180, -170, 170, 0.25, -175}, {0, 24, 23, 1, 0.75, 0.5}};
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(InterpolateCircular(c[0], c[1], c[2], c[3], c[4]), c[5])
            << c[2] << " -> " << c[3];
    }
}

}  // namespace
}  // namespace vex
