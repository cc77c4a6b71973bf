#include "bench/daemons/FakeOfono.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>

namespace handset::test {

namespace {

QString full(const QString &interface)
{
    return QStringLiteral("org.ofono.") + interface;
}

QVariant asList(const QMap<QString, QVariantMap> &objects)
{
    ofono::Objects list;
    for (auto object = objects.begin(); object != objects.end(); ++object)
        list.append({QDBusObjectPath(object.key()), object.value()});
    return QVariant::fromValue(list);
}

} // namespace

FakeOfono::FakeOfono(QString busAddress)
    : address(std::move(busAddress))
{
    qDBusRegisterMetaType<ofono::Object>();
    qDBusRegisterMetaType<ofono::Objects>();
    qDBusRegisterMetaType<QMap<QString, uchar>>();
    modems[modem] = {{QStringLiteral("Online"), true}, {QStringLiteral("Interfaces"), QStringList()}};
}

FakeOfono::~FakeOfono()
{
    disappear();
}

void FakeOfono::appear()
{
    static int number = 0;
    connectionName = QStringLiteral("fake-ofono-%1").arg(++number);
    QDBusConnection bus = QDBusConnection::connectToBus(address, connectionName);
    bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
    if (!bus.registerService(QStringLiteral("org.ofono")))
        qFatal("no name on the private bus");
}

void FakeOfono::disappear()
{
    if (!connectionName.isEmpty()) {
        QDBusConnection bus(connectionName);
        bus.unregisterService(QStringLiteral("org.ofono"));
        // Qt's own thread closes the connection later, and would look at a virtual object that has gone.
        bus.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
    }
    QDBusConnection::disconnectFromBus(connectionName);
    connectionName.clear();
}

void FakeOfono::tell(const QString &path, const char *interface, const char *name, const QVariantList &values)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, full(QLatin1String(interface)), QLatin1String(name));
    signal.setArguments(values);
    if (!connectionName.isEmpty())
        QDBusConnection(connectionName).send(signal);
}

void FakeOfono::addModem(const QString &path, const QVariantMap &values)
{
    modems[path] = values;
    tell(QStringLiteral("/"), "Manager", "ModemAdded", {QVariant::fromValue(QDBusObjectPath(path)), values});
}

void FakeOfono::removeModem(const QString &path)
{
    modems.remove(path);
    tell(QStringLiteral("/"), "Manager", "ModemRemoved", {QVariant::fromValue(QDBusObjectPath(path))});
}

void FakeOfono::addCall(const QString &path, const QVariantMap &values)
{
    calls[path] = values;
    tell(modem, "VoiceCallManager", "CallAdded", {QVariant::fromValue(QDBusObjectPath(path)), values});
}

void FakeOfono::removeCall(const QString &path)
{
    calls.remove(path);
    tell(modem, "VoiceCallManager", "CallRemoved", {QVariant::fromValue(QDBusObjectPath(path))});
}

void FakeOfono::addContext(const QString &path, const QVariantMap &values)
{
    contexts[path] = values;
    tell(modem, "ConnectionManager", "ContextAdded", {QVariant::fromValue(QDBusObjectPath(path)), values});
}

void FakeOfono::removeContext(const QString &path)
{
    contexts.remove(path);
    tell(modem, "ConnectionManager", "ContextRemoved", {QVariant::fromValue(QDBusObjectPath(path))});
}

void FakeOfono::set(const QString &path, const char *interface, const char *name, const QVariant &value)
{
    const QString key = QLatin1String(name);
    if (modems.contains(path) && QLatin1String(interface) == QLatin1String("Modem"))
        modems[path][key] = value;
    else if (path == modem)
        answers[QLatin1String(interface)][key] = value;
    else if (calls.contains(path))
        calls[path][key] = value;
    else if (contexts.contains(path))
        contexts[path][key] = value;
    tell(path, interface, "PropertyChanged", {key, QVariant::fromValue(QDBusVariant(value))});
}

void FakeOfono::setInterfaces(const QStringList &names, const QString &path)
{
    QStringList all;
    for (const QString &name : names)
        all.append(full(name));
    set(path, "Modem", "Interfaces", all);
}

QVariantList FakeOfono::listed(const QString &what) const
{
    if (what == QLatin1String("Manager.GetModems"))
        return {asList(modems)};
    if (what == QLatin1String("VoiceCallManager.GetCalls"))
        return {asList(calls)};
    if (what == QLatin1String("ConnectionManager.GetContexts"))
        return {asList(contexts)};
    if (what == QLatin1String("VoiceCallManager.Dial"))
        return {QVariant::fromValue(QDBusObjectPath(modem + QStringLiteral("/voicecall01")))};
    if (what.endsWith(QLatin1String(".GetProperties")))
        return {QVariant(answers.value(what.section(QLatin1Char('.'), 0, 0)))};
    return {};
}

// As the daemon: digits are looked at before the card is asked, what the card refuses is a plain failure, and the tries
// are asked for after that only, not when the right ones have given them back.
QString FakeOfono::present(const QString &pin)
{
    if (pin.size() < 4 || pin.size() > 8)
        return QStringLiteral("InvalidFormat");
    const bool isRight = tries > 0 && pin == pin2;
    tries = isRight ? 3 : qMax(0, tries - 1);
    if (!isRight)
        answers[QStringLiteral("SimManager")][QStringLiteral("Retries")] =
            QVariant::fromValue(QMap<QString, uchar>{{QStringLiteral("pin2"), static_cast<uchar>(tries)}});
    return isRight ? QString() : QStringLiteral("Failed");
}

QString FakeOfono::setMeter(const QString &name, const QVariant &value, const QString &pin)
{
    const QString refused = present(pin);
    if (refused.isEmpty())
        answers[QStringLiteral("CallMeter")][name] = value;
    return refused;
}

bool FakeOfono::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const QString what = message.interface().section(QLatin1Char('.'), -1) + QLatin1Char('.') + message.member();
    const QList<QVariant> values = message.arguments();
    QStringList words{what};
    for (const QVariant &value : values)
        words.append(value.metaType() == QMetaType::fromType<QDBusVariant>()
                         ? value.value<QDBusVariant>().variant().toString()
                         : value.toString());
    asked.append(words.join(QLatin1Char(' ')));
    if (silent.contains(what)) {
        message.setDelayedReply(true);
        return true;
    }
    QString error;
    if (!errors[what].isEmpty())
        error = errors[what].takeFirst();
    if (error.isEmpty() && what == QLatin1String("CallMeter.SetProperty"))
        error = setMeter(values[0].toString(), values[1].value<QDBusVariant>().variant(), values[2].toString());
    if (error.isEmpty() && what == QLatin1String("CallMeter.Reset")) {
        error = present(values[0].toString());
        if (error.isEmpty())
            answers[QStringLiteral("CallMeter")][QStringLiteral("AccumulatedCallMeter")] = 0U;
    }
    QDBusMessage answer = error.isEmpty()
                              ? message.createReply(listed(what))
                              : message.createErrorReply(
                                    error.contains(u'.') ? error : full(QStringLiteral("Error.") + error), what);
    return connection.send(answer);
}

} // namespace handset::test
