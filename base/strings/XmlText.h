// XmlText.h - escaping of text for XML attribute and element values:
// XMLEscape (narrow and wide) and MakeXmlCompatible.
//
// Narrow text is in the active code page: the superscripts two and three
// and the degree sign are recognised as characters of that code page (one
// byte with Windows-1252, two with UTF-8), so "\xC2\xB0" under UTF-8 gives
// "&#176;" and no byte of another character is ever replaced.
//
//   vex::XMLEscape(u"a<b & 5\u00B0");  // u"a&lt;b &amp; 5&#176;"
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

// text with "&" as "&amp;", "<" as "&lt;", ">" as "&gt;", "'" as "&#8217;",
// the double quote as "&#8221;", superscript three as "&#179;",
// superscript two as "&#178;", the degree sign as "&#176;" and the
// backslash as "&#92;". A null text gives an empty result.
VEXBASE_API CStringA XMLEscape(CStringA::TextArg text);
VEXBASE_API CString XMLEscape(CString::TextArg text);
VEXBASE_API CString XMLEscape(const wchar_t* text);

// Does nothing: text is left as it is. The escaping is XMLEscape's work;
// the name stays for the callers that still call it.
inline void MakeXmlCompatible(CString& text) {
    static_cast<void>(text);
}

}  // namespace vex
