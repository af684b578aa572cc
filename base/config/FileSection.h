// FileSection.h - one named section of a configuration file as an object of
// its own: the typed group of settings that a settings record reads from a
// file object and writes back into one.
//
// A FileSection is a FileObject that holds the one section it is named
// after; its key-only item calls act on that section. Copying in and out
// copies the items (in key order); nothing stays shared with the file
// object. Like FileObject, it belongs to one thread at a time.
//
//   vex::FileSection gps(u"GPS");
//   if (gps.GetFromFileObject(u"GPS", settings)) gps.GetItem(u"Port", port);
//   gps.SetItem(u"Port", 4002);
//   gps.SetToFileObject(settings);
#pragma once

#include <base/Export.h>
#include <base/config/FileObject.h>
#include <base/config/FobjSection.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API FileSection : public FileObject {
  public:
    // Holds the section name, empty.
    explicit FileSection(const CString& name = CString());

    const CString& Name() const { return m_name; }

    // The status of the last operation, on the section or on the object.
    int GetErrorStatus() const override;

    // Takes the name, empties itself and becomes a copy of section name of
    // from. When from has no such section: status 5 (in both objects, or
    // FileObjectError when from throws) and false, this object named name
    // and empty.
    bool GetFromFileObject(const CString& name, const FileObject& from);
    // Copies the section into to under name, or under its own name,
    // replacing a section of that name; creates it there when empty.
    bool SetToFileObject(FileObject& to, const CString& name) const;
    bool SetToFileObject(FileObject& to) const;

    // The item calls of FileObject for the section's keys, with the same
    // types, results and statuses.
    template <class T>
    bool GetItem(const CString& key, T& value) const {
        return FileObject::GetItem(m_name, key, value);
    }
    template <class T>
    bool SetItem(const CString& key, const T& value) {
        return FileObject::SetItem(m_name, key, value, true);
    }
    // Removes key; the (then perhaps empty) section stays. Status 7 when
    // the key is not there.
    bool DeleteItem(const CString& key);
    bool HasKey(const CString& key) const;
    // Walk the section's items in key order; false at the end.
    bool GetFirstMapEntry(FobjSection& section, CString& key, CString& value) const;
    using FileObject::GetNextMapEntry;

  private:
    CString m_name;
};

}  // namespace vex
