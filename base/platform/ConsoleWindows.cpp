#include <base/platform/Console.h>

#include <base/framework/TextEncoding.h>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>

namespace vex::platform {

std::vector<std::string> CommandLineUtf8(int argc, char** argv) {
    int count = 0;
    LPWSTR* wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> args;
    if (wide == nullptr) {
        for (int i = 0; i < argc; ++i)
            args.emplace_back(Utf16ToUtf8(AnsiToUtf16(argv[i] ? argv[i] : "")));
        return args;
    }
    for (int i = 0; i < count; ++i)
        args.push_back(Utf16ToUtf8(WideToUtf16(wide[i])));
    LocalFree(wide);
    return args;
}

void UseUtf8Console() {
    SetConsoleOutputCP(CP_UTF8);
}

void SetBinaryStdin() {
    _setmode(_fileno(stdin), _O_BINARY);
}

bool StdoutTakesEscapes() {
    HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    if (out == INVALID_HANDLE_VALUE || !GetConsoleMode(out, &mode)) return false;
    return SetConsoleMode(out, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace vex::platform
