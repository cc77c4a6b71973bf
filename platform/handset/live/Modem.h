// What the daemon of a modem reports, and what it can be asked to do.
#pragma once

#include "handset/Call.h"
#include "handset/LineControl.h"
#include "handset/Patience.h"
#include "handset/Status.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

namespace handset::live {

/// A call as the daemon knows it now.
struct ReportedCall {
    QString id; ///< the daemon's name for it
    CallPhase phase = CallPhase::Dialing;
    std::optional<CallDirection> direction; ///< nothing where only the first phase tells
    QString number;                         ///< empty where it is withheld
    /// Since when it is connected, by the wall clock, in ms since 1970 UTC; nothing where the daemon does not say.
    std::optional<qint64> connectedWallMs;
    /// It was there when the daemon was first asked: nobody has seen how it came to this phase.
    bool isFound = false;
    /// For how long it has been connected when that is reported first, in ms, where the daemon is late with it.
    qint64 connectedBeforeMs = 0;
};

/// Bytes each way, 0 or more.
struct Bytes {
    qint64 sent = 0;
    qint64 received = 0;
};

/// A data connection as the daemon knows it now.
struct ReportedSession {
    QString id;
    QByteArray apn;    ///< Latin-1; may be empty
    QString interface; ///< of the network; empty where there is none
    /// Of this connection, by the daemon's own count; nothing where that says nothing: then those of the interface.
    std::optional<Bytes> counted;
    std::optional<qint64> ms;          ///< how long it has been connected; nothing where the daemon does not say
    std::optional<qint64> sinceWallMs; ///< since when, by the wall clock, in ms since 1970 UTC; likewise
    bool isFound = false;              ///< as of a call
};

/// What one sees of the modem beside calls and sessions.
struct ModemState {
    bool isThere = false;
    QString name;    ///< of the modem, as the daemon has it
    QString network; ///< the operator; empty while there is none
    QString status;  ///< "registered", "searching", ..., in the user's language
};

/// One modem behind its daemon, from now on until the end of this, through every restart of the daemon. All of it on the
/// GUI thread, and nothing waits: what is asked of the daemon is answered by a later signal.
class Modem : public QObject
{
    Q_OBJECT

public:
    /// The daemon: "ModemManager".
    virtual QString daemon() const = 0;
    virtual ModemState state() const = 0;
    /// Looks for the bus, and waits `longestMs` for one that is silent; an error, in words, where there is none. start()
    /// does that where it was not done before.
    virtual QString connectToBus(int /*longestMs*/ = handset::Patience().bus) { return {}; }
    /// Whether that found a bus that takes a connection and says nothing: it may be busy, and is looked for further.
    virtual bool isBusSilent() const { return false; }
    /// Begins to look. What is there already is reported through the event loop.
    virtual void start() = 0;

    /// Asks for a call, or for the end of one, or takes one. What becomes of it is reported; an error of the daemon's by
    /// refused(). NotAvailable where there is no modem, InvalidArgument for what is no number or no call of this modem.
    virtual int dial(const QString &number) = 0;
    virtual int answer(const QString &id) = 0;
    virtual int hangUp(const QString &id) = 0;

signals:
    void callReported(const handset::live::ReportedCall &call);
    /// The daemon knows no such call any more; it is over, however that came.
    void callGone(const QString &id);
    void sessionReported(const handset::live::ReportedSession &session);
    void sessionGone(const QString &id);
    /// The modem, or the daemon, is gone: so is all that ran.
    void lost();
    /// state() is another.
    void stateChanged();
    /// The daemon has refused what it was asked for: one sentence for the user.
    void refused(const QString &why);
};

} // namespace handset::live
