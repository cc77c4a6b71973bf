// The telephone line of a handset whose calls are those of a modem: what goes on there, and what can be asked of it.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>
#include <optional>

namespace handset {

enum class CallPhase { Dialing, Alerting, Incoming, Waiting, Active, Held, Over };

struct LineCall {
    QString id; ///< the modem's name for it
    CallPhase phase = CallPhase::Dialing;
    QString number;         ///< empty where it is withheld
    qint64 connectedMs = 0; ///< by the boot clock; 0 until it is connected
};

/// A data connection.
struct LineSession {
    QByteArray apn;    ///< Latin-1; may be empty
    QString interface; ///< of the network; empty where there is none
    /// Bytes since its beginning, 0 or more, as they were read last; nothing in a process that does not record.
    std::optional<qint64> sent;
    std::optional<qint64> received;
};

struct LineReport {
    QString daemon; ///< what the modem is reached through: "ModemManager"
    bool hasModem = false;
    QString modem;               ///< its name, as the daemon has it; empty while there is none
    QString network;             ///< the operator; empty while there is none
    QString status;              ///< "registered", "searching", ..., in the user's language; may be empty
    QList<LineCall> calls;       ///< those that are there now, connected ones first
    QList<LineSession> sessions; ///< likewise
    bool isRecorder = false;     ///< this process records them, and no other
    /// Another process does. Neither where the call log cannot be written.
    bool isRecordedElsewhere = false;
    /// What calls cost is said by the modem's advice of charge; else by the own tariff.
    bool isChargedByModem = false;
};

/// GUI thread only. What is asked for is answered by the daemon later, and seen in report(); the handset's signal
/// changed() tells when that is another.
class LineControl
{
public:
    virtual LineReport report() const = 0;
    /// Asks for a call, or takes or ends one of report(). NotAvailable without a modem, InvalidArgument for what is no
    /// number or no call.
    virtual int dial(const QString &number) = 0;
    virtual int answer(const QString &call) = 0;
    virtual int hangUp(const QString &call) = 0;
    /// `listener` is told why the daemon has not done what it was asked for, one sentence; it takes the place of the one
    /// before. Null for nobody.
    virtual void setRefusalListener(const std::function<void(const QString &why)> &listener) = 0;

protected:
    LineControl() = default;
    ~LineControl() = default;
};

} // namespace handset
