#include "Salvage.h"

#include "FileHeader.h"
#include "Saturating.h"
#include "Schema.h"

#include <QtCore/QFile>
#include <QtCore/QVariant>

#include <array>
#include <limits>
#include <optional>

namespace handset::calllog {

namespace {

constexpr auto rowsSql =
    "SELECT id, kind, direction, number, started_ms, duration_ms, state, %1 FROM calls ORDER BY id";
constexpr auto putRowSql =
    "INSERT OR IGNORE INTO calls (id, kind, direction, number, started_ms, duration_ms, state, units)"
    " VALUES (?, ?, ?, ?, ?, ?, ?, ?)";
constexpr auto hasUnitsSql = "SELECT count(*) FROM pragma_table_info('calls') WHERE name = 'units'";

enum Column { Id, Kind, Direction, Number, Started, Duration, State, Units, ColumnCount };

/// No log gets that far; a damaged page may.
constexpr qint64 highestId = 1'000'000'000'000;

using Totals = std::array<qint64, counterNames.size()>;
using Costs = std::array<qint64, costCounterNames.size()>;

class Salvager
{
public:
    Salvager(Database &damaged, CallStore &fresh)
        : source(damaged)
        , target(fresh)
    {}

    bool run();
    qint64 copied() const { return count; }
    bool hasReadTotals() const { return totalsRead; }

private:
    enum class Passed { ToTheEnd, UpToTheDamage, NotWritten };

    Passed copyRows(const QString &select, bool untilKnown);
    bool copyRow(const QSqlQuery &row, bool &isNew);
    void countRow(const QSqlQuery &row);
    QString unitsColumn();
    bool putTotals();
    std::optional<Totals> readTotals();
    bool putCosts();
    std::optional<Costs> readCosts();
    bool putKept();

    Database &source;
    CallStore &target;
    QSqlQuery putRow;
    qint64 count = 0;
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

// What a damaged page yields may have any type, or be a row of nothing at all.
bool isPlausible(const QSqlQuery &row)
{
    constexpr qint64 minimum = std::numeric_limits<qint64>::min();
    constexpr qint64 maximum = std::numeric_limits<qint64>::max();
    const auto within = [&](Column column, qint64 least, qint64 most) {
        const QVariant value = row.value(column);
        const bool isInteger = value.typeId() == QMetaType::LongLong && !value.isNull();
        return isInteger && value.toLongLong() >= least && value.toLongLong() <= most;
    };
    const QVariant number = row.value(Number);
    return within(Id, 1, highestId) && within(Kind, 0, 1) && within(Direction, 0, 1) &&
           number.typeId() == QMetaType::QString && !number.isNull() && within(Started, minimum, maximum) &&
           within(Duration, 0, maximum) && within(State, 0, 3) && within(Units, 0, maximum);
}

bool Salvager::run()
{
    const QString upwards = QString::fromLatin1(rowsSql).arg(unitsColumn());
    if (!target.connection().prepare(putRow, QString::fromLatin1(putRowSql)))
        return false;
    Passed passed = copyRows(upwards, false);
    // From the other end as well, so that one damaged page in the middle costs no more than its own calls.
    if (passed == Passed::UpToTheDamage)
        passed = copyRows(upwards + QStringLiteral(" DESC"), true);
    return passed != Passed::NotWritten && putTotals() && putCosts() && putKept();
}

// A log of the first version has none.
QString Salvager::unitsColumn()
{
    const std::optional<qint64> columns = source.number(QString::fromLatin1(hasUnitsSql));
    return columns == qint64{0} ? QStringLiteral("0") : QStringLiteral("units");
}

Salvager::Passed Salvager::copyRows(const QString &select, bool untilKnown)
{
    QSqlQuery rows = source.query();
    bool isNew = rows.exec(select);
    while (rows.next()) {
        if (isPlausible(rows) && !copyRow(rows, isNew))
            return Passed::NotWritten;
        if (untilKnown && !isNew)
            break;
    }
    return rows.lastError().isValid() ? Passed::UpToTheDamage : Passed::ToTheEnd;
}

bool Salvager::copyRow(const QSqlQuery &row, bool &isNew)
{
    for (int column = 0; column < ColumnCount; ++column)
        putRow.bindValue(column, row.value(column));
    if (!target.connection().run(putRow))
        return false;
    isNew = putRow.numRowsAffected() > 0;
    if (isNew)
        countRow(row);
    return true;
}

void Salvager::countRow(const QSqlQuery &row)
{
    ++count;
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

std::optional<Costs> Salvager::readCosts()
{
    Costs costs{};
    for (const CostCounterName &name : costCounterNames) {
        const QString select = QStringLiteral("SELECT units FROM costs WHERE counter = '%1'");
        const std::optional<qint64> units = source.number(select.arg(QString::fromLatin1(name.key)));
        if (!units || *units < 0)
            return std::nullopt;
        costOf(costs, name.counter) = *units;
    }
    return costs;
}

bool Salvager::putCosts()
{
    Costs costs = readCosts().value_or(countedCosts);
    for (const CostCounterName &name : costCounterNames)
        if (!target.putCost(name.counter, costOf(costs, name.counter)))
            return false;
    return true;
}

// Who kept the values looks whether they are whole.
bool Salvager::putKept()
{
    QSqlQuery rows = source.query();
    rows.exec(QStringLiteral("SELECT name, content FROM kept"));
    while (rows.next()) {
        const QVariant name = rows.value(0);
        const QVariant content = rows.value(1);
        const bool isValue = name.typeId() == QMetaType::QString && content.typeId() == QMetaType::QByteArray;
        if (isValue && !target.putKept({name.toString(), content.toByteArray()}))
            return false;
    }
    return true;
}

// SQLite would fill up a page that was cut off with zeros, and read calls from it that nobody made.
void cutToWholePages(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return;
    const std::optional<FileHeader> header = FileHeader::parse(file.read(FileHeader::size));
    if (header && header->pageSize > 0)
        file.resize(file.size() / header->pageSize * header->pageSize);
}

} // namespace

Salvaged salvage(const QString &file, CallStore &target)
{
    cutToWholePages(file);
    // It may have to be written before it can be read: leftovers are worked in.
    Database source(file, Database::Access::ReadWrite);
    // Without this a database that is shorter than it says is refused as a whole.
    source.run(QStringLiteral("PRAGMA writable_schema = ON"));
    Salvager salvager(source, target);
    const bool written = target.connection().inTransaction([&] { return salvager.run(); });
    return {written, salvager.copied(), salvager.hasReadTotals()};
}

} // namespace handset::calllog
