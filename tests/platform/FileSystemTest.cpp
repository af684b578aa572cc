#include <base/platform/FileSystem.h>

#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vex::platform {
namespace {

using test::ReadBytes;
using test::TempFolder;
using test::WriteBytes;

std::u16string PathOf(const std::filesystem::path& path) {
    return path.u16string();
}

TEST(FileSystem, TellsFilesFoldersAndMissingPathsApart) {
    TempFolder folder;
    WriteBytes(folder.Path("f"), "x");
    EXPECT_EQ(GetPathKind(PathOf(folder.Path("f"))), PathKind::file);
    EXPECT_EQ(GetPathKind(PathOf(folder.Path())), PathKind::directory);
    EXPECT_EQ(GetPathKind(PathOf(folder.Path("none"))), PathKind::missing);
    EXPECT_EQ(GetPathKind(PathOf(folder.Path("f/below"))), PathKind::missing);
    EXPECT_EQ(GetPathKind(u""), PathKind::missing);
}

TEST(FileSystem, OpeningAFolderOrAPathWithNulFails) {
    TempFolder folder;
    NativeFile file;
    EXPECT_FALSE(file.Open(PathOf(folder.Path()), CFile::modeRead));
    EXPECT_EQ(file.GetError().cause, FileErrorCause::accessDenied);
    std::u16string withNul = PathOf(folder.Path("a"));
    withNul += u'\0';
    withNul += u"b";
    EXPECT_FALSE(file.Open(withNul, CFile::modeCreate | CFile::modeWrite));
    EXPECT_EQ(file.GetError().cause, FileErrorCause::badPath);
    EXPECT_TRUE(folder.Names().empty());
}

TEST(FileSystem, TemporaryFilesAreNewUniqueAndBesideTheTarget) {
    TempFolder folder;
    const std::u16string target = PathOf(folder.Path("settings.ini"));
    NativeFile first, second;
    std::u16string firstPath, secondPath;
    ASSERT_TRUE(CreateTemporaryBeside(target, first, firstPath));
    ASSERT_TRUE(CreateTemporaryBeside(target, second, secondPath));
    EXPECT_NE(firstPath, secondPath);
    EXPECT_EQ(firstPath.rfind(target + u".~", 0), 0u);
    EXPECT_EQ(firstPath.size(), target.size() + 2 + 16 + 4);

    NativeFile again;
    EXPECT_FALSE(again.CreateNew(firstPath));
    EXPECT_EQ(again.GetError().cause, FileErrorCause::alreadyExists);

    ASSERT_TRUE(first.Write("new", 3));
    ASSERT_TRUE(first.SyncToDisk());
    ASSERT_TRUE(first.Close());
    WriteBytes(folder.Path("settings.ini"), "old");
    ASSERT_TRUE(ReplaceFileByRename(firstPath, target));
    EXPECT_EQ(ReadBytes(folder.Path("settings.ini")), "new");

    ASSERT_TRUE(second.Close());
    EXPECT_TRUE(RemoveFile(secondPath));
    FileIoError error;
    EXPECT_FALSE(RemoveFile(secondPath, &error));
    EXPECT_EQ(error.cause, FileErrorCause::fileNotFound);
    EXPECT_EQ(folder.Names(), std::set<std::string>{"settings.ini"});
}

TEST(FileSystem, ReadsWritesSeeksAndResizes) {
    TempFolder folder;
    NativeFile file;
    ASSERT_TRUE(file.Open(PathOf(folder.Path("data")), CFile::modeCreate | CFile::modeReadWrite));
    ASSERT_TRUE(file.Write("0123456789", 10));
    std::uint64_t position = 0;
    ASSERT_TRUE(file.Seek(-4, CFile::end, position));
    EXPECT_EQ(position, 6u);
    char got[8] = {};
    std::size_t count = 0;
    ASSERT_TRUE(file.Read(got, 8, count));
    EXPECT_EQ(std::string(got, count), "6789");
    EXPECT_FALSE(file.Seek(-1, CFile::begin, position));
    EXPECT_EQ(file.GetError().cause, FileErrorCause::badSeek);
    ASSERT_TRUE(file.SetLength(3));
    std::uint64_t length = 0;
    ASSERT_TRUE(file.GetLength(length));
    EXPECT_EQ(length, 3u);
    ASSERT_TRUE(file.GetPosition(position));
    EXPECT_EQ(position, 10u);
    ASSERT_TRUE(file.Close());
    EXPECT_FALSE(file.Write("x", 1));
    EXPECT_EQ(file.GetError().cause, FileErrorCause::invalidFile);
    EXPECT_EQ(ReadBytes(folder.Path("data")), "012");
}

#ifndef _WIN32
TEST(FileSystem, BackslashesSeparateFoldersOnPosix) {
    EXPECT_EQ(NarrowNativePath(u"C:\\data\\vex.ini"), "C:/data/vex.ini");
    TempFolder folder;
    std::filesystem::create_directory(folder.Path("sub"));
    const std::u16string windowsStyle = PathOf(folder.Path()) + u"\\sub\\f.txt";
    NativeFile file;
    ASSERT_TRUE(file.Open(windowsStyle, CFile::modeCreate | CFile::modeWrite));
    ASSERT_TRUE(file.Close());
    EXPECT_TRUE(std::filesystem::exists(folder.Path("sub/f.txt")));
}
#endif

}  // namespace
}  // namespace vex::platform
