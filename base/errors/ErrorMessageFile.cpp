#include <base/errors/ErrorMessageFile.h>

#include <base/config/FileObject.h>
#include <base/framework/CFile.h>

#include <algorithm>
#include <mutex>

namespace vex {

Translator::~Translator() = default;

ErrorMessageFile& ErrorMessageFile::Get() {
    static ErrorMessageFile instance;
    return instance;
}

ErrorMessageFile::ErrorMessageFile() = default;
ErrorMessageFile::~ErrorMessageFile() = default;

bool ErrorMessageFile::Open(const CString& fileName) {
    auto file = std::make_unique<FileObject>();
    // Read before taking the lock: a failure is reported, and reporting
    // formats the error, which looks its texts up here.
    const bool ok = file->FileOpen(fileName, CFile::modeRead | CFile::shareDenyWrite);
    const std::lock_guard lock(m_mutex);
    m_file = ok ? std::move(file) : nullptr;
    return ok;
}

bool ErrorMessageFile::IsOpen() const {
    const std::lock_guard lock(m_mutex);
    return m_file != nullptr;
}

void ErrorMessageFile::Close() {
    std::unique_ptr<FileObject> file;
    const std::lock_guard lock(m_mutex);
    file.swap(m_file);
}

bool ErrorMessageFile::Get(const CString& section, const CString& key, CString& text) const {
    CString found;
    std::shared_ptr<const Translator> translator;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_file || !m_file->GetItem(section, key, found)) return false;
        translator = m_translator;
    }
    if (translator && translator->IsActive()) {
        CString translated = translator->Translate(found);
        if (!translated.IsEmpty()) found = std::move(translated);
    }
    text = std::move(found);
    return true;
}

void ErrorMessageFile::SetTranslator(std::shared_ptr<const Translator> translator) {
    const std::lock_guard lock(m_mutex);
    m_translator = std::move(translator);
}

CString FileTitleOf(const CString& path) {
    const int cut = std::max(path.ReverseFind(u'\\'), path.ReverseFind(u'/'));
    return path.Mid(cut + 1);
}

}  // namespace vex
