#include <base/framework/TextEncoding.h>

#include "CodePageGuard.h"

#include <gtest/gtest.h>

#include <random>
#include <span>
#include <utility>

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
    // 1112064 scalar values, 2^20 of them as surrogate pairs; UTF-8 takes
    // 128*1 + 1920*2 + 61440*3 + 2^20*4 bytes.
    EXPECT_EQ(utf16.size(), 2160640u);
    EXPECT_EQ(utf8.size(), 4382592u);
    const std::u16string back = Utf8ToUtf16(utf8);
    EXPECT_TRUE(back == utf16);  // not EXPECT_EQ: a failure would print megabytes
    EXPECT_TRUE(Utf16ToUtf32(back) == all);
    // Spot values from the Unicode Standard's definitions of the forms.
    EXPECT_EQ(Utf16ToUtf8(u"\u07FF\u0800"), "\xDF\xBF\xE0\xA0\x80");
    EXPECT_EQ(Utf8ToUtf16("\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF"), u"\xD83D\xDE00\xDBFF\xDFFF");
}

TEST(TextEncoding, MalformedUtf8GivesOneReplacementPerMaximalSubpart) {
    // The first five rows are the examples of the Unicode Standard, chapter
    // 3, "U+FFFD Substitution of Maximal Subparts"; Python's
    // bytes.decode("utf-8", "replace") agrees on every row.
    const std::pair<std::string, std::u16string> cases[] = {
        {"\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64",
         u"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd"},
        {"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41",
         u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"},
        {"\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41",
         u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"},
        {"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA\uFFFD\uFFFDB"},
        {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", u"\uFFFD\uFFFD\uFFFD\uFFFDA"},
        {"\xC2", u"\uFFFD"},                                // truncated at the end
        {"\x61\xF0\x9F\x98", u"a\uFFFD"},                   // truncated four-byte form
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // U+110000
        {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // a lead byte beyond U+10FFFF
        {"\xED\x9F\xBF\xEE\x80\x80", u"\uD7FF\uE000"},      // either side of the surrogates
    };
    for (const auto& [bytes, expected] : cases) {
        EXPECT_EQ(Utf8ToUtf16(bytes), expected) << testing::PrintToString(bytes);
    }
}

TEST(TextEncoding, LoneSurrogatesBecomeReplacementCharacters) {
    const char16_t hi = 0xD800, lo = 0xDC00;
    const std::pair<std::u16string, std::string> cases[] = {
        {{hi}, "\xEF\xBF\xBD"},
        {{u'a', lo}, "\x61\xEF\xBF\xBD"},
        {{hi, u'a'}, "\xEF\xBF\xBD\x61"},
        {{lo, hi}, "\xEF\xBF\xBD\xEF\xBF\xBD"},          // a pair in the wrong order
        {{hi, hi, lo}, "\xEF\xBF\xBD\xF0\x90\x80\x80"},  // the second high starts the pair
    };
    for (const auto& [units, utf8] : cases) {
        EXPECT_EQ(Utf16ToUtf8(units), utf8);
        EXPECT_EQ(Utf16ToUtf32(units), Utf16ToUtf32(Utf8ToUtf16(utf8)));
    }
    const std::u32string invalid = {0xD800, 0x110000, 0xFFFFFFFF, 0x10FFFF};
    EXPECT_EQ(Utf32ToUtf16(invalid), (std::u16string{0xFFFD, 0xFFFD, 0xFFFD, 0xDBFF, 0xDFFF}));
}

TEST(TextEncoding, RandomInputDecodesToTextThatReencodesCleanly) {
    // Bytes weighted towards those that start, continue or break sequences.
    const unsigned char interesting[] = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0,
                                         0xC2, 0xDF, 0xE0, 0xED, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF};
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> length(0, 40), anyByte(0, 255), anyUnit(0, 0xFFFF);
    std::uniform_int_distribution<int> pick(0, static_cast<int>(std::size(interesting)) - 1);
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

        // Random UTF-16, often near or inside the surrogate range: each lone
        // surrogate becomes one U+FFFD in its place.
        std::u16string units;
        for (int n = length(random); n > 0; --n) {
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
    }
}

TEST(TextEncoding, WideTextIsUtf16OrUtf32ByPlatform) {
    const std::wstring wide = L"50\u00B0 \U0001F600";
    const std::u16string utf16 = u"50\u00B0 \U0001F600";
    EXPECT_EQ(WideToUtf16(wide), utf16);
    EXPECT_EQ(Utf16ToWide(utf16), wide);
    if constexpr (sizeof(wchar_t) == 2) {
        // UTF-16 to UTF-16 copies, a lone surrogate included.
        const std::u16string lone = {0xD800, u'a'};
        EXPECT_EQ(WideToUtf16(Utf16ToWide(lone)), lone);
    } else {
        const std::wstring invalid = {static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000),
                                      static_cast<wchar_t>(-1)};
        EXPECT_EQ(WideToUtf16(invalid), u"\uFFFD\uFFFD\uFFFD");
        EXPECT_EQ(Utf16ToWide(std::u16string{0xDC00}), L"\uFFFD");
    }
}

TEST(TextEncoding, Windows1252MapsEveryByteAndReplacesTheRestWithQuestionMarks) {
    // Values from unicode.org's CP1252.TXT; the five bytes it leaves
    // undefined stand for the C1 controls of the same value, as in Windows.
    const std::pair<unsigned char, char16_t> cases[] = {
        {0x80, 0x20AC}, {0x81, 0x0081}, {0x83, 0x0192}, {0x8A, 0x0160}, {0x8D, 0x008D},
        {0x8F, 0x008F}, {0x90, 0x0090}, {0x9D, 0x009D}, {0x9F, 0x0178}, {0xB0, 0x00B0},
    };
    for (const auto& [byte, code] : cases) {
        const std::string narrow(1, static_cast<char>(byte));
        EXPECT_EQ(CodePageToUtf16(narrow, CodePage::Windows1252), std::u16string(1, code));
        EXPECT_EQ(Utf16ToCodePage(std::u16string(1, code), CodePage::Windows1252), narrow);
    }
    std::string every;
    for (int b = 0; b < 256; ++b)
        every.push_back(static_cast<char>(b));
    EXPECT_EQ(Utf16ToCodePage(CodePageToUtf16(every, CodePage::Windows1252), CodePage::Windows1252),
              every);
    // U+0080 is a C1 control the code page has no byte for; a surrogate
    // pair is one character, so one '?'.
    EXPECT_EQ(Utf16ToCodePage(u"\u0100\u0080\u20AD.\U0001F600.\xDC00", CodePage::Windows1252),
              "???.?.?");
}

TEST(TextEncoding, AnsiConversionsFollowTheActiveCodePage) {
    const CodePage before = GetActiveCodePage();
    {
        CodePageGuard guard(CodePage::Windows1252);
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

TEST(TextEncoding, CaseMappingFollowsTheSimpleMappingsOfUnicode) {
    // Rows are {character, its upper case, its lower case}, from the simple
    // case mappings of UnicodeData.txt; ß, µ and ŉ have no one-to-one
    // partner in these blocks and stay as they are.
    // clang-format off
    const char16_t cases[][3] = {
        {u'a', u'A', u'a'}, {u'@', u'@', u'@'}, {u'[', u'[', u'['}, {0x00E0, 0x00C0, 0x00E0},
        {0x00DE, 0x00DE, 0x00FE}, {0x00F7, 0x00F7, 0x00F7}, {0x00FF, 0x0178, 0x00FF},
        {0x0178, 0x0178, 0x00FF}, {0x00DF, 0x00DF, 0x00DF}, {0x00B5, 0x00B5, 0x00B5},
        {0x0101, 0x0100, 0x0101}, {0x012E, 0x012E, 0x012F}, {0x0131, u'I', 0x0131},
        {0x0130, 0x0130, u'i'}, {0x0133, 0x0132, 0x0133}, {0x0138, 0x0138, 0x0138},
        {0x013A, 0x0139, 0x013A}, {0x0147, 0x0147, 0x0148}, {0x0149, 0x0149, 0x0149},
        {0x014B, 0x014A, 0x014B}, {0x0176, 0x0176, 0x0177}, {0x017A, 0x0179, 0x017A},
        {0x017D, 0x017D, 0x017E}, {0x017F, u'S', 0x017F}, {0x03B1, 0x0391, 0x03B1},
        {0x03A9, 0x03A9, 0x03C9}, {0x03C2, 0x03A3, 0x03C2}, {0x03AC, 0x0386, 0x03AC},
        {0x038A, 0x038A, 0x03AF}, {0x03CE, 0x038F, 0x03CE}, {0x0430, 0x0410, 0x0430},
        {0x042F, 0x042F, 0x044F}, {0x0451, 0x0401, 0x0451}, {0x040F, 0x040F, 0x045F},
        {0x0491, 0x0490, 0x0491}, {0x04C2, 0x04C1, 0x04C2}, {0x04C0, 0x04C0, 0x04CF},
        {0x04FF, 0x04FE, 0x04FF}, {0x01C6, 0x01C6, 0x01C6},
    };
    // clang-format on
    for (const auto& [c, upper, lower] : cases) {
        EXPECT_EQ(ToUpperChar(c), upper) << static_cast<unsigned>(c);
        EXPECT_EQ(ToLowerChar(c), lower) << static_cast<unsigned>(c);
    }
}

TEST(TextEncoding, NarrowCaseMappingFollowsTheActiveCodePage) {
    // Rows are {byte, its upper case, its lower case}.
    const char windows1252[][3] = {
        {'a', 'A', 'a'},          {'\xE9', '\xC9', '\xE9'}, {'\xC0', '\xC0', '\xE0'},
        {'\xFF', '\x9F', '\xFF'}, {'\x9F', '\x9F', '\xFF'}, {'\x9A', '\x8A', '\x9A'},
        {'\x8C', '\x8C', '\x9C'}, {'\xB5', '\xB5', '\xB5'}, {'\xDF', '\xDF', '\xDF'},
        {'\x83', '\x83', '\x83'},  // f with hook: its capital is not in the code page
    };
    // In UTF-8 a byte above 0x7F is part of a longer character: untouched.
    const char utf8[][3] = {
        {'a', 'A', 'a'}, {'Z', 'Z', 'z'}, {'\xC3', '\xC3', '\xC3'}, {'\xA9', '\xA9', '\xA9'}};
    for (const auto& [page, cases] :
         {std::pair{CodePage::Windows1252, std::span<const char[3]>(windows1252)},
          std::pair{CodePage::Utf8, std::span<const char[3]>(utf8)}}) {
        CodePageGuard guard(page);
        for (const auto& [c, upper, lower] : cases) {
            EXPECT_EQ(ToUpperChar(c), upper) << static_cast<int>(static_cast<unsigned char>(c));
            EXPECT_EQ(ToLowerChar(c), lower) << static_cast<int>(static_cast<unsigned char>(c));
        }
    }
}

}  // namespace
}  // namespace vex
