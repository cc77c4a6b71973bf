#include "QCopBus.h"

#include "BusProbe.h"
#include "QCopSubscribers.h"
#include "QCopWire.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <dbus/dbus.h>

#include <algorithm>
#include <limits>

using namespace std::chrono_literals;

namespace {

constexpr QLatin1StringView linkName("kav-qcop");
constexpr QLatin1StringView objectPath(QCopWire::objectPath);
constexpr QLatin1StringView interfaceName(QCopWire::interfaceName);
constexpr QLatin1StringView memberName(QCopWire::memberName);
constexpr QLatin1StringView argumentTypes(QCopWire::argumentTypes);

// The D-Bus protocol's own limit is 2^27 bytes for a message with its header.
constexpr qsizetype largestMessage = (qsizetype(1) << 27) - (qsizetype(1) << 20);

constexpr std::chrono::milliseconds guiPatience = 250ms;
constexpr std::chrono::milliseconds answerPatience = 5s;
constexpr std::chrono::milliseconds firstPause = 1s;
constexpr std::chrono::milliseconds longestPause = 60s;

// The bus handles the messages of a connection in their order: its answer says that all before it are handled.
bool roundTrip(const QDBusConnection &link, std::chrono::milliseconds limit)
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"));
    return link.call(question, QDBus::Block, static_cast<int>(limit.count())).type() == QDBusMessage::ReplyMessage;
}

QDBusConnection noLink()
{
    return QDBusConnection(QString());
}

bool watchLoss(QDBusConnection &link, QObject *bus)
{
    return link.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), bus,
                        SLOT(checkLink()));
}

// libdbus stops reading while 63 MB of messages are not done with. It starts again from the thread that is done with
// one: ours, from which Qt does not take it up, so that nothing would arrive any more. Qt offers no way to the limit.
void liftReceivingLimit(const QDBusConnection &link)
{
    auto *connection = static_cast<DBusConnection *>(link.internalPointer());
    dbus_connection_set_max_received_size(connection, std::numeric_limits<long>::max());
}

// Neither path nor member: what comes under the interface and is no channel message shall leave a trace.
bool subscribe(QDBusConnection &link, QObject *bus)
{
    return link.connect(QString(), QString(), interfaceName, QString(), bus, SLOT(take(QDBusMessage))) &&
           roundTrip(link, answerPatience);
}

void traceForeign(const QDBusMessage &message)
{
    QCopWire::traceForeign({message.interface().toUtf8(), message.member().toUtf8(), message.signature().toUtf8(),
                            message.path().toUtf8(), message.service().toUtf8()});
}

bool isChannelMessage(const QDBusMessage &message)
{
    return message.type() == QDBusMessage::SignalMessage && message.path() == objectPath &&
           message.interface() == interfaceName && message.member() == memberName &&
           message.signature() == argumentTypes;
}

} // namespace

/// One try to connect what is missing, in a thread of its own.
class QCopBusAttempt : public QThread
{
public:
    QCopBusAttempt(QCopBus *bus, QCopBus::Sides missing)
        : sides(missing)
        , owner(bus)
    {}

    // To be looked at when the thread has ended.
    const QCopBus::Sides sides;
    QDBusConnection link = noLink();
    bool isSubscribed = false;
    QCopOutlet::Connection outlet;

protected:
    void run() override
    {
        if (!busAnswers(answerPatience, [this] { return isInterruptionRequested(); }))
            return;
        if (sides & QCopBus::Sending)
            outlet = QCopOutlet::connectToBus();
        if (!(sides & QCopBus::Receiving) || isInterruptionRequested())
            return;
        link = QDBusConnection::connectToBus(QDBusConnection::SessionBus, linkName);
        if (!link.isConnected())
            return;
        liftReceivingLimit(link);
        isSubscribed = watchLoss(link, owner) && subscribe(link, owner);
    }

private:
    QCopBus *const owner;
};

QCopBus *QCopBus::self = nullptr;

QCopBus *QCopBus::instance()
{
    if (!self && QCoreApplication::instance()) {
        self = new QCopBus;
        qAddPostRoutine(leave);
    }
    return self;
}

void QCopBus::leave()
{
    delete self;
    self = nullptr;
}

QCopBus::QCopBus()
    : link(noLink())
    , pause(firstPause)
    , nextAttempt(0)
{
    retry.setSingleShot(true);
    connect(&retry, &QTimer::timeout, this, &QCopBus::start);
}

QCopBus::~QCopBus()
{
    if (attempt) {
        attempt->requestInterruption();
        // libdbus waits without a limit for a bus that falls silent after it has answered the probe. A thread that only
        // wants to send is left behind there; Qt's, where it waits for the one that receives, cannot be.
        if (attempt->sides & Receiving)
            attempt->wait();
        else if (!attempt->wait(QDeadlineTimer(guiPatience)))
            static_cast<void>(attempt.release());
    }
    if (unsynced)
        sync(answerPatience);
    QDBusConnection::disconnectFromBus(linkName);
}

QCopBus::Sides QCopBus::missing() const
{
    Sides none = wanted;
    none.setFlag(Receiving, wanted.testFlag(Receiving) && !isLinked);
    none.setFlag(Sending, wanted.testFlag(Sending) && !outlet);
    return none;
}

void QCopBus::want(Side side)
{
    wanted |= side;
    startIfDue();
    while (patient && attempt && missing().testFlag(side))
        patient = waitForAttempt(guiPatience);
}

bool QCopBus::waitFor(std::chrono::milliseconds limit, Side side)
{
    const QDeadlineTimer deadline(limit);
    wanted |= side;
    startIfDue();
    while (attempt && waitForAttempt(std::chrono::milliseconds(deadline.remainingTime())))
        ;
    return isReady();
}

void QCopBus::startIfDue()
{
    if (missing() && nextAttempt.hasExpired())
        start();
}

// Not while a loss has not been taken notice of in its place among the messages: see checkLink().
void QCopBus::start()
{
    if (attempt || !missing() || isLosingLink())
        return;
    retry.stop();
    attempt = std::make_unique<QCopBusAttempt>(this, missing());
    connect(attempt.get(), &QThread::finished, this, &QCopBus::collect, Qt::QueuedConnection);
    attempt->start();
}

bool QCopBus::waitForAttempt(std::chrono::milliseconds limit)
{
    if (!attempt->wait(QDeadlineTimer(limit)))
        return false;
    collect();
    return true;
}

// Called once more, from the event loop, for an attempt that was waited for.
void QCopBus::collect()
{
    if (!attempt || attempt->isRunning())
        return;
    attempt->wait();
    const std::unique_ptr<QCopBusAttempt> ended = std::move(attempt);
    if (ended->outlet)
        takeOutlet(*ended);
    if (ended->sides & Receiving)
        takeLink(*ended);
    if (missing() & ended->sides) {
        retryLater();
        return;
    }
    patient = true;
    pause = firstPause;
    start(); // what was wanted since
}

void QCopBus::takeOutlet(QCopBusAttempt &ended)
{
    outlet = std::make_unique<QCopOutlet>(std::move(ended.outlet));
    connect(outlet.get(), &QCopOutlet::lost, this, &QCopBus::checkOutlet);
    ownNames << outlet->name();
}

void QCopBus::takeLink(QCopBusAttempt &ended)
{
    if (!ended.isSubscribed || !ended.link.isConnected()) {
        dropLink();
        return;
    }
    link = ended.link;
    isLinked = true;
    link.registerVirtualObject(objectPath, this);
}

void QCopBus::dropLink()
{
    QDBusConnection::disconnectFromBus(linkName);
    link = noLink();
    isLinked = false;
    ownNames = outlet ? QStringList{outlet->name()} : QStringList();
}

// While messages of it may still come back, the name stays, that tells them.
void QCopBus::dropOutlet()
{
    outlet.reset();
    unsynced = false;
    if (!isLinked)
        ownNames.clear();
    retryLater();
}

// The connection's end is taken notice of here only, in its place among the messages that came before it: until
// all of those are taken, the names that tell the own ones must stay.
void QCopBus::checkLink()
{
    if (!isLosingLink())
        return;
    if (outlet)
        outlet->exchange();
    if (outlet && !outlet->isConnected())
        outlet.reset();
    dropLink();
    retryLater();
    emit lost();
}

void QCopBus::checkOutlet()
{
    if (outlet && !outlet->isConnected())
        dropOutlet();
}

void QCopBus::retryLater()
{
    nextAttempt = QDeadlineTimer(pause);
    retry.start(pause);
    pause = std::min(2 * pause, longestPause);
}

bool QCopBus::isSendable(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    return channel.size() <= largestPart && message.size() <= largestPart && data.size() <= largestPart &&
           channel.size() + message.size() + data.size() <= largestMessage;
}

bool QCopBus::send(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    if (!isSendable(channel, message, data))
        return false;
    checkOutlet();
    if (!outlet)
        want(Sending);
    if (!outlet)
        return false;
    unsynced = true;
    return outlet->send(channel, message, data);
}

bool QCopBus::sync(std::chrono::milliseconds limit)
{
    const bool arrived = outlet && outlet->sync(limit);
    unsynced = unsynced && !arrived;
    return arrived;
}

// A signal that is sent to this process alone cannot be told from a broadcast here and counts as one.
void QCopBus::take(const QDBusMessage &message)
{
    if (ownNames.contains(message.service()))
        return; // the bus's copy of what was sent here, which the subscribers have from send()
    if (!isChannelMessage(message)) {
        traceForeign(message);
        return;
    }
    const QList<QVariant> arguments = message.arguments();
    QCopSubscribers::deliver(arguments[0].toByteArray(), arguments[1].toByteArray(), arguments[2].toByteArray());
}

QString QCopBus::introspect(const QString &) const
{
    return QString();
}

// There is nothing to call; the caller gets Qt's answer that says so.
bool QCopBus::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    traceForeign(message);
    return false;
}
