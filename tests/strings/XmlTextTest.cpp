#include <base/strings/XmlText.h>

#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

// Expected texts written out by hand from the nine replacements; UTF-8
// byte sequences from the Unicode code charts (U+00B0 is C2 B0).

namespace vex {
namespace {

using test::CodePageGuard;

TEST(XmlText, WideTextGetsItsNineEntities) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"a<b>&c", u"a&lt;b&gt;&amp;c"},
        {u"it's \"x\"", u"it&#8217;s &#8221;x&#8221;"},
        {u"5\u00B0 10\u00B2 1\u00B3", u"5&#176; 10&#178; 1&#179;"},
        {u"C:\\dir", u"C:&#92;dir"},
        {u"&amp;", u"&amp;amp;"},  // escaped once more: the text is taken as it is
        {u"\u00B1\u00B4", u"\u00B1\u00B4"},
        {u"", u""},
    };
    for (const auto& [text, escaped] : cases) {
        EXPECT_EQ(XMLEscape(text), escaped);
    }
    EXPECT_EQ(XMLEscape(L"\u00B3<"), u"&#179;&lt;");
    EXPECT_EQ(XMLEscape(static_cast<const char16_t*>(nullptr)), u"");
}

TEST(XmlText, NarrowTextUnderUtf8MatchesWholeCharacters) {
    CodePageGuard utf8(CodePage::Utf8);
    const std::pair<const char*, const char*> cases[] = {
        {"a<b>&c", "a&lt;b&gt;&amp;c"},
        {"'\"\\", "&#8217;&#8221;&#92;"},
        {"5\xC2\xB0 10\xC2\xB2 1\xC2\xB3", "5&#176; 10&#178; 1&#179;"},
        {"\xC3\xB0\xC3\xB2\xC3\xB3", "\xC3\xB0\xC3\xB2\xC3\xB3"},  // ð ò ó hold the bytes B0 B2 B3
        {"\xB0", "\xB0"},  // a stray byte is not a degree sign
        {"", ""},
    };
    for (const auto& [text, escaped] : cases) {
        EXPECT_EQ(XMLEscape(text), escaped) << text;
    }
    EXPECT_EQ(XMLEscape(static_cast<const char*>(nullptr)), "");
}

TEST(XmlText, NarrowTextUnderWindows1252MatchesSingleBytes) {
    CodePageGuard ansi(CodePage::Windows1252);
    const std::pair<const char*, const char*> cases[] = {
        {"5\xB0", "5&#176;"},
        {"\xB2\xB3", "&#178;&#179;"},
        {"\xC2\xB0", "\xC2&#176;"},  // Â then the degree sign
        {"<\xE9>", "&lt;\xE9&gt;"},
    };
    for (const auto& [text, escaped] : cases) {
        EXPECT_EQ(XMLEscape(text), escaped) << text;
    }
}

TEST(XmlText, MakeXmlCompatibleLeavesTheText) {
    CString text = u"<a & b>";
    MakeXmlCompatible(text);
    EXPECT_EQ(text, u"<a & b>");
}

}  // namespace
}  // namespace vex
