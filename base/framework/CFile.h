// CFile.h - the open and share flags of files, with the framework's values.
//
// The flags are the ones settings code passes to FileObject::FileOpen and
// FileSave; the file classes of this folder interpret them. Share flags are
// honoured on Windows and accepted (and ignored) elsewhere. The seek origins
// are here too, so that every stream names them the same way.
#pragma once

namespace vex {

class CFile {
  public:
    enum OpenFlags : unsigned {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000,
    };
    // Origins of a seek, as the file utilities of this folder take them.
    enum SeekPosition : int { begin = 0, current = 1, end = 2 };
    // Masks that pick the access and the share part out of a flag word.
    static constexpr unsigned accessMask = 0x0003;
    static constexpr unsigned shareMask = 0x0070;
};

}  // namespace vex
