// The checksum section of any parsed file: verification never fails badly,
// a freshly written section verifies, and still does after a save and parse
// (of a file already brought to its saved form: see FileObjectFuzz.cpp).
#include "FuzzSupport.h"

#include <base/config/ChecksumSection.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    FileObject file;
    if (!fuzz::ParseFileObject(file, fuzz::Bytes(data, size))) {
        return 0;
    }
    static_cast<void>(VerifyChecksumSection(file));
    FileObject normal;
    fuzz::Require(fuzz::ParseFileObject(normal, fuzz::SavedBytes(file)), "a saved file parses");
    file = normal;
    WriteChecksumSection(file);
    fuzz::Require(VerifyChecksumSection(file), "a written checksum verifies");
    FileObject again;
    fuzz::Require(fuzz::ParseFileObject(again, fuzz::SavedBytes(file)), "a sealed file parses");
    fuzz::Require(VerifyChecksumSection(again), "a sealed file verifies after saving");
    return 0;
}
