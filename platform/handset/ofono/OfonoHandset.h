// The handset behind oFono, with the SIM's advice of charge where the modem has it.
#pragma once

#include "live/LiveHandset.h"
#include "ofono/MeteredCharging.h"

namespace handset::ofono {

/// While the modem has a call meter, what a call costs is what the accumulated meter comes to more around it; else the
/// own tariff charges it. Which of the two is decided when it is connected. Of calls at once the one that ends first is
/// given what the meter has counted until then: the meter does not say which call it counts.
class OfonoHandset final : public live::LiveHandset
{
    Q_OBJECT

public:
    OfonoHandset(std::unique_ptr<calllog::Ledger> opened, std::shared_ptr<Clock> clocks,
                 std::unique_ptr<OfonoModem> behind, int longestWaitMs = CallMeter::usualWaitMs,
                 live::InterfaceCounters interfaces = live::InterfaceCounters());

    CallService *callService() override { return &meteredFigures; }
    CallLog *callLog() override { return &meteredFigures; }
    AdviceOfCharge *adviceOfCharge() override { return &meteredCharges; }
    /// PIN2 guards the meter and nothing else here.
    SimSecurity *simSecurity() override { return meter.isThere() ? &meteredCharges : nullptr; }

    const CallMeter &callMeter() const { return meter; }
    /// Waits until the daemon has told the figures that it has, `longestMs` at most, with nobody's input taken: a screen that
    /// is opened at once would show them as missing. At once where no daemon runs, and when `isGivenUp`, which may be null,
    /// says so.
    void awaitFigures(int longestMs, const std::function<bool()> &isGivenUp = {});

protected:
    bool isChargedByModem() const override { return meter.isThere(); }

private:
    using Metered = std::shared_ptr<live::CallRecorder::Cost>;

    void callReported(const live::ReportedCall &call);
    void callEnded(const QString &id);
    void accumulatedRead(quint32 units);
    void currentTold(quint32 units);
    void setGiven(quint32 units);

    CallMeter meter;
    MeteredCharging meteredCharges;
    MeteredFigures meteredFigures;
    QSet<QString> known;
    QHash<QString, Metered> running; ///< those that are connected
    QString connectedLast;           ///< of those
    Metered ended;                   ///< the last one, until another is connected; then null
    std::optional<quint32> before;   ///< the accumulated meter as it was read last
    quint32 given = 0;               ///< to calls, and not yet seen in it
};

} // namespace handset::ofono
