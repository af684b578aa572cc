// The checksum section of any parsed file: verification never fails badly,
// a freshly written section verifies, and still does after a save and parse
// when the content and the seal came through unchanged.
#include "FuzzSupport.h"

#include <base/config/ChecksumSection.h>

namespace {

// Whether both files hold the same two checksum values. Other keys of the
// checksum section are kept by the seal; one whose value ends in a
// backslash joins the next line on reading, which may be a seal key.
bool SameSeal(const vex::FileObject& a, const vex::FileObject& b) {
    for (const vex::CString& key : vex::checksumKeys) {
        vex::CString first, second;
        if (!a.GetItem(vex::FileObject::CHECKSUM_SECTION, key, first) ||
            !b.GetItem(vex::FileObject::CHECKSUM_SECTION, key, second) || first != second) {
            return false;
        }
    }
    return true;
}

}  // namespace

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
    if (!again.HasDifferences(file) && SameSeal(file, again)) {
        fuzz::Require(VerifyChecksumSection(again), "a sealed file verifies after saving");
    }
    return 0;
}
