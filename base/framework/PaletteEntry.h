// PaletteEntry.h - one palette colour of the graphics interface.
#pragma once

namespace vex {

struct PALETTEENTRY {
    unsigned char peRed = 0;
    unsigned char peGreen = 0;
    unsigned char peBlue = 0;
    unsigned char peFlags = 0;
};
static_assert(sizeof(PALETTEENTRY) == 4);

}  // namespace vex
