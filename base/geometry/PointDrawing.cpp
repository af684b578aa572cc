// The drawing members of Point and FloatPoint.
#include <base/framework/CDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geometry/DrawingSupport.h>
#include <base/geometry/FloatPoint.h>
#include <base/geometry/Point.h>

#include <algorithm>

namespace vex {
namespace {

constexpr int kLargestMark = 1000;

// The pixel of p when a mark reaching `reach` pixels from it can touch the
// view; false when it cannot.
bool PlaceMark(const CoordinateSystem& cs, const Point& p, int reach, int& x, int& y) {
    const detail::ViewPos v = detail::ToViewPos(cs, p);
    if (!detail::MakeViewBox(cs, reach).Contains(v)) {
        return false;
    }
    const CPoint pixel = detail::ToPixel(v);
    x = static_cast<int>(pixel.x);
    y = static_cast<int>(pixel.y);
    return true;
}

void Stroke(CDC& dc, int x0, int y0, int x1, int y1) {
    dc.MoveTo(x0, y0);
    dc.LineTo(x1, y1);
}

}  // namespace

bool Point::DrawCross(const CoordinateSystem& cs, CDC& dc, int size) const {
    return DrawSymbol(cs, dc, SYMBOL_CROSS, size);
}

bool Point::DrawSymbol(const CoordinateSystem& cs, CDC& dc, PointSymbol symbol, int size) const {
    if (symbol < SYMBOL_CROSS || symbol > SYMBOL_DOT) {
        return false;
    }
    const int s = std::clamp(size, 0, kLargestMark);
    int x = 0;
    int y = 0;
    if (!PlaceMark(cs, *this, s + dc.GetPenWidth(), x, y)) {
        return false;
    }
    const detail::DcStateGuard keep(dc);
    // Outlines only: a brush left set by the caller must not fill the marks.
    dc.SetNullBrush();
    switch (symbol) {
        case SYMBOL_CROSS:
            Stroke(dc, x - s, y, x + s, y);
            Stroke(dc, x, y - s, x, y + s);
            break;
        case SYMBOL_DIAGONAL_CROSS:
            Stroke(dc, x - s, y - s, x + s, y + s);
            Stroke(dc, x - s, y + s, x + s, y - s);
            break;
        case SYMBOL_SQUARE:
            dc.Rectangle(x - s, y - s, x + s + 1, y + s + 1);
            break;
        case SYMBOL_CIRCLE:
            dc.Ellipse(x - s, y - s, x + s + 1, y + s + 1);
            break;
        case SYMBOL_TRIANGLE: {
            const CPoint corners[3] = {{x, y - s}, {x + s, y + s}, {x - s, y + s}};
            dc.Polygon(corners, 3);
            break;
        }
        case SYMBOL_DIAMOND: {
            const CPoint corners[4] = {{x, y - s}, {x + s, y}, {x, y + s}, {x - s, y}};
            dc.Polygon(corners, 4);
            break;
        }
        case SYMBOL_DOT:
            if (s == 0) {
                // A disc of no radius would not show: the point's pixel does.
                dc.SetPixel(x, y, dc.GetPenColor());
                break;
            }
            dc.SetBrush(dc.GetPenColor());
            dc.Ellipse(x - s, y - s, x + s + 1, y + s + 1);
            break;
    }
    return true;
}

bool Point::DrawPixel(const CoordinateSystem& cs, CDC& dc, COLORREF colour) const {
    int x = 0;
    int y = 0;
    if (!PlaceMark(cs, *this, 0, x, y)) {
        return false;
    }
    dc.SetPixel(x, y, colour);
    return true;
}

bool Point::DrawDot(const CoordinateSystem& cs, CDC& dc, int radius) const {
    return DrawSymbol(cs, dc, SYMBOL_DOT, radius);
}

bool FloatPoint::DrawCross(const CoordinateSystem& cs, CDC& dc, int size) const {
    return Point(*this).DrawCross(cs, dc, size);
}

bool FloatPoint::DrawSymbol(const CoordinateSystem& cs, CDC& dc, PointSymbol symbol,
                            int size) const {
    return Point(*this).DrawSymbol(cs, dc, symbol, size);
}

bool FloatPoint::DrawPixel(const CoordinateSystem& cs, CDC& dc, COLORREF colour) const {
    return Point(*this).DrawPixel(cs, dc, colour);
}

bool FloatPoint::DrawDot(const CoordinateSystem& cs, CDC& dc, int radius) const {
    return Point(*this).DrawDot(cs, dc, radius);
}

}  // namespace vex
