// Point at a chainage on a line of 1,000,000 points: LineData::DataPoint
// against std::lower_bound and the interpolation written out here.
#include <base/survey/LineData.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kPoints = 1'000'000;
constexpr std::size_t kQueries = 1 << 20;

class BenchLine : public vex::LineData {
  public:
    BenchLine() {
        auto& points = Points();
        points.reserve(kPoints);
        for (std::size_t i = 0; i < kPoints; ++i) {
            const double c = 1.0 + 0.5 * static_cast<double>(i);
            points.push_back({c * 0.6, c * 0.8, -10.0 - 0.001 * c, c, i == 0});
        }
        LoadLineData(u"", u"", nullptr);
    }
};

const BenchLine& Line() {
    static const BenchLine line;
    return line;
}

const std::vector<double>& Queries() {
    static const std::vector<double> queries = [] {
        std::mt19937_64 random(42);
        std::uniform_real_distribution<double> chainage(1.0, 0.5 * kPoints);
        std::vector<double> q(kQueries);
        for (double& c : q) {
            c = chainage(random);
        }
        return q;
    }();
    return queries;
}

void BM_DataPoint(benchmark::State& state) {
    const vex::LineData& line = Line();
    const auto& queries = Queries();
    std::size_t i = 0;
    vex::ProfilePoint p;
    for (auto _ : state) {
        benchmark::DoNotOptimize(line.DataPoint(queries[i++ & (kQueries - 1)], p));
        benchmark::DoNotOptimize(p);
    }
}
BENCHMARK(BM_DataPoint);

void BM_LowerBoundInline(benchmark::State& state) {
    const std::vector<vex::ProfilePoint>& points = Line().GetPoints();
    const auto& queries = Queries();
    std::size_t i = 0;
    vex::ProfilePoint p;
    for (auto _ : state) {
        const double c = queries[i++ & (kQueries - 1)];
        const auto found = std::lower_bound(
            points.begin(), points.end(), c,
            [](const vex::ProfilePoint& q, double value) { return q.chainage < value; });
        bool ok = found != points.begin() && found != points.end();
        if (ok) {
            const vex::ProfilePoint& a = found[-1];
            const vex::ProfilePoint& b = *found;
            const double t = (c - a.chainage) / (b.chainage - a.chainage);
            p = {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y), a.z + t * (b.z - a.z), c, false};
        }
        benchmark::DoNotOptimize(ok);
        benchmark::DoNotOptimize(p);
    }
}
BENCHMARK(BM_LowerBoundInline);

}  // namespace
