#include "calllog/Listing.h"

#include "calllog/Saturating.h"
#include "handset/Status.h"

#include <algorithm>

namespace handset::calllog {

namespace {

constexpr auto listCallsSql =
    "SELECT id, kind, direction, number, started_ms, duration_ms, units, late, state FROM calls"
    " WHERE started_ms >= ? AND started_ms < ? ORDER BY id";
constexpr auto newestCallsSql =
    "SELECT id, kind, direction, number, started_ms, duration_ms, units, late, state FROM calls"
    " WHERE id < ? ORDER BY id DESC LIMIT ?";
constexpr auto countCallsSql = "SELECT count(*) FROM calls WHERE id >= ? AND id < ?";
constexpr auto listSessionsSql = "SELECT id, apn, started_ms, duration_ms, sent, received, state FROM sessions"
                                 " WHERE started_ms >= ? AND started_ms < ? ORDER BY id";
constexpr auto stateOfCallSql = "SELECT state FROM calls WHERE id = ?";
// What the totals count of rows that are no more is known, so that the next start does not take them for damage. min()
// keeps the sums integers; a NULL stays one, until the log is read through.
constexpr auto loseTimesSql =
    "UPDATE lost SET value = min(9223372036854775807, value + (SELECT coalesce(sum(min(duration_ms, "
    "4503599627370496)), 0) FROM calls WHERE state <> 0 AND id BETWEEN ?1 AND ?2 AND started_ms >= ?3 AND "
    "started_ms < ?4)) WHERE counter = 'calls'";
constexpr auto loseCostsSql =
    "UPDATE lost SET value = min(9223372036854775807, value + (SELECT coalesce(sum(min(units, 4503599627370496)), "
    "0) FROM calls WHERE state <> 0 AND id BETWEEN ?1 AND ?2 AND started_ms >= ?3 AND started_ms < ?4)) WHERE "
    "counter = 'units'";
constexpr auto deleteCallsSql =
    "DELETE FROM calls WHERE state <> 0 AND id BETWEEN ?1 AND ?2 AND started_ms >= ?3 AND started_ms < ?4";

template <typename Row, typename Read, typename Value>
bool readAll(Database &database, const char *select, qint64 first, Value second, QList<Row> &rows, Read read)
{
    rows.clear();
    if (!database.run(select, first, second))
        return false;
    Statement &row = database.statement(select);
    for (bool more = row.hasRow(); more; more = row.next())
        rows.append(read(row));
    const bool isRight = row.error() == 0 || database.fail();
    row.finish();
    return isRight;
}

ListedCall listedCallAt(const Statement &row)
{
    return {row.number(0),
            {static_cast<CallKind>(row.number(1)), static_cast<CallDirection>(row.number(2)),
             QString::fromUtf8(row.bytes(3)), row.number(4), row.number(5), row.number(6), row.number(7) != 0},
            static_cast<CallState>(row.number(8))};
}

ListedSession listedSessionAt(const Statement &row)
{
    return {row.number(0),
            QString::fromUtf8(row.bytes(1)).toLatin1(),
            row.number(2),
            {row.number(3), row.number(4), row.number(5)},
            static_cast<CallState>(row.number(6))};
}

bool deleteRows(Database &database, qint64 first, qint64 last, const Period &period, qint64 &count)
{
    const auto run = [&](const char *text) { return database.run(text, first, last, period.from, period.until); };
    if (!run(loseTimesSql) || !run(loseCostsSql) || !run(deleteCallsSql))
        return false;
    count = database.changedRows();
    return true;
}

template <typename Value>
int readCalls(Ledger &ledger, const char *select, qint64 first, Value second, QList<ListedCall> &calls)
{
    QList<ListedCall> found;
    const int status = ledger.ask([&](const Standing &now) {
        Database &database = ledger.connection();
        if (!readAll(database, select, first, second, found, listedCallAt))
            return database.status(false);
        for (ListedCall &listed : found)
            for (const RunningCall &running : now.calls)
                if (running.id == listed.id) {
                    listed.call.durationMs = running.ms;
                    listed.call.units = running.units;
                }
        return int{Success};
    });
    if (status == Success)
        calls = found;
    return status;
}

} // namespace

int listCalls(Ledger &ledger, const Period &period, QList<ListedCall> &calls)
{
    return readCalls(ledger, listCallsSql, period.from, period.until, calls);
}

int newestCalls(Ledger &ledger, qint64 before, int most, QList<ListedCall> &calls)
{
    return readCalls(ledger, newestCallsSql, before, most, calls);
}

int countCalls(Ledger &ledger, qint64 first, qint64 before, qint64 &count)
{
    Database &database = ledger.connection();
    const bool isRead = database.runForRow(countCallsSql, first, before);
    if (isRead) {
        Statement &row = database.statement(countCallsSql);
        count = row.number(0);
        row.finish();
    }
    return database.status(isRead);
}

int listSessions(Ledger &ledger, const Period &period, QList<ListedSession> &sessions)
{
    QList<ListedSession> found;
    Database &database = ledger.connection();
    if (!readAll(database, listSessionsSql, period.from, period.until, found, listedSessionAt))
        return database.status(false);
    const auto runs = [](const ListedSession &one) { return one.state == CallState::Running; };
    const auto running = std::find_if(found.begin(), found.end(), runs);
    if (running != found.end()) {
        // Those that run are among the last ones.
        QList<SessionRow> rows;
        const auto most = static_cast<int>(std::min<qsizetype>(found.end() - running, 1000));
        if (const int status = ledger.sessions(most, rows))
            return status;
        for (auto listed = running; listed != found.end(); ++listed)
            for (const SessionRow &row : rows)
                if (row.id == listed->id)
                    listed->amounts = row.amounts;
    }
    sessions = found;
    return Success;
}

int deleteCall(Ledger &ledger, qint64 id)
{
    Database &database = ledger.connection();
    int refused = Success;
    const bool done = database.inTransaction([&] {
        if (!database.run(stateOfCallSql, id))
            return false;
        Statement &row = database.statement(stateOfCallSql);
        if (!row.hasRow())
            refused = InvalidArgument;
        else if (row.number(0) == static_cast<int>(CallState::Running))
            refused = WrongState;
        row.finish();
        qint64 count = 0;
        return refused == Success && deleteRows(database, id, id, {}, count);
    });
    return refused == Success ? database.status(done) : refused;
}

int deleteCalls(Ledger &ledger, const Period &period, qint64 &count)
{
    Database &database = ledger.connection();
    qint64 deleted = 0;
    const bool done = database.inTransaction(
        [&] { return deleteRows(database, 1, std::numeric_limits<qint64>::max(), period, deleted); });
    if (done)
        count = deleted;
    return database.status(done);
}

} // namespace handset::calllog
