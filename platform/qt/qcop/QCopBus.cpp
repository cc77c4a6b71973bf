#include "QCopBus.h"

#include "QCopSubscribers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr QLatin1StringView linkName("kav-qcop");
constexpr QLatin1StringView objectPath("/org/kav/QCop");
constexpr QLatin1StringView interfaceName("org.kav.QCop");
constexpr QLatin1StringView memberName("Message");
constexpr QLatin1StringView argumentTypes("ayayay");

// The D-Bus protocol's own limits are 2^26 bytes for an array and 2^27 for a message with its header.
constexpr qsizetype largestArray = qsizetype(1) << 26;
constexpr qsizetype largestMessage = (qsizetype(1) << 27) - (qsizetype(1) << 20);

constexpr std::chrono::milliseconds guiPatience = 250ms;
constexpr std::chrono::milliseconds answerPatience = 5s;
constexpr std::chrono::milliseconds farewellPatience = 2s;
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

// Neither path nor member: what comes under the interface and is no channel message shall leave a trace.
bool subscribe(QDBusConnection &link, QObject *bus)
{
    return link.connect(QString(), QString(), interfaceName, QString(), bus, SLOT(take(QDBusMessage))) &&
           roundTrip(link, answerPatience);
}

void traceForeign(const QDBusMessage &message)
{
    qWarning("QCopChannel: \"%s.%s\" with \"%s\" at \"%s\" from %s is no channel message and is ignored",
             qPrintable(message.interface()), qPrintable(message.member()), qPrintable(message.signature()),
             qPrintable(message.path()), qPrintable(message.service()));
}

bool isChannelMessage(const QDBusMessage &message)
{
    return message.type() == QDBusMessage::SignalMessage && message.path() == objectPath &&
           message.interface() == interfaceName && message.member() == memberName &&
           message.signature() == argumentTypes;
}

} // namespace

/// One try to connect, to subscribe, or both, in a thread of its own.
class QCopBusAttempt : public QThread
{
public:
    QCopBusAttempt(QCopBus *bus, const QDBusConnection &presentLink, QCopBus::Use attemptedUse)
        : use(attemptedUse)
        , link(presentLink)
        , owner(bus)
    {}

    const QCopBus::Use use;
    // To be looked at when the thread has ended.
    QDBusConnection link;
    bool succeeded = false;

protected:
    void run() override
    {
        if (!link.isConnected()) {
            link = QDBusConnection::connectToBus(QDBusConnection::SessionBus, linkName);
            succeeded = link.isConnected() && watchLoss(link, owner);
        } else {
            succeeded = true;
        }
        if (succeeded && use == QCopBus::Receiving)
            succeeded = subscribe(link, owner);
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
    if (attempt)
        attempt->wait();
    if (unsynced)
        sync(farewellPatience);
    QDBusConnection::disconnectFromBus(linkName);
}

bool QCopBus::isReady(Use use) const
{
    return !ownName.isEmpty() && (use == Sending || subscribed);
}

void QCopBus::want(Use use)
{
    startIfDue(use);
    if (attempt && patient)
        patient = waitForAttempt(guiPatience);
}

bool QCopBus::waitFor(Use use, std::chrono::milliseconds limit)
{
    startIfDue(use);
    if (attempt)
        waitForAttempt(limit);
    return isReady(use);
}

void QCopBus::startIfDue(Use use)
{
    receivingWanted = receivingWanted || use == Receiving;
    if (!isReady(use) && nextAttempt.hasExpired())
        start();
}

void QCopBus::start()
{
    if (attempt)
        return;
    retry.stop();
    attempt = std::make_unique<QCopBusAttempt>(this, link, receivingWanted ? Receiving : Sending);
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
    if (!ended->succeeded || !ended->link.isConnected()) {
        retryLater();
        return;
    }
    link = ended->link;
    ownName = link.baseService();
    link.registerVirtualObject(objectPath, this);
    subscribed = ended->use == Receiving;
    patient = true;
    pause = firstPause;
    if (!isReady(receivingWanted ? Receiving : Sending))
        start(); // the first channel was made while a connection for sending was under way
}

// The connection's end is taken notice of here only, in its place among the messages that came before it: until
// all of those are taken, the name that tells the own ones must stay.
void QCopBus::checkLink()
{
    if (!isReady(Sending) || link.isConnected())
        return;
    retryLater();
    emit lost();
}

void QCopBus::retryLater()
{
    QDBusConnection::disconnectFromBus(linkName);
    link = noLink();
    ownName.clear();
    subscribed = false;
    nextAttempt = QDeadlineTimer(pause);
    if (receivingWanted)
        retry.start(pause);
    pause = std::min(2 * pause, longestPause);
}

bool QCopBus::isSendable(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    return channel.size() <= largestArray && message.size() <= largestArray && data.size() <= largestArray &&
           channel.size() + message.size() + data.size() <= largestMessage;
}

bool QCopBus::send(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    if (!isSendable(channel, message, data))
        return false;
    want(Sending);
    if (!link.isConnected())
        return false;
    QDBusMessage signal = QDBusMessage::createSignal(objectPath, interfaceName, memberName);
    signal << channel << message << data;
    unsynced = true;
    return link.send(signal);
}

bool QCopBus::sync(std::chrono::milliseconds limit)
{
    const bool arrived = link.isConnected() && roundTrip(link, limit);
    unsynced = unsynced && !arrived;
    return arrived;
}

// A signal that is sent to this process alone cannot be told from a broadcast here and counts as one.
void QCopBus::take(const QDBusMessage &message)
{
    if (message.service() == ownName)
        return; // the bus's copy for the sender, whose subscribers have it from send()
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
