#include <base/errors/FileObjectError.h>

#include <base/config/CRCChecksum.h>
#include <base/errors/ErrorMessageFile.h>
#include <base/framework/StringResources.h>

namespace vex {
namespace {

constexpr const char16_t* kSection = u"FileObject Error";

}  // namespace

FileObjectError::FileObjectError(const CString& section, const CString& key,
                                 const CString& fileName, KIND kind)
    : m_section(section), m_key(key), m_fileName(fileName), m_kind(kind) {}

CString FileObjectError::Type() const {
    CString text(u"FileObject Error");
    ErrorMessageFile::Get().Get(kSection, u"Type", text);
    return text;
}

CString FileObjectError::Format() const {
    const bool sectionMissing = m_kind == SECTION_NOT_FOUND;
    CString format;
    if (!ErrorMessageFile::Get().Get(kSection, sectionMissing ? u"SectionNotFound" : u"KeyNotFound",
                                     format)) {
        format = LoadStringResource(sectionMissing ? IDS_SECTION_NOT_FOUND : IDS_KEY_NOT_FOUND);
    }
    CString text;
    if (sectionMissing) {
        text.Format(format, m_section, FileTitleOf(m_fileName));
    } else {
        text.Format(format, m_key, m_section, FileTitleOf(m_fileName));
    }
    return text;
}

Error* FileObjectError::Copy() const {
    return new FileObjectError(*this);
}

unsigned int FileObjectError::Signature() const {
    CRCChecksum crc;
    crc += m_section;
    crc += m_key;
    crc += m_fileName;
    crc += static_cast<int>(m_kind);
    return crc.Value();
}

}  // namespace vex
