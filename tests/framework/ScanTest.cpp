#include <base/framework/Scan.h>
#include <base/framework/TextEncoding.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace vex {
namespace {

// Expected values follow the C standard's rules for fscanf (C11 7.21.6.2),
// worked through by hand; where older glibc differs, it is noted.
TEST(Scan, IntegerFieldsFollowTheCRules) {
    const struct {
        std::string_view text, format;
        int fields;
        long long value;  // of the first target when fields >= 1
        int consumed;     // %n after the conversion, -1 when not reached
    } cases[] = {
        {"", "%lld%n", -1, 0, -1},
        {"   ", "%lld%n", -1, 0, -1},
        {"abc", "%lld%n", 0, 0, -1},
        {"-", "%lld%n", 0, 0, -1},
        {"12ab", "%lld%n", 1, 12, 2},
        {" +7 ", "%lld%n", 1, 7, 3},
        {"-12345", "%3lld%n", 1, -12, 3},  // the sign counts toward the width
        {"0x1F", "%llx%n", 1, 31, 4},
        {"ff", "%llx%n", 1, 255, 2},
        {"0x1F", "%lli%n", 1, 31, 4},
        {"017", "%lli%n", 1, 15, 3},
        {"019", "%lli%n", 1, 1, 2},
        {"0x7", "%llo%n", 1, 0, 1},
        {"0x7", "%lld%n", 1, 0, 1},
        // "0x" without a hex digit is a matching failure (older glibc
        // converted the 0).
        {"0xg", "%llx%n", 0, 0, -1},
        {"0x12", "%2llx%n", 0, 0, -1},
        {"99999999999999999999", "%lld%n", 1, std::numeric_limits<long long>::max(), 20},
        {"-99999999999999999999", "%lld%n", 1, std::numeric_limits<long long>::min(), 21},
        {"-1", "%llu%n", 1, -1, 2},  // negated modulo 2^64
        {"5 6", "%*lld%lld%n", 1, 6, 3},
        {"5", "%*lld%lld", -1, 0, -1},  // the input ends before any field was stored
        {"1,2", "%lld ,%n", 1, 1, 2},
        {"%5", "%%%lld%n", 1, 5, 2},
    };
    for (const auto& c : cases) {
        long long value = 0;
        int consumed = -1;
        EXPECT_EQ(Scan(c.text, c.format, &value, &consumed), c.fields) << c.text << " " << c.format;
        if (c.fields >= 1) {
            EXPECT_EQ(value, c.value) << c.text << " " << c.format;
        }
        EXPECT_EQ(consumed, c.consumed) << c.text << " " << c.format;
    }
}

TEST(Scan, SizePrefixesCutTheValueAndTheTargetTypeStoresIt) {
    int i = 0;
    unsigned u = 0;
    short s = 0;
    unsigned char b = 0;
    long long ll = 0;
    EXPECT_EQ(
        Scan("99999999999 -1 70000 300 1099511627776", "%d %u %hd %hhu %I64d", &i, &u, &s, &b, &ll),
        5);
    EXPECT_EQ(i, 1215752191);  // 99999999999 cut to 32 bits, as glibc does
    EXPECT_EQ(u, 4294967295u);
    EXPECT_EQ(s, 4464);
    EXPECT_EQ(b, 44);
    EXPECT_EQ(ll, 1099511627776LL);
    short narrow = 0;
    EXPECT_EQ(Scan("70000", "%d", &narrow), 1);  // int 70000, stored in a short
    EXPECT_EQ(narrow, 4464);
}

TEST(Scan, FloatingFieldsFollowTheCRules) {
    const double inf = std::numeric_limits<double>::infinity();
    const struct {
        std::string_view text;
        int fields;
        double value;
        int consumed;
    } cases[] = {
        {"3.25", 1, 3.25, 4},
        {"-.5e1x", 1, -5, 5},
        {"0x1.8p1", 1, 3, 7},
        // An exponent needs digits (older glibc read "1e" as 1).
        {"1e", 0, 0, -1},
        {"1e+", 0, 0, -1},
        {"0x", 0, 0, -1},
        {".", 0, 0, -1},
        {"-INFINITY", 1, -inf, 9},
        {"infx", 1, inf, 3},
        {"infin", 0, 0, -1},
        {"1e999", 1, inf, 5},
        {"-1e-999", 1, -0.0, 7},
    };
    for (const auto& c : cases) {
        double value = 0;
        int consumed = -1;
        EXPECT_EQ(Scan(c.text, "%lf%n", &value, &consumed), c.fields) << c.text;
        if (c.fields == 1) {
            EXPECT_EQ(value, c.value) << c.text;
        }
        EXPECT_EQ(consumed, c.consumed) << c.text;
    }
    double nan = 0;
    int consumed = 0;
    EXPECT_EQ(Scan("nan(12)x", "%lf%n", &nan, &consumed), 1);
    EXPECT_TRUE(std::isnan(nan));
    EXPECT_EQ(consumed, 7);
    // The target's type sets the precision, whatever the prefix says.
    float f = 0;
    double d = 0;
    EXPECT_EQ(Scan("0.1 0.1", "%lf %f", &f, &d), 2);
    EXPECT_EQ(f, 0.1f);
    EXPECT_EQ(d, 0.1);
}

TEST(Scan, TextFieldsNeverOverrunTheirBuffers) {
    struct {
        char buffer[4];
        char guard[4];
    } s;
    std::memset(&s, '#', sizeof s);
    int consumed = 0;
    EXPECT_EQ(Scan("abcdef gh", "%s%n", s.buffer, &consumed), 1);  // cut, counted
    EXPECT_STREQ(s.buffer, "abc");
    EXPECT_EQ(consumed, 6);
    EXPECT_EQ(Scan("uvwxyz", "%6c", s.buffer), 1);  // %c adds no NUL
    EXPECT_EQ(std::string(s.buffer, 4), "uvwx");
    EXPECT_EQ(std::string(s.guard, 4), "####");
    EXPECT_EQ(Scan("ab", "%5c", s.buffer), -1);  // the text ended inside the field
    char set[8];
    EXPECT_EQ(Scan("]a-b:c", "%[]a-]:%n", set, &consumed), 1);
    EXPECT_STREQ(set, "]a-");
    EXPECT_EQ(Scan("key=value", "%[^=]=%s", set, s.buffer), 2);
    EXPECT_STREQ(set, "key");
    EXPECT_STREQ(s.buffer, "val");
    EXPECT_EQ(Scan("=x", "%[^=]", set), 0);  // an empty set field fails
}

TEST(Scan, ReadsNothingPastTheEndOfTheView) {
    const char text[] = "123456 abc";
    int value = 0;
    int consumed = 0;
    EXPECT_EQ(Scan(std::string_view(text, 3), "%d%n", &value, &consumed), 1);
    EXPECT_EQ(value, 123);
    EXPECT_EQ(consumed, 3);
    std::string word;
    EXPECT_EQ(Scan(std::string_view(text + 7, 2), "%s", &word), 1);
    EXPECT_EQ(word, "ab");
    char two[3] = {};
    EXPECT_EQ(Scan(std::string_view(text, 1), "%2c", two), -1);
}

TEST(Scan, TargetsOfTheWrongKindStopTheScan) {
    int i = 0;
    int j = 0;
    char c = 0;
    double d = 0;
    std::string s;
    EXPECT_EQ(Scan("abc 5", "%s %d", &i, &j), 0);           // text into a number
    EXPECT_EQ(Scan("5", "%d", &s), 0);                      // a number into text
    EXPECT_EQ(Scan("1 2", "%d %d", &i), 1);                 // no target left
    EXPECT_EQ(Scan("x 2.7 5", "%c %f %d", &c, &i, &d), 3);  // convertible kinds
    EXPECT_EQ(c, 'x');
    EXPECT_EQ(i, 2);
    EXPECT_EQ(d, 5.0);
}

TEST(Scan, Utf16TextFillsTargetsOfEitherWidth) {
    int n = 0;
    double v = 0;
    EXPECT_EQ(Scan(u" 42, 3.5", u"%d,%lf", &n, &v), 2);
    EXPECT_EQ(n, 42);
    EXPECT_EQ(v, 3.5);
    std::u16string city;
    char16_t cut[4];
    char16_t degree = 0;
    EXPECT_EQ(Scan(u"Z\u00FCrich 12 Z\u00FCrich \u00B0C", u"%s %d %s %c", &city, &n, cut, &degree),
              4);
    EXPECT_EQ(city, u"Z\u00FCrich");
    EXPECT_EQ(n, 12);
    EXPECT_EQ(std::u16string(cut), u"Z\u00FCr");
    EXPECT_EQ(degree, u'\u00B0');
    EXPECT_EQ(Scan(u"a\u2003b", u"%[a-z]", cut), 1);  // sets compare code units
    EXPECT_EQ(std::u16string(cut), u"a");
}

// Converts non-ASCII text between the widths, so it depends on the
// TextEncoding conversions.
TEST(Scan, TextOfTheOtherWidthGoesThroughTheActiveCodePage) {
    const CodePage old = GetActiveCodePage();
    SetActiveCodePage(CodePage::Utf8);
    std::string narrow;
    std::u16string wide;
    EXPECT_EQ(Scan(u"Z\u00FCrich", u"%s", &narrow), 1);
    EXPECT_EQ(narrow, "Z\xC3\xBCrich");
    EXPECT_EQ(Scan("Z\xC3\xBCrich", "%s", &wide), 1);
    EXPECT_EQ(wide, u"Z\u00FCrich");
    SetActiveCodePage(old);
}

}  // namespace
}  // namespace vex
