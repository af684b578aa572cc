#include <base/strings/TextFunctions.h>

#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

// Expected results worked out by hand; the atof/atoi rows follow C's
// strtod/strtol rules (the longest leading text that is a number).

namespace vex {
namespace {

using test::CodePageGuard;

TEST(TextFunctions, ReplaceResumesAfterTheInsertedText) {
    struct Case {
        const char* text;
        const char* what;
        const char* with;
        const char* result;
    };
    const Case cases[] = {
        {"aaa", "a", "b", "bbb"},
        {"aaa", "aa", "b", "ba"},    // left to right, no overlap
        {"abc", "b", "bb", "abbc"},  // the inserted "bb" is not looked at again
        {"a.b.c", ".", "..", "a..b..c"},
        {"xyx", "x", "", "y"},
        {"abc", "", "x", "abc"},  // an empty pattern replaces nothing
        {"", "a", "b", ""},
        {"abc", "abcd", "x", "abc"},
    };
    for (const Case& c : cases) {
        std::string s = c.text;
        EXPECT_EQ(&replace(s, c.what, c.with), &s);
        EXPECT_EQ(s, c.result) << c.text << " " << c.what << " " << c.with;
        std::u16string w = CString(c.text).Str();
        replace(w, CString(c.what).Str(), CString(c.with).Str());
        EXPECT_EQ(CStringA(CString(w)), c.result);
    }
    std::string self = "abab";
    replace(self, std::string_view(self).substr(0, 2), std::string_view(self).substr(2, 1));
    EXPECT_EQ(self, "aa");  // pattern and replacement may view the text itself
}

TEST(TextFunctions, FormatStrPrintsAsPrintf) {
    EXPECT_EQ(format_str("%s=%d", "depth", 12), "depth=12");
    EXPECT_EQ(format_str("%5.2f|%-3d|%%", 3.14159, 7), " 3.14|7  |%");
    EXPECT_EQ(format_str("%x", 255u), "ff");
    EXPECT_EQ(format_str(std::string("no fields")), "no fields");
    EXPECT_EQ(format_str(static_cast<const char*>(nullptr), 1), "");
    EXPECT_EQ(format_str("%s", std::string(300, 'x')).size(), 300u);  // exactly the length
}

TEST(TextFunctions, EnumStringPutsTheNumberBetweenTheGivenBrackets) {
    EXPECT_EQ(EnumStringA("Item", 3, '[', ']'), "Item[3]");
    EXPECT_EQ(EnumStringA("Item", -12, '(', ')'), "Item(-12)");
    EXPECT_EQ(EnumStringA("X", 7, '\0', ']'), "X7]");
    EXPECT_EQ(EnumStringA("X", 7, '_', '\0'), "X_7");
    EXPECT_EQ(EnumStringA("", 0, '\0', '\0'), "0");
    EXPECT_EQ(EnumStringW(u"Beam", 255, u'[', u']'), u"Beam[255]");
    EXPECT_EQ(EnumStringW(u"Beam", INT_MIN, u'\u00AB', u'\u00BB'), u"Beam\u00AB-2147483648\u00BB");
}

TEST(TextFunctions, AtofAndAtoiReadTheLeadingNumberAsTheCLibraryDoes) {
    struct Case {
        const char16_t* text;
        double f;
        int i;
    };
    const Case cases[] = {
        {u"  12.5abc", 12.5, 12},
        {u"\t-3.25", -3.25, -3},
        {u"+7", 7, 7},
        {u".5", 0.5, 0},
        {u"1e", 1, 1},  // no exponent digits: the number ends before "e"
        {u"1e+", 1, 1},
        {u"1.5e3x", 1500, 1},
        {u"2E-2", 0.02, 2},
        {u"-0x1A", -26, 0},  // hex for strtod; strtol in base 10 stops at "x"
        {u"0x", 0, 0},
        {u"0x.8p1", 1, 0},
        {u"", 0, 0},
        {u"abc", 0, 0},
        {u"-", 0, 0},
        {u"99999999999", 99999999999.0, INT_MAX},  // atoi saturates
        {u"-99999999999", -99999999999.0, INT_MIN},
        {u"\u0661\u0662", 0, 0},  // Arabic-Indic digits are not C digits
    };
    for (const Case& c : cases) {
        EXPECT_DOUBLE_EQ(atof(std::u16string(c.text)), c.f) << CStringA(CString(c.text));
        EXPECT_EQ(atoi(std::u16string(c.text)), c.i) << CStringA(CString(c.text));
    }
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(atof(std::u16string(u"inf")), inf);
    EXPECT_EQ(atof(std::u16string(u"-Infinity")), -inf);
    EXPECT_EQ(atof(std::u16string(u"infin")), inf);  // "inf" and the rest ignored
    EXPECT_TRUE(std::isnan(atof(std::u16string(u"nan(12)x"))));
    EXPECT_DOUBLE_EQ(atof(std::wstring(L" 4.75")), 4.75);
    EXPECT_EQ(atoi(std::wstring(L"-42z")), -42);
}

TEST(TextFunctions, CStringAppendAddsExactlyCountCharacters) {
    CString text = u"ab";
    CStringAppend(text, u"cdef", 2);
    EXPECT_EQ(text, u"abcd");
    CStringAppend(text, std::u16string(u"x\0y", 3).c_str(), 3);  // NUL included
    EXPECT_EQ(text.GetLength(), 7);
    EXPECT_EQ(text.Str(), std::u16string(u"abcdx\0y", 7));
    CStringAppend(text, nullptr, 0);
    EXPECT_EQ(text.GetLength(), 7);
    CStringAppend(CStringAppend(text, CString(u"!?")), u'.');
    EXPECT_EQ(text.Right(3), u"!?.");

    CStringA narrow = "n";
    CStringAppendA(narrow, "12345", 3);
    CStringAppendA(narrow, CStringA("x"));
    CStringAppendA(narrow, '!');
    EXPECT_EQ(narrow, "n123x!");
}

TEST(TextFunctions, CStringAppendRefusesBadCountsAndLeavesTheString) {
    CString text = u"ab";
    EXPECT_THROW(CStringAppend(text, u"x", -1), std::invalid_argument);
    EXPECT_THROW(CStringAppend(text, u"x", INT_MAX), std::invalid_argument);  // 2 + INT_MAX
    EXPECT_THROW(CStringAppend(text, nullptr, 1), std::invalid_argument);
    EXPECT_EQ(text, u"ab");
    CStringA narrow = "ab";
    EXPECT_THROW(CStringAppendA(narrow, "x", -5), std::invalid_argument);
    EXPECT_THROW(CStringAppendA(narrow, "x", INT_MAX - 1), std::invalid_argument);
    EXPECT_EQ(narrow, "ab");
}

TEST(TextFunctions, CStringFindALooksForTheCharacterInTheActiveCodePage) {
    {
        CodePageGuard utf8(CodePage::Utf8);
        const CStringA text =
            "a\xC2\xB0"
            "b\xC2\xB0";  // a°b° in 6 bytes
        struct Case {
            char32_t ch;
            int start;
            int pos;
        };
        const Case cases[] = {
            {u'\u00B0', 0, 1},   {u'\u00B0', 2, 4},  {u'b', 0, 3},    {u'a', 1, -1},
            {u'\u00B0', 6, -1},                                        // start at the end
            {u'\u00B0', -1, -1}, {u'\u20AC', 0, -1}, {0xD800, 0, -1},  // a lone surrogate is no
                                                                       // character
        };
        for (const Case& c : cases) {
            EXPECT_EQ(CStringFindA(text, c.ch, c.start), c.pos)
                << static_cast<unsigned>(c.ch) << " from " << c.start;
        }
        EXPECT_EQ(CStringFindA(CStringA("x\xF0\x9F\x98\x80"), U'\U0001F600'), 1);
        EXPECT_EQ(CStringFindA(text, L'b'), 3);
    }
    CodePageGuard ansi(CodePage::Windows1252);
    const CStringA text =
        "a\xB0"
        "b\x80?";
    EXPECT_EQ(CStringFindA(text, u'\u00B0'), 1);
    EXPECT_EQ(CStringFindA(text, u'\u20AC'), 3);   // € is 0x80 in Windows-1252
    EXPECT_EQ(CStringFindA(text, u'\u0100'), -1);  // not in the code page, not its "?"
    EXPECT_EQ(CStringFindA(text, u'?'), 4);
}

TEST(TextFunctions, ParseFormulaSplitsTwoTaggedOperands) {
    struct Case {
        const char16_t* text;
        const char16_t* cleaned;
        double first;
        int pos;
        double second;
        char16_t op;
    };
    const Case cases[] = {
        {u"TID1.5*COR2", u"TID1.5*COR2", 1.5, 6, 2, u'*'},
        {u"ABC 10 + DEF 2.5", u"ABC10+DEF2.5", 10, 5, 2.5, u'+'},
        {u"AAA8/BBB0.25", u"AAA8/BBB0.25", 8, 4, 0.25, u'/'},
        {u"XYZ7", u"XYZ7", 7, -1, 0, u'\0'},  // no operator
        {u"AB-3", u"AB-3", 0, 2, 0, u'-'},    // operands shorter than their tags
        {u"ABC4/DEFx", u"ABC4/DEFx", 4, 4, 0, u'/'},
        {u"ABC1e2-X", u"ABC1e2-X", 100, 6, 0, u'-'},
        {u"", u"", 0, -1, 0, u'\0'},
    };
    for (const Case& c : cases) {
        CString text = c.text;
        double first = -1, second = -1;
        int pos = -9;
        char16_t op = u'?';
        EXPECT_TRUE(ParseFormula(text, first, pos, second, op));
        EXPECT_EQ(text, c.cleaned);
        EXPECT_DOUBLE_EQ(first, c.first) << CStringA(text);
        EXPECT_EQ(pos, c.pos) << CStringA(text);
        EXPECT_DOUBLE_EQ(second, c.second) << CStringA(text);
        EXPECT_EQ(op, c.op) << CStringA(text);
    }
}

}  // namespace
}  // namespace vex
