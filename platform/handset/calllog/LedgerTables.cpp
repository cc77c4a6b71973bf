#include "calllog/LedgerTables.h"

#include "calllog/Saturating.h"

#include <algorithm>

namespace handset::calllog {

namespace {

constexpr auto insertCallSql = "INSERT INTO calls (kind, direction, number, started_ms, duration_ms, units, state,"
                               " boot, written_ms, recorded_ms, most_ms, tariff, charge, is_last, late)"
                               " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
constexpr auto updateCallSql = "UPDATE calls SET state = ?, duration_ms = ?, units = ?, boot = ?, written_ms = ?,"
                               " recorded_ms = ?, most_ms = ?, tariff = ?, charge = ?, is_last = ? WHERE id = ?";
constexpr auto standingSql =
    "SELECT (SELECT content FROM kept WHERE name = 'card'), (SELECT content FROM kept WHERE name = 'charging'),"
    " id, kind, direction, number, started_ms, duration_ms, units, boot, written_ms, recorded_ms, most_ms,"
    " tariff, charge, is_last, late FROM (SELECT 1) LEFT JOIN calls ON state = 0";
constexpr auto closeCallsSql =
    "UPDATE calls SET state = 3, boot = NULL, written_ms = NULL, recorded_ms = NULL, most_ms = NULL,"
    " tariff = NULL, charge = NULL, is_last = NULL WHERE state = 0";
// One that is over is the same where it still went on when that one began, or began with it: an earlier one to the same
// number did neither.
constexpr auto countedCallsSql =
    "SELECT sum(min(duration_ms, 9007199254740991)), sum(min(units, 9007199254740991)) FROM calls"
    " WHERE started_ms >= ? AND kind = ? AND direction = ? AND number = ?"
    " AND (state = 3 OR (state = 1 AND (started_ms + min(duration_ms, 9007199254740991) > ?5"
    " OR abs(started_ms - ?5) < 2000)))";
constexpr auto closeSessionsSql =
    "UPDATE sessions SET state = 3, boot = NULL, written_ms = NULL, recorded_ms = NULL,"
    " sent_per_s = NULL, received_per_s = NULL WHERE state = 0";

constexpr auto insertSessionSql =
    "INSERT INTO sessions (apn, started_ms, duration_ms, sent, received, state, boot, written_ms, recorded_ms,"
    " sent_per_s, received_per_s) VALUES (?, ?, ?, ?, ?, 0, ?, ?, ?, ?, ?)";
constexpr auto countedSessionsSql =
    "SELECT sum(min(duration_ms, 9007199254740991)), sum(min(sent, 9007199254740991)),"
    " sum(min(received, 9007199254740991)) FROM sessions WHERE started_ms >= ? AND apn = ?"
    " AND (state = 3 OR (state = 1 AND started_ms + min(duration_ms, 9007199254740991) > ?))";
constexpr auto updateSessionSql =
    "UPDATE sessions SET state = ?, duration_ms = ?, sent = ?, received = ?, boot = ?, written_ms = ?,"
    " recorded_ms = ?, sent_per_s = ?, received_per_s = ? WHERE id = ?";
#define KAV_SESSION_COLUMNS                                                                                       \
    "id, apn, duration_ms, sent, received, state, boot, written_ms, recorded_ms, sent_per_s, received_per_s"
constexpr auto runningSessionSql = "SELECT " KAV_SESSION_COLUMNS " FROM sessions WHERE state = 0";
constexpr auto recentSql = "SELECT " KAV_SESSION_COLUMNS " FROM sessions ORDER BY id DESC LIMIT ?";
constexpr auto sessionTotalsSql = "SELECT (SELECT value FROM session_totals WHERE counter = 'duration'),"
                                  " (SELECT value FROM session_totals WHERE counter = 'sent'),"
                                  " (SELECT value FROM session_totals WHERE counter = 'received'),"
                                  " " KAV_SESSION_COLUMNS " FROM (SELECT 1) LEFT JOIN sessions ON state = 0";
#undef KAV_SESSION_COLUMNS

// min() keeps the sum an integer: beyond 2^63 - 1 SQLite's own turns into a floating-point number, which is the greater.
// These tables are small enough to be walked. The plus signs keep SQLite from looking each key up, for which it would
// first make a table of the keys, every time.
constexpr auto addTimesSql = "UPDATE totals SET ms = min(9223372036854775807, ms + ?)"
                             " WHERE +counter = ? OR +counter = ? OR +counter = 'all' OR +counter = 'lifetime'";
constexpr auto addCostsSql = "UPDATE costs SET units = min(9223372036854775807, units + ?)"
                             " WHERE +counter = ? OR +counter = ?";
constexpr auto endedCallSql =
    "SELECT kind, direction, units, NOT EXISTS (SELECT 1 FROM calls AS later WHERE later.id"
    " > calls.id AND later.state <> 2) FROM calls WHERE id = ? AND state IN (1, 3)";
constexpr auto putUnitsSql = "UPDATE calls SET units = ? WHERE id = ?";
constexpr auto addSessionsSql =
    "UPDATE session_totals SET value = min(9223372036854775807, value + CASE counter WHEN 'duration' THEN ?"
    " WHEN 'sent' THEN ? ELSE ? END)";
constexpr auto totalTimeSql =
    "SELECT ms, kind, direction, duration_ms, boot, written_ms, recorded_ms, most_ms, is_last, id FROM totals"
    " LEFT JOIN calls ON state = 0 WHERE counter = ?";
constexpr auto totalCostSql =
    "SELECT costs.units, kind, direction, duration_ms, boot, written_ms, recorded_ms, most_ms, "
    "is_last, id, calls.units, tariff,"
    " charge FROM costs LEFT JOIN calls ON state = 0 WHERE counter = ?";
constexpr auto putTimeSql = "UPDATE totals SET ms = ? WHERE counter = ?";
constexpr auto putCostSql = "UPDATE costs SET units = ? WHERE counter = ?";
constexpr auto putSessionsSql = "UPDATE session_totals SET value = ? WHERE counter = ?";
constexpr auto keptSql = "SELECT content FROM kept WHERE name = ?";
constexpr auto putKeptSql = "INSERT INTO kept (name, content) VALUES (?, ?)"
                            " ON CONFLICT (name) DO UPDATE SET content = excluded.content";

constexpr std::optional<qint64> nothing;

std::optional<qint64> numberOrNothing(const Statement &row, int column)
{
    return row.isNull(column) ? nothing : row.number(column);
}

// `column` has the boot, the next two the readings of its clock.
Written writtenAt(const Statement &row, int column)
{
    if (row.isNull(column) || row.isNull(column + 1))
        return {};
    return {Moment{row.number(column + 1), row.bytes(column)}, row.number(column + 2)};
}

// As they stand in a row.
QString bootOf(const Written &written)
{
    return QString::fromLatin1(written.until->boot);
}

// A row that an earlier version has left runs alone.
bool isLastAt(const Statement &row, int column)
{
    return row.isNull(column) || row.number(column) != 0;
}

SessionRow sessionAt(const Statement &row, int column)
{
    return {row.number(column),
            QString::fromUtf8(row.bytes(column + 1)).toLatin1(),
            {row.number(column + 2), row.number(column + 3), row.number(column + 4)},
            !row.isNull(column) && row.number(column + 5) == static_cast<int>(CallState::Running),
            writtenAt(row, column + 6),
            row.number(column + 9),
            row.number(column + 10)};
}

bool countsIn(Total total, const RunningCall &call)
{
    if (total == Total::LastTime || total == Total::LastCost)
        return call.isLast;
    return total == Total::AllTime || total == Total::LifetimeTime ||
           total == ownTime(call.kind, call.direction) || total == ownCost(call.kind, call.direction);
}

SessionAmounts sum(const SessionAmounts &a, const SessionAmounts &b)
{
    return {saturatingSum(a.ms, b.ms), saturatingSum(a.sent, b.sent), saturatingSum(a.received, b.received)};
}

} // namespace

const Moment &Moments::of(qint64 id) const
{
    for (const auto &[row, end] : ends)
        if (row == id)
            return end;
    return now;
}

qint64 Written::passedUntil(const Moment &now) const
{
    if (!until || until->boot != now.boot)
        return 0;
    return elapsed(until->ms, now.reachMs ? std::min(now.ms, saturatingSum(recordedMs, *now.reachMs)) : now.ms);
}

void Written::goOnUntil(const Moment &now)
{
    if (!until)
        until = now;
    else
        until->ms += passedUntil(now);
    if (!now.reachMs)
        recordedMs = until->ms;
}

qint64 RunningCall::passedUntil(const Moment &now) const
{
    const qint64 passed = written.passedUntil(now);
    return mostMs ? std::min(passed, elapsed(ms, *mostMs)) : passed;
}

quint32 RunningCall::dueAfter(qint64 more) const
{
    if (charge == Charge::Measured)
        return 0;
    const quint32 cost = tariff.units(charging::CallLeg{saturatingSum(ms, more), 0});
    return cost - std::min(cost, units);
}

void RunningCall::advance(const Moment &to, charging::ChargingState &state)
{
    newMs = passedUntil(to);
    newUnits = dueAfter(newMs);
    ms = saturatingSum(ms, newMs);
    units += newUnits;
    written.goOnUntil(to);
    state.charge(newUnits);
}

SessionAmounts SessionRow::amountsAt(const Moment &now) const
{
    if (!isRunning)
        return amounts;
    const qint64 all = saturatingSum(amounts.ms, written.passedUntil(now));
    return {all, std::max(amounts.sent, saturatingAmount(static_cast<quint32>(sentPerSecond), all)),
            std::max(amounts.received, saturatingAmount(static_cast<quint32>(receivedPerSecond), all))};
}

bool LedgerTables::readState(charging::ChargingState &state, const QByteArray &card, const QByteArray &charging)
{
    if (card != lastCard || card.isNull()) {
        lastState.card = newState.card;
        lastCard = charging::readCard(card, lastState) ? card : QByteArray();
    }
    if (charging != lastCharging || charging.isNull()) {
        charging::ChargingState fresh = newState;
        fresh.card = lastState.card;
        lastState = fresh;
        lastCharging = charging::readCharging(charging, lastState) ? charging : QByteArray();
    }
    if (lastCard.isNull() || lastCharging.isNull())
        return database.fail(QStringLiteral("what is kept of the SIM card and the account cannot be read"));
    state = lastState;
    return true;
}

// None in the row that an earlier version has left.
bool LedgerTables::readTariff(const Statement &row, int column, RunningCall &call)
{
    return row.isNull(column) || charging::readTariff(row.bytes(column), call.tariff) ||
           database.fail(QStringLiteral("the tariff of the running call cannot be read"));
}

bool LedgerTables::read(Standing &standing)
{
    if (!database.runForRow(standingSql))
        return false;
    Statement &row = database.statement(standingSql);
    bool isRight = readState(standing.state, row.bytes(0), row.bytes(1));
    standing.calls.clear();
    for (bool more = !row.isNull(2); isRight && more; more = row.next()) {
        RunningCall call{row.number(2),
                         static_cast<CallKind>(row.number(3)),
                         static_cast<CallDirection>(row.number(4)),
                         QString::fromUtf8(row.bytes(5)),
                         row.number(6),
                         row.number(7),
                         static_cast<quint32>(row.number(8)),
                         writtenAt(row, 9),
                         numberOrNothing(row, 12),
                         {},
                         static_cast<Charge>(row.number(14)),
                         isLastAt(row, 15),
                         row.number(16) != 0};
        isRight = readTariff(row, 13, call);
        standing.calls.append(call);
    }
    isRight = isRight && (row.error() == 0 || database.fail());
    row.finish();
    std::sort(standing.calls.begin(), standing.calls.end(),
              [](const RunningCall &a, const RunningCall &b) { return a.id < b.id; });
    return isRight;
}

bool LedgerTables::putState(const charging::ChargingState &before, const charging::ChargingState &after)
{
    if (!isSameCard(before.card, after.card)) {
        const QByteArray card = charging::cardRecord(after.card);
        if (!database.run(putKeptSql, keptCardName, card))
            return false;
        lastCard = card;
        lastState.card = after.card;
    }
    if (!isSameCharging(before, after)) {
        const QByteArray charging = charging::chargingRecord(after);
        if (!database.run(putKeptSql, keptChargingName, charging))
            return false;
        lastCharging = charging;
        const charging::SimCard card = lastState.card;
        lastState = after;
        lastState.card = card;
    }
    return true;
}

bool LedgerTables::insert(const PastCall &call, CallState state)
{
    return database.run(insertCallSql, static_cast<int>(call.kind), static_cast<int>(call.direction), call.number,
                        call.startWallMs, call.durationMs, call.units, static_cast<int>(state), nothing, nothing,
                        nothing, nothing, nothing, nothing, nothing, int{call.isLate});
}

bool LedgerTables::insert(RunningCall &call)
{
    const bool done =
        database.run(insertCallSql, static_cast<int>(call.kind), static_cast<int>(call.direction), call.number,
                     call.startWallMs, call.ms, qint64{call.units}, static_cast<int>(CallState::Running),
                     bootOf(call.written), call.written.until->ms, call.written.recordedMs, call.mostMs,
                     tariffRecord(call.tariff), static_cast<int>(call.charge), int{call.isLast}, int{call.isLate});
    if (done)
        call.id = database.lastInsertId();
    return done;
}

bool LedgerTables::update(const RunningCall &call, CallState state)
{
    const int number = static_cast<int>(state);
    return state == CallState::Running
               ? database.runOn(1, updateCallSql, number, call.ms, qint64{call.units}, bootOf(call.written),
                                call.written.until->ms, call.written.recordedMs, call.mostMs,
                                tariffRecord(call.tariff), static_cast<int>(call.charge), int{call.isLast},
                                call.id)
               : database.runOn(1, updateCallSql, number, call.ms, qint64{call.units}, nothing, nothing, nothing,
                                nothing, nothing, nothing, nothing, call.id);
}

bool LedgerTables::raiseUnits(qint64 id, qint64 units, bool &isFound)
{
    Statement &row = database.statement(endedCallSql);
    if (!database.run(endedCallSql, id))
        return false;
    isFound = row.hasRow();
    if (!isFound)
        return true;
    const auto kind = static_cast<CallKind>(row.number(0));
    const auto direction = static_cast<CallDirection>(row.number(1));
    const qint64 more = units - row.number(2);
    const bool isLast = row.number(3) != 0;
    row.finish();
    return more <= 0 || (database.runOn(1, putUnitsSql, units, id) && addCost(kind, direction, more, isLast));
}

bool LedgerTables::closeInterrupted()
{
    return database.run(closeCallsSql) && database.run(closeSessionsSql);
}

bool LedgerTables::insert(SessionRow &session, qint64 startWallMs)
{
    const auto &[ms, sent, received] = session.amounts;
    const bool done = database.run(insertSessionSql, QString::fromLatin1(session.apn), startWallMs, ms, sent,
                                   received, bootOf(session.written), session.written.until->ms,
                                   session.written.recordedMs, session.sentPerSecond, session.receivedPerSecond);
    if (done)
        session.id = database.lastInsertId();
    return done;
}

bool LedgerTables::update(const SessionRow &session, CallState state)
{
    const int number = static_cast<int>(state);
    const auto &[ms, sent, received] = session.amounts;
    return state == CallState::Running
               ? database.runOn(1, updateSessionSql, number, ms, sent, received, bootOf(session.written),
                                session.written.until->ms, session.written.recordedMs, session.sentPerSecond,
                                session.receivedPerSecond, session.id)
               : database.runOn(1, updateSessionSql, number, ms, sent, received, nothing, nothing, nothing,
                                nothing, nothing, session.id);
}

bool LedgerTables::running(QList<SessionRow> &sessions)
{
    return list(sessions, runningSessionSql);
}

bool LedgerTables::recent(int most, QList<SessionRow> &sessions)
{
    return list(sessions, recentSql, most);
}

template <typename... Values>
bool LedgerTables::list(QList<SessionRow> &sessions, const char *select, const Values &...values)
{
    if (!database.run(select, values...))
        return false;
    QList<SessionRow> read;
    Statement &row = database.statement(select);
    for (bool more = row.hasRow(); more; more = row.next())
        read.append(sessionAt(row, 0));
    const bool done = row.error() == 0 || database.fail();
    row.finish();
    if (done)
        sessions = read;
    return done;
}

bool LedgerTables::counted(const PastCall &call, qint64 sinceWallMs, Counted &counted)
{
    if (!database.runForRow(countedCallsSql, sinceWallMs, static_cast<int>(call.kind),
                            static_cast<int>(call.direction), call.number, call.startWallMs))
        return false;
    Statement &row = database.statement(countedCallsSql);
    counted = {row.number(0), row.number(1)};
    row.finish();
    return true;
}

bool LedgerTables::counted(const QByteArray &apn, qint64 sinceWallMs, qint64 startWallMs, SessionAmounts &amounts)
{
    if (!database.runForRow(countedSessionsSql, sinceWallMs, QString::fromLatin1(apn), startWallMs))
        return false;
    Statement &row = database.statement(countedSessionsSql);
    amounts = {row.number(0), row.number(1), row.number(2)};
    row.finish();
    return true;
}

bool LedgerTables::addTime(CallKind kind, CallDirection direction, qint64 ms, bool isLast)
{
    const char *const own = placeOf(ownTime(kind, direction)).key;
    const char *const last = isLast ? placeOf(Total::LastTime).key : own;
    return database.runOn(isLast ? 4 : 3, addTimesSql, ms, own, last);
}

bool LedgerTables::addCost(CallKind kind, CallDirection direction, qint64 units, bool isLast)
{
    if (units == 0)
        return true;
    const std::optional<Total> own = ownCost(kind, direction);
    const char *const last = isLast ? placeOf(Total::LastCost).key : "";
    return database.runOn((own ? 1 : 0) + (isLast ? 1 : 0), addCostsSql, units, own ? placeOf(*own).key : last,
                          last);
}

bool LedgerTables::addToSessions(const SessionAmounts &more)
{
    return database.runOn(static_cast<int>(sessionPlaces.size()), addSessionsSql, more.ms, more.sent,
                          more.received);
}

// `row` is that of totalTimeSql or totalCostSql, and has a running call.
bool LedgerTables::addRunning(const Statement &row, Total total, const Moments &moments, qint64 &value)
{
    RunningCall call;
    call.kind = static_cast<CallKind>(row.number(1));
    call.direction = static_cast<CallDirection>(row.number(2));
    call.isLast = isLastAt(row, 8);
    if (!countsIn(total, call))
        return true;
    call.ms = row.number(3);
    call.written = writtenAt(row, 4);
    call.mostMs = numberOrNothing(row, 7);
    const qint64 passed = call.passedUntil(moments.of(row.number(9)));
    if (total < Total::LastCost) {
        value = saturatingSum(value, passed);
        return true;
    }
    call.units = static_cast<quint32>(row.number(10));
    call.charge = static_cast<Charge>(row.number(12));
    if (!readTariff(row, 11, call))
        return false;
    value = saturatingSum(value, call.dueAfter(passed));
    return true;
}

bool LedgerTables::totalAt(Total total, const Moments &moments, qint64 &value)
{
    const char *const select = total < Total::LastCost ? totalTimeSql : totalCostSql;
    if (!database.runForRow(select, placeOf(total).key))
        return false;
    Statement &row = database.statement(select);
    qint64 read = row.number(0);
    bool isRight = true;
    for (bool more = !row.isNull(1); isRight && more; more = row.next())
        isRight = addRunning(row, total, moments, read);
    isRight = isRight && (row.error() == 0 || database.fail());
    row.finish();
    if (isRight)
        value = read;
    return isRight;
}

bool LedgerTables::sessionTotalsAt(const Moments &moments, SessionAmounts &amounts)
{
    if (!database.runForRow(sessionTotalsSql))
        return false;
    Statement &row = database.statement(sessionTotalsSql);
    const bool isWhole = !row.isNull(0) && !row.isNull(1) && !row.isNull(2);
    SessionAmounts read{row.number(0), row.number(1), row.number(2)};
    for (bool more = !row.isNull(3); more; more = row.next()) {
        const SessionRow session = sessionAt(row, 3);
        const SessionAmounts all = session.amountsAt(moments.of(session.id));
        const SessionAmounts &written = session.amounts;
        read = sum(read, {all.ms - written.ms, all.sent - written.sent, all.received - written.received});
    }
    const bool isRight = (row.error() == 0 || database.fail()) && (isWhole || database.missesRow());
    row.finish();
    if (isRight)
        amounts = read;
    return isRight;
}

bool LedgerTables::put(Total total, qint64 value)
{
    const TotalPlace &place = placeOf(total);
    const char *const update = total < Total::LastCost      ? putTimeSql
                               : total < Total::SessionTime ? putCostSql
                                                            : putSessionsSql;
    return database.runOn(1, update, value, place.key);
}

bool LedgerTables::kept(const QString &name, QByteArray &content)
{
    Statement &row = database.statement(keptSql);
    const bool done = database.run(keptSql, name);
    if (done)
        content = row.hasRow() ? row.bytes(0) : QByteArray();
    row.finish();
    return done;
}

bool LedgerTables::put(const QString &name, const QByteArray &content)
{
    return database.run(putKeptSql, name, content);
}

} // namespace handset::calllog
