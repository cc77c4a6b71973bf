// From a broadcast to the repainted list of Data Volumes, and how many broadcasts a second come through.
#include "FixedTelephone.h"
#include "Groups.h"
#include "PHONE_UI_RecentCallDataVolumesView.h"
#include "PlainSignal.h"
#include "QCopChannel.h"
#include "Stage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QProcess>
#include <QtDBus/QDBusConnection>

#include <memory>

namespace bench {

namespace {

constexpr auto channelName = "/KAV/phone";
constexpr auto updateMessage = "/KAV/phone/RecentCall/Update";
constexpr int patienceMs = 30'000;
constexpr int burst = 10'000;

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

/// The screen on the display, with its list painted.
class Shown
{
public:
    Shown()
    {
        useFixedTelephone();
        screen = std::make_unique<PHONE_UI_RecentCallDataVolumesView>(&stage, nullptr);
        screen->show();
        stage.paint();
    }

    // Waits for the other process, too.
    bool isRepainted()
    {
        const QDeadlineTimer deadline(patienceMs);
        bool painted = false;
        while (!painted && !deadline.hasExpired())
            painted = stage.paint();
        return painted;
    }

    Stage stage;
    std::unique_ptr<PHONE_UI_RecentCallDataVolumesView> screen;
};

class Announcer : public QObject
{
    Q_OBJECT

signals:
    void update(const QCString &message, const QByteArray &data);
};

// --- within the process

void channelWithin(benchmark::State &state)
{
    Shown shown;
    for (auto _ : state) {
        QCopChannel::send(channelName, updateMessage);
        if (!shown.isRepainted())
            return state.SkipWithError("the list is not repainted");
    }
}

void queuedSignalWithin(benchmark::State &state)
{
    Shown shown;
    Announcer announcer;
    QObject::connect(&announcer, SIGNAL(update(QCString, QByteArray)), shown.screen.get(),
                     SLOT(slotUpdateChildWidgets(QCString, QByteArray)), Qt::QueuedConnection);
    for (auto _ : state) {
        emit announcer.update(QCString(updateMessage), QByteArray());
        if (!shown.isRepainted())
            return state.SkipWithError("the list is not repainted");
    }
}

// --- from another process

void repaintFromOutside(benchmark::State &state, const char *how, Shown &shown)
{
    Sender sender;
    if (!sender.isReady)
        return state.SkipWithError("the other process is not on the bus");
    for (auto _ : state) {
        sender.send(how, 1);
        if (!shown.isRepainted())
            return state.SkipWithError("the list is not repainted");
    }
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
    QObject::connect(&receiver, SIGNAL(received(QCString, QByteArray)), shown.screen.get(),
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

} // namespace

std::vector<Comparison> broadcastComparisons()
{
    return {
        {"Broadcast to repainted list, within the process",
         {"channel", &channelWithin},
         {"queued signal", &queuedSignalWithin},
         {}},
        {"Broadcast to repainted list, across processes",
         {"channel", &channelFromOutside},
         {"Qt D-Bus signal", &plainFromOutside},
         {},
         Clock::Wall},
        {"10,000 broadcasts across processes, none lost",
         {"channel", &manyOnTheChannel},
         {"Qt D-Bus signals", &manyPlain},
         {},
         Clock::Wall,
         1,
         burst},
    };
}

} // namespace bench

#include "broadcasts.moc"
