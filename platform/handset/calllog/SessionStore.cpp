#include "SessionStore.h"

#include "SaturatingSql.h"

#include <QtCore/QVariant>

#include <algorithm>

namespace handset::calllog {

namespace {

constexpr auto insertSql = "INSERT INTO sessions (apn, started_ms, duration_ms, sent, received, state)"
                           " VALUES (:apn, :started, 0, 0, 0, :state)";
constexpr auto addSql = "UPDATE sessions SET state = :state, %1, %2, %3 WHERE id = :id";
constexpr auto recentSql =
    "SELECT id, apn, duration_ms, sent, received FROM sessions ORDER BY id DESC LIMIT :most";
constexpr auto addTotalSql = "UPDATE session_totals SET %1 WHERE counter = :counter";
constexpr auto setTotalSql = "UPDATE session_totals SET value = :value WHERE counter = :counter";
constexpr auto totalSql = "SELECT value FROM session_totals WHERE counter = :counter";

} // namespace

SessionStore::SessionStore(Database &connection)
    : database(connection)
    , usable(prepareStatements())
{}

bool SessionStore::prepareStatements()
{
    const QString add =
        QString::fromLatin1(addSql).arg(saturatingAddSql("duration_ms", ":ms"), saturatingAddSql("sent", ":sent"),
                                        saturatingAddSql("received", ":received"));
    const QString addTotal = QString::fromLatin1(addTotalSql).arg(saturatingAddSql("value", ":added"));
    return database.prepare(insertStatement, QString::fromLatin1(insertSql)) &&
           database.prepare(addStatement, add) &&
           database.prepare(recentStatement, QString::fromLatin1(recentSql)) &&
           database.prepare(addTotalStatement, addTotal) &&
           database.prepare(setTotalStatement, QString::fromLatin1(setTotalSql)) &&
           database.prepare(totalStatement, QString::fromLatin1(totalSql));
}

int SessionStore::begin(const QByteArray &apn, qint64 startWallMs, qint64 &id)
{
    insertStatement.bindValue(QStringLiteral(":apn"), QString::fromLatin1(apn));
    insertStatement.bindValue(QStringLiteral(":started"), startWallMs);
    insertStatement.bindValue(QStringLiteral(":state"), static_cast<int>(CallState::Running));
    const bool done = database.inTransaction([&] { return database.run(insertStatement); });
    if (done)
        id = insertStatement.lastInsertId().toLongLong();
    return status(done);
}

bool SessionStore::addToTotals(const SessionAmounts &amounts)
{
    return std::all_of(sessionCounters.begin(), sessionCounters.end(), [&](const SessionCounterName &name) {
        addTotalStatement.bindValue(QStringLiteral(":added"), amounts.*name.amount);
        addTotalStatement.bindValue(QStringLiteral(":counter"), QString::fromLatin1(name.key));
        return database.runOn(1, addTotalStatement);
    });
}

void SessionStore::bindMore(const UnwrittenAmounts &more, CallState state)
{
    addStatement.bindValue(QStringLiteral(":state"), static_cast<int>(state));
    addStatement.bindValue(QStringLiteral(":ms"), more.amounts.ms);
    addStatement.bindValue(QStringLiteral(":sent"), more.amounts.sent);
    addStatement.bindValue(QStringLiteral(":received"), more.amounts.received);
    addStatement.bindValue(QStringLiteral(":id"), more.session);
}

bool SessionStore::addToRunning(const UnwrittenAmounts &more)
{
    bindMore(more, CallState::Running);
    return database.runOn(1, addStatement) && addToTotals(more.amounts);
}

int SessionStore::count(const UnwrittenAmounts &more)
{
    return status(database.inTransaction([&] { return addToRunning(more); }));
}

int SessionStore::finish(const UnwrittenAmounts &more, RepeatedWrite &write)
{
    bindMore(more, CallState::Finished);
    bool isRowGone = false;
    const bool done = database.inTransaction([&] {
        if (!database.run(addStatement))
            return false;
        isRowGone = addStatement.numRowsAffected() == 0;
        return addToTotals(more.amounts);
    });
    if (done && isRowGone)
        Database::warnOfMissingRow("packet-data session");
    return database.status(done, write);
}

int SessionStore::recent(int most, QList<StoredSession> &sessions)
{
    QList<StoredSession> found;
    recentStatement.bindValue(QStringLiteral(":most"), most);
    bool done = database.run(recentStatement);
    while (done && recentStatement.next())
        found.append({recentStatement.value(0).toLongLong(),
                      recentStatement.value(1).toString().toLatin1(),
                      {recentStatement.value(2).toLongLong(), recentStatement.value(3).toLongLong(),
                       recentStatement.value(4).toLongLong()}});
    done = done && !recentStatement.lastError().isValid();
    // An unfinished SELECT would keep the write-ahead log from being emptied.
    recentStatement.finish();
    if (done)
        sessions = found;
    return status(done);
}

bool SessionStore::total(SessionCounter counter, qint64 &value)
{
    totalStatement.bindValue(QStringLiteral(":counter"), sessionCounterKey(counter));
    const bool found = database.runForRow(totalStatement);
    if (found)
        value = totalStatement.value(0).toLongLong();
    totalStatement.finish();
    return found;
}

int SessionStore::totals(SessionAmounts &amounts)
{
    SessionAmounts read;
    const bool done = std::all_of(sessionCounters.begin(), sessionCounters.end(),
                                  [&](const auto &name) { return total(name.counter, read.*name.amount); });
    if (done)
        amounts = read;
    return status(done);
}

bool SessionStore::putTotal(SessionCounter counter, qint64 value)
{
    setTotalStatement.bindValue(QStringLiteral(":value"), value);
    setTotalStatement.bindValue(QStringLiteral(":counter"), sessionCounterKey(counter));
    return database.runOn(1, setTotalStatement);
}

int SessionStore::reset(std::initializer_list<SessionCounter> counters, const UnwrittenAmounts *running)
{
    return status(database.inTransaction([&] {
        return (!running || addToRunning(*running)) &&
               std::all_of(counters.begin(), counters.end(),
                           [&](SessionCounter counter) { return putTotal(counter, 0); });
    }));
}

} // namespace handset::calllog
