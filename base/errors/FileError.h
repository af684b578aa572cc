// FileError.h - a file that could not be opened, read or written.
//
// The message names the file by its title (the part after the last
// backslash) through the template of the error-message file, section
// "File Error", keys "Open", "Read" and "Write".
#pragma once

#include <base/errors/Error.h>

namespace vex {

class VEXBASE_API FileError : public Error {
  public:
    enum CODE { OPEN = 0, READ = 1, WRITE = 2 };

    FileError(const CString& fileName, CODE code);

    const CString& FileName() const { return m_fileName; }
    CODE Code() const { return m_code; }

    CString Type() const override;
    CString Format() const override;
    Error* Copy() const override;
    // CRC of the file name, then the code's four bytes, least significant first.
    unsigned int Signature() const override;

  private:
    CString m_fileName;
    CODE m_code;
};

}  // namespace vex
