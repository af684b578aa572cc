#include <base/errors/GenericError.h>

#include <base/config/CRCChecksum.h>

namespace vex {

GenericError::GenericError(const CString& description) : m_description(description) {}

GenericError::GenericError(const CString& description, const CString& details, const CString& type)
    : m_description(description), m_details(details), m_type(type) {}

CString GenericError::Type() const {
    return m_type.IsEmpty() ? CString(u"General Error") : m_type;
}

CString GenericError::Format() const {
    return m_description;
}

CString GenericError::Details() const {
    return m_details;
}

Error* GenericError::Copy() const {
    return new GenericError(*this);
}

unsigned int GenericError::Signature() const {
    CRCChecksum crc;
    crc += m_description;
    crc += m_details;
    crc += m_type;
    return crc.Value();
}

}  // namespace vex
