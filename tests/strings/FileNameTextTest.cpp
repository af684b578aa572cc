#include <base/strings/FileNameText.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

// Expected names written out by hand: each of \ / : * ? " < > | becomes _.

namespace vex {
namespace {

TEST(FileNameText, TheNineForbiddenCharactersBecomeUnderscores) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"Line 3: A/B", u"Line 3_ A_B"},
        {u"\\/:*?\"<>|", u"_________"},
        {u"survey.ini", u"survey.ini"},
        {u"caf\u00E9 (2).txt", u"caf\u00E9 (2).txt"},
        {u"", u""},
    };
    for (const auto& [name, valid] : cases) {
        EXPECT_EQ(CreateValidFileName(name), valid);
        EXPECT_EQ(AllValidFileSystemChars(name), CString(name) == valid);
        EXPECT_TRUE(AllValidFileSystemChars(CreateValidFileName(name)));
    }
    for (const char16_t bad : std::u16string_view(u"\\/:*?\"<>|")) {
        EXPECT_FALSE(AllValidFileSystemChars(CString(u"ok") + bad)) << static_cast<int>(bad);
    }
}

}  // namespace
}  // namespace vex
