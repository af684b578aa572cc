// ExTimeSync.h - CExTimeSync, the process's one background thread: every
// 100 ms it fits CExTime's counter-based time to the system's UTC clock.
//
// The fit is a least-squares line through the last 60 samples (six
// seconds), its slope held to 0.9 ... 1.1. Synchronisation ends for the
// rest of the process when the two clocks differ by more than one second
// (the system clock was stepped) or when an external UTC source calls
// CExTime::SetUtcCoeffs. The thread is stopped and joined at process exit
// (on Windows, where a DLL may not wait for a thread then, it is stopped and
// left to the system, which has ended it already).
#pragma once

#include <base/Export.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace vex {

class ClockSource;
class CExTimeSync;

namespace detail {
class TimeSyncDriver;
}  // namespace detail

// The clock-synchronisation singleton; CExTime's constructor creates it.
//
//   vex::CExTimeSync::GetExTimeSync();   // created and synchronising
//   ...                                  // CExTime::GetCurTime follows UTC
class VEXBASE_API CExTimeSync {
  public:
    // The singleton, created (and its worker started) on first use;
    // thread-safe.
    static CExTimeSync* GetExTimeSync();

    // Starts the worker unless one has been started before (a worker that
    // stopped is not restarted). True; false only when the system cannot
    // create a thread.
    bool StartSync();
    // True while the worker thread runs.
    bool IsSyncRunning() const;

    CExTimeSync(const CExTimeSync&) = delete;
    CExTimeSync& operator=(const CExTimeSync&) = delete;

  private:
    friend class detail::TimeSyncDriver;

    explicit CExTimeSync(bool startWorker);
    ~CExTimeSync();

    static void ThreadProc(CExTimeSync* self);
    void ThreadFunction();
    // One pass of the worker after its wait: sample both clocks, fit and
    // store. False when the worker is to end.
    bool RunPass();
    // Adds the sample (e synchronised, s system time) and fits; false when
    // there is nothing to store (too few samples, a degenerate fit, or a
    // step of more than a second, which also sets the stop flag).
    bool ComputeCoefficients(double e, double s, double& a0, double& a1, double& p0);
    // Ends and joins the worker and allows a new one to start.
    void StopAndJoin();
    // Ends the worker as far as the platform allows at process exit.
    void StopAtExit();

    std::atomic<unsigned char> m_stop{0};
    std::thread m_thread;
    std::atomic<bool> m_running{false};
    std::mutex m_threadLock;  // starting and stopping the worker
    std::mutex m_waitLock;    // the worker's wait between passes
    std::condition_variable m_wake;
};

namespace detail {

// Drives the clock synchronisation by hand, for tests and simulations:
// puts another clock source in place and runs the worker's passes without
// the thread and its 100 ms waits, on the process-wide fitting state.
//
//   vex::detail::TimeSyncDriver::ResetTimeState(&simulatedClock);
//   vex::detail::TimeSyncDriver driver;
//   while (...) { simulatedClock.Advance(100); driver.RunPass(); }
class VEXBASE_API TimeSyncDriver {
  public:
    // Never while other threads use the clock: stops and joins the
    // synchronisation worker, installs source (nullptr: the operating
    // system's clocks) and returns CExTime and the fitting to the state of
    // a process that has not read the time yet.
    static void ResetTimeState(ClockSource* source);

    TimeSyncDriver();
    ~TimeSyncDriver();
    TimeSyncDriver(const TimeSyncDriver&) = delete;
    TimeSyncDriver& operator=(const TimeSyncDriver&) = delete;

    // One pass; false when the worker would end here (external source, or
    // the clocks a second apart).
    bool RunPass();
    // The stop flag: set by a step of more than a second.
    bool IsStopped() const;

  private:
    CExTimeSync* sync_;
};

}  // namespace detail

}  // namespace vex
