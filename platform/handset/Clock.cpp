#include "handset/Clock.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>

#include <ctime>
#include <limits>

namespace handset {

SystemClock::SystemClock()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    if (file.open(QIODevice::ReadOnly))
        bootId = file.readAll().trimmed();
}

qint64 SystemClock::monotonicMs() const
{
    // A call goes on while the machine is suspended; CLOCK_MONOTONIC stands still then.
    timespec now{};
    ::clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<qint64>(now.tv_sec) * 1000 + static_cast<qint64>(now.tv_nsec) / 1'000'000;
}

qint64 SystemClock::wallMs() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

qint64 SteadyClock::monotonicMs() const
{
    const qint64 now = clock->monotonicMs();
    qint64 passed = 0;
    if (now > last && __builtin_sub_overflow(now, last, &passed))
        passed = std::numeric_limits<qint64>::max();
    last = now;
    if (__builtin_add_overflow(reading, passed, &reading))
        reading = std::numeric_limits<qint64>::max();
    return reading;
}

} // namespace handset
