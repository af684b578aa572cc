// GMT colour palette tables: the colour forms, slices and B/F/N lines,
// refusal of garbage with its line number, round trips, and GMT itself
// reading what we write and writing what we read.
#include <base/colour/CptFile.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

namespace vex {
namespace {

TEST(CptFile, ColourForms) {
    struct Case {
        const char* text;
        bool ok;
        COLORREF color;
    };
    const Case cases[] = {
        {"255/128/0", true, RGB(255, 128, 0)},
        {"44.875/113.62/142", true, RGB(45, 114, 142)},  // GMT writes fractions: rounded
        {"#FF8000", true, RGB(255, 128, 0)},
        {"#0a0B0c", true, RGB(10, 11, 12)},
        {"128", true, RGB(128, 128, 128)},
        {"White", true, RGB(255, 255, 255)},
        {"lightred", true, RGB(255, 127, 127)},
        {"0-1-1", true, RGB(255, 0, 0)},
        {"240-1-0.5", true, RGB(0, 0, 128)},
        {"256/0/0", false, 0},
        {"-1", false, 0},
        {"1/2", false, 0},
        {"#12345", false, 0},
        {"#GG0000", false, 0},
        {"400-1-1", false, 0},
        {"nocolour", false, 0},
        {"", false, 0},
        {"nan/0/0", false, 0},
    };
    for (const Case& c : cases) {
        COLORREF color = 0x123456;
        EXPECT_EQ(ParseCptColor(c.text, color), c.ok) << c.text;
        EXPECT_EQ(color, c.ok ? c.color : 0x123456u) << c.text;
    }
}

TEST(CptFile, SlicesLabelsAndBackgroundForegroundNaN) {
    const char* text =
        "# a depth palette\r\n"
        "# COLOR_MODEL = RGB\r\n"
        "-20 0 0 255 -10 0 0 255 L ; deep water\r\n"
        "-10\tblue\t-5\t0/255/0\tU\r\n"  // continuous
        "0 #FFFF00 5 #FFFF00 B\r\n"      // a gap from -5 to 0
        "B black\r\nF 255/255/255\r\nN 128\r\n";
    CptPalette cpt;
    CString error;
    ASSERT_TRUE(ParseCpt(text, cpt, error, {2})) << error.ToUtf8();
    const ColorTable& t = cpt.table;
    ASSERT_EQ(t.NumEntries(), 6);
    const double values[] = {-20, -10, -7.5, -5, 0, 5};
    const COLORREF colors[] = {RGB(0, 0, 255),     RGB(0, 64, 191),  RGB(0, 191, 64),
                               RGB(128, 128, 128), RGB(255, 255, 0), RGB(255, 255, 255)};
    for (int i = 0; i < 6; ++i) {
        EXPECT_DOUBLE_EQ(t.EntryValue(i), values[i]) << i;
        EXPECT_EQ(t.EntryColor(i), colors[i]) << i;
    }
    EXPECT_EQ(t.EntryName(0), CString(u"deep water"));
    EXPECT_EQ(t.LowColor(), 0u);
    EXPECT_EQ(cpt.foreground.value_or(0), 0xFFFFFFu);
    EXPECT_EQ(cpt.nanColor.value_or(0), RGB(128, 128, 128));

    // HSV model: triples are hue, saturation, value.
    ASSERT_TRUE(ParseCpt("# COLOR_MODEL = +HSV\n0 0 1 1 1 120 1 1\n", cpt, error));
    EXPECT_EQ(cpt.table.EntryColor(0), RGB(255, 0, 0));
    EXPECT_EQ(cpt.table.NumEntries(), 1);
}

TEST(CptFile, GarbageIsRefusedWithItsLineNumber) {
    struct Case {
        const char* text;
        const char* error;
    };
    const Case cases[] = {
        {"0 red 1 red\nhello world\n", "line 2: "},
        {"0 red 1 red\n\n1 red 2 bluish\n", "line 3: "},
        {"0 red 1\n", "line 1: "},
        {"0 red 1 red\n0.5 red 2 red\n", "line 2: slices overlap"},
        {"1 red 0 red\n", "line 1: a slice must rise"},
        {"# COLOR_MODEL = CMYK\n0 0/0/0/0 1 0/0/0/0\n", "line 1: CMYK"},
        {"B 1/2/3\n", "line 1: no colour slices"},
        {"F\n0 red 1 red\n", "line 1: "},
        {"0 red 1 red 7 7\n", "line 1: "},
        {"", "line 1: no colour slices"},
        {"0 red nan red\n", "line 1: "},
        {"\xff\xfe\x00garbage\n", "line 1: "},
    };
    for (const Case& c : cases) {
        CptPalette cpt;
        cpt.table.SetLowColor(0x42);
        CString error;
        EXPECT_FALSE(ParseCpt(c.text, cpt, error)) << c.text;
        EXPECT_EQ(error.ToUtf8().rfind(c.error, 0), 0u) << error.ToUtf8();
        EXPECT_EQ(cpt.table.LowColor(), 0x42u);  // unchanged
    }
    // Random bytes never crash the reader.
    std::mt19937 random(3);
    for (int i = 0; i < 300; ++i) {
        std::string junk(static_cast<std::size_t>(random() % 80), ' ');
        for (char& ch : junk)
            ch = "0123456789 /#-.;\nBFNLUrebd\t"[random() % 27];
        CptPalette cpt;
        CString error;
        ParseCpt(junk, cpt, error);
    }
}

// Lookups agree at every entry value, just around it and between entries.
void ExpectSameLookups(const ColorTable& a, const ColorTable& b) {
    EXPECT_EQ(a.LowColor(), b.LowColor());
    for (int i = 0; i < a.NumEntries(); ++i) {
        const double v = a.EntryValue(i);
        for (double probe : {v, v - 1e-6, v + 1e-6, v + 0.37}) {
            ASSERT_EQ(a.GetColor(probe), b.GetColor(probe)) << probe;
        }
    }
}

TEST(CptFile, ExportedTablesReadBackToTheSameColours) {
    ColorTable tables[4];
    tables[0].SetRange(-30.0, 0.0, 16, true, false);
    tables[0].SetEntryName(3, u"channel; depth");
    tables[1].GenerateDredgeDiffColorTable();
    tables[2].AddEntry(7.25, RGB(1, 2, 3), false, u"only");
    tables[2].SetLowColor(RGB(9, 9, 9));
    tables[3].SetRangeRGB(0.0, 1.0, 0.001, RGB(0, 0, 0), RGB(255, 255, 255));
    for (const ColorTable& table : tables) {
        CptPalette out;
        out.table = table;
        out.nanColor = RGB(10, 20, 30);
        CptPalette in;
        CString error;
        ASSERT_TRUE(ParseCpt(FormatCpt(out), in, error)) << error.ToUtf8();
        ExpectSameLookups(table, in.table);
        ExpectSameLookups(in.table, table);
        EXPECT_EQ(in.nanColor.value_or(0), RGB(10, 20, 30));
        if (&table == &tables[0]) {
            EXPECT_EQ(in.table.EntryName(3), CString(u"channel; depth"));
        }
    }
}

// Found by fuzzing: a last entry with the colour of the entry below was
// written only as F, which reading takes as nothing new, so the entry (and
// with it the boundary) was lost. Every entry must come back, names too.
TEST(CptFile, TheLastEntryComesBackEvenInTheColourBelowIt) {
    CptPalette out;
    out.table.AddEntry(0.0, RGB(255, 0, 0), false, u"");
    out.table.AddEntry(10.0, RGB(255, 0, 0), false, u"top band");
    CptPalette in;
    CString error;
    const std::string text = FormatCpt(out);
    ASSERT_TRUE(ParseCpt(text, in, error)) << error.ToUtf8();
    ASSERT_EQ(in.table.NumEntries(), 2) << text;
    EXPECT_EQ(in.table.EntryValue(1), 10.0);
    EXPECT_EQ(in.table.EntryName(1), CString(u"top band"));
    EXPECT_EQ(FormatCpt(in), text) << "a written table is a fixed point";
}

// GMT is a separate program; these run where it is installed.
class CptWithGmt : public ::testing::Test {
  protected:
    void SetUp() override {
#ifdef _WIN32
        GTEST_SKIP() << "GMT runs in the native builds only";
#else
        if (std::system("gmt --version > /dev/null 2>&1") != 0) GTEST_SKIP() << "no gmt";
        dir_ = std::filesystem::temp_directory_path() /
               ("vex-cpt-" + std::to_string(std::random_device()()));
        std::filesystem::create_directories(dir_);
#endif
    }
    void TearDown() override {
        if (!dir_.empty()) std::filesystem::remove_all(dir_);
    }
    // Runs gmt in the test's folder; its standard output goes to `output`.
    bool Gmt(const std::string& arguments, const std::string& output) {
        const std::string command =
            "cd \"" + dir_.string() + "\" && gmt " + arguments + " > " + output + " 2> gmt.err";
        return std::system(command.c_str()) == 0;
    }
    std::string Read(const std::string& name) {
        std::ifstream in(dir_ / name, std::ios::binary);
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }
    std::filesystem::path dir_;
};

TEST_F(CptWithGmt, GmtReadsOurTablesUnchanged) {
    ColorTable table;
    table.SetRange(-20.0, 0.0, 12, true, false);
    table.SetEntryName(2, u"too deep");
    CptPalette ours;
    ours.table = table;
    ours.nanColor = RGB(128, 128, 128);
    ASSERT_TRUE(WriteCptFile(CString::FromUtf8((dir_ / "ours.cpt").string()), ours));
    // makecpt without a range hands the table back as GMT understood it.
    ASSERT_TRUE(Gmt("makecpt -Cours.cpt", "again.cpt")) << Read("gmt.err");
    CptPalette again;
    CString error;
    ASSERT_TRUE(ParseCpt(Read("again.cpt"), again, error)) << error.ToUtf8();
    ExpectSameLookups(table, again.table);
    EXPECT_EQ(again.table.EntryName(2), CString(u"too deep"));
    // And GMT can draw it as a colour bar.
    EXPECT_TRUE(Gmt("colorbar -Cours.cpt -Dx0/0+w5c/0.5c -Bx -ps", "bar.ps")) << Read("gmt.err");
}

TEST_F(CptWithGmt, WeReadTablesGmtWrites) {
    ASSERT_TRUE(Gmt("makecpt -Cviridis -T0/100/10", "viridis.cpt")) << Read("gmt.err");
    CptPalette cpt;
    CString error;
    ASSERT_TRUE(ParseCpt(Read("viridis.cpt"), cpt, error)) << error.ToUtf8();
    const ColorTable& t = cpt.table;
    ASSERT_GE(t.NumEntries(), 10);
    EXPECT_EQ(t.EntryValue(0), 0.0);
    EXPECT_EQ(t.EntryValue(9), 90.0);
    // Viridis runs from dark purple to yellow: blue-dominant at the bottom,
    // red and green dominant at the top.
    EXPECT_GT(GetBValue(t.GetColor(1)), GetRValue(t.GetColor(1)));
    EXPECT_GT(GetGValue(t.GetColor(99)), 180u);
    EXPECT_LT(GetBValue(t.GetColor(99)), 100u);
    ASSERT_TRUE(cpt.foreground.has_value());
    EXPECT_EQ(t.GetColor(100), *cpt.foreground);  // beyond the top: F

    ASSERT_TRUE(Gmt("makecpt -Cpolar -T-1/1/0.25 -Z -Fr", "polar.cpt")) << Read("gmt.err");
    ASSERT_TRUE(ParseCpt(Read("polar.cpt"), cpt, error, {4})) << error.ToUtf8();
    EXPECT_EQ(cpt.table.NumEntries(), 8 * 4 + 1);  // eight slices of four bands, and F
}

}  // namespace
}  // namespace vex
