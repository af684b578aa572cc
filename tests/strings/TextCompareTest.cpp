#include <base/strings/TextCompare.h>

#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <string>

// Expected results worked out by hand from the case tables of Latin-1 and
// Greek and from ASCII code values.

namespace vex {
namespace {

using test::CodePageGuard;

TEST(TextCompare, StandardStringsMatchWhenLengthsAndUpperCasedCharactersMatch) {
    struct Case {
        std::string a, b;
        bool equal;
    };
    const Case narrow[] = {
        {"abc", "ABC", true},
        {"abc", "abcd", false},  // lengths differ
        {"", "", true},
        {"a1_z", "A1_Z", true},
        {"abc", "abd", false},
        {std::string("a\0b", 3), std::string("A\0B", 3), true},  // NUL is a character here
        {std::string("a\0b", 3), std::string("A\0C", 3), false},
    };
    for (const Case& c : narrow) {
        EXPECT_EQ(icompareA(c.a, c.b), c.equal) << c.a << " / " << c.b;
    }
    EXPECT_TRUE(icompareW(std::u16string(u"\u00E9t\u00E9"), std::u16string(u"\u00C9T\u00C9")));
    EXPECT_TRUE(icompareW(std::u16string(u"\u03B1\u03B2"), std::u16string(u"\u0391\u0392")));
    EXPECT_FALSE(icompareW(std::u16string(u"stra\u00DFe"), std::u16string(u"STRASSE")));
    EXPECT_TRUE(icompareW(std::wstring(L"Abc"), std::wstring(L"aBC")));
    EXPECT_FALSE(icompareW(std::wstring(L"Abc"), std::wstring(L"aBCd")));
}

TEST(TextCompare, CStringFormsStopAtTheFirstNulAndReadNullAsEmpty) {
    const std::string withNul("ab\0x", 4);
    EXPECT_TRUE(icompareA(withNul, "AB"));
    EXPECT_TRUE(icompareA("AB", withNul));
    EXPECT_FALSE(icompareA(withNul, std::string("AB")));  // both standard: lengths differ
    EXPECT_TRUE(icompareA("Depth", "dEPTH"));
    EXPECT_FALSE(icompareA("Depth", "Dept"));
    EXPECT_TRUE(icompareA(static_cast<const char*>(nullptr), ""));
    EXPECT_TRUE(icompareW(std::u16string(u"Ab"), u"aB"));
    EXPECT_TRUE(icompareW(u"\u00FF", std::u16string(u"\u0178")));  // ÿ and Ÿ
    EXPECT_TRUE(icompareW(static_cast<const char16_t*>(nullptr), u""));
    EXPECT_FALSE(icompareW(u"a", static_cast<const char16_t*>(nullptr)));
    EXPECT_TRUE(icompareW(std::wstring(L"Ab"), L"aB"));
    EXPECT_TRUE(icompareW(L"x", std::wstring(L"X")));
    EXPECT_TRUE(icompareW(L"xY", L"Xy"));
}

TEST(TextCompare, NarrowLettersFoldOnlyWhenTheCodePageMakesThemCharacters) {
    {
        CodePageGuard utf8(CodePage::Utf8);
        // é and É in UTF-8 differ in their second byte; no byte of them folds.
        EXPECT_FALSE(icompareA(std::string("\xC3\xA9"), std::string("\xC3\x89")));
        EXPECT_TRUE(icompareA(std::string("\xC3\xA9"), std::string("\xC3\xA9")));
    }
    {
        CodePageGuard ansi(CodePage::Windows1252);
        EXPECT_TRUE(icompareA(std::string("\xE9"), std::string("\xC9")));
        EXPECT_TRUE(icompareA("\xFF", "\x9F"));  // ÿ and Ÿ
    }
}

TEST(TextCompare, GreaterAndSmallerOrderLowerCasedCodeUnits) {
    struct Case {
        const char* a;
        const char* b;
        int order;  // sign of a compared with b
    };
    const Case cases[] = {
        {"abc", "ABD", -1},
        {"B", "a", 1},
        {"abc", "ABC", 0},
        {"ab", "ABC", -1},  // a prefix sorts first
        {"", "a", -1},
        // '_' (0x5F) lies between the upper (0x41..) and lower (0x61..) letters:
        // comparing lower-cased, as _stricmp does, puts it first.
        {"_", "A", -1},
        {"_", "a", -1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(GreaterA(c.a, c.b), c.order > 0) << c.a << " / " << c.b;
        EXPECT_EQ(SmallerA(c.a, c.b), c.order < 0) << c.a << " / " << c.b;
        const CString wa(c.a), wb(c.b);
        EXPECT_EQ(GreaterW(wa, wb), c.order > 0) << c.a << " / " << c.b;
        EXPECT_EQ(SmallerW(wa, wb), c.order < 0) << c.a << " / " << c.b;
        EXPECT_EQ(GreaterW(wa.ToWide(), wb.ToWide()), c.order > 0);
        EXPECT_EQ(SmallerW(wa.ToWide().c_str(), wb.ToWide().c_str()), c.order < 0);
    }
    EXPECT_TRUE(SmallerW(u"\u00E9", u"\u00C9f"));  // é equals É, then the shorter first
    EXPECT_TRUE(SmallerA(std::string("a"), static_cast<const char*>(nullptr)) == false);
    EXPECT_TRUE(GreaterA(std::string("a"), static_cast<const char*>(nullptr)));
}

}  // namespace
}  // namespace vex
