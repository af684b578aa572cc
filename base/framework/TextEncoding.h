// TextEncoding.h - conversions between UTF-8, UTF-16, UTF-32, wchar_t text
// and the active code page, and the library's character case mapping.
//
// UTF-16 is the library's text. Narrow text ("A" functions, CStringA) is in
// the active code page, a process-wide setting: UTF-8 by default on POSIX,
// on Windows Windows-1252 when that is the system's ANSI code page, else
// UTF-8. Every conversion is total: invalid input (a lone surrogate, a
// truncated UTF-8 sequence, an overlong form, a value above U+10FFFF)
// becomes U+FFFD, one for each maximal ill-formed subsequence as the
// Unicode Standard recommends, never a crash.
//
//   vex::SetActiveCodePage(vex::CodePage::Windows1252);
//   std::u16string w = vex::AnsiToUtf16("50\xB0");  // u"50°"
#pragma once

#include <base/Export.h>

#include <string>
#include <string_view>

namespace vex {

// Code pages of narrow text, numbered as Windows numbers them.
enum class CodePage : unsigned { Windows1252 = 1252, Utf8 = 65001 };

// The replacement character that stands for undecodable input.
inline constexpr char16_t kReplacementChar = u'\uFFFD';

// Sets the process-wide code page of narrow text; thread-safe. A value
// other than the enumerators selects UTF-8.
VEXBASE_API void SetActiveCodePage(CodePage page);
// The active code page; thread-safe.
VEXBASE_API CodePage GetActiveCodePage();

// Conversions between the Unicode encoding forms. "ab\xFF" (a byte that
// never occurs in UTF-8) gives u"ab\uFFFD"; a surrogate pair is one
// character of UTF-8 and UTF-32.
VEXBASE_API std::u16string Utf8ToUtf16(std::string_view utf8);
VEXBASE_API std::string Utf16ToUtf8(std::u16string_view utf16);
VEXBASE_API std::u16string Utf32ToUtf16(std::u32string_view utf32);
VEXBASE_API std::u32string Utf16ToUtf32(std::u16string_view utf16);

// wchar_t text is UTF-16 where wchar_t has 16 bits (Windows), UTF-32
// elsewhere. Between two UTF-16 forms the code units are copied unchanged.
VEXBASE_API std::u16string WideToUtf16(std::wstring_view wide);
VEXBASE_API std::wstring Utf16ToWide(std::u16string_view utf16);

// Narrow text in a given or the active code page. Characters that the code
// page cannot hold become '?' (one for each character, a surrogate pair
// included), as the Windows conversion does. Every byte of Windows-1252 has
// a character: the five bytes the code page leaves undefined (0x81, 0x8D,
// 0x8F, 0x90, 0x9D) stand for the C1 controls of the same value.
VEXBASE_API std::u16string CodePageToUtf16(std::string_view text, CodePage page);
VEXBASE_API std::string Utf16ToCodePage(std::u16string_view text, CodePage page);
VEXBASE_API std::u16string AnsiToUtf16(std::string_view text);
VEXBASE_API std::string Utf16ToAnsi(std::u16string_view text);

// Simple (one-to-one) case mapping of the letters of Basic Latin, Latin-1,
// Latin Extended-A, Greek and Cyrillic; other characters are returned
// unchanged, as are letters without a one-to-one partner (ß, µ, ŉ). The
// narrow forms map the letters of the active code page: ASCII only when it
// is UTF-8, where a byte above 0x7F is only part of a character; with
// Windows-1252 through Unicode, when the result is in the code page
// (0xFF ÿ becomes 0x9F Ÿ).
VEXBASE_API char16_t ToUpperChar(char16_t c);
VEXBASE_API char16_t ToLowerChar(char16_t c);
VEXBASE_API char ToUpperChar(char c);
VEXBASE_API char ToLowerChar(char c);

// True for the characters that C's isspace/iswspace treat as white space
// in the "C" locale (space, \t \n \v \f \r), whatever the process locale.
constexpr bool IsSpaceChar(char32_t c) {
    return c == U' ' || (c >= U'\t' && c <= U'\r');
}

}  // namespace vex
