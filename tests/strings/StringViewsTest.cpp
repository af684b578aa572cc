#include <base/strings/StringViews.h>

#include <gtest/gtest.h>

#include <string>

// Expected views counted out by hand on "survey.ini" (10 characters).

namespace vex {
namespace {

TEST(StringViews, LeftRightAndMidClampToTheView) {
    const std::string text = "survey.ini";
    struct Case {
        std::size_t n;
        const char* left;
        const char* right;
    };
    const Case cases[] = {
        {0, "", ""},
        {3, "sur", "ini"},
        {10, "survey.ini", "survey.ini"},
        {99, "survey.ini", "survey.ini"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(left(text, c.n), c.left) << c.n;
        EXPECT_EQ(right(text, c.n), c.right) << c.n;
    }
    EXPECT_EQ(right(text, 3).data(), text.data() + 7);  // a view, not a copy

    struct MidCase {
        std::size_t start, end;
        const char* part;
    };
    const MidCase mids[] = {
        {7, 10, "ini"}, {0, 6, "survey"}, {7, 99, "ini"}, {99, 100, ""}, {6, 2, ""}, {4, 4, ""},
    };
    for (const MidCase& m : mids) {
        EXPECT_EQ(mid(text, m.start, m.end), m.part) << m.start << ".." << m.end;
    }
    static_assert(mid("abcdef", 1, 3) == "bc");
}

TEST(StringViews, PrefixAndSuffixCompareBytes) {
    struct Case {
        const char* text;
        const char* part;
        bool prefix, suffix;
    };
    const Case cases[] = {
        {"survey.ini", "survey", true, false},
        {"survey.ini", ".ini", false, true},
        {"survey.ini", ".INI", false, false},  // byte for byte: case counts
        {"ini", "survey.ini", false, false},   // longer than the text
        {"abc", "", true, true},
        {"", "", true, true},
        {"abab", "ab", true, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(has_prefix(c.text, c.part), c.prefix) << c.text << " / " << c.part;
        EXPECT_EQ(has_suffix(c.text, c.part), c.suffix) << c.text << " / " << c.part;
    }
}

}  // namespace
}  // namespace vex
