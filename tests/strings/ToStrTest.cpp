#include <base/strings/ToStr.h>

#include <tests/framework/CodePageGuard.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <random>
#include <string>

// Expected texts are what C's printf prints for the conversions named in
// ToStr.h (%g keeps six significant digits); the range limits are those of
// the C++ types.

namespace vex {
namespace {

using test::CodePageGuard;

TEST(ToStr, ValuesPrintWithTheConversionOfTheirType) {
    EXPECT_EQ(to_str(true), "true");
    EXPECT_EQ(to_str(false), "false");
    EXPECT_EQ(to_str('x'), "x");
    EXPECT_EQ(to_str(static_cast<signed char>(-5)), "-5");
    EXPECT_EQ(to_str(static_cast<unsigned char>(200)), "200");
    EXPECT_EQ(to_str(static_cast<short>(-32768)), "-32768");
    EXPECT_EQ(to_str(static_cast<unsigned short>(65535)), "65535");
    EXPECT_EQ(to_str(INT_MIN), "-2147483648");
    EXPECT_EQ(to_str(4294967295u), "4294967295");
    EXPECT_EQ(to_str(-1L), "-1");
    EXPECT_EQ(to_str(7UL), "7");
    EXPECT_EQ(to_str(LLONG_MIN), "-9223372036854775808");
    EXPECT_EQ(to_str(ULLONG_MAX), "18446744073709551615");
    EXPECT_EQ(to_str(0.5f), "0.5");
    EXPECT_EQ(to_str(0.1), "0.1");
    EXPECT_EQ(to_str(123456789.0), "1.23457e+08");
    EXPECT_EQ(to_str(1e-5), "1e-05");
    EXPECT_EQ(to_str(-0.0), "-0");
    EXPECT_EQ(to_str(2.5L), "2.5");
    EXPECT_EQ(to_str(std::numeric_limits<double>::infinity()), "inf");
}

TEST(ToStr, TextIsCopiedOrMoved) {
    EXPECT_EQ(to_str("abc"), "abc");
    EXPECT_EQ(to_str(static_cast<const char*>(nullptr)), "");
    EXPECT_EQ(to_str(std::string_view("a\0b", 3)), std::string("a\0b", 3));
    const std::string text = "copy";
    EXPECT_EQ(to_str(text), "copy");
    std::string moving(100, 'm');
    EXPECT_EQ(to_str(std::move(moving)), std::string(100, 'm'));
}

TEST(FromStr, BoolAcceptsOnlyTheExactWords) {
    const std::pair<const char*, int> cases[] = {
        {"true", 1},   {"false", 0},   {"TRUE", -1}, {"True", -1},
        {"true ", -1}, {" false", -1}, {"1", -1},    {"", -1},
    };
    for (const auto& [text, expected] : cases) {
        for (const bool start : {false, true}) {
            bool value = start;
            EXPECT_EQ(from_str(text, value), expected >= 0) << text;
            EXPECT_EQ(value, expected >= 0 ? expected == 1 : start) << text;
        }
    }
}

TEST(FromStr, CharTakesTheFirstCharacterAsItIs) {
    char c = '?';
    EXPECT_TRUE(from_str("xy", c));
    EXPECT_EQ(c, 'x');
    EXPECT_TRUE(from_str(" x", c));  // %c does not skip white space
    EXPECT_EQ(c, ' ');
    EXPECT_FALSE(from_str("", c));
    EXPECT_EQ(c, ' ');
    {
        CodePageGuard utf8(CodePage::Utf8);
        EXPECT_FALSE(from_str("\xC2\xB0", c));  // one byte of a two-byte character
        EXPECT_EQ(c, ' ');
    }
    CodePageGuard ansi(CodePage::Windows1252);
    EXPECT_TRUE(from_str("\xB0", c));
    EXPECT_EQ(c, '\xB0');
}

// Reads text into a T that starts as sentinel; returns the result and the
// value, so that a failed read shows the value unchanged.
template <class T>
std::pair<bool, T> Read(const char* text, T sentinel) {
    T value = sentinel;
    const bool ok = from_str(text, value);
    return {ok, value};
}

template <class T>
struct IntCase {
    const char* text;
    bool ok;
    T value;  // expected value when ok
};

template <class T>
void CheckIntegers(std::initializer_list<IntCase<T>> cases) {
    const T sentinel = 99;
    for (const IntCase<T>& c : cases) {
        const auto [ok, value] = Read(c.text, sentinel);
        EXPECT_EQ(ok, c.ok) << c.text;
        EXPECT_EQ(value, c.ok ? c.value : sentinel) << c.text;
    }
}

TEST(FromStr, IntegersReadAsScanfButRefuseWhatDoesNotFit) {
    CheckIntegers<int>({
        {"42", true, 42},
        {" \t\n-17", true, -17},
        {"+8", true, 8},
        {"12abc", true, 12},  // the rest is ignored
        {"0x1F", true, 0},    // %d stops at the x
        {"2147483647", true, INT_MAX},
        {"-2147483648", true, INT_MIN},
        {"2147483648", false, 0},
        {"-2147483649", false, 0},
        {"99999999999999999999999999", false, 0},
        {"", false, 0},
        {"   ", false, 0},
        {"abc", false, 0},
        {"-", false, 0},
        {"+-5", false, 0},
        {"\xD9\xA1", false, 0},  // ARABIC-INDIC DIGIT ONE in UTF-8
    });
    CheckIntegers<signed char>({{"127", true, 127}, {"-128", true, -128}, {"128", false, 0}});
    CheckIntegers<unsigned char>(
        {{"255", true, 255}, {"256", false, 0}, {"-1", false, 0}, {"-0", true, 0}});
    CheckIntegers<short>({{"-32768", true, SHRT_MIN}, {"32768", false, 0}});
    CheckIntegers<unsigned short>({{"65535", true, 65535}, {"65536", false, 0}});
    CheckIntegers<unsigned int>(
        {{"4294967295", true, UINT_MAX}, {"4294967296", false, 0}, {"-1", false, 0}});
    CheckIntegers<long>(
        {{"-2147483648", true, -2147483647L - 1}, {"9223372036854775808", false, 0}});
    CheckIntegers<unsigned long>({{"4294967295", true, 4294967295UL}, {"-2", false, 0}});
    CheckIntegers<long long>({
        {"9223372036854775807", true, LLONG_MAX},
        {"-9223372036854775808", true, LLONG_MIN},
        {"9223372036854775808", false, 0},
        {"-9223372036854775809", false, 0},
    });
    CheckIntegers<unsigned long long>(
        {{"18446744073709551615", true, ULLONG_MAX}, {"18446744073709551616", false, 0}});
}

TEST(FromStr, FloatingValuesReadAsScanfButRefuseOverflow) {
    struct Case {
        const char* text;
        bool ok;
        double value;
    };
    const Case cases[] = {
        {"12.5", true, 12.5}, {" -0.25e2", true, -25}, {"1e5x", true, 100000}, {".5", true, 0.5},
        {"0x1p4", true, 16},  {"1e-999", true, 0},  // underflow reads as 0
        {"1e999", false, 0},                        // overflow: no value
        {"-1e999", false, 0}, {"", false, 0},          {"abc", false, 0},      {".", false, 0},
    };
    for (const Case& c : cases) {
        const auto [ok, value] = Read(c.text, 7.0);
        EXPECT_EQ(ok, c.ok) << c.text;
        EXPECT_EQ(value, c.ok ? c.value : 7.0) << c.text;
    }
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Read("inf", 7.0), std::make_pair(true, inf));
    EXPECT_EQ(Read("-INF", 7.0), std::make_pair(true, -inf));
    EXPECT_TRUE(std::isnan(Read("nan", 7.0).second));
    EXPECT_EQ(Read("3.5", 7.0f), std::make_pair(true, 3.5f));
    EXPECT_EQ(Read("1e38", 7.0f), std::make_pair(true, 1e38f));
    EXPECT_EQ(Read("1e39", 7.0f), std::make_pair(false, 7.0f));  // beyond float
    EXPECT_EQ(Read("2.5", 7.0L), std::make_pair(true, 2.5L));
}

TEST(FromStr, TextIsTakenWhole) {
    std::string value = "old";
    EXPECT_TRUE(from_str("  any text ", value));
    EXPECT_EQ(value, "  any text ");
    EXPECT_TRUE(from_str(std::string("moved"), value));
    EXPECT_EQ(value, "moved");
    EXPECT_TRUE(from_str(static_cast<const char*>(nullptr), value));
    EXPECT_EQ(value, "");
}

template <class T>
void CheckRoundTrips(std::mt19937_64& random) {
    for (int i = 0; i < 500; ++i) {
        const T original = static_cast<T>(random());
        T back = 0;
        ASSERT_TRUE(from_str(to_str(original), back)) << to_str(original);
        EXPECT_EQ(back, original);
    }
    T back = 0;
    EXPECT_TRUE(from_str(to_str(std::numeric_limits<T>::min()), back));
    EXPECT_EQ(back, std::numeric_limits<T>::min());
    EXPECT_TRUE(from_str(to_str(std::numeric_limits<T>::max()), back));
    EXPECT_EQ(back, std::numeric_limits<T>::max());
}

TEST(FromStr, EveryIntegerReadsBackWhatToStrPrinted) {
    std::mt19937_64 random(20240611);
    CheckRoundTrips<signed char>(random);
    CheckRoundTrips<unsigned char>(random);
    CheckRoundTrips<short>(random);
    CheckRoundTrips<unsigned short>(random);
    CheckRoundTrips<int>(random);
    CheckRoundTrips<unsigned int>(random);
    CheckRoundTrips<long>(random);
    CheckRoundTrips<unsigned long>(random);
    CheckRoundTrips<long long>(random);
    CheckRoundTrips<unsigned long long>(random);
}

}  // namespace
}  // namespace vex
