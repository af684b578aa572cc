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
// The 512-bit form spills vector registers to 64-byte aligned stack slots,
// which GCC for Windows does not align; it is left to the other systems.
#if VEX_CRC32_CLMUL && !defined(_WIN32)
#define VEX_CRC32_VCLMUL 1
#else
#define VEX_CRC32_VCLMUL 0
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

// Sixteen bytes folded into the register r by table look-ups.
inline std::uint32_t Step16(std::uint32_t r, const unsigned char* p) {
    const auto& t = kCrc32.t;
    const std::uint32_t a = LoadLe32(p) ^ r;
    const std::uint32_t b = LoadLe32(p + 4);
    const std::uint32_t c = LoadLe32(p + 8);
    const std::uint32_t d = LoadLe32(p + 12);
    return t[15][a & 0xFF] ^ t[14][(a >> 8) & 0xFF] ^ t[13][(a >> 16) & 0xFF] ^ t[12][a >> 24] ^
           t[11][b & 0xFF] ^ t[10][(b >> 8) & 0xFF] ^ t[9][(b >> 16) & 0xFF] ^ t[8][b >> 24] ^
           t[7][c & 0xFF] ^ t[6][(c >> 8) & 0xFF] ^ t[5][(c >> 16) & 0xFF] ^ t[4][c >> 24] ^
           t[3][d & 0xFF] ^ t[2][(d >> 8) & 0xFF] ^ t[1][(d >> 16) & 0xFF] ^ t[0][d >> 24];
}

// a times b modulo the polynomial, both bit-reflected (x^0 in the top bit).
constexpr std::uint32_t MultiplyModP(std::uint32_t a, std::uint32_t b) {
    std::uint32_t product = 0;
    for (std::uint32_t m = 1u << 31; m != 0; m >>= 1) {
        if (a & m) product ^= b;
        b = (b & 1u) ? (b >> 1) ^ 0xEDB88320u : b >> 1;
    }
    return product;
}

// x^(2^k) modulo the polynomial, for k = 0 .. 63, bit-reflected.
struct PowersOfX {
    std::array<std::uint32_t, 64> x2k{};
    constexpr PowersOfX() {
        std::uint32_t p = 1u << 30;  // x^1
        for (auto& entry : x2k) {
            entry = p;
            p = MultiplyModP(p, p);
        }
    }
};
constexpr PowersOfX kPowers;

// The register r moved past n zero bytes: r times x^(8n).
std::uint32_t ShiftBytes(std::uint32_t r, std::size_t n) {
    std::uint64_t bits = static_cast<std::uint64_t>(n) * 8;
    for (std::size_t k = 0; bits != 0; ++k, bits >>= 1) {
        if (bits & 1u) r = MultiplyModP(kPowers.x2k[k], r);
    }
    return r;
}

std::uint32_t UpdateTables(std::uint32_t r, const unsigned char* p, std::size_t n) {
    const auto& t = kCrc32.t;
    // Large inputs run as three independent streams, so that the processor
    // overlaps their look-ups; the register is linear, so the streams' own
    // registers (started at zero) join by shifting past the bytes after them.
    constexpr std::size_t kStreams = 3;
    if (n >= 3 * 1024) {
        const std::size_t part = n / kStreams / 16 * 16;
        const unsigned char* q = p + part;
        const unsigned char* s = p + 2 * part;
        std::uint32_t r2 = 0, r3 = 0;
        for (std::size_t i = 0; i < part; i += 16) {
            r = Step16(r, p + i);
            r2 = Step16(r2, q + i);
            r3 = Step16(r3, s + i);
        }
        r = ShiftBytes(ShiftBytes(r, part) ^ r2, part) ^ r3;
        p += kStreams * part;
        n -= kStreams * part;
    }
    for (; n >= 16; p += 16, n -= 16)
        r = Step16(r, p);
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
// Folds the remaining 16-byte blocks into x1 (n a multiple of 16), then
// reduces 128 bits to 64, to 32, and by a Barrett reduction to the register.
VEX_CLMUL_TARGET std::uint32_t FoldAndReduce(__m128i x1, const unsigned char* p, std::size_t n) {
    const __m128i k3k4 = _mm_set_epi64x(0x0CCAA009ELL, 0x1751997D0LL);
    const __m128i k5 = _mm_set_epi64x(0, 0x163CD6124LL);
    const __m128i poly = _mm_set_epi64x(0x1F7011641LL, 0x1DB710641LL);
    const __m128i mask32 = _mm_set_epi32(0, 0, 0, -1);
    for (; n >= 16; p += 16, n -= 16)
        x1 = Fold(x1, k3k4, Load(p));
    x1 = _mm_xor_si128(_mm_clmulepi64_si128(k3k4, x1, 0x01), _mm_srli_si128(x1, 8));
    x1 = _mm_xor_si128(_mm_clmulepi64_si128(_mm_and_si128(x1, mask32), k5, 0x00),
                       _mm_srli_si128(x1, 4));
    __m128i t = _mm_clmulepi64_si128(_mm_and_si128(x1, mask32), poly, 0x10);
    t = _mm_clmulepi64_si128(_mm_and_si128(t, mask32), poly, 0x00);
    x1 = _mm_xor_si128(x1, t);
    return static_cast<std::uint32_t>(_mm_extract_epi32(x1, 1));
}

// Folding after Intel's paper "Fast CRC Computation for Generic Polynomials
// Using PCLMULQDQ Instruction", for the reflected polynomial: four 128-bit
// lanes are folded 64 bytes ahead, then into one lane, which is reduced to
// 32 bits. A folding constant pair for a distance of D bits is x^(D+32) and
// x^(D-32) modulo the polynomial, bit-reflected over 33 bits. n must be a
// multiple of 16 and at least 64; the result equals the table path's.
VEX_CLMUL_TARGET std::uint32_t UpdateClmul(std::uint32_t r, const unsigned char* p, std::size_t n) {
    const __m128i k1k2 = _mm_set_epi64x(0x1C6E41596LL, 0x154442BD4LL);
    const __m128i k3k4 = _mm_set_epi64x(0x0CCAA009ELL, 0x1751997D0LL);

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
    return FoldAndReduce(x1, p, n);
}

#if VEX_CRC32_VCLMUL

#define VEX_VCLMUL_TARGET __attribute__((target("pclmul,sse4.1,avx512f,avx512vl,vpclmulqdq")))

VEX_VCLMUL_TARGET inline __m512i Fold512(__m512i x, __m512i k, __m512i next) {
    // The two products and the next block in one three-way XOR.
    return _mm512_ternarylogic_epi64(_mm512_clmulepi64_epi128(x, k, 0x00),
                                     _mm512_clmulepi64_epi128(x, k, 0x11), next, 0x96);
}

// A folding pair in every 128-bit lane (set directly: GCC 12 warns about
// the broadcast intrinsic's undefined source in optimised builds).
VEX_VCLMUL_TARGET inline __m512i PairInEveryLane(long long high, long long low) {
    return _mm512_set_epi64(high, low, high, low, high, low, high, low);
}
VEX_VCLMUL_TARGET inline __m512i Pair2048Bits() {
    return PairInEveryLane(0x1322D1430LL, 0x11542778ALL);
}

// The first block with the register taken into its low 32 bits.
VEX_VCLMUL_TARGET inline __m512i StartLane(__m512i block, std::uint32_t r) {
    return _mm512_xor_si512(block, _mm512_zextsi128_si512(_mm_cvtsi32_si128(static_cast<int>(r))));
}

// The four lanes folded into one (512 bits apart), its four 128-bit parts
// into one, then the n remaining bytes at p (a multiple of 16) and the
// reduction.
VEX_VCLMUL_TARGET std::uint32_t FinishVclmul(__m512i z1, __m512i z2, __m512i z3, __m512i z4,
                                             const unsigned char* p, std::size_t n) {
    const __m512i k64 = PairInEveryLane(0x1C6E41596LL, 0x154442BD4LL);
    const __m128i k3k4 = _mm_set_epi64x(0x0CCAA009ELL, 0x1751997D0LL);
    z1 = Fold512(z1, k64, z2);
    z1 = Fold512(z1, k64, z3);
    z1 = Fold512(z1, k64, z4);
    // The 128-bit parts through memory: GCC 12 warns about the extract
    // intrinsic's undefined source in optimised builds.
    alignas(64) __m128i lanes[4];
    _mm512_store_si512(lanes, z1);
    __m128i x1 = lanes[0];
    x1 = Fold(x1, k3k4, lanes[1]);
    x1 = Fold(x1, k3k4, lanes[2]);
    x1 = Fold(x1, k3k4, lanes[3]);
    return FoldAndReduce(x1, p, n);
}

// The same folding four 512-bit lanes (sixteen 128-bit folds) at a time,
// 256 bytes ahead, for processors with the vector form of the instruction;
// enough independent products are in flight to keep its units busy. n must
// be a multiple of 16 and at least 256.
VEX_VCLMUL_TARGET std::uint32_t UpdateVclmul(std::uint32_t r, const unsigned char* p,
                                             std::size_t n) {
    const __m512i k256 = Pair2048Bits();
    __m512i z1 = StartLane(_mm512_loadu_si512(p), r);
    __m512i z2 = _mm512_loadu_si512(p + 64);
    __m512i z3 = _mm512_loadu_si512(p + 128);
    __m512i z4 = _mm512_loadu_si512(p + 192);
    p += 256;
    n -= 256;
    for (; n >= 256; p += 256, n -= 256) {
        z1 = Fold512(z1, k256, _mm512_loadu_si512(p));
        z2 = Fold512(z2, k256, _mm512_loadu_si512(p + 64));
        z3 = Fold512(z3, k256, _mm512_loadu_si512(p + 128));
        z4 = Fold512(z4, k256, _mm512_loadu_si512(p + 192));
    }
    return FinishVclmul(z1, z2, z3, z4, p, n);
}

#define VEX_VCLMUL_TEXT_TARGET \
    __attribute__((target("pclmul,sse4.1,avx512f,avx512vl,avx512bw,vpclmulqdq")))

VEX_VCLMUL_TEXT_TARGET inline bool HasZeroByte(__m512i a, __m512i b, __m512i c, __m512i d) {
    const __m512i least = _mm512_min_epu8(_mm512_min_epu8(a, b), _mm512_min_epu8(c, d));
    return _mm512_test_epi8_mask(least, least) != ~__mmask64{0};
}

// Zero-terminated text from p, which is 256-byte aligned: folds its 256-byte
// blocks for as long as they hold no zero byte and returns where the first
// block with a zero begins, with r taking every byte before it. The blocks
// are read whole, up to 255 bytes past the terminating zero, but an aligned
// block never reaches into a page the text does not touch (pages are
// multiples of 256 bytes), so this cannot fault; the address sanitizer,
// which knows only the text's allocation, is kept out of it.
__attribute__((no_sanitize_address)) VEX_VCLMUL_TEXT_TARGET const unsigned char* UpdateVclmulText(
    std::uint32_t& r, const unsigned char* p) {
    __m512i b1 = _mm512_load_si512(p);
    __m512i b2 = _mm512_load_si512(p + 64);
    __m512i b3 = _mm512_load_si512(p + 128);
    __m512i b4 = _mm512_load_si512(p + 192);
    if (HasZeroByte(b1, b2, b3, b4)) return p;
    const __m512i k256 = Pair2048Bits();
    __m512i z1 = StartLane(b1, r);
    __m512i z2 = b2, z3 = b3, z4 = b4;
    for (p += 256;; p += 256) {
        b1 = _mm512_load_si512(p);
        b2 = _mm512_load_si512(p + 64);
        b3 = _mm512_load_si512(p + 128);
        b4 = _mm512_load_si512(p + 192);
        if (HasZeroByte(b1, b2, b3, b4)) break;
        z1 = Fold512(z1, k256, b1);
        z2 = Fold512(z2, k256, b2);
        z3 = Fold512(z3, k256, b3);
        z4 = Fold512(z4, k256, b4);
    }
    r = FinishVclmul(z1, z2, z3, z4, p, 0);
    return p;
}

bool HaveVclmul() {
    static const bool have = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
               __builtin_cpu_supports("vpclmulqdq") && __builtin_cpu_supports("pclmul");
    }();
    return have;
}

bool HaveVclmulText() {
    static const bool have = HaveVclmul() && __builtin_cpu_supports("avx512bw");
    return have;
}

#endif  // VEX_CRC32_VCLMUL

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
#if VEX_CRC32_VCLMUL
        if (n >= 256 && HaveVclmul()) {
            r = UpdateVclmul(r, p, folded);
        } else {
            r = UpdateClmul(r, p, folded);
        }
#else
        r = UpdateClmul(r, p, folded);
#endif
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
    if (text == nullptr) return *this;
    // Length and checksum in one pass over memory. memchr stops at the first
    // zero, so it reads nothing past the text.
    constexpr std::size_t kBlock = 16 * 1024;
#if VEX_CRC32_VCLMUL
    if (HaveVclmulText()) {
        // Up to the next 256-byte boundary, then whole blocks that are
        // searched and folded in the same registers.
        const auto address = reinterpret_cast<std::uintptr_t>(text);
        const std::size_t head = (256 - address % 256) % 256;
        if (const void* zero = std::memchr(text, 0, head)) {
            Add(text, static_cast<std::size_t>(static_cast<const char*>(zero) - text));
            return *this;
        }
        Add(text, head);
        text = reinterpret_cast<const char*>(
            UpdateVclmulText(m_register, reinterpret_cast<const unsigned char*>(text + head)));
    }
#endif
    // Elsewhere each block's end is found while the block comes into the
    // cache and it is checksummed while it is there.
    for (;;) {
        const void* zero = std::memchr(text, 0, kBlock);
        if (zero != nullptr) {
            Add(text, static_cast<std::size_t>(static_cast<const char*>(zero) - text));
            return *this;
        }
        Add(text, kBlock);
        text += kBlock;
    }
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
