// FormatArgs.h - type-safe arguments of the printf- and scanf-style functions.
//
// The library formats and scans text with C format strings ("%d", "%.3lf",
// "%s" ...) but never passes C variadic arguments: every argument is captured
// with its real type into a FormatArg (or, for scanning, a ScanArg), so a
// string object given to "%s" or a double given to "%d" is well defined
// instead of undefined behaviour. Callers rarely use these types directly;
// CString::Format, vex::Format and vex::Scan build them.
#pragma once

#include <base/Export.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace vex {

// One printf argument. Integers keep their signedness, strings their
// character width; the formatter converts between kinds where a conversion
// asks for another one (for example "%f" given an int).
struct FormatArg {
    enum class Kind : unsigned char { Signed, Unsigned, Floating, Narrow, Utf16, Utf32, Pointer };

    Kind kind = Kind::Signed;
    union {
        long long i;
        unsigned long long u;
        double d;
        const void* p;
    };
    std::size_t length = 0;  // code units of a string argument; strings are not NUL-terminated

    FormatArg() : i(0) {}
};

// One scanf target: where to store and what is stored there.
struct ScanArg {
    enum class Kind : unsigned char {
        Int8,
        Int16,
        Int32,
        Int64,
        UInt8,
        UInt16,
        UInt32,
        UInt64,
        Float,
        Double,
        LongDouble,
        NarrowString,  // std::string*
        Utf16String,   // std::u16string*
        NarrowBuffer,  // char[capacity], NUL-terminated by the scanner
        Utf16Buffer,   // char16_t[capacity], NUL-terminated by the scanner
    };

    Kind kind = Kind::Int32;
    void* target = nullptr;
    std::size_t capacity = 0;  // elements of a buffer target, including the terminating NUL
};

namespace detail {

template <class T>
inline constexpr bool kIsCharType =
    std::is_same_v<T, char> || std::is_same_v<T, char16_t> || std::is_same_v<T, char32_t> ||
    std::is_same_v<T, wchar_t> || std::is_same_v<T, char8_t> || std::is_same_v<T, signed char> ||
    std::is_same_v<T, unsigned char>;

inline FormatArg MakeSigned(long long v) {
    FormatArg a;
    a.kind = FormatArg::Kind::Signed;
    a.i = v;
    return a;
}
inline FormatArg MakeUnsigned(unsigned long long v) {
    FormatArg a;
    a.kind = FormatArg::Kind::Unsigned;
    a.u = v;
    return a;
}
inline FormatArg MakeString(FormatArg::Kind kind, const void* text, std::size_t length) {
    FormatArg a;
    a.kind = kind;
    a.p = text;
    a.length = length;
    return a;
}

}  // namespace detail

// Captures one argument. String types are found through ToFormatArg
// overloads, so the string classes of the library add their own.
template <class T>
FormatArg ToFormatArg(const T& value) {
    using detail::MakeString;
    using K = FormatArg::Kind;
    if constexpr (std::is_same_v<T, bool>) {
        return detail::MakeSigned(value ? 1 : 0);
    } else if constexpr (std::is_same_v<T, char> || std::is_same_v<T, signed char>) {
        return detail::MakeSigned(static_cast<signed char>(value));  // promotes like C's char
    } else if constexpr (detail::kIsCharType<T>) {
        return detail::MakeUnsigned(static_cast<unsigned long long>(value));
    } else if constexpr (std::is_enum_v<T>) {
        return ToFormatArg(static_cast<std::underlying_type_t<T>>(value));
    } else if constexpr (std::is_integral_v<T> && std::is_signed_v<T>) {
        return detail::MakeSigned(value);
    } else if constexpr (std::is_integral_v<T>) {
        return detail::MakeUnsigned(value);
    } else if constexpr (std::is_floating_point_v<T>) {
        FormatArg a;
        a.kind = K::Floating;
        a.d = static_cast<double>(value);
        return a;
    } else if constexpr (std::is_convertible_v<const T&, std::string_view>) {
        const std::string_view s(value);
        return MakeString(K::Narrow, s.data(), s.size());
    } else if constexpr (std::is_convertible_v<const T&, std::u16string_view>) {
        const std::u16string_view s(value);
        return MakeString(K::Utf16, s.data(), s.size());
    } else if constexpr (std::is_convertible_v<const T&, std::wstring_view>) {
        const std::wstring_view s(value);
        return MakeString(sizeof(wchar_t) == 2 ? K::Utf16 : K::Utf32, s.data(), s.size());
    } else if constexpr (std::is_convertible_v<const T&, std::u8string_view>) {
        const std::u8string_view s(value);
        return MakeString(K::Narrow, s.data(), s.size());
    } else if constexpr (std::is_pointer_v<T> || std::is_null_pointer_v<T>) {
        FormatArg a;
        a.kind = K::Pointer;
        a.p = static_cast<const void*>(value);
        return a;
    } else {
        static_assert(sizeof(T) == 0, "this type cannot be formatted with a printf format");
    }
}

// Captures one scan target.
template <class T>
ScanArg ToScanArg(T* target) {
    using K = ScanArg::Kind;
    ScanArg a;
    a.target = target;
    if constexpr (std::is_same_v<T, std::string>) {
        a.kind = K::NarrowString;
    } else if constexpr (std::is_same_v<T, std::u16string>) {
        a.kind = K::Utf16String;
    } else if constexpr (std::is_same_v<T, float>) {
        a.kind = K::Float;
    } else if constexpr (std::is_same_v<T, double>) {
        a.kind = K::Double;
    } else if constexpr (std::is_same_v<T, long double>) {
        a.kind = K::LongDouble;
    } else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
        constexpr bool s = std::is_signed_v<T>;
        switch (sizeof(T)) {
            case 1:
                a.kind = s ? K::Int8 : K::UInt8;
                break;
            case 2:
                a.kind = s ? K::Int16 : K::UInt16;
                break;
            case 4:
                a.kind = s ? K::Int32 : K::UInt32;
                break;
            default:
                a.kind = s ? K::Int64 : K::UInt64;
                break;
        }
    } else {
        static_assert(sizeof(T) == 0, "this type cannot be a scanf target");
    }
    return a;
}

// Fixed buffers are passed as arrays (not decayed pointers) so that the
// scanner knows their size and never writes past them.
template <std::size_t N>
ScanArg ToScanArg(char (&buffer)[N]) {
    ScanArg a;
    a.kind = ScanArg::Kind::NarrowBuffer;
    a.target = buffer;
    a.capacity = N;
    return a;
}

template <std::size_t N>
ScanArg ToScanArg(char16_t (&buffer)[N]) {
    ScanArg a;
    a.kind = ScanArg::Kind::Utf16Buffer;
    a.target = buffer;
    a.capacity = N;
    return a;
}

}  // namespace vex
