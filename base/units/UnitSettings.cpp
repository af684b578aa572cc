#include <base/units/UnitSettings.h>

#include <base/errors/FileObjectError.h>
#include <base/units/StaticFormats.h>
#include <base/units/UnitDefinition.h>

namespace vex {
namespace {

// FileObject keeps its status setter for itself and its derived classes;
// reading the units is part of reading the file, so it reports the same way.
struct StatusAccess : FileObject {
    static void Set(const FileObject& file, int status) {
        (file.*&StatusAccess::SetErrorStatus)(status);
    }
};

}  // namespace

const char16_t* const UNITS_SECTION = u"Units";

CString GetUnitSettingsKey(int kind) {
    if (UnitDefinition::GetGroupOfKind(kind) < 0) return CString();
    return StaticFormats::GetFormatName(CVexUnitCnv::ConvertUNITtoFMT(kind));
}

bool SaveUnits(const CVexUnitCnv& units, FileObject& file) {
    bool ok = file.CreateSection(UNITS_SECTION);
    for (int kind = 0; kind < CVexUnitCnv::kNumKinds; ++kind) {
        const CString name = GetUnitSettingsKey(kind);
        const CString key = units.GetUnitKey(kind);
        if (name.IsEmpty() || key.IsEmpty()) continue;
        ok = file.SetItem(UNITS_SECTION, name, key) && ok;
    }
    return ok;
}

bool LoadUnits(const FileObject& file, CVexUnitCnv& units) {
    CVexUnitCnv loaded;
    loaded.SetDefaults();
    CString badKind;
    CString badKey;
    if (file.HasSection(UNITS_SECTION)) {
        for (int kind = 0; kind < CVexUnitCnv::kNumKinds; ++kind) {
            const CString name = GetUnitSettingsKey(kind);
            if (name.IsEmpty() || !file.HasKey(UNITS_SECTION, name)) continue;
            CString key;
            // HasKey said it is there, so the read cannot fail or throw.
            file.GetItem(UNITS_SECTION, name, key);
            key.Trim();
            if (!UnitDefinition::SelectUnit(loaded, kind, key) && badKind.IsEmpty()) {
                badKind = name;
                badKey = key;
            }
        }
    }
    units = loaded;
    if (badKind.IsEmpty()) {
        StatusAccess::Set(file, FileObject::statusOk);
        return true;
    }
    StatusAccess::Set(file, FileObject::statusConversionFailed);
    if (file.ThrowExceptions()) {
        throw FileObjectError(UNITS_SECTION, badKind, file.GetFileName(),
                              FileObjectError::VALUE_NOT_CONVERTED);
    }
    return false;
}

}  // namespace vex
