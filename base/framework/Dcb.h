// Dcb.h - the serial-port control block of the Windows communications
// interface, field for field and 28 bytes as Windows lays it out, so that
// settings records holding one keep their size and meaning on every platform.
#pragma once

#include <cstdint>

namespace vex {

struct DCB {
    std::uint32_t DCBlength = sizeof(DCB);
    std::uint32_t BaudRate = 0;
    std::uint32_t fBinary : 1 = 0;
    std::uint32_t fParity : 1 = 0;
    std::uint32_t fOutxCtsFlow : 1 = 0;
    std::uint32_t fOutxDsrFlow : 1 = 0;
    std::uint32_t fDtrControl : 2 = 0;
    std::uint32_t fDsrSensitivity : 1 = 0;
    std::uint32_t fTXContinueOnXoff : 1 = 0;
    std::uint32_t fOutX : 1 = 0;
    std::uint32_t fInX : 1 = 0;
    std::uint32_t fErrorChar : 1 = 0;
    std::uint32_t fNull : 1 = 0;
    std::uint32_t fRtsControl : 2 = 0;
    std::uint32_t fAbortOnError : 1 = 0;
    std::uint32_t fDummy2 : 17 = 0;
    std::uint16_t wReserved = 0;
    std::uint16_t XonLim = 0;
    std::uint16_t XoffLim = 0;
    std::uint8_t ByteSize = 0;
    std::uint8_t Parity = 0;
    std::uint8_t StopBits = 0;
    char XonChar = 0;
    char XoffChar = 0;
    char ErrorChar = 0;
    char EofChar = 0;
    char EvtChar = 0;
    std::uint16_t wReserved1 = 0;
};
static_assert(sizeof(DCB) == 28, "DCB must keep the Windows layout");

// Values of DCB::Parity, StopBits, fDtrControl and fRtsControl.
inline constexpr std::uint8_t NOPARITY = 0, ODDPARITY = 1, EVENPARITY = 2, MARKPARITY = 3,
                              SPACEPARITY = 4;
inline constexpr std::uint8_t ONESTOPBIT = 0, ONE5STOPBITS = 1, TWOSTOPBITS = 2;
inline constexpr std::uint32_t DTR_CONTROL_DISABLE = 0, DTR_CONTROL_ENABLE = 1,
                               DTR_CONTROL_HANDSHAKE = 2;
inline constexpr std::uint32_t RTS_CONTROL_DISABLE = 0, RTS_CONTROL_ENABLE = 1,
                               RTS_CONTROL_HANDSHAKE = 2, RTS_CONTROL_TOGGLE = 3;

}  // namespace vex
