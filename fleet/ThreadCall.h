#pragma once

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace device_fleet {

/// Calls the function on the thread of @p object and waits until it has returned; at once where that is the caller's
/// thread. The event loop of that thread must run, and must not wait for the caller's. Stands in for
/// Qt::BlockingQueuedConnection, whose locks the thread sanitizer cannot see.
void callOnThreadOf(QObject *object, const std::function<void()> &function);

} // namespace device_fleet
