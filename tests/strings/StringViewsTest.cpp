#include <base/strings/StringViews.h>

#include <gtest/gtest.h>

#include <string>

// Expected views counted out by hand on "survey.ini" (10 characters).

namespace vex {
namespace {

TEST(StringViews, PartsClampToTheView) {
    const std::string text = "survey.ini";
    EXPECT_EQ(left(text, 3), "sur");
    EXPECT_EQ(left(text, 99), "survey.ini");
    EXPECT_EQ(right(text, 3), "ini");
    EXPECT_EQ(right(text, 3).data(), text.data() + 7);  // a view, not a copy
    EXPECT_EQ(right(text, 99), "survey.ini");
    EXPECT_EQ(mid(text, 7, 99), "ini");
    EXPECT_EQ(mid(text, 99, 100), "");
    EXPECT_EQ(mid(text, 6, 2), "");  // end before start
    static_assert(mid("abcdef", 1, 3) == "bc");
}

TEST(StringViews, PrefixAndSuffixCompareBytes) {
    EXPECT_TRUE(has_prefix("survey.ini", "survey"));
    EXPECT_TRUE(has_suffix("survey.ini", ".ini"));
    EXPECT_FALSE(has_suffix("survey.ini", ".INI"));
    EXPECT_FALSE(has_prefix("ini", "survey.ini"));  // longer than the text
    EXPECT_FALSE(has_suffix("ini", "survey.ini"));
    EXPECT_TRUE(has_prefix("", ""));
}

}  // namespace
}  // namespace vex
