// RenderedSvg.h - pictures tested as pictures: an SVG file rendered by a
// real renderer (rsvg-convert) at its own size, and its pixels read back.
//
// Native builds render and fail the test when the renderer is missing (the
// project's scripts install it); the Windows build has no renderer and gets
// std::nullopt, so a picture test there skips:
//
//   auto image = vex::test::RenderSvgFile(path);
//   if (!image) GTEST_SKIP() << "no SVG renderer in this build";
//   EXPECT_TRUE(image->At(10, 20).IsNear(vex::test::Rgb{255, 0, 0}));
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <vector>

namespace vex::test {

struct Rgb {
    int r = 0;
    int g = 0;
    int b = 0;

    // Each channel within tolerance: anti-aliasing moves edges a little.
    bool IsNear(const Rgb& other, int tolerance = 40) const;
    friend bool operator==(const Rgb&, const Rgb&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Rgb& c) {
        return out << "rgb(" << c.r << ", " << c.g << ", " << c.b << ")";
    }
};

class RenderedImage {
  public:
    RenderedImage(int width, int height, std::vector<std::uint8_t> rgba)
        : width_(width), height_(height), rgba_(std::move(rgba)) {}

    int Width() const { return width_; }
    int Height() const { return height_; }
    // The pixel's colour composed over white; white outside the image.
    Rgb At(int x, int y) const;
    // How many pixels of the rectangle [x0, x1) x [y0, y1) are near colour.
    int CountNear(const Rgb& colour, int x0, int y0, int x1, int y1, int tolerance = 40) const;

  private:
    int width_;
    int height_;
    std::vector<std::uint8_t> rgba_;
};

// The SVG rendered at its own size; std::nullopt in builds without a
// renderer. In native builds a missing renderer or a file it cannot render
// is a test failure as well.
std::optional<RenderedImage> RenderSvgFile(const std::filesystem::path& svg);

}  // namespace vex::test
