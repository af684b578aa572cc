#include <base/framework/SvgDC.h>

#include <base/framework/AtomicFile.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <span>

namespace vex {
namespace {

// Numbers in the document are written without the locale: an application
// that sets a decimal comma must still get a valid SVG.
void Append(std::string& out, double value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, result.ptr);
}

// A pixel coordinate at the centre of its pixel.
void AppendCentre(std::string& out, int value) {
    Append(out, value + 0.5);
}

std::string ColourText(COLORREF colour) {
    static constexpr char digits[] = "0123456789abcdef";
    const unsigned channels[3] = {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
    std::string text = "#";
    for (unsigned c : channels) {
        text += digits[c >> 4];
        text += digits[c & 0xF];
    }
    return text;
}

// Text content of an element: the three characters XML gives meaning to.
std::string EscapeText(const std::string& utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (char c : utf8) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

// Bounding edges are taken as doubles so that no pair of ints overflows.
double Middle(int a, int b) {
    return (static_cast<double>(a) + b) / 2.0;
}
// Half the distance between the centres of the first and last pixels.
double InnerRadius(int a, int b) {
    return std::max(std::abs(static_cast<double>(b) - a) - 1.0, 0.0) / 2.0;
}

void AppendPoints(std::string& out, std::span<const CPoint> points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0) {
            out += ' ';
        }
        AppendCentre(out, static_cast<int>(points[i].x));
        out += ',';
        AppendCentre(out, static_cast<int>(points[i].y));
    }
}

}  // namespace

SvgDC::SvgDC(int width, int height) : width_(std::max(width, 1)), height_(std::max(height, 1)) {}

void SvgDC::SetBackground(COLORREF colour) {
    background_ = colour & 0xFFFFFFu;
    hasBackground_ = true;
}

std::string SvgDC::ShapeStyle(bool filled) const {
    std::string style = " fill=\"";
    style += filled && HasBrush() ? ColourText(GetBrushColor()) : "none";
    style += "\" stroke=\"";
    if (HasPen()) {
        style += ColourText(GetPenColor());
        style += "\" stroke-width=\"";
        Append(style, GetPenWidth());
        style += "\" stroke-linecap=\"round\" stroke-linejoin=\"round\"";
    } else {
        style += "none\"";
    }
    return style;
}

bool SvgDC::Polyline(const CPoint* points, int count) {
    if (points == nullptr || count < 2) {
        return false;
    }
    body_ += "<polyline points=\"";
    AppendPoints(body_, {points, static_cast<std::size_t>(count)});
    body_ += '"' + ShapeStyle(false) + "/>\n";
    return true;
}

bool SvgDC::Polygon(const CPoint* points, int count) {
    if (points == nullptr || count < 2) {
        return false;
    }
    body_ += "<polygon points=\"";
    AppendPoints(body_, {points, static_cast<std::size_t>(count)});
    body_ += '"' + ShapeStyle(true) + "/>\n";
    return true;
}

bool SvgDC::Rectangle(int left, int top, int right, int bottom) {
    if (right < left) {
        std::swap(left, right);
    }
    if (bottom < top) {
        std::swap(top, bottom);
    }
    // The outline runs through the centres of the first and last pixels
    // inside the rectangle; its right and bottom edges are not part of it.
    body_ += "<rect x=\"";
    AppendCentre(body_, left);
    body_ += "\" y=\"";
    AppendCentre(body_, top);
    body_ += "\" width=\"";
    Append(body_, 2.0 * InnerRadius(left, right));
    body_ += "\" height=\"";
    Append(body_, 2.0 * InnerRadius(top, bottom));
    body_ += '"' + ShapeStyle(true) + "/>\n";
    return true;
}

void SvgDC::AppendEllipse(double cx, double cy, double rx, double ry, bool filled) {
    body_ += "<ellipse cx=\"";
    Append(body_, cx);
    body_ += "\" cy=\"";
    Append(body_, cy);
    body_ += "\" rx=\"";
    Append(body_, rx);
    body_ += "\" ry=\"";
    Append(body_, ry);
    body_ += '"' + ShapeStyle(filled) + "/>\n";
}

bool SvgDC::Ellipse(int left, int top, int right, int bottom) {
    AppendEllipse(Middle(left, right), Middle(top, bottom), InnerRadius(left, right),
                  InnerRadius(top, bottom), true);
    return true;
}

bool SvgDC::Arc(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd,
                int yEnd) {
    const double cx = Middle(left, right);
    const double cy = Middle(top, bottom);
    const double rx = InnerRadius(left, right);
    const double ry = InnerRadius(top, bottom);
    if (rx == 0.0 || ry == 0.0) {
        return false;
    }
    // Angles on the screen, counterclockwise as seen, from the rays through
    // the two given points (measured from pixel centres).
    const double startAngle = std::atan2(-(yStart + 0.5 - cy), xStart + 0.5 - cx);
    const double endAngle = std::atan2(-(yEnd + 0.5 - cy), xEnd + 0.5 - cx);
    constexpr double fullTurn = 2.0 * std::numbers::pi;
    double sweep = std::fmod(endAngle - startAngle + 2.0 * fullTurn, fullTurn);
    if (sweep == 0.0) {
        AppendEllipse(cx, cy, rx, ry, false);
        return true;
    }
    const bool clockwise = GetArcDirection() == AD_CLOCKWISE;
    if (clockwise) {
        sweep = fullTurn - sweep;
    }
    auto pointAt = [&](double angle, double& x, double& y) {
        x = cx + rx * std::cos(angle);
        y = cy - ry * std::sin(angle);
    };
    double x0 = 0.0, y0 = 0.0, x1 = 0.0, y1 = 0.0;
    pointAt(startAngle, x0, y0);
    pointAt(endAngle, x1, y1);
    body_ += "<path d=\"M ";
    Append(body_, x0);
    body_ += ' ';
    Append(body_, y0);
    body_ += " A ";
    Append(body_, rx);
    body_ += ' ';
    Append(body_, ry);
    // In SVG's y-down frame sweep flag 1 turns clockwise on the screen.
    body_ += sweep > std::numbers::pi ? " 0 1 " : " 0 0 ";
    body_ += clockwise ? "1 " : "0 ";
    Append(body_, x1);
    body_ += ' ';
    Append(body_, y1);
    body_ += '"' + ShapeStyle(false) + "/>\n";
    return true;
}

COLORREF SvgDC::SetPixel(int x, int y, COLORREF colour) {
    colour &= 0xFFFFFFu;
    body_ += "<rect x=\"";
    Append(body_, x);
    body_ += "\" y=\"";
    Append(body_, y);
    body_ += "\" width=\"1\" height=\"1\" fill=\"" + ColourText(colour) + "\"/>\n";
    return colour;
}

bool SvgDC::TextOut(int x, int y, const CString& text) {
    const unsigned align = GetTextAlign();
    const char* anchor = "start";
    if ((align & TA_CENTER) == TA_CENTER) {
        anchor = "middle";
    } else if ((align & TA_RIGHT) != 0) {
        anchor = "end";
    }
    // SVG places text on its baseline; the top and bottom alignments move it
    // by the usual ascent (0.8 of the height) and descent (0.2).
    const double size = GetFontSize();
    double baseline = y + 0.8 * size;
    if ((align & TA_BASELINE) == TA_BASELINE) {
        baseline = y;
    } else if ((align & TA_BOTTOM) != 0) {
        baseline = y - 0.2 * size;
    }
    body_ += "<text x=\"";
    Append(body_, x);
    body_ += "\" y=\"";
    Append(body_, baseline);
    body_ += "\" font-family=\"sans-serif\" font-size=\"";
    Append(body_, size);
    body_ += "\" text-anchor=\"";
    body_ += anchor;
    body_ += "\" fill=\"" + ColourText(GetTextColor()) + "\">";
    body_ += EscapeText(text.ToUtf8());
    body_ += "</text>\n";
    return true;
}

std::string SvgDC::GetDocument() const {
    std::string document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    document += "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"";
    Append(document, width_);
    document += "\" height=\"";
    Append(document, height_);
    document += "\" viewBox=\"0 0 ";
    Append(document, width_);
    document += ' ';
    Append(document, height_);
    document += "\">\n";
    if (hasBackground_) {
        document += "<rect x=\"0\" y=\"0\" width=\"100%\" height=\"100%\" fill=\"" +
                    ColourText(background_) + "\"/>\n";
    }
    document += body_;
    document += "</svg>\n";
    return document;
}

bool SvgDC::Save(const CString& path) const {
    const std::string document = GetDocument();
    return AtomicWriteFile(path, std::as_bytes(std::span(document.data(), document.size())));
}

}  // namespace vex
