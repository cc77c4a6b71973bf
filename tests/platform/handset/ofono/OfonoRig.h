// The handset as the backend of oFono puts it together, over a daemon that is not real.
#pragma once

#include "handset/live/LiveRig.h"
#include "handset/ofono/OfonoDesk.h"
#include "ofono/OfonoHandset.h"

namespace handset::test {

/// Over a modem without a call meter the own tariff charges.
class OfonoRig : public LiveRig
{
protected:
    virtual QStringList interfaces() const
    {
        return {QStringLiteral("VoiceCallManager"), QStringLiteral("ConnectionManager"),
                QStringLiteral("SimManager")};
    }
    /// That the modem and its card are new.
    virtual void fillCard() {}

    bool makePhone() override
    {
        if (!fake) {
            fake = std::make_unique<FakeOfono>(systemBus().address());
            fillCard();
            fake->setInterfaces(interfaces());
            fake->appear();
        }
        desk.openWith([this](std::unique_ptr<calllog::Ledger> ledger, live::InterfaceCounters counters) {
            return std::make_unique<ofono::OfonoHandset>(std::move(ledger), desk.clock,
                                                         std::make_unique<ofono::OfonoModem>(),
                                                         ofono::CallMeter::usualWaitMs, std::move(counters));
        });
        return desk.phone != nullptr;
    }
    bool isReady() override { return desk.phone->modem().state().isThere; }
    void addCall(CallDirection direction) override
    {
        fake->addCall(call(), callIn(direction == CallDirection::Dialed ? "dialing" : "incoming",
                                     number.toLatin1().constData()));
    }
    void answerCall() override { fake->setCall(call(), "State", QStringLiteral("active")); }
    void endCall() override
    {
        fake->setCall(call(), "State", QStringLiteral("disconnected"));
        fake->removeCall(call());
    }
    void addSession(const QString &apn, const QString &interface) override
    {
        fake->addContext(context(),
                         {{QStringLiteral("Active"), true},
                          {QStringLiteral("AccessPointName"), apn},
                          {QStringLiteral("Settings"), QVariantMap{{QStringLiteral("Interface"), interface}}}});
    }
    void removeSession() override { fake->removeContext(context()); }

    std::unique_ptr<FakeOfono> fake;

private:
    QString call() const { return FakeOfono::modem + QStringLiteral("/voicecall%1").arg(calls); }
    QString context() const { return FakeOfono::modem + QStringLiteral("/context%1").arg(sessions); }
};

/// Over one whose card counts: PIN2 with each write, and no account.
class MeteredOfonoRig final : public OfonoRig
{
public:
    QStringList lackingRoles() const override { return {QStringLiteral("DataCalls")}; }
    bool hasSimFiles() const override { return true; }
    QList<quint8> updateRules() const override { return {AdviceOfCharge::UpdateUnderPin2}; }
    /// Of a card that has none and only zeros the daemon says what it says of one that it cannot read.
    QString newCurrency() const override { return QStringLiteral("EUR"); }
    bool asksForPin2EachTime() const override { return true; }
    bool hasAccount() const override { return false; }
    bool setUpdateRule(quint8, quint8 rule) override { return rule == AdviceOfCharge::UpdateUnderPin2; }
    QByteArray pin2() const override { return fake->pin2.toLatin1(); }
    bool chargeUnits() override
    {
        isCharged = true;
        return true;
    }

    bool begin(CallKind kind, CallDirection direction) override
    {
        const int before = readings;
        currentUnits = 0;
        return OfonoRig::begin(kind, direction) && until([&] { return readings > before; });
    }
    bool connectCall() override
    {
        isConnected = OfonoRig::connectCall();
        return isConnected;
    }
    bool end() override
    {
        const int before = readings;
        return OfonoRig::end() && (!std::exchange(isConnected, false) || until([&] { return readings > before; }));
    }
    /// The card counts as the call goes on; the daemon tells the call's own meter, and not the card's.
    void pass(qint64 ms) override
    {
        if (isCharged && isConnected) {
            const auto units = static_cast<uint>(ms / second);
            QVariant &accumulated =
                fake->answers[QStringLiteral("CallMeter")][QStringLiteral("AccumulatedCallMeter")];
            accumulated = accumulated.toUInt() + units;
            currentUnits += units;
            const int before = toldUnits;
            fake->set(FakeOfono::modem, "CallMeter", "CallMeter", currentUnits);
            QVERIFY(until([&] { return toldUnits > before; }));
        }
        OfonoRig::pass(ms);
    }

private:
    QStringList interfaces() const override { return OfonoRig::interfaces() << QStringLiteral("CallMeter"); }
    void fillCard() override
    {
        fake->answers[QStringLiteral("CallMeter")] = {{QStringLiteral("AccumulatedCallMeter"), 0U},
                                                      {QStringLiteral("AccumulatedCallMeterMaximum"), 0U},
                                                      {QStringLiteral("PricePerUnit"), 0.0},
                                                      {QStringLiteral("Currency"), newCurrency()}};
        fake->answers[QStringLiteral("SimManager")] = {
            {QStringLiteral("PinRequired"), QStringLiteral("none")},
            {QStringLiteral("Retries"),
             QVariant::fromValue(QMap<QString, uchar>{{QStringLiteral("pin2"), static_cast<uchar>(3)}})}};
    }
    bool makePhone() override
    {
        if (!OfonoRig::makePhone())
            return false;
        QObject::connect(&meter(), &ofono::CallMeter::accumulatedRead, [this] { ++readings; });
        QObject::connect(&meter(), &ofono::CallMeter::currentTold, [this] { ++toldUnits; });
        return true;
    }
    bool isReady() override { return meter().accumulated() && meter().tries(); }
    const ofono::CallMeter &meter() const
    {
        return static_cast<const ofono::OfonoHandset &>(*desk.phone).callMeter();
    }

    bool isCharged = false;
    bool isConnected = false;
    uint currentUnits = 0;
    int readings = 0;
    int toldUnits = 0;
};

} // namespace handset::test
