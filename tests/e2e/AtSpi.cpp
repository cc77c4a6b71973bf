#include "e2e/AtSpi.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusReply>
#include <QtDBus/QDBusVariant>
#include <QtTest/QTest>

namespace {

constexpr int answerMs = 60'000;
constexpr char launcherProgram[] = "/usr/libexec/at-spi-bus-launcher";
constexpr char connectionName[] = "screen reader";
constexpr char accessible[] = "org.a11y.atspi.Accessible";
constexpr char rootPath[] = "/org/a11y/atspi/accessible/root";
constexpr char registry[] = "org.a11y.atspi.Registry";

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

AtSpi::AtSpi()
    : bus(text("none"))
{
    if (!session.isRunning() || !folder.isValid())
        return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", session.address());
    for (const char *place : {"HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME"})
        environment.insert(text(place), folder.path());
    environment.remove("AT_SPI_BUS_ADDRESS");
    launcher.setProcessEnvironment(environment);
    launcher.setStandardErrorFile(QProcess::nullDevice());
    endWithParent(launcher);
    launcher.start(text(launcherProgram), {"--launch-immediately"});
    QString address;
    const auto isThere = [&] {
        QDBusConnection own = QDBusConnection::connectToBus(session.address(), "asking");
        const QDBusReply<QString> told = own.call(
            QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
        QDBusConnection::disconnectFromBus("asking");
        address = told.value();
        return !address.isEmpty();
    };
    if (!QTest::qWaitFor(isThere, answerMs))
        return;
    bus = QDBusConnection::connectToBus(address, text(connectionName));
    for (const char *event : {"object:state-changed:showing", "object:state-changed:focused", "focus:"}) {
        QDBusMessage wish = QDBusMessage::createMethodCall(text(registry), "/org/a11y/atspi/registry",
                                                           text(registry), "RegisterEvent");
        wish << text(event);
        bus.call(wish);
    }
    bus.connect({}, {}, "org.a11y.atspi.Event.Object", "StateChanged", this, SLOT(hear(QDBusMessage)));
}

AtSpi::~AtSpi()
{
    QDBusConnection::disconnectFromBus(text(connectionName));
    launcher.terminate();
    launcher.waitForFinished(answerMs);
}

QDBusMessage AtSpi::ask(const Element &element, const char *interface, const char *method,
                        const QVariantList &arguments)
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(element.service, element.path, text(interface), text(method));
    question.setArguments(arguments);
    return bus.call(question, QDBus::Block, answerMs);
}

QString AtSpi::property(const Element &element, const char *name)
{
    const QDBusReply<QDBusVariant> value =
        ask(element, "org.freedesktop.DBus.Properties", "Get", {text(accessible), text(name)});
    return value.value().variant().toString();
}

void AtSpi::read(Element &element)
{
    element.name = property(element, "Name");
    element.description = property(element, "Description");
    element.role = QDBusReply<QString>(ask(element, accessible, "GetRoleName")).value();
    const QDBusReply<QList<uint>> states = ask(element, accessible, "GetState");
    if (states.value().size() == 2)
        element.states = quint64{states.value().at(1)} << 32 | states.value().at(0);
}

QList<AtSpi::Element> AtSpi::childrenOf(const Element &element)
{
    QList<Element> children;
    const QDBusMessage answer = ask(element, accessible, "GetChildren");
    if (answer.type() != QDBusMessage::ReplyMessage)
        return children;
    const auto list = answer.arguments().first().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Element child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        read(child);
        children << child;
    }
    list.endArray();
    return children;
}

// A window or what is in it; programs and the desktop itself are not on show.
void AtSpi::collect(const Element &outer, QList<Element> &found)
{
    const QList<Element> children = childrenOf(outer);
    for (const Element &child : children) {
        if (child.has(Showing))
            found << child;
        collect(child, found);
    }
}

QList<AtSpi::Element> AtSpi::shown()
{
    QList<Element> found;
    collect({text(registry), text(rootPath), {}, {}, {}}, found);
    return found;
}

std::optional<AtSpi::Element> AtSpi::find(const QString &role, const QString &name)
{
    QList<Element> found = shown();
    found.removeIf([&](const Element &element) { return element.role != role || element.name != name; });
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

QStringList AtSpi::namesIn(const Element &outer)
{
    QList<Element> found;
    collect(outer, found);
    QStringList names;
    for (const Element &element : std::as_const(found)) {
        if (!element.name.isEmpty())
            names << element.name;
    }
    return names;
}

bool AtSpi::press(const Element &element)
{
    return QDBusReply<bool>(ask(element, "org.a11y.atspi.Action", "DoAction", {0})).value();
}

QStringList AtSpi::appeared()
{
    return std::exchange(news, {});
}

void AtSpi::hear(const QDBusMessage &event)
{
    const QVariantList about = event.arguments();
    if (about.size() < 2 || about.at(1).toInt() != 1)
        return;
    Element element{event.service(), event.path(), {}, {}, {}};
    read(element);
    const QString who = element.role + ": " + element.name;
    if (about.first() == "showing")
        news << who;
    else if (about.first() == "focused")
        focus = who;
}

#include "moc_AtSpi.cpp"
