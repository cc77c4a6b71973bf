// Reads a whole call log through.
#pragma once

#include "calllog/Finding.h"
#include "calllog/Totals.h"
#include "calllog/repair/Progress.h"

#include <array>
#include <optional>

struct sqlite3;

namespace handset::calllog {

/// Of the table `lost`; never change one.
inline constexpr std::array lostNames{"calls", "units", "duration", "sent", "received"};
/// What the totals count beyond the rows that are left, in the order of lostNames; nothing where the log does not say.
using LostAmounts = std::array<std::optional<qint64>, lostNames.size()>;
/// By Total.
using RowTotals = std::array<qint64, totalPlaces.size()>;

/// What the rows come to.
struct CountedRows {
    RowTotals totals{};  ///< what they would be had none been reset, and had the lost rows never been
    qint64 allUnits = 0; ///< of all calls
};

/// What a log that was read through has come to.
struct CheckedLog {
    Finding finding;
    LostAmounts unknown{}; ///< what a log of an earlier version did not say, measured now; nothing for the others
    CountedRows counted{};
    bool isRead = false; ///< to the end; else the finding says why not, and nothing was counted
};

/// The structure of the file, every page of it, and every row by the checks of its table.
Finding checkPages(sqlite3 *connection);

/// The totals beside the sums of the rows, in one transaction. Each row is read; the log has the newest tables.
///
/// All calls ever have lasted as long as their rows say, with what was lost; every other total counts some of the rows,
/// for it may have been reset.
CheckedLog checkSums(sqlite3 *connection);
/// The same. Each row is a thing of `progress`, which may end this by throwing.
CheckedLog checkSums(sqlite3 *connection, Progress &progress);
/// What `totals` count beyond those rows.
LostAmounts excess(const RowTotals &totals, const CountedRows &counted);
/// Selects a total, if it is a number.
QByteArray selectTotal(const TotalPlace &place);

/// Whether there is anything to write.
bool saysMore(const LostAmounts &measured);
/// Writes what checkSums() has measured, in the transaction of the caller.
bool putUnknown(Database &database, const LostAmounts &measured);

} // namespace handset::calllog
