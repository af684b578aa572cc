// ReportAlert.h - alerts: errors handed to the application for display at
// once, beside (not through) the process-wide error list.
//
// The application installs an alert sink, usually one that queues the error
// for its main window. A sink takes ownership of every error it is given;
// without a sink an alert is dropped and freed. The sink is process-wide and
// may be called on any thread that raises an alert.
//
//   vex::SetAlertSink([](std::unique_ptr<vex::Error> e) { queue.push(std::move(e)); });
//   vex::ReportAlert(u"Geoid grid file not found");
#pragma once

#include <base/Export.h>
#include <base/errors/Error.h>
#include <base/framework/CString.h>

#include <functional>
#include <memory>

namespace vex {

using AlertSink = std::function<void(std::unique_ptr<Error>)>;

// Installs sink for every later alert; an empty function removes it.
VEXBASE_API void SetAlertSink(AlertSink sink);

// Hands error to the alert sink and returns the error's ID, read before the
// sink gets it. Without a sink (or for a null error) the error is freed and
// 0 is returned; IDs are never 0, so 0 always means nobody took it.
VEXBASE_API unsigned long long ReportAlert(std::unique_ptr<Error> error);
// The same for a GenericError with text as its description.
VEXBASE_API unsigned long long ReportAlert(const CString& text);

}  // namespace vex
