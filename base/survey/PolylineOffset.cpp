#include <base/survey/PolylineOffset.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace vex::detail {
namespace {

// Edges shorter than this (plan metres) have no usable direction.
constexpr double kMinEdge = 1e-9;
// How far back loop removal looks for a crossing, in edges of the result.
constexpr std::size_t kLoopWindow = 512;

struct Vertex {
    double x;
    double y;
    double z;
    double chainage;
};

double Distance(double ax, double ay, double bx, double by) {
    return std::hypot(bx - ax, by - ay);
}

// Where segment p1-p2 crosses segment p3-p4: the parameters along each, both
// within [0, 1]. Parallel segments never cross here.
bool Cross(const Vertex& p1, const Vertex& p2, const Vertex& p3, const Vertex& p4, double& s,
           double& t) {
    const double ax = p2.x - p1.x, ay = p2.y - p1.y;
    const double bx = p4.x - p3.x, by = p4.y - p3.y;
    const double denominator = ax * by - ay * bx;
    if (denominator == 0.0 || !std::isfinite(denominator)) {
        return false;
    }
    const double cx = p3.x - p1.x, cy = p3.y - p1.y;
    s = (cx * by - cy * bx) / denominator;
    t = (cx * ay - cy * ax) / denominator;
    return s >= 0.0 && s <= 1.0 && t >= 0.0 && t <= 1.0;
}

double DistanceToEdge(double px, double py, const Vertex& a, const Vertex& b) {
    const double ex = b.x - a.x, ey = b.y - a.y;
    const double length2 = ex * ex + ey * ey;
    double t = length2 > 0.0 ? ((px - a.x) * ex + (py - a.y) * ey) / length2 : 0.0;
    t = std::clamp(t, 0.0, 1.0);
    return Distance(px, py, a.x + t * ex, a.y + t * ey);
}

// Source edges bucketed on a square grid, so that "is this point nearer than
// the offset to the line?" looks at a few edges, not all of them.
class EdgeGrid {
  public:
    EdgeGrid(const std::vector<Vertex>& line, double reach) : line_(line) {
        double length = 0.0;
        for (std::size_t i = 1; i < line.size(); ++i) {
            length += Distance(line[i - 1].x, line[i - 1].y, line[i].x, line[i].y);
        }
        // Cells of at least twice the reach, and at most some 200,000 samples
        // along the line, whatever the offset.
        cell_ = std::max(2.0 * reach, length / 200000.0);
        const double step = cell_ / 2.0;
        for (std::size_t i = 1; i < line.size(); ++i) {
            const Vertex& a = line[i - 1];
            const Vertex& b = line[i];
            const double edge = Distance(a.x, a.y, b.x, b.y);
            const auto samples = static_cast<std::size_t>(edge / step) + 1;
            for (std::size_t k = 0; k <= samples; ++k) {
                const double t = static_cast<double>(k) / static_cast<double>(samples);
                Add(Key(a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)),
                    static_cast<std::uint32_t>(i - 1));
            }
        }
    }

    // The smallest distance from the point to an edge whose samples lie in
    // the point's cell or the eight around it (all edges within the reach).
    double Nearest(double x, double y) const {
        double best = INFINITY;
        const auto [cx, cy] = Cell(x, y);
        for (std::int64_t dy = -1; dy <= 1; ++dy) {
            for (std::int64_t dx = -1; dx <= 1; ++dx) {
                const auto found = cells_.find(Pack(cx + dx, cy + dy));
                if (found == cells_.end()) {
                    continue;
                }
                for (std::uint32_t e : found->second) {
                    best = std::min(best, DistanceToEdge(x, y, line_[e], line_[e + 1]));
                }
            }
        }
        return best;
    }

  private:
    std::pair<std::int64_t, std::int64_t> Cell(double x, double y) const {
        return {static_cast<std::int64_t>(std::floor(x / cell_)),
                static_cast<std::int64_t>(std::floor(y / cell_))};
    }
    static std::uint64_t Pack(std::int64_t cx, std::int64_t cy) {
        return (static_cast<std::uint64_t>(cx) << 32) ^ static_cast<std::uint32_t>(cy);
    }
    std::uint64_t Key(double x, double y) const {
        const auto [cx, cy] = Cell(x, y);
        return Pack(cx, cy);
    }
    void Add(std::uint64_t key, std::uint32_t edge) {
        auto& edges = cells_[key];
        if (edges.empty() || edges.back() != edge) {
            edges.push_back(edge);
        }
    }

    const std::vector<Vertex>& line_;
    double cell_ = 1.0;
    std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> cells_;
};

// The moved edges joined: at an inner corner the two ends that cross, at an
// outer corner the two ends of the bevel.
std::vector<Vertex> MovedEdges(const std::vector<Vertex>& line, double offset) {
    const std::size_t edges = line.size() - 1;
    std::vector<double> nx(edges), ny(edges);
    for (std::size_t i = 0; i < edges; ++i) {
        const double length = Distance(line[i].x, line[i].y, line[i + 1].x, line[i + 1].y);
        // The right-hand normal of the direction of travel.
        nx[i] = (line[i + 1].y - line[i].y) / length;
        ny[i] = -(line[i + 1].x - line[i].x) / length;
    }
    std::vector<Vertex> moved;
    moved.reserve(2 * line.size());
    auto add = [&](const Vertex& v, std::size_t edge) {
        moved.push_back({v.x + offset * nx[edge], v.y + offset * ny[edge], v.z, v.chainage});
    };
    add(line.front(), 0);
    for (std::size_t i = 1; i < edges; ++i) {
        add(line[i], i - 1);
        if (nx[i] != nx[i - 1] || ny[i] != ny[i - 1]) {
            add(line[i], i);
        }
    }
    add(line.back(), edges - 1);
    return moved;
}

// Cuts out the loops of the moved line: where a new edge crosses an earlier
// one, the points between are replaced by the crossing. The crossing takes
// the mean height and chainage of the first and last point it replaces, so
// the corner of a simple inner bend keeps its own.
std::vector<Vertex> WithoutLoops(const std::vector<Vertex>& moved) {
    std::vector<Vertex> out;
    out.reserve(moved.size());
    for (const Vertex& next : moved) {
        if (out.size() >= 3) {
            const std::size_t last = out.size() - 1;
            const std::size_t first = last - 1 > kLoopWindow ? last - 1 - kLoopWindow : 0;
            for (std::size_t k = first; k + 2 <= last; ++k) {
                double s = 0.0, t = 0.0;
                if (!Cross(out[k], out[k + 1], out[last], next, s, t)) {
                    continue;
                }
                const Vertex& a = out[last];
                const Vertex crossing{a.x + t * (next.x - a.x), a.y + t * (next.y - a.y),
                                      (out[k + 1].z + a.z) / 2.0,
                                      (out[k + 1].chainage + a.chainage) / 2.0};
                out.resize(k + 1);
                out.push_back(crossing);
                break;
            }
        }
        out.push_back(next);
    }
    return out;
}

}  // namespace

std::vector<ProfilePoint> OffsetSegment(std::span<const ProfilePoint> segment, double offset,
                                        double tolerance) {
    std::vector<ProfilePoint> result;
    if (!std::isfinite(offset)) {
        return result;
    }
    std::vector<Vertex> line;
    line.reserve(segment.size());
    for (const ProfilePoint& p : segment) {
        if (!std::isfinite(p.x) || !std::isfinite(p.y)) {
            continue;
        }
        if (line.empty() || Distance(line.back().x, line.back().y, p.x, p.y) > kMinEdge) {
            line.push_back({p.x, p.y, p.z, p.chainage});
        }
    }
    if (line.size() < 2) {
        return result;
    }
    const std::vector<Vertex> moved = WithoutLoops(MovedEdges(line, offset));
    const double reach = std::abs(offset);
    const EdgeGrid grid(line, reach);
    for (const Vertex& v : moved) {
        // What loop removal could not reach lies nearer than the offset.
        if (grid.Nearest(v.x, v.y) < reach * (1.0 - 1e-9)) {
            continue;
        }
        if (!result.empty() && Distance(result.back().x, result.back().y, v.x, v.y) < tolerance) {
            continue;
        }
        result.push_back({v.x, v.y, v.z, v.chainage, result.empty()});
    }
    return result;
}

}  // namespace vex::detail
