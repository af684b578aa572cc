#include <base/survey/TidePlot.h>

#include <base/framework/CPoint.h>
#include <base/framework/Format.h>
#include <base/strings/NumberFormat.h>
#include <base/strings/Precision.h>
#include <base/time/ExTime.h>
#include <base/time/TimeSpan.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

namespace vex {

namespace {

constexpr int kMarginLeft = 64;
// Room for half a date label centred on the last tick.
constexpr int kMarginRight = 44;
constexpr int kMarginTop = 32;
constexpr int kMarginBottom = 58;
constexpr int kFontSize = 12;
constexpr COLORREF kInk = RGB(0, 0, 0);
constexpr COLORREF kGrid = RGB(220, 220, 220);
// Beyond this many grid lines an axis is unreadable; the step was wrong.
constexpr double kMaxTicks = 100;

struct Scale {
    CRect frame;
    double t0, t1, h0, h1;

    int X(double t) const {
        return frame.left +
               static_cast<int>(std::lround((t - t0) / (t1 - t0) * (frame.Width() - 1)));
    }
    int Y(double h) const {
        return frame.bottom - 1 -
               static_cast<int>(std::lround((h - h0) / (h1 - h0) * (frame.Height() - 1)));
    }
};

bool Drawable(const std::pair<const double, double>& pair) {
    return std::isfinite(pair.first) && std::isfinite(pair.second);
}

// "YYYY-MM-DD" and "HH:MM" (or "HH:MM:SS") of a UTC time.
std::pair<std::string, std::string> UtcLabel(double t, bool seconds) {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    CExTime::TimeToUtcDate(static_cast<std::time_t>(std::floor(t / 1000.0)), year, month, day, hour,
                           minute, second);
    return {Format("%04d-%02d-%02d", year, month, day),
            seconds ? Format("%02d:%02d:%02d", hour, minute, second)
                    : Format("%02d:%02d", hour, minute)};
}

void HeightAxis(CDC& dc, const Scale& s) {
    const double step = Double125((s.h1 - s.h0) / 5);
    const double first = std::ceil(s.h0 / step);
    const double last = std::floor(s.h1 / step);
    if (!(last - first < kMaxTicks)) return;
    const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
    dc.SetTextAlign(TA_RIGHT | TA_BASELINE);
    for (double k = first; k <= last; ++k) {
        const int y = s.Y(k * step);
        dc.SetPen(1, kGrid);
        dc.MoveTo(s.frame.left + 1, y);
        dc.LineTo(s.frame.right - 1, y);
        dc.SetPen(1, kInk);
        dc.MoveTo(s.frame.left - 4, y);
        dc.LineTo(s.frame.left, y);
        // + 0.0 turns the -0 of a tick just below zero into 0.
        dc.TextOut(s.frame.left - 7, y + kFontSize / 3, FormatDouble(k * step + 0.0, decimals, 0));
    }
}

void TimeAxis(CDC& dc, const Scale& s) {
    const double stepSeconds = TimeInterval((s.t1 - s.t0) / 1000.0 / 6);
    const double step = stepSeconds * 1000.0;
    const double first = std::ceil(s.t0 / step);
    const double last = std::floor(s.t1 / step);
    if (!(step > 0) || !(last - first < kMaxTicks)) return;
    dc.SetTextAlign(TA_CENTER | TA_TOP);
    std::string shownDate;
    for (double k = first; k <= last; ++k) {
        const double t = k * step;
        const int x = s.X(t);
        dc.SetPen(1, kGrid);
        dc.MoveTo(x, s.frame.top + 1);
        dc.LineTo(x, s.frame.bottom - 1);
        dc.SetPen(1, kInk);
        dc.MoveTo(x, s.frame.bottom);
        dc.LineTo(x, s.frame.bottom + 4);
        const auto [date, time] = UtcLabel(t, stepSeconds < 60);
        dc.TextOut(x, s.frame.bottom + 6, CString(time));
        // The date only where it changes, so the axis stays uncluttered.
        if (date != shownDate) dc.TextOut(x, s.frame.bottom + 6 + kFontSize + 2, CString(date));
        shownDate = date;
    }
}

void Curve(CDC& dc, const TideFile& tide, const Scale& s) {
    dc.SetPen(2, kTideCurveColour);
    std::vector<CPoint> points;
    const auto flush = [&] {
        if (points.size() >= 2) dc.Polyline(points.data(), static_cast<int>(points.size()));
        points.clear();
    };
    for (const auto& pair : tide.GetValues()) {
        if (!Drawable(pair)) {
            flush();
            continue;
        }
        const CPoint p(s.X(pair.first), s.Y(pair.second));
        // Many pairs fall on one pixel in a long series; one of them will do.
        if (points.empty() || points.back() != p) points.push_back(p);
    }
    flush();
}

}  // namespace

CRect TidePlotFrame(const CRect& area) {
    return {area.left + kMarginLeft, area.top + kMarginTop, area.right - kMarginRight,
            area.bottom - kMarginBottom};
}

bool DrawTideCurve(CDC& dc, const TideFile& tide, const CRect& area, const CString& title) {
    Scale s{TidePlotFrame(area), 0, 0, 0, 0};
    if (s.frame.Width() < 10 || s.frame.Height() < 10) return false;
    int drawable = 0;
    for (const auto& pair : tide.GetValues()) {
        if (!Drawable(pair)) continue;
        if (drawable++ == 0) {
            s.t0 = pair.first;
            s.h0 = s.h1 = pair.second;
        }
        s.t1 = pair.first;
        s.h0 = std::min(s.h0, pair.second);
        s.h1 = std::max(s.h1, pair.second);
    }
    if (drawable < 2 || !(s.t1 > s.t0)) return false;
    const double spare = s.h1 > s.h0 ? (s.h1 - s.h0) / 20 : 0.5;
    s.h0 -= spare;
    s.h1 += spare;

    dc.SetFontSize(kFontSize);
    dc.SetTextColor(kInk);
    HeightAxis(dc, s);
    TimeAxis(dc, s);
    dc.SetPen(1, kInk);
    dc.SetNullBrush();
    dc.Rectangle(s.frame.left, s.frame.top, s.frame.right, s.frame.bottom);
    Curve(dc, tide, s);

    dc.SetTextAlign(TA_LEFT | TA_BOTTOM);
    dc.TextOut(area.left + 6, s.frame.top - 6, CString(u"Height"));
    dc.SetTextAlign(TA_CENTER | TA_BOTTOM);
    dc.TextOut((s.frame.left + s.frame.right) / 2, area.bottom - 4, CString(u"Time (UTC)"));
    if (!title.IsEmpty()) {
        dc.SetTextAlign(TA_CENTER | TA_TOP);
        dc.TextOut((s.frame.left + s.frame.right) / 2, area.top + 6, title);
    }
    return true;
}

}  // namespace vex
