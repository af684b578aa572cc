#include <base/config/CNetSettings.h>

namespace vex {

CNetSettings::CNetSettings() {
    ResetToDefaults();
}

CNetSettings::~CNetSettings() = default;

void CNetSettings::ResetToDefaults() {
    m_portNo = 1;
    m_localPort = 800;
    m_hostAdress.Empty();
    m_hostPort = 100;
    m_hostPort2 = 0;
    m_name.Empty();
    m_filterHostAdress = false;
    m_protocol = 0;
    m_protocol2 = 0;
    m_multicastAdress.Empty();
    m_useMulticast = false;
}

bool CNetSettings::operator==(const CNetSettings& other) const {
    return m_portNo == other.m_portNo && m_localPort == other.m_localPort &&
           m_hostPort == other.m_hostPort && m_hostPort2 == other.m_hostPort2 &&
           m_hostAdress == other.m_hostAdress && m_name == other.m_name &&
           m_filterHostAdress == other.m_filterHostAdress && m_protocol == other.m_protocol &&
           m_protocol2 == other.m_protocol2 && m_multicastAdress == other.m_multicastAdress &&
           m_useMulticast == other.m_useMulticast;
}

}  // namespace vex
