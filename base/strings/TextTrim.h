// TextTrim.h - trimming of C strings (in place, one character), standard
// strings (in place, a set of characters) and narrow views (a narrower view,
// no copy).
//
// Narrow text is in the active code page: with UTF-8 a set removes whole
// characters ("°" removes U+00B0, never one byte of another character),
// and a single char above 0x7F, not being a character there, removes
// nothing. A null string or set changes nothing.
//
//   std::string s = "  12.5 \t";
//   vex::trimA(s);                           // "12.5"
//   vex::trim("--12--", "-");                // view of "12"
#pragma once

#include <base/Export.h>

#include <string>
#include <string_view>

namespace vex {

// The white space of C's isspace in the "C" locale.
inline constexpr char kWhiteSpaceA[] = " \t\n\v\f\r";
inline constexpr char16_t kWhiteSpaceW[] = u" \t\n\v\f\r";
inline constexpr wchar_t kWhiteSpaceWide[] = L" \t\n\v\f\r";

// In place: removes the run of ch at the start (trimleft), the end
// (trimright) or both (trim) of the C string text, and returns text.
VEXBASE_API char* trimleftA(char* text, char ch);
VEXBASE_API char* trimrightA(char* text, char ch);
VEXBASE_API char* trimA(char* text, char ch);
VEXBASE_API char16_t* trimleftW(char16_t* text, char16_t ch);
VEXBASE_API char16_t* trimrightW(char16_t* text, char16_t ch);
VEXBASE_API char16_t* trimW(char16_t* text, char16_t ch);
VEXBASE_API wchar_t* trimleftW(wchar_t* text, wchar_t ch);
VEXBASE_API wchar_t* trimrightW(wchar_t* text, wchar_t ch);
VEXBASE_API wchar_t* trimW(wchar_t* text, wchar_t ch);

// In place: removes every leading (trailing, both) character of text that
// is in set; text becomes empty when all of its characters are. Returns text.
VEXBASE_API std::string& trimleftA(std::string& text, const char* set = kWhiteSpaceA);
VEXBASE_API std::string& trimrightA(std::string& text, const char* set = kWhiteSpaceA);
VEXBASE_API std::string& trimA(std::string& text, const char* set = kWhiteSpaceA);
VEXBASE_API std::u16string& trimleftW(std::u16string& text, const char16_t* set = kWhiteSpaceW);
VEXBASE_API std::u16string& trimrightW(std::u16string& text, const char16_t* set = kWhiteSpaceW);
VEXBASE_API std::u16string& trimW(std::u16string& text, const char16_t* set = kWhiteSpaceW);
VEXBASE_API std::wstring& trimleftW(std::wstring& text, const wchar_t* set = kWhiteSpaceWide);
VEXBASE_API std::wstring& trimrightW(std::wstring& text, const wchar_t* set = kWhiteSpaceWide);
VEXBASE_API std::wstring& trimW(std::wstring& text, const wchar_t* set = kWhiteSpaceWide);

// The view without its leading (trailing, both) characters that are in
// set; a part of text, never a copy.
VEXBASE_API std::string_view trim_left(std::string_view text, const char* set = kWhiteSpaceA);
VEXBASE_API std::string_view trim_right(std::string_view text, const char* set = kWhiteSpaceA);
VEXBASE_API std::string_view trim(std::string_view text, const char* set = kWhiteSpaceA);

}  // namespace vex
