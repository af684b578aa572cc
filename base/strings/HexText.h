// HexText.h - hexadecimal digits and the hex form of byte strings:
// HexVal, ValHex, Ascii2Hex and Hex2Ascii.
//
// Bytes are taken as they are, whatever the code page. The digit functions
// never fail: a bad input maps to 126 ('~'), which the byte conversion
// then carries into its arithmetic, as the suite's hex records expect.
//
//   vex::Ascii2Hex("\n1");   // "0A31"
//   vex::Hex2Ascii("0A31");  // "\n1"
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <string_view>

namespace vex {

// The value of the hex digit ch: '0'-'9' give 0-9, 'a'-'f' and 'A'-'F'
// give 10-15, anything else 126.
constexpr int HexVal(int ch) {
    if (ch >= '0' && ch <= '9') return ch - '0';
    if (ch >= 'a' && ch <= 'f') return ch - 'a' + 10;
    if (ch >= 'A' && ch <= 'F') return ch - 'A' + 10;
    return 126;
}

// The upper-case hex digit of v: 0-9 give '0'-'9', 10-15 give 'A'-'F',
// anything else '~' (126).
constexpr char ValHex(int v) {
    if (v >= 0 && v <= 9) return static_cast<char>('0' + v);
    if (v >= 10 && v <= 15) return static_cast<char>('A' + v - 10);
    return '~';
}

// Each byte of bytes as two upper-case hex digits, high nibble first.
VEXBASE_API CStringA Ascii2Hex(std::string_view bytes);

// Each pair of characters of hex as one byte, (HexVal(first) * 16 +
// HexVal(second)) modulo 256; a last unpaired character is ignored, and bad
// digits are not reported ("G0" gives the byte (126 * 16) % 256 = 0xE0).
VEXBASE_API CStringA Hex2Ascii(std::string_view hex);

}  // namespace vex
