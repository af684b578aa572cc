// ColorTable.h - banded value-to-colour tables: depths, depth differences,
// file numbers and intensities are coloured through them.
//
// A table is an ascending list of entries (start value, colour, lock flag,
// name). An entry colours every value from its own start value up to the
// next entry's start value, so a value equal to a start value takes that
// entry's colour; values below the first entry take LowColor. Colours are
// COLORREF words 0x00BBGGRR. Tables are built by the generators below or
// read from and written to a configuration file (sections "Colors",
// "Values", "Locks", "Names" and "DredgeDiff"). A table is a plain value:
// copy it freely; const lookups may run on many threads at once.
//
//   vex::ColorTable depths;
//   depths.SetRange(-20.0, 0.0, 12, true, false);   // blue (deep) to red
//   vex::COLORREF c = depths.GetColor(-7.5);
#pragma once

#include <base/Export.h>
#include <base/colour/DisplayPalette.h>
#include <base/framework/CString.h>
#include <base/framework/ColorRef.h>
#include <base/framework/PaletteEntry.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace vex {

class FileObject;

class VEXBASE_API ColorTable {
  public:
    // Empty table, LowColor black, the dredging defaults (grey/silver under
    // dredge, green/yellow in tolerance, red/dark red over dredge, five
    // colours each, limits +0.5 and -0.5).
    ColorTable();
    ColorTable(const ColorTable&);
    ColorTable(ColorTable&&) noexcept;
    ColorTable& operator=(const ColorTable&);
    ColorTable& operator=(ColorTable&&) noexcept;
    ~ColorTable();

    // --- file -----------------------------------------------------------------
    // Replaces the entries and LowColor with the file's. A missing "Colors"
    // key for a value present returns false at once (the entries read so far
    // stay). Malformed values, colours, locks and dredge settings set the
    // file's status to 6 (or throw FileObjectError in its throw mode); a bad
    // value ends the entry list. Entries out of order are dropped.
    bool FileOpen(FileObject& file);
    // Writes LowColor, every entry and, when HasDredgeDiffSection(), the
    // thirteen dredge settings.
    bool FileSave(FileObject& file) const;
    bool HasOpened() const { return m_hasOpened; }
    // Empties the entries, LowColor black, LowColorName "", HasOpened false;
    // the dredge settings stay.
    void Clear();

    // --- low colour -------------------------------------------------------------
    void SetLowColor(COLORREF color) { m_lowColor = color; }
    COLORREF LowColor() const { return m_lowColor; }
    void SetLowColorName(const CString& name) { m_lowColorName = name; }
    CString LowColorName() const { return m_lowColorName; }

    // --- entries (indices 0-based; out-of-range indices read as 0, false or
    // "" and are ignored by the setters) -----------------------------------------
    // Appends; false and no change unless value is above the last value.
    bool AddEntry(double value, COLORREF color, bool locked, CString name);
    // Inserts before the first entry whose value is not smaller (an equal
    // value goes first), named ""; returns the new index.
    int InsertEntry(double value, COLORREF color, bool locked);
    void RemoveEntry(int index);
    void ClearEntries();
    int NumEntries() const { return static_cast<int>(m_values.size()); }
    int NumLocked() const;
    double EntryValue(int index) const;
    COLORREF EntryColor(int index) const;
    bool EntryLocked(int index) const;
    CString EntryName(int index) const;
    void SetEntryColor(int index, COLORREF color);
    void SetEntryName(int index, CString name);
    // Refuses (false) a value not strictly between its neighbours' values.
    bool SetEntryValue(int index, double value);

    // --- lookups ----------------------------------------------------------------
    // The colour of the last entry whose value is <= value; LowColor below
    // the first entry, for an empty table and for NaN.
    // Inline: displays call it for every cell.
    COLORREF GetColor(double value) const {
        const int i = FindEntry(value);
        return i < 0 ? m_lowColor : m_colors[static_cast<std::size_t>(i)];
    }
    // The same search returning the entry's name (LowColorName below).
    CString GetName(double value) const {
        const int i = FindEntry(value);
        return i < 0 ? m_lowColorName : m_names[static_cast<std::size_t>(i)];
    }
    // The bands that cover [min, max]: colors[i] starts at values[i] (the
    // last value is cut to max). Both outputs are cleared first. A table
    // starting above min repeats its (LowColor, min) pair at the front, which
    // readers of the range rely on; a table starting above max gives only
    // LowColor and no values. Returns colors.size().
    int GetColorRange(double min, double max, std::vector<COLORREF>& colors,
                      std::vector<double>& values) const;

    // --- generators -------------------------------------------------------------
    // The Set family first removes every unlocked entry; locked ones stay,
    // so two entries may then share a value. An int count gives the step
    // (max - min) / (max(count, 3) - 2). Ramps of more than a million
    // entries are refused (nothing is added).
    //
    // Hue ramps: LowColor is `from`, the entries step through the hue circle
    // to `to`, the long way round when the hues differ by more than 25
    // degrees (so two clearly different hues span the rainbow between them).
    // rainbow: blue to red, else black to white; reverse swaps the ends.
    void SetRange(double min, double max, int numColors, bool rainbow, bool reverse);
    void SetRange(double min, double max, double step, bool rainbow, bool reverse);
    void SetRange(double min, double max, int numColors, COLORREF from, COLORREF to);
    void SetRange(double min, double max, double step, COLORREF from, COLORREF to);
    // Straight RGB ramps from LowColor `from` to a last entry `to`.
    void SetRangeRGB(double min, double max, int numColors, COLORREF from, COLORREF to);
    void SetRangeRGB(double min, double max, double step, COLORREF from, COLORREF to);
    // Two RGB ramps, from `from` to `mid` and on to `to`; one entry fewer
    // than SetRangeRGB with the same step.
    void SetRangeRGB3(double min, double max, int numColors, COLORREF from, COLORREF mid,
                      COLORREF to);
    void SetRangeRGB3(double min, double max, double step, COLORREF from, COLORREF mid,
                      COLORREF to);
    // Merge a ramp into the table: every entry in [min, max] is removed,
    // locked or not, then the ramp's entries are inserted (hue or RGB).
    void AddRange(double min, double max, int numColors, COLORREF from, COLORREF to, bool rgb);
    void AddRange(double min, double max, double step, COLORREF from, COLORREF to, bool rgb);
    void AddRange3(double min, double max, int numColors, COLORREF from, COLORREF mid, COLORREF to);
    void AddRange3(double min, double max, double step, COLORREF from, COLORREF mid, COLORREF to);
    // A hue ramp evenly spaced in log10 from 1 to maxValue; starts from Clear().
    void SetLogRange(double maxValue, int numColors, bool rainbow);
    // Colours for file numbers: files 2 to 12 by the ramp, file 13 by
    // LowColor, then the colours repeat every eleven files. Starts from Clear().
    void MakeFileColors(int numFiles, COLORREF from, COLORREF to);
    // Entries min + i * (max - min) / (count - 2) for palette[0 .. count - 2],
    // LowColor palette[0]; nothing for count < 3 or a null palette.
    void SetColorPalette(double min, double max, int count, const PALETTEENTRY* palette);
    void SetColorPalette(double min, double max,
                         const std::shared_ptr<const DisplayPalette>& palette);

    // --- dredge difference --------------------------------------------------------
    // Positive differences are too shallow (under dredge), negative too deep.
    bool HasDredgeDiffSection() const { return m_hasDredgeDiffSection; }
    void SetDredgeDiffColTab(bool isDredgeDiff) { m_hasDredgeDiffSection = isDredgeDiff; }
    void GetUnderDredgeColorRange(COLORREF& min, COLORREF& max, unsigned& numColors) const;
    void GetInTolColorRange(COLORREF& min, COLORREF& max, unsigned& numColors) const;
    void GetOverDredgeColorRange(COLORREF& min, COLORREF& max, unsigned& numColors) const;
    void SetUnderDredgeColorRange(COLORREF min, COLORREF max, unsigned numColors);
    void SetInTolColorRange(COLORREF min, COLORREF max, unsigned numColors);
    void SetOverDredgeColorRange(COLORREF min, COLORREF max, unsigned numColors);
    double GetUnderDredgeLimit() const { return m_underDredgeLimit; }
    void SetUnderDredgeLimit(double limit) { m_underDredgeLimit = limit; }
    double GetOverDredgeLimit() const { return m_overDredgeLimit; }
    void SetOverDredgeLimit(double limit) { m_overDredgeLimit = limit; }
    void GetSyncWithDesignModel(bool& sync) const { sync = m_syncWithDesign; }
    void SetSyncWithDesignModel(bool sync) { m_syncWithDesign = sync; }
    // Rebuilds every entry from the twelve settings: the under-dredge band
    // spans 2.0 above UnderDredgeLimit, the in-tolerance band lies between
    // the limits and the over-dredge band spans 2.0 below OverDredgeLimit.
    // A positive OverDredgeLimit is negated and limits in the wrong order
    // are swapped (and stored so).
    void GenerateDredgeDiffColorTable();

    // --- colour functions -----------------------------------------------------------
    // h in degrees [0, 360) or -1 (no hue: grey); s, v in [0, 1].
    static COLORREF HSVtoRGB(double h, double s, double v);
    // h is -1 for greys.
    static void RGBtoHSV(COLORREF color, double& h, double& s, double& v);
    // h in [0, 1), s and l in [0, 1].
    static void RGBtoHSL(COLORREF color, double& h, double& s, double& l);
    static COLORREF HSLtoRGB(double h, double s, double l);
    // One channel of HSLtoRGB: v1, v2 the HSL helper values, vH the shifted hue.
    static double Hue_2_RGB(double v1, double v2, double vH);
    // Remaps a hue in degrees so that equal hue steps look equally far apart;
    // negative hues (grey) are left alone.
    static void NiceRainbowCorrection(double& hue);
    // The grey of the colour's luminance 0.3 R + 0.59 G + 0.11 B.
    static COLORREF ColorToGray(COLORREF color);
    // Black on light colours, white on dark ones.
    static COLORREF GetContrastColor(COLORREF color);
    // The colour with its HSL lightness multiplied by factor.
    static COLORREF ScaleIntensity(COLORREF color, double factor);
    // Channel-wise sum, saturating at 255.
    static COLORREF AddColors(COLORREF a, COLORREF b);

  private:
    void RemoveUnlocked();
    void RemoveInside(double min, double max);
    bool StartRgbRamp(double min, double max, double step, COLORREF from, COLORREF to, int& count);
    bool StartMerge(double min, double max, double step, COLORREF from, int& count);
    void InsertHueRamp(double min, double step, int count, COLORREF from, COLORREF to);
    void InsertRgb3Ramp(double min, double step, int n, COLORREF from, COLORREF mid, COLORREF to);
    // The index of the last entry whose value is <= value, -1 for none.
    // Defined in the class so that it is inline in every build, also where
    // the class is imported from a DLL.
    // Depth tables are mostly evenly spaced, so the entry is first guessed from
    // where the value lies between the first and last start values; a wrong
    // guess still narrows the binary search to one side of it. On tables far
    // from even (logarithmic ones) the guess is nearly always wrong and costs
    // more than it saves, so there the search runs over the whole table.
    int FindEntry(double value) const {
        const double* v = m_values.data();
        const std::size_t size = m_values.size();
        if (size == 0 || !(v[0] <= value)) return -1;  // also NaN
        const std::size_t n = size - 1;
        if (value >= v[n]) return static_cast<int>(n);
        // From here v[0] <= value < v[n], so the answer lies in [0, n - 1].
        if (!(m_indexScale > 0)) return static_cast<int>(std::upper_bound(v, v + n, value) - v) - 1;
        const double estimate = (value - v[0]) * m_indexScale;
        const std::size_t g = estimate >= 0 && estimate < static_cast<double>(n)
                                  ? static_cast<std::size_t>(estimate)
                                  : n - 1;
        if (v[g + 1] > value) {
            if (value >= v[g]) return static_cast<int>(g);
            return static_cast<int>(std::upper_bound(v, v + g, value) - v) - 1;
        }
        return static_cast<int>(std::upper_bound(v + g + 1, v + n, value) - v) - 1;
    }
    void UpdateIndexScale();

    COLORREF m_maxUnderDredgeColor;
    COLORREF m_minUnderDredgeColor;
    COLORREF m_maxInToleranceColor;
    COLORREF m_minInToleranceColor;
    COLORREF m_maxOverDredgeColor;
    COLORREF m_minOverDredgeColor;
    bool m_syncWithDesign = false;
    unsigned m_numColorsUnderDredge = 5;
    unsigned m_numColorsInTolerance = 5;
    unsigned m_numColorsOverDredge = 5;
    double m_underDredgeLimit = 0.5;
    double m_overDredgeLimit = -0.5;
    bool m_hasDredgeDiffSection = false;
    COLORREF m_lowColor = 0;
    std::vector<double> m_values;
    std::vector<COLORREF> m_colors;
    std::vector<bool> m_locks;
    std::vector<CString> m_names;
    CString m_lowColorName;
    bool m_hasOpened = false;
    // (number of entries - 1) / (last value - first value), the slope of
    // FindEntry's first guess; 0 when the table is too uneven for guessing.
    double m_indexScale = 0;
};

}  // namespace vex
