#include <base/framework/CharBuffer.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vex {
namespace {

std::vector<int> BytesOf(const CharBuffer& buffer) {
    std::vector<int> bytes;
    for (const std::byte b : buffer.Bytes())
        bytes.push_back(std::to_integer<int>(b));
    return bytes;
}

TEST(CharBuffer, WritesValuesAsExactLittleEndianBytes) {
    // Doubles: IEEE 754 binary64 bit patterns, 1.0 = 3FF0000000000000 and
    // -2.5 = C004000000000000.
    struct Case {
        const char* what;
        std::function<void(CharBuffer&)> append;
        std::vector<int> bytes;
    };
    const Case cases[] = {
        {"uint8", [](CharBuffer& b) { b.AppendUInt8(0xAB); }, {0xAB}},
        {"uint16", [](CharBuffer& b) { b.AppendUInt16(0x1234); }, {0x34, 0x12}},
        {"uint32", [](CharBuffer& b) { b.AppendUInt32(0x12345678); }, {0x78, 0x56, 0x34, 0x12}},
        {"uint64",
         [](CharBuffer& b) { b.AppendUInt64(0x0102030405060708ULL); },
         {8, 7, 6, 5, 4, 3, 2, 1}},
        {"int16", [](CharBuffer& b) { b.AppendInt16(-2); }, {0xFE, 0xFF}},
        {"int32", [](CharBuffer& b) { b.AppendInt32(-256); }, {0x00, 0xFF, 0xFF, 0xFF}},
        {"int64",
         [](CharBuffer& b) { b.AppendInt64(-1); },
         {255, 255, 255, 255, 255, 255, 255, 255}},
        {"double 1", [](CharBuffer& b) { b.AppendDouble(1.0); }, {0, 0, 0, 0, 0, 0, 0xF0, 0x3F}},
        {"double -2.5",
         [](CharBuffer& b) { b.AppendDouble(-2.5); },
         {0, 0, 0, 0, 0, 0, 0x04, 0xC0}},
        {"utf-16 text", [](CharBuffer& b) { b.AppendText(u"A\u20AC"); }, {0x41, 0x00, 0xAC, 0x20}},
        {"narrow text", [](CharBuffer& b) { b.AppendText(std::string_view("ok")); }, {'o', 'k'}},
        // An identifier's four 16-bit numbers in memory order.
        {"four uint16",
         [](CharBuffer& b) {
             for (std::uint16_t v : {5, 1001, 2, 0})
                 b.AppendUInt16(v);
         },
         {5, 0, 0xE9, 0x03, 2, 0, 0, 0}},
    };
    for (const Case& c : cases) {
        CharBuffer buffer;
        c.append(buffer);
        EXPECT_EQ(BytesOf(buffer), c.bytes) << c.what;
        EXPECT_EQ(buffer.GetPosition(), c.bytes.size()) << c.what;
    }
}

TEST(CharBuffer, ReadsBackWhatItWrote) {
    CharBuffer buffer;
    buffer.AppendUInt16(0xBEEF);
    buffer.AppendInt32(-123456);
    buffer.AppendUInt64(0xFEDCBA9876543210ULL);
    buffer.AppendDouble(-0.1);
    ASSERT_TRUE(buffer.Seek(0));
    std::uint16_t u16 = 0;
    std::int32_t i32 = 0;
    std::uint64_t u64 = 0;
    double d = 0;
    ASSERT_TRUE(buffer.ReadUInt16(u16) && buffer.ReadInt32(i32) && buffer.ReadUInt64(u64) &&
                buffer.ReadDouble(d));
    EXPECT_EQ(u16, 0xBEEF);
    EXPECT_EQ(i32, -123456);
    EXPECT_EQ(u64, 0xFEDCBA9876543210ULL);
    EXPECT_EQ(d, -0.1);
    EXPECT_EQ(buffer.GetRemaining(), 0u);
}

TEST(CharBuffer, GrowsAndOverwritesBelowTheHighWaterMark) {
    CharBuffer buffer(2);
    for (int i = 0; i < 10000; ++i)
        buffer.AppendUInt8(static_cast<std::uint8_t>(i));
    EXPECT_EQ(buffer.GetSize(), 10000u);
    EXPECT_GE(buffer.GetCapacity(), 10000u);
    EXPECT_EQ(std::to_integer<int>(buffer.Bytes()[9999]), 9999 % 256);

    // Writing in the middle replaces bytes; the mark stays where it was.
    ASSERT_TRUE(buffer.Seek(2));
    buffer.AppendUInt16(0xFFFF);
    EXPECT_EQ(buffer.GetPosition(), 4u);
    EXPECT_EQ(buffer.GetSize(), 10000u);
    EXPECT_EQ(std::to_integer<int>(buffer.Bytes()[1]), 1);
    EXPECT_EQ(std::to_integer<int>(buffer.Bytes()[2]), 0xFF);
    EXPECT_EQ(std::to_integer<int>(buffer.Bytes()[4]), 4);

    // Appending the buffer's own content while it grows copies the old bytes.
    CharBuffer self;
    self.AppendText(std::string_view("abc"));
    for (int i = 0; i < 6; ++i)
        self.Append(self.Bytes());
    EXPECT_EQ(self.GetSize(), 3u * 64u);
    EXPECT_EQ(BytesOf(self).back(), 'c');
}

TEST(CharBuffer, ReadingPastTheMarkFailsAndChangesNothing) {
    CharBuffer buffer;
    buffer.AppendUInt8(1);
    buffer.AppendUInt8(2);
    buffer.AppendUInt8(3);
    ASSERT_TRUE(buffer.Seek(0));

    std::uint32_t u32 = 77;
    EXPECT_FALSE(buffer.ReadUInt32(u32));
    EXPECT_EQ(u32, 77u);
    EXPECT_EQ(buffer.GetPosition(), 0u);

    std::uint16_t u16 = 0;
    EXPECT_TRUE(buffer.ReadUInt16(u16));
    EXPECT_EQ(u16, 0x0201);
    u16 = 55;
    EXPECT_FALSE(buffer.ReadUInt16(u16));
    EXPECT_EQ(u16, 55);
    EXPECT_EQ(buffer.GetPosition(), 2u);

    EXPECT_FALSE(buffer.Seek(4));
    EXPECT_EQ(buffer.GetPosition(), 2u);
    EXPECT_FALSE(buffer.Read(nullptr, 1));
    EXPECT_FALSE(buffer.Append(nullptr, 1));
    EXPECT_EQ(buffer.GetSize(), 3u);
}

}  // namespace
}  // namespace vex
