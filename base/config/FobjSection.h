// FobjSection.h - a handle on one section of a configuration file, used to
// walk sections and items and by derived file classes to work on one section.
//
// A handle shares the section's items with its FileObject (the count is
// atomic), so it stays valid when the section is deleted from the object
// or the object goes away: it then holds the section as it was. Copies
// share the same items. Like the FileObject, a handle is not locked: the
// object and its handles belong to one thread at a time.
//
//   vex::FobjSection section;
//   vex::CString key, value;
//   for (bool ok = file.GetFirstMapEntry(section, u"General", key, value); ok;
//        ok = file.GetNextMapEntry(section, key, value)) { ... }
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <cstdint>
#include <memory>

namespace vex {

namespace detail {
class SectionData;
}

class VEXBASE_API FobjSection {
  public:
    FobjSection();
    ~FobjSection();
    FobjSection(const FobjSection&);
    FobjSection& operator=(const FobjSection&);
    FobjSection(FobjSection&&) noexcept;
    FobjSection& operator=(FobjSection&&) noexcept;

    // True while the handle refers to a section.
    bool IsValid() const { return m_data != nullptr; }
    // The section's name; empty when the handle refers to none.
    const CString& GetName() const { return m_name; }
    // The number of items in the section; 0 when the handle refers to none.
    int GetCount() const;
    // The value of key into value; false, value unchanged, when the key or
    // the section is missing.
    bool Lookup(const CString& key, CString& value) const;
    // Sets key to value in the section: an existing key keeps its place, a
    // new key goes to the end. False when the handle refers to no section.
    bool SetAt(const CString& key, const CString& value);
    // Lets go of the section.
    void Release();

  private:
    friend class FileObject;

    CString m_name;
    std::shared_ptr<detail::SectionData> m_data;
    // Iteration cursors: the order number of the current section, and the
    // sequence number of the item handed out last.
    std::uint64_t m_sectionCursor = 0;
    std::uint64_t m_itemCursor = 0;
};

}  // namespace vex
