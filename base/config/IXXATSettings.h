// IXXATSettings.h - which IXXAT CAN interface, bus and line a device
// driver uses.
//
//   vex::IXXATSettings can;
//   can.SetInterfaceName(u"USB-to-CAN V2"); can.SetLineNumber(1);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API IXXATSettings {
  public:
    // No interface, no bus, line 0.
    IXXATSettings();
    IXXATSettings(const IXXATSettings&) = default;
    IXXATSettings& operator=(const IXXATSettings&) = default;
    virtual ~IXXATSettings();

    void ResetToDefaults();

    const CString& GetInterfaceName() const { return m_interfaceName; }
    void SetInterfaceName(const CString& name) { m_interfaceName = name; }
    const CString& GetBusName() const { return m_busName; }
    void SetBusName(const CString& name) { m_busName = name; }
    int GetLineNumber() const { return m_lineNumber; }
    void SetLineNumber(int lineNumber) { m_lineNumber = lineNumber; }

  private:
    CString m_interfaceName;
    CString m_busName;
    int m_lineNumber;
};

}  // namespace vex
