// Advice of charge where the modem has none.
#pragma once

#include "calllog/Ledger.h"
#include "handset/AdviceOfCharge.h"

namespace handset::live {

/// The phone's own tariff charges the calls, in units: the files of the SIM are NotAvailable, the charge type is the
/// phone's own setting.
class OwnCharging final : public AdviceOfCharge
{
public:
    /// `owner` outlives this.
    explicit OwnCharging(calllog::Ledger &owner)
        : ledger(owner)
    {}

    int updateRule(quint8, quint8 &) override { return NotAvailable; }
    int meterMaximum(QString &, bool &) override { return NotAvailable; }
    int setMeterMaximum(const QString &) override { return NotAvailable; }
    int disableMeterMaximum() override { return NotAvailable; }
    int chargeType(quint8 &type) override;
    int setChargeType(quint8 type) override;
    int priceAndCurrency(QString &, QString &) override { return NotAvailable; }
    int setPriceAndCurrency(const QString &, const QString &) override { return NotAvailable; }

private:
    calllog::Ledger &ledger;
};

} // namespace handset::live
