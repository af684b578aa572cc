#include "InputFile.h"

#include "Console.h"
#include "ExitCode.h"

#include <base/framework/CFile.h>
#include <base/framework/FileStream.h>
#include <base/platform/Console.h>

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace vextool {
namespace {

constexpr const char* kTooLarge = "larger than 512 MiB, the most vex reads from one file";

}  // namespace

std::optional<int> RefuseOversized(const std::string& path) {
    std::error_code ec;
    const std::filesystem::path fsPath(std::u8string(path.begin(), path.end()));
    if (!std::filesystem::is_regular_file(fsPath, ec)) return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(fsPath, ec);
    if (!ec && size > kMaxInputBytes) return Fail(kInputOutput, path, kTooLarge);
    return std::nullopt;
}

std::optional<int> ReadInputFile(const std::string& path, std::string& content) {
    char block[65536];
    if (path == "-") {
        vex::platform::SetBinaryStdin();
        for (std::size_t n; (n = std::fread(block, 1, sizeof block, stdin)) > 0;) {
            if (content.size() + n > kMaxInputBytes) return Fail(kInputOutput, "-", kTooLarge);
            content.append(block, n);
        }
        if (std::ferror(stdin)) return Fail(kInputOutput, "-", "cannot be read");
        return std::nullopt;
    }
    if (auto refused = RefuseOversized(path)) return refused;
    vex::FileStream file;
    if (!file.Open(vex::CString::FromUtf8(path),
                   vex::CFile::modeRead | vex::CFile::shareDenyWrite)) {
        return Fail(kInputOutput, path, "cannot be read");
    }
    for (std::size_t n; (n = file.Read(block, sizeof block)) > 0;) {
        // A file that grew after the check is still held to the limit.
        if (content.size() + n > kMaxInputBytes) return Fail(kInputOutput, path, kTooLarge);
        content.append(block, n);
    }
    if (file.GetError().IsError()) return Fail(kInputOutput, path, "cannot be read");
    return std::nullopt;
}

}  // namespace vextool
