#include <base/survey/VesselContour.h>

#include <base/framework/Format.h>

#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace vex {
namespace {

// The points as "x y z flags value" joined by "; ", flags as A, B, AB or -.
std::string Describe(const VesselContour& contour) {
    std::string text;
    for (const VesselPoint& p : contour.GetPoints()) {
        const char* flags[] = {"-", "A", "B", "AB"};
        text +=
            (text.empty() ? "" : "; ") + Format("%g %g %g %s %u", p.GetPoint().x, p.GetPoint().y,
                                                p.GetPoint().z, flags[p.GetFlags()], p.GetValue());
    }
    return text;
}

TEST(VesselContour, ReadsTheSideSectionByTheFileRules) {
    struct Case {
        const char* file;  // after "[DRAW]\r\n" unless it holds a section of its own
        int side;
        bool convert;
        int penWidth, penColor, format;
        bool loaded;
        const char* points;
    };
    const Case cases[] = {
        // No pen keys: width 1, colour 0; flags 3 set both flags.
        {"[POINTS]\r\nPoint(1)=1.5,2.5,3\r\n", 0, false, 1, 0, 3, true, "1.5 2.5 0 AB 0"},
        // A gap ends the outline; the fourth field is the value.
        {"PenWidth = 3\r\nPenColor = -2\r\n[POINTS]\r\nPoint(1) = 1, 2, 1, 7\r\n"
         "Point(2) = -3.25, 4, 2, 4294967295\r\nPoint(4) = 9, 9, 0, 0\r\n",
         0, false, 3, -2, 4, true, "1 2 0 A 7; -3.25 4 0 B 4294967295"},
        // Sides other than 1 to 5 read the plan outline, which is never converted.
        {"[POINTS]\r\nPoint(1)=1,2,0\r\n[LEFT POINTS]\r\nPoint(1)=5,6,0\r\n", 9, true, 1, 0, 3,
         true, "1 2 0 - 0"},
        {"[LEFT POINTS]\r\nPoint(1)=2,3,0\r\n", 2, true, 1, 0, 3, true, "0 2 3 - 0"},
        {"[RIGHT POINTS]\r\nPoint(1)=2,3,0\r\n", 3, true, 1, 0, 3, true, "0 2 3 - 0"},
        {"[FRONT POINTS]\r\nPoint(1)=2,3,0\r\n", 4, true, 1, 0, 3, true, "2 0 3 - 0"},
        {"[BACK POINTS]\r\nPoint(1)=2,3,0\r\n", 5, true, 1, 0, 3, true, "2 0 3 - 0"},
        {"[BOTTOM POINTS]\r\nPoint(1)=2,3,0\r\n", 1, true, 1, 0, 3, true, "2 3 0 - 0"},
        // A missing side section is no failure, but nothing is loaded.
        {"[POINTS]\r\nPoint(1)=1,2,0\r\n", 4, false, 1, 0, 0, false, ""},
        // An unreadable line ends the outline before it.
        {"[POINTS]\r\nPoint(1)=1,2,0\r\nPoint(2)=1;2;0\r\nPoint(3)=5,6,0\r\n", 0, false, 1, 0, 3,
         true, "1 2 0 - 0"},
        // Once four fields were read, a three-field line is unreadable; once
        // three were, a fourth field is passed over.
        {"[POINTS]\r\nPoint(1)=1,2,0,5\r\nPoint(2)=3,4,0\r\n", 0, false, 1, 0, 4, true,
         "1 2 0 - 5"},
        {"[POINTS]\r\nPoint(1)=1,2,0\r\nPoint(2)=3,4,1,5\r\n", 0, false, 1, 0, 3, true,
         "1 2 0 - 0; 3 4 0 A 0"},
        // Only bits 0 and 1 count, and only for flags above 0.
        {"[POINTS]\r\nPoint(1)=0,0,-1\r\nPoint(2)=0,0,4\r\nPoint(3)=0,0,6\r\n", 0, false, 1, 0, 3,
         true, "0 0 0 - 0; 0 0 0 - 0; 0 0 0 B 0"},
    };
    for (const Case& c : cases) {
        test::TempFolder folder;
        test::WriteBytes(folder.Path("hull.ves"), std::string("[DRAW]\r\n") + c.file);
        VesselContour contour;
        EXPECT_TRUE(contour.Create(folder.File("hull.ves"), c.side, c.convert)) << c.file;
        EXPECT_EQ(contour.GetPenWidth(), c.penWidth) << c.file;
        EXPECT_EQ(contour.GetPenColor(), c.penColor) << c.file;
        EXPECT_EQ(contour.GetFormat(), c.format) << c.file;
        EXPECT_EQ(contour.IsLoaded(), c.loaded) << c.file;
        EXPECT_EQ(Describe(contour), c.points) << c.file;
    }
}

TEST(VesselContour, TheFirstFormatReadGovernsLaterFiles) {
    test::TempFolder folder;
    test::WriteBytes(folder.Path("four.ves"), "[POINTS]\r\nPoint(1)=1,2,1,9\r\n");
    test::WriteBytes(folder.Path("three.ves"), "[POINTS]\r\nPoint(1)=1,2,1\r\n");
    VesselContour contour;
    ASSERT_TRUE(contour.Create(folder.File("three.ves"), 0, false));
    ASSERT_TRUE(contour.Create(folder.File("four.ves"), 0, false));
    EXPECT_EQ(Describe(contour), "1 2 0 A 0") << "four fields read as three";
    VesselContour fresh;
    ASSERT_TRUE(fresh.Create(folder.File("four.ves"), 0, false));
    ASSERT_TRUE(fresh.Create(folder.File("three.ves"), 0, false));
    EXPECT_EQ(Describe(fresh), "") << "three fields cannot be read as four";
}

TEST(VesselContour, AFileThatCannotBeOpenedGivesTheDefaultHull) {
    test::TempFolder folder;
    test::WriteBytes(folder.Path("nosections.ves"), "Point(1)=1,2,0\r\n");
    for (const char* name : {"missing.ves", "nosections.ves"}) {
        VesselContour contour;
        contour.SetPenWidth(4);
        contour.SetPenColor(255);
        EXPECT_FALSE(contour.Create(folder.File(name), 3, true)) << name;
        EXPECT_EQ(contour.GetViewSide(), 3) << name;
        EXPECT_EQ(contour.GetPenWidth(), 0) << name;
        EXPECT_EQ(contour.GetPenColor(), 0) << name;
        EXPECT_FALSE(contour.IsLoaded()) << name;
        EXPECT_EQ(Describe(contour),
                  "-5 -7 0 A 0; -5 7 0 - 0; 0 10 0 - 0; 5 7 0 - 0; 5 -7 0 - 0; -5 -7 0 - 0");
    }
}

TEST(VesselContour, PointsAreCountedFromOne) {
    VesselContour contour;
    const VesselPoint a(Point(1, 1), true, false);
    const VesselPoint b(Point(2, 2), false, true);
    const VesselPoint c(Point(3, 3), false, false);
    VesselPoint out(Point(9, 9), true, true);
    const VesselPoint untouched = out;

    EXPECT_FALSE(contour.InsertPoint(1, a)) << "nothing to insert before";
    EXPECT_TRUE(contour.AddPoint(a));
    EXPECT_TRUE(contour.AddPoint(c));
    EXPECT_TRUE(contour.InsertPoint(2, b));  // a b c
    for (const int bad : {0, -1, 4}) {
        EXPECT_FALSE(contour.GetPoint(bad, out)) << bad;
        EXPECT_FALSE(contour.SetPoint(bad, a)) << bad;
        EXPECT_FALSE(contour.InsertPoint(bad, a)) << bad;
        EXPECT_FALSE(contour.DeletePoint(bad)) << bad;
    }
    EXPECT_EQ(out, untouched);
    EXPECT_TRUE(contour.GetPoint(3, out));
    EXPECT_EQ(out, c) << "the size is the last point";
    EXPECT_TRUE(contour.SetPoint(1, c));
    EXPECT_TRUE(contour.DeletePoint(2));
    EXPECT_EQ(Describe(contour), "3 3 0 - 0; 3 3 0 - 0");
}

TEST(VesselContour, ExtentsBoundThePointsAndAreEmptyWithoutThem) {
    VesselContour contour;
    Page page(0, 0, 0, 0);
    Point centre(9, 9, 9);
    EXPECT_TRUE(contour.GetExtents(page));
    EXPECT_EQ(page, Page(1, 1, -1, -1));
    page = Page(0, 0, 0, 0);
    EXPECT_FALSE(contour.GetBoundingPage(page));
    EXPECT_EQ(page, Page(0, 0, 0, 0));
    EXPECT_FALSE(contour.GetCenterPoint(centre));
    EXPECT_EQ(centre, Point(9, 9, 9));

    contour.AddPoint(VesselPoint(Point(-1, 4, 7), false, false));
    EXPECT_TRUE(contour.GetExtents(page));
    EXPECT_EQ(page, Page(-1, 4, -1, 4)) << "one point bounds a point";
    contour.AddPoint(VesselPoint(Point(3, -2, 5), false, false));
    contour.AddPoint(VesselPoint(Point(0, 10, 0), false, false));
    EXPECT_TRUE(contour.GetExtents(page));
    EXPECT_EQ(page, Page(-1, -2, 3, 10));
    Page bounding;
    EXPECT_TRUE(contour.GetBoundingPage(bounding));
    EXPECT_EQ(bounding, page);
    EXPECT_TRUE(contour.GetCenterPoint(centre));
    EXPECT_EQ(centre, Point(1, 4, 0));
}

TEST(VesselContour, TheBinaryFormIsLittleEndianByteForByte) {
    VesselContour contour;
    contour.SetPenColor(0x00FF8001);
    contour.SetPenWidth(-2);
    contour.AddPoint(VesselPoint(Point(1.0, -2.5, 99.0), true, false));
    VesselPoint second(Point(0.0, 1e300), false, true);
    second.SetValue(77);  // neither z nor the value travels
    contour.AddPoint(second);

    std::string bytes;
    EXPECT_TRUE(contour.SaveToString(bytes));
    // IEEE 754: 1.0 = 3FF0000000000000, -2.5 = C004000000000000,
    // 1e300 = 7E37E43C8800759C.
    const std::string expected(
        "\x01\x80\xFF\x00"
        "\xFE\xFF\xFF\xFF"
        "\x00\x00\x00\x00\x00\x00\xF0\x3F"
        "\x00\x00\x00\x00\x00\x00\x04\xC0"
        "\x01\x00"
        "\x00\x00\x00\x00\x00\x00\x00\x00"
        "\x9C\x75\x00\x88\x3C\xE4\x37\x7E"
        "\x00\x01",
        8 + 2 * 18);
    EXPECT_EQ(bytes, expected);

    VesselContour loaded;
    EXPECT_TRUE(loaded.LoadFromString(bytes));
    EXPECT_TRUE(loaded.IsLoaded());
    EXPECT_EQ(loaded.GetPenColor(), 0x00FF8001);
    EXPECT_EQ(loaded.GetPenWidth(), -2);
    EXPECT_EQ(Describe(loaded), "1 -2.5 0 A 0; 0 1e+300 0 B 0");
}

TEST(VesselContour, BinaryStringsOfAnyLengthLoadOrFail) {
    std::string full;
    VesselContour source;
    source.SetPenColor(5);
    for (int i = 0; i < 3; ++i)
        source.AddPoint(VesselPoint(Point(i, -i), i == 1, i == 2));
    source.SaveToString(full);
    ASSERT_EQ(full.size(), 8u + 3 * 18);

    for (std::size_t length = 0; length <= full.size(); ++length) {
        VesselContour contour;
        contour.AddPoint(VesselPoint(Point(7, 7), true, true));
        const bool result = contour.LoadFromString(full.substr(0, length));
        EXPECT_EQ(result, length >= 9) << length;
        EXPECT_EQ(contour.IsLoaded(), length >= 9) << length;
        const int whole = length < 8 ? 0 : static_cast<int>((length - 8) / 18);
        EXPECT_EQ(contour.GetSize(), whole) << length << " bytes: the old points always go";
        EXPECT_EQ(contour.GetPenColor(), length >= 9 ? 5 : 0) << length;
    }
    // A flag byte other than 0 is set.
    std::string odd = full;
    odd[8 + 16] = '\x7F';
    VesselContour contour;
    ASSERT_TRUE(contour.LoadFromString(odd));
    VesselPoint first;
    contour.GetPoint(1, first);
    EXPECT_TRUE(first.GetFlagA());
}

std::vector<VesselPoint> SamplePoints(int side) {
    std::vector<VesselPoint> points;
    for (int i = 0; i < 4; ++i) {
        VesselPoint p(Point(-11.5 + i * 2.25 + side, 55.125 - i * 10.5, 0.0), i % 2 == 1, i == 2);
        p.SetValue(static_cast<std::uint32_t>(i * 1000 + side));
        points.push_back(p);
    }
    return points;
}

TEST(VesselContour, EverySideSurvivesASaveAndReload) {
    test::TempFolder folder;
    const CString path = folder.File("dredger.ves");
    VesselContour writer;
    writer.SetPenWidth(2);
    writer.SetPenColor(0x800000);
    for (const int side : {0, 1, 2, 3, 4, 5}) {
        writer.SetViewSide(side);
        writer.DeleteAllPoints();
        for (const VesselPoint& p : SamplePoints(side))
            writer.AddPoint(p);
    }
    ASSERT_TRUE(writer.Save(path));

    const std::string text = test::ReadBytes(folder.Path("dredger.ves"));
    EXPECT_NE(text.find("[DRAW]\r\nPenWidth = 2\r\nPenColor = 8388608\r\n"), std::string::npos)
        << text;
    EXPECT_NE(text.find("[LEFT POINTS]\r\nPoint(1) = -9.500000, 55.125000, 0, 2\r\n"
                        "Point(2) = -7.250000, 44.625000, 1, 1002\r\n"
                        "Point(3) = -5.000000, 34.125000, 2, 2002\r\n"),
              std::string::npos)
        << text;

    for (const int side : {0, 1, 2, 3, 4, 5}) {
        VesselContour reader;
        ASSERT_TRUE(reader.Create(path, side, false)) << side;
        EXPECT_TRUE(reader.IsLoaded());
        EXPECT_EQ(reader.GetFormat(), 4);
        EXPECT_EQ(reader.GetPenWidth(), 2);
        EXPECT_EQ(reader.GetPenColor(), 0x800000);
        EXPECT_EQ(reader.GetPoints(), SamplePoints(side)) << "side " << side;
    }
}

TEST(VesselContour, SwitchingSidesKeepsTheEditsOfTheSideLeft) {
    test::TempFolder folder;
    test::WriteBytes(folder.Path("hull.ves"),
                     "[POINTS]\r\nPoint(1)=1,2,0\r\n[LEFT POINTS]\r\nPoint(1)=5,6,0\r\n"
                     "Point(2)=7,8,0\r\n");
    VesselContour contour;
    ASSERT_TRUE(contour.Create(folder.File("hull.ves"), 0, false));
    contour.AddPoint(VesselPoint(Point(3, 4), false, true));
    EXPECT_TRUE(contour.SetViewSide(0));
    EXPECT_EQ(contour.GetSize(), 2) << "the same side changes nothing";

    EXPECT_TRUE(contour.SetViewSide(2));
    EXPECT_EQ(Describe(contour), "5 6 0 - 0; 7 8 0 - 0");
    EXPECT_TRUE(contour.SetViewSide(4));
    EXPECT_FALSE(contour.IsLoaded()) << "no front view in the file";
    EXPECT_TRUE(contour.SetViewSide(0));
    EXPECT_EQ(Describe(contour), "1 2 0 - 0; 3 4 0 B 0");
    EXPECT_EQ(test::ReadBytes(folder.Path("hull.ves")).find("3.000000"), std::string::npos)
        << "switching sides does not write the file";
}

TEST(VesselContour, AFailedSaveLeavesTheOldFile) {
    test::TempFolder folder;
    const std::string old = "[POINTS]\r\nPoint(1)=1,2,0\r\n";
    test::WriteBytes(folder.Path("hull.ves"), old);
    VesselContour contour;
    ASSERT_TRUE(contour.Create(folder.File("hull.ves"), 0, false));
    contour.AddPoint(VesselPoint(Point(3, 4), false, false));
    EXPECT_FALSE(contour.Save(CString()));
    EXPECT_FALSE(contour.Save(folder.File("missing/hull.ves")));

    namespace fs = std::filesystem;
    fs::permissions(folder.Path(),
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    const bool folderLocked = !std::ofstream(folder.Path("probe"));
    if (folderLocked) {
        EXPECT_FALSE(contour.Save(folder.File("hull.ves")));
    }
    fs::permissions(folder.Path(), fs::perms::owner_all, fs::perm_options::add);
    EXPECT_EQ(test::ReadBytes(folder.Path("hull.ves")), old);
    if (!folderLocked) GTEST_SKIP() << "folder permissions are not enforced here";
}

}  // namespace
}  // namespace vex
