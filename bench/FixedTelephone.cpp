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

// What every figure is at first: no two of a screen are the same, so that none finds the text of another.
constexpr CallTime lastCall{0, 3, 27};
constexpr CallTime answeredCalls{3, 41, 52};
constexpr CallTime dataCalls{1, 16, 40};
constexpr CallTime allCalls{10, 1, 39};
constexpr CallTime lifetimeCalls{127, 45, 9};
constexpr CallTime firstSession{0, 48, 13};
constexpr CallTime secondSession{2, 30, 6};
constexpr CallTime allSessions{34, 12, 58};
constexpr int creditCents = 2375;
constexpr int depositCents = 3000;
constexpr int lastCallCents = 1048;
constexpr int dialedCallsCents = 1812;
constexpr int answeredCallsCents = 1126;
constexpr int allCallsCents = 2938;

// A figure stays within so much of the first, and takes thousands of changes to be the same again.
constexpr quint32 secondsOfRange = 10 * 3600;
constexpr quint32 centsOfRange = 6000;
constexpr quint32 bytesOfRange = 1'000'003;

CallTime now(const CallTime &first)
{
    constexpr quint32 step = 61;
    const quint64 seconds = (first.hours * quint64{60} + first.minutes) * 60 + first.seconds;
    return CallTime::fromSeconds(seconds + quint64{step} * changes() % secondsOfRange);
}

quint32 bytes(quint32 first)
{
    constexpr quint32 step = 1031;
    return first + static_cast<quint32>(quint64{step} * changes() % bytesOfRange);
}

QByteArray amount(int firstCents)
{
    constexpr quint32 step = 7;
    const quint32 cents = static_cast<quint32>(firstCents) + step * changes() % centsOfRange;
    return QByteArray::number(cents / 100) + '.' + QByteArray::number(cents % 100).rightJustified(2, '0');
}

class Service final : public handset::CallService
{
public:
    int totalCallTime(CallTime &time) override { return answer(time, now(allCalls)); }
    int resetCallTime() override { return Success; }
    int remainingCredit(QByteArray &text) override { return answer(text, amount(creditCents)); }
    int lastCallCost(QByteArray &text) override { return answer(text, amount(lastCallCents)); }
};

class Log final : public handset::CallLog
{
public:
    int lastCallTime(CallTime &time) override { return answer(time, now(lastCall)); }
    int dialedCallsTime(CallTime &time) override { return answer(time, now(fixedTime)); }
    int answeredCallsTime(CallTime &time) override { return answer(time, now(answeredCalls)); }
    int lifetimeCallsTime(CallTime &time) override { return answer(time, now(lifetimeCalls)); }
    int resetDialedCallsTime() override { return Success; }
    int resetAnsweredCallsTime() override { return Success; }
    int resetAll() override { return Success; }
    int depositExpirationDate(handset::Date &date) override { return answer(date, {2006, 3, 9}); }
    int lastDeposit(QByteArray &text) override { return answer(text, amount(depositCents)); }
    int dialedCallsCost(QByteArray &text) override { return answer(text, amount(dialedCallsCents)); }
    int answeredCallsCost(QByteArray &text) override { return answer(text, amount(answeredCallsCents)); }
    int allCallsCost(QByteArray &text) override { return answer(text, amount(allCallsCents)); }
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
        const CallTime time = now(dataCalls);
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
        const handset::DataSession first{1, bytes(123'456), bytes(7'890'123), now(firstSession),
                                         firstSessionName()};
        const handset::DataSession second{2, bytes(2'345), bytes(67'890), now(secondSession),
                                          QByteArrayLiteral("mms.example")};
        return answer(sessions, {3, {first, second, handset::DataSession{}}});
    }
    int totalDuration(CallTime &duration) override { return answer(duration, now(allSessions)); }
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
