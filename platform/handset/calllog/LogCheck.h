// Reads a whole call log through.
#pragma once

#include "Finding.h"

#include <array>
#include <optional>

struct sqlite3;

namespace handset::calllog {

struct LostName {
    const char *key; ///< in the database; never change one
};
inline constexpr std::array lostNames{LostName{"calls"}, LostName{"units"}, LostName{"duration"}, LostName{"sent"},
                                      LostName{"received"}};

/// What the totals count beyond the rows that are left, by the names in the table `lost`.
struct LostAmount {
    const char *counter;
    std::optional<qint64> amount; ///< nothing where the log does not say
};
using LostAmounts = std::array<LostAmount, lostNames.size()>;

/// What a log that was read through has come to.
struct CheckedLog {
    Finding finding;
    LostAmounts
        unknown{}; ///< what a log of an earlier version did not say, measured now; the others have no amount
};

/// The structure of the file, every page of it, and every row by the checks of its table.
Finding checkPages(sqlite3 *connection);

/// The totals beside the sums of the rows, in one transaction. Each row is read; the log has the newest tables.
///
/// All calls ever have lasted as long as their rows say, with what was lost; every other total counts some of the rows,
/// for it may have been reset.
CheckedLog checkSums(sqlite3 *connection);

/// Whether there is anything to write.
bool saysMore(const LostAmounts &measured);
/// Writes what checkSums() has measured, in the transaction of the caller.
bool putUnknown(Database &database, const LostAmounts &measured);

} // namespace handset::calllog
