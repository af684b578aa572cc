// Differences: any parsed difference applies without harm, and for two
// parsed files the difference of one to the other, applied, makes them equal.
#include "FuzzSupport.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    // Two files in one input, split at the first NUL byte.
    const auto* end = data + size;
    const auto* split = std::find(data, end, std::uint8_t{0});
    FileObject base;
    FileObject other;
    if (!fuzz::ParseFileObject(base, fuzz::Bytes(data, static_cast<std::size_t>(split - data)))) {
        return 0;
    }
    const auto* second = split == end ? end : split + 1;
    if (!fuzz::ParseFileObject(other,
                               fuzz::Bytes(second, static_cast<std::size_t>(end - second)))) {
        return 0;
    }
    // The second file taken as a hand-written difference.
    FileObject patched = base;
    patched.ApplyDifference(other);

    FileObject difference;
    fuzz::Require(base.GetDifference(other, difference), "GetDifference succeeds");
    FileObject target = base;
    fuzz::Require(target.ApplyDifference(difference), "a made difference applies");
    FileObject withoutChecksum = other;
    withoutChecksum.DeleteSection(FileObject::CHECKSUM_SECTION);
    target.DeleteSection(FileObject::CHECKSUM_SECTION);
    fuzz::Require(!target.HasDifferences(withoutChecksum),
                  "the applied difference reaches the target");
    return 0;
}
