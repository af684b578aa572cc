#include <base/framework/Scan.h>

#include <base/framework/TextEncoding.h>

#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

// The scanner reads one character at a time with one character of push-back,
// as the C library's scanf does, so that what a field consumes (and so %n
// and the count) matches it exactly. The rules are documented in Scan.h.

namespace vex {
namespace {

using TargetKind = ScanArg::Kind;

constexpr int kEof = -1;

bool IsSpace(int c) {
    return c >= 0 && IsSpaceChar(static_cast<char32_t>(c));
}
bool IsDigit(int c) {
    return c >= '0' && c <= '9';
}
int ToLower(int c) {
    return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c;
}
bool IsHexDigit(int c) {
    return IsDigit(c) || (ToLower(c) >= 'a' && ToLower(c) <= 'f');
}
bool IsAlnum(int c) {
    return IsDigit(c) || (ToLower(c) >= 'a' && ToLower(c) <= 'z');
}
int DigitValue(int c) {
    if (IsDigit(c)) return c - '0';
    const int l = ToLower(c);
    return l >= 'a' && l <= 'z' ? l - 'a' + 10 : 99;
}

bool IsIntegerTarget(TargetKind k) {
    return k <= TargetKind::UInt64;
}

template <class T>
void Put(const ScanArg& t, T value) {
    // memcpy, because an Int64 target may be a long and an Int8 one a char.
    std::memcpy(t.target, &value, sizeof value);
}

// Stores the bits of an integer result in the target's own type; a signed
// result converts to floating targets as a signed value.
bool StoreInteger(const ScanArg& t, unsigned long long bits, bool isSigned) {
    const auto s = static_cast<long long>(bits);
    switch (t.kind) {
        case TargetKind::Int8:
            Put(t, static_cast<std::int8_t>(bits));
            return true;
        case TargetKind::Int16:
            Put(t, static_cast<std::int16_t>(bits));
            return true;
        case TargetKind::Int32:
            Put(t, static_cast<std::int32_t>(bits));
            return true;
        case TargetKind::Int64:
            Put(t, static_cast<std::int64_t>(bits));
            return true;
        case TargetKind::UInt8:
            Put(t, static_cast<std::uint8_t>(bits));
            return true;
        case TargetKind::UInt16:
            Put(t, static_cast<std::uint16_t>(bits));
            return true;
        case TargetKind::UInt32:
            Put(t, static_cast<std::uint32_t>(bits));
            return true;
        case TargetKind::UInt64:
            Put(t, static_cast<std::uint64_t>(bits));
            return true;
        case TargetKind::Float:
            Put(t, isSigned ? static_cast<float>(s) : static_cast<float>(bits));
            return true;
        case TargetKind::Double:
            Put(t, isSigned ? static_cast<double>(s) : static_cast<double>(bits));
            return true;
        case TargetKind::LongDouble:
            Put(t, isSigned ? static_cast<long double>(s) : static_cast<long double>(bits));
            return true;
        default:
            return false;
    }
}

// The integer a floating value truncates to, saturated to the target's range.
template <class T>
T SaturatingCast(long double v) {
    if (std::isnan(v)) return 0;
    if (v <= static_cast<long double>(std::numeric_limits<T>::min())) {
        return std::numeric_limits<T>::min();
    }
    if (v >= static_cast<long double>(std::numeric_limits<T>::max())) {
        return std::numeric_limits<T>::max();
    }
    return static_cast<T>(v);
}

bool StoreFloatAsInteger(const ScanArg& t, long double v) {
    switch (t.kind) {
        case TargetKind::Int8:
            return StoreInteger(t, static_cast<unsigned long long>(SaturatingCast<std::int8_t>(v)),
                                true);
        case TargetKind::Int16:
            return StoreInteger(t, static_cast<unsigned long long>(SaturatingCast<std::int16_t>(v)),
                                true);
        case TargetKind::Int32:
            return StoreInteger(t, static_cast<unsigned long long>(SaturatingCast<std::int32_t>(v)),
                                true);
        case TargetKind::Int64:
            return StoreInteger(t, static_cast<unsigned long long>(SaturatingCast<std::int64_t>(v)),
                                true);
        case TargetKind::UInt8:
            return StoreInteger(t, SaturatingCast<std::uint8_t>(v), false);
        case TargetKind::UInt16:
            return StoreInteger(t, SaturatingCast<std::uint16_t>(v), false);
        case TargetKind::UInt32:
            return StoreInteger(t, SaturatingCast<std::uint32_t>(v), false);
        case TargetKind::UInt64:
            return StoreInteger(t, SaturatingCast<std::uint64_t>(v), false);
        default:
            return false;
    }
}

// Whether a number that from_chars found out of range overflowed (rather
// than underflowed): its leading digit stands at or above the units place.
// text is the number without sign and without "0x".
bool Overflowed(std::string_view text) {
    long long position = 0;  // place of the leading non-zero digit, 0 = units
    bool found = false;
    bool fraction = false;
    long long integerDigits = 0;
    std::size_t i = 0;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '.') {
            fraction = true;
        } else if (c == 'e' || c == 'E' || c == 'p' || c == 'P') {
            break;
        } else if (!fraction) {
            if (found || c != '0') {
                found = true;
                ++integerDigits;
            }
        } else {
            --position;
            if (c != '0') {
                found = true;
                break;
            }
        }
    }
    if (integerDigits > 0) position = integerDigits - 1;
    while (i < text.size() && ToLower(text[i]) != 'e' && ToLower(text[i]) != 'p')
        ++i;
    long long exponent = 0;
    if (i < text.size()) {
        ++i;
        const bool negative = i < text.size() && text[i] == '-';
        if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
        for (; i < text.size() && IsDigit(text[i]); ++i) {
            if (exponent < 1000000000) exponent = exponent * 10 + (text[i] - '0');
        }
        if (negative) exponent = -exponent;
    }
    return position + exponent >= 0;
}

// Converts a float field (sign, "0x" and all, as the scanner accepted it).
template <class T>
bool ConvertFloat(std::string_view field, T& value) {
    bool negative = false;
    if (!field.empty() && (field[0] == '-' || field[0] == '+')) {
        negative = field[0] == '-';
        field.remove_prefix(1);
    }
    auto format = std::chars_format::general;
    if (field.size() > 1 && field[0] == '0' && ToLower(field[1]) == 'x') {
        format = std::chars_format::hex;
        field.remove_prefix(2);
    }
    const auto [ptr, ec] =
        std::from_chars(field.data(), field.data() + field.size(), value, format);
    if (ptr == field.data()) return false;
    if (ec == std::errc::result_out_of_range) {
        value = Overflowed(field) ? std::numeric_limits<T>::infinity() : T(0);
    }
    if (negative) value = -value;
    return true;
}

template <class Ch>
class Scanner {
  public:
    using View = std::basic_string_view<Ch>;

    Scanner(View text, View format, std::span<const ScanArg> targets)
        : text_(text), format_(format), targets_(targets) {}

    int Run();

  private:
    enum class Step { Next, Stop, InputFailure };

    static int Code(Ch c) { return static_cast<int>(static_cast<std::make_unsigned_t<Ch>>(c)); }

    // The next input character, or kEof at the end of the text.
    int Get() { return c_ = pos_ < text_.size() ? Code(text_[pos_++]) : kEof; }
    // Puts back the character c that the last Get returned.
    void Unget(int c) {
        if (c != kEof) --pos_;
    }
    int FormatAt(std::size_t i) const { return i < format_.size() ? Code(format_[i]) : kEof; }

    Step Integer(int base, bool isSigned, int bits, const ScanArg* target);
    Step Floating(const ScanArg* target);
    Step Text(int conversion, const ScanArg* target);
    bool InSet(int c) const;
    bool StoreText(const ScanArg& t, View run, bool terminate, bool single) const;

    View text_;
    View format_;
    std::span<const ScanArg> targets_;
    std::size_t pos_ = 0;                    // characters read, for %n
    std::size_t fi_ = 0;                     // position in the format
    std::size_t next_ = 0;                   // next unused target
    int c_ = 0;                              // the character last read
    int width_ = -1;                         // field width left, -1 for none
    std::size_t setBegin_ = 0, setEnd_ = 0;  // the members of a %[ set in the format
    bool negated_ = false;                   // %[^...]
};

template <class Ch>
int Scanner<Ch>::Run() {
    int done = 0;
    bool skipSpace = false;  // white space in the format, matched lazily
    while (fi_ < format_.size()) {
        const int fc = Code(format_[fi_++]);
        if (fc != '%') {
            if (IsSpace(fc)) {
                skipSpace = true;
                continue;
            }
            int c = Get();
            if (c == kEof) return done == 0 ? -1 : done;
            if (skipSpace) {
                while (IsSpace(c)) {
                    if ((c = Get()) == kEof) return done == 0 ? -1 : done;
                }
                skipSpace = false;
            }
            if (c != fc) {
                Unget(c);
                return done;
            }
            continue;
        }

        bool suppress = false;
        while (FormatAt(fi_) == '*' || FormatAt(fi_) == '\'') {
            suppress |= FormatAt(fi_) == '*';
            ++fi_;
        }
        long long width = 0;
        for (; IsDigit(FormatAt(fi_)); ++fi_) {
            width = width * 10 + (FormatAt(fi_) - '0');
            if (width > INT_MAX) width = INT_MAX;
        }
        width_ = width == 0 ? -1 : static_cast<int>(width);

        int bits = 32;
        switch (FormatAt(fi_)) {
            case 'h':
                bits = FormatAt(fi_ + 1) == 'h' ? 8 : 16;
                fi_ += bits == 8 ? 2 : 1;
                break;
            case 'l':
                bits = FormatAt(fi_ + 1) == 'l' ? 64 : static_cast<int>(sizeof(long) * CHAR_BIT);
                fi_ += FormatAt(fi_ + 1) == 'l' ? 2 : 1;
                break;
            case 'L':
            case 'q':
            case 'j':
                bits = 64;
                ++fi_;
                break;
            case 'z':
            case 'Z':
            case 't':
                bits = static_cast<int>(sizeof(std::size_t) * CHAR_BIT);
                ++fi_;
                break;
            case 'w':  // Windows' wide-text mark ("%ws"); the target decides
                ++fi_;
                break;
            case 'I':  // the Windows prefixes I64, I32 and I (pointer-sized)
                if (FormatAt(fi_ + 1) == '6' && FormatAt(fi_ + 2) == '4') {
                    bits = 64;
                    fi_ += 3;
                } else if (FormatAt(fi_ + 1) == '3' && FormatAt(fi_ + 2) == '2') {
                    fi_ += 3;
                } else {
                    bits = static_cast<int>(sizeof(std::size_t) * CHAR_BIT);
                    ++fi_;
                }
                break;
            default:
                break;
        }
        if (fi_ >= format_.size()) return done;
        const int conversion = Code(format_[fi_++]);

        // Every conversion but %c, %[ and %n skips white space first.
        if (skipSpace ||
            (conversion != '[' && conversion != 'c' && conversion != 'C' && conversion != 'n')) {
            int c;
            while (IsSpace(c = Get())) {
            }
            Unget(c);
            skipSpace = false;
        }

        if (conversion == '[') {
            negated_ = FormatAt(fi_) == '^';
            if (negated_) ++fi_;
            setBegin_ = fi_;
            if (FormatAt(fi_) == ']' || FormatAt(fi_) == '-') ++fi_;  // a member, not the end
            while (fi_ < format_.size() && FormatAt(fi_) != ']')
                ++fi_;
            if (fi_ >= format_.size()) return done;
            setEnd_ = fi_++;
        }

        const bool assigns = !suppress && conversion != '%';
        const ScanArg* target = nullptr;
        if (assigns) {
            if (next_ >= targets_.size()) return done;
            target = &targets_[next_++];
        }

        Step step = Step::Next;
        switch (conversion) {
            case '%': {
                const int c = Get();
                if (c == kEof) return done == 0 ? -1 : done;
                if (c != '%') {
                    Unget(c);
                    return done;
                }
                continue;
            }
            case 'n':
                if (target && !StoreInteger(*target, pos_, true)) return done;
                continue;
            case 'd':
                step = Integer(10, true, bits, target);
                break;
            case 'i':
                step = Integer(0, true, bits, target);
                break;
            case 'u':
                step = Integer(10, false, bits, target);
                break;
            case 'o':
                step = Integer(8, false, bits, target);
                break;
            case 'x':
            case 'X':
                step = Integer(16, false, bits, target);
                break;
            case 'p':
                step = Integer(16, false, static_cast<int>(sizeof(void*) * CHAR_BIT), target);
                break;
            case 'e':
            case 'E':
            case 'f':
            case 'F':
            case 'g':
            case 'G':
            case 'a':
            case 'A':
                step = Floating(target);
                break;
            case 'c':
            case 'C':
            case 's':
            case 'S':
            case '[':
                step = Text(conversion, target);
                break;
            default:
                return done;
        }
        if (step == Step::InputFailure) return done == 0 ? -1 : done;
        if (step == Step::Stop) return done;
        if (target) ++done;
    }
    return done;
}

template <class Ch>
typename Scanner<Ch>::Step Scanner<Ch>::Integer(int base, bool isSigned, int bits,
                                                const ScanArg* target) {
    int& width = width_;
    int c = Get();
    if (c == kEof) return Step::InputFailure;
    bool negative = false;
    if (c == '-' || c == '+') {
        negative = c == '-';
        if (width > 0) --width;
        c = Get();
    }
    bool digits = false;
    if (width != 0 && c == '0') {
        if (width > 0) --width;
        c = Get();
        if (width != 0 && ToLower(c) == 'x' && (base == 0 || base == 16)) {
            base = 16;
            if (width > 0) --width;
            if (width == 0) return Step::Stop;  // "0x" filled the field
            c = Get();
        } else {
            if (base == 0) base = 8;
            digits = true;
        }
    }
    if (base == 0) base = 10;

    unsigned long long magnitude = 0;
    bool overflow = false;
    for (; c != kEof && width != 0; c = Get()) {
        const int d = DigitValue(c);
        if (d >= base) break;
        const auto b = static_cast<unsigned long long>(base);
        if (magnitude > (ULLONG_MAX - static_cast<unsigned>(d)) / b) overflow = true;
        magnitude = magnitude * b + static_cast<unsigned>(d);
        digits = true;
        if (width > 0) --width;
    }
    Unget(c);
    if (!digits) return Step::Stop;
    if (!target) return Step::Next;

    unsigned long long value;
    if (isSigned) {
        // strtoll: saturate at the limits of long long.
        constexpr unsigned long long kMinMagnitude = 1ull << 63;
        if (negative) {
            value = overflow || magnitude >= kMinMagnitude ? kMinMagnitude : 0ull - magnitude;
        } else {
            value = overflow || magnitude >= kMinMagnitude ? kMinMagnitude - 1 : magnitude;
        }
        if (bits < 64) {
            const int shift = 64 - bits;
            value =
                static_cast<unsigned long long>(static_cast<long long>(value << shift) >> shift);
        }
    } else {
        // strtoull: saturate, and negate modulo 2^64 after a '-'.
        value = overflow ? ULLONG_MAX : (negative ? 0ull - magnitude : magnitude);
        if (bits < 64) value &= (1ull << bits) - 1;
    }
    return StoreInteger(*target, value, isSigned) ? Step::Next : Step::Stop;
}

template <class Ch>
typename Scanner<Ch>::Step Scanner<Ch>::Floating(const ScanArg* target) {
    int& width = width_;
    int c = Get();
    if (width > 0) --width;
    if (c == kEof) return Step::InputFailure;
    const std::size_t start = pos_ - 1;

    // Reads the rest of a word ("an" of "nan"), case-insensitively.
    auto expect = [&](const char* rest) {
        for (; *rest; ++rest) {
            if (width == 0 || Get() == kEof || ToLower(c_) != *rest) return false;
            if (width > 0) --width;
        }
        return true;
    };

    if (c == '-' || c == '+') {
        if (width == 0 || Get() == kEof) return Step::Stop;
        c = c_;
        if (width > 0) --width;
    }
    bool special = false;
    if (ToLower(c) == 'n') {
        if (!expect("an")) return Step::Stop;
        // "nan(chars)" is one field; an unclosed one is a matching failure.
        if (width != 0 && Get() != kEof) {
            if (c_ == '(') {
                if (width > 0) --width;
                do {
                    if (width == 0 || Get() == kEof) return Step::Stop;
                    if (!IsAlnum(c_) && c_ != '_' && c_ != ')') return Step::Stop;
                    if (width > 0) --width;
                } while (c_ != ')');
            } else {
                Unget(c_);
            }
        }
        special = true;
    } else if (ToLower(c) == 'i') {
        if (!expect("nf")) return Step::Stop;
        if (width != 0 && Get() != kEof) {
            if (ToLower(c_) == 'i') {
                if (width > 0) --width;
                if (!expect("nity")) return Step::Stop;
            } else {
                Unget(c_);
            }
        }
        special = true;
    }

    if (!special) {
        int exponentChar = 'e';
        bool hex = false;
        bool gotDigit = false;
        bool gotDot = false;
        bool gotExponent = false;
        bool afterExponent = false;  // the last character taken was the exponent letter
        if (width != 0 && c == '0') {
            c = Get();
            if (width > 0) --width;
            if (ToLower(c) == 'x') {
                if (width == 0) return Step::Stop;  // "0x" filled the field
                hex = true;
                exponentChar = 'p';
                c = Get();
                if (width > 0) --width;
            } else {
                gotDigit = true;
            }
        }
        for (;;) {
            const bool wasAfterExponent = afterExponent;
            afterExponent = false;
            if (IsDigit(c) || (hex && !gotExponent && IsHexDigit(c))) {
                gotDigit = true;
            } else if (wasAfterExponent && (c == '-' || c == '+')) {
                // the exponent's sign
            } else if (gotDigit && !gotExponent && ToLower(c) == exponentChar) {
                gotExponent = gotDot = afterExponent = true;
                gotDigit = false;  // the exponent needs digits of its own
            } else if (!gotDot && c == '.') {
                gotDot = true;
            } else {
                Unget(c);
                break;
            }
            if (width == 0 || Get() == kEof) break;
            c = c_;
            if (width > 0) --width;
        }
        if (!gotDigit) return Step::Stop;
    }
    if (!target) return Step::Next;

    // The field holds ASCII only: narrow it for from_chars.
    const View field = text_.substr(start, pos_ - start);
    std::string narrowCopy;
    std::string_view narrow;
    if constexpr (std::is_same_v<Ch, char>) {
        narrow = field;
    } else {
        narrowCopy.assign(field.size(), '\0');
        for (std::size_t i = 0; i < field.size(); ++i)
            narrowCopy[i] = static_cast<char>(field[i]);
        narrow = narrowCopy;
    }
    switch (target->kind) {
        case TargetKind::Float: {
            float v = 0;
            if (!ConvertFloat(narrow, v)) return Step::Stop;
            Put(*target, v);
            return Step::Next;
        }
        case TargetKind::LongDouble: {
            long double v = 0;
            if (!ConvertFloat(narrow, v)) return Step::Stop;
            Put(*target, v);
            return Step::Next;
        }
        default: {
            double v = 0;
            if (!ConvertFloat(narrow, v)) return Step::Stop;
            if (target->kind == TargetKind::Double) {
                Put(*target, v);
                return Step::Next;
            }
            return StoreFloatAsInteger(*target, v) ? Step::Next : Step::Stop;
        }
    }
}

// Membership in the %[ set, read as glibc reads it: a ']' or '-' first is a
// member; "a-z" is a range when its ends are in order, else three members.
template <class Ch>
bool Scanner<Ch>::InSet(int c) const {
    for (std::size_t k = setBegin_; k < setEnd_; ++k) {
        const int fc = Code(format_[k]);
        if (fc == '-' && k > setBegin_ && k + 1 < setEnd_ &&
            Code(format_[k - 1]) <= Code(format_[k + 1])) {
            if (c >= Code(format_[k - 1]) && c < Code(format_[k + 1])) return true;
        } else if (fc == c) {
            return true;
        }
    }
    return false;
}

template <class Ch>
typename Scanner<Ch>::Step Scanner<Ch>::Text(int conversion, const ScanArg* target) {
    int& width = width_;
    const bool isChar = conversion == 'c' || conversion == 'C';
    const bool isSet = conversion == '[';
    if (isChar && width < 0) width = 1;
    if (isSet && width < 0) width = INT_MAX;
    int c = Get();
    if (c == kEof) return Step::InputFailure;
    const std::size_t start = pos_ - 1;
    if (isChar) {
        while (--width > 0 && Get() != kEof) {
        }
        if (width > 0) return Step::InputFailure;  // the text ended inside the field
    } else if (isSet) {
        do {
            if (InSet(c) == negated_) {
                Unget(c);
                break;
            }
        } while (--width > 0 && (c = Get()) != kEof);
        if (pos_ == start) return Step::Stop;
    } else {
        do {
            if (IsSpace(c)) {
                Unget(c);
                break;
            }
        } while ((width <= 0 || --width > 0) && (c = Get()) != kEof);
    }
    if (!target) return Step::Next;
    return StoreText(*target, text_.substr(start, pos_ - start), !isChar, isChar) ? Step::Next
                                                                                  : Step::Stop;
}

// Copies what fits of text into a buffer of capacity elements, followed by
// a NUL when terminate is set.
template <class T, class Source>
bool CopyToBuffer(const ScanArg& t, const Source& text, bool terminate) {
    if (t.capacity == 0) return false;
    std::size_t n = text.size();
    const std::size_t room = terminate ? t.capacity - 1 : t.capacity;
    if (n > room) n = room;
    T* out = static_cast<T*>(t.target);
    std::char_traits<T>::copy(out, text.data(), n);
    if (terminate) out[n] = T(0);
    return true;
}

template <class Ch>
bool Scanner<Ch>::StoreText(const ScanArg& t, View run, bool terminate, bool single) const {
    auto narrow = [&]() {
        if constexpr (std::is_same_v<Ch, char>) {
            return std::string(run);
        } else {
            return Utf16ToAnsi(run);
        }
    };
    auto wide = [&]() {
        if constexpr (std::is_same_v<Ch, char16_t>) {
            return std::u16string(run);
        } else {
            return AnsiToUtf16(run);
        }
    };
    switch (t.kind) {
        case TargetKind::NarrowString:
            static_cast<std::string*>(t.target)->assign(narrow());
            return true;
        case TargetKind::Utf16String:
            static_cast<std::u16string*>(t.target)->assign(wide());
            return true;
        case TargetKind::NarrowBuffer:
            if constexpr (std::is_same_v<Ch, char>) {
                return CopyToBuffer<char>(t, run, terminate);
            } else {
                return CopyToBuffer<char>(t, narrow(), terminate);
            }
        case TargetKind::Utf16Buffer:
            if constexpr (std::is_same_v<Ch, char16_t>) {
                return CopyToBuffer<char16_t>(t, run, terminate);
            } else {
                return CopyToBuffer<char16_t>(t, wide(), terminate);
            }
        default:
            if (!single || !IsIntegerTarget(t.kind)) return false;
            return StoreInteger(t, static_cast<unsigned long long>(Code(run[0])), false);
    }
}

}  // namespace

int ScanArgs(std::string_view text, std::string_view format, std::span<const ScanArg> targets) {
    return Scanner<char>(text, format, targets).Run();
}

int ScanArgs(std::u16string_view text, std::u16string_view format,
             std::span<const ScanArg> targets) {
    return Scanner<char16_t>(text, format, targets).Run();
}

}  // namespace vex
