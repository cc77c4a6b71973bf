// The simulated handset: the embedded default behind the phone's libraries.
#pragma once

#include "calllog/LedgerHandset.h"
#include "handset/Call.h"
#include "simulated/SimAccess.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <memory>

class QTimer;

namespace handset::simulated {

using calllog::Charging;
using charging::Account;
using handset::CallDirection;
using handset::CallKind;
using handset::PastCall;

/// A line that is driven by hand over the ledger: one call at a time. Every operation returns a status of
/// handset/Status.h; WrongState when the line is not in the state that the operation needs, RecordedElsewhere when
/// another process records, StorageFailed when the call log could not be written. An operation that fails has changed
/// nothing. The end of the handset ends the call on the line and the packet-data session; neither knows of the other.
///
/// A call and a session can always be ended. An end that cannot be written is owed to the call log: owesRecord().
///
/// A connected call is charged as it goes on. Where nothing more may be charged (Charging::unitsLeft() is 0) the
/// handset ends a charged call and lets no other begin. Calls to emergencyNumbers cost nothing and always go on.
class SimulatedHandset final : public QObject, public calllog::LedgerHandset
{
    Q_OBJECT

public:
    enum class LineState {
        Idle,
        Dialing, ///< we called, the other side has not answered
        Ringing, ///< the other side called, we have not answered
        Connected
    };
    Q_ENUM(LineState)

    /// The ledger is open; `clock` is not null.
    SimulatedHandset(std::unique_ptr<calllog::Ledger> opened, std::shared_ptr<Clock> clock);
    ~SimulatedHandset() override;

    static constexpr auto emergencyNumbers = charging::emergencyNumbers;

    AdviceOfCharge *adviceOfCharge() override { return &sim; }
    SimSecurity *simSecurity() override { return &sim; }
    void changedElsewhere() override;

    /// Idle -> Dialing. `number` may hold digits, '+', '*', '#', 1 to 80 of them; else InvalidArgument, and so for what
    /// is no CallKind. NotAllowed for a call that would be charged where nothing more may be; so for the next two.
    int dial(const QString &number, CallKind kind);
    /// Dialing -> Connected: the other side answers.
    int remoteAnswer();
    /// Idle -> Ringing: a voice call from `number` (as for dial(), or empty: withheld).
    int ring(const QString &number);
    /// Ringing -> Connected: we answer.
    int answer();
    /// Dialing, Ringing or Connected -> Idle, also where the call log cannot be written. The call is in the log when
    /// this returns 0 and nothing is owed.
    int hangUp();
    /// Adds calls that are over to the log, in one transaction, counted and charged as if they had been made in their
    /// order, also where nothing more might be charged. The last connected one becomes the last call, unless a call
    /// is connected now. `units` of the calls are not used. InvalidArgument for a negative duration, a number that
    /// could not have been dialed or shown, and for what is no CallKind or CallDirection.
    int addHistory(const QList<PastCall> &calls);
    /// Writes the time that the connected call has lasted so far and what it has cost, and what the running
    /// packet-data session has counted, so that a crash loses no more than what follows, and what is owed; ends a call
    /// whose time is up. The handset does this by itself every few seconds, and whenever a unit is due; success with
    /// none of them.
    int checkpoint();
    /// Whether the end of a call or a packet-data session could not be written to the call log yet. It is kept in
    /// memory, counts in every figure, and is written with the next operation that writes. Until then those that write
    /// answer StorageFailed: a call can be dialed and can ring, but is not connected, and no session begins.
    bool owesRecord() const override { return ledger->owesCall() || ledger->owesSession(); }
    /// Whether calls and sessions begin and end in this process. Where another one records the line is connected while
    /// a call of that one is, else idle. Takes nothing over when that one ends: a timer does, within a second, and so do
    /// dial(), ring() and PacketFigures::startSession().
    bool isRecording() const { return ledger->isRecorder(); }

    LineState lineState() const;
    CallKind callKind() const;  ///< of the call on the line; Voice when idle
    QString number() const;     ///< of the call on the line; null when idle
    qint64 connectedMs() const; ///< how long the call on the line is connected, by the clock; else 0

    /// The SIM card; packet data. They belong to the handset.
    SimAccess &simCard() { return sim; }
    calllog::PacketFigures &packets() { return packetFigures; }

signals:
    /// The line state, a figure that a query returns, or owesRecord() has changed.
    void changed();

private:
    int begin(LineState begun, const PastCall &begunCall);
    int connectCall(LineState from);
    int endCall();
    int stopCall();
    void setDataCallStatus(DataCalls::CallStatus status);
    void figuresChanged();
    void tellChange();
    void tellHere();
    void tellWhatIsOwed();
    void tick();
    void runTimer();
    bool isTimeUp() const { return state == LineState::Connected && charges.isTimeUp(); }
    bool isUnitDue() const;
    bool isCheckpointDue() const;

    SimAccess sim{*ledger};
    LineState state = LineState::Idle;
    PastCall call;     ///< on the line
    qint64 callId = 0; ///< once it is connected
    /// Runs while a call is connected, a session runs, something is owed, or another process records.
    QTimer *timer;
    qint64 writtenAtMs = 0;      ///< or when that was tried last, or there was nothing to write
    bool records = true;         ///< as of the last runTimer()
    bool isWriteFailing = false; ///< the last checkpoint
    bool toldOwing = false;      ///< with the last changed()
};

} // namespace handset::simulated
