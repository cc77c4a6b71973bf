#include "live/BusDaemon.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>

#include <utility>

namespace handset::live {

namespace {

const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");

} // namespace

QString systemBusAddress()
{
    const QString said = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS");
    return said.isEmpty() ? QStringLiteral("unix:path=/run/dbus/system_bus_socket") : said;
}

QDBusMessage askAndWait(const QString &service, const QString &path, const QString &interface,
                        const QString &method, int longestMs)
{
    const QString name = QStringLiteral("kav-presence");
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, method);
    question.setAutoStartService(false);
    const QDBusMessage answer =
        QDBusConnection::connectToBus(systemBusAddress(), name).call(question, QDBus::Block, longestMs);
    QDBusConnection::disconnectFromBus(name);
    return answer;
}

BusDaemon::BusDaemon(QString name, QString address, int reconnectMs)
    : service(std::move(name))
    , busAddress(std::move(address))
    , connection(QString())
    , reconnect(new QTimer(this))
{
    reconnect->setInterval(reconnectMs);
    reconnect->setTimerType(Qt::VeryCoarseTimer);
    connect(reconnect, &QTimer::timeout, this, [this] { connectToBus(); });
}

BusDaemon::~BusDaemon()
{
    if (!connectionName.isEmpty())
        QDBusConnection::disconnectFromBus(connectionName);
}

bool BusDaemon::start()
{
    return connectToBus();
}

// A connection to a bus that has gone does not come back: each attempt is another one.
bool BusDaemon::connectToBus()
{
    static int made = 0;
    // Each library of a backend counts for itself, and a connection of the same name would be the same one.
    connectionName = QStringLiteral("kav-%1-%2").arg(service).arg(++made);
    connection = QDBusConnection::connectToBus(busAddress, connectionName);
    if (!connection.isConnected()) {
        whyNot = connection.lastError().message();
        QDBusConnection::disconnectFromBus(std::exchange(connectionName, {}));
        reconnect->start();
        return false;
    }
    reconnect->stop();
    connection.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                       QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                       SLOT(busLost()));
    connection.connect(busName, busPath, busName, QStringLiteral("NameOwnerChanged"), {service},
                       QStringLiteral("sss"), this, SLOT(ownerChanged(QString, QString, QString)));
    askForOwner();
    return true;
}

// After it is listened for: no change can be missed.
void BusDaemon::askForOwner()
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(busName, busPath, busName, QStringLiteral("GetNameOwner"));
    question << service;
    auto *const answer = new QDBusPendingCallWatcher(connection.asyncCall(question), this);
    const QString asked = connectionName;
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, asked] {
        answer->deleteLater();
        const QDBusPendingReply<QString> owner = *answer;
        if (!owner.isError() && asked == connectionName)
            setOwner(owner.value());
    });
}

void BusDaemon::ownerChanged(const QString &, const QString &, const QString &now)
{
    setOwner(now);
}

void BusDaemon::setOwner(const QString &now)
{
    if (now == ownerName)
        return;
    const bool wasThere = !ownerName.isEmpty();
    ownerName = now;
    if (wasThere)
        emit vanished();
    if (!ownerName.isEmpty())
        emit appeared();
}

void BusDaemon::busLost()
{
    QDBusConnection::disconnectFromBus(std::exchange(connectionName, {}));
    setOwner({});
    reconnect->start();
}

} // namespace handset::live
