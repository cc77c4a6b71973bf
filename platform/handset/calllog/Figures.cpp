#include "Figures.h"

#include "Status.h"

#include <algorithm>
#include <limits>

namespace handset::calllog {

int Figures::reset(Counter counter)
{
    const int status = recorder.checkpoint();
    return status == Success ? recorder.reset({counter}) : status;
}

int Figures::seconds(Counter counter, quint64 &value) const
{
    qint64 ms = 0;
    const int status = recorder.figure(counter, ms);
    if (status == Success)
        value = static_cast<quint64>(ms) / 1000;
    return status;
}

int Figures::time(Counter counter, CallTime &value) const
{
    quint64 whole = 0;
    const int status = seconds(counter, whole);
    if (status == Success)
        value = CallTime::fromSeconds(whole);
    return status;
}

int Figures::lastCallTime(CallTime &value)
{
    return time(Counter::Last, value);
}

int Figures::dialedCallsTime(CallTime &value)
{
    return time(Counter::Dialed, value);
}

int Figures::answeredCallsTime(CallTime &value)
{
    return time(Counter::Answered, value);
}

int Figures::lifetimeCallsTime(CallTime &value)
{
    return time(Counter::Lifetime, value);
}

int Figures::resetDialedCallsTime()
{
    return reset(Counter::Dialed);
}

int Figures::resetAnsweredCallsTime()
{
    return reset(Counter::Answered);
}

int Figures::totalCallTime(CallTime &value)
{
    return time(Counter::All, value);
}

int Figures::resetCallTime()
{
    return reset(Counter::All);
}

int Figures::refreshTotals()
{
    return recorder.isConnected() ? recorder.checkpoint() : Success;
}

int Figures::totalDuration(quint32 &value)
{
    quint64 whole = 0;
    const int status = seconds(Counter::Data, whole);
    if (status == Success)
        value = static_cast<quint32>(std::min<quint64>(whole, std::numeric_limits<quint32>::max()));
    return status;
}

int Figures::callStatus(quint8 &value)
{
    value = recorder.dataCallStatus();
    return Success;
}

int Figures::resetTotalDuration()
{
    return reset(Counter::Data);
}

} // namespace handset::calllog
