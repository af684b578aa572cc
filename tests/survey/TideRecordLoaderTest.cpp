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

TEST(TideRecordLoader, AFailedReadEndsTheLoadWithTheRecordsBeforeIt) {
    SimulatedSource source;
    source.failures[1] = ReadResult::failed;
    std::map<double, double> values;
    detail::LoadTideRecords(source, values);
    EXPECT_TRUE(source.reopenedAt.empty());
    ASSERT_FALSE(values.empty());
    EXPECT_LT(static_cast<int>(values.size()), kRecords);
    ExpectFirstRecords(values, static_cast<int>(values.size()));
}

TEST(TideRecordLoader, ANetworkDropReopensAndGoesOnWhereItStopped) {
    SimulatedSource source;
    source.failures[2] = ReadResult::networkDropped;
    std::map<double, double> values;
    detail::LoadTideRecords(source, values);
    ASSERT_EQ(source.reopenedAt.size(), 1u);
    EXPECT_GT(source.reopenedAt[0], 0u);
    EXPECT_EQ(source.reopenedAt[0] % 16, 0u);  // at a record boundary
    ExpectFirstRecords(values, kRecords);
}

TEST(TideRecordLoader, ReopensAtMostOncePerFifteenSeconds) {
    struct Case {
        const char* what;
        double secondDropAtMs;  // the clock at the second drop; the first is at 1e6
        bool reopenWorks;
        std::size_t reopenings;
        bool complete;
    };
    const Case cases[] = {
        {"second drop 14.999 s later ends the load", 1e6 + 14999, true, 1, false},
        {"second drop 15 s later reopens again", 1e6 + 15000, true, 2, true},
        {"a reopening that fails ends the load", 1e6 + 20000, false, 1, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        SimulatedSource source;
        source.reopenWorks = c.reopenWorks;
        source.failures[1] = ReadResult::networkDropped;
        source.failures[3] = ReadResult::networkDropped;
        source.clock[1] = 1e6;
        source.clock[3] = c.secondDropAtMs;
        std::map<double, double> values;
        detail::LoadTideRecords(source, values);
        EXPECT_EQ(source.reopenedAt.size(), c.reopenings);
        if (c.complete) {
            ExpectFirstRecords(values, kRecords);
        } else {
            EXPECT_LT(static_cast<int>(values.size()), kRecords);
            ExpectFirstRecords(values, static_cast<int>(values.size()));
        }
    }
}

}  // namespace
}  // namespace vex
