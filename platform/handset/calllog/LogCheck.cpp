#include "LogCheck.h"

#include "PlainSqlite.h"
#include "Saturating.h"
#include "Totals.h"

#include <sqlite3.h>

#include <algorithm>
#include <map>

namespace handset::calllog {

namespace {

constexpr auto callsSql = "SELECT kind, direction, duration_ms, units FROM calls WHERE state <> 2";
constexpr auto sessionsSql = "SELECT duration_ms, sent, received FROM sessions";

using Amounts = std::map<QByteArray, qint64>;

struct Sums {
    Amounts ms; ///< of calls, by the counter of their own kind
    Amounts units;
    Amounts sessions;
    qint64 allMs = 0;
    qint64 allUnits = 0;
};

Finding failureOf(sqlite3 *connection, int code)
{
    return failure(code, QString::fromUtf8(sqlite3_errmsg(connection)));
}

void add(qint64 &sum, qint64 amount)
{
    sum = saturatingSum(sum, amount);
}

int sumCalls(sqlite3 *connection, Sums &sums)
{
    PlainStatement rows(connection, callsSql);
    while (rows.next()) {
        const Total own =
            ownTime(static_cast<CallKind>(rows.number(0)), static_cast<CallDirection>(rows.number(1)));
        const char *key = placeOf(own).key;
        add(sums.ms[key], rows.number(2));
        add(sums.allMs, rows.number(2));
        add(sums.units[key], rows.number(3));
        add(sums.allUnits, rows.number(3));
    }
    return rows.error();
}

int sumSessions(sqlite3 *connection, Sums &sums)
{
    PlainStatement rows(connection, sessionsSql);
    while (rows.next())
        for (std::size_t i = 0; i < sessionPlaces.size(); ++i)
            add(sums.sessions[sessionPlaces[i].key], rows.number(static_cast<int>(i)));
    return rows.error();
}

int readAmounts(sqlite3 *connection, const char *select, Amounts &amounts)
{
    PlainStatement rows(connection, select);
    while (rows.next())
        if (!rows.isNull(1))
            amounts[rows.bytes(0)] = rows.number(1);
    return rows.error();
}

/// Everything that is compared, of one moment.
struct Figures {
    Sums sums;
    Amounts totals;
    Amounts costs;
    Amounts sessionTotals;
    Amounts lost;
};

int read(sqlite3 *connection, Figures &figures)
{
    const auto amounts = [&](const char *select, Amounts &into) { return readAmounts(connection, select, into); };
    for (const int code : {amounts("SELECT counter, ms FROM totals", figures.totals),
                           amounts("SELECT counter, units FROM costs", figures.costs),
                           amounts("SELECT counter, value FROM session_totals", figures.sessionTotals),
                           amounts("SELECT counter, value FROM lost", figures.lost)})
        if (code != SQLITE_OK)
            return code;
    const int code = sumCalls(connection, figures.sums);
    return code == SQLITE_OK ? sumSessions(connection, figures.sums) : code;
}

// What the totals count beyond the rows.
Amounts excess(Figures &figures)
{
    const auto beyond = [](qint64 total, qint64 sum) { return std::max<qint64>(total - sum, 0); };
    Amounts found;
    found["calls"] = beyond(figures.totals["lifetime"], figures.sums.allMs);
    for (const TotalPlace &name : costPlaces) {
        const bool isLast = name.total == Total::LastCost;
        const qint64 sum = isLast ? figures.sums.allUnits : figures.sums.units[name.key];
        found["units"] = std::max(found["units"], beyond(figures.costs[name.key], sum));
    }
    for (const TotalPlace &name : sessionPlaces)
        found[name.key] = beyond(figures.sessionTotals[name.key], figures.sums.sessions[name.key]);
    return found;
}

bool callsFit(Figures &figures, qint64 lost)
{
    const qint64 lifetime = figures.totals["lifetime"];
    if (lifetime != saturatingSum(figures.sums.allMs, lost))
        return false;
    return std::all_of(timePlaces.begin(), timePlaces.end(), [&](const TotalPlace &name) {
        const bool isOwn =
            name.total == Total::DialedTime || name.total == Total::AnsweredTime || name.total == Total::DataTime;
        const qint64 most = isOwn ? saturatingSum(figures.sums.ms[name.key], lost) : lifetime;
        return figures.totals[name.key] <= most;
    });
}

Finding compare(Figures &figures, const LostAmounts &unknown)
{
    Amounts lost = figures.lost;
    for (const LostAmount &measured : unknown)
        if (measured.amount)
            lost[measured.counter] = *measured.amount;
    for (const auto &[counter, amount] : excess(figures))
        if (amount > lost[counter])
            return {Verdict::Damaged, QStringLiteral("its totals count more than its rows")};
    if (!callsFit(figures, lost["calls"]))
        return {Verdict::Damaged, QStringLiteral("its totals are not those of its calls")};
    return {};
}

} // namespace

Finding checkPages(sqlite3 *connection)
{
    PlainStatement check(connection, "PRAGMA quick_check(1)");
    if (check.next())
        return judgeCheck(QString::fromUtf8(check.bytes(0)));
    return failureOf(connection, check.error());
}

CheckedLog checkSums(sqlite3 *connection)
{
    CheckedLog checked;
    for (std::size_t i = 0; i < lostNames.size(); ++i)
        checked.unknown[i].counter = lostNames[i].key;
    Figures figures;
    const bool isOwnTransaction = sqlite3_get_autocommit(connection) != 0;
    if (isOwnTransaction)
        sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr);
    const int code = read(connection, figures);
    if (code != SQLITE_OK)
        checked.finding = failureOf(connection, code);
    if (isOwnTransaction)
        sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        return checked;
    Amounts measured = excess(figures);
    for (LostAmount &amount : checked.unknown)
        if (!figures.lost.contains(amount.counter))
            amount.amount = measured[amount.counter];
    checked.finding = compare(figures, checked.unknown);
    return checked;
}

bool saysMore(const LostAmounts &measured)
{
    return std::any_of(measured.begin(), measured.end(),
                       [](const LostAmount &lost) { return lost.amount.has_value(); });
}

bool putUnknown(Database &database, const LostAmounts &measured)
{
    const QString put = QStringLiteral("UPDATE lost SET value = %1 WHERE counter = '%2'");
    return std::all_of(measured.begin(), measured.end(), [&](const LostAmount &lost) {
        return !lost.amount || database.run(put.arg(*lost.amount).arg(QString::fromLatin1(lost.counter)));
    });
}

} // namespace handset::calllog
