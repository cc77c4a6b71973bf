#include "handset/CallRetention.h"

#include "handset/Clock.h"
#include "handset/KeptCalls.h"
#include "handset/Status.h"

#include <QtCore/QDateTime>

#include <cstdlib>

namespace handset {

namespace {

constexpr qint64 dayMs = qint64{24} * CallRetention::anHourMs;

} // namespace

std::optional<int> keptDaysFrom(const QString &text)
{
    bool isNumber = false;
    const int days = text.toInt(&isNumber);
    return isNumber && days >= 0 && days <= mostKeptDays ? std::optional(days) : std::nullopt;
}

qint64 keptSince(int days, qint64 wallMs)
{
    return QDateTime::fromMSecsSinceEpoch(wallMs).addDays(-days).toMSecsSinceEpoch();
}

CallRetention::CallRetention(Handset &handset, int days, std::shared_ptr<Clock> clocks, int everyMs)
    : owner(handset)
    , keptDays(days)
    , lookMs(everyMs)
    , clock(std::move(clocks))
{
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { look(); });
    timer.setTimerType(Qt::VeryCoarseTimer);
    timer.setInterval(lookMs);
    // No timer: a program that only shows a window once may end before that fires.
    QMetaObject::invokeMethod(
        &timer, [this] { look(); }, Qt::QueuedConnection);
}

void CallRetention::look()
{
    timer.start();
    const qint64 now = clock->wallMs();
    if (doneAtWallMs && std::llabs(now - *doneAtWallMs) < dayMs)
        return;
    qint64 count = 0;
    KeptCalls *const calls = owner.keptCalls();
    if (!calls || calls->removeBefore(keptSince(keptDays, now), count) == Success)
        doneAtWallMs = now;
}

} // namespace handset
