#include <base/framework/Format.h>

#include <base/framework/TextEncoding.h>

#include <array>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

namespace vex {
namespace {

using Kind = FormatArg::Kind;

// Widths and precisions are clamped to this, so that a format built from bad
// data cannot ask for gigabytes of padding.
constexpr int kMaxField = 1 << 20;

enum : unsigned { kLeft = 1, kPlus = 2, kSpace = 4, kAlt = 8, kZero = 16 };

// One conversion of the format: "%-08.3lf" has flags - and 0, width 8,
// precision 3, the bits of the l prefix and the letter f.
struct Field {
    unsigned flags = 0;
    int width = 0;
    int precision = -1;  // -1: none given
    int bits = 32;       // integer width chosen by the size prefix
    char conv = 0;       // the conversion letter
};

bool IsString(Kind k) {
    return k == Kind::Narrow || k == Kind::Utf8 || k == Kind::Utf16 || k == Kind::Utf32;
}

// The low `bits` bits of v as a signed or unsigned integer of that width.
long long TruncateSigned(unsigned long long v, int bits) {
    if (bits >= 64) return static_cast<long long>(v);
    const int shift = 64 - bits;
    return static_cast<long long>(v << shift) >> shift;
}
unsigned long long TruncateUnsigned(unsigned long long v, int bits) {
    return bits >= 64 ? v : v & ((1ull << bits) - 1);
}

// A floating value given to an integer conversion counts as the integer it
// truncates to, saturated at the limits of long long; NaN counts as 0.
long long DoubleToInteger(double d) {
    if (std::isnan(d)) return 0;
    if (d >= 9223372036854775808.0) return LLONG_MAX;
    if (d < -9223372036854775808.0) return LLONG_MIN;
    return static_cast<long long>(d);
}

// The 64 bits that an integer conversion formats; signed values are
// sign-extended, so any width can then be cut from them.
unsigned long long IntegerBits(const FormatArg& a) {
    switch (a.kind) {
        case Kind::Signed:
            return static_cast<unsigned long long>(a.i);
        case Kind::Unsigned:
            return a.u;
        case Kind::Floating:
            return static_cast<unsigned long long>(DoubleToInteger(a.d));
        default:
            return reinterpret_cast<std::uintptr_t>(a.p);
    }
}

double FloatingValue(const FormatArg& a) {
    switch (a.kind) {
        case Kind::Floating:
            return a.d;
        case Kind::Signed:
            return static_cast<double>(a.i);
        case Kind::Unsigned:
            return static_cast<double>(a.u);
        default:
            return static_cast<double>(reinterpret_cast<std::uintptr_t>(a.p));
    }
}

template <class Ch>
void AppendAscii(std::basic_string<Ch>& out, std::string_view text) {
    if constexpr (std::is_same_v<Ch, char>) {
        out.append(text);
    } else {
        const std::size_t old = out.size();
        out.resize(old + text.size());
        Ch* d = out.data() + old;
        for (char c : text)
            *d++ = static_cast<Ch>(static_cast<unsigned char>(c));
    }
}

// Pads text of the output width to the field width with spaces.
template <class Ch>
void AppendPadded(std::basic_string<Ch>& out, const Field& field, const Ch* text, std::size_t n) {
    const std::size_t width = static_cast<std::size_t>(field.width);
    const std::size_t pad = width > n ? width - n : 0;
    if (!(field.flags & kLeft)) out.append(pad, Ch(' '));
    out.append(text, n);
    if (field.flags & kLeft) out.append(pad, Ch(' '));
}

// Writes prefix (sign, "0x"), zeros and digits, padded to the field width:
// with spaces after them for '-', with more zeros after the prefix when
// zeroPad, else with spaces before them.
template <class Ch>
void AppendNumber(std::basic_string<Ch>& out, const Field& field, std::string_view prefix,
                  std::size_t zeros, std::string_view body, bool zeroPad) {
    const std::size_t length = prefix.size() + zeros + body.size();
    const std::size_t width = static_cast<std::size_t>(field.width);
    std::size_t pad = width > length ? width - length : 0;
    if (!(field.flags & kLeft)) {
        if (zeroPad) {
            zeros += pad;
        } else {
            out.append(pad, Ch(' '));
        }
        pad = 0;
    }
    AppendAscii(out, prefix);
    out.append(zeros, Ch('0'));
    AppendAscii(out, body);
    out.append(pad, Ch(' '));
}

char SignChar(bool negative, unsigned flags) {
    if (negative) return '-';
    if (flags & kPlus) return '+';
    if (flags & kSpace) return ' ';
    return 0;
}

// Writes the digits of v in base 8, 10 or 16 so that they end at end;
// returns where they begin. Faster than std::to_chars with a run-time base.
char* WriteDigits(char* end, unsigned long long v, int base, bool upper) {
    static constexpr auto kPairs = [] {
        std::array<char, 200> pairs{};
        for (int i = 0; i < 100; ++i) {
            pairs[static_cast<std::size_t>(2 * i)] = static_cast<char>('0' + i / 10);
            pairs[static_cast<std::size_t>(2 * i + 1)] = static_cast<char>('0' + i % 10);
        }
        return pairs;
    }();
    char* p = end;
    if (base == 10) {
        while (v > 0xFFFFFFFFu) {
            p -= 2;
            std::memcpy(p, &kPairs[2 * (v % 100)], 2);
            v /= 100;
        }
        // 32-bit division is much cheaper, and most values fit.
        auto w = static_cast<std::uint32_t>(v);
        while (w >= 100) {
            p -= 2;
            std::memcpy(p, &kPairs[2 * (w % 100)], 2);
            w /= 100;
        }
        if (w >= 10) {
            p -= 2;
            std::memcpy(p, &kPairs[2 * w], 2);
        } else {
            *--p = static_cast<char>('0' + w);
        }
    } else {
        const char* const hex = upper ? "0123456789ABCDEF" : "0123456789abcdef";
        const int shift = base == 16 ? 4 : 3;
        const unsigned long long mask = static_cast<unsigned long long>(base - 1);
        do {
            *--p = hex[v & mask];
            v >>= shift;
        } while (v != 0);
    }
    return p;
}

template <class Ch>
void FormatInteger(std::basic_string<Ch>& out, const Field& field, const FormatArg& arg) {
    const unsigned long long raw = IntegerBits(arg);
    unsigned long long magnitude = 0;
    char sign = 0;
    int base = 10;
    if (field.conv == 'd' || field.conv == 'i') {
        const long long v = TruncateSigned(raw, field.bits);
        magnitude =
            v < 0 ? 0ull - static_cast<unsigned long long>(v) : static_cast<unsigned long long>(v);
        sign = SignChar(v < 0, field.flags);
    } else {
        magnitude = TruncateUnsigned(raw, field.bits);
        base = field.conv == 'o' ? 8 : (field.conv == 'u' ? 10 : 16);
    }

    char buffer[24];
    char* const end = buffer + sizeof buffer;
    const char* digits = end;
    if (magnitude != 0 || field.precision != 0) {
        digits = WriteDigits(end, magnitude, base, field.conv == 'X');
    }
    const std::size_t count = static_cast<std::size_t>(end - digits);
    const std::size_t precision =
        field.precision < 0 ? 0 : static_cast<std::size_t>(field.precision);
    std::size_t zeros = precision > count ? precision - count : 0;

    char prefix[3];
    std::size_t prefixLength = 0;
    if (sign) prefix[prefixLength++] = sign;
    if (field.flags & kAlt) {
        if (base == 8 && zeros == 0 && (count == 0 || *digits != '0')) zeros = 1;
        if (base == 16 && magnitude != 0) {
            prefix[prefixLength++] = '0';
            prefix[prefixLength++] = field.conv;
        }
    }
    const bool zeroPad = (field.flags & kZero) && field.precision < 0;
    AppendNumber(out, field, std::string_view(prefix, prefixLength), zeros,
                 std::string_view(digits, count), zeroPad);
}

// Inserts a decimal point after the first digit when the text has none
// ("1e+00" -> "1.e+00"), as '#' asks for.
std::size_t ForcePoint(char* text, std::size_t n) {
    if (std::memchr(text, '.', n)) return n;
    std::size_t at = 1;
    while (at < n && text[at] >= '0' && text[at] <= '9')
        ++at;
    std::memmove(text + at + 1, text + at, n - at);
    text[at] = '.';
    return n + 1;
}

// The floating conversions f F e E g G a A. std::to_chars gives the exact
// digits that printf gives in the "C" locale; sign, '#' and padding are
// added here.
template <class Ch>
void FormatFloating(std::basic_string<Ch>& out, const Field& field, double value) {
    const char conv = field.conv;
    const bool upper = conv == 'F' || conv == 'E' || conv == 'G' || conv == 'A';
    const char lower = upper ? static_cast<char>(conv - 'A' + 'a') : conv;
    const bool alt = (field.flags & kAlt) != 0;
    char prefix[3];
    std::size_t prefixLength = 0;
    if (const char sign = SignChar(std::signbit(value), field.flags)) prefix[prefixLength++] = sign;

    if (!std::isfinite(value)) {
        // C pads inf and nan with spaces even when '0' is given.
        const char* text = std::isnan(value) ? (upper ? "NAN" : "nan") : (upper ? "INF" : "inf");
        AppendNumber(out, field, std::string_view(prefix, prefixLength), 0, text, false);
        return;
    }
    if (lower == 'a') {
        prefix[prefixLength++] = '0';
        prefix[prefixLength++] = upper ? 'X' : 'x';
    }

    const double magnitude = std::fabs(value);
    const int precision = field.precision;
    // Room for 309 integer digits of a fixed number, the fraction and '#'.
    const std::size_t need = 330 + static_cast<std::size_t>(precision < 0 ? 0 : precision);
    char stackBuffer[512];
    std::string heapBuffer;
    char* buffer = stackBuffer;
    if (need > sizeof stackBuffer) {
        heapBuffer.resize(need);
        buffer = heapBuffer.data();
    }
    char* const end = buffer + need - 1;  // one spare for ForcePoint
    std::size_t n = 0;
    using std::chars_format;
    switch (lower) {
        case 'f':
            n = std::to_chars(buffer, end, magnitude, chars_format::fixed,
                              precision < 0 ? 6 : precision)
                    .ptr -
                buffer;
            if (alt && precision == 0) buffer[n++] = '.';
            break;
        case 'e':
            n = std::to_chars(buffer, end, magnitude, chars_format::scientific,
                              precision < 0 ? 6 : precision)
                    .ptr -
                buffer;
            if (alt) n = ForcePoint(buffer, n);
            break;
        case 'g': {
            const int p = precision < 0 ? 6 : (precision == 0 ? 1 : precision);
            if (!alt) {
                n = std::to_chars(buffer, end, magnitude, chars_format::general, p).ptr - buffer;
                break;
            }
            // '#' keeps the trailing zeros that the general style strips, so
            // choose between the styles as C describes: by the exponent X of
            // the number rounded to p digits, fixed when p > X >= -4.
            n = std::to_chars(buffer, end, magnitude, chars_format::scientific, p - 1).ptr - buffer;
            const char* e = static_cast<const char*>(std::memchr(buffer, 'e', n));
            int exponent = 0;
            std::from_chars(e + (e[1] == '+' ? 2 : 1), buffer + n, exponent);
            if (exponent < p && exponent >= -4) {
                n = std::to_chars(buffer, end, magnitude, chars_format::fixed, p - 1 - exponent)
                        .ptr -
                    buffer;
            }
            n = ForcePoint(buffer, n);
            break;
        }
        default:  // 'a'
            n = (precision < 0
                     ? std::to_chars(buffer, end, magnitude, chars_format::hex)
                     : std::to_chars(buffer, end, magnitude, chars_format::hex, precision))
                    .ptr -
                buffer;
            if (alt) n = ForcePoint(buffer, n);
            break;
    }
    if (upper) {
        for (std::size_t i = 0; i < n; ++i)
            if (buffer[i] >= 'a' && buffer[i] <= 'z') buffer[i] = static_cast<char>(buffer[i] - 32);
    }
    AppendNumber(out, field, std::string_view(prefix, prefixLength), 0, std::string_view(buffer, n),
                 (field.flags & kZero) != 0);
}

// "%p" as glibc prints it: "0x" and lower-case hex digits, "(nil)" for null.
template <class Ch>
void FormatPointer(std::basic_string<Ch>& out, Field field, const FormatArg& arg) {
    const std::uintptr_t address = static_cast<std::uintptr_t>(
        IsString(arg.kind) || arg.kind == Kind::Pointer ? reinterpret_cast<std::uintptr_t>(arg.p)
                                                        : IntegerBits(arg));
    if (address == 0) {
        AppendNumber(out, field, {}, 0, "(nil)", false);
        return;
    }
    char prefix[3] = {0, '0', 'x'};
    const char sign = SignChar(false, field.flags);
    if (sign) prefix[0] = sign;
    char buffer[24];
    const char* const digits = WriteDigits(buffer + sizeof buffer, address, 16, false);
    const std::size_t count = static_cast<std::size_t>(buffer + sizeof buffer - digits);
    const std::size_t precision =
        field.precision < 0 ? 0 : static_cast<std::size_t>(field.precision);
    AppendNumber(out, field, std::string_view(sign ? prefix : prefix + 1, sign ? 3 : 2),
                 precision > count ? precision - count : 0, std::string_view(digits, count),
                 (field.flags & kZero) && field.precision < 0);
}

// Text of a string argument in the character width Ch, converted when the
// widths differ; view() is valid while the object lives.
template <class Ch>
class TextOf {
  public:
    explicit TextOf(const FormatArg& a) {
        const std::size_t n = a.length;
        if constexpr (std::is_same_v<Ch, char>) {
            switch (a.kind) {
                case Kind::Narrow:
                    view_ = std::string_view(static_cast<const char*>(a.p), n);
                    return;
                case Kind::Utf8:
                    if (GetActiveCodePage() == CodePage::Utf8) {
                        view_ = std::string_view(static_cast<const char*>(a.p), n);
                        return;
                    }
                    converted_ = Utf16ToAnsi(Utf8ToUtf16(Utf8View(a)));
                    break;
                case Kind::Utf16:
                    converted_ =
                        Utf16ToAnsi(std::u16string_view(static_cast<const char16_t*>(a.p), n));
                    break;
                default:
                    converted_ = Utf16ToAnsi(Utf32ToUtf16(Utf32View(a)));
                    break;
            }
        } else {
            switch (a.kind) {
                case Kind::Utf16:
                    view_ = std::u16string_view(static_cast<const char16_t*>(a.p), n);
                    return;
                case Kind::Narrow:
                    converted_ = AnsiToUtf16(std::string_view(static_cast<const char*>(a.p), n));
                    break;
                case Kind::Utf8:
                    converted_ = Utf8ToUtf16(Utf8View(a));
                    break;
                default:
                    converted_ = Utf32ToUtf16(Utf32View(a));
                    break;
            }
        }
        view_ = converted_;
    }
    std::basic_string_view<Ch> view() const { return view_; }

  private:
    static std::string_view Utf8View(const FormatArg& a) {
        return std::string_view(static_cast<const char*>(a.p), a.length);
    }
    static std::u32string_view Utf32View(const FormatArg& a) {
        // wchar_t text of 32-bit wchar_t platforms shares this kind.
        return std::u32string_view(static_cast<const char32_t*>(a.p), a.length);
    }

    std::basic_string<Ch> converted_;
    std::basic_string_view<Ch> view_;
};

template <class Ch>
void FormatString(std::basic_string<Ch>& out, Field field, const FormatArg& arg) {
    if (!IsString(arg.kind)) {
        // A number given to "%s" prints as its own conversion would print it.
        if (arg.kind == Kind::Pointer && arg.p == nullptr) {
            field.conv = 's';
        } else {
            field.precision = -1;
            if (arg.kind == Kind::Floating) {
                field.conv = 'g';
                FormatFloating(out, field, arg.d);
            } else if (arg.kind == Kind::Pointer) {
                FormatPointer(out, field, arg);
            } else {
                field.conv = arg.kind == Kind::Signed ? 'd' : 'u';
                field.bits = 64;
                FormatInteger(out, field, arg);
            }
            return;
        }
    }
    if (arg.p == nullptr) {
        // glibc prints "(null)", or nothing when the precision cuts it.
        const std::string_view text = field.precision < 0 || field.precision >= 6 ? "(null)" : "";
        AppendNumber(out, field, {}, 0, text, false);
        return;
    }
    const TextOf<Ch> text(arg);
    const std::basic_string_view<Ch> view = text.view();
    std::size_t n = view.size();
    if (field.precision >= 0 && static_cast<std::size_t>(field.precision) < n) {
        n = static_cast<std::size_t>(field.precision);
    }
    AppendPadded(out, field, view.data(), n);
}

// "%c": in narrow text a char value is that byte and a larger character
// code (a char16_t, char32_t or int) is encoded in the active code page; in
// UTF-16 text a char value is decoded from the active code page.
template <class Ch>
void FormatChar(std::basic_string<Ch>& out, const Field& field, const FormatArg& arg) {
    const long long code = static_cast<long long>(IntegerBits(arg));
    std::basic_string<Ch> encoded;
    if constexpr (std::is_same_v<Ch, char>) {
        if (code >= 0x80 && code <= 0x10FFFF) {
            std::u16string utf16;
            if (code >= 0x10000) {
                utf16 += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
                utf16 += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
            } else {
                utf16 += static_cast<char16_t>(code);
            }
            encoded = Utf16ToAnsi(utf16);
        } else {
            encoded = static_cast<char>(code);  // C's conversion to unsigned char
        }
    } else {
        if (code >= -128 && code < 0) {
            const char byte = static_cast<char>(code);
            encoded = AnsiToUtf16(std::string_view(&byte, 1));
        } else if (code >= 0 && code < 0x10000) {
            encoded = static_cast<char16_t>(code);
        } else if (code >= 0x10000 && code <= 0x10FFFF) {
            encoded += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
            encoded += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
        } else {
            encoded = kReplacementChar;
        }
    }
    AppendPadded(out, field, encoded.data(), encoded.size());
}

bool IsDigit(unsigned c) {
    return c >= '0' && c <= '9';
}

// The conversion letters, by character code.
constexpr auto kIsConversion = [] {
    std::array<bool, 128> table{};
    for (char c : std::string_view("diuoxXcCsSfFeEgGaApn%"))
        table[static_cast<unsigned char>(c)] = true;
    return table;
}();

// Reads a decimal field width or precision, clamped to kMaxField.
template <class Ch>
int ReadNumber(const Ch*& p, const Ch* end) {
    int n = 0;
    for (; p < end && IsDigit(static_cast<unsigned>(*p)); ++p) {
        n = n * 10 + static_cast<int>(*p - '0');
        if (n > kMaxField) n = kMaxField;
    }
    return n;
}

// Reads the size prefix into the integer width it selects.
template <class Ch>
int ReadSize(const Ch*& p, const Ch* end) {
    auto at = [&](std::size_t i) { return p + i < end ? static_cast<unsigned>(p[i]) : 0u; };
    switch (at(0)) {
        case 'h':
            if (at(1) == 'h') {
                p += 2;
                return 8;
            }
            ++p;
            return 16;
        case 'l':
            if (at(1) == 'l') {
                p += 2;
                return 64;
            }
            ++p;
            return static_cast<int>(sizeof(long) * CHAR_BIT);
        case 'L':
        case 'q':
        case 'j':
            ++p;
            return 64;
        case 'z':
        case 'Z':
            ++p;
            return static_cast<int>(sizeof(std::size_t) * CHAR_BIT);
        case 't':
            ++p;
            return static_cast<int>(sizeof(std::ptrdiff_t) * CHAR_BIT);
        case 'w':  // Windows' wide-text mark ("%ws"); text converts by its type
            ++p;
            return 32;
        case 'I':  // the Windows prefixes I64, I32 and I (pointer-sized)
            if (at(1) == '6' && at(2) == '4') {
                p += 3;
                return 64;
            }
            if (at(1) == '3' && at(2) == '2') {
                p += 3;
                return 32;
            }
            ++p;
            return static_cast<int>(sizeof(std::size_t) * CHAR_BIT);
        default:
            return 32;
    }
}

template <class Ch>
void FormatImpl(std::basic_string<Ch>& out, std::basic_string_view<Ch> format,
                std::span<const FormatArg> args) {
    const Ch* p = format.data();
    const Ch* const end = p + format.size();
    std::size_t next = 0;  // index of the next unused argument
    while (p < end) {
        const Ch* percent =
            std::char_traits<Ch>::find(p, static_cast<std::size_t>(end - p), Ch('%'));
        if (!percent) percent = end;
        out.append(p, static_cast<std::size_t>(percent - p));
        if (percent == end) break;
        p = percent + 1;

        Field field;
        for (bool more = true; more && p < end;) {
            switch (static_cast<unsigned>(*p)) {
                case '-':
                    field.flags |= kLeft;
                    break;
                case '+':
                    field.flags |= kPlus;
                    break;
                case ' ':
                    field.flags |= kSpace;
                    break;
                case '#':
                    field.flags |= kAlt;
                    break;
                case '0':
                    field.flags |= kZero;
                    break;
                case '\'':  // digit grouping: the "C" locale has none
                    break;
                default:
                    more = false;
                    continue;
            }
            ++p;
        }
        bool widthArg = false;
        bool precisionArg = false;
        if (p < end && *p == Ch('*')) {
            widthArg = true;
            ++p;
        } else {
            field.width = ReadNumber(p, end);
        }
        if (p < end && *p == Ch('.')) {
            ++p;
            if (p < end && *p == Ch('*')) {
                precisionArg = true;
                ++p;
            } else {
                field.precision = ReadNumber(p, end);
            }
        }
        field.bits = ReadSize(p, end);
        const unsigned conv = p < end ? static_cast<unsigned>(*p) : 0u;
        if (conv >= kIsConversion.size() || !kIsConversion[conv]) {
            // Not a conversion: the text stands as written.
            out.append(percent, static_cast<std::size_t>(p - percent));
            continue;
        }
        ++p;
        field.conv = static_cast<char>(conv);
        if (conv == '%') {
            out.push_back(Ch('%'));
            continue;
        }
        const std::size_t needed = (widthArg ? 1u : 0u) + (precisionArg ? 1u : 0u) + 1u;
        if (args.size() - next < needed) {
            out.append(percent, static_cast<std::size_t>(p - percent));
            next = args.size();
            continue;
        }
        if (widthArg) {
            long long w = TruncateSigned(IntegerBits(args[next++]), 32);
            if (w < 0) {
                field.flags |= kLeft;
                w = -w;
            }
            field.width = static_cast<int>(w > kMaxField ? kMaxField : w);
        }
        if (precisionArg) {
            const long long v = TruncateSigned(IntegerBits(args[next++]), 32);
            field.precision = v < 0 ? -1 : static_cast<int>(v > kMaxField ? kMaxField : v);
        }
        if (field.flags & kLeft) field.flags &= ~kZero;
        if (field.flags & kPlus) field.flags &= ~kSpace;
        const FormatArg& arg = args[next++];

        switch (field.conv) {
            case 's':
            case 'S':
                FormatString(out, field, arg);
                break;
            case 'p':
                FormatPointer(out, field, arg);
                break;
            case 'n':  // writing through arguments is not supported; nothing is printed
                break;
            default:
                if (IsString(arg.kind)) {
                    // Text given to a numeric conversion prints as text.
                    field.precision = -1;
                    FormatString(out, field, arg);
                } else if (field.conv == 'c' || field.conv == 'C') {
                    FormatChar(out, field, arg);
                } else if (field.conv == 'd' || field.conv == 'i' || field.conv == 'u' ||
                           field.conv == 'o' || field.conv == 'x' || field.conv == 'X') {
                    FormatInteger(out, field, arg);
                } else {
                    FormatFloating(out, field, FloatingValue(arg));
                }
                break;
        }
    }
}

}  // namespace

void FormatAppend(std::string& out, std::string_view format, std::span<const FormatArg> args) {
    FormatImpl(out, format, args);
}

void FormatAppend(std::u16string& out, std::u16string_view format,
                  std::span<const FormatArg> args) {
    FormatImpl(out, format, args);
}

}  // namespace vex
