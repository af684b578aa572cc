// The drawing members of the geometry types, tested as pictures: drawn on
// an SvgDC, rendered, and the pixels read where CoordinateSystem says the
// geometry lies.
#include <base/framework/SvgDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geometry/Curve.h>
#include <base/geometry/FloatPoint.h>
#include <base/geometry/Line.h>
#include <base/geometry/Point.h>

#include "../common/RenderedSvg.h"
#include "../common/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <regex>

namespace vex {
namespace {

using test::Rgb;

constexpr Rgb kWhite{255, 255, 255};
constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kGreen{0, 255, 0};

// 200 x 150 pixels showing world 1000..1100 east, 2000..2075 north: two
// pixels a metre, world centre (1050, 2037.5) on pixel (100, 75).
CoordinateSystem View(double skew = 0.0) {
    CoordinateSystem cs;
    cs.SetSkew(skew);
    cs.SetRotationMode(skew != 0.0 ? ROTATION_SKEW : ROTATION_NONE);
    EXPECT_TRUE(cs.SetPixelWindow(0, 0, 200, 150));
    EXPECT_TRUE(cs.CenterWorldAreaOnPixelWindow(Page(1000, 2000, 1100, 2075), 1.0));
    return cs;
}

SvgDC Surface() {
    SvgDC dc(200, 150);
    dc.SetPen(1, RGB(255, 0, 0));
    return dc;
}

std::optional<test::RenderedImage> Render(const SvgDC& dc) {
    test::TempFolder folder;
    const auto path = folder.Path() / "drawing.svg";
    EXPECT_TRUE(dc.Save(CString(path.u16string())));
    return test::RenderSvgFile(path);
}

// Red within a pixel of where the view maps p (a diagonal stroke spreads
// over its neighbours when rendered).
bool RedAround(const test::RenderedImage& image, const CoordinateSystem& cs, const Point& p) {
    const CPoint q = cs.WorldToPixel(p);
    return image.CountNear(kRed, q.x - 1, q.y - 1, q.x + 2, q.y + 2, 60) > 0;
}

bool WhiteAround(const test::RenderedImage& image, const CoordinateSystem& cs, const Point& p) {
    const CPoint q = cs.WorldToPixel(p);
    return image.CountNear(kWhite, q.x - 1, q.y - 1, q.x + 2, q.y + 2, 10) == 9;
}

// No coordinate of the document leaves the neighbourhood of the drawing:
// geometry far off the view must have been cut before it reached the SVG.
bool HasOnlyNearCoordinates(const std::string& document) {
    static const std::regex large("(^|[^0-9.])[0-9]{5,}");
    return !std::regex_search(document, large);
}

std::string PixelText(CPoint p) {
    char text[64];
    std::snprintf(text, sizeof text, "%g,%g", p.x + 0.5, p.y + 0.5);
    return text;
}

TEST(LineDrawing, EndsOnTheViewLandOnTheirMappedPixels) {
    const CoordinateSystem cs = View();
    SvgDC dc = Surface();
    const Line across(Point(1010, 2030), Point(1090, 2030));  // row 90, columns 20 to 180
    const Line slanted(Point(1005.3, 2003.1), Point(1071.2, 2070.9));
    ASSERT_TRUE(across.DrawLine(cs, dc));
    dc.SetPen(2, RGB(255, 0, 0));  // a slanted stroke one pixel wide renders pale
    ASSERT_TRUE(slanted.DrawLine(cs, dc));
    const std::string document = dc.GetDocument();
    EXPECT_NE(document.find(PixelText(cs.WorldToPixel(slanted.start)) + " " +
                            PixelText(cs.WorldToPixel(slanted.end))),
              std::string::npos)
        << document;

    auto image = Render(dc);
    if (!image) {
        GTEST_SKIP() << "no SVG renderer in this build";
    }
    for (const int x : {20, 40, 100, 140, 180}) {
        // The round caps of the ends cover their pixels a little less.
        EXPECT_TRUE(image->At(x, 90).IsNear(kRed, 40)) << x << " " << image->At(x, 90);
        EXPECT_TRUE(image->At(x, 88).IsNear(kWhite, 10)) << x;
        EXPECT_TRUE(image->At(x, 92).IsNear(kWhite, 10)) << x;
    }
    EXPECT_TRUE(image->At(17, 90).IsNear(kWhite, 10)) << "the line stops at its end";
    for (const double t : {0.1, 0.5, 0.9}) {
        const Point on = slanted.start + (slanted.end - slanted.start) * t;
        EXPECT_TRUE(RedAround(*image, cs, on)) << t;
        EXPECT_TRUE(WhiteAround(*image, cs, on + Point(4, -4))) << t;
    }
}

TEST(LineDrawing, LinesAreCutToTheViewAndToTheirPage) {
    const CoordinateSystem cs = View();
    SvgDC dc = Surface();
    // Far beyond the view on both sides: only the seen part reaches the SVG.
    EXPECT_TRUE(Line(Point(-1e12, 2030), Point(1e12, 2030)).DrawLine(cs, dc));
    EXPECT_TRUE(Line(Point(1020, -5e9), Point(1020, 5e9)).DrawLine(cs, dc));
    // Cut to a world page: drawn east of 1070 only.
    EXPECT_TRUE(
        Line(Point(1000, 2060), Point(1100, 2060)).DrawLine(cs, dc, Page(1070, 2000, 1200, 2100)));
    const std::string before = dc.GetDocument();
    // Off the view, off the page, or not a number: nothing is drawn.
    EXPECT_FALSE(Line(Point(1200, 2000), Point(1300, 2100)).DrawLine(cs, dc));
    EXPECT_FALSE(
        Line(Point(1000, 2060), Point(1060, 2060)).DrawLine(cs, dc, Page(1070, 2000, 1200, 2100)));
    EXPECT_FALSE(Line(Point(std::nan(""), 2060), Point(1060, 2060)).DrawLine(cs, dc));
    EXPECT_EQ(dc.GetDocument(), before);
    EXPECT_TRUE(HasOnlyNearCoordinates(before)) << before;

    auto image = Render(dc);
    if (!image) {
        GTEST_SKIP() << "no SVG renderer in this build";
    }
    EXPECT_TRUE(image->At(0, 90).IsNear(kRed, 10));
    EXPECT_TRUE(image->At(199, 90).IsNear(kRed, 10));
    EXPECT_TRUE(image->At(40, 0).IsNear(kRed, 10));
    EXPECT_TRUE(image->At(40, 149).IsNear(kRed, 10));
    const CPoint inPage = cs.WorldToPixel(Point(1085, 2060));
    const CPoint outOfPage = cs.WorldToPixel(Point(1050, 2060));
    EXPECT_TRUE(image->At(inPage.x, inPage.y).IsNear(kRed, 10));
    EXPECT_TRUE(image->At(outOfPage.x, outOfPage.y).IsNear(kWhite, 10));
}

TEST(LineDrawing, AnnotationsSitBesideTheVisibleMiddle) {
    const CoordinateSystem cs = View();
    SvgDC dc = Surface();
    dc.SetTextColor(RGB(0, 0, 255));
    dc.SetFontSize(14);
    const unsigned align = dc.GetTextAlign();
    // The visible part runs from x 1000 to 1100: its middle is column 100.
    ASSERT_TRUE(Line(Point(-5000, 2030), Point(1100, 2030)).AnnotateLine(cs, dc, CString(u"edge")));
    EXPECT_EQ(dc.GetTextAlign(), align) << "the caller's alignment is kept";
    EXPECT_FALSE(Line(Point(2000, 2030), Point(2100, 2030)).PlaceText(cs, dc, CString(u"gone")));
    const std::string document = dc.GetDocument();
    EXPECT_NE(document.find(">edge</text>"), std::string::npos);
    EXPECT_EQ(document.find("gone"), std::string::npos);

    auto image = Render(dc);
    if (!image) {
        GTEST_SKIP() << "no SVG renderer in this build";
    }
    // Blue text above row 90 about column 100, none below the line.
    EXPECT_GT(image->CountNear(Rgb{0, 0, 255}, 80, 70, 120, 88, 100), 10);
    EXPECT_EQ(image->CountNear(Rgb{0, 0, 255}, 60, 92, 140, 120, 100), 0);
}

TEST(PointDrawing, MarksAreCentredOnTheMappedPixel) {
    const CoordinateSystem cs = View();
    SvgDC dc = Surface();
    const Point p(1050, 2050);  // pixel (100, 50)
    ASSERT_EQ(cs.WorldToPixel(p), CPoint(100, 50));
    ASSERT_TRUE(p.DrawCross(cs, dc, 4));
    ASSERT_TRUE(Point(1025, 2050).DrawDot(cs, dc, 3));                            // pixel (50, 50)
    ASSERT_TRUE(Point(1075, 2050).DrawSymbol(cs, dc, SYMBOL_SQUARE, 5));          // pixel (150, 50)
    ASSERT_TRUE(FloatPoint(1025.0f, 2020.0f).DrawPixel(cs, dc, RGB(0, 255, 0)));  // pixel (50, 110)
    ASSERT_TRUE(FloatPoint(1075.0f, 2020.0f).DrawSymbol(cs, dc, SYMBOL_DIAGONAL_CROSS, 4));
    EXPECT_FALSE(dc.HasBrush()) << "the dot's fill does not stay behind";
    const std::string before = dc.GetDocument();
    EXPECT_FALSE(Point(1300, 2050).DrawCross(cs, dc, 4));
    EXPECT_FALSE(Point(1050, 2050).DrawSymbol(cs, dc, static_cast<PointSymbol>(42), 4));
    EXPECT_FALSE(Point(1e300, 1e300).DrawDot(cs, dc, 3));
    EXPECT_EQ(dc.GetDocument(), before);

    auto image = Render(dc);
    if (!image) {
        GTEST_SKIP() << "no SVG renderer in this build";
    }
    struct Probe {
        int x, y;
        Rgb colour;
    };
    const Probe probes[] = {
        {100, 50, kRed},   {96, 50, kRed},    {104, 50, kRed},   {100, 46, kRed},
        {100, 54, kRed},   {102, 48, kWhite}, {107, 50, kWhite},  // cross: arms only
        {50, 50, kRed},    {52, 50, kRed},    {50, 48, kRed},     // dot: filled
        {150, 50, kWhite}, {155, 50, kRed},   {145, 52, kRed},   {152, 55, kRed},  // square outline
        {50, 110, kGreen}, {51, 110, kWhite},                                      // one pixel
        {150, 110, kRed},  {147, 107, kRed},  {153, 113, kRed},  {150, 106, kWhite},  // diagonal
                                                                                      // cross
    };
    for (const Probe& probe : probes) {
        EXPECT_TRUE(image->At(probe.x, probe.y).IsNear(probe.colour, 60))
            << probe.x << "," << probe.y << ": " << image->At(probe.x, probe.y);
    }
}

TEST(CurveDrawing, ArcsAreDrawnAsArcsTurningTheirWay) {
    // Centre (1050, 2037.5) on pixel (100, 75), radius 10 m;
    // from north to east through north-east, clockwise for a positive radius.
    struct Case {
        double radius;
        double skew;
        bool northEast;  // the short way, clockwise
    };
    const Case cases[] = {{10, 0, true}, {-10, 0, false}, {10, 20, true}, {-10, 20, false}};
    for (const Case& c : cases) {
        const CoordinateSystem cs = View(c.skew);
        SvgDC dc = Surface();
        dc.SetPen(2, RGB(255, 0, 0));
        const Curve arc(Point(1050, 2037.5), c.radius, 0, 90);  // 20 pixels in the upright view
        ASSERT_TRUE(arc.DrawCurve(cs, dc));
        EXPECT_EQ(dc.GetArcDirection(), AD_COUNTERCLOCKWISE) << "the caller's direction is kept";
        if (c.skew == 0) {
            EXPECT_NE(dc.GetDocument().find("<path d=\"M "), std::string::npos)
                << "an arc, not a polyline";
        }
        auto image = Render(dc);
        if (!image) {
            GTEST_SKIP() << "no SVG renderer in this build";
        }
        for (const double bearing : {0.0, 90.0}) {
            EXPECT_TRUE(RedAround(*image, cs, arc.AngleToPoint(bearing)))
                << c.radius << " " << bearing;
        }
        EXPECT_EQ(RedAround(*image, cs, arc.AngleToPoint(45)), c.northEast)
            << c.radius << " " << c.skew;
        EXPECT_EQ(RedAround(*image, cs, arc.AngleToPoint(225)), !c.northEast)
            << c.radius << " " << c.skew;
        EXPECT_TRUE(WhiteAround(*image, cs, arc.GetCentre())) << "an arc is not filled";
    }
}

TEST(CurveDrawing, LargeCirclesAndSectorsStayOnTheView) {
    const CoordinateSystem cs = View();
    SvgDC dc = Surface();
    // A circle of 10000 km through the middle of the view: 2e7 pixels wide,
    // drawn as a fine polyline of the part that is seen.
    const Curve huge(Point(1050, 2037.5 - 1e7), 1e7, 0, 360);
    ASSERT_TRUE(huge.DrawCurve(cs, dc));
    // A sector: arc and both radii.
    const Curve sector(Point(1030, 2020), 12, 90, 180);
    ASSERT_TRUE(sector.DrawSegment(cs, dc));
    // No sweep, or wholly off the view: nothing.
    const std::string before = dc.GetDocument();
    EXPECT_FALSE(Curve(Point(1050, 2037.5), 10, 30, 30).DrawCurve(cs, dc));
    EXPECT_FALSE(Curve(Point(5000, 2037.5), 10, 0, 360).DrawSegment(cs, dc));
    EXPECT_EQ(dc.GetDocument(), before);
    EXPECT_TRUE(HasOnlyNearCoordinates(before));

    auto image = Render(dc);
    if (!image) {
        GTEST_SKIP() << "no SVG renderer in this build";
    }
    for (const double x : {1001.0, 1050.0, 1099.0}) {
        EXPECT_TRUE(RedAround(*image, cs, Point(x, 2037.5))) << x;
    }
    EXPECT_TRUE(RedAround(*image, cs, Point(1036, 2020))) << "the radius to the east end";
    EXPECT_TRUE(RedAround(*image, cs, Point(1030, 2014))) << "the radius to the south end";
    EXPECT_TRUE(RedAround(*image, cs, sector.AngleToPoint(135)));
    EXPECT_TRUE(WhiteAround(*image, cs, sector.AngleToPoint(315)));
}

}  // namespace
}  // namespace vex
