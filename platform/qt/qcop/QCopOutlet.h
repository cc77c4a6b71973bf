// The way of this process's own messages to the session bus. Not a public header.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>
#include <QtCore/QString>

#include <chrono>
#include <memory>

struct DBusConnection;
struct DBusMessage;

/// A connection that sends and is subscribed to nothing, so that the bus sends nothing of it back. Its own, beside the
/// one of Qt D-Bus that receives: Qt lays out the three arrays of a message at three times the cost of one, every time,
/// while the update that is broadcast is always the same and kept here ready to be sent again.
///
/// Belongs to the GUI thread, where its event loop writes what the bus did not take at once.
class QCopOutlet : public QObject
{
    Q_OBJECT

public:
    struct Closer {
        void operator()(DBusConnection *opened) const;
    };
    using Connection = std::unique_ptr<DBusConnection, Closer>;

    /// Connects to the session bus and gets a name from it; null where there is none. To be called in a thread of its
    /// own, when the bus has been found to answer.
    static Connection connectToBus();

    /// `opened` is not null.
    explicit QCopOutlet(Connection opened);
    ~QCopOutlet() override;

    /// The unique name on the bus, the sender of what is sent here.
    QString name() const;
    bool isConnected() const;

    /// Queues a message of at most what QCopBus::isSendable() tells. False without a connection.
    bool send(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

    /// Waits until the bus has handled all that was sent. False when it has not within `limit`.
    bool sync(std::chrono::milliseconds limit);

    /// Reads and writes what can be without waiting.
    void exchange();

signals:
    /// The bus closed the connection. Through the event loop.
    void lost();

private:
    struct Unref {
        void operator()(DBusMessage *message) const;
    };
    using Message = std::unique_ptr<DBusMessage, Unref>;

    Message messageOf(const QByteArray &channel, const QByteArray &message, const QByteArray &data);
    void watch();

    const Connection connection;
    QSocketNotifier readable;
    QSocketNotifier writable;
    bool isLost = false;

    Message last; // never sent itself
    QByteArray lastChannel;
    QByteArray lastMessage;
    QByteArray lastData;
};
