// From a broadcast to the repainted list of Data Volumes, and how many broadcasts a second come through.
#include "bench/Counted.h"
#include "bench/FixedHandset.h"
#include "bench/Groups.h"
#include "bench/PlainSignal.h"
#include "bench/Stage.h"
#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"
#include "utility/PHONE_UI_RecentCallDataVolumesView.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QProcess>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <dbus/dbus.h>

#include <array>
#include <chrono>
#include <memory>
#include <string>

namespace bench {

namespace {

constexpr auto channelName = "/KAV/phone";
constexpr auto updateMessage = "/KAV/phone/RecentCall/Update";
constexpr int patienceMs = 30'000;
constexpr int burst = 10'000;
constexpr int sentAtOnce = 100;

/// Gets what the other process sends as a plain signal, and passes it on as a direct call.
class PlainReceiver : public QObject
{
    Q_OBJECT

public:
    PlainReceiver()
    {
        QDBusConnection::sessionBus().connect(QString(), QLatin1StringView(plainPath),
                                              QLatin1StringView(plainInterface), QLatin1StringView(plainMember),
                                              this, SLOT(take(QByteArray)));
    }

signals:
    void received(const QCString &message, const QByteArray &data);

private slots:
    void take(const QByteArray &data) { emit received(QCString(updateMessage), data); }
};

/// Counts broadcasts that come in the order of their numbers.
class Counter : public QObject
{
    Q_OBJECT

public:
    bool waitFor(int count)
    {
        const QDeadlineTimer deadline(patienceMs);
        while (next < count && inOrder && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        return inOrder && next == count;
    }
    void startAnew() { next = 0; }

public slots:
    void take(const QCString &, const QByteArray &data) { inOrder = inOrder && data.toInt() == next++; }

private:
    int next = 0;
    bool inOrder = true;
};

/// The other process.
class Sender
{
public:
    Sender()
    {
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kavbench_sender"), QStringList());
        isReady = process.waitForReadyRead(patienceMs) && process.readLine().trimmed() == "ready";
    }
    ~Sender()
    {
        process.closeWriteChannel();
        process.waitForFinished();
    }

    void send(const char *how, int count)
    {
        process.write(how + QByteArray(" ") + QByteArray::number(count) + '\n');
        process.waitForBytesWritten();
    }

    bool isReady = false;

private:
    QProcess process;
};

/// The screen on the display. Every update changes one of its rows, so that it can be seen when the rows are there.
class Shown
{
public:
    Shown()
    {
        useFixedHandset();
        screen = std::make_unique<PHONE_UI_RecentCallDataVolumesView>(&stage, nullptr);
        screen->show();
        stage.paint();
        for (Figures &figures : all) {
            nameFirstSession(figures.name);
            QCopChannel::send(channelName, updateMessage);
            settle();
            figures.picture = stage.picture();
        }
    }

    const char *fault() const
    {
        return all[0].picture == all[1].picture ? "the list does not show what has changed" : nullptr;
    }

    /// The next update finds other figures.
    void change()
    {
        current = 1 - current;
        nameFirstSession(all[current].name);
    }

    /// Handles events until the display shows the rows as they are now; looking whether it does is not measured. Waits
    /// for another process, too.
    bool isRepainted(benchmark::State &state)
    {
        const QDeadlineTimer deadline(patienceMs);
        while (!deadline.hasExpired()) {
            if (!stage.paint())
                continue;
            const Uncounted look(state);
            if (stage.picture() == all[current].picture)
                return true;
        }
        return false;
    }

    /// Gets what comes by another way than the channel.
    QObject *receiver() { return screen.get(); }

private:
    struct Figures {
        QByteArray name;
        QImage picture;
    };

    // Until nothing more is painted, and then all of it once more.
    void settle()
    {
        while (stage.paint()) {
        }
        stage.update();
        stage.paint();
    }

    Stage stage;
    std::unique_ptr<PHONE_UI_RecentCallDataVolumesView> screen;
    std::array<Figures, 2> all{Figures{"first.example", {}}, Figures{"second.example", {}}};
    std::size_t current = 1;
};

class Announcer : public QObject
{
    Q_OBJECT

signals:
    void update(const QCString &message, const QByteArray &data);
};

template <typename Send>
void measureUpdates(benchmark::State &state, Shown &shown, Send send)
{
    if (const char *fault = shown.fault())
        state.SkipWithError(fault);
    for (auto _ : state) {
        shown.change();
        const Counted counted;
        send();
        if (!shown.isRepainted(state))
            return state.SkipWithError("the rows are not repainted");
    }
}

// --- within the process

void channelWithin(benchmark::State &state)
{
    Shown shown;
    measureUpdates(state, shown, [] { QCopChannel::send(channelName, updateMessage); });
}

void queuedSignalWithin(benchmark::State &state)
{
    Shown shown;
    Announcer announcer;
    QObject::connect(&announcer, SIGNAL(update(QCString, QByteArray)), shown.receiver(),
                     SLOT(slotUpdateChildWidgets(QCString, QByteArray)), Qt::QueuedConnection);
    measureUpdates(state, shown, [&] { emit announcer.update(QCString(updateMessage), QByteArray()); });
}

// --- from another process

void repaintFromOutside(benchmark::State &state, const char *how, Shown &shown)
{
    Sender sender;
    if (!sender.isReady)
        return state.SkipWithError("the other process is not on the bus");
    measureUpdates(state, shown, [&] { sender.send(how, 1); });
}

void channelFromOutside(benchmark::State &state)
{
    Shown shown;
    repaintFromOutside(state, "channel", shown);
}

void plainFromOutside(benchmark::State &state)
{
    Shown shown;
    const PlainReceiver receiver;
    QObject::connect(&receiver, SIGNAL(received(QCString, QByteArray)), shown.receiver(),
                     SLOT(slotUpdateChildWidgets(QCString, QByteArray)));
    repaintFromOutside(state, "plain", shown);
}

void countFromOutside(benchmark::State &state, const char *how, Counter &counter)
{
    Sender sender;
    if (!sender.isReady)
        return state.SkipWithError("the other process is not on the bus");
    for (auto _ : state) {
        counter.startAnew();
        sender.send(how, burst);
        if (!counter.waitFor(burst))
            return state.SkipWithError("a broadcast is lost, or comes twice or out of its turn");
    }
}

void manyOnTheChannel(benchmark::State &state)
{
    Counter counter;
    const QCopChannel channel{QCString(channelName)};
    QObject::connect(&channel, SIGNAL(received(QCString, QByteArray)), &counter, SLOT(take(QCString, QByteArray)));
    countFromOutside(state, "channel", counter);
}

void manyPlain(benchmark::State &state)
{
    Counter counter;
    const PlainReceiver receiver;
    QObject::connect(&receiver, SIGNAL(received(QCString, QByteArray)), &counter,
                     SLOT(take(QCString, QByteArray)));
    countFromOutside(state, "plain", counter);
}

// --- sending alone

// The bus answers when it has handled all that was sent before, and what it sends back here has come.
bool isPlainHandled()
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"));
    return QDBusConnection::sessionBus().call(question, QDBus::Block, patienceMs).type() ==
           QDBusMessage::ReplyMessage;
}

bool isChannelHandled()
{
    return QCopBus::instance()->sync(std::chrono::milliseconds(patienceMs));
}

bool sendOnChannel()
{
    return QCopChannel::send(channelName, updateMessage, QByteArrayLiteral("1"));
}

bool sendPlain()
{
    QDBusMessage message = QDBusMessage::createSignal(
        QLatin1StringView(plainPath), QLatin1StringView(plainInterface), QLatin1StringView(plainMember));
    message << QByteArrayLiteral("1");
    return QDBusConnection::sessionBus().send(message);
}

// As a program sends that leaves Qt out of it: a connection of its own, and each message written when it is sent.
DBusConnection *leanConnection()
{
    static DBusConnection *const connection = dbus_bus_get_private(DBUS_BUS_SESSION, nullptr);
    return connection;
}

bool isLeanHandled()
{
    DBusMessage *question = dbus_message_new_method_call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                         "org.freedesktop.DBus", "GetId");
    DBusMessage *answer =
        dbus_connection_send_with_reply_and_block(leanConnection(), question, patienceMs, nullptr);
    dbus_message_unref(question);
    if (!answer)
        return false;
    dbus_message_unref(answer);
    return true;
}

bool sendLean()
{
    if (!leanConnection())
        return false;
    const char *bytes = "1";
    DBusMessage *message = dbus_message_new_signal(plainPath, plainInterface, plainMember);
    const bool isSent =
        dbus_message_append_args(message, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE, &bytes, 1, DBUS_TYPE_INVALID) &&
        dbus_connection_send(leanConnection(), message, nullptr);
    dbus_message_unref(message);
    dbus_connection_flush(leanConnection());
    return isSent;
}

/// Sends many, until the bus has handled them and nothing is left to do here.
template <bool (*send)(), bool (*isHandled)()>
void sendMany(benchmark::State &state)
{
    useFixedHandset();
    if (!QCopBus::instance()->waitFor(std::chrono::milliseconds(patienceMs)) || !send() || !isHandled())
        return state.SkipWithError("there is no bus");
    bool isSent = true;
    for (auto _ : state) {
        const Counted counted;
        for (int i = 0; i < sentAtOnce; ++i)
            isSent = send() && isSent;
        isSent = isHandled() && isSent;
        QCoreApplication::processEvents();
    }
    if (!isSent)
        state.SkipWithError("an update was not sent");
}

// --- sending from a process that subscribes

/// What has come back here: each that is sent, in its turn.
bool hasCome(const int &received)
{
    const QDeadlineTimer deadline(patienceMs);
    while (received < sentAtOnce && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    return received == sentAtOnce;
}

/// Counts what it is told.
class Arrivals : public QObject
{
    Q_OBJECT

public:
    int count = 0;

public slots:
    void take(const QCString &, const QByteArray &) { ++count; }
};

template <bool (*send)(), typename Subscription>
void sendToItself(benchmark::State &state, Subscription &subscription)
{
    useFixedHandset();
    Arrivals arrivals;
    QObject::connect(&subscription, SIGNAL(received(QCString, QByteArray)), &arrivals,
                     SLOT(take(QCString, QByteArray)));
    if (!QCopBus::instance()->waitFor(std::chrono::milliseconds(patienceMs)))
        return state.SkipWithError("there is no bus");
    for (auto _ : state) {
        arrivals.count = 0;
        const Counted counted;
        for (int i = 0; i < sentAtOnce; ++i)
            send();
        if (!hasCome(arrivals.count))
            return state.SkipWithError("not each that was sent has come");
    }
}

void channelToItself(benchmark::State &state)
{
    QCopChannel channel{QCString(channelName)};
    sendToItself<&sendOnChannel>(state, channel);
}

void plainToItself(benchmark::State &state)
{
    PlainReceiver receiver;
    sendToItself<&sendPlain>(state, receiver);
}

// Takes what has come on the lean connection. Returns how many of them are the updates.
int takeLean()
{
    int updates = 0;
    while (DBusMessage *message = dbus_connection_pop_message(leanConnection())) {
        const char *bytes = nullptr;
        int size = 0;
        if (dbus_message_is_signal(message, plainInterface, plainMember) &&
            dbus_message_get_args(message, nullptr, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE, &bytes, &size,
                                  DBUS_TYPE_INVALID))
            ++updates;
        dbus_message_unref(message);
    }
    return updates;
}

void leanToItself(benchmark::State &state)
{
    if (!leanConnection())
        return state.SkipWithError("there is no bus");
    const std::string rule = std::string("type='signal',interface='") + plainInterface + "'";
    dbus_bus_add_match(leanConnection(), rule.c_str(), nullptr);
    for (auto _ : state) {
        int received = 0;
        const Counted counted;
        for (int i = 0; i < sentAtOnce; ++i)
            sendLean();
        const QDeadlineTimer deadline(patienceMs);
        while (received < sentAtOnce && !deadline.hasExpired()) {
            dbus_connection_read_write(leanConnection(), 100);
            received += takeLean();
        }
        if (received != sentAtOnce)
            return state.SkipWithError("not each that was sent has come");
    }
    dbus_bus_remove_match(leanConnection(), rule.c_str(), nullptr);
}

} // namespace

std::vector<Comparison> broadcastComparisons()
{
    Comparison within;
    within.name = "Update to repainted rows, within the process";
    within.ours = {"channel", &channelWithin};
    within.beside = {{{"queued signal", &queuedSignalWithin}}};
    within.millions = Bar{0.65, 0.4};

    Comparison across;
    across.name = "Update to repainted rows, across processes";
    across.ours = {"channel", &channelFromOutside};
    across.beside = {{{"Qt D-Bus signal", &plainFromOutside}}};
    across.clock = Clock::Wall;
    across.countsInstructions = false;

    Comparison sending;
    sending.name = "Sending an update";
    sending.ours = {"channel", &sendMany<&sendOnChannel, &isChannelHandled>};
    sending.beside = {{{"libdbus signal", &sendMany<&sendLean, &isLeanHandled>}, Bar{1.8, 1.3}},
                      {{"Qt D-Bus signal", &sendMany<&sendPlain, &isPlainHandled>}}};
    sending.iterations = 20;
    sending.operations = sentAtOnce;

    Comparison sendingToItself;
    sendingToItself.name = "Sending an update from a process that has subscribed, until it has come there";
    sendingToItself.ours = {"channel", &channelToItself};
    sendingToItself.beside = {{{"libdbus signal", &leanToItself}, Bar{1.8, 1.3}},
                              {{"Qt D-Bus signal", &plainToItself}}};
    sendingToItself.iterations = 20;
    sendingToItself.operations = sentAtOnce;

    Comparison many;
    many.name = "10,000 broadcasts across processes, none lost";
    many.ours = {"channel", &manyOnTheChannel};
    many.beside = {{{"Qt D-Bus signals", &manyPlain}}};
    many.clock = Clock::Wall;
    many.iterations = 1;
    many.operations = burst;
    many.countsInstructions = false;
    return {within, across, sending, sendingToItself, many};
}

} // namespace bench

#include "broadcasts.moc"
