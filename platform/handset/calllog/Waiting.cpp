#include "calllog/Waiting.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QThread>

#include <algorithm>
#include <utility>

namespace handset::calllog {

namespace {

constexpr qint64 nsPerMs = 1'000'000;
constexpr qint64 untoldNs = 1000 * nsPerMs;
constexpr qint64 betweenNs = 500 * nsPerMs; ///< two times that the listener is told

} // namespace

Waiting::Waiting(int patienceMs, ProgressListener progress)
    : patienceNs(patienceMs * nsPerMs)
    , listener(std::move(progress))
{}

bool Waiting::pause(int milliseconds, const Holders &holders)
{
    if (isOver()) {
        holdersAtEnd = holders();
        return false;
    }
    QElapsedTimer passed;
    passed.start();
    QThread::msleep(static_cast<unsigned long>(milliseconds));
    waitedNs += passed.nsecsElapsed();
    tell(holders);
    return true;
}

bool Waiting::pauseInSqlite(int milliseconds, const Holders &holders)
{
    try {
        return !thrown && pause(milliseconds, holders);
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
    waitedNs = 0;
    toldNs = 0;
    holdersAtEnd.clear();
    if (!step.isEmpty() && listener)
        listener(std::exchange(step, {}), 100);
}

void Waiting::tell(const Holders &holders)
{
    if (waitedNs < untoldNs || waitedNs < toldNs + betweenNs || !listener)
        return;
    toldNs = waitedNs;
    const QString names = holders();
    step = QStringLiteral("Waiting for %1").arg(names.isEmpty() ? QStringLiteral("another process") : names);
    listener(step, static_cast<int>(std::min<qint64>(waitedNs * 100 / patienceNs, 99)));
}

} // namespace handset::calllog
