// Makes calls on the simulated handset, for the contract test.
#pragma once

#include "handset/HandsetRig.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"

namespace handset::test {

class SimulatedRig : public HandsetRig
{
public:
    bool open() override
    {
        phone = std::make_unique<Phone>(state.path(), clock);
        return phone->opened.error.isEmpty() && phone->opened.notice.isEmpty() && *phone;
    }
    void close() override { phone.reset(); }
    Handset &handset() override { return phone->handset(); }

    bool begin(CallKind kind, CallDirection direction) override
    {
        const QString number = QStringLiteral("0301234");
        answering = direction == CallDirection::Answered;
        return (answering ? (*phone)->ring(number) : (*phone)->dial(number, kind)) == Success;
    }
    bool connectCall() override { return (answering ? (*phone)->answer() : (*phone)->remoteAnswer()) == Success; }
    bool end() override { return (*phone)->hangUp() == Success; }
    bool beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond) override
    {
        return (*phone)->packets().startSession(apn, sentPerSecond, receivedPerSecond) == Success;
    }
    bool endSession() override { return (*phone)->packets().stopSession() == Success; }
    void pass(qint64 ms) override { clock->advance(ms); }

    bool chargeUnits() override
    {
        charging::Tariff tariff;
        tariff.unitsPerInterval = 10;
        tariff.interval = 10;
        return (*phone)->charging()->setTariff(CallDirection::Dialed, tariff) == Success &&
               (*phone)->charging()->setTariff(CallDirection::Answered, tariff) == Success;
    }
    bool payIn(const QString &amount, const Date &expires) override
    {
        return (*phone)->charging()->topUp(amount, expires) == Success;
    }
    bool setUpdateRule(quint8 file, quint8 rule) override
    {
        return (*phone)->simCard().setUpdateRule(file, rule) == Success;
    }
    QByteArray pin2() const override { return charging::SimCard::newCardPin2.toByteArray(); }

protected:
    std::unique_ptr<Phone> phone;

private:
    StateDir state;
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    bool answering = false;
};

} // namespace handset::test
