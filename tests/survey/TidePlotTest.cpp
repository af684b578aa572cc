#include <base/framework/SvgDC.h>
#include <base/survey/TidePlot.h>
#include <base/time/ExTime.h>

#include <tests/common/RenderedSvg.h>
#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace vex {
namespace {

const test::Rgb kCurve{0, 70, 200};
constexpr double kDayMs = 86400000.0;

// 2026-11-20 00:00 UTC.
double Start() {
    return static_cast<double>(CExTime::UtcDateToTime(2026, 11, 20, 0, 0, 0)) * 1000.0;
}

// One day at 10-minute steps, the height rising evenly from 0 to 2.
TideFile RisingDay() {
    TideFile tide;
    for (int i = 0; i <= 144; ++i)
        tide.AddTideValue(Start() + i * 600000.0, i / 72.0);
    return tide;
}

// The rows of the curve's pixels in column x, top to bottom.
std::vector<int> CurveRows(const test::RenderedImage& image, int x) {
    std::vector<int> rows;
    for (int y = 0; y < image.Height(); ++y)
        if (image.At(x, y).IsNear(kCurve, 60)) rows.push_back(y);
    return rows;
}

double Middle(const std::vector<int>& rows) {
    return rows.empty() ? -1 : (rows.front() + rows.back()) / 2.0;
}

TEST(TidePlot, TheCurveRisesAcrossTheFrameWithTimeAndHeight) {
    test::TempFolder folder;
    const CRect area(0, 0, 600, 400);
    const CRect frame = TidePlotFrame(area);
    ASSERT_GT(frame.Width(), 300);
    ASSERT_GT(frame.Height(), 200);
    SvgDC dc(600, 400);
    ASSERT_TRUE(DrawTideCurve(dc, RisingDay(), area, u"Rising"));
    const std::string svg = dc.GetDocument();
    // Four-hourly UTC labels, the date where it changes, the axis titles.
    for (const char* text : {">00:00<", ">04:00<", ">20:00<", ">2026-11-20<", ">2026-11-21<",
                             ">Time (UTC)<", ">Height<", ">Rising<", ">1.0<"}) {
        EXPECT_NE(svg.find(text), std::string::npos) << text;
    }
    ASSERT_TRUE(dc.Save(folder.File("plot.svg")));
    auto image = test::RenderSvgFile(folder.Path("plot.svg"));
    if (!image) GTEST_SKIP() << "no SVG renderer in this build";

    // Heights 0..2 with a twentieth spare: 0 lies 1/22 of the frame above
    // its bottom, 2 lies 1/22 below its top, 1 in the middle.
    const double top = frame.top, height = frame.Height();
    const struct {
        double across;  // fraction of the frame's width (and of the day)
        double heightFraction;
    } points[] = {{0.02, 0.02}, {0.25, 0.25}, {0.5, 0.5}, {0.75, 0.75}, {0.98, 0.98}};
    for (const auto& p : points) {
        const int x = frame.left + static_cast<int>(p.across * (frame.Width() - 1));
        const double expectedY = top + height - 1 - (1 + 20 * p.heightFraction) / 22 * (height - 1);
        const auto rows = CurveRows(*image, x);
        ASSERT_FALSE(rows.empty()) << "no curve in column " << x;
        EXPECT_NEAR(Middle(rows), expectedY, 3) << "column " << x;
        EXPECT_LE(rows.back() - rows.front(), 6) << "one thin curve in column " << x;
    }
    // Nothing of the curve's colour outside the frame.
    const int inside = image->CountNear(kCurve, frame.left - 2, frame.top - 2, frame.right + 2,
                                        frame.bottom + 2, 60);
    EXPECT_EQ(image->CountNear(kCurve, 0, 0, 600, 400, 60), inside);
}

TEST(TidePlot, UndrawableValuesBreakTheCurveAndTooFewDrawNothing) {
    TideFile tide = RisingDay();
    tide.UpdateTideValue(Start() + 72 * 600000.0, std::numeric_limits<double>::quiet_NaN());
    test::TempFolder folder;
    const CRect area(0, 0, 600, 400);
    const CRect frame = TidePlotFrame(area);
    SvgDC dc(600, 400);
    ASSERT_TRUE(DrawTideCurve(dc, tide, area));
    ASSERT_TRUE(dc.Save(folder.File("gap.svg")));
    if (auto image = test::RenderSvgFile(folder.Path("gap.svg"))) {
        const int middle = frame.left + (frame.Width() - 1) / 2;
        EXPECT_TRUE(CurveRows(*image, middle).empty()) << "the NaN left no gap";
        EXPECT_FALSE(CurveRows(*image, middle - 12).empty());
        EXPECT_FALSE(CurveRows(*image, middle + 12).empty());
    }

    SvgDC unused(600, 400);
    const std::string blank = unused.GetDocument();
    TideFile one;
    one.AddTideValue(Start(), 1);
    EXPECT_FALSE(DrawTideCurve(unused, one, area));
    one.AddTideValue(Start() + kDayMs, std::numeric_limits<double>::infinity());
    EXPECT_FALSE(DrawTideCurve(unused, one, area));
    one.AddTideValue(Start() + kDayMs, 2);
    EXPECT_FALSE(DrawTideCurve(unused, one, CRect(0, 0, 80, 80)));  // no room for a frame
    EXPECT_EQ(unused.GetDocument(), blank);
    EXPECT_TRUE(DrawTideCurve(unused, one, area));
}

}  // namespace
}  // namespace vex
