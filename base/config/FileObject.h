// FileObject.h - the sectioned text configuration file ("vex.ini" and every
// settings file of the suite): read whole into memory, read and written by
// section and key, saved back in the order in which it was read.
//
// Files are UTF-8 without byte-order mark with CR LF line ends; LF alone is
// read too. Lookups of sections and keys are exact and case-sensitive.
// Every operation returns false on failure, leaves a status code in the
// object (GetErrorStatus, 0 = success) and, with ThrowExceptions(true),
// throws FileObjectError for missing sections and keys and unreadable
// values. Files that cannot be opened or saved are reported as FileError to
// GlobalErrorList under the object's error context. A FileObject is not
// locked: one object (and its FobjSection handles) belongs to one thread at
// a time. Saving replaces the file in one step: a failed save leaves the
// old file as it was.
//
//   vex::FileObject settings;
//   settings.SetErrorContext(u"Vessel settings");
//   int port = 4001;
//   if (settings.FileOpen(u"C:\\Vex\\vex.ini")) settings.GetItem(u"GPS", u"Port", port);
//   settings.SetItem(u"GPS", u"Port", port, true);
//   settings.FileSave(u"");
#pragma once

#include <base/Export.h>
#include <base/config/FobjSection.h>
#include <base/config/OrderedTable.h>
#include <base/framework/CArchive.h>
#include <base/framework/CFile.h>
#include <base/framework/CStdioFile.h>
#include <base/framework/CString.h>
#include <base/framework/CharBuffer.h>
#include <base/framework/ColorRef.h>
#include <base/framework/MemFile.h>
#include <base/framework/TextEncodingType.h>

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vex {

class VEXBASE_API FileObject {
  public:
    // The values of GetErrorStatus().
    enum STATUS : int {
        statusOk = 0,
        // The file is empty or has no section header; or RenameSection on an
        // object without sections.
        statusNoSections = 2,
        statusSectionNotFound = 4,
        // GetItem; and CopySection, in the source object.
        statusKeyNotFound = 5,
        // The stored text cannot be read as the requested type.
        statusConversionFailed = 6,
        // DeleteItem of a key that is not there.
        statusDeleteKeyNotFound = 7,
        // No file name given and none stored.
        statusNoFileName = 8,
        // The file could not be opened, created, read or saved.
        statusFileNotOpened = 9,
        // ApplyDifference: a section name of the difference is not
        // "add.", "change." or "remove." followed by a section name.
        statusNotADifference = 10,
    };

    // The name of the reserved section that guards a file's integrity (see
    // ChecksumSection.h). Section iteration and differences pass over it.
    static const CString CHECKSUM_SECTION;

    // The open flags FileOpen uses when given none: read, deny writes to others.
    static constexpr unsigned kReadFlags = CFile::modeRead | CFile::shareDenyWrite;
    // The flags FileSave uses when given none: create or replace the file.
    static constexpr unsigned kSaveFlags =
        CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive;

    // Empty, not initialised, all modes off, close-before-open on.
    FileObject();
    // Copies are deep: a copy's sections are its own.
    FileObject(const FileObject& other);
    FileObject& operator=(const FileObject& other);
    FileObject(FileObject&& other) noexcept;
    FileObject& operator=(FileObject&& other) noexcept;
    virtual ~FileObject();

    // The status of the last operation (see STATUS).
    virtual int GetErrorStatus() const;

    // --- opening and loading ---------------------------------------------
    // Empties the object (see FileOpen_NoFileClose), then reads and parses
    // the file; with CFile::modeCreate creates or empties the file on disk
    // instead and leaves the object empty. Either way AfterFileOpen() must
    // agree. True, and initialised, only if all succeeds. Status 8 for an
    // empty name, 9 (reported) when the file cannot be opened, 2 when it
    // has no section header (the lines before it stay in GetExtraInfo()).
    bool FileOpen(const CString& name, unsigned flags = kReadFlags);
    // As FileOpen, but the object is not emptied first: the file's sections
    // are added to the content (a section present in both gets the file's
    // values on top of its own). On any failure, also an exception, which
    // is rethrown, the content, name and initialised flag are as before.
    bool FileOpen_NoFileClose(const CString& name, unsigned flags = kReadFlags);
    // Parses a memory file from its position; stores name as the file name.
    bool FileOpen(MemFile& file, const CString& name);
    // Parse an open text file or loading archive from its position, adding
    // to the content as it stands (call MakeEmpty() first for a fresh read).
    bool Read(CStdioFile& file);
    bool Read(CArchive& archive);
    // Empties the object and forgets the file name (unless called from
    // within FileOpen_NoFileClose, where it does nothing).
    void FileClose();
    // Removes all sections, their key orders and the extra lines.
    void MakeEmpty();
    // True after a successful open or load.
    bool FileInitialised() const { return m_initialised; }

    // --- saving (the content is never changed) ---------------------------
    // Writes the object to name, or to the stored file name when name is
    // empty (status 8 when both are). The new content goes to a temporary
    // file that then replaces the target in one step. Without
    // CFile::modeCreate the file must exist already. Status 9, reported as a
    // FileError, when the save fails; the old file is then untouched.
    bool FileSave(const CString& name = CString(), unsigned flags = kSaveFlags) const;
    // Writes the object to an open text file and flushes it.
    bool FileSave(CStdioFile& file) const;
    // Writes the object at the memory file's position (UTF-8, CR LF).
    bool FileSave(MemFile& file) const;
    // Appends the text with LF line ends: for textencoding::multibyte as
    // narrow text in the active code page, otherwise as UTF-16 code units.
    bool FileSave(CharBuffer& buffer, textencoding::type encoding) const;
    // Write the object in the stream's own encoding; status 9 on failure.
    bool Write(CStdioFile& file) const;
    bool Write(CArchive& archive) const;

    // --- sections ---------------------------------------------------------
    // Creates an empty section at the end of the section order when there
    // is none of that name; an existing one is emptied when clear is set.
    bool CreateSection(const CString& name, bool clear = false);
    // Status 4 when there is no such section. A handle that shares the
    // section keeps it; the FobjSection form releases that handle.
    bool DeleteSection(const CString& name);
    bool DeleteSection(FobjSection& section, const CString& name);
    // Gives section oldName the name newName in its place in the section
    // order; a section already called newName is replaced. Status 2 when
    // the object has no sections, 4 when oldName is missing.
    bool RenameSection(const CString& oldName, const CString& newName);
    // Makes section name a copy of section fromName (or name) of from, in
    // from's key order; the section is created or emptied first. When from
    // lacks the section, status 5 is set in both objects, or, when from
    // throws, FileObjectError is thrown; this object is then unchanged.
    bool CopySection(const CString& name, const FileObject& from);
    bool CopySection(const CString& name, const FileObject& from, const CString& fromName);
    bool HasSection(const CString& name) const;
    int GetNumSections() const;
    // The number of items; 0 and status 4 for a missing section.
    int GetNumItems(const CString& section) const;

    // --- items --------------------------------------------------------------
    // Read the value of key in section. Missing section: status 4; missing
    // key: status 5; text that is not of the type: status 6; in throw mode
    // each throws FileObjectError. value is unchanged on failure. Numbers:
    // int, unsigned, long as hexadecimal when the text contains "0x" or
    // "0X", else decimal; bool is true for a non-zero number; unsigned long
    // is a colour 0x00BBGGRR stored as "red, green, blue". Text after the
    // number is ignored ("12 m" reads as 12).
    bool GetItem(const CString& section, const CString& key, CString& value) const;
    // In the active code page.
    bool GetItem(const CString& section, const CString& key, std::string& value) const;
    bool GetItem(const CString& section, const CString& key, int& value) const;
    bool GetItem(const CString& section, const CString& key, unsigned int& value) const;
    bool GetItem(const CString& section, const CString& key, long& value) const;
    bool GetItem(const CString& section, const CString& key, COLORREF& value) const;
    bool GetItem(const CString& section, const CString& key, bool& value) const;
    bool GetItem(const CString& section, const CString& key, double& value) const;
    bool GetItem(const CString& section, const CString& key, float& value) const;
    bool GetItem(const CString& section, const CString& key, long long& value) const;
    bool GetItem(const CString& section, const CString& key, unsigned long long& value) const;

    // Sets key in section to value: an existing key keeps its place, a new
    // one goes to the end of the section. A missing section is created at
    // the end when createSection is set, else status 4 and false. Numbers
    // are written in decimal, bool as 1 or 0, a colour as "red, green,
    // blue", a double with as many decimals as it really carries. Narrow
    // text is in the active code page.
    bool SetItem(const CString& section, const CString& key, const CString& value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, const char16_t* value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, const wchar_t* value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, const char* value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, const std::string& value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, const CStringA& value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, int value, bool createSection = true);
    bool SetItem(const CString& section, const CString& key, unsigned int value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, long value, bool createSection = true);
    bool SetItem(const CString& section, const CString& key, COLORREF value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, bool value, bool createSection = true);
    bool SetItem(const CString& section, const CString& key, double value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, long long value,
                 bool createSection = true);
    bool SetItem(const CString& section, const CString& key, unsigned long long value,
                 bool createSection = true);

    // Removes key from section, and then the section too when it is empty
    // and deleteEmptySection is set. Status 4 for a missing section, 7 for
    // a missing key.
    bool DeleteItem(const CString& section, const CString& key, bool deleteEmptySection = false);
    bool HasKey(const CString& section, const CString& key) const;

    // --- differences --------------------------------------------------------
    // Describes how other differs from this object, as sections
    // "add." + name, "change." + name and "remove." + name of difference,
    // which is emptied first. This object is the base, other the target:
    //   - a key only in other goes to "add.", with its value;
    //   - a key in both with another value goes to "change.", with other's
    //     value (values compare as exact texts);
    //   - a key only in this object goes to "remove.", with its old value;
    //   - a section only in other is added whole, one only in this object
    //     is removed whole.
    // Sections without keys are described too: an "add." section with no
    // keys creates the (empty) section, a "remove." section with no keys
    // deletes it. Keys beginning with "@tr." (translated texts) follow the
    // same rules as every other key, so that the target's translations
    // arrive exactly. The section "Checksum" is never compared or written.
    // Within a section the difference lists additions, then changes, then
    // removals (removals first when the target section is empty), which is
    // the order ApplyDifference needs. Always true.
    bool GetDifference(const FileObject& other, FileObject& difference) const;
    // Applies a difference made by GetDifference (or written by hand in its
    // form), section by section in the difference's order: "add." and
    // "change." create the section when it is missing and set each item;
    // "remove." deletes each listed key that is there, then the section
    // itself if it is left empty. Afterwards the object equals the target
    // of the difference (operator==): keys and sections that already
    // existed keep their places, new ones are appended, so the order of
    // the target is not reproduced. A difference section named "Checksum"
    // or aimed at "Checksum" is passed over, and this object's own checksum
    // section is left as it is (WriteChecksumSection brings it up to date).
    // Status 10 and false, the object unchanged, when a section name of
    // the difference has no known operation word.
    virtual bool ApplyDifference(const FileObject& difference);
    // True when GetDifference(other, ...) would produce any section.
    bool HasDifferences(const FileObject& other) const;

    // --- iteration ----------------------------------------------------------
    // Walk the section names in section order, passing over the section
    // "Checksum"; false at the end. The handle refers to the section
    // handed out.
    bool GetFirstSectionEntry(FobjSection& section, CString& name) const;
    bool GetNextSectionEntry(FobjSection& section, CString& name) const;
    // Walk the items of one section in key order; false at the end, and
    // status 4 when the section is missing. Deleting items meanwhile is safe.
    bool GetFirstMapEntry(FobjSection& section, const CString& sectionName, CString& key,
                          CString& value) const;
    bool GetNextMapEntry(FobjSection& section, CString& key, CString& value) const;

    // The physical lines before the first section header, as read.
    const std::vector<CString>& GetExtraInfo() const { return m_extraLines; }

    // --- modes, names, status -------------------------------------------------
    void ThrowExceptions(bool throwExceptions) { m_throw = throwExceptions; }
    bool ThrowExceptions() const { return m_throw; }
    // The context under which this object's file failures are reported.
    void SetErrorContext(const CString& context) { m_errorContext = context; }
    const CString& GetErrorContext() const { return m_errorContext; }
    const CString& GetFileName() const { return m_fileName; }
    // The file name after its last backslash (or slash).
    CString GetFileTitle() const;
    void SetFileName(const CString& name) { m_fileName = name; }
    // Compact layout: "key=value" and no blank line after a section.
    void SetCompactMode(bool compact) { m_compact = compact; }
    bool GetCompactMode() const { return m_compact; }
    // A backslash at the end of a line no longer joins the next line.
    void SetNoContinuation(bool noContinuation) { m_noContinuation = noContinuation; }
    bool GetNoContinuation() const { return m_noContinuation; }
    // "//" no longer starts a comment.
    void SetNoEndLineComment(bool noEndLineComment) { m_noEndLineComment = noEndLineComment; }
    bool GetNoEndLineComment() const { return m_noEndLineComment; }

    // The runtime share mode for the share flags of CFile open flags:
    // 0x10 deny read and write (also for shareCompat), 0x20 deny write,
    // 0x30 deny read, 0x40 deny none.
    static int shflags(unsigned flags);

    // Equal when both hold the same sections with the same keys and values;
    // the order of sections and keys, the extra lines, the file name and
    // the modes are not compared.
    bool operator==(const FileObject& other) const;
    bool operator!=(const FileObject& other) const { return !(*this == other); }

    // Diagnostics: the object's text as it would be saved, with a header
    // line naming the file and the status; trace() writes it to std::clog.
    void dump(std::wostream& out) const;
    void trace() const;

  protected:
    // Called after every successful read or create; returning false makes
    // the open fail. The base accepts every file.
    virtual bool AfterFileOpen();

    void SetErrorStatus(int status) const { m_errorStatus = status; }
    // Sets or clears the initialised flag.
    void SetReadStatus(bool initialised) { m_initialised = initialised; }
    // Hooks through which derived classes report their own failures; the
    // base reports nothing and returns false.
    bool ReportError(const CString& message) const;
    bool ReportError(const CString& message, const CString& details) const;

    // Fills the handle with the section; status 4 and false when missing.
    bool SelectSection(FobjSection& section, const CString& name) const;
    // Makes section name of this object a copy of the handle's items
    // (creating it at the end when missing), then points the handle at it.
    bool SetSection(FobjSection& section, const CString& name);
    bool CreateSection(FobjSection& section, const CString& name, bool clear);

    // Opens name for the line reader: probes the file's start, then opens
    // it as UTF-8 text ("[Encrypted]" files as narrow text) with the access
    // and share mode of flags; with CFile::modeCreate creates or empties it.
    // Null, with status 8 or 9, on failure (not reported here).
    std::unique_ptr<CStdioFile> open(const CString& name, unsigned flags) const;

  private:
    class Loader;
    struct DifferenceSink;
    using SectionTable = detail::OrderedTable<std::shared_ptr<detail::SectionData>>;

    bool OpenFile(const CString& name, unsigned flags);
    // Parses bytes read whole from a file or memory file.
    bool LoadBytes(std::string_view bytes, textencoding::type encoding);
    template <class LineSource>
    bool load(LineSource& source);
    bool load(CStdioFile& file);
    bool load(CArchive& archive);
    bool Loaded(bool sawSection);
    // The whole text with LF line ends.
    std::u16string Render() const;
    // The whole text as a file holds it: UTF-8 with CR LF line ends.
    std::string RenderUtf8() const;
    template <class Text>
    void RenderTo(Text& text) const;
    bool ReportSaveFailure(const CString& name) const;
    // Walks the differences from this object to other; false when the sink
    // asked to stop.
    bool CompareWith(const FileObject& other, DifferenceSink& sink) const;

    detail::SectionData* FindSection(const CString& name) const;
    detail::SectionData& SectionForWriting(const CString& name, bool clear);
    bool FindValue(const CString& section, const CString& key, const CString*& value) const;
    bool ConversionFailed(const CString& section, const CString& key) const;
    static void FillHandle(FobjSection& section, const SectionTable::Entry& node);

    bool m_throw = false;
    bool m_initialised = false;
    CString m_fileName;
    // Sections by name, in section order; each holds its items in key order.
    SectionTable m_sections;
    std::vector<CString> m_extraLines;
    mutable int m_errorStatus = statusOk;
    CString m_errorContext;
    bool m_compact = false;
    bool m_noContinuation = false;
    bool m_noEndLineComment = false;
    bool m_closeBeforeOpen = true;
};

}  // namespace vex
