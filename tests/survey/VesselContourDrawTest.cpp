#include <base/framework/SvgDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/survey/VesselContour.h>

#include "../common/RenderedSvg.h"
#include "../common/TempFolder.h"

#include <gtest/gtest.h>

#include <climits>

namespace vex {
namespace {

using test::Rgb;

constexpr Rgb kWhite{255, 255, 255};
constexpr Rgb kRed{255, 0, 0};

// World (x, y) lands on pixel (50 + 10 x, 150 - 10 y).
CoordinateSystem TenPixelsPerMetre() {
    CoordinateSystem view;
    view.SetPixelWindow(0, 0, 200, 200);
    view.SetWorldWindow(-5.0, -5.0, 15.0, 15.0);
    return view;
}

// A 10 m square, left open: drawing closes it.
VesselContour Square(bool flagFirst, bool flagThird) {
    VesselContour contour;
    contour.SetPenWidth(3);
    contour.SetPenColor(0x0000FF);  // red, 0x00BBGGRR
    contour.AddPoint(VesselPoint(Point(0, 0), flagFirst, false));
    contour.AddPoint(VesselPoint(Point(10, 0), false, false));
    contour.AddPoint(VesselPoint(Point(10, 10), false, flagThird));
    contour.AddPoint(VesselPoint(Point(0, 10), false, false));
    return contour;
}

std::optional<test::RenderedImage> Render(const SvgDC& dc, const test::TempFolder& folder) {
    const auto path = folder.Path("contour.svg");
    EXPECT_TRUE(dc.Save(CString(path.u16string())));
    return test::RenderSvgFile(path);
}

TEST(VesselContourDraw, TheClosedOutlineAndItsMarksLandWhereThePointsMap) {
    struct Case {
        bool flagA, flagB;
    };
    for (const Case c : {Case{false, false}, Case{true, true}}) {
        SvgDC dc(200, 200);
        dc.SetPen(2, RGB(0, 0, 255));
        ASSERT_TRUE(Square(c.flagA, c.flagB).Draw(dc, TenPixelsPerMetre()));
        EXPECT_EQ(dc.GetPenWidth(), 2) << "the caller's pen is put back";
        EXPECT_EQ(dc.GetPenColor(), RGB(0, 0, 255));
        EXPECT_FALSE(dc.HasBrush());

        test::TempFolder folder;
        auto image = Render(dc, folder);
        if (!image) GTEST_SKIP() << "no SVG renderer in this build";
        // Edge middles, the closing edge last.
        for (const auto& [x, y] : {std::pair{100, 150}, {150, 100}, {100, 50}, {50, 100}}) {
            EXPECT_TRUE(image->At(x, y).IsNear(kRed)) << x << ", " << y << ": " << image->At(x, y);
        }
        EXPECT_TRUE(image->At(100, 100).IsNear(kWhite, 10)) << "the outline is not filled";
        EXPECT_TRUE(image->At(100, 146).IsNear(kWhite, 10)) << "a 3-pixel pen stays 3 wide";
        // Flag A: a square about (50, 150); flag B: a circle about (150, 50).
        // Looked for where they leave the outline: below it and above it.
        const int square = image->CountNear(kRed, 40, 153, 60, 160);
        const int circle = image->CountNear(kRed, 140, 40, 160, 47);
        EXPECT_EQ(square > 0, c.flagA) << square;
        EXPECT_EQ(circle > 0, c.flagB) << circle;
    }
}

TEST(VesselContourDraw, ASideViewIsDrawnInItsOwnPlane) {
    test::TempFolder folder;
    test::WriteBytes(folder.Path("hull.ves"),
                     "[LEFT POINTS]\r\nPoint(1)=0,0,1\r\nPoint(2)=10,0,0\r\n"
                     "Point(3)=10,10,2\r\nPoint(4)=0,10,0\r\n"
                     "[DRAW]\r\nPenWidth=3\r\nPenColor=255\r\n");
    VesselContour converted;
    ASSERT_TRUE(converted.Create(folder.File("hull.ves"), VesselContour::viewLeft, true));
    VesselPoint third;
    converted.GetPoint(3, third);
    ASSERT_EQ(third.GetPoint(), Point(0, 10, 10));

    SvgDC fromFile(200, 200);
    SvgDC byHand(200, 200);
    converted.Draw(fromFile, TenPixelsPerMetre());
    Square(true, true).Draw(byHand, TenPixelsPerMetre());
    EXPECT_EQ(fromFile.GetDocument(), byHand.GetDocument());

    SvgDC untouched(200, 200);
    EXPECT_FALSE(VesselContour().Draw(untouched, TenPixelsPerMetre()));
    EXPECT_EQ(untouched.GetDocument(), SvgDC(200, 200).GetDocument());
}

// Found by fuzzing: marks of points far off the view, with the widest pen a
// file can hold, overflowed the corner arithmetic (the sanitizer build
// stops on that).
TEST(VesselContourDraw, FarPointsAndHugePensDrawWithoutOverflow) {
    VesselContour contour;
    contour.SetPenWidth(INT_MAX);
    contour.AddPoint(VesselPoint(Point(1e300, -1e300), true, true));
    contour.AddPoint(VesselPoint(Point(-1e300, 1e300), true, true));
    CoordinateSystem view;
    view.SetPixelWindow(0, 0, 64, 48);
    SvgDC dc(64, 48);
    EXPECT_TRUE(contour.Draw(dc, view));
    EXPECT_NE(dc.GetDocument().find("<rect"), std::string::npos) << "the marks are drawn";
}

}  // namespace
}  // namespace vex
