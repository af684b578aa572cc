// CVexUnitCnv.h - the table of display units: for each of the 27 unit kinds
// the unit a user reads and types values in, and the factor, offset and
// mnemonic that turn a stored value into that unit and back.
//
// Stored values are in the system units: kind 1 is the system length unit
// (metres unless changed), and the length-relative kinds (speeds, areas,
// volumes, densities ...) are measured in that length unit to their power.
// A unit's factor is its size: for length-relative kinds its linear size in
// metres (for volumes the edge of the unit cube, 0.1 for litres), for the
// other kinds its size in the kind's base unit (bar, kW, tonne, degree ...).
// Display value = stored value * multiplier + offset, where the multiplier
// is recomputed from the factors after every SetUnit. Kinds outside 0-26
// make getters fail and converters return their input.
//
// Not locked: a table belongs to one thread at a time. The process-wide
// table (UnitText.h) is changed from the user-interface thread only.
//
//   vex::CVexUnitCnv units;
//   units.SetUnit(3, 0.3048, 0, u"ft", u"ft", u"International foot");
//   double shown = units.ConvertUnit(3, 3.048);  // 10.0 feet for 3.048 stored metres
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <array>

namespace vex {

class VEXBASE_API CVexUnitCnv {
  public:
    // The number of unit kinds, 0-26.
    static constexpr int kNumKinds = 27;
    // Kind 1: the system length unit, from which the length-relative kinds derive.
    static constexpr int kLengthKind = 1;
    // Kind 24: distance along a line, whose mnemonic follows the length kind's.
    static constexpr int kChainageKind = 24;

    // Not yet initialised: the defaults are filled in by the first operation.
    CVexUnitCnv() = default;

    // Stores factor, offset, mnemonic, key and display name of kind and
    // recomputes every multiplier; false for a kind outside 0-26. A factor
    // of 0 means "no conversion" (multiplier 1).
    bool SetUnit(int kind, double factor, double offset, const CString& mnemonic,
                 const CString& key, const CString& displayName);
    // Reads the five values of kind back; false, outputs unchanged, for a
    // kind outside 0-26.
    bool GetUnit(int kind, double& factor, double& offset, CString& mnemonic, CString& key,
                 CString& displayName) const;
    // The key and display name of kind; empty for a kind outside 0-26.
    CString GetUnitKey(int kind) const;
    CString GetUnitDispName(int kind) const;
    // The mnemonic shown after values of kind; empty for a kind outside
    // 0-26. Kind 24 (distance along a line) follows the length unit: key
    // "Kilometer" gives "K" + the length kind's mnemonic (Km, Kft), key
    // "Station" the length kind's mnemonic.
    CString GetUnitMnem(int kind) const;

    // The derived multiplier, and the power and length-relative flag that
    // are fixed per kind; 1, 1 and false for a kind outside 0-26.
    double GetMultiplier(int kind) const;
    double GetPower(int kind) const;
    bool IsLengthRelative(int kind) const;

    // Display value of a stored value: value * multiplier + offset.
    double ConvertUnit(int kind, double value) const;
    // Stored value of a display value: (value - offset) / multiplier.
    double ConvertFromUnit(int kind, double value) const;
    // A value in a unit of the given factor (and addend) to the stored
    // value: (value - offset of kind) * (factor / base)^power + addend, base
    // being the length kind's factor for length-relative kinds, else 1.
    double ToInternalUnit(int kind, double value, double factor, double addend) const;
    // The inverse of ToInternalUnit: (value - addend) / (factor /
    // base)^power + offset of kind.
    double ToExternalUnit(int kind, double value, double factor, double addend) const;

    // The unit kind of a display format, 0 for formats without a unit.
    static int ConvertFMTtoUNIT(int formatId);
    // The display format of a unit kind, 0 for kinds without one (0, 20,
    // and kinds outside 0-26).
    static int ConvertUNITtoFMT(int kind);

    // Puts every kind back to its default unit (factor 1, or -1 for kind 14;
    // the default mnemonics of the string table; empty keys and names).
    void SetDefaults();
    // True once the defaults were filled in.
    bool IsInitialised() const { return m_initialised; }

  private:
    struct Entry {
        double factor = 1.0;
        CString key;
        CString mnemonic;
        CString displayName;
        double multiplier = 1.0;
        double offset = 0.0;
        double power = 1.0;
        bool lengthRelative = true;
    };

    // Only mutable members change, so const operations may initialise.
    void FillDefaults() const;
    void EnsureInitialised() const;
    void ComputeMultipliers() const;
    // The length kind's factor for length-relative kinds, else 1.
    double GetSystemUnitForConversion(int kind) const;
    // (factor / base)^power of kind: how many stored units one unit of
    // that factor is.
    double ScaleToInternal(int kind, double factor) const;
    static bool IsKind(int kind) { return kind >= 0 && kind < kNumKinds; }

    // Filled in on first use, also by const operations; hence mutable.
    mutable bool m_initialised = false;
    mutable std::array<Entry, kNumKinds> m_units{};
};

}  // namespace vex
