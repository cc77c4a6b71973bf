#include "utility/PHONE_UI_RecentCallMeter.h"

#include "callsetup/PHONE_ENG_Setup.h"
#include "telephony/tapi.h"
#include "utility/CurrencyCatalogue.h"

#include <QtCore/QtEndian>

#include <algorithm>
#include <iterator>

#define KAV_SOURCE "utility/PHONE_UI_RecentCallMeter"
#include "utility/trace.h"

namespace {

QString colonText(ulong first, long second, long third)
{
    return QString::fromLatin1("%1:%2:%3").arg(first, 0, 10).arg(second, 0, 10).arg(third, 0, 10);
}

QString unpaddedTime(const TAPI_CallTime &time)
{
    return colonText(time.hours, time.minutes, time.seconds);
}

QString zeroTime()
{
    return QString::fromLatin1("00:00:00");
}

QString volumeText(quint32 bytes)
{
    return QString::fromLatin1("%1 B").arg(static_cast<ulong>(bytes), 0, 10);
}

// A text ends at its NUL, or with its buffer.
template <std::size_t Size>
QString bufferText(const char (&buffer)[Size])
{
    const char *end = std::find(buffer, buffer + Size, '\0');
    return QString::fromLatin1(buffer, end - buffer);
}

// The platform never reports more than three sessions; a count beyond them would run past the records.
int usedRecords(const TAPI_GPRS_SessionInfo &info)
{
    return static_cast<int>(std::min(qFromLittleEndian(info.count), quint32(std::size(info.records))));
}

template <std::size_t Size>
QString amountText(int result, const char (&buffer)[Size])
{
    return result == 0 ? bufferText(buffer) : QString::fromLatin1("0.00");
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
        return zeroTime();
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

QString PHONE_UI_RecentCallMeter::getCreditAvailable()
{
    char buffer[TAPI_CREDIT_TEXT_SIZE] = {};
    const int result = KAV_TRACED(TAPI_CS_GetRemainCredit(buffer));
    return amountText(result, buffer);
}

QString PHONE_UI_RecentCallMeter::getExpirationDate()
{
    TAPI_Date date = {};
    const int result = KAV_TRACED(TAPI_LOG_GetDepositExpirationDate(&date));
    if (result != 0)
        return QString::fromLatin1("2000/00/00");
    return colonText(date.year, date.month, date.day);
}

QString PHONE_UI_RecentCallMeter::getLastDeposit()
{
    char buffer[TAPI_AMOUNT_TEXT_SIZE] = {};
    const int result = KAV_TRACED(TAPI_LOG_GetLastDeposit(buffer));
    return amountText(result, buffer);
}

QString PHONE_UI_RecentCallMeter::getLastCallCost()
{
    char buffer[TAPI_AMOUNT_TEXT_SIZE] = {};
    const int result = KAV_TRACED(TAPI_CS_GetLastCallCost(buffer));
    return amountText(result, buffer);
}

QString PHONE_UI_RecentCallMeter::getDialedCallsCost()
{
    char buffer[TAPI_AMOUNT_TEXT_SIZE] = {};
    const int result = KAV_TRACED(TAPI_LOG_GetDialedCallsCost(buffer));
    return amountText(result, buffer);
}

QString PHONE_UI_RecentCallMeter::getAnsweredCallsCost()
{
    char buffer[TAPI_AMOUNT_TEXT_SIZE] = {};
    const int result = KAV_TRACED(TAPI_LOG_GetAnsweredCallsCost(buffer));
    return amountText(result, buffer);
}

QString PHONE_UI_RecentCallMeter::getAllCallsCost()
{
    char buffer[TAPI_AMOUNT_TEXT_SIZE] = {};
    const int result = KAV_TRACED(TAPI_LOG_GetAllCallsCost(buffer));
    return amountText(result, buffer);
}

void PHONE_UI_RecentCallMeter::resetAllCallCosts()
{
    const int result = KAV_TRACED(TAPI_LOG_ResetAllCallsCost());
    if (result != 0)
        KAV_TRACE("PHONE_UI_RecentCallMeter::resetAllCallCosts TAPI_LOG_ResetAllCallsCost failed.%d", result);
}

void PHONE_UI_RecentCallMeter::resetDialedCallCosts()
{
    const int result = KAV_TRACED(TAPI_LOG_ResetDialedCallsCost());
    if (result != 0)
        KAV_TRACE("PHONE_UI_RecentCallMeter::resetDialedCallCosts TAPI_LOG_ResetDialedCallsCost failed.%d",
                  result);
}

void PHONE_UI_RecentCallMeter::resetAnsweredCallCosts()
{
    const int result = KAV_TRACED(TAPI_LOG_ResetAnsweredCallsCost());
    if (result != 0)
        KAV_TRACE("PHONE_UI_RecentCallMeter::resetAnsweredCallCosts TAPI_LOG_ResetAnsweredCallsCost failed.%d",
                  result);
}

void PHONE_UI_RecentCallMeter::getRDT()
{
    for (DataTimeSession &session : recentDataTimes)
        session = {0, QString(), zeroTime()};
    TAPI_GPRS_SessionInfo info = {};
    const int result = KAV_TRACED(TAPI_GPRS_GetAllSessionInfo(&info));
    if (result != 0) {
        KAV_TRACE("PHONE_UI_RecentCallMeter::getRDT TAPI_GPRS_GetAllSessionInfo failed.%d", result);
        return;
    }
    for (int i = 0; i < usedRecords(info); ++i) {
        const TAPI_GPRS_SessionRecord &record = info.records[i];
        if (record.sessionId == 0)
            continue; // the slot stays empty, later ones do not move up
        DataTimeSession &session = recentDataTimes[i];
        session.sessionId = record.sessionId;
        session.apn = bufferText(record.apn);
        session.time = colonText(qFromLittleEndian(record.hours), record.minutes, record.seconds);
        formatTimeString(session.time);
        KAV_TRACE("getRDT:The %d session data: sessionId=%d,Apn=%s,sessionTimes=%s.", i, session.sessionId,
                  session.apn.toLatin1().constData(), session.time.toLatin1().constData());
    }
}

void PHONE_UI_RecentCallMeter::getADT()
{
    allDataTime = zeroTime();
    TAPI_CallTime time = {};
    const int result = KAV_TRACED(TAPI_GPRS_GetTotalDuration(&time));
    if (result != 0) {
        KAV_TRACE("PHONE_UI_RecentCallMeter::getADT TAPI_GPRS_GetTotalDuration failed.%d", result);
        return;
    }
    allDataTime = unpaddedTime(time);
    KAV_TRACE("getADT:ADT_Sessions_TIMES=%s", allDataTime.toLatin1().constData());
}

void PHONE_UI_RecentCallMeter::getRDV()
{
    for (int i = 0; i < sessionCount; ++i) {
        // It is the time records whose ids are cleared here; the volume records keep theirs.
        recentDataTimes[i].sessionId = 0;
        DataVolumeSession &session = recentDataVolumes[i];
        session.apn = QString();
        session.sent = session.received = session.total = volumeText(0);
    }
    TAPI_GPRS_SessionInfo info = {};
    const int result = KAV_TRACED(TAPI_GPRS_GetAllSessionInfo(&info));
    if (result != 0) {
        KAV_TRACE("PHONE_UI_RecentCallMeter::getRDV TAPI_GPRS_GetAllSessionInfo failed.%d", result);
        return;
    }
    for (int i = 0; i < usedRecords(info); ++i) {
        const TAPI_GPRS_SessionRecord &record = info.records[i];
        if (record.sessionId == 0)
            continue;
        const quint32 sent = qFromLittleEndian(record.bytesSent);
        const quint32 received = qFromLittleEndian(record.bytesReceived);
        DataVolumeSession &session = recentDataVolumes[i];
        session = {record.sessionId, bufferText(record.apn), volumeText(sent), volumeText(received),
                   volumeText(sent + received)}; // wraps at 32 bits
        KAV_TRACE("The %d session data== sessionId=%d,Apn=%s,sentBytes=%s,recvByte=%s,totalBytes=%s.", i,
                  session.sessionId, session.apn.toLatin1().constData(), session.sent.toLatin1().constData(),
                  session.received.toLatin1().constData(), session.total.toLatin1().constData());
    }
}

void PHONE_UI_RecentCallMeter::getADV()
{
    allDataVolumes = {volumeText(0), volumeText(0), volumeText(0)};
    quint32 total = 0;
    quint32 received = 0;
    quint32 sent = 0;
    const int result = KAV_TRACED(TAPI_GPRS_GetTotalDataBytes(&total, &received, &sent));
    if (result != 0) {
        KAV_TRACE("PHONE_UI_RecentCallMeter::getADV_IDV TAPI_GPRS_GetTotalDataBytes failed.%d", result);
        return;
    }
    allDataVolumes = {volumeText(sent), volumeText(received), volumeText(total)};
    KAV_TRACE("getADV:ADV_IDV_Sent=%s,ADV_IDV_Received=%s,ADV_IDV_Total=%s",
              allDataVolumes.sent.toLatin1().constData(), allDataVolumes.received.toLatin1().constData(),
              allDataVolumes.total.toLatin1().constData());
}

QString PHONE_UI_RecentCallMeter::getRDT_Session1()
{
    return recentDataTimes[0].time;
}

QString PHONE_UI_RecentCallMeter::getRDT_Session2()
{
    return recentDataTimes[1].time;
}

QString PHONE_UI_RecentCallMeter::getRDT_Session3()
{
    return recentDataTimes[2].time;
}

QString PHONE_UI_RecentCallMeter::getRDT_Session1_Apn()
{
    return recentDataTimes[0].apn;
}

QString PHONE_UI_RecentCallMeter::getRDT_Session2_Apn()
{
    return recentDataTimes[1].apn;
}

QString PHONE_UI_RecentCallMeter::getRDT_Session3_Apn()
{
    return recentDataTimes[2].apn;
}

QString PHONE_UI_RecentCallMeter::getADT_Sessions()
{
    return formatTimeString(allDataTime);
}

QString PHONE_UI_RecentCallMeter::getRDV_Session1_Sent()
{
    return recentDataVolumes[0].sent;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session1_Received()
{
    return recentDataVolumes[0].received;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session1_Total()
{
    return recentDataVolumes[0].total;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session2_Sent()
{
    return recentDataVolumes[1].sent;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session2_Received()
{
    return recentDataVolumes[1].received;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session2_Total()
{
    return recentDataVolumes[1].total;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session3_Sent()
{
    return recentDataVolumes[2].sent;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session3_Received()
{
    return recentDataVolumes[2].received;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session3_Total()
{
    return recentDataVolumes[2].total;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session1_Apn()
{
    return recentDataVolumes[0].apn;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session2_Apn()
{
    return recentDataVolumes[1].apn;
}

QString PHONE_UI_RecentCallMeter::getRDV_Session3_Apn()
{
    return recentDataVolumes[2].apn;
}

QString PHONE_UI_RecentCallMeter::getADV_Sessions_Sent()
{
    return allDataVolumes.sent;
}

QString PHONE_UI_RecentCallMeter::getADV_Sessions_Received()
{
    return allDataVolumes.received;
}

QString PHONE_UI_RecentCallMeter::getADV_Sessions_Total()
{
    return allDataVolumes.total;
}

void PHONE_UI_RecentCallMeter::resetAllDataSessionsTimer()
{
    KAV_TRACED(TAPI_GPRS_ResetTotalDuration());
}

void PHONE_UI_RecentCallMeter::resetAllDataSessionsVolume()
{
    const int result = KAV_TRACED(TAPI_GPRS_ResetTotalDataBytes());
    if (result != 0)
        KAV_TRACE("PHONE_UI_RecentCallMeter::resetAllDataSessionsVolume TAPI_GPRS_ResetTotalDataBytes failed.%d",
                  result);
}

QString PHONE_UI_RecentCallMeter::TranslateCurrency(QString code)
{
    KAV_TRACE("PHONE_UI_RecentCallMeter::TranslateCurrency string=%s.\\n", code.toLatin1().constData());
    const ResourceText *text = CurrencyCatalogue::shortText(code);
    return text ? textFor<PHONE_UI_RecentCallMeter>(*text) : code;
}

QString PHONE_UI_RecentCallMeter::getCurrencyUnit()
{
    unsigned char type = 0;
    if (PHONE_ENG_Setup::instance()->getChargeType(type) != 0)
        return QString();
    switch (type) {
    case 0:
        return TranslateCurrency(QString::fromLatin1("units"));
    case 1: {
        QString price;
        QString currency;
        if (PHONE_ENG_Setup::instance()->getPriceUnitCurrency(price, currency) != 0)
            return QString();
        return TranslateCurrency(currency);
    }
    }
    return QString();
}
