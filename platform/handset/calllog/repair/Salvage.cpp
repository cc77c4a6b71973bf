#include "Salvage.h"

#include "RowSalvage.h"
#include "SalvageSessions.h"
#include "Saturating.h"
#include "Schema.h"
#include "TablesOnly.h"

#include <QtCore/QVariant>

#include <algorithm>
#include <array>
#include <optional>

namespace handset::calllog {

namespace {

constexpr auto rowsSql = "SELECT id, kind, direction, number, started_ms, duration_ms, state, %1 FROM calls";
constexpr auto putRowSql =
    "INSERT OR IGNORE INTO calls (id, kind, direction, number, started_ms, duration_ms, state, units)"
    " VALUES (?, ?, ?, ?, ?, ?, ?, ?)";
constexpr auto hasUnitsSql = "SELECT count(*) FROM pragma_table_info('calls') WHERE name = 'units'";

enum Column { Id, Kind, Direction, Number, Started, Duration, State, Units };

using Totals = std::array<qint64, counterNames.size()>;
using Costs = std::array<qint64, costCounterNames.size()>;

class CallSalvage final : public RowSalvage
{
public:
    CallSalvage(Database &damaged, CallStore &fresh, const ProgressListener &listener)
        : RowSalvage(damaged, fresh.connection(),
                     {listener, QStringLiteral("Reading the damaged call log"),
                      damaged.number(QStringLiteral("SELECT max(id) FROM calls")).value_or(0)})
        , store(fresh)
    {}

    bool run();
    bool hasReadTotals() const { return totalsRead; }

private:
    bool isPlausible(const QSqlQuery &row) const override;
    void countRow(const QSqlQuery &row) override;
    QString unitsColumn();
    bool fit(Totals &totals);
    bool putTotals();
    std::optional<Totals> readTotals();
    bool putCosts();
    std::optional<Costs> readCosts();
    bool putKept();
    bool readKept(QSqlError &damage);

    CallStore &store;
    bool totalsRead = false;
    qint64 lastConnected = 0; ///< id
    Totals counted{};
    Costs countedCosts{};
};

qint64 &totalOf(Totals &totals, Counter counter)
{
    return totals[static_cast<std::size_t>(counter)];
}

qint64 &costOf(Costs &costs, CostCounter counter)
{
    return costs[static_cast<std::size_t>(counter)];
}

bool CallSalvage::isPlausible(const QSqlQuery &row) const
{
    return isWithin(row, Id, 1, highestId) && isWithin(row, Kind, 0, 1) && isWithin(row, Direction, 0, 1) &&
           isText(row, Number) && isWithin(row, Started, lowestInteger, highestInteger) &&
           isWithin(row, Duration, 0, highestInteger) && isWithin(row, State, 0, 3) &&
           isWithin(row, Units, 0, highestInteger);
}

bool CallSalvage::run()
{
    const QString select = QString::fromLatin1(rowsSql).arg(unitsColumn());
    return !isBlocked() && copy(select, QString::fromLatin1(putRowSql)) && putTotals() && putCosts() && putKept();
}

// A log of the first version has none.
QString CallSalvage::unitsColumn()
{
    const std::optional<qint64> columns = read(QString::fromLatin1(hasUnitsSql));
    return columns == qint64{0} ? QStringLiteral("0") : QStringLiteral("units");
}

void CallSalvage::countRow(const QSqlQuery &row)
{
    if (row.value(State).toInt() == static_cast<int>(CallState::NotConnected))
        return;
    const Counter own = ownCounter(static_cast<CallKind>(row.value(Kind).toInt()),
                                   static_cast<CallDirection>(row.value(Direction).toInt()));
    const qint64 duration = row.value(Duration).toLongLong();
    for (const Counter counter : {own, Counter::All, Counter::Lifetime})
        totalOf(counted, counter) = saturatingSum(totalOf(counted, counter), duration);
    const qint64 units = row.value(Units).toLongLong();
    if (const std::optional<CostCounter> ownCost = ownCostCounter(own))
        costOf(countedCosts, *ownCost) = saturatingSum(costOf(countedCosts, *ownCost), units);
    if (row.value(Id).toLongLong() > lastConnected) {
        lastConnected = row.value(Id).toLongLong();
        totalOf(counted, Counter::Last) = duration;
        costOf(countedCosts, CostCounter::Last) = units;
    }
}

std::optional<Totals> CallSalvage::readTotals()
{
    Totals totals{};
    for (const CounterName &name : counterNames) {
        const QString select = QStringLiteral("SELECT ms FROM totals WHERE counter = '%1'");
        const std::optional<qint64> ms = read(select.arg(QString::fromLatin1(name.key)));
        if (!ms || *ms < 0)
            return std::nullopt;
        totalOf(totals, name.counter) = *ms;
    }
    return totals;
}

// Of a log that lost rows the totals count more than what is left, and no single one more than all of it.
bool CallSalvage::fit(Totals &totals)
{
    const qint64 lifetime = totalOf(totals, Counter::Lifetime);
    const qint64 lost = lifetime - totalOf(counted, Counter::Lifetime);
    const auto isOwn = [](Counter counter) {
        return counter == Counter::Dialed || counter == Counter::Answered || counter == Counter::Data;
    };
    return lost >= 0 && std::all_of(counterNames.begin(), counterNames.end(), [&](const CounterName &name) {
               const qint64 total = totalOf(totals, name.counter);
               const qint64 most =
                   isOwn(name.counter) ? saturatingSum(totalOf(counted, name.counter), lost) : lifetime;
               return total <= most;
           });
}

bool CallSalvage::putTotals()
{
    std::optional<Totals> kept = readTotals();
    totalsRead = kept && fit(*kept);
    Totals totals = totalsRead ? *kept : counted;
    if (isBlocked())
        return false;
    for (const CounterName &name : counterNames)
        if (!store.putTotal(name.counter, totalOf(totals, name.counter)))
            return false;
    return putLost("calls", totalOf(totals, Counter::Lifetime) - totalOf(counted, Counter::Lifetime));
}

std::optional<Costs> CallSalvage::readCosts()
{
    Costs costs{};
    for (const CostCounterName &name : costCounterNames) {
        const QString select = QStringLiteral("SELECT units FROM costs WHERE counter = '%1'");
        const std::optional<qint64> units = read(select.arg(QString::fromLatin1(name.key)));
        if (!units || *units < 0)
            return std::nullopt;
        costOf(costs, name.counter) = *units;
    }
    return costs;
}

bool CallSalvage::putCosts()
{
    Costs costs = readCosts().value_or(countedCosts);
    if (isBlocked())
        return false;
    qint64 lost = 0;
    for (const CostCounterName &name : costCounterNames) {
        const qint64 cost = costOf(costs, name.counter);
        if (!store.putCost(name.counter, cost))
            return false;
        lost = std::max(lost, cost - costOf(countedCosts, name.counter));
    }
    return putLost("units", lost);
}

// Who kept the values looks whether they are whole, and tells of the one that is missing. In an earlier version's log
// one that was never written has no row.
bool CallSalvage::putKept()
{
    const std::optional<qint64> version = read(QStringLiteral("PRAGMA user_version"));
    if (version.value_or(0) >= versionWithAllKept && !target.run(QStringLiteral("DELETE FROM kept")))
        return false;
    QSqlError damage;
    return readKept(damage) && (!damage.isValid() || readKept(damage));
}

bool CallSalvage::readKept(QSqlError &damage)
{
    QSqlQuery rows = source.query();
    rows.exec(QStringLiteral("SELECT name, content FROM kept"));
    while (rows.next()) {
        const QVariant name = rows.value(0);
        const QVariant content = rows.value(1);
        const bool isValue = name.typeId() == QMetaType::QString && content.typeId() == QMetaType::QByteArray;
        if (isValue && !store.putKept({name.toString(), content.toByteArray()}))
            return false;
    }
    damage = rows.lastError();
    note(damage);
    return !isBlocked();
}

// Where the list of tables cannot be read, nothing can. A card may have been there.
Finding beginWithNothing(const Database &source, CallStore &target)
{
    if (!isDamage(source.lastError()))
        return failure(source);
    return target.connection().run(QStringLiteral("DELETE FROM kept")) ? Finding{} : failure(target.connection());
}

} // namespace

Finding salvage(Database &source, CallStore &target, Salvaged &salvaged, const ProgressListener &progress)
{
    if (!leaveOnlyTables(source) && !leaveOnlyTables(source))
        return beginWithNothing(source, target);
    CallSalvage calls(source, target, progress);
    SalvagedSessions sessions;
    const bool written = target.connection().inTransaction([&] {
        if (!calls.run())
            return false;
        sessions = salvageSessions(source, target.connection(), progress);
        return sessions.written;
    });
    for (const Finding &obstacle : {calls.obstacle(), sessions.obstacle})
        if (obstacle.verdict != Verdict::Usable)
            return obstacle;
    salvaged = {calls.copied(), calls.hasReadTotals(), sessions.sessions, sessions.totalsRead};
    return written ? Finding{} : failure(target.connection());
}

} // namespace handset::calllog
