// The packet-data sessions of the simulated handset: what is counted, told and written down.
#include "calllog/PacketFigures.h"
#include "calllog/Schema.h"
#include "handset/HandsetTestKit.h"
#include "handset/PacketData.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <limits>
#include <random>

using namespace handset;
using namespace handset::test;
using calllog::CallState;
using calllog::PacketFigures;
using simulated::SimulatedHandset;

namespace {

constexpr qint64 maximum = std::numeric_limits<qint64>::max();
constexpr quint32 mostBytes = std::numeric_limits<quint32>::max();

QString row(int id, const char *apn, qint64 ms, qint64 sent, qint64 received, CallState state)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(id)
        .arg(QLatin1String(apn))
        .arg(ms)
        .arg(sent)
        .arg(received)
        .arg(static_cast<int>(state));
}

} // namespace

class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void idsGoTo255AndBeginAgainAt1();
    void idsGoOnAfterARestart();
    void theNameOfAnAccessPointIsLatin1_data();
    void theNameOfAnAccessPointIsLatin1();
    void thereIsOneSessionAtATime();

    void bytesAreTheRateTimesTheTime_data();
    void bytesAreTheRateTimesTheTime();
    void noFractionOfAByteIsLost();
    void longSessionsAreToldInHours();
    void bytesAreToldUpToTheEndOf32Bits();
    void figuresStopAtTheirEndInsteadOfWrapping();
    void aMonotonicClockThatGoesBackTakesNothingAway();
    void aWallClockThatJumpsChangesNothing();

    void theRowIsThereFromTheBeginning();
    void aCheckpointWritesRowAndTotals();
    void aQueryWritesNothing();
    void aCrashLosesOnlyWhatFollowedTheLastCheckpoint();
    void theEndOfTheHandsetEndsTheSession();
    void theTimerRunsWithACallOrASession();
    void aCrashLosesNoMoreThanFiveSecondsHoweverLateTheTicksCome_data();
    void aCrashLosesNoMoreThanFiveSecondsHoweverLateTheTicksCome();
    void aSecondCallDoesNotPutTheCheckpointOff();

    void whatChangesIsSignalledOnce();
    void whatDoesNotHappenIsNotSignalled();
    void aWriteThatFailsChangesNothing();
    void aQueryThatFailsWritesNoOutput();
    void whatIsMissingWhenItIsWrittenIsAFailure_data();
    void whatIsMissingWhenItIsWrittenIsAFailure();
    void aRunningSessionWhoseRowIsGoneEndsAndIsCounted();
};

void TestSessions::idsGoTo255AndBeginAgainAt1()
{
    Phone phone;
    for (int number = 1; number <= 512; ++number) {
        QVERIFY(phone.session(1000));
        const int id = number <= 255 ? number : (number <= 510 ? number - 255 : number - 510);
        QCOMPARE(phone.sessions().first(), QStringLiteral("%1 internet 1 0 0").arg(id));
    }
    QCOMPARE(phone.sessions().size(), 3);
    QCOMPARE(phone.sessions().last().section(QLatin1Char(' '), 0, 0), QStringLiteral("255"));
}

void TestSessions::idsGoOnAfterARestart()
{
    const StateDir state;
    for (int number = 1; number <= 4; ++number) {
        Phone phone(state.path());
        QVERIFY(phone.session(1000));
        QCOMPARE(phone.sessions().first(), QStringLiteral("%1 internet 1 0 0").arg(number));
    }
}

void TestSessions::theNameOfAnAccessPointIsLatin1_data()
{
    QTest::addColumn<QByteArray>("apn");
    QTest::addColumn<bool>("valid");
    QTest::newRow("one character") << QByteArray("x") << true;
    QTest::newRow("100 characters") << QByteArray(100, 'a') << true;
    QTest::newRow("101 characters") << QByteArray(101, 'a') << true;
    QTest::newRow("102 characters") << QByteArray(102, 'a') << false;
    QTest::newRow("101 characters beyond ASCII") << QByteArray(101, '\xe4') << true;
    QTest::newRow("every character but NUL")
        << QByteArray("\x01\t '\"%1:id\x7f\x80\x9f\xa0\xc4\xd6\xdc\xdf\xe9\xff") << true;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("an empty text") << QByteArray("") << false;
    QTest::newRow("a NUL alone") << QByteArray(1, '\0') << false;
    QTest::newRow("a NUL at the end") << QByteArray("abc", 4) << false;
    QTest::newRow("a NUL in the middle") << QByteArray("ab\0cd", 5) << false;
}

void TestSessions::theNameOfAnAccessPointIsLatin1()
{
    QFETCH(QByteArray, apn);
    QFETCH(bool, valid);
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->packets().startSession(apn, 1, 1), int(valid ? Success : InvalidArgument));
    QCOMPARE(phone->packets().isSessionRunning(), valid);
    for (int start = 0; start < 2; ++start) {
        DataSessions sessions;
        QCOMPARE(phone.packets().sessions(sessions), int(Success));
        QCOMPARE(sessions.count, quint32(valid ? 1 : 0));
        QCOMPARE(sessions.records[0].apn, valid ? apn : QByteArray());
        phone.close();
        phone = Phone(state.path());
    }
}

void TestSessions::thereIsOneSessionAtATime()
{
    Phone phone;
    PacketFigures &packets = phone->packets();
    QCOMPARE(packets.stopSession(), int(WrongState));
    QVERIFY(!packets.isSessionRunning());
    QCOMPARE(packets.startSession("one", 1, 1), int(Success));
    QCOMPARE(packets.startSession("two", 1, 1), int(WrongState));
    QCOMPARE(packets.startSession("", 1, 1), int(InvalidArgument));
    QVERIFY(packets.isSessionRunning());
    QCOMPARE(packets.stopSession(), int(Success));
    QCOMPARE(packets.stopSession(), int(WrongState));
    QVERIFY(!packets.isSessionRunning());
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 one 0 0 0")});
}

void TestSessions::bytesAreTheRateTimesTheTime_data()
{
    QTest::addColumn<quint32>("rate");
    QTest::addColumn<qint64>("ms");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("nothing") << 0U << 10 * hour << qint64{0};
    QTest::newRow("no time") << mostBytes << qint64{0} << qint64{0};
    QTest::newRow("a byte that is not whole yet") << 1U << qint64{999} << qint64{0};
    QTest::newRow("one byte") << 1U << qint64{1000} << qint64{1};
    QTest::newRow("a byte a millisecond") << 1000U << qint64{1} << qint64{1};
    QTest::newRow("the highest rate for a millisecond") << mostBytes << qint64{1} << qint64{4'294'967};
    QTest::newRow("the highest rate for a day") << mostBytes << 24 * hour << qint64{mostBytes} * 86400;
    QTest::newRow("a third") << 333'333U << qint64{3003} << qint64{1'000'998};
}

void TestSessions::bytesAreTheRateTimesTheTime()
{
    QFETCH(quint32, rate);
    QFETCH(qint64, ms);
    QFETCH(qint64, bytes);
    for (const bool isSent : {true, false}) {
        const StateDir state;
        Phone phone(state.path());
        QVERIFY(phone.session(ms, "x", isSent ? rate : 0, isSent ? 0 : rate));
        const LogFile file(state.database());
        QCOMPARE(file.sessions(),
                 QStringList{row(1, "x", ms, isSent ? bytes : 0, isSent ? 0 : bytes, CallState::Finished)});
        QCOMPARE(file.sessionTotals(),
                 QStringLiteral("%1 %2 %3").arg(ms).arg(isSent ? bytes : 0).arg(isSent ? 0 : bytes));
    }
}

// However a session is cut up by queries, checkpoints and resets, it comes to the same.
void TestSessions::noFractionOfAByteIsLost()
{
    std::mt19937 random(7);
    const auto below = [&](int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random); };
    const StateDir state;
    Phone phone(state.path());
    qint64 ms = 0;
    QCOMPARE(phone->packets().startSession("x", 7, 1'234'567), int(Success));
    for (int step = 0; step < 2000; ++step) {
        const qint64 passed = below(5) == 0 ? below(100'000) : below(3);
        phone.clock->advance(passed);
        ms += passed;
        switch (below(4)) {
        case 0:
            QCOMPARE(phone->checkpoint(), int(Success));
            break;
        case 1:
            QCOMPARE(phone.packets().resetTotalBytes(), int(Success));
            break;
        case 2: {
            const auto told = [](qint64 bytes) { return std::min<qint64>(bytes, mostBytes); };
            QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x %1 %2 %3")
                                                       .arg(ms / 1000)
                                                       .arg(told(ms * 7 / 1000))
                                                       .arg(told(ms * 1'234'567 / 1000))});
            break;
        }
        default:
            break;
        }
    }
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QCOMPARE(LogFile(state.database()).sessions(),
             QStringList{row(1, "x", ms, ms * 7 / 1000, ms * 1'234'567 / 1000, CallState::Finished)});
}

void TestSessions::longSessionsAreToldInHours()
{
    Phone phone;
    QVERIFY(phone.session(100'000 * hour + 59 * minute + 58 * second + 999));
    DataSessions sessions;
    QCOMPARE(phone.packets().sessions(sessions), int(Success));
    QCOMPARE(sessions.records[0].duration, (CallTime{100'000, 59, 58}));
    QVERIFY(phone.session(1 * second + 1));
    CallTime total;
    QCOMPARE(phone.packets().totalDuration(total), int(Success));
    QCOMPARE(total, (CallTime{100'001, 0, 0}));
}

void TestSessions::bytesAreToldUpToTheEndOf32Bits()
{
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->packets().startSession("x", mostBytes, mostBytes - 1), int(Success));
    phone.clock->advance(second);
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x 1 4294967295 4294967294")});
    QCOMPARE(phone.sessionTotals(), QStringLiteral("1 4294967295 4294967294 4294967295"));
    phone.clock->advance(second);
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x 2 4294967295 4294967295")});
    QCOMPARE(phone.sessionTotals(), QStringLiteral("2 4294967295 4294967295 4294967295"));
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QCOMPARE(LogFile(state.database()).sessionTotals(), QStringLiteral("2000 8589934590 8589934588"));
    // The total is that of the bytes, not of what is told of them.
    QCOMPARE(phone.packets().resetTotalBytes(), int(Success));
    QVERIFY(phone.session(second, "y", 3'000'000'000U, 1'000'000'000U));
    QCOMPARE(phone.sessionTotals(), QStringLiteral("3 3000000000 1000000000 4000000000"));
}

void TestSessions::figuresStopAtTheirEndInsteadOfWrapping()
{
    const StateDir state;
    Phone phone(state.path(), std::make_shared<ManualClock>(0));
    QCOMPARE(phone->packets().startSession("x", mostBytes, 1), int(Success));
    phone.clock->advance(maximum);
    DataSessions sessions;
    QCOMPARE(phone.packets().sessions(sessions), int(Success));
    QCOMPARE(sessions.records[0].duration, CallTime::fromSeconds(quint64(maximum) / 1000));
    QCOMPARE(sessions.records[0].bytesSent, mostBytes);
    QCOMPARE(sessions.records[0].bytesReceived, mostBytes);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->packets().stopSession(), int(Success));
    const QString stored = QStringLiteral("%1 %1 %2").arg(maximum).arg(maximum / 1000);
    {
        const LogFile file(state.database());
        QCOMPARE(file.sessions(), QStringList{row(1, "x", maximum, maximum, maximum / 1000, CallState::Finished)});
        QCOMPARE(file.sessionTotals(), stored);
    }
    phone.close();

    Phone next(state.path());
    QCOMPARE(next->packets().startSession("y", mostBytes, 1000), int(Success));
    next.clock->advance(hour);
    const CallTime most = CallTime::fromSeconds(quint64(maximum) / 1000);
    CallTime total;
    QCOMPARE(next.packets().totalDuration(total), int(Success));
    QCOMPARE(total, most);
    QCOMPARE(next->packets().stopSession(), int(Success));
    QCOMPARE(LogFile(state.database()).sessionTotals(),
             QStringLiteral("%1 %1 %2").arg(maximum).arg(maximum / 1000 + 3'600'000));
}

void TestSessions::aMonotonicClockThatGoesBackTakesNothingAway()
{
    const auto clock = std::make_shared<LooseClock>();
    Settings settings;
    settings.clock = clock;
    const Opened opened = open(settings);
    auto &packets = dynamic_cast<SimulatedHandset &>(*opened.handset).packets();
    const auto figuresAt = [&](qint64 monotonic) {
        clock->monotonic = monotonic;
        return sessionsOf(*opened.handset).join(QLatin1Char('|')) + QLatin1Char('|') +
               sessionTotalsOf(*opened.handset);
    };
    clock->monotonic = 50'000;
    QCOMPARE(packets.startSession("x", 10, 20), int(Success));
    QCOMPARE(figuresAt(53'000), QStringLiteral("1 x 3 30 60|3 30 60 90"));
    QCOMPARE(figuresAt(10'000), QStringLiteral("1 x 3 30 60|3 30 60 90"));
    QCOMPARE(figuresAt(12'000), QStringLiteral("1 x 5 50 100|5 50 100 150"));
    QCOMPARE(figuresAt(std::numeric_limits<qint64>::min()), QStringLiteral("1 x 5 50 100|5 50 100 150"));
    clock->monotonic = std::numeric_limits<qint64>::min() + 1000;
    QCOMPARE(packets.stopSession(), int(Success));
    QCOMPARE(figuresAt(0), QStringLiteral("1 x 6 60 120|6 60 120 180"));
}

void TestSessions::aWallClockThatJumpsChangesNothing()
{
    const StateDir state;
    Phone phone(state.path(), std::make_shared<ManualClock>(5000));
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    phone.clock->setWallMs(-1'000'000'000);
    phone.clock->advance(3 * second);
    phone.clock->setWallMs(9'000'000'000'000);
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x 3 3 3")});
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT started_ms FROM sessions")).toLongLong(), qint64{5000});
}

void TestSessions::theRowIsThereFromTheBeginning()
{
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->packets().startSession("x", 1, 2), int(Success));
    const LogFile file(state.database());
    QCOMPARE(file.sessions(), QStringList{row(1, "x", 0, 0, 0, CallState::Running)});
    phone.clock->advance(1500);
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QCOMPARE(file.sessions(), QStringList{row(1, "x", 1500, 1, 3, CallState::Finished)});
}

void TestSessions::aCheckpointWritesRowAndTotals()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.session(1000, "before", 1, 1));
    QCOMPARE(phone->packets().startSession("x", 1, 2), int(Success));
    phone.clock->advance(2500);
    const LogFile file(state.database());
    QCOMPARE(file.sessionTotals(), QStringLiteral("1000 1 1"));
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(file.sessions().last(), row(2, "x", 2500, 2, 5, CallState::Running));
    QCOMPARE(file.sessionTotals(), QStringLiteral("3500 3 6"));
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(file.sessionTotals(), QStringLiteral("3500 3 6"));
}

void TestSessions::aQueryWritesNothing()
{
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->packets().startSession("x", 1, 2), int(Success));
    const QByteArray before = readFile(state.file(QStringLiteral("calllog.db-wal")));
    QVERIFY(!before.isEmpty());
    phone.clock->advance(hour);
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x 3600 3600 7200")});
    QCOMPARE(phone.sessionTotals(), QStringLiteral("3600 3600 7200 10800"));
    QCOMPARE(readFile(state.file(QStringLiteral("calllog.db-wal"))), before);
}

void TestSessions::aCrashLosesOnlyWhatFollowedTheLastCheckpoint()
{
    const StateDir state;
    const QString crashed = state.sibling(QStringLiteral("crashed"));
    {
        Phone phone(state.path());
        QVERIFY(phone.session(2 * second, "finished", 1, 1));
        QCOMPARE(phone->packets().startSession("running", 10, 10), int(Success));
        phone.clock->advance(3 * second);
        QCOMPARE(phone->checkpoint(), int(Success));
        phone.clock->advance(4 * second);
        QVERIFY(copyState(state.path(), crashed));
    }
    for (int start = 0; start < 2; ++start) {
        const Phone phone(crashed);
        QVERIFY(phone.opened.notice.isEmpty());
        QVERIFY(!phone->packets().isSessionRunning());
        QCOMPARE(phone.sessions(),
                 (QStringList{QStringLiteral("2 running 3 30 30"), QStringLiteral("1 finished 2 2 2")}));
        QCOMPARE(phone.sessionTotals(), QStringLiteral("5 32 32 64"));
    }
    QCOMPARE(LogFile(crashed + QStringLiteral("/calllog.db")).sessions().last(),
             row(2, "running", 3000, 30, 30, CallState::Interrupted));
}

void TestSessions::theEndOfTheHandsetEndsTheSession()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
        QVERIFY(phone.dial());
        phone.clock->advance(61 * second);
    }
    const LogFile file(state.database());
    QCOMPARE(file.sessions(), QStringList{row(1, "x", 61'000, 61, 61, CallState::Finished)});
    QCOMPARE(file.sessionTotals(), QStringLiteral("61000 61 61"));
    QCOMPARE(file.calls().value(0).state, int(CallState::Finished));
}

void TestSessions::theTimerRunsWithACallOrASession()
{
    Phone phone;
    const auto *timer = phone->findChild<QTimer *>();
    QVERIFY(!timer->isActive());
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    QVERIFY(timer->isActive());
    QVERIFY(phone.dial());
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(timer->isActive());
    QVERIFY(phone.dial());
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QVERIFY(timer->isActive());
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(!timer->isActive());
    QCOMPARE(timer->interval(), 1000);
}

void TestSessions::aCrashLosesNoMoreThanFiveSecondsHoweverLateTheTicksCome_data()
{
    QTest::addColumn<qint64>("betweenTicks");
    for (const qint64 ms : {1000, 1001, 1100, 1200, 1300, 1400, 1500})
        QTest::addRow("%lld ms between two", ms) << ms;
}

void TestSessions::aCrashLosesNoMoreThanFiveSecondsHoweverLateTheTicksCome()
{
    QFETCH(qint64, betweenTicks);
    const StateDir state;
    Phone phone(state.path());
    auto *timer = phone->findChild<QTimer *>();
    QVERIFY(phone.dial());
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    const LogFile file(state.database());
    const auto written = [&](const char *table) {
        return file.value(QStringLiteral("SELECT duration_ms FROM %1").arg(QLatin1String(table))).toLongLong();
    };
    qint64 passed = 0;
    for (int tick = 0; tick < 20; ++tick) {
        phone.clock->advance(betweenTicks);
        passed += betweenTicks;
        QVERIFY2(passed - written("calls") <= 5 * second, qPrintable(QString::number(written("calls"))));
        QVERIFY2(passed - written("sessions") <= 5 * second, qPrintable(QString::number(written("sessions"))));
        QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
    }
}

void TestSessions::aSecondCallDoesNotPutTheCheckpointOff()
{
    const StateDir state;
    Phone phone(state.path());
    auto *timer = phone->findChild<QTimer *>();
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    for (int tick = 0; tick < 5; ++tick) {
        QVERIFY(phone.dial());
        phone.clock->advance(second);
        QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
        QCOMPARE(phone->hangUp(), int(Success));
    }
    QCOMPARE(LogFile(state.database()).sessions(), QStringList{row(1, "x", 4000, 4, 4, CallState::Running)});
}

void TestSessions::whatChangesIsSignalledOnce()
{
    Phone phone;
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    int expected = 0;
    const auto signalledAfter = [&](int status) { return status == Success && spy.count() == ++expected; };
    QVERIFY(signalledAfter(phone->packets().startSession("x", 1, 1)));
    QVERIFY(signalledAfter(phone.packets().resetTotalDuration()));
    QVERIFY(signalledAfter(phone.packets().resetTotalBytes()));
    QVERIFY(signalledAfter(phone->packets().stopSession()));
    QVERIFY(signalledAfter(phone.packets().resetTotalDuration()));
}

void TestSessions::whatDoesNotHappenIsNotSignalled()
{
    Phone phone;
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    QCOMPARE(phone->packets().stopSession(), int(WrongState));
    QCOMPARE(phone->packets().startSession("", 1, 1), int(InvalidArgument));
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone.sessions(), QStringList());
    QCOMPARE(phone.sessionTotals(), QStringLiteral("0 0 0 0"));
    QCOMPARE(spy.count(), 0);
}

void TestSessions::aWriteThatFailsChangesNothing()
{
    const StateDir state;
    Phone phone(state.path(), nullptr, {}, hardlyAny);
    QVERIFY(phone.session(50 * second, "x", 1, 1));
    PacketFigures &packets = phone->packets();
    const LogFile other(state.database());
    const auto fails = [](int status) { return status == StorageFailed; };
    const QRegularExpression warning(QStringLiteral("^The call log failed: "));

    QVERIFY(other.run(QStringLiteral("BEGIN IMMEDIATE")));
    QTest::ignoreMessage(QtWarningMsg, warning);
    QVERIFY(fails(packets.startSession("y", 1, 1)));
    QVERIFY(!packets.isSessionRunning());
    QVERIFY(!phone->findChild<QTimer *>()->isActive());
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x 50 50 50")});
    QVERIFY(other.run(QStringLiteral("COMMIT")));

    QCOMPARE(packets.startSession("y", 1, 1), int(Success));
    phone.clock->advance(5 * second);
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    QVERIFY(other.run(QStringLiteral("BEGIN IMMEDIATE")));
    for (const auto &write : {std::function([&] { return phone->checkpoint(); }),
                              std::function([&] { return phone.packets().resetTotalBytes(); }),
                              std::function([&] { return phone.packets().resetTotalDuration(); })}) {
        QTest::ignoreMessage(QtWarningMsg, warning);
        QVERIFY(fails(write()));
    }
    QCOMPARE(spy.count(), 0);
    QVERIFY(packets.isSessionRunning());
    QCOMPARE(phone.sessionTotals(), QStringLiteral("55 55 55 110"));
    QVERIFY(other.run(QStringLiteral("COMMIT")));

    phone.clock->advance(2 * second);
    QCOMPARE(packets.stopSession(), int(Success));
    QCOMPARE(phone.sessions(), (QStringList{QStringLiteral("2 y 7 7 7"), QStringLiteral("1 x 50 50 50")}));
    QCOMPARE(phone.sessionTotals(), QStringLiteral("57 57 57 114"));
}

void TestSessions::aQueryThatFailsWritesNoOutput()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.session(50 * second, "x", 1, 1));
    const LogFile other(state.database());
    QVERIFY(other.run(QStringLiteral("DELETE FROM session_totals WHERE counter = 'received'")));
    QVERIFY(other.run(QStringLiteral("ALTER TABLE sessions RENAME TO elsewhere")));
    const QRegularExpression warning(QStringLiteral("^The call log failed: "));

    DataSessions sessions;
    sessions.count = 99;
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(phone.packets().sessions(sessions), int(StorageFailed));
    QCOMPARE(sessions.count, 99U);
    CallTime duration{1, 2, 3};
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(phone.packets().totalDuration(duration), int(StorageFailed));
    QCOMPARE(duration, (CallTime{1, 2, 3}));
    quint32 total = 4;
    quint32 received = 5;
    quint32 sent = 6;
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(phone.packets().totalBytes(total, received, sent), int(StorageFailed));
    QVERIFY(total == 4 && received == 5 && sent == 6);
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(phone->packets().startSession("y", 1, 1), int(StorageFailed));
}

void TestSessions::whatIsMissingWhenItIsWrittenIsAFailure_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("row");
    for (const char *counter : {"duration", "sent", "received"})
        QTest::addRow("the total of the kind %s", counter)
            << QStringLiteral("session_totals") << QStringLiteral("counter = '%1'").arg(QLatin1String(counter));
}

void TestSessions::whatIsMissingWhenItIsWrittenIsAFailure()
{
    QFETCH(QString, table);
    QFETCH(QString, row);
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.session(50 * second, "x", 1, 1));
    QCOMPARE(phone->packets().startSession("y", 1, 1), int(Success));
    phone.clock->advance(7 * second);
    const LogFile other(state.database());
    QVERIFY(other.run(QStringLiteral("CREATE TABLE aside AS SELECT * FROM %1 WHERE %2").arg(table, row)));
    QVERIFY(other.run(QStringLiteral("DELETE FROM %1 WHERE %2").arg(table, row)));
    QTest::ignoreMessage(QtWarningMsg, "The call log failed: a row is missing");
    QCOMPARE(phone->checkpoint(), int(StorageFailed));
    QTest::ignoreMessage(QtWarningMsg, "The call log failed: a row is missing");
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QVERIFY(phone->owesRecord());
    QVERIFY(other.run(QStringLiteral("INSERT INTO %1 SELECT * FROM aside").arg(table)));
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.sessions(), (QStringList{QStringLiteral("2 y 7 7 7"), QStringLiteral("1 x 50 50 50")}));
    QCOMPARE(phone.sessionTotals(), QStringLiteral("57 57 57 114"));
}

void TestSessions::aRunningSessionWhoseRowIsGoneEndsAndIsCounted()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.session(50 * second, "x", 1, 1));
    QCOMPARE(phone->packets().startSession("y", 1, 1), int(Success));
    phone.clock->advance(7 * second);
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM sessions WHERE state = 0")));
    QTest::ignoreMessage(QtWarningMsg, "The call log failed: a row is missing");
    QCOMPARE(phone->checkpoint(), int(StorageFailed));
    QTest::ignoreMessage(
        QtWarningMsg,
        "The row of a packet-data session is gone from the call log; its totals count it all the same.");
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x 50 50 50")});
    QCOMPARE(phone.sessionTotals(), QStringLiteral("57 57 57 114"));
    QCOMPARE(phone->packets().startSession("z", 1, 1), int(Success));
}

KAV_TEST_GROUP(TestSessions, QCoreApplication);
#include "tst_sessions.moc"
