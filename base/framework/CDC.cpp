#include <base/framework/CDC.h>

#include <algorithm>

namespace vex {

CDC::~CDC() = default;

void CDC::SetPen(int width, COLORREF colour) {
    penWidth_ = std::max(width, 1);
    penColour_ = colour & 0xFFFFFFu;
    hasPen_ = true;
}

void CDC::SetBrush(COLORREF colour) {
    brushColour_ = colour & 0xFFFFFFu;
    hasBrush_ = true;
}

COLORREF CDC::SetTextColor(COLORREF colour) {
    const COLORREF previous = textColour_;
    textColour_ = colour & 0xFFFFFFu;
    return previous;
}

void CDC::SetFontSize(int pixels) {
    fontSize_ = std::max(pixels, 1);
}

unsigned CDC::SetTextAlign(unsigned flags) {
    const unsigned previous = textAlign_;
    textAlign_ = flags;
    return previous;
}

int CDC::SetArcDirection(int direction) {
    if (direction != AD_COUNTERCLOCKWISE && direction != AD_CLOCKWISE) {
        return 0;
    }
    const int previous = arcDirection_;
    arcDirection_ = direction;
    return previous;
}

CPoint CDC::MoveTo(int x, int y) {
    const CPoint previous = position_;
    position_ = CPoint(x, y);
    return previous;
}

bool CDC::LineTo(int x, int y) {
    const CPoint line[2] = {position_, CPoint(x, y)};
    position_ = line[1];
    return Polyline(line, 2);
}

}  // namespace vex
