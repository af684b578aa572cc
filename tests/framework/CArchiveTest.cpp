#include <base/framework/CArchive.h>
#include <base/framework/FileStream.h>
#include <base/framework/MemFile.h>

#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vex {
namespace {

std::string TextOf(std::span<const std::byte> bytes) {
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

MemFile MemFileOf(const std::string& text) {
    const auto* p = reinterpret_cast<const std::byte*>(text.data());
    return MemFile(std::vector<std::byte>(p, p + text.size()));
}

TEST(MemFile, SeeksReadsAndWritesLikeAFileOnDisk) {
    MemFile file = MemFileOf("abcdef");
    char got[8] = {};
    EXPECT_EQ(file.Read(got, 4), 4u);
    EXPECT_EQ(std::string(got, 4), "abcd");
    EXPECT_EQ(file.Read(got, 8), 2u);
    EXPECT_EQ(file.Read(got, 8), 0u);
    EXPECT_FALSE(file.GetError().IsError());

    EXPECT_FALSE(file.Seek(-7, CFile::end));  // before the start
    EXPECT_EQ(file.GetError().cause, FileErrorCause::badSeek);
    EXPECT_EQ(file.GetPosition(), 6u);

    // A write beyond the end fills the gap with zero bytes.
    ASSERT_TRUE(file.Seek(2, CFile::end));
    ASSERT_TRUE(file.Write("Z", 1));
    EXPECT_EQ(TextOf(file.Data()), std::string("abcdef\0\0Z", 9));
    ASSERT_TRUE(file.Seek(-8, CFile::current));
    ASSERT_TRUE(file.Write("BC", 2));
    EXPECT_EQ(file.GetLength(), 9u);

    const std::vector<std::byte> detached = file.Detach();
    EXPECT_EQ(TextOf(detached), std::string("aBCdef\0\0Z", 9));
    EXPECT_EQ(file.GetLength(), 0u);
    EXPECT_EQ(file.GetPosition(), 0u);
}

TEST(CArchive, StoresTextLinesAndBytesThroughItsBuffer) {
    MemFile memory;
    {
        CArchive archive(memory, CArchive::store);
        EXPECT_TRUE(archive.IsStoring());
        EXPECT_TRUE(archive.WriteString(CString(u"[General]\nkey = \u00E9\n")));
        EXPECT_TRUE(archive.Write("\x01\x02", 2));
        EXPECT_EQ(memory.GetLength(), 0u);  // still in the buffer
        CString line;
        EXPECT_FALSE(archive.ReadString(line));  // a storing archive cannot load
    }                                            // the destructor flushes
    EXPECT_EQ(TextOf(memory.Data()), "[General]\r\nkey = \xC3\xA9\r\n\x01\x02");
}

TEST(CArchive, LoadsLinesAndGivesBackWhatItReadAhead) {
    MemFile memory = MemFileOf("one\r\ntwo\nthree\r\nrest");
    CArchive archive(memory, CArchive::load);
    CString line;
    ASSERT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, u"one");
    ASSERT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, u"two");
    EXPECT_FALSE(archive.Write("x", 1));  // a loading archive cannot store
    // The stream sits after the last byte handed out once the archive closes.
    EXPECT_TRUE(archive.Close());
    EXPECT_EQ(memory.GetPosition(), 9u);
    EXPECT_FALSE(archive.ReadString(line));
    EXPECT_EQ(archive.GetError().cause, FileErrorCause::invalidFile);
}

TEST(CArchive, WritesLargeContentToAFileInOrder) {
    // More than the 4096-byte buffer, in pieces both smaller and larger.
    std::string expected;
    test::TempFolder folder;
    {
        FileStream file;
        ASSERT_TRUE(file.Open(folder.File("big.bin"), CFile::modeCreate | CFile::modeWrite));
        CArchive archive(file, CArchive::store);
        for (int i = 0; i < 300; ++i) {
            const std::string piece(static_cast<std::size_t>(i * 37 % 9000), char('a' + i % 26));
            ASSERT_TRUE(archive.Write(piece.data(), piece.size()));
            expected += piece;
        }
        ASSERT_TRUE(archive.Close());
    }
    EXPECT_EQ(test::ReadBytes(folder.Path("big.bin")), expected);

    FileStream file;
    ASSERT_TRUE(file.Open(folder.File("big.bin"), CFile::modeRead));
    CArchive archive(file, CArchive::load);
    std::string back(expected.size() + 10, '\0');
    std::size_t got = 0;
    for (std::size_t n; (n = archive.Read(back.data() + got, 5000)) > 0;)
        got += n;
    back.resize(got);
    EXPECT_EQ(back, expected);
}

}  // namespace
}  // namespace vex
