// The cost of reading the suite's clock: CExTime::GetCurTime against the
// bare counter it is built on and against std::chrono::system_clock::now(),
// alone and while the synchronisation worker refits the coefficients every
// 100 ms. GetCurTime must cost no more than system_clock::now().
#include <base/platform/Clock.h>
#include <base/time/ExTime.h>
#include <base/time/ExTimeSync.h>
#include <base/time/TimeMq.h>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

void CounterOnly(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(vex::platform::CounterNow());
}
BENCHMARK(CounterOnly);

void SystemClockNow(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(std::chrono::system_clock::now());
}
BENCHMARK(SystemClockNow);

// The same with the worker running, as the peer of GetCurTimeSynchronised.
void SystemClockNowSynchronised(benchmark::State& state) {
    if (state.thread_index() == 0) vex::CExTime clock;
    for (auto _ : state)
        benchmark::DoNotOptimize(std::chrono::system_clock::now());
}
BENCHMARK(SystemClockNowSynchronised)->Threads(1)->Threads(2)->UseRealTime();

void GetCurTime(benchmark::State& state) {
    vex::CExTime::GetCurTime();  // the first call takes the base and pauses 5 ms
    for (auto _ : state)
        benchmark::DoNotOptimize(vex::CExTime::GetCurTime());
}
BENCHMARK(GetCurTime);

// With the worker running; with two threads the lock is shared.
void GetCurTimeSynchronised(benchmark::State& state) {
    if (state.thread_index() == 0) vex::CExTime clock;
    for (auto _ : state)
        benchmark::DoNotOptimize(vex::CExTime::GetCurTime());
}
BENCHMARK(GetCurTimeSynchronised)->Threads(1)->Threads(2)->UseRealTime();

void TimeToMq(benchmark::State& state) {
    double t = 1795350896789.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vex::TimeToMq(t));
        t += 1.0;
    }
}
BENCHMARK(TimeToMq);

}  // namespace
