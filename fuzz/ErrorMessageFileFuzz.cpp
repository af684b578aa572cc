// The error-message file from any bytes: opening and looking texts up never
// fails badly, and error objects take their texts from it.
#include "FuzzSupport.h"

#include <base/errors/ErrorMessageFile.h>
#include <base/errors/FileError.h>

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    // The message file is read from disk only: one file per fuzzing process.
    const auto path = fuzz::TempPath("messages.ini");
    fuzz::WriteFile(path, data, size);
    ErrorMessageFile& messages = ErrorMessageFile::Get();
    if (messages.Open(CString(path.u16string()))) {
        CString text;
        for (const char16_t* section : {u"File Error", u"Dax Error", u"FileObject Error"}) {
            for (int key = 0; key < 16; ++key) {
                CString name;
                name.Format(u"%d", key);
                messages.Get(section, name, text);
            }
        }
        const FileError error(u"C:\\Vex\\vessel.ini", FileError::OPEN);
        static_cast<void>(error.Format());
        static_cast<void>(error.Details());
    }
    messages.Close();
    return 0;
}
