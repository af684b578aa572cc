#include <base/config/CSerialSettings.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace vex {
namespace {

std::uint32_t FlagWord(const DCB& dcb) {
    std::uint32_t word;
    std::memcpy(&word, reinterpret_cast<const unsigned char*>(&dcb) + 8, 4);
    return word;
}

TEST(CSerialSettings, DefaultsAreTheSuitesAndResetKeepsUndefinedFlagBits) {
    CSerialSettings serial;
    const DCB& dcb = serial.GetDCB();
    EXPECT_EQ(dcb.DCBlength, 28u);
    EXPECT_EQ(serial.GetBaudRate(), 9600u);
    EXPECT_EQ(serial.GetDataBits(), 8);
    EXPECT_EQ(dcb.Parity, 0);
    EXPECT_EQ(dcb.StopBits, 0);
    EXPECT_EQ(dcb.ErrorChar, ' ');
    EXPECT_EQ(dcb.EofChar, 0);
    EXPECT_EQ(serial.GetEventChar(), '\n');
    EXPECT_EQ(serial.GetPortNo(), 1u);
    // Binary, DTR enabled, continue after XOFF, RTS enabled; nothing else.
    EXPECT_EQ(FlagWord(dcb), 0x1091u);
    EXPECT_EQ(dcb.fBinary, 1u);
    EXPECT_EQ(dcb.fDtrControl, DTR_CONTROL_ENABLE);
    EXPECT_EQ(dcb.fTXContinueOnXoff, 1u);
    EXPECT_EQ(dcb.fRtsControl, RTS_CONTROL_ENABLE);

    // Drivers hand the record to the system as its control block (it starts
    // the record), so the system may leave any flag bits set in it. Reset
    // clears the defined flags it does not want and keeps the undefined ones.
    static_assert(std::is_standard_layout_v<CSerialSettings>);
    std::memset(reinterpret_cast<unsigned char*>(&serial) + 8, 0xFF, 4);
    serial.ResetToDefaults();
    EXPECT_EQ(FlagWord(serial.GetDCB()), 0xFFFF9091u);

    // Assignment from a control block resets this record's flags the same
    // way and takes only CTS flow from the block.
    DCB allOn;
    std::memset(reinterpret_cast<unsigned char*>(&allOn) + 8, 0xFF, 4);
    serial = allOn;
    EXPECT_EQ(FlagWord(serial.GetDCB()), 0xFFFF9095u);
}

TEST(CSerialSettings, ParityAndStopBitsUseTheSuitesNumbering) {
    struct ParityCase {
        int suite;
        std::uint8_t byte;
    };
    const ParityCase parities[] = {
        {1, EVENPARITY}, {2, MARKPARITY}, {3, NOPARITY}, {4, ODDPARITY}, {5, SPACEPARITY}};
    for (const ParityCase& c : parities) {
        CSerialSettings serial;
        EXPECT_TRUE(serial.SetParity(c.suite));
        EXPECT_EQ(serial.GetDCB().Parity, c.byte) << c.suite;
        EXPECT_EQ(serial.GetDCB().fParity, 1u) << c.suite;
        EXPECT_EQ(serial.GetParity(), c.suite);
        // 0 turns checking off and keeps the byte.
        EXPECT_TRUE(serial.SetParity(0));
        EXPECT_EQ(serial.GetParity(), 0);
        EXPECT_EQ(serial.GetDCB().Parity, c.byte);
        EXPECT_EQ(serial.GetDCB().fParity, 0u);
    }
    CSerialSettings serial;
    serial.SetParity(4);
    for (int refused : {6, 255, -1}) {
        EXPECT_FALSE(serial.SetParity(refused));
        EXPECT_EQ(serial.GetParity(), 4);
    }
    // A parity byte the suite has no number for, left by the system in the
    // record's control block, reads as 0.
    reinterpret_cast<DCB&>(serial).Parity = 7;
    EXPECT_EQ(serial.GetParity(), 0);

    struct StopCase {
        int suite;
        std::uint8_t byte;
    };
    for (const StopCase& c :
         {StopCase{1, ONESTOPBIT}, StopCase{2, ONE5STOPBITS}, StopCase{3, TWOSTOPBITS}}) {
        CSerialSettings stops;
        EXPECT_TRUE(stops.SetStopBits(c.suite));
        EXPECT_EQ(stops.GetDCB().StopBits, c.byte);
        EXPECT_EQ(stops.GetStopBits(), c.suite);
        for (int refused : {0, 4, -1}) {
            EXPECT_FALSE(stops.SetStopBits(refused));
            EXPECT_EQ(stops.GetStopBits(), c.suite);
        }
    }
    DCB badStops;
    badStops.StopBits = 3;
    serial = badStops;
    EXPECT_EQ(serial.GetStopBits(), 0);
}

TEST(CSerialSettings, EventCharSettersStoreTheLowByte) {
    CSerialSettings serial;
    serial.SetEventChar('\r');
    EXPECT_EQ(serial.GetEventChar(), '\r');
    serial.SetEventChar(0x1203);
    EXPECT_EQ(serial.GetEventChar(), '\x03');
}

TEST(CSerialSettings, EqualityLooksOnlyAtTheUserSettings) {
    CSerialSettings a, b;
    a.SetBaudRate(19200);
    b.SetBaudRate(19200);
    // Fields outside the comparison.
    DCB other = a.GetDCB();
    other.XonLim = 2048;
    other.ErrorChar = '?';
    other.fDsrSensitivity = 1;
    other.fParity = 1;  // the check flag itself is not compared, the byte is
    EXPECT_TRUE(a == other);

    using Change = void (*)(CSerialSettings&);
    const Change changes[] = {
        [](CSerialSettings& s) { s.SetPortNo(2); },
        [](CSerialSettings& s) { s.SetBaudRate(9600); },
        [](CSerialSettings& s) { s.SetDataBits(7); },
        [](CSerialSettings& s) { s.SetStopBits(3); },
        [](CSerialSettings& s) { s.SetParity(1); },
        [](CSerialSettings& s) { s.SetEventChar('\r'); },
        [](CSerialSettings& s) { s.SetOutCtsFlow(true); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        CSerialSettings changed = b;
        changes[i](changed);
        EXPECT_FALSE(a == changed) << "change " << i;
        // The port number is the one field the control-block form ignores.
        EXPECT_EQ(changed == a.GetDCB(), i == 0) << "change " << i;
    }
}

TEST(CSerialSettings, AssignmentFromAControlBlockResetsThenTakesTheUserFields) {
    DCB dcb;
    dcb.BaudRate = 115200;
    dcb.ByteSize = 7;
    dcb.Parity = EVENPARITY;
    dcb.fParity = 1;
    dcb.StopBits = TWOSTOPBITS;
    dcb.EvtChar = '\r';
    dcb.fOutxCtsFlow = 1;
    dcb.XonLim = 99;
    dcb.ErrorChar = '#';

    CSerialSettings serial;
    serial.SetPortNo(7);
    serial = dcb;
    EXPECT_EQ(serial.GetPortNo(), 1u);
    EXPECT_EQ(serial.GetBaudRate(), 115200u);
    EXPECT_EQ(serial.GetDataBits(), 7);
    EXPECT_EQ(serial.GetStopBits(), 3);
    EXPECT_EQ(serial.GetEventChar(), '\r');
    EXPECT_TRUE(serial.GetOutCtsFlow());
    EXPECT_EQ(serial.GetDCB().ErrorChar, ' ');
    EXPECT_EQ(serial.GetDCB().XonLim, 0);
    EXPECT_TRUE(serial == dcb);
    // The parity byte came over but not the check flag.
    EXPECT_EQ(serial.GetDCB().Parity, EVENPARITY);
    EXPECT_EQ(serial.GetParity(), 0);
}

}  // namespace
}  // namespace vex
