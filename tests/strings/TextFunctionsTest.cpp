#include <base/strings/TextFunctions.h>

#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <stdexcept>
#include <string>

// Expected results worked out by hand; the atof/atoi rows follow C's
// strtod/strtol rules (the longest leading text that is a number).

namespace vex {
namespace {

using test::CodePageGuard;

TEST(TextFunctions, ReplaceResumesAfterTheInsertedText) {
    const char* cases[][4] = {
        {"aaa", "aa", "b", "ba"},    // left to right, no overlap
        {"abc", "b", "bb", "abbc"},  // the inserted "bb" is not looked at again
        {"xyx", "x", "", "y"},
        {"abc", "", "x", "abc"},  // an empty pattern replaces nothing
    };
    for (const auto& c : cases) {
        std::string s = c[0];
        EXPECT_EQ(replace(s, c[1], c[2]), c[3]);
    }
    std::string self = "abab";
    replace(self, std::string_view(self).substr(0, 2), std::string_view(self).substr(2, 1));
    EXPECT_EQ(self, "aa");  // pattern and replacement may view the text itself
}

TEST(TextFunctions, FormatStrAndEnumStringPrintAsPrintf) {
    EXPECT_EQ(format_str("%s=%5.2f|%-3d|%%", "depth", 3.14159, 7), "depth= 3.14|7  |%");
    EXPECT_EQ(format_str(static_cast<const char*>(nullptr), 1), "");
    EXPECT_EQ(EnumStringA("Item", 3, '[', ']'), "Item[3]");
    EXPECT_EQ(EnumStringA("X", -7, '\0', ']'), "X-7]");  // NUL brackets are left out
    EXPECT_EQ(EnumStringW(u"Beam", INT_MIN, u'\u00AB', u'\0'), u"Beam\u00AB-2147483648");
}

TEST(TextFunctions, AtofAndAtoiReadTheLeadingNumberAsTheCLibraryDoes) {
    struct Case {
        const char16_t* text;
        double f;
        int i;
    };
    const Case cases[] = {
        {u"  12.5abc", 12.5, 12},
        {u"1e+", 1, 1},  // no exponent digits: the number ends before "e"
        {u"1.5e3x", 1500, 1},
        {u"-0x1A", -26, 0},  // hex for strtod; strtol in base 10 stops at "x"
        {u"-", 0, 0},
        {u"-99999999999", -99999999999.0, INT_MIN},  // atoi saturates
        {u"\u0661\u0662", 0, 0},                     // Arabic-Indic digits are not C digits
    };
    for (const Case& c : cases) {
        EXPECT_DOUBLE_EQ(atof(std::u16string(c.text)), c.f) << CStringA(CString(c.text));
        EXPECT_EQ(atoi(std::u16string(c.text)), c.i) << CStringA(CString(c.text));
    }
    EXPECT_TRUE(std::isinf(atof(std::u16string(u"infin"))));  // "inf", the rest ignored
    EXPECT_TRUE(std::isnan(atof(std::u16string(u"nan(12)x"))));
    EXPECT_EQ(atoi(std::wstring(L" -42z")), -42);
}

TEST(TextFunctions, CStringAppendAddsExactlyCountCharactersOrThrows) {
    CString text = u"ab";
    CStringAppend(text, std::u16string(u"x\0yz", 4).c_str(), 3);  // the NUL included
    EXPECT_EQ(text.Str(), std::u16string(u"abx\0y", 5));
    CStringAppend(CStringAppend(text, CString(u"!")), u'.');
    EXPECT_EQ(text.Right(2), u"!.");
    const CString before = text;
    EXPECT_THROW(CStringAppend(text, u"x", -1), std::invalid_argument);
    EXPECT_THROW(CStringAppend(text, u"x", INT_MAX), std::invalid_argument);  // 7 + INT_MAX
    EXPECT_THROW(CStringAppend(text, nullptr, 1), std::invalid_argument);
    EXPECT_EQ(text, before);

    CStringA narrow = "n";
    CStringAppendA(CStringAppendA(narrow, "12345", 3), '!');
    EXPECT_EQ(narrow, "n123!");
    EXPECT_THROW(CStringAppendA(narrow, "x", INT_MAX - 4), std::invalid_argument);
    EXPECT_EQ(narrow, "n123!");
}

TEST(TextFunctions, CStringFindALooksForTheCharacterInTheActiveCodePage) {
    {
        CodePageGuard utf8(CodePage::Utf8);
        const CStringA text =
            "a\xC2\xB0"
            "b\xC2\xB0";  // a°b° in 6 bytes
        EXPECT_EQ(CStringFindA(text, u'\u00B0'), 1);
        EXPECT_EQ(CStringFindA(text, u'\u00B0', 2), 4);
        EXPECT_EQ(CStringFindA(text, L'b', 6), -1);           // start at the end
        EXPECT_EQ(CStringFindA(text, char16_t(0xD800)), -1);  // a lone surrogate
        EXPECT_EQ(CStringFindA(CStringA("x\xF0\x9F\x98\x80"), U'\U0001F600'), 1);
    }
    CodePageGuard ansi(CodePage::Windows1252);
    const CStringA text =
        "a\xB0"
        "b\x80?";
    EXPECT_EQ(CStringFindA(text, u'\u20AC'), 3);   // € is 0x80 in Windows-1252
    EXPECT_EQ(CStringFindA(text, u'\u0100'), -1);  // not in the code page, not its "?"
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
        {u"ABC 10 + DEF 2.5", u"ABC10+DEF2.5", 10, 5, 2.5, u'+'},
        {u"TID1.5*COR2", u"TID1.5*COR2", 1.5, 6, 2, u'*'},
        {u"XYZ7", u"XYZ7", 7, -1, 0, u'\0'},  // no operator
        {u"AB-3", u"AB-3", 0, 2, 0, u'-'},    // operands shorter than their tags
        {u"ABC1e2-X", u"ABC1e2-X", 100, 6, 0, u'-'},
    };
    for (const Case& c : cases) {
        CString text = c.text;
        double first = -1, second = -1;
        int pos = -9;
        char16_t op = u'?';
        EXPECT_TRUE(ParseFormula(text, first, pos, second, op));
        EXPECT_EQ(text, c.cleaned);
        EXPECT_EQ(first, c.first) << CStringA(text);
        EXPECT_EQ(pos, c.pos) << CStringA(text);
        EXPECT_EQ(second, c.second) << CStringA(text);
        EXPECT_EQ(op, c.op) << CStringA(text);
    }
}

}  // namespace
}  // namespace vex
