// A call log that somebody has changed: it is told, nothing of it runs, and the handset works.
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/HandsetTestKit.h"
#include "handset/PacketData.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMutex>
#include <QtCore/QStorageInfo>

#include <atomic>

#include <sqlite3.h>

using namespace handset;
using namespace handset::test;

namespace {

// Never comes to an end.
const QString endless = QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)");

/// A log with four calls, a session and a card whose PIN2 has two tries left.
bool makeLog(const StateDir &state)
{
    Phone phone(state.path());
    bool accepted = true;
    return phone.dialed(61 * second) && phone.answered(5 * second) && phone.dialed(9 * second, CallKind::Data) &&
           phone.dialed(20 * second) && phone.session(7 * second, "internet", 10, 20) &&
           phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "0000", accepted) == Success;
}

bool change(const StateDir &state, const QStringList &statements)
{
    const LogFile file(state.database());
    return std::all_of(statements.begin(), statements.end(),
                       [&](const QString &statement) { return file.run(statement); });
}

/// Sees every connection to a database that this process opens while it lives, and gives each of them a function of the
/// name `foreign_one`, which SQLite has been told nothing good of.
class AllConnections
{
public:
    AllConnections()
    {
        seen.clear();
        trusting.clear();
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&opened));
    }
    ~AllConnections() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&opened)); }
    Q_DISABLE_COPY_MOVE(AllConnections)

    static inline std::atomic<int> timesRun = 0; ///< the function
    /// Statements, and those of connections that run what a schema says, each behind the name of its file.
    static QStringList statements(bool ofTrusting)
    {
        const QMutexLocker locked(&mutex);
        return ofTrusting ? trusting : seen;
    }

private:
    static int opened(sqlite3 *connection, char **, const sqlite3_api_routines *)
    {
        const auto run = [](sqlite3_context *context, int, sqlite3_value **values) {
            ++timesRun;
            sqlite3_result_value(context, values[0]);
        };
        sqlite3_create_function_v2(connection, "foreign_one", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, run,
                                   nullptr, nullptr, nullptr);
        return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, &begun, nullptr);
    }

    static int begun(unsigned, void *, void *statement, void *)
    {
        auto *const handle = static_cast<sqlite3_stmt *>(statement);
        sqlite3 *const connection = sqlite3_db_handle(handle);
        int isTrusting = 0;
        sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, -1, &isTrusting);
        const QString file = QFileInfo(QString::fromUtf8(sqlite3_db_filename(connection, "main"))).fileName();
        const QString text = file + QStringLiteral(": ") + QString::fromUtf8(sqlite3_sql(handle));
        const QMutexLocker locked(&mutex);
        seen << text;
        if (isTrusting != 0)
            trusting << text;
        return 0;
    }

    static inline QMutex mutex;
    static inline QStringList seen;
    static inline QStringList trusting;
};

} // namespace

class TestFalsifiedLog : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void whatIsChangedInTheTablesIsToldOnceAndCostsNoCall_data();
    void whatIsChangedInTheTablesIsToldOnceAndCostsNoCall();
    void totalsThatContradictTheRowsAreTold_data();
    void totalsThatContradictTheRowsAreTold();
    void totalsThatWereResetContradictNothing();
    void aLogOfAnEarlierVersionIsBelievedOnce();
    void aViewThatNeverEndsIsNeverRead_data();
    void aViewThatNeverEndsIsNeverRead();
    void aColumnThatIsComputedIsNeverRead();
    void moreEntriesThanALogCanHaveCostNoCall();
    void aHugeValueOfSomebodyElseLocksNoLog();
    void noConnectionToALogTrustsItsTables_data();
    void noConnectionToALogTrustsItsTables();
    void aFunctionThatALogNamesIsNeverRun_data();
    void aFunctionThatALogNamesIsNeverRun();
};

void TestFalsifiedLog::whatIsChangedInTheTablesIsToldOnceAndCostsNoCall_data()
{
    QTest::addColumn<QStringList>("statements");
    const auto row = [](const char *name, const QStringList &statements) { QTest::newRow(name) << statements; };
    for (const char *table : {"totals", "costs", "session_totals", "lost"}) {
        const QString set =
            QStringLiteral("UPDATE %1 SET counter = '%2' WHERE counter = (SELECT max(counter) FROM %1)");
        QTest::addRow("a total of %s under another name", table)
            << QStringList{set.arg(QLatin1String(table), QStringLiteral("zero"))};
        QTest::addRow("one more total in %s", table)
            << QStringList{QStringLiteral("INSERT INTO %1 VALUES ('one more', 1)").arg(QLatin1String(table))};
    }
    row("a foreign table", {QStringLiteral("CREATE TABLE mine (id INTEGER) STRICT")});
    row("a table that is not strict",
        {QStringLiteral("ALTER TABLE totals RENAME TO before"),
         QStringLiteral("CREATE TABLE totals (counter TEXT PRIMARY KEY, ms INTEGER NOT NULL CHECK (ms >= 0))"
                        " WITHOUT ROWID"),
         QStringLiteral("INSERT INTO totals SELECT * FROM before"), QStringLiteral("DROP TABLE before")});
    row("a table without its checks",
        {QStringLiteral("ALTER TABLE totals RENAME TO before"),
         QStringLiteral("CREATE TABLE totals (counter TEXT PRIMARY KEY, ms INTEGER) STRICT, WITHOUT ROWID"),
         QStringLiteral("INSERT INTO totals SELECT * FROM before"), QStringLiteral("DROP TABLE before")});
    row("a foreign view", {QStringLiteral("CREATE VIEW mine AS SELECT 1")});
    row("a foreign index", {QStringLiteral("CREATE INDEX mine ON calls (number)")});
    row("an index that is missing", {QStringLiteral("DROP INDEX running_calls")});
    const auto withOneMore = [](const char *call) {
        return QStringList{
            QStringLiteral("ALTER TABLE calls RENAME TO before"),
            QStringLiteral(
                "CREATE TABLE calls (id, kind, direction, number, started_ms, duration_ms, state, units)"),
            QStringLiteral("INSERT INTO calls SELECT id, kind, direction, number, started_ms, duration_ms, state,"
                           " units FROM before"),
            QStringLiteral("DROP TABLE before"),
            QStringLiteral("INSERT INTO calls VALUES (%1)").arg(QLatin1String(call)),
        };
    };
    row("a duration that is a text", withOneMore("9, 0, 0, '5', 0, '3000', 1, 0"));
    row("a number that is none", withOneMore("9, 0, 0, 5, 0, 3000, 1, 0"));
    row("a kind that is none", withOneMore("9, 2, 0, '5', 0, 3000, 1, 0"));
    row("an id that is a text", withOneMore("'9', 0, 0, '5', 0, 3000, 1, 0"));
    row("a running call with a tariff that is none",
        {QStringLiteral("UPDATE calls SET state = 0, tariff = x'00' WHERE id = 4")});
    row("a trigger that takes the calls away",
        {QStringLiteral("CREATE TRIGGER mine AFTER UPDATE ON totals BEGIN DELETE FROM calls; END")});
    row("a trigger that forbids calls",
        {QStringLiteral("CREATE TRIGGER mine BEFORE INSERT ON calls BEGIN SELECT raise(ABORT, 'no'); END")});
}

void TestFalsifiedLog::whatIsChangedInTheTablesIsToldOnceAndCostsNoCall()
{
    QFETCH(QStringList, statements);
    const StateDir state;
    QVERIFY(makeLog(state));
    QVERIFY(change(state, statements));
    {
        Phone phone(state.path());
        QVERIFY2(phone, qPrintable(phone.opened.error));
        const QString begin =
            QStringLiteral("The call log is damaged; it was kept as \"calllog-kept-1.db\" and a new "
                           "one was begun with the calls (4) and data sessions (1)");
        QVERIFY2(phone.opened.notice.startsWith(begin), qPrintable(phone.opened.notice));
        QCOMPARE(phone.figures(), (SixFigures{20, 81, 5, 9, 95, 95}));
        QCOMPARE(phone.sessionTotals(), QStringLiteral("7 70 140 210"));
        QCOMPARE(phone->simCard().card().pin2().triesLeft(), 2);
    }
    Phone phone(state.path());
    QCOMPARE(phone.opened.notice, QString());
    QVERIFY(phone.dialed(3 * second));
    bool accepted = false;
    QCOMPARE(phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "1234", accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(phone.figures().lifetime, quint64{98});
}

void TestFalsifiedLog::totalsThatContradictTheRowsAreTold_data()
{
    QTest::addColumn<QString>("statement");
    const auto row = [](const char *name, const char *statement) {
        QTest::newRow(name) << QString::fromLatin1(statement);
    };
    row("less time than all calls ever", "UPDATE totals SET ms = ms - 1 WHERE counter = 'lifetime'");
    row("more time than all calls ever", "UPDATE totals SET ms = ms + 1 WHERE counter = 'lifetime'");
    row("nothing at all", "UPDATE totals SET ms = 0 WHERE counter = 'lifetime'");
    row("more time than the dialed calls", "UPDATE totals SET ms = 81001 WHERE counter = 'dialed'");
    row("more time than the answered calls", "UPDATE totals SET ms = 5001 WHERE counter = 'answered'");
    row("more time than the data calls", "UPDATE totals SET ms = 9001 WHERE counter = 'data'");
    row("more time for all calls than ever", "UPDATE totals SET ms = 95001 WHERE counter = 'all'");
    row("more time for the last call than ever", "UPDATE totals SET ms = 95001 WHERE counter = 'last'");
    row("more units than the dialed calls", "UPDATE costs SET units = 9 WHERE counter = 'dialed'");
    row("more units than the answered calls", "UPDATE costs SET units = 1 WHERE counter = 'answered'");
    row("more units for the last call than all", "UPDATE costs SET units = 9 WHERE counter = 'last'");
    row("more time than the sessions", "UPDATE session_totals SET value = 7001 WHERE counter = 'duration'");
    row("more bytes sent than the sessions", "UPDATE session_totals SET value = 71 WHERE counter = 'sent'");
    row("more bytes received than the sessions",
        "UPDATE session_totals SET value = 141 WHERE counter = 'received'");
    row("a call that is shorter", "UPDATE calls SET duration_ms = 1 WHERE id = 1");
    row("a call that is gone", "DELETE FROM calls WHERE id = 2");
    row("a call more", "INSERT INTO calls (id, kind, direction, number, started_ms, duration_ms, state)"
                       " VALUES (9, 0, 0, '9', 0, 1000, 1)");
    row("a session that is gone", "DELETE FROM sessions");
    row("what was lost before is not known", "DELETE FROM lost WHERE counter = 'calls'");
}

void TestFalsifiedLog::totalsThatContradictTheRowsAreTold()
{
    QFETCH(QString, statement);
    const StateDir state;
    QVERIFY(makeLog(state));
    QVERIFY(change(state, {statement}));
    {
        Phone phone(state.path());
        QVERIFY2(phone.opened.notice.startsWith(QStringLiteral("The call log is damaged; it was kept as ")),
                 qPrintable(phone.opened.notice));
        QVERIFY(phone.dialed(3 * second));
    }
    QCOMPARE(Phone(state.path()).opened.notice, QString()); // once
}

void TestFalsifiedLog::totalsThatWereResetContradictNothing()
{
    const StateDir state;
    QVERIFY(makeLog(state));
    {
        Phone phone(state.path());
        QVERIFY(phone.dial());
        phone.clock->advance(25 * second);
        QCOMPARE(phone.log().resetAll(), int(Success));
        QCOMPARE(phone.service().resetCallTime(), int(Success));
        QCOMPARE(phone.packets().resetTotalBytes(), int(Success));
        phone.clock->advance(2 * second);
    }
    {
        const Phone phone(state.path());
        QCOMPARE(phone.opened.notice, QString());
        QCOMPARE(phone.figures().lifetime, quint64{122});
        QCOMPARE(phone.log().resetDialedCallsTime(), int(Success));
    }
    QCOMPARE(Phone(state.path()).opened.notice, QString());
}

// An earlier version did not write down what a damaged page took with it, so what its totals have beyond its rows is no
// damage when it is seen first.
void TestFalsifiedLog::aLogOfAnEarlierVersionIsBelievedOnce()
{
    const StateDir state;
    QVERIFY(makeLog(state));
    QVERIFY(takeBackTo(state.database(), 3));
    QVERIFY(change(state, {QStringLiteral("DROP TABLE lost"), QStringLiteral("PRAGMA user_version = 2"),
                           QStringLiteral("DELETE FROM calls WHERE id = 1"),
                           QStringLiteral("DELETE FROM kept WHERE name IN ('charging', 'checked')")}));
    QCOMPARE(Phone(state.path()).opened.notice, QString());
    QCOMPARE(Phone(state.path()).figures(), (SixFigures{20, 81, 5, 9, 95, 95}));
    QVERIFY(change(state, {QStringLiteral("DELETE FROM calls WHERE id = 4")}));
    QVERIFY(!Phone(state.path()).opened.notice.isEmpty());
}

void TestFalsifiedLog::aViewThatNeverEndsIsNeverRead_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("columns");
    QTest::addColumn<bool>("losesCalls");
    const auto row = [](const char *table, const char *columns) {
        QTest::addRow("in the place of %s", table)
            << QString::fromLatin1(table) << QString::fromLatin1(columns) << (QByteArray(table) == "calls");
    };
    row("calls",
        "i AS id, 0 AS kind, 0 AS direction, '1' AS number, 0 AS started_ms, 0 AS duration_ms, 1 AS state,"
        " 0 AS units");
    row("totals", "'last' || i AS counter, i AS ms");
    row("costs", "'last' || i AS counter, i AS units");
    row("session_totals", "'sent' || i AS counter, i AS value");
    row("sessions",
        "i AS id, 'x' AS apn, 0 AS started_ms, 0 AS duration_ms, 0 AS sent, 0 AS received, 1 AS state");
    row("kept", "'card' || i AS name, x'00' AS content");
    row("lost", "'calls' || i AS counter, 0 AS value");
}

void TestFalsifiedLog::aViewThatNeverEndsIsNeverRead()
{
    QFETCH(QString, table);
    QFETCH(QString, columns);
    QFETCH(bool, losesCalls);
    const StateDir state;
    QVERIFY(makeLog(state));
    QVERIFY(change(state, {QStringLiteral("DROP TABLE %1").arg(table),
                           QStringLiteral("CREATE VIEW %1 AS %2 SELECT %3 FROM n").arg(table, endless, columns)}));
    {
        Phone phone(state.path());
        QVERIFY2(phone, qPrintable(phone.opened.error));
        QVERIFY2(phone.opened.notice.startsWith(QStringLiteral("The call log is damaged")),
                 qPrintable(phone.opened.notice));
        QVERIFY(phone.dialed(3 * second));
    }
    QCOMPARE(LogFile(state.database()).calls().size(), losesCalls ? 1 : 5);
    QCOMPARE(Phone(state.path()).opened.notice, QString());
}

void TestFalsifiedLog::aColumnThatIsComputedIsNeverRead()
{
    const StateDir state;
    QVERIFY(makeLog(state));
    QVERIFY(change(state, {QStringLiteral("ALTER TABLE totals RENAME TO before"),
                           QStringLiteral("CREATE TABLE totals (counter TEXT, ms INTEGER AS (length(counter)))"),
                           QStringLiteral("INSERT INTO totals (counter) SELECT counter FROM before"),
                           QStringLiteral("DROP TABLE before")}));
    Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QVERIFY2(phone.opened.notice.contains(QStringLiteral("timers")), qPrintable(phone.opened.notice));
    QCOMPARE(phone.figures(), (SixFigures{20, 81, 5, 9, 95, 95}));
}

void TestFalsifiedLog::moreEntriesThanALogCanHaveCostNoCall()
{
    const StateDir state;
    QVERIFY(makeLog(state));
    QVERIFY(change(state, {QStringLiteral("PRAGMA writable_schema = ON"),
                           QStringLiteral("%1 INSERT INTO sqlite_schema SELECT 'view', 'v' || i, 'v' || i, 0, "
                                          "'CREATE VIEW v' || i || ' AS SELECT ' || i FROM n LIMIT 20000")
                               .arg(endless)}));
    Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QVERIFY2(phone.opened.notice.contains(QStringLiteral("with the calls (4) and data sessions (1)")),
             qPrintable(phone.opened.notice));
    QCOMPARE(phone.figures(), (SixFigures{20, 81, 5, 9, 95, 95}));
}

// SQLite makes no text of a thousand million characters: this value has more of them in hexadecimal.
void TestFalsifiedLog::aHugeValueOfSomebodyElseLocksNoLog()
{
    constexpr qint64 needed = qint64{2} << 30; // bytes, with what is recorded beside the log
    const StateDir state;
    QVERIFY(makeLog(state));
    if (QStorageInfo(state.path()).bytesAvailable() < needed)
        QSKIP("The disk has too little space for a value that large.");
    QVERIFY(change(state, {QStringLiteral("PRAGMA journal_mode = DELETE"),
                           QStringLiteral("INSERT INTO kept VALUES ('mine', zeroblob(500000001))")}));
    const Phone phone(state.path());
    QCOMPARE(phone.opened.error, QString());
    QCOMPARE(phone.opened.notice, QString());
    QCOMPARE(phone.figures(), (SixFigures{20, 81, 5, 9, 95, 95}));
}

void TestFalsifiedLog::noConnectionToALogTrustsItsTables_data()
{
    QTest::addColumn<int>("calls");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QStringList>("files"); // that are read
    const QStringList log{QStringLiteral("calllog.db")};
    const QStringList replaced{QStringLiteral("calllog.db"), QStringLiteral("calllog-copy.db"),
                               QStringLiteral("calllog-new.db")};
    QTest::newRow("that is read at once") << 10 << QString() << log;
    QTest::newRow("that is read beside its use") << 10'000 << QString() << log;
    QTest::newRow("that is replaced") << 10 << QStringLiteral("DELETE FROM totals") << replaced;
    QTest::newRow("that only looks like another program's")
        << 10 << QStringLiteral("PRAGMA application_id = 7") << replaced;
}

void TestFalsifiedLog::noConnectionToALogTrustsItsTables()
{
    QFETCH(int, calls);
    QFETCH(QString, change);
    QFETCH(QStringList, files);
    const StateDir state;
    const PastCall call{CallKind::Voice, CallDirection::Dialed, QStringLiteral("5550123"), 0, second};
    QCOMPARE(Phone(state.path())->addHistory(QList<PastCall>(calls, call)), int(Success));
    QVERIFY(change.isEmpty() || LogFile(state.database()).run(change));
    const AllConnections all;
    {
        const Phone phone(state.path());
        QVERIFY2(phone, qPrintable(phone.opened.error));
        QCOMPARE(phone.opened.notice.isEmpty(), change.isEmpty());
        const QString readThrough = QStringLiteral("calllog.db: PRAGMA quick_check(1)");
        QTRY_VERIFY_WITH_TIMEOUT(AllConnections::statements(false).contains(readThrough), 60'000);
    }
    const QString seen = AllConnections::statements(false).join(QLatin1Char('\n'));
    for (const QString &file : files)
        QVERIFY2(seen.contains(file + QStringLiteral(": ")), qPrintable(file));
    QCOMPARE(AllConnections::statements(true).join(QLatin1Char('\n')), QString());
}

void TestFalsifiedLog::aFunctionThatALogNamesIsNeverRun_data()
{
    QTest::addColumn<QStringList>("statements");
    const auto row = [](const char *name, const QStringList &statements) { QTest::newRow(name) << statements; };
    const auto rewritten = [](const char *before, const char *after) {
        return QStringList{
            QStringLiteral("PRAGMA writable_schema = ON"),
            QStringLiteral("UPDATE sqlite_schema SET sql = replace(sql, '%1', '%2') WHERE name = 'calls'")
                .arg(QLatin1String(before), QLatin1String(after)),
            QStringLiteral("PRAGMA schema_version = 1000")};
    };
    row("in a trigger",
        {QStringLiteral("CREATE TRIGGER mine AFTER INSERT ON calls BEGIN SELECT foreign_one(new.id); END")});
    row("in the condition of a trigger",
        {QStringLiteral(
            "CREATE TRIGGER mine AFTER UPDATE ON totals WHEN foreign_one(new.ms) BEGIN SELECT 1; END")});
    row("in an index", {QStringLiteral("CREATE INDEX mine ON calls (foreign_one(id))")});
    row("in the condition of an index",
        {QStringLiteral("CREATE INDEX mine ON calls (id) WHERE foreign_one(id) > 0")});
    row("in a view", {QStringLiteral("ALTER TABLE totals RENAME TO before"),
                      QStringLiteral("CREATE VIEW totals AS SELECT counter, foreign_one(ms) AS ms FROM before")});
    row("in a column that is computed",
        {QStringLiteral("ALTER TABLE totals RENAME TO before"),
         QStringLiteral("CREATE TABLE totals (counter TEXT, ms INTEGER AS (foreign_one(7)))"),
         QStringLiteral("INSERT INTO totals (counter) SELECT counter FROM before")});
    row("in a check", rewritten("CHECK (duration_ms >= 0)", "CHECK (foreign_one(duration_ms) >= 0)"));
    row("in a default value",
        rewritten(" recorded_ms INTEGER)", " recorded_ms INTEGER, mine INTEGER DEFAULT (foreign_one(0)))"));
}

// Neither by who has the log already, nor by who opens it.
void TestFalsifiedLog::aFunctionThatALogNamesIsNeverRun()
{
    QFETCH(QStringList, statements);
    const StateDir state;
    QVERIFY(makeLog(state));
    const AllConnections all;
    {
        Phone phone(state.path());
        QCOMPARE(phone.opened.notice, QString());
        QVERIFY(change(state, statements));
        AllConnections::timesRun = 0;
        // The handset tells that it could not write, or read.
        QLoggingCategory::setFilterRules(QStringLiteral("kav.handset.calllog.warning=false"));
        phone.dialed(3 * second);
        CallTime time;
        phone.log().dialedCallsTime(time);
    }
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(AllConnections::timesRun, 0);
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.startsWith(QStringLiteral("The call log is damaged; it was kept as ")),
             qPrintable(phone.opened.notice));
    QCOMPARE(AllConnections::timesRun, 0);
    QVERIFY(LogFile(state.database()).calls().size() >= 4);
}

KAV_TEST_GROUP(TestFalsifiedLog, QCoreApplication);
#include "tst_falsified_log.moc"
