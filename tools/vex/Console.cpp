#include "Console.h"

#include <cstdio>

namespace vextool {

void Print(std::string_view utf8) {
    // An empty view may carry a null pointer, which fwrite must not be given.
    if (!utf8.empty()) std::fwrite(utf8.data(), 1, utf8.size(), stdout);
}

void PrintLine(std::string_view utf8) {
    Print(utf8);
    std::fputc('\n', stdout);
}

void PrintLine(const vex::CString& text) {
    PrintLine(text.ToUtf8());
}

int Fail(int code, std::string_view file, std::string_view reason) {
    std::fflush(stdout);
    std::fprintf(stderr, "vex: %.*s: %.*s\n", static_cast<int>(file.size()), file.data(),
                 static_cast<int>(reason.size()), reason.data());
    return code;
}

int Fail(int code, std::string_view reason) {
    std::fflush(stdout);
    std::fprintf(stderr, "vex: %.*s\n", static_cast<int>(reason.size()), reason.data());
    return code;
}

}  // namespace vextool
