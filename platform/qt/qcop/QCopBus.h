// The channels' end of the session bus. Not a public header: the screens know QCopChannel only.
#pragma once

#include "QCopOutlet.h"

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include <chrono>
#include <memory>

class QCopBusAttempt;

/// The process's end of the session bus: one connection that receives, opened when the first channel wants it, and one
/// that sends (QCopOutlet), opened with the first message. Who only sends is subscribed to nothing. What may wait for
/// the bus (finding it, logging in, the acknowledgement of the subscription) is done in a helper thread; everything here
/// belongs to the GUI thread.
///
/// A channel message on the bus is a broadcast signal: path "/org/kav/QCop", interface "org.kav.QCop", member
/// "Message", signature "ayayay" (channel, message, data). One match rule is for all channels.
class QCopBus : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// The process's bus; null while there is no application object. It goes with the application, and sees to it
    /// that what was sent is at the bus before.
    static QCopBus *instance();

    /// The two things that a bus is wanted for.
    enum Side { Receiving = 1, Sending = 2 };
    Q_DECLARE_FLAGS(Sides, Side)

    /// Connects for `side` if that is not done yet and the last failure is long enough ago. Waits a quarter of a second
    /// at most; when that once was not enough, not at all until a connection has succeeded.
    void want(Side side);

    /// The same with `limit` as the longest wait, for programs without a screen, and for all that was wanted before, too.
    /// True when the bus is ready for all of it.
    bool waitFor(std::chrono::milliseconds limit, Side side = Sending);

    /// Whether there is a connection for all that is wanted, which is something; for Receiving, the bus has acknowledged
    /// that messages are to come here.
    bool isReady() const { return wanted && !missing(); }

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
    void checkOutlet();
    void start();

private:
    QCopBus();
    ~QCopBus() override;
    static void leave();

    Sides missing() const;
    bool isLosingLink() const { return isLinked && !link.isConnected(); }
    void startIfDue();
    bool waitForAttempt(std::chrono::milliseconds limit);
    void collect();
    void takeOutlet(QCopBusAttempt &ended);
    void takeLink(QCopBusAttempt &ended);
    void dropLink();
    void dropOutlet();
    void retryLater();

    static QCopBus *self;

    Sides wanted;
    QDBusConnection link;  // invalid unless linked
    bool isLinked = false; // and the bus has acknowledged the subscription
    std::unique_ptr<QCopOutlet> outlet;
    QStringList ownNames; // of the outlet, and of earlier ones whose messages may still come back
    bool patient = true;
    bool unsynced = false; // sent since the last sync

    std::unique_ptr<QCopBusAttempt> attempt; // while one runs
    std::chrono::milliseconds pause;         // after the next failure
    QDeadlineTimer nextAttempt;              // not before
    QTimer retry;
};
