#include <base/framework/AtomicFile.h>
#include <base/framework/CArchive.h>

#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vex {
namespace {

using test::ReadBytes;
using test::TempFolder;
using test::WriteBytes;

std::span<const std::byte> BytesOf(const std::string& text) {
    return std::as_bytes(std::span<const char>(text.data(), text.size()));
}

TEST(AtomicFile, ReplacesOrCreatesTheTargetAndLeavesNothingElse) {
    TempFolder folder;
    ASSERT_TRUE(AtomicWriteFile(folder.File("vex.ini"), BytesOf("first\r\n")));
    EXPECT_EQ(ReadBytes(folder.Path("vex.ini")), "first\r\n");
    ASSERT_TRUE(AtomicWriteFile(folder.File("vex.ini"), BytesOf("second")));
    EXPECT_EQ(ReadBytes(folder.Path("vex.ini")), "second");
    ASSERT_TRUE(AtomicWriteFile(folder.File("vex.ini"), BytesOf("")));
    EXPECT_EQ(ReadBytes(folder.Path("vex.ini")), "");
    EXPECT_EQ(folder.Names(), std::set<std::string>{"vex.ini"});
}

TEST(AtomicFile, WritesThroughAnArchiveBeforeCommitting) {
    TempFolder folder;
    WriteBytes(folder.Path("a.ini"), "old");
    AtomicFile save;
    ASSERT_TRUE(save.Open(folder.File("a.ini")));
    EXPECT_EQ(folder.Names().size(), 2u);  // the target and the temporary
    {
        CArchive archive(save, CArchive::store);
        ASSERT_TRUE(archive.WriteString(CString(u"[S]\nk = v\n")));
    }
    EXPECT_EQ(ReadBytes(folder.Path("a.ini")), "old");
    ASSERT_TRUE(save.Commit());
    EXPECT_EQ(ReadBytes(folder.Path("a.ini")), "[S]\r\nk = v\r\n");
    EXPECT_EQ(folder.Names(), std::set<std::string>{"a.ini"});
}

TEST(AtomicFile, AnUncommittedOrSpoiledSaveKeepsTheOldFile) {
    TempFolder folder;
    WriteBytes(folder.Path("keep.ini"), "old content");
    {
        AtomicFile save;
        ASSERT_TRUE(save.Open(folder.File("keep.ini")));
        ASSERT_TRUE(save.Write("new", 3));
        EXPECT_FALSE(save.GetTemporaryPath().IsEmpty());
    }  // destroyed without Commit
    EXPECT_EQ(ReadBytes(folder.Path("keep.ini")), "old content");
    EXPECT_EQ(folder.Names(), std::set<std::string>{"keep.ini"});

    // A failed operation during the save makes Commit refuse.
    AtomicFile save;
    ASSERT_TRUE(save.Open(folder.File("keep.ini")));
    ASSERT_TRUE(save.Write("new", 3));
    EXPECT_FALSE(save.Seek(-10, CFile::current));
    EXPECT_FALSE(save.Commit());
    EXPECT_EQ(ReadBytes(folder.Path("keep.ini")), "old content");
    EXPECT_EQ(folder.Names(), std::set<std::string>{"keep.ini"});
    EXPECT_FALSE(save.Commit());  // the save has ended
    EXPECT_EQ(save.GetError().cause, FileErrorCause::invalidFile);
}

TEST(AtomicFile, AFolderTargetOrAMissingFolderFailsWithoutCreatingAnything) {
    TempFolder folder;
    std::filesystem::create_directory(folder.Path("sub"));
    const struct {
        const char* what;
        CString target;
    } cases[] = {
        {"target is a folder", folder.File("sub")},
        {"folder is missing", CString(folder.Path("nowhere/x.ini").u16string())},
        {"empty path", CString()},
    };
    for (const auto& c : cases) {
        AtomicFile save;
        EXPECT_FALSE(save.Open(c.target)) << c.what;
        EXPECT_TRUE(save.GetError().IsError()) << c.what;
        EXPECT_FALSE(save.Write("x", 1)) << c.what;
        EXPECT_FALSE(save.Commit()) << c.what;
        EXPECT_FALSE(AtomicWriteFile(c.target, BytesOf("x"))) << c.what;
        EXPECT_EQ(folder.Names(), std::set<std::string>{"sub"}) << c.what;
        EXPECT_TRUE(std::filesystem::is_empty(folder.Path("sub"))) << c.what;
    }
}

}  // namespace
}  // namespace vex
