// The tables of the call log, and the way there from older versions.
#include "calllog/Schema.h"
#include "handset/CallLog.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>

#include <algorithm>
#include <array>
#include <vector>

using namespace handset;
using namespace handset::test;
using calllog::Database;
using calllog::Migration;

namespace {

// What a later version might do.
constexpr std::array addsRates{"ALTER TABLE calls ADD COLUMN rate INTEGER NOT NULL DEFAULT 0",
                               "UPDATE calls SET rate = duration_ms / 60000"};
constexpr std::array addsNotes{"CREATE TABLE notes (id INTEGER PRIMARY KEY, note TEXT NOT NULL) STRICT"};
constexpr std::array failsHalfway{"CREATE TABLE half (id INTEGER PRIMARY KEY) STRICT",
                                  "UPDATE nowhere SET id = 1"};

std::vector<Migration> today()
{
    return {calllog::migrations().begin(), calllog::migrations().end()};
}

std::vector<Migration> later(std::initializer_list<Migration> added)
{
    std::vector<Migration> steps = today();
    steps.insert(steps.end(), added);
    return steps;
}

qint64 versionOf(Database &database)
{
    return database.number(QStringLiteral("PRAGMA user_version")).value_or(-1);
}

bool migrateFile(const QString &file, const std::vector<Migration> &steps)
{
    Database database(file, Database::Access::ReadWrite);
    return calllog::migrate(database, steps);
}

// With calls that were never connected, so that no total counts them.
bool makeFirstVersion(const StateDir &state, int calls)
{
    const QString insert =
        QStringLiteral("WITH RECURSIVE numbers (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM numbers WHERE n < %1)"
                       " INSERT INTO calls SELECT n, n % 2, 0, '5550123', n, 0, 2 FROM numbers");
    return QDir().mkpath(state.path()) && migrateFile(state.database(), {calllog::migrations().front()}) &&
           LogFile(state.database()).run(insert.arg(calls));
}

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void anEmptyDatabaseGetsEveryStep();
    void anUpToDateDatabaseIsLeftAlone();
    void anOlderDatabaseKeepsItsCallsThroughEveryStep();
    void aLogOfTheFirstVersionKeepsItsCallsAndFigures();
    void aBigLogOfTheFirstVersionSaysHowFarItsStepsAre();
    void aMigrationThatIsGivenUpLeavesTheLogInItsVersion();
    void aSmallLogOfTheFirstVersionSaysNothingOfItsSteps();
    void aStepThatFailsLeavesTheVersionBeforeItWhole();
    void aStepThatFailedIsDoneByTheNextStart();
    void theHandsetTakesOverADatabaseWithoutTables();
    void rowsThatMakeNoSenseAreRefusedByTheTables_data();
    void rowsThatMakeNoSenseAreRefusedByTheTables();
};

void TestSchema::anEmptyDatabaseGetsEveryStep()
{
    Database database(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    QCOMPARE(versionOf(database), qint64{0});
    QVERIFY(calllog::migrate(database, later({addsRates, addsNotes})));
    QCOMPARE(versionOf(database), qint64(today().size()) + 2);
    QCOMPARE(database.number(QStringLiteral("PRAGMA application_id")), std::optional(calllog::applicationId));
    QCOMPARE(database.number(QStringLiteral("SELECT count(*) FROM totals WHERE ms = 0")),
             std::optional(qint64{6}));
}

void TestSchema::anUpToDateDatabaseIsLeftAlone()
{
    Database database(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    QVERIFY(calllog::migrate(database, today()));
    QVERIFY(database.run(QStringLiteral("UPDATE totals SET ms = 7")));
    QVERIFY(calllog::migrate(database, today()));
    QCOMPARE(database.number(QStringLiteral("SELECT sum(ms) FROM totals")), std::optional(qint64{42}));
}

void TestSchema::anOlderDatabaseKeepsItsCallsThroughEveryStep()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(5 * minute));
    QVERIFY(migrateFile(state.database(), later({addsRates, addsNotes})));
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT rate FROM calls WHERE number = '1234'")), QVariant(5));
    QCOMPARE(file.value(QStringLiteral("SELECT ms FROM totals WHERE counter = 'dialed'")), QVariant(300000));
    QCOMPARE(file.value(QStringLiteral("SELECT count(*) FROM notes")), QVariant(0));
}

void TestSchema::aLogOfTheFirstVersionKeepsItsCallsAndFigures()
{
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QVERIFY(migrateFile(state.database(), {calllog::migrations().front()}));
    {
        const LogFile file(state.database());
        QCOMPARE(file.value(QStringLiteral("PRAGMA user_version")), QVariant(1));
        QVERIFY(file.run(QStringLiteral("INSERT INTO calls VALUES (1, 0, 0, '1234', 5, 61000, 1)")));
        QVERIFY(file.run(QStringLiteral("UPDATE totals SET ms = 61000 WHERE counter IN ('last', 'dialed', 'all', "
                                        "'lifetime')")));
    }
    Phone phone(state.path());
    QVERIFY2(phone.opened.notice.isEmpty(), qPrintable(phone.opened.notice));
    const SixFigures asBefore{.last = 61, .dialed = 61, .all = 61, .lifetime = 61};
    QCOMPARE(phone.figures(), asBefore);
    QByteArray cost;
    QCOMPARE(phone.log().dialedCallsCost(cost), int(Success));
    QCOMPARE(cost, QByteArray("0.00"));
    phone.close();
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT number || units FROM calls")), QVariant(QStringLiteral("12340")));
}

void TestSchema::aBigLogOfTheFirstVersionSaysHowFarItsStepsAre()
{
    const StateDir state;
    QVERIFY(makeFirstVersion(state, 210'000));
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.isEmpty(), qPrintable(phone.opened.notice));
    QList<int> percents;
    for (const auto &[step, percent] : phone.progress) {
        QCOMPARE(step, QStringLiteral("Bringing the call log up to date"));
        percents << percent;
    }
    // How many steps a row takes is SQLite's: one more or less is as good.
    QCOMPARE(percents.takeLast(), 100);
    QVERIFY2(percents.size() >= 3 && percents.size() <= 6, qPrintable(QString::number(percents.size())));
    QVERIFY(std::is_sorted(percents.begin(), percents.end()));
    QVERIFY2(percents.front() >= 15 && percents.front() <= 35, qPrintable(QString::number(percents.front())));
    QVERIFY2(percents.back() >= 65 && percents.back() <= 99, qPrintable(QString::number(percents.back())));
}

void TestSchema::aMigrationThatIsGivenUpLeavesTheLogInItsVersion()
{
    const StateDir state;
    QVERIFY(makeFirstVersion(state, 110'000));
    const auto version = [&state] {
        return LogFile(state.database()).value(QStringLiteral("PRAGMA user_version")).toInt();
    };
    Settings settings;
    settings.stateDirectory = state.path();
    settings.isGivenUp = [] { return true; };
    const Opened opened = open(settings);
    QVERIFY(!opened.handset);
    QCOMPARE(opened.error, QStringLiteral("The opening of the call log was given up; it is as it was."));
    QCOMPARE(version(), 1);
    const Phone phone(state.path());
    QVERIFY2(phone.opened.error.isEmpty() && phone.opened.notice.isEmpty(), qPrintable(phone.opened.error));
    QVERIFY(version() > 1);
}

void TestSchema::aSmallLogOfTheFirstVersionSaysNothingOfItsSteps()
{
    const StateDir state;
    QVERIFY(makeFirstVersion(state, 20'000));
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.isEmpty(), qPrintable(phone.opened.notice));
    QVERIFY(phone.progress.isEmpty());
}

void TestSchema::aStepThatFailsLeavesTheVersionBeforeItWhole()
{
    Database database(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    QVERIFY(!calllog::migrate(database, later({addsRates, failsHalfway, addsNotes})));
    QCOMPARE(database.lastError().code(), calllog::sqlite::Error);
    QCOMPARE(versionOf(database), qint64(today().size()) + 1);
    const QString tables = QStringLiteral("SELECT count(*) FROM sqlite_schema WHERE name IN ('half', 'notes')");
    QCOMPARE(database.number(tables), std::optional(qint64{0}));
    QVERIFY(database.run(QStringLiteral("SELECT rate FROM calls")));
}

void TestSchema::aStepThatFailedIsDoneByTheNextStart()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(2 * minute));
    QVERIFY(!migrateFile(state.database(), later({failsHalfway})));
    QCOMPARE(Phone(state.path()).figures().dialed, quint64{120});
    QVERIFY(migrateFile(state.database(), later({addsRates})));
    QCOMPARE(LogFile(state.database()).value(QStringLiteral("SELECT rate FROM calls")), QVariant(2));
}

void TestSchema::theHandsetTakesOverADatabaseWithoutTables()
{
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    {
        // Version 0, but a file with a page in it.
        const LogFile file(state.database());
        QVERIFY(file.run(QStringLiteral("CREATE TABLE passing (id)")));
        QVERIFY(file.run(QStringLiteral("DROP TABLE passing")));
    }
    QVERIFY(QFile(state.database()).size() > 0);
    Phone phone(state.path());
    QVERIFY(phone.opened.notice.isEmpty());
    QVERIFY(phone.dialed(3 * second));
    phone.close();
    QCOMPARE(LogFile(state.database()).value(QStringLiteral("PRAGMA user_version")).toULongLong(), today().size());
}

void TestSchema::rowsThatMakeNoSenseAreRefusedByTheTables_data()
{
    QTest::addColumn<QString>("values");
    QTest::newRow("a kind that does not exist") << QStringLiteral("2, 0, '', 0, 0, 1");
    QTest::newRow("a direction that does not exist") << QStringLiteral("0, -1, '', 0, 0, 1");
    QTest::newRow("no number") << QStringLiteral("0, 0, NULL, 0, 0, 1");
    QTest::newRow("a start that is a text") << QStringLiteral("0, 0, '', 'soon', 0, 1");
    QTest::newRow("a negative duration") << QStringLiteral("0, 0, '', 0, -1, 1");
    QTest::newRow("a duration that is no whole number") << QStringLiteral("0, 0, '', 0, 9e99, 1");
    QTest::newRow("a state that does not exist") << QStringLiteral("0, 0, '', 0, 0, 4");
}

void TestSchema::rowsThatMakeNoSenseAreRefusedByTheTables()
{
    QFETCH(QString, values);
    const QString insert =
        QStringLiteral("INSERT INTO calls (kind, direction, number, started_ms, duration_ms, state) VALUES (%1)");
    Database database(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    QVERIFY(calllog::migrate(database, today()));
    QVERIFY(database.run(insert.arg(QStringLiteral("1, 1, '', -5, 0, 3"))));
    QVERIFY(!database.run(insert.arg(values)));
    QVERIFY(!database.run(QStringLiteral("UPDATE totals SET ms = -1")));
}

KAV_TEST_GROUP(TestSchema, QCoreApplication);
#include "tst_schema.moc"
