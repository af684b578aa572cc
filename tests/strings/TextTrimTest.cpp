#include <base/strings/TextTrim.h>

#include <tests/framework/CodePageGuard.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Expected results worked out by hand: the characters removed are written
// out in each row.

namespace vex {
namespace {

using test::CodePageGuard;

struct CharCase {
    const char* text;
    char ch;
    const char* left;
    const char* right;
    const char* both;
};

const CharCase kCharCases[] = {
    {"xxabxx", 'x', "abxx", "xxab", "ab"},
    {"xaxbx", 'x', "axbx", "xaxb", "axb"},  // only the runs at the ends go
    {"xxxx", 'x', "", "", ""},
    {"", 'x', "", "", ""},
    {"abc", 'x', "abc", "abc", "abc"},
    {"  a  ", ' ', "a  ", "  a", "a"},
    {"abc", '\0', "abc", "abc", "abc"},
};

// Runs one of the in-place trims on a copy of text in a buffer of Ch and
// checks that it returns the buffer it was given.
template <class Ch, class Trim>
std::basic_string<Ch> TrimCopy(const char* text, char ch, Trim trim) {
    std::vector<Ch> buffer(text, text + std::char_traits<char>::length(text) + 1);
    Ch* result = trim(buffer.data(), static_cast<Ch>(ch));
    EXPECT_EQ(result, buffer.data());
    return std::basic_string<Ch>(buffer.data());
}

template <class Ch>
std::basic_string<Ch> Widen(const char* ascii) {
    return std::basic_string<Ch>(ascii, ascii + std::char_traits<char>::length(ascii));
}

TEST(TextTrim, CStringTrimsRemoveTheRunOfOneCharacterInPlace) {
    for (const CharCase& c : kCharCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(TrimCopy<char>(c.text, c.ch, [](char* s, char x) { return trimleftA(s, x); }),
                  c.left);
        EXPECT_EQ(TrimCopy<char>(c.text, c.ch, [](char* s, char x) { return trimrightA(s, x); }),
                  c.right);
        EXPECT_EQ(TrimCopy<char>(c.text, c.ch, [](char* s, char x) { return trimA(s, x); }),
                  c.both);
        using U = char16_t;
        EXPECT_EQ(TrimCopy<U>(c.text, c.ch, [](U* s, U x) { return trimleftW(s, x); }),
                  Widen<U>(c.left));
        EXPECT_EQ(TrimCopy<U>(c.text, c.ch, [](U* s, U x) { return trimrightW(s, x); }),
                  Widen<U>(c.right));
        EXPECT_EQ(TrimCopy<U>(c.text, c.ch, [](U* s, U x) { return trimW(s, x); }),
                  Widen<U>(c.both));
        using W = wchar_t;
        EXPECT_EQ(TrimCopy<W>(c.text, c.ch, [](W* s, W x) { return trimleftW(s, x); }),
                  Widen<W>(c.left));
        EXPECT_EQ(TrimCopy<W>(c.text, c.ch, [](W* s, W x) { return trimrightW(s, x); }),
                  Widen<W>(c.right));
        EXPECT_EQ(TrimCopy<W>(c.text, c.ch, [](W* s, W x) { return trimW(s, x); }),
                  Widen<W>(c.both));
    }
    EXPECT_EQ(trimA(static_cast<char*>(nullptr), 'x'), nullptr);
    EXPECT_EQ(trimW(static_cast<char16_t*>(nullptr), u'x'), nullptr);
}

TEST(TextTrim, CStringTrimOfANonAsciiByteDependsOnTheCodePage) {
    char text[] =
        "\xB0\xB0"
        "a\xB0";
    {
        // Under UTF-8 the byte 0xB0 is only part of a character: nothing goes.
        CodePageGuard utf8(CodePage::Utf8);
        EXPECT_STREQ(trimA(text, '\xB0'),
                     "\xB0\xB0"
                     "a\xB0");
    }
    CodePageGuard ansi(CodePage::Windows1252);
    EXPECT_STREQ(trimA(text, '\xB0'), "a");
}

struct SetCase {
    const char* text;
    const char* set;
    const char* left;
    const char* right;
    const char* both;
};

TEST(TextTrim, StandardStringTrimsRemoveEveryCharacterOfTheSet) {
    const SetCase cases[] = {
        {"  a b \t\n", kWhiteSpaceA, "a b \t\n", "  a b", "a b"},
        {"-+-x-+", "+-", "x-+", "-+-x", "x"},
        {"abc", "cab", "", "", ""},  // all in the set: empty
        {"abc", "", "abc", "abc", "abc"},
        {"", "ab", "", "", ""},
    };
    for (const SetCase& c : cases) {
        SCOPED_TRACE(c.text);
        std::string s = c.text;
        EXPECT_EQ(&trimleftA(s, c.set), &s);
        EXPECT_EQ(s, c.left);
        s = c.text;
        EXPECT_EQ(trimrightA(s, c.set), c.right);
        s = c.text;
        EXPECT_EQ(trimA(s, c.set), c.both);

        std::u16string w = Widen<char16_t>(c.text);
        const std::u16string wideSet = Widen<char16_t>(c.set);
        EXPECT_EQ(trimleftW(w, wideSet.c_str()), Widen<char16_t>(c.left));
        w = Widen<char16_t>(c.text);
        EXPECT_EQ(trimrightW(w, wideSet.c_str()), Widen<char16_t>(c.right));
        w = Widen<char16_t>(c.text);
        EXPECT_EQ(trimW(w, wideSet.c_str()), Widen<char16_t>(c.both));

        std::wstring ww = Widen<wchar_t>(c.text);
        const std::wstring wwSet = Widen<wchar_t>(c.set);
        EXPECT_EQ(trimW(ww, wwSet.c_str()), Widen<wchar_t>(c.both));
    }
    std::string s = " a ";
    EXPECT_EQ(trimA(s, nullptr), " a ");  // a null set removes nothing
    std::u16string w = u"\t a \r";
    EXPECT_EQ(trimW(w), u"a");
}

TEST(TextTrim, NarrowSetsRemoveWholeCharactersOfTheActiveCodePage) {
    CodePageGuard utf8(CodePage::Utf8);
    const SetCase cases[] = {
        // ° is C2 B0 in UTF-8.
        {"\xC2\xB0\xC2\xB0"
         "5\xC2\xB0",
         "\xC2\xB0", "5\xC2\xB0",
         "\xC2\xB0\xC2\xB0"
         "5",
         "5"},
        // ð (C3 B0) shares the byte B0 with ° but is another character.
        {"\xC3\xB0x\xC3\xB0", "\xC2\xB0", "\xC3\xB0x\xC3\xB0", "\xC3\xB0x\xC3\xB0",
         "\xC3\xB0x\xC3\xB0"},
        // A stray B0 byte is a character of its own, not a degree sign.
        {"\xB0"
         "a\xB0",
         "\xC2\xB0",
         "\xB0"
         "a\xB0",
         "\xB0"
         "a\xB0",
         "\xB0"
         "a\xB0"},
        {"\xB0"
         "a\xB0",
         "\xB0", "a\xB0",
         "\xB0"
         "a",
         "a"},
        // € is E2 82 AC; a set of ASCII leaves it alone.
        {" \xE2\x82\xAC ", " ", "\xE2\x82\xAC ", " \xE2\x82\xAC", "\xE2\x82\xAC"},
    };
    for (const SetCase& c : cases) {
        SCOPED_TRACE(c.text);
        std::string s = c.text;
        EXPECT_EQ(trimleftA(s, c.set), c.left);
        s = c.text;
        EXPECT_EQ(trimrightA(s, c.set), c.right);
        s = c.text;
        EXPECT_EQ(trimA(s, c.set), c.both);
        EXPECT_EQ(trim(c.text, c.set), c.both);
    }
    CodePageGuard ansi(CodePage::Windows1252);
    std::string s =
        "\xC3\xB0"
        "5\xB0";
    EXPECT_EQ(trimA(s, "\xB0"),
              "\xC3\xB0"
              "5");  // here B0 is the degree sign itself
}

TEST(TextTrim, ViewTrimsNarrowTheViewWithoutCopying) {
    const std::string text = "--12.5-";
    const std::string_view left = trim_left(text, "-");
    EXPECT_EQ(left, "12.5-");
    EXPECT_EQ(left.data(), text.data() + 2);
    const std::string_view right = trim_right(text, "-");
    EXPECT_EQ(right, "--12.5");
    EXPECT_EQ(right.data(), text.data());
    EXPECT_EQ(trim(text, "-"), "12.5");
    EXPECT_EQ(trim(" \t x \n"), "x");
    EXPECT_EQ(trim("----", "-"), "");
    EXPECT_EQ(trim("", "-"), "");
    EXPECT_EQ(trim("-a-", nullptr), "-a-");
}

}  // namespace
}  // namespace vex
