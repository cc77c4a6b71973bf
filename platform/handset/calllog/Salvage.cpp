#include "Salvage.h"

#include "Saturating.h"
#include "Schema.h"

#include <QtCore/QVariant>

#include <array>
#include <limits>
#include <optional>

namespace handset::calllog {

namespace {

constexpr auto rowsSql =
    "SELECT id, kind, direction, number, started_ms, duration_ms, state FROM calls ORDER BY id";

using Totals = std::array<qint64, counterNames.size()>;

class Salvager
{
public:
    Salvager(Database &damaged, CallStore &fresh)
        : source(damaged)
        , target(fresh)
    {}

    bool run()
    {
        // From both ends, so that one damaged page in the middle costs no more than its own calls.
        return copyRows(QString::fromLatin1(rowsSql), false) &&
               copyRows(QString::fromLatin1(rowsSql) + QStringLiteral(" DESC"), true) && putTotals();
    }

    qint64 copied() const { return count; }
    bool hasReadTotals() const { return totalsRead; }

private:
    bool copyRows(const QString &select, bool descending);
    bool copyRow(const QSqlQuery &row);
    void countRow(qint64 id, const PastCall &call);
    bool putTotals();
    std::optional<Totals> readTotals();

    Database &source;
    CallStore &target;
    qint64 highest = std::numeric_limits<qint64>::min(); ///< id copied on the way up
    qint64 count = 0;
    bool totalsRead = false;
    qint64 lastConnected = std::numeric_limits<qint64>::min(); ///< id
    Totals counted{};
};

qint64 &totalOf(Totals &totals, Counter counter)
{
    return totals[static_cast<std::size_t>(counter)];
}

bool isPlausible(const QSqlQuery &row)
{
    const auto within = [&](int column, qint64 least, qint64 most) {
        bool isNumber = false;
        const qint64 value = row.value(column).toLongLong(&isNumber);
        return isNumber && value >= least && value <= most;
    };
    constexpr qint64 maximum = std::numeric_limits<qint64>::max();
    return within(1, 0, 1) && within(2, 0, 1) && within(4, std::numeric_limits<qint64>::min(), maximum) &&
           within(5, 0, maximum) && within(6, 0, 3);
}

bool Salvager::copyRows(const QString &select, bool descending)
{
    QSqlQuery rows = source.query();
    rows.exec(select);
    while (rows.next()) { // also ends where the damage begins
        const qint64 id = rows.value(0).toLongLong();
        if (descending ? id <= highest : id < highest)
            break;
        if (isPlausible(rows) && !copyRow(rows))
            return false;
        if (!descending)
            highest = id;
    }
    return true;
}

bool Salvager::copyRow(const QSqlQuery &row)
{
    const PastCall call{static_cast<CallKind>(row.value(1).toInt()),
                        static_cast<CallDirection>(row.value(2).toInt()), row.value(3).toString(),
                        row.value(4).toLongLong(), row.value(5).toLongLong()};
    const qint64 id = row.value(0).toLongLong();
    const auto state = static_cast<CallState>(row.value(6).toInt());
    if (!target.putRow(id, call, static_cast<int>(state)))
        return false;
    if (state != CallState::NotConnected)
        countRow(id, call);
    ++count;
    return true;
}

void Salvager::countRow(qint64 id, const PastCall &call)
{
    for (const Counter counter : {ownCounter(call.kind, call.direction), Counter::All, Counter::Lifetime})
        totalOf(counted, counter) = saturatingSum(totalOf(counted, counter), call.durationMs);
    if (id >= lastConnected) {
        lastConnected = id;
        totalOf(counted, Counter::Last) = call.durationMs;
    }
}

std::optional<Totals> Salvager::readTotals()
{
    Totals totals{};
    for (const CounterName &name : counterNames) {
        const QString select = QStringLiteral("SELECT ms FROM totals WHERE counter = '%1'");
        const std::optional<qint64> ms = source.number(select.arg(QString::fromLatin1(name.key)));
        if (!ms || *ms < 0)
            return std::nullopt;
        totalOf(totals, name.counter) = *ms;
    }
    return totals;
}

bool Salvager::putTotals()
{
    const std::optional<Totals> read = readTotals();
    totalsRead = read.has_value();
    Totals totals = read.value_or(counted);
    for (const CounterName &name : counterNames)
        if (!target.putTotal(name.counter, totalOf(totals, name.counter)))
            return false;
    return true;
}

} // namespace

Salvaged salvage(const QString &file, CallStore &target)
{
    Database source(file, Database::Access::ReadOnly);
    // Without this a database that is shorter than it says is refused as a whole.
    source.run(QStringLiteral("PRAGMA writable_schema = ON"));
    Salvager salvager(source, target);
    const bool written = target.connection().inTransaction([&] { return salvager.run(); });
    return {written, salvager.copied(), salvager.hasReadTotals()};
}

} // namespace handset::calllog
