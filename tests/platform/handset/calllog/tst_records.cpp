// What the call log writes down.
#include "calllog/OpenLedger.h"
#include "calllog/Schema.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <ctime>

#include <sys/stat.h>

using namespace handset;
using namespace handset::test;
using calllog::CallState;

namespace {

int modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? static_cast<int>(status.st_mode & 07777)
                                                                     : -1;
}

int openFiles()
{
    return static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                                .size());
}

} // namespace

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aRowTellsKindDirectionNumberStartAndDuration();
    void theStartIsUtcInEveryTimeZone_data();
    void theStartIsUtcInEveryTimeZone();
    void aWallClockThatJumpsChangesNoDuration();
    void aMonotonicClockThatGoesBackTakesNothingAway();
    void theRowOfACallIsThereFromTheMomentOfConnecting();
    void aCheckpointWritesRowAndTotals();
    void aQueryWritesNothing();
    void aCrashLosesOnlyWhatFollowedTheLastCheckpoint();
    void theEndOfTheHandsetEndsTheCall();
    void theEndOfTheHandsetLogsACallThatWasNotConnected_data();
    void theEndOfTheHandsetLogsACallThatWasNotConnected();
    void totalsAreKeptApartFromTheRows();
    void theDatabaseIsSetUpForSafety();
    void filesAndDirectoriesAreForTheUserAlone();
    void aFileThatOthersCouldReadIsClosedToThem();
    void memoryOnlyLeavesNoTrace();
    void twoHandsetsInMemoryKnowNothingOfEachOther();
    void aDirectoryWithOddCharactersIsUsedAsItIs_data();
    void aDirectoryWithOddCharactersIsUsedAsItIs();
    void aRelativeDirectoryStaysTheSameWhenTheProcessMoves();
    void closingLeavesNoFileOpenAndNoLeftovers();
    void aWriteThatFailsChangesNothing();
    void aCallOfNoKindIsNotRecorded_data();
    void aCallOfNoKindIsNotRecorded();
    void whatIsMissingWhenItIsWrittenIsAFailure_data();
    void whatIsMissingWhenItIsWrittenIsAFailure();
    void aRunningCallWhoseRowIsGoneEndsAndIsCounted();
};

void TestRecords::aRowTellsKindDirectionNumberStartAndDuration()
{
    const StateDir state;
    Phone phone(state.path(), std::make_shared<ManualClock>(1000));
    QCOMPARE(phone->dial(QStringLiteral("+49*#"), CallKind::Voice), int(Success));
    phone.clock->advance(500);
    QCOMPARE(phone->remoteAnswer(), int(Success));
    phone.clock->advance(2345);
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(phone.answered(7, QString()));
    QVERIFY(phone.dialed(8, CallKind::Data, QStringLiteral("3")));
    QCOMPARE(phone->ring(QStringLiteral("4")), int(Success));
    phone.clock->advance(9);
    QCOMPARE(phone->hangUp(), int(Success));
    phone.close();

    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    const auto text = [](const LoggedCall &call) {
        return QStringLiteral("%1 %2 '%3' at %4 for %5, %6")
            .arg(call.kind)
            .arg(call.direction)
            .arg(call.number)
            .arg(call.startedMs)
            .arg(call.durationMs)
            .arg(call.state);
    };
    QCOMPARE(calls.size(), 4);
    QCOMPARE(text(calls[0]), QStringLiteral("0 0 '+49*#' at 1000 for 2345, 1"));
    QCOMPARE(text(calls[1]), QStringLiteral("0 1 '' at 3845 for 7, 1"));
    QCOMPARE(text(calls[2]), QStringLiteral("1 0 '3' at 3852 for 8, 1"));
    QCOMPARE(text(calls[3]), QStringLiteral("0 1 '4' at 3860 for 0, 2"));
}

void TestRecords::theStartIsUtcInEveryTimeZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("UTC") << QByteArray("UTC0");
    QTest::newRow("east of Greenwich") << QByteArray("NPT-5:45");
    QTest::newRow("west of Greenwich, in summer time") << QByteArray("NST3:30NDT,M1.1.0,M12.5.0");
}

void TestRecords::theStartIsUtcInEveryTimeZone()
{
    QFETCH(QByteArray, zone);
    qputenv("TZ", zone);
    ::tzset();
    constexpr qint64 start = 1'753'000'123'456;
    const StateDir state;
    Phone phone(state.path(), std::make_shared<ManualClock>(start));
    QVERIFY(phone.dialed(61 * second));
    QCOMPARE(phone.figures(), (SixFigures{61, 61, 0, 0, 61, 61}));
    phone.close();
    QCOMPARE(LogFile(state.database()).calls().value(0).startedMs, start);
}

void TestRecords::aWallClockThatJumpsChangesNoDuration()
{
    const StateDir state;
    Phone phone(state.path(), std::make_shared<ManualClock>(1'000'000'000));
    QVERIFY(phone.dial());
    phone.clock->advance(10 * second);
    phone.clock->setWallMs(-500'000'000);
    QCOMPARE(phone.figures().last, quint64{10});
    QCOMPARE(phone->checkpoint(), int(Success));
    phone.clock->advance(10 * second);
    phone.clock->setWallMs(std::numeric_limits<qint64>::max() - hour);
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(phone.answered(5 * second));
    QCOMPARE(phone.figures(), (SixFigures{5, 20, 5, 0, 25, 25}));
    phone.close();
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.value(0).startedMs, qint64{1'000'000'000});
    QCOMPARE(calls.value(0).durationMs, 20 * second);
    QCOMPARE(calls.value(1).startedMs, std::numeric_limits<qint64>::max() - hour);
}

void TestRecords::aMonotonicClockThatGoesBackTakesNothingAway()
{
    const auto clock = std::make_shared<LooseClock>();
    clock->monotonic = 100 * second;
    Settings settings;
    settings.clock = clock;
    const Opened opened = open(settings);
    auto *handset = dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get());
    QCOMPARE(handset->dial(QStringLiteral("1"), CallKind::Voice), int(Success));
    QCOMPARE(handset->remoteAnswer(), int(Success));
    clock->monotonic = 110 * second;
    QCOMPARE(figuresOf(*opened.handset).last, quint64{10});
    clock->monotonic = 50 * second;
    QCOMPARE(figuresOf(*opened.handset).last, quint64{10});
    QCOMPARE(handset->checkpoint(), int(Success));
    clock->monotonic = std::numeric_limits<qint64>::min();
    QCOMPARE(handset->connectedMs(), 10 * second);
    clock->monotonic += 5 * second;
    QCOMPARE(handset->hangUp(), int(Success));
    QCOMPARE(figuresOf(*opened.handset), (SixFigures{15, 15, 0, 0, 15, 15}));
}

void TestRecords::theRowOfACallIsThereFromTheMomentOfConnecting()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.answered(3 * second));
    const LogFile file(state.database());
    QCOMPARE(phone->dial(QStringLiteral("77"), CallKind::Voice), int(Success));
    QCOMPARE(file.calls().size(), 1);
    QCOMPARE(phone->remoteAnswer(), int(Success));
    const QList<LoggedCall> calls = file.calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls[1].number, QStringLiteral("77"));
    QCOMPARE(calls[1].state, int(CallState::Running));
    QCOMPARE(calls[1].durationMs, qint64{0});
}

void TestRecords::aCheckpointWritesRowAndTotals()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    phone.clock->advance(4321);
    QCOMPARE(phone->checkpoint(), int(Success));
    phone.clock->advance(1000);
    const LogFile file(state.database());
    QCOMPARE(file.calls().value(0).durationMs, qint64{4321});
    for (const char *counter : {"last", "dialed", "all", "lifetime"})
        QCOMPARE(
            file.value(QStringLiteral("SELECT ms FROM totals WHERE counter = '%1'").arg(QLatin1String(counter))),
            QVariant(4321));
}

void TestRecords::aQueryWritesNothing()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    const LogFile file(state.database());
    const QVariant before = file.value(QStringLiteral("PRAGMA data_version"));
    for (int i = 0; i < 20; ++i) {
        phone.clock->advance(second);
        QCOMPARE(phone.figures().last, static_cast<quint64>(i + 1));
    }
    QCOMPARE(file.value(QStringLiteral("PRAGMA data_version")), before);
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(file.value(QStringLiteral("PRAGMA data_version")) != before);
}

void TestRecords::aCrashLosesOnlyWhatFollowedTheLastCheckpoint()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dialed(100 * second));
    QVERIFY(phone.dial());
    phone.clock->advance(20 * second);
    QCOMPARE(phone->checkpoint(), int(Success));
    phone.clock->advance(9 * second);
    QVERIFY(copyState(state.path(), state.sibling(QStringLiteral("crashed"))));

    for (int start = 0; start < 3; ++start) { // it is closed once
        const Phone restarted(state.sibling(QStringLiteral("crashed")));
        QVERIFY(restarted);
        QVERIFY(restarted.opened.notice.isEmpty());
        QCOMPARE(restarted.figures(), (SixFigures{20, 120, 0, 0, 120, 120}));
        QCOMPARE(restarted->lineState(), simulated::SimulatedHandset::LineState::Idle);
    }
    const QList<LoggedCall> calls = LogFile(state.sibling(QStringLiteral("crashed/calllog.db"))).calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls[1].durationMs, 20 * second);
    QCOMPARE(calls[1].state, int(CallState::Interrupted));
}

void TestRecords::theEndOfTheHandsetEndsTheCall()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dial(CallKind::Data));
        phone.clock->advance(12'345);
    }
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls[0].state, int(CallState::Finished));
    QCOMPARE(calls[0].durationMs, qint64{12'345});
    QCOMPARE(Phone(state.path()).figures(), (SixFigures{12, 0, 0, 12, 12, 12}));
}

void TestRecords::theEndOfTheHandsetLogsACallThatWasNotConnected_data()
{
    QTest::addColumn<bool>("incoming");
    QTest::newRow("a dialing one") << false;
    QTest::newRow("a ringing one") << true;
}

void TestRecords::theEndOfTheHandsetLogsACallThatWasNotConnected()
{
    QFETCH(bool, incoming);
    const StateDir state;
    {
        const Phone phone(state.path());
        const QString number = QStringLiteral("55");
        QCOMPARE(incoming ? phone->ring(number) : phone->dial(number, CallKind::Voice), int(Success));
    }
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls[0].state, int(CallState::NotConnected));
    QCOMPARE(calls[0].direction, incoming ? 1 : 0);
}

void TestRecords::totalsAreKeptApartFromTheRows()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dialed(40 * second));
        QVERIFY(phone.answered(2 * second));
    }
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM calls")));
    QCOMPARE(Phone(state.path()).figures(), (SixFigures{2, 40, 2, 0, 42, 42}));
}

void TestRecords::theDatabaseIsSetUpForSafety()
{
    const StateDir state;
    const Phone phone(state.path());
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("PRAGMA journal_mode")), QVariant(QStringLiteral("wal")));
    QCOMPARE(file.value(QStringLiteral("PRAGMA application_id")).toLongLong(), calllog::applicationId);
    QCOMPARE(file.value(QStringLiteral("PRAGMA user_version")).toULongLong(), calllog::migrations().size());
    QCOMPARE(file.value(QStringLiteral("PRAGMA integrity_check")), QVariant(QStringLiteral("ok")));
}

void TestRecords::filesAndDirectoriesAreForTheUserAlone()
{
    const StateDir state;
    const mode_t previous = ::umask(0);
    Phone phone(state.file(QStringLiteral("deeper/still")));
    ::umask(previous);
    QVERIFY(phone.dial());
    const QString directory = state.file(QStringLiteral("deeper/still"));
    for (const QString &made : {state.path(), state.file(QStringLiteral("deeper")), directory})
        QCOMPARE(modeOf(made), 0700);
    for (const char *name : {"calllog.db", "calllog.db-wal", "calllog.db-shm", "lock"})
        QCOMPARE(modeOf(directory + QLatin1Char('/') + QLatin1String(name)), 0600);
}

void TestRecords::aFileThatOthersCouldReadIsClosedToThem()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    QCOMPARE(::chmod(QFile::encodeName(state.database()).constData(), 0666), 0);
    Phone phone(state.path());
    QCOMPARE(modeOf(state.database()), 0600);
    QCOMPARE(phone.figures().dialed, quint64{1});
}

void TestRecords::memoryOnlyLeavesNoTrace()
{
    const QString before = QDir::currentPath();
    const QTemporaryDir empty;
    QVERIFY(QDir::setCurrent(empty.path()));
    {
        Phone phone;
        QVERIFY(phone.dialed(9 * second));
        QVERIFY(phone.answered(1 * second));
        QCOMPARE(phone.figures(), (SixFigures{1, 9, 1, 0, 10, 10}));
    }
    QVERIFY(QDir(empty.path()).isEmpty());
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(Phone().figures(), SixFigures());
}

void TestRecords::twoHandsetsInMemoryKnowNothingOfEachOther()
{
    Phone one;
    Phone other;
    QVERIFY(one.dialed(9 * second));
    QVERIFY(other.answered(4 * second));
    QCOMPARE(one.figures(), (SixFigures{9, 9, 0, 0, 9, 9}));
    QCOMPARE(other.figures(), (SixFigures{4, 0, 4, 0, 4, 4}));
}

void TestRecords::aDirectoryWithOddCharactersIsUsedAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << QStringLiteral(" my calls ");
    QTest::newRow("an accent") << QStringLiteral("t\u00e9l\u00e9phone");
    QTest::newRow("another script") << QStringLiteral("\u96fb\u8a71");
    QTest::newRow("what an address uses") << QStringLiteral("file:a?mode=memory&b#c%20");
    QTest::newRow("quotes and a percent sign") << QStringLiteral("it's \"%1\"; DROP TABLE");
    QTest::newRow("the name of a database in memory") << QStringLiteral(":memory:");
    QTest::newRow("a slash at the end") << QStringLiteral("slash/");
}

void TestRecords::aDirectoryWithOddCharactersIsUsedAsItIs()
{
    QFETCH(QString, name);
    const StateDir state;
    QVERIFY(Phone(state.file(name)).dialed(6 * second));
    QVERIFY(QFileInfo(state.file(name) + QStringLiteral("/calllog.db")).isFile());
    QCOMPARE(Phone(state.file(name)).figures().dialed, quint64{6});
}

void TestRecords::aRelativeDirectoryStaysTheSameWhenTheProcessMoves()
{
    const QString before = QDir::currentPath();
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QVERIFY(QDir::setCurrent(state.path()));
    {
        Phone phone(QStringLiteral("relative"));
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(phone.dialed(6 * second));
    }
    QCOMPARE(Phone(state.file(QStringLiteral("relative"))).figures().dialed, quint64{6});
}

void TestRecords::closingLeavesNoFileOpenAndNoLeftovers()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    const int before = openFiles();
    for (int i = 0; i < 20; ++i)
        QVERIFY(Phone(state.path()).dialed(second));
    QCOMPARE(openFiles(), before);
    QCOMPARE(state.names(), QStringList{QStringLiteral("calllog.db")});
}

void TestRecords::aWriteThatFailsChangesNothing()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dialed(50 * second));
    QCOMPARE(phone->dial(QStringLiteral("6"), CallKind::Voice), int(Success));

    const LogFile other(state.database());
    QVERIFY(other.run(QStringLiteral("BEGIN IMMEDIATE")));
    const QRegularExpression warning(QStringLiteral("^The call log failed: "));
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(phone->remoteAnswer(), int(StorageFailed));
    QCOMPARE(phone->lineState(), simulated::SimulatedHandset::LineState::Dialing);
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(phone.log().resetDialedCallsTime(), int(StorageFailed));
    QCOMPARE(phone.figures(), (SixFigures{50, 50, 0, 0, 50, 50}));
    QVERIFY(other.run(QStringLiteral("COMMIT")));

    QCOMPARE(phone->remoteAnswer(), int(Success));
    phone.clock->advance(5 * second);
    QVERIFY(other.run(QStringLiteral("BEGIN IMMEDIATE")));
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(phone->checkpoint(), int(StorageFailed));
    QCOMPARE(phone->lineState(), simulated::SimulatedHandset::LineState::Connected);
    QVERIFY(other.run(QStringLiteral("COMMIT")));
    phone.clock->advance(second);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone.figures(), (SixFigures{6, 56, 0, 0, 56, 56}));
}

void TestRecords::aCallOfNoKindIsNotRecorded_data()
{
    constexpr auto none = 2;
    QTest::addColumn<PastCall>("call");
    PastCall call;
    call.kind = static_cast<CallKind>(none);
    QTest::newRow("a kind that is none") << call;
    call = {};
    call.direction = static_cast<CallDirection>(none);
    QTest::newRow("a direction that is none") << call;
}

void TestRecords::aCallOfNoKindIsNotRecorded()
{
    QFETCH(PastCall, call);
    const auto ledger = calllog::openLedger({}, std::make_shared<ManualClock>()).ledger;
    qint64 id = 0;
    QCOMPARE(ledger->beginCall(call, id), int(InvalidArgument));
    QVERIFY(!ledger->isConnected());
    QCOMPARE(ledger->addUnconnected(call), int(InvalidArgument));
    QVERIFY(!ledger->owesCall());
    QCOMPARE(ledger->addHistory({{}, call}), int(InvalidArgument));
    QCOMPARE(ledger->beginCall({}, id), int(Success));
}

void TestRecords::whatIsMissingWhenItIsWrittenIsAFailure_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("row");
    for (const char *counter : {"last", "dialed", "all", "lifetime"})
        QTest::addRow("the total of the kind %s", counter)
            << QStringLiteral("totals") << QStringLiteral("counter = '%1'").arg(QLatin1String(counter));
    for (const char *counter : {"last", "dialed"})
        QTest::addRow("the cost of the kind %s", counter)
            << QStringLiteral("costs") << QStringLiteral("counter = '%1'").arg(QLatin1String(counter));
}

void TestRecords::whatIsMissingWhenItIsWrittenIsAFailure()
{
    QFETCH(QString, table);
    QFETCH(QString, row);
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dialed(50 * second));
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    const LogFile other(state.database());
    QVERIFY(other.run(QStringLiteral("CREATE TABLE aside AS SELECT * FROM %1 WHERE %2").arg(table, row)));
    QVERIFY(other.run(QStringLiteral("DELETE FROM %1 WHERE %2").arg(table, row)));
    QTest::ignoreMessage(QtWarningMsg, "The call log failed: a row is missing");
    QCOMPARE(phone->checkpoint(), int(StorageFailed));
    QTest::ignoreMessage(QtWarningMsg, "The call log failed: a row is missing");
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(phone->owesRecord());
    QVERIFY(other.run(QStringLiteral("INSERT INTO %1 SELECT * FROM aside").arg(table)));
    QCOMPARE(phone.figures(), (SixFigures{30, 80, 0, 0, 80, 80}));
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.figures(), (SixFigures{30, 80, 0, 0, 80, 80}));
    QCOMPARE(other.value(QStringLiteral("SELECT units FROM costs WHERE counter = 'dialed'")), QVariant(8));
}

void TestRecords::aRunningCallWhoseRowIsGoneEndsAndIsCounted()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dialed(50 * second));
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM calls WHERE state = 0")));
    QTest::ignoreMessage(QtWarningMsg, "The call log failed: a row is missing");
    QCOMPARE(phone->checkpoint(), int(StorageFailed));
    QTest::ignoreMessage(QtWarningMsg,
                         "The row of a call is gone from the call log; its totals count it all the same.");
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.figures(), (SixFigures{30, 80, 0, 0, 80, 80}));
    QByteArray cost;
    QCOMPARE(phone.log().allCallsCost(cost), int(Success));
    QCOMPARE(cost, QByteArray("8.00"));
    QVERIFY(phone.dialed(2 * second)); // the line is as good as before
    phone.close();
    // Totals that count more than the rows are damage, and are told; nothing of them is lost.
    const Phone restarted(state.path());
    QVERIFY2(restarted.opened.notice.startsWith(QStringLiteral("The call log is damaged; it was kept as ")),
             qPrintable(restarted.opened.notice));
    QCOMPARE(restarted.figures(), (SixFigures{2, 82, 0, 0, 82, 82}));
    QCOMPARE(restarted.log().allCallsCost(cost), int(Success));
    QCOMPARE(cost, QByteArray("8.00"));
}

KAV_TEST_GROUP(TestRecords, QCoreApplication);
#include "tst_records.moc"
