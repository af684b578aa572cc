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
    // Narrow text is in the active code page, Utf8 text (char8_t) is UTF-8
    // whatever the code page. A string whose pointer is null prints "(null)".
    enum class Kind : unsigned char {
        Signed,
        Unsigned,
        Floating,
        Narrow,
        Utf16,
        Utf32,
        Pointer,
        Utf8
    };

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
        NarrowBuffer,  // char[capacity]; %s and %[ end the text with a NUL
        Utf16Buffer,   // char16_t[capacity]; %s and %[ end the text with a NUL
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

// Length of a C string of at most limit code units; a null pointer has none.
template <class Ch>
constexpr std::size_t BoundedLength(const Ch* text, std::size_t limit) {
    std::size_t n = 0;
    if (text) {
        while (n < limit && text[n] != Ch(0))
            ++n;
    }
    return n;
}

// The kind of a string of character type Ch, or Pointer for the byte types.
template <class Ch>
constexpr FormatArg::Kind StringKind() {
    using K = FormatArg::Kind;
    if constexpr (std::is_same_v<Ch, char>) {
        return K::Narrow;
    } else if constexpr (std::is_same_v<Ch, char8_t>) {
        return K::Utf8;
    } else if constexpr (std::is_same_v<Ch, char16_t>) {
        return K::Utf16;
    } else if constexpr (std::is_same_v<Ch, char32_t>) {
        return K::Utf32;
    } else if constexpr (std::is_same_v<Ch, wchar_t>) {
        return sizeof(wchar_t) == 2 ? K::Utf16 : K::Utf32;
    } else {
        return K::Pointer;
    }
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
    } else if constexpr (std::is_null_pointer_v<T>) {
        FormatArg a;
        a.kind = K::Pointer;
        a.p = nullptr;
        return a;
    } else if constexpr (std::is_array_v<T>) {
        // A character array holds text up to its first NUL, or all of it.
        using Ch = std::remove_cv_t<std::remove_extent_t<T>>;
        constexpr K kind = detail::StringKind<Ch>();
        static_assert(kind != K::Pointer, "only character arrays can be formatted");
        return MakeString(kind, value, detail::BoundedLength(value, std::extent_v<T>));
    } else if constexpr (std::is_pointer_v<T>) {
        // Character pointers are C strings (null allowed); others print as %p.
        using Ch = std::remove_cv_t<std::remove_pointer_t<T>>;
        constexpr K kind = detail::StringKind<Ch>();
        if constexpr (kind != K::Pointer) {
            return MakeString(kind, value, value ? std::char_traits<Ch>::length(value) : 0);
        } else {
            FormatArg a;
            a.kind = K::Pointer;
            a.p = static_cast<const void*>(value);
            return a;
        }
    } else if constexpr (std::is_convertible_v<const T&, std::string_view>) {
        const std::string_view s(value);
        return MakeString(K::Narrow, s.data(), s.size());
    } else if constexpr (std::is_convertible_v<const T&, std::u16string_view>) {
        const std::u16string_view s(value);
        return MakeString(K::Utf16, s.data(), s.size());
    } else if constexpr (std::is_convertible_v<const T&, std::u32string_view>) {
        const std::u32string_view s(value);
        return MakeString(K::Utf32, s.data(), s.size());
    } else if constexpr (std::is_convertible_v<const T&, std::wstring_view>) {
        const std::wstring_view s(value);
        return MakeString(detail::StringKind<wchar_t>(), s.data(), s.size());
    } else if constexpr (std::is_convertible_v<const T&, std::u8string_view>) {
        const std::u8string_view s(value);
        return MakeString(K::Utf8, s.data(), s.size());
    } else {
        static_assert(sizeof(T) == 0, "this type cannot be formatted with a printf format");
    }
}

namespace detail {

template <class T>
ScanArg ScanPointer(T* target) {
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

}  // namespace detail

// Captures one scan target: a pointer to a number, a character or a string
// object, or a char / char16_t array. Arrays are taken as arrays (one
// template for both, so that an array never decays to a pointer to its
// first element), which lets the scanner know their size and never write
// past them. A char* pointer is a single character, not a buffer.
template <class T>
ScanArg ToScanArg(T&& target) {
    using U = std::remove_cvref_t<T>;
    if constexpr (std::is_array_v<U> && std::is_lvalue_reference_v<T> &&
                  !std::is_const_v<std::remove_reference_t<T>>) {
        using Ch = std::remove_extent_t<U>;
        static_assert(std::is_same_v<Ch, char> || std::is_same_v<Ch, char16_t>,
                      "only char and char16_t arrays can be scanf buffers");
        ScanArg a;
        a.kind =
            std::is_same_v<Ch, char> ? ScanArg::Kind::NarrowBuffer : ScanArg::Kind::Utf16Buffer;
        a.target = target;
        a.capacity = std::extent_v<U>;
        return a;
    } else if constexpr (std::is_pointer_v<U> && !std::is_const_v<std::remove_pointer_t<U>>) {
        return detail::ScanPointer(static_cast<U>(target));
    } else {
        static_assert(sizeof(U) == 0, "scanf targets are non-const pointers or arrays");
        return ScanArg{};
    }
}

}  // namespace vex
