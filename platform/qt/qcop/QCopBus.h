// The channels' end of the session bus. Not a public header: the screens know QCopChannel only.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include <chrono>
#include <memory>

class QCopBusAttempt;

/// The process's one connection to the session bus, opened when the first channel or message wants it. What may
/// wait for the bus (finding it, logging in, the acknowledgement of the subscription) is done in a helper thread;
/// everything here belongs to the GUI thread.
///
/// A channel message on the bus is a broadcast signal: path "/org/kav/QCop", interface "org.kav.QCop", member
/// "Message", signature "ayayay" (channel, message, data). One match rule is for all channels. It is added with the
/// connection, also where there are no subscribers yet: Qt adds rules from the calling thread and not from its own,
/// which is safe only while nothing is being sent.
class QCopBus : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// The process's bus; null while there is no application object. It goes with the application, and sees to it
    /// that what was sent is at the bus before.
    static QCopBus *instance();

    /// Connects if that is not done yet and the last failure is long enough ago. Waits a quarter of a second at
    /// most; when that once was not enough, not at all until a connection has succeeded.
    void want();

    /// The same with `limit` as the longest wait, for programs without a screen. True when the bus is ready.
    bool waitFor(std::chrono::milliseconds limit);

    /// Whether there is a connection, and the bus has acknowledged that messages are to come here.
    bool isReady() const { return !ownName.isEmpty(); }

    /// Queues a message for the bus, which is wanted. False without a bus and for a message that is too large.
    bool send(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

    /// The bytes of the largest channel name, message or data block that a bus carries; 2^26 in the D-Bus protocol.
    static constexpr qsizetype largestPart = qsizetype(1) << 26;

    /// What a bus carries: 64 MiB for each of the three, 127 MiB for all.
    static bool isSendable(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

    /// Waits until everything sent is at the bus. False when it did not get there within `limit`.
    bool sync(std::chrono::milliseconds limit);

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &from) override;

signals:
    /// The bus went away.
    void lost();

private slots:
    void take(const QDBusMessage &message);
    void checkLink();
    void start();

private:
    QCopBus();
    ~QCopBus() override;
    static void leave();

    void startIfDue();
    bool waitForAttempt(std::chrono::milliseconds limit);
    void collect();
    void retryLater();

    static QCopBus *self;

    QDBusConnection link; // invalid unless ready
    QString ownName;      // on the bus
    bool patient = true;
    bool unsynced = false; // sent since the last sync

    std::unique_ptr<QCopBusAttempt> attempt; // while one runs
    std::chrono::milliseconds pause;         // after the next failure
    QDeadlineTimer nextAttempt;              // not before
    QTimer retry;
};
