#include <base/geodesy/ReportAlert.h>

#include <base/errors/GenericError.h>

#include <mutex>
#include <utility>

namespace vex {
namespace {

std::mutex& SinkMutex() {
    static std::mutex mutex;
    return mutex;
}

AlertSink& Sink() {
    static AlertSink sink;
    return sink;
}

}  // namespace

void SetAlertSink(AlertSink sink) {
    std::lock_guard lock(SinkMutex());
    Sink() = std::move(sink);
}

unsigned long long ReportAlert(std::unique_ptr<Error> error) {
    if (!error) return 0;
    AlertSink sink;
    {
        std::lock_guard lock(SinkMutex());
        sink = Sink();
    }
    // The sink runs on a copy outside the lock, so it may itself install
    // another sink or raise an alert without deadlocking.
    if (!sink) return 0;
    const unsigned long long id = error->GetID();
    sink(std::move(error));
    return id;
}

unsigned long long ReportAlert(const CString& text) {
    return ReportAlert(std::make_unique<GenericError>(text));
}

}  // namespace vex
