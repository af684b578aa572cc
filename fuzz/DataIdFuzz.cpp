// Identifier texts and the saved identifier bytes: every reader refuses what
// it cannot read without changing the object, and what the writers produce
// reads back to the same identifier.
#include "FuzzSupport.h"

#include <base/data/CCompOffset.h>
#include <base/data/CDataId.h>
#include <base/data/CDataInfo.h>
#include <base/framework/CharBuffer.h>

namespace {

using namespace vex;

template <class T>
void CheckText(const CString& text) {
    T value;
    const T before = value;
    if (!value.SetFromString(text)) {
        fuzz::Require(value == before, "a refused text leaves the object unchanged");
        return;
    }
    T back;
    fuzz::Require(back.SetFromString(value.GenerateString()), "a generated text reads back");
    fuzz::Require(back == value, "a generated text reads back to the same value");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const CString& text : {fuzz::WideText(data, size), fuzz::Utf8Text(data, size)}) {
        CheckText<CDataId>(text);
        CheckText<CDataInfo>(text);

        // An offset text may update some fields before one fails, and its
        // coordinates are written with six decimals, so the property is that
        // a generated text is a fixed point.
        CCompOffset offset;
        if (offset.SetFromString(text)) {
            const CString generated = offset.GenerateString();
            CCompOffset back;
            fuzz::Require(back.SetFromString(generated), "a generated offset text reads back");
            fuzz::Require(back.GenerateString() == generated, "an offset text is a fixed point");
        }
    }
    // Saved identifiers: eight bytes each, read until the buffer runs out.
    CharBuffer buffer;
    buffer.Append(fuzz::Bytes(data, size));
    buffer.Seek(0);
    CDataId id;
    while (id.Load(buffer)) {
        CharBuffer again;
        id.Save(again);
        again.Seek(0);
        CDataId back;
        fuzz::Require(back.Load(again) && back == id, "a saved identifier loads back");
    }
    fuzz::Require(buffer.GetRemaining() < 8, "loading stops only when fewer than 8 bytes are left");
    return 0;
}
