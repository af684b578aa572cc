// Atomic saves that fail midway. These tests use OS calls directly to make
// a save fail (a file-size limit in a forked child, a read-only folder), so
// they include POSIX headers and run on POSIX only.
#include <base/framework/AtomicFile.h>

#include <tests/common/TempFolder.h>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <signal.h>        // OS header: ignore SIGXFSZ in the child
#include <sys/resource.h>  // OS header: setrlimit(RLIMIT_FSIZE)
#include <sys/wait.h>      // OS header: waitpid
#include <unistd.h>        // OS header: fork, geteuid, _exit
#endif

#include <set>
#include <string>

namespace vex {
namespace {

#ifndef _WIN32

std::span<const std::byte> BytesOf(const std::string& text) {
    return std::as_bytes(std::span<const char>(text.data(), text.size()));
}

TEST(AtomicFileFailure, ASaveCutShortByTheFileSizeLimitKeepsTheOldFile) {
    test::TempFolder folder;
    const std::string old = "[General]\r\nkey = old\r\n";
    test::WriteBytes(folder.Path("vex.ini"), old);
    const CString target = folder.File("vex.ini");
    const std::string large(256 * 1024, 'n');

    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // The child may write at most 4 KiB per file; the save needs 256 KiB.
        signal(SIGXFSZ, SIG_IGN);
        rlimit limit{4096, 4096};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0) _exit(3);
        FileIoError error;
        const bool saved = AtomicWriteFile(target, BytesOf(large), &error);
        _exit(saved ? 1 : (error.cause == FileErrorCause::diskFull ? 0 : 2));
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0) << "1: saved anyway, 2: other error, 3: no limit";

    EXPECT_EQ(test::ReadBytes(folder.Path("vex.ini")), old);
    EXPECT_EQ(folder.Names(), std::set<std::string>{"vex.ini"});
}

TEST(AtomicFileFailure, AFolderWithoutWritePermissionKeepsTheOldFile) {
    if (geteuid() == 0) GTEST_SKIP() << "root ignores folder permissions";
    test::TempFolder folder;
    test::WriteBytes(folder.Path("vex.ini"), "old");
    std::filesystem::permissions(
        folder.Path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    FileIoError error;
    EXPECT_FALSE(AtomicWriteFile(folder.File("vex.ini"), BytesOf("new"), &error));
    EXPECT_EQ(error.cause, FileErrorCause::accessDenied);
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::owner_all);
    EXPECT_EQ(test::ReadBytes(folder.Path("vex.ini")), "old");
    EXPECT_EQ(folder.Names(), std::set<std::string>{"vex.ini"});
}

#endif

}  // namespace
}  // namespace vex
