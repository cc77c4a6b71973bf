// The simulated telephone's times and costs of calls.
#pragma once

#include "ChargeMeter.h"
#include "Figures.h"

namespace handset::simulated {

/// Times as the recorder has them; costs from the recorder, the SIM's meter and the account, in the unit of the charge
/// type, the running call included.
class CallFigures final : public calllog::Figures
{
public:
    /// Both outlive this.
    CallFigures(calllog::CallRecorder &callRecorder, ChargeMeter &chargeMeter)
        : Figures(callRecorder)
        , recorder(callRecorder)
        , meter(chargeMeter)
    {}

    int remainingCredit(QByteArray &text) override;
    int lastCallCost(QByteArray &text) override;

    int depositExpirationDate(Date &date) override;
    int lastDeposit(QByteArray &text) override;
    int dialedCallsCost(QByteArray &text) override;
    int answeredCallsCost(QByteArray &text) override;
    int allCallsCost(QByteArray &text) override;
    int resetAll() override;
    int resetDialedCallsCost() override;
    int resetAnsweredCallsCost() override;
    int resetAllCallsCost() override;

private:
    quint32 dueUnits() const { return meter.dueUnits(recorder.connectedMs()); }
    int amount(quint64 units, QByteArray &text) const;
    int cost(calllog::CostCounter counter, QByteArray &text) const;
    int reset(calllog::CostCounter counter);
    int resetMeter(std::initializer_list<calllog::Counter> times,
                   std::initializer_list<calllog::CostCounter> costs);

    calllog::CallRecorder &recorder;
    ChargeMeter &meter;
};

} // namespace handset::simulated
