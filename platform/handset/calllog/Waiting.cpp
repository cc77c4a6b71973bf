#include "calllog/Waiting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <algorithm>
#include <utility>

namespace handset::calllog {

namespace {

constexpr int untoldMs = 1000;
constexpr int betweenMs = 500; ///< two times that the listener is told

} // namespace

Waiting::Waiting(int patienceMs, ProgressListener progress)
    : patience(patienceMs)
    , listener(std::move(progress))
{}

bool Waiting::pause(int milliseconds, const Holders &holders)
{
    if (isOver()) {
        holdersAtEnd = holders();
        return false;
    }
    QThread::msleep(static_cast<unsigned long>(milliseconds));
    waitedMs += milliseconds; // what a busy machine adds to that is nobody's fault
    tell(holders);
    return true;
}

bool Waiting::pauseInSqlite(int milliseconds)
{
    try {
        return !thrown && pause(milliseconds, writers);
    } catch (...) {
        thrown = std::current_exception();
        return false;
    }
}

void Waiting::goOn()
{
    if (thrown)
        std::rethrow_exception(std::exchange(thrown, nullptr));
}

void Waiting::arrive()
{
    toldMs = waitedMs;
    holdersAtEnd.clear();
    if (!step.isEmpty() && listener)
        listener(std::exchange(step, {}), 100);
}

void Waiting::tell(const Holders &holders)
{
    if (waitedMs < untoldMs || waitedMs < toldMs + betweenMs || !listener)
        return;
    toldMs = waitedMs;
    const QString names = holders();
    step = QCoreApplication::translate("handset", "Waiting for %1")
               .arg(names.isEmpty() ? QCoreApplication::translate("handset", "another process") : names);
    listener(step, static_cast<int>(std::min<qint64>(qint64{100} * waitedMs / patience, 99)));
}

} // namespace handset::calllog
