#include <base/errors/ErrorList.h>

#include <algorithm>

namespace vex {

ErrorList::ErrorList() = default;
ErrorList::~ErrorList() = default;

ErrorList& ErrorList::operator<<(const Error& error) {
    const unsigned int signature = error.Signature();
    std::unique_ptr<Error> copy(error.Copy());
    const std::lock_guard lock(m_mutex);
    const auto same = std::find_if(m_errors.begin(), m_errors.end(), [signature](const Entry& e) {
        return e.signature == signature;
    });
    if (same != m_errors.end()) m_errors.erase(same);
    const auto at = std::upper_bound(
        m_errors.begin(), m_errors.end(), copy->GetErrorTime(),
        [](long long time, const Entry& e) { return time < e.error->GetErrorTime(); });
    m_errors.insert(at, Entry{signature, std::move(copy)});
    if (m_errors.size() > static_cast<std::size_t>(kMaxErrors)) m_errors.erase(m_errors.begin());
    return *this;
}

const Error* ErrorList::operator[](int index) const {
    const std::lock_guard lock(m_mutex);
    if (index < 0 || static_cast<std::size_t>(index) >= m_errors.size()) return nullptr;
    return m_errors[static_cast<std::size_t>(index)].error.get();
}

int ErrorList::NumErrors() const {
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_errors.size());
}

const Error* ErrorList::GetErrorWithID(unsigned long long id) const {
    const std::lock_guard lock(m_mutex);
    for (const auto& e : m_errors) {
        if (e.error->GetID() == id) return e.error.get();
    }
    return nullptr;
}

void ErrorList::Clear() {
    const std::lock_guard lock(m_mutex);
    m_errors.clear();
}

void ErrorList::ClearFromTime(const long long& time) {
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_errors, [time](const Entry& e) { return e.error->GetErrorTime() >= time; });
}

}  // namespace vex
