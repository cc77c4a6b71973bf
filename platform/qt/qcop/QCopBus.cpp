#include "qt/qcop/QCopBus.h"

#include "qt/qcop/BusAddress.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

// The D-Bus protocol's own limit is 2^27 bytes for a message with its header.
constexpr qsizetype largestMessage = (qsizetype(1) << 27) - (qsizetype(1) << 20);

constexpr std::chrono::milliseconds guiPatience = 250ms;
constexpr std::chrono::milliseconds answerPatience = 5s;
constexpr std::chrono::milliseconds firstPause = 1s;
constexpr std::chrono::milliseconds longestPause = 60s;

} // namespace

/// One try to find who takes a connection.
class QCopBusAttempt : public QThread
{
public:
    QCopConnection::Opened opened; // to be looked at when the thread has ended

protected:
    void run() override { opened = QCopConnection::open(addresses); }

private:
    const QByteArray addresses = BusAddress::ofSession();
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
    : pause(firstPause)
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &QCopBus::act);
}

QCopBus::~QCopBus()
{
    // Where nobody takes the connection, nor refuses it, the thread is left behind.
    if (attempt && !attempt->wait(QDeadlineTimer(guiPatience)))
        static_cast<void>(attempt.release());
    if (unsynced)
        sync(answerPatience);
}

void QCopBus::receive()
{
    if (!isReceiving && connection)
        connection->subscribe();
    isReceiving = true;
    waitPatiently();
}

void QCopBus::waitPatiently()
{
    if (isReady())
        return;
    const QDeadlineTimer deadline(patient ? guiPatience : 0ms);
    if (!waitFor(std::chrono::milliseconds(deadline.remainingTime())))
        patient = !deadline.hasExpired();
}

bool QCopBus::waitFor(std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    takeLoss();
    if (!connection && !attempt && timer.remainingTime() <= 0)
        start();
    if (attempt && attempt->wait(deadline))
        collect();
    return connection && connection->waitUntilReady(deadline);
}

void QCopBus::start()
{
    timer.stop();
    attempt = std::make_unique<QCopBusAttempt>();
    connect(attempt.get(), &QThread::finished, this, &QCopBus::collect, Qt::QueuedConnection);
    attempt->start();
}

// Called once more, from the event loop, for an attempt that was waited for.
void QCopBus::collect()
{
    if (!attempt || attempt->isRunning())
        return;
    attempt->wait();
    const std::unique_ptr<QCopBusAttempt> ended = std::move(attempt);
    if (!ended->opened) {
        retryLater();
        return;
    }
    connection = std::make_unique<QCopConnection>(std::move(ended->opened));
    connect(connection.get(), &QCopConnection::ready, this, &QCopBus::settle);
    connect(connection.get(), &QCopConnection::ended, this, &QCopBus::takeLoss, Qt::QueuedConnection);
    if (isReceiving)
        connection->subscribe();
    timer.start(answerPatience);
}

void QCopBus::settle()
{
    timer.stop();
    patient = true;
    pause = firstPause;
}

void QCopBus::act()
{
    if (!connection) {
        start();
    } else if (!connection->isLoggedIn()) {
        connection.reset();
        retryLater();
    }
}

// From the event loop for a connection that is over, maybe after it has been taken notice of elsewhere.
void QCopBus::takeLoss()
{
    if (!connection || !connection->isOver())
        return;
    connection.reset();
    unsynced = false;
    retryLater();
    emit lost();
}

void QCopBus::retryLater()
{
    timer.start(pause);
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
    waitPatiently();
    const bool isQueued = connection && connection->send(channel, message, data);
    unsynced = unsynced || isQueued;
    return isQueued;
}

bool QCopBus::sync(std::chrono::milliseconds patience)
{
    unsynced = false;
    return connection && connection->sync(patience);
}
