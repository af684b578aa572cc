// ColorTable: entries, lookups and the generators.
#include <base/colour/ColorTable.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vex {
namespace {

constexpr COLORREF kBlue = 0xFF0000;
constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kBlack = 0;

// Generators refuse ramps longer than this: a step of 1e-12 over a depth
// range is a typing slip, not a table anyone can draw.
constexpr double kMaxRampEntries = 1e6;

// ceil((max - min) / step) when it is a sensible entry count (NaN, infinite
// and huge counts are not).
bool RampCount(double min, double max, double step, int& count) {
    const double c = std::ceil((max - min) / step);
    if (!(std::abs(c) <= kMaxRampEntries)) return false;
    count = static_cast<int>(c);
    return true;
}

double StepForCount(double min, double max, int numColors) {
    return (max - min) / (std::max(numColors, 3) - 2);
}

// trunc(a_c + num * (b_c - a_c) / den) in each channel: the point num/den of
// the way from a to b.
COLORREF Blend(COLORREF a, COLORREF b, double num, double den) {
    const auto channel = [&](unsigned ca, unsigned cb) {
        const double c = ca + num * (static_cast<double>(cb) - ca) / den;
        return static_cast<unsigned>(std::clamp(c, 0.0, 255.0));
    };
    return RGB(channel(GetRValue(a), GetRValue(b)), channel(GetGValue(a), GetGValue(b)),
               channel(GetBValue(a), GetBValue(b)));
}

// The hue ramp between two colours: hue, saturation and value step evenly,
// the hue the long way round the circle unless the two hues are close.
class HueRamp {
  public:
    HueRamp(COLORREF from, COLORREF to) {
        double hT = 0;
        double sT = 0;
        double vT = 0;
        ColorTable::RGBtoHSV(from, m_h, m_s, m_v);
        ColorTable::RGBtoHSV(to, hT, sT, vT);
        // A grey has no hue of its own: it takes the other end's.
        if (hT < 0) hT = m_h;
        if (m_h < 0) m_h = hT;
        double d = hT - m_h;
        const double size = std::abs(d);
        if (size > 25 && size < 335) {
            if (d > 0 && d < 180) {
                d -= 360;
            } else if (d < 0 && d > -180) {
                d += 360;
            }
        } else if (d > 180) {
            d -= 360;
        } else if (d < -180) {
            d += 360;
        }
        m_dh = d;
        m_ds = sT - m_s;
        m_dv = vT - m_v;
    }

    // The colour `step` of `steps` along the ramp.
    COLORREF At(double step, double steps) const {
        double h = m_h + step * m_dh / steps;
        if (h < 0) {
            h += 360;
        } else if (h >= 360) {
            h -= 360;
        }
        ColorTable::NiceRainbowCorrection(h);
        return ColorTable::HSVtoRGB(h, m_s + step * m_ds / steps, m_v + step * m_dv / steps);
    }

  private:
    double m_h = 0;
    double m_s = 0;
    double m_v = 0;
    double m_dh = 0;
    double m_ds = 0;
    double m_dv = 0;
};

// The low colour of a hue ramp: `from` as the ramp's own colour model sees it.
COLORREF HueRampLowColor(COLORREF from) {
    double h = 0;
    double s = 0;
    double v = 0;
    ColorTable::RGBtoHSV(from, h, s, v);
    ColorTable::NiceRainbowCorrection(h);
    return ColorTable::HSVtoRGB(h, s, v);
}

}  // namespace

ColorTable::ColorTable()
    : m_maxUnderDredgeColor(0x808080),
      m_minUnderDredgeColor(0xC0C0C0),
      m_maxInToleranceColor(0x00FF00),
      m_minInToleranceColor(0x00FFFF),
      m_maxOverDredgeColor(0x0000FF),
      m_minOverDredgeColor(0x0000C8) {}

ColorTable::ColorTable(const ColorTable&) = default;
ColorTable::ColorTable(ColorTable&&) noexcept = default;
ColorTable& ColorTable::operator=(const ColorTable&) = default;
ColorTable& ColorTable::operator=(ColorTable&&) noexcept = default;
ColorTable::~ColorTable() = default;

void ColorTable::Clear() {
    ClearEntries();
    m_lowColor = 0;
    m_lowColorName.Empty();
    m_hasOpened = false;
}

// --- entries -------------------------------------------------------------------

bool ColorTable::AddEntry(double value, COLORREF color, bool locked, CString name) {
    if (!m_values.empty() && !(m_values.back() < value)) return false;
    m_values.push_back(value);
    m_colors.push_back(color);
    m_locks.push_back(locked);
    m_names.push_back(std::move(name));
    UpdateIndexScale();
    return true;
}

int ColorTable::InsertEntry(double value, COLORREF color, bool locked) {
    const auto at = std::lower_bound(m_values.begin(), m_values.end(), value) - m_values.begin();
    m_values.insert(m_values.begin() + at, value);
    m_colors.insert(m_colors.begin() + at, color);
    m_locks.insert(m_locks.begin() + at, locked);
    m_names.insert(m_names.begin() + at, CString());
    UpdateIndexScale();
    return static_cast<int>(at);
}

void ColorTable::RemoveEntry(int index) {
    if (index < 0 || index >= NumEntries()) return;
    m_values.erase(m_values.begin() + index);
    m_colors.erase(m_colors.begin() + index);
    m_locks.erase(m_locks.begin() + index);
    m_names.erase(m_names.begin() + index);
    UpdateIndexScale();
}

void ColorTable::ClearEntries() {
    m_values.clear();
    m_colors.clear();
    m_locks.clear();
    m_names.clear();
    UpdateIndexScale();
}

int ColorTable::NumLocked() const {
    return static_cast<int>(std::count(m_locks.begin(), m_locks.end(), true));
}

double ColorTable::EntryValue(int index) const {
    return index >= 0 && index < NumEntries() ? m_values[static_cast<std::size_t>(index)] : 0.0;
}

COLORREF ColorTable::EntryColor(int index) const {
    return index >= 0 && index < NumEntries() ? m_colors[static_cast<std::size_t>(index)] : 0;
}

bool ColorTable::EntryLocked(int index) const {
    return index >= 0 && index < NumEntries() && m_locks[static_cast<std::size_t>(index)];
}

CString ColorTable::EntryName(int index) const {
    return index >= 0 && index < NumEntries() ? m_names[static_cast<std::size_t>(index)]
                                              : CString();
}

void ColorTable::SetEntryColor(int index, COLORREF color) {
    if (index >= 0 && index < NumEntries()) m_colors[static_cast<std::size_t>(index)] = color;
}

void ColorTable::SetEntryName(int index, CString name) {
    if (index >= 0 && index < NumEntries())
        m_names[static_cast<std::size_t>(index)] = std::move(name);
}

bool ColorTable::SetEntryValue(int index, double value) {
    if (index < 0 || index >= NumEntries()) return false;
    const auto i = static_cast<std::size_t>(index);
    if (i > 0 && !(m_values[i - 1] < value)) return false;
    if (i + 1 < m_values.size() && !(value < m_values[i + 1])) return false;
    m_values[i] = value;
    UpdateIndexScale();
    return true;
}

// --- lookups -------------------------------------------------------------------

// Kept with the values so that a lookup multiplies instead of dividing. The
// quarter points tell whether the first guess can land: when one of them is
// more than two entries from where an even table would have it, the table
// is searched without a guess (scale 0).
void ColorTable::UpdateIndexScale() {
    const std::size_t size = m_values.size();
    m_indexScale = 0;
    if (size < 2) return;
    const std::size_t n = size - 1;
    const double span = m_values[n] - m_values[0];
    if (!(span > 0) || !std::isfinite(span)) return;
    const double scale = static_cast<double>(n) / span;
    for (const std::size_t i : {n / 4, n / 2, n - n / 4}) {
        const double guess = (m_values[i] - m_values[0]) * scale;
        if (std::abs(guess - static_cast<double>(i)) > 2.0) return;
    }
    m_indexScale = scale;
}

int ColorTable::GetColorRange(double min, double max, std::vector<COLORREF>& colors,
                              std::vector<double>& values) const {
    colors.clear();
    values.clear();
    if (m_values.empty() || m_values[0] > max) {
        colors.push_back(m_lowColor);
        return 1;
    }
    if (m_values[0] > min) {
        colors.push_back(m_lowColor);
        values.push_back(min);
    }
    const auto k = static_cast<std::size_t>(
        std::lower_bound(m_values.begin(), m_values.end(), min) - m_values.begin());
    if (k == m_values.size()) return static_cast<int>(colors.size());
    colors.push_back(k == 0 ? m_lowColor : m_colors[k - 1]);
    values.push_back(min);
    for (std::size_t i = k; i < m_values.size(); ++i) {
        colors.push_back(m_colors[i]);
        if (m_values[i] > max) {
            values.push_back(max);
            break;
        }
        values.push_back(m_values[i]);
    }
    return static_cast<int>(colors.size());
}

// --- generators ------------------------------------------------------------------

void ColorTable::RemoveUnlocked() {
    for (int i = NumEntries() - 1; i >= 0; --i) {
        if (!m_locks[static_cast<std::size_t>(i)]) RemoveEntry(i);
    }
}

void ColorTable::RemoveInside(double min, double max) {
    for (int i = NumEntries() - 1; i >= 0; --i) {
        const double v = m_values[static_cast<std::size_t>(i)];
        if (v >= min && v <= max) RemoveEntry(i);
    }
}

void ColorTable::InsertHueRamp(double min, double step, int count, COLORREF from, COLORREF to) {
    const HueRamp ramp(from, to);
    const double steps = count + 1;
    for (int i = 0; i <= count; ++i) {
        InsertEntry(min + i * step, ramp.At(i + 1, steps), false);
    }
}

void ColorTable::SetRange(double min, double max, int numColors, bool rainbow, bool reverse) {
    SetRange(min, max, StepForCount(min, max, numColors), rainbow, reverse);
}

void ColorTable::SetRange(double min, double max, double step, bool rainbow, bool reverse) {
    COLORREF from = rainbow ? kBlue : kBlack;
    COLORREF to = rainbow ? kRed : kWhite;
    if (reverse) std::swap(from, to);
    SetRange(min, max, step, from, to);
}

void ColorTable::SetRange(double min, double max, int numColors, COLORREF from, COLORREF to) {
    SetRange(min, max, StepForCount(min, max, numColors), from, to);
}

void ColorTable::SetRange(double min, double max, double step, COLORREF from, COLORREF to) {
    RemoveUnlocked();
    m_lowColor = HueRampLowColor(from);
    if (step == 0 || min == max) {
        InsertEntry(min, to, false);
        return;
    }
    int count = 0;
    if (!RampCount(min, max, step, count) || count < 1) return;
    InsertHueRamp(min, step, count, from, to);
}

void ColorTable::SetRangeRGB(double min, double max, int numColors, COLORREF from, COLORREF to) {
    SetRangeRGB(min, max, StepForCount(min, max, numColors), from, to);
}

// The start of the RGB generators: a degenerate range gives the one entry
// (min, to); false when nothing more is to be added.
bool ColorTable::StartRgbRamp(double min, double max, double step, COLORREF from, COLORREF to,
                              int& count) {
    RemoveUnlocked();
    m_lowColor = from;
    if (step == 0 || min == max) {
        InsertEntry(min, to, false);
        return false;
    }
    return RampCount(min, max, step, count);
}

// The start of the merging generators; false when nothing is to be added.
bool ColorTable::StartMerge(double min, double max, double step, COLORREF from, int& count) {
    if (step == 0 || min == max) return false;
    RemoveInside(min, max);
    if (m_values.empty() || m_values[0] >= min) m_lowColor = from;
    return RampCount(min, max, step, count);
}

void ColorTable::SetRangeRGB(double min, double max, double step, COLORREF from, COLORREF to) {
    int count = 0;
    if (!StartRgbRamp(min, max, step, from, to, count)) return;
    const int n = count + 2;
    if (n < 3) return;
    for (int i = 0; i <= n - 2; ++i) {
        InsertEntry(min + i * step, Blend(from, to, i + 1, n - 1), false);
    }
}

void ColorTable::SetRangeRGB3(double min, double max, int numColors, COLORREF from, COLORREF mid,
                              COLORREF to) {
    SetRangeRGB3(min, max, StepForCount(min, max, numColors), from, mid, to);
}

void ColorTable::SetRangeRGB3(double min, double max, double step, COLORREF from, COLORREF mid,
                              COLORREF to) {
    int count = 0;
    if (StartRgbRamp(min, max, step, from, to, count)) {
        InsertRgb3Ramp(min, step, count + 2, from, mid, to);
    }
}

// The two RGB ramps of the three-colour generators over n - 2 entries: the
// first ends on mid, the second on to.
void ColorTable::InsertRgb3Ramp(double min, double step, int n, COLORREF from, COLORREF mid,
                                COLORREF to) {
    if (n < 3) return;
    const int h = n / 2;
    for (int i = 0; i <= h - 2; ++i) {
        InsertEntry(min + i * step, Blend(from, mid, i + 1, h - 1), false);
    }
    for (int j = h - 1; j <= n - 3; ++j) {
        InsertEntry(min + j * step, Blend(mid, to, j - h + 2, n - h - 1), false);
    }
}

void ColorTable::AddRange(double min, double max, int numColors, COLORREF from, COLORREF to,
                          bool rgb) {
    AddRange(min, max, StepForCount(min, max, numColors), from, to, rgb);
}

void ColorTable::AddRange(double min, double max, double step, COLORREF from, COLORREF to,
                          bool rgb) {
    int count = 0;
    if (!StartMerge(min, max, step, from, count) || count < 1) return;
    if (!rgb) {
        InsertHueRamp(min, step, count, from, to);
        return;
    }
    for (int i = 0; i <= count; ++i) {
        InsertEntry(min + i * step, Blend(from, to, i + 1, count + 1), false);
    }
}

void ColorTable::AddRange3(double min, double max, int numColors, COLORREF from, COLORREF mid,
                           COLORREF to) {
    AddRange3(min, max, StepForCount(min, max, numColors), from, mid, to);
}

void ColorTable::AddRange3(double min, double max, double step, COLORREF from, COLORREF mid,
                           COLORREF to) {
    int count = 0;
    if (StartMerge(min, max, step, from, count))
        InsertRgb3Ramp(min, step, count + 2, from, mid, to);
}

void ColorTable::SetLogRange(double maxValue, int numColors, bool rainbow) {
    Clear();
    const double top = std::log10(maxValue);
    SetRange(0.0, top, top / (numColors - 2), rainbow ? kBlue : kBlack, rainbow ? kRed : kWhite);
    for (double& v : m_values)
        v = std::pow(10.0, v);
    UpdateIndexScale();
}

void ColorTable::MakeFileColors(int numFiles, COLORREF from, COLORREF to) {
    Clear();
    if (numFiles < 2) return;
    const int k = std::max(std::min(numFiles, 12), 3);
    SetRange(2.0, k, 1.0, from, to);
    if (numFiles <= k) return;
    AddEntry(k + 1, m_lowColor, false, CString());
    for (int v = k + 2; v <= numFiles; ++v) {
        AddEntry(v, GetColor(v - 11), false, CString());
    }
}

void ColorTable::SetColorPalette(double min, double max, int count, const PALETTEENTRY* palette) {
    if (count < 3 || palette == nullptr) return;
    const auto color = [palette](int i) {
        const PALETTEENTRY& e = palette[i];
        return RGB(e.peRed, e.peGreen, e.peBlue);
    };
    RemoveUnlocked();
    const double step = (max - min) / (count - 2);
    m_lowColor = color(0);
    if (step == 0 || min == max) {
        InsertEntry(min, color(count - 1), false);
        return;
    }
    for (int i = 0; i <= count - 2; ++i) {
        InsertEntry(min + i * step, color(i), false);
    }
}

void ColorTable::SetColorPalette(double min, double max,
                                 const std::shared_ptr<const DisplayPalette>& palette) {
    if (!palette) return;
    SetColorPalette(min, max, static_cast<int>(palette->entries.size()), palette->entries.data());
}

// --- dredge difference ------------------------------------------------------------

void ColorTable::GetUnderDredgeColorRange(COLORREF& min, COLORREF& max, unsigned& numColors) const {
    min = m_minUnderDredgeColor;
    max = m_maxUnderDredgeColor;
    numColors = m_numColorsUnderDredge;
}

void ColorTable::GetInTolColorRange(COLORREF& min, COLORREF& max, unsigned& numColors) const {
    min = m_minInToleranceColor;
    max = m_maxInToleranceColor;
    numColors = m_numColorsInTolerance;
}

void ColorTable::GetOverDredgeColorRange(COLORREF& min, COLORREF& max, unsigned& numColors) const {
    min = m_minOverDredgeColor;
    max = m_maxOverDredgeColor;
    numColors = m_numColorsOverDredge;
}

void ColorTable::SetUnderDredgeColorRange(COLORREF min, COLORREF max, unsigned numColors) {
    m_minUnderDredgeColor = min;
    m_maxUnderDredgeColor = max;
    m_numColorsUnderDredge = numColors;
}

void ColorTable::SetInTolColorRange(COLORREF min, COLORREF max, unsigned numColors) {
    m_minInToleranceColor = min;
    m_maxInToleranceColor = max;
    m_numColorsInTolerance = numColors;
}

void ColorTable::SetOverDredgeColorRange(COLORREF min, COLORREF max, unsigned numColors) {
    m_minOverDredgeColor = min;
    m_maxOverDredgeColor = max;
    m_numColorsOverDredge = numColors;
}

void ColorTable::GenerateDredgeDiffColorTable() {
    if (m_overDredgeLimit > 0) m_overDredgeLimit = -m_overDredgeLimit;
    if (m_overDredgeLimit > m_underDredgeLimit) std::swap(m_overDredgeLimit, m_underDredgeLimit);
    ClearEntries();
    m_lowColor = m_minUnderDredgeColor;
    const double under = m_underDredgeLimit;
    const double over = m_overDredgeLimit;
    // Counts come from files; a band of more than a million colours is a typo.
    const auto bandSize = [](unsigned n) {
        return static_cast<int>(std::min<unsigned>(n, static_cast<unsigned>(kMaxRampEntries)));
    };

    const int nUnder = bandSize(m_numColorsUnderDredge);
    if (nUnder >= 2) {
        for (int i = 0; i < nUnder; ++i) {
            InsertEntry(under + i * 2.0 / (nUnder - 1),
                        Blend(m_minUnderDredgeColor, m_maxUnderDredgeColor, i, nUnder - 1), false);
        }
    } else {
        InsertEntry(under, m_minUnderDredgeColor, false);
    }

    if (under != over) {
        const int nTol = bandSize(m_numColorsInTolerance);
        if (nTol >= 3) {
            for (int i = 0; i < nTol; ++i) {
                InsertEntry(over + i * (under - over) / nTol,
                            Blend(m_minInToleranceColor, m_maxInToleranceColor, i, nTol - 1),
                            false);
            }
        } else if (nTol == 2) {
            InsertEntry(0.0, m_maxInToleranceColor, false);
            InsertEntry(over, m_minInToleranceColor, false);
        } else {
            InsertEntry(over, m_maxInToleranceColor, false);
        }
    }

    const int nOver = bandSize(m_numColorsOverDredge);
    if (nOver >= 2) {
        m_lowColor = m_minOverDredgeColor;
        for (int i = 1; i < nOver; ++i) {
            InsertEntry(over - 2.0 + (i - 1) * 2.0 / (nOver - 1),
                        Blend(m_minOverDredgeColor, m_maxOverDredgeColor, i, nOver - 1), false);
        }
    } else {
        m_lowColor = m_maxOverDredgeColor;
    }
}

}  // namespace vex
