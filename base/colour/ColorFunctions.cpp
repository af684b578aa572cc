// The static colour functions of ColorTable: HSV and HSL conversions, the
// rainbow hue correction, greys, contrast and saturating addition.
#include <base/colour/ColorTable.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vex {
namespace {

// Fractions of a full turn at 201 evenly spaced points of the hue range 0 to
// 240 degrees. Not strictly monotonic: the small dips even out how bright
// the yellows and greens look on screen.
constexpr std::array<double, 201> kRainbowTurns = {
    0,     0.002, 0.006, 0.008, 0.012, 0.015, 0.018, 0.021, 0.024, 0.027, 0.03,  0.033, 0.036,
    0.039, 0.042, 0.045, 0.048, 0.05,  0.054, 0.056, 0.06,  0.062, 0.066, 0.068, 0.072, 0.074,
    0.078, 0.08,  0.084, 0.086, 0.09,  0.093, 0.096, 0.099, 0.102, 0.105, 0.107, 0.11,  0.112,
    0.115, 0.116, 0.119, 0.119, 0.122, 0.122, 0.125, 0.124, 0.127, 0.125, 0.128, 0.124, 0.13,
    0.128, 0.131, 0.129, 0.132, 0.131, 0.134, 0.133, 0.136, 0.135, 0.139, 0.138, 0.144, 0.141,
    0.145, 0.145, 0.148, 0.149, 0.152, 0.154, 0.156, 0.157, 0.16,  0.161, 0.164, 0.165, 0.168,
    0.169, 0.172, 0.173, 0.176, 0.177, 0.18,  0.181, 0.184, 0.185, 0.188, 0.189, 0.192, 0.193,
    0.196, 0.197, 0.2,   0.201, 0.204, 0.206, 0.209, 0.214, 0.218, 0.225, 0.228, 0.238, 0.242,
    0.254, 0.257, 0.271, 0.274, 0.289, 0.292, 0.307, 0.311, 0.324, 0.328, 0.34,  0.343, 0.353,
    0.357, 0.366, 0.37,  0.378, 0.381, 0.389, 0.392, 0.398, 0.402, 0.402, 0.411, 0.416, 0.419,
    0.424, 0.428, 0.433, 0.436, 0.441, 0.445, 0.45,  0.453, 0.458, 0.461, 0.466, 0.47,  0.475,
    0.478, 0.484, 0.487, 0.492, 0.495, 0.501, 0.504, 0.509, 0.512, 0.518, 0.521, 0.526, 0.529,
    0.534, 0.537, 0.542, 0.545, 0.549, 0.552, 0.556, 0.559, 0.562, 0.566, 0.569, 0.572, 0.574,
    0.578, 0.58,  0.583, 0.586, 0.589, 0.592, 0.595, 0.597, 0.601, 0.603, 0.607, 0.609, 0.614,
    0.615, 0.618, 0.621, 0.624, 0.626, 0.63,  0.632, 0.635, 0.638, 0.641, 0.644, 0.643, 0.649,
    0.653, 0.655, 0.658, 0.661, 0.664, 0.667};

unsigned TruncChannel(double unit) {
    return static_cast<unsigned>(std::clamp(unit, 0.0, 1.0) * 255.0);
}

unsigned RoundChannel(double unit) {
    return static_cast<unsigned>(std::lround(std::clamp(unit, 0.0, 1.0) * 255.0));
}

}  // namespace

COLORREF ColorTable::HSVtoRGB(double h, double s, double v) {
    s = std::min(s, 1.0);
    v = std::min(v, 1.0);
    // NaN has no hue either; any other hue is brought onto the circle.
    if (h == -1.0 || std::isnan(h) || std::isinf(h)) {
        const unsigned grey = TruncChannel(v);
        return RGB(grey, grey, grey);
    }
    h = std::fmod(h, 360.0);
    if (h < 0) h += 360.0;
    const double sector = std::floor(h / 60.0);
    const double f = h / 60.0 - sector;
    const double p = v * (1 - s);
    const double q = v * (1 - f * s);
    const double t = v * (1 - (1 - f) * s);
    double r = v;
    double g = p;
    double b = q;
    switch (static_cast<int>(sector)) {
        case 0:
            r = v;
            g = t;
            b = p;
            break;
        case 1:
            r = q;
            g = v;
            b = p;
            break;
        case 2:
            r = p;
            g = v;
            b = t;
            break;
        case 3:
            r = p;
            g = q;
            b = v;
            break;
        case 4:
            r = t;
            g = p;
            b = v;
            break;
        default:
            break;
    }
    return RGB(TruncChannel(r), TruncChannel(g), TruncChannel(b));
}

void ColorTable::RGBtoHSV(COLORREF color, double& h, double& s, double& v) {
    const double r = GetRValue(color) / 255.0;
    const double g = GetGValue(color) / 255.0;
    const double b = GetBValue(color) / 255.0;
    const double max = std::max({r, g, b});
    const double d = max - std::min({r, g, b});
    v = max;
    if (d == 0) {
        h = -1;
        s = 0;
        return;
    }
    s = d / max;
    if (r == max) {
        h = 60.0 * ((g - b) / d);
    } else if (g == max) {
        h = 60.0 * ((b - r) / d + 2);
    } else {
        h = 60.0 * ((r - g) / d + 4);
    }
    if (h < 0) h += 360.0;
}

void ColorTable::RGBtoHSL(COLORREF color, double& h, double& s, double& l) {
    const double r = GetRValue(color) / 255.0;
    const double g = GetGValue(color) / 255.0;
    const double b = GetBValue(color) / 255.0;
    const double max = std::max({r, g, b});
    const double min = std::min({r, g, b});
    const double d = max - min;
    l = (max + min) / 2;
    if (d == 0) {
        h = 0;
        s = 0;
        return;
    }
    s = l < 0.5 ? d / (max + min) : d / (2 - max - min);
    const double dr = ((max - r) / 6 + d / 2) / d;
    const double dg = ((max - g) / 6 + d / 2) / d;
    const double db = ((max - b) / 6 + d / 2) / d;
    if (r == max) {
        h = db - dg;
    } else if (g == max) {
        h = 1.0 / 3 + dr - db;
    } else {
        h = 2.0 / 3 + dg - dr;
    }
    if (h < 0) h += 1;
    if (h >= 1) h -= 1;
}

double ColorTable::Hue_2_RGB(double v1, double v2, double vH) {
    if (vH < 0) vH += 1;
    if (vH > 1) vH -= 1;
    if (6 * vH < 1) return v1 + (v2 - v1) * 6 * vH;
    if (2 * vH < 1) return v2;
    if (3 * vH < 2) return v1 + (v2 - v1) * (2.0 / 3 - vH) * 6;
    return v1;
}

// Rounded rather than truncated, so that RGB -> HSL -> RGB gives the colour back.
COLORREF ColorTable::HSLtoRGB(double h, double s, double l) {
    if (s == 0) {
        const unsigned grey = RoundChannel(l);
        return RGB(grey, grey, grey);
    }
    const double v2 = l < 0.5 ? l * (1 + s) : (l + s) - s * l;
    const double v1 = 2 * l - v2;
    return RGB(RoundChannel(Hue_2_RGB(v1, v2, h + 1.0 / 3)), RoundChannel(Hue_2_RGB(v1, v2, h)),
               RoundChannel(Hue_2_RGB(v1, v2, h - 1.0 / 3)));
}

void ColorTable::NiceRainbowCorrection(double& hue) {
    if (hue < 0) return;
    if (hue < 240) {
        const double x = hue / 240.0 * 200.0;
        const auto i = static_cast<std::size_t>(x);
        const double f = x - static_cast<double>(i);
        hue = (kRainbowTurns[i] + f * (kRainbowTurns[i + 1] - kRainbowTurns[i])) * 360.0;
    } else if (hue >= 240) {
        hue = ((hue - 240) * 0.333 / 120 + 0.667) * 360.0;
    }
}

COLORREF ColorTable::ColorToGray(COLORREF color) {
    const auto grey = static_cast<unsigned>(0.3 * GetRValue(color) + 0.59 * GetGValue(color) +
                                            0.11 * GetBValue(color));
    return RGB(grey, grey, grey);
}

COLORREF ColorTable::GetContrastColor(COLORREF color) {
    const double luminance =
        0.3 * GetRValue(color) + 0.59 * GetGValue(color) + 0.11 * GetBValue(color);
    return luminance > 127.5 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

COLORREF ColorTable::ScaleIntensity(COLORREF color, double factor) {
    double h = 0;
    double s = 0;
    double l = 0;
    RGBtoHSL(color, h, s, l);
    return HSLtoRGB(h, s, std::clamp(l * factor, 0.0, 1.0));
}

COLORREF ColorTable::AddColors(COLORREF a, COLORREF b) {
    return RGB(std::min(GetRValue(a) + GetRValue(b), 255u),
               std::min(GetGValue(a) + GetGValue(b), 255u),
               std::min(GetBValue(a) + GetBValue(b), 255u));
}

}  // namespace vex
