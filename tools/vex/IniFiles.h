// IniFiles.h - loading, saving and printing settings files for the tool's
// commands, with failures turned into one clear line and an exit code.
#pragma once

#include <base/config/FileObject.h>

#include <optional>
#include <string>

namespace vextool {

// Loads the settings file at path (UTF-8). On failure prints why and
// returns the exit code; std::nullopt on success.
std::optional<int> LoadSettings(const std::string& path, vex::FileObject& file);
// Saves file to path, atomically; prints why and returns kInputOutput on failure.
int SaveSettings(const vex::FileObject& file, const std::string& path);
// The text of file as the library writes it (LF line ends), as UTF-8.
std::string RenderSettings(const vex::FileObject& file);

}  // namespace vextool
