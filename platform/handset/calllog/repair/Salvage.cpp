#include "Salvage.h"

#include "LedgerTables.h"
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

using Totals = std::array<qint64, totalPlaces.size()>; ///< of calls; those of the sessions are not used

class CallSalvage final : public RowSalvage
{
public:
    CallSalvage(Database &damaged, Database &fresh, const ProgressListener &listener)
        : RowSalvage(damaged, fresh,
                     {listener, QStringLiteral("Reading the damaged call log"),
                      damaged.number(QStringLiteral("SELECT max(id) FROM calls")).value_or(0)})
        , tables(fresh)
    {}

    bool run();
    bool hasReadTotals() const { return totalsRead; }

private:
    bool isPlausible(const QSqlQuery &row) const override;
    void countRow(const QSqlQuery &row) override;
    QString unitsColumn();
    bool fit(Totals &totals);
    bool putTotals();
    std::optional<Totals> readTotals(std::span<const TotalPlace> places);
    bool putCosts();
    bool putKept();
    bool readKept(QSqlError &damage);

    LedgerTables tables;
    bool totalsRead = false;
    qint64 lastConnected = 0; ///< id
    Totals counted{};
};

qint64 &totalOf(Totals &totals, Total total)
{
    return totals[static_cast<std::size_t>(total)];
}

void add(qint64 &sum, qint64 amount)
{
    sum = saturatingSum(sum, amount);
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
    const auto kind = static_cast<CallKind>(row.value(Kind).toInt());
    const auto direction = static_cast<CallDirection>(row.value(Direction).toInt());
    const qint64 duration = row.value(Duration).toLongLong();
    for (const Total total : {ownTime(kind, direction), Total::AllTime, Total::LifetimeTime})
        add(totalOf(counted, total), duration);
    const qint64 units = row.value(Units).toLongLong();
    if (const std::optional<Total> own = ownCost(kind, direction))
        add(totalOf(counted, *own), units);
    if (row.value(Id).toLongLong() > lastConnected) {
        lastConnected = row.value(Id).toLongLong();
        totalOf(counted, Total::LastTime) = duration;
        totalOf(counted, Total::LastCost) = units;
    }
}

std::optional<Totals> CallSalvage::readTotals(std::span<const TotalPlace> places)
{
    Totals totals{};
    for (const TotalPlace &place : places) {
        const QString select =
            QStringLiteral("SELECT %1 FROM %2 WHERE counter = '%3'")
                .arg(QLatin1String(place.column), QLatin1String(place.table), QLatin1String(place.key));
        const std::optional<qint64> value = read(select);
        if (!value || *value < 0)
            return std::nullopt;
        totalOf(totals, place.total) = *value;
    }
    return totals;
}

// Of a log that lost rows the totals count more than what is left, and no single one more than all of it.
bool CallSalvage::fit(Totals &totals)
{
    const qint64 lifetime = totalOf(totals, Total::LifetimeTime);
    const qint64 lost = lifetime - totalOf(counted, Total::LifetimeTime);
    const auto isOwn = [](Total total) {
        return total == Total::DialedTime || total == Total::AnsweredTime || total == Total::DataTime;
    };
    return lost >= 0 && std::all_of(timePlaces.begin(), timePlaces.end(), [&](const TotalPlace &place) {
               const qint64 most =
                   isOwn(place.total) ? saturatingSum(totalOf(counted, place.total), lost) : lifetime;
               return totalOf(totals, place.total) <= most;
           });
}

bool CallSalvage::putTotals()
{
    std::optional<Totals> kept = readTotals(timePlaces);
    totalsRead = kept && fit(*kept);
    Totals totals = totalsRead ? *kept : counted;
    if (isBlocked())
        return false;
    for (const TotalPlace &place : timePlaces)
        if (!tables.put(place.total, totalOf(totals, place.total)))
            return false;
    return putLost("calls", totalOf(totals, Total::LifetimeTime) - totalOf(counted, Total::LifetimeTime));
}

bool CallSalvage::putCosts()
{
    Totals costs = readTotals(costPlaces).value_or(counted);
    if (isBlocked())
        return false;
    qint64 lost = 0;
    for (const TotalPlace &place : costPlaces) {
        const qint64 cost = totalOf(costs, place.total);
        if (!tables.put(place.total, cost))
            return false;
        lost = std::max(lost, cost - totalOf(counted, place.total));
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
        if (isValue && !tables.put({name.toString(), content.toByteArray()}))
            return false;
    }
    damage = rows.lastError();
    note(damage);
    return !isBlocked();
}

// Where the list of tables cannot be read, nothing can. A card may have been there.
Finding beginWithNothing(const Database &source, Database &target)
{
    if (!isDamage(source.lastError()))
        return failure(source);
    return target.run(QStringLiteral("DELETE FROM kept")) ? Finding{} : failure(target);
}

} // namespace

Finding salvage(Database &source, Database &target, Salvaged &salvaged, const ProgressListener &progress)
{
    if (!leaveOnlyTables(source) && !leaveOnlyTables(source))
        return beginWithNothing(source, target);
    CallSalvage calls(source, target, progress);
    SalvagedSessions sessions;
    const bool written = target.inTransaction([&] {
        if (!calls.run())
            return false;
        sessions = salvageSessions(source, target, progress);
        return sessions.written;
    });
    for (const Finding &obstacle : {calls.obstacle(), sessions.obstacle})
        if (obstacle.verdict != Verdict::Usable)
            return obstacle;
    salvaged = {calls.copied(), calls.hasReadTotals(), sessions.sessions, sessions.totalsRead};
    return written ? Finding{} : failure(target);
}

} // namespace handset::calllog
