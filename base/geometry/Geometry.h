// Geometry.h - the geometry primitives in one include: points, lines, arcs,
// triangles, extents, tolerant comparisons and angle functions.
//
// Axes for the whole library: x east, y north, z up; angles in degrees,
// bearings clockwise from north (bearing a, distance d = (d sin a, d cos a)).
#pragma once

#include <base/geometry/AngleFunctions.h>
#include <base/geometry/Curve.h>
#include <base/geometry/Extents3D.h>
#include <base/geometry/FloatPoint.h>
#include <base/geometry/Intersections.h>
#include <base/geometry/Line.h>
#include <base/geometry/Math.h>
#include <base/geometry/Page.h>
#include <base/geometry/Point.h>
#include <base/geometry/Triangle.h>
