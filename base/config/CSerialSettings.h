// CSerialSettings.h - how a device driver reaches its device over a serial
// port: the port number and a Windows serial control block (DCB).
//
// Parity and stop bits are read and written in the suite's own numbering,
// which differs from the control block's (see SetParity, SetStopBits); the
// record is laid out as the suite has always kept it (the 28-byte DCB, then
// the port number). Equality looks only at the fields a user sets.
//
//   vex::CSerialSettings serial;
//   serial.SetPortNo(3); serial.SetBaudRate(115200);
//   serial.SetParity(1);  // even
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/framework/Dcb.h>

#include <vector>

namespace vex {

class VEXBASE_API CSerialSettings {
  public:
    // Port 1, 9600 baud, 8 data bits, no parity, one stop bit, event
    // character line feed; see ResetToDefaults.
    CSerialSettings();
    CSerialSettings(const CSerialSettings&) = default;
    CSerialSettings& operator=(const CSerialSettings&) = default;

    // Port 1 and the control block's defaults: length 28, 9600 baud, binary
    // mode, DTR and RTS enabled, transmitting on after XOFF, every other flag
    // off, 8 data bits, no parity, one stop bit, error character space, end-
    // of-file character 0, event character line feed. Flag bits above the
    // defined ones and the fields not named keep their values.
    void ResetToDefaults();

    // Resets to the defaults (port 1), then takes the baud rate, data bits,
    // parity and stop-bit bytes, event character and CTS output flow from
    // dcb. The parity-check flag is not taken, so GetParity reads 0 until
    // SetParity is called.
    CSerialSettings& operator=(const DCB& dcb);

    // Equal port, baud rate, data bits, stop-bit and parity bytes, event
    // character and CTS output flow; every other field is ignored.
    bool operator==(const CSerialSettings& other) const;
    // The same comparison without the port number.
    bool operator==(const DCB& dcb) const;

    const DCB& GetDCB() const { return m_dcb; }

    unsigned int GetPortNo() const { return m_portNo; }
    void SetPortNo(unsigned int portNo) { m_portNo = portNo; }
    unsigned int GetBaudRate() const { return m_dcb.BaudRate; }
    void SetBaudRate(unsigned int baudRate) { m_dcb.BaudRate = baudRate; }
    unsigned char GetDataBits() const { return m_dcb.ByteSize; }
    void SetDataBits(unsigned char dataBits) { m_dcb.ByteSize = dataBits; }
    char GetEventChar() const { return m_dcb.EvtChar; }
    void SetEventChar(char eventChar) { m_dcb.EvtChar = eventChar; }
    // Stores the low byte of eventChar.
    void SetEventChar(int eventChar) { m_dcb.EvtChar = static_cast<char>(eventChar & 0xFF); }
    bool GetOutCtsFlow() const { return m_dcb.fOutxCtsFlow != 0; }
    void SetOutCtsFlow(bool ctsFlow) { m_dcb.fOutxCtsFlow = ctsFlow ? 1 : 0; }

    // Parity in the suite's numbering: 0 off (check flag cleared, parity
    // byte kept), 1 even, 2 mark, 3 none with checking on, 4 odd, 5 space.
    // False, changing nothing, for any other value.
    bool SetParity(int parity);
    // 0 when parity checking is off or the parity byte is unknown, else the
    // suite's number of the parity byte.
    int GetParity() const;

    // Stop bits in the suite's numbering: 1 one, 2 one and a half, 3 two.
    // False, changing nothing, for any other value.
    bool SetStopBits(int stopBits);
    // The suite's number of the stop-bit byte; 0 for an unknown byte.
    int GetStopBits() const;

    // Replaces ports with the serial ports present: "COM1" ... "COM255" on
    // Windows (ports that are busy or failing are listed too), device paths
    // such as "/dev/ttyS0" and "/dev/ttyUSB0" elsewhere, in a stable order.
    static void GetAvailableComPorts(std::vector<CString>& ports);

  private:
    DCB m_dcb;
    unsigned int m_portNo;
};

}  // namespace vex
