#include "live/BusDaemon.h"

#include "handset/Patience.h"
#include "live/Question.h"
#include "qt/qcop/BusProbe.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>

#include <algorithm>
#include <chrono>
#include <utility>

namespace handset::live {

namespace {

const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");

constexpr int busPatienceMs = handset::Patience().bus;
const QString itIsSilent = QStringLiteral("it does not answer");

// Qt waits without end for a bus that takes a connection and says nothing. Where nobody is there, Qt knows why.
bool isSilent(const QString &address, int longestMs)
{
    const auto deadline = BusProbe::Clock::now() + std::chrono::milliseconds(longestMs);
    return BusProbe::ofBus(address.toLocal8Bit()).answer(deadline) == BusProbe::Answer::Silence;
}

} // namespace

QString systemBusAddress()
{
    const QString said = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS");
    return said.isEmpty() ? QStringLiteral("unix:path=/run/dbus/system_bus_socket") : said;
}

QDBusMessage askAndWait(const QString &service, const QString &path, const QString &interface,
                        const QString &method, int longestMs)
{
    if (isSilent(systemBusAddress(), std::min(longestMs, busPatienceMs)))
        return QDBusMessage::createError(QDBusError::NoReply, itIsSilent);
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
    reconnect->setSingleShot(true);
    connect(reconnect, &QTimer::timeout, this, [this] { lookForBus(); });
}

BusDaemon::~BusDaemon()
{
    if (!connectionName.isEmpty())
        QDBusConnection::disconnectFromBus(connectionName);
}

bool BusDaemon::start(int longestMs)
{
    if (!isSilent(busAddress, longestMs))
        return connectToBus();
    whyNot = itIsSilent;
    wasSilent = true;
    reconnect->start();
    return false;
}

// Waits for nothing: the question is put at one time, and its answer looked for at another. While nobody takes the
// connection no second question is put, which would be one more thread that waits.
void BusDaemon::lookForBus()
{
    if (!probe) {
        probe = std::make_unique<BusProbe>(BusProbe::ofBus(busAddress.toLocal8Bit()));
        QTimer::singleShot(std::min(busPatienceMs, reconnect->interval()), reconnect, [this] { lookForBus(); });
        return;
    }
    const bool isAnswered = probe->answer(BusProbe::Clock::now()) == BusProbe::Answer::Given;
    if (probe->isDone())
        probe.reset();
    if (isAnswered)
        connectToBus();
    else
        reconnect->start();
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
    hasAnswered = false;
    const QString asked = connectionName;
    ask(connection, question, -1, this, [this, asked](const QDBusMessage &answer) {
        if (asked != connectionName)
            return;
        hasAnswered = true;
        if (const QDBusReply<QString> owner = answer; owner.isValid())
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
