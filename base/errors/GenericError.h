// GenericError.h - an error whose texts the caller writes itself.
#pragma once

#include <base/errors/Error.h>

namespace vex {

class VEXBASE_API GenericError : public Error {
  public:
    GenericError() = default;
    explicit GenericError(const CString& description);
    GenericError(const CString& description, const CString& details, const CString& type);

    void SetDescription(const CString& description) { m_description = description; }
    void SetDetails(const CString& details) { m_details = details; }
    void SetType(const CString& type) { m_type = type; }

    // The type text, or "General Error" when it is empty.
    CString Type() const override;
    // The description.
    CString Format() const override;
    CString Details() const override;
    Error* Copy() const override;
    // CRC of description, details and type in that order.
    unsigned int Signature() const override;

  private:
    CString m_description;
    CString m_details;
    CString m_type;
};

}  // namespace vex
