// The file object's content: sections, items, iteration, comparison and
// status. Reading and writing text is in FileObjectText.cpp, the typed
// items in FileObjectItems.cpp.
#include <base/config/FileObject.h>

#include <base/config/SectionData.h>
#include <base/errors/ErrorMessageFile.h>
#include <base/errors/FileObjectError.h>
#include <base/framework/TextEncoding.h>

#include <functional>
#include <iostream>
#include <string_view>
#include <utility>

namespace vex {

FileObject::FileObject() = default;

FileObject::FileObject(const FileObject& other)
    : m_throw(other.m_throw),
      m_initialised(other.m_initialised),
      m_fileName(other.m_fileName),
      m_sections(other.m_sections),
      m_extraLines(other.m_extraLines),
      m_errorStatus(other.m_errorStatus),
      m_errorContext(other.m_errorContext),
      m_compact(other.m_compact),
      m_noContinuation(other.m_noContinuation),
      m_noEndLineComment(other.m_noEndLineComment),
      m_closeBeforeOpen(other.m_closeBeforeOpen) {
    // The table copy shares the sections' items; a copy gets its own.
    m_sections.ForEach([](const CString&, std::shared_ptr<detail::SectionData>& data) {
        data = std::make_shared<detail::SectionData>(*data);
    });
}

FileObject& FileObject::operator=(const FileObject& other) {
    if (this != &other) *this = FileObject(other);
    return *this;
}

FileObject::FileObject(FileObject&& other) noexcept = default;
FileObject& FileObject::operator=(FileObject&& other) noexcept = default;
FileObject::~FileObject() = default;

int FileObject::GetErrorStatus() const {
    return m_errorStatus;
}

bool FileObject::AfterFileOpen() {
    return true;
}

bool FileObject::ReportError(const CString&) const {
    return false;
}

bool FileObject::ReportError(const CString&, const CString&) const {
    return false;
}

CString FileObject::GetFileTitle() const {
    return FileTitleOf(m_fileName);
}

int FileObject::shflags(unsigned flags) {
    switch (flags & CFile::shareMask) {
        case CFile::shareDenyWrite:
            return 0x20;
        case CFile::shareDenyRead:
            return 0x30;
        case CFile::shareDenyNone:
            return 0x40;
        default:  // shareExclusive, shareCompat and undefined values
            return 0x10;
    }
}

// --- content ------------------------------------------------------------------

void FileObject::MakeEmpty() {
    m_errorStatus = statusOk;
    m_sections.Clear();
    m_extraLines.clear();
}

void FileObject::FileClose() {
    m_errorStatus = statusOk;
    if (!m_closeBeforeOpen) return;
    MakeEmpty();
    m_initialised = false;
    m_fileName.Empty();
}

detail::SectionData* FileObject::FindSection(const CString& name) const {
    const std::shared_ptr<detail::SectionData>* data = m_sections.Find(name.View());
    return data ? data->get() : nullptr;
}

detail::SectionData& FileObject::SectionForWriting(const CString& name, bool clear) {
    std::shared_ptr<detail::SectionData>& data = m_sections.Insert(name).value;
    if (!data) {
        data = std::make_shared<detail::SectionData>();
    } else if (clear) {
        data->Clear();
    }
    return *data;
}

void FileObject::FillHandle(FobjSection& section, const SectionTable::Entry& node) {
    section.m_name = node.key;
    section.m_data = node.value;
    section.m_sectionCursor = node.sequence;
    section.m_itemCursor = 0;
}

// --- sections -----------------------------------------------------------------

bool FileObject::CreateSection(const CString& name, bool clear) {
    m_errorStatus = statusOk;
    SectionForWriting(name, clear);
    return true;
}

bool FileObject::CreateSection(FobjSection& section, const CString& name, bool clear) {
    m_errorStatus = statusOk;
    SectionForWriting(name, clear);
    FillHandle(section, *m_sections.FindEntry(name.View()));
    return true;
}

bool FileObject::DeleteSection(const CString& name) {
    m_errorStatus = statusOk;
    if (!m_sections.Erase(name.View())) {
        m_errorStatus = statusSectionNotFound;
        return false;
    }
    return true;
}

bool FileObject::DeleteSection(FobjSection& section, const CString& name) {
    const detail::SectionData* data = FindSection(name);
    const bool heldByHandle = data != nullptr && section.m_data.get() == data;
    if (!DeleteSection(name)) return false;
    if (heldByHandle) section.Release();
    return true;
}

bool FileObject::RenameSection(const CString& oldName, const CString& newName) {
    m_errorStatus = statusOk;
    if (m_sections.IsEmpty()) {
        m_errorStatus = statusNoSections;
        return false;
    }
    if (FindSection(oldName) == nullptr) {
        m_errorStatus = statusSectionNotFound;
        return false;
    }
    if (oldName == newName) return true;
    m_sections.Erase(newName.View());
    m_sections.Rename(oldName.View(), newName);
    return true;
}

bool FileObject::CopySection(const CString& name, const FileObject& from) {
    return CopySection(name, from, name);
}

bool FileObject::CopySection(const CString& name, const FileObject& from, const CString& fromName) {
    m_errorStatus = statusOk;
    from.m_errorStatus = statusOk;
    const detail::SectionData* source = from.FindSection(fromName);
    if (source == nullptr) {
        m_errorStatus = statusKeyNotFound;
        from.m_errorStatus = statusKeyNotFound;
        if (from.m_throw) {
            throw FileObjectError(fromName, CString(), from.m_fileName,
                                  FileObjectError::SECTION_NOT_FOUND);
        }
        return false;
    }
    // Copied first: from may be this object, and the target may be the source.
    detail::SectionData copy(*source);
    SectionForWriting(name, false) = std::move(copy);
    return true;
}

bool FileObject::HasSection(const CString& name) const {
    m_errorStatus = statusOk;
    return FindSection(name) != nullptr;
}

int FileObject::GetNumSections() const {
    m_errorStatus = statusOk;
    return m_sections.Count();
}

int FileObject::GetNumItems(const CString& section) const {
    m_errorStatus = statusOk;
    const detail::SectionData* data = FindSection(section);
    if (data == nullptr) {
        m_errorStatus = statusSectionNotFound;
        return 0;
    }
    return data->Count();
}

bool FileObject::SelectSection(FobjSection& section, const CString& name) const {
    m_errorStatus = statusOk;
    const SectionTable::Entry* node = m_sections.FindEntry(name.View());
    if (node == nullptr) {
        m_errorStatus = statusSectionNotFound;
        return false;
    }
    FillHandle(section, *node);
    return true;
}

bool FileObject::SetSection(FobjSection& section, const CString& name) {
    m_errorStatus = statusOk;
    if (!section.m_data) return false;
    detail::SectionData& target = SectionForWriting(name, false);
    if (&target != section.m_data.get()) target = *section.m_data;
    FillHandle(section, *m_sections.FindEntry(name.View()));
    return true;
}

// --- items --------------------------------------------------------------------

bool FileObject::FindValue(const CString& section, const CString& key,
                           const CString*& value) const {
    const detail::SectionData* data = FindSection(section);
    if (data == nullptr) {
        m_errorStatus = statusSectionNotFound;
        if (m_throw) {
            throw FileObjectError(section, key, m_fileName, FileObjectError::SECTION_NOT_FOUND);
        }
        return false;
    }
    value = data->Find(key.View());
    if (value == nullptr) {
        m_errorStatus = statusKeyNotFound;
        if (m_throw)
            throw FileObjectError(section, key, m_fileName, FileObjectError::KEY_NOT_FOUND);
        return false;
    }
    return true;
}

bool FileObject::ConversionFailed(const CString& section, const CString& key) const {
    m_errorStatus = statusConversionFailed;
    if (m_throw) {
        throw FileObjectError(section, key, m_fileName, FileObjectError::VALUE_NOT_CONVERTED);
    }
    return false;
}

bool FileObject::GetItem(const CString& section, const CString& key, CString& value) const {
    m_errorStatus = statusOk;
    const CString* found = nullptr;
    if (!FindValue(section, key, found)) return false;
    value = *found;
    return true;
}

bool FileObject::SetItem(const CString& section, const CString& key, const CString& value,
                         bool createSection) {
    m_errorStatus = statusOk;
    detail::SectionData* data = FindSection(section);
    if (data == nullptr) {
        if (!createSection) {
            m_errorStatus = statusSectionNotFound;
            return false;
        }
        data = &SectionForWriting(section, false);
    }
    data->Set(key, value);
    return true;
}

bool FileObject::DeleteItem(const CString& section, const CString& key, bool deleteEmptySection) {
    m_errorStatus = statusOk;
    detail::SectionData* data = FindSection(section);
    if (data == nullptr) {
        m_errorStatus = statusSectionNotFound;
        return false;
    }
    if (!data->Erase(key.View())) {
        m_errorStatus = statusDeleteKeyNotFound;
        return false;
    }
    if (deleteEmptySection && data->IsEmpty()) m_sections.Erase(section.View());
    return true;
}

bool FileObject::HasKey(const CString& section, const CString& key) const {
    m_errorStatus = statusOk;
    const detail::SectionData* data = FindSection(section);
    return data != nullptr && data->Find(key.View()) != nullptr;
}

// --- iteration ------------------------------------------------------------------

namespace {

constexpr std::u16string_view kChecksumSection = u"Checksum";

// The entry itself, or the one after it when it is the checksum section.
template <class Table, class Entry>
const Entry* PassChecksum(const Table& table, const Entry* entry) {
    if (entry != nullptr && entry->key.View() == kChecksumSection)
        entry = table.After(entry->sequence);
    return entry;
}

}  // namespace

const CString FileObject::CHECKSUM_SECTION(kChecksumSection);

bool FileObject::GetFirstSectionEntry(FobjSection& section, CString& name) const {
    m_errorStatus = statusOk;
    const SectionTable::Entry* first = PassChecksum(m_sections, m_sections.First());
    if (first == nullptr) return false;
    FillHandle(section, *first);
    name = first->key;
    return true;
}

bool FileObject::GetNextSectionEntry(FobjSection& section, CString& name) const {
    m_errorStatus = statusOk;
    const SectionTable::Entry* next =
        PassChecksum(m_sections, m_sections.After(section.m_sectionCursor));
    if (next == nullptr) return false;
    FillHandle(section, *next);
    name = next->key;
    return true;
}

bool FileObject::GetFirstMapEntry(FobjSection& section, const CString& sectionName, CString& key,
                                  CString& value) const {
    if (!SelectSection(section, sectionName)) return false;
    const detail::SectionData::Entry* first = section.m_data->First();
    if (first == nullptr) return false;
    section.m_itemCursor = first->sequence;
    key = first->key;
    value = first->value;
    return true;
}

bool FileObject::GetNextMapEntry(FobjSection& section, CString& key, CString& value) const {
    m_errorStatus = statusOk;
    if (!section.m_data) return false;
    const detail::SectionData::Entry* next = section.m_data->After(section.m_itemCursor);
    if (next == nullptr) return false;
    section.m_itemCursor = next->sequence;
    key = next->key;
    value = next->value;
    return true;
}

// --- comparison and diagnostics --------------------------------------------------

bool FileObject::operator==(const FileObject& other) const {
    if (m_sections.Count() != other.m_sections.Count()) return false;
    bool equal = true;
    m_sections.ForEach([&](const CString& name, const std::shared_ptr<detail::SectionData>& data) {
        const detail::SectionData* theirs = equal ? other.FindSection(name) : nullptr;
        equal = theirs != nullptr && theirs->Count() == data->Count();
        if (!equal) return;
        data->ForEach([&](const CString& key, const CString& value) {
            const CString* found = equal ? theirs->Find(key.View()) : nullptr;
            equal = found != nullptr && *found == value;
        });
    });
    return equal;
}

void FileObject::dump(std::wostream& out) const {
    CString header;
    header.Format(u"FileObject \"%s\": %d sections, status %d\n", m_fileName, m_sections.Count(),
                  m_errorStatus);
    out << Utf16ToWide(header.View()) << Utf16ToWide(Render());
}

void FileObject::trace() const {
    CString header;
    header.Format(u"FileObject \"%s\": %d sections, status %d\n", m_fileName, m_sections.Count(),
                  m_errorStatus);
    std::clog << header.ToUtf8() << Utf16ToUtf8(Render()) << std::flush;
}

}  // namespace vex
