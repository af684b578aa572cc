// ErrorMessageFile.h - the process-wide file of error message templates.
//
// Error classes look their texts up here (a section per error class, a key
// per kind) and fall back to the library's built-in texts when the file is
// not open or lacks the key. A translator, once installed by the
// translation code, replaces each text read by its translation. Thread-safe.
//
//   vex::ErrorMessageFile::Get().Open(u"C:\\Vex\\ErrorMessages.ini");
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <memory>
#include <mutex>

namespace vex {

class FileObject;

// The hook through which translated texts replace the file's texts.
class VEXBASE_API Translator {
  public:
    virtual ~Translator();
    // True while translation is switched on.
    virtual bool IsActive() const = 0;
    // The translation of text; an empty result keeps the text as read.
    virtual CString Translate(const CString& text) const = 0;
};

class VEXBASE_API ErrorMessageFile {
  public:
    // The single instance, created on first use.
    static ErrorMessageFile& Get();

    // Reads the message file, opened read-only and denying writes to others
    // while it is read; false when it cannot be read, which is reported like
    // any file that cannot be opened, and the built-in texts are used.
    bool Open(const CString& fileName);
    bool IsOpen() const;
    // Forgets the file: the built-in texts are used again.
    void Close();
    // Reads the text of key in section into text, translated when a
    // translator is active; false, with text unchanged, when there is none.
    bool Get(const CString& section, const CString& key, CString& text) const;

    // Installs (or, with null, removes) the translator. Absent by default.
    void SetTranslator(std::shared_ptr<const Translator> translator);

    ErrorMessageFile(const ErrorMessageFile&) = delete;
    ErrorMessageFile& operator=(const ErrorMessageFile&) = delete;

  private:
    ErrorMessageFile();
    ~ErrorMessageFile();

    // Exclusive even for lookups: a FileObject is not safe for concurrent
    // use, not even for reading (each lookup sets its status).
    mutable std::mutex m_mutex;
    std::unique_ptr<FileObject> m_file;
    std::shared_ptr<const Translator> m_translator;
};

// The part of a path after its last backslash (or slash): the name by
// which error messages mention a file.
VEXBASE_API CString FileTitleOf(const CString& path);

}  // namespace vex
