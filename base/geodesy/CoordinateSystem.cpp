#include <base/geodesy/CoordinateSystem.h>

#include <algorithm>
#include <climits>

namespace vex {
namespace {

// The degree factor of the skew, truncated as the suite has always had it:
// views saved by older programs must turn to the same pixels.
constexpr double kSkewDegToRad = 0.017453292519943;

bool HasArea(const Page& page) {
    return page.Width() != 0.0 && page.Height() != 0.0;
}

Point Middle(const Page& page) {
    return Point((page.x1 + page.x2) / 2.0, (page.y1 + page.y2) / 2.0, 0.0);
}

// floor(v) as an integer; values beyond a 32-bit int are held at its limits
// and NaN gives 0, where a plain conversion would be undefined. Holding
// first keeps the conversion in range, and flooring through it is much
// cheaper than std::floor on processors without a rounding instruction.
inline long FloorToPixel(double v) {
    // max and min in this order pass a NaN through untouched, so the last
    // test catches it without a branch of its own.
    const double held =
        std::min(std::max(v, static_cast<double>(INT_MIN)), static_cast<double>(INT_MAX));
    if (!(held == held)) {
        return 0;
    }
    const long long truncated = static_cast<long long>(held);
    return static_cast<long>(truncated - (static_cast<double>(truncated) > held ? 1 : 0));
}

// A whole pixel value (already floored) as an integer, held as above.
inline long ToPixel(double v) {
    return FloorToPixel(v);
}

// The view's numbers are taken into locals and the rotation is decided once,
// so the loop is the bare arithmetic of WorldToPixel.
struct Mapping {
    double worldX, worldY, scaleX, scaleY, pixelX, pixelY, cosSkew, sinSkew;
};

template <bool rotated, typename P>
void MapPoints(const Mapping& m, const P* world, CPoint* pixels, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        double dx = world[i].x - m.worldX;
        double dy = world[i].y - m.worldY;
        if constexpr (rotated) {
            const double turned = dx * m.cosSkew + dy * m.sinSkew;
            dy = dy * m.cosSkew - dx * m.sinSkew;
            dx = turned;
        }
        pixels[i] = CPoint(FloorToPixel(dx * m.scaleX + 0.5 + m.pixelX),
                           FloorToPixel(dy * m.scaleY + 0.5 + m.pixelY));
    }
}

}  // namespace

bool CoordinateSystem::SetWorldWindow(const Page& world) {
    if (!HasArea(world)) {
        return false;
    }
    world_ = world;
    worldCentre_ = Middle(world);
    ComputeScale();
    return true;
}

bool CoordinateSystem::SetWorldWindow(double left, double bottom, double right, double top) {
    return SetWorldWindow(Page(left, bottom, right, top));
}

bool CoordinateSystem::SetPixelWindow(const Page& pixels) {
    if (!HasArea(pixels)) {
        return false;
    }
    pixels_ = pixels;
    pixelCentre_ = Middle(pixels);
    ComputeScale();
    return true;
}

bool CoordinateSystem::SetPixelWindow(double left, double bottom, double right, double top) {
    return SetPixelWindow(Page(left, bottom, right, top));
}

bool CoordinateSystem::SetPixelWindow(const CRect& pixels) {
    return SetPixelWindow(Page(static_cast<double>(pixels.left), static_cast<double>(pixels.bottom),
                               static_cast<double>(pixels.right), static_cast<double>(pixels.top)));
}

bool CoordinateSystem::SetPixelWindow(int left, int top, int right, int bottom) {
    return SetPixelWindow(CRect(left, top, right, bottom));
}

CRect CoordinateSystem::PixelWindow() const {
    return CRect(ToPixel(pixels_.x1), ToPixel(pixels_.y2), ToPixel(pixels_.x2),
                 ToPixel(pixels_.y1));
}

void CoordinateSystem::SetSkew(double degrees) {
    skew_ = degrees;
    sinSkew_ = std::sin(degrees * kSkewDegToRad);
    cosSkew_ = std::cos(degrees * kSkewDegToRad);
}

bool CoordinateSystem::IsScaleValid() const {
    auto valid = [](double s) {
        const double m = std::fabs(s);
        return m >= 1e-10 && m <= 1e10;
    };
    return valid(scale_.x) && valid(scale_.y);
}

void CoordinateSystem::ComputeScale() {
    double w = world_.Width();
    double h = world_.Height();
    if (IsRotated()) {
        const double turned = w * cosSkew_ + h * sinSkew_;
        h = h * cosSkew_ - w * sinSkew_;
        w = turned;
    }
    scale_.x = pixels_.Width() / w;
    scale_.y = pixels_.Height() / h;
}

void CoordinateSystem::WorldToPixel(const Point& world, Point& pixel) const {
    double px = 0.0;
    double py = 0.0;
    WorldToPixel(world.x, world.y, px, py);
    pixel = Point(px, py, world.z);
}

void CoordinateSystem::WorldToPixel(const Page& world, Page& pixels) const {
    Page out;
    WorldToPixel(world.x1, world.y1, out.x1, out.y1);
    WorldToPixel(world.x2, world.y2, out.x2, out.y2);
    pixels = out;
}

CPoint CoordinateSystem::WorldToPixel(const Point& world) const {
    double px = 0.0;
    double py = 0.0;
    WorldToPixel(world.x, world.y, px, py);
    return CPoint(ToPixel(px), ToPixel(py));
}

CRect CoordinateSystem::WorldToPixel(const Page& world) const {
    Page p;
    WorldToPixel(world, p);
    return CRect(ToPixel(p.x1), ToPixel(p.y2), ToPixel(p.x2), ToPixel(p.y1));
}

template <typename P>
std::size_t CoordinateSystem::MapSpan(std::span<const P> world, std::span<CPoint> pixels) const {
    const std::size_t count = std::min(world.size(), pixels.size());
    const Mapping m{worldCentre_.x, worldCentre_.y, scale_.x, scale_.y,
                    pixelCentre_.x, pixelCentre_.y, cosSkew_, sinSkew_};
    if (IsRotated()) {
        MapPoints<true>(m, world.data(), pixels.data(), count);
    } else {
        MapPoints<false>(m, world.data(), pixels.data(), count);
    }
    return count;
}

std::size_t CoordinateSystem::WorldToPixel(std::span<const Point> world,
                                           std::span<CPoint> pixels) const {
    return MapSpan(world, pixels);
}

std::size_t CoordinateSystem::WorldToPixel(std::span<const FloatPoint> world,
                                           std::span<CPoint> pixels) const {
    return MapSpan(world, pixels);
}

void CoordinateSystem::PixelToWorld(const Point& pixel, Point& world) const {
    double x = 0.0;
    double y = 0.0;
    PixelToWorld(pixel.x, pixel.y, x, y);
    world = Point(x, y, pixel.z);
}

Point CoordinateSystem::PixelToWorld(const CPoint& pixel) const {
    Point world;
    PixelToWorld(static_cast<double>(pixel.x), static_cast<double>(pixel.y), world.x, world.y);
    return world;
}

void CoordinateSystem::PixelToWorld(const Page& pixels, Page& world) const {
    // The edge of the pixel, not its centre: no half pixel here.
    auto corner = [this](double px, double py, double& x, double& y) {
        x = (px - pixelCentre_.x) / scale_.x;
        y = (py - pixelCentre_.y) / scale_.y;
        RotatePtoW(x, y);
        x += worldCentre_.x;
        y += worldCentre_.y;
    };
    Page out;
    corner(pixels.x1, pixels.y1, out.x1, out.y1);
    corner(pixels.x2, pixels.y2, out.x2, out.y2);
    world = out;
}

Page CoordinateSystem::PixelToWorld(const CRect& pixels) const {
    Page world;
    PixelToWorld(Page(static_cast<double>(pixels.left), static_cast<double>(pixels.bottom),
                      static_cast<double>(pixels.right), static_cast<double>(pixels.top)),
                 world);
    return world;
}

void CoordinateSystem::RotateWtoP(double& x, double& y) const {
    if (IsRotated()) {
        const double turned = x * cosSkew_ + y * sinSkew_;
        y = y * cosSkew_ - x * sinSkew_;
        x = turned;
    }
}

void CoordinateSystem::RotatePtoW(double& x, double& y) const {
    if (IsRotated()) {
        const double turned = x * cosSkew_ - y * sinSkew_;
        y = y * cosSkew_ + x * sinSkew_;
        x = turned;
    }
}

Page CoordinateSystem::GetExtend(const Page& page) const {
    if (!IsRotated()) {
        return page;
    }
    // A rectangle turned either way about its centre has the same box.
    const Point centre = Middle(page);
    const double halfW =
        std::fabs(page.Width() * cosSkew_) / 2.0 + std::fabs(page.Height() * sinSkew_) / 2.0;
    const double halfH =
        std::fabs(page.Width() * sinSkew_) / 2.0 + std::fabs(page.Height() * cosSkew_) / 2.0;
    return Page(centre.x - halfW, centre.y - halfH, centre.x + halfW, centre.y + halfH);
}

bool CoordinateSystem::SetWorldWindowFromPoint(const Point& centre, const CoordinateSystem& other) {
    const double w = pixels_.Width() / other.scale_.x;
    const double h = pixels_.Height() / other.scale_.y;
    if (!std::isfinite(w) || !std::isfinite(h)) {
        return false;
    }
    return SetWorldWindow(centre.x - w / 2.0, centre.y - h / 2.0, centre.x + w / 2.0,
                          centre.y + h / 2.0);
}

bool CoordinateSystem::SetWorldWindowFromCoordinateSystem(const CoordinateSystem& other,
                                                          double zoom) {
    const double w = pixels_.Width() / other.scale_.x;
    const double h = pixels_.Height() / other.scale_.y;
    const Point& c = other.worldCentre_;
    return CenterWorldAreaOnPixelWindow(
        Page(c.x - w / 2.0, c.y - h / 2.0, c.x + w / 2.0, c.y + h / 2.0), zoom);
}

bool CoordinateSystem::CenterWorldAreaOnPixelWindow(const Page& area, double zoom) {
    const Point centre = Middle(area);
    double w = area.Width();
    double h = area.Height();
    if (w == 0.0 && h == 0.0) {
        w = world_.Width();
        h = world_.Height();
    }
    if (IsRotated()) {
        const double turned = w * cosSkew_ + h * sinSkew_;
        h = h * cosSkew_ - w * sinSkew_;
        w = turned;
    }
    const double pixelW = pixels_.Width();
    const double pixelH = pixels_.Height();
    double sx = w != 0.0 ? pixelW / w : 0.0;
    double sy = h != 0.0 ? pixelH / h : 0.0;
    if (sx == 0.0) {
        sx = -sy;
    } else if (sy == 0.0) {
        sy = -sx;
    }
    // One scale for both axes, the smaller one, so the whole area fits.
    double scaleX = 0.0;
    double scaleY = 0.0;
    if (-sy > sx) {
        scaleX = sx * zoom;
        scaleY = -scaleX;
    } else {
        scaleY = sy * zoom;
        scaleX = -scaleY;
    }
    const double halfW = pixelW / 2.0 / scaleX;
    const double halfH = pixelH / 2.0 / scaleY;
    const Page window(centre.x - halfW, centre.y - halfH, centre.x + halfW, centre.y + halfH);
    if (!HasArea(window) || !std::isfinite(window.Width()) || !std::isfinite(window.Height())) {
        return false;
    }
    world_ = window;
    worldCentre_ = Middle(window);
    ComputeScale();
    return true;
}

bool operator==(const CoordinateSystem& a, const CoordinateSystem& b) {
    if (a.world_ != b.world_ || a.pixels_ != b.pixels_ || a.rotationMode_ != b.rotationMode_) {
        return false;
    }
    if (a.IsRotated()) {
        return a.worldCentre_ == b.worldCentre_ && a.pixelCentre_ == b.pixelCentre_ &&
               a.skew_ == b.skew_ && a.sinSkew_ == b.sinSkew_ && a.cosSkew_ == b.cosSkew_;
    }
    return true;
}

}  // namespace vex
