// A handset whose calls and data connections are those of a modem.
#pragma once

#include "calllog/LedgerHandset.h"
#include "handset/LineControl.h"
#include "live/CallRecorder.h"
#include "live/OwnCharging.h"
#include "live/SessionRecorder.h"

#include <QtCore/QObject>

#include <memory>

class QTimer;

namespace handset::live {

/// Figures, resets, tariffs and the account come from the ledger; the modem is never asked for one, so nothing waits for
/// it. Calls and connections are recorded by the process that records the state directory; in every other one this
/// shows them and reads. A call that is on at the end of this is not ended, but what it has counted is written: whoever
/// records next goes on.
class LiveHandset : public QObject, public calllog::LedgerHandset, private LineControl
{
    Q_OBJECT

public:
    /// Who shows the figures is told of them this often while something runs, and whoever waits for the end of another
    /// recorder looks as often.
    static constexpr int shownIntervalMs = 1000;

    LiveHandset(std::unique_ptr<calllog::Ledger> opened, std::shared_ptr<Clock> clocks,
                std::unique_ptr<Modem> behind, InterfaceCounters interfaces = InterfaceCounters());
    ~LiveHandset() override;

    /// Modems report no circuit-switched data calls: there is no figure to show.
    DataCalls *dataCalls() override { return nullptr; }
    AdviceOfCharge *adviceOfCharge() override { return &ownCharging; }
    LineControl *lineControl() override { return this; }
    void setChangeListener(const std::function<void()> &listener) override;
    void changedElsewhere() override;
    void setWaitListener(const std::function<void(bool waits)> &listener) override { onWait = listener; }

    Modem &modem() { return *source; }
    const Modem &modem() const { return *source; }
    const CallRecorder &calls() const { return callRecorder; }
    const SessionRecorder &sessions() const { return sessionRecorder; }
    bool isRecording() const { return ledger->record(); }
    /// An end, or a whole call, is still to be written.
    bool owesRecord() const final;

signals:
    /// Calls, connections, owesRecord() or isRecording() have changed, or a figure otherwise than by the passing of time.
    void changed();

protected:
    /// The modem's own advice of charge says what calls cost.
    virtual bool isChargedByModem() const { return false; }
    AdviceOfCharge &ownAdviceOfCharge() { return ownCharging; }
    /// Of Handset::setWaitListener().
    void tellWait(bool waits) const
    {
        if (onWait)
            onWait(waits);
    }
    /// As CallRecorder::charge(); tells of it.
    void charge(const std::shared_ptr<CallRecorder::Cost> &cost, quint32 more);
    /// Until the first listener to changes is there, as where events run before there is one: it is told of what they change.
    void keepChanges() { keepsChanges = true; }
    /// Of calls that are connected from now on: by the own tariff (Unlimited, as long as nothing else is said), or by who
    /// says what they cost.
    void setCharge(calllog::Charge charge) { callRecorder.setCharge(charge); }

private:
    LineReport report() const override;
    int dial(const QString &number) override { return source->dial(number); }
    int answer(const QString &call) override { return source->answer(call); }
    int hangUp(const QString &call) override { return source->hangUp(call); }
    void setRefusalListener(const std::function<void(const QString &)> &listener) override
    {
        onRefusal = listener;
    }
    void tick();
    void callsMoved(bool begunOrEnded);
    void sessionsMoved(bool begunOrEnded);
    void tellElsewhere();
    void tellHere();
    void runTimer();

    std::unique_ptr<Modem> source;
    OwnCharging ownCharging{*ledger};
    CallRecorder callRecorder;
    SessionRecorder sessionRecorder;
    QTimer *timer;
    qint64 writtenAtMs = 0;    ///< of the boot clock: the last checkpoint
    bool records = true;       ///< as of the last runTimer()
    bool keepsChanges = false; ///< for the first listener
    bool hasKept = false;
    std::function<void(bool)> onWait;
    std::function<void(const QString &)> onRefusal;
};

/// Calls `here` from the event loop when the state of `modem` has changed and it is there. As handset::awaitModem().
Awaited await(std::unique_ptr<Modem> modem, const std::function<void()> &here);

/// Opens a handset over `modem`, with the ledger of the settings' state directory. As handset::open().
Opened open(const Settings &settings, std::unique_ptr<Modem> modem);
/// Likewise one that `make` makes.
using Make = std::function<std::shared_ptr<LiveHandset>(std::unique_ptr<calllog::Ledger> ledger)>;
Opened open(const Settings &settings, const Make &make);

} // namespace handset::live
