// ByteSize.h - byte counts and transfer rates as short texts in KB, MB or GB.
//
// Units are binary (1 KB = 1,024 bytes) and the text has at most one decimal:
// "0.5 KB", "20 KB", "1.0 MB". Pure functions, thread-safe.
//
//   vex::CString text;
//   vex::FormatByteSize(20000, text);        // u"20 KB"
//   vex::FormatByteSizeperSec(20000, text);  // u"20 KB/s"
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

// Writes bytes as KB below 1,048,576 bytes, as MB below 1,073,741,824 bytes,
// else as GB, into text: the quotient with no decimals when it is 10 or more
// or exactly 0, else with one ("%.1f", so 10,239 bytes give "10.0 KB"), a
// space and the unit.
VEXBASE_API void FormatByteSize(double bytes, CString& text);
// As FormatByteSize, followed by "/s".
VEXBASE_API void FormatByteSizeperSec(double bytesPerSecond, CString& text);

}  // namespace vex
