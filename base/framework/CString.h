// CString.h - the library's string classes: CString (UTF-16) and CStringA
// (narrow text in the active code page).
//
// Both are one value class template over the character type with the
// members that code written for the Windows framework's string class
// expects (GetLength, Find, Mid, Trim, Format, CompareNoCase ...). Indices
// and lengths are int and count code units; out-of-range positions are
// clamped, never undefined. Copies are independent values.
//
//   vex::CString depth;
//   depth.Format(u"%.2f m", 12.5);          // u"12.50 m"
//   vex::CStringA utf8 = depth.ToUtf8();     // "12.50 m"
#pragma once

#include <base/framework/Format.h>
#include <base/framework/TextEncoding.h>

#include <algorithm>
#include <compare>
#include <string>
#include <string_view>
#include <type_traits>

namespace vex {

template <class Ch>
class CStringT;

namespace detail {

// Text that views as a basic_string_view<Ch> without being a C string:
// strings, views and the like, as std::basic_string accepts them.
template <class T, class Ch>
concept ViewableText = std::is_convertible_v<const T&, std::basic_string_view<Ch>> &&
    !std::is_convertible_v<const T&, const Ch*>;

// The text parameter of CStringT's members: a C string (null reads as
// empty), a std::basic_string, a view or a CStringT of the same width. One
// parameter type instead of overloads for each keeps a call with a CStringT
// argument unambiguous, as a CStringT converts to a pointer and to a view.
template <class Ch>
class TextArg {
  public:
    using ViewType = std::basic_string_view<Ch>;

    TextArg(const Ch* text) : view_(text ? ViewType(text) : ViewType()) {}
    TextArg(const CStringT<Ch>& text) : view_(text.View()) {}
    template <ViewableText<Ch> T>
    TextArg(const T& text) : view_(text) {}

    ViewType View() const { return view_; }

  private:
    ViewType view_;
};

}  // namespace detail

template <class Ch>
class CStringT {
    static_assert(std::is_same_v<Ch, char> || std::is_same_v<Ch, char16_t>);

  public:
    using XCHAR = Ch;
    using StringType = std::basic_string<Ch>;
    using ViewType = std::basic_string_view<Ch>;
    // The character type of the other width.
    using YCHAR = std::conditional_t<std::is_same_v<Ch, char>, char16_t, char>;
    // Text arguments: a C string, a string, a view or a CStringT.
    using TextArg = detail::TextArg<Ch>;

    CStringT() = default;
    CStringT(const Ch* text) : s_(text ? ViewType(text) : ViewType()) {}
    CStringT(const Ch* text, int length)
        : s_(text && length > 0 ? ViewType(text, static_cast<std::size_t>(length)) : ViewType()) {}
    CStringT(Ch c, int repeat = 1) : s_(repeat > 0 ? static_cast<std::size_t>(repeat) : 0u, c) {}
    CStringT(ViewType text) : s_(text) {}
    CStringT(const StringType& text) : s_(text) {}
    CStringT(StringType&& text) noexcept : s_(std::move(text)) {}

    // Text of the other width is converted: narrow text is in the active
    // code page. Explicit, so that overloads on both widths stay unambiguous.
    explicit CStringT(const YCHAR* text)
        : s_(Convert(text ? std::basic_string_view<YCHAR>(text)
                          : std::basic_string_view<YCHAR>())) {}
    explicit CStringT(std::basic_string_view<YCHAR> text) : s_(Convert(text)) {}
    explicit CStringT(const std::basic_string<YCHAR>& text) : s_(Convert(text)) {}
    explicit CStringT(const CStringT<YCHAR>& other) : s_(Convert(other.View())) {}
    // wchar_t text: UTF-16 or UTF-32 by platform.
    explicit CStringT(const wchar_t* text) : CStringT(std::wstring_view(text ? text : L"")) {}
    explicit CStringT(std::wstring_view text) : s_(FromUtf16(WideToUtf16(text))) {}
    explicit CStringT(const std::wstring& text) : CStringT(std::wstring_view(text)) {}
    // UTF-8 text, whatever the active code page.
    explicit CStringT(const char8_t* text) : CStringT(std::u8string_view(text ? text : u8"")) {}
    explicit CStringT(std::u8string_view text)
        : s_(FromUtf16(Utf8ToUtf16(
              std::string_view(reinterpret_cast<const char*>(text.data()), text.size())))) {}

    static CStringT FromUtf8(std::string_view utf8) {
        return CStringT(FromUtf16(Utf8ToUtf16(utf8)));
    }

    // --- size and access -------------------------------------------------
    int GetLength() const { return static_cast<int>(s_.size()); }
    bool IsEmpty() const { return s_.empty(); }
    void Empty() { s_.clear(); }
    // The character at index; '\0' when index is out of range.
    Ch GetAt(int index) const {
        return InRange(index) ? s_[static_cast<std::size_t>(index)] : Ch(0);
    }
    void SetAt(int index, Ch c) {
        if (InRange(index)) s_[static_cast<std::size_t>(index)] = c;
    }
    Ch operator[](int index) const { return GetAt(index); }
    const Ch* GetString() const { return s_.c_str(); }
    operator const Ch*() const { return s_.c_str(); }
    ViewType View() const { return s_; }
    operator ViewType() const { return s_; }
    const StringType& Str() const { return s_; }
    StringType& Str() { return s_; }

    // A writable buffer of at least minLength characters; ReleaseBuffer
    // then fixes the length (to the first NUL when newLength is -1).
    Ch* GetBuffer(int minLength = 0) {
        if (minLength > GetLength()) s_.resize(static_cast<std::size_t>(minLength));
        return s_.data();
    }
    Ch* GetBufferSetLength(int length) {
        s_.resize(static_cast<std::size_t>(std::max(length, 0)));
        return s_.data();
    }
    void ReleaseBuffer(int newLength = -1) {
        if (newLength < 0) {
            newLength = static_cast<int>(std::char_traits<Ch>::length(s_.c_str()));
        }
        s_.resize(std::min(static_cast<std::size_t>(newLength), s_.size()));
    }

    // --- conversion ------------------------------------------------------
    std::string ToUtf8() const {
        if constexpr (std::is_same_v<Ch, char16_t>) {
            return Utf16ToUtf8(s_);
        } else {
            return Utf16ToUtf8(AnsiToUtf16(s_));
        }
    }
    std::u16string ToUtf16() const {
        if constexpr (std::is_same_v<Ch, char16_t>) {
            return s_;
        } else {
            return AnsiToUtf16(s_);
        }
    }
    std::wstring ToWide() const { return Utf16ToWide(ToUtf16()); }

    // --- search ----------------------------------------------------------
    // Index of the first match at or after start, or -1.
    int Find(Ch c, int start = 0) const { return Pos(start < 0 ? npos : s_.find(c, Clamp(start))); }
    // An empty sub is found at start.
    int Find(TextArg sub, int start = 0) const {
        if (start < 0 || start > GetLength()) return -1;
        return Pos(s_.find(sub.View(), static_cast<std::size_t>(start)));
    }
    int ReverseFind(Ch c) const { return Pos(s_.rfind(c)); }
    int FindOneOf(TextArg set) const { return Pos(s_.find_first_of(set.View())); }

    // --- extraction ------------------------------------------------------
    CStringT Left(int count) const { return CStringT(s_.substr(0, Clamp(count))); }
    CStringT Right(int count) const {
        const std::size_t n = Clamp(count);
        return CStringT(s_.substr(s_.size() - n));
    }
    CStringT Mid(int first) const { return CStringT(s_.substr(Clamp(first))); }
    CStringT Mid(int first, int count) const {
        const std::size_t from = Clamp(first);
        return CStringT(s_.substr(from, count > 0 ? static_cast<std::size_t>(count) : 0u));
    }
    // The leading characters that are (are not) in set.
    CStringT SpanIncluding(TextArg set) const {
        return CStringT(s_.substr(0, s_.find_first_not_of(set.View())));
    }
    CStringT SpanExcluding(TextArg set) const {
        return CStringT(s_.substr(0, s_.find_first_of(set.View())));
    }
    // The next token delimited by any of the characters in delimiters,
    // starting at pos; pos moves past it and becomes -1 at the end.
    CStringT Tokenize(TextArg delimiterSet, int& pos) const {
        if (pos < 0) return CStringT();
        const ViewType delimiters = delimiterSet.View();
        std::size_t from = s_.find_first_not_of(delimiters, static_cast<std::size_t>(pos));
        if (from == npos) {
            pos = -1;
            return CStringT();
        }
        std::size_t to = s_.find_first_of(delimiters, from);
        if (to == npos) to = s_.size();
        pos = static_cast<int>(to < s_.size() ? to + 1 : to);
        return CStringT(s_.substr(from, to - from));
    }

    // --- modification ----------------------------------------------------
    CStringT& TrimLeft() {
        return TrimLeftIf([](Ch c) { return IsSpaceChar(static_cast<char32_t>(Unsigned(c))); });
    }
    CStringT& TrimRight() {
        return TrimRightIf([](Ch c) { return IsSpaceChar(static_cast<char32_t>(Unsigned(c))); });
    }
    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& TrimLeft(Ch c) {
        return TrimLeftIf([c](Ch x) { return x == c; });
    }
    CStringT& TrimRight(Ch c) {
        return TrimRightIf([c](Ch x) { return x == c; });
    }
    CStringT& Trim(Ch c) { return TrimRight(c).TrimLeft(c); }
    // Removes the leading (trailing) characters that are in set.
    CStringT& TrimLeft(TextArg set) {
        return TrimLeftIf([chars = set.View()](Ch x) { return chars.find(x) != npos; });
    }
    CStringT& TrimRight(TextArg set) {
        return TrimRightIf([chars = set.View()](Ch x) { return chars.find(x) != npos; });
    }
    CStringT& Trim(TextArg set) { return TrimRight(set).TrimLeft(set); }

    CStringT& MakeUpper() {
        for (Ch& c : s_)
            c = ToUpperChar(c);
        return *this;
    }
    CStringT& MakeLower() {
        for (Ch& c : s_)
            c = ToLowerChar(c);
        return *this;
    }
    CStringT& MakeReverse() {
        std::reverse(s_.begin(), s_.end());
        return *this;
    }

    // Replaces every occurrence; returns how many were replaced.
    int Replace(Ch from, Ch to) {
        int n = 0;
        for (Ch& c : s_) {
            if (c == from) {
                c = to;
                ++n;
            }
        }
        return n;
    }
    // An empty from replaces nothing. from and to may be views of this
    // string: the result is built apart and assigned at the end.
    int Replace(TextArg fromText, TextArg toText) {
        const ViewType from = fromText.View();
        const ViewType to = toText.View();
        if (from.empty()) return 0;
        int n = 0;
        StringType out;
        std::size_t pos = 0;
        for (std::size_t hit; (hit = s_.find(from, pos)) != npos; pos = hit + from.size(), ++n) {
            out.append(s_, pos, hit - pos).append(to);
        }
        if (n > 0) {
            out.append(s_, pos);
            s_ = std::move(out);
        }
        return n;
    }
    // Removes every occurrence of c; returns how many were removed.
    int Remove(Ch c) {
        const auto old = s_.size();
        std::erase(s_, c);
        return static_cast<int>(old - s_.size());
    }
    // Inserts at index (clamped); returns the new length.
    int Insert(int index, Ch c) {
        s_.insert(Clamp(index), 1, c);
        return GetLength();
    }
    int Insert(int index, TextArg text) {
        s_.insert(Clamp(index), text.View());
        return GetLength();
    }
    // Deletes up to count characters at index (clamped, so a negative index
    // deletes from the start); returns the new length.
    int Delete(int index, int count = 1) {
        if (count > 0) s_.erase(Clamp(index), static_cast<std::size_t>(count));
        return GetLength();
    }
    void Truncate(int length) { s_.resize(std::min(s_.size(), Clamp(length))); }
    void SetString(TextArg text) { s_.assign(text.View()); }

    // --- formatting ------------------------------------------------------
    template <class... Args>
    void Format(ViewType format, const Args&... args) {
        StringType out;
        AppendTo(out, format, args...);
        s_ = std::move(out);
    }
    template <class... Args>
    void AppendFormat(ViewType format, const Args&... args) {
        // Formatted apart first: an argument may be this string itself.
        StringType out;
        AppendTo(out, format, args...);
        s_.append(out);
    }

    // --- comparison ------------------------------------------------------
    // <0, 0 or >0 by code unit value.
    int Compare(TextArg other) const { return Sign(View().compare(other.View())); }
    // As Compare after mapping both sides to lower case.
    int CompareNoCase(TextArg otherText) const {
        const ViewType other = otherText.View();
        const std::size_t n = std::min(s_.size(), other.size());
        for (std::size_t i = 0; i < n; ++i) {
            const auto a = Unsigned(ToLowerChar(s_[i]));
            const auto b = Unsigned(ToLowerChar(other[i]));
            if (a != b) return a < b ? -1 : 1;
        }
        return s_.size() == other.size() ? 0 : (s_.size() < other.size() ? -1 : 1);
    }

    CStringT& operator+=(TextArg text) {
        s_.append(text.View());
        return *this;
    }
    CStringT& operator+=(Ch c) {
        s_.push_back(c);
        return *this;
    }

    friend CStringT operator+(const CStringT& a, const CStringT& b) {
        return CStringT(a.s_ + b.s_);
    }
    friend CStringT operator+(const CStringT& a, const Ch* b) { return Concat(a, TextArg(b)); }
    friend CStringT operator+(const Ch* a, const CStringT& b) { return Concat(TextArg(a), b); }
    friend CStringT operator+(const CStringT& a, Ch b) { return Concat(a, ViewType(&b, 1)); }
    friend CStringT operator+(Ch a, const CStringT& b) { return Concat(ViewType(&a, 1), b); }

    friend bool operator==(const CStringT& a, const CStringT& b) { return a.s_ == b.s_; }
    friend bool operator==(const CStringT& a, const Ch* b) {
        return a.View() == ViewType(b ? b : EmptyText());
    }
    friend std::strong_ordering operator<=>(const CStringT& a, const CStringT& b) {
        return a.s_ <=> b.s_;
    }
    friend std::strong_ordering operator<=>(const CStringT& a, const Ch* b) {
        return a.View() <=> ViewType(b ? b : EmptyText());
    }

  private:
    static constexpr auto npos = StringType::npos;

    static CStringT Concat(TextArg a, TextArg b) {
        StringType out;
        out.reserve(a.View().size() + b.View().size());
        out.append(a.View()).append(b.View());
        return CStringT(std::move(out));
    }

    static const Ch* EmptyText() {
        static constexpr Ch empty[1] = {};
        return empty;
    }
    static auto Unsigned(Ch c) { return static_cast<std::make_unsigned_t<Ch>>(c); }
    static int Sign(int v) { return v < 0 ? -1 : (v > 0 ? 1 : 0); }
    static int Pos(std::size_t p) { return p == npos ? -1 : static_cast<int>(p); }
    bool InRange(int index) const { return index >= 0 && index < GetLength(); }
    // An index or count limited to 0 .. length.
    std::size_t Clamp(int n) const {
        return n <= 0 ? 0u : std::min(static_cast<std::size_t>(n), s_.size());
    }

    static StringType FromUtf16(std::u16string&& text) {
        if constexpr (std::is_same_v<Ch, char16_t>) {
            return std::move(text);
        } else {
            return Utf16ToAnsi(text);
        }
    }
    static StringType Convert(std::basic_string_view<YCHAR> text) {
        if constexpr (std::is_same_v<Ch, char16_t>) {
            return AnsiToUtf16(text);
        } else {
            return Utf16ToAnsi(text);
        }
    }

    template <class Pred>
    CStringT& TrimLeftIf(Pred pred) {
        std::size_t i = 0;
        while (i < s_.size() && pred(s_[i]))
            ++i;
        s_.erase(0, i);
        return *this;
    }
    template <class Pred>
    CStringT& TrimRightIf(Pred pred) {
        std::size_t n = s_.size();
        while (n > 0 && pred(s_[n - 1]))
            --n;
        s_.resize(n);
        return *this;
    }

    template <class... Args>
    static void AppendTo(StringType& out, ViewType format, const Args&... args) {
        const FormatArg captured[] = {FormatArg{}, ToFormatArg(args)...};
        FormatAppend(out, format, std::span<const FormatArg>(captured + 1, sizeof...(Args)));
    }

    StringType s_;
};

using CString = CStringT<char16_t>;
using CStringA = CStringT<char>;
using CStringW = CString;

// Lets a CString be passed to "%s" of vex::Format and CString::Format.
template <class Ch>
FormatArg ToFormatArg(const CStringT<Ch>& text) {
    return detail::MakeString(
        std::is_same_v<Ch, char> ? FormatArg::Kind::Narrow : FormatArg::Kind::Utf16,
        text.GetString(), static_cast<std::size_t>(text.GetLength()));
}

}  // namespace vex
