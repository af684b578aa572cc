// Line.h - Line, a straight segment from a start point to an end point.
//
// Coordinates as Point: x east, y north, z up. The direction of a line
// (start to end) matters for Offset, which moves it to the right.
//
//   vex::Line l(vex::Point(0, 0), vex::Point(0, 10));   // due north
//   vex::Line r = l.Offset(2.0);                         // x = 2, east of it
//   double x; bool inside;
//   l.GetLineX(5.0, x, inside);                          // x = 0, inside
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/geometry/Extents3D.h>
#include <base/geometry/Page.h>
#include <base/geometry/Point.h>

namespace vex {

class CDC;
class CoordinateSystem;

class VEXBASE_API Line {
  public:
    Point start;
    Point end;

    Line() = default;
    Line(const Point& startPoint, const Point& endPoint) : start(startPoint), end(endPoint) {}

    friend bool operator==(const Line&, const Line&) = default;

    void Set(const Point& startPoint, const Point& endPoint) {
        start = startPoint;
        end = endPoint;
    }

    // The length in the plane, or in space when with3D is true.
    double Length(bool with3D = false) const;
    // The midpoint (z included).
    Point GetCenter() const;
    // The 2-D box of the two ends; z is left empty.
    Extents3D Extents() const;

    // The line moved sideways by d to the right of its direction (bearing +
    // 90 degrees); a negative d moves it left. A line of zero length has
    // bearing 0 and moves east.
    Line Offset(double d) const;

    // The point of the infinite line at height y: x, and inside = whether y
    // lies within the segment's y range. False, with x and inside unchanged,
    // when the line runs parallel to the x axis (its two y values are equal).
    bool GetLineX(double y, double& x, bool& inside) const;
    // The same for a given x; false when the two x values are equal.
    bool GetLineY(double x, double& y, bool& inside) const;

    // Drawing on a view. The line is cut to the world page `page` (when it
    // is not the empty page) and to the pixel window of cs, then drawn on dc
    // with its current pen: the ends that lie on the view land on the pixels
    // cs.WorldToPixel gives them, and a line reaching far beyond the view
    // is drawn only where it is seen. Each returns false, with nothing drawn,
    // when no part of the line is left.
    bool DrawLine(const CoordinateSystem& cs, CDC& dc, const Page& page = Page()) const;
    // The label `text` beside the middle of the line's visible part, in the
    // text colour and size of dc: above a line that runs more across than
    // up, right of a steeper one.
    bool PlaceText(const CoordinateSystem& cs, CDC& dc, const CString& text,
                   const Page& page = Page()) const;
    // DrawLine and PlaceText together.
    bool AnnotateLine(const CoordinateSystem& cs, CDC& dc, const CString& text,
                      const Page& page = Page()) const;
};

}  // namespace vex
