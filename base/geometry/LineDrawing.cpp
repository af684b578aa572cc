// The drawing members of Line.
#include <base/framework/CDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geometry/DrawingSupport.h>
#include <base/geometry/Line.h>

#include <algorithm>
#include <cmath>

namespace vex {
namespace {

// The part of the line inside the world page (unless it is empty) and the
// view widened by margin, in view positions; false when nothing is left.
bool VisiblePart(const Line& line, const CoordinateSystem& cs, const Page& page, double margin,
                 detail::ViewPos& a, detail::ViewPos& b) {
    Point start = line.start;
    Point end = line.end;
    if (!page.IsEmpty() &&
        !detail::ClipSegment(start.x, start.y, end.x, end.y, std::min(page.x1, page.x2),
                             std::min(page.y1, page.y2), std::max(page.x1, page.x2),
                             std::max(page.y1, page.y2))) {
        return false;
    }
    a = detail::ToViewPos(cs, start);
    b = detail::ToViewPos(cs, end);
    return detail::ClipSegment(a, b, detail::MakeViewBox(cs, margin));
}

}  // namespace

bool Line::DrawLine(const CoordinateSystem& cs, CDC& dc, const Page& page) const {
    detail::ViewPos a;
    detail::ViewPos b;
    if (!VisiblePart(*this, cs, page, detail::PenMargin(dc), a, b)) {
        return false;
    }
    dc.MoveTo(detail::ToPixel(a));
    dc.LineTo(detail::ToPixel(b));
    return true;
}

bool Line::PlaceText(const CoordinateSystem& cs, CDC& dc, const CString& text,
                     const Page& page) const {
    detail::ViewPos a;
    detail::ViewPos b;
    // The label goes by the part seen on the window itself, not its margin.
    if (!VisiblePart(*this, cs, page, 0.0, a, b)) {
        return false;
    }
    const CPoint middle = detail::ToPixel(detail::ViewPos{(a.x + b.x) / 2.0, (a.y + b.y) / 2.0});
    const int gap = 2 + dc.GetPenWidth();
    const int x = static_cast<int>(middle.x);
    const int y = static_cast<int>(middle.y);
    const detail::DcStateGuard keep(dc);
    if (std::fabs(b.x - a.x) >= std::fabs(b.y - a.y)) {
        dc.SetTextAlign(TA_CENTER | TA_BOTTOM);
        dc.TextOut(x, y - gap, text);
    } else {
        dc.SetTextAlign(TA_LEFT | TA_TOP);
        dc.TextOut(x + gap, y - dc.GetFontSize() / 2, text);
    }
    return true;
}

bool Line::AnnotateLine(const CoordinateSystem& cs, CDC& dc, const CString& text,
                        const Page& page) const {
    if (!DrawLine(cs, dc, page)) {
        return false;
    }
    PlaceText(cs, dc, text, page);
    return true;
}

}  // namespace vex
