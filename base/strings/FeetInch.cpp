#include <base/strings/FeetInch.h>

#include <base/framework/Format.h>
#include <base/framework/Scan.h>
#include <base/strings/NumericDetail.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace vex {

namespace {

constexpr int kInchesPerFoot = 12;
constexpr int kSixteenths = 16;

// An ASCII text in the character width Ch.
template <class Ch>
std::basic_string<Ch> Ascii(std::string_view text) {
    return std::basic_string<Ch>(text.begin(), text.end());
}

// The feet-inch text for both character widths.
template <class Ch>
std::basic_string<Ch> FeetInchText(double value, std::basic_string_view<Ch> format, int mode) {
    if (mode < 2) return Format(format, value);

    double whole = 0.0;
    double fraction = std::modf(value, &whole);
    if (std::isnan(fraction)) fraction = 0.0;  // NaN prints as the feet alone

    // The feet are always whole: the printed number is cut at its point.
    std::basic_string<Ch> text = Format(format, whole);
    if (const auto point = text.find(Ch('.')); point != text.npos) text.resize(point);
    text += Ch('\'');

    double inches = 0.0;
    const double inchFraction = std::modf(std::fabs(fraction) * kInchesPerFoot, &inches);
    // Mode 3 once meant to round the inches; the floor of a whole number plus
    // a half is that number, so it prints as mode 2 does.
    if (mode == 3) inches = std::floor(inches + 0.5);
    const int wholeInches = detail::TruncToInt(inches);
    if (wholeInches != 0) text += Format(Ascii<Ch>(" %d"), wholeInches);

    int numerator = 0;
    if (mode >= 4) {
        numerator = detail::TruncToInt(std::floor(inchFraction * kSixteenths + 0.5));
        int denominator = kSixteenths;
        if (numerator != 0) {
            while (numerator % 2 == 0) {
                numerator /= 2;
                denominator /= 2;
            }
            text += Format(Ascii<Ch>(" %d/%d"), numerator, denominator);
        }
    }
    if (wholeInches != 0 || numerator != 0) text += Ch('"');
    return text;
}

}  // namespace

CString FormatDoubleW(double value, std::u16string_view format, int mode) {
    return CString(FeetInchText(value, format, mode));
}

CStringA FormatDoubleA(double value, std::string_view format, int mode) {
    return CStringA(FeetInchText(value, format, mode));
}

namespace {

using View = std::u16string_view;

View TrimSpace(View text) {
    while (!text.empty() && IsSpaceChar(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpaceChar(text.back()))
        text.remove_suffix(1);
    return text;
}

View TrimChar(View text, char16_t c) {
    while (!text.empty() && text.front() == c)
        text.remove_prefix(1);
    while (!text.empty() && text.back() == c)
        text.remove_suffix(1);
    return text;
}

// The decimal number at the start of text, as atof reads it: 0 when there
// is none.
double ReadNumber(View text) {
    double number = 0.0;
    return Scan(text, u"%lf", &number) == 1 ? number : 0.0;
}

// value moved away from zero by amount (>= 0): down when value is below
// zero, else up. A negative zero is not below zero, so -0' 6" reads as +0.5,
// as the suite's reader always has.
double AddAwayFromZero(double value, double amount) {
    return value < 0.0 ? value - amount : value + amount;
}

}  // namespace

bool StringToValue(std::u16string_view source, double& value, int mode) {
    if (mode < 2) {
        double number = 0.0;
        if (Scan(source, u"%lf", &number) == 1) value = number;
        return true;
    }

    // Runs of blanks count as one, so that the parts can be found by spaces.
    std::u16string text(TrimSpace(source));
    const auto bothSpaces = [](char16_t a, char16_t b) { return a == u' ' && b == u' '; };
    text.erase(std::unique(text.begin(), text.end(), bothSpaces), text.end());
    const View all = text;
    const bool hasSlash = all.find(u'/') != View::npos;

    // Feet end at the foot mark, or at a space unless that space only
    // separates the whole inches from a fraction ("6 1/2" is all inches).
    View feet;
    View inches;
    if (const auto split = all.find_first_of(u"' "); split != View::npos) {
        if (all[split] == u'\'' || all.find(u' ', split + 1) != View::npos || !hasSlash) {
            feet = all.substr(0, split);
            inches = all.substr(split + 1);
        } else {
            inches = all;
        }
    } else if (all.find(u'"') == View::npos && !hasSlash) {
        feet = all;
    } else {
        inches = all;
    }
    double result = ReadNumber(feet);

    // The inches carry no sign of their own: they follow the feet.
    inches = TrimChar(TrimSpace(inches), u'-');
    if (const auto mark = inches.find(u'"'); mark != View::npos) inches = inches.substr(0, mark);
    View wholeInches;
    View fraction;
    if (const auto space = inches.find(u' '); space != View::npos) {
        wholeInches = inches.substr(0, space);
        fraction = inches.substr(space + 1);
    } else if (inches.find(u'/') != View::npos) {
        fraction = inches;
    } else {
        wholeInches = inches;
    }
    result = AddAwayFromZero(result, std::fabs(ReadNumber(wholeInches)) / kInchesPerFoot);
    if (const auto slash = fraction.find(u'/'); slash != View::npos) {
        const double numerator = ReadNumber(fraction.substr(0, slash));
        const double denominator = ReadNumber(fraction.substr(slash + 1));
        if (denominator != 0.0) {
            result = AddAwayFromZero(result, std::fabs(numerator / denominator) / kInchesPerFoot);
        }
    }
    value = result;
    return true;
}

}  // namespace vex
