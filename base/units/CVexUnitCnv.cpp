#include <base/units/CVexUnitCnv.h>

#include <base/framework/StringResources.h>

#include <cmath>
#include <iterator>

namespace vex {
namespace {

struct KindDefaults {
    double power;
    bool lengthRelative;
};

// Power and length-relative flag of kinds 0-26; the mnemonics come from the
// string table (IDS_UNIT_MNEMONIC_0 + kind).
constexpr KindDefaults kKindDefaults[CVexUnitCnv::kNumKinds] = {
    {1, true},  {1, true},  {1, true},  {1, true},  {1, true},   // 0-4
    {3, true},  {3, true},  {1, true},  {1, false}, {1, true},   // 5-9
    {1, false}, {1, false}, {1, false}, {1, false}, {1, false},  // 10-14
    {1, false}, {1, true},  {1, true},  {3, true},  {1, false},  // 15-19
    {2, true},  {1, false}, {1, true},  {1, false}, {1, true},   // 20-24
    {1, true},  {3, true},                                       // 25-26
};

struct FormatKind {
    int formatId;
    int kind;
};

// Display formats that show a unit; every other format shows none.
constexpr FormatKind kFormatKinds[] = {
    {2, 3},   {3, 2},   {4, 4},   {5, 1},   {6, 5},   {7, 6},   {8, 7},   {9, 8},   {12, 18},
    {35, 9},  {36, 10}, {37, 11}, {38, 12}, {39, 13}, {40, 14}, {41, 15}, {42, 16}, {43, 17},
    {47, 19}, {48, 21}, {49, 22}, {50, 23}, {51, 24}, {52, 25}, {53, 26},
};

double RaiseToPower(double ratio, double power) {
    // Exact for the common power 1, where pow could lose the last bit.
    return power == 1.0 ? ratio : std::pow(ratio, power);
}

}  // namespace

void CVexUnitCnv::SetDefaults() {
    FillDefaults();
}

void CVexUnitCnv::FillDefaults() const {
    for (int kind = 0; kind < kNumKinds; ++kind) {
        Entry& e = m_units[static_cast<std::size_t>(kind)];
        e = Entry{};
        e.power = kKindDefaults[kind].power;
        e.lengthRelative = kKindDefaults[kind].lengthRelative;
        LoadStringResource(IDS_UNIT_MNEMONIC_0 + kind, e.mnemonic);
    }
    // Trim angles are stored bow-down positive; the display shows bow up.
    m_units[14].factor = -1.0;
    m_initialised = true;
    ComputeMultipliers();
}

void CVexUnitCnv::EnsureInitialised() const {
    if (!m_initialised) FillDefaults();
}

void CVexUnitCnv::ComputeMultipliers() const {
    const double lengthFactor = m_units[kLengthKind].factor;
    for (int kind = 1; kind < kNumKinds; ++kind) {
        Entry& e = m_units[static_cast<std::size_t>(kind)];
        if (e.factor == 0.0) {
            e.multiplier = 1.0;
            continue;
        }
        const double base = e.lengthRelative ? lengthFactor : 1.0;
        e.multiplier = RaiseToPower(base / e.factor, e.power);
    }
}

double CVexUnitCnv::GetSystemUnitForConversion(int kind) const {
    const Entry& e = m_units[static_cast<std::size_t>(kind)];
    return e.lengthRelative ? m_units[kLengthKind].factor : 1.0;
}

double CVexUnitCnv::ScaleToInternal(int kind, double factor) const {
    return RaiseToPower(factor / GetSystemUnitForConversion(kind),
                        m_units[static_cast<std::size_t>(kind)].power);
}

bool CVexUnitCnv::SetUnit(int kind, double factor, double offset, const CString& mnemonic,
                          const CString& key, const CString& displayName) {
    EnsureInitialised();
    if (!IsKind(kind)) return false;
    Entry& e = m_units[static_cast<std::size_t>(kind)];
    e.factor = factor;
    e.offset = offset;
    e.mnemonic = mnemonic;
    e.key = key;
    e.displayName = displayName;
    ComputeMultipliers();
    return true;
}

bool CVexUnitCnv::GetUnit(int kind, double& factor, double& offset, CString& mnemonic, CString& key,
                          CString& displayName) const {
    EnsureInitialised();
    if (!IsKind(kind)) return false;
    const Entry& e = m_units[static_cast<std::size_t>(kind)];
    factor = e.factor;
    offset = e.offset;
    mnemonic = e.mnemonic;
    key = e.key;
    displayName = e.displayName;
    return true;
}

CString CVexUnitCnv::GetUnitKey(int kind) const {
    EnsureInitialised();
    return IsKind(kind) ? m_units[static_cast<std::size_t>(kind)].key : CString();
}

CString CVexUnitCnv::GetUnitDispName(int kind) const {
    EnsureInitialised();
    return IsKind(kind) ? m_units[static_cast<std::size_t>(kind)].displayName : CString();
}

CString CVexUnitCnv::GetUnitMnem(int kind) const {
    EnsureInitialised();
    if (!IsKind(kind)) return CString();
    const Entry& e = m_units[static_cast<std::size_t>(kind)];
    if (kind == kChainageKind) {
        if (e.key == CString(u"Kilometer")) return u"K" + m_units[kLengthKind].mnemonic;
        if (e.key == CString(u"Station")) return m_units[kLengthKind].mnemonic;
    }
    return e.mnemonic;
}

double CVexUnitCnv::GetMultiplier(int kind) const {
    EnsureInitialised();
    return IsKind(kind) ? m_units[static_cast<std::size_t>(kind)].multiplier : 1.0;
}

double CVexUnitCnv::GetPower(int kind) const {
    EnsureInitialised();
    return IsKind(kind) ? m_units[static_cast<std::size_t>(kind)].power : 1.0;
}

bool CVexUnitCnv::IsLengthRelative(int kind) const {
    EnsureInitialised();
    return IsKind(kind) && m_units[static_cast<std::size_t>(kind)].lengthRelative;
}

double CVexUnitCnv::ConvertUnit(int kind, double value) const {
    EnsureInitialised();
    if (!IsKind(kind)) return value;
    const Entry& e = m_units[static_cast<std::size_t>(kind)];
    return value * e.multiplier + e.offset;
}

double CVexUnitCnv::ConvertFromUnit(int kind, double value) const {
    EnsureInitialised();
    if (!IsKind(kind)) return value;
    const Entry& e = m_units[static_cast<std::size_t>(kind)];
    return (value - e.offset) / e.multiplier;
}

double CVexUnitCnv::ToInternalUnit(int kind, double value, double factor, double addend) const {
    EnsureInitialised();
    if (!IsKind(kind)) return value;
    return (value - m_units[static_cast<std::size_t>(kind)].offset) *
               ScaleToInternal(kind, factor) +
           addend;
}

double CVexUnitCnv::ToExternalUnit(int kind, double value, double factor, double addend) const {
    EnsureInitialised();
    if (!IsKind(kind)) return value;
    return (value - addend) / ScaleToInternal(kind, factor) +
           m_units[static_cast<std::size_t>(kind)].offset;
}

int CVexUnitCnv::ConvertFMTtoUNIT(int formatId) {
    for (const FormatKind& fk : kFormatKinds) {
        if (fk.formatId == formatId) return fk.kind;
    }
    return 0;
}

int CVexUnitCnv::ConvertUNITtoFMT(int kind) {
    if (kind == 0) return 0;
    for (const FormatKind& fk : kFormatKinds) {
        if (fk.kind == kind) return fk.formatId;
    }
    return 0;
}

}  // namespace vex
