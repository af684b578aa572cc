#include <base/platform/SerialPorts.h>

#include <base/framework/TextEncoding.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <tuple>

namespace vex::platform {
namespace {

namespace fs = std::filesystem;

bool StartsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

// The serial core driver registers its ttyS ports whether or not a UART
// answers there; it reports such a placeholder with a port type of 0
// (unknown) in the tty's "type" attribute.
bool IsEmptyUartSlot(const fs::path& tty) {
    std::ifstream type(tty / "type");
    int value = -1;
    return type >> value && value == 0;
}

bool IsSerialPort(const fs::path& tty, std::string_view name) {
    // USB serial adapters and modems (CDC ACM) are serial ports however
    // their driver shows up.
    if (StartsWith(name, "ttyUSB") || StartsWith(name, "ttyACM")) return true;
    std::error_code error;
    // Virtual terminals and pseudo-terminals have no device driver.
    if (!fs::exists(tty / "device" / "driver", error)) return false;
    return !IsEmptyUartSlot(tty);
}

// "ttyS2" sorts before "ttyS10": the trailing number is compared as one.
auto SortKey(const std::string& name) {
    std::size_t digits = name.size();
    while (digits > 0 && std::isdigit(static_cast<unsigned char>(name[digits - 1])))
        --digits;
    const std::string_view number = std::string_view(name).substr(digits);
    const std::string_view trimmed =
        number.substr(std::min(number.find_first_not_of('0'), number.size()));
    return std::make_tuple(name.substr(0, digits), trimmed.size(), std::string(trimmed), name);
}

}  // namespace

std::vector<std::u16string> ListSerialPortsUnder(const std::string& root) {
    std::vector<std::string> names;
    std::error_code error;
    const fs::path ttys = fs::path(root) / "sys" / "class" / "tty";
    for (fs::directory_iterator it(ttys, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (IsSerialPort(it->path(), name)) names.push_back(name);
    }
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return SortKey(a) < SortKey(b); });
    std::vector<std::u16string> ports;
    ports.reserve(names.size());
    for (const std::string& name : names)
        ports.push_back(Utf8ToUtf16("/dev/" + name));
    return ports;
}

std::vector<std::u16string> ListSerialPorts() {
    return ListSerialPortsUnder("/");
}

}  // namespace vex::platform
