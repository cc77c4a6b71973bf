// The simulated telephone's way to its SIM card.
#pragma once

#include "AdviceOfCharge.h"
#include "CallRecorder.h"
#include "ChargeMeter.h"
#include "SimControl.h"
#include "SimSecurity.h"

namespace handset::simulated {

class SimAccess final : public AdviceOfCharge, public SimSecurity, public SimControl
{
public:
    /// Both outlive this.
    SimAccess(calllog::CallRecorder &callRecorder, ChargeMeter &chargeMeter)
        : recorder(callRecorder)
        , meter(chargeMeter)
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

    const sim::SimCard &card() const override { return meter.state().card; }
    int setUpdateRule(quint8 file, quint8 rule) override;
    int setPin2Enabled(bool enabled) override;
    int powerCycle() override;
    int unblockPin2(QByteArrayView puk, QByteArrayView newPin, bool &accepted) override;

private:
    template <typename Edit>
    int edit(Edit edit);

    calllog::CallRecorder &recorder;
    ChargeMeter &meter;
};

} // namespace handset::simulated
