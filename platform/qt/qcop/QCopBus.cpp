#include "QCopBus.h"

#include "BusProbe.h"
#include "LineLimit.h"
#include "QCopSubscribers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibrary>
#include <QtCore/QThread>

#include <algorithm>
#include <limits>

using namespace std::chrono_literals;

namespace {

constexpr QLatin1StringView linkName("kav-qcop");
constexpr QLatin1StringView objectPath("/org/kav/QCop");
constexpr QLatin1StringView interfaceName("org.kav.QCop");
constexpr QLatin1StringView memberName("Message");
constexpr QLatin1StringView argumentTypes("ayayay");

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
    using SetLimit = void (*)(void *connection, long bytes);
    QLibrary dbus(QStringLiteral("dbus-1"), 3);
    const auto setLimit = reinterpret_cast<SetLimit>(dbus.resolve("dbus_connection_set_max_received_size"));
    if (setLimit)
        setLimit(link.internalPointer(), std::numeric_limits<long>::max());
}

// Neither path nor member: what comes under the interface and is no channel message shall leave a trace.
bool subscribe(QDBusConnection &link, QObject *bus)
{
    return link.connect(QString(), QString(), interfaceName, QString(), bus, SLOT(take(QDBusMessage))) &&
           roundTrip(link, answerPatience);
}

// A path may have megabytes.
QByteArray shortened(const QString &text)
{
    constexpr qsizetype most = 100;
    return (text.size() > most ? text.left(most) + QStringLiteral("...") : text).toLocal8Bit();
}

// Who sends such messages must not fill the disk of who keeps the errors.
void traceForeign(const QDBusMessage &message)
{
    static LineLimit lines;
    const std::optional<qint64> unsaid = lines.take(std::chrono::steady_clock::now());
    if (!unsaid)
        return;
    if (*unsaid > 0)
        qWarning("QCopChannel: %lld more were ignored since without a line", static_cast<long long>(*unsaid));
    qWarning("QCopChannel: \"%s.%s\" with \"%s\" at \"%s\" from %s is no channel message and is ignored",
             shortened(message.interface()).constData(), shortened(message.member()).constData(),
             shortened(message.signature()).constData(), shortened(message.path()).constData(),
             shortened(message.service()).constData());
}

bool isChannelMessage(const QDBusMessage &message)
{
    return message.type() == QDBusMessage::SignalMessage && message.path() == objectPath &&
           message.interface() == interfaceName && message.member() == memberName &&
           message.signature() == argumentTypes;
}

} // namespace

/// One try to connect and subscribe, in a thread of its own.
class QCopBusAttempt : public QThread
{
public:
    explicit QCopBusAttempt(QCopBus *bus)
        : owner(bus)
    {}

    // To be looked at when the thread has ended.
    QDBusConnection link = noLink();
    bool succeeded = false;

protected:
    void run() override
    {
        if (!busAnswers(answerPatience, [this] { return isInterruptionRequested(); }))
            return;
        link = QDBusConnection::connectToBus(QDBusConnection::SessionBus, linkName);
        if (!link.isConnected())
            return;
        liftReceivingLimit(link);
        succeeded = watchLoss(link, owner) && subscribe(link, owner);
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
        attempt->wait();
    }
    if (unsynced)
        sync(answerPatience);
    QDBusConnection::disconnectFromBus(linkName);
}

void QCopBus::want()
{
    startIfDue();
    if (attempt && patient)
        patient = waitForAttempt(guiPatience);
}

bool QCopBus::waitFor(std::chrono::milliseconds limit)
{
    startIfDue();
    if (attempt)
        waitForAttempt(limit);
    return isReady();
}

void QCopBus::startIfDue()
{
    if (!isReady() && nextAttempt.hasExpired())
        start();
}

void QCopBus::start()
{
    if (attempt)
        return;
    retry.stop();
    attempt = std::make_unique<QCopBusAttempt>(this);
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
    patient = true;
    pause = firstPause;
}

// The connection's end is taken notice of here only, in its place among the messages that came before it: until
// all of those are taken, the name that tells the own ones must stay.
void QCopBus::checkLink()
{
    if (!isReady() || link.isConnected())
        return;
    retryLater();
    emit lost();
}

void QCopBus::retryLater()
{
    QDBusConnection::disconnectFromBus(linkName);
    link = noLink();
    ownName.clear();
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
    want();
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
