// GlobalErrorList.h - the process-wide list of reported errors.
//
// Errors are filed by context (the setting or subsystem they happened in;
// "General" by default), each context an ErrorList. Registered reporters
// are told of every inserted error, in registration order, on the
// reporting thread and under the list's lock. The lock is recursive:
// Lock()/Unlock() let a caller read several entries consistently, and a
// reporter may itself report. Optionally every inserted error is appended
// to a log file, one line each.
//
//   vex::GlobalErrorList::Get().AddReporter(std::make_shared<MyAlertPane>());
//   vex::ReportError(vex::GenericError(u"Pump stalled"), u"Dredge pump");
#pragma once

#include <base/Export.h>
#include <base/errors/Error.h>
#include <base/errors/ErrorList.h>
#include <base/errors/ErrorReporterBase.h>

#include <fstream>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace vex {

class VEXBASE_API GlobalErrorList {
  public:
    // The single instance, created on first use.
    static GlobalErrorList& Get();

    // Files a copy of error under context ("" keeps the current context
    // rules of SetContext), tells every reporter, writes the log line.
    GlobalErrorList& Insert(const Error& error, const CString& context);

    // An empty name selects "General"; a new name creates its list. The
    // choice stays for later inserts.
    void SetContext(const CString& context);
    CString CurrentContext() const;
    static CString DefaultContext();
    // Walk the context names in sorted order; false at the end. The cursor
    // is shared, so hold Lock() when other threads may walk too.
    bool FirstContext(CString& name) const;
    bool NextContext(CString& name) const;

    // Errors in the current context, or in all contexts when allContexts.
    int NumErrors(bool allContexts = false) const;
    // The error at index of the current context, or null. Valid until the
    // list changes: hold Lock() while using it when other threads report.
    const Error* Get(int index) const;
    const Error* operator[](int index) const { return Get(index); }
    // The error with this ID in any context, or null.
    const Error* GetErrorWithID(unsigned long long id) const;

    // Empties every context (the contexts stay).
    void Clear();
    void Clear(const CString& context);
    // Removes, in every context, the errors at or after time (s since 1970).
    void ClearFromTime(const long long& time);

    void AddReporter(std::shared_ptr<ErrorReporterBase> reporter);
    void RemoveReporter(std::shared_ptr<ErrorReporterBase> reporter);

    // Appends a line per inserted error to this file (UTF-8, CR LF):
    // UTC time, context, type and message, tab-separated. An empty name
    // stops logging. A log that cannot be written never fails a report.
    void SetLogFileName(const CString& fileName);

    void Lock() const { m_mutex.lock(); }
    void Unlock() const { m_mutex.unlock(); }

    GlobalErrorList(const GlobalErrorList&) = delete;
    GlobalErrorList& operator=(const GlobalErrorList&) = delete;

  private:
    GlobalErrorList();
    ~GlobalErrorList();

    ErrorList& CurrentList() const;
    void WriteLogLine(const Error& error);

    mutable std::recursive_mutex m_mutex;
    std::map<CString, std::unique_ptr<ErrorList>> m_contexts;
    CString m_currentContext;
    mutable std::map<CString, std::unique_ptr<ErrorList>>::const_iterator m_contextCursor;
    std::vector<std::shared_ptr<ErrorReporterBase>> m_reporters;
    CString m_logFileName;
    std::ofstream m_log;
};

}  // namespace vex
