#include <base/strings/GeographicAngles.h>

#include <base/framework/Format.h>
#include <base/framework/StringResources.h>
#include <base/framework/TextEncoding.h>
#include <base/strings/NumericDetail.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace vex {

namespace {

constexpr int kMaxDecimals = 15;

// The degree sign of the string table, looked up once; the initialisation
// of a function's static is thread-safe.
const std::u16string& DegreeSign() {
    static const std::u16string sign = LoadStringResource(IDS_DEGREE_SIGN).Str();
    return sign;
}

template <class Ch>
std::basic_string<Ch> Ascii(std::string_view text) {
    return std::basic_string<Ch>(text.begin(), text.end());
}

// A printf format for a field of `width` digits with `decimals` decimals,
// zero-padded, with the given text after it: ("'", 6, 3) gives "%06.3f'".
template <class Ch>
std::basic_string<Ch> FixedFormat(int width, int decimals, std::string_view after) {
    return Format(Ascii<Ch>("%%0%d.%df"), width, decimals) + Ascii<Ch>(after);
}

// The number of FormatGeogs without hemisphere; false for an unknown style.
template <class Ch>
bool AngleText(double value, int style, int decimals, bool signs,
               std::basic_string_view<Ch> degreeSign, std::basic_string<Ch>& number) {
    const int d = std::clamp(decimals, 0, kMaxDecimals);
    const int point = d > 0 ? 1 : 0;
    const double scale = detail::PowerOfTen(d);
    const double magnitude = std::fabs(value);
    const std::basic_string<Ch> degree = signs ? std::basic_string<Ch>(degreeSign) : Ascii<Ch>(" ");

    switch (style) {
        case GEOGS_D:
            number = Format(FixedFormat<Ch>(d + 3 + point, d, ""), magnitude) + degree;
            return true;
        case GEOGS_DM: {
            // The 0.01 keeps a count rounded up to the next whole minute from
            // falling back below it in the division.
            const double total = std::floor(magnitude * scale * 60.0 + 0.5);
            const double v = (total + 0.01) / (scale * 60.0);
            const int degrees = detail::TruncToInt(v);
            const double minutes = (v - degrees) * 60.0;
            number = Format(Ascii<Ch>("%03d"), degrees) + degree +
                     Format(FixedFormat<Ch>(d + 2 + point, d, signs ? "'" : " "), minutes);
            return true;
        }
        case GEOGS_DMS: {
            const double total = std::floor(magnitude * scale * 3600.0 + 0.5);
            const double v = (total + 0.01) / (scale * 3600.0);
            const int degrees = detail::TruncToInt(v);
            const double minutes = (v - degrees) * 60.0;
            const int wholeMinutes = detail::TruncToInt(minutes);
            const double seconds = (minutes - wholeMinutes) * 60.0;
            const std::basic_string<Ch> format =
                Ascii<Ch>(signs ? "%2.2d'" : "%2.2d ") +
                FixedFormat<Ch>(d + 2 + point, d, signs ? "\"" : " ");
            number =
                Format(Ascii<Ch>("%03d"), degrees) + degree + Format(format, wholeMinutes, seconds);
            return true;
        }
        default:
            return false;
    }
}

template <class Ch>
bool GeogText(double value, int style, int decimals, int axis, bool hemisphereAfter, bool signs,
              std::basic_string_view<Ch> degreeSign, std::basic_string<Ch>& text) {
    std::basic_string<Ch> number;
    if (!AngleText(value, style, decimals, signs, degreeSign, number)) return false;
    Ch letter = 0;
    if (axis == GEOGS_LATITUDE) letter = value >= 0.0 ? Ch('N') : Ch('S');
    if (axis == GEOGS_LONGITUDE) letter = value >= 0.0 ? Ch('E') : Ch('W');
    if (letter == 0) {
        text = std::move(number);
        return false;
    }
    if (hemisphereAfter) {
        text = std::move(number);
        text += letter;
    } else {
        text.assign(1, letter);
        text += Ch(' ');
        text += number;
    }
    return true;
}

}  // namespace

void DegToDm(double degrees, int& wholeDegrees, double& minutes) {
    const int whole = detail::TruncToInt(degrees);
    wholeDegrees = whole;
    minutes = std::fabs(degrees - whole) * 60.0;
}

void DegToDms(double degrees, int& wholeDegrees, int& wholeMinutes, double& seconds) {
    double minutes = 0.0;
    DegToDm(degrees, wholeDegrees, minutes);
    wholeMinutes = detail::TruncToInt(minutes);
    seconds = (minutes - wholeMinutes) * 60.0;
}

double DmsToDeg(double degrees, double minutes, double seconds) {
    const double angle = std::fabs(degrees) + (seconds / 60.0 + minutes) / 60.0;
    return degrees < 0.0 ? -angle : angle;
}

bool FormatGeogs(double value, int style, int decimals, int axis, CString& text,
                 bool hemisphereAfter, bool signs) {
    return GeogText<char16_t>(value, style, decimals, axis, hemisphereAfter, signs, DegreeSign(),
                              text.Str());
}

bool FormatGeogsA(double value, int style, int decimals, int axis, CStringA& text,
                  bool hemisphereAfter, bool signs) {
    // The active code page may change at run time: the sign is converted now.
    const std::string degreeSign = Utf16ToAnsi(DegreeSign());
    return GeogText<char>(value, style, decimals, axis, hemisphereAfter, signs, degreeSign,
                          text.Str());
}

}  // namespace vex
