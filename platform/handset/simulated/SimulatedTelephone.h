// The simulated telephone: the embedded default behind the phone's libraries.
#pragma once

#include "Handset.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

namespace handset::simulated {

enum class CallKind { Voice, Data };
enum class CallDirection { Dialed, Answered };

/// A call that is over, for a ready-made history.
struct PastCall {
    CallKind kind = CallKind::Voice;
    CallDirection direction = CallDirection::Dialed;
    QString number;        ///< as dialed or shown; may be empty (withheld)
    qint64 startWallMs = 0;///< since 1970-01-01 00:00 UTC
    qint64 durationMs = 0; ///< connected time, 0 or more; 0 is a call that was never connected
};

/// One line, one call at a time. Every operation answers a status of handset/Status.h; WrongState when the line is
/// not in the state that the operation needs, and then nothing has changed.
class SimulatedTelephone : public QObject, public Handset
{
    Q_OBJECT

public:
    enum class LineState {
        Idle,
        Dialing,  ///< we called, the other side has not answered
        Ringing,  ///< the other side called, we have not answered
        Connected
    };
    Q_ENUM(LineState)

    ~SimulatedTelephone() override = default;

    /// Idle -> Dialing. `number` may hold digits, '+', '*', '#', 1 to 80 of them; else InvalidArgument.
    virtual int dial(const QString &number, CallKind kind) = 0;
    /// Dialing -> Connected: the other side answers.
    virtual int remoteAnswer() = 0;
    /// Idle -> Ringing: a voice call from `number` (empty: withheld).
    virtual int ring(const QString &number) = 0;
    /// Ringing -> Connected: we answer.
    virtual int answer() = 0;
    /// Dialing, Ringing or Connected -> Idle. The call is in the log when this returns 0.
    virtual int hangUp() = 0;
    /// Adds calls that are over to the log, in one transaction, counted as if they had been made.
    virtual int addHistory(const QList<PastCall> &calls) = 0;

    virtual LineState lineState() const = 0;
    virtual CallKind callKind() const = 0;     ///< of the call on the line; Voice when idle
    virtual QString number() const = 0;        ///< of the call on the line; null when idle
    virtual qint64 connectedMs() const = 0;    ///< how long the call on the line is connected, by the clock; else 0

signals:
    /// The line state, or a figure that a query answers, has changed.
    void changed();
};

} // namespace handset::simulated
