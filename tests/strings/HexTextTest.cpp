#include <base/strings/HexText.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

// Expected values worked out by hand from the ASCII table; for bad digits
// the byte is (HexVal(first) * 16 + HexVal(second)) mod 256 with 126 for
// each bad digit.

namespace vex {
namespace {

TEST(HexText, DigitValuesAndDigitsMapBadInputTo126) {
    const std::pair<int, int> values[] = {
        {'0', 0},   {'9', 9},   {'a', 10},  {'f', 15},  {'A', 10},  {'F', 15},  {'g', 126},
        {'G', 126}, {'/', 126}, {':', 126}, {'@', 126}, {'`', 126}, {' ', 126}, {-80, 126},
    };
    for (const auto& [ch, value] : values) {
        EXPECT_EQ(HexVal(ch), value) << ch;
    }
    const std::pair<int, char> digits[] = {
        {0, '0'}, {9, '9'}, {10, 'A'}, {15, 'F'}, {16, '~'}, {-1, '~'}, {126, '~'},
    };
    for (const auto& [value, digit] : digits) {
        EXPECT_EQ(ValHex(value), digit) << value;
    }
    static_assert(HexVal('c') == 12 && ValHex(12) == 'C');
}

TEST(HexText, BytesBecomeTwoUpperCaseDigitsEach) {
    const std::pair<std::string, const char*> cases[] = {
        {"", ""},
        {"\n", "0A"},
        {"AZ", "415A"},
        {std::string("\0\xFF", 2), "00FF"},
        {"\xC2\xB0", "C2B0"},
    };
    for (const auto& [bytes, hex] : cases) {
        EXPECT_EQ(Ascii2Hex(bytes), hex);
    }
}

TEST(HexText, DigitPairsBecomeBytesAndAnOddLastDigitIsIgnored) {
    const std::pair<const char*, std::string> cases[] = {
        {"4", ""},  // one digit alone
        {"0A31", "\n1"},
        {"0a3", "\n"},  // the odd "3" is dropped
        {"ff00", std::string("\xFF\0", 2)},
        {"G0", "\xE0"},  // (126 * 16 + 0) mod 256 = 224
        {"zz", "^"},     // (126 * 16 + 126) mod 256 = 94
        {"", ""},
    };
    for (const auto& [hex, bytes] : cases) {
        EXPECT_EQ(Hex2Ascii(hex).Str(), bytes) << hex;
    }
}

TEST(HexText, EveryByteStringSurvivesTheRoundTrip) {
    std::mt19937 random(1234);
    for (int round = 0; round < 200; ++round) {
        std::string bytes(static_cast<std::size_t>(random() % 40), '\0');
        for (char& b : bytes)
            b = static_cast<char>(random() % 256);
        const CStringA hex = Ascii2Hex(bytes);
        ASSERT_EQ(hex.GetLength(), 2 * static_cast<int>(bytes.size()));
        EXPECT_EQ(Hex2Ascii(hex).Str(), bytes);
    }
}

}  // namespace
}  // namespace vex
