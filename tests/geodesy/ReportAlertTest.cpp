#include <base/errors/GenericError.h>
#include <base/geodesy/GeoidModel.h>
#include <base/geodesy/ReportAlert.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace vex {
namespace {

struct CountedError : GenericError {
    explicit CountedError(int& alive) : GenericError(u"counted"), alive(alive) { ++alive; }
    ~CountedError() override { --alive; }
    int& alive;
};

class ReportAlertTest : public ::testing::Test {
  protected:
    void TearDown() override { SetAlertSink({}); }
};

TEST_F(ReportAlertTest, SinkOwnsTheErrorAndItsIdIsReturned) {
    std::vector<std::unique_ptr<Error>> received;
    SetAlertSink([&](std::unique_ptr<Error> error) { received.push_back(std::move(error)); });

    int alive = 0;
    auto error = std::make_unique<CountedError>(alive);
    const unsigned long long id = error->GetID();
    EXPECT_EQ(ReportAlert(std::move(error)), id);
    EXPECT_NE(id, 0u);
    ASSERT_EQ(received.size(), 1u);
    EXPECT_EQ(alive, 1);  // held by the sink, not freed
    EXPECT_EQ(received[0]->GetID(), id);

    // The text form and the model's own entry point go the same way.
    const unsigned long long textId = GeoidModel::ReportAlert(CString(u"Grid file missing"));
    ASSERT_EQ(received.size(), 2u);
    EXPECT_EQ(received[1]->GetID(), textId);
    EXPECT_EQ(received[1]->Format(), CString(u"Grid file missing"));
    received.clear();
    EXPECT_EQ(alive, 0);
}

TEST_F(ReportAlertTest, WithoutSinkTheErrorIsFreedAndZeroReturned) {
    int alive = 0;
    EXPECT_EQ(ReportAlert(std::make_unique<CountedError>(alive)), 0u);
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(ReportAlert(CString(u"nobody listens")), 0u);
    EXPECT_EQ(ReportAlert(std::unique_ptr<Error>()), 0u);

    // Removing a sink with an empty function works the same as never having one.
    SetAlertSink([](std::unique_ptr<Error>) {});
    SetAlertSink({});
    EXPECT_EQ(ReportAlert(std::make_unique<CountedError>(alive)), 0u);
    EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace vex
