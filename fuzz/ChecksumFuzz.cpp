// The checksum section of any parsed file: verification never fails badly,
// a freshly written section verifies, and still does after a save and parse
// when the content came through unchanged.
#include "FuzzSupport.h"

#include <base/config/ChecksumSection.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    FileObject file;
    if (!fuzz::ParseFileObject(file, fuzz::Bytes(data, size))) {
        return 0;
    }
    static_cast<void>(VerifyChecksumSection(file));
    WriteChecksumSection(file);
    fuzz::Require(VerifyChecksumSection(file), "a written checksum verifies");
    // After a save and a read the checksum still holds for whatever content
    // the format carried across unchanged (see FileObjectFuzz.cpp).
    FileObject again;
    fuzz::Require(fuzz::ParseFileObject(again, fuzz::SavedBytes(file)), "a sealed file parses");
    if (!again.HasDifferences(file)) {
        fuzz::Require(VerifyChecksumSection(again), "a sealed file verifies after saving");
    }
    return 0;
}
