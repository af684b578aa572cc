#include <base/framework/CString.h>
#include <base/framework/Format.h>
#include <base/framework/TextEncoding.h>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>
#include <string_view>

namespace vex {
namespace {

// Sets the active code page for one test and restores the old one.
class CodePageScope {
  public:
    explicit CodePageScope(CodePage page) : old_(GetActiveCodePage()) { SetActiveCodePage(page); }
    ~CodePageScope() { SetActiveCodePage(old_); }

  private:
    CodePage old_;
};

TEST(Format, Utf16WidthsAndPrecisionsCountCodeUnits) {
    const struct {
        std::u16string actual;
        std::u16string expected;
    } cases[] = {
        {Format(u"%-8s|", u"Z\u00FCrich"), u"Z\u00FCrich  |"},
        {Format(u"%8s|", u"Z\u00FCrich"), u"  Z\u00FCrich|"},
        {Format(u"%.3s|", u"Z\u00FCrich"), u"Z\u00FCr|"},
        {Format(u"%3c|%-2c|", u'\u00B0', u'x'), u"  \u00B0|x |"},
        {Format(u"%5.1f%c", 12.34, u'\u00B0'), u" 12.3\u00B0"},
        // A character beyond the BMP is two code units, and a precision may
        // cut between them as it cuts a narrow multi-byte character.
        {Format(u"%c|%4s|%.1s", U'\U0001F600', u"\U0001F600", u"\U0001F600"),
         u"\U0001F600|  \U0001F600|\xD83D"},
        {Format(u"%-+6d|%06.2f|%#x", 42, -1.5, 255u), u"+42   |-01.50|0xff"},
        {Format(u"%s|%s|%s", "abc", std::string("de"), std::u32string(U"f")), u"abc|de|f"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.actual, c.expected);
}

TEST(Format, MismatchedArgumentsAreConverted) {
    const struct {
        std::string actual;
        std::string expected;
    } cases[] = {
        {Format("%d", 2.7), "2"},
        {Format("%d", -2.7), "-2"},
        {Format("%d", std::nan("")), "0"},
        {Format("%x", -1.0), "ffffffff"},  // as the integer -1 would print
        {Format("%d", 1e300), "-1"},       // saturated to 2^63-1, then cut to int
        {Format("%f", 3), "3.000000"},
        {Format("%.1e", 12345678901234567ull), "1.2e+16"},
        {Format("%u", -1), "4294967295"},
        {Format("%d", 5000000000LL), "705032704"},  // int, as C reads it
        {Format("%lld|%I64d|%I32d", 5000000000LL, 5000000000LL, 5000000000LL),
         "5000000000|5000000000|705032704"},
        {Format("%hd|%hhu|%hhd", 70000, 300, 200), "4464|44|-56"},
        {Format("%s|%s|%s", 42, -7LL, 2.5), "42|-7|2.5"},
        {Format("%d|%5d|%-4f|", "text", std::string("ab"), "cd"), "text|   ab|cd  |"},
        {Format("%c%c|%ws", 65, 'b', u"w"), "Ab|w"},
        {Format("%p|%p|%8p|%s", nullptr, reinterpret_cast<void*>(0x1234), nullptr, nullptr),
         "(nil)|0x1234|   (nil)|(null)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.actual, c.expected);
}

TEST(Format, ConversionsWithoutArgumentsAreCopiedAsWritten) {
    EXPECT_EQ(Format("%d and %s", 1), "1 and %s");
    EXPECT_EQ(Format("%*d|%.*f", 5), "%*d|%.*f");
    EXPECT_EQ(Format("%5.2f|%-08lld|%%", 1.5), " 1.50|%-08lld|%");
    EXPECT_EQ(Format("100%"), "100%");
    EXPECT_EQ(Format("%y|%5k|%", 1), "%y|%5k|%");
    EXPECT_EQ(Format(u"%d%%%s", 7), u"7%%s");
    // "%n" takes its argument and writes nothing.
    EXPECT_EQ(Format("a%nb%d", 1, 2), "ab2");
}

TEST(Format, StringsOfEveryKindAndWidth) {
    const char* null = nullptr;
    const char unterminated[3] = {'a', 'b', 'c'};
    const std::string_view middle = std::string_view("xyz").substr(1, 1);
    EXPECT_EQ(
        Format("%s|%s|%s|%s", std::string("a"), std::u16string(u"b"), CString(u"c"), CStringA("d")),
        "a|b|c|d");
    EXPECT_EQ(Format("%s|%.5s|%.6s|%-7s|", null, null, null, null), "(null)||(null)|(null) |");
    EXPECT_EQ(Format("%s|%s|%s", unterminated, middle, L"w"), "abc|y|w");
    CString text;
    text.Format(u"%d-%s", 5, u"x");
    text.AppendFormat(u"%.1f|%s", 0.25, CStringA("y"));
    EXPECT_EQ(text, CString(u"5-x0.2|y"));
}

// These convert non-ASCII text between the widths through the active code
// page, so they depend on the TextEncoding conversions.
TEST(Format, TextOfTheOtherWidthGoesThroughTheActiveCodePage) {
    {
        CodePageScope page(CodePage::Utf8);
        EXPECT_EQ(Format(u"%s", "Z\xC3\xBCrich"), u"Z\u00FCrich");
        EXPECT_EQ(Format("%s|%c|%.2s", u"Z\u00FCrich", u'\u00B0', u"\u00B0C"),
                  "Z\xC3\xBCrich|\xC2\xB0|\xC2\xB0");
        EXPECT_EQ(Format(u"%s", u8"Z\u00FCrich"), u"Z\u00FCrich");
    }
    CodePageScope page(CodePage::Windows1252);
    EXPECT_EQ(Format("%c|%s", u'\u00B0', u"\u20AC5"),
              "\xB0|\x80"
              "5");
    EXPECT_EQ(Format(u"%c|%s", '\xB0', "\x80"), u"\u00B0|\u20AC");
    EXPECT_EQ(Format("%s", u8"\u00B0"), "\xB0");  // char8_t text is UTF-8 whatever the page
}

TEST(Format, NumbersUseTheCDecimalPointWhateverTheLocale) {
    const std::string old = std::setlocale(LC_NUMERIC, nullptr);
    if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8") &&
        !std::setlocale(LC_NUMERIC, "German_Germany.1252")) {
        GTEST_SKIP() << "no German locale installed";
    }
    EXPECT_EQ(Format("%.2f|%g", 1.5, 0.25), "1.50|0.25");
    std::setlocale(LC_NUMERIC, old.c_str());
}

}  // namespace
}  // namespace vex
