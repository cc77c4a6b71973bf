// Copies the rows of a table that can still be read.
#pragma once

#include "calllog/Finding.h"
#include "calllog/repair/Progress.h"

#include <span>

namespace handset::calllog {

/// A log that is read as far as that goes. SQLite calls some failed reads (EIO) corrupt, too: what is damaged is to be
/// read twice, and still is then.
class DamagedLog
{
public:
    explicit DamagedLog(Database &copy)
        : database(copy)
    {}

    Database &connection() { return database; }
    /// The first column of the first row; nothing when there is none that can be read.
    std::optional<qint64> number(const QString &select);
    /// To be told of all rows that have been read to their end, right then. True when there was no error.
    bool note(const Statement &rows);
    /// Blocked when something could not be read for any other reason than damage: there may be more than was read.
    const Finding &obstacle() const { return blockedBy; }
    bool isBlocked() const { return blockedBy.verdict != Verdict::Usable; }

private:
    void note(const sqlite::Failure &error);

    Database &database;
    Finding blockedBy;
};

/// A column, and what typeof() says of what belongs into it. What a damaged page yields may have any type.
struct SalvagedColumn {
    const char *name;
    const char *type;
};

/// What a table has; the first column is its id. Which values it takes its own checks say.
struct SalvagedTable {
    const char *name;
    std::span<const SalvagedColumn> columns;
    const char *step;                    ///< of its Progress
    bool (*check)(const Statement &row); ///< what those do not say; null for nothing
};

/// One table, in the transaction of the caller.
class RowSalvage
{
public:
    RowSalvage(DamagedLog &damaged, Database &fresh, const SalvagedTable &which, const ProgressListener &listener);

    /// False when the target could not be written, or there is an obstacle. Columns that the source's table does not have
    /// are left to their defaults; a table that it does not have is empty.
    bool copy();
    qint64 copied() const { return count; }

private:
    enum class Passed { ToTheEnd, UpToTheDamage, NotDone };

    struct Statements {
        QByteArray select; ///< to be followed by more of its condition
        QByteArray insert;
    };

    static Statements statementsFor(const SalvagedTable &table, DamagedLog &source);
    Passed pass(const QByteArray &rest, bool untilKnown);
    Passed passTail();
    std::optional<qint64> firstOfTail(const QByteArray &rest);
    bool isRight(const Statement &row) const { return !table.check || table.check(row); }
    bool copyRow(const Statement &row, bool &isKnown);

    DamagedLog &source;
    Database &target;
    const SalvagedTable &table;
    Statements statements;
    Statement putRow;
    Progress progress;
    qint64 count = 0;
    qint64 highestCopied = 0; ///< id
};

} // namespace handset::calllog
