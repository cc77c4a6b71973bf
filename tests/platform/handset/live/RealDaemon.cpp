#include "handset/live/RealDaemon.h"

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>
#include <QtTest/QTest>

#include <csignal>
#include <utility>

namespace handset::test {

namespace {

constexpr int limitMs = 60'000;

// Of these bytes at most, the newest.
constexpr qsizetype storyLength = 400;

QVariant plain(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<QDBusVariant>())
        return plain(value.value<QDBusVariant>().variant());
    if (value.metaType() == QMetaType::fromType<QDBusObjectPath>())
        return value.value<QDBusObjectPath>().path();
    return value;
}

} // namespace

bool comesAbout(const std::function<bool()> &state)
{
    return QTest::qWaitFor(state, limitMs);
}

void DaemonSignals::take(const QDBusMessage &message)
{
    QVariantList values;
    for (const QVariant &value : message.arguments())
        values.append(plain(value));
    all.append({message.path(), message.interface(), message.member(), values});
}

QVariantList DaemonSignals::values(const QString &path, const QString &name, int position) const
{
    QVariantList found;
    for (const DaemonSignal &each : all) {
        if (each.path == path && each.name == name)
            found.append(each.values.value(position));
    }
    return found;
}

QVariantList DaemonSignals::propertyValues(const QString &path, const QString &property) const
{
    QVariantList found;
    for (const DaemonSignal &each : all) {
        if (each.path == path && each.name == QLatin1String("PropertyChanged") && each.values.value(0) == property)
            found.append(each.values.value(1));
    }
    return found;
}

int DaemonSignals::count(const QString &name) const
{
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&](const DaemonSignal &each) { return each.name == name; }));
}

RealDaemon::RealDaemon(Kind which, const atmodem::Ports &ports)
    : kind(std::move(which))
    , clientName(QStringLiteral("client-%1").arg(reinterpret_cast<quintptr>(this), 0, 16))
    , hardware(std::make_unique<atmodem::AtModem>(ports))
{
    client = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(bus.address(), clientName));
    for (const QString &name : std::as_const(kind.signalNames))
        client->connect(kind.service, QString(), QString(), name, &signalsHeard, SLOT(take(QDBusMessage)));
    endWithParent(process);
    process.setProcessChannelMode(QProcess::MergedChannels);
}

RealDaemon::~RealDaemon()
{
    kill();
    client.reset();
    QDBusConnection::disconnectFromBus(clientName);
}

bool RealDaemon::start()
{
    if (!bus.isRunning() || !hardware->isListening())
        return false;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), bus.address());
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    prepare(environment);
    process.setProcessEnvironment(environment);
    readOutput(); // of the one before
    output.clear();
    forgotten = 0;
    process.start(kind.program, kind.arguments);
    return process.waitForStarted(limitMs) && comesAbout([this] { return hasName() || !isRunning(); }) &&
           hasName();
}

bool RealDaemon::stop()
{
    process.terminate();
    return !isRunning() || process.waitForFinished(limitMs);
}

bool RealDaemon::kill()
{
    process.kill();
    const bool hasEnded = !isRunning() || process.waitForFinished(limitMs);
    return hasEnded && comesAbout([this] { return !hasName(); });
}

void RealDaemon::halt()
{
    ::kill(static_cast<pid_t>(processId()), SIGSTOP);
}

void RealDaemon::goOn()
{
    ::kill(static_cast<pid_t>(processId()), SIGCONT);
}

bool RealDaemon::hasName() const
{
    return client->isConnected() && client->interface()->isServiceRegistered(kind.service);
}

qsizetype RealDaemon::saidLast(const char *text)
{
    readOutput();
    return output.lastIndexOf(text);
}

void RealDaemon::forgetOutput()
{
    readOutput();
    forgotten = output.size();
}

void RealDaemon::readOutput()
{
    output += process.readAll();
}

// Qt Test shows a thousand characters of it.
QByteArray RealDaemon::story()
{
    readOutput();
    QByteArray told;
    const QList<QByteArray> lines = output.split('\n');
    for (const QByteArray &line : lines) {
        if (!line.contains("<debug>"))
            told += line.mid(line.indexOf("] ") + 1) + '\n';
    }
    const atmodem::CommandLog log = hardware->log();
    return kind.program.toLocal8Bit() + (isRunning() ? " runs" : " does not run") +
           (hasName() ? "" : ", without its name on the bus") + ".\n" + told.right(storyLength) +
           "Its last commands: " + log.commands.mid(std::max<qsizetype>(0, log.commands.size() - 12)).join("  ") +
           "\nUnknown to the modem: " + log.unknown.join("  ");
}

QDBusMessage RealDaemon::call(const QString &path, const QString &interface, const QString &method,
                              const QVariantList &values)
{
    QDBusMessage message = QDBusMessage::createMethodCall(kind.service, path, interface, method);
    message.setArguments(values);
    const QDBusMessage answer = client->call(message, QDBus::Block, limitMs);
    QCoreApplication::sendPostedEvents(&signalsHeard);
    return answer;
}

QVariant valueOf(const QDBusMessage &answer)
{
    return answer.type() == QDBusMessage::ReplyMessage ? plain(answer.arguments().value(0)) : QVariant();
}

QVariantMap mapOf(const QDBusMessage &answer)
{
    return mapOf(valueOf(answer));
}

QVariantMap mapOf(const QVariant &value)
{
    QVariantMap map = value.toMap();
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return map;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentType() != QDBusArgument::MapType)
        return map;
    argument.beginMap();
    while (!argument.atEnd()) {
        argument.beginMapEntry();
        const QVariant key = argument.asVariant();
        map.insert(plain(key).toString(), plain(argument.asVariant()));
        argument.endMapEntry();
    }
    argument.endMap();
    return map;
}

QMap<QString, QVariantMap> objectsOf(const QDBusMessage &answer)
{
    QMap<QString, QVariantMap> objects;
    if (answer.type() != QDBusMessage::ReplyMessage)
        return objects;
    const auto argument = answer.arguments().value(0).value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        argument.beginStructure();
        QDBusObjectPath path;
        QVariantMap properties;
        argument >> path >> properties;
        argument.endStructure();
        objects.insert(path.path(), properties);
    }
    argument.endArray();
    return objects;
}

} // namespace handset::test

#include "moc_RealDaemon.cpp"
