#include <base/errors/GlobalErrorList.h>

#include <base/framework/Format.h>
#include <base/platform/TimeZone.h>

#include <algorithm>
#include <ctime>
#include <filesystem>

namespace vex {

ErrorReporterBase::~ErrorReporterBase() = default;

GlobalErrorList& GlobalErrorList::Get() {
    static GlobalErrorList instance;
    return instance;
}

GlobalErrorList::GlobalErrorList() : m_currentContext(DefaultContext()) {
    m_contexts.emplace(m_currentContext, std::make_unique<ErrorList>());
    m_contextCursor = m_contexts.end();
}

GlobalErrorList::~GlobalErrorList() = default;

CString GlobalErrorList::DefaultContext() {
    return CString(u"General");
}

ErrorList& GlobalErrorList::CurrentList() const {
    return *m_contexts.at(m_currentContext);
}

GlobalErrorList& GlobalErrorList::Insert(const Error& error, const CString& context) {
    const std::lock_guard lock(m_mutex);
    SetContext(context);
    CurrentList() << error;
    WriteLogLine(error);
    // A copy, so that a reporter may add or remove reporters.
    const auto reporters = m_reporters;
    for (const auto& reporter : reporters)
        reporter->Notify(error);
    return *this;
}

void GlobalErrorList::SetContext(const CString& context) {
    const std::lock_guard lock(m_mutex);
    m_currentContext = context.IsEmpty() ? DefaultContext() : context;
    auto& list = m_contexts[m_currentContext];
    if (!list) list = std::make_unique<ErrorList>();
}

CString GlobalErrorList::CurrentContext() const {
    const std::lock_guard lock(m_mutex);
    return m_currentContext;
}

bool GlobalErrorList::FirstContext(CString& name) const {
    const std::lock_guard lock(m_mutex);
    m_contextCursor = m_contexts.begin();
    return NextContext(name);
}

bool GlobalErrorList::NextContext(CString& name) const {
    const std::lock_guard lock(m_mutex);
    if (m_contextCursor == m_contexts.end()) return false;
    name = m_contextCursor->first;
    ++m_contextCursor;
    return true;
}

int GlobalErrorList::NumErrors(bool allContexts) const {
    const std::lock_guard lock(m_mutex);
    if (!allContexts) return CurrentList().NumErrors();
    int total = 0;
    for (const auto& [name, list] : m_contexts)
        total += list->NumErrors();
    return total;
}

const Error* GlobalErrorList::Get(int index) const {
    const std::lock_guard lock(m_mutex);
    return CurrentList()[index];
}

const Error* GlobalErrorList::GetErrorWithID(unsigned long long id) const {
    const std::lock_guard lock(m_mutex);
    for (const auto& [name, list] : m_contexts) {
        if (const Error* e = list->GetErrorWithID(id)) return e;
    }
    return nullptr;
}

void GlobalErrorList::Clear() {
    const std::lock_guard lock(m_mutex);
    for (auto& [name, list] : m_contexts)
        list->Clear();
}

void GlobalErrorList::Clear(const CString& context) {
    const std::lock_guard lock(m_mutex);
    const auto it = m_contexts.find(context.IsEmpty() ? DefaultContext() : context);
    if (it != m_contexts.end()) it->second->Clear();
}

void GlobalErrorList::ClearFromTime(const long long& time) {
    const std::lock_guard lock(m_mutex);
    for (auto& [name, list] : m_contexts)
        list->ClearFromTime(time);
}

void GlobalErrorList::AddReporter(std::shared_ptr<ErrorReporterBase> reporter) {
    if (!reporter) return;
    const std::lock_guard lock(m_mutex);
    m_reporters.push_back(std::move(reporter));
}

void GlobalErrorList::RemoveReporter(std::shared_ptr<ErrorReporterBase> reporter) {
    const std::lock_guard lock(m_mutex);
    std::erase(m_reporters, reporter);
}

void GlobalErrorList::SetLogFileName(const CString& fileName) {
    const std::lock_guard lock(m_mutex);
    m_log.close();
    m_log.clear();
    m_logFileName = fileName;
    if (!fileName.IsEmpty()) {
        m_log.open(std::filesystem::path(fileName.Str()), std::ios::binary | std::ios::app);
    }
}

void GlobalErrorList::WriteLogLine(const Error& error) {
    if (!m_log.is_open()) return;
    std::tm utc{};
    const std::time_t when = static_cast<std::time_t>(error.GetErrorTime());
    std::string stamp = "(time unknown)";
    if (platform::UtcCalendar(when, utc)) {
        stamp = Format("%04d-%02d-%02d %02d:%02d:%02d", utc.tm_year + 1900, utc.tm_mon + 1,
                       utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec);
    }
    const std::string line = Format("%s\t%s\t%s\t%s\r\n", stamp, m_currentContext.ToUtf8(),
                                    error.Type().ToUtf8(), error.Format().ToUtf8());
    m_log.write(line.data(), static_cast<std::streamsize>(line.size()));
    m_log.flush();
    // A failing log (disk full, removed medium) is reset and tried again on
    // the next error; reporting itself never fails.
    if (!m_log) m_log.clear();
}

}  // namespace vex
