// ErrorReporterBase.h - the observer interface through which user-interface
// code learns of every error reported to the global list.
#pragma once

#include <base/Export.h>

namespace vex {

class Error;

class VEXBASE_API ErrorReporterBase {
  public:
    virtual ~ErrorReporterBase();
    // Called for each inserted error, on the reporting thread, with the
    // global list's lock held: it must not wait for another thread that
    // reports errors.
    virtual void Notify(const Error& error) = 0;
};

}  // namespace vex
