// The simulated SIM card: what the phone asks of it, and what who makes it and who carries it can do.
#pragma once

#include "charging/SimCard.h"
#include "handset/AdviceOfCharge.h"
#include "handset/SimSecurity.h"

namespace handset::calllog {
class Ledger;
}

namespace handset::simulated {

/// Operations return a status of handset/Status.h; one that fails has changed nothing. What is set is kept in the
/// ledger.
class SimAccess final : public AdviceOfCharge, public SimSecurity
{
public:
    /// `owner` outlives this.
    explicit SimAccess(calllog::Ledger &owner)
        : ledger(owner)
    {}

    int updateRule(quint8 file, quint8 &rule) override;
    int meterMaximum(QString &maximum, bool &enabled) override;
    int setMeterMaximum(const QString &maximum) override;
    int disableMeterMaximum() override;
    int chargeType(quint8 &type) override;
    int setChargeType(quint8 type) override;
    int priceAndCurrency(QString &price, QString &currency) override;
    int setPriceAndCurrency(const QString &price, const QString &currency) override;

    int pinStatus(quint8 pin, quint32 &status) override;
    int triesLeft(quint8 pin, int &tries) override;
    int verifyPin(quint8 pin, const QByteArray &digits, bool &accepted) override;

    /// As Ledger::card(); a new card when it cannot be read.
    charging::SimCard card() const;
    /// Who may update `file` (AdviceOfCharge::File); any number is a rule, see AdviceOfCharge::UpdateRule.
    int setUpdateRule(quint8 file, quint8 rule);
    /// Switches the asking for PIN2 on or off; needs no code.
    int setPin2Enabled(bool enabled);
    /// Forgets that PIN2 has been entered, as switching off does.
    int powerCycle();
    /// As charging::Pin2::unblock(). The digits are neither kept nor traced.
    int unblockPin2(QByteArrayView puk, QByteArrayView newPin, bool &accepted);

private:
    calllog::Ledger &ledger;
};

} // namespace handset::simulated
