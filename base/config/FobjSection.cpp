#include <base/config/FobjSection.h>

#include <base/config/SectionData.h>

namespace vex {

FobjSection::FobjSection() = default;
FobjSection::~FobjSection() = default;
FobjSection::FobjSection(const FobjSection&) = default;
FobjSection& FobjSection::operator=(const FobjSection&) = default;
FobjSection::FobjSection(FobjSection&&) noexcept = default;
FobjSection& FobjSection::operator=(FobjSection&&) noexcept = default;

int FobjSection::GetCount() const {
    return m_data ? m_data->Count() : 0;
}

bool FobjSection::Lookup(const CString& key, CString& value) const {
    if (!m_data) return false;
    const CString* found = m_data->Find(key.View());
    if (found == nullptr) return false;
    value = *found;
    return true;
}

bool FobjSection::SetAt(const CString& key, const CString& value) {
    if (!m_data) return false;
    m_data->Set(key, value);
    return true;
}

void FobjSection::Release() {
    m_name.Empty();
    m_data.reset();
    m_sectionCursor = 0;
    m_itemCursor = 0;
}

}  // namespace vex
