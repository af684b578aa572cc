// Checksums: CRCChecksum over 64 MB of narrow text against zlib's crc32 on
// the same buffer (target: at least as fast), the portable table path for
// reference, and Compute8BitCRC over 64 KB held in cache (target: 8 GB/s).
#include <base/config/CRCChecksum.h>

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstddef>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kLarge = 64u * 1024u * 1024u;
constexpr std::size_t kCached = 64u * 1024u;

// Printable text without zeros, ended by one, so that it feeds as a C string.
const std::vector<char>& Text() {
    static const std::vector<char> text = [] {
        std::vector<char> bytes(kLarge + 1);
        std::mt19937 random(3);
        for (std::size_t i = 0; i < kLarge; ++i)
            bytes[i] = static_cast<char>(' ' + random() % 95);
        bytes[kLarge] = '\0';
        return bytes;
    }();
    return text;
}

void CrcChecksumText(benchmark::State& state) {
    const char* text = Text().data();
    for (auto _ : state) {
        vex::CRCChecksum crc;
        crc += text;
        benchmark::DoNotOptimize(crc.Value());
    }
    state.SetBytesProcessed(static_cast<long long>(state.iterations()) * kLarge);
    state.SetLabel(vex::detail::Crc32IsAccelerated() ? "carry-less multiplication" : "tables");
}
BENCHMARK(CrcChecksumText)->Unit(benchmark::kMillisecond);

void CrcChecksumBytes(benchmark::State& state) {
    const char* text = Text().data();
    for (auto _ : state) {
        vex::CRCChecksum crc;
        crc.Add(text, kLarge);
        benchmark::DoNotOptimize(crc.Value());
    }
    state.SetBytesProcessed(static_cast<long long>(state.iterations()) * kLarge);
}
BENCHMARK(CrcChecksumBytes)->Unit(benchmark::kMillisecond);

void CrcTablePath(benchmark::State& state) {
    const char* text = Text().data();
    for (auto _ : state)
        benchmark::DoNotOptimize(vex::detail::Crc32Update(0xFFFFFFFFu, text, kLarge, false));
    state.SetBytesProcessed(static_cast<long long>(state.iterations()) * kLarge);
}
BENCHMARK(CrcTablePath)->Unit(benchmark::kMillisecond);

void ZlibCrc32(benchmark::State& state) {
    const auto* text = reinterpret_cast<const Bytef*>(Text().data());
    for (auto _ : state)
        benchmark::DoNotOptimize(crc32(0L, text, static_cast<uInt>(kLarge)));
    state.SetBytesProcessed(static_cast<long long>(state.iterations()) * kLarge);
}
BENCHMARK(ZlibCrc32)->Unit(benchmark::kMillisecond);

void EightBitOrInCache(benchmark::State& state) {
    std::vector<unsigned char> bytes(kCached, 0);
    bytes[kCached / 2] = 0x10;
    for (auto _ : state) {
        benchmark::DoNotOptimize(bytes.data());
        benchmark::DoNotOptimize(vex::Compute8BitCRC(bytes.data(), bytes.data() + bytes.size()));
    }
    state.SetBytesProcessed(static_cast<long long>(state.iterations()) * kCached);
}
BENCHMARK(EightBitOrInCache);

}  // namespace
