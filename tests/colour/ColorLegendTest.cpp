// The colour legend, rendered as a picture and read back pixel by pixel,
// and its labelling of thin bands watched through a recording surface.
#include <base/colour/ColorLegend.h>
#include <base/framework/SvgDC.h>

#include "../common/RenderedSvg.h"
#include "../common/TempFolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace vex {
namespace {

test::Rgb ToRgb(COLORREF c) {
    return {static_cast<int>(GetRValue(c)), static_cast<int>(GetGValue(c)),
            static_cast<int>(GetBValue(c))};
}

TEST(ColorLegend, BandsRiseFromTheLowColourInTheTableOrder) {
    ColorTable table;
    table.SetLowColor(RGB(255, 0, 0));
    table.AddEntry(0.0, RGB(0, 160, 0), false, u"");
    table.AddEntry(2.5, RGB(0, 0, 255), false, u"tolerance");
    table.AddEntry(10.0, RGB(255, 255, 0), false, u"");
    table.AddEntry(100.0, RGB(255, 0, 255), false, u"");
    SvgDC dc(200, 312);
    ColorLegendStyle style;
    style.title = u"m";
    ASSERT_TRUE(DrawColorLegend(dc, table, CRect(0, 0, 200, 312), style));

    test::TempFolder folder;
    const auto path = folder.Path("legend.svg");
    ASSERT_TRUE(dc.Save(CString(path.u16string())));
    const auto image = test::RenderSvgFile(path);
    if (!image) GTEST_SKIP() << "no SVG renderer in this build";

    // The bar spans x 6 .. 34 and y 30 .. 306 (title line above): five bands
    // of 55 pixels, LowColor at the bottom.
    const int x = 20;
    const COLORREF expected[] = {RGB(255, 0, 0), RGB(0, 160, 0), RGB(0, 0, 255), RGB(255, 255, 0),
                                 RGB(255, 0, 255)};
    for (int band = 0; band < 5; ++band) {
        const int y = 306 - band * 55 - 27;
        EXPECT_TRUE(image->At(x, y).IsNear(ToRgb(expected[band]), 10))
            << "band " << band << " is " << image->At(x, y);
    }
    // Labels sit right of the bar, level with each boundary; nothing is
    // drawn further right than the text could reach.
    for (int boundary = 1; boundary <= 4; ++boundary) {
        const int y = 306 - boundary * 55;
        EXPECT_GT(image->CountNear(test::Rgb{0, 0, 0}, 40, y - 8, 200, y + 6, 100), 5)
            << "no label at boundary " << boundary;
    }
    EXPECT_EQ(image->CountNear(test::Rgb{0, 0, 0}, 40, 200, 200, 240, 100), 0);  // mid-band
    EXPECT_TRUE(image->At(20, 3).IsNear(test::Rgb{255, 255, 255}, 10));
}

// Records where text goes, to check the labels of a long table.
class RecordingDC : public CDC {
  public:
    bool Polyline(const CPoint*, int) override { return true; }
    bool Polygon(const CPoint*, int) override { return true; }
    bool Rectangle(int, int, int, int) override {
        ++rectangles;
        return true;
    }
    bool Ellipse(int, int, int, int) override { return true; }
    bool Arc(int, int, int, int, int, int, int, int) override { return true; }
    COLORREF SetPixel(int, int, COLORREF c) override { return c; }
    bool TextOut(int, int y, const CString& text) override {
        labels.push_back({y, text});
        return true;
    }
    struct Label {
        int y;
        CString text;
    };
    std::vector<Label> labels;
    int rectangles = 0;
};

TEST(ColorLegend, ThinBandsAreLabelledWithoutOverlap) {
    ColorTable table;
    table.SetRange(0.0, 254.0, 256, true, false);  // 255 entries
    RecordingDC dc;
    ColorLegendStyle style;
    style.fontSize = 12;
    ASSERT_TRUE(DrawColorLegend(dc, table, CRect(0, 0, 160, 400), style));
    EXPECT_EQ(dc.rectangles, 256 + 1);  // every band and the frame
    ASSERT_GT(dc.labels.size(), 10u);
    EXPECT_EQ(dc.labels.front().text, CString(u"0"));
    for (std::size_t i = 1; i < dc.labels.size(); ++i) {
        EXPECT_GE(dc.labels[i - 1].y - dc.labels[i].y, 13) << i;  // upwards, a line apart
    }
    EXPECT_FALSE(DrawColorLegend(dc, table, CRect(0, 0, 20, 400), style));  // too narrow
}

}  // namespace
}  // namespace vex
