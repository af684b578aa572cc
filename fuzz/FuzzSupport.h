// FuzzSupport.h - small helpers shared by the fuzz harnesses: turning the
// fuzzer's bytes into the library's inputs, and stopping on a broken
// property the way a crash stops (so the input is kept and reported).
#pragma once

#include <base/config/FileObject.h>
#include <base/framework/CString.h>
#include <base/framework/MemFile.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vex::fuzz {

// Aborts with a message when a property the harness checks does not hold.
inline void Require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "property broken: %s\n", what);
        std::abort();
    }
}

inline std::vector<std::byte> Bytes(const std::uint8_t* data, std::size_t size) {
    const auto* first = reinterpret_cast<const std::byte*>(data);
    return {first, first + size};
}

// The bytes as UTF-16 code units (pairs, little-endian), so that lone
// surrogates and every other unit reach the wide-text readers.
inline CString WideText(const std::uint8_t* data, std::size_t size) {
    std::u16string text;
    text.reserve(size / 2);
    for (std::size_t i = 0; i + 1 < size; i += 2) {
        text.push_back(static_cast<char16_t>(data[i] | (data[i + 1] << 8)));
    }
    return CString(text);
}

// The bytes as UTF-8 text (invalid sequences are the decoder's business).
inline CString Utf8Text(const std::uint8_t* data, std::size_t size) {
    return CString::FromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
}

// A file in the temporary folder for the readers that take only a path; the
// tag (an address, which differs from process to process) keeps fuzzing
// processes that run side by side apart.
inline std::filesystem::path TempPath(const char* name) {
    static const std::string tag = std::to_string(reinterpret_cast<std::uintptr_t>(&tag));
    return std::filesystem::temp_directory_path() / ("vexbase-fuzz-" + tag + "-" + name);
}

// Writes the bytes to path, replacing what was there.
inline void WriteFile(const std::filesystem::path& path, const std::uint8_t* data,
                      std::size_t size) {
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

// Parses bytes as a settings file held in memory.
inline bool ParseFileObject(FileObject& file, std::span<const std::byte> bytes) {
    MemFile memory(std::vector<std::byte>(bytes.begin(), bytes.end()));
    return file.FileOpen(memory, u"fuzz.ini");
}

// The bytes FileObject writes for the file.
inline std::vector<std::byte> SavedBytes(const FileObject& file) {
    MemFile memory;
    Require(file.FileSave(memory), "FileSave to memory succeeds");
    const auto data = memory.Data();
    return {data.begin(), data.end()};
}

}  // namespace vex::fuzz
