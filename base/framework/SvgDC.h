// SvgDC.h - SvgDC, the drawing surface that writes a standalone SVG 1.1
// document: what is drawn on it opens in any browser or SVG renderer.
//
// The document is width x height pixels with a view box of the same size,
// so one pixel of the drawing is one unit of the SVG. Pixel coordinates
// are placed at pixel centres (x + 0.5), which keeps a one-pixel line on
// one column of pixels when the document is rendered at its own size. The
// background is white unless SetBackground says otherwise.
//
//   vex::SvgDC dc(400, 300);
//   dc.SetPen(1, vex::RGB(0, 0, 255));
//   dc.Rectangle(10, 10, 390, 290);
//   dc.Save(u"plan.svg");
#pragma once

#include <base/Export.h>
#include <base/framework/CDC.h>
#include <base/framework/CString.h>

#include <string>

namespace vex {

class VEXBASE_API SvgDC final : public CDC {
  public:
    // A drawing of width x height pixels; sizes below 1 are taken as 1.
    SvgDC(int width, int height);

    int GetWidth() const { return width_; }
    int GetHeight() const { return height_; }
    // The colour the whole drawing starts from.
    void SetBackground(COLORREF colour);
    // No background: the drawing is transparent where nothing is drawn.
    void SetTransparentBackground() { hasBackground_ = false; }

    bool Polyline(const CPoint* points, int count) override;
    bool Polygon(const CPoint* points, int count) override;
    bool Rectangle(int left, int top, int right, int bottom) override;
    bool Ellipse(int left, int top, int right, int bottom) override;
    bool Arc(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd,
             int yEnd) override;
    COLORREF SetPixel(int x, int y, COLORREF colour) override;
    bool TextOut(int x, int y, const CString& text) override;

    // The whole document as UTF-8 text.
    std::string GetDocument() const;
    // Writes the document to path in one step; false, with an existing file
    // left as it was, when it cannot be written.
    bool Save(const CString& path) const;

  private:
    // stroke and fill attributes of the current pen and brush.
    std::string ShapeStyle(bool filled) const;
    void AppendEllipse(double cx, double cy, double rx, double ry, bool filled);

    int width_;
    int height_;
    COLORREF background_ = 0xFFFFFF;
    bool hasBackground_ = true;
    std::string body_;
};

}  // namespace vex
