#include "FixedTelephone.h"

#include "AdviceOfCharge.h"
#include "CallLog.h"
#include "CallService.h"
#include "DataCalls.h"
#include "Handset.h"
#include "PacketData.h"
#include "SimSecurity.h"
#include "aplog.h"

#include <memory>

namespace bench {

namespace {

using handset::CallTime;
using handset::Success;

template <typename Value>
int answer(Value &out, const Value &value)
{
    out = value;
    return Success;
}

QByteArray &firstSessionName()
{
    static QByteArray name;
    return name;
}

// How often the figures have been changed.
quint32 &changes()
{
    static quint32 count = 0;
    return count;
}

CallTime callTime()
{
    CallTime time = fixedTime;
    time.seconds = static_cast<quint8>((time.seconds + changes()) % 60);
    return time;
}

quint32 bytes(quint32 first)
{
    return first + changes() % 1000 * 1024;
}

QByteArray amount()
{
    return "12." + QByteArray::number(10 + (40 + changes()) % 90);
}

class Service final : public handset::CallService
{
public:
    int totalCallTime(CallTime &time) override { return answer(time, callTime()); }
    int resetCallTime() override { return Success; }
    int remainingCredit(QByteArray &text) override { return answer(text, amount()); }
    int lastCallCost(QByteArray &text) override { return answer(text, amount()); }
};

class Log final : public handset::CallLog
{
public:
    int lastCallTime(CallTime &time) override { return answer(time, callTime()); }
    int dialedCallsTime(CallTime &time) override { return answer(time, callTime()); }
    int answeredCallsTime(CallTime &time) override { return answer(time, callTime()); }
    int lifetimeCallsTime(CallTime &time) override { return answer(time, callTime()); }
    int resetDialedCallsTime() override { return Success; }
    int resetAnsweredCallsTime() override { return Success; }
    int resetAll() override { return Success; }
    int depositExpirationDate(handset::Date &date) override { return answer(date, {2006, 3, 9}); }
    int lastDeposit(QByteArray &text) override { return answer(text, amount()); }
    int dialedCallsCost(QByteArray &text) override { return answer(text, amount()); }
    int answeredCallsCost(QByteArray &text) override { return answer(text, amount()); }
    int allCallsCost(QByteArray &text) override { return answer(text, amount()); }
    int resetDialedCallsCost() override { return Success; }
    int resetAnsweredCallsCost() override { return Success; }
    int resetAllCallsCost() override { return Success; }
};

class Data final : public handset::DataCalls
{
public:
    int refreshTotals() override { return Success; }
    int totalDuration(quint32 &seconds) override
    {
        const CallTime time = callTime();
        return answer(seconds, (time.hours * 60 + time.minutes) * 60 + time.seconds);
    }
    int callStatus(quint8 &status) override { return answer<quint8>(status, Idle); }
    int resetTotalDuration() override { return Success; }
};

class Packets final : public handset::PacketData
{
public:
    int sessions(handset::DataSessions &sessions) override
    {
        const handset::DataSession first{1, bytes(123'456), bytes(7'890'123), callTime(), firstSessionName()};
        const handset::DataSession second{2, bytes(2'345), bytes(67'890), callTime(),
                                          QByteArrayLiteral("mms.example")};
        return answer(sessions, {3, {first, second, handset::DataSession{}}});
    }
    int totalDuration(CallTime &duration) override { return answer(duration, callTime()); }
    int totalBytes(quint32 &total, quint32 &received, quint32 &sent) override
    {
        received = bytes(7'958'013);
        sent = bytes(125'801);
        return answer(total, received + sent);
    }
    int resetTotalDuration() override { return Success; }
    int resetTotalBytes() override { return Success; }
    void setUpdateListener(const std::function<void()> &) override {} // nothing changes by itself
};

class Charge final : public handset::AdviceOfCharge
{
public:
    int updateRule(quint8, quint8 &rule) override { return answer<quint8>(rule, FreeUpdate); }
    int meterMaximum(QString &maximum, bool &enabled) override
    {
        enabled = true;
        return answer(maximum, QStringLiteral("100.00"));
    }
    int setMeterMaximum(const QString &) override { return Success; }
    int disableMeterMaximum() override { return Success; }
    int chargeType(quint8 &type) override { return answer<quint8>(type, InCurrency); }
    int setChargeType(quint8) override { return Success; }
    int priceAndCurrency(QString &price, QString &currency) override
    {
        price = QStringLiteral("0.250");
        return answer(currency, QStringLiteral("EUR"));
    }
    int setPriceAndCurrency(const QString &, const QString &) override { return Success; }
};

class Security final : public handset::SimSecurity
{
public:
    int pinStatus(quint8, quint32 &status) override { return answer<quint32>(status, NoEntryNeeded); }
    int triesLeft(quint8, int &tries) override { return answer(tries, 3); }
    int verifyPin(quint8, const QByteArray &, bool &accepted) override { return answer(accepted, true); }
};

class FixedTelephone final : public handset::Handset
{
public:
    handset::CallService *callService() override { return &service; }
    handset::CallLog *callLog() override { return &log; }
    handset::DataCalls *dataCalls() override { return &data; }
    handset::AdviceOfCharge *adviceOfCharge() override { return &charge; }
    handset::PacketData *packetData() override { return &packets; }
    handset::SimSecurity *simSecurity() override { return &security; }

private:
    Service service;
    Log log;
    Data data;
    Charge charge;
    Packets packets;
    Security security;
};

} // namespace

void nameFirstSession(const QByteArray &name)
{
    firstSessionName() = name;
}

void changeFigures()
{
    ++changes();
}

void useFixedTelephone()
{
    changes() = 0;
    nameFirstSession(QByteArrayLiteral("internet"));
    handset::install(std::make_shared<FixedTelephone>());
    if (!libaplog_to_module_ptr)
        libaplog_open("/dev/null");
}

} // namespace bench
