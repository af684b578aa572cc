// DisplayPalette.h - the 256-colour palette of a display, as colour tables
// take it (ColorTable::SetColorPalette) and as the named palettes of
// NamedPalettes.h supply it.
#pragma once

#include <base/framework/PaletteEntry.h>

#include <array>

namespace vex {

struct DisplayPalette {
    std::array<PALETTEENTRY, 256> entries;
};

}  // namespace vex
