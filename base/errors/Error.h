// Error.h - the base class of every error the library reports.
//
// An error describes a failure a user should see: it has a unique non-zero
// ID, a time (seconds since 1970-01-01 UTC), a severity and display flags,
// optional causes, and virtual Type/Format/Details/Signature texts that
// derived classes fill. Errors are reported to the process-wide list with
// Report() or the free ReportError(), which always returns false:
//
//   if (!file.Open()) return vex::ReportError(vex::FileError(path, vex::FileError::OPEN),
//   u"Tides");
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <atomic>
#include <memory>
#include <vector>

namespace vex {

class VEXBASE_API Error {
  public:
    enum SEVERITY { SEVERITY_INFORMATION = 0, SEVERITY_ERROR = 1, SEVERITY_CRITICAL = 2 };
    enum ACCEPT_STATUS { NOT_ACCEPTED = 0, ACCEPTED = 1 };
    enum ACTIVE_STATUS { ACTIVE = 0, INACTIVE = 1 };

    // Takes a fresh ID and the current time.
    Error();
    // Copies every field, the ID included, and deep-copies the causes.
    Error(const Error& other);
    Error& operator=(const Error& other);
    virtual ~Error();

    // The kind's short name, e.g. "File Error".
    virtual CString Type() const;
    // The message shown to the user.
    virtual CString Format() const;
    // Further text for a details view; empty by default.
    virtual CString Details() const;
    // A new heap copy of the most derived class; the caller owns it.
    virtual Error* Copy() const;
    // Identity of the failure: errors with equal signatures are repeats of
    // one another, and a list keeps only the newest of them.
    virtual unsigned int Signature() const;

    // Hands the error to GlobalErrorList under context ("" = "General").
    void Report(const CString& context) const;

    // Causes are owned copies.
    void AddCause(const Error& cause);
    // The cause at index, or null when index is out of range.
    const Error* GetCause(int index) const;
    int NumCauses() const;
    void ClearCauses();

    unsigned long long GetID() const { return m_id; }
    void SetID(unsigned long long id) { m_id = id; }
    long long GetErrorTime() const { return m_errorTime; }
    void SetErrorTime(long long secondsSince1970) { m_errorTime = secondsSince1970; }
    SEVERITY GetSeverity() const { return m_severity; }
    void SetSeverity(SEVERITY severity) { m_severity = severity; }
    ACCEPT_STATUS GetAcceptStatus() const { return m_acceptStatus; }
    void SetAcceptStatus(ACCEPT_STATUS status) { m_acceptStatus = status; }
    ACTIVE_STATUS GetActiveStatus() const { return m_activeStatus; }
    void SetActiveStatus(ACTIVE_STATUS status) { m_activeStatus = status; }
    bool IsSounding() const { return m_sounding; }
    void SetSounding(bool sounding) { m_sounding = sounding; }
    bool IsShowAlertWnd() const { return m_showAlertWnd; }
    void SetShowAlertWnd(bool show) { m_showAlertWnd = show; }

    // The class-wide ID counter; NextID never returns 0.
    static std::atomic<unsigned long long> g_ErrorID;
    static unsigned long long NextID();

  private:
    std::vector<std::unique_ptr<Error>> m_causes;
    unsigned long long m_id;
    long long m_errorTime;
    SEVERITY m_severity = SEVERITY_ERROR;
    ACCEPT_STATUS m_acceptStatus = NOT_ACCEPTED;
    ACTIVE_STATUS m_activeStatus = ACTIVE;
    bool m_sounding = false;
    bool m_showAlertWnd = true;
};

// Reports error to GlobalErrorList under context and returns false, so that
// a failing function can `return ReportError(...)`.
VEXBASE_API bool ReportError(const Error& error, const CString& context);

}  // namespace vex
