#include "handset/live/RealModemManager.h"

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusObjectPath>

namespace handset::test {

namespace {

const QString root = QStringLiteral("/org/freedesktop/ModemManager1");

QString named(const char *interface)
{
    QString name = QStringLiteral("org.freedesktop.ModemManager1");
    if (*interface != '\0')
        name += QLatin1Char('.') + QLatin1String(interface);
    return name;
}

// One port is taken by a data connection. The daemon insists on how the names begin.
atmodem::Ports twoPorts()
{
    static int made = 0;
    const QByteArray ours =
        "abstract:kav" + QByteArray::number(QCoreApplication::applicationPid()) + '-' + QByteArray::number(++made);
    atmodem::Ports ports;
    ports.abstractNames = {ours + 'a', ours + 'b'};
    return ports;
}

} // namespace

RealModemManager::RealModemManager()
    : RealModemManager(twoPorts())
{}

RealModemManager::RealModemManager(const atmodem::Ports &its)
    : RealDaemon(
          {QStringLiteral("/usr/sbin/ModemManager"),
           {QStringLiteral("--test-session"), QStringLiteral("--test-enable"), QStringLiteral("--test-no-udev"),
            QStringLiteral("--test-no-qrtr"), QStringLiteral("--test-no-suspend-resume"),
            QStringLiteral("--no-auto-scan"), QStringLiteral("--debug")},
           named(""),
           {QStringLiteral("StateChanged"), QStringLiteral("CallAdded"), QStringLiteral("CallDeleted"),
            QStringLiteral("PropertiesChanged"), QStringLiteral("InterfacesAdded"),
            QStringLiteral("InterfacesRemoved")}},
          its)
    , ports(its)
{}

void RealModemManager::prepare(QProcessEnvironment &) {}

bool RealModemManager::bringUp()
{
    return start() && bringUpModem();
}

bool RealModemManager::bringUpModem()
{
    const QString device = QStringLiteral("kav%1").arg(++profiles);
    QStringList names;
    for (const QByteArray &port : ports.abstractNames)
        names.append(QString::fromLatin1(port));
    call(root, named("Test"), QStringLiteral("SetProfile"), {device, QStringLiteral("generic"), names});
    return enable();
}

bool RealModemManager::enable()
{
    if (!comesAbout([this] { return !modemPath().isEmpty(); }))
        return false;
    // Refused while the daemon still gets to know the modem.
    return comesAbout([this] {
        if (modemProperty("Modem", "State").toInt() < modemRegistered)
            onModem("Modem", "Enable", {true});
        return modemProperty("Modem", "State").toInt() >= modemRegistered;
    });
}

QString RealModemManager::modemPath()
{
    const QDBusMessage answer =
        call(root, QStringLiteral("org.freedesktop.DBus.ObjectManager"), QStringLiteral("GetManagedObjects"));
    if (answer.type() != QDBusMessage::ReplyMessage)
        return {};
    const auto objects = answer.arguments().value(0).value<QDBusArgument>();
    QString found;
    objects.beginMap();
    while (!objects.atEnd()) {
        objects.beginMapEntry();
        QDBusObjectPath path;
        QMap<QString, QVariantMap> interfaces;
        objects >> path >> interfaces;
        objects.endMapEntry();
        if (interfaces.contains(named("Modem.Voice")))
            found = path.path();
    }
    objects.endMap();
    return found;
}

QDBusMessage RealModemManager::onModem(const char *interface, const char *method, const QVariantList &values)
{
    return on(modemPath(), interface, method, values);
}

QDBusMessage RealModemManager::on(const QString &path, const char *interface, const char *method,
                                  const QVariantList &values)
{
    return call(path, named(interface), QString::fromLatin1(method), values);
}

QVariant RealModemManager::property(const QString &path, const char *interface, const char *name)
{
    return valueOf(call(path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                        {named(interface), QString::fromLatin1(name)}));
}

QVariant RealModemManager::modemProperty(const char *interface, const char *name)
{
    return property(modemPath(), interface, name);
}

QStringList RealModemManager::calls()
{
    const QDBusMessage answer = onModem("Modem.Voice", "ListCalls");
    QStringList paths;
    if (answer.type() == QDBusMessage::ReplyMessage) {
        for (const QDBusObjectPath &path : qdbus_cast<QList<QDBusObjectPath>>(answer.arguments().value(0)))
            paths.append(path.path());
    }
    return paths;
}

int RealModemManager::stateOf(const QString &path)
{
    const QVariant state = property(path, "Call", "State");
    return state.isValid() ? state.toInt() : -1;
}

bool RealModemManager::isRidOfCalls()
{
    const QStringList known = calls();
    for (const QString &call : known)
        onModem("Modem.Voice", "DeleteCall", {QVariant::fromValue(QDBusObjectPath(call))});
    return comesAbout([this] {
        return calls().isEmpty() &&
               saidLast("call state changed: unknown ->") <= saidLast("call list polling stopped");
    });
}

QString RealModemManager::dial(const char *number)
{
    const QVariantMap what{{QStringLiteral("number"), QString::fromLatin1(number)}};
    const QString path = valueOf(onModem("Modem.Voice", "CreateCall", {what})).toString();
    if (path.isEmpty() || on(path, "Call", "Start").type() != QDBusMessage::ReplyMessage)
        return {};
    return path;
}

} // namespace handset::test
