#include "CallStore.h"

#include "Saturating.h"
#include "StateDirectory.h"
#include "Status.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QVariant>

#include <array>

namespace handset::calllog {

namespace {

Q_LOGGING_CATEGORY(lcCallLog, "kav.handset.calllog")

// SQLite's own sum would turn into a floating-point number beyond 2^63 - 1.
#define KAV_SATURATING_SUM(column)                                                                                \
    column " = CASE WHEN " column " > 9223372036854775807 - :ms THEN 9223372036854775807 ELSE " column " + :ms "  \
           "END"

constexpr auto insertRowSql = "INSERT INTO calls (kind, direction, number, started_ms, duration_ms, state)"
                              " VALUES (:kind, :direction, :number, :started, :duration, :state)";
constexpr auto addTimeSql =
    "UPDATE calls SET state = :state, " KAV_SATURATING_SUM("duration_ms") " WHERE id = :id";
constexpr auto addToTotalsSql =
    "UPDATE totals SET " KAV_SATURATING_SUM("ms") " WHERE counter IN (:own, 'all', 'lifetime', :last)";
constexpr auto setTotalSql = "UPDATE totals SET ms = :ms WHERE counter = :counter";
constexpr auto totalSql = "SELECT ms FROM totals WHERE counter = :counter";

} // namespace

std::unique_ptr<CallStore> CallStore::create(std::unique_ptr<Database> &database,
                                             std::unique_ptr<StateDirectory> &directory)
{
    std::unique_ptr<CallStore> store(new CallStore);
    store->database = std::move(database);
    if (!store->prepareStatements()) {
        database = std::move(store->database);
        return nullptr;
    }
    store->lockedDirectory = std::move(directory);
    return store;
}

CallStore::~CallStore() = default;

bool CallStore::prepareStatements()
{
    return database->prepare(insertStatement, QString::fromLatin1(insertRowSql)) &&
           database->prepare(timeStatement, QString::fromLatin1(addTimeSql)) &&
           database->prepare(totalsStatement, QString::fromLatin1(addToTotalsSql)) &&
           database->prepare(setTotalStatement, QString::fromLatin1(setTotalSql)) &&
           database->prepare(totalStatement, QString::fromLatin1(totalSql));
}

int CallStore::status(bool succeeded) const
{
    if (succeeded)
        return Success;
    qCWarning(lcCallLog, "The call log failed: %s", qUtf8Printable(database->lastError().text()));
    return StorageFailed;
}

bool CallStore::insertRow(const PastCall &call, CallState state)
{
    // A null string would be a NULL.
    const QString number = call.number.isNull() ? QStringLiteral("") : call.number;
    insertStatement.bindValue(QStringLiteral(":kind"), static_cast<int>(call.kind));
    insertStatement.bindValue(QStringLiteral(":direction"), static_cast<int>(call.direction));
    insertStatement.bindValue(QStringLiteral(":number"), number);
    insertStatement.bindValue(QStringLiteral(":started"), call.startWallMs);
    insertStatement.bindValue(QStringLiteral(":duration"), call.durationMs);
    insertStatement.bindValue(QStringLiteral(":state"), static_cast<int>(state));
    return database->run(insertStatement);
}

bool CallStore::addToTotals(Counter own, qint64 ms, bool toLast)
{
    totalsStatement.bindValue(QStringLiteral(":ms"), ms);
    totalsStatement.bindValue(QStringLiteral(":own"), counterKey(own));
    totalsStatement.bindValue(QStringLiteral(":last"), counterKey(toLast ? Counter::Last : own));
    return database->run(totalsStatement);
}

bool CallStore::addTime(const UnwrittenTime &time, CallState state)
{
    timeStatement.bindValue(QStringLiteral(":state"), static_cast<int>(state));
    timeStatement.bindValue(QStringLiteral(":ms"), time.ms);
    timeStatement.bindValue(QStringLiteral(":id"), time.call);
    return database->run(timeStatement) && addToTotals(time.own, time.ms, true);
}

bool CallStore::insertPastCall(const PastCall &call)
{
    const CallState state = call.durationMs > 0 ? CallState::Finished : CallState::NotConnected;
    return insertRow(call, state);
}

bool CallStore::putTotal(Counter counter, qint64 ms)
{
    setTotalStatement.bindValue(QStringLiteral(":ms"), ms);
    setTotalStatement.bindValue(QStringLiteral(":counter"), counterKey(counter));
    return database->run(setTotalStatement);
}

int CallStore::beginCall(const PastCall &call, qint64 &id)
{
    PastCall row = call;
    row.durationMs = 0;
    qint64 inserted = 0;
    const bool done = database->inTransaction([&] {
        if (!insertRow(row, CallState::Running))
            return false;
        inserted = insertStatement.lastInsertId().toLongLong();
        return putTotal(Counter::Last, 0);
    });
    if (done)
        id = inserted;
    return status(done);
}

int CallStore::countTime(const UnwrittenTime &time)
{
    return status(database->inTransaction([&] { return addTime(time, CallState::Running); }));
}

int CallStore::finishCall(const UnwrittenTime &time)
{
    return status(database->inTransaction([&] { return addTime(time, CallState::Finished); }));
}

int CallStore::addUnconnected(const PastCall &call)
{
    PastCall row = call;
    row.durationMs = 0;
    return addHistory({row}, false);
}

int CallStore::addHistory(const QList<PastCall> &calls, bool setLast)
{
    std::array<qint64, counterNames.size()> sums{};
    qint64 last = 0;
    const auto addRows = [&] {
        for (const PastCall &call : calls) {
            if (!insertPastCall(call))
                return false;
            qint64 &sum = sums[static_cast<std::size_t>(ownCounter(call.kind, call.direction))];
            sum = saturatingSum(sum, call.durationMs);
            last = call.durationMs > 0 ? call.durationMs : last;
        }
        return true;
    };
    const auto addSums = [&] {
        for (const Counter own : {Counter::Dialed, Counter::Answered, Counter::Data})
            if (!addToTotals(own, sums[static_cast<std::size_t>(own)], false))
                return false;
        return !setLast || last == 0 || putTotal(Counter::Last, last);
    };
    return status(database->inTransaction([&] { return addRows() && addSums(); }));
}

int CallStore::total(Counter counter, qint64 &ms)
{
    totalStatement.bindValue(QStringLiteral(":counter"), counterKey(counter));
    const bool found = database->run(totalStatement) && totalStatement.next();
    if (found)
        ms = totalStatement.value(0).toLongLong();
    // An unfinished SELECT would keep the write-ahead log from being emptied.
    totalStatement.finish();
    return status(found);
}

int CallStore::reset(std::span<const Counter> counters, const UnwrittenTime *running)
{
    return status(database->inTransaction([&] {
        if (running && !addTime(*running, CallState::Running))
            return false;
        for (const Counter counter : counters)
            if (!putTotal(counter, 0))
                return false;
        return true;
    }));
}

} // namespace handset::calllog
