// The simulated telephone: the embedded default behind the phone's libraries.
#pragma once

#include "Call.h"
#include "ChargingControl.h"
#include "Handset.h"
#include "PacketControl.h"
#include "SimControl.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <array>
#include <memory>

namespace handset::simulated {

using handset::CallDirection;
using handset::CallKind;
using handset::PastCall;

/// One line, one call at a time. Every operation answers a status of handset/Status.h; WrongState when the line is
/// not in the state that the operation needs, StorageFailed when the call log could not be written. An operation
/// that fails has changed nothing. The end of the telephone ends the call on the line and the packet-data session;
/// neither knows of the other.
///
/// A call and a session can always be ended. An end that cannot be written is owed to the call log: owesRecord().
///
/// A connected call is charged as it goes on. Where nothing more may be charged (ChargingControl::unitsLeft() is 0)
/// the telephone ends a charged call and lets no other begin. Calls to emergencyNumbers cost nothing and always go
/// on.
class SimulatedTelephone : public QObject, public Handset
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

    ~SimulatedTelephone() override = default;

    /// 3GPP TS 22.101, 10.1.1: the numbers that every telephone knows.
    static constexpr std::array emergencyNumbers{"112", "911"};

    /// Idle -> Dialing. `number` may hold digits, '+', '*', '#', 1 to 80 of them; else InvalidArgument, and so for what
    /// is no CallKind. NotAllowed for a call that would be charged where nothing more may be; so for the next two.
    virtual int dial(const QString &number, CallKind kind) = 0;
    /// Dialing -> Connected: the other side answers.
    virtual int remoteAnswer() = 0;
    /// Idle -> Ringing: a voice call from `number` (as for dial(), or empty: withheld).
    virtual int ring(const QString &number) = 0;
    /// Ringing -> Connected: we answer.
    virtual int answer() = 0;
    /// Dialing, Ringing or Connected -> Idle, also where the call log cannot be written. The call is in the log when
    /// this returns 0 and nothing is owed.
    virtual int hangUp() = 0;
    /// Adds calls that are over to the log, in one transaction, counted and charged as if they had been made in their
    /// order, also where nothing more might be charged. The last connected one becomes the last call, unless a call
    /// is connected now. `units` of the calls are not used. InvalidArgument for a negative duration, a number that
    /// could not have been dialed or shown, and for what is no CallKind or CallDirection.
    virtual int addHistory(const QList<PastCall> &calls) = 0;
    /// Writes the time that the connected call has lasted so far and what it has cost, and what the running
    /// packet-data session has counted, so that a crash loses no more than what follows, and what is owed; ends a call
    /// whose time is up. The telephone does this by itself every few seconds, and whenever a unit is due; success with
    /// none of them.
    virtual int checkpoint() = 0;
    /// Whether the end of a call or a packet-data session could not be written to the call log yet. It is kept in
    /// memory, counts in every figure, and is written with the next operation that writes. Until then those that write
    /// answer StorageFailed: a call can be dialed and can ring, but is not connected, and no session begins.
    virtual bool owesRecord() const = 0;

    virtual LineState lineState() const = 0;
    virtual CallKind callKind() const = 0;  ///< of the call on the line; Voice when idle
    virtual QString number() const = 0;     ///< of the call on the line; null when idle
    virtual qint64 connectedMs() const = 0; ///< how long the call on the line is connected, by the clock; else 0

    /// The network's tariffs and the account; the SIM card; packet data. They belong to the telephone.
    virtual ChargingControl &charging() = 0;
    virtual SimControl &simCard() = 0;
    virtual PacketControl &packets() = 0;

signals:
    /// The line state, a figure that a query answers, or owesRecord() has changed.
    void changed();
};

} // namespace handset::simulated
