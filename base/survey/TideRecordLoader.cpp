#include <base/survey/TideRecordLoader.h>

#include <array>
#include <bit>
#include <cstring>
#include <limits>

#include <base/framework/LittleEndian.h>

namespace vex::detail {

namespace {

constexpr std::size_t kRecordBytes = 16;
// 4096 records a read: large enough that the system calls cost nothing
// beside the map, small enough to stay in the cache.
constexpr std::size_t kRecordsPerRead = 4096;

double DoubleAt(const std::byte* bytes) {
    if constexpr (std::endian::native == std::endian::little) {
        double value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    } else {
        return FromLittleEndian<double>(std::span<const std::byte, 8>(bytes, 8));
    }
}

}  // namespace

TideRecordSource::~TideRecordSource() = default;

void LoadTideRecords(TideRecordSource& source, std::map<double, double>& values) {
    std::array<std::byte, kRecordBytes * kRecordsPerRead> buffer;
    double lastKept = 0.0;
    double lastReopen = -std::numeric_limits<double>::infinity();
    std::uint64_t offset = 0;
    for (;;) {
        std::size_t count = 0;
        const auto result = source.Read(buffer.data(), buffer.size(), count);
        if (result == TideRecordSource::ReadResult::networkDropped) {
            const double now = source.NowMs();
            if (now - lastReopen < kTideReopenIntervalMs) return;
            lastReopen = now;
            if (!source.Reopen(offset)) return;
            continue;
        }
        if (result != TideRecordSource::ReadResult::ok) return;
        const std::size_t records = count / kRecordBytes;
        for (std::size_t i = 0; i < records; ++i) {
            const std::byte* record = buffer.data() + i * kRecordBytes;
            const double time = DoubleAt(record);
            // Written as a difference so that a NaN time (and anything after
            // +infinity) fails the test and is skipped.
            if (!(time - lastKept >= kTideLoadSpacing)) continue;
            values.insert_or_assign(values.end(), time, DoubleAt(record + 8));
            lastKept = time;
        }
        if (count < buffer.size()) return;  // the end, or a partial record before it
        offset += count;
    }
}

}  // namespace vex::detail
