// Entries and lookups of ColorTable: the search must always find the last
// entry whose value is <= the value looked up, whatever the spacing.
#include <base/colour/ColorTable.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace vex {
namespace {

// The reference answer: a linear scan for the last entry at or below value.
int BruteForceIndex(const ColorTable& table, double value) {
    int found = -1;
    for (int i = 0; i < table.NumEntries(); ++i) {
        if (table.EntryValue(i) <= value) found = i;
    }
    return found;
}

// Every entry gets its own colour and name so that a wrong index shows.
ColorTable TableOf(const std::vector<double>& values) {
    ColorTable table;
    table.SetLowColor(0xABCDEF);
    table.SetLowColorName(u"below");
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int at = table.InsertEntry(values[i], static_cast<COLORREF>(i + 1), false);
        table.SetEntryName(at, CString(std::to_wstring(i + 1)));
    }
    return table;
}

void ExpectMatchesBruteForce(const ColorTable& table, const std::vector<double>& probes) {
    for (double v : probes) {
        const int i = BruteForceIndex(table, v);
        const COLORREF want = i < 0 ? table.LowColor() : table.EntryColor(i);
        const CString name = i < 0 ? table.LowColorName() : table.EntryName(i);
        ASSERT_EQ(table.GetColor(v), want) << "value " << v;
        ASSERT_EQ(table.GetName(v), name) << "value " << v;
    }
}

TEST(ColorTable, LookupsAgreeWithBruteForceOnEveryKindOfTable) {
    std::mt19937_64 random(20261124);
    std::vector<std::vector<double>> tables;
    std::vector<double> uniform;
    for (int i = 0; i < 256; ++i)
        uniform.push_back(-30.0 + i * 0.125);
    tables.push_back(uniform);
    std::vector<double> logSpaced;
    for (int i = 0; i < 100; ++i)
        logSpaced.push_back(std::pow(10.0, i * 0.06));
    tables.push_back(logSpaced);
    for (int t = 0; t < 20; ++t) {
        std::uniform_real_distribution<double> value(-100.0, 100.0);
        std::uniform_int_distribution<int> size(1, 60);
        std::vector<double> irregular(static_cast<std::size_t>(size(random)));
        for (double& v : irregular)
            v = value(random);
        tables.push_back(irregular);
    }
    // Locked entries surviving a regeneration leave equal values behind.
    std::vector<double> duplicates = {0, 1, 1, 2, 3, 3, 3, 4, 10, 10};
    tables.push_back(duplicates);
    tables.push_back({5.0});
    tables.push_back({});

    for (const auto& values : tables) {
        const ColorTable table = TableOf(values);
        std::vector<double> probes = values;
        for (double v : values) {
            probes.push_back(std::nextafter(v, -1e300));
            probes.push_back(std::nextafter(v, 1e300));
        }
        std::uniform_real_distribution<double> anywhere(-200.0, 2000.0);
        for (int i = 0; i < 2000; ++i)
            probes.push_back(anywhere(random));
        probes.push_back(std::numeric_limits<double>::infinity());
        probes.push_back(-std::numeric_limits<double>::infinity());
        probes.push_back(std::numeric_limits<double>::max());
        probes.push_back(std::nan(""));  // no entry is <= NaN: LowColor
        ExpectMatchesBruteForce(table, probes);
    }
}

TEST(ColorTable, EntryOperationsKeepTheOrder) {
    ColorTable table;
    EXPECT_TRUE(table.AddEntry(1.0, 1, false, u"a"));
    EXPECT_TRUE(table.AddEntry(3.0, 3, true, u"c"));
    EXPECT_FALSE(table.AddEntry(3.0, 9, false, u"x"));  // must rise strictly
    EXPECT_FALSE(table.AddEntry(2.0, 9, false, u"x"));
    EXPECT_EQ(table.InsertEntry(2.0, 2, false), 1);
    EXPECT_EQ(table.InsertEntry(3.0, 4, true), 2);  // an equal value goes first
    EXPECT_EQ(table.NumEntries(), 4);
    EXPECT_EQ(table.NumLocked(), 2);
    EXPECT_EQ(table.EntryColor(2), 4u);
    EXPECT_EQ(table.EntryName(3), CString(u"c"));
    EXPECT_EQ(table.EntryName(2), CString(u""));

    EXPECT_FALSE(table.SetEntryValue(1, 1.0));  // equal to the previous
    EXPECT_FALSE(table.SetEntryValue(1, 3.0));  // equal to the next
    EXPECT_TRUE(table.SetEntryValue(1, 2.5));
    EXPECT_TRUE(table.SetEntryValue(0, -100.0));
    EXPECT_FALSE(table.SetEntryValue(7, 1.0));

    table.RemoveEntry(0);
    table.RemoveEntry(99);  // ignored
    EXPECT_EQ(table.NumEntries(), 3);
    EXPECT_DOUBLE_EQ(table.EntryValue(0), 2.5);
    EXPECT_EQ(table.EntryColor(99), 0u);

    ColorTable copy = table;
    table.Clear();
    EXPECT_EQ(table.NumEntries(), 0);
    EXPECT_EQ(copy.NumEntries(), 3);
}

TEST(ColorTable, ColorRangeListsTheBandsCoveringAnInterval) {
    ColorTable table = TableOf({0, 10, 20, 30});
    struct Case {
        double min, max;
        std::vector<COLORREF> colors;
        std::vector<double> values;
    };
    const COLORREF low = 0xABCDEF;
    const std::vector<Case> cases = {
        // Inside the table: the band holding min, then each band up to max.
        {5, 25, {1, 2, 3, 4}, {5, 10, 20, 25}},
        // Starting below the table: the (low, min) pair is there twice.
        {-5, 15, {low, low, 1, 2, 3}, {-5, -5, 0, 10, 15}},
        // Above the last entry no entry is >= min: only what came before.
        {35, 40, {}, {}},
        // Entirely below: the low colour alone, no values.
        {-9, -8, {low}, {}},
        // An interval ending beyond the table: the last value stays the entry's.
        {15, 99, {2, 3, 4}, {15, 20, 30}},
    };
    for (const Case& c : cases) {
        std::vector<COLORREF> colors = {99};
        std::vector<double> values = {99};
        const int n = table.GetColorRange(c.min, c.max, colors, values);
        EXPECT_EQ(n, static_cast<int>(colors.size()));
        EXPECT_EQ(colors, c.colors) << c.min << " .. " << c.max;
        EXPECT_EQ(values, c.values) << c.min << " .. " << c.max;
    }
}

TEST(ColorTable, ColourFunctions) {
    struct Hsv {
        COLORREF color;
        double h, s, v;
    };
    const Hsv hsv[] = {
        {0x0000FF, 0, 1, 1},
        {0x00FF00, 120, 1, 1},
        {0xFF0000, 240, 1, 1},
        {0xFF00FF, 300, 1, 1},
        {0x808080, -1, 0, 128 / 255.0},
        {0x000000, -1, 0, 0},
        {RGB(255, 128, 0), 60 * 128 / 255.0, 1, 1},
    };
    for (const Hsv& c : hsv) {
        double h = 0, s = 0, v = 0;
        ColorTable::RGBtoHSV(c.color, h, s, v);
        EXPECT_NEAR(h, c.h, 1e-9) << std::hex << c.color;
        EXPECT_NEAR(s, c.s, 1e-9);
        EXPECT_NEAR(v, c.v, 1e-9);
        EXPECT_EQ(ColorTable::HSVtoRGB(h, s, v), c.color);
    }
    // Channels truncate: v = 0.5 gives 127, not 128.
    EXPECT_EQ(ColorTable::HSVtoRGB(-1, 0, 0.5), RGB(127, 127, 127));
    EXPECT_EQ(ColorTable::HSVtoRGB(0, 2.0, 2.0), 0x0000FFu);  // s and v clamp to 1

    double hue = -1;
    ColorTable::NiceRainbowCorrection(hue);
    EXPECT_EQ(hue, -1);
    hue = 120;  // x = 100, T[100] = 0.225
    ColorTable::NiceRainbowCorrection(hue);
    EXPECT_NEAR(hue, 81.0, 1e-9);
    hue = 1.8;  // x = 1.5, halfway between 0.002 and 0.006
    ColorTable::NiceRainbowCorrection(hue);
    EXPECT_NEAR(hue, 0.004 * 360, 1e-9);
    hue = 300;
    ColorTable::NiceRainbowCorrection(hue);
    EXPECT_NEAR(hue, (60 * 0.333 / 120 + 0.667) * 360, 1e-9);

    EXPECT_EQ(ColorTable::ColorToGray(RGB(100, 200, 50)), RGB(153, 153, 153));  // 30+118+5.5
    EXPECT_EQ(ColorTable::GetContrastColor(RGB(255, 255, 0)), 0u);
    EXPECT_EQ(ColorTable::GetContrastColor(RGB(0, 0, 255)), 0xFFFFFFu);
    EXPECT_EQ(ColorTable::AddColors(RGB(200, 10, 0), RGB(100, 20, 0)), RGB(255, 30, 0));

    // HSL round trips, and lightness scaling towards black and white.
    std::mt19937 random(7);
    for (int i = 0; i < 500; ++i) {
        const COLORREF c = random() & 0xFFFFFF;
        double h = 0, s = 0, l = 0;
        ColorTable::RGBtoHSL(c, h, s, l);
        ASSERT_EQ(ColorTable::HSLtoRGB(h, s, l), c);
        ASSERT_EQ(ColorTable::ScaleIntensity(c, 1.0), c);
    }
    EXPECT_EQ(ColorTable::ScaleIntensity(RGB(255, 0, 0), 0.5), RGB(128, 0, 0));
    EXPECT_EQ(ColorTable::ScaleIntensity(RGB(255, 0, 0), 2.0), RGB(255, 255, 255));
}

}  // namespace
}  // namespace vex
