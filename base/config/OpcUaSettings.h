// OpcUaSettings.h - how a device driver reaches an OPC UA server: host,
// port, client certificate and the security it asks for.
//
// The port is kept as text ("4841" by default) because it is shown and
// edited as such. The security policy and message security mode are the
// numbers of the OPC UA stack the driver uses (mode 1: none).
//
//   vex::OpcUaSettings ua;
//   ua.SetHostName(u"plc.local");
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API OpcUaSettings {
  public:
    // Host "localhost", port "4841", no certificate, policy 0, mode 1.
    OpcUaSettings();
    OpcUaSettings(const OpcUaSettings&) = default;
    OpcUaSettings& operator=(const OpcUaSettings&) = default;
    virtual ~OpcUaSettings();

    void ResetToDefaults();

    const CString& GetHostName() const { return m_hostName; }
    void SetHostName(const CString& hostName) { m_hostName = hostName; }
    const CString& GetPortName() const { return m_portName; }
    void SetPortName(const CString& portName) { m_portName = portName; }
    const CString& GetCertificate() const { return m_certificate; }
    void SetGetCertificate(const CString& certificate) { m_certificate = certificate; }
    int GetSecurityPolicy() const { return m_securityPolicy; }
    void SetSecurityPolicy(int policy) { m_securityPolicy = policy; }
    int GetMessageSecurityMode() const { return m_messageSecurityMode; }
    void SetMessageSecurityMode(int mode) { m_messageSecurityMode = mode; }

  private:
    CString m_hostName;
    CString m_portName;
    CString m_certificate;
    int m_securityPolicy;
    int m_messageSecurityMode;
};

}  // namespace vex
