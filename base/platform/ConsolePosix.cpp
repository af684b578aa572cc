#include <base/platform/Console.h>

namespace vex::platform {

std::vector<std::string> CommandLineUtf8(int argc, char** argv) {
    std::vector<std::string> args;
    for (int i = 0; i < argc; ++i)
        args.emplace_back(argv[i] ? argv[i] : "");
    return args;
}

void UseUtf8Console() {}

void SetBinaryStdin() {}

}  // namespace vex::platform
