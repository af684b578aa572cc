// A settings file from any bytes: parsing never fails badly, and the writer
// and the reader agree. The format itself loses some content on the way
// (a key that begins with ";" reads back as a comment, a value's trailing
// backslash as a continuation, ...), so the property is the fixed point: once
// a file has been saved and read, saving and reading it again changes nothing.
#include "FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    FileObject file;
    if (!fuzz::ParseFileObject(file, fuzz::Bytes(data, size))) {
        return 0;
    }
    FileObject normal;
    fuzz::Require(fuzz::ParseFileObject(normal, fuzz::SavedBytes(file)), "a saved file parses");
    const auto saved = fuzz::SavedBytes(normal);
    FileObject again;
    fuzz::Require(fuzz::ParseFileObject(again, saved), "a saved file parses again");
    fuzz::Require(!normal.HasDifferences(again), "a saved and read file keeps its content");
    fuzz::Require(fuzz::SavedBytes(again) == saved, "saving again gives the same bytes");
    return 0;
}
