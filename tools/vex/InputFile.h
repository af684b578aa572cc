// InputFile.h - the size limit on what the tool reads, and reading a whole
// input file (or standard input) under it.
//
// Every command that reads a file checks it against kMaxInputBytes first,
// so that a wrong path (a disk image, a video) is refused with one line
// instead of filling the memory. The suite's settings, colour, contour and
// tide files and drawings are far smaller.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vextool {

// The most the tool reads from one file: 512 MiB.
inline constexpr std::uintmax_t kMaxInputBytes = std::uintmax_t{512} << 20;

// When the file at path is larger than kMaxInputBytes, prints
// "PATH: larger than 512 MiB, the most vex reads from one file" and returns
// the input/output exit code; std::nullopt otherwise (also when its size
// cannot be told: the reader then says why it cannot read it).
std::optional<int> RefuseOversized(const std::string& path);

// Reads the whole file at path ("-" for standard input, read in binary)
// into content. On failure - too large, or cannot be read - prints why and
// returns the exit code; std::nullopt on success.
std::optional<int> ReadInputFile(const std::string& path, std::string& content);

}  // namespace vextool
