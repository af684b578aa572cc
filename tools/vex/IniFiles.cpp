#include "IniFiles.h"

#include "Console.h"
#include "ExitCode.h"
#include "InputFile.h"

#include <base/framework/CFile.h>
#include <base/framework/CharBuffer.h>
#include <base/framework/FileStream.h>

#include <algorithm>
#include <filesystem>

namespace vextool {
namespace {

// Settings files are text: a NUL byte early on means some other file was
// given, which is named as such rather than parsed into nonsense.
bool LooksBinary(const vex::CString& path) {
    vex::FileStream file;
    if (!file.Open(path, vex::CFile::modeRead | vex::CFile::shareDenyNone)) return false;
    char head[4096];
    const std::size_t n = file.Read(head, sizeof head);
    return std::find(head, head + n, '\0') != head + n;
}

}  // namespace

std::optional<int> LoadSettings(const std::string& path, vex::FileObject& file) {
    std::error_code ec;
    const std::filesystem::path fsPath(std::u8string(path.begin(), path.end()));
    if (!std::filesystem::exists(fsPath, ec)) return Fail(kInputOutput, path, "no such file");
    if (std::filesystem::is_directory(fsPath, ec))
        return Fail(kInputOutput, path, "is a folder, not a settings file");
    if (auto refused = RefuseOversized(path)) return refused;
    const vex::CString widePath = vex::CString::FromUtf8(path);
    if (LooksBinary(widePath))
        return Fail(kInputOutput, path, "holds binary data, not a settings file");
    if (!file.FileOpen(widePath, vex::CFile::modeRead | vex::CFile::shareDenyWrite)) {
        if (file.GetErrorStatus() == 2) {
            return Fail(kInputOutput, path, "malformed: no [section] header, not a settings file");
        }
        return Fail(kInputOutput, path, "cannot be read");
    }
    return std::nullopt;
}

int SaveSettings(const vex::FileObject& file, const std::string& path) {
    if (!file.FileSave(vex::CString::FromUtf8(path),
                       vex::CFile::modeCreate | vex::CFile::modeWrite)) {
        return Fail(kInputOutput, path,
                    "cannot be written (the previous file, if any, is unchanged)");
    }
    return kSuccess;
}

std::string RenderSettings(const vex::FileObject& file) {
    vex::CharBuffer buffer;
    file.FileSave(buffer, vex::textencoding::multibyte);
    const auto bytes = buffer.Bytes();
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

}  // namespace vextool
