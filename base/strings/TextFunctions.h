// TextFunctions.h - small text helpers: replace, format_str, EnumStringA/W,
// atof/atoi of wide text, CStringAppend/CStringAppendA, CStringFindA and
// ParseFormula.
//
// Numbers are read and printed with the "C" locale's decimal point. Nothing
// here reads past the end of its text; CStringAppend is the only function
// that throws (std::invalid_argument, leaving the string as it was).
//
//   std::string line = vex::format_str("%s=%d", "depth", 12);  // "depth=12"
//   vex::EnumStringA("Item", 3, '[', ']');                      // "Item[3]"
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/framework/Format.h>

#include <string>
#include <string_view>

namespace vex {

// Replaces every occurrence of what in text, scanning left to right and
// going on after the inserted text, so a with that contains what is not
// replaced again. An empty what replaces nothing. Returns text.
VEXBASE_API std::string& replace(std::string& text, std::string_view what, std::string_view with);
VEXBASE_API std::u16string& replace(std::u16string& text, std::u16string_view what,
                                    std::u16string_view with);

// printf-style formatting into a string of exactly the needed length. The
// arguments are captured with their types (vex::Format), so a mismatched
// argument is converted rather than undefined; a null format gives "".
template <class... Args>
std::string format_str(CStringA::TextArg format, const Args&... args) {
    return Format(format.View(), args...);
}

// base, then open (unless NUL), the decimal number, then close (unless
// NUL): ("Item", 3, '[', ']') gives "Item[3]".
VEXBASE_API CStringA EnumStringA(CStringA::TextArg base, int number, char open, char close);
VEXBASE_API CString EnumStringW(CString::TextArg base, int number, char16_t open, char16_t close);

// The C library's conversions of wide text: leading white space, then the
// longest text that is a number; what follows is ignored, no number gives
// 0. atoi saturates to the int range, as the Windows runtime does.
VEXBASE_API double atof(const std::u16string& text);
VEXBASE_API double atof(const std::wstring& text);
VEXBASE_API int atoi(const std::u16string& text);
VEXBASE_API int atoi(const std::wstring& text);

// Appends exactly count characters of chars to text (NULs included) and
// returns text. Throws std::invalid_argument, with text unchanged, when
// count is negative, when the length would pass 2,147,483,647, or when
// chars is null and count is not 0.
VEXBASE_API CString& CStringAppend(CString& text, const char16_t* chars, int count);
VEXBASE_API CString& CStringAppend(CString& text, const CString& other);
VEXBASE_API CString& CStringAppend(CString& text, char16_t ch);
VEXBASE_API CStringA& CStringAppendA(CStringA& text, const char* chars, int count);
VEXBASE_API CStringA& CStringAppendA(CStringA& text, const CStringA& other);
VEXBASE_API CStringA& CStringAppendA(CStringA& text, char ch);

// Position of the wide character ch (u'x' or L'x'), converted to the active
// code page, in text from start on; -1 when it is absent, when start is
// outside the text or when the code page cannot hold ch (a lone surrogate
// included). With UTF-8 a character may take several bytes: the position
// is that of its first.
VEXBASE_API int CStringFindA(const CStringA& text, char32_t ch, int start = 0);

// Splits a formula of two tagged operands, such as "TID1.5*COR2", after
// removing every space from text (text is changed). Each operand is a
// three-character tag, skipped unread, and a number. The operator is the
// first of "*+-/": op and operatorPos receive it and its position, first
// the number that starts three characters into the text before it and
// second the one three characters into the text after it. Without an
// operator, first is the number from the fourth character on, operatorPos
// -1, op NUL and second 0. Unreadable numbers are 0. Always returns true.
VEXBASE_API bool ParseFormula(CString& text, double& first, int& operatorPos, double& second,
                              char16_t& op);

}  // namespace vex
