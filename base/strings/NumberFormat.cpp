#include <base/strings/NumberFormat.h>

#include <base/framework/Format.h>

namespace vex {

CString GetFormatStringDouble() {
    return CString(u"%f");
}

CString GetFormatStringDouble(int decimals) {
    return CString(Format(u"%%.%df", decimals));
}

CString GetFormatStringDouble(int width, int decimals) {
    return CString(Format(u"%%%d.%df", width, decimals));
}

CString GetFormatStringInt() {
    return CString(u"%d");
}

CString GetFormatStringInt(int width) {
    return CString(Format(u"%%%dd", width));
}

CString FormatInt(int value) {
    return CString(Format(u"%d", value));
}

CString FormatInt(int value, int width) {
    return FormatInt(value, GetFormatStringInt(width));
}

CString FormatInt(int value, std::u16string_view format) {
    return CString(Format(format, value));
}

CString FormatIntW(int value, std::u16string_view format) {
    return CString(Format(format, value));
}

CStringA FormatIntA(int value, std::string_view format) {
    return CStringA(Format(format, value));
}

CString FormatDouble(double value, int mode) {
    return FormatDoubleW(value, u"%f", mode);
}

CString FormatDouble(double value, int decimals, int mode) {
    return FormatDoubleW(value, GetFormatStringDouble(decimals), mode);
}

CString FormatDouble(double value, int width, int decimals, int mode) {
    return FormatDoubleW(value, GetFormatStringDouble(width, decimals), mode);
}

CString FormatDouble(double value, std::u16string_view format, int mode) {
    return FormatDoubleW(value, format, mode);
}

}  // namespace vex
