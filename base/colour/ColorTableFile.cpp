// ColorTable's configuration-file form: sections "Colors", "Values",
// "Locks", "Names" and "DredgeDiff", entry keys "0", "1", ...
#include <base/colour/ColorTable.h>

#include <base/config/FileObject.h>
#include <base/strings/Precision.h>

namespace vex {
namespace {

const CString kColors = u"Colors";
const CString kValues = u"Values";
const CString kLocks = u"Locks";
const CString kNames = u"Names";
const CString kDredgeDiff = u"DredgeDiff";
const CString kLowColor = u"LowColor";

CString EntryKey(int index) {
    CString key;
    key.Format(u"%d", index);
    return key;
}

// A number with exactly the decimals it carries, so a saved table reads back
// to the same values.
CString ValueText(double value) {
    CString format;
    format.Format(u"%%.%2.2dlf", GetDoublePrecision(value));
    CString text;
    text.Format(format.View(), value);
    return text;
}

CString ColorText(COLORREF color) {
    CString text;
    text.Format(u"%d, %d, %d", static_cast<int>(GetRValue(color)),
                static_cast<int>(GetGValue(color)), static_cast<int>(GetBValue(color)));
    return text;
}

// Reads the items of one file and remembers the first that was malformed:
// each read resets the file's status, so the failure is read again at the
// end to leave status 6 for the caller.
class ItemReader {
  public:
    explicit ItemReader(FileObject& file) : m_file(file) {}

    // Reads section/key when present (false, value unchanged, when missing).
    template <class T>
    bool Read(const CString& section, const CString& key, T& value) {
        if (!m_file.HasKey(section, key)) return false;
        if (m_file.GetItem(section, key, value)) return true;
        if (m_badSection.IsEmpty()) {
            m_badSection = section;
            m_badKey = key;
        }
        return false;
    }

    void LeaveStatus() {
        if (m_badSection.IsEmpty()) return;
        double unused = 0;
        COLORREF unusedColor = 0;
        // Whatever the item's type, one of these conversions fails again.
        if (m_file.GetItem(m_badSection, m_badKey, unused)) {
            m_file.GetItem(m_badSection, m_badKey, unusedColor);
        }
    }

  private:
    FileObject& m_file;
    CString m_badSection;
    CString m_badKey;
};

}  // namespace

bool ColorTable::FileOpen(FileObject& file) {
    ClearEntries();
    m_lowColor = 0;
    ItemReader reader(file);
    reader.Read(kColors, kLowColor, m_lowColor);
    reader.Read(kNames, kLowColor, m_lowColorName);

    for (int i = 0;; ++i) {
        const CString key = EntryKey(i);
        if (!file.HasKey(kValues, key)) break;
        double value = 0;
        if (!reader.Read(kValues, key, value)) break;
        COLORREF color = 0;
        if (!file.HasKey(kColors, key)) {
            reader.LeaveStatus();
            return false;
        }
        reader.Read(kColors, key, color);
        bool locked = false;
        reader.Read(kLocks, key, locked);
        CString name;
        reader.Read(kNames, key, name);
        AddEntry(value, color, locked, name);
    }

    m_hasDredgeDiffSection = file.HasSection(kDredgeDiff);
    if (m_hasDredgeDiffSection) {
        reader.Read(kDredgeDiff, u"MaxUnderDredgeColor", m_maxUnderDredgeColor);
        reader.Read(kDredgeDiff, u"MinUnderDredgeColor", m_minUnderDredgeColor);
        reader.Read(kDredgeDiff, u"MaxInToleranceColor", m_maxInToleranceColor);
        reader.Read(kDredgeDiff, u"MinInToleranceColor", m_minInToleranceColor);
        reader.Read(kDredgeDiff, u"MaxOverDredgeColor", m_maxOverDredgeColor);
        reader.Read(kDredgeDiff, u"MinOverDredgeColor", m_minOverDredgeColor);
        reader.Read(kDredgeDiff, u"NumColorsUnderDredge", m_numColorsUnderDredge);
        reader.Read(kDredgeDiff, u"NumColorsInTolerance", m_numColorsInTolerance);
        reader.Read(kDredgeDiff, u"NumColorsOverDredge", m_numColorsOverDredge);
        reader.Read(kDredgeDiff, u"UnderDredgeLimit", m_underDredgeLimit);
        reader.Read(kDredgeDiff, u"OverDredgeLimit", m_overDredgeLimit);
        reader.Read(kDredgeDiff, u"SyncWithDesign", m_syncWithDesign);
    }
    reader.LeaveStatus();
    m_hasOpened = true;
    return true;
}

// The table's sections are emptied first, so that a shorter table saved
// over a longer one does not leave the old entries behind to be read back.
bool ColorTable::FileSave(FileObject& file) const {
    for (const CString* section : {&kColors, &kValues, &kLocks, &kNames}) {
        file.CreateSection(*section, true);
    }
    if (!m_hasDredgeDiffSection && file.HasSection(kDredgeDiff)) file.DeleteSection(kDredgeDiff);
    bool ok = file.SetItem(kColors, kLowColor, ColorText(m_lowColor));
    ok = file.SetItem(kNames, kLowColor, m_lowColorName) && ok;
    for (int i = 0; i < NumEntries(); ++i) {
        const CString key = EntryKey(i);
        const auto at = static_cast<std::size_t>(i);
        ok = file.SetItem(kValues, key, ValueText(m_values[at])) && ok;
        ok = file.SetItem(kColors, key, ColorText(m_colors[at])) && ok;
        ok = file.SetItem(kLocks, key, m_locks[at] ? CString(u"1") : CString(u"0")) && ok;
        ok = file.SetItem(kNames, key, m_names[at]) && ok;
    }
    if (m_hasDredgeDiffSection) {
        file.CreateSection(kDredgeDiff, true);
        const auto color = [&](const char16_t* key, COLORREF c) {
            ok = file.SetItem(kDredgeDiff, key, ColorText(c)) && ok;
        };
        const auto count = [&](const char16_t* key, unsigned n) {
            CString text;
            text.Format(u"%u", n);
            ok = file.SetItem(kDredgeDiff, key, text) && ok;
        };
        color(u"MaxUnderDredgeColor", m_maxUnderDredgeColor);
        color(u"MinUnderDredgeColor", m_minUnderDredgeColor);
        color(u"MaxInToleranceColor", m_maxInToleranceColor);
        color(u"MinInToleranceColor", m_minInToleranceColor);
        color(u"MaxOverDredgeColor", m_maxOverDredgeColor);
        color(u"MinOverDredgeColor", m_minOverDredgeColor);
        count(u"NumColorsUnderDredge", m_numColorsUnderDredge);
        count(u"NumColorsInTolerance", m_numColorsInTolerance);
        count(u"NumColorsOverDredge", m_numColorsOverDredge);
        ok = file.SetItem(kDredgeDiff, u"UnderDredgeLimit", ValueText(m_underDredgeLimit)) && ok;
        ok = file.SetItem(kDredgeDiff, u"OverDredgeLimit", ValueText(m_overDredgeLimit)) && ok;
        ok = file.SetItem(kDredgeDiff, u"SyncWithDesign",
                          m_syncWithDesign ? CString(u"1") : CString(u"0")) &&
             ok;
    }
    return ok;
}

}  // namespace vex
