// TemporaryName.h - internal: names of temporary files beside a target,
// shared by the POSIX and Windows file-system code. Not installed.
#pragma once

#include <atomic>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace vex::platform::detail {

// target + ".~" + 16 hex digits + ".tmp". The digits mix the process id,
// a per-process random seed and a counter, so that two processes (or two
// threads) saving the same file at once pick different names.
inline std::u16string TemporaryNameFor(std::u16string_view target, std::uint64_t processId) {
    static const std::uint64_t seed = [] {
        std::random_device device;
        return (static_cast<std::uint64_t>(device()) << 32) ^ device();
    }();
    static std::atomic<std::uint64_t> counter{0};
    // splitmix64 finaliser: neighbouring counter values give unrelated names.
    std::uint64_t x = seed ^ (processId << 40) ^ counter.fetch_add(1, std::memory_order_relaxed);
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ULL;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBULL;
    x ^= x >> 31;

    std::u16string name(target);
    name += u".~";
    for (int shift = 60; shift >= 0; shift -= 4) {
        name += u"0123456789abcdef"[(x >> shift) & 0xF];
    }
    name += u".tmp";
    return name;
}

}  // namespace vex::platform::detail
