#include "bench/daemons/FakeModemManager.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>

namespace handset::test {

namespace {

const QString service = QStringLiteral("org.freedesktop.ModemManager1");
const QString root = QStringLiteral("/org/freedesktop/ModemManager1");
const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString manager = QStringLiteral("org.freedesktop.DBus.ObjectManager");

QString full(const QString &interface)
{
    return service + QLatin1Char('.') + interface;
}

QString newConnectionName()
{
    static int number = 0;
    return QStringLiteral("fake-modemmanager-%1").arg(++number);
}

QList<QDBusObjectPath> asPaths(const QStringList &names)
{
    QList<QDBusObjectPath> paths;
    for (const QString &name : names)
        paths.append(QDBusObjectPath(name));
    return paths;
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const FakePort &port)
{
    argument.beginStructure();
    argument << port.name << port.kind;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, FakePort &port)
{
    argument.beginStructure();
    argument >> port.name >> port.kind;
    argument.endStructure();
    return argument;
}

FakeModemManager::FakeModemManager(const QString &busAddress)
    : connectionName(newConnectionName())
    , bus(QDBusConnection::connectToBus(busAddress, connectionName))
{
    qDBusRegisterMetaType<FakePort>();
    qDBusRegisterMetaType<QList<FakePort>>();
    qDBusRegisterMetaType<Interfaces>();
    qDBusRegisterMetaType<QMap<QDBusObjectPath, Interfaces>>();
    bus.registerVirtualObject(root, this, QDBusConnection::SubPath);
}

FakeModemManager::~FakeModemManager()
{
    // Qt's own thread closes the connection later, and would look at a virtual object that has gone.
    bus.unregisterObject(root, QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus(connectionName);
}

void FakeModemManager::appear()
{
    bus.registerService(service);
}

void FakeModemManager::vanish()
{
    bus.unregisterService(service);
}

void FakeModemManager::addModem(const QString &path, bool hasVoice)
{
    objects[path][full(QStringLiteral("Modem"))] = {
        {QStringLiteral("Manufacturer"), QStringLiteral("Fake")},
        {QStringLiteral("Model"), QStringLiteral("One")},
        {QStringLiteral("State"), 8},
        {QStringLiteral("UnlockRequired"), 1u},
        {QStringLiteral("Bearers"), QVariant::fromValue(QList<QDBusObjectPath>())}};
    objects[path][full(QStringLiteral("Modem.Modem3gpp"))] = {
        {QStringLiteral("OperatorName"), QStringLiteral("Network")}};
    if (hasVoice)
        objects[path][full(QStringLiteral("Modem.Voice"))] = {{QStringLiteral("EmergencyOnly"), false}};
    send(root, manager, QStringLiteral("InterfacesAdded"),
         {QVariant::fromValue(QDBusObjectPath(path)), QVariant::fromValue(objects[path])});
}

void FakeModemManager::addInterface(const QString &path, const QString &interface)
{
    objects[path][full(interface)] = {};
    send(root, manager, QStringLiteral("InterfacesAdded"),
         {QVariant::fromValue(QDBusObjectPath(path)), QVariant::fromValue(Interfaces{{full(interface), {}}})});
}

void FakeModemManager::describe(const QString &plugin, const QList<FakePort> &ports)
{
    objects[modem][full(QStringLiteral("Modem"))].insert(
        {{QStringLiteral("Plugin"), plugin},
         {QStringLiteral("Ports"), QVariant::fromValue(ports)},
         {QStringLiteral("PrimaryPort"), ports.constLast().name}});
}

void FakeModemManager::removeInterfaces(const QString &path, const QStringList &interfaces)
{
    for (const QString &interface : interfaces)
        objects[path].remove(interface);
    if (objects[path].isEmpty())
        objects.remove(path);
    send(root, manager, QStringLiteral("InterfacesRemoved"),
         {QVariant::fromValue(QDBusObjectPath(path)), interfaces});
}

void FakeModemManager::set(const QString &path, const QString &interface, const QVariantMap &changed)
{
    objects[path][full(interface)].insert(changed);
    send(path, properties, QStringLiteral("PropertiesChanged"), {full(interface), changed, QStringList()});
}

void FakeModemManager::addCall(const QString &path, int direction, int state, const QString &number, bool isTold)
{
    objects[path][full(QStringLiteral("Call"))] = {{QStringLiteral("State"), state},
                                                   {QStringLiteral("Direction"), direction},
                                                   {QStringLiteral("Number"), number}};
    callPaths.append(path);
    if (isTold)
        send(modem, full(QStringLiteral("Modem.Voice")), QStringLiteral("CallAdded"),
             {QVariant::fromValue(QDBusObjectPath(path))});
}

void FakeModemManager::moveCall(const QString &path, int state)
{
    QVariantMap &call = objects[path][full(QStringLiteral("Call"))];
    const int before = call.value(QStringLiteral("State")).toInt();
    call[QStringLiteral("State")] = state;
    send(path, full(QStringLiteral("Call")), QStringLiteral("StateChanged"), {before, state, 0u});
}

void FakeModemManager::deleteCall(const QString &path)
{
    callPaths.removeAll(path);
    objects.remove(path);
    send(modem, full(QStringLiteral("Modem.Voice")), QStringLiteral("CallDeleted"),
         {QVariant::fromValue(QDBusObjectPath(path))});
}

void FakeModemManager::addBearer(const QString &path, const QVariantMap &its)
{
    objects[path][full(QStringLiteral("Bearer"))] = its;
    QStringList paths;
    for (const QString &object : objects.keys()) {
        if (objects[object].contains(full(QStringLiteral("Bearer"))))
            paths.append(object);
    }
    set(modem, QStringLiteral("Modem"), {{QStringLiteral("Bearers"), QVariant::fromValue(asPaths(paths))}});
}

void FakeModemManager::send(const QString &path, const QString &interface, const QString &name,
                            const QVariantList &values)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, interface, name);
    signal.setArguments(values);
    bus.send(signal);
}

bool FakeModemManager::handleMessage(const QDBusMessage &question, const QDBusConnection &)
{
    const QString method = question.member();
    if (method == settleMethod)
        return bus.send(question.createReply());
    const QVariant first = question.arguments().value(0);
    const bool isOfCall = question.interface() == full(QStringLiteral("Call"));
    asked.append(isOfCall ? method + QLatin1Char(' ') + question.path().section(QLatin1Char('/'), -1) : method);
    if (silent.contains(method))
        return true;
    const bool fails = errors.contains(method) && errorsLeft.value(method, 1) > 0;
    if (fails) {
        if (errorsLeft.contains(method))
            --errorsLeft[method];
        const QString error = errors.value(method);
        return bus.send(question.createErrorReply(error.section(QStringLiteral(": "), 0, 0),
                                                  error.section(QStringLiteral(": "), 1)));
    }
    return answer(question);
}

bool FakeModemManager::answer(const QDBusMessage &question)
{
    const QVariant value = answers.value(question.member(), result(question));
    return bus.send(value.isValid() ? question.createReply(value) : question.createReply());
}

QVariant FakeModemManager::createCall(const QDBusMessage &question)
{
    const QString number =
        qdbus_cast<QVariantMap>(question.arguments().value(0)).value(QStringLiteral("number")).toString();
    asked.append(number);
    const QString path = root + QStringLiteral("/Call/%1").arg(100 + ++made);
    addCall(path, Outgoing, Unknown, number);
    return QVariant::fromValue(QDBusObjectPath(path));
}

QVariant FakeModemManager::result(const QDBusMessage &question)
{
    const QString method = question.member();
    if (method == QLatin1String("GetManagedObjects")) {
        QMap<QDBusObjectPath, Interfaces> managed;
        for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
            if (object.key().contains(QLatin1String("/Modem/")))
                managed.insert(QDBusObjectPath(object.key()), object.value());
        }
        return QVariant::fromValue(managed);
    }
    if (method == QLatin1String("GetAll"))
        return objects.value(question.path()).value(question.arguments().value(0).toString());
    if (method == QLatin1String("ListCalls"))
        return QVariant::fromValue(asPaths(callPaths));
    if (method == QLatin1String("CreateCall"))
        return createCall(question);
    return {};
}

} // namespace handset::test
