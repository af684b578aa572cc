#include <base/framework/CStdioFile.h>

#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vex {
namespace {

using test::ReadBytes;
using test::TempFolder;
using test::WriteBytes;

std::vector<std::u16string> ReadAllLines(const CString& path, textencoding::type encoding) {
    std::vector<std::u16string> lines;
    CStdioFile file;
    EXPECT_TRUE(file.Open(path, CFile::modeRead | CFile::shareDenyWrite, encoding));
    for (CString line; file.ReadString(line);)
        lines.push_back(line.Str());
    EXPECT_FALSE(file.GetError().IsError());
    return lines;
}

TEST(CStdioFile, ReadsLinesEndedByCrLfOrLf) {
    using namespace std::string_literals;
    struct Case {
        std::string bytes;
        std::vector<std::u16string> lines;
    };
    const Case cases[] = {
        {"", {}},
        {"a\r\nb\r\n", {u"a", u"b"}},
        {"a\nb\n", {u"a", u"b"}},
        {"a\r\nb\nc", {u"a", u"b", u"c"}},  // mixed, no final line end
        {"\r\n\n x \r\n", {u"", u"", u" x "}},
        {"a\rb\n", {u"a\rb"}},  // a CR alone is data
        {"x\0y\r\n"s, {u"x\0y"s}},
        {"\xEF\xBB\xBF[S]\r\n", {u"\uFEFF[S]"}},  // a byte-order mark is not removed
        {"caf\xC3\xA9\n", {u"caf\u00E9"}},
        {"a\xFF"
         "b\xC3\n",
         {u"a\uFFFDb\uFFFD"}},  // invalid UTF-8
    };
    TempFolder folder;
    for (const Case& c : cases) {
        WriteBytes(folder.Path("in.txt"), c.bytes);
        EXPECT_EQ(ReadAllLines(folder.File("in.txt"), textencoding::utf8), c.lines) << c.bytes;
    }
}

TEST(CStdioFile, WritesEveryLineFeedAsCrLf) {
    struct Case {
        textencoding::type encoding;
        std::u16string text;
        std::string bytes;
    };
    using namespace std::string_literals;
    const Case cases[] = {
        {textencoding::utf8, u"a\nb\n\nc", "a\r\nb\r\n\r\nc"},
        // The text's own CR stays, as in a C runtime text stream.
        {textencoding::utf8, u"x\r\n", "x\r\r\n"},
        {textencoding::utf8, u"\u00B0\u20AC\n", "\xC2\xB0\xE2\x82\xAC\r\n"},
        {textencoding::unicode, u"A\n\u20AC", "A\0\r\0\n\0\xAC\x20"s},
    };
    TempFolder folder;
    for (const Case& c : cases) {
        CStdioFile file;
        ASSERT_TRUE(
            file.Open(folder.File("out.txt"), CFile::modeCreate | CFile::modeWrite, c.encoding));
        EXPECT_TRUE(file.WriteString(CString(c.text)));
        EXPECT_TRUE(file.Close());
        EXPECT_EQ(ReadBytes(folder.Path("out.txt")), c.bytes);
    }
}

TEST(CStdioFile, LinesRoundTripInEveryEncoding) {
    using namespace std::string_literals;
    const std::vector<std::u16string> lines = {
        u"[General]",
        u"",
        u"key = value",
        u"\t spaced \t",
        u"nul\0inside"s,
        u"\u00C5ngstr\u00F6m \U0001F30A",
        std::u16string(1 << 20, u'w'),
        u"last",
    };
    TempFolder folder;
    for (const auto encoding : {textencoding::utf8, textencoding::unicode}) {
        CStdioFile file;
        ASSERT_TRUE(
            file.Open(folder.File("lines.txt"), CFile::modeCreate | CFile::modeWrite, encoding));
        for (const auto& line : lines)
            ASSERT_TRUE(file.WriteString(CString(line + u"\n")));
        ASSERT_TRUE(file.Close());
        EXPECT_EQ(ReadAllLines(folder.File("lines.txt"), encoding), lines) << encoding;
    }
}

TEST(CStdioFile, UnicodeLinesStayAlignedAfterAnOddBinaryRead) {
    // One byte, then a UTF-16 line longer than the read buffer: its code
    // units straddle each refill of the buffer.
    std::string bytes = "#";
    for (int i = 0; i < 3000; ++i)
        bytes += std::string("\x41\x20", 2);
    bytes += std::string("\r\0\n\0z\0", 6);
    bytes += "\x01";  // half a code unit at the end
    TempFolder folder;
    WriteBytes(folder.Path("wide.txt"), bytes);

    CStdioFile file;
    ASSERT_TRUE(file.Open(folder.File("wide.txt"), CFile::modeRead, textencoding::unicode));
    char first = 0;
    ASSERT_EQ(file.Read(&first, 1), 1u);
    EXPECT_EQ(first, '#');
    CString line;
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line.Str(), std::u16string(3000, u'\u2041'));
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line.Str(), u"z\uFFFD");
    EXPECT_FALSE(file.ReadString(line));
}

TEST(CStdioFile, BinaryAndTextOperationsShareOnePosition) {
    TempFolder folder;
    CStdioFile file;
    ASSERT_TRUE(file.Open(folder.File("mixed.bin"), CFile::modeCreate | CFile::modeReadWrite));
    ASSERT_TRUE(file.Write("abc", 3));
    ASSERT_TRUE(file.WriteString(CString(u"d\n")));
    EXPECT_EQ(file.GetLength(), 6u);  // counts bytes still buffered
    EXPECT_EQ(file.GetPosition(), 6u);

    ASSERT_TRUE(file.SeekToBegin());
    CString line;
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, u"abcd");
    EXPECT_EQ(file.GetPosition(), 6u);

    // Writing after reading continues at the logical position, not after
    // the bytes the buffer read ahead.
    ASSERT_TRUE(file.Seek(1, CFile::begin));
    char b = 0;
    ASSERT_EQ(file.Read(&b, 1), 1u);
    ASSERT_TRUE(file.Write("X", 1));
    ASSERT_TRUE(file.Close());
    EXPECT_EQ(ReadBytes(folder.Path("mixed.bin")), "abXd\r\n");

    EXPECT_FALSE(file.Seek(0, CFile::begin));
    EXPECT_EQ(file.GetError().cause, FileErrorCause::invalidFile);
}

TEST(CStdioFile, OpenFlagsDecideCreationAndTruncation) {
    struct Case {
        const char* what;
        bool exists;
        unsigned flags;
        bool opens;
        std::string contentAfter;  // "-" for no file
    };
    const Case cases[] = {
        {"read existing", true, CFile::modeRead, true, "old"},
        {"read missing", false, CFile::modeRead, false, "-"},
        {"write missing", false, CFile::modeWrite, false, "-"},
        {"create truncates", true, CFile::modeCreate | CFile::modeWrite, true, ""},
        {"create keeps", true, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite, true,
         "old"},
        {"create missing", false, CFile::modeCreate | CFile::modeReadWrite, true, ""},
        {"bad access", true, 3u, false, "old"},
    };
    for (const Case& c : cases) {
        TempFolder folder;
        if (c.exists) WriteBytes(folder.Path("f.txt"), "old");
        CStdioFile file;
        EXPECT_EQ(file.Open(folder.File("f.txt"), c.flags), c.opens) << c.what;
        EXPECT_EQ(file.IsOpen(), c.opens) << c.what;
        EXPECT_EQ(file.GetError().IsError(), !c.opens) << c.what;
        file.Close();
        const bool present = std::filesystem::exists(folder.Path("f.txt"));
        EXPECT_EQ(present ? ReadBytes(folder.Path("f.txt")) : "-", c.contentAfter) << c.what;
    }
}

TEST(CStdioFile, MissingFileOrFolderFailsCleanly) {
    TempFolder folder;
    CStdioFile file;
    EXPECT_FALSE(file.Open(folder.File("missing.ini"), CFile::modeRead));
    EXPECT_EQ(file.GetError().cause, FileErrorCause::fileNotFound);
    EXPECT_NE(file.GetError().osError, 0);
    EXPECT_EQ(file.GetFilePath(), folder.File("missing.ini"));

    CString line(u"unchanged");
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(line, u"unchanged");
    EXPECT_EQ(file.GetError().cause, FileErrorCause::invalidFile);

    EXPECT_FALSE(file.Open(CString(folder.Path().u16string()), CFile::modeRead));
    EXPECT_FALSE(file.Open(CString(), CFile::modeRead));
    EXPECT_TRUE(folder.Names().empty());
}

TEST(CStdioFile, ShareModesAreHonouredOnWindowsOnly) {
    TempFolder folder;
    WriteBytes(folder.Path("shared.txt"), "x");
    CStdioFile first;
    ASSERT_TRUE(first.Open(folder.File("shared.txt"), CFile::modeRead | CFile::shareExclusive));
    CStdioFile second;
    const bool opened = second.Open(folder.File("shared.txt"), CFile::modeRead);
#ifdef _WIN32
    EXPECT_FALSE(opened);
    EXPECT_EQ(second.GetError().cause, FileErrorCause::sharingViolation);
#else
    EXPECT_TRUE(opened);
#endif
    CStdioFile third;
    first.Close();
    ASSERT_TRUE(first.Open(folder.File("shared.txt"), CFile::modeRead | CFile::shareDenyWrite));
    EXPECT_TRUE(third.Open(folder.File("shared.txt"), CFile::modeRead | CFile::shareDenyWrite));
}

}  // namespace
}  // namespace vex
