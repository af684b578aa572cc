#include <base/strings/TextCompare.h>

#include <tests/framework/CodePageGuard.h>

#include <gtest/gtest.h>

#include <string>

// Expected results worked out by hand from ASCII code values and the
// Latin-1 case pairs.

namespace vex {
namespace {

using test::CodePageGuard;

TEST(TextCompare, StandardStringsNeedEqualLengthsAndCStringsStopAtNul) {
    const std::string withNul("ab\0x", 4);
    EXPECT_TRUE(icompareA(std::string("a1_z"), std::string("A1_Z")));
    EXPECT_FALSE(icompareA(std::string("abc"), std::string("abcd")));
    EXPECT_FALSE(icompareA(withNul, std::string("AB")));  // both standard: lengths differ
    EXPECT_TRUE(icompareA(withNul, "AB"));                // a C string ends at the NUL
    EXPECT_TRUE(icompareA("AB", withNul));
    EXPECT_TRUE(icompareA(static_cast<const char*>(nullptr), ""));
    EXPECT_TRUE(icompareW(std::u16string(u"\u00E9t\u03B1"), std::u16string(u"\u00C9T\u0391")));
    EXPECT_TRUE(icompareW(u"\u00FF", std::u16string(u"\u0178")));  // ÿ and Ÿ
    EXPECT_FALSE(icompareW(u"a", static_cast<const char16_t*>(nullptr)));
    EXPECT_TRUE(icompareW(std::wstring(L"Abc"), L"aBC"));
}

TEST(TextCompare, NarrowLettersFoldOnlyWhereTheCodePageMakesThemCharacters) {
    {
        CodePageGuard utf8(CodePage::Utf8);  // é and É differ in their second byte
        EXPECT_FALSE(icompareA(std::string("\xC3\xA9"), std::string("\xC3\x89")));
    }
    CodePageGuard ansi(CodePage::Windows1252);
    EXPECT_TRUE(icompareA(std::string("\xE9"), std::string("\xC9")));
}

TEST(TextCompare, GreaterAndSmallerOrderLowerCasedCodeUnits) {
    struct Case {
        const char* a;
        const char* b;
        int order;
    };
    const Case cases[] = {
        {"abc", "ABD", -1},
        {"B", "a", 1},
        {"abc", "ABC", 0},
        {"ab", "ABC", -1},
        // '_' (0x5F) lies between upper (0x41..) and lower (0x61..) letters;
        // compared lower-cased, as _stricmp does, it sorts first.
        {"_", "A", -1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(GreaterA(c.a, c.b), c.order > 0) << c.a << " / " << c.b;
        EXPECT_EQ(SmallerA(c.a, c.b), c.order < 0) << c.a << " / " << c.b;
        const CString wa(c.a), wb(c.b);
        EXPECT_EQ(GreaterW(wa, wb), c.order > 0) << c.a << " / " << c.b;
        EXPECT_EQ(SmallerW(wa.ToWide(), wb.ToWide()), c.order < 0) << c.a << " / " << c.b;
    }
    EXPECT_TRUE(GreaterA(std::string("a"), static_cast<const char*>(nullptr)));
}

}  // namespace
}  // namespace vex
