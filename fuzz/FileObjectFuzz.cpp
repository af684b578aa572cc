// A settings file from any bytes: parsing never fails badly, and the writer
// and the reader agree. The format itself loses some content on the way
// (a key that begins with ";" reads back as a comment, a value's trailing
// backslash joins the next line, ...), so the property is that saving and
// reading settles: each round either gives back the same bytes or fewer,
// and it never cycles.
#include "FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    FileObject file;
    if (!fuzz::ParseFileObject(file, fuzz::Bytes(data, size))) {
        return 0;
    }
    auto saved = fuzz::SavedBytes(file);
    // Ends: the saved size falls in every round that changes anything.
    for (;;) {
        FileObject again;
        fuzz::Require(fuzz::ParseFileObject(again, saved), "a saved file parses");
        const auto next = fuzz::SavedBytes(again);
        if (next == saved) {
            return 0;
        }
        fuzz::Require(next.size() < saved.size(), "saving and reading never grows a file");
        saved = next;
    }
}
