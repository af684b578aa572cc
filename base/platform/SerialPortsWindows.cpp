#include <base/platform/SerialPorts.h>

#include <windows.h>

#include <string>

namespace vex::platform {

std::vector<std::u16string> ListSerialPorts() {
    std::vector<std::u16string> ports;
    for (int n = 1; n <= 255; ++n) {
        const std::wstring device = L"\\\\.\\COM" + std::to_wstring(n);
        HANDLE handle = CreateFileW(device.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
        bool present = handle != INVALID_HANDLE_VALUE;
        if (present) {
            CloseHandle(handle);
        } else {
            // A port in use by another program, or one whose device fails,
            // is still there.
            const DWORD error = GetLastError();
            present = error == ERROR_ACCESS_DENIED || error == ERROR_GEN_FAILURE ||
                      error == ERROR_SHARING_VIOLATION;
        }
        if (present) {
            const std::string name = "COM" + std::to_string(n);
            ports.emplace_back(name.begin(), name.end());
        }
    }
    return ports;
}

}  // namespace vex::platform
