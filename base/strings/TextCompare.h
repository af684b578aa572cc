// TextCompare.h - case-insensitive equality and ordering of narrow and wide
// text: icompareA/W, GreaterA/W and SmallerA/W.
//
// Case is mapped by the library's own tables (vex::ToUpperChar and
// vex::ToLowerChar), whatever the C locale: narrow text is in the active
// code page, so with UTF-8 only ASCII letters fold. A null C string reads
// as the empty string.
//
//   vex::icompareA(std::string("Depth"), "DEPTH");  // true
//   vex::SmallerW(u"abc", u"ABD");                   // true
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <string>
#include <string_view>

namespace vex {

// True when the two standard strings have the same length and every pair
// of characters is equal after upper-casing each; a difference in length
// answers without comparing characters.
VEXBASE_API bool icompareA(const std::string& s1, const std::string& s2);
VEXBASE_API bool icompareW(const std::u16string& s1, const std::u16string& s2);
VEXBASE_API bool icompareW(const std::wstring& s1, const std::wstring& s2);

// True when the case-insensitive C comparison (as _stricmp, _wcsicmp) of
// the two texts returns 0; it stops at the first NUL.
VEXBASE_API bool icompareA(const std::string& s1, const char* s2);
VEXBASE_API bool icompareA(const char* s1, const std::string& s2);
VEXBASE_API bool icompareA(const char* s1, const char* s2);
VEXBASE_API bool icompareW(const std::u16string& s1, const char16_t* s2);
VEXBASE_API bool icompareW(const char16_t* s1, const std::u16string& s2);
VEXBASE_API bool icompareW(const char16_t* s1, const char16_t* s2);
VEXBASE_API bool icompareW(const std::wstring& s1, const wchar_t* s2);
VEXBASE_API bool icompareW(const wchar_t* s1, const std::wstring& s2);
VEXBASE_API bool icompareW(const wchar_t* s1, const wchar_t* s2);

// True when s1 sorts after (before) s2 ignoring case: the texts are
// compared as _stricmp does, after lower-casing each character, by code
// unit value. Usable as ordering predicates.
VEXBASE_API bool GreaterA(CStringA::TextArg s1, CStringA::TextArg s2);
VEXBASE_API bool SmallerA(CStringA::TextArg s1, CStringA::TextArg s2);
VEXBASE_API bool GreaterW(CString::TextArg s1, CString::TextArg s2);
VEXBASE_API bool SmallerW(CString::TextArg s1, CString::TextArg s2);
VEXBASE_API bool GreaterW(std::wstring_view s1, std::wstring_view s2);
VEXBASE_API bool SmallerW(std::wstring_view s1, std::wstring_view s2);
VEXBASE_API bool GreaterW(const wchar_t* s1, const wchar_t* s2);
VEXBASE_API bool SmallerW(const wchar_t* s1, const wchar_t* s2);

}  // namespace vex
