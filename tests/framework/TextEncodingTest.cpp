#include <base/framework/TextEncoding.h>

#include "CodePageGuard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace vex {
namespace {

using test::CodePageGuard;

TEST(TextEncoding, EveryCodePointRoundTripsThroughUtf16AndUtf8) {
    std::u32string all;
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c < 0xD800 || c > 0xDFFF) all.push_back(c);
    }
    const std::u16string utf16 = Utf32ToUtf16(all);
    const std::string utf8 = Utf16ToUtf8(utf16);
    // 1112064 scalar values, of which 2^20 take a surrogate pair; UTF-8
    // takes 128*1 + 1920*2 + 61440*3 + 2^20*4 bytes.
    EXPECT_EQ(utf16.size(), 2160640u);
    EXPECT_EQ(utf8.size(), 4382592u);
    const std::u16string back16 = Utf8ToUtf16(utf8);
    EXPECT_TRUE(back16 == utf16);  // not EXPECT_EQ: a failure would print megabytes
    EXPECT_TRUE(Utf16ToUtf32(back16) == all);
}

TEST(TextEncoding, KnownCharactersHaveTheirStandardEncodings) {
    struct Case {
        char32_t code;
        std::u16string utf16;
        std::string utf8;
    };
    // Byte values from the Unicode Standard's UTF-8 and UTF-16 definitions.
    const Case cases[] = {
        {0x0000, {u'\0'}, {'\0'}},
        {0x0041, u"A", "A"},
        {0x00B0, u"\u00B0", "\xC2\xB0"},
        {0x07FF, u"\u07FF", "\xDF\xBF"},
        {0x0800, u"\u0800", "\xE0\xA0\x80"},
        {0x20AC, u"\u20AC", "\xE2\x82\xAC"},
        {0xFFFF, {char16_t{0xFFFF}}, "\xEF\xBF\xBF"},
        {0x10000, {char16_t{0xD800}, char16_t{0xDC00}}, "\xF0\x90\x80\x80"},
        {0x1F600, {char16_t{0xD83D}, char16_t{0xDE00}}, "\xF0\x9F\x98\x80"},
        {0x10FFFF, {char16_t{0xDBFF}, char16_t{0xDFFF}}, "\xF4\x8F\xBF\xBF"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<unsigned>(c.code));
        EXPECT_EQ(Utf32ToUtf16(std::u32string(1, c.code)), c.utf16);
        EXPECT_EQ(Utf16ToUtf8(c.utf16), c.utf8);
        EXPECT_EQ(Utf8ToUtf16(c.utf8), c.utf16);
        EXPECT_EQ(Utf16ToUtf32(c.utf16), std::u32string(1, c.code));
    }
}

TEST(TextEncoding, MalformedUtf8GivesOneReplacementPerMaximalSubpart) {
    struct Case {
        std::string bytes;
        std::u16string expected;
    };
    // The first five rows are the examples of the Unicode Standard, chapter
    // 3, "U+FFFD Substitution of Maximal Subparts"; Python's
    // bytes.decode("utf-8", "replace") gives the same for every row.
    const Case cases[] = {
        {"\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64",
         u"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd"},
        {"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41",
         u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"},
        {"\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41",
         u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"},
        {"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA\uFFFD\uFFFDB"},
        {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", u"\uFFFD\uFFFD\uFFFD\uFFFDA"},
        {"\x80", u"\uFFFD"},            // trailing byte without lead
        {"\xC2", u"\uFFFD"},            // truncated at the end
        {"a\xF0\x9F\x98", u"a\uFFFD"},  // truncated four-byte form
        {"\xE2\x82"
         "A",
         u"\uFFFDA"},                                       // cut short by ASCII
        {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},            // overlong '/'
        {"\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // overlong '/'
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},            // encoded surrogate D800
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // U+110000
        {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // lead byte beyond U+10FFFF
        {"\xFE\xFF", u"\uFFFD\uFFFD"},
        {"\xED\x9F\xBF\xEE\x80\x80", u"\uD7FF\uE000"},  // either side of the surrogates
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.bytes));
        EXPECT_EQ(Utf8ToUtf16(c.bytes), c.expected);
    }
}

TEST(TextEncoding, LoneSurrogatesBecomeReplacementCharacters) {
    struct Case {
        std::u16string units;
        std::string utf8;
    };
    const char16_t hi = 0xD800, lo = 0xDC00;
    const Case cases[] = {
        {{hi}, "\xEF\xBF\xBD"},
        {{lo}, "\xEF\xBF\xBD"},
        {{u'a', hi}, "a\xEF\xBF\xBD"},
        {{hi, u'a'},
         "\xEF\xBF\xBD"
         "a"},
        {{lo, hi}, "\xEF\xBF\xBD\xEF\xBF\xBD"},          // a pair in the wrong order
        {{hi, hi, lo}, "\xEF\xBF\xBD\xF0\x90\x80\x80"},  // the second high starts the pair
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.utf8));
        EXPECT_EQ(Utf16ToUtf8(c.units), c.utf8);
        EXPECT_EQ(Utf16ToUtf32(c.units), Utf16ToUtf32(Utf8ToUtf16(c.utf8)));
    }
    const std::u32string invalid32 = {0xD800, 0xDFFF, 0x110000, 0xFFFFFFFF, 0x10FFFF};
    EXPECT_EQ(Utf32ToUtf16(invalid32),
              (std::u16string{0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD, 0xDBFF, 0xDFFF}));
}

TEST(TextEncoding, RandomInputDecodesToTextThatReencodesCleanly) {
    // Bytes weighted towards those that start, continue or break sequences.
    const unsigned char interesting[] = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0,
                                         0xC2, 0xDF, 0xE0, 0xED, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF};
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> length(0, 40);
    std::uniform_int_distribution<int> anyByte(0, 255);
    std::uniform_int_distribution<int> pick(0, static_cast<int>(std::size(interesting)) - 1);
    std::uniform_int_distribution<int> anyUnit(0, 0xFFFF);
    for (int round = 0; round < 5000; ++round) {
        std::string bytes;
        for (int n = length(random); n > 0; --n) {
            bytes.push_back(
                static_cast<char>(round % 2 ? anyByte(random) : interesting[pick(random)]));
        }
        const std::u16string text = Utf8ToUtf16(bytes);
        ASSERT_LE(text.size(), bytes.size());
        // Decoded text is well-formed: it survives a round trip unchanged.
        const std::string clean = Utf16ToUtf8(text);
        ASSERT_EQ(Utf8ToUtf16(clean), text) << testing::PrintToString(bytes);
        ASSERT_EQ(Utf16ToUtf8(Utf32ToUtf16(Utf16ToUtf32(text))), clean);

        // Random UTF-16: each lone surrogate becomes one U+FFFD in place.
        std::u16string units;
        for (int n = length(random); n > 0; --n) {
            // Either any unit, or one near or inside the surrogate range.
            const int unit = round % 2 ? anyUnit(random) : 0xD7F0 + pick(random) * 0x80;
            units.push_back(static_cast<char16_t>(unit));
        }
        const std::u16string repaired = Utf8ToUtf16(Utf16ToUtf8(units));
        ASSERT_EQ(repaired.size(), units.size());
        for (std::size_t i = 0; i < units.size(); ++i) {
            if (units[i] < 0xD800 || units[i] > 0xDFFF) {
                ASSERT_EQ(repaired[i], units[i]);
            }
        }
        ASSERT_EQ(Utf16ToUtf8(repaired), Utf16ToUtf8(units));
    }
}

TEST(TextEncoding, WideTextIsUtf16OrUtf32ByPlatform) {
    const std::wstring wide = L"50\u00B0 \U0001F600";
    const std::u16string utf16 = u"50\u00B0 \U0001F600";
    EXPECT_EQ(WideToUtf16(wide), utf16);
    EXPECT_EQ(Utf16ToWide(utf16), wide);
    if constexpr (sizeof(wchar_t) == 2) {
        EXPECT_EQ(wide.size(), 6u);
        // UTF-16 to UTF-16 copies, a lone surrogate included.
        const std::u16string lone = {0xD800, u'a'};
        EXPECT_EQ(WideToUtf16(Utf16ToWide(lone)), lone);
    } else {
        EXPECT_EQ(wide.size(), 5u);
        const std::wstring invalid = {static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000),
                                      static_cast<wchar_t>(-1)};
        EXPECT_EQ(WideToUtf16(invalid), u"\uFFFD\uFFFD\uFFFD");
        EXPECT_EQ(Utf16ToWide(std::u16string{0xDC00}), L"\uFFFD");
    }
}

TEST(TextEncoding, Windows1252BytesMapToTheirCharacters) {
    struct Case {
        unsigned char byte;
        char16_t code;
    };
    // Values from unicode.org's CP1252.TXT; the five undefined bytes map
    // to the C1 controls of the same value, as Windows' conversion does.
    const Case cases[] = {
        {0x41, 0x0041}, {0x80, 0x20AC}, {0x81, 0x0081}, {0x82, 0x201A}, {0x83, 0x0192},
        {0x8A, 0x0160}, {0x8C, 0x0152}, {0x8D, 0x008D}, {0x8E, 0x017D}, {0x8F, 0x008F},
        {0x90, 0x0090}, {0x91, 0x2018}, {0x99, 0x2122}, {0x9C, 0x0153}, {0x9D, 0x009D},
        {0x9F, 0x0178}, {0xA0, 0x00A0}, {0xB0, 0x00B0}, {0xE9, 0x00E9}, {0xFF, 0x00FF},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.byte));
        const std::string narrow(1, static_cast<char>(c.byte));
        EXPECT_EQ(CodePageToUtf16(narrow, CodePage::Windows1252), std::u16string(1, c.code));
        EXPECT_EQ(Utf16ToCodePage(std::u16string(1, c.code), CodePage::Windows1252), narrow);
    }
    std::string every;
    for (int b = 0; b < 256; ++b)
        every.push_back(static_cast<char>(b));
    const std::u16string decoded = CodePageToUtf16(every, CodePage::Windows1252);
    EXPECT_EQ(decoded.find(kReplacementChar), std::u16string::npos);
    EXPECT_EQ(Utf16ToCodePage(decoded, CodePage::Windows1252), every);
}

TEST(TextEncoding, CharactersOutsideWindows1252BecomeQuestionMarks) {
    struct Case {
        std::u16string text;
        std::string narrow;
    };
    const Case cases[] = {
        {u"\u0100", "?"},  // Latin Extended-A, not in the code page
        {u"\u0080", "?"},  // a C1 control that 0x80 does not stand for
        {u"a\u20AD", "a?"},
        {u"a\U0001F600b", "a?b"},          // one '?' for the whole pair
        {{u'x', char16_t{0xDC00}}, "x?"},  // lone surrogate
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Utf16ToCodePage(c.text, CodePage::Windows1252), c.narrow);
    }
}

TEST(TextEncoding, AnsiConversionsFollowTheActiveCodePage) {
    const CodePage before = GetActiveCodePage();
    {
        CodePageGuard guard(CodePage::Windows1252);
        EXPECT_EQ(GetActiveCodePage(), CodePage::Windows1252);
        EXPECT_EQ(AnsiToUtf16("50\xB0"), u"50\u00B0");
        EXPECT_EQ(Utf16ToAnsi(u"5 \u20AC"), "5 \x80");
    }
    {
        CodePageGuard guard(CodePage::Utf8);
        EXPECT_EQ(AnsiToUtf16("50\xC2\xB0"), u"50\u00B0");
        EXPECT_EQ(AnsiToUtf16("50\xB0"), u"50\uFFFD");
        EXPECT_EQ(Utf16ToAnsi(u"5 \u20AC"), "5 \xE2\x82\xAC");
    }
    {
        // A number the library has no table for reads as UTF-8.
        CodePageGuard guard(static_cast<CodePage>(437));
        EXPECT_EQ(GetActiveCodePage(), CodePage::Utf8);
    }
    EXPECT_EQ(GetActiveCodePage(), before);
#ifndef _WIN32
    EXPECT_EQ(before, CodePage::Utf8);
#endif
}

TEST(TextEncoding, CaseMappingPairsLettersOfLatinGreekAndCyrillic) {
    struct Pair {
        char16_t lower;
        char16_t upper;
    };
    // Simple case mappings of UnicodeData.txt.
    const Pair pairs[] = {
        {u'a', u'A'},           {u'z', u'Z'},           {u'\u00E0', u'\u00C0'},
        {u'\u00FE', u'\u00DE'}, {u'\u00FF', u'\u0178'}, {u'\u0101', u'\u0100'},
        {u'\u012F', u'\u012E'}, {u'\u0133', u'\u0132'}, {u'\u013A', u'\u0139'},
        {u'\u0148', u'\u0147'}, {u'\u014B', u'\u014A'}, {u'\u0177', u'\u0176'},
        {u'\u017A', u'\u0179'}, {u'\u017E', u'\u017D'}, {u'\u03B1', u'\u0391'},
        {u'\u03C9', u'\u03A9'}, {u'\u03C3', u'\u03A3'}, {u'\u03AC', u'\u0386'},
        {u'\u03AF', u'\u038A'}, {u'\u03CC', u'\u038C'}, {u'\u03CE', u'\u038F'},
        {u'\u0430', u'\u0410'}, {u'\u044F', u'\u042F'}, {u'\u0451', u'\u0401'},
        {u'\u045F', u'\u040F'}, {u'\u0491', u'\u0490'}, {u'\u04C2', u'\u04C1'},
        {u'\u04CF', u'\u04C0'}, {u'\u04FF', u'\u04FE'},
    };
    for (const Pair& p : pairs) {
        SCOPED_TRACE(static_cast<unsigned>(p.upper));
        EXPECT_EQ(ToUpperChar(p.lower), p.upper);
        EXPECT_EQ(ToLowerChar(p.upper), p.lower);
    }
    struct OneWay {
        char16_t c;
        char16_t upper;
        char16_t lower;
    };
    const OneWay others[] = {
        {u'\u00DF', u'\u00DF', u'\u00DF'},  // sharp s: no one-to-one upper case
        {u'\u00B5', u'\u00B5', u'\u00B5'},  // micro sign stays Latin
        {u'\u00F7', u'\u00F7', u'\u00F7'},  // division sign between the letters
        {u'\u00D7', u'\u00D7', u'\u00D7'},
        {u'\u03C2', u'\u03A3', u'\u03C2'},  // final sigma
        {u'\u0131', u'I', u'\u0131'},       // dotless i
        {u'\u0130', u'\u0130', u'i'},       // I with dot above
        {u'\u017F', u'S', u'\u017F'},       // long s
        {u'\u0149', u'\u0149', u'\u0149'},  // n preceded by apostrophe
        {u'\u0138', u'\u0138', u'\u0138'},  // kra
        {u'@', u'@', u'@'},
        {u'[', u'[', u'['},
        {u'`', u'`', u'`'},
        {u'{', u'{', u'{'},
        {u'\u01C6', u'\u01C6', u'\u01C6'},  // beyond the mapped blocks
        {u'\u4E2D', u'\u4E2D', u'\u4E2D'},
    };
    for (const OneWay& o : others) {
        SCOPED_TRACE(static_cast<unsigned>(o.c));
        EXPECT_EQ(ToUpperChar(o.c), o.upper);
        EXPECT_EQ(ToLowerChar(o.c), o.lower);
    }
}

TEST(TextEncoding, NarrowCaseMappingFollowsTheActiveCodePage) {
    struct Case {
        char c;
        char upper;
        char lower;
    };
    {
        CodePageGuard guard(CodePage::Windows1252);
        const Case cases[] = {
            {'a', 'A', 'a'},
            {'\xE9', '\xC9', '\xE9'},
            {'\xC0', '\xC0', '\xE0'},
            {'\xFF', '\x9F', '\xFF'},
            {'\x9F', '\x9F', '\xFF'},
            {'\x9A', '\x8A', '\x9A'},
            {'\x9C', '\x8C', '\x9C'},
            {'\x8E', '\x8E', '\x9E'},
            {'\xB5', '\xB5', '\xB5'},
            {'\xDF', '\xDF', '\xDF'},
            {'\xD7', '\xD7', '\xD7'},
            {'\x83', '\x83', '\x83'},  // f with hook: its capital is not in the code page
        };
        for (const Case& c : cases) {
            SCOPED_TRACE(static_cast<int>(static_cast<unsigned char>(c.c)));
            EXPECT_EQ(ToUpperChar(c.c), c.upper);
            EXPECT_EQ(ToLowerChar(c.c), c.lower);
        }
    }
    {
        // In UTF-8 a byte above 0x7F is part of a longer character: untouched.
        CodePageGuard guard(CodePage::Utf8);
        const Case cases[] = {{'a', 'A', 'a'},
                              {'Z', 'Z', 'z'},
                              {'\xC3', '\xC3', '\xC3'},
                              {'\xA9', '\xA9', '\xA9'},
                              {'\xFF', '\xFF', '\xFF'}};
        for (const Case& c : cases) {
            EXPECT_EQ(ToUpperChar(c.c), c.upper);
            EXPECT_EQ(ToLowerChar(c.c), c.lower);
        }
    }
}

}  // namespace
}  // namespace vex
