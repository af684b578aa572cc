// ColorRef.h - the colour word of the graphics interface: 0x00BBGGRR, red
// in the low byte. COLORREF is its own type (unsigned long) because the
// configuration file selects its colour overloads by it.
#pragma once

namespace vex {

using COLORREF = unsigned long;

constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue) {
    return static_cast<COLORREF>((red & 0xFFu) | ((green & 0xFFu) << 8) | ((blue & 0xFFu) << 16));
}
constexpr unsigned GetRValue(COLORREF c) {
    return static_cast<unsigned>(c & 0xFFu);
}
constexpr unsigned GetGValue(COLORREF c) {
    return static_cast<unsigned>((c >> 8) & 0xFFu);
}
constexpr unsigned GetBValue(COLORREF c) {
    return static_cast<unsigned>((c >> 16) & 0xFFu);
}

}  // namespace vex
