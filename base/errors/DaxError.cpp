#include <base/errors/DaxError.h>

#include <base/config/CRCChecksum.h>
#include <base/errors/ErrorMessageFile.h>
#include <base/framework/StringResources.h>

#include <cstdint>
#include <cstring>

namespace vex {
namespace {

constexpr const char16_t* kSection = u"Dax Error";

}  // namespace

DaxError::DaxError(const CString& stack, unsigned code, const CString& fileName, bool start,
                   double time)
    : m_stack(stack), m_code(code), m_fileName(fileName), m_start(start), m_time(time) {}

CString DaxError::Type() const {
    CString text(u"Dax Error");
    ErrorMessageFile::Get().Get(kSection, u"Type", text);
    return text;
}

CString DaxError::Format() const {
    struct Template {
        unsigned bit;
        const char16_t* key;
        int resource;
    };
    static constexpr Template kTemplates[] = {{INTERPOLATE, u"Interpolate", IDS_DAX_INTERPOLATE},
                                              {EXTRAPOLATE, u"Extrapolate", IDS_DAX_EXTRAPOLATE},
                                              {READ, u"Read", IDS_DAX_READ},
                                              {COMPUTATION, u"Comp", IDS_DAX_COMPUTATION}};
    const Template* chosen = nullptr;
    for (const Template& t : kTemplates) {
        if (m_code & t.bit) chosen = &t;  // the last bit set wins
    }
    if (chosen == nullptr) return LoadStringResource(IDS_UNSPECIFIED_ERROR);
    CString format;
    if (!ErrorMessageFile::Get().Get(kSection, chosen->key, format)) {
        format = LoadStringResource(chosen->resource);
    }
    CString text;
    text.Format(format, m_stack);
    return text;
}

CString DaxError::Details() const {
    CString text;
    text.Format(u"Start %s File \"%s\" Time %.3f", m_start ? u"On  " : u"Off ", m_fileName, m_time);
    return text;
}

Error* DaxError::Copy() const {
    return new DaxError(*this);
}

unsigned int DaxError::Signature() const {
    CRCChecksum crc;
    crc += m_stack;
    crc += m_code;
    crc += m_fileName;
    crc += static_cast<unsigned char>(m_start ? 1 : 0);
    unsigned char timeBytes[8];
    std::uint64_t bits = 0;
    std::memcpy(&bits, &m_time, sizeof bits);
    for (int i = 0; i < 8; ++i)
        timeBytes[i] = static_cast<unsigned char>(bits >> (8 * i));
    crc.Add(timeBytes, sizeof timeBytes);
    return crc.Value();
}

}  // namespace vex
