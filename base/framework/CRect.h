// CRect.h - an integer rectangle of the graphics interface, with the
// framework's field order (left, top, right, bottom; pixels, y down). The
// right and bottom edges are exclusive, so Width() is right - left.
#pragma once

#include <base/framework/CPoint.h>

namespace vex {

struct CRect {
    long left = 0;
    long top = 0;
    long right = 0;
    long bottom = 0;

    constexpr CRect() = default;
    constexpr CRect(long l, long t, long r, long b) : left(l), top(t), right(r), bottom(b) {}
    constexpr CRect(CPoint topLeft, CPoint bottomRight)
        : left(topLeft.x), top(topLeft.y), right(bottomRight.x), bottom(bottomRight.y) {}

    constexpr long Width() const { return right - left; }
    constexpr long Height() const { return bottom - top; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr CPoint BottomRight() const { return {right, bottom}; }
    constexpr CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }
    // True when the width or the height is zero or negative.
    constexpr bool IsRectEmpty() const { return right <= left || bottom <= top; }
    constexpr bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    constexpr bool PtInRect(CPoint p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    // Swaps the edges where right < left or bottom < top.
    constexpr void NormalizeRect() {
        if (right < left) {
            const long t = left;
            left = right;
            right = t;
        }
        if (bottom < top) {
            const long t = top;
            top = bottom;
            bottom = t;
        }
    }
    constexpr void OffsetRect(long dx, long dy) {
        left += dx;
        right += dx;
        top += dy;
        bottom += dy;
    }
    constexpr void SetRect(long l, long t, long r, long b) { *this = CRect(l, t, r, b); }
    constexpr void SetRectEmpty() { *this = CRect(); }
    friend constexpr bool operator==(const CRect&, const CRect&) = default;
};

}  // namespace vex
