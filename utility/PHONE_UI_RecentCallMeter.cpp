#include "PHONE_UI_RecentCallMeter.h"

#include "tapi.h"

#define KAV_SOURCE "utility/PHONE_UI_RecentCallMeter"
#include "trace.h"

namespace {

QString unpaddedTime(const TAPI_CallTime &time)
{
    return QString::fromLatin1("%1:%2:%3")
        .arg(static_cast<ulong>(time.hours), 0, 10)
        .arg(static_cast<long>(time.minutes), 0, 10)
        .arg(static_cast<long>(time.seconds), 0, 10);
}

bool isColonAt(const QString &text, qsizetype index)
{
    return index < text.size() && text.at(index) == QLatin1Char(':');
}

} // namespace

PHONE_UI_RecentCallMeter::PHONE_UI_RecentCallMeter() = default;

PHONE_UI_RecentCallMeter::~PHONE_UI_RecentCallMeter() = default;

QString PHONE_UI_RecentCallMeter::getLastCallTimes()
{
    TAPI_CallTime time = {};
    const int result = KAV_TRACED(TAPI_LOG_GetLastCallTime(&time));
    return callTimeText(result, time);
}

QString PHONE_UI_RecentCallMeter::getDialedCallsTimes()
{
    TAPI_CallTime time = {};
    const int result = KAV_TRACED(TAPI_LOG_GetDialedCallsTime(&time));
    return callTimeText(result, time);
}

QString PHONE_UI_RecentCallMeter::getAnsweredCallsTimes()
{
    TAPI_CallTime time = {};
    const int result = KAV_TRACED(TAPI_LOG_GetAnsweredCallsTime(&time));
    return callTimeText(result, time);
}

QString PHONE_UI_RecentCallMeter::getAllCallsTimes()
{
    TAPI_CallTime time = {};
    const int result = KAV_TRACED(TAPI_CS_GetTotalCallTime(&time));
    return callTimeText(result, time);
}

QString PHONE_UI_RecentCallMeter::getLifeTimeCallsTimes()
{
    TAPI_CallTime time = {};
    const int result = KAV_TRACED(TAPI_LOG_GetLifetimeCallsTime(&time));
    return callTimeText(result, time);
}

void PHONE_UI_RecentCallMeter::resetDialedCallsTimer()
{
    KAV_TRACED(TAPI_LOG_ResetDialedCallsTime());
}

void PHONE_UI_RecentCallMeter::resetAnsweredCallsTimer()
{
    KAV_TRACED(TAPI_LOG_ResetAnsweredCallsTime());
}

void PHONE_UI_RecentCallMeter::resetAllCallsTimer()
{
    KAV_TRACED(TAPI_CS_ResetCallTime());
}

void PHONE_UI_RecentCallMeter::resetAll()
{
    const int result = KAV_TRACED(TAPI_LOG_ResetAll());
    if (result != 0)
        KAV_TRACE("PHONE_UI_RecentCallMeter::resetAll TAPI_LOG_ResetAll failed.%d", result);
}

// What every call-time getter makes of its query's answer.
QString PHONE_UI_RecentCallMeter::callTimeText(int result, const TAPI_CallTime &time)
{
    if (result != 0)
        return QString::fromLatin1("00:00:00");
    QString text = unpaddedTime(time);
    return formatTimeString(text);
}

// Looks at fixed positions only, so it holds for the shapes that unpaddedTime() makes; from three digits of hours
// on nothing is padded.
QString PHONE_UI_RecentCallMeter::formatTimeString(QString &text)
{
    KAV_TRACE("formatTimeString begin,TIMESTR=%s.\\n", text.toLatin1().constData());
    if (text.indexOf(QLatin1Char(':')) >= 3)
        return text;
    if (!isColonAt(text, 2))
        text.insert(0, QLatin1Char('0'));
    if (!isColonAt(text, 5))
        text.insert(3, QLatin1Char('0'));
    if (text.size() == 7)
        text.insert(6, QLatin1Char('0'));
    KAV_TRACE("formatTimeString after,TIMESTR=%s.\\n", text.toLatin1().constData());
    return text;
}
