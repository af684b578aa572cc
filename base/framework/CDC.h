// CDC.h - CDC, the drawing surface that every drawing routine of the
// library takes: a pen, a brush, text settings and the graphics interface's
// drawing calls on integer pixel coordinates (x to the right, y down).
//
// A pixel (x, y) is the unit square whose top-left corner is (x, y); lines
// run through pixel centres. Bounding rectangles (Rectangle, Ellipse, Arc)
// exclude their right and bottom edges, as the framework's do. CDC keeps
// the drawing state; a back end such as SvgDC implements the drawing calls.
//
//   vex::SvgDC dc(800, 600);
//   dc.SetPen(2, vex::RGB(255, 0, 0));
//   dc.MoveTo(10, 10);
//   dc.LineTo(790, 590);
#pragma once

#include <base/Export.h>
#include <base/framework/CPoint.h>
#include <base/framework/CString.h>
#include <base/framework/ColorRef.h>

namespace vex {

// Text alignment flags of SetTextAlign, with the framework's values: one
// horizontal (left, right, centre) or-ed with one vertical (top, bottom,
// baseline) choice.
constexpr unsigned TA_LEFT = 0;
constexpr unsigned TA_RIGHT = 2;
constexpr unsigned TA_CENTER = 6;
constexpr unsigned TA_TOP = 0;
constexpr unsigned TA_BOTTOM = 8;
constexpr unsigned TA_BASELINE = 24;

// Arc directions of SetArcDirection, as seen on the screen.
constexpr int AD_COUNTERCLOCKWISE = 1;
constexpr int AD_CLOCKWISE = 2;

class VEXBASE_API CDC {
  public:
    CDC() = default;
    virtual ~CDC();

    // The pen of lines and outlines: a width in pixels (0 and 1 both draw
    // one pixel wide, like the framework's cosmetic pen) and a colour.
    void SetPen(int width, COLORREF colour);
    // No outlines: Rectangle, Polygon and Ellipse draw only their fill.
    void SetNullPen() { hasPen_ = false; }
    bool HasPen() const { return hasPen_; }
    int GetPenWidth() const { return penWidth_; }
    COLORREF GetPenColor() const { return penColour_; }

    // The solid fill of Polygon, Rectangle and Ellipse.
    void SetBrush(COLORREF colour);
    // No fill: the shapes draw only their outline (the state at start).
    void SetNullBrush() { hasBrush_ = false; }
    bool HasBrush() const { return hasBrush_; }
    COLORREF GetBrushColor() const { return brushColour_; }

    COLORREF SetTextColor(COLORREF colour);
    COLORREF GetTextColor() const { return textColour_; }
    // The height of text in pixels; values below 1 are taken as 1.
    void SetFontSize(int pixels);
    int GetFontSize() const { return fontSize_; }
    // Returns the previous alignment (TA_LEFT | TA_TOP at start).
    unsigned SetTextAlign(unsigned flags);
    unsigned GetTextAlign() const { return textAlign_; }
    // Returns the previous direction; values other than the two are refused
    // (0 returned, nothing changed).
    int SetArcDirection(int direction);
    int GetArcDirection() const { return arcDirection_; }

    // Moves the current position without drawing; returns the previous one.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(CPoint p) { return MoveTo(static_cast<int>(p.x), static_cast<int>(p.y)); }
    CPoint GetCurrentPosition() const { return position_; }
    // Draws with the pen from the current position to (x, y), which becomes
    // the current position.
    bool LineTo(int x, int y);
    bool LineTo(CPoint p) { return LineTo(static_cast<int>(p.x), static_cast<int>(p.y)); }

    // Connected lines through the points; false for fewer than two points.
    virtual bool Polyline(const CPoint* points, int count) = 0;
    // A closed, filled outline; false for fewer than two points.
    virtual bool Polygon(const CPoint* points, int count) = 0;
    virtual bool Rectangle(int left, int top, int right, int bottom) = 0;
    virtual bool Ellipse(int left, int top, int right, int bottom) = 0;
    // The part of the ellipse bounded by the rectangle that runs, in the arc
    // direction, from where the ray from its centre through the start point
    // meets it to where the ray through the end point does. Equal rays draw
    // the whole ellipse.
    virtual bool Arc(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd,
                     int yEnd) = 0;
    // Sets one pixel; returns the colour set.
    virtual COLORREF SetPixel(int x, int y, COLORREF colour) = 0;
    // Text at (x, y) placed by the text alignment, in the text colour.
    virtual bool TextOut(int x, int y, const CString& text) = 0;

  protected:
    CDC(const CDC&) = default;
    CDC& operator=(const CDC&) = default;

  private:
    CPoint position_;
    int penWidth_ = 1;
    COLORREF penColour_ = 0;
    bool hasPen_ = true;
    COLORREF brushColour_ = 0xFFFFFF;
    bool hasBrush_ = false;
    COLORREF textColour_ = 0;
    int fontSize_ = 12;
    unsigned textAlign_ = TA_LEFT | TA_TOP;
    int arcDirection_ = AD_COUNTERCLOCKWISE;
};

}  // namespace vex
