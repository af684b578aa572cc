// ColorLegend.h - a colour table drawn as a labelled colour bar, through
// the drawing surface CDC (SvgDC for a picture file).
//
// The bar stands upright on the left of the area: the LowColor band at the
// bottom, then one band per entry upwards, all of equal height (so that
// logarithmic and uneven tables stay readable). Each boundary between
// bands is labelled on the right with the entry's start value and name;
// when the bands are thinner than the text, only every k-th boundary is
// labelled. Coordinates are pixels, y down.
//
//   vex::SvgDC dc(220, 480);
//   vex::DrawColorLegend(dc, depths, vex::CRect(0, 0, 220, 480));
//   dc.Save(u"depths.svg");
#pragma once

#include <base/Export.h>
#include <base/colour/ColorTable.h>
#include <base/framework/CDC.h>
#include <base/framework/CRect.h>

namespace vex {

struct ColorLegendStyle {
    // Width of the colour bar in pixels.
    int barWidth = 28;
    // Height of the label text in pixels.
    int fontSize = 12;
    COLORREF textColor = 0;
    COLORREF frameColor = 0;
    // Shown above the bar when not empty (units, say).
    CString title;
    // Decimals of the value labels; -1 gives each value the decimals it carries.
    int decimals = -1;
};

// Draws the legend inside area (margins included). False, drawing nothing,
// when the area is too small for the bar and one line of text.
VEXBASE_API bool DrawColorLegend(CDC& dc, const ColorTable& table, const CRect& area,
                                 const ColorLegendStyle& style = {});

}  // namespace vex
