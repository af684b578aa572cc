// Page.h - Page, an axis-aligned rectangle of four doubles in the order
// left, bottom, right, top.
//
// A page holds world windows (survey coordinates, y north) and pixel
// windows (stored with the bottom edge second, so a screen window has
// y1 > y2). The empty page (1, 1, -1, -1) is the state extents are grown
// from: its left lies right of its right and its bottom above its top.
//
//   vex::Page world(0.0, 0.0, 800.0, 600.0);   // left, bottom, right, top
//   double w = world.Width();                  // 800
//   vex::Page none;                            // empty: (1, 1, -1, -1)
#pragma once

namespace vex {

struct Page {
    double x1 = 1.0;   // left
    double y1 = 1.0;   // bottom
    double x2 = -1.0;  // right
    double y2 = -1.0;  // top

    // The empty page (1, 1, -1, -1).
    constexpr Page() = default;
    constexpr Page(double left, double bottom, double right, double top)
        : x1(left), y1(bottom), x2(right), y2(top) {}

    // Right minus left; negative for the empty page.
    constexpr double Width() const { return x2 - x1; }
    // Top minus bottom; negative for a pixel window stored bottom-second.
    constexpr double Height() const { return y2 - y1; }
    // True in the state extents start from, both edges reversed. A pixel
    // window, reversed in y only, is not empty.
    constexpr bool IsEmpty() const { return x1 > x2 && y1 > y2; }

    friend constexpr bool operator==(const Page&, const Page&) = default;
};

}  // namespace vex
