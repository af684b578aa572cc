#include <base/platform/Console.h>

#include <unistd.h>

namespace vex::platform {

std::vector<std::string> CommandLineUtf8(int argc, char** argv) {
    std::vector<std::string> args;
    for (int i = 0; i < argc; ++i)
        args.emplace_back(argv[i] ? argv[i] : "");
    return args;
}

void UseUtf8Console() {}

void SetBinaryStdin() {}

bool StdoutTakesEscapes() {
    return isatty(STDOUT_FILENO) == 1;
}

}  // namespace vex::platform
