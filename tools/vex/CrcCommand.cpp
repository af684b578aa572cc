// vex crc: the library's checksums of files or of standard input.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "InputFile.h"

#include <base/config/CRCChecksum.h>
#include <base/framework/FileStream.h>
#include <base/framework/Format.h>
#include <base/platform/Console.h>

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vextool {
namespace {

struct CrcOptions {
    bool crc16 = false;
    bool crc32 = false;
    bool byteOr = false;
    std::vector<std::string> files;
};

struct Sums {
    vex::CRCChecksum crc32;
    unsigned short crc16 = 0;
    unsigned char byteOr = 0;
};

// The 16-bit CRC runs over the whole content at once (it has no
// continuation form), so the content is read whole.
std::optional<int> SumFile(const std::string& path, Sums& sums) {
    std::string content;
    if (auto failed = ReadInputFile(path, content)) return failed;
    const auto* begin = reinterpret_cast<const unsigned char*>(content.data());
    const unsigned char* end = begin + content.size();
    sums.crc32.Add(begin, content.size());
    sums.crc16 = vex::Compute16BitCRC(begin, end);
    sums.byteOr = vex::Compute8BitCRC(begin, end);
    return std::nullopt;
}

int RunCrc(const CrcOptions& options) {
    const bool all = !options.crc16 && !options.crc32 && !options.byteOr;
    int status = kSuccess;
    for (const std::string& path : options.files) {
        Sums sums;
        if (auto failed = SumFile(path, sums)) {
            status = *failed;
            continue;
        }
        std::string line;
        if (all || options.crc32) line += vex::Format("crc32 %08X  ", sums.crc32.ValueInverted());
        if (all || options.crc16) line += vex::Format("crc16 %04X  ", sums.crc16);
        if (all || options.byteOr) line += vex::Format("or %02X  ", sums.byteOr);
        PrintLine(line + path);
    }
    return status;
}

}  // namespace

void AddCrcCommand(CLI::App& app, Action& run) {
    auto options = std::make_shared<CrcOptions>();
    CLI::App* cmd = app.add_subcommand(
        "crc", "Checksums of files: CRC-32, CRC-16 (0x8408) and the byte-wise OR");
    cmd->add_flag("--32", options->crc32, "CRC-32 (the usual one, as zlib computes it)");
    cmd->add_flag("--16", options->crc16, "CRC-16 with polynomial 0x8408, start 0");
    cmd->add_flag("--or", options->byteOr, "bitwise OR of all bytes");
    cmd->add_option("files", options->files, "files to check; - for standard input")->required();
    cmd->footer("Example: vex crc --32 vessel.ini\n  crc32 1A2B3C4D  vessel.ini");
    cmd->callback([options, &run] { run = [options] { return RunCrc(*options); }; });
}

}  // namespace vextool
