#include "calllog/LogCheck.h"

#include "calllog/Saturating.h"

#include <sqlite3.h>

#include <algorithm>

namespace handset::calllog {

namespace {

constexpr auto callsSql = "SELECT kind, direction, duration_ms, units FROM calls WHERE state <> 2 ORDER BY id";
constexpr auto sessionsSql = "SELECT duration_ms, sent, received FROM sessions";
constexpr auto lostSql = "SELECT value FROM lost WHERE counter = ?";

/// Everything that is compared, of one moment.
struct Figures {
    CountedRows counted;
    RowTotals totals{};
    LostAmounts lost{};
};

constexpr std::size_t at(Total total)
{
    return static_cast<std::size_t>(total);
}

void add(qint64 &sum, qint64 amount)
{
    sum = saturatingSum(sum, amount);
}

int countCalls(sqlite3 *connection, CountedRows &all, Progress &progress)
{
    RowTotals &counted = all.totals;
    Statement rows(connection, callsSql);
    while (rows.next()) {
        progress.oneIsDone();
        const auto kind = static_cast<CallKind>(rows.number(0));
        const auto direction = static_cast<CallDirection>(rows.number(1));
        const qint64 units = rows.number(3);
        counted[at(Total::LastTime)] = rows.number(2);
        for (const Total total : {ownTime(kind, direction), Total::AllTime, Total::LifetimeTime})
            add(counted[at(total)], rows.number(2));
        counted[at(Total::LastCost)] = units;
        if (const std::optional<Total> own = ownCost(kind, direction))
            add(counted[at(*own)], units);
        add(all.allUnits, units);
    }
    return rows.error();
}

int countSessions(sqlite3 *connection, RowTotals &counted, Progress &progress)
{
    Statement rows(connection, sessionsSql);
    while (rows.next()) {
        progress.oneIsDone();
        for (std::size_t i = 0; i < sessionPlaces.size(); ++i)
            add(counted[at(sessionPlaces[i].total)], rows.number(static_cast<int>(i)));
    }
    return rows.error();
}

int readTotals(sqlite3 *connection, RowTotals &totals)
{
    for (const TotalPlace &place : totalPlaces) {
        const QByteArray select = selectTotal(place);
        Statement row(connection, select.constData());
        if (row.next())
            totals[at(place.total)] = row.number(0);
        if (row.error() != SQLITE_OK)
            return row.error();
    }
    return SQLITE_OK;
}

int readLost(sqlite3 *connection, LostAmounts &lost)
{
    Statement row(connection, lostSql);
    for (std::size_t i = 0; i < lost.size(); ++i)
        if (row.run(lostNames[i]) && row.hasRow() && !row.isNull(0))
            lost[i] = row.number(0);
    return row.error();
}

int read(sqlite3 *connection, Figures &figures, Progress &progress)
{
    int code = readTotals(connection, figures.totals);
    if (code == SQLITE_OK)
        code = readLost(connection, figures.lost);
    if (code == SQLITE_OK)
        code = countCalls(connection, figures.counted, progress);
    return code == SQLITE_OK ? countSessions(connection, figures.counted.totals, progress) : code;
}

bool callsFit(const Figures &figures, qint64 lost)
{
    const qint64 lifetime = figures.totals[at(Total::LifetimeTime)];
    if (lifetime != saturatingSum(figures.counted.totals[at(Total::LifetimeTime)], lost))
        return false;
    return std::all_of(timePlaces.begin(), timePlaces.end(), [&](const TotalPlace &place) {
        const bool isOwn = place.total == Total::DialedTime || place.total == Total::AnsweredTime ||
                           place.total == Total::DataTime;
        const qint64 most = isOwn ? saturatingSum(figures.counted.totals[at(place.total)], lost) : lifetime;
        return figures.totals[at(place.total)] <= most;
    });
}

Finding compare(const Figures &figures, const LostAmounts &found)
{
    for (std::size_t i = 0; i < found.size(); ++i)
        if (*found[i] > *figures.lost[i])
            return {Verdict::Damaged, QStringLiteral("its totals count more than its rows")};
    if (!callsFit(figures, *figures.lost[0]))
        return {Verdict::Damaged, QStringLiteral("its totals are not those of its calls")};
    return {};
}

} // namespace

Finding checkPages(sqlite3 *connection)
{
    Statement check(connection, "PRAGMA quick_check(1)");
    if (check.next())
        return judgeCheck(QString::fromUtf8(check.bytes(0)));
    return failure(check.error(), sqlite::reason(connection));
}

QByteArray selectTotal(const TotalPlace &place)
{
    return QByteArray("SELECT ") + place.column + " FROM " + place.table + " WHERE counter = '" + place.key +
           "' AND typeof(" + place.column + ") = 'integer'";
}

LostAmounts excess(const RowTotals &totals, const CountedRows &counted)
{
    const auto beyond = [&](Total total) {
        const qint64 ofRows = total == Total::LastCost ? counted.allUnits : counted.totals[at(total)];
        return std::max<qint64>(totals[at(total)] - ofRows, 0);
    };
    return {beyond(Total::LifetimeTime),
            std::max({beyond(Total::LastCost), beyond(Total::DialedCost), beyond(Total::AnsweredCost)}),
            beyond(Total::SessionTime), beyond(Total::BytesSent), beyond(Total::BytesReceived)};
}

CheckedLog checkSums(sqlite3 *connection)
{
    Progress untold({}, {}, 0);
    return checkSums(connection, untold);
}

CheckedLog checkSums(sqlite3 *connection, Progress &progress)
{
    CheckedLog checked;
    Figures figures;
    const bool isOwnTransaction = sqlite3_get_autocommit(connection) != 0;
    if (isOwnTransaction)
        sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr);
    const int code = read(connection, figures, progress);
    if (code != SQLITE_OK)
        checked.finding = failure(code, sqlite::reason(connection));
    if (isOwnTransaction)
        sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        return checked;
    checked.isRead = true;
    checked.counted = figures.counted;
    const LostAmounts found = excess(figures.totals, figures.counted);
    for (std::size_t i = 0; i < found.size(); ++i)
        if (!figures.lost[i])
            checked.unknown[i] = figures.lost[i] = found[i];
    checked.finding = compare(figures, found);
    return checked;
}

bool saysMore(const LostAmounts &measured)
{
    return std::any_of(measured.begin(), measured.end(), [](const auto &lost) { return lost.has_value(); });
}

bool putUnknown(Database &database, const LostAmounts &measured)
{
    const QString put = QStringLiteral("UPDATE lost SET value = %1 WHERE counter = '%2'");
    for (std::size_t i = 0; i < measured.size(); ++i)
        if (measured[i] && !database.run(put.arg(*measured[i]).arg(QLatin1String(lostNames[i]))))
            return false;
    return true;
}

} // namespace handset::calllog
