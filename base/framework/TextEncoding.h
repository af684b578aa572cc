// TextEncoding.h - conversions between UTF-8, UTF-16, UTF-32, wchar_t text
// and the active code page, and the library's character case mapping.
//
// UTF-16 is the library's text. Narrow text ("A" functions, CStringA) is in
// the active code page, a process-wide setting: UTF-8 by default on POSIX,
// the system's ANSI code page on Windows. Every conversion is total: invalid
// input (a lone surrogate, a truncated UTF-8 sequence, an overlong form, a
// byte with no meaning in the code page) becomes U+FFFD, never a crash.
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

// Sets the process-wide code page of narrow text; thread-safe.
VEXBASE_API void SetActiveCodePage(CodePage page);
// The active code page; thread-safe.
VEXBASE_API CodePage GetActiveCodePage();

VEXBASE_API std::u16string Utf8ToUtf16(std::string_view utf8);
VEXBASE_API std::string Utf16ToUtf8(std::u16string_view utf16);
VEXBASE_API std::u16string Utf32ToUtf16(std::u32string_view utf32);
VEXBASE_API std::u32string Utf16ToUtf32(std::u16string_view utf16);

// wchar_t text is UTF-16 where wchar_t has 16 bits (Windows), UTF-32 elsewhere.
VEXBASE_API std::u16string WideToUtf16(std::wstring_view wide);
VEXBASE_API std::wstring Utf16ToWide(std::u16string_view utf16);

// Narrow text in a given or the active code page. Characters that the code
// page cannot hold become '?', as the Windows conversion does.
VEXBASE_API std::u16string CodePageToUtf16(std::string_view text, CodePage page);
VEXBASE_API std::string Utf16ToCodePage(std::u16string_view text, CodePage page);
VEXBASE_API std::u16string AnsiToUtf16(std::string_view text);
VEXBASE_API std::string Utf16ToAnsi(std::u16string_view text);

// Simple (one-to-one) case mapping of Latin, Greek and Cyrillic letters;
// other characters are returned unchanged. The narrow forms map the
// letters of the active code page (ASCII only when it is UTF-8, where a
// single byte may be part of a longer character).
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
