// vex draw: a picture of points, lines and arcs given in world coordinates,
// with the crossings and the extents the library computes for them.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "InputFile.h"

#include <base/framework/FileStream.h>
#include <base/framework/Format.h>
#include <base/framework/SvgDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geometry/Curve.h>
#include <base/geometry/Extents3D.h>
#include <base/geometry/Intersections.h>
#include <base/geometry/Line.h>
#include <base/geometry/Point.h>

#include <charconv>
#include <cmath>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vextool {
namespace {

constexpr char kFormatHelp[] =
    "Input: one item a line, world coordinates (x east, y north); '#' starts a comment.\n"
    "  point X Y                 a cross\n"
    "  line X1 Y1 X2 Y2 [label]  a segment, with an optional label\n"
    "  arc CX CY R START END     an arc of radius R about (CX, CY) from bearing START to\n"
    "                            END (degrees clockwise from north); R < 0 turns\n"
    "                            anticlockwise; 0 360 is the full circle\n"
    "The view fits all items; crossings of lines and arcs are ringed and the\n"
    "extents drawn as a grey box.\n"
    "Example: vex draw samples/geometry.txt -o geometry.svg --width 800 --height 600";

struct DrawOptions {
    std::string input;
    std::string output;
    int width = 800;
    int height = 600;
    bool noIntersections = false;
    bool noExtents = false;
};

struct LabelledLine {
    vex::Line line;
    vex::CString label;
};

struct Drawing {
    std::vector<vex::Point> points;
    std::vector<LabelledLine> lines;
    std::vector<vex::Curve> arcs;
};

// The next blank-separated word of `rest`, which loses it.
std::string_view NextWord(std::string_view& rest) {
    const std::size_t begin = rest.find_first_not_of(" \t");
    if (begin == std::string_view::npos) {
        rest = {};
        return {};
    }
    rest.remove_prefix(begin);
    const std::size_t end = std::min(rest.find_first_of(" \t"), rest.size());
    const std::string_view word = rest.substr(0, end);
    rest.remove_prefix(end);
    return word;
}

// Reads `count` finite numbers; the error names the first that is not one.
bool ReadNumbers(std::string_view& rest, double* values, int count, std::string& error) {
    for (int i = 0; i < count; ++i) {
        const std::string_view word = NextWord(rest);
        if (word.empty()) {
            error = "too few numbers";
            return false;
        }
        const auto result = std::from_chars(word.data(), word.data() + word.size(), values[i]);
        if (result.ec != std::errc() || result.ptr != word.data() + word.size() ||
            !std::isfinite(values[i])) {
            error = "not a number: \"" + std::string(word) + "\"";
            return false;
        }
    }
    return true;
}

bool ParseLine(std::string_view text, Drawing& drawing, std::string& error) {
    if (const std::size_t hash = text.find('#'); hash != std::string_view::npos)
        text = text.substr(0, hash);
    std::string_view rest = text;
    const std::string_view kind = NextWord(rest);
    double v[5] = {};
    if (kind.empty()) return true;
    if (kind == "point") {
        if (!ReadNumbers(rest, v, 2, error)) return false;
        drawing.points.emplace_back(v[0], v[1]);
    } else if (kind == "line") {
        if (!ReadNumbers(rest, v, 4, error)) return false;
        const std::size_t begin = rest.find_first_not_of(" \t");
        const std::size_t end = rest.find_last_not_of(" \t");
        const std::string_view label = begin == std::string_view::npos
                                           ? std::string_view()
                                           : rest.substr(begin, end - begin + 1);
        drawing.lines.push_back({vex::Line(vex::Point(v[0], v[1]), vex::Point(v[2], v[3])),
                                 vex::CString::FromUtf8(std::string(label))});
        return true;
    } else if (kind == "arc") {
        if (!ReadNumbers(rest, v, 5, error)) return false;
        drawing.arcs.emplace_back(vex::Point(v[0], v[1]), v[2], v[3], v[4]);
    } else {
        error = "unknown item \"" + std::string(kind) + "\" (point, line or arc)";
        return false;
    }
    if (!NextWord(rest).empty()) {
        error = "too many numbers";
        return false;
    }
    return true;
}

vex::Extents3D ExtentsOf(const Drawing& drawing) {
    vex::Extents3D box;
    for (const vex::Point& p : drawing.points)
        box.Grow(p.x, p.y, 0.0);
    for (const LabelledLine& l : drawing.lines) {
        box.Grow(l.line.start.x, l.line.start.y, 0.0);
        box.Grow(l.line.end.x, l.line.end.y, 0.0);
    }
    for (const vex::Curve& arc : drawing.arcs) {
        const vex::Extents3D e = arc.GetExtents();
        box.Grow(e.xmin, e.ymin, 0.0);
        box.Grow(e.xmax, e.ymax, 0.0);
    }
    return box;
}

// Every point where two of the items meet on both of them.
std::vector<vex::Point> Crossings(const Drawing& drawing) {
    std::vector<vex::Point> found;
    const auto& lines = drawing.lines;
    const auto& arcs = drawing.arcs;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t j = i + 1; j < lines.size(); ++j) {
            vex::Point p;
            long where = 0;
            if (vex::Intersect(lines[i].line, lines[j].line, p, where) && where == 3)
                found.push_back(p);
        }
        for (const vex::Curve& arc : arcs) {
            vex::Point p[2];
            long where[2] = {};
            const long n = vex::Intersect(lines[i].line, arc, p, where);
            for (long k = 0; k < n; ++k)
                if (where[k] == 3) found.push_back(p[k]);
        }
    }
    for (std::size_t i = 0; i < arcs.size(); ++i) {
        for (std::size_t j = i + 1; j < arcs.size(); ++j) {
            vex::Point p[2];
            const long n = vex::Intersect(arcs[i], arcs[j], p);
            for (long k = 0; k < n; ++k)
                found.push_back(p[k]);
        }
    }
    return found;
}

int RunDraw(const DrawOptions& o) {
    std::string content;
    if (auto failed = ReadInputFile(o.input, content)) return *failed;
    Drawing drawing;
    std::size_t lineNumber = 0;
    for (std::size_t begin = 0; begin < content.size();) {
        std::size_t end = content.find('\n', begin);
        if (end == std::string::npos) end = content.size();
        std::string_view text(content.data() + begin, end - begin);
        if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
        ++lineNumber;
        std::string error;
        if (!ParseLine(text, drawing, error)) {
            return Fail(kInputOutput, o.input, "line " + std::to_string(lineNumber) + ": " + error);
        }
        begin = end + 1;
    }
    const vex::Extents3D box = ExtentsOf(drawing);
    if (box.xmin > box.xmax) return Fail(kInputOutput, o.input, "holds nothing to draw");

    vex::CoordinateSystem view;
    view.SetPixelWindow(0, 0, o.width, o.height);
    // A little room round the items, so that marks at the edges show whole.
    const vex::Page area(box.xmin, box.ymin, box.xmax, box.ymax);
    if (!view.CenterWorldAreaOnPixelWindow(area, 0.92) || !view.IsScaleValid()) {
        return Fail(kInputOutput, o.input, "extents too large or too small to draw");
    }

    vex::SvgDC dc(o.width, o.height);
    if (!o.noExtents) {
        dc.SetPen(1, vex::RGB(170, 170, 170));
        const vex::Point corners[5] = {{box.xmin, box.ymin},
                                       {box.xmax, box.ymin},
                                       {box.xmax, box.ymax},
                                       {box.xmin, box.ymax},
                                       {box.xmin, box.ymin}};
        for (int i = 0; i < 4; ++i)
            vex::Line(corners[i], corners[i + 1]).DrawLine(view, dc);
    }
    dc.SetFontSize(12);
    dc.SetTextColor(vex::RGB(0, 0, 160));
    dc.SetPen(2, vex::RGB(0, 0, 160));
    for (const LabelledLine& l : drawing.lines) {
        if (l.label.IsEmpty()) {
            l.line.DrawLine(view, dc);
        } else {
            l.line.AnnotateLine(view, dc, l.label);
        }
    }
    dc.SetPen(2, vex::RGB(0, 140, 0));
    for (const vex::Curve& arc : drawing.arcs)
        arc.DrawCurve(view, dc);
    dc.SetPen(2, vex::RGB(220, 0, 0));
    for (const vex::Point& p : drawing.points)
        p.DrawCross(view, dc, 5);
    std::size_t crossings = 0;
    if (!o.noIntersections) {
        dc.SetPen(2, vex::RGB(200, 0, 200));
        for (const vex::Point& p : Crossings(drawing)) {
            p.DrawSymbol(view, dc, vex::SYMBOL_CIRCLE, 5);
            ++crossings;
        }
    }
    if (!dc.Save(vex::CString::FromUtf8(o.output)))
        return Fail(kInputOutput, o.output, "cannot be written");

    const vex::Page& world = view.GetWorldWindow();
    PrintLine(std::to_string(drawing.points.size()) + " points, " +
              std::to_string(drawing.lines.size()) + " lines, " +
              std::to_string(drawing.arcs.size()) + " arcs, " + std::to_string(crossings) +
              " crossings");
    PrintLine(vex::Format("world %.3f %.3f %.3f %.3f on %d x %d pixels: %s", world.x1, world.y1,
                          world.x2, world.y2, o.width, o.height, o.output.c_str()));
    return kSuccess;
}

}  // namespace

void AddDrawCommand(CLI::App& app, Action& run) {
    auto o = std::make_shared<DrawOptions>();
    CLI::App* cmd =
        app.add_subcommand("draw", "Draw points, lines and arcs of a text file into an SVG");
    cmd->add_option("input", o->input, "text file of items (see below)")->required();
    cmd->add_option("-o,--output", o->output, "SVG file to write")->required();
    cmd->add_option("--width", o->width, "picture width, pixels")
        ->check(CLI::Range(16, 20000))
        ->capture_default_str();
    cmd->add_option("--height", o->height, "picture height, pixels")
        ->check(CLI::Range(16, 20000))
        ->capture_default_str();
    cmd->add_flag("--no-intersections", o->noIntersections, "do not ring the crossings");
    cmd->add_flag("--no-extents", o->noExtents, "do not draw the box of the extents");
    cmd->footer(kFormatHelp);
    cmd->callback([o, &run] { run = [o] { return RunDraw(*o); }; });
}

}  // namespace vextool
