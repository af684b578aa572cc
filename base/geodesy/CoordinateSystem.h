// CoordinateSystem.h - CoordinateSystem, the mapping between a world window
// (survey coordinates: x east, y north) and the pixel window of a display,
// with an optional skew rotation of the view.
//
// Pixels are whole numbers: a world position maps to floor(v + 0.5) of its
// exact pixel position v, in every form (double, Point, Page, CPoint,
// CRect). Mapping back comes in two families half a pixel apart: the
// two-double, Point and CPoint forms add half a pixel (they give the centre
// of the pixel as the world sees it), the Page and CRect forms do not (they
// give its edge). Rotation by the skew happens only in rotation mode 3
// (ROTATION_SKEW); any other mode ignores the skew. The scale is recomputed
// whenever a window changes, not when the skew or the mode do, so set those
// first. A CoordinateSystem is a plain value; const members may be called
// from several threads at once.
//
//   vex::CoordinateSystem cs;
//   cs.SetPixelWindow(0, 0, 800, 600);                  // CRect order: l, t, r, b
//   cs.CenterWorldAreaOnPixelWindow(vex::Page(1000, 5000, 1400, 5200), 1.0);
//   vex::CPoint p = cs.WorldToPixel(vex::Point(1200, 5100));   // (400, 300)
#pragma once

#include <base/Export.h>
#include <base/framework/CPoint.h>
#include <base/framework/CRect.h>
#include <base/geometry/FloatPoint.h>
#include <base/geometry/Page.h>
#include <base/geometry/Point.h>

#include <cmath>
#include <cstddef>
#include <span>

namespace vex {

// How a view turns: any value may be stored; only ROTATION_SKEW (3) rotates
// the view by the skew angle, every other value draws north up.
enum ROTATIONMODE : int {
    ROTATION_NONE = 0,
    ROTATION_SKEW = 3,
};

class VEXBASE_API CoordinateSystem {
  public:
    // World window (0, 0, 1, 1) on pixel window (0, 1, 1, 0): scale (1, -1),
    // no rotation.
    CoordinateSystem() = default;

    // Stores the world window (left, bottom, right, top), centres on it and
    // recomputes the scale. False, with nothing changed, when its width or
    // height is zero.
    bool SetWorldWindow(const Page& world);
    bool SetWorldWindow(double left, double bottom, double right, double top);

    // Stores the pixel window given as left, bottom, right, top (a screen
    // window has bottom > top), centres on it and recomputes the scale.
    // False, with nothing changed, when its width or height is zero.
    bool SetPixelWindow(const Page& pixels);
    bool SetPixelWindow(double left, double bottom, double right, double top);
    // The same from a rectangle of the graphics interface, or four integers
    // in its order: left, top, right, bottom (stored as left, bottom, right,
    // top).
    bool SetPixelWindow(const CRect& pixels);
    bool SetPixelWindow(int left, int top, int right, int bottom);

    const Page& GetWorldWindow() const { return world_; }
    const Page& GetPixelWindow() const { return pixels_; }
    // The pixel window as a rectangle: left, top, right, bottom.
    CRect PixelWindow() const;
    // Pixels per world unit along x and y (y negative on a screen); z unused.
    const Point& GetScale() const { return scale_; }
    const Point& GetWorldCenter() const { return worldCentre_; }
    const Point& GetPixelCenter() const { return pixelCentre_; }

    // The skew of the view in degrees (clockwise turn of the world on the
    // screen). The scale is not recomputed until the next window change.
    void SetSkew(double degrees);
    double GetSkew() const { return skew_; }
    void SetRotationMode(ROTATIONMODE mode) { rotationMode_ = mode; }
    ROTATIONMODE GetRotationMode() const { return rotationMode_; }
    bool IsRotated() const { return rotationMode_ == ROTATION_SKEW; }

    // True when both |scale x| and |scale y| lie within 1e-10 to 1e10: only
    // then are the mappings usable (a zero scale is not guarded).
    bool IsScaleValid() const;

    // World to pixel. The results are whole numbers. The Point form keeps
    // the z of its input; the Page form maps the two corners.
    void WorldToPixel(double x, double y, double& px, double& py) const;
    void WorldToPixel(const Point& world, Point& pixel) const;
    void WorldToPixel(const Page& world, Page& pixels) const;
    // The integer forms. Pixels beyond the range of a 32-bit int (a far
    // point in a close view) are held at its limits, and a position that is
    // not a number gives 0, so the result is always a usable integer.
    CPoint WorldToPixel(const Point& world) const;
    // The corners of the world page as a rectangle: left, top, right, bottom.
    CRect WorldToPixel(const Page& world) const;

    // Many points at once, for views that map whole point clouds: maps
    // world[i] to pixels[i] as the CPoint form does, for as many points as
    // the shorter span holds, and returns that number.
    std::size_t WorldToPixel(std::span<const Point> world, std::span<CPoint> pixels) const;
    std::size_t WorldToPixel(std::span<const FloatPoint> world, std::span<CPoint> pixels) const;

    // Pixel to world at the centre of the pixel (adds half a pixel). The
    // Point form keeps the z of its input.
    void PixelToWorld(double px, double py, double& x, double& y) const;
    void PixelToWorld(const Point& pixel, Point& world) const;
    Point PixelToWorld(const CPoint& pixel) const;
    // Pixel to world at the pixel's edge (no half pixel), corner by corner.
    void PixelToWorld(const Page& pixels, Page& world) const;
    Page PixelToWorld(const CRect& pixels) const;

    // The rotation alone, world offset to pixel axes and back, in place; no
    // change unless the rotation mode is ROTATION_SKEW.
    void RotateWtoP(double& x, double& y) const;
    void RotatePtoW(double& x, double& y) const;

    // The world area a page covers on the pixel axes: the page itself when
    // not rotated, otherwise the axis-aligned box of the page turned by the
    // skew about its own centre.
    Page GetExtend(const Page& page) const;

    // Centres on `centre` a world window of the size that this pixel window
    // shows at the scale of `other`. False, with nothing changed, when that
    // window has no width or height (or other's scale is zero).
    bool SetWorldWindowFromPoint(const Point& centre, const CoordinateSystem& other);
    // Shows on this pixel window what `other` shows around its world centre
    // at its scale, zoomed by `zoom` (2 shows half as much), keeping the
    // aspect ratio; see CenterWorldAreaOnPixelWindow.
    bool SetWorldWindowFromCoordinateSystem(const CoordinateSystem& other, double zoom);
    // Fits the world area `area` into the pixel window with equal scales on
    // both axes, centred, and zooms by `zoom` (1 shows the whole area, edge
    // to edge along its tighter axis). An area of no size keeps the current
    // world window's size about its centre. False, with nothing changed,
    // when the resulting window would have no width or height.
    bool CenterWorldAreaOnPixelWindow(const Page& area, double zoom);

    // Equal windows and rotation mode; in rotation mode 3 also the centres
    // and the skew. The scale, which follows from these, is not compared.
    friend VEXBASE_API bool operator==(const CoordinateSystem& a, const CoordinateSystem& b);
    friend bool operator!=(const CoordinateSystem& a, const CoordinateSystem& b) {
        return !(a == b);
    }

  private:
    void ComputeScale();
    template <typename P>
    std::size_t MapSpan(std::span<const P> world, std::span<CPoint> pixels) const;

    Point scale_{1.0, -1.0, 0.0};
    Page world_{0.0, 0.0, 1.0, 1.0};
    Page pixels_{0.0, 1.0, 1.0, 0.0};
    Point worldCentre_{0.5, 0.5, 0.0};
    Point pixelCentre_{0.5, 0.5, 0.0};
    double skew_ = 0.0;
    ROTATIONMODE rotationMode_ = ROTATION_NONE;
    double sinSkew_ = 0.0;
    double cosSkew_ = 1.0;
};

// Inline because views call it for every point they draw: across a shared
// library boundary the call would cost more than the arithmetic.
inline void CoordinateSystem::WorldToPixel(double x, double y, double& px, double& py) const {
    double dx = x - worldCentre_.x;
    double dy = y - worldCentre_.y;
    if (rotationMode_ == ROTATION_SKEW) {
        const double turned = dx * cosSkew_ + dy * sinSkew_;
        dy = dy * cosSkew_ - dx * sinSkew_;
        dx = turned;
    }
    // Both results before either store: px and py may alias this object.
    const double pixelX = std::floor(dx * scale_.x + 0.5 + pixelCentre_.x);
    const double pixelY = std::floor(dy * scale_.y + 0.5 + pixelCentre_.y);
    px = pixelX;
    py = pixelY;
}

inline void CoordinateSystem::PixelToWorld(double px, double py, double& x, double& y) const {
    double wx = (px - pixelCentre_.x + 0.5) / scale_.x;
    double wy = (py - pixelCentre_.y + 0.5) / scale_.y;
    if (rotationMode_ == ROTATION_SKEW) {
        const double turned = wx * cosSkew_ - wy * sinSkew_;
        wy = wy * cosSkew_ + wx * sinSkew_;
        wx = turned;
    }
    x = wx + worldCentre_.x;
    y = wy + worldCentre_.y;
}

}  // namespace vex
