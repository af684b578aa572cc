// A settings file from any bytes: parsing never fails badly, reading it
// from disk gives what reading it from memory gives, and the writer and the
// reader agree. The format itself loses some content on the way
// (a key that begins with ";" reads back as a comment, a value's trailing
// backslash joins the next line, ...), so the property is that saving and
// reading settles: each round either gives back the same bytes or fewer,
// and it never cycles.
#include "FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    FileObject file;
    const bool parsed = fuzz::ParseFileObject(file, fuzz::Bytes(data, size));

    // The same bytes read from disk, where the reader takes the file in
    // pieces, give the same result as from memory.
    const auto path = fuzz::TempPath("settings.ini");
    fuzz::WriteFile(path, data, size);
    FileObject fromDisk;
    const bool read = fromDisk.FileOpen(CString(path.u16string()));
    fuzz::Require(read == parsed, "a file reads from disk as from memory");
    if (!parsed) {
        return 0;
    }
    fuzz::Require(fuzz::SavedBytes(fromDisk) == fuzz::SavedBytes(file),
                  "a file read from disk has the content read from memory");
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
