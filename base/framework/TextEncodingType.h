// TextEncodingType.h - the encodings in which the library's text files,
// archives and buffers hold text.
//
// Text in memory is UTF-16; these values say how it is stored as bytes. No
// byte-order mark is written in any of them, and none is removed on reading
// (a mark reads as the character U+FEFF).
#pragma once

namespace vex::textencoding {

enum type : int {
    // UTF-16 little-endian: each code unit as two bytes, low byte first.
    unicode = 0,
    // UTF-8, the encoding of every settings file of the suite; the default.
    utf8 = 1,
    // Narrow (multi-byte) text in the active code page of the process.
    multibyte = 2,
};

}  // namespace vex::textencoding
