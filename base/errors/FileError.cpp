#include <base/errors/FileError.h>

#include <base/config/CRCChecksum.h>
#include <base/errors/ErrorMessageFile.h>
#include <base/framework/StringResources.h>

namespace vex {
namespace {

constexpr const char16_t* kSection = u"File Error";

}  // namespace

FileError::FileError(const CString& fileName, CODE code) : m_fileName(fileName), m_code(code) {}

CString FileError::Type() const {
    CString text(u"File Error");
    ErrorMessageFile::Get().Get(kSection, u"Type", text);
    return text;
}

CString FileError::Format() const {
    struct Template {
        const char16_t* key;
        int resource;
    };
    static constexpr Template kTemplates[] = {
        {u"Open", IDS_FILE_OPEN}, {u"Read", IDS_FILE_READ}, {u"Write", IDS_FILE_WRITE}};
    if (m_code < OPEN || m_code > WRITE) return LoadStringResource(IDS_UNSPECIFIED_ERROR);
    const Template& t = kTemplates[m_code];
    CString format;
    if (!ErrorMessageFile::Get().Get(kSection, t.key, format))
        format = LoadStringResource(t.resource);
    CString text;
    text.Format(format, FileTitleOf(m_fileName));
    return text;
}

Error* FileError::Copy() const {
    return new FileError(*this);
}

unsigned int FileError::Signature() const {
    CRCChecksum crc;
    crc += m_fileName;
    crc += static_cast<int>(m_code);
    return crc.Value();
}

}  // namespace vex
