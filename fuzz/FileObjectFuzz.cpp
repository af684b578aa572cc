// A settings file from any bytes: parsing never fails badly, and what the
// library writes reads back to the same content (parse, save, parse, save
// gives the same bytes twice).
#include "FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    FileObject file;
    if (!fuzz::ParseFileObject(file, fuzz::Bytes(data, size))) {
        return 0;
    }
    const auto saved = fuzz::SavedBytes(file);
    FileObject again;
    fuzz::Require(fuzz::ParseFileObject(again, saved), "a saved file parses");
    fuzz::Require(!file.HasDifferences(again), "a saved file reads back to the same content");
    fuzz::Require(fuzz::SavedBytes(again) == saved, "saving again gives the same bytes");
    return 0;
}
