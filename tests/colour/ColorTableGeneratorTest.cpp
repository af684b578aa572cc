// The generators' exact entries. Expected colours are worked out by hand
// from the ramp formulas (channel = trunc(from + k * (to - from) / steps)).
#include <base/colour/ColorTable.h>

#include <gtest/gtest.h>

#include <vector>

namespace vex {
namespace {

constexpr COLORREF kBlack = 0;
constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kBlue = 0xFF0000;
constexpr COLORREF kRed = 0x0000FF;

struct Entry {
    double value;
    COLORREF color;
};

void ExpectEntries(const ColorTable& table, const std::vector<Entry>& want) {
    ASSERT_EQ(table.NumEntries(), static_cast<int>(want.size()));
    for (int i = 0; i < table.NumEntries(); ++i) {
        EXPECT_NEAR(table.EntryValue(i), want[static_cast<std::size_t>(i)].value, 1e-12) << i;
        EXPECT_EQ(table.EntryColor(i), want[static_cast<std::size_t>(i)].color) << "entry " << i;
    }
}

TEST(ColorTableGenerators, RainbowRampRunsTheLongWayFromBlueToRed) {
    ColorTable table;
    table.SetRange(0.0, 10.0, 5, true, false);
    // Step 10/3, three steps, four entries; hues 180, 120, 60, 0 before the
    // correction (81 = 0.225 turn at 120, 44.64 = 0.124 turn at 60).
    ExpectEntries(table, {{0, RGB(0, 241, 255)},
                          {10.0 / 3, RGB(165, 255, 0)},
                          {20.0 / 3, RGB(255, 189, 0)},
                          {10, kRed}});
    EXPECT_EQ(table.LowColor(), kBlue);

    table.SetRange(0.0, 10.0, 5, true, true);  // reversed: red to blue
    EXPECT_EQ(table.LowColor(), kRed);
    EXPECT_EQ(table.EntryColor(3), kBlue);

    table.SetRange(0.0, 1.0, 3, false, false);  // grey ramp: black to white
    ExpectEntries(table, {{0, RGB(127, 127, 127)}, {1, kWhite}});
    EXPECT_EQ(table.LowColor(), kBlack);
}

TEST(ColorTableGenerators, HueRampTakesTheShortWayOnlyForCloseHues) {
    const auto touchesBlue = [](const ColorTable& t) {
        for (int i = 0; i < t.NumEntries(); ++i) {
            if (GetBValue(t.EntryColor(i)) > 0) return true;
        }
        return false;
    };
    ColorTable table;
    // Red (0) to orange (hue 20): the short way, never near blue.
    table.SetRange(0.0, 10.0, 1.0, kRed, RGB(255, 85, 0));
    EXPECT_EQ(table.NumEntries(), 11);
    EXPECT_FALSE(touchesBlue(table));
    // Red to green (120 apart): the long way, through magenta, blue and cyan.
    table.SetRange(0.0, 10.0, 1.0, kRed, RGB(0, 255, 0));
    EXPECT_TRUE(touchesBlue(table));
    EXPECT_EQ(table.EntryColor(10), RGB(165, 255, 0));  // green's hue, corrected to 81
}

TEST(ColorTableGenerators, SetFamilyKeepsLockedEntries) {
    ColorTable table;
    table.AddEntry(5.0, 0x123456, true, u"design");
    table.AddEntry(6.0, 0x654321, false, u"");
    table.SetRangeRGB(0.0, 10.0, 5.0, kBlack, kWhite);
    // n = 2 + 2; entries at 0, 5, 10; the new 5 goes before the locked one,
    // which therefore wins the lookups from 5 on.
    ExpectEntries(table,
                  {{0, RGB(85, 85, 85)}, {5, RGB(170, 170, 170)}, {5, 0x123456}, {10, kWhite}});
    EXPECT_EQ(table.GetColor(5.0), 0x123456u);
    EXPECT_EQ(table.GetColor(4.99), RGB(85, 85, 85));
    EXPECT_EQ(table.NumLocked(), 1);

    table.SetRangeRGB(3.0, 3.0, 1.0, kBlack, kRed);  // min = max: one entry
    ExpectEntries(table, {{3, kRed}, {5, 0x123456}});
}

TEST(ColorTableGenerators, RgbRampsAndTheirCounts) {
    ColorTable table;
    table.SetRangeRGB(0.0, 10.0, 5, kBlack, kWhite);
    ExpectEntries(table, {{0, RGB(63, 63, 63)},
                          {10.0 / 3, RGB(127, 127, 127)},
                          {20.0 / 3, RGB(191, 191, 191)},
                          {10, kWhite}});
    EXPECT_EQ(table.LowColor(), kBlack);

    // Three colours over the same step: n = 6, one entry fewer than the
    // two-colour ramp, the first half ending on mid, the second on to.
    const COLORREF mid = RGB(100, 50, 0);
    table.SetRangeRGB3(0.0, 4.0, 1.0, kBlack, mid, kWhite);
    ExpectEntries(table, {{0, RGB(50, 25, 0)}, {1, mid}, {2, RGB(177, 152, 127)}, {3, kWhite}});
    table.SetRangeRGB(0.0, 4.0, 1.0, kBlack, kWhite);
    EXPECT_EQ(table.NumEntries(), 5);

    // Channels falling from 255 truncate the sum, not the step: 127, not 128.
    table.SetRangeRGB(0.0, 1.0, 1.0, kWhite, kBlack);
    ExpectEntries(table, {{0, RGB(127, 127, 127)}, {1, kBlack}});

    // Steps that cannot make a ramp add nothing (but still set LowColor).
    table.SetRangeRGB(10.0, 0.0, 1.0, kRed, kBlue);
    EXPECT_EQ(table.NumEntries(), 0);
    table.SetRangeRGB(0.0, 1.0, 1e-300, kRed, kBlue);
    EXPECT_EQ(table.NumEntries(), 0);
    EXPECT_EQ(table.LowColor(), kRed);
}

TEST(ColorTableGenerators, AddRangeReplacesOnlyTheEntriesInsideItsRange) {
    ColorTable table;
    table.AddEntry(0, 1, false, u"");
    table.AddEntry(5, 2, true, u"");
    table.AddEntry(7, 3, true, u"");
    table.AddEntry(12, 4, false, u"");
    table.SetLowColor(0x777777);
    table.AddRange(5.0, 10.0, 1.0, kBlack, kWhite, true);
    // Six new entries at 5 .. 10, channels trunc(k * 255 / 6), k = 1 .. 6.
    ExpectEntries(table, {{0, 1},
                          {5, RGB(42, 42, 42)},
                          {6, RGB(85, 85, 85)},
                          {7, RGB(127, 127, 127)},
                          {8, RGB(170, 170, 170)},
                          {9, RGB(212, 212, 212)},
                          {10, kWhite},
                          {12, 4}});
    EXPECT_EQ(table.LowColor(), 0x777777u);  // the table still starts below 5

    ColorTable empty;
    empty.AddRange(0.0, 10.0, 5, kBlue, kRed, false);  // the hue ramp of SetRange
    ColorTable set;
    set.SetRange(0.0, 10.0, 5, kBlue, kRed);
    ASSERT_EQ(empty.NumEntries(), set.NumEntries());
    for (int i = 0; i < set.NumEntries(); ++i)
        EXPECT_EQ(empty.EntryColor(i), set.EntryColor(i));
    EXPECT_EQ(empty.LowColor(), kBlue);

    ColorTable three;
    three.AddEntry(-1, 9, false, u"");
    three.AddRange3(0.0, 4.0, 1.0, kBlack, RGB(100, 50, 0), kWhite);
    ExpectEntries(
        three,
        {{-1, 9}, {0, RGB(50, 25, 0)}, {1, RGB(100, 50, 0)}, {2, RGB(177, 152, 127)}, {3, kWhite}});
}

TEST(ColorTableGenerators, LogRangeSpacesEntriesByPowersOfTen) {
    ColorTable table;
    table.SetLogRange(1000.0, 5, true);  // log step 1: entries at 1, 10, 100, 1000
    ASSERT_EQ(table.NumEntries(), 4);
    EXPECT_NEAR(table.EntryValue(0), 1.0, 1e-12);
    EXPECT_NEAR(table.EntryValue(1), 10.0, 1e-12);
    EXPECT_NEAR(table.EntryValue(3), 1000.0, 1e-9);
    EXPECT_EQ(table.EntryColor(3), kRed);
    EXPECT_EQ(table.LowColor(), kBlue);
    table.SetLogRange(1000.0, 2, true);  // no usable step
    EXPECT_EQ(table.NumEntries(), 0);
}

TEST(ColorTableGenerators, FileColoursRepeatEveryElevenFiles) {
    ColorTable table;
    table.MakeFileColors(20, kBlue, kRed);
    ASSERT_EQ(table.NumEntries(), 19);  // files 2 .. 20
    for (int i = 0; i < table.NumEntries(); ++i)
        EXPECT_EQ(table.EntryValue(i), i + 2.0);
    EXPECT_EQ(table.GetColor(1), table.LowColor());
    EXPECT_EQ(table.GetColor(12), kRed);
    EXPECT_EQ(table.GetColor(13), table.LowColor());
    for (int file = 14; file <= 20; ++file) {
        EXPECT_EQ(table.GetColor(file), table.GetColor(file - 11)) << file;
    }

    table.MakeFileColors(2, kBlue, kRed);  // at least three: entries 2 and 3
    EXPECT_EQ(table.NumEntries(), 2);
    table.MakeFileColors(1, kBlue, kRed);
    EXPECT_EQ(table.NumEntries(), 0);
}

TEST(ColorTableGenerators, PaletteEntriesSpreadOverTheRange) {
    PALETTEENTRY palette[4] = {{10, 0, 0, 0}, {20, 0, 0, 0}, {30, 0, 0, 0}, {40, 0, 0, 0}};
    ColorTable table;
    table.SetColorPalette(0.0, 4.0, 4, palette);
    ExpectEntries(table, {{0, RGB(10, 0, 0)}, {2, RGB(20, 0, 0)}, {4, RGB(30, 0, 0)}});
    EXPECT_EQ(table.LowColor(), RGB(10, 0, 0));
    table.SetColorPalette(1.0, 1.0, 4, palette);
    ExpectEntries(table, {{1, RGB(40, 0, 0)}});
    table.SetColorPalette(0.0, 4.0, 2, palette);  // too few: unchanged
    EXPECT_EQ(table.NumEntries(), 1);

    auto display = std::make_shared<DisplayPalette>();
    for (int i = 0; i < 256; ++i) {
        display->entries[static_cast<std::size_t>(i)] = {static_cast<unsigned char>(i), 0, 0, 0};
    }
    table.SetColorPalette(0.0, 254.0, display);
    ASSERT_EQ(table.NumEntries(), 255);
    EXPECT_EQ(table.EntryColor(254), RGB(254, 0, 0));
    EXPECT_DOUBLE_EQ(table.EntryValue(100), 100.0);
    table.SetColorPalette(0.0, 1.0, std::shared_ptr<const DisplayPalette>());
    EXPECT_EQ(table.NumEntries(), 255);
}

TEST(ColorTableGenerators, DredgeDifferenceTableFromTheDefaults) {
    ColorTable table;
    table.GenerateDredgeDiffColorTable();
    const COLORREF darkRed = 0x0000C8;
    // Over dredge (four entries from -2.5), in tolerance (five from -0.5 in
    // steps of 0.2, yellow to green), under dredge (five from 0.5, silver to grey).
    ExpectEntries(table, {{-2.5, RGB(213, 0, 0)},
                          {-2.0, RGB(227, 0, 0)},
                          {-1.5, RGB(241, 0, 0)},
                          {-1.0, RGB(255, 0, 0)},
                          {-0.5, RGB(255, 255, 0)},
                          {-0.3, RGB(191, 255, 0)},
                          {-0.1, RGB(127, 255, 0)},
                          {0.1, RGB(63, 255, 0)},
                          {0.3, RGB(0, 255, 0)},
                          {0.5, RGB(192, 192, 192)},
                          {1.0, RGB(176, 176, 176)},
                          {1.5, RGB(160, 160, 160)},
                          {2.0, RGB(144, 144, 144)},
                          {2.5, RGB(128, 128, 128)}});
    EXPECT_EQ(table.LowColor(), darkRed);
}

TEST(ColorTableGenerators, DredgeDifferenceLimitsAndSmallBands) {
    ColorTable table;
    table.SetUnderDredgeLimit(-0.2);  // the wrong way round ...
    table.SetOverDredgeLimit(0.3);    // ... and positive: negated, then swapped
    table.SetUnderDredgeColorRange(0x111111, 0x222222, 1);
    table.SetInTolColorRange(0x333333, 0x444444, 2);
    table.SetOverDredgeColorRange(0x555555, 0x666666, 0);
    table.GenerateDredgeDiffColorTable();
    EXPECT_DOUBLE_EQ(table.GetOverDredgeLimit(), -0.3);
    EXPECT_DOUBLE_EQ(table.GetUnderDredgeLimit(), -0.2);
    ExpectEntries(table, {{-0.3, 0x333333}, {-0.2, 0x111111}, {0.0, 0x444444}});
    EXPECT_EQ(table.LowColor(), 0x666666u);

    table.SetInTolColorRange(0x333333, 0x444444, 1);
    table.SetUnderDredgeLimit(-0.3);  // equal limits: no tolerance band
    table.GenerateDredgeDiffColorTable();
    ExpectEntries(table, {{-0.3, 0x111111}});
}

}  // namespace
}  // namespace vex
