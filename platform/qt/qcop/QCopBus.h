// The channels' end of the session bus. Not a public header: the screens know QCopChannel only.
#pragma once

#include "qt/qcop/QCopConnection.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>
#include <memory>

class QCopBusAttempt;

/// The process's end of the session bus: one connection, opened when the first channel or the first message wants it,
/// and opened anew when it is lost. Who only sends is subscribed to nothing. What nobody can put an end to, finding who
/// takes a connection, is done in a helper thread; everything here belongs to the GUI thread.
///
/// A channel message on the bus is a broadcast signal: path "/org/kav/QCop", interface "org.kav.QCop", member
/// "Message", signature "ayayay" (channel, message, data). One match rule is for all channels.
class QCopBus : public QObject
{
    Q_OBJECT

public:
    /// The process's bus; null while there is no application object. It goes with the application, and sees to it
    /// that what was sent is at the bus before, unless the bus takes nothing for five seconds.
    static QCopBus *instance();

    /// From the first call on, what other processes send is delivered here. Connects if that is not done yet and the
    /// last failure is long enough ago. Waits for the bus a quarter of a second at most; when that once was not enough,
    /// not at all until it is ready again.
    void receive();

    /// Connects in the same way with `limit` as the longest wait, for programs without a screen. True when the bus is
    /// ready.
    bool waitFor(std::chrono::milliseconds limit);

    /// Whether the bus takes messages and, where they are to be received, has acknowledged that they are to come here.
    bool isReady() const { return connection && connection->isReady(); }

    /// Queues a message for the bus, with which it connects as receive() does. False without a bus and for a message
    /// that is too large.
    bool send(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

    /// The bytes of the largest channel name, message or data block that a bus carries; 2^26 in the D-Bus protocol.
    static constexpr qsizetype largestPart = qsizetype(1) << 26;

    /// What a bus carries: 64 MiB for each of the three, 127 MiB for all.
    static bool isSendable(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

    /// Waits until everything sent is at the bus. False when the bus took nothing for as long as `patience`.
    bool sync(std::chrono::milliseconds patience);

signals:
    /// The bus went away.
    void lost();

private:
    QCopBus();
    ~QCopBus() override;
    static void leave();

    void waitPatiently();
    void start();
    void collect();
    void settle();
    void act();
    void takeLoss();
    void retryLater();

    static QCopBus *self;

    bool isReceiving = false;
    bool patient = true;
    bool unsynced = false;                      // sent since the last sync
    std::unique_ptr<QCopBusAttempt> attempt;    // while one runs
    std::unique_ptr<QCopConnection> connection; // from then on
    std::chrono::milliseconds pause;            // after the next failure
    QTimer timer; // to the next attempt; or to the end of the bus's time to log this process in
};
