#include "CallStore.h"

#include "Saturating.h"
#include "SaturatingSql.h"
#include "StateDirectory.h"
#include "Status.h"

#include <QtCore/QVariant>

#include <algorithm>
#include <array>

namespace handset::calllog {

namespace {

constexpr auto insertRowSql = "INSERT INTO calls (kind, direction, number, started_ms, duration_ms, units, state)"
                              " VALUES (:kind, :direction, :number, :started, :duration, :units, :state)";
constexpr auto addTimeSql = "UPDATE calls SET state = :state, %1, %2 WHERE id = :id";
// These tables are small enough to be walked. The plus signs keep SQLite from looking each key up, for which it would
// first make a table of the keys, every time.
constexpr auto addToTotalsSql =
    "UPDATE totals SET %1 WHERE +counter = :own OR +counter = :last OR +counter = 'all' OR +counter = 'lifetime'";
constexpr auto addToCostsSql = "UPDATE costs SET %1 WHERE +counter = :own OR +counter = :last";
constexpr auto setTotalSql = "UPDATE totals SET ms = :ms WHERE counter = :counter";
constexpr auto totalSql = "SELECT ms FROM totals WHERE counter = :counter";
constexpr auto setCostSql = "UPDATE costs SET units = :units WHERE counter = :counter";
constexpr auto costSql = "SELECT units FROM costs WHERE counter = :counter";
constexpr auto keepSql = "INSERT INTO kept (name, content) VALUES (:name, :content)"
                         " ON CONFLICT (name) DO UPDATE SET content = excluded.content";
constexpr auto keptSql = "SELECT content FROM kept WHERE name = :name";

/// What past calls add to the totals of their own kinds.
class HistorySums
{
public:
    void add(const PastCall &call)
    {
        Sum &sum = sums[index(ownCounter(call.kind, call.direction))];
        sum.ms = saturatingSum(sum.ms, call.durationMs);
        sum.units = saturatingSum(sum.units, call.units);
        if (call.durationMs > 0)
            last = call;
    }
    qint64 ms(Counter own) const { return sums[index(own)].ms; }
    qint64 units(Counter own) const { return sums[index(own)].units; }

    PastCall last; ///< that was connected

private:
    struct Sum {
        qint64 ms = 0;
        qint64 units = 0;
    };

    static std::size_t index(Counter counter) { return static_cast<std::size_t>(counter); }

    std::array<Sum, counterNames.size()> sums;
};

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
    const QString addMs = saturatingAddSql("ms", ":ms");
    const QString addDuration = saturatingAddSql("duration_ms", ":ms");
    const QString addUnits = saturatingAddSql("units", ":units");
    return database->prepare(insertStatement, QString::fromLatin1(insertRowSql)) &&
           database->prepare(timeStatement, QString::fromLatin1(addTimeSql).arg(addDuration, addUnits)) &&
           database->prepare(totalsStatement, QString::fromLatin1(addToTotalsSql).arg(addMs)) &&
           database->prepare(setTotalStatement, QString::fromLatin1(setTotalSql)) &&
           database->prepare(totalStatement, QString::fromLatin1(totalSql)) &&
           database->prepare(costsStatement, QString::fromLatin1(addToCostsSql).arg(addUnits)) &&
           database->prepare(setCostStatement, QString::fromLatin1(setCostSql)) &&
           database->prepare(costStatement, QString::fromLatin1(costSql)) &&
           database->prepare(keepStatement, QString::fromLatin1(keepSql)) &&
           database->prepare(keptStatement, QString::fromLatin1(keptSql));
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
    insertStatement.bindValue(QStringLiteral(":units"), call.units);
    insertStatement.bindValue(QStringLiteral(":state"), static_cast<int>(state));
    return database->run(insertStatement);
}

bool CallStore::addToTotals(Counter own, qint64 ms, bool toLast)
{
    totalsStatement.bindValue(QStringLiteral(":ms"), ms);
    totalsStatement.bindValue(QStringLiteral(":own"), counterKey(own));
    totalsStatement.bindValue(QStringLiteral(":last"), counterKey(toLast ? Counter::Last : own));
    return database->runOn(toLast ? 4 : 3, totalsStatement); // its own, all and lifetime calls, and the last call
}

bool CallStore::addToCosts(Counter own, qint64 units, bool toLast)
{
    if (units == 0)
        return true;
    const QString last = toLast ? costCounterKey(CostCounter::Last) : QStringLiteral("");
    const std::optional<CostCounter> ownCost = ownCostCounter(own);
    costsStatement.bindValue(QStringLiteral(":units"), units);
    costsStatement.bindValue(QStringLiteral(":own"), ownCost ? costCounterKey(*ownCost) : last);
    costsStatement.bindValue(QStringLiteral(":last"), last);
    return database->runOn((ownCost ? 1 : 0) + (toLast ? 1 : 0), costsStatement);
}

bool CallStore::putAll(const KeptValues &values)
{
    return std::all_of(values.begin(), values.end(), [this](const KeptValue &value) { return putKept(value); });
}

void CallStore::bindTime(const UnwrittenTime &time, const Charge &charge, CallState state)
{
    timeStatement.bindValue(QStringLiteral(":state"), static_cast<int>(state));
    timeStatement.bindValue(QStringLiteral(":ms"), time.ms);
    timeStatement.bindValue(QStringLiteral(":units"), charge.units);
    timeStatement.bindValue(QStringLiteral(":id"), time.call);
}

bool CallStore::addSums(const UnwrittenTime &time, const Charge &charge)
{
    return addToTotals(time.own, time.ms, true) && addToCosts(time.own, charge.units, true) && putAll(charge.kept);
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
    return database->runOn(1, setTotalStatement);
}

bool CallStore::putCost(CostCounter counter, qint64 units)
{
    setCostStatement.bindValue(QStringLiteral(":units"), units);
    setCostStatement.bindValue(QStringLiteral(":counter"), costCounterKey(counter));
    return database->runOn(1, setCostStatement);
}

bool CallStore::putKept(const KeptValue &value)
{
    // A null array would be a NULL.
    const QByteArray content = value.content.isNull() ? QByteArray("") : value.content;
    keepStatement.bindValue(QStringLiteral(":name"), value.name);
    keepStatement.bindValue(QStringLiteral(":content"), content);
    return database->run(keepStatement);
}

int CallStore::beginCall(const PastCall &call, qint64 &id)
{
    PastCall row = call;
    row.durationMs = 0;
    row.units = 0;
    qint64 inserted = 0;
    const bool done = database->inTransaction([&] {
        if (!insertRow(row, CallState::Running))
            return false;
        inserted = insertStatement.lastInsertId().toLongLong();
        return putTotal(Counter::Last, 0) && putCost(CostCounter::Last, 0);
    });
    if (done)
        id = inserted;
    return status(done);
}

int CallStore::countTime(const UnwrittenTime &time, const Charge &charge)
{
    bindTime(time, charge, CallState::Running);
    return status(
        database->inTransaction([&] { return database->runOn(1, timeStatement) && addSums(time, charge); }));
}

int CallStore::finishCall(const UnwrittenTime &time, const Charge &charge, RepeatedWrite &write)
{
    bindTime(time, charge, CallState::Finished);
    bool isRowGone = false;
    const bool done = database->inTransaction([&] {
        if (!database->run(timeStatement))
            return false;
        isRowGone = timeStatement.numRowsAffected() == 0;
        return addSums(time, charge);
    });
    if (done && isRowGone)
        Database::warnOfMissingRow("call");
    return database->status(done, write);
}

int CallStore::addUnconnected(const QList<PastCall> &calls, RepeatedWrite &write)
{
    const bool done = database->inTransaction([&] {
        return std::all_of(calls.begin(), calls.end(), [this](PastCall row) {
            row.durationMs = 0;
            row.units = 0;
            return insertRow(row, CallState::NotConnected);
        });
    });
    return database->status(done, write);
}

int CallStore::addHistory(const QList<PastCall> &calls, bool setLast, const KeptValues &values)
{
    HistorySums sums;
    const auto addRows = [&] {
        for (const PastCall &call : calls) {
            if (!insertPastCall(call))
                return false;
            sums.add(call);
        }
        return true;
    };
    const auto addSums = [&] {
        for (const Counter own : {Counter::Dialed, Counter::Answered, Counter::Data})
            if (!addToTotals(own, sums.ms(own), false) || !addToCosts(own, sums.units(own), false))
                return false;
        return true;
    };
    const auto putLast = [&] {
        return !setLast || sums.last.durationMs == 0 ||
               (putTotal(Counter::Last, sums.last.durationMs) && putCost(CostCounter::Last, sums.last.units));
    };
    return status(database->inTransaction([&] { return addRows() && addSums() && putLast() && putAll(values); }));
}

int CallStore::total(Counter counter, qint64 &ms)
{
    totalStatement.bindValue(QStringLiteral(":counter"), counterKey(counter));
    const bool found = database->runForRow(totalStatement);
    if (found)
        ms = totalStatement.value(0).toLongLong();
    // An unfinished SELECT would keep the write-ahead log from being emptied.
    totalStatement.finish();
    return status(found);
}

int CallStore::cost(CostCounter counter, qint64 &units)
{
    costStatement.bindValue(QStringLiteral(":counter"), costCounterKey(counter));
    const bool found = database->runForRow(costStatement);
    if (found)
        units = costStatement.value(0).toLongLong();
    costStatement.finish();
    return status(found);
}

int CallStore::reset(const ResetPlan &plan)
{
    return status(database->inTransaction([&] {
        for (const Counter counter : plan.times)
            if (!putTotal(counter, 0))
                return false;
        for (const CostCounter counter : plan.costs)
            if (!putCost(counter, 0))
                return false;
        return putAll(plan.kept);
    }));
}

int CallStore::keep(const KeptValues &values)
{
    return values.isEmpty() ? Success : status(database->inTransaction([&] { return putAll(values); }));
}

int CallStore::kept(const QString &name, QByteArray &content)
{
    keptStatement.bindValue(QStringLiteral(":name"), name);
    const bool done = database->run(keptStatement);
    const bool found = done && keptStatement.next();
    const QByteArray read = found ? keptStatement.value(0).toByteArray() : QByteArray();
    if (done) // an empty value comes as a null array
        content = found && read.isNull() ? QByteArray("") : read;
    keptStatement.finish();
    return status(done);
}

} // namespace handset::calllog
