#include <base/config/CRCChecksum.h>

#include <array>
#include <cstdint>
#include <cstring>

// Carry-less multiplication folds sixteen bytes per instruction pair on
// x86-64 processors that have it; GCC and Clang compile it for that target
// alone and choose it at run time, so the library still runs everywhere.
#if (defined(__x86_64__) || defined(__amd64__)) && (defined(__GNUC__) || defined(__clang__))
#define VEX_CRC32_CLMUL 1
#include <immintrin.h>
#else
#define VEX_CRC32_CLMUL 0
#endif

namespace vex {
namespace {

// Sixteen tables for slicing-by-16: table[k][b] is the CRC of byte b
// followed by k zero bytes, so sixteen input bytes are folded per step.
struct Crc32Tables {
    std::array<std::array<std::uint32_t, 256>, 16> t{};
    constexpr Crc32Tables() {
        for (std::uint32_t b = 0; b < 256; ++b) {
            std::uint32_t r = b;
            for (int i = 0; i < 8; ++i)
                r = (r & 1u) ? (r >> 1) ^ 0xEDB88320u : r >> 1;
            t[0][b] = r;
        }
        for (std::size_t k = 1; k < 16; ++k) {
            for (std::size_t b = 0; b < 256; ++b) {
                const std::uint32_t prev = t[k - 1][b];
                t[k][b] = (prev >> 8) ^ t[0][prev & 0xFFu];
            }
        }
    }
};
constexpr Crc32Tables kCrc32;

struct Crc16Table {
    std::array<std::uint16_t, 256> t{};
    constexpr Crc16Table() {
        for (unsigned b = 0; b < 256; ++b) {
            unsigned r = b;
            for (int i = 0; i < 8; ++i)
                r = (r & 1u) ? (r >> 1) ^ 0x8408u : r >> 1;
            t[b] = static_cast<std::uint16_t>(r);
        }
    }
};
constexpr Crc16Table kCrc16;

inline std::uint32_t LoadLe32(const unsigned char* p) {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

std::uint32_t UpdateTables(std::uint32_t r, const unsigned char* p, std::size_t n) {
    const auto& t = kCrc32.t;
    while (n >= 16) {
        const std::uint32_t a = LoadLe32(p) ^ r;
        const std::uint32_t b = LoadLe32(p + 4);
        const std::uint32_t c = LoadLe32(p + 8);
        const std::uint32_t d = LoadLe32(p + 12);
        r = t[15][a & 0xFF] ^ t[14][(a >> 8) & 0xFF] ^ t[13][(a >> 16) & 0xFF] ^ t[12][a >> 24] ^
            t[11][b & 0xFF] ^ t[10][(b >> 8) & 0xFF] ^ t[9][(b >> 16) & 0xFF] ^ t[8][b >> 24] ^
            t[7][c & 0xFF] ^ t[6][(c >> 8) & 0xFF] ^ t[5][(c >> 16) & 0xFF] ^ t[4][c >> 24] ^
            t[3][d & 0xFF] ^ t[2][(d >> 8) & 0xFF] ^ t[1][(d >> 16) & 0xFF] ^ t[0][d >> 24];
        p += 16;
        n -= 16;
    }
    while (n-- > 0)
        r = t[0][(r ^ *p++) & 0xFFu] ^ (r >> 8);
    return r;
}

#if VEX_CRC32_CLMUL

#define VEX_CLMUL_TARGET __attribute__((target("pclmul,sse4.1")))

VEX_CLMUL_TARGET inline __m128i Load(const unsigned char* at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
}

// x times the two constants of k, one per 64-bit half, plus next.
VEX_CLMUL_TARGET inline __m128i Fold(__m128i x, __m128i k, __m128i next) {
    return _mm_xor_si128(
        _mm_xor_si128(_mm_clmulepi64_si128(x, k, 0x00), _mm_clmulepi64_si128(x, k, 0x11)), next);
}

// Folding after Intel's paper "Fast CRC Computation for Generic Polynomials
// Using PCLMULQDQ Instruction", for the reflected polynomial: four 128-bit
// lanes are folded 64 bytes ahead, then into one lane, which is reduced to
// 32 bits by a Barrett reduction. The constants are powers of x modulo the
// polynomial for those folding distances, bit-reflected, and the
// polynomial and its Barrett quotient. n must be a multiple of 16 and at
// least 64; the result equals the table path's.
VEX_CLMUL_TARGET std::uint32_t UpdateClmul(std::uint32_t r, const unsigned char* p, std::size_t n) {
    const __m128i k1k2 = _mm_set_epi64x(0x1C6E41596LL, 0x154442BD4LL);
    const __m128i k3k4 = _mm_set_epi64x(0x0CCAA009ELL, 0x1751997D0LL);
    const __m128i k5 = _mm_set_epi64x(0, 0x163CD6124LL);
    const __m128i poly = _mm_set_epi64x(0x1F7011641LL, 0x1DB710641LL);
    const __m128i mask32 = _mm_set_epi32(0, 0, 0, -1);

    __m128i x1 = _mm_xor_si128(Load(p), _mm_cvtsi32_si128(static_cast<int>(r)));
    __m128i x2 = Load(p + 16);
    __m128i x3 = Load(p + 32);
    __m128i x4 = Load(p + 48);
    p += 64;
    n -= 64;
    for (; n >= 64; p += 64, n -= 64) {
        x1 = Fold(x1, k1k2, Load(p));
        x2 = Fold(x2, k1k2, Load(p + 16));
        x3 = Fold(x3, k1k2, Load(p + 32));
        x4 = Fold(x4, k1k2, Load(p + 48));
    }
    x1 = Fold(x1, k3k4, x2);
    x1 = Fold(x1, k3k4, x3);
    x1 = Fold(x1, k3k4, x4);
    for (; n >= 16; p += 16, n -= 16)
        x1 = Fold(x1, k3k4, Load(p));

    // 128 to 64 bits, then 64 to 32, then the Barrett reduction.
    x1 = _mm_xor_si128(_mm_clmulepi64_si128(k3k4, x1, 0x01), _mm_srli_si128(x1, 8));
    x1 = _mm_xor_si128(_mm_clmulepi64_si128(_mm_and_si128(x1, mask32), k5, 0x00),
                       _mm_srli_si128(x1, 4));
    __m128i t = _mm_clmulepi64_si128(_mm_and_si128(x1, mask32), poly, 0x10);
    t = _mm_clmulepi64_si128(_mm_and_si128(t, mask32), poly, 0x00);
    x1 = _mm_xor_si128(x1, t);
    return static_cast<std::uint32_t>(_mm_extract_epi32(x1, 1));
}

bool HaveClmul() {
    static const bool have = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1");
    }();
    return have;
}

#endif

std::uint32_t Update(std::uint32_t r, const unsigned char* p, std::size_t n,
                     bool allowAccelerated = true) {
#if VEX_CRC32_CLMUL
    if (allowAccelerated && n >= 64 && HaveClmul()) {
        const std::size_t folded = n & ~std::size_t{15};
        r = UpdateClmul(r, p, folded);
        p += folded;
        n -= folded;
    }
#else
    (void)allowAccelerated;
#endif
    return UpdateTables(r, p, n);
}

}  // namespace

namespace detail {

bool Crc32IsAccelerated() {
#if VEX_CRC32_CLMUL
    return HaveClmul();
#else
    return false;
#endif
}

unsigned int Crc32Update(unsigned int reg, const void* data, std::size_t size,
                         bool allowAccelerated) {
    if (data == nullptr) return reg;
    return Update(reg, static_cast<const unsigned char*>(data), size, allowAccelerated);
}

}  // namespace detail

void CRCChecksum::Add(const void* data, std::size_t size) {
    if (data != nullptr)
        m_register = Update(m_register, static_cast<const unsigned char*>(data), size);
}

void CRCChecksum::AddLowBytes(std::u16string_view text) {
    std::uint32_t r = m_register;
    for (const char16_t c : text)
        r = kCrc32.t[0][(r ^ static_cast<unsigned char>(c & 0xFFu)) & 0xFFu] ^ (r >> 8);
    m_register = r;
}

CRCChecksum& CRCChecksum::operator+=(unsigned char byte) {
    Add(&byte, 1);
    return *this;
}

CRCChecksum& CRCChecksum::operator+=(unsigned int value) {
    const unsigned char bytes[4] = {
        static_cast<unsigned char>(value), static_cast<unsigned char>(value >> 8),
        static_cast<unsigned char>(value >> 16), static_cast<unsigned char>(value >> 24)};
    Add(bytes, sizeof bytes);
    return *this;
}

CRCChecksum& CRCChecksum::operator+=(int value) {
    return *this += static_cast<unsigned int>(value);
}

CRCChecksum& CRCChecksum::operator+=(const char* text) {
    if (text != nullptr) Add(text, std::strlen(text));
    return *this;
}

CRCChecksum& CRCChecksum::operator+=(const wchar_t* text) {
    if (text != nullptr) AddLowBytes(WideToUtf16(text));
    return *this;
}

CRCChecksum& CRCChecksum::operator+=(const CString& text) {
    AddLowBytes(text.View());
    return *this;
}

CRCChecksum& CRCChecksum::operator+=(const std::wstring& text) {
    AddLowBytes(WideToUtf16(text));
    return *this;
}

CRCChecksum& CRCChecksum::operator+=(std::u16string_view text) {
    AddLowBytes(text);
    return *this;
}

unsigned short Compute16BitCRC(const unsigned char* begin, const unsigned char* end) {
    if (begin == nullptr || end == nullptr || end <= begin) return 0;
    unsigned r = 0;
    for (const unsigned char* p = begin; p != end; ++p)
        r = kCrc16.t[(r ^ *p) & 0xFFu] ^ (r >> 8);
    return static_cast<unsigned short>(r);
}

unsigned char Compute8BitCRC(const unsigned char* begin, const unsigned char* end) {
    if (begin == nullptr || end == nullptr || end <= begin) return 0;
    // Eight-byte words OR-ed in four lanes: 32 bytes a step, which the
    // compiler turns into vector ORs; the tail goes byte by byte.
    std::size_t n = static_cast<std::size_t>(end - begin);
    const unsigned char* p = begin;
    std::uint64_t lanes[4] = {0, 0, 0, 0};
    for (; n >= 32; n -= 32, p += 32) {
        std::uint64_t w[4];
        std::memcpy(w, p, 32);
        lanes[0] |= w[0];
        lanes[1] |= w[1];
        lanes[2] |= w[2];
        lanes[3] |= w[3];
    }
    std::uint64_t all = lanes[0] | lanes[1] | lanes[2] | lanes[3];
    unsigned char result = 0;
    for (int shift = 0; shift < 64; shift += 8)
        result |= static_cast<unsigned char>(all >> shift);
    while (n-- > 0)
        result |= *p++;
    return result;
}

}  // namespace vex
