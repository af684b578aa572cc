// vex::Format against the C library's snprintf for the conversions that the
// library's number texts use most: "%.3f" of doubles and "%d" of integers.
#include <base/framework/Format.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

std::vector<double> Depths() {
    std::mt19937_64 rng(42);
    std::uniform_real_distribution<double> depth(-50.0, 12000.0);
    std::vector<double> values(1024);
    for (double& v : values)
        v = depth(rng);
    return values;
}

std::vector<int> Counts() {
    std::mt19937_64 rng(7);
    std::uniform_int_distribution<int> count(-2000000000, 2000000000);
    std::vector<int> values(1024);
    for (int& v : values)
        v = count(rng);
    return values;
}

void FixedVex(benchmark::State& state) {
    const std::vector<double> values = Depths();
    std::size_t i = 0;
    for (auto _ : state) {
        std::string text = vex::Format("%.3f", values[i++ & 1023]);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(FixedVex);

void FixedUtf16Vex(benchmark::State& state) {
    const std::vector<double> values = Depths();
    std::size_t i = 0;
    for (auto _ : state) {
        std::u16string text = vex::Format(u"%.3f", values[i++ & 1023]);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(FixedUtf16Vex);

void FixedSnprintf(benchmark::State& state) {
    const std::vector<double> values = Depths();
    std::size_t i = 0;
    for (auto _ : state) {
        char buffer[64];
        const int n = std::snprintf(buffer, sizeof buffer, "%.3f", values[i++ & 1023]);
        std::string text(buffer, static_cast<std::size_t>(n));
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(FixedSnprintf);

void IntegerVex(benchmark::State& state) {
    const std::vector<int> values = Counts();
    std::size_t i = 0;
    for (auto _ : state) {
        std::string text = vex::Format("%d", values[i++ & 1023]);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(IntegerVex);

void IntegerSnprintf(benchmark::State& state) {
    const std::vector<int> values = Counts();
    std::size_t i = 0;
    for (auto _ : state) {
        char buffer[32];
        const int n = std::snprintf(buffer, sizeof buffer, "%d", values[i++ & 1023]);
        std::string text(buffer, static_cast<std::size_t>(n));
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(IntegerSnprintf);

// A record line as the suite writes them: several conversions at once.
void LineVex(benchmark::State& state) {
    const std::vector<double> values = Depths();
    std::size_t i = 0;
    for (auto _ : state) {
        const double v = values[i++ & 1023];
        std::string text = vex::Format("%f, %f, %d, %lu", v, -v, 3, 4294967295ul);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(LineVex);

void LineSnprintf(benchmark::State& state) {
    const std::vector<double> values = Depths();
    std::size_t i = 0;
    for (auto _ : state) {
        const double v = values[i++ & 1023];
        char buffer[128];
        const int n =
            std::snprintf(buffer, sizeof buffer, "%f, %f, %d, %lu", v, -v, 3, 4294967295ul);
        std::string text(buffer, static_cast<std::size_t>(n));
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(LineSnprintf);

}  // namespace
