// UnitSettings.h - the user's choice of units in a settings file: section
// "Units", one key per unit kind that has a choice, named after the kind's
// display format ("Length" for the system length, "Depth", "Speed" ...),
// holding the key of the chosen catalogue unit (UnitDefinition.h).
//
//   [Units]
//   Length = m
//   Depth = ft
//   Speed = kn
//
// A kind missing from the section keeps its default unit. So does a kind
// whose key the catalogue does not know; that is reported through the
// file object's error state, as a value that cannot be read: status
// FileObject::statusConversionFailed, and FileObjectError when the object
// throws. Not locked: the file object and table belong to the caller's
// thread.
//
//   vex::FileObject file;
//   if (file.FileOpen(u"vessel.ini")) vex::LoadUnits(file, vex::GetVexUnitCnv());
#pragma once

#include <base/Export.h>
#include <base/config/FileObject.h>
#include <base/framework/CString.h>
#include <base/units/CVexUnitCnv.h>

namespace vex {

// The name of the section that holds the chosen units.
VEXBASE_API extern const char16_t* const UNITS_SECTION;

// The key of kind in section "Units" ("Depth" for kind 3); empty for a kind
// without a choice of units.
VEXBASE_API CString GetUnitSettingsKey(int kind);

// Writes the key of every kind of units that has a choice and a chosen
// unit (a non-empty key) to section "Units" of file, creating the section.
// The file object is changed in memory only; FileSave writes it. False when
// the file object refuses an item.
VEXBASE_API bool SaveUnits(const CVexUnitCnv& units, FileObject& file);

// Makes units the table that file selects: every kind starts from its
// default, then takes the unit the section names for it. A file without
// the section selects the defaults. False when a key is unknown (that kind
// keeps its default, the others are read; the file object's status is
// statusConversionFailed and, in throw mode, FileObjectError is thrown once
// units is set).
VEXBASE_API bool LoadUnits(const FileObject& file, CVexUnitCnv& units);

}  // namespace vex
