// SerialPorts.h - the serial ports present on this machine.
//
// On Windows the ports are "COM1" ... "COM255", found by opening each; a
// port that is busy or failing is listed too. Elsewhere they are device
// paths ("/dev/ttyS0", "/dev/ttyUSB0", "/dev/ttyACM0"), found in sysfs
// without opening any device: a tty with a bound device driver (and, for
// the on-board UART driver, a UART actually present), or any USB or ACM
// tty. Lists are in a stable order: by name, numbers compared as numbers.
//
//   for (const std::u16string& port : vex::platform::ListSerialPorts()) ...
#pragma once

#include <base/Export.h>

#include <string>
#include <vector>

namespace vex::platform {

VEXBASE_API std::vector<std::u16string> ListSerialPorts();

#if !defined(_WIN32)
// The POSIX listing with sysfs read below root ("/" for the live system):
// ttys are taken from <root>/sys/class/tty; the paths returned are always
// "/dev/<name>".
VEXBASE_API std::vector<std::u16string> ListSerialPortsUnder(const std::string& root);
#endif

}  // namespace vex::platform
