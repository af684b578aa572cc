#include <base/platform/SerialPorts.h>

#include <gtest/gtest.h>

#if !defined(_WIN32)

#include <tests/common/TempFolder.h>

#include <filesystem>
#include <fstream>

namespace vex::platform {
namespace {

namespace fs = std::filesystem;

// A tty in a fake sysfs, shaped as Linux shows it: device/driver is a link
// to the driver's folder; the serial core adds a "type" attribute.
void AddTty(const fs::path& root, const std::string& name, const char* driver,
            const char* type = nullptr) {
    const fs::path tty = root / "sys/class/tty" / name;
    fs::create_directories(tty);
    if (driver != nullptr) {
        const fs::path driverFolder = root / "sys/bus/drivers" / driver;
        fs::create_directories(driverFolder);
        fs::create_directories(tty / "device");
        fs::create_directory_symlink(driverFolder, tty / "device/driver");
    }
    if (type != nullptr) std::ofstream(tty / "type") << type << "\n";
}

TEST(SerialPorts, ListsTtysWithADriverAndUsbAndAcmPortsInNumberOrder) {
    test::TempFolder folder;
    const fs::path& root = folder.Path();
    AddTty(root, "tty0", nullptr);  // virtual console
    AddTty(root, "ptmx", nullptr);
    AddTty(root, "ttyS10", "serial8250", "4");  // a UART present
    AddTty(root, "ttyS2", "serial8250", "4");
    AddTty(root, "ttyS3", "serial8250", "0");  // slot without a UART
    AddTty(root, "ttyAMA0", "uart-pl011", "91");
    AddTty(root, "ttyUSB1", "ftdi_sio");
    AddTty(root, "ttyUSB0", nullptr);  // driver link not shown
    AddTty(root, "ttyACM0", "cdc_acm");
    AddTty(root, "rfcomm0", "bluetooth");

    EXPECT_EQ(ListSerialPortsUnder(root.string()),
              (std::vector<std::u16string>{u"/dev/rfcomm0", u"/dev/ttyACM0", u"/dev/ttyAMA0",
                                           u"/dev/ttyS2", u"/dev/ttyS10", u"/dev/ttyUSB0",
                                           u"/dev/ttyUSB1"}));
}

TEST(SerialPorts, AMissingTtyClassGivesAnEmptyList) {
    test::TempFolder folder;
    EXPECT_TRUE(ListSerialPortsUnder(folder.Path().string()).empty());
    EXPECT_TRUE(ListSerialPortsUnder((folder.Path() / "nowhere").string()).empty());
}

}  // namespace
}  // namespace vex::platform

#endif
