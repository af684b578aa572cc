#include <base/config/CSerialSettings.h>

#include <base/platform/SerialPorts.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vex {
namespace {

// The control block's flags are bit fields in one 32-bit word after the
// length and the baud rate; the defaults are set on the whole word so that
// the undefined upper bits are kept exactly.
constexpr std::size_t kFlagWordOffset = 8;
constexpr std::uint32_t kKeptFlagBits = 0xFFFF9091u;
constexpr std::uint32_t kDefaultFlagBits = 0x1091u;

std::uint32_t FlagWord(const DCB& dcb) {
    std::uint32_t word;
    std::memcpy(&word, reinterpret_cast<const unsigned char*>(&dcb) + kFlagWordOffset, 4);
    return word;
}

void SetFlagWord(DCB& dcb, std::uint32_t word) {
    std::memcpy(reinterpret_cast<unsigned char*>(&dcb) + kFlagWordOffset, &word, 4);
}

// Control-block parity byte for each suite number 1 to 5.
constexpr std::uint8_t kParityBytes[] = {EVENPARITY, MARKPARITY, NOPARITY, ODDPARITY, SPACEPARITY};
// Suite number for each control-block parity byte 0 to 4.
constexpr int kSuiteParities[] = {3, 4, 1, 2, 5};

bool SameUserFields(const DCB& a, const DCB& b) {
    return a.BaudRate == b.BaudRate && a.ByteSize == b.ByteSize && a.StopBits == b.StopBits &&
           a.Parity == b.Parity && a.EvtChar == b.EvtChar && a.fOutxCtsFlow == b.fOutxCtsFlow;
}

}  // namespace

CSerialSettings::CSerialSettings() {
    ResetToDefaults();
}

void CSerialSettings::ResetToDefaults() {
    m_dcb.DCBlength = sizeof(DCB);
    m_dcb.BaudRate = 9600;
    SetFlagWord(m_dcb, (FlagWord(m_dcb) & kKeptFlagBits) | kDefaultFlagBits);
    m_dcb.ByteSize = 8;
    m_dcb.Parity = NOPARITY;
    m_dcb.StopBits = ONESTOPBIT;
    m_dcb.ErrorChar = ' ';
    m_dcb.EofChar = 0;
    m_dcb.EvtChar = '\n';
    m_portNo = 1;
}

CSerialSettings& CSerialSettings::operator=(const DCB& dcb) {
    ResetToDefaults();
    m_dcb.BaudRate = dcb.BaudRate;
    m_dcb.ByteSize = dcb.ByteSize;
    m_dcb.StopBits = dcb.StopBits;
    m_dcb.Parity = dcb.Parity;
    m_dcb.EvtChar = dcb.EvtChar;
    m_dcb.fOutxCtsFlow = dcb.fOutxCtsFlow;
    return *this;
}

bool CSerialSettings::operator==(const CSerialSettings& other) const {
    return m_portNo == other.m_portNo && SameUserFields(m_dcb, other.m_dcb);
}

bool CSerialSettings::operator==(const DCB& dcb) const {
    return SameUserFields(m_dcb, dcb);
}

bool CSerialSettings::SetParity(int parity) {
    if (parity < 0 || parity > 5) return false;
    if (parity == 0) {
        m_dcb.fParity = 0;
    } else {
        m_dcb.fParity = 1;
        m_dcb.Parity = kParityBytes[parity - 1];
    }
    return true;
}

int CSerialSettings::GetParity() const {
    if (m_dcb.fParity == 0 || m_dcb.Parity > SPACEPARITY) return 0;
    return kSuiteParities[m_dcb.Parity];
}

bool CSerialSettings::SetStopBits(int stopBits) {
    if (stopBits < 1 || stopBits > 3) return false;
    m_dcb.StopBits = static_cast<std::uint8_t>(stopBits - 1);
    return true;
}

int CSerialSettings::GetStopBits() const {
    return m_dcb.StopBits <= TWOSTOPBITS ? m_dcb.StopBits + 1 : 0;
}

void CSerialSettings::GetAvailableComPorts(std::vector<CString>& ports) {
    ports.clear();
    for (const std::u16string& port : platform::ListSerialPorts())
        ports.emplace_back(port);
}

}  // namespace vex
