#include <base/config/FileSection.h>

namespace vex {

FileSection::FileSection(const CString& name) : m_name(name) {
    CreateSection(m_name, false);
}

int FileSection::GetErrorStatus() const {
    return FileObject::GetErrorStatus();
}

bool FileSection::GetFromFileObject(const CString& name, const FileObject& from) {
    // Copied aside first, so that a missing section leaves this object as
    // it was, and so that from may be this object.
    FileObject copy;
    const bool copied = copy.CopySection(name, from);
    SetErrorStatus(copy.GetErrorStatus());
    if (!copied) return false;
    MakeEmpty();
    m_name = name;
    return CopySection(name, copy);
}

bool FileSection::SetToFileObject(FileObject& to, const CString& name) const {
    if (!HasSection(m_name)) {
        // Only when the section was deleted through the object's calls.
        return to.CreateSection(name, true);
    }
    const bool copied = to.CopySection(name, *this, m_name);
    SetErrorStatus(to.GetErrorStatus());
    return copied;
}

bool FileSection::SetToFileObject(FileObject& to) const {
    return SetToFileObject(to, m_name);
}

bool FileSection::DeleteItem(const CString& key) {
    return FileObject::DeleteItem(m_name, key, false);
}

bool FileSection::HasKey(const CString& key) const {
    return FileObject::HasKey(m_name, key);
}

bool FileSection::GetFirstMapEntry(FobjSection& section, CString& key, CString& value) const {
    return FileObject::GetFirstMapEntry(section, m_name, key, value);
}

}  // namespace vex
