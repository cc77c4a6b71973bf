// Makes calls on a handset over a modem, for the contract test: what its daemon would report is said here.
#pragma once

#include "handset/HandsetRig.h"
#include "handset/live/LiveDesk.h"

namespace handset::test {

class LiveRig : public HandsetRig
{
public:
    bool open() override
    {
        make();
        return desk.phone != nullptr;
    }
    void close() override { desk.close(); }
    Handset &handset() override { return *desk.phone; }
    /// The modem of a telephone of today makes no circuit-switched data calls; PIN2 is where the SIM's files are.
    QStringList lackingRoles() const override
    {
        return {QStringLiteral("DataCalls"), QStringLiteral("SimSecurity")};
    }
    bool hasSimFiles() const override { return false; }

    bool begin(CallKind kind, CallDirection direction) override
    {
        if (kind != CallKind::Voice)
            return false;
        call = {QStringLiteral("call%1").arg(++calls),
                direction == CallDirection::Dialed ? CallPhase::Dialing : CallPhase::Incoming,
                direction,
                QStringLiteral("0301234"),
                {},
                false};
        emit modem().callReported(call);
        return true;
    }
    bool connectCall() override
    {
        call.phase = CallPhase::Active;
        emit modem().callReported(call);
        return true;
    }
    bool end() override
    {
        call.phase = CallPhase::Over;
        emit modem().callReported(call);
        emit modem().callGone(call.id);
        return true;
    }
    /// The bytes are the kernel's, of an interface that has carried some before.
    bool beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond) override
    {
        perSecond = {sentPerSecond, receivedPerSecond};
        sessionMs = 0;
        count();
        session.id = QStringLiteral("session%1").arg(++sessions);
        session.apn = apn;
        session.interface = QStringLiteral("wwan0");
        emit modem().sessionReported(session);
        return true;
    }
    bool endSession() override
    {
        emit modem().sessionGone(session.id);
        perSecond = {};
        return true;
    }
    void pass(qint64 ms) override
    {
        sessionMs += ms;
        count();
        desk.pass(ms);
    }

    bool chargeUnits() override
    {
        charging::Tariff tariff;
        tariff.unitsPerInterval = 10;
        tariff.interval = 10;
        return desk.phone->charging()->setTariff(CallDirection::Dialed, tariff) == Success &&
               desk.phone->charging()->setTariff(CallDirection::Answered, tariff) == Success;
    }
    bool payIn(const QString &amount, const Date &expires) override
    {
        return desk.phone->charging()->topUp(amount, expires) == Success;
    }
    bool setUpdateRule(quint8, quint8) override { return false; }
    QByteArray pin2() const override { return {}; }

protected:
    virtual void make() = 0;
    live::Modem &modem() { return desk.phone->modem(); }

    LiveDesk desk;

private:
    void count() const
    {
        constexpr qint64 before = 7'000;
        desk.setInterface(QStringLiteral("wwan0"), before + perSecond.sent * sessionMs / second,
                          before + perSecond.received * sessionMs / second);
    }

    live::ReportedCall call;
    live::ReportedSession session;
    live::Bytes perSecond;
    qint64 sessionMs = 0;
    int calls = 0;
    int sessions = 0;
};

} // namespace handset::test
