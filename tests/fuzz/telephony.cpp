// What the phone's telephony library writes into the plug-in's buffers: the block of sessions, times, days, amounts
// without an end. This program's functions stand in its place.
#include "fuzz/Fuzz.h"

#include "utility/PHONE_UI_RecentCallMeter.h"

#include "log/aplog.h"
#include "telephony/tapi.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cstring>

namespace {

Taker given{QByteArrayView()};

// Whatever it returns, it has written.
int fill(void *place, std::size_t size)
{
    const int status = given.byte() & 1;
    const QByteArrayView rest = given.all();
    std::memcpy(place, rest.data(), std::min(size, static_cast<std::size_t>(rest.size())));
    given = Taker(rest.sliced(std::min<qsizetype>(rest.size(), static_cast<qsizetype>(size))));
    return status;
}

void requireTime(const QString &text)
{
    const QStringList parts = text.split(u':');
    REQUIRE(parts.size() == 3);
    for (const QString &part : parts)
        REQUIRE(!part.isEmpty() && std::all_of(part.begin(), part.end(), [](QChar c) { return c.isDigit(); }));
}

} // namespace

#define KAV_FILLS_TEXT(NAME, SIZE)                                                                                \
    int NAME(char *text)                                                                                          \
    {                                                                                                             \
        return fill(text, SIZE);                                                                                  \
    }
KAV_FILLS_TEXT(TAPI_CS_GetRemainCredit, TAPI_CREDIT_TEXT_SIZE)
KAV_FILLS_TEXT(TAPI_CS_GetLastCallCost, TAPI_AMOUNT_TEXT_SIZE)
KAV_FILLS_TEXT(TAPI_LOG_GetLastDeposit, TAPI_AMOUNT_TEXT_SIZE)
KAV_FILLS_TEXT(TAPI_LOG_GetDialedCallsCost, TAPI_AMOUNT_TEXT_SIZE)
KAV_FILLS_TEXT(TAPI_LOG_GetAnsweredCallsCost, TAPI_AMOUNT_TEXT_SIZE)
KAV_FILLS_TEXT(TAPI_LOG_GetAllCallsCost, TAPI_AMOUNT_TEXT_SIZE)
#undef KAV_FILLS_TEXT

#define KAV_FILLS_TIME(NAME)                                                                                      \
    int NAME(TAPI_CallTime *time)                                                                                 \
    {                                                                                                             \
        return fill(time, sizeof *time);                                                                          \
    }
KAV_FILLS_TIME(TAPI_CS_GetTotalCallTime)
KAV_FILLS_TIME(TAPI_LOG_GetLastCallTime)
KAV_FILLS_TIME(TAPI_LOG_GetDialedCallsTime)
KAV_FILLS_TIME(TAPI_LOG_GetAnsweredCallsTime)
KAV_FILLS_TIME(TAPI_LOG_GetLifetimeCallsTime)
KAV_FILLS_TIME(TAPI_GPRS_GetTotalDuration)
#undef KAV_FILLS_TIME

int TAPI_LOG_GetDepositExpirationDate(TAPI_Date *date)
{
    return fill(date, sizeof *date);
}

int TAPI_GPRS_GetAllSessionInfo(TAPI_GPRS_SessionInfo *info)
{
    return fill(info, sizeof *info);
}

int TAPI_GPRS_GetTotalDataBytes(uint32_t *total, uint32_t *received, uint32_t *sent)
{
    return fill(total, sizeof *total) | fill(received, sizeof *received) | fill(sent, sizeof *sent);
}

void tryBytes(QByteArrayView bytes)
{
    static int count = 1;
    static char program[] = "telephony";
    static char *arguments[] = {program, nullptr};
    static const QCoreApplication application(count, arguments);
    static FILE *const nowhere = std::fopen("/dev/null", "w");
    libaplog_to_module_ptr = nowhere;
    given = Taker(bytes);
    PHONE_UI_RecentCallMeter meter;
    for (const auto get :
         {&PHONE_UI_RecentCallMeter::getLastCallTimes, &PHONE_UI_RecentCallMeter::getDialedCallsTimes,
          &PHONE_UI_RecentCallMeter::getAnsweredCallsTimes, &PHONE_UI_RecentCallMeter::getAllCallsTimes,
          &PHONE_UI_RecentCallMeter::getLifeTimeCallsTimes})
        requireTime((meter.*get)());
    for (const auto get :
         {&PHONE_UI_RecentCallMeter::getLastDeposit, &PHONE_UI_RecentCallMeter::getLastCallCost,
          &PHONE_UI_RecentCallMeter::getDialedCallsCost, &PHONE_UI_RecentCallMeter::getAnsweredCallsCost,
          &PHONE_UI_RecentCallMeter::getAllCallsCost})
        REQUIRE((meter.*get)().size() <= TAPI_AMOUNT_TEXT_SIZE);
    REQUIRE(meter.getCreditAvailable().size() <= TAPI_CREDIT_TEXT_SIZE);
    meter.getExpirationDate();
    meter.getRDT();
    meter.getADT();
    meter.getRDV();
    meter.getADV();
}
