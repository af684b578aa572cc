#include <base/framework/CString.h>

#include "CodePageGuard.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>

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
    const char16_t* const nullText = nullptr;
    struct Case {
        const char* source;
        CString built;
    };
    const Case cases[] = {
        {"char16_t literal", CString(u"50\u00B0 \u20AC \U0001F600")},
        {"std::u16string", CString(expected)},
        {"std::u16string_view", CString(std::u16string_view(expected))},
        {"wchar_t text", CString(L"50\u00B0 \u20AC \U0001F600")},
        {"std::wstring", CString(std::wstring(L"50\u00B0 \u20AC \U0001F600"))},
        {"char8_t text", CString(u8"50\u00B0 \u20AC \U0001F600")},
        {"FromUtf8", CString::FromUtf8("50\xC2\xB0 \xE2\x82\xAC \xF0\x9F\x98\x80")},
        {"counted", CString(u"50\u00B0 \u20AC \U0001F600 and more", 8)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.built.Str(), expected) << c.source;
    }
    EXPECT_EQ(CString(u'x', 3), u"xxx");
    EXPECT_TRUE(CString(u'x', -1).IsEmpty());
    EXPECT_TRUE(CString(nullText).IsEmpty());
    EXPECT_TRUE(CString(u"abc", -2).IsEmpty());
}

TEST(CString, NarrowTextIsReadInTheActiveCodePage) {
    {
        CodePageGuard guard(CodePage::Windows1252);
        EXPECT_EQ(CString("50\xB0 \x80"), u"50\u00B0 \u20AC");
        EXPECT_EQ(CString(std::string("\x9F")), u"\u0178");
        const CStringA narrow(u"50\u00B0 \u20AC \U0001F600");
        EXPECT_EQ(narrow.Str(), "50\xB0 \x80 ?");
        EXPECT_EQ(CStringA(u8"\u00E9"), "\xE9");
        EXPECT_EQ(narrow.ToUtf16(), u"50\u00B0 \u20AC ?");
        EXPECT_EQ(narrow.ToUtf8(), "50\xC2\xB0 \xE2\x82\xAC ?");
        EXPECT_EQ(CString(narrow), u"50\u00B0 \u20AC ?");
    }
    {
        CodePageGuard guard(CodePage::Utf8);
        EXPECT_EQ(CString("50\xC2\xB0"), u"50\u00B0");
        EXPECT_EQ(CStringA(u"50\u00B0").Str(), "50\xC2\xB0");
        EXPECT_EQ(CStringA(L"\u20AC").Str(), "\xE2\x82\xAC");
        EXPECT_EQ(CString(u"\U0001F600").ToWide(), L"\U0001F600");
    }
}

TEST(CString, SearchesReturnMinusOneOutsideTheString) {
    const CString s(u"abcabc");
    struct Case {
        int found;
        int expected;
    };
    const Case cases[] = {
        {s.Find(u'b'), 1},
        {s.Find(u'b', 2), 4},
        {s.Find(u'b', 5), -1},
        {s.Find(u'b', -1), -1},
        {s.Find(u'b', 99), -1},
        {s.Find(u"ca"), 2},
        {s.Find(u"ca", 3), -1},
        {s.Find(u"bc", -1), -1},
        {s.Find(CString(u"bc"), 2), 4},
        {s.Find(u""), 0},
        {s.Find(u"", 6), 6},
        {s.Find(u"", 7), -1},
        {s.Find(std::u16string(u"c"), 3), 5},
        {s.Find(u"abcabcd"), -1},
        {s.ReverseFind(u'a'), 3},
        {s.ReverseFind(u'z'), -1},
        {s.FindOneOf(u"xc"), 2},
        {s.FindOneOf(u""), -1},
        {CString().Find(u'a'), -1},
        {CString().Find(u""), 0},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].found, cases[i].expected) << "case " << i;
    }
}

TEST(CString, ExtractionClampsPositionsAndCounts) {
    const CString s(u"abcdef");
    struct Case {
        CString part;
        const char16_t* expected;
    };
    const Case cases[] = {
        {s.Left(2), u"ab"},
        {s.Left(0), u""},
        {s.Left(-1), u""},
        {s.Left(99), u"abcdef"},
        {s.Right(2), u"ef"},
        {s.Right(-3), u""},
        {s.Right(99), u"abcdef"},
        {s.Mid(4), u"ef"},
        {s.Mid(-2), u"abcdef"},
        {s.Mid(6), u""},
        {s.Mid(99), u""},
        {s.Mid(1, 2), u"bc"},
        {s.Mid(5, 10), u"f"},
        {s.Mid(-1, 2), u"ab"},
        {s.Mid(2, -1), u""},
        {s.Mid(99, 1), u""},
        {s.SpanIncluding(u"ba"), u"ab"},
        {s.SpanIncluding(u"x"), u""},
        {s.SpanExcluding(u"dc"), u"ab"},
        {s.SpanExcluding(u"xyz"), u"abcdef"},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].part, cases[i].expected) << "case " << i;
    }
    EXPECT_EQ(s.GetAt(1), u'b');
    EXPECT_EQ(s.GetAt(6), u'\0');
    EXPECT_EQ(s[-1], u'\0');
}

TEST(CString, TrimRemovesWhiteSpaceOrTheGivenCharacters) {
    struct Case {
        const char16_t* text;
        std::function<void(CString&)> trim;
        const char16_t* expected;
    };
    const Case cases[] = {
        {u" \t\r\nab c\v\f ", [](CString& s) { s.Trim(); }, u"ab c"},
        {u" \t ab c ", [](CString& s) { s.TrimLeft(); }, u"ab c "},
        {u" ab c \n", [](CString& s) { s.TrimRight(); }, u" ab c"},
        {u" \t\n ", [](CString& s) { s.Trim(); }, u""},
        {u"\u00A0a\u00A0", [](CString& s) { s.Trim(); }, u"\u00A0a\u00A0"},  // not C white space
        {u"xxaxbxx", [](CString& s) { s.Trim(u'x'); }, u"axb"},
        {u"xxaxbxx", [](CString& s) { s.TrimLeft(u'x'); }, u"axbxx"},
        {u"xxaxbxx", [](CString& s) { s.TrimRight(u'x'); }, u"xxaxb"},
        {u"xyyxaxy", [](CString& s) { s.TrimLeft(u"xy"); }, u"axy"},
        {u"xyyxaxy", [](CString& s) { s.TrimRight(u"yx"); }, u"xyyxa"},
        {u"xyyxaxy", [](CString& s) { s.Trim(CString(u"xy")); }, u"a"},
        {u" a ", [](CString& s) { s.Trim(u""); }, u" a "},
    };
    for (const Case& c : cases) {
        CString s(c.text);
        c.trim(s);
        EXPECT_EQ(s, c.expected) << testing::PrintToString(std::u16string(c.text));
    }
}

TEST(CString, ReplaceCountsTheReplacements) {
    struct Case {
        const char16_t* text;
        const char16_t* from;
        const char16_t* to;
        const char16_t* expected;
        int count;
    };
    const Case cases[] = {
        {u"a.b.c", u".", u"--", u"a--b--c", 2},
        {u"aaaa", u"aa", u"b", u"bb", 2},  // matches do not overlap
        {u"aaa", u"aa", u"b", u"ba", 1},
        {u"abab", u"ab", u"", u"", 2},
        {u"abc", u"abc", u"abcabc", u"abcabc", 1},  // the replacement is not searched again
        {u"abc", u"", u"x", u"abc", 0},             // an empty from replaces nothing
        {u"abc", nullptr, u"x", u"abc", 0},
        {u"abc", u"b", nullptr, u"ac", 1},
        {u"abc", u"z", u"x", u"abc", 0},
    };
    for (const Case& c : cases) {
        CString s(c.text);
        EXPECT_EQ(s.Replace(c.from, c.to), c.count)
            << testing::PrintToString(std::u16string(c.text));
        EXPECT_EQ(s, c.expected);
    }
    CString chars(u"banana");
    EXPECT_EQ(chars.Replace(u'a', u'o'), 3);
    EXPECT_EQ(chars, u"bonono");
    CString self(u"abc");
    EXPECT_EQ(self.Replace(self, CString(u"[") + self + u"]"), 1);
    EXPECT_EQ(self, u"[abc]");
    EXPECT_EQ(self.Replace(std::u16string(u"["), u"<"), 1);
    EXPECT_EQ(self, u"<abc]");
}

TEST(CString, RemoveInsertAndDeleteClampTheirIndex) {
    struct Case {
        std::function<int(CString&)> edit;
        int result;
        const char16_t* expected;
    };
    const Case cases[] = {
        {[](CString& s) { return s.Remove(u'l'); }, 2, u"heo"},
        {[](CString& s) { return s.Remove(u'z'); }, 0, u"hello"},
        {[](CString& s) { return s.Insert(0, u'x'); }, 6, u"xhello"},
        {[](CString& s) { return s.Insert(-5, u"ab"); }, 7, u"abhello"},
        {[](CString& s) { return s.Insert(99, u'!'); }, 6, u"hello!"},
        {[](CString& s) { return s.Insert(2, CString(u"--")); }, 7, u"he--llo"},
        {[](CString& s) { return s.Delete(1, 2); }, 3, u"hlo"},
        {[](CString& s) { return s.Delete(1); }, 4, u"hllo"},
        {[](CString& s) { return s.Delete(-1, 2); }, 3, u"llo"},
        {[](CString& s) { return s.Delete(3, 99); }, 3, u"hel"},
        {[](CString& s) { return s.Delete(99); }, 5, u"hello"},
        {[](CString& s) { return s.Delete(1, 0); }, 5, u"hello"},
        {[](CString& s) { return s.Delete(1, -1); }, 5, u"hello"},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        CString s(u"hello");
        EXPECT_EQ(cases[i].edit(s), cases[i].result) << "case " << i;
        EXPECT_EQ(s, cases[i].expected) << "case " << i;
    }
}

TEST(CString, TokenizeSkipsRunsOfDelimitersAndEndsWithMinusOne) {
    struct Case {
        const char16_t* text;
        const char16_t* delimiters;
        std::u16string tokens;  // the tokens joined by '|'
    };
    const Case cases[] = {
        {u"a, b,,c", u", ", u"a|b|c"}, {u",,a,,", u",", u"a"},
        {u",,,", u",", u""},           {u"", u",", u""},
        {u"a b", u"", u"a b"},  // no delimiters: the rest is one token
    };
    for (const Case& c : cases) {
        const CString s(c.text);
        std::u16string joined;
        int pos = 0;
        for (CString token = s.Tokenize(c.delimiters, pos); pos != -1;
             token = s.Tokenize(c.delimiters, pos)) {
            if (!joined.empty()) joined += u'|';
            joined += token.Str();
        }
        EXPECT_EQ(joined, c.tokens);
        EXPECT_TRUE(s.Tokenize(c.delimiters, pos).IsEmpty());  // stays finished
        EXPECT_EQ(pos, -1);
    }
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
        {u"abc", u"abd", -1, -1},
        {u"a", u"ab", -1, -1},
        {u"\u00C4\u00D6\u00DC", u"\u00E4\u00F6\u00FC", -1, 0},
        {u"Stra\u00DFe", u"STRASSE", 1, 1},  // sharp s has no upper case to match
        {u"\u03A9\u03BC\u03AD\u03B3\u03B1", u"\u03C9\u039C\u0388\u0393\u0391", -1, 0},
        {u"\u041C\u043E\u0441\u043A\u0432\u0430", u"\u041C\u041E\u0421\u041A\u0412\u0410", 1, 0},
        {u"_", u"A", 1, -1},  // compared as lower case: '_' < 'a'
        {u"\u00E9", u"z", 1, 1},
    };
    for (const Case& c : cases) {
        const CString a(c.a);
        SCOPED_TRACE(testing::PrintToString(a));
        EXPECT_EQ(a.Compare(c.b), c.compare);
        EXPECT_EQ(a.Compare(CString(c.b)), c.compare);
        EXPECT_EQ(a.CompareNoCase(c.b), c.noCase);
        EXPECT_EQ(CString(c.b).CompareNoCase(a), -c.noCase);
        EXPECT_EQ(a < CString(c.b), c.compare < 0);
        EXPECT_EQ(a == c.b, c.compare == 0);
        EXPECT_EQ(c.b != a, c.compare != 0);
        EXPECT_EQ(a >= c.b, c.compare >= 0);
    }
    const CString b(u"b");
    EXPECT_TRUE(u"a" < b && b > u"a" && b <= u"b" && u"c" >= b);
    EXPECT_TRUE(b == std::u16string(u"b"));
}

TEST(CString, OrdersKeysOfMapsAndSets) {
    std::map<CString, int> map;
    map[CString(u"\u00E9")] = 3;
    map[CString(u"a")] = 2;
    map[CString(u"B")] = 1;
    map[CString(u"a")] += 10;
    std::u16string order;
    for (const auto& [key, value] : map)
        order += key.Str();
    EXPECT_EQ(order, u"Ba\u00E9");
    EXPECT_EQ(map.at(CString(u"a")), 12);

    const std::set<CString> set = {CString(u"x"), CString(u"y"), CString(u"x"), CString()};
    EXPECT_EQ(set.size(), 3u);
    EXPECT_EQ(set.count(CString(u"y")), 1u);
    EXPECT_EQ(*set.begin(), u"");
}

TEST(CString, CaseConversionCoversLettersBeyondAscii) {
    CString s(u"stra\u00DFe \u00FF \u00E4 \u0151 \u03C9\u03C2 \u0436 \u01C6 1");
    s.MakeUpper();
    EXPECT_EQ(s, u"STRA\u00DFE \u0178 \u00C4 \u0150 \u03A9\u03A3 \u0416 \u01C6 1");
    s.MakeLower();
    EXPECT_EQ(s, u"stra\u00DFe \u00FF \u00E4 \u0151 \u03C9\u03C3 \u0436 \u01C6 1");
    {
        CodePageGuard guard(CodePage::Windows1252);
        CStringA narrow("\xE9t\xE9 \xFF \x9C");
        EXPECT_EQ(narrow.MakeUpper(), "\xC9T\xC9 \x9F \x8C");
        EXPECT_EQ(narrow.MakeLower(), "\xE9t\xE9 \xFF \x9C");
    }
    {
        CodePageGuard guard(CodePage::Utf8);
        CStringA narrow("\xC3\xA9t\xC3\xA9");  // "été": the multi-byte letters stay
        EXPECT_EQ(narrow.MakeUpper(), "\xC3\xA9T\xC3\xA9");
    }
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
    s.GetBuffer(1);
    s.ReleaseBuffer(99);  // longer than the buffer: keeps what is there
    EXPECT_EQ(s, u"xb");

    s.GetBufferSetLength(4)[3] = u'z';
    EXPECT_EQ(s.GetLength(), 4);
    EXPECT_EQ(s.GetAt(3), u'z');
    s.GetBufferSetLength(-1);
    EXPECT_TRUE(s.IsEmpty());
}

TEST(CString, ConcatenationJoinsEveryKindOfOperand) {
    const CString a(u"ab");
    CString s = a + u"-" + u'c' + a;
    s = u'<' + s + u">";
    s = u"[" + s + CString(u"]");
    EXPECT_EQ(s, u"[<ab-cab>]");
    s += s;
    s += u'!';
    s += std::u16string(u"?");
    EXPECT_EQ(s, u"[<ab-cab>][<ab-cab>]!?");
}

}  // namespace
}  // namespace vex
