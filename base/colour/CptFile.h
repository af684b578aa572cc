// CptFile.h - colour tables in GMT's colour palette table (CPT) text form,
// so that tables move between the suite and GMT's map tools.
//
// A CPT lists slices "z0 colour0 z1 colour1 [L|U|B] [;label]" and the
// background (B), foreground (F) and NaN (N) colours. On import each slice
// becomes the entry at z0 (its label the entry's name), B becomes LowColor,
// and F becomes one more entry at the top slice's z1 (unless it is the
// last band's colour anyway), since a ColorTable's
// last entry colours everything above it, as F does in GMT. A continuous
// slice (colour0 != colour1) becomes `continuousSteps` equal bands of
// evenly blended colours (one band of colour0 by default). Export writes
// one constant-colour slice per entry up to the next entry, the last
// entry's slice as high as the one below it, its colour again as F, and
// LowColor as B. Colours are read as r g b, r/g/b, #rrggbb,
// grey, h-s-v and the common X11 names; COLOR_MODEL RGB and HSV.
//
//   vex::CptPalette cpt;
//   vex::CString error;
//   if (!vex::ReadCptFile(u"depth.cpt", cpt, error)) report(error);  // "line 7: ..."
//   vex::COLORREF c = cpt.table.GetColor(-12.5);
#pragma once

#include <base/Export.h>
#include <base/colour/ColorTable.h>
#include <base/framework/CString.h>

#include <optional>
#include <string>
#include <string_view>

namespace vex {

// A colour table with the CPT colours it has no field for.
struct CptPalette {
    ColorTable table;
    // The F line: also the last entry of the table, at the top slice's z1.
    std::optional<COLORREF> foreground;
    // The N line: the colour of cells without a value.
    std::optional<COLORREF> nanColor;
};

struct CptReadOptions {
    // Bands made of each continuous slice (1 to 256).
    int continuousSteps = 1;
};

// Parses CPT text (UTF-8, LF or CR LF). False, with palette unchanged and
// error "line N: what is wrong", on any line that is not a comment, a
// slice, or a B/F/N line; on slices that overlap or run downwards; on a
// CMYK colour model; and when there is no slice at all.
VEXBASE_API bool ParseCpt(std::string_view text, CptPalette& palette, CString& error,
                          const CptReadOptions& options = {});
// Reads and parses a file; error "cannot read NAME" when it cannot be read.
VEXBASE_API bool ReadCptFile(const CString& fileName, CptPalette& palette, CString& error,
                             const CptReadOptions& options = {});

// The palette as CPT text with LF line ends. An empty table gives a single
// slice of LowColor from 0 to 1; a one-entry table a slice one unit high.
VEXBASE_API std::string FormatCpt(const CptPalette& palette);
// Writes FormatCpt's text; the old file is kept whole when this fails.
VEXBASE_API bool WriteCptFile(const CString& fileName, const CptPalette& palette);

// One CPT colour text ("255/0/0", "#ff0000", "red", "128", "0-1-1");
// false for anything else.
VEXBASE_API bool ParseCptColor(std::string_view text, COLORREF& color);

}  // namespace vex
