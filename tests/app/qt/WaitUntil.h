#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace veltrix::test {

/// Lets events happen until the condition holds. The limit only ends a test that has failed, so it
/// is far beyond what the slowest machine needs.
template <typename Condition>
[[nodiscard]] bool waitUntil(Condition condition) {
    const QDeadlineTimer limit(60000);
    QTimer wakes; // a condition may come true without an event
    wakes.start(5);
    while (!condition() && !limit.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

} // namespace veltrix::test
