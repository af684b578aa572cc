#include <base/strings/TextFunctions.h>

#include <base/framework/Scan.h>
#include <base/framework/TextEncoding.h>
#include <base/strings/NumberScan.h>

#include <climits>
#include <stdexcept>

namespace vex {
namespace {

template <class Ch>
std::basic_string<Ch>& ReplaceAll(std::basic_string<Ch>& text, std::basic_string_view<Ch> what,
                                  std::basic_string_view<Ch> with) {
    if (what.empty()) return text;
    // Built apart: what and with may be views of text itself.
    std::basic_string<Ch> out;
    std::size_t pos = 0;
    bool replaced = false;
    for (std::size_t hit; (hit = text.find(what, pos)) != std::basic_string<Ch>::npos;
         pos = hit + what.size()) {
        out.append(text, pos, hit - pos).append(with);
        replaced = true;
    }
    if (replaced) {
        out.append(text, pos);
        text = std::move(out);
    }
    return text;
}

template <class Ch>
CStringT<Ch> EnumString(std::basic_string_view<Ch> base, int number, Ch open, Ch close) {
    CStringT<Ch> text(base);
    if (open != Ch(0)) text += open;
    const Ch format[] = {Ch('%'), Ch('d'), Ch(0)};
    text.AppendFormat(format, number);
    if (close != Ch(0)) text += close;
    return text;
}

int SaturatedInt(std::u16string_view text) {
    long long value = 0;  // the scanner saturates at 64 bits, as strtoll does
    if (Scan(text, u"%lld", &value) != 1) return 0;
    if (value > INT_MAX) return INT_MAX;
    if (value < INT_MIN) return INT_MIN;
    return static_cast<int>(value);
}

// Throws unless count more characters fit a string of length characters.
void CheckAppend(int length, int count, bool haveChars) {
    if (count < 0) throw std::invalid_argument("CStringAppend: negative count");
    if (static_cast<long long>(length) + count > INT_MAX) {
        throw std::invalid_argument("CStringAppend: the string would grow past its maximum length");
    }
    if (!haveChars && count > 0) throw std::invalid_argument("CStringAppend: null characters");
}

template <class Ch>
CStringT<Ch>& Append(CStringT<Ch>& text, const Ch* chars, int count) {
    CheckAppend(text.GetLength(), count, chars != nullptr);
    if (count > 0) text.Str().append(chars, static_cast<std::size_t>(count));
    return text;
}

}  // namespace

std::string& replace(std::string& text, std::string_view what, std::string_view with) {
    return ReplaceAll(text, what, with);
}
std::u16string& replace(std::u16string& text, std::u16string_view what, std::u16string_view with) {
    return ReplaceAll(text, what, with);
}

CStringA EnumStringA(CStringA::TextArg base, int number, char open, char close) {
    return EnumString(base.View(), number, open, close);
}
CString EnumStringW(CString::TextArg base, int number, char16_t open, char16_t close) {
    return EnumString(base.View(), number, open, close);
}

double atof(const std::u16string& text) {
    return detail::LeadingDouble(text);
}
double atof(const std::wstring& text) {
    return detail::LeadingDouble(WideToUtf16(text));
}
int atoi(const std::u16string& text) {
    return SaturatedInt(text);
}
int atoi(const std::wstring& text) {
    return SaturatedInt(WideToUtf16(text));
}

CString& CStringAppend(CString& text, const char16_t* chars, int count) {
    return Append(text, chars, count);
}
CString& CStringAppend(CString& text, const CString& other) {
    return Append(text, other.GetString(), other.GetLength());
}
CString& CStringAppend(CString& text, char16_t ch) {
    return Append(text, &ch, 1);
}
CStringA& CStringAppendA(CStringA& text, const char* chars, int count) {
    return Append(text, chars, count);
}
CStringA& CStringAppendA(CStringA& text, const CStringA& other) {
    return Append(text, other.GetString(), other.GetLength());
}
CStringA& CStringAppendA(CStringA& text, char ch) {
    return Append(text, &ch, 1);
}

int CStringFindA(const CStringA& text, char32_t ch, int start) {
    if ((ch >= 0xD800 && ch <= 0xDFFF) || ch > 0x10FFFF) return -1;
    const std::string narrow = Utf16ToAnsi(Utf32ToUtf16(std::u32string(1, ch)));
    // The conversion writes '?' for what the code page cannot hold.
    if (narrow == "?" && ch != U'?') return -1;
    return text.Find(narrow, start);
}

bool ParseFormula(CString& text, double& first, int& operatorPos, double& second, char16_t& op) {
    text.Remove(u' ');
    const int pos = text.FindOneOf(u"*+-/");
    if (pos < 0) {
        first = detail::LeadingDouble(text.Mid(3).View());
        operatorPos = -1;
        second = 0;
        op = u'\0';
        return true;
    }
    first = detail::LeadingDouble(text.Left(pos).Mid(3).View());
    second = detail::LeadingDouble(text.Mid(pos + 1).Mid(3).View());
    operatorPos = pos;
    op = text[pos];
    return true;
}

}  // namespace vex
