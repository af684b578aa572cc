#include <base/strings/FileNameText.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

// Expected names written out by hand: each of \ / : * ? " < > | becomes _.

namespace vex {
namespace {

TEST(FileNameText, TheNineForbiddenCharactersBecomeUnderscores) {
    EXPECT_EQ(CreateValidFileName(u"Line 3: A/B"), u"Line 3_ A_B");
    EXPECT_EQ(CreateValidFileName(u"\\/:*?\"<>|\u00E9"), u"_________\u00E9");
    for (const char16_t bad : std::u16string_view(u"\\/:*?\"<>|")) {
        EXPECT_FALSE(AllValidFileSystemChars(CString(u"ok") + bad)) << static_cast<int>(bad);
    }
    EXPECT_TRUE(AllValidFileSystemChars(u"caf\u00E9 (2).txt"));
    EXPECT_TRUE(AllValidFileSystemChars(u""));
}

}  // namespace
}  // namespace vex
