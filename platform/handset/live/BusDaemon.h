// A daemon on the system bus.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <memory>

class BusProbe;
class QTimer;

namespace handset::live {

/// Where the system bus is: DBUS_SYSTEM_BUS_ADDRESS, or the place that every distribution gives it.
QString systemBusAddress();

/// What an object of a daemon that runs answers to a method without arguments; an error where none does within
/// `longestMs`, of which a bus that is silent takes a quarter of a second. The one question that is waited for, before there is a handset.
QDBusMessage askAndWait(const QString &service, const QString &path, const QString &interface,
                        const QString &method, int longestMs);

/// How long what is asked of a daemon may take, in ms.
struct Patience {
    int answerMs = 5'000;    ///< for the answer to anything but dialing
    int dialingMs = 60'000;  ///< some modems answer when the call is connected
    int reconnectMs = 5'000; ///< between two attempts to reach a bus that has gone
};

/// Follows one name on the bus through every restart of the daemon and of the bus. It is never started by this, and
/// nothing waits for it: with the owner's unique name as service, Qt asks nobody who that is.
class BusDaemon : public QObject
{
    Q_OBJECT

public:
    explicit BusDaemon(QString name, QString address = systemBusAddress(),
                       int reconnectMs = Patience().reconnectMs);
    ~BusDaemon() override;

    /// False when there is no bus or it is silent; it is then looked for until there is one. This alone waits, for the
    /// bus itself, `longestMs`.
    bool start(int longestMs);
    /// Why start() has found no bus, part of a sentence.
    QString error() const { return whyNot; }
    /// Whether it has found one that takes a connection and says nothing.
    bool isBusSilent() const { return wasSilent; }
    /// That of the bus while there is one; another one after the bus has gone and come back.
    const QDBusConnection &bus() const { return connection; }
    /// The unique name of the daemon; empty while it is not there.
    const QString &owner() const { return ownerName; }
    /// The bus has said whether the daemon is there.
    bool isOwnerKnown() const { return hasAnswered; }

signals:
    /// The daemon is there, and knows nothing of what was asked of the one before.
    void appeared();
    void vanished();

private slots:
    void ownerChanged(const QString &name, const QString &before, const QString &now);
    void busLost();

private:
    void lookForBus();
    bool connectToBus();
    void askForOwner();
    void setOwner(const QString &now);

    const QString service;
    const QString busAddress;
    QString connectionName;
    QDBusConnection connection;
    QString ownerName;
    bool hasAnswered = false; ///< the bus, when it was asked for the owner
    QString whyNot;
    bool wasSilent = false;
    QTimer *reconnect;               ///< runs while there is no bus
    std::unique_ptr<BusProbe> probe; ///< while the bus is asked whether it answers
};

} // namespace handset::live
