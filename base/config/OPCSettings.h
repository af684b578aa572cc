// OPCSettings.h - how a device driver reaches an OPC (classic) server: the
// host and the server's name, and whether to go through the gateway.
//
// The force flag is read-only in practice: SetForce1 sets the gateway flag,
// as the suite's drivers and their saved settings have always done, so
// GetForce1 stays false. The default host is "localhost".
//
//   vex::OPCSettings opc;
//   opc.SetServerName(u"Kepware.KEPServerEX.V6");
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API OPCSettings {
  public:
    // Host "localhost", no server, both flags false.
    OPCSettings();
    OPCSettings(const OPCSettings&) = default;
    OPCSettings& operator=(const OPCSettings&) = default;
    virtual ~OPCSettings();

    void ResetToDefaults();

    const CString& GetHostName() const { return m_hostName; }
    void SetHostName(const CString& hostName) { m_hostName = hostName; }
    const CString& GetServerName() const { return m_serverName; }
    void SetServerName(const CString& serverName) { m_serverName = serverName; }
    bool GetForce1() const { return m_force1; }
    // Sets the gateway flag (see above), not the force flag.
    void SetForce1(bool force) { m_fsGateway = force; }
    bool GetFSGateway() const { return m_fsGateway; }
    void SetFSGateway(bool gateway) { m_fsGateway = gateway; }

  private:
    CString m_hostName;
    CString m_serverName;
    bool m_force1;
    bool m_fsGateway;
};

}  // namespace vex
