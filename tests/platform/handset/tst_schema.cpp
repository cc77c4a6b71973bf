// The tables of the call log, and the way there from older versions.
#include "HandsetTestKit.h"
#include "Schema.h"
#include "Status.h"

#include <QtCore/QDir>

#include <array>
#include <vector>

using namespace handset;
using namespace handset::test;
using calllog::Database;
using calllog::Migration;

namespace {

// What a later version might do.
constexpr std::array addsCosts{"ALTER TABLE calls ADD COLUMN cost_units INTEGER NOT NULL DEFAULT 0",
                               "UPDATE calls SET cost_units = duration_ms / 60000"};
constexpr std::array addsSessions{"CREATE TABLE sessions (id INTEGER PRIMARY KEY, apn TEXT NOT NULL) STRICT"};
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

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void anEmptyDatabaseGetsEveryStep();
    void anUpToDateDatabaseIsLeftAlone();
    void anOlderDatabaseKeepsItsCallsThroughEveryStep();
    void aStepThatFailsLeavesTheVersionBeforeItWhole();
    void aStepThatFailedIsDoneByTheNextStart();
    void theTelephoneTakesOverADatabaseWithoutTables();
    void rowsThatMakeNoSenseAreRefusedByTheTables_data();
    void rowsThatMakeNoSenseAreRefusedByTheTables();
};

void TestSchema::anEmptyDatabaseGetsEveryStep()
{
    Database database(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    QCOMPARE(versionOf(database), qint64{0});
    QVERIFY(calllog::migrate(database, later({addsCosts, addsSessions})));
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
    QVERIFY(migrateFile(state.database(), later({addsCosts, addsSessions})));
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT cost_units FROM calls WHERE number = '1234'")), QVariant(5));
    QCOMPARE(file.value(QStringLiteral("SELECT ms FROM totals WHERE counter = 'dialed'")), QVariant(300000));
    QCOMPARE(file.value(QStringLiteral("SELECT count(*) FROM sessions")), QVariant(0));
}

void TestSchema::aStepThatFailsLeavesTheVersionBeforeItWhole()
{
    Database database(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    QVERIFY(!calllog::migrate(database, later({addsCosts, failsHalfway, addsSessions})));
    QCOMPARE(calllog::sqlite::code(database.lastError()), calllog::sqlite::Error);
    QCOMPARE(versionOf(database), qint64(today().size()) + 1);
    const QString tables = QStringLiteral("SELECT count(*) FROM sqlite_schema WHERE name IN ('half', 'sessions')");
    QCOMPARE(database.number(tables), std::optional(qint64{0}));
    QVERIFY(database.run(QStringLiteral("SELECT cost_units FROM calls")));
}

void TestSchema::aStepThatFailedIsDoneByTheNextStart()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(2 * minute));
    QVERIFY(!migrateFile(state.database(), later({failsHalfway})));
    QCOMPARE(Phone(state.path()).figures().dialed, quint64{120});
    QVERIFY(migrateFile(state.database(), later({addsCosts})));
    QCOMPARE(LogFile(state.database()).value(QStringLiteral("SELECT cost_units FROM calls")), QVariant(2));
}

void TestSchema::theTelephoneTakesOverADatabaseWithoutTables()
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

QTEST_GUILESS_MAIN(TestSchema)
#include "tst_schema.moc"
