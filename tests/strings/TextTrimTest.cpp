#include <base/strings/TextTrim.h>

#include <tests/framework/CodePageGuard.h>

#include <gtest/gtest.h>

#include <string>

// Expected results worked out by hand; UTF-8 sequences from the Unicode
// code charts (° is C2 B0, ð is C3 B0, € is E2 82 AC).

namespace vex {
namespace {

using test::CodePageGuard;

TEST(TextTrim, CStringTrimsRemoveTheRunsOfOneCharacterInPlace) {
    struct Case {
        const char* text;
        const char* left;
        const char* right;
        const char* both;
    };
    const Case cases[] = {
        {"xaxbx", "axbx", "xaxb", "axb"},  // only the runs at the ends go
        {"xxxx", "", "", ""},
        {"", "", "", ""},
    };
    for (const Case& c : cases) {
        std::string l = c.text, r = c.text, b = c.text;
        EXPECT_EQ(trimleftA(l.data(), 'x'), l.data());  // the same pointer comes back
        EXPECT_STREQ(l.c_str(), c.left);
        EXPECT_STREQ(trimrightA(r.data(), 'x'), c.right);
        EXPECT_STREQ(trimA(b.data(), 'x'), c.both);
    }
    char16_t wide[] = u"--a-";
    EXPECT_EQ(std::u16string(trimW(wide, u'-')), u"a");
    wchar_t wchar[] = L"a--";
    EXPECT_EQ(std::wstring(trimrightW(wchar, L'-')), L"a");
    EXPECT_EQ(trimA(static_cast<char*>(nullptr), 'x'), nullptr);
}

TEST(TextTrim, ACStringNonAsciiByteIsTrimmedOnlyWhereItIsACharacter) {
    char text[] =
        "\xB0\xB0"
        "a\xB0";
    {
        CodePageGuard utf8(CodePage::Utf8);
        EXPECT_STREQ(trimA(text, '\xB0'),
                     "\xB0\xB0"
                     "a\xB0");
    }
    CodePageGuard ansi(CodePage::Windows1252);
    EXPECT_STREQ(trimA(text, '\xB0'), "a");
}

TEST(TextTrim, SetTrimsRemoveWholeCharactersOfTheActiveCodePage) {
    CodePageGuard utf8(CodePage::Utf8);
    struct Case {
        const char* text;
        const char* set;
        const char* left;
        const char* right;
    };
    const Case cases[] = {
        {"-+-x-+", "+-", "x-+", "-+-x"},
        {"abc", "cab", "", ""},  // every character in the set
        {"\xC2\xB0\xC2\xB0"
         "5\xC2\xB0",
         "\xC2\xB0", "5\xC2\xB0",
         "\xC2\xB0\xC2\xB0"
         "5"},
        // ð shares the byte B0 with ° but is another character.
        {"\xC3\xB0x\xC3\xB0", "\xC2\xB0", "\xC3\xB0x\xC3\xB0", "\xC3\xB0x\xC3\xB0"},
        // A stray B0 byte is a character of its own.
        {"\xB0"
         "a\xB0",
         "\xC2\xB0",
         "\xB0"
         "a\xB0",
         "\xB0"
         "a\xB0"},
        {"\xB0"
         "a\xB0",
         "\xB0", "a\xB0",
         "\xB0"
         "a"},
        {" \xE2\x82\xAC ", " ", "\xE2\x82\xAC ", " \xE2\x82\xAC"},
    };
    for (const Case& c : cases) {
        std::string l = c.text, r = c.text;
        EXPECT_EQ(trimleftA(l, c.set), c.left) << c.text;
        EXPECT_EQ(trimrightA(r, c.set), c.right) << c.text;
        EXPECT_EQ(trim_left(c.text, c.set), c.left) << c.text;
        EXPECT_EQ(trim_right(c.text, c.set), c.right) << c.text;
    }
    std::string s = " a ";
    EXPECT_EQ(trimA(s, nullptr), " a ");
    std::u16string w = u"\t a \r";
    EXPECT_EQ(trimW(w), u"a");
    std::wstring ww = L"xyax";
    EXPECT_EQ(trimW(ww, L"xy"), L"a");
    const std::string text = "--12.5-";
    EXPECT_EQ(trim_left(text, "-").data(), text.data() + 2);  // a view, not a copy
    EXPECT_EQ(trim(text, "-"), "12.5");
}

}  // namespace
}  // namespace vex
