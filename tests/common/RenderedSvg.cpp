#include "RenderedSvg.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#if VEXBASE_TEST_HAVE_RENDERER
#include <zlib.h>
#endif

namespace vex::test {

bool Rgb::IsNear(const Rgb& other, int tolerance) const {
    return std::abs(r - other.r) <= tolerance && std::abs(g - other.g) <= tolerance &&
           std::abs(b - other.b) <= tolerance;
}

Rgb RenderedImage::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) {
        return {255, 255, 255};
    }
    const std::uint8_t* p = &rgba_[(static_cast<std::size_t>(y) * width_ + x) * 4];
    auto over_white = [alpha = p[3]](int c) { return (c * alpha + 255 * (255 - alpha)) / 255; };
    return {over_white(p[0]), over_white(p[1]), over_white(p[2])};
}

int RenderedImage::CountNear(const Rgb& colour, int x0, int y0, int x1, int y1,
                             int tolerance) const {
    int count = 0;
    for (int y = y0; y < y1; ++y) {
        for (int x = x0; x < x1; ++x) {
            count += At(x, y).IsNear(colour, tolerance) ? 1 : 0;
        }
    }
    return count;
}

#if VEXBASE_TEST_HAVE_RENDERER
namespace {

std::uint32_t BigEndian32(const unsigned char* p) {
    return (std::uint32_t{p[0]} << 24) | (std::uint32_t{p[1]} << 16) | (std::uint32_t{p[2]} << 8) |
           p[3];
}

int Paeth(int a, int b, int c) {
    const int p = a + b - c;
    const int pa = std::abs(p - a), pb = std::abs(p - b), pc = std::abs(p - c);
    if (pa <= pb && pa <= pc) {
        return a;
    }
    return pb <= pc ? b : c;
}

// The 8-bit RGB or RGBA, non-interlaced PNG that rsvg-convert writes.
std::optional<RenderedImage> DecodePng(const std::string& file) {
    const auto* data = reinterpret_cast<const unsigned char*>(file.data());
    if (file.size() < 33 || file.compare(1, 3, "PNG") != 0) {
        ADD_FAILURE() << "the renderer's output is not a PNG";
        return std::nullopt;
    }
    std::uint32_t width = 0, height = 0;
    std::size_t channels = 4;
    std::string compressed;
    for (std::size_t at = 8; at + 12 <= file.size();) {
        const std::uint32_t length = BigEndian32(data + at);
        const std::string type = file.substr(at + 4, 4);
        if (at + 12 + length > file.size()) {
            break;
        }
        const unsigned char* body = data + at + 8;
        if (type == "IHDR") {
            width = BigEndian32(body);
            height = BigEndian32(body + 4);
            if (body[8] != 8 || (body[9] != 6 && body[9] != 2) || body[12] != 0) {
                ADD_FAILURE() << "PNG is not 8-bit RGB or RGBA without interlace";
                return std::nullopt;
            }
            channels = body[9] == 6 ? 4 : 3;
        } else if (type == "IDAT") {
            compressed.append(file, at + 8, length);
        }
        at += 12 + length;
    }
    const std::size_t stride = std::size_t{width} * channels;
    std::vector<std::uint8_t> raw((stride + 1) * height);
    uLongf rawSize = static_cast<uLongf>(raw.size());
    if (width == 0 || height == 0 ||
        uncompress(raw.data(), &rawSize, reinterpret_cast<const Bytef*>(compressed.data()),
                   static_cast<uLong>(compressed.size())) != Z_OK ||
        rawSize != raw.size()) {
        ADD_FAILURE() << "PNG image data does not inflate";
        return std::nullopt;
    }
    std::vector<std::uint8_t> pixels(stride * height);
    for (std::size_t y = 0; y < height; ++y) {
        const std::uint8_t filter = raw[y * (stride + 1)];
        const std::uint8_t* in = &raw[y * (stride + 1) + 1];
        std::uint8_t* out = &pixels[y * stride];
        const std::uint8_t* up = y > 0 ? &pixels[(y - 1) * stride] : nullptr;
        for (std::size_t i = 0; i < stride; ++i) {
            const int a = i >= channels ? out[i - channels] : 0;
            const int b = up ? up[i] : 0;
            const int c = (up && i >= channels) ? up[i - channels] : 0;
            int predicted = 0;
            switch (filter) {
                case 1:
                    predicted = a;
                    break;
                case 2:
                    predicted = b;
                    break;
                case 3:
                    predicted = (a + b) / 2;
                    break;
                case 4:
                    predicted = Paeth(a, b, c);
                    break;
                default:
                    predicted = 0;
            }
            out[i] = static_cast<std::uint8_t>(in[i] + predicted);
        }
    }
    std::vector<std::uint8_t> rgba(std::size_t{width} * height * 4, 255);
    for (std::size_t p = 0; p < std::size_t{width} * height; ++p) {
        for (std::size_t k = 0; k < channels; ++k) {
            rgba[p * 4 + k] = pixels[p * channels + k];
        }
    }
    return RenderedImage(static_cast<int>(width), static_cast<int>(height), std::move(rgba));
}

}  // namespace

std::optional<RenderedImage> RenderSvgFile(const std::filesystem::path& svg) {
    const std::filesystem::path png = svg.string() + ".png";
    const std::string command =
        "rsvg-convert -f png -o '" + png.string() + "' '" + svg.string() + "'";
    if (std::system(command.c_str()) != 0) {
        ADD_FAILURE() << "rsvg-convert could not render " << svg
                      << " (is librsvg2-bin installed? scripts/install-deps installs it)";
        return std::nullopt;
    }
    std::ifstream in(png, std::ios::binary);
    const std::string file((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return DecodePng(file);
}
#else
std::optional<RenderedImage> RenderSvgFile(const std::filesystem::path&) {
    return std::nullopt;
}
#endif

}  // namespace vex::test
