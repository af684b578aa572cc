#include <base/survey/LineData.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace vex {
namespace {

// A line type whose "file" is a list of points handed over in advance.
class MemoryLine : public LineData {
  public:
    explicit MemoryLine(std::vector<ProfilePoint> points, bool loads = true)
        : delivered_(std::move(points)), loads_(loads) {}
    ~MemoryLine() override { ++destroyed; }

    bool LoadLineData(const CString& file, const CString& name, const CenterLine* centre) override {
        ++loadCount;
        if (!loads_) {
            return false;
        }
        Points() = delivered_;
        return LineData::LoadLineData(file, name, centre);
    }

    int loadCount = 0;
    static inline int destroyed = 0;

  private:
    std::vector<ProfilePoint> delivered_;
    bool loads_;
};

std::vector<double> Chainages(const LineData& line) {
    std::vector<double> out;
    for (const ProfilePoint& p : line.GetPoints()) {
        out.push_back(p.chainage);
    }
    return out;
}

std::vector<bool> Starts(const LineData& line) {
    std::vector<bool> out;
    for (const ProfilePoint& p : line.GetPoints()) {
        out.push_back(p.segmentStart);
    }
    return out;
}

ProfilePoint At(double chainage, double z = 0.0, bool start = false) {
    return {chainage * 2.0, -chainage, z, chainage, start};
}

TEST(LineData, LooksUpChainagesInsideSegmentsOnly) {
    MemoryLine line({At(0, 1), At(10, 2), At(20, 4), At(30, 8, true), At(40, 16)});
    ASSERT_TRUE(line.LoadCached(u"f", u"n", nullptr));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Case {
        double chainage;
        bool found;
        double z;
    };
    const Case cases[] = {
        {5.0, false, 0},    // brackets chainage 0.0, which counts as missing
        {15.0, true, 3.0},  // halfway between 2 and 4
        {20.0, true, 4.0},  // on a point: interpolation with t = 1
        {25.0, false, 0},   // the next point starts a segment
        {35.0, true, 12.0},
        {40.0, true, 16.0},                // the last point itself
        {40.0 * (1 + 1e-14), true, 16.0},  // within the end tolerance
        {40.001, false, 0},                // beyond the end
        {-1.0, false, 0},                  // before the start
        {0.0, true, 1.0},                  // the first point itself
        {nan, false, 0},
    };
    for (const Case& c : cases) {
        ProfilePoint p{7, 7, 7, 7, true};
        EXPECT_EQ(line.DataPoint(c.chainage, p), c.found) << c.chainage;
        if (c.found) {
            EXPECT_DOUBLE_EQ(p.z, c.z) << c.chainage;
            EXPECT_DOUBLE_EQ(p.x, 2.0 * p.chainage) << c.chainage;
        } else {
            EXPECT_EQ(p, (ProfilePoint{7, 7, 7, 7, true})) << "unchanged on false";
        }
    }
    EXPECT_EQ(line.DataPoint(-1), ProfilePoint{}) << "out of range gives a default point";
    EXPECT_EQ(line.DataPoint(99), ProfilePoint{});
    EXPECT_EQ(line.DataPoint(1), At(10, 2));
}

TEST(LineData, DescendingInputIsReversedWithItsSegmentStartsMoved) {
    // Two segments delivered backwards: 60-50-40 and 30-20-10.
    MemoryLine line({At(60, 0, true), At(50), At(40), At(30, 0, true), At(20), At(10)});
    ASSERT_TRUE(line.LoadCached(u"f", u"n", nullptr));
    EXPECT_EQ(Chainages(line), (std::vector<double>{10, 20, 30, 40, 50, 60}));
    EXPECT_EQ(Starts(line), (std::vector<bool>{true, false, false, true, false, false}));
    ProfilePoint p;
    EXPECT_TRUE(line.DataPoint(25.0, p));
    EXPECT_FALSE(line.DataPoint(35.0, p)) << "40 now starts the second segment";
    EXPECT_TRUE(line.DataPoint(55.0, p));

    MemoryLine ascending({At(30), At(20, 0, true), At(40)});
    ascending.LoadCached(u"f", u"n", nullptr);
    EXPECT_EQ(Chainages(ascending), (std::vector<double>{30, 20, 40})) << "first <= last: kept";
    EXPECT_EQ(Starts(ascending), (std::vector<bool>{true, true, false}));

    MemoryLine single({At(5)});
    single.LoadCached(u"f", u"n", nullptr);
    EXPECT_FALSE(single.GetPoints().front().segmentStart) << "one point: left as delivered";
}

TEST(LineData, CachesByFileAndNameIncludingEmptyResults) {
    MemoryLine line({At(10), At(20)});
    EXPECT_TRUE(line.LoadCached(u"a", u"b,c", nullptr));
    EXPECT_TRUE(line.LoadCached(u"a", u"b,c", nullptr));
    EXPECT_EQ(line.loadCount, 1);
    EXPECT_TRUE(line.LoadCached(u"a,b", u"c", nullptr)) << "the key is file, comma, name";
    EXPECT_EQ(line.loadCount, 1);
    EXPECT_TRUE(line.LoadCached(u"a", u"b", nullptr));
    EXPECT_EQ(line.loadCount, 2);

    MemoryLine failing({At(10), At(20)}, false);
    EXPECT_FALSE(failing.LoadCached(u"b.dat", u"x", nullptr));
    EXPECT_FALSE(failing.LoadCached(u"b.dat", u"x", nullptr));
    EXPECT_EQ(failing.loadCount, 1) << "an empty result is cached as well";
    EXPECT_EQ(failing.NumDataPoints(), 0);
}

class MemoryLineCreator : public LineDataICreator {
  public:
    explicit MemoryLineCreator(double chainage) : chainage_(chainage) {}
    LineData* Create(const CString& name) override {
        lastName = name;
        return new MemoryLine({At(chainage_)});
    }
    CString lastName;

  private:
    double chainage_;
};

TEST(LineDataList, FirstRegistrationOfANumberWins) {
    static MemoryLineCreator first(1.0), second(2.0);
    LineDataList& list = LineDataList::GetLineDataList();
    EXPECT_EQ(&list, &LineDataList::GetLineDataList());
    EXPECT_TRUE(list.RegisterLineData(4711, &first));
    EXPECT_FALSE(list.RegisterLineData(4711, &second));
    EXPECT_FALSE(list.RegisterLineData(4712, nullptr));
    std::unique_ptr<LineData> line(list.Create(4711, u"Trench"));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(first.lastName, CString(u"Trench"));
    line->LoadCached(u"f", u"n", nullptr);
    EXPECT_EQ(line->DataPoint(0).chainage, 1.0);
    EXPECT_EQ(list.Create(4712, u"x"), nullptr);
}

TEST(VerticalOffsetLineData, AnswersFromTheWrappedLineShifted) {
    const int destroyedBefore = MemoryLine::destroyed;
    {
        auto* wrapped = new MemoryLine({At(10, 1.0), At(20, 3.0)});
        VerticalOffsetLineData lowered(wrapped, true);
        lowered.SetOffset(-0.5);
        EXPECT_TRUE(lowered.LoadLineData(u"f", u"n", nullptr));
        EXPECT_EQ(lowered.NumDataPoints(), 2);
        EXPECT_TRUE(lowered.GetPoints().empty()) << "keeps no points of its own";
        EXPECT_DOUBLE_EQ(lowered.DataPoint(1).z, 2.5);
        ProfilePoint p;
        ASSERT_TRUE(lowered.DataPoint(15.0, p));
        EXPECT_DOUBLE_EQ(p.z, 1.5);
    }
    EXPECT_EQ(MemoryLine::destroyed, destroyedBefore + 1) << "an owned line is destroyed";
    MemoryLine kept({At(10)});
    { VerticalOffsetLineData view(&kept, false); }
    EXPECT_EQ(MemoryLine::destroyed, destroyedBefore + 1) << "a borrowed line is not";
    VerticalOffsetLineData empty(nullptr, false);
    EXPECT_FALSE(empty.LoadLineData(u"f", u"n", nullptr));
    EXPECT_EQ(empty.NumDataPoints(), 0);
}

}  // namespace
}  // namespace vex
