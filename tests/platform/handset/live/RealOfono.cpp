#include "handset/live/RealOfono.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtDBus/QDBusVariant>

#include <algorithm>

namespace handset::test {

namespace {

// What the daemon keeps of a card, under its IMSI; the place is compiled into it.
constexpr const char *storage = "/var/lib/ofono";

QString ofonoInterface(const char *interface)
{
    return QStringLiteral("org.ofono.") + QLatin1String(interface);
}

atmodem::Ports tcpPort()
{
    atmodem::Ports ports;
    ports.hasTcp = true;
    return ports;
}

} // namespace

RealOfono::RealOfono()
    : RealDaemon({QStringLiteral("/usr/sbin/ofonod"),
                  {QStringLiteral("-n"), QStringLiteral("-d")},
                  QStringLiteral("org.ofono"),
                  {QStringLiteral("PropertyChanged"), QStringLiteral("CallAdded"), QStringLiteral("CallRemoved"),
                   QStringLiteral("DisconnectReason"), QStringLiteral("NearMaximumWarning"),
                   QStringLiteral("ContextAdded"), QStringLiteral("ContextRemoved"), QStringLiteral("ModemAdded"),
                   QStringLiteral("ModemRemoved")}},
                 tcpPort())
{
    // A card that no other test has, as the daemon remembers cards.
    const QByteArray number =
        QByteArray::number(QCoreApplication::applicationPid()).rightJustified(10, '0').right(10);
    modem().withPhone([&](atmodem::Phone &phone) { phone.sim.imsi = "26201" + number; });
}

RealOfono::~RealOfono()
{
    kill();
    const QString imsi =
        QString::fromLatin1(modem().withPhone([](const atmodem::Phone &phone) { return phone.sim.imsi; }));
    const QDir kept(QString::fromLatin1(storage));
    for (const QString &name : kept.entryList({imsi, imsi + QStringLiteral("-*")}, QDir::Dirs))
        QDir(kept.filePath(name)).removeRecursively();
}

void RealOfono::prepare(QProcessEnvironment &environment)
{
    const QString path = folder.filePath(QStringLiteral("phonesim.conf"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("[phonesim]\nAddress=127.0.0.1\nPort=" + QByteArray::number(modem().tcpPort()) + '\n');
    environment.insert(QStringLiteral("OFONO_PHONESIM_CONFIG"), path);
}

bool RealOfono::bringUp()
{
    return start() && bringUpModem();
}

bool RealOfono::bringUpModem()
{
    const auto switchOn = [this](const char *what) {
        return comesAbout([&] {
            const QVariant on = QVariant::fromValue(QDBusVariant(true));
            onModem("Modem", "SetProperty", {QString::fromLatin1(what), on}); // refused while it is busy
            return property("Modem", what).toBool();
        });
    };
    if (!switchOn("Powered") || !comesAbout([this] { return hasInterface("SimManager"); }) || !switchOn("Online"))
        return false;
    for (const char *interface : {"VoiceCallManager", "CallMeter", "NetworkRegistration", "ConnectionManager"}) {
        if (!comesAbout([&] { return hasInterface(interface); }))
            return false;
    }
    return comesAbout([this] {
        return property("NetworkRegistration", "Status") == QLatin1String("registered") &&
               property("ConnectionManager", "Attached").toBool();
    });
}

QDBusMessage RealOfono::onModem(const char *interface, const char *method, const QVariantList &values)
{
    return on(modemPath(), interface, method, values);
}

QDBusMessage RealOfono::on(const QString &path, const char *interface, const char *method,
                           const QVariantList &values)
{
    return call(path, ofonoInterface(interface), QString::fromLatin1(method), values);
}

QVariantMap RealOfono::properties(const char *interface)
{
    return mapOf(onModem(interface, "GetProperties"));
}

QVariant RealOfono::property(const char *interface, const char *name)
{
    return properties(interface).value(QString::fromLatin1(name));
}

QMap<QString, QVariantMap> RealOfono::calls()
{
    return objectsOf(onModem("VoiceCallManager", "GetCalls"));
}

QString RealOfono::onlyState()
{
    const QMap<QString, QVariantMap> all = calls();
    return all.size() == 1 ? all.first().value(QStringLiteral("State")).toString() : QString();
}

bool RealOfono::hasInterface(const char *interface)
{
    return property("Modem", "Interfaces").toStringList().contains(ofonoInterface(interface));
}

} // namespace handset::test
