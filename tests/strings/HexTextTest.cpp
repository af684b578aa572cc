#include <base/strings/HexText.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

// Expected values worked out by hand from the ASCII table; a bad digit
// counts 126 in (HexVal(first) * 16 + HexVal(second)) mod 256.

namespace vex {
namespace {

TEST(HexText, DigitsOutsideTheirRangesMapTo126) {
    for (const int bad : {int('g'), int('G'), int('/'), int(':'), int('@'), int('`'), -80}) {
        EXPECT_EQ(HexVal(bad), 126) << bad;
    }
    EXPECT_EQ(HexVal('9') + HexVal('a') + HexVal('F'), 9 + 10 + 15);
    EXPECT_EQ(std::string({ValHex(0), ValHex(9), ValHex(10), ValHex(15), ValHex(16), ValHex(-1)}),
              "09AF~~");
}

TEST(HexText, HexTextConvertsBothWays) {
    EXPECT_EQ(Ascii2Hex(std::string("\n\0\xFF", 3)), "0A00FF");
    const std::pair<const char*, std::string> cases[] = {
        {"4", ""},       // one digit alone
        {"0a3", "\n"},   // the odd "3" is dropped
        {"G0", "\xE0"},  // (126 * 16 + 0) mod 256 = 224
        {"zz", "^"},     // (126 * 16 + 126) mod 256 = 94
    };
    for (const auto& [hex, bytes] : cases) {
        EXPECT_EQ(Hex2Ascii(hex).Str(), bytes) << hex;
    }
    std::mt19937 random(1234);
    for (int round = 0; round < 100; ++round) {
        std::string bytes(static_cast<std::size_t>(random() % 40), '\0');
        for (char& b : bytes)
            b = static_cast<char>(random() % 256);
        EXPECT_EQ(Hex2Ascii(Ascii2Hex(bytes)).Str(), bytes);
    }
}

}  // namespace
}  // namespace vex
