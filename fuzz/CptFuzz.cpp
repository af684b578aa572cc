// GMT colour palette tables from any text: the reader refuses what it cannot
// read with a line number and leaves the palette alone, and what the writer
// produces reads back to the same palette text.
#include "FuzzSupport.h"

#include <base/colour/CptFile.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (int steps : {1, 7}) {
        CptPalette palette;
        CString error;
        CptReadOptions options;
        options.continuousSteps = steps;
        if (!ParseCpt(text, palette, error, options)) {
            fuzz::Require(!error.IsEmpty(), "a refused table says why");
            fuzz::Require(palette.table.NumEntries() == 0, "a refused table leaves the palette");
            continue;
        }
        const std::string written = FormatCpt(palette);
        CptPalette back;
        fuzz::Require(ParseCpt(written, back, error), "a written table reads");
        fuzz::Require(FormatCpt(back) == written, "a written table reads back to the same text");
    }
    COLORREF colour = 0;
    ParseCptColor(text, colour);
    return 0;
}
