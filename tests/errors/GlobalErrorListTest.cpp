#include <base/errors/Errors.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace vex {
namespace {

// The list is process-wide: every test starts from an empty, general list.
class GlobalErrorListTest : public ::testing::Test {
  protected:
    void SetUp() override { Reset(); }
    void TearDown() override { Reset(); }
    static void Reset() {
        GlobalErrorList& list = GlobalErrorList::Get();
        list.Clear();
        list.SetContext(u"");
        list.SetLogFileName(u"");
    }
};

class Recorder : public ErrorReporterBase {
  public:
    Recorder(CString name, CString* journal) : m_name(std::move(name)), m_journal(journal) {}
    void Notify(const Error& error) override {
        *m_journal += m_name + u":" + error.Format() + u";";
    }

  private:
    CString m_name;
    CString* m_journal;
};

TEST_F(GlobalErrorListTest, AnEmptyContextFilesUnderGeneral) {
    GlobalErrorList& list = GlobalErrorList::Get();
    EXPECT_FALSE(ReportError(GenericError(u"x"), u""));
    EXPECT_EQ(list.CurrentContext(), CString(u"General"));
    EXPECT_EQ(list.NumErrors(), 1);
    EXPECT_EQ(list.Get(0)->Format(), CString(u"x"));
}

TEST_F(GlobalErrorListTest, ContextsKeepTheirOwnListsAndStaySelected) {
    GlobalErrorList& list = GlobalErrorList::Get();
    ReportError(GenericError(u"a"), u"Tides");
    ReportError(GenericError(u"b"), u"Tides");
    ReportError(GenericError(u"c"), u"Vessel");
    EXPECT_EQ(list.CurrentContext(), CString(u"Vessel"));
    EXPECT_EQ(list.NumErrors(), 1);
    EXPECT_EQ(list.NumErrors(true), 3);

    CString names;
    CString name;
    for (bool more = list.FirstContext(name); more; more = list.NextContext(name))
        names += name + u";";
    EXPECT_NE(names.Find(u"General;"), -1);
    EXPECT_NE(names.Find(u"Tides;"), -1);
    EXPECT_NE(names.Find(u"Vessel;"), -1);

    list.Clear(u"Tides");
    EXPECT_EQ(list.NumErrors(true), 1);
    list.SetContext(u"Vessel");
    EXPECT_EQ(list.Get(1), nullptr);
}

TEST_F(GlobalErrorListTest, ReportersHearEveryErrorInRegistrationOrder) {
    GlobalErrorList& list = GlobalErrorList::Get();
    CString journal;
    auto first = std::make_shared<Recorder>(u"1", &journal);
    auto second = std::make_shared<Recorder>(u"2", &journal);
    list.AddReporter(first);
    list.AddReporter(second);
    ReportError(GenericError(u"a"), u"");
    list.RemoveReporter(first);
    ReportError(GenericError(u"b"), u"");
    list.RemoveReporter(second);
    ReportError(GenericError(u"c"), u"");
    EXPECT_EQ(journal, CString(u"1:a;2:a;2:b;"));
}

TEST_F(GlobalErrorListTest, FindsErrorsByIdAcrossContexts) {
    GlobalErrorList& list = GlobalErrorList::Get();
    const GenericError e(u"find me");
    ReportError(e, u"Elsewhere");
    list.SetContext(u"");
    ASSERT_NE(list.GetErrorWithID(e.GetID()), nullptr);
    EXPECT_EQ(list.GetErrorWithID(e.GetID())->Format(), CString(u"find me"));
    EXPECT_EQ(list.GetErrorWithID(0), nullptr);
}

TEST_F(GlobalErrorListTest, WritesOneLogLinePerError) {
    const auto path = std::filesystem::temp_directory_path() / "vexbase-errorlog-test.log";
    std::filesystem::remove(path);
    GlobalErrorList& list = GlobalErrorList::Get();
    list.SetLogFileName(CString(path.u16string()));
    GenericError e(u"Pump stalled");
    e.SetErrorTime(1795350896);  // 2026-11-22 12:34:56 UTC
    ReportError(e, u"Dredge");
    list.SetLogFileName(u"");

    std::ifstream in(path, std::ios::binary);
    std::stringstream content;
    content << in.rdbuf();
    EXPECT_EQ(content.str(), "2026-11-22 12:34:56\tDredge\tGeneral Error\tPump stalled\r\n");
    in.close();
    std::filesystem::remove(path);
}

TEST_F(GlobalErrorListTest, AnUnwritableLogNeverFailsReporting) {
    GlobalErrorList& list = GlobalErrorList::Get();
    list.SetLogFileName(u"/nonexistent-folder/sub/errors.log");
    EXPECT_FALSE(ReportError(GenericError(u"still filed"), u""));
    EXPECT_EQ(list.NumErrors(), 1);
}

// Run under ThreadSanitizer by the test script: many threads report, switch
// contexts and clear while a reporter counts.
TEST_F(GlobalErrorListTest, ConcurrentReportingIsSerialised) {
    class Counter : public ErrorReporterBase {
      public:
        void Notify(const Error&) override { ++count; }
        std::atomic<int> count{0};
    };
    auto counter = std::make_shared<Counter>();
    GlobalErrorList& list = GlobalErrorList::Get();
    list.AddReporter(counter);

    constexpr int kThreads = 4;
    constexpr int kReports = 200;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t] {
            for (int i = 0; i < kReports; ++i) {
                CString text;
                text.Format(u"thread %d error %d", t, i);
                ReportError(GenericError(text), t % 2 ? u"Odd" : u"Even");
                if (i % 50 == 0) GlobalErrorList::Get().Clear(u"Odd");
            }
        });
    }
    threads.emplace_back([] {
        for (int i = 0; i < 100; ++i) {
            GlobalErrorList& l = GlobalErrorList::Get();
            l.Lock();
            for (int k = 0; k < l.NumErrors(); ++k)
                (void)l[k]->Format();
            l.Unlock();
        }
    });
    for (auto& t : threads)
        t.join();
    list.RemoveReporter(counter);
    EXPECT_EQ(counter->count.load(), kThreads * kReports);
    EXPECT_LE(list.NumErrors(true), 2 * ErrorList::kMaxErrors + 1);
}

}  // namespace
}  // namespace vex
