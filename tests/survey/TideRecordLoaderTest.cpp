// Loading through a simulated file whose reads fail or whose network share
// drops, with a clock the test moves, so that the reopening rule is
// checked exactly.
#include <base/survey/TideRecordLoader.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <map>
#include <vector>

namespace vex {
namespace {

using ReadResult = detail::TideRecordSource::ReadResult;

constexpr int kRecords = 20000;  // several reads of the loader's buffer

class SimulatedSource final : public detail::TideRecordSource {
  public:
    // Records at 100000 * (i + 1) with value i.
    SimulatedSource() {
        for (int i = 0; i < kRecords; ++i) {
            for (const double d : {100000.0 * (i + 1), static_cast<double>(i)}) {
                const auto bits = std::bit_cast<std::uint64_t>(d);
                for (int b = 0; b < 8; ++b)
                    bytes_.push_back(static_cast<std::uint8_t>(bits >> (8 * b)));
            }
        }
    }

    // What the reads numbered 0, 1, ... answer instead of data, and the
    // clock at each of them.
    std::map<int, ReadResult> failures;
    std::map<int, double> clock;
    bool reopenWorks = true;
    std::vector<std::uint64_t> reopenedAt;

    ReadResult Read(void* buffer, std::size_t size, std::size_t& count) override {
        now_ = clock.count(reads_) ? clock[reads_] : now_;
        const auto failure = failures.find(reads_++);
        count = 0;
        if (failure != failures.end()) {
            position_ = 0;  // where a failed handle stands is anyone's guess
            return failure->second;
        }
        count = std::min(size, bytes_.size() - position_);
        std::memcpy(buffer, bytes_.data() + position_, count);
        position_ += count;
        return ReadResult::ok;
    }
    bool Reopen(std::uint64_t offset) override {
        reopenedAt.push_back(offset);
        position_ = static_cast<std::size_t>(offset);
        return reopenWorks;
    }
    double NowMs() override { return now_; }

  private:
    std::vector<std::uint8_t> bytes_;
    std::size_t position_ = 0;
    int reads_ = 0;
    double now_ = 1e6;
};

// The loaded series is records 0 .. count-1, whole and in place.
void ExpectFirstRecords(const std::map<double, double>& values, int count) {
    ASSERT_EQ(static_cast<int>(values.size()), count);
    int i = 0;
    for (const auto& [time, value] : values) {
        ASSERT_EQ(time, 100000.0 * (i + 1));
        ASSERT_EQ(value, i);
        ++i;
    }
}

TEST(TideRecordLoader, FailuresEndTheLoadAndNetworkDropsReopenOncePerFifteenSeconds) {
    constexpr auto failed = ReadResult::failed;
    constexpr auto dropped = ReadResult::networkDropped;
    const struct {
        const char* what;
        std::map<int, ReadResult> failures;  // by the number of the read
        double secondDropAtMs;               // the clock at read 3; 1e6 before
        bool reopenWorks;
        std::size_t reopenings;
        bool complete;
    } cases[] = {
        {"a failed read ends the load", {{1, failed}}, 1e6, true, 0, false},
        {"a drop reopens and goes on", {{2, dropped}}, 1e6, true, 1, true},
        {"a drop 14.999 s after the last ends",
         {{1, dropped}, {3, dropped}},
         1e6 + 14999,
         true,
         1,
         false},
        {"a drop 15 s after the last reopens",
         {{1, dropped}, {3, dropped}},
         1e6 + 15000,
         true,
         2,
         true},
        {"a reopening that fails ends the load", {{1, dropped}}, 1e6, false, 1, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        SimulatedSource source;
        source.failures = c.failures;
        source.reopenWorks = c.reopenWorks;
        source.clock[3] = c.secondDropAtMs;
        std::map<double, double> values;
        detail::LoadTideRecords(source, values);
        EXPECT_EQ(source.reopenedAt.size(), c.reopenings);
        for (const auto offset : source.reopenedAt)
            EXPECT_EQ(offset % 16, 0u) << "reopened inside a record";
        ASSERT_FALSE(values.empty());
        if (c.complete)
            EXPECT_EQ(static_cast<int>(values.size()), kRecords);
        else
            EXPECT_LT(static_cast<int>(values.size()), kRecords);
        ExpectFirstRecords(values, static_cast<int>(values.size()));
    }
}

}  // namespace
}  // namespace vex
