// Drawing a colour table as a labelled colour bar.
#include <base/colour/ColorLegend.h>

#include <base/strings/NumberFormat.h>
#include <base/strings/Precision.h>

#include <algorithm>

namespace vex {
namespace {

constexpr int kMargin = 6;
constexpr int kTick = 5;

CString ValueLabel(double value, const ColorLegendStyle& style) {
    const int decimals = style.decimals >= 0 ? style.decimals : GetDoublePrecision(value);
    // A value a few units in the last place off a round number still reads
    // as the round number; no label needs more than six decimals.
    return FormatDouble(value, std::min(decimals, 6), 0);
}

}  // namespace

bool DrawColorLegend(CDC& dc, const ColorTable& table, const CRect& area,
                     const ColorLegendStyle& style) {
    const int fontSize = std::max(style.fontSize, 1);
    const int barWidth = std::max(style.barWidth, 1);
    const int titleHeight = style.title.IsEmpty() ? 0 : fontSize + kMargin;
    const long left = area.left + kMargin;
    const long top = area.top + kMargin + titleHeight;
    const long bottom = area.bottom - kMargin;
    const long height = bottom - top;
    const int bands = table.NumEntries() + 1;
    if (area.Width() < 2 * kMargin + barWidth || height < fontSize) return false;

    // Band b (0 = LowColor) runs from edge(b + 1) up to edge(b), y down.
    const auto edge = [&](int b) {
        return static_cast<int>(bottom - static_cast<long long>(height) * b / bands);
    };
    const int right = static_cast<int>(left) + barWidth;
    dc.SetNullPen();
    // Each band reaches one row into the next, which the next band paints
    // over: renderers that smooth edges leave no pale seam between them.
    for (int b = 0; b < bands; ++b) {
        dc.SetBrush(b == 0 ? table.LowColor() : table.EntryColor(b - 1));
        const int bandTop = b + 1 < bands ? edge(b + 1) - 1 : edge(b + 1);
        dc.Rectangle(static_cast<int>(left), bandTop, right, edge(b));
    }
    dc.SetPen(1, style.frameColor);
    dc.SetNullBrush();
    dc.Rectangle(static_cast<int>(left), static_cast<int>(top), right, static_cast<int>(bottom));

    dc.SetTextColor(style.textColor);
    dc.SetFontSize(fontSize);
    if (titleHeight > 0) {
        dc.SetTextAlign(TA_LEFT | TA_TOP);
        dc.TextOut(static_cast<int>(left), static_cast<int>(area.top + kMargin), style.title);
    }
    // Boundary i (between band i and band i + 1) carries entry i's value.
    // Labels need a line of text each, so thin bands are labelled sparsely.
    const double bandHeight = static_cast<double>(height) / bands;
    const int every = std::max(1, static_cast<int>((fontSize + 2) / bandHeight) + 1);
    dc.SetTextAlign(TA_LEFT | TA_BASELINE);
    for (int i = 0; i < table.NumEntries(); i += every) {
        const int y = edge(i + 1);
        dc.MoveTo(right, y);
        dc.LineTo(right + kTick, y);
        CString label = ValueLabel(table.EntryValue(i), style);
        const CString name = table.EntryName(i);
        if (!name.IsEmpty()) label += CString(u"  ") + name;
        // The baseline a third of the text below the tick centres the digits on it.
        dc.TextOut(right + kTick + 3, y + fontSize / 3, label);
    }
    if (!table.LowColorName().IsEmpty()) {
        dc.TextOut(right + kTick + 3, (edge(0) + edge(1)) / 2 + fontSize / 3, table.LowColorName());
    }
    return true;
}

}  // namespace vex
