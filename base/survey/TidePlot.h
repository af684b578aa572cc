// TidePlot.h - a tide series drawn as a curve against time, with a framed
// plot area, a grid, labelled axes (time in UTC) and an optional title, on
// any of the library's drawing surfaces (CDC), e.g. SvgDC for a file.
//
// The curve spans the plot frame from the first to the last stored time
// and the heights with a twentieth of their range to spare above and
// below. Pairs with a NaN or infinite time or height are left out and
// break the curve.
//
//   vex::SvgDC dc(900, 480);
//   vex::DrawTideCurve(dc, tide, vex::CRect(0, 0, 900, 480), u"Harbour tide");
//   dc.Save(u"tide.svg");
#pragma once

#include <base/Export.h>
#include <base/framework/CDC.h>
#include <base/framework/CRect.h>
#include <base/framework/CString.h>
#include <base/framework/ColorRef.h>
#include <base/survey/TideFile.h>

namespace vex {

// The colour of the tide curve.
inline constexpr COLORREF kTideCurveColour = RGB(0, 70, 200);

// The frame of the curve inside area: area less room for the title, the
// axis labels and the axis titles.
VEXBASE_API CRect TidePlotFrame(const CRect& area);

// Draws the tide's stored pairs into area of dc. False, with nothing
// drawn, when fewer than two pairs are drawable, when they all have the
// same time, or when area is too small to hold a frame.
VEXBASE_API bool DrawTideCurve(CDC& dc, const TideFile& tide, const CRect& area,
                               const CString& title = {});

}  // namespace vex
