// The recorder, run as its unit runs it.
#include "handset/HandsetTestKit.h"
#include "handset/modemmanager/FakeModemManager.h"
#include "qt/qcop/PrivateBus.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <csignal>

using namespace handset::test;

namespace {

const QString call = QStringLiteral("/org/freedesktop/ModemManager1/Call/1");
const QString other = QStringLiteral("/org/freedesktop/ModemManager1/Call/2");
const QString bearer = QStringLiteral("/org/freedesktop/ModemManager1/Bearer/1");

constexpr int limitMs = 60'000; ///< no wait is that long, however busy the machine is

/// A recorder with a daemon, a bus and a state directory of its own.
class Bench
{
public:
    Bench()
        : fake(bus.address())
    {
        endWithParent(recorder);
        fake.addModem(fake.modem);
        fake.appear();
    }

    void start(const QStringList &more = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), bus.address());
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
        recorder.setProcessEnvironment(environment);
        recorder.start(QStringLiteral(KAV_RECORDER), QStringList{QStringLiteral("--state"), state.path()} + more);
    }
    void startAndSettle(const QStringList &more = {})
    {
        fake.asked.clear();
        start(more);
        QTRY_VERIFY_WITH_TIMEOUT(fake.asked.contains(QStringLiteral("ListCalls")), limitMs);
    }
    /// Begins a call and waits until its row is on the disk.
    void beginCall(const QString &path)
    {
        const QString before = calls();
        fake.addCall(path, Incoming, RingingIn, QStringLiteral("5550123"));
        fake.moveCall(path, Active);
        QTRY_VERIFY_WITH_TIMEOUT(calls() != before, limitMs);
    }
    void end(int signal)
    {
        ::kill(static_cast<pid_t>(recorder.processId()), signal);
        QTRY_COMPARE_WITH_TIMEOUT(recorder.state(), QProcess::NotRunning, limitMs);
    }
    QString calls() const
    {
        return value(QStringLiteral("SELECT group_concat(state, ' ') FROM calls")).toString();
    }
    qint64 countedMs() const { return value(QStringLiteral("SELECT sum(duration_ms) FROM calls")).toLongLong(); }
    QVariant value(const QString &query) const
    {
        return QFile::exists(state.database()) ? LogFile(state.database()).value(query) : QVariant();
    }

    PrivateBus bus;
    FakeModemManager fake;
    StateDir state;
    QProcess recorder;
};

// How often all threads of a process have waited for something to happen.
qint64 wakeUps(qint64 process)
{
    qint64 all = 0;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(process));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status(tasks.filePath(task + QStringLiteral("/status")));
        static const QRegularExpression line(QStringLiteral("\nvoluntary_ctxt_switches:\\s*(\\d+)"));
        if (status.open(QIODevice::ReadOnly))
            all += line.match(QString::fromLatin1(status.readAll())).captured(1).toLongLong();
    }
    return all;
}

} // namespace

class TestRecorder : public QObject
{
    Q_OBJECT

private slots:
    void aCallIsRecordedWithoutAWindow();
    void aSignalEndsItWithWhatRunsWritten_data();
    void aSignalEndsItWithWhatRunsWritten();
    void aCallInWhichItIsKilledIsNotCountedTwice();
    void itGoesOnWhenTheDaemonHasBeenRestarted();
    void itGoesOnWhenTheBusHasBeenRestarted();
    void itSendsTheUpdateBroadcast();
    void nothingWakesItUpWhileNothingRuns();
    void withoutAModemItWaitsForOne();
    void withoutABusItSaysSo();
    void theCommandLineIsChecked_data();
    void theCommandLineIsChecked();
};

void TestRecorder::aCallIsRecordedWithoutAWindow()
{
    Bench bench;
    bench.startAndSettle({QStringLiteral("--backend"), QStringLiteral("modemmanager")});
    bench.beginCall(call);
    QCOMPARE(bench.calls(), QStringLiteral("0"));
    bench.fake.moveCall(call, Terminated);
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("1"), limitMs);
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
    QCOMPARE(bench.recorder.readAllStandardError(), QByteArray());
}

void TestRecorder::aSignalEndsItWithWhatRunsWritten_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("the service manager") << SIGTERM;
    QTest::newRow("Ctrl+C") << SIGINT;
    QTest::newRow("the terminal goes") << SIGHUP;
}

void TestRecorder::aSignalEndsItWithWhatRunsWritten()
{
    QFETCH(int, signal);
    Bench bench;
    bench.startAndSettle();
    bench.beginCall(call);
    QElapsedTimer sinceBeginning;
    sinceBeginning.start();
    QTRY_VERIFY_WITH_TIMEOUT(sinceBeginning.elapsed() > 200, limitMs);
    bench.end(signal);
    QCOMPARE(bench.recorder.exitStatus(), QProcess::NormalExit);
    QCOMPARE(bench.recorder.exitCode(), 0);
    QVERIFY(bench.countedMs() >= 200); // less than the 5 s after which it writes by itself
}

void TestRecorder::aCallInWhichItIsKilledIsNotCountedTwice()
{
    Bench bench;
    QElapsedTimer connected;
    bench.startAndSettle();
    connected.start();
    bench.beginCall(call);
    bench.end(SIGKILL);
    bench.startAndSettle();
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("3 0"), limitMs);
    bench.fake.moveCall(call, Terminated);
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("3 1"), limitMs);
    QVERIFY(bench.countedMs() <= connected.elapsed());
    QCOMPARE(bench.value(QStringLiteral("SELECT group_concat(late, ' ') FROM calls")).toString(),
             QStringLiteral("0 1"));
    bench.end(SIGTERM);
}

void TestRecorder::itGoesOnWhenTheDaemonHasBeenRestarted()
{
    Bench bench;
    bench.startAndSettle();
    bench.beginCall(call);
    bench.fake.vanish();
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("1"), limitMs);
    bench.fake.callPaths.clear();
    bench.fake.asked.clear();
    bench.fake.appear();
    QTRY_VERIFY_WITH_TIMEOUT(bench.fake.asked.contains(QStringLiteral("ListCalls")), limitMs);
    bench.beginCall(other);
    QCOMPARE(bench.calls(), QStringLiteral("1 0"));
    bench.end(SIGTERM);
}

void TestRecorder::itGoesOnWhenTheBusHasBeenRestarted()
{
    Bench bench;
    bench.startAndSettle();
    bench.beginCall(call);
    bench.bus.kill();
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("1"), limitMs);
    QVERIFY(bench.bus.start());
    FakeModemManager next(bench.bus.address());
    next.addModem(next.modem);
    next.appear();
    QTRY_VERIFY_WITH_TIMEOUT(next.asked.contains(QStringLiteral("ListCalls")), limitMs);
    next.addCall(other, Incoming, RingingIn, QStringLiteral("1"));
    next.moveCall(other, Active);
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("1 0"), limitMs);
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
}

void TestRecorder::itSendsTheUpdateBroadcast()
{
    Bench bench;
    bench.startAndSettle();
    QProcess listener;
    endWithParent(listener);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bench.bus.address());
    listener.setProcessEnvironment(environment);
    listener.start(QStringLiteral(KAV_QCOP), {QStringLiteral("listen"), QStringLiteral("/KAV/phone"),
                                              QStringLiteral("--count"), QStringLiteral("1")});
    // One goes out with each beginning and each end: the listener may come late for some.
    bool isOn = false;
    bench.fake.addBearer(bearer, {{QStringLiteral("Connected"), false}});
    const auto again = [&] {
        isOn = !isOn;
        bench.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), isOn}});
        return listener.state() == QProcess::NotRunning;
    };
    QTRY_VERIFY_WITH_TIMEOUT(again(), limitMs);
    QVERIFY(listener.readAllStandardOutput().contains("/KAV/phone/RecentCall/Update"));
    bench.end(SIGTERM);
}

void TestRecorder::nothingWakesItUpWhileNothingRuns()
{
    Bench bench;
    bench.startAndSettle();
    bench.beginCall(call);
    bench.fake.moveCall(call, Terminated);
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("1"), limitMs);
    // It is at rest when nothing has woken it for as long as its longest interval, which is that of a running call.
    const qint64 id = bench.recorder.processId();
    QElapsedTimer quiet;
    quiet.start();
    qint64 before = wakeUps(id);
    QVERIFY(before > 0);
    QTRY_VERIFY2_WITH_TIMEOUT(
        [&] {
            const qint64 now = wakeUps(id);
            if (now != std::exchange(before, now))
                quiet.restart();
            return quiet.elapsed() > 6'000;
        }(),
        "it is woken up again and again", limitMs);
    bench.end(SIGTERM);
}

void TestRecorder::withoutAModemItWaitsForOne()
{
    Bench bench;
    bench.fake.vanish();
    bench.start();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(bench.state.database()), limitMs);
    bench.fake.appear();
    QTRY_VERIFY_WITH_TIMEOUT(bench.fake.asked.contains(QStringLiteral("ListCalls")), limitMs);
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
}

void TestRecorder::withoutABusItSaysSo()
{
    Bench bench;
    bench.bus.kill();
    bench.start();
    QTRY_COMPARE_WITH_TIMEOUT(bench.recorder.state(), QProcess::NotRunning, limitMs);
    QCOMPARE(bench.recorder.exitCode(), 3);
    QVERIFY(bench.recorder.readAllStandardError().startsWith("kavcallrecorder: There is no system bus: "));
}

void TestRecorder::theCommandLineIsChecked_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("says");
    QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0 << QStringLiteral("--backend <NAME>");
    QTest::newRow("version") << QStringList{QStringLiteral("--version")} << 0
                             << QStringLiteral("kavcallrecorder ");
    QTest::newRow("an option that there is not")
        << QStringList{QStringLiteral("--tour")} << 2 << QStringLiteral("See kavcallrecorder --help.");
    QTest::newRow("a word that is no option")
        << QStringList{QStringLiteral("now")} << 2 << QStringLiteral("See kavcallrecorder --help.");
    QTest::newRow("an empty backend") << QStringList{QStringLiteral("--backend"), QString()} << 2
                                      << QStringLiteral("See kavcallrecorder --help.");
    QTest::newRow("a telephone that there is not")
        << QStringList{QStringLiteral("--backend"), QStringLiteral("tin")} << 3
        << QStringLiteral("There is no telephone named \"tin\"");
}

void TestRecorder::theCommandLineIsChecked()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, says);
    Bench bench;
    bench.recorder.setProcessChannelMode(QProcess::MergedChannels);
    bench.start(arguments);
    QTRY_COMPARE_WITH_TIMEOUT(bench.recorder.state(), QProcess::NotRunning, limitMs);
    QCOMPARE(bench.recorder.exitCode(), code);
    const QString said = QString::fromUtf8(bench.recorder.readAll());
    QVERIFY2(said.contains(says), qPrintable(said));
}

KAV_TEST_GROUP(TestRecorder, QCoreApplication);
#include "tst_process.moc"
