// Large files are read from disk a piece at a time and their end-of-line
// comments are cut before the text is decoded. Whatever falls on the edge
// of a piece, the result must be the one of the same bytes parsed whole from
// memory and of the stream's line reader.
#include "ConfigTestSupport.h"

#include "../common/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace vex {
namespace {

using test::Describe;
using test::Extras;

// Lines whose reading depends on what comes before or after them: CR LF and
// LF ends, a CR inside a line, continuations (one with a comment), comments
// after non-ASCII text and after bytes that are not UTF-8, a comment line
// that drops a continued entry, and a repeated section.
const std::string kAwkwardLines =
    "split = ab \\\r\n"
    "  cd // note\r\n"
    "k\xC3\xA9y = v\xC3\xA9rt // x\r\n"
    "bad = \xFF\xFE z//y\r\n"
    "short = \xE2\x82 //cut inside nothing\r\n"
    "lf = 1\n"
    "cr = a\rb\r\n"
    "lost = 1 \\\r\n"
    "; comment\r\n"
    "[B]\r\n"
    "url = http://host\r\n"
    "[A]\r\n"
    "again = 2\r\n";

// A file whose awkward lines start shift bytes after the first MiB, then a
// line longer than a MiB, then a last line without a line end.
std::string LargeFile(int shift) {
    std::string text = "; generated\r\n\r\n[A]\r\n";
    const std::size_t start = (std::size_t{1} << 20) + static_cast<std::size_t>(shift);
    for (int k = 0; text.size() < start - 40; ++k)
        text += "Key" + std::to_string(k) + " = value " + std::to_string(k * 7) + "\r\n";
    text += "pad = " + std::string(start - text.size() - 8, 'p') + "\r\n";
    text += kAwkwardLines;
    text += "long = " + std::string(1536 * 1024, 'x') + " // tail\r\n";
    text += "[C]\r\nlast = end";
    return text;
}

TEST(FileObjectPieces, ReadingInPiecesChangesNothing) {
    test::TempFolder folder;
    for (const int shift : {-7, -1, 0, 1, 6}) {
        SCOPED_TRACE(shift);
        const std::string bytes = LargeFile(shift);
        const CString path = folder.File("large.ini");
        test::WriteBytes(std::filesystem::path(path.Str()), bytes);

        FileObject fromDisk;
        ASSERT_TRUE(fromDisk.FileOpen(path));
        FileObject fromMemory;
        ASSERT_TRUE(test::Parse(fromMemory, bytes));
        CStdioFile stream;
        ASSERT_TRUE(stream.Open(path, CFile::modeRead));
        FileObject fromLines;
        ASSERT_TRUE(fromLines.Read(stream));

        EXPECT_TRUE(fromDisk == fromMemory);
        EXPECT_TRUE(fromDisk == fromLines);
        EXPECT_EQ(Describe(fromDisk), Describe(fromLines));
        EXPECT_EQ(Extras(fromDisk), "; generated|");

        CString value;
        EXPECT_TRUE(fromDisk.GetItem(u"A", u"split", value));
        EXPECT_EQ(value, CString(u"ab  cd"));
        EXPECT_TRUE(fromDisk.GetItem(u"A", u"k\u00E9y", value));
        EXPECT_EQ(value, CString(u"v\u00E9rt"));
        EXPECT_TRUE(fromDisk.GetItem(u"A", u"cr", value));
        EXPECT_EQ(value, CString(u"a\rb"));
        EXPECT_FALSE(fromDisk.HasKey(u"A", u"lost"));
        EXPECT_TRUE(fromDisk.GetItem(u"A", u"again", value));
        EXPECT_TRUE(fromDisk.GetItem(u"B", u"url", value));
        EXPECT_EQ(value, CString(u"http:"));
        EXPECT_TRUE(fromDisk.GetItem(u"A", u"long", value));
        EXPECT_EQ(value.GetLength(), 1536 * 1024);
        EXPECT_TRUE(fromDisk.GetItem(u"C", u"last", value));
        EXPECT_EQ(value, CString(u"end"));
    }
}

}  // namespace
}  // namespace vex
