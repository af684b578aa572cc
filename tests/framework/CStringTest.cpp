#include <base/framework/CString.h>

#include "CodePageGuard.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace vex {

// Lets GoogleTest print the strings in failure messages.
template <class Ch>
void PrintTo(const CStringT<Ch>& text, std::ostream* os) {
    *os << testing::PrintToString(text.Str());
}

namespace {

using test::CodePageGuard;

TEST(CString, EverySourceOfTextGivesTheSameString) {
    const std::u16string expected = u"50\u00B0 \u20AC \U0001F600";
    const std::pair<const char*, CString> cases[] = {
        {"std::u16string", CString(expected)},
        {"std::u16string_view", CString(std::u16string_view(expected))},
        {"wchar_t text", CString(L"50\u00B0 \u20AC \U0001F600")},
        {"std::wstring", CString(std::wstring(L"50\u00B0 \u20AC \U0001F600"))},
        {"char8_t text", CString(u8"50\u00B0 \u20AC \U0001F600")},
        {"FromUtf8", CString::FromUtf8("50\xC2\xB0 \xE2\x82\xAC \xF0\x9F\x98\x80")},
        {"counted", CString(u"50\u00B0 \u20AC \U0001F600 and more", 8)},
    };
    for (const auto& [source, built] : cases) {
        EXPECT_EQ(built, u"50\u00B0 \u20AC \U0001F600") << source;
    }
    const char16_t* const nullText = nullptr;
    EXPECT_EQ(CString(u'x', 3), u"xxx");
    EXPECT_TRUE(CString(u'x', -1).IsEmpty() && CString(nullText).IsEmpty());
    EXPECT_TRUE(CString(u"abc", -2).IsEmpty());
}

TEST(CString, NarrowTextIsReadAndWrittenInTheActiveCodePage) {
    {
        CodePageGuard guard(CodePage::Windows1252);
        EXPECT_EQ(CString("50\xB0 \x80"), u"50\u00B0 \u20AC");
        EXPECT_EQ(CString(std::string("\x9F")), u"\u0178");
        const CStringA narrow(u"50\u00B0 \u20AC \U0001F600");
        EXPECT_EQ(narrow, "50\xB0 \x80 ?");
        EXPECT_EQ(CStringA(u8"\u00E9"), "\xE9");
        EXPECT_EQ(narrow.ToUtf8(), "50\xC2\xB0 \xE2\x82\xAC ?");
        EXPECT_EQ(CString(narrow), u"50\u00B0 \u20AC ?");
    }
    {
        CodePageGuard guard(CodePage::Utf8);
        EXPECT_EQ(CString("50\xC2\xB0"), u"50\u00B0");
        EXPECT_EQ(CStringA(u"50\u00B0"), "50\xC2\xB0");
        EXPECT_EQ(CStringA(L"\u20AC").ToUtf16(), u"\u20AC");
        EXPECT_EQ(CString(u"\U0001F600").ToWide(), L"\U0001F600");
    }
}

TEST(CString, SearchesReturnMinusOneOutsideTheString) {
    const CString s(u"abcabc");
    const std::pair<int, int> cases[] = {
        {s.Find(u'b'), 1},        {s.Find(u'b', 2), 4},      {s.Find(u'b', 5), -1},
        {s.Find(u'b', -1), -1},   {s.Find(u'b', 99), -1},    {s.Find(u"ca"), 2},
        {s.Find(u"ca", 3), -1},   {s.Find(u"bc", -1), -1},   {s.Find(CString(u"bc"), 2), 4},
        {s.Find(u""), 0},         {s.Find(u"", 6), 6},       {s.Find(u"", 7), -1},
        {s.ReverseFind(u'a'), 3}, {s.ReverseFind(u'z'), -1}, {s.FindOneOf(u"xc"), 2},
        {s.FindOneOf(u""), -1},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].first, cases[i].second) << "case " << i;
    }
}

TEST(CString, ExtractionClampsPositionsAndCounts) {
    const CString s(u"abcdef");
    // clang-format off
    const std::pair<CString, const char16_t*> cases[] = {
        {s.Left(2), u"ab"}, {s.Left(-1), u""}, {s.Left(99), u"abcdef"}, {s.Right(2), u"ef"},
        {s.Right(-3), u""}, {s.Right(99), u"abcdef"}, {s.Mid(4), u"ef"}, {s.Mid(-2), u"abcdef"},
        {s.Mid(99), u""}, {s.Mid(1, 2), u"bc"}, {s.Mid(5, 10), u"f"}, {s.Mid(-1, 2), u"ab"},
        {s.Mid(2, -1), u""}, {s.SpanIncluding(u"ba"), u"ab"}, {s.SpanExcluding(u"dc"), u"ab"},
        {s.SpanExcluding(u"xyz"), u"abcdef"},
    };
    // clang-format on
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].first, cases[i].second) << "case " << i;
    }
    EXPECT_EQ(s.GetAt(6), u'\0');
    EXPECT_EQ(s[-1], u'\0');
}

// One editing step of a table-driven test and its return value (0 if none).
using Edit = std::function<int(CString&)>;

struct EditCase {
    const char16_t* text;
    Edit edit;
    const char16_t* expected;
    int result = 0;
};

void ExpectEdits(const EditCase* cases, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        CString s(cases[i].text);
        EXPECT_EQ(cases[i].edit(s), cases[i].result) << "case " << i;
        EXPECT_EQ(s, cases[i].expected) << "case " << i;
    }
}

TEST(CString, TrimRemovesWhiteSpaceOrTheGivenCharacters) {
    const EditCase cases[] = {
        {u" \t\r\nab c\v\f ", [](CString& s) { return s.Trim(), 0; }, u"ab c"},
        {u" \t ab c ", [](CString& s) { return s.TrimLeft(), 0; }, u"ab c "},
        {u" ab c \n", [](CString& s) { return s.TrimRight(), 0; }, u" ab c"},
        {u"\u00A0a ", [](CString& s) { return s.Trim(), 0; }, u"\u00A0a"},  // not C white space
        {u"xxaxbxx", [](CString& s) { return s.Trim(u'x'), 0; }, u"axb"},
        {u"xyyxaxy", [](CString& s) { return s.TrimLeft(u"xy"), 0; }, u"axy"},
        {u"xyyxaxy", [](CString& s) { return s.TrimRight(CString(u"yx")), 0; }, u"xyyxa"},
        {u" a ", [](CString& s) { return s.Trim(u""), 0; }, u" a "},
    };
    ExpectEdits(cases, std::size(cases));
}

TEST(CString, ReplaceRemoveInsertAndDeleteReportWhatTheyDid) {
    const char16_t* const none = nullptr;
    const EditCase cases[] = {
        {u"a.b.c", [](CString& s) { return s.Replace(u".", u"--"); }, u"a--b--c", 2},
        {u"aaaa", [](CString& s) { return s.Replace(u"aa", u"b"); }, u"bb", 2},
        {u"abc", [](CString& s) { return s.Replace(u"abc", u"abcabc"); }, u"abcabc", 1},
        {u"abc", [](CString& s) { return s.Replace(u"", u"x"); }, u"abc", 0},
        {u"abc", [none](CString& s) { return s.Replace(none, u"x"); }, u"abc", 0},
        {u"abc", [none](CString& s) { return s.Replace(u"b", none); }, u"ac", 1},
        {u"abc", [](CString& s) { return s.Replace(s, u"[" + s + u"]"); }, u"[abc]", 1},
        {u"banana", [](CString& s) { return s.Replace(u'a', u'o'); }, u"bonono", 3},
        {u"hello", [](CString& s) { return s.Remove(u'l'); }, u"heo", 2},
        {u"hello", [](CString& s) { return s.Insert(-5, u"ab"); }, u"abhello", 7},
        {u"hello", [](CString& s) { return s.Insert(99, u'!'); }, u"hello!", 6},
        {u"hello", [](CString& s) { return s.Insert(2, CString(u"--")); }, u"he--llo", 7},
        {u"hello", [](CString& s) { return s.Delete(1, 2); }, u"hlo", 3},
        {u"hello", [](CString& s) { return s.Delete(-1, 2); }, u"llo", 3},
        {u"hello", [](CString& s) { return s.Delete(3, 99); }, u"hel", 3},
        {u"hello", [](CString& s) { return s.Delete(99); }, u"hello", 5},
        {u"hello", [](CString& s) { return s.Delete(1, -1); }, u"hello", 5},
    };
    ExpectEdits(cases, std::size(cases));
}

TEST(CString, TokenizeSkipsRunsOfDelimitersAndEndsWithMinusOne) {
    // Rows are {text, delimiters, the tokens joined by '|'}.
    const std::u16string_view cases[][3] = {
        {u"a, b,,c", u", ", u"a|b|c"}, {u",,a,,", u",", u"a"},
        {u",,,", u",", u""},           {u"", u",", u""},
        {u"a b", u"", u"a b"},  // no delimiters: one token
    };
    for (const auto& [text, delimiters, tokens] : cases) {
        const CString s(text);
        std::u16string joined;
        int pos = 0;
        for (CString token = s.Tokenize(delimiters, pos); pos != -1;
             token = s.Tokenize(delimiters, pos)) {
            joined += (joined.empty() ? u"" : u"|") + token.Str();
        }
        EXPECT_EQ(joined, tokens);
        EXPECT_TRUE(s.Tokenize(delimiters, pos).IsEmpty());  // stays finished
        EXPECT_EQ(pos, -1);
    }
    int pos = 0;
    EXPECT_EQ(CString(u"ab;c").Tokenize(u";", pos), u"ab");
    EXPECT_EQ(pos, 3);  // just past the delimiter that ended the token
}

TEST(CString, ComparisonsOrderByCodeUnitOrIgnoringCase) {
    struct Case {
        const char16_t* a;
        const char16_t* b;
        int compare;
        int noCase;
    };
    const Case cases[] = {
        {u"abc", u"abc", 0, 0},
        {u"abc", u"ABC", 1, 0},
        {u"a", u"ab", -1, -1},
        {u"\u00C4\u00D6\u00DC", u"\u00E4\u00F6\u00FC", -1, 0},
        {u"Stra\u00DFe", u"STRASSE", 1, 1},  // sharp s has no upper case to match
        {u"\u03A9\u03BC\u03AD\u03B3\u03B1", u"\u03C9\u039C\u0388\u0393\u0391", -1, 0},
        {u"\u041C\u043E\u0441\u043A\u0432\u0430", u"\u041C\u041E\u0421\u041A\u0412\u0410", 1, 0},
        {u"_", u"A", 1, -1},  // compared as lower case: '_' < 'a'
    };
    for (const Case& c : cases) {
        const CString a(c.a);
        SCOPED_TRACE(testing::PrintToString(a));
        EXPECT_EQ(a.Compare(c.b), c.compare);
        EXPECT_EQ(a.CompareNoCase(CString(c.b)), c.noCase);
        EXPECT_EQ(CString(c.b).CompareNoCase(a), -c.noCase);
        EXPECT_EQ(a < CString(c.b), c.compare < 0);
        EXPECT_EQ(a == c.b, c.compare == 0);
        EXPECT_EQ(c.b != a, c.compare != 0);
        EXPECT_EQ(a >= c.b, c.compare >= 0);
    }
}

TEST(CString, OrdersKeysOfMapsAndSets) {
    std::map<CString, int> map = {{CString(u"\u00E9"), 3}, {CString(u"a"), 2}, {CString(u"B"), 1}};
    map[CString(u"a")] += 10;
    std::u16string order;
    for (const auto& [key, value] : map)
        order += key.Str();
    EXPECT_EQ(order, u"Ba\u00E9");
    EXPECT_EQ(map.at(CString(u"a")), 12);

    const std::set<CString> set = {CString(u"x"), CString(u"y"), CString(u"x"), CString()};
    EXPECT_EQ(set.size(), 3u);
    EXPECT_EQ(*set.begin(), u"");
}

TEST(CString, CaseConversionCoversLettersBeyondAscii) {
    CString s(u"stra\u00DFe \u00FF \u0151 \u03C9\u03C2 \u0436 \u01C6 1");
    EXPECT_EQ(s.MakeUpper(), u"STRA\u00DFE \u0178 \u0150 \u03A9\u03A3 \u0416 \u01C6 1");
    EXPECT_EQ(s.MakeLower(), u"stra\u00DFe \u00FF \u0151 \u03C9\u03C3 \u0436 \u01C6 1");
    // CStringA maps through the active code page; TextEncoding's tests
    // cover that per byte, this only checks that the bytes are passed.
    CodePageGuard guard(CodePage::Windows1252);
    CStringA narrow("\xE9t\xE9 \xFF");
    EXPECT_EQ(narrow.MakeUpper(), "\xC9T\xC9 \x9F");
}

TEST(CString, BufferWritesTakeEffectOnRelease) {
    CString s;
    char16_t* buffer = s.GetBuffer(10);
    ASSERT_EQ(s.GetLength(), 10);
    std::u16string_view(u"abc").copy(buffer, 3);
    buffer[3] = u'\0';
    s.ReleaseBuffer();
    EXPECT_EQ(s, u"abc");

    s.GetBuffer()[0] = u'x';
    s.ReleaseBuffer(2);
    EXPECT_EQ(s, u"xb");
    s.ReleaseBuffer(99);  // longer than the buffer: keeps what is there
    EXPECT_EQ(s, u"xb");
    s.GetBufferSetLength(4)[3] = u'z';
    EXPECT_EQ(s.GetLength(), 4);
    EXPECT_EQ(s.GetAt(3), u'z');
}

TEST(CString, ConcatenationJoinsEveryKindOfOperand) {
    const CString a(u"ab");
    CString s = u"[" + (u'<' + a + u"-" + u'c' + a + u">") + CString(u"]");
    EXPECT_EQ(s, u"[<ab-cab>]");
    s += s;
    s += u'!';
    s += std::u16string(u"?");
    EXPECT_EQ(s, u"[<ab-cab>][<ab-cab>]!?");
}

}  // namespace
}  // namespace vex
