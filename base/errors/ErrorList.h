// ErrorList.h - an ordered, bounded list of error copies.
//
// Errors are kept sorted by time, equal times in arrival order. A new error
// replaces an earlier one with the same signature, and past 250 entries
// the oldest is dropped. The list has its own lock, so each call is
// atomic; pointers it returns stay valid until the list next changes, so
// callers that read while others report hold GlobalErrorList::Lock().
#pragma once

#include <base/Export.h>
#include <base/errors/Error.h>

#include <memory>
#include <mutex>
#include <vector>

namespace vex {

class VEXBASE_API ErrorList {
  public:
    static constexpr int kMaxErrors = 250;

    ErrorList();
    ~ErrorList();
    ErrorList(const ErrorList&) = delete;
    ErrorList& operator=(const ErrorList&) = delete;

    // Adds a copy of error (see the class comment).
    ErrorList& operator<<(const Error& error);
    // The error at index, oldest first; null when index is out of range.
    const Error* operator[](int index) const;
    int NumErrors() const;
    // The error with this ID, or null.
    const Error* GetErrorWithID(unsigned long long id) const;
    void Clear();
    // Removes every error whose time (seconds since 1970) is at or after time.
    void ClearFromTime(const long long& time);

  private:
    // The signature is kept beside each error: computing it formats texts.
    struct Entry {
        unsigned int signature;
        std::unique_ptr<Error> error;
    };
    mutable std::mutex m_mutex;
    std::vector<Entry> m_errors;
};

}  // namespace vex
