// vex::Format and vex::Scan against the C library's own snprintf and sscanf
// on narrow text, over large generated sets of formats and values (fixed
// seeds). MinGW's default stdio is Microsoft's, which is not C99; the
// define below selects mingw-w64's conforming implementation.
#define __USE_MINGW_ANSI_STDIO 1  // NOLINT: must come before any C header

#include <base/framework/Format.h>
#include <base/framework/Scan.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace vex {
namespace {

class Generator {
  public:
    explicit Generator(std::uint64_t seed) : rng_(seed) {}
    int Int(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng_); }
    bool Chance(double p) { return std::bernoulli_distribution(p)(rng_); }
    template <class T, std::size_t N>
    const T& Pick(const T (&items)[N]) {
        return items[static_cast<std::size_t>(Int(0, static_cast<int>(N) - 1))];
    }
    std::uint64_t Bits() { return rng_(); }

    // Integers at the limits of every width, and random ones of all sizes.
    std::uint64_t Integer() {
        static constexpr std::uint64_t kEdges[] = {0,
                                                   1,
                                                   7,
                                                   42,
                                                   127,
                                                   128,
                                                   255,
                                                   256,
                                                   32767,
                                                   32768,
                                                   65535,
                                                   65536,
                                                   0x7FFFFFFF,
                                                   0x80000000,
                                                   0xFFFFFFFF,
                                                   0x100000000,
                                                   0x7FFFFFFFFFFFFFFF,
                                                   0x8000000000000000};
        if (Chance(0.4)) {
            const std::uint64_t v = Pick(kEdges);
            return Chance(0.5) ? v : 0 - v;
        }
        return Bits() >> Int(0, 63);
    }

    // Doubles: rounding ties, powers of ten, extremes, subnormals, inf, nan
    // and random bit patterns.
    double Double() {
        static const double kEdges[] = {0.0,
                                        1.0,
                                        0.5,
                                        0.125,
                                        0.375,
                                        2.5,
                                        3.5,
                                        1.5,
                                        0.05,
                                        0.15,
                                        0.25,
                                        9.5,
                                        99.5,
                                        999.5,
                                        0.0005,
                                        1e-5,
                                        1e-4,
                                        123.456,
                                        1e15,
                                        1e16,
                                        1e17,
                                        1e21,
                                        1e22,
                                        1e100,
                                        1e300,
                                        DBL_MAX,
                                        DBL_MIN,
                                        std::numeric_limits<double>::denorm_min(),
                                        2.2250738585072009e-308,
                                        1.0 / 3,
                                        2.0 / 3,
                                        100,
                                        1e6,
                                        999999.5,
                                        0.9999995,
                                        9.9999995,
                                        3.14159265358979,
                                        std::numeric_limits<double>::infinity(),
                                        std::numeric_limits<double>::quiet_NaN()};
        double v;
        switch (Int(0, 3)) {
            case 0:
                v = Pick(kEdges);
                break;
            case 1: {
                const std::uint64_t bits = Bits();
                std::memcpy(&v, &bits, sizeof v);
                break;
            }
            case 2:
                v = static_cast<double>(Int(0, 1 << 20)) / (1 << Int(0, 12));  // exact ties
                break;
            default:
                v = std::ldexp(static_cast<double>(Bits() >> 11), Int(-1100, 1000) - 53);
                break;
        }
        return Chance(0.5) ? -v : v;
    }

    std::string Word(int maxLength, const char* alphabet) {
        std::string s(static_cast<std::size_t>(Int(0, maxLength)), ' ');
        const int n = static_cast<int>(std::strlen(alphabet));
        for (char& c : s)
            c = alphabet[Int(0, n - 1)];
        return s;
    }

  private:
    std::mt19937_64 rng_;
};

// --- formatting -----------------------------------------------------------

struct FormatCase {
    std::string format;
    int stars[2] = {0, 0};
    int starCount = 0;
};

std::u16string Widen(const std::string& ascii) {
    return std::u16string(ascii.begin(), ascii.end());
}

template <class Text, class V>
Text VexFormat(const FormatCase& k, const Text& format, V v) {
    if (k.starCount == 0) return Format(format, v);
    if (k.starCount == 1) return Format(format, k.stars[0], v);
    return Format(format, k.stars[0], k.stars[1], v);
}

// Runs one case through snprintf and vex::Format, in narrow and in UTF-16
// text; any difference fails with the format and the value.
template <class C, class V>
void ExpectSameAsPrintf(const FormatCase& k, C c, V v, const std::string& valueText) {
    char buffer[2048];
    const char* f = k.format.c_str();
    int n = 0;
    if (k.starCount == 0) {
        n = std::snprintf(buffer, sizeof buffer, f, c);
    } else if (k.starCount == 1) {
        n = std::snprintf(buffer, sizeof buffer, f, k.stars[0], c);
    } else {
        n = std::snprintf(buffer, sizeof buffer, f, k.stars[0], k.stars[1], c);
    }
    ASSERT_TRUE(n >= 0 && n < static_cast<int>(sizeof buffer)) << k.format;
    const std::string expected(buffer, static_cast<std::size_t>(n));
    const std::string actual = VexFormat(k, k.format, v);
    if (actual != expected || VexFormat(k, Widen(k.format), v) != Widen(expected)) {
        ADD_FAILURE() << "format \"" << k.format << "\" stars " << k.stars[0] << "," << k.stars[1]
                      << " value " << valueText << "\n  printf: \"" << expected
                      << "\"\n  vex:    \"" << actual << "\"";
    }
}

FormatCase MakeCase(Generator& g, const std::string& sizePrefix, char conversion, bool numeric) {
    FormatCase k;
    std::string directive = "%";
    for (int i = g.Int(0, 3); i > 0; --i)
        directive += g.Pick({'-', '+', ' ', '#', '0'});
    if (g.Chance(0.15)) {
        directive += '*';
        k.stars[k.starCount++] = g.Int(-30, 30);
    } else if (g.Chance(0.6)) {
        directive += std::to_string(g.Int(1, 30));
    }
    if (g.Chance(0.15)) {
        directive += ".*";
        k.stars[k.starCount++] = g.Int(-3, numeric ? 40 : 12);
    } else if (g.Chance(0.6)) {
        directive += '.';
        if (!g.Chance(0.1)) directive += std::to_string(g.Int(0, numeric ? 40 : 12));
    }
    k.format =
        g.Pick({"", "<", "x="}) + directive + sizePrefix + conversion + g.Pick({"", ">", "%%"});
    return k;
}

template <class T>
std::string Text(T v) {
    return std::to_string(v);
}

// Where this C library's printf departs from the C standard, so that the
// cases concerned are not compared; vex follows the standard there.
struct PrintfQuirks {
    bool altGCarry;        // glibc: "%#g" of 999999.5 gives "1.e+06", not "1.00000e+06"
    bool unsignedSign;     // mingw-w64: "% u" of 1 gives " 1"
    bool nanSign;          // mingw-w64: negative NaN prints as "nan"
    bool nullPrecision;    // mingw-w64: "%.2s" of a null pointer gives "(n"
    bool powerOfTenWidth;  // mingw-w64: "%20.25g" of 1e16 ignores the width
    bool altOctalZero;     // mingw-w64: "%#.0o" of 0 gives "", not "0"

    static PrintfQuirks Detect() {
        PrintfQuirks q{};
        char b[64];
        // Formats held in strings, so that the compiler does not check them.
        const std::string altG = "%#g", spaceU = "% u", nanF = "%f", nullS = "%.2s",
                          wideG = "%20.25g", altO = "%#.0o";
        std::snprintf(b, sizeof b, altG.c_str(), 999999.5);
        q.altGCarry = std::strcmp(b, "1.e+06") == 0;
        std::snprintf(b, sizeof b, spaceU.c_str(), 1u);
        q.unsignedSign = b[0] == ' ';
        std::snprintf(b, sizeof b, nanF.c_str(), -std::numeric_limits<double>::quiet_NaN());
        q.nanSign = b[0] != '-';
        const char* null = nullptr;
        std::snprintf(b, sizeof b, nullS.c_str(), null);
        q.nullPrecision = b[0] != 0;
        q.powerOfTenWidth = std::snprintf(b, sizeof b, wideG.c_str(), 1e16) < 20;
        q.altOctalZero = std::snprintf(b, sizeof b, altO.c_str(), 0u) == 0;
        return q;
    }

    // Whether "%#g" rounding of v to the case's precision carries into a
    // new power of ten.
    bool AltGCarries(const FormatCase& k, double v) const {
        const std::string& f = k.format;
        if (!altGCarry || f.find_first_of("gG") == std::string::npos ||
            f.find('#') == std::string::npos || !std::isfinite(v) || v == 0) {
            return false;
        }
        int precision = 6;
        const std::size_t dot = f.find('.');
        if (dot != std::string::npos && f[dot + 1] == '*') {
            precision = k.stars[k.starCount - 1] < 0 ? 6 : k.stars[k.starCount - 1];
        } else if (dot != std::string::npos) {
            precision = std::atoi(f.c_str() + dot + 1);
        }
        char rounded[128];
        char exact[128];
        std::snprintf(rounded, sizeof rounded, "%.*e", precision == 0 ? 0 : precision - 1,
                      std::fabs(v));
        std::snprintf(exact, sizeof exact, "%.60e", std::fabs(v));
        return std::strcmp(std::strchr(rounded, 'e'), std::strchr(exact, 'e')) != 0;
    }

    bool Skips(const FormatCase& k, char conversion, double v) const {
        if (unsignedSign && std::strchr("uoxX", conversion) &&
            k.format.find_first_of(" +") != std::string::npos) {
            return true;
        }
        if (altOctalZero && conversion == 'o' && k.format.find('#') != std::string::npos)
            return true;
        if (nanSign && std::isnan(v) && std::signbit(v)) return true;
        const double a = std::fabs(v);
        if (powerOfTenWidth && std::strchr("gG", conversion) && a >= 1 && std::isfinite(a) &&
            a == std::pow(10.0, std::round(std::log10(a)))) {
            return true;
        }
        return AltGCarries(k, v);
    }
};

TEST(FormatOracle, IntegersMatchPrintf) {
    const PrintfQuirks quirks = PrintfQuirks::Detect();
    Generator g(20240611);
    for (int i = 0; i < 30000; ++i) {
        const char conversion = g.Pick({'d', 'i', 'u', 'o', 'x', 'X'});
        const bool isSigned = conversion == 'd' || conversion == 'i';
        const char* prefix = g.Pick({"", "", "hh", "h", "l", "ll", "j", "z", "t"});
        const FormatCase k = MakeCase(g, prefix, conversion, true);
        const std::uint64_t raw = g.Integer();
        const auto s = static_cast<long long>(raw);
        if (quirks.Skips(k, conversion, 0)) continue;
        const std::string p = prefix;
        // vex gets either the C type or the raw 64-bit value, which it
        // must cut to the prefix's width as C's argument conversion does.
        const bool passRaw = g.Chance(0.5);
        if (p == "l") {
            if (isSigned)
                ExpectSameAsPrintf(k, static_cast<long>(s), passRaw ? s : static_cast<long>(s),
                                   Text(s));
            else
                ExpectSameAsPrintf(k, static_cast<unsigned long>(raw),
                                   passRaw ? raw : static_cast<unsigned long>(raw), Text(raw));
        } else if (p == "ll" || p == "j") {
            if (isSigned)
                ExpectSameAsPrintf(k, s, s, Text(s));
            else
                ExpectSameAsPrintf(k, raw, raw, Text(raw));
        } else if (p == "z" || p == "t") {
            if (isSigned)
                ExpectSameAsPrintf(k, static_cast<std::ptrdiff_t>(s),
                                   passRaw ? s : static_cast<std::ptrdiff_t>(s), Text(s));
            else
                ExpectSameAsPrintf(k, static_cast<std::size_t>(raw),
                                   passRaw ? raw : static_cast<std::size_t>(raw), Text(raw));
        } else if (isSigned) {
            ExpectSameAsPrintf(k, static_cast<int>(s), passRaw ? s : static_cast<int>(s), Text(s));
        } else {
            ExpectSameAsPrintf(k, static_cast<unsigned>(raw),
                               passRaw ? raw : static_cast<unsigned>(raw), Text(raw));
        }
        if (HasFailure()) return;
    }
}

TEST(FormatOracle, FloatingPointMatchesPrintf) {
    const PrintfQuirks quirks = PrintfQuirks::Detect();
    Generator g(19700101);
    for (int i = 0; i < 40000; ++i) {
#if defined(__GLIBC__)
        const char conversion = g.Pick({'f', 'F', 'e', 'E', 'g', 'G', 'a', 'A'});
#else
        // mingw-w64 prints %a with another leading digit ("0xc.ccdp-7").
        const char conversion = g.Pick({'f', 'F', 'e', 'E', 'g', 'G'});
#endif
        // Values are doubles, so "%La" (whose x87 form glibc normalises
        // differently) is left out.
        const char* prefix =
            g.Pick({"", "", "l", conversion == 'a' || conversion == 'A' ? "" : "L"});
        const FormatCase k = MakeCase(g, prefix, conversion, true);
        const double v = g.Double();
        if (quirks.Skips(k, conversion, v)) continue;
        char text[40];
        std::snprintf(text, sizeof text, "%.17g", v);
        if (std::strcmp(prefix, "L") == 0) {
            ExpectSameAsPrintf(k, static_cast<long double>(v), v, text);
        } else {
            ExpectSameAsPrintf(k, v, v, text);
        }
        if (HasFailure()) return;
    }
}

TEST(FormatOracle, CharactersStringsAndPointersMatchPrintf) {
    const PrintfQuirks quirks = PrintfQuirks::Detect();
    Generator g(314159);
    for (int i = 0; i < 15000; ++i) {
        switch (g.Int(0, 2)) {
            case 0: {
                const FormatCase k = MakeCase(g, "", 'c', false);
                const int c = g.Int(1, 127);
                if (g.Chance(0.5)) {
                    ExpectSameAsPrintf(k, c, static_cast<char>(c), Text(c));
                } else {
                    ExpectSameAsPrintf(k, c, c, Text(c));
                }
                break;
            }
            case 1: {
                const FormatCase k = MakeCase(g, "", 's', false);
                const std::string s = g.Word(14, "abc XYZ-019_%");
                if (g.Chance(0.1)) {
                    const char* null = nullptr;
                    if (quirks.nullPrecision && k.format.find('.') != std::string::npos) break;
                    ExpectSameAsPrintf(k, null, null, "null");
                } else if (g.Chance(0.5)) {
                    ExpectSameAsPrintf(k, s.c_str(), s, s);
                } else {
                    ExpectSameAsPrintf(k, s.c_str(), s.c_str(), s);
                }
                break;
            }
            default: {
#if defined(__GLIBC__)
                // "%p" follows glibc's form ("0x..." and "(nil)") on every platform.
                const FormatCase k = MakeCase(g, "", 'p', true);
                const auto p = reinterpret_cast<const void*>(
                    static_cast<std::uintptr_t>(g.Chance(0.2) ? 0 : g.Bits() >> g.Int(0, 60)));
                ExpectSameAsPrintf(k, p, p, "pointer");
#endif
                break;
            }
        }
        if (HasFailure()) return;
    }
}

// --- scanning -----------------------------------------------------------

// Which of the C standard's reading rules this C library breaks: older glibc
// and mingw-w64 accept some fields that the standard calls matching
// failures, so those fields are not compared there.
struct LibcQuirks {
    bool hexPrefixAlone;      // "%x" of "0xg" gives 0
    bool emptyExponent;       // "%lf" of "1ex" gives 1
    bool floatHexAlone;       // "%lf" of "0x." gives 0, "%2lf" of "0x1" gives 0
    bool nanParenthesis;      // "%lf" stops after "nan" of "nan(1)"
    bool shortCharField;      // "%5c" of "ab" converts
    bool outOfRange;          // "%lf" of "1e999" does not give inf
    bool narrowSaturates;     // mingw-w64: "%u" of "4294967296" saturates at 32 bits
    bool longDoubleAsDouble;  // vex reads long double through double (libstdc++ on MinGW)

    static LibcQuirks Detect() {
        LibcQuirks q{};
        unsigned u = 0;
        double d = 0;
        int n = 0;
        char b[8];
        q.hexPrefixAlone = std::sscanf("0xg", "%x", &u) == 1;
        q.emptyExponent = std::sscanf("1ex", "%lf", &d) == 1;
        q.floatHexAlone = std::sscanf("0x.", "%lf", &d) == 1 || std::sscanf("0x1", "%2lf", &d) == 1;
        q.nanParenthesis = std::sscanf("nan(1)", "%lf%n", &d, &n) != 1 || n != 6;
        q.shortCharField = std::sscanf("ab", "%5c", b) != -1;
        q.outOfRange = std::sscanf("1e999", "%lf", &d) != 1 || !std::isinf(d);
        q.narrowSaturates = std::sscanf("4294967296", "%u", &u) == 1 && u == 0xFFFFFFFF;
        long double big = 0;
        q.longDoubleAsDouble = Scan("1e4000", "%Lf", &big) == 1 && std::isinf(big);
        return q;
    }
};

bool StartsWithNoCase(std::string_view s, std::string_view prefix) {
    if (s.size() < prefix.size()) return false;
    for (std::size_t i = 0; i < prefix.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(s[i])) != prefix[i]) return false;
    return true;
}

// Where the conversion starts reading: after the format's lead matched
// (empty when it does not match, so that the conversion is never reached).
std::string_view ConversionStart(std::string_view lead, std::string_view input) {
    auto skipSpace = [&] {
        while (!input.empty() && std::isspace(static_cast<unsigned char>(input[0])))
            input.remove_prefix(1);
    };
    for (std::size_t i = 0; i < lead.size(); ++i) {
        if (lead[i] == ' ') {
            skipSpace();
            continue;
        }
        if (lead[i] == '%') {
            skipSpace();  // "%%" skips white space like a conversion
            ++i;
        }
        if (input.empty() || input[0] != lead[i]) return {};
        input.remove_prefix(1);
    }
    return input;
}

// Whether the field (the input where the conversion starts, cut to the
// width) falls under one of the library's quirks.
bool UnderQuirk(const LibcQuirks& q, char conversion, const std::string& prefix, int width,
                std::string_view rest) {
    if (conversion == 'c') {
        return q.shortCharField && rest.size() < static_cast<std::size_t>(width < 1 ? 1 : width);
    }
    while (!rest.empty() && std::isspace(static_cast<unsigned char>(rest[0])))
        rest.remove_prefix(1);
    const std::string_view field =
        rest.substr(0, width > 0 ? static_cast<std::size_t>(width) : rest.size());
    std::string_view body = field;
    if (!body.empty() && (body[0] == '+' || body[0] == '-')) body.remove_prefix(1);
    const bool hex = StartsWithNoCase(body, "0x");
    const bool hexAlone =
        hex && (body.size() < 3 || !std::isxdigit(static_cast<unsigned char>(body[2])));
    if (q.hexPrefixAlone && hexAlone && std::strchr("xXi", conversion)) return true;
    if (std::strchr("diuoxX", conversion)) {
        const std::string digits(field);
        const int base = conversion == 'i'                          ? 0
                         : conversion == 'o'                        ? 8
                         : (conversion == 'x' || conversion == 'X') ? 16
                                                                    : 10;
        const bool wide = prefix == "ll" || prefix == "j" || prefix == "z";
        if (!q.narrowSaturates || wide) return false;
        if (conversion == 'd' || conversion == 'i') {
            const long long v = std::strtoll(digits.c_str(), nullptr, base);
            return v > INT32_MAX || v < INT32_MIN;
        }
        return std::strtoull(digits.c_str(), nullptr, base) > UINT32_MAX;
    }
    if (!std::strchr("feEgaA", conversion)) return false;
    if (q.floatHexAlone && hexAlone) return true;
    if (q.nanParenthesis && StartsWithNoCase(body, "nan(")) return true;
    if (q.emptyExponent && !StartsWithNoCase(body, "inf") && !StartsWithNoCase(body, "nan")) {
        for (std::size_t i = 0; i < body.size(); ++i) {
            if (std::tolower(static_cast<unsigned char>(body[i])) != (hex ? 'p' : 'e')) continue;
            std::size_t j = i + 1;
            if (j < body.size() && (body[j] == '+' || body[j] == '-')) ++j;
            if (j >= body.size() || !std::isdigit(static_cast<unsigned char>(body[j]))) return true;
        }
    }
    return q.outOfRange && field.find("400") != std::string_view::npos;
}

std::string ScanInput(Generator& g) {
    std::string s = g.Pick({"", "", " ", " \t", "\n"});
    switch (g.Int(0, 3)) {
        case 0:
        case 1: {
            s += g.Pick({"", "", "+", "-"});
            s += g.Pick({"", "", "0", "0x", "0X", "00"});
            s += g.Word(22, g.Pick({"0123456789", "0123456789abcdefABCDEF", "01234567", "019"}));
            if (g.Chance(0.3)) {
                s += '.';
                s += g.Word(6, "0123456789");
            }
            if (g.Chance(0.3))
                s += g.Pick(
                    {"e", "E", "e+", "e-", "e5", "E-12", "e+308", "e400", "e-400", "p3", "p-2"});
            break;
        }
        case 2:
            s += g.Pick({"inf", "INF", "infinity", "Infinity", "infin", "nan", "NAN", "nan(123)",
                         "nan()", "nan(x", "-inf", "+nan", "in", "na", "-", "+", "."});
            break;
        default:
            s += g.Word(20, "ab cdXY-09.%,[]^");
            break;
    }
    s += g.Pick({"", "", " ", "x", "g", ",5", "z", "9", "%"});
    return s;
}

// The C and vex targets of one case (vex reads narrow and UTF-16 text),
// all filled with the same bytes first.
template <class T>
struct Targets {
    T c;
    T v;
    T v16;
    Targets() {
        std::memset(&c, 0x5A, sizeof c);
        std::memset(&v, 0x5A, sizeof v);
        std::memset(&v16, 0x5A, sizeof v16);
    }
};

template <class T>
bool SameValue(const T& a, const T& b) {
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
        return a == b && std::signbit(a) == std::signbit(b);
    } else {
        return std::memcmp(&a, &b, sizeof a) == 0;
    }
}

// A suppressed conversion takes no target, so %n gets the first one.
template <class T>
void ExpectSameAsScanf(const std::string& input, const std::string& format,
                       const std::string& vexFormat, bool suppress, bool compareValue = true) {
    Targets<T> t;
    int nc = -7;
    int nv = -7;
    int nv16 = -7;
    const int rc = suppress ? std::sscanf(input.c_str(), format.c_str(), &nc)
                            : std::sscanf(input.c_str(), format.c_str(), &t.c, &nc);
    const int rv = suppress ? Scan(input, vexFormat, &nv) : Scan(input, vexFormat, &t.v, &nv);
    const std::u16string input16 = Widen(input);
    const std::u16string format16 = Widen(vexFormat);
    const int rv16 =
        suppress ? Scan(input16, format16, &nv16) : Scan(input16, format16, &t.v16, &nv16);
    const bool valuesDiffer =
        rc >= 1 && compareValue && (!SameValue(t.c, t.v) || !SameValue(t.c, t.v16));
    if (rc != rv || rc != rv16 || nc != nv || nc != nv16 || valuesDiffer) {
        ADD_FAILURE() << "input \"" << input << "\" format \"" << format << "\": scanf " << rc
                      << " n " << nc << ", vex " << rv << " n " << nv << ", UTF-16 " << rv16;
    }
}

void ExpectSameAsScanfText(const std::string& input, const std::string& format, bool suppress) {
    char c[64];
    char v[64];
    char16_t v16[64];
    std::memset(c, '#', sizeof c);
    std::memset(v, '#', sizeof v);
    std::fill(std::begin(v16), std::end(v16), u'#');
    int nc = -7;
    int nv = -7;
    int nv16 = -7;
    const int rc = suppress ? std::sscanf(input.c_str(), format.c_str(), &nc)
                            : std::sscanf(input.c_str(), format.c_str(), c, &nc);
    const int rv = suppress ? Scan(input, format, &nv) : Scan(input, format, v, &nv);
    const int rv16 = suppress ? Scan(Widen(input), Widen(format), &nv16)
                              : Scan(Widen(input), Widen(format), v16, &nv16);
    if (rc != rv || rc != rv16 || nc != nv || nc != nv16 || std::memcmp(c, v, sizeof c) != 0 ||
        Widen(std::string(c, sizeof c)) != std::u16string(v16, 64)) {
        ADD_FAILURE() << "input \"" << input << "\" format \"" << format << "\": scanf " << rc
                      << " n " << nc << " \"" << std::string(c, 8) << "\", vex " << rv << " n "
                      << nv << " \"" << std::string(v, 8) << "\", UTF-16 " << rv16;
    }
}

TEST(ScanOracle, ConversionsMatchScanf) {
    const LibcQuirks quirks = LibcQuirks::Detect();
    Generator g(27182818);
    int compared = 0;
    for (int i = 0; i < 40000; ++i) {
        const std::string lead = g.Pick({"", "", "", " ", "a", " a", "%%"});
        std::string input = ScanInput(g);
        if (lead == "a" || lead == " a" || lead == "%%") {
            // Mostly the literal the lead asks for, sometimes another one.
            const char* literal = g.Pick({"a", " a", "%", "  %"});
            if (g.Chance(0.85)) {
                literal = lead == "a"    ? "a"
                          : lead == " a" ? g.Pick({"a", " \ta"})
                                         : g.Pick({"%", " %"});
            }
            input = literal + input;
        }
        const char conversion =
            g.Pick({'d', 'i', 'u', 'o', 'x', 'X', 'f', 'e', 'g', 'a', 'E', 's', 'c', '['});
        const bool isInteger = std::strchr("diuoxX", conversion) != nullptr;
        const bool isText = std::strchr("sc[", conversion) != nullptr;
        const std::string prefix = isText      ? ""
                                   : isInteger ? g.Pick({"", "", "hh", "h", "l", "ll", "j", "z"})
                                               : g.Pick({"", "l", "L"});
        const int width = g.Chance(0.6) ? 0 : g.Int(1, 25);
        const bool suppress = g.Chance(0.1);
        if (UnderQuirk(quirks, conversion, prefix, width, ConversionStart(lead, input))) continue;
        ++compared;

        const std::string head =
            lead + "%" + (suppress ? "*" : "") + (width ? std::to_string(width) : "");
        if (isText) {
            const std::string set =
                g.Pick({"[a-c]", "[^ ]", "[]a]", "[^-0-9]", "[a-]", "[%.0-9x]"});
            // Inputs are short enough for the 64-byte buffers.
            ExpectSameAsScanfText(
                input, head + (conversion == '[' ? set : std::string(1, conversion)) + "%n",
                suppress);
        } else if (isInteger) {
            const bool isSigned = conversion == 'd' || conversion == 'i';
            const std::string f = head + prefix + conversion + "%n";
            // glibc reads "%I64d" as a width of 64; vex reads it as "%lld".
            const std::string vf =
                prefix == "ll" && g.Chance(0.3) ? head + "I64" + conversion + "%n" : f;
            if (prefix == "hh") {
                isSigned ? ExpectSameAsScanf<signed char>(input, f, vf, suppress)
                         : ExpectSameAsScanf<unsigned char>(input, f, vf, suppress);
            } else if (prefix == "h") {
                isSigned ? ExpectSameAsScanf<short>(input, f, vf, suppress)
                         : ExpectSameAsScanf<unsigned short>(input, f, vf, suppress);
            } else if (prefix == "l") {
                isSigned ? ExpectSameAsScanf<long>(input, f, vf, suppress)
                         : ExpectSameAsScanf<unsigned long>(input, f, vf, suppress);
            } else if (prefix == "ll" || prefix == "j") {
                isSigned ? ExpectSameAsScanf<long long>(input, f, vf, suppress)
                         : ExpectSameAsScanf<unsigned long long>(input, f, vf, suppress);
            } else if (prefix == "z") {
                isSigned ? ExpectSameAsScanf<std::ptrdiff_t>(input, f, vf, suppress)
                         : ExpectSameAsScanf<std::size_t>(input, f, vf, suppress);
            } else {
                isSigned ? ExpectSameAsScanf<int>(input, f, vf, suppress)
                         : ExpectSameAsScanf<unsigned>(input, f, vf, suppress);
            }
        } else {
            const std::string f = head + prefix + conversion + "%n";
            if (prefix == "") {
                ExpectSameAsScanf<float>(input, f, f, suppress);
            } else if (prefix == "l") {
                ExpectSameAsScanf<double>(input, f, f, suppress);
            } else {
                ExpectSameAsScanf<long double>(input, f, f, suppress, !quirks.longDoubleAsDouble);
            }
        }
        if (HasFailure()) return;
    }
    EXPECT_GT(compared, 30000);
}

}  // namespace
}  // namespace vex
