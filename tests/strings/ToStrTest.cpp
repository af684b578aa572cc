#include <base/strings/ToStr.h>

#include <tests/framework/CodePageGuard.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <random>
#include <string>

// Expected texts are what C's printf prints for the conversions named in
// ToStr.h (%g keeps six significant digits); the limits are the C++ types'.

namespace vex {
namespace {

using test::CodePageGuard;

TEST(ToStr, ValuesPrintWithTheConversionOfTheirType) {
    EXPECT_EQ(to_str(true) + to_str('x') + to_str(static_cast<signed char>(-5)), "truex-5");
    EXPECT_EQ(to_str(static_cast<unsigned char>(200)) + to_str(ULLONG_MAX),
              "20018446744073709551615");
    EXPECT_EQ(to_str(123456789.0), "1.23457e+08");
    EXPECT_EQ(to_str(-0.0), "-0");
    EXPECT_EQ(to_str(0.1f) + " " + to_str(2.5L), "0.1 2.5");
    EXPECT_EQ(to_str(static_cast<const char*>(nullptr)), "");
}

// Reads text into a T that starts as 99: a failed read shows 99.
template <class T>
std::pair<bool, T> Read(const char* text) {
    T value = static_cast<T>(99);
    const bool ok = from_str(text, value);
    return {ok, value};
}

TEST(FromStr, BoolAndCharTakeTheTextAsItIs) {
    EXPECT_EQ(Read<bool>("false"), std::make_pair(true, false));
    for (const char* bad : {"TRUE", "true ", "1", ""}) {
        bool value = true;
        EXPECT_FALSE(from_str(bad, value)) << bad;
        EXPECT_TRUE(value);
    }
    EXPECT_EQ(Read<char>(" x"), std::make_pair(true, ' '));  // %c keeps white space
    EXPECT_EQ(Read<char>(""), std::make_pair(false, char(99)));
    {
        CodePageGuard utf8(CodePage::Utf8);  // one byte of a two-byte character
        EXPECT_EQ(Read<char>("\xC2\xB0"), std::make_pair(false, char(99)));
    }
    CodePageGuard ansi(CodePage::Windows1252);
    EXPECT_EQ(Read<char>("\xB0"), std::make_pair(true, '\xB0'));
}

TEST(FromStr, IntegersReadAsScanfButRefuseWhatDoesNotFit) {
    using R = std::pair<bool, int>;
    EXPECT_EQ(Read<int>(" \t\n-17"), R(true, -17));
    EXPECT_EQ(Read<int>("+8"), R(true, 8));
    EXPECT_EQ(Read<int>("12abc"), R(true, 12));  // the rest is ignored
    EXPECT_EQ(Read<int>("0x1F"), R(true, 0));    // %d stops at the x
    EXPECT_EQ(Read<int>("-2147483648"), R(true, INT_MIN));
    for (const char* bad : {"2147483648", "-2147483649", "99999999999999999999999", "", "   ", "-",
                            "+-5", "\xD9\xA1" /* ARABIC-INDIC DIGIT ONE */}) {
        EXPECT_EQ(Read<int>(bad), R(false, 99)) << bad;
    }
    EXPECT_FALSE(Read<signed char>("128").first || Read<unsigned char>("-1").first ||
                 Read<unsigned int>("4294967296").first ||  // scanf would cut these
                 Read<long long>("-9223372036854775809").first ||
                 Read<unsigned long long>("18446744073709551616").first);
}

TEST(FromStr, FloatingValuesReadAsScanfButRefuseOverflow) {
    using R = std::pair<bool, double>;
    EXPECT_EQ(Read<double>(" -0.25e2"), R(true, -25));
    EXPECT_EQ(Read<double>("1e5x"), R(true, 100000));
    EXPECT_EQ(Read<double>("0x1p4"), R(true, 16));
    EXPECT_EQ(Read<double>("1e-999"), R(true, 0));  // underflow reads as 0
    for (const char* bad : {"1e999", "-1e999", "", "abc", "."}) {
        EXPECT_EQ(Read<double>(bad), R(false, 99)) << bad;
    }
    EXPECT_EQ(Read<double>("-INF"), R(true, -std::numeric_limits<double>::infinity()));
    EXPECT_TRUE(std::isnan(Read<double>("nan").second));
    EXPECT_EQ(Read<float>("1e38"), std::make_pair(true, 1e38f));
    EXPECT_EQ(Read<float>("1e39"), std::make_pair(false, 99.0f));  // beyond float
    EXPECT_EQ(Read<long double>("2.5"), std::make_pair(true, 2.5L));
}

template <class T>
void CheckRoundTrips(std::mt19937_64& random) {
    for (const T original : {std::numeric_limits<T>::min(), std::numeric_limits<T>::max(),
                             static_cast<T>(random()), static_cast<T>(random())}) {
        T back = 0;
        EXPECT_TRUE(from_str(to_str(original), back)) << to_str(original);
        EXPECT_EQ(back, original);
    }
}

TEST(FromStr, EveryIntegerTypeReadsBackWhatToStrPrinted) {
    std::mt19937_64 random(20240611);
    for (int i = 0; i < 100; ++i) {
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
}

}  // namespace
}  // namespace vex
