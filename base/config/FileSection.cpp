#include <base/config/FileSection.h>

namespace vex {

FileSection::FileSection(const CString& name) : m_name(name) {
    CreateSection(m_name, false);
}

int FileSection::GetErrorStatus() const {
    return FileObject::GetErrorStatus();
}

bool FileSection::GetFromFileObject(const CString& name, const FileObject& from) {
    // Copied aside first, so that from may be this object. The name is taken
    // and the old content dropped even when from has no such section: the
    // object then stands for that section, empty.
    FileObject copy;
    const bool copied = copy.CopySection(name, from);
    MakeEmpty();
    m_name = name;
    CreateSection(m_name, false);
    if (!copied) {
        SetErrorStatus(copy.GetErrorStatus());
        return false;
    }
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
