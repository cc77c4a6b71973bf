// Makes calls on a handset over a modem, for the contract test: a daemon that is not real says what the rig wants.
#pragma once

#include "handset/HandsetRig.h"
#include "handset/live/LiveDesk.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QSignalSpy>

#include <functional>

namespace handset::test {

class LiveRig : public HandsetRig
{
public:
    bool open() override
    {
        return makePhone() && until([this] { return isReady(); });
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
        ++calls;
        addCall(direction);
        return until([this] { return !desk.phone->calls().reported().isEmpty(); });
    }
    bool connectCall() override
    {
        answerCall();
        return until([this] {
            const QList<live::ReportedCall> all = desk.phone->calls().reported();
            return all.size() == 1 && desk.phone->calls().connectedMs(all.constFirst().id);
        });
    }
    bool end() override
    {
        endCall();
        return until([this] { return desk.phone->calls().reported().isEmpty(); });
    }
    /// The bytes are the kernel's, of an interface that has carried some before.
    bool beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond) override
    {
        perSecond = {sentPerSecond, receivedPerSecond};
        sessionMs = 0;
        count();
        ++sessions;
        addSession(QString::fromLatin1(apn), QStringLiteral("wwan0"));
        return until([this] { return !desk.phone->sessions().reported().isEmpty(); });
    }
    bool endSession() override
    {
        removeSession();
        perSecond = {};
        return until([this] { return desk.phone->sessions().reported().isEmpty(); });
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
    /// The daemon is there with a modem, and the handset over it is opened.
    virtual bool makePhone() = 0;
    virtual bool isReady() = 0;
    virtual void addCall(CallDirection direction) = 0;
    virtual void answerCall() = 0;
    virtual void endCall() = 0;
    virtual void addSession(const QString &apn, const QString &interface) = 0;
    virtual void removeSession() = 0;

    /// Waits for what the daemon says; the handset tells of it.
    bool until(const std::function<bool()> &state) const
    {
        constexpr int longestMs = 60'000;
        QElapsedTimer since;
        since.start();
        QSignalSpy changed(desk.phone.get(), &live::LiveHandset::changed);
        while (!state())
            if (since.hasExpired(longestMs) || (!changed.wait(longestMs) && !state()))
                return false;
        return true;
    }

    LiveDesk desk;
    int calls = 0; ///< made until now; so the sessions
    int sessions = 0;
    static inline const QString number = QStringLiteral("0301234");

private:
    void count() const
    {
        constexpr qint64 before = 7'000;
        desk.setInterface(QStringLiteral("wwan0"), before + perSecond.sent * sessionMs / second,
                          before + perSecond.received * sessionMs / second);
    }

    live::Bytes perSecond;
    qint64 sessionMs = 0;
};

} // namespace handset::test
