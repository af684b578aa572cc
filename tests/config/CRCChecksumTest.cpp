#include <base/config/CRCChecksum.h>

#include <gtest/gtest.h>

#if VEXBASE_TEST_HAVE_ZLIB
#include <zlib.h>
#endif

#include <cstdint>
#include <random>
#include <string>
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

// Every overload fed "123456789" its own way gives the check value; wide
// texts carry junk in their high bytes, which must not count.
TEST(CRCChecksum, EveryOverloadFeedsTheDocumentedBytes) {
    const std::wstring wide = L"1\u0132345\u0F36789";
    const wchar_t* wideText = wide.c_str();
    struct Case {
        const char* name;
        void (*feed)(CRCChecksum&);
    };
    static const Case cases[] = {
        {"unsigned char",
         [](CRCChecksum& c) {
             for (const char ch : std::string("123456789"))
                 c += static_cast<unsigned char>(ch);
         }},
        {"int",
         [](CRCChecksum& c) {
             c += 0x34333231;
             c += 0x38373635;
             c += "9";
         }},
        {"unsigned int",
         [](CRCChecksum& c) {
             c += 0x34333231u;
             c += 0x38373635u;
             c += "9";
         }},
        {"const char*",
         [](CRCChecksum& c) {
             c += "1234";
             c += static_cast<const char*>(nullptr);
             c += "56789";
         }},
        {"const wchar_t*",
         [](CRCChecksum& c) {
             c += L"1\u0132345";
             c += static_cast<const wchar_t*>(nullptr);
             c += L"\u0F36789";
         }},
        {"CString", [](CRCChecksum& c) { c += CString(u"1\u0132345\u0F36789"); }},
        {"std::wstring", [](CRCChecksum& c) { c += std::wstring(L"1\u0132345\u0F36789"); }},
        {"u16string_view",
         [](CRCChecksum& c) { c += std::u16string_view(u"\uFF31234567\u2038\u0139"); }},
        {"Add",
         [](CRCChecksum& c) {
             c.Add("123456789", 9);
             c.Add(nullptr, 5);
         }},
    };
    for (const Case& c : cases) {
        CRCChecksum crc;
        c.feed(crc);
        EXPECT_EQ(crc.ValueInverted(), 0xCBF43926u) << c.name;
        EXPECT_EQ(crc.Value(), ~0xCBF43926u) << c.name;
    }
    CRCChecksum fromPointer;
    fromPointer += wideText;
    CRCChecksum fromString;
    fromString += wide;
    EXPECT_EQ(fromPointer.Value(), fromString.Value());
    // Negative numbers feed their two's complement: four 0xFF bytes.
    CRCChecksum minusOne;
    minusOne += -1;
    EXPECT_EQ(minusOne.ValueInverted(), 0xFFFFFFFFu);
    CRCChecksum one;
    one += static_cast<unsigned char>('1');
    EXPECT_EQ(one.ValueInverted(), 0x83DCEFB7u);
}

// Expected: Python's zlib.crc32(bytes(range(256)) * 3).
TEST(CRCChecksum, PiecesGiveTheSameValueAsTheWhole) {
    std::vector<unsigned char> bytes(768);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(i);
    for (std::size_t split = 0; split <= bytes.size(); split += 37) {
        CRCChecksum crc;
        crc.Add(bytes.data(), split);
        crc.Add(bytes.data() + split, bytes.size() - split);
        EXPECT_EQ(crc.ValueInverted(), 0xB0C0DF2Au) << split;
    }
}

// The carry-less multiplication path, where the processor has it, against
// the table path: every length up to 1100 from every start in a 16-byte
// block, and random registers.
TEST(CRCChecksum, AcceleratedAndTablePathsAgree) {
    std::mt19937 random(11);
    std::vector<unsigned char> bytes(1200);
    for (unsigned char& b : bytes)
        b = static_cast<unsigned char>(random());
    for (std::size_t offset = 0; offset < 16; ++offset) {
        for (std::size_t length = 0; length <= 1100; ++length) {
            const unsigned int reg = static_cast<unsigned int>(random());
            ASSERT_EQ(detail::Crc32Update(reg, bytes.data() + offset, length, true),
                      detail::Crc32Update(reg, bytes.data() + offset, length, false))
                << "offset " << offset << " length " << length;
        }
    }
    if (!detail::Crc32IsAccelerated()) GTEST_SKIP() << "no carry-less multiplication here";
}

#if VEXBASE_TEST_HAVE_ZLIB
// zlib's crc32 as the independent reference: every length up to 4096, each
// at an alignment that walks through all 64 offsets of a cache line (and
// every alignment for the short lengths, where the paths switch).
TEST(CRCChecksum, EqualsZlibForEveryLengthAndAlignment) {
    std::mt19937 random(29);
    std::vector<unsigned char> bytes(4096 + 64);
    for (unsigned char& b : bytes)
        b = static_cast<unsigned char>(random());
    for (std::size_t length = 0; length <= 4096; ++length) {
        const std::size_t alignments = length <= 300 ? 64 : 1;
        for (std::size_t k = 0; k < alignments; ++k) {
            const std::size_t offset = (length + k) % 64;
            const unsigned int expected =
                crc32(0L, bytes.data() + offset, static_cast<uInt>(length));
            CRCChecksum crc;
            crc.Add(bytes.data() + offset, length);
            ASSERT_EQ(crc.ValueInverted(), expected) << "offset " << offset << " length " << length;
            // The table path too, which runs as three streams from 3 KB on.
            ASSERT_EQ(~detail::Crc32Update(0xFFFFFFFFu, bytes.data() + offset, length, false),
                      expected)
                << "tables, offset " << offset << " length " << length;
        }
    }
}
#endif

// C strings are measured and checksummed in one pass, in blocks that may
// end anywhere relative to the text's zero: every length up to 1100 from
// every start in a 256-byte block gives what the bytes give.
TEST(CRCChecksum, TextEqualsItsBytesWhereverTheZeroFalls) {
    std::mt19937 random(31);
    std::vector<char> buffer(256 + 1100 + 256);
    for (char& c : buffer)
        c = static_cast<char>(1 + random() % 255);
    for (std::size_t offset = 0; offset < 256; offset += 7) {
        for (std::size_t length = 0; length <= 1100; ++length) {
            char* text = buffer.data() + offset;
            const char saved = text[length];
            text[length] = '\0';
            CRCChecksum fromText;
            fromText += static_cast<const char*>(text);
            CRCChecksum fromBytes;
            fromBytes.Add(text, length);
            text[length] = saved;
            ASSERT_EQ(fromText.Value(), fromBytes.Value())
                << "offset " << offset << " length " << length;
        }
    }
}

TEST(CRCChecksum, EightBitOrEqualsThePlainOrForEveryLengthAndAlignment) {
    std::mt19937 random(7);
    std::vector<unsigned char> buffer(32 + 300 + 32);
    for (std::size_t align = 0; align < 32; ++align) {
        for (std::size_t length = 0; length <= 300; ++length) {
            // Zero bytes with one or two single bits inside the range, and
            // all bits set just outside it.
            std::fill(buffer.begin(), buffer.end(), static_cast<unsigned char>(0xFF));
            unsigned char* begin = buffer.data() + align;
            std::fill(begin, begin + length, static_cast<unsigned char>(0));
            for (int i = 0; i < 2 && length > 0; ++i)
                begin[random() % length] |= static_cast<unsigned char>(1u << (random() % 8));
            unsigned char plain = 0;
            for (std::size_t i = 0; i < length; ++i)
                plain |= begin[i];
            ASSERT_EQ(Compute8BitCRC(begin, begin + length), plain)
                << "length " << length << " alignment " << align;
        }
    }
}

TEST(CRCChecksum, SixteenAndEightBitChecks) {
    const unsigned char digits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
    EXPECT_EQ(Compute16BitCRC(digits, digits + 9), 0x2189);
    EXPECT_EQ(Compute16BitCRC(digits, digits), 0);
    EXPECT_EQ(Compute16BitCRC(digits + 9, digits), 0);
    EXPECT_EQ(Compute16BitCRC(nullptr, nullptr), 0);
    EXPECT_EQ(Compute8BitCRC(nullptr, nullptr), 0);
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
