// CNetSettings.h - how a device driver reaches its device over a network
// socket: ports, host and multicast addresses, protocols.
//
// A plain settings record: drivers and their dialogs fill it, the caller
// stores it. Port numbers are unsigned 32-bit values as the suite keeps
// them; nothing here checks that they fit a TCP/UDP port.
//
//   vex::CNetSettings net;
//   net.SetHostAdress(u"192.168.1.20");
//   net.SetHostPort(4001);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API CNetSettings {
  public:
    // Port 1, local port 800, host port 100, everything else empty or 0.
    CNetSettings();
    CNetSettings(const CNetSettings&) = default;
    CNetSettings& operator=(const CNetSettings&) = default;
    virtual ~CNetSettings();

    void ResetToDefaults();

    // True when every field is equal; texts compare case-sensitively.
    bool operator==(const CNetSettings& other) const;

    unsigned int GetPortNo() const { return m_portNo; }
    void SetPortNo(unsigned int portNo) { m_portNo = portNo; }
    unsigned int GetLocalPort() const { return m_localPort; }
    void SetLocalPort(unsigned int localPort) { m_localPort = localPort; }
    const CString& GetHostAdress() const { return m_hostAdress; }
    void SetHostAdress(const CString& hostAdress) { m_hostAdress = hostAdress; }
    unsigned int GetHostPort() const { return m_hostPort; }
    void SetHostPort(unsigned int hostPort) { m_hostPort = hostPort; }
    unsigned int GetHostPort2() const { return m_hostPort2; }
    void SetHostPort2(unsigned int hostPort2) { m_hostPort2 = hostPort2; }
    const CString& GetName() const { return m_name; }
    void SetName(const CString& name) { m_name = name; }
    // Whether only datagrams from the host address are accepted.
    bool GetFilterHostAdress() const { return m_filterHostAdress; }
    void SetFilterHostAdress(bool filter) { m_filterHostAdress = filter; }
    int GetProtocol() const { return m_protocol; }
    void SetProtocol(int protocol) { m_protocol = protocol; }
    int GetProtocol2() const { return m_protocol2; }
    void SetProtocol2(int protocol2) { m_protocol2 = protocol2; }
    const CString& GetMulticastAdress() const { return m_multicastAdress; }
    void SetMulticastAdress(const CString& address) { m_multicastAdress = address; }
    bool GetUseMulticast() const { return m_useMulticast; }
    void SetUseMulticast(bool useMulticast) { m_useMulticast = useMulticast; }

  private:
    unsigned int m_portNo;
    unsigned int m_localPort;
    CString m_hostAdress;
    unsigned int m_hostPort;
    unsigned int m_hostPort2;
    CString m_name;
    bool m_filterHostAdress;
    int m_protocol;
    int m_protocol2;
    CString m_multicastAdress;
    bool m_useMulticast;
};

}  // namespace vex
