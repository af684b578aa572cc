#include <base/config/CRCChecksum.h>

#include <gtest/gtest.h>

#include <vector>

namespace vex {
namespace {

// Expected values: Python's zlib.crc32 (the inverted register) over the
// same bytes, and the CRC-16/KERMIT check value 0x2189 of "123456789".
TEST(CRCChecksum, MatchesTheCommonCrc32) {
    CRCChecksum empty;
    EXPECT_EQ(empty.Value(), 0xFFFFFFFFu);
    EXPECT_EQ(empty.ValueInverted(), 0u);

    CRCChecksum check;
    check += "123456789";
    EXPECT_EQ(check.ValueInverted(), 0xCBF43926u);
    check.Reset();
    EXPECT_EQ(check.Value(), 0xFFFFFFFFu);

    // Long enough for the sixteen-byte steps, with a tail.
    std::vector<unsigned char> bytes(1000);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>((i * 7 + 3) % 256);
    CRCChecksum longer;
    longer.Add(bytes.data(), bytes.size());
    EXPECT_EQ(longer.ValueInverted(), 0x17BC2A46u);

    // Wide text feeds the low byte of each code unit only.
    CRCChecksum wide;
    wide += CString(u"1\u013234567\u0138\u0F39");
    EXPECT_EQ(wide.ValueInverted(), 0xCBF43926u);
    CRCChecksum number;
    number += 0x34333231;  // the bytes "1234", least significant first
    number += "56789";
    EXPECT_EQ(number.ValueInverted(), 0xCBF43926u);
}

TEST(CRCChecksum, SixteenAndEightBitChecks) {
    const unsigned char digits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
    EXPECT_EQ(Compute16BitCRC(digits, digits + 9), 0x2189);
    EXPECT_EQ(Compute16BitCRC(digits, digits), 0);
    const unsigned char bits[] = {0x01, 0x02, 0x80};
    EXPECT_EQ(Compute8BitCRC(bits, bits + 3), 0x83);
    EXPECT_EQ(Compute8BitCRC(bits + 3, bits), 0);
    std::vector<unsigned char> many(100, 0);
    many[70] = 0x40;
    many[99] = 0x04;
    EXPECT_EQ(Compute8BitCRC(many.data(), many.data() + many.size()), 0x44);
}

}  // namespace
}  // namespace vex
