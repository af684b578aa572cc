// CodePage.h - the operating system's code page for narrow ("ANSI") text.
//
// The number is the Windows code page number: GetACP() on Windows, 65001
// (UTF-8) on POSIX systems, whose narrow text is UTF-8 by convention.
// Thread-safe.
#pragma once

#include <base/Export.h>

namespace vex::platform {

// The system's code page of narrow text, numbered as Windows numbers it.
VEXBASE_API unsigned SystemCodePage();

}  // namespace vex::platform
