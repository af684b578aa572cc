// FileObjectError.h - a section or key missing from a configuration file,
// or a value there that cannot be read as the type asked for.
//
// Thrown by FileObject when its throw mode is on, else only described by
// the object's status. The message comes from section "FileObject Error"
// of the error-message file, keys "SectionNotFound", "KeyNotFound" and
// "ValueNotConverted".
#pragma once

#include <base/errors/Error.h>

namespace vex {

class VEXBASE_API FileObjectError : public Error {
  public:
    enum KIND { SECTION_NOT_FOUND = 0, KEY_NOT_FOUND = 1, VALUE_NOT_CONVERTED = 2 };

    FileObjectError(const CString& section, const CString& key, const CString& fileName, KIND kind);

    const CString& Section() const { return m_section; }
    const CString& Key() const { return m_key; }
    const CString& FileName() const { return m_fileName; }
    KIND Kind() const { return m_kind; }

    // Key "Type" of section "FileObject Error", else "FileObject Error".
    CString Type() const override;
    CString Format() const override;
    Error* Copy() const override;
    // CRC of section, key, file name and kind.
    unsigned int Signature() const override;

  private:
    CString m_section;
    CString m_key;
    CString m_fileName;
    KIND m_kind;
};

}  // namespace vex
