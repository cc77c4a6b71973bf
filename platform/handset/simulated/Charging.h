// The network's side of charging, and the prepaid account.
#pragma once

#include "CallRecorder.h"
#include "ChargeMeter.h"
#include "ChargingControl.h"

namespace handset::simulated {

class Charging final : public ChargingControl
{
public:
    /// Both outlive this.
    Charging(calllog::CallRecorder &callRecorder, ChargeMeter &chargeMeter)
        : recorder(callRecorder)
        , meter(chargeMeter)
    {}

    sim::Tariff tariff(CallDirection direction) const override;
    int setTariff(CallDirection direction, const sim::Tariff &tariff) override;
    int topUp(const QString &amount, const Date &expires) override;
    std::optional<Account> account() const override;
    std::optional<quint32> unitsLeft() const override;
    quint64 runningUnits() const override;
    std::optional<qint64> msLeft() const override;
    StopReason stopReason() const override { return lastStop; }

    /// Whether a call under the tariff that holds for it may begin or go on.
    bool permits(const sim::Tariff &tariff) const;
    /// The connected call has come to its end by what it costs.
    bool isTimeUp() const;
    /// The call that has just been ended for that.
    void callStopped();
    void callBegins() { lastStop = StopReason::None; }

private:
    calllog::CallRecorder &recorder;
    ChargeMeter &meter;
    StopReason lastStop = StopReason::None;
};

} // namespace handset::simulated
