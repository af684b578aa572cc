#include <base/strings/XmlText.h>

#include <tests/framework/CodePageGuard.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

// Expected texts written out by hand from the nine replacements; UTF-8
// sequences from the Unicode code charts (U+00B0 is C2 B0).

namespace vex {
namespace {

using test::CodePageGuard;

TEST(XmlText, WideTextGetsItsNineEntities) {
    EXPECT_EQ(XMLEscape(u"<a href='x'>\"&\"\\</a>"),
              u"&lt;a href=&#8217;x&#8217;&gt;&#8221;&amp;&#8221;&#92;&lt;/a&gt;");
    EXPECT_EQ(XMLEscape(u"5\u00B0 10\u00B2 1\u00B3 \u00B1"), u"5&#176; 10&#178; 1&#179; \u00B1");
    EXPECT_EQ(XMLEscape(u"&amp;"), u"&amp;amp;");  // the text is taken as it is
    EXPECT_EQ(XMLEscape(L"\u00B3"), u"&#179;");
    EXPECT_EQ(XMLEscape(static_cast<const char16_t*>(nullptr)), u"");
}

TEST(XmlText, NarrowTextMatchesCharactersOfTheActiveCodePage) {
    {
        CodePageGuard utf8(CodePage::Utf8);
        EXPECT_EQ(XMLEscape("5\xC2\xB0 10\xC2\xB2 1\xC2\xB3 <"), "5&#176; 10&#178; 1&#179; &lt;");
        // ð ò ó hold the bytes B0 B2 B3; a stray B0 is no degree sign either.
        EXPECT_EQ(XMLEscape("\xC3\xB0\xC3\xB2\xC3\xB3\xB0"), "\xC3\xB0\xC3\xB2\xC3\xB3\xB0");
    }
    CodePageGuard ansi(CodePage::Windows1252);
    EXPECT_EQ(XMLEscape("5\xB0\xB2\xB3"), "5&#176;&#178;&#179;");
    EXPECT_EQ(XMLEscape("\xC2\xB0"), "\xC2&#176;");  // Â, then the degree sign
}

TEST(XmlText, MakeXmlCompatibleLeavesTheText) {
    CString text = u"<a & b>";
    MakeXmlCompatible(text);
    EXPECT_EQ(text, u"<a & b>");
}

}  // namespace
}  // namespace vex
