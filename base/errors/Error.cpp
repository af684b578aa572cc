#include <base/errors/Error.h>

#include <base/config/CRCChecksum.h>
#include <base/errors/GlobalErrorList.h>
#include <base/framework/StringResources.h>

#include <chrono>

namespace vex {

std::atomic<unsigned long long> Error::g_ErrorID{0};

unsigned long long Error::NextID() {
    unsigned long long id = 0;
    while (id == 0)
        id = ++g_ErrorID;  // wrapping to 0 takes the next number
    return id;
}

namespace {
long long NowSecondsSince1970() {
    using namespace std::chrono;
    return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}
}  // namespace

Error::Error() : m_id(NextID()), m_errorTime(NowSecondsSince1970()) {}

Error::Error(const Error& other)
    : m_id(other.m_id),
      m_errorTime(other.m_errorTime),
      m_severity(other.m_severity),
      m_acceptStatus(other.m_acceptStatus),
      m_activeStatus(other.m_activeStatus),
      m_sounding(other.m_sounding),
      m_showAlertWnd(other.m_showAlertWnd) {
    for (const auto& cause : other.m_causes)
        m_causes.emplace_back(cause->Copy());
}

Error& Error::operator=(const Error& other) {
    if (this != &other) {
        std::vector<std::unique_ptr<Error>> causes;
        for (const auto& cause : other.m_causes)
            causes.emplace_back(cause->Copy());
        m_causes = std::move(causes);
        m_id = other.m_id;
        m_errorTime = other.m_errorTime;
        m_severity = other.m_severity;
        m_acceptStatus = other.m_acceptStatus;
        m_activeStatus = other.m_activeStatus;
        m_sounding = other.m_sounding;
        m_showAlertWnd = other.m_showAlertWnd;
    }
    return *this;
}

Error::~Error() = default;

CString Error::Type() const {
    return LoadStringResource(IDS_UNKNOWN);
}

CString Error::Format() const {
    return LoadStringResource(IDS_UNSPECIFIED_ERROR);
}

CString Error::Details() const {
    return CString();
}

Error* Error::Copy() const {
    return new Error(*this);
}

unsigned int Error::Signature() const {
    CRCChecksum crc;
    crc += Type();
    crc += Format();
    return crc.Value();
}

void Error::Report(const CString& context) const {
    GlobalErrorList::Get().Insert(*this, context);
}

void Error::AddCause(const Error& cause) {
    m_causes.emplace_back(cause.Copy());
}

const Error* Error::GetCause(int index) const {
    if (index < 0 || index >= NumCauses()) return nullptr;
    return m_causes[static_cast<std::size_t>(index)].get();
}

int Error::NumCauses() const {
    return static_cast<int>(m_causes.size());
}

void Error::ClearCauses() {
    m_causes.clear();
}

bool ReportError(const Error& error, const CString& context) {
    error.Report(context);
    return false;
}

}  // namespace vex
