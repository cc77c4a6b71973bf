#include "Clock.h"

#include <QtCore/QDateTime>

#include <ctime>

namespace handset {

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

} // namespace handset
