// The test's side of a process with channels of its own.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QProcess>

/// A running qcop_peer. Its subscribers are named by numbers; what they get is kept as lines until it is asked for.
class Peer
{
public:
    /// `bus` is the address of its session bus.
    explicit Peer(const QString &bus);
    ~Peer();
    Q_DISABLE_COPY_MOVE(Peer)

    /// Connects, and waits for it. True when the bus has acknowledged that messages are to come.
    bool connectToBus();
    /// Makes subscriber `id`, and connects.
    bool subscribe(int id, const QByteArray &channel);
    /// Makes subscriber `id` and does not wait for more than the constructor does.
    void make(int id, const QByteArray &channel);
    void unsubscribe(int id);
    /// What QCopChannel::send() said.
    bool send(const QByteArray &channel, const QByteArray &message, const QByteArray &data = QByteArray());
    /// Sends `count` messages, named `prefix` and their numbers from 0 on, and does not wait for them to be sent.
    void startBurst(const QByteArray &channel, const QByteArray &prefix, int count);
    /// True when the bus took them all.
    bool finishBurst();
    /// Sends a message with `size` bytes of a pattern.
    bool sendPattern(const QByteArray &channel, const QByteArray &message, qint64 size);
    /// What connectToBus() would say now, without asking the bus.
    bool isOnBus();
    /// Stops its GUI thread until goOn().
    void hold();
    void goOn();
    /// Makes and deletes a channel `count` times. How often its GUI thread waited for something meanwhile; -1 when it
    /// does not get to the end.
    int cycle(int count);
    /// Ends the input, on which the process ends. True when it does so within `milliseconds`.
    bool endsWithin(int milliseconds);
    /// Its exit status, after its end; -1 when it crashed or goes on.
    int finish();

    /// The next message, of whichever subscriber, as line(); a null array when none comes.
    QByteArray take();
    /// All messages up to the one named `message` on subscriber `id`, without it. An entry "missing" stands for it
    /// when it does not come.
    QList<QByteArray> takeUntil(int id, const QByteArray &message);

    static QByteArray line(int id, const QByteArray &message, const QByteArray &data = QByteArray());
    static QByteArray patternLine(int id, const QByteArray &message, qint64 size);

    /// All it wrote to standard error so far.
    QByteArray errors();
    bool isRunning() const { return process.state() == QProcess::Running; }
    qint64 processId() const { return process.processId(); }

private:
    void command(const QByteArray &line);
    QByteArray answer();
    QByteArray readLine();

    QProcess process;
    QList<QByteArray> messages;
    QByteArray errorText;
};
