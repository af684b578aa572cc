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
    struct Template {
        const char16_t* key;
        int resource;
    };
    static constexpr Template kTemplates[] = {{u"SectionNotFound", IDS_SECTION_NOT_FOUND},
                                              {u"KeyNotFound", IDS_KEY_NOT_FOUND},
                                              {u"ValueNotConverted", IDS_VALUE_NOT_CONVERTED}};
    if (m_kind < SECTION_NOT_FOUND || m_kind > VALUE_NOT_CONVERTED) {
        return LoadStringResource(IDS_UNSPECIFIED_ERROR);
    }
    const Template& t = kTemplates[m_kind];
    CString format;
    if (!ErrorMessageFile::Get().Get(kSection, t.key, format))
        format = LoadStringResource(t.resource);
    CString text;
    if (m_kind == SECTION_NOT_FOUND) {
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
