#include <base/survey/TideFile.h>
#include <base/survey/TideInterpolation.h>

#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace vex {
namespace {

using Series = std::map<double, double>;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

// Little-endian bytes of a double, written out here rather than taken from
// the library, so that a byte-order slip there cannot hide.
std::string Bytes(double d) {
    const auto bits = std::bit_cast<std::uint64_t>(d);
    std::string out;
    for (int i = 0; i < 8; ++i)
        out += static_cast<char>((bits >> (8 * i)) & 0xFF);
    return out;
}

std::string Records(const std::vector<std::pair<double, double>>& records) {
    std::string out;
    for (const auto& [time, value] : records)
        out += Bytes(time) + Bytes(value);
    return out;
}

// Series compared with NaN values equal to NaN.
void ExpectSeries(const TideFile& tide, const Series& expected) {
    ASSERT_EQ(tide.GetValues().size(), expected.size());
    auto it = expected.begin();
    for (const auto& [time, value] : tide.GetValues()) {
        EXPECT_EQ(time, it->first);
        if (std::isnan(it->second))
            EXPECT_TRUE(std::isnan(value)) << "at " << time;
        else
            EXPECT_EQ(value, it->second) << "at " << time;
        ++it;
    }
}

TEST(TideFile, LoadingKeepsOnlyRecordsSpacedInFileOrder) {
    struct Case {
        const char* what;
        std::string bytes;
        Series expected;
    };
    const std::vector<Case> cases = {
        {"empty file", "", {}},
        {"close follower thinned",
         Records({{100000, 1}, {110000, 2}, {130000, 3}}),
         {{100000, 1}, {130000, 3}}},
        // The spacing is counted from 0.0, so early times never load.
        {"start below the spacing",
         Records({{29999.5, 1}, {30000, 2}, {59999, 3}, {60000, 4}}),
         {{30000, 2}, {60000, 4}}},
        {"unsorted: earlier times after later ones are dropped",
         Records({{200000, 1}, {100000, 2}, {250000, 3}, {240000, 4}}),
         {{200000, 1}, {250000, 3}}},
        {"duplicate time keeps the first", Records({{100000, 1}, {100000, 2}}), {{100000, 1}}},
        {"negative times never load", Records({{-100000, 1}, {40000, 2}}), {{40000, 2}}},
        {"partial trailing record ignored",
         Records({{100000, 1}, {200000, 2}}) + std::string(15, '\x7f'),
         {{100000, 1}, {200000, 2}}},
        {"odd length shorter than a record", std::string(7, '\x01'), {}},
        // NaN times fail the spacing test; NaN and infinite values are kept.
        {"NaN time skipped, NaN and infinite values kept",
         Records({{kNaN, 1}, {100000, kNaN}, {200000, -kInf}}),
         {{100000, kNaN}, {200000, -kInf}}},
        {"nothing loads after +infinity",
         Records({{100000, 1}, {kInf, 2}, {1e300, 3}}),
         {{100000, 1}, {kInf, 2}}},
    };
    test::TempFolder folder;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        test::WriteBytes(folder.Path("t.tid"), c.bytes);
        TideFile tide;
        ASSERT_TRUE(tide.FileOpen(folder.File("t.tid"), false));
        ExpectSeries(tide, c.expected);
        EXPECT_FALSE(tide.IsModified());
        EXPECT_EQ(tide.GetOpenCount(), 1);
    }
}

TEST(TideFile, LoadingAddsToValuesStoredBeforeAndReplacesAtTheSameTime) {
    test::TempFolder folder;
    test::WriteBytes(folder.Path("t.tid"), Records({{100000, 1}, {200000, 2}}));
    TideFile tide;
    EXPECT_TRUE(tide.AddTideValue(5, 50));  // added values are never thinned
    EXPECT_TRUE(tide.AddTideValue(200000, 20));
    ASSERT_TRUE(tide.FileOpen(folder.File("t.tid"), false));
    ExpectSeries(tide, {{5, 50}, {100000, 1}, {200000, 2}});
    EXPECT_FALSE(tide.IsModified());
}

TEST(TideFile, OpeningFailsForMissingFilesAndCreateEmptiesThem) {
    test::TempFolder folder;
    TideFile tide;
    EXPECT_FALSE(tide.FileOpen(folder.File("missing.tid"), false));
    EXPECT_FALSE(tide.IsOpen());
    EXPECT_EQ(tide.GetFileName(), folder.File("missing.tid"));  // stored all the same
    EXPECT_FALSE(tide.FileOpen(folder.File("no-folder/x.tid"), true));

    test::WriteBytes(folder.Path("old.tid"), Records({{100000, 1}}));
    ASSERT_TRUE(tide.FileOpen(folder.File("old.tid"), true));
    EXPECT_EQ(tide.GetNumValues(), 0);
    EXPECT_EQ(test::ReadBytes(folder.Path("old.tid")), "");
}

TEST(TideFile, SavesEveryPairAscendingAsLittleEndianRecords) {
    test::TempFolder folder;
    const auto path = folder.Path("t.tid");
    TideFile tide;
    ASSERT_TRUE(tide.FileOpen(folder.File("t.tid"), true));
    // Out of order and closer than the load spacing: a save writes them all.
    tide.AddTideValue(2.0, -0.5);
    tide.AddTideValue(1.0, 1.5);
    tide.AddTideValue(1e12, 3.25);
    ASSERT_TRUE(tide.FileSave());
    EXPECT_FALSE(tide.IsModified());
    // Bit patterns from IEEE 754: 1.0 = 3FF0..., 1.5 = 3FF8..., 2.0 = 4000...,
    // -0.5 = BFE0..., 1e12 = 426D1A94A2000000, 3.25 = 400A....
    const std::string expected =
        std::string("\0\0\0\0\0\0\xF0\x3F", 8) + std::string("\0\0\0\0\0\0\xF8\x3F", 8) +
        std::string("\0\0\0\0\0\0\x00\x40", 8) + std::string("\0\0\0\0\0\0\xE0\xBF", 8) +
        std::string("\0\0\0\xA2\x94\x1A\x6D\x42", 8) + std::string("\0\0\0\0\0\0\x0A\x40", 8);
    EXPECT_EQ(test::ReadBytes(path), expected);
    EXPECT_EQ(folder.Names(), std::set<std::string>{"t.tid"});  // no temporary left
}

TEST(TideFile, SaveWritesOnlyWhenModifiedAndOnlyWhenOpen) {
    test::TempFolder folder;
    // Unsorted and thinned on load: a rewrite would change these bytes.
    const std::string original = Records({{300000, 3}, {100000, 1}, {310000, 2}});
    test::WriteBytes(folder.Path("t.tid"), original);
    TideFile tide;
    EXPECT_FALSE(tide.FileSave());  // not open
    ASSERT_TRUE(tide.FileOpen(folder.File("t.tid"), false));
    EXPECT_TRUE(tide.FileSave());
    EXPECT_EQ(test::ReadBytes(folder.Path("t.tid")), original);

    double value = 0;
    EXPECT_FALSE(tide.UpdateTideValue(100000, 9));  // a failed change is no change
    EXPECT_TRUE(tide.FileSave());
    EXPECT_EQ(test::ReadBytes(folder.Path("t.tid")), original);

    EXPECT_TRUE(tide.UpdateTideValue(300000, 9));
    EXPECT_EQ(tide.FileClose(true), 0);
    EXPECT_EQ(test::ReadBytes(folder.Path("t.tid")), Records({{300000, 9}}));
    EXPECT_FALSE(tide.GetTideValue(300000, value));  // released at the last close
}

TEST(TideFile, AFailedSaveKeepsTheOldFileAndTheModifiedFlag) {
    test::TempFolder folder;
    std::filesystem::create_directories(folder.Path("sub"));
    const std::string original = Records({{100000, 1}});
    test::WriteBytes(folder.Path("sub") / "t.tid", original);
    TideFile tide;
    ASSERT_TRUE(tide.FileOpen(CString((folder.Path("sub") / "t.tid").u16string()), false));
    tide.AddTideValue(200000, 2);
    // The folder goes away under the open object: nothing can be written.
    std::filesystem::rename(folder.Path("sub"), folder.Path("moved"));
    EXPECT_FALSE(tide.FileSave());
    EXPECT_TRUE(tide.IsModified());
    EXPECT_EQ(test::ReadBytes(folder.Path("moved") / "t.tid"), original);
    std::filesystem::rename(folder.Path("moved"), folder.Path("sub"));
    EXPECT_TRUE(tide.FileSave());
    EXPECT_EQ(test::ReadBytes(folder.Path("sub") / "t.tid"), Records({{100000, 1}, {200000, 2}}));
}

TEST(TideFile, OpeningsAreCountedAndTheLastCloseReleasesTheValues) {
    test::TempFolder folder;
    test::WriteBytes(folder.Path("a.tid"), Records({{100000, 1}}));
    test::WriteBytes(folder.Path("b.tid"), Records({{500000, 5}}));
    TideFile tide;
    double first = -1, last = -1;
    EXPECT_EQ(tide.FileClose(true), 0);  // not open
    tide.AddTideValue(1, 1);
    EXPECT_FALSE(tide.GetTimeSpan(first, last));  // closed, whatever it holds
    tide.DeleteTideValue(1);

    ASSERT_TRUE(tide.FileOpen(folder.File("a.tid"), false));
    EXPECT_TRUE(tide.GetTimeSpan(first, last));
    EXPECT_EQ(first, 100000);
    EXPECT_EQ(last, 100000);
    // A second opening reads nothing but takes the new name for saves.
    ASSERT_TRUE(tide.FileOpen(folder.File("b.tid"), false));
    EXPECT_EQ(tide.GetOpenCount(), 2);
    ExpectSeries(tide, {{100000, 1}});
    tide.AddTideValue(200000, 2);
    EXPECT_EQ(tide.FileClose(true), 1);
    ExpectSeries(tide, {{100000, 1}, {200000, 2}});
    EXPECT_EQ(test::ReadBytes(folder.Path("b.tid")), Records({{100000, 1}, {200000, 2}}));
    EXPECT_EQ(test::ReadBytes(folder.Path("a.tid")), Records({{100000, 1}}));
    EXPECT_EQ(tide.FileClose(false), 0);
    EXPECT_EQ(tide.GetNumValues(), 0);
    EXPECT_FALSE(tide.IsOpen());

    // An open object with no values spans nothing and leaves the outputs.
    ASSERT_TRUE(tide.FileOpen(folder.File("empty.tid"), true));
    first = last = -1;
    EXPECT_TRUE(tide.GetTimeSpan(first, last));
    EXPECT_EQ(first, -1);
    EXPECT_EQ(last, -1);
}

// One step of a walk through the series {200000: 2, 300000: 3, 400000: 4}:
// the call, the time given, and what comes back; then the current pair.
using Read = std::function<bool(TideFile&, double&, double&)>;
struct Step {
    Read op;
    double time;
    bool ok;
    double outTime;  // the time returned (or left) in the argument
    double value;    // the value returned (or left, -1)
    double current;  // the current pair's time afterwards; 0 = at end
};

TEST(TideFile, PositioningReadsFollowTheirTable) {
    const Read first = &TideFile::GetFirstTideValue, last = &TideFile::GetLastTideValue,
               current = &TideFile::GetCurrentTideValue, next = &TideFile::GetNextTideValue,
               previous = &TideFile::GetPreviousTideValue, before = &TideFile::GetValueBefore,
               onOrBefore = &TideFile::GetValueOnOrBefore, after = &TideFile::GetValueAfter,
               onOrAfter = &TideFile::GetValueOnOrAfter, get = &TideFile::GetTideValue;
    const std::vector<Step> walk = {
        {current, 0, false, 0, -1, 0},           // a new object is at end
        {previous, 0, true, 400000, 4, 400000},  // from the end to the last pair
        {next, 0, false, 0, -1, 0},              // moving onto the end is false
        {next, 0, false, 0, -1, 0},
        {first, 0, true, 200000, 2, 200000},
        {previous, 0, true, 200000, 2, 200000},  // stays on the first pair
        {next, 0, true, 300000, 3, 300000},
        {current, 0, true, 300000, 3, 300000},
        {last, 0, true, 400000, 4, 400000},
        {before, 300000, true, 200000, 2, 200000},  // strictly before
        {before, 300001, true, 300000, 3, 300000},
        {before, 200000, false, 200000, -1, 0},
        {onOrBefore, 300000, true, 300000, 3, 300000},
        {onOrBefore, 350000, true, 300000, 3, 300000},
        {onOrBefore, 150000, true, 200000, 2, 200000},  // every time later: the first
        {onOrBefore, 1e9, true, 400000, 4, 400000},
        {after, 300000, true, 400000, 4, 400000},  // strictly after
        {after, 100000, true, 200000, 2, 200000},
        {after, 400000, false, 400000, -1, 0},
        {onOrAfter, 300000, true, 300000, 3, 300000},
        {onOrAfter, 300001, true, 400000, 4, 400000},
        {onOrAfter, 400001, false, 400001, -1, 0},
        {get, 300000, true, 300000, 3, 300000},
        {get, 300001, false, 300001, -1, 0},  // a miss puts the position at end
        {onOrBefore, kNaN, false, kNaN, -1, 0},
        {get, kNaN, false, kNaN, -1, 0},
    };
    TideFile tide;
    tide.AddTideValue(300000, 3);
    tide.AddTideValue(400000, 4);
    tide.AddTideValue(200000, 2);
    for (std::size_t i = 0; i < walk.size(); ++i) {
        const Step& s = walk[i];
        SCOPED_TRACE("step " + std::to_string(i));
        double time = s.time;
        double value = -1;
        const bool ok = s.op(tide, time, value);
        EXPECT_EQ(ok, s.ok);
        if (std::isnan(s.outTime))
            EXPECT_TRUE(std::isnan(time));
        else
            EXPECT_EQ(time, s.outTime);
        EXPECT_EQ(value, s.value);
        double current = 0, currentValue = 0;
        if (!tide.GetCurrentTideValue(current, currentValue)) current = 0;
        EXPECT_EQ(current, s.current);
    }

    TideFile empty;
    double time = 5, value = -1;
    EXPECT_FALSE(empty.GetPreviousTideValue(time, value));
    EXPECT_FALSE(empty.GetValueOnOrBefore(time, value));
    EXPECT_FALSE(empty.GetFirstTideValue(time, value));
    EXPECT_EQ(time, 5);
}

TEST(TideFile, ChangesFollowTheCurrentPosition) {
    using Change = std::function<bool(TideFile&, double, double)>;
    const Change get = [](TideFile& t, double time, double) {
        double value = 0;
        return t.GetTideValue(time, value);
    };
    const Change remove = [](TideFile& t, double time, double) { return t.DeleteTideValue(time); };
    const Change update = &TideFile::UpdateTideValue, add = &TideFile::AddTideValue;
    const struct {
        Change change;
        double time;
        double value;
        bool ok;
        double current;  // the current pair's time afterwards; 0 = at end
    } steps[] = {
        {get, 200, 0, true, 200},
        {remove, 200, 0, true, 300},  // the current pair: on to the next
        {remove, 100, 0, true, 300},  // another pair: the position stays
        {remove, 100, 0, false, 300},
        {get, 400, 0, true, 400},
        {remove, 400, 0, true, 0},     // the last pair: to the end
        {add, 500, 5, true, 0},        // adding never moves
        {update, 450, 9, false, 500},  // moved to the next pair, not changed
        {update, 600, 9, false, 0},
        {update, 300, 7, true, 300},
        {add, 250, 2.5, true, 300},
        {add, kNaN, 1, false, 300},  // a NaN time has no place
    };
    TideFile tide;
    for (double t : {100.0, 200.0, 300.0, 400.0})
        tide.AddTideValue(t, t / 100);
    for (const auto& s : steps) {
        SCOPED_TRACE(testing::Message() << "at " << s.time << ", expecting " << s.ok);
        EXPECT_EQ(s.change(tide, s.time, s.value), s.ok);
        double current = 0, value = 0;
        if (!tide.GetCurrentTideValue(current, value)) current = 0;
        EXPECT_EQ(current, s.current);
    }
    ExpectSeries(tide, {{250, 2.5}, {300, 7}, {500, 5}});
}

TEST(TideFile, CopiesTakeTheStateButNotThePosition) {
    test::TempFolder folder;
    TideFile tide;
    ASSERT_TRUE(tide.FileOpen(folder.File("t.tid"), true));
    tide.AddTideValue(100000, 1);
    double time = 0, value = 0;
    ASSERT_TRUE(tide.GetFirstTideValue(time, value));
    TideFile copy(tide);
    TideFile assigned;
    assigned = tide;
    for (const TideFile* c : {&copy, &assigned}) {
        EXPECT_FALSE(c->GetCurrentTideValue(time, value));
        EXPECT_EQ(c->GetOpenCount(), 1);
        EXPECT_TRUE(c->IsModified());
        EXPECT_EQ(c->GetFileName(), tide.GetFileName());
        EXPECT_EQ(c->GetValues(), tide.GetValues());
    }
    copy.AddTideValue(200000, 2);  // the copy's values are its own
    EXPECT_EQ(tide.GetNumValues(), 1);
}

TEST(TideInterpolation, ReadsBetweenStoredPairsAndNotOutside) {
    TideFile tide;
    double height = -99;
    EXPECT_FALSE(InterpolateTide(tide, 0, height));
    tide.AddTideValue(1000, 1.0);
    tide.AddTideValue(2000, 3.0);
    tide.AddTideValue(4000, 2.0);
    struct Case {
        double time;
        bool ok;
        double height;
    };
    const Case cases[] = {
        {999, false, -99}, {1000, true, 1.0},  {1500, true, 2.0},
        {1750, true, 2.5}, {2000, true, 3.0},  {3000, true, 2.5},
        {4000, true, 2.0}, {4001, false, -99}, {kNaN, false, -99},
    };
    for (const auto& c : cases) {
        height = -99;
        EXPECT_EQ(InterpolateTide(tide, c.time, height), c.ok) << c.time;
        EXPECT_DOUBLE_EQ(height, c.height) << c.time;
    }
}

}  // namespace
}  // namespace vex
