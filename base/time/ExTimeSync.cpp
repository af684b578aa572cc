#include <base/time/ExTimeSync.h>

#include <base/platform/ProcessExit.h>
#include <base/time/ExTime.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <system_error>

namespace vex {
namespace {

constexpr int kRingSize = 60;
constexpr auto kPassInterval = std::chrono::milliseconds(100);
constexpr double kMaxStepMs = 1000.0;
constexpr double kMinSlope = 0.9;
constexpr double kMaxSlope = 1.1;

// The fitting's samples, process-wide; only the pass that holds the lock
// (in practice the worker) touches them.
struct FitState {
    std::mutex lock;
    double localTimes[kRingSize] = {};      // unsynchronised times
    double referenceTimes[kRingSize] = {};  // system UTC times
    int index = 0;
    int count = 0;
};

// Never destroyed: on platforms where the worker is not joined at exit it
// may still run a pass while static objects are torn down.
union FitStorage {
    FitState value;
    FitStorage() : value() {}
    ~FitStorage() {}
};
FitStorage fitStorage;
FitState& fit = fitStorage.value;

// The singleton once constructed, for TimeSyncDriver::ResetTimeState.
constinit std::atomic<CExTimeSync*> instance{nullptr};

}  // namespace

CExTimeSync* CExTimeSync::GetExTimeSync() {
    // The singleton is never destroyed, so the worker never finds its
    // members gone. The exit guard ends the worker; made after the static
    // objects the worker uses, it is destroyed before them.
    union Storage {
        CExTimeSync value;
        Storage() : value(true) {}
        ~Storage() {}
    };
    struct ExitGuard {
        CExTimeSync& sync;
        ~ExitGuard() { sync.StopAtExit(); }
    };
    static Storage singleton;
    static ExitGuard exitGuard{singleton.value};
    return &singleton.value;
}

CExTimeSync::CExTimeSync(bool startWorker) {
    if (startWorker) {
        instance.store(this);
        StartSync();
    }
}

CExTimeSync::~CExTimeSync() {
    StopAndJoin();
    CExTimeSync* self = this;
    instance.compare_exchange_strong(self, nullptr);
}

bool CExTimeSync::StartSync() {
    std::lock_guard<std::mutex> guard(m_threadLock);
    if (!m_thread.joinable()) {
        m_running.store(true);
        try {
            m_thread = std::thread(&CExTimeSync::ThreadProc, this);
        } catch (const std::system_error&) {
            m_running.store(false);  // the system has no thread to spare
            return false;
        }
    }
    return true;
}

bool CExTimeSync::IsSyncRunning() const {
    return m_running.load();
}

void CExTimeSync::StopAndJoin() {
    std::lock_guard<std::mutex> guard(m_threadLock);
    {
        // Set under the wait's lock, so the worker cannot miss the wake-up
        // between testing the flag and starting to wait.
        std::lock_guard<std::mutex> waitGuard(m_waitLock);
        m_stop.store(1);
    }
    m_wake.notify_all();
    if (m_thread.joinable()) m_thread.join();
    m_thread = std::thread();
    m_stop.store(0);
}

void CExTimeSync::StopAtExit() {
    if (platform::kStaticDestructorsMayJoinThreads) {
        StopAndJoin();
    } else {
        // The worker may already be gone, perhaps inside a lock: only the
        // flag is set, and the worker ends at its next wake if it still runs.
        m_stop.store(1);
    }
}

void CExTimeSync::ThreadProc(CExTimeSync* self) {
    self->ThreadFunction();
    self->m_running.store(false);
}

void CExTimeSync::ThreadFunction() {
    for (;;) {
        {
            std::unique_lock<std::mutex> wait(m_waitLock);
            if (m_wake.wait_for(wait, kPassInterval, [this] { return m_stop.load() != 0; })) {
                return;
            }
        }
        if (!RunPass()) return;
    }
}

bool CExTimeSync::RunPass() {
    std::lock_guard<std::mutex> guard(fit.lock);
    if (m_stop.load() != 0) return false;
    const double system = CExTime::GetRawUnsyncedWindowsTime();
    const double synced = CExTime::GetCurTime();
    if (CExTime::GetLastUtcUpdate() != 0.0) return false;  // an external source took over
    double a0 = 0.0;
    double a1 = 1.0;
    double p0 = 0.0;
    if (ComputeCoefficients(synced, system, a0, a1, p0)) CExTime::StoreFittedCoeffs(a0, a1, p0);
    return m_stop.load() == 0;
}

bool CExTimeSync::ComputeCoefficients(double e, double s, double& a0, double& a1, double& p0) {
    // A step of the system clock is a decision of the user or of another
    // program; following it would put a jump into every time stamp, so
    // synchronisation ends instead, for the rest of the process.
    if (!(std::fabs(e - s) <= kMaxStepMs)) {
        m_stop.store(1);
        return false;
    }
    fit.localTimes[fit.index] = CExTime::GetVexTime(e);
    fit.referenceTimes[fit.index] = s;
    fit.index = (fit.index + 1) % kRingSize;
    fit.count = std::min(fit.count + 1, kRingSize);
    const int n = fit.count;
    if (n < 2) return false;

    // Centred on the means, so that the sums stay small beside times of
    // 1.7e12 ms.
    double meanLocal = 0.0;
    double meanReference = 0.0;
    for (int i = 0; i < n; ++i) {
        meanLocal += fit.localTimes[i];
        meanReference += fit.referenceTimes[i];
    }
    meanLocal /= n;
    meanReference /= n;
    double sx = 0.0, sy = 0.0, sxx = 0.0, sxy = 0.0;
    for (int i = 0; i < n; ++i) {
        const double x = fit.localTimes[i] - meanLocal;
        const double y = fit.referenceTimes[i] - meanReference;
        sx += x;
        sy += y;
        sxx += x * x;
        sxy += x * y;
    }
    const double d = n * sxx - sx * sx;
    if (d == 0.0) return false;
    const double intercept = (sxx * sy - sxy * sx) / d;
    const double slope = std::clamp((n * sxy - sx * sy) / d, kMinSlope, kMaxSlope);
    a0 = intercept + meanReference;
    a1 = slope;
    p0 = meanLocal;
    return true;
}

namespace detail {

void TimeSyncDriver::ResetTimeState(ClockSource* source) {
    if (CExTimeSync* sync = instance.load()) sync->StopAndJoin();
    {
        std::lock_guard<std::mutex> guard(fit.lock);
        std::fill(std::begin(fit.localTimes), std::end(fit.localTimes), 0.0);
        std::fill(std::begin(fit.referenceTimes), std::end(fit.referenceTimes), 0.0);
        fit.index = 0;
        fit.count = 0;
    }
    CExTime::ResetState(source);
}

TimeSyncDriver::TimeSyncDriver() : sync_(new CExTimeSync(false)) {}

TimeSyncDriver::~TimeSyncDriver() {
    delete sync_;
}

bool TimeSyncDriver::RunPass() {
    return sync_->RunPass();
}

bool TimeSyncDriver::IsStopped() const {
    return sync_->m_stop.load() != 0;
}

}  // namespace detail

}  // namespace vex
