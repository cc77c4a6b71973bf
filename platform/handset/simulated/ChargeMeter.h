// What the connected call costs, and the state that changes with it.
#pragma once

#include "ChargingState.h"

#include <QtCore/QStringList>

#include <functional>

namespace handset::calllog {
class CallRecorder;
}

namespace handset::simulated {

class ChargeMeter final : public calllog::CallCharges
{
public:
    /// Reads what `recorder` keeps and keeps everything that changes there; it outlives this. What cannot be used is
    /// kept under another name, and is new; `notices` gets a sentence about each. StorageFailed when the call log
    /// cannot be read: nothing is known then, and nothing may be written.
    int load(calllog::CallRecorder &recorder, QStringList &notices);

    const ChargingState &state() const { return kept; }
    /// Keeps `next` in place of state(), which is as it was when that fails.
    int change(const ChargingState &next);
    /// The same, by an operation that writes something else in the same transaction.
    int change(const ChargingState &next, const std::function<int(const calllog::KeptValues &)> &write);

    /// A call is connected, or none is any more.
    void begin(const sim::Tariff &tariff) { running = Running{tariff, 0}; }
    void end() { running.reset(); }

    /// Of the connected call after so much time, beyond what is charged: 0 without one.
    quint32 dueUnits(qint64 connectedMs) const;
    /// Of the connected call, so far.
    quint32 chargedUnits() const { return running ? running->charged : 0; }

    std::optional<qint64> longestMs() const override;
    calllog::Charge due(qint64 connectedMs) const override;
    void charged(const calllog::Charge &charge) override;

private:
    struct Running {
        sim::Tariff tariff;
        quint32 charged = 0;
    };

    ChargingState kept;
    std::optional<Running> running;
    calllog::CallRecorder *keeper = nullptr;
};

} // namespace handset::simulated
