#include <base/framework/SvgDC.h>

#include "../common/RenderedSvg.h"
#include "../common/TempFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

namespace vex {
namespace {

using test::Rgb;

constexpr Rgb kWhite{255, 255, 255};
constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kBlue{0, 0, 255};
constexpr Rgb kGreen{0, 128, 0};

std::optional<test::RenderedImage> Render(const SvgDC& dc, const test::TempFolder& folder) {
    const auto path = folder.Path() / "drawing.svg";
    EXPECT_TRUE(dc.Save(CString(path.u16string())));
    return test::RenderSvgFile(path);
}

TEST(CDC, KeepsTheDrawingStateAndRefusesUnknownArcDirections) {
    SvgDC dc(10, 10);
    dc.SetPen(0, RGB(1, 2, 3));
    EXPECT_EQ(dc.GetPenWidth(), 1);  // a zero-width pen draws one pixel wide
    EXPECT_EQ(dc.GetPenColor(), RGB(1, 2, 3));
    EXPECT_FALSE(dc.HasBrush());
    EXPECT_EQ(dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    EXPECT_EQ(dc.SetArcDirection(7), 0);
    EXPECT_EQ(dc.GetArcDirection(), AD_CLOCKWISE);
    dc.MoveTo(3, 4);
    EXPECT_TRUE(dc.LineTo(5, 6));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(5, 6));
    const CPoint one[1] = {CPoint(1, 1)};
    EXPECT_FALSE(dc.Polyline(one, 1));
    EXPECT_FALSE(dc.Polygon(nullptr, 3));
}

TEST(SvgDC, LinesAndFillsLandOnTheirPixels) {
    test::TempFolder folder;
    SvgDC dc(100, 80);
    dc.SetPen(1, RGB(255, 0, 0));
    dc.MoveTo(10, 20);
    dc.LineTo(90, 20);  // one pixel row: y = 20
    dc.SetPen(1, RGB(0, 128, 0));
    dc.SetBrush(RGB(0, 0, 255));
    dc.Rectangle(20, 40, 60, 70);  // outline on x = 20 and x = 59, filled inside
    dc.SetPixel(95, 5, RGB(255, 0, 0));

    auto image = Render(dc, folder);
    if (!image) {
        GTEST_SKIP() << "no SVG renderer in this build";
    }
    ASSERT_EQ(image->Width(), 100);
    ASSERT_EQ(image->Height(), 80);
    EXPECT_TRUE(image->At(50, 20).IsNear(kRed, 10)) << image->At(50, 20);
    EXPECT_TRUE(image->At(50, 18).IsNear(kWhite, 10)) << image->At(50, 18);
    EXPECT_TRUE(image->At(50, 22).IsNear(kWhite, 10)) << image->At(50, 22);
    EXPECT_TRUE(image->At(40, 55).IsNear(kBlue, 10)) << image->At(40, 55);
    EXPECT_TRUE(image->At(20, 55).IsNear(kGreen, 10)) << image->At(20, 55);
    EXPECT_TRUE(image->At(59, 55).IsNear(kGreen, 10)) << image->At(59, 55);
    EXPECT_TRUE(image->At(61, 55).IsNear(kWhite, 10)) << image->At(61, 55);
    EXPECT_TRUE(image->At(95, 5).IsNear(kRed, 10)) << image->At(95, 5);
    EXPECT_TRUE(image->At(5, 75).IsNear(kWhite, 10)) << "the background is white";
}

TEST(SvgDC, ArcsTurnTheWayTheArcDirectionSays) {
    // A quarter from east to north counterclockwise; the same rays drawn
    // clockwise give the other three quarters.
    struct Case {
        int direction;
        bool northEastDrawn;
        bool southWestDrawn;
    };
    for (const Case c : {Case{AD_COUNTERCLOCKWISE, true, false}, Case{AD_CLOCKWISE, false, true}}) {
        test::TempFolder folder;
        SvgDC dc(200, 200);
        dc.SetPen(3, RGB(255, 0, 0));
        dc.SetArcDirection(c.direction);
        // Circle about (100, 100), radius 50; start ray east, end ray north.
        ASSERT_TRUE(dc.Arc(50, 50, 151, 151, 180, 100, 100, 20));
        auto image = Render(dc, folder);
        if (!image) {
            GTEST_SKIP() << "no SVG renderer in this build";
        }
        const int d = static_cast<int>(std::lround(50 / std::sqrt(2.0)));
        const int ne = image->CountNear(kRed, 100 + d - 2, 100 - d - 2, 100 + d + 3, 100 - d + 3);
        const int sw = image->CountNear(kRed, 100 - d - 2, 100 + d - 2, 100 - d + 3, 100 + d + 3);
        EXPECT_EQ(ne > 0, c.northEastDrawn) << "direction " << c.direction;
        EXPECT_EQ(sw > 0, c.southWestDrawn) << "direction " << c.direction;
        EXPECT_TRUE(image->At(100, 100).IsNear(kWhite, 10)) << "an arc is not filled";
    }
}

TEST(SvgDC, TextIsEscapedAndTheDocumentStandsAlone) {
    SvgDC dc(120, 40);
    dc.SetTextColor(RGB(0, 0, 255));
    dc.SetTextAlign(TA_CENTER | TA_BASELINE);
    dc.TextOut(60, 30, CString(u"a<b & \u00B0c"));
    const std::string document = dc.GetDocument();
    EXPECT_EQ(document.rfind("<?xml version=\"1.0\" encoding=\"UTF-8\"?>", 0), 0u);
    EXPECT_NE(document.find("viewBox=\"0 0 120 40\""), std::string::npos);
    EXPECT_NE(document.find("a&lt;b &amp; \xC2\xB0"
                            "c"),
              std::string::npos);
    EXPECT_NE(document.find("text-anchor=\"middle\""), std::string::npos);
    EXPECT_NE(document.find("fill=\"#0000ff\""), std::string::npos);

    test::TempFolder folder;
    auto image = Render(dc, folder);
    if (!image) {
        GTEST_SKIP() << "no SVG renderer in this build";
    }
    EXPECT_GT(image->CountNear(kBlue, 30, 10, 90, 35, 100), 10) << "the text is drawn in blue";
}

TEST(SvgDC, AFailedSaveLeavesTheOldFile) {
    test::TempFolder folder;
    const auto path = folder.Path() / "keep.svg";
    std::ofstream(path) << "old";
    SvgDC dc(10, 10);
    EXPECT_FALSE(dc.Save(CString((folder.Path() / "missing" / "x.svg").u16string())));
    EXPECT_TRUE(dc.Save(CString(path.u16string())));
    EXPECT_EQ(test::ReadBytes(path), dc.GetDocument());
}

}  // namespace
}  // namespace vex
