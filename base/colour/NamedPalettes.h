// NamedPalettes.h - perceptually even 256-colour palettes by name, as
// sources for ColorTable::SetColorPalette beside the rainbow ramps.
//
// "viridis" (dark purple to yellow) and "cividis" (navy to yellow, readable
// with red-green colour blindness) suit depths; "vik" (dark blue through
// near-white to dark red, even steps either side of its middle) suits
// depth differences centred on zero. A name ending in "_r" gives the
// palette reversed. Palettes are shared, immutable and safe on any thread.
//
//   vex::ColorTable depths;
//   depths.SetColorPalette(-30.0, 0.0, vex::GetNamedPalette(u"viridis"));
#pragma once

#include <base/Export.h>
#include <base/colour/DisplayPalette.h>
#include <base/framework/CString.h>

#include <memory>
#include <vector>

namespace vex {

// The palette of that name (case-insensitive), or null when there is none.
VEXBASE_API std::shared_ptr<const DisplayPalette> GetNamedPalette(const CString& name);
// The names GetNamedPalette knows, without the "_r" forms.
VEXBASE_API std::vector<CString> GetPaletteNames();

}  // namespace vex
