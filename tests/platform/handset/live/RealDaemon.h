// A telephony daemon as Debian ships it, on a bus of the test's own, with the AT modem for hardware.
#pragma once

#include "qt/qcop/PrivateBus.h"
#include "support/atmodem/AtModem.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <functional>
#include <memory>

namespace handset::test {

/// Waits for what a daemon does, with the test's events running. False when it does not come about within a minute,
/// which no daemon takes, however busy the machine is.
bool comesAbout(const std::function<bool()> &state);

/// A signal of the daemon as it came.
struct DaemonSignal {
    QString path;
    QString interface;
    QString name;
    QVariantList values;
};

/// What the daemon signalled, in its order.
class DaemonSignals : public QObject
{
    Q_OBJECT

public:
    QList<DaemonSignal> all;

    /// The first values of the signals of that name on that object, such as the states of a call in their order.
    QVariantList values(const QString &path, const QString &name, int position = 0) const;
    /// The values that PropertyChanged told of a property of that object.
    QVariantList propertyValues(const QString &path, const QString &property) const;
    int count(const QString &name) const;

public slots:
    void take(const QDBusMessage &message);
};

/// The daemon's process, its bus and its modem. All end with the object, however the test ends.
class RealDaemon
{
public:
    virtual ~RealDaemon();
    Q_DISABLE_COPY_MOVE(RealDaemon)

    /// What DBUS_SYSTEM_BUS_ADDRESS must be for those who look for the daemon.
    QString busAddress() const { return bus.address(); }
    /// The test's own connection to the bus.
    QDBusConnection connection() const { return *client; }
    DaemonSignals &heard() { return signalsHeard; }
    atmodem::AtModem &modem() { return *hardware; }

    /// Starts the daemon, and waits until it has its name on the bus.
    bool start();
    /// Ends it as a service manager does.
    bool stop();
    /// Ends it as a crash does.
    bool kill();
    /// Keeps it from answering, and lets it go on.
    void halt();
    void goOn();
    bool isRunning() const { return process.state() == QProcess::Running; }
    qint64 processId() const { return process.processId(); }
    /// True while some process has the daemon's name on the bus.
    bool hasName() const;

    /// Starts it and waits until the modem can be used.
    virtual bool bringUp() = 0;

    /// True when its output since the last forgetOutput() has this text in it.
    bool hasSaid(const char *text) { return saidLast(text) >= forgotten; }
    /// Where in its whole output the text is for the last time; -1 where it is not.
    qsizetype saidLast(const char *text);
    void forgetOutput();
    /// For a test that fails: what the daemon last wrote, and what it asked that the modem does not know.
    QByteArray story();

    /// Calls the daemon, with the test's events stopped. The answer may be an error. What the daemon signalled before it
    /// answered is in heard() then.
    QDBusMessage call(const QString &path, const QString &interface, const QString &method,
                      const QVariantList &values = {});

protected:
    struct Kind {
        QString program;
        QStringList arguments;
        QString service;
        QStringList signalNames;
    };
    RealDaemon(Kind kind, const atmodem::Ports &ports);

    /// Before the daemon starts.
    virtual void prepare(QProcessEnvironment &environment) = 0;

private:
    void readOutput();

    Kind kind;
    PrivateBus bus;
    QString clientName;
    std::unique_ptr<QDBusConnection> client;
    DaemonSignals signalsHeard;
    std::unique_ptr<atmodem::AtModem> hardware;
    QProcess process;
    QByteArray output;
    qsizetype forgotten = 0; ///< so much of that
};

/// The one value of an answer, without the variants around it. Invalid for an error.
QVariant valueOf(const QDBusMessage &answer);
/// An answer of a{sv}.
QVariantMap mapOf(const QDBusMessage &answer);
/// Any value out of its QDBusArgument where that is a map, such as a{sy}, with keys as text.
QVariantMap mapOf(const QVariant &value);
/// An answer of a(oa{sv}): properties by path.
QMap<QString, QVariantMap> objectsOf(const QDBusMessage &answer);

} // namespace handset::test
