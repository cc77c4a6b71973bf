// Advice of charge and PIN2, as the SIM of a modem behind oFono has them.
#pragma once

#include "calllog/CallFigures.h"
#include "handset/AdviceOfCharge.h"
#include "handset/SimSecurity.h"
#include "ofono/CallMeter.h"

namespace handset::ofono {

/// A PIN2 that the SIM has taken, until the write that uses it.
class HeldPin
{
public:
    HeldPin() = default;
    ~HeldPin() { drop(); }
    Q_DISABLE_COPY_MOVE(HeldPin)

    void hold(const QByteArray &pin);
    bool isHeld() const { return !digits.isEmpty(); }
    const QByteArray &view() const { return digits; }
    /// The bytes are overwritten; what is on its way on the bus is not in our hands.
    void drop();

private:
    QByteArray digits;
};

/// Every write takes PIN2, which verifyPin() presents before: by writing the maximum as it is. Where the modem has no
/// advice of charge the files of the SIM are NotAvailable, and the phone's own setting is that of `own`.
class MeteredCharging final : public AdviceOfCharge, public SimSecurity
{
public:
    /// All outlive this.
    MeteredCharging(CallMeter &callMeter, calllog::Ledger &owner, AdviceOfCharge &own);

    int updateRule(quint8 file, quint8 &rule) override;
    int meterMaximum(QString &maximum, bool &enabled) override;
    int setMeterMaximum(const QString &maximum) override;
    int disableMeterMaximum() override;
    int chargeType(quint8 &type) override { return ownSettings.chargeType(type); }
    int setChargeType(quint8 type) override;
    int priceAndCurrency(QString &price, QString &currency) override;
    int setPriceAndCurrency(const QString &price, const QString &currency) override;

    int pinStatus(quint8 pin, quint32 &status) override;
    int triesLeft(quint8 pin, int &tries) override;
    int verifyPin(quint8 pin, const QByteArray &digits, bool &accepted) override;

    /// Zeroes the accumulated meter; as the writes.
    int resetMeter();
    /// In the unit of the charge type; NotAvailable where that needs a price that is not known.
    int amount(quint64 units, QByteArray &text);

private:
    int writeMaximum(quint32 units);
    int statusOf(CallMeter::Outcome outcome, std::optional<int> triesBefore);
    int unitOf(quint8 &type, charging::UnitPrice &price);
    template <typename Work>
    int withPin(Work work);

    CallMeter &meter;
    calllog::Ledger &ledger;
    AdviceOfCharge &ownSettings;
    HeldPin pin2;
};

/// Costs are what the SIM's meter says, where there is one; else those of the own tariff. The account pays by the own
/// tariff only.
class MeteredFigures final : public calllog::CallFigures
{
public:
    /// All outlive this.
    MeteredFigures(calllog::Ledger &owner, CallMeter &callMeter, MeteredCharging &charges)
        : CallFigures(owner)
        , meter(callMeter)
        , charging(charges)
    {}

    /// Units of the call that is on, which the accumulated meter has come to since it was read.
    void setUnread(quint32 units) { unread = units; }

    int allCallsCost(QByteArray &text) override;
    int resetAllCallsCost() override;
    int resetAll() override;
    int remainingCredit(QByteArray &text) override;
    int lastDeposit(QByteArray &text) override;
    int depositExpirationDate(Date &date) override;

protected:
    int amount(quint64 units, QByteArray &text) override;

private:
    CallMeter &meter;
    MeteredCharging &charging;
    quint32 unread = 0;
};

} // namespace handset::ofono
