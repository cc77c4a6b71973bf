// The recorder, run as its unit runs it.
#include "bench/daemons/FakeModemManager.h"
#include "bench/daemons/FakeOfono.h"
#include "recorder/RecorderProcess.h"
#include "support/TestGroup.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>

#include <csignal>

using namespace handset::test;

namespace {

const QString call = QStringLiteral("/org/freedesktop/ModemManager1/Call/1");
const QString other = QStringLiteral("/org/freedesktop/ModemManager1/Call/2");
const QString bearer = QStringLiteral("/org/freedesktop/ModemManager1/Bearer/1");

/// A recorder with a daemon and a bus of its own.
class Bench : public RecorderProcess
{
public:
    Bench()
        : fake(bus.address())
        , watcher(QDBusConnection::connectToBus(bus.address(), QStringLiteral("watcher")))
    {
        fake.addModem(fake.modem);
        fake.appear();
    }
    ~Bench() { QDBusConnection::disconnectFromBus(watcher.name()); }
    Q_DISABLE_COPY_MOVE(Bench)

    void start(const QStringList &more = {}) { startOn(bus.address(), more); }
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
    /// How many connections the bus has, that of the one who asks included.
    qsizetype connections() const
    {
        const QStringList names = watcher.interface()->registeredServiceNames();
        return names.filter(QRegularExpression(QStringLiteral("^:"))).size();
    }

    PrivateBus bus;
    FakeModemManager fake;
    QDBusConnection watcher;
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
    void itKeepsTheCallsOfSoManyDays();
    void aSignalEndsItWithWhatRunsWritten_data();
    void aSignalEndsItWithWhatRunsWritten();
    void aCallInWhichItIsKilledIsNotCountedTwice();
    void aCallThatRanBeforeCountsFromItsStart();
    void aCallThatRanBeforeCountsFromNowOnWhereNobodyKnowsItsStart();
    void itGoesOnWhenTheDaemonHasBeenRestarted();
    void itGoesOnWhenTheModemHasBeenUnplugged();
    void itGoesOnWhenTheBusHasBeenRestarted();
    void itGoesOnWhenTheBusHasBeenSilent();
    void itSendsTheUpdateBroadcast();
    void nothingWakesItUpWhileNothingRuns();
    void withoutAModemItWaitsForOne_data();
    void withoutAModemItWaitsForOne();
    void aSignalEndsTheWait();
    void withoutABusItSaysSo();
    void aBusThatIsSilentAtTheStartIsLookedFor();
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

void TestRecorder::itKeepsTheCallsOfSoManyDays()
{
    Bench bench;
    const QDateTime now = QDateTime::currentDateTime();
    for (const int daysAgo : {31, 29}) {
        Phone phone(bench.state.path(),
                    std::make_shared<handset::ManualClock>(now.addDays(-daysAgo).toMSecsSinceEpoch()));
        QVERIFY(phone.dialed(second, handset::CallKind::Voice, QString::number(daysAgo)));
    }
    bench.startAndSettle({QStringLiteral("--backend"), QStringLiteral("modemmanager"),
                          QStringLiteral("--keep-calls"), QStringLiteral("30")});
    QTRY_COMPARE_WITH_TIMEOUT(bench.all(QStringLiteral("number")), QStringLiteral("29"), limitMs);
    bench.end(SIGTERM);
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
    QCOMPARE(bench.all(QStringLiteral("late")), QStringLiteral("0 1"));
    bench.end(SIGTERM);
}

void TestRecorder::aCallThatRanBeforeCountsFromItsStart()
{
    Bench bench;
    FakeOfono ofono(bench.bus.address());
    ofono.setInterfaces({QStringLiteral("VoiceCallManager")});
    constexpr qint64 agoMs = 100'000;
    const QDateTime start = QDateTime::currentDateTimeUtc().addMSecs(-agoMs);
    ofono.addCall(FakeOfono::modem + QStringLiteral("/voicecall01"),
                  {{QStringLiteral("State"), QStringLiteral("active")},
                   {QStringLiteral("LineIdentification"), QStringLiteral("5550123")},
                   {QStringLiteral("StartTime"), start.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss+0000"))}});
    ofono.appear();
    bench.start({QStringLiteral("--backend"), QStringLiteral("ofono")});
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("0"), limitMs);
    bench.end(SIGTERM);
    // The start is told in whole seconds.
    const qint64 sinceStartMs = start.msecsTo(QDateTime::currentDateTimeUtc());
    QVERIFY(bench.countedMs() >= agoMs);
    QVERIFY(bench.countedMs() <= sinceStartMs + 1'000);
    QCOMPARE(bench.all(QStringLiteral("late")), QStringLiteral("0"));
}

void TestRecorder::aCallThatRanBeforeCountsFromNowOnWhereNobodyKnowsItsStart()
{
    Bench bench;
    bench.fake.addCall(call, Incoming, Active, QStringLiteral("5550123"), false);
    QElapsedTimer sinceStart;
    sinceStart.start();
    bench.start();
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("0"), limitMs);
    bench.end(SIGTERM);
    QVERIFY(bench.countedMs() <= sinceStart.elapsed());
    QCOMPARE(bench.all(QStringLiteral("late")), QStringLiteral("1"));
}

void TestRecorder::itGoesOnWhenTheModemHasBeenUnplugged()
{
    Bench bench;
    bench.startAndSettle();
    bench.beginCall(call);
    bench.fake.removeModem(bench.fake.modem);
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("1"), limitMs);
    bench.fake.callPaths.clear();
    bench.fake.asked.clear();
    bench.fake.modem = QStringLiteral("/org/freedesktop/ModemManager1/Modem/1");
    bench.fake.addModem(bench.fake.modem);
    QTRY_VERIFY_WITH_TIMEOUT(bench.fake.asked.contains(QStringLiteral("ListCalls")), limitMs);
    bench.beginCall(other);
    QCOMPARE(bench.calls(), QStringLiteral("1 0"));
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

void TestRecorder::itGoesOnWhenTheBusHasBeenSilent()
{
    Bench bench;
    bench.startAndSettle();
    bench.beginCall(call);
    bench.bus.halt();
    const qint64 counted = bench.countedMs();
    QTRY_VERIFY_WITH_TIMEOUT(bench.countedMs() > counted, limitMs); // the running call is written all the same
    bench.bus.goOn();
    bench.fake.moveCall(call, Terminated);
    QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("1"), limitMs);
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

void TestRecorder::withoutAModemItWaitsForOne_data()
{
    QTest::addColumn<QString>("backend");
    QTest::addColumn<bool>("isOfono");
    QTest::newRow("of ModemManager") << QStringLiteral("modemmanager") << false;
    QTest::newRow("of oFono") << QStringLiteral("ofono") << true;
    QTest::newRow("of whichever it will be, and it is ModemManager") << QStringLiteral("auto") << false;
    QTest::newRow("of whichever it will be, and it is oFono") << QStringLiteral("auto") << true;
}

void TestRecorder::withoutAModemItWaitsForOne()
{
    QFETCH(QString, backend);
    QFETCH(bool, isOfono);
    Bench bench;
    FakeOfono ofono(bench.bus.address());
    ofono.setInterfaces({QStringLiteral("VoiceCallManager")});
    bench.fake.vanish();
    const qsizetype before = bench.connections();
    bench.start({QStringLiteral("--backend"), backend});
    const int daemonsAwaited = backend == QLatin1String("auto") ? 2 : 1; // the question before has one connection
    QTRY_VERIFY_WITH_TIMEOUT(bench.connections() >= before + daemonsAwaited, limitMs);
    if (isOfono)
        ofono.appear();
    else
        bench.fake.appear();
    const QString asksForCalls = QStringLiteral("VoiceCallManager.GetCalls");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(bench.state.database()), limitMs);
    QTRY_VERIFY_WITH_TIMEOUT(bench.fake.asked.contains(QStringLiteral("ListCalls")) ||
                                 !ofono.asked.filter(asksForCalls).isEmpty(),
                             limitMs);
    if (isOfono) {
        const QString path = FakeOfono::modem + QStringLiteral("/voicecall01");
        ofono.addCall(path, {{QStringLiteral("State"), QStringLiteral("incoming")}});
        ofono.setCall(path, "State", QStringLiteral("active"));
        QTRY_COMPARE_WITH_TIMEOUT(bench.calls(), QStringLiteral("0"), limitMs);
    } else {
        bench.beginCall(call);
    }
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
}

void TestRecorder::aSignalEndsTheWait()
{
    Bench bench;
    bench.fake.vanish();
    const qsizetype before = bench.connections();
    bench.start();
    QTRY_VERIFY_WITH_TIMEOUT(bench.connections() >= before + 2, limitMs);
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitStatus(), QProcess::NormalExit);
    QCOMPARE(bench.recorder.exitCode(), 0);
    QVERIFY(!QFile::exists(bench.state.database())); // nothing is held meanwhile
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

// As one that has much to do when the machine starts.
void TestRecorder::aBusThatIsSilentAtTheStartIsLookedFor()
{
    Bench bench;
    bench.bus.halt();
    bench.start();
    QByteArray said;
    QTRY_VERIFY_WITH_TIMEOUT((said += bench.recorder.readAllStandardError()).endsWith("; it is looked for.\n"),
                             limitMs);
    QCOMPARE(said, QByteArrayLiteral(
                       "kavcallrecorder: There is no system bus: it does not answer; it is looked for.\n"));
    bench.bus.goOn();
    QTRY_VERIFY_WITH_TIMEOUT(bench.fake.asked.contains(QStringLiteral("ListCalls")), limitMs);
    bench.beginCall(call);
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
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
    QTest::newRow("a word for the days to keep")
        << QStringList{QStringLiteral("--keep-calls"), QStringLiteral("few")} << 2
        << QStringLiteral("'keep-calls' wants a number of days");
    QTest::newRow("an empty backend") << QStringList{QStringLiteral("--backend"), QString()} << 2
                                      << QStringLiteral("See kavcallrecorder --help.");
    QTest::newRow("a state directory that cannot be used")
        << QStringList{QStringLiteral("--state"), QStringLiteral("/dev/null/state")} << 3
        << QStringLiteral("cannot be used");
    QTest::newRow("what its exit codes mean")
        << QStringList{QStringLiteral("--help")} << 0 << QStringLiteral("Exit codes:");
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
