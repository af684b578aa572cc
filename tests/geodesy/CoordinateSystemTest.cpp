#include <base/geodesy/CoordinateSystem.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace vex {
namespace {

// 800 x 600 screen pixels showing world 0..800 east, 0..600 north.
CoordinateSystem Screen800() {
    CoordinateSystem cs;
    EXPECT_TRUE(cs.SetPixelWindow(0, 0, 800, 600));
    EXPECT_TRUE(cs.SetWorldWindow(0, 0, 800, 600));
    return cs;
}

TEST(CoordinateSystem, DefaultMapsTheUnitSquareOntoOnePixel) {
    const CoordinateSystem cs;
    double px = 0, py = 0;
    cs.WorldToPixel(0.5, 0.5, px, py);  // 0 + 0.5 + 0.5, floored
    EXPECT_EQ(px, 1.0);
    EXPECT_EQ(py, 1.0);
}

TEST(CoordinateSystem, IntegerPixelWindowIsGivenTopSecondAndStoredBottomSecond) {
    CoordinateSystem cs = Screen800();
    EXPECT_EQ(cs.GetPixelWindow(), Page(0, 600, 800, 0));
    EXPECT_EQ(cs.PixelWindow(), CRect(0, 0, 800, 600));
    EXPECT_EQ(cs.GetScale(), Point(1.0, -1.0, 0.0));
    EXPECT_EQ(cs.GetPixelCenter(), Point(400, 300, 0));

    CoordinateSystem fromRect;
    ASSERT_TRUE(fromRect.SetPixelWindow(CRect(0, 0, 800, 600)));
    ASSERT_TRUE(fromRect.SetWorldWindow(Page(0, 0, 800, 600)));
    EXPECT_EQ(fromRect, cs);
}

TEST(CoordinateSystem, WindowsWithoutWidthOrHeightAreRefusedAndChangeNothing) {
    const CoordinateSystem before = Screen800();
    CoordinateSystem cs = before;
    EXPECT_FALSE(cs.SetWorldWindow(5, 0, 5, 10));
    EXPECT_FALSE(cs.SetWorldWindow(Page(0, 7, 10, 7)));
    EXPECT_FALSE(cs.SetPixelWindow(0, 0, 0, 600));
    EXPECT_FALSE(cs.SetPixelWindow(CRect(0, 10, 800, 10)));
    EXPECT_FALSE(cs.SetPixelWindow(Page(3, 1, 3, 0)));
    EXPECT_EQ(cs, before);
    EXPECT_EQ(cs.GetScale(), before.GetScale());
    EXPECT_EQ(cs.GetWorldCenter(), before.GetWorldCenter());
    EXPECT_EQ(cs.GetPixelCenter(), before.GetPixelCenter());
}

TEST(CoordinateSystem, WorldToPixelRoundsHalfUpToWholePixels) {
    const CoordinateSystem cs = Screen800();
    struct Case {
        double x, y;
        double px, py;
    };
    const Case cases[] = {
        {400, 300, 400, 300},  // the centres meet
        {0, 0, 0, 600},        // y is turned over: world bottom is the screen's bottom edge
        {800, 600, 800, 0},    // the top right corner
        {10.4, 0.4, 10, 600},  // below the half: down; 600 - 0.4 + 0.5 = 600.1
        {10.5, 0.5, 11, 600},  // at the half: up; 600 - 0.5 + 0.5 = 600
        {-0.5, 0.6, 0, 599},   // -0.5 + 0.5 = 0
        {-0.51, 0, -1, 600},   // outside the window the rule is the same
    };
    for (const Case& c : cases) {
        double px = 0, py = 0;
        cs.WorldToPixel(c.x, c.y, px, py);
        EXPECT_EQ(px, c.px) << c.x;
        EXPECT_EQ(py, c.py) << c.y;
        Point p;
        cs.WorldToPixel(Point(c.x, c.y, 7.0), p);
        EXPECT_EQ(p, Point(c.px, c.py, 7.0));
        EXPECT_EQ(cs.WorldToPixel(Point(c.x, c.y)),
                  CPoint(static_cast<long>(c.px), static_cast<long>(c.py)));
    }
    // A page maps corner by corner; the CRect form puts the top first.
    Page pixels;
    cs.WorldToPixel(Page(100, 100, 300, 200), pixels);
    EXPECT_EQ(pixels, Page(100, 500, 300, 400));
    EXPECT_EQ(cs.WorldToPixel(Page(100, 100, 300, 200)), CRect(100, 400, 300, 500));
}

TEST(CoordinateSystem, TheTwoPixelToWorldFamiliesLieHalfAPixelApart) {
    CoordinateSystem cs;
    ASSERT_TRUE(cs.SetPixelWindow(0, 0, 800, 600));
    ASSERT_TRUE(cs.SetWorldWindow(1000, 2000, 1400, 2300));  // scale (2, -2)
    ASSERT_EQ(cs.GetScale(), Point(2, -2, 0));
    // Pixel (400, 300) is the centre; the point forms add half a pixel.
    double x = 0, y = 0;
    cs.PixelToWorld(400, 300, x, y);
    EXPECT_EQ(x, 1200.25);
    EXPECT_EQ(y, 2149.75);
    EXPECT_EQ(cs.PixelToWorld(CPoint(400, 300)), Point(1200.25, 2149.75, 0));
    Point w;
    cs.PixelToWorld(Point(0, 0, 3), w);
    EXPECT_EQ(w, Point(1000.25, 2299.75, 3));
    // The page forms do not.
    Page world;
    cs.PixelToWorld(Page(0, 600, 800, 0), world);
    EXPECT_EQ(world, Page(1000, 2000, 1400, 2300));
    EXPECT_EQ(cs.PixelToWorld(CRect(400, 0, 800, 300)), Page(1200, 2150, 1400, 2300));
}

TEST(CoordinateSystem, SkewTurnsTheViewOnlyInRotationModeThree) {
    auto make = [](ROTATIONMODE mode) {
        CoordinateSystem cs;
        cs.SetSkew(90);
        cs.SetRotationMode(mode);
        cs.SetPixelWindow(0, 0, 200, 200);
        cs.SetWorldWindow(-100, -100, 100, 100);
        return cs;
    };
    const CoordinateSystem flat = make(static_cast<ROTATIONMODE>(2));  // any mode but 3
    const CoordinateSystem turned = make(ROTATION_SKEW);
    EXPECT_EQ(flat.GetScale(), Point(1, -1, 0));
    EXPECT_EQ(flat.WorldToPixel(Point(0, 50)), CPoint(100, 50));  // north is up
    double x = 0, y = 3;
    flat.RotateWtoP(x, y);
    EXPECT_TRUE(x == 0 && y == 3);

    // Turned a quarter: both sides of the scale's ratio swap, so scale y
    // comes out positive, and north lands on the right.
    EXPECT_NEAR(turned.GetScale().x, 1.0, 1e-12);
    EXPECT_NEAR(turned.GetScale().y, 1.0, 1e-12);
    EXPECT_EQ(turned.WorldToPixel(Point(0, 50)), CPoint(150, 100));
    EXPECT_EQ(turned.WorldToPixel(Point(50, 0)), CPoint(100, 50));
    x = 0;
    y = 3;
    turned.RotateWtoP(x, y);
    EXPECT_NEAR(x, 3, 1e-12);
    EXPECT_NEAR(y, 0, 1e-12);
    turned.RotatePtoW(x, y);
    EXPECT_NEAR(x, 0, 1e-12);
    EXPECT_NEAR(y, 3, 1e-12);
    // The skew's sine and cosine come from the suite's truncated factor:
    // its cosine of 90 degrees is 2.6e-14, the exact factor's 6.1e-17.
    x = 1;
    y = 0;
    turned.RotatePtoW(x, y);
    EXPECT_NEAR(x, 2.6484540326e-14, 1e-17);
    EXPECT_DOUBLE_EQ(y, 1.0);
}

TEST(CoordinateSystem, RoundTripsStayWithinTheirHalfPixel) {
    // Over random points and several skews, world -> pixel -> world: the
    // page form comes back within half a pixel, the point form within the
    // pixel after it (its extra half pixel), measured along the pixel axes.
    std::mt19937 random(1234);
    std::uniform_real_distribution<double> coordinate(-5000.0, 5000.0);
    for (const double skew : {0.0, 12.5, 30.0, -20.0, 37.0}) {
        CoordinateSystem cs;
        cs.SetSkew(skew);
        cs.SetRotationMode(ROTATION_SKEW);
        ASSERT_TRUE(cs.SetPixelWindow(0, 0, 1024, 768));
        ASSERT_TRUE(cs.SetWorldWindow(-4000, -3000, 4000, 3000));
        const Point scale = cs.GetScale();
        for (int i = 0; i < 2000; ++i) {
            const Point world(coordinate(random), coordinate(random));
            double px = 0, py = 0;
            cs.WorldToPixel(world.x, world.y, px, py);
            ASSERT_EQ(px, std::floor(px));

            auto pixelError = [&](double x, double y, double& ex, double& ey) {
                ex = x - world.x;
                ey = y - world.y;
                cs.RotateWtoP(ex, ey);
                ex *= scale.x;
                ey *= scale.y;
            };
            double ex = 0, ey = 0;
            Page back;
            cs.PixelToWorld(Page(px, py, px, py), back);
            pixelError(back.x1, back.y1, ex, ey);
            EXPECT_LE(std::fabs(ex), 0.5 + 1e-6) << skew << " " << world.ToString().ToUtf8();
            EXPECT_LE(std::fabs(ey), 0.5 + 1e-6) << skew << " " << world.ToString().ToUtf8();

            double x = 0, y = 0;
            cs.PixelToWorld(px, py, x, y);
            pixelError(x, y, ex, ey);
            EXPECT_TRUE(ex > -1e-6 && ex <= 1 + 1e-6) << skew << " " << ex;
            EXPECT_TRUE(ey > -1e-6 && ey <= 1 + 1e-6) << skew << " " << ey;
        }
    }
}

TEST(CoordinateSystem, CenterWorldAreaKeepsTheAspectAndFitsTheWholeArea) {
    struct Case {
        CRect pixels;
        Page area;
    };
    const Case cases[] = {
        {{0, 0, 800, 600}, {1000, 5000, 1400, 5200}},  // wide area: x is tight
        {{0, 0, 800, 600}, {0, 0, 10, 100}},           // tall area: y is tight
        {{0, 0, 300, 900}, {-50, -50, 50, 50}},        // tall screen
        {{10, 20, 110, 70}, {5e5, 6e6, 5.002e5, 6.0001e6}},
        {{0, 0, 640, 480}, {0, 0, 1000, 0}},  // a line along x: x alone decides
        {{0, 0, 640, 480}, {7, 0, 7, 50}},    // a line along y
    };
    for (const Case& c : cases) {
        CoordinateSystem cs;
        ASSERT_TRUE(cs.SetPixelWindow(c.pixels));
        ASSERT_TRUE(cs.CenterWorldAreaOnPixelWindow(c.area, 1.0));
        const Point s = cs.GetScale();
        EXPECT_GT(s.x, 0);
        EXPECT_NEAR(-s.y, s.x, s.x * 1e-12) << "equal scales on both axes";
        EXPECT_NEAR(cs.GetWorldCenter().x, (c.area.x1 + c.area.x2) / 2, 1e-6);
        EXPECT_NEAR(cs.GetWorldCenter().y, (c.area.y1 + c.area.y2) / 2, 1e-6);
        // Every corner lands inside the pixel window, and the area fills it
        // along one axis.
        double left = 0, bottom = 0, right = 0, top = 0;
        cs.WorldToPixel(c.area.x1, c.area.y1, left, bottom);
        cs.WorldToPixel(c.area.x2, c.area.y2, right, top);
        EXPECT_GE(left, c.pixels.left);
        EXPECT_LE(right, c.pixels.right);
        EXPECT_GE(top, c.pixels.top);
        EXPECT_LE(bottom, c.pixels.bottom);
        const bool fillsX = right - left >= c.pixels.Width() - 1;
        const bool fillsY = bottom - top >= c.pixels.Height() - 1;
        EXPECT_TRUE(fillsX || fillsY) << left << " " << right << " " << top << " " << bottom;
    }
}

TEST(CoordinateSystem, CenterWorldAreaZoomsAndKeepsTheSizeOfAPointArea) {
    CoordinateSystem cs;
    ASSERT_TRUE(cs.SetPixelWindow(0, 0, 800, 600));
    ASSERT_TRUE(cs.CenterWorldAreaOnPixelWindow(Page(1000, 5000, 1400, 5200), 1.0));
    EXPECT_EQ(cs.GetWorldWindow(), Page(1000, 4950, 1400, 5250));
    EXPECT_EQ(cs.WorldToPixel(Point(1200, 5100)), CPoint(400, 300));
    ASSERT_TRUE(cs.CenterWorldAreaOnPixelWindow(Page(1000, 5000, 1400, 5200), 2.0));
    EXPECT_EQ(cs.GetWorldWindow(), Page(1100, 5025, 1300, 5175));
    EXPECT_EQ(cs.GetScale(), Point(4, -4, 0));
    // A single point keeps the window's size and centres on the point.
    ASSERT_TRUE(cs.CenterWorldAreaOnPixelWindow(Page(0, 0, 0, 0), 1.0));
    EXPECT_EQ(cs.GetWorldWindow(), Page(-100, -75, 100, 75));
    // A zoom of zero has no window: refused.
    EXPECT_FALSE(cs.CenterWorldAreaOnPixelWindow(Page(0, 0, 10, 10), 0.0));
    EXPECT_EQ(cs.GetWorldWindow(), Page(-100, -75, 100, 75));
}

TEST(CoordinateSystem, WindowsFromAnotherSystemTakeItsScale) {
    CoordinateSystem other;  // scale (2, -2) about (200, 150)
    ASSERT_TRUE(other.SetPixelWindow(0, 0, 800, 600));
    ASSERT_TRUE(other.SetWorldWindow(0, 0, 400, 300));

    CoordinateSystem small;
    ASSERT_TRUE(small.SetPixelWindow(0, 0, 400, 200));
    ASSERT_TRUE(small.SetWorldWindowFromPoint(Point(1000, 1000, 9), other));
    EXPECT_EQ(small.GetWorldWindow(), Page(900, 950, 1100, 1050));
    EXPECT_EQ(small.GetScale(), other.GetScale());
    EXPECT_EQ(small.GetWorldCenter(), Point(1000, 1000, 0));

    CoordinateSystem square;
    ASSERT_TRUE(square.SetPixelWindow(0, 0, 400, 400));
    ASSERT_TRUE(square.SetWorldWindowFromCoordinateSystem(other, 1.0));
    EXPECT_EQ(square.GetWorldWindow(), Page(100, 50, 300, 250));
    EXPECT_EQ(square.GetScale(), Point(2, -2, 0));
    ASSERT_TRUE(square.SetWorldWindowFromCoordinateSystem(other, 2.0));
    EXPECT_EQ(square.GetWorldWindow(), Page(150, 100, 250, 200));
    EXPECT_EQ(square.GetScale(), Point(4, -4, 0));
}

TEST(CoordinateSystem, GetExtendBoxesThePageTurnedByTheSkew) {
    CoordinateSystem cs;
    const Page page(0, 0, 200, 100);
    cs.SetSkew(30);
    EXPECT_EQ(cs.GetExtend(page), page) << "not rotated in mode 0";
    cs.SetRotationMode(ROTATION_SKEW);
    const Page box = cs.GetExtend(page);
    // Half sizes: 100 cos 30 + 50 sin 30 = 111.60 and 100 sin 30 + 50 cos 30 = 93.30.
    EXPECT_NEAR(box.x1, 100 - 111.6025, 1e-3);
    EXPECT_NEAR(box.x2, 100 + 111.6025, 1e-3);
    EXPECT_NEAR(box.y1, 50 - 93.3013, 1e-3);
    EXPECT_NEAR(box.y2, 50 + 93.3013, 1e-3);
}

TEST(CoordinateSystem, ScaleValidityHasItsLimitsInclusive) {
    // World widths of 1e10 and 1e11 on one pixel: scales 1e-10 and 1e-11.
    CoordinateSystem cs;
    ASSERT_TRUE(cs.SetWorldWindow(0, 0, 1e10, 1e-10));  // scale (1e-10, -1e10)
    EXPECT_TRUE(cs.IsScaleValid());
    ASSERT_TRUE(cs.SetWorldWindow(0, 0, 1e11, 1));
    EXPECT_FALSE(cs.IsScaleValid());
    ASSERT_TRUE(cs.SetWorldWindow(0, 0, 1, 1e-11));
    EXPECT_FALSE(cs.IsScaleValid());
}

TEST(CoordinateSystem, EqualityLeavesOutTheScaleAndTheSkewOfUnturnedViews) {
    const CoordinateSystem base = Screen800();
    CoordinateSystem skewed = base;
    skewed.SetSkew(45);
    EXPECT_EQ(skewed, base) << "mode 0: the skew does not count";

    CoordinateSystem a = base;
    a.SetRotationMode(ROTATION_SKEW);
    CoordinateSystem b = a;
    EXPECT_NE(a, base) << "the mode counts";
    b.SetSkew(45);
    EXPECT_NE(a, b) << "mode 3: the skew counts";
    a.SetSkew(45);
    EXPECT_EQ(a, b);

    // Same windows, mode and skew, but only c saw a window change after the
    // skew: the scales differ and the systems still compare equal.
    CoordinateSystem c = a;
    ASSERT_TRUE(c.SetWorldWindow(c.GetWorldWindow()));
    EXPECT_NE(c.GetScale(), a.GetScale());
    EXPECT_EQ(c, a);
    ASSERT_TRUE(c.SetWorldWindow(0, 0, 801, 600));
    EXPECT_NE(c, a);
}

TEST(CoordinateSystem, IntegerFormsHoldFarAndUndefinedPositionsInRange) {
    CoordinateSystem cs = Screen800();
    EXPECT_EQ(cs.WorldToPixel(Point(1e300, -1e300)), CPoint(INT_MAX, INT_MAX));
    EXPECT_EQ(cs.WorldToPixel(Point(-1e300, 1e300)), CPoint(INT_MIN, INT_MIN));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(cs.WorldToPixel(Point(nan, 300)), CPoint(0, 300));
}

TEST(CoordinateSystem, BatchFormsMapAsThePointFormDoes) {
    std::mt19937 random(99);
    std::uniform_real_distribution<double> coordinate(-1000.0, 1000.0);
    std::vector<Point> points(500);
    std::vector<FloatPoint> floats(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        floats[i] = FloatPoint(static_cast<float>(coordinate(random)),
                               static_cast<float>(coordinate(random)));
        points[i] = floats[i];
    }
    for (const ROTATIONMODE mode : {ROTATION_NONE, ROTATION_SKEW}) {
        CoordinateSystem cs;
        cs.SetSkew(20);
        cs.SetRotationMode(mode);
        ASSERT_TRUE(cs.SetPixelWindow(0, 0, 640, 480));
        ASSERT_TRUE(cs.SetWorldWindow(-700, -500, 700, 500));
        std::vector<CPoint> fromDouble(points.size());
        std::vector<CPoint> fromFloat(points.size() - 10);  // shorter: only that many are mapped
        ASSERT_EQ(cs.WorldToPixel(std::span<const Point>(points), std::span<CPoint>(fromDouble)),
                  points.size());
        ASSERT_EQ(
            cs.WorldToPixel(std::span<const FloatPoint>(floats), std::span<CPoint>(fromFloat)),
            fromFloat.size());
        for (std::size_t i = 0; i < fromFloat.size(); ++i) {
            ASSERT_EQ(fromDouble[i], cs.WorldToPixel(points[i])) << i;
            ASSERT_EQ(fromFloat[i], fromDouble[i]) << i;
        }
    }
}

}  // namespace
}  // namespace vex
