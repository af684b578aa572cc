// FileNameText.h - file names made from free text: CreateValidFileName and
// AllValidFileSystemChars.
//
// The characters that no Windows file name may hold are the nine
// \ / : * ? " < > |; the suite's files travel between Windows and other
// systems, so the same nine are refused on every platform.
//
//   vex::CreateValidFileName(u"Line 3: A/B");  // u"Line 3_ A_B"
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

// name with each of the nine characters \ / : * ? " < > | replaced by "_".
VEXBASE_API CString CreateValidFileName(const CString& name);

// True when name holds none of the nine characters.
VEXBASE_API bool AllValidFileSystemChars(const CString& name);

}  // namespace vex
