// The cost of mapping world points to pixels: CoordinateSystem::WorldToPixel
// against the same arithmetic written inline in the loop, over a million
// points, upright and rotated, and the batch form over spans. The target is
// the two-double form within 2x of the inline loop.
#include <base/geodesy/CoordinateSystem.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kPoints = 1 << 20;

const std::vector<vex::Point>& Cloud() {
    static const std::vector<vex::Point> points = [] {
        std::mt19937 random(7);
        std::uniform_real_distribution<double> east(400000.0, 401000.0);
        std::uniform_real_distribution<double> north(5800000.0, 5801000.0);
        std::vector<vex::Point> p(kPoints);
        for (auto& q : p)
            q = vex::Point(east(random), north(random));
        return p;
    }();
    return points;
}

vex::CoordinateSystem View(bool rotated) {
    vex::CoordinateSystem cs;
    cs.SetSkew(rotated ? 12.0 : 0.0);
    cs.SetRotationMode(rotated ? vex::ROTATION_SKEW : vex::ROTATION_NONE);
    cs.SetPixelWindow(0, 0, 1920, 1080);
    cs.CenterWorldAreaOnPixelWindow(vex::Page(400000, 5800000, 401000, 5801000), 1.0);
    return cs;
}

// The hand-written loop: the view's numbers in locals, the steps of the
// mapping written out.
void Inline(benchmark::State& state) {
    const bool rotated = state.range(0) != 0;
    const vex::CoordinateSystem cs = View(rotated);
    const auto& points = Cloud();
    std::vector<double> px(kPoints), py(kPoints);
    const double wcx = cs.GetWorldCenter().x, wcy = cs.GetWorldCenter().y;
    const double pcx = cs.GetPixelCenter().x, pcy = cs.GetPixelCenter().y;
    const double sx = cs.GetScale().x, sy = cs.GetScale().y;
    const double c = std::cos(cs.GetSkew() * 0.017453292519943);
    const double s = std::sin(cs.GetSkew() * 0.017453292519943);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kPoints; ++i) {
            double dx = points[i].x - wcx;
            double dy = points[i].y - wcy;
            if (rotated) {
                const double t = dx * c + dy * s;
                dy = dy * c - dx * s;
                dx = t;
            }
            px[i] = std::floor(dx * sx + 0.5 + pcx);
            py[i] = std::floor(dy * sy + 0.5 + pcy);
        }
        benchmark::DoNotOptimize(px.data());
        benchmark::DoNotOptimize(py.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<long long>(state.iterations() * kPoints));
}
BENCHMARK(Inline)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void WorldToPixelDoubles(benchmark::State& state) {
    const vex::CoordinateSystem cs = View(state.range(0) != 0);
    const auto& points = Cloud();
    std::vector<double> px(kPoints), py(kPoints);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kPoints; ++i)
            cs.WorldToPixel(points[i].x, points[i].y, px[i], py[i]);
        benchmark::DoNotOptimize(px.data());
        benchmark::DoNotOptimize(py.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<long long>(state.iterations() * kPoints));
}
BENCHMARK(WorldToPixelDoubles)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The integer form point by point (a call into the library each), and the
// batch form over spans.
void WorldToPixelCPoint(benchmark::State& state) {
    const vex::CoordinateSystem cs = View(state.range(0) != 0);
    const auto& points = Cloud();
    std::vector<vex::CPoint> pixels(kPoints);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kPoints; ++i)
            pixels[i] = cs.WorldToPixel(points[i]);
        benchmark::DoNotOptimize(pixels.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<long long>(state.iterations() * kPoints));
}
BENCHMARK(WorldToPixelCPoint)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void WorldToPixelBatch(benchmark::State& state) {
    const vex::CoordinateSystem cs = View(state.range(0) != 0);
    const auto& points = Cloud();
    std::vector<vex::CPoint> pixels(kPoints);
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            cs.WorldToPixel(std::span<const vex::Point>(points), std::span<vex::CPoint>(pixels)));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<long long>(state.iterations() * kPoints));
}
BENCHMARK(WorldToPixelBatch)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
