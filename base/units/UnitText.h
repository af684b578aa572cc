// UnitText.h - the process-wide unit table and the texts of values in the
// user's units: how displays turn stored values into texts and typed texts
// back into stored values.
//
// A display format (StaticFormats.h) names the unit kind of a value; the
// process-wide CVexUnitCnv says which unit the user chose for that kind.
// Values of a kind shown in feet ("ft") follow the feet display mode of
// FeetInch.h (0 plain, 2 and up feet and inches); typed texts are read
// with the feet input mode. Both modes start at 0.
//
// Thread-safety: the feet modes are atomic. The unit table is not locked:
// change it (SetUnit on GetVexUnitCnv()) from the user-interface thread
// while no other thread converts, e.g. when settings are loaded; other
// threads may convert freely while it does not change.
//
//   vex::GetVexUnitCnv().SetUnit(3, 0.3048, 0, u"ft", u"ft", u"International foot");
//   vex::CString text = vex::InternalValueToUnitString(3.048, vex::FMT_DEPTH);  // u"10.00"
//   double stored = vex::UnitStringToInternalValue(u"10", vex::FMT_DEPTH);  // 3.048
#pragma once

#include <base/Export.h>
#include <base/framework/CDataExchange.h>
#include <base/framework/CString.h>
#include <base/units/CVexUnitCnv.h>
#include <base/units/StaticFormats.h>

namespace vex {

// The process-wide unit table, with its defaults from the first call on.
VEXBASE_API CVexUnitCnv& GetVexUnitCnv();

// The feet-inch modes (FeetInch.h) of values shown in feet and of typed
// texts; both 0 until set.
VEXBASE_API void SetFeetDisplayMode(int mode);
VEXBASE_API int GetFeetDisplayMode();
VEXBASE_API void SetFeetInputMode(int mode);
VEXBASE_API int GetFeetInputMode();

// The text of a stored value in the user's unit of formatId's kind, without
// the mnemonic. Negative decimals take the format's default decimals, or,
// for a format without, the decimals the displayed value carries. A kind
// whose mnemonic is "ft" is written with the feet display mode.
VEXBASE_API CString InternalValueToUnitString(double value, int formatId, int decimals = -1);

// The stored value of a text typed in the user's unit of formatId's kind,
// read with the feet input mode. False, value unchanged, when the text holds
// no number.
VEXBASE_API bool UnitStringToInternalValue(const CString& text, int formatId, double& value);
// The same, with 0.0 for a text that holds no number.
VEXBASE_API double UnitStringToInternalValue(const CString& text, int formatId);

// Exchanges a stored value with dialog control controlId through the two
// functions above; the default format is the system length, shown as
// stored. When saving, a control text without a number calls pDX->Fail
// and leaves value unchanged.
VEXBASE_API void DDX_SysUnit(CDataExchange* pDX, int controlId, double& value,
                             int formatId = FMT_LENGTH);

}  // namespace vex
