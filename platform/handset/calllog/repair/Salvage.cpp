#include "calllog/repair/Salvage.h"

#include "calllog/LedgerTables.h"
#include "calllog/LogCheck.h"
#include "calllog/repair/RowSalvage.h"
#include "calllog/repair/TablesOnly.h"
#include "handset/PacketData.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace handset::calllog {

namespace {

bool hasApn(const Statement &session)
{
    const QString apn = QString::fromUtf8(session.bytes(1));
    return !apn.isEmpty() && apn.size() <= DataSession::longestApn &&
           std::all_of(apn.begin(), apn.end(), [](QChar c) { return c.unicode() >= 1 && c.unicode() <= 0xff; });
}

// A log of an earlier version has not all of them, and that of the first no sessions.
constexpr std::array callColumns{
    SalvagedColumn{"id", "integer"},         SalvagedColumn{"kind", "integer"},
    SalvagedColumn{"direction", "integer"},  SalvagedColumn{"number", "text"},
    SalvagedColumn{"started_ms", "integer"}, SalvagedColumn{"duration_ms", "integer"},
    SalvagedColumn{"state", "integer"},      SalvagedColumn{"units", "integer"},
    SalvagedColumn{"late", "integer"},
};
constexpr std::array sessionColumns{
    SalvagedColumn{"id", "integer"},         SalvagedColumn{"apn", "text"},
    SalvagedColumn{"started_ms", "integer"}, SalvagedColumn{"duration_ms", "integer"},
    SalvagedColumn{"sent", "integer"},       SalvagedColumn{"received", "integer"},
    SalvagedColumn{"state", "integer"},
};
constexpr SalvagedTable callTable{"calls", callColumns, "Reading the damaged call log", nullptr};
constexpr SalvagedTable sessionTable{"sessions", sessionColumns, "Reading the damaged log of data sessions",
                                     &hasApn};

// All of a table's totals, or none of them.
bool readTotals(DamagedLog &source, std::span<const TotalPlace> places, RowTotals &totals)
{
    return std::all_of(places.begin(), places.end(), [&](const TotalPlace &place) {
        const std::optional<qint64> value = source.number(QString::fromLatin1(selectTotal(place)));
        totals[static_cast<std::size_t>(place.total)] = value.value_or(0);
        return value && *value >= 0;
    });
}

bool putTotals(LedgerTables &tables, std::span<const TotalPlace> places, const RowTotals &totals)
{
    return std::all_of(places.begin(), places.end(), [&](const TotalPlace &place) {
        return tables.put(place.total, totals[static_cast<std::size_t>(place.total)]);
    });
}

// In big logs this takes as long as the reading.
CheckedLog countRows(Database &target, const Salvaged &salvaged, const ProgressListener &listener)
{
    Progress progress(listener, QCoreApplication::translate("handset", "Counting what was read"),
                      salvaged.calls + salvaged.sessions);
    CheckedLog checked = checkSums(target.handle(), progress);
    progress.finish();
    return checked;
}

// Those that cannot be read, and those of the calls' times that are none of these calls, are counted anew. What they count
// beyond the rows has been lost.
bool copyTotals(DamagedLog &source, Database &target, Salvaged &salvaged, const ProgressListener &listener)
{
    LedgerTables tables(target);
    RowTotals totals{};
    salvaged.totalsRead = readTotals(source, timePlaces, totals);
    const bool costsRead = readTotals(source, costPlaces, totals);
    salvaged.sessionTotalsRead = readTotals(source, sessionPlaces, totals);
    if (source.isBlocked() || !putTotals(tables, totalPlaces, totals) ||
        !target.run(QStringLiteral("UPDATE lost SET value = NULL")))
        return false;
    const CheckedLog checked = countRows(target, salvaged, listener);
    if (!checked.isRead)
        return target.fail();
    salvaged.totalsRead = salvaged.totalsRead && checked.finding.verdict == Verdict::Usable;
    const std::pair<bool, std::span<const TotalPlace>> groups[]{
        {salvaged.totalsRead, timePlaces}, {costsRead, costPlaces}, {salvaged.sessionTotalsRead, sessionPlaces}};
    for (const auto &[isRead, places] : groups)
        for (const TotalPlace &place : isRead ? std::span<const TotalPlace>() : places)
            totals[static_cast<std::size_t>(place.total)] =
                checked.counted.totals[static_cast<std::size_t>(place.total)];
    return putTotals(tables, totalPlaces, totals) && putUnknown(target, excess(totals, checked.counted));
}

bool readKept(DamagedLog &source, LedgerTables &tables, bool &isRead)
{
    Statement rows(source.connection().handle(), "SELECT name, content FROM kept"
                                                 " WHERE typeof(name) = 'text' AND typeof(content) = 'blob'");
    while (rows.next())
        if (!tables.put(QString::fromUtf8(rows.bytes(0)), rows.bytes(1)))
            return false;
    isRead = source.note(rows);
    return !source.isBlocked();
}

// Who kept the values looks whether they are whole, and tells of the one that is missing. In an earlier version's log
// one that was never written has no row.
bool copyKept(DamagedLog &source, Database &target)
{
    const std::optional<qint64> version = source.number(QStringLiteral("PRAGMA user_version"));
    if (version.value_or(0) >= versionWithAllKept && !target.run(QStringLiteral("DELETE FROM kept")))
        return false;
    LedgerTables tables(target);
    bool isRead = false;
    return readKept(source, tables, isRead) && (isRead || readKept(source, tables, isRead));
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
    bool isLeft = leaveOnlyTables(source);
    if (!isLeft)
        isLeft = leaveOnlyTables(source); // a read that failed once may not fail again
    if (!isLeft)
        return beginWithNothing(source, target);
    DamagedLog damaged(source);
    RowSalvage calls(damaged, target, callTable, progress);
    RowSalvage sessions(damaged, target, sessionTable, progress);
    const auto copyRows = [&] {
        const bool copied = calls.copy() && sessions.copy();
        salvaged.calls = calls.copied();
        salvaged.sessions = sessions.copied();
        return copied;
    };
    const bool written = target.inTransaction([&] {
        return copyRows() && copyTotals(damaged, target, salvaged, progress) && copyKept(damaged, target);
    });
    if (damaged.isBlocked())
        return damaged.obstacle();
    return written ? Finding{} : failure(target);
}

} // namespace handset::calllog
