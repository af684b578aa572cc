#include <base/survey/LineData.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace vex {
namespace {

class MemoryLine : public LineData {
  public:
    explicit MemoryLine(std::vector<ProfilePoint> points) : delivered_(std::move(points)) {}
    bool LoadLineData(const CString& file, const CString& name, const CenterLine* centre) override {
        Points() = delivered_;
        return LineData::LoadLineData(file, name, centre);
    }

  private:
    std::vector<ProfilePoint> delivered_;
};

// A polyline from plan vertices, chainage the running length, z = chainage / 10.
std::vector<ProfilePoint> Polyline(const std::vector<std::pair<double, double>>& xy) {
    std::vector<ProfilePoint> points;
    double chainage = 1.0;  // not 0.0, which would count as missing
    for (std::size_t i = 0; i < xy.size(); ++i) {
        if (i > 0) {
            chainage += std::hypot(xy[i].first - xy[i - 1].first, xy[i].second - xy[i - 1].second);
        }
        points.push_back({xy[i].first, xy[i].second, chainage / 10.0, chainage, i == 0});
    }
    return points;
}

// Independent of the library: distance from a point to a segment, and
// whether two segments cross.
double SegmentDistance(double px, double py, const ProfilePoint& a, const ProfilePoint& b) {
    const double ex = b.x - a.x, ey = b.y - a.y;
    const double l2 = ex * ex + ey * ey;
    const double t =
        l2 == 0 ? 0 : std::fmax(0, std::fmin(1, ((px - a.x) * ex + (py - a.y) * ey) / l2));
    return std::hypot(px - (a.x + t * ex), py - (a.y + t * ey));
}

double PolylineDistance(double px, double py, const std::vector<ProfilePoint>& line) {
    double best = INFINITY;
    for (std::size_t i = 1; i < line.size(); ++i) {
        best = std::fmin(best, SegmentDistance(px, py, line[i - 1], line[i]));
    }
    return best;
}

double Orientation(const ProfilePoint& a, const ProfilePoint& b, const ProfilePoint& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool SegmentsCross(const ProfilePoint& a, const ProfilePoint& b, const ProfilePoint& c,
                   const ProfilePoint& d) {
    const double o1 = Orientation(a, b, c), o2 = Orientation(a, b, d);
    const double o3 = Orientation(c, d, a), o4 = Orientation(c, d, b);
    return o1 * o2 < 0 && o3 * o4 < 0;
}

// Checks every property of an offset line against its source.
void ExpectValidOffset(const std::vector<ProfilePoint>& source, double offset,
                       const std::vector<ProfilePoint>& result, const char* what) {
    SCOPED_TRACE(what);
    ASSERT_FALSE(result.empty());
    EXPECT_TRUE(result.front().segmentStart);
    for (std::size_t i = 0; i < result.size(); ++i) {
        const ProfilePoint& p = result[i];
        EXPECT_NEAR(PolylineDistance(p.x, p.y, source), std::abs(offset), 1e-9) << "point " << i;
        if (i > 0) {
            EXPECT_GE(p.chainage, result[i - 1].chainage) << "point " << i;
            EXPECT_GE(std::hypot(p.x - result[i - 1].x, p.y - result[i - 1].y), 0.1) << i;
        }
    }
    for (std::size_t i = 1; i < result.size(); ++i) {
        for (std::size_t j = i + 2; j < result.size(); ++j) {
            EXPECT_FALSE(SegmentsCross(result[i - 1], result[i], result[j - 1], result[j]))
                << "edges " << i << " and " << j << " cross";
        }
    }
}

std::vector<ProfilePoint> Offset(const std::vector<ProfilePoint>& source, double offset,
                                 double zShift = 0.0) {
    OffsetLineData line(new MemoryLine(source), true);
    line.SetOffset(offset);
    line.SetZShift(zShift);
    EXPECT_TRUE(line.LoadCached(u"f", u"n", nullptr));
    return line.GetPoints();
}

TEST(OffsetLineData, ZeroOffsetCopiesWithTheZShift) {
    const auto source = Polyline({{0, 0}, {0, 10}, {5, 20}});
    const auto result = Offset(source, 0.0, -2.0);
    ASSERT_EQ(result.size(), source.size());
    for (std::size_t i = 0; i < source.size(); ++i) {
        EXPECT_EQ(result[i].x, source[i].x);
        EXPECT_EQ(result[i].chainage, source[i].chainage);
        EXPECT_DOUBLE_EQ(result[i].z, source[i].z - 2.0);
    }
}

TEST(OffsetLineData, CornersGetTheBisectorInsideAndABevelOutside) {
    // North 100 m, then east: a right turn, whose inner side is the right.
    const auto source = Polyline({{0, 0}, {0, 100}, {100, 100}});
    const auto right = Offset(source, 5.0);
    ASSERT_EQ(right.size(), 3u);
    EXPECT_NEAR(right[0].x, 5, 1e-12);
    EXPECT_NEAR(right[1].x, 5, 1e-12);  // the corner on the bisector
    EXPECT_NEAR(right[1].y, 95, 1e-12);
    EXPECT_DOUBLE_EQ(right[1].chainage, source[1].chainage) << "the corner keeps its chainage";
    EXPECT_DOUBLE_EQ(right[1].z, source[1].z);
    EXPECT_NEAR(right[2].y, 95, 1e-12);

    const auto left = Offset(source, -5.0);
    ASSERT_EQ(left.size(), 4u);
    EXPECT_NEAR(left[1].x, -5, 1e-12);  // end of the first moved edge
    EXPECT_NEAR(left[1].y, 100, 1e-12);
    EXPECT_NEAR(left[2].x, 0, 1e-12);  // start of the second
    EXPECT_NEAR(left[2].y, 105, 1e-12);
    EXPECT_EQ(left[1].chainage, left[2].chainage);
    ExpectValidOffset(source, 5.0, right, "right");
    ExpectValidOffset(source, -5.0, left, "left");

    // Chainage look-ups work on the moved points.
    OffsetLineData line(new MemoryLine(source), true);
    line.SetOffset(5.0);
    line.LoadCached(u"f", u"n", nullptr);
    ProfilePoint p;
    ASSERT_TRUE(line.DataPoint(51.0, p));
    EXPECT_NEAR(p.x, 5.0, 1e-12);
    EXPECT_NEAR(p.y, 50.0 * 95.0 / 100.0, 1e-9);
}

TEST(OffsetLineData, StraightBentAndZigZagLinesStayAtTheOffset) {
    const std::vector<std::pair<const char*, std::vector<std::pair<double, double>>>> lines = {
        {"straight", {{0, 0}, {3, 4}, {6, 8}, {30, 40}}},
        {"bent", {{0, 0}, {50, 10}, {80, 60}, {70, 120}, {20, 150}}},
        {"zig-zag", {{0, 0}, {10, 10}, {20, 0}, {30, 10}, {40, 0}, {50, 10}, {60, 0}}},
    };
    for (const auto& [name, xy] : lines) {
        const auto source = Polyline(xy);
        for (double offset : {-6.0, -2.5, 0.5, 2.5, 6.0}) {
            const std::string what = std::string(name) + " by " + std::to_string(offset);
            ExpectValidOffset(source, offset, Offset(source, offset), what.c_str());
        }
    }
    // A hairpin 4 m wide: inside it nothing is more than 2 m from both legs.
    const auto hairpin = Polyline({{0, 0}, {0, 50}, {4, 50}, {4, 0}});
    for (double offset : {-6.0, -2.5, 0.5, 1.5}) {
        const std::string what = "hairpin by " + std::to_string(offset);
        ExpectValidOffset(hairpin, offset, Offset(hairpin, offset), what.c_str());
    }
    OffsetLineData inside(new MemoryLine(hairpin), true);
    inside.SetOffset(2.5);
    EXPECT_FALSE(inside.LoadCached(u"f", u"n", nullptr));
    EXPECT_EQ(inside.NumDataPoints(), 0);
}

TEST(OffsetLineData, RandomLinesStayAtTheOffsetWithoutLoops) {
    std::mt19937 random(20261124);
    std::uniform_real_distribution<double> turn(-2.0, 2.0), length(1.0, 30.0), offset(-15.0, 15.0);
    for (int trial = 0; trial < 60; ++trial) {
        std::vector<std::pair<double, double>> xy{{0, 0}};
        double heading = 0.0;
        for (int i = 0; i < 12; ++i) {
            heading += turn(random);
            const double l = length(random);
            xy.push_back({xy.back().first + l * std::sin(heading),
                          xy.back().second + l * std::cos(heading)});
        }
        const auto source = Polyline(xy);
        const double d = offset(random);
        const std::string what = "trial " + std::to_string(trial);
        ExpectValidOffset(source, d, Offset(source, d), what.c_str());
    }
}

TEST(OffsetLineData, SegmentsAreMovedSeparatelyAndKeepTheirStarts) {
    auto source = Polyline({{0, 0}, {0, 10}, {0, 20}, {10, 20}, {20, 20}});
    source[3].segmentStart = true;  // second segment runs east from (10, 20)
    const auto result = Offset(source, 1.0);
    ASSERT_EQ(result.size(), 5u);
    EXPECT_TRUE(result[0].segmentStart);
    EXPECT_NEAR(result[2].x, 1.0, 1e-12) << "no corner joins the two segments";
    EXPECT_NEAR(result[2].y, 20.0, 1e-12);
    EXPECT_TRUE(result[3].segmentStart);
    EXPECT_NEAR(result[3].y, 19.0, 1e-12);
}

TEST(OffsetLineData, ClippingNeverLeavesAPointAboveTheMaximum) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> height(-10.0, 10.0);
    for (int trial = 0; trial < 20; ++trial) {
        std::vector<ProfilePoint> source;
        for (int i = 0; i < 30; ++i) {
            source.push_back({0.0, i * 10.0, height(random), 1.0 + i * 10.0, i == 0 || i == 15});
        }
        OffsetLineData line(new MemoryLine(source), true);
        line.SetMaxZ(2.0, true);
        line.LoadCached(u"f", u"n", nullptr);
        const auto& result = line.GetPoints();
        std::size_t crossings = 0;
        for (std::size_t i = 1; i < source.size(); ++i) {
            crossings +=
                (source[i - 1].z - 2.0) * (source[i].z - 2.0) < 0 && !source[i].segmentStart;
        }
        ASSERT_EQ(result.size(), source.size() + crossings);
        for (std::size_t i = 0; i < result.size(); ++i) {
            EXPECT_LE(result[i].z, 2.0);
            if (i > 0) {
                EXPECT_GT(result[i].chainage, result[i - 1].chainage);
            }
        }
    }
    // A known crossing: from z 0 up to z 4 with the maximum at 3.
    OffsetLineData line(new MemoryLine({{0, 0, 0, 10, true}, {0, 8, 4, 18, false}}), true);
    line.SetMaxZ(3.0, true);
    line.LoadCached(u"f", u"n", nullptr);
    ASSERT_EQ(line.NumDataPoints(), 3);
    EXPECT_EQ(line.DataPoint(1), (ProfilePoint{0, 6, 3, 16, false}));
    EXPECT_EQ(line.DataPoint(2).z, 3.0);
}

TEST(OffsetLineData, ExtentsAndBadInput) {
    OffsetLineData line(new MemoryLine(Polyline({{0, 0}, {0, 100}})), true);
    Page extents;
    EXPECT_FALSE(line.GetModelExtents(extents)) << "nothing loaded yet";
    line.SetOffset(-2.0);
    ASSERT_TRUE(line.LoadCached(u"f", u"n", nullptr));
    ASSERT_TRUE(line.GetModelExtents(extents));
    EXPECT_EQ(extents, Page(-2, 0, -2, 100));

    const double nan = std::nan("");
    for (const auto& points : std::vector<std::vector<ProfilePoint>>{
             {{1, 1, 0, 5, true}},                                                // one point
             {{1, 1, 0, 5, true}, {1, 1, 0, 6, false}},                           // no plan length
             {{nan, 1, 0, 5, true}, {2, nan, 0, 6, false}},                       // not a position
             {{0, 0, 0, nan, true}, {0, 5, 0, nan, false}, {0, 9, 0, 5, false}},  // NaN chainages
         }) {
        OffsetLineData odd(new MemoryLine(points), true);
        odd.SetOffset(3.0);
        odd.LoadCached(u"f", u"n", nullptr);
        ProfilePoint p;
        odd.DataPoint(5.5, p);  // any answer, but no crash
        for (const ProfilePoint& q : odd.GetPoints()) {
            EXPECT_TRUE(std::isfinite(q.x) && std::isfinite(q.y));
        }
    }
    OffsetLineData none(nullptr, false);
    EXPECT_FALSE(none.ApplyOffset());
    EXPECT_FALSE(none.LoadLineData(u"f", u"n", nullptr));
}

}  // namespace
}  // namespace vex
