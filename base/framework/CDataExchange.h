// CDataExchange.h - the exchange of values between a dialog's controls and
// the variables behind them, as the DDX_ functions of the library see it.
//
// An application derives from CDataExchange to reach its own controls by
// id. With m_bSaveAndValidate set, DDX_ functions read the controls into
// the variables; otherwise they write the variables into the controls. A
// control text that cannot be read marks the exchange failed (Fail) and
// leaves the variable unchanged; the caller checks Failed() afterwards.
//
//   struct Form : vex::CDataExchange { ... GetControlText / SetControlText ... };
//   form.m_bSaveAndValidate = true;
//   vex::DDX_SysUnit(&form, IDC_DEPTH, depth, vex::FMT_DEPTH);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API CDataExchange {
  public:
    explicit CDataExchange(bool saveAndValidate = false) : m_bSaveAndValidate(saveAndValidate) {}
    virtual ~CDataExchange() = default;

    // The text of control id, and setting it.
    virtual CString GetControlText(int id) = 0;
    virtual void SetControlText(int id, const CString& text) = 0;

    // Records that control id held text that could not be read.
    virtual void Fail(int id) {
        m_bFailed = true;
        m_failedControl = id;
    }
    bool Failed() const { return m_bFailed; }
    // The control of the last failure; 0 when none failed.
    int FailedControl() const { return m_failedControl; }

    // True: controls to variables; false: variables to controls.
    bool m_bSaveAndValidate;

  private:
    bool m_bFailed = false;
    int m_failedControl = 0;
};

}  // namespace vex
