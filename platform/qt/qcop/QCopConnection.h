// A connection to the session bus for channel messages, both ways. Not a public header.
#pragma once

#include "qt/qcop/QCopWire.h"

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>

#include <array>
#include <chrono>
#include <memory>

struct DBusConnection;
struct DBusWatch;

/// Logs in at the bus, sends, and, once it is subscribed, delivers what others send. All of it is done by the event
/// loop of the GUI thread, without waiting for the bus; where a function waits, it has a deadline.
///
/// libdbus's own connection and not Qt's: that one cannot be closed while its bus is silent, and lays out the three
/// arrays of a message at three times the cost of one, every time, while the update that is broadcast is always the same
/// and kept here ready to be sent again.
class QCopConnection : public QObject
{
    Q_OBJECT

public:
    struct Closer {
        void operator()(DBusConnection *opened) const;
    };
    using Opened = std::unique_ptr<DBusConnection, Closer>;

    /// Opens the first of the addresses, separated by ";" as D-Bus writes them, at which somebody takes a connection;
    /// null where nobody does, or where a program would have to be run to get there. That may take as long as it likes:
    /// to be called in a thread that can be left behind.
    static Opened open(const QByteArray &addresses);

    /// `opened` is not null.
    explicit QCopConnection(Opened opened);
    ~QCopConnection() override;

    /// Asks the bus, once, for what others send.
    void subscribe();

    /// The bus has given this process a name.
    bool isLoggedIn() const { return !name.isEmpty(); }
    /// It has also acknowledged the subscription that it was asked for, if any.
    bool isReady() const { return !over && answered >= needed; }
    /// The bus closed the connection, and all that came before is delivered.
    bool isOver() const { return over; }

    bool waitUntilReady(QDeadlineTimer deadline);

    /// Queues a message of at most what QCopBus::isSendable() returns. False where nobody is logged in.
    bool send(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

    /// Waits until the bus has handled all that was sent. False when it has taken nothing for as long as `patience`.
    bool sync(std::chrono::milliseconds patience);

signals:
    /// Becomes ready.
    void ready();
    /// Is over.
    void ended();

private:
    void watch(DBusWatch *watch);
    void dispatch();
    void take(DBusMessage *message);
    void takeAnswer(DBusMessage *message);
    quint32 ask(const char *method, const char *argument = nullptr);
    bool waitForRoom(QDeadlineTimer deadline) const;
    void exchange(QDeadlineTimer deadline);
    QCopWire::Message messageOf(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

    const Opened connection;
    QByteArray name;
    quint32 needed = 0;   // the question to the bus that makes this ready when it is answered
    quint32 answered = 0; // the last one that was
    bool over = false;

    /// What has been sent and may be again.
    struct Kept {
        QCopWire::Message wire; // never sent itself
        QByteArray channel;
        QByteArray message;
        QByteArray data;
    };
    std::array<Kept, 4> kept;
    std::size_t oldest = 0; // of them
};
