// Intersections.h - where lines and circular arcs meet, points at given
// distances from two others, and the circle through three points.
//
// All of it is plane geometry in x (east) and y (north). The `where` results
// are bit sets: 1 when the point lies on the first argument's segment or
// arc, 2 when it lies on the second's.
//
//   vex::Point p; long where = 0;
//   vex::Intersect(vex::Line({0, 0}, {2, 2}), vex::Line({0, 2}, {2, 0}), p, where);
//   // p = (1, 1), where = 3: on both segments
#pragma once

#include <base/Export.h>
#include <base/geometry/Curve.h>
#include <base/geometry/Line.h>
#include <base/geometry/Point.h>

namespace vex {

// The crossing of the two infinite lines through a and b. Writes out.x and
// out.y (not z) and sets `where` (bit 1: on segment a, bit 2: on segment b)
// and returns true; returns false, leaving both unchanged, when the lines
// are parallel. A line counts as vertical when its x values differ by less
// than 1e-7 or its slope exceeds 1e10 in magnitude; lines whose slopes
// differ by less than 1e-7 are parallel. A point counts as on a segment when
// (x1 - x)(x2 - x) < 1e-7 and (y1 - y)(y2 - y) < 1e-7.
VEXBASE_API bool Intersect(const Line& a, const Line& b, Point& out, long& where);

// The points where the infinite line through `line` meets the arc `curve`:
// returns how many (0, 1 or 2) and fills that many entries of out and where.
// Only points on the arc's sector are returned, ordered along the line's
// direction, with the arc centre's z; where[i] is 2, plus 1 when the point
// also lies on the segment (by the test of the line-line Intersect).
// Tolerance: with s = 1e-12 x the largest of 1, |radius| and the centre's
// |x| and |y|, a point within s of an end of the arc counts as on it (so
// pieces joined end to end meet), and a line within s of touching the
// circle touches it in one point. A line of zero length, or null arrays,
// give none.
VEXBASE_API long Intersect(const Line& line, const Curve& curve, Point out[2], long where[2]);

// The points where the two arcs meet: returns how many (0, 1 or 2) and
// fills that many entries of out. Only points on both sectors are returned
// (with the end tolerance above); the point left of the direction from a's
// centre to b's comes first. Points carry a's centre z. Circles within the
// tolerance of touching (from outside or inside) meet in one point;
// concentric circles, even identical ones, give none.
VEXBASE_API long Intersect(const Curve& a, const Curve& b, Point out[2]);

// The point at horizontal distance r1 from p1 and r2 from p2, left of the
// direction p1 -> p2, or right of it when otherSide is true. Writes out.x
// and out.y and returns true; returns false, leaving out unchanged, when p1
// and p2 coincide or no such point exists (d > r1 + r2 or |r1 - r2| > d).
VEXBASE_API bool IntersectP3(const Point& p1, const Point& p2, double r1, double r2, Point& out,
                             bool otherSide = false);

// As IntersectP3, and also sets out.z to the height of the base line p1-p2
// at the foot of the perpendicular from out: z = p1.z + (p2.z - p1.z) a / d,
// with a the distance of the foot from p1 along the base line and d the
// base line's length. The point is taken on the surface that contains the
// base line and is level across it; a foot beyond p1 or p2 extrapolates.
VEXBASE_API bool IntersectP3Z(const Point& p1, const Point& p2, double r1, double r2, Point& out,
                              bool otherSide = false);

// The centre of the circle through p1, p2 and p3, as the crossing of the
// perpendicular bisectors of p1-p2 and p2-p3. Writes centre.x and centre.y
// and returns true; returns false, leaving centre unchanged, when the
// points are collinear or two of them coincide.
VEXBASE_API bool CentreCircleFrom3P(const Point& p1, const Point& p2, const Point& p3,
                                    Point& centre);

}  // namespace vex
