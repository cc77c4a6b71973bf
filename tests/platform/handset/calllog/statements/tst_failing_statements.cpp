// One statement of the call log after another fails, as it does where the disk cannot be read or written: the operation
// says so, has changed nothing and written no answer, and works when it is tried again; an opening says why, and the next
// one finds everything. (The fault matrix in ../faults fails what SQLite asks of the system, which is less: most of what
// a statement needs is in memory.)
#include "calllog/Listing.h"
#include "calllog/OpenLedger.h"
#include "charging/ChargingState.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/Sample.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include <dlfcn.h>
#include <sqlite3.h>

using namespace handset;
using namespace handset::calllog;
using namespace handset::test;

namespace {

/// The call of SQLite that fails, counted from when this was set; 0 for none.
int failsAt = 0;
bool failsForGood = false;  ///< and every later one
bool hasFailed = false;     ///< that one has
bool isLastError = false;   ///< and none has been made since
bool failsInMemory = false; ///< also where a log's tables are compared with new ones: a hundred statements alike
int depth = 0; ///< more than 0: the call is one of SQLite's own, which fails with the one that it is for

/// A call of SQLite, from its beginning to its end.
class Call
{
public:
    explicit Call(sqlite3 *connection)
    {
        const char *const file = sqlite3_db_filename(connection, "main");
        if (++depth > 1 || (!failsInMemory && (!file || *file == '\0')))
            return;
        fails = isLastError = failsAt > 0 && --failsAt == 0;
        if (fails && failsForGood)
            failsAt = 1;
        hasFailed = hasFailed || fails;
    }
    ~Call() { --depth; }
    Q_DISABLE_COPY_MOVE(Call)

    bool fails = false;
};

template <typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" int sqlite3_step(sqlite3_stmt *statement)
{
    static auto *const step = real<decltype(sqlite3_step)>("sqlite3_step");
    const Call call(sqlite3_db_handle(statement));
    return call.fails ? SQLITE_IOERR : step(statement);
}

extern "C" int sqlite3_prepare_v3(sqlite3 *connection, const char *text, int length, unsigned int flags,
                                  sqlite3_stmt **statement, const char **rest)
{
    static auto *const prepare = real<decltype(sqlite3_prepare_v3)>("sqlite3_prepare_v3");
    const Call call(connection);
    if (!call.fails)
        return prepare(connection, text, length, flags, statement, rest);
    *statement = nullptr;
    return SQLITE_IOERR;
}

extern "C" int sqlite3_extended_errcode(sqlite3 *connection)
{
    static auto *const code = real<decltype(sqlite3_extended_errcode)>("sqlite3_extended_errcode");
    return isLastError ? SQLITE_IOERR_WRITE : code(connection);
}

extern "C" const char *sqlite3_errmsg(sqlite3 *connection)
{
    static auto *const message = real<decltype(sqlite3_errmsg)>("sqlite3_errmsg");
    return isLastError ? "disk I/O error" : message(connection);
}

namespace {

constexpr qint64 unwritten = -77; ///< what an answer must still be after a failure

QStringList warnings;

void collect(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtWarningMsg)
        warnings << text;
}

/// Everything that is in the file.
QString contentsOf(const QString &database)
{
    const LogFile file(database);
    QStringList all;
    for (const auto &[table, columns] :
         {std::pair("calls", "id, kind, direction, number, started_ms, duration_ms, units, late, state"),
          std::pair("sessions", "id, apn, started_ms, duration_ms, sent, received, state"),
          std::pair("totals", "counter, ms"), std::pair("costs", "counter, units"),
          std::pair("session_totals", "counter, value"), std::pair("lost", "counter, value")})
        all << file.value(QStringLiteral(
                              "SELECT group_concat(line, char(10)) FROM (SELECT json_array(%1) AS line FROM "
                              "%2 ORDER BY 1)")
                              .arg(QLatin1String(columns), QLatin1String(table)))
                   .toString();
    return all.join(QLatin1Char('\n'));
}

/// Everything that is told of it.
QString told(Ledger &ledger)
{
    QStringList all;
    for (const TotalPlace &place : totalPlaces) {
        qint64 value = unwritten;
        if (place.total < Total::SessionTime)
            all << QString::number(ledger.figure(place.total, value)) + QLatin1Char(':') + QString::number(value);
    }
    SessionAmounts sums;
    ledger.sessionTotals(sums);
    all << QStringLiteral("%1 %2 %3").arg(sums.ms).arg(sums.sent).arg(sums.received);
    QList<ListedCall> calls;
    listCalls(ledger, {}, calls);
    for (const ListedCall &one : std::as_const(calls))
        all << QStringLiteral("call %1 %2 %3 %4")
                   .arg(one.id)
                   .arg(one.call.number)
                   .arg(one.call.durationMs)
                   .arg(one.call.units);
    QList<ListedSession> sessions;
    listSessions(ledger, {}, sessions);
    for (const ListedSession &one : std::as_const(sessions))
        all << QStringLiteral("session %1 %2 %3 %4")
                   .arg(one.id)
                   .arg(one.amounts.ms)
                   .arg(one.amounts.sent)
                   .arg(one.amounts.received);
    const charging::ChargingState state = ledger.standing().state;
    all << QString::fromLatin1(charging::chargingRecord(state)) << QString::number(state.card.acm());
    return all.join(QLatin1Char('\n'));
}

/// A log with calls and sessions that are over, a prepaid account, a call by the tariff, one that is measured, and a
/// session that run.
struct Desk {
    Desk()
        : clock(std::make_shared<ManualClock>(1000 * second))
        , opened(openLedger(state.path(), clock))
    {
        if (!opened.ledger)
            return;
        ledger().edit([](charging::ChargingState &now) {
            now.account = charging::Account{1000, 1000, {2030, 1, 31}};
            return int{Success};
        });
        ledger().addHistory({{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 1000, 61000},
                             {CallKind::Voice, CallDirection::Answered, QStringLiteral("2"), 2000, 62000},
                             {CallKind::Data, CallDirection::Dialed, QStringLiteral("3"), 3000, 63000}});
        ledger().beginSession("over", 100, 200, sessionOver);
        ledger().beginCall({CallKind::Voice, CallDirection::Answered, QStringLiteral("4"), 4000}, over,
                           Charge::Measured);
        clock->advance(30 * second);
        ledger().endCall(over);
        ledger().endSession(sessionOver);
        ledger().beginCall({CallKind::Voice, CallDirection::Dialed, QStringLiteral("5"), 5000}, running);
        ledger().beginCall({CallKind::Voice, CallDirection::Answered, QStringLiteral("6"), 6000}, measured,
                           Charge::Measured);
        ledger().beginSession("internet", 10, 20, session);
        clock->advance(25 * second);
    }

    Ledger &ledger() const { return *opened.ledger; }
    QString all() const { return told(ledger()) + QStringLiteral("\n--\n") + contentsOf(state.database()); }

    StateDir state;
    std::shared_ptr<ManualClock> clock;
    OpenedLedger opened;
    qint64 over = 0;
    qint64 sessionOver = 0;
    qint64 running = 0;
    qint64 measured = 0;
    qint64 session = 0;
};

/// Returns what the operation does; `answer` is what it has written, unwritten at first.
using Operation = std::function<int(Desk &desk, qint64 &answer)>;

PastCall callTo(const char *number, qint64 durationMs = 0)
{
    return {CallKind::Voice, CallDirection::Dialed, QString::fromLatin1(number), 7000, durationMs};
}

std::vector<std::pair<const char *, Operation>> operations()
{
    return {
        {"a reset",
         [](Desk &desk, qint64 &) {
             return desk.ledger().reset({Total::AllTime, Total::DialedCost});
         }},
        {"a reset of the sessions",
         [](Desk &desk, qint64 &) {
             return desk.ledger().resetSessions({Total::SessionTime, Total::BytesSent, Total::BytesReceived});
         }},
        {"a deposit",
         [](Desk &desk, qint64 &) {
             return desk.ledger().edit([](charging::ChargingState &now) {
                 now.account->credit = 5000;
                 return int{Success};
             });
         }},
        {"a change of the card",
         [](Desk &desk, qint64 &) {
             return desk.ledger().editCard([](charging::SimCard &card) { return card.updateAcmMax(777); });
         }},
        {"a checkpoint of the calls", [](Desk &desk, qint64 &) { return desk.ledger().checkpoint(); }},
        {"a checkpoint of the sessions", [](Desk &desk, qint64 &) { return desk.ledger().checkpointSession(); }},
        {"units of a running call",
         [](Desk &desk, qint64 &) { return desk.ledger().setUnits(desk.measured, 40); }},
        {"units of a call that is over",
         [](Desk &desk, qint64 &) { return desk.ledger().setUnits(desk.over, 9); }},
        {"bytes of a session",
         [](Desk &desk, qint64 &) { return desk.ledger().addBytes(desk.session, 1 << 20, 1 << 21); }},
        {"calls of the past while one runs",
         [](Desk &desk, qint64 &row) {
             return desk.ledger().addHistory({callTo("7", 5000), callTo("8")}, Charge::Limited, &row);
         }},
        {"a call begins", [](Desk &desk, qint64 &id) { return desk.ledger().beginCall(callTo("9"), id); }},
        {"a call that has lasted already",
         [](Desk &desk, qint64 &id) { return desk.ledger().beginCall(callTo("9", 8000), id, Charge::Unlimited); }},
        {"a session begins", [](Desk &desk, qint64 &id) { return desk.ledger().beginSession("mms", 1, 2, id); }},
        {"a session that has counted already",
         [](Desk &desk, qint64 &id) {
             return desk.ledger().beginSession("mms", 1, 2, id, {1000, 2000, 3000});
         }},
        {"a call is deleted", [](Desk &desk, qint64 &) { return deleteCall(desk.ledger(), 1); }},
        {"calls are deleted",
         [](Desk &desk, qint64 &count) {
             return deleteCalls(desk.ledger(), {0, 3000}, count);
         }},
        {"calls are listed",
         [](Desk &desk, qint64 &answer) {
             QList<ListedCall> calls;
             const int status = listCalls(desk.ledger(), {}, calls);
             if (!calls.isEmpty())
                 answer = calls.size();
             return status;
         }},
        {"the newest calls",
         [](Desk &desk, qint64 &answer) {
             QList<ListedCall> calls;
             const int status = newestCalls(desk.ledger(), 1000, 3, calls);
             if (!calls.isEmpty())
                 answer = calls.size();
             return status;
         }},
        {"calls are counted", [](Desk &desk, qint64 &count) { return countCalls(desk.ledger(), 1, 1000, count); }},
        {"sessions are listed",
         [](Desk &desk, qint64 &answer) {
             QList<ListedSession> sessions;
             const int status = listSessions(desk.ledger(), {}, sessions);
             if (!sessions.isEmpty())
                 answer = sessions.last().amounts.ms;
             return status;
         }},
        {"the latest sessions",
         [](Desk &desk, qint64 &answer) {
             QList<SessionRow> sessions;
             const int status = desk.ledger().sessions(3, sessions);
             if (!sessions.isEmpty())
                 answer = sessions.first().amounts.ms;
             return status;
         }},
        {"what the sessions come to",
         [](Desk &desk, qint64 &answer) {
             SessionAmounts sums{unwritten, unwritten, unwritten};
             const int status = desk.ledger().sessionTotals(sums);
             answer = sums.ms;
             return status;
         }},
        {"a time", [](Desk &desk, qint64 &value) { return desk.ledger().figure(Total::DialedTime, value); }},
        {"a cost", [](Desk &desk, qint64 &value) { return desk.ledger().figure(Total::DialedCost, value); }},
        {"what was counted of a call",
         [](Desk &desk, qint64 &answer) {
             Counted counted{unwritten, unwritten};
             const int status = desk.ledger().counted(
                 {CallKind::Voice, CallDirection::Answered, QStringLiteral("4"), 4000}, 0, counted);
             answer = counted.ms;
             return status;
         }},
        {"what was counted of a session",
         [](Desk &desk, qint64 &answer) {
             SessionAmounts counted{unwritten, unwritten, unwritten};
             const int status = desk.ledger().counted("over", 0, 0, counted);
             answer = counted.ms;
             return status;
         }},
        {"the card",
         [](Desk &desk, qint64 &answer) {
             charging::SimCard card;
             card.increaseAcm(99999);
             const int status = desk.ledger().card(card);
             answer = card.acm() == 99999 ? unwritten : qint64{card.acm()};
             return status;
         }},
    };
}

constexpr qint64 pageSize = 4096;

void putClosedLog(const QString &directory)
{
    Desk desk;
    desk.ledger().endCall(desk.running);
    desk.ledger().endCall(desk.measured);
    desk.ledger().endSession(desk.session);
    desk.opened.ledger.reset();
    copyState(desk.state.path(), directory);
}

/// Makes the n-th call of SQLite fail while it lives.
class Failing
{
public:
    explicit Failing(int call, bool isForGood = false)
    {
        failsAt = call;
        failsForGood = isForGood;
        hasFailed = false;
    }
    ~Failing()
    {
        failsAt = 0;
        failsForGood = false;
    }
    Q_DISABLE_COPY_MOVE(Failing)
};

} // namespace

class TestFailingStatements : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        warnings.clear();
        before = qInstallMessageHandler(collect);
    }
    void cleanup()
    {
        qInstallMessageHandler(before);
        failsInMemory = false;
    }

    void anOperationFailsWholeAndIsTold_data();
    void anOperationFailsWholeAndIsTold();
    void anEndThatCannotBeWrittenIsOwed_data();
    void anEndThatCannotBeWrittenIsOwed();
    void callsOfThePastAreAddedWholeOrNotAtAll();
    void whileAnEndIsOwedNothingElseIsWritten();
    void amountsBelowZeroBeginNothing();
    void whatIsMissingOrUnreadableIsAFailure_data();
    void whatIsMissingOrUnreadableIsAFailure();
    void aCallWithoutATariffOfItsOwnCostsNothing();
    void anOpeningSaysWhyAndLosesNothing_data();
    void anOpeningSaysWhyAndLosesNothing();
    void aLogInMemorySaysWhy();

private:
    QtMessageHandler before = nullptr;
    StateDir prepared;
};

void TestFailingStatements::anOperationFailsWholeAndIsTold_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const auto &one : operations())
        QTest::newRow(one.first) << index++;
}

void TestFailingStatements::anOperationFailsWholeAndIsTold()
{
    QFETCH(int, index);
    const Operation operation = operations().at(static_cast<std::size_t>(index)).second;
    Desk expected;
    QVERIFY2(expected.opened.ledger, qPrintable(expected.opened.error));
    qint64 expectedAnswer = unwritten;
    QCOMPARE(operation(expected, expectedAnswer), int{Success});
    const QString after = expected.all();

    Desk desk;
    const QString untouched = desk.all();
    int failures = 0;
    for (bool isThrough = false; !isThrough; ++failures) {
        warnings.clear();
        qint64 answer = unwritten;
        int status = Success;
        {
            const Failing failing(failures + 1);
            status = operation(desk, answer);
        }
        isThrough = !hasFailed;
        QCOMPARE(status, isThrough ? int{Success} : int{StorageFailed});
        QCOMPARE(answer, isThrough ? expectedAnswer : unwritten);
        QCOMPARE(warnings,
                 isThrough ? QStringList() : QStringList{QStringLiteral("The call log failed: disk I/O error")});
        QCOMPARE(desk.all(), isThrough ? after : untouched);
    }
    QVERIFY(failures > 1);
}

void TestFailingStatements::anEndThatCannotBeWrittenIsOwed_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("of a call by the tariff") << 0;
    QTest::newRow("of a call that is measured") << 1;
    QTest::newRow("of a session") << 2;
    QTest::newRow("of a call that was not connected") << 3;
}

void TestFailingStatements::anEndThatCannotBeWrittenIsOwed()
{
    QFETCH(int, which);
    const auto end = [which](Desk &desk) {
        switch (which) {
        case 0:
            return desk.ledger().endCall(desk.running);
        case 1:
            return desk.ledger().endCall(desk.measured);
        case 2:
            return desk.ledger().endSession(desk.session, 100, 200);
        }
        return desk.ledger().addUnconnected(callTo("10"));
    };
    const auto isOwed = [which](const Desk &desk) {
        return which == 2 ? desk.ledger().owesSession() : desk.ledger().owesCall();
    };
    Desk expected;
    QCOMPARE(end(expected), int{Success});
    expected.clock->advance(minute);
    const QString after = expected.all();

    for (int call = 1;; ++call) {
        warnings.clear();
        Desk desk;
        int status = Success;
        {
            const Failing failing(call);
            status = end(desk);
        }
        if (!hasFailed)
            break;
        QCOMPARE(status, int{StorageFailed});
        QCOMPARE(warnings, QStringList{QStringLiteral("The call log failed: disk I/O error")});
        QVERIFY(isOwed(desk));
        desk.clock->advance(minute); // for which nothing counts
        QCOMPARE(which == 2 ? desk.ledger().checkpointSession() : desk.ledger().checkpoint(), int{Success});
        QVERIFY(!isOwed(desk));
        QCOMPARE(told(desk.ledger()), told(expected.ledger()));
    }
}

// While none runs, so that the last of them is the last call.
void TestFailingStatements::callsOfThePastAreAddedWholeOrNotAtAll()
{
    PastCall measured = callTo("7", 5000);
    measured.units = 12;
    PastCall answered = callTo("8", 6000);
    answered.direction = CallDirection::Answered;
    answered.units = 3;
    Desk desk;
    desk.ledger().endCall(desk.running);
    desk.ledger().endCall(desk.measured);
    const QString untouched = desk.all();
    for (int call = 1;; ++call) {
        qint64 row = unwritten;
        int status = Success;
        {
            const Failing failing(call);
            status = desk.ledger().addHistory({measured, answered}, Charge::Measured, &row);
        }
        if (!hasFailed)
            break;
        QCOMPARE(status, int{StorageFailed});
        QCOMPARE(row, unwritten);
        QCOMPARE(desk.all(), untouched);
    }
    qint64 ms = 0;
    qint64 units = 0;
    QCOMPARE(desk.ledger().figure(Total::LastTime, ms), int{Success});
    QCOMPARE(desk.ledger().figure(Total::LastCost, units), int{Success});
    QCOMPARE(ms, qint64{6000});
    QCOMPARE(units, qint64{3});
}

// Nothing can be written: what has ended is written before anything else is, as soon as that is possible.
void TestFailingStatements::whileAnEndIsOwedNothingElseIsWritten()
{
    Desk desk;
    Ledger &ledger = desk.ledger();
    desk.ledger().addUnconnected(callTo("10"));
    const Failing failing(1, true);
    QCOMPARE(ledger.endCall(desk.running), int{StorageFailed});
    QCOMPARE(ledger.endSession(desk.session), int{StorageFailed});
    QCOMPARE(ledger.endCall(desk.running), int{WrongState});
    QCOMPARE(ledger.endSession(desk.session), int{WrongState});
    QCOMPARE(ledger.addBytes(desk.session, 1, 1), int{WrongState});
    qint64 id = unwritten;
    QCOMPARE(ledger.beginCall(callTo("9"), id), int{StorageFailed});
    QCOMPARE(ledger.beginSession("mms", 0, 0, id), int{StorageFailed});
    QCOMPARE(id, unwritten);
    QCOMPARE(ledger.setUnits(desk.measured, 40), int{StorageFailed});
    QCOMPARE(ledger.addHistory({callTo("7", 5000)}), int{StorageFailed});
    QCOMPARE(ledger.reset({Total::AllTime}), int{StorageFailed});
    QCOMPARE(ledger.resetSessions({Total::BytesSent}), int{StorageFailed});
    QCOMPARE(ledger.checkpoint(), int{StorageFailed});
    QCOMPARE(ledger.checkpointSession(), int{StorageFailed});
    QCOMPARE(ledger.addUnconnected(callTo("11")), int{StorageFailed});
    QCOMPARE(warnings.filter(QStringLiteral("The call log failed: disk I/O error")).size(), 2); // the two ends
    failsAt = 0;
    qint64 atFirst = unwritten;
    QCOMPARE(ledger.figure(Total::AllTime, atFirst), int{Success});
    desk.clock->advance(minute);
    QCOMPARE(ledger.endCall(desk.measured), int{Success});
    QCOMPARE(ledger.checkpointSession(), int{Success});
    QVERIFY(!ledger.owesCall() && !ledger.owesSession());
    qint64 after = unwritten;
    QCOMPARE(ledger.figure(Total::AllTime, after), int{Success});
    QCOMPARE(after, atFirst + minute); // of the call that has gone on
}

void TestFailingStatements::amountsBelowZeroBeginNothing()
{
    Desk desk;
    const QString untouched = desk.all();
    qint64 id = unwritten;
    for (const SessionAmounts &below :
         {SessionAmounts{-1, 0, 0}, SessionAmounts{0, -1, 0}, SessionAmounts{0, 0, -1}})
        QCOMPARE(desk.ledger().beginSession("mms", 0, 0, id, below), int{InvalidArgument});
    QCOMPARE(id, unwritten);
    QCOMPARE(desk.all(), untouched);
    QCOMPARE(desk.ledger().beginSession("mms", 0, 0, id, {0, 0, 3}), int{Success});
    SessionAmounts sums;
    QCOMPARE(desk.ledger().sessionTotals(sums), int{Success});
    QCOMPARE(sums.received, qint64{6500 + 3});
}

void TestFailingStatements::anOpeningSaysWhyAndLosesNothing_data()
{
    QTest::addColumn<QString>("directory");
    const auto row = [this](const char *name, const std::function<void(const QString &)> &change) {
        const QString directory = prepared.sibling(QString::fromLatin1(name));
        change(directory);
        QTest::newRow(name) << directory;
    };
    row("a first start", [](const QString &directory) { QDir().mkpath(directory); });
    row("a log that was not closed", [](const QString &directory) {
        const Desk desk;
        copyState(desk.state.path(), directory);
    });
    row("a log that was closed", &putClosedLog);
    const auto change = [](const char *statement) {
        return [statement](const QString &directory) {
            putClosedLog(directory);
            if (!LogFile(directory + QLatin1String("/calllog.db")).run(QString::fromLatin1(statement)))
                QTest::qFail(statement, __FILE__, __LINE__);
        };
    };
    row("a log whose card cannot be read", change("UPDATE kept SET content = x'00' WHERE name = 'card'"));
    row("a log without an account", change("DELETE FROM kept WHERE name = 'charging'"));
    row("a log whose card was kept already",
        change("INSERT INTO kept VALUES ('card-kept-1', x'00'), ('notice', CAST('Told before.' AS BLOB)), "
               "('card', x'00')"
               " ON CONFLICT (name) DO UPDATE SET content = excluded.content"));
    row("a log of the third version", [](const QString &directory) {
        putClosedLog(directory);
        takeBackTo(directory + QLatin1String("/calllog.db"), 3);
    });
    row("a log that has lost a page of its calls", [](const QString &directory) {
        putClosedLog(directory);
        const QString name = directory + QLatin1String("/calllog.db");
        const int page =
            LogFile(name).value(QStringLiteral("SELECT rootpage FROM sqlite_schema WHERE name = 'calls'")).toInt();
        writeFile(name, readFile(name).replace((page - 1) * pageSize, pageSize, QByteArray(pageSize, '\0')));
    });
}

// What the second opening finds is what an opening finds in which nothing fails.
void TestFailingStatements::anOpeningSaysWhyAndLosesNothing()
{
    QFETCH(QString, directory);
    const auto clock = std::make_shared<ManualClock>(2000 * second);
    const auto open = [&](const StateDir &state) { return openLedger(state.path(), clock); };
    const StateDir untouched;
    QVERIFY(copyState(directory, untouched.path()));
    const OpenedLedger expected = open(untouched);
    QVERIFY2(expected.ledger, qPrintable(expected.error));
    const QString content = told(*expected.ledger);

    int refused = 0;
    const int stride =
        qEnvironmentVariableIsSet("KAV_ALL_FAULTS") ? 1 : 5 * sampleStride(3); // odd: many are in pairs
    for (int call = 1;; call += stride) {
        const StateDir state;
        copyState(directory, state.path());
        QString notice;
        {
            const Failing failing(call);
            const OpenedLedger opened = open(state);
            QVERIFY(bool(opened.ledger) == opened.error.isEmpty());
            refused += opened.ledger ? 0 : 1;
            notice = opened.notice;
        }
        if (!hasFailed)
            break;
        const OpenedLedger again = open(state);
        QVERIFY2(again.ledger, qPrintable(again.error));
        QCOMPARE(told(*again.ledger), content);
        QVERIFY2(notice == expected.notice || again.notice == expected.notice, qPrintable(notice));
    }
    QVERIFY(refused > 0);
}

void TestFailingStatements::aLogInMemorySaysWhy()
{
    failsInMemory = true;
    const auto open = [](int call) {
        const Failing failing(call);
        return openLedger({}, std::make_shared<ManualClock>());
    };
    for (int call = 1;; call += sampleStride(11)) {
        const OpenedLedger opened = open(call);
        QVERIFY(bool(opened.ledger) == opened.error.isEmpty());
        if (!hasFailed)
            break;
    }
    const OpenedLedger refused = open(1);
    QVERIFY(!refused.ledger);
    QCOMPARE(refused.error, QStringLiteral("The call log cannot be opened: disk I/O error."));
}

void TestFailingStatements::whatIsMissingOrUnreadableIsAFailure_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("reason");
    const QString missing = QStringLiteral("a row is missing");
    for (const char *counter : {"duration", "sent", "received"})
        QTest::addRow("the total of sessions %s", counter)
            << QStringLiteral("DELETE FROM session_totals WHERE counter = '%1'").arg(QLatin1String(counter))
            << "what the sessions come to" << missing;
    QTest::newRow("the time of dialed calls")
        << QStringLiteral("DELETE FROM totals WHERE counter = 'dialed'") << "a time" << missing;
    QTest::newRow("the cost of dialed calls")
        << QStringLiteral("DELETE FROM costs WHERE counter = 'dialed'") << "a cost" << missing;
    QTest::newRow("the tariff of a running call, for its cost")
        << QStringLiteral("UPDATE calls SET tariff = x'00' WHERE state = 0") << "a cost"
        << QStringLiteral("the tariff of the running call cannot be read");
    QTest::newRow("the tariff of a running call, for a change")
        << QStringLiteral("UPDATE calls SET tariff = x'00' WHERE state = 0") << "a deposit"
        << QStringLiteral("the tariff of the running call cannot be read");
    QTest::newRow("the card") << QStringLiteral("DELETE FROM kept WHERE name = 'card'") << "the card"
                              << QStringLiteral("what is kept of the SIM card and the account cannot be read");
}

void TestFailingStatements::whatIsMissingOrUnreadableIsAFailure()
{
    QFETCH(QString, statement);
    QFETCH(QString, asked);
    QFETCH(QString, reason);
    const auto all = operations();
    const auto operation =
        std::find_if(all.begin(), all.end(), [&](const auto &one) { return asked == QLatin1String(one.first); });
    QVERIFY(operation != all.end());
    Desk desk;
    QVERIFY(LogFile(desk.state.database()).run(statement));
    qint64 answer = unwritten;
    QCOMPARE(operation->second(desk, answer), int{StorageFailed});
    QCOMPARE(answer, unwritten);
    QCOMPARE(warnings, QStringList{QStringLiteral("The call log failed: ") + reason});
}

void TestFailingStatements::aCallWithoutATariffOfItsOwnCostsNothing()
{
    Desk desk;
    QVERIFY(LogFile(desk.state.database())
                .run(QStringLiteral("UPDATE calls SET tariff = NULL WHERE id = %1").arg(desk.running)));
    desk.clock->advance(minute);
    qint64 due = unwritten;
    QCOMPARE(desk.ledger().figure(Total::DialedCost, due), int{Success});
    QCOMPARE(due, qint64{6}); // of the call of the past
    QCOMPARE(desk.ledger().checkpoint(), int{Success});
    QCOMPARE(warnings, QStringList());
}

KAV_TEST_GROUP(TestFailingStatements, QCoreApplication);

#include "tst_failing_statements.moc"
