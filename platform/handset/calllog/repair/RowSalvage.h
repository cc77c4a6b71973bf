// Copies the rows of a table that can still be read.
#pragma once

#include "Finding.h"
#include "Progress.h"

#include <QtCore/QVariant>

#include <limits>

namespace handset::calllog {

/// What a damaged page yields may have any type, or be a row of nothing at all.
inline bool isWithin(const QSqlQuery &row, int column, qint64 least, qint64 most)
{
    const QVariant value = row.value(column);
    const bool isInteger = value.typeId() == QMetaType::LongLong && !value.isNull();
    return isInteger && value.toLongLong() >= least && value.toLongLong() <= most;
}

inline bool isText(const QSqlQuery &row, int column)
{
    const QVariant value = row.value(column);
    return value.typeId() == QMetaType::QString && !value.isNull();
}

/// No log gets that far; a damaged page may.
inline constexpr qint64 highestId = 1'000'000'000'000;
inline constexpr qint64 lowestInteger = std::numeric_limits<qint64>::min();
inline constexpr qint64 highestInteger = std::numeric_limits<qint64>::max();

/// One table, in the transaction of the caller.
class RowSalvage
{
public:
    RowSalvage(Database &damaged, Database &fresh, Progress howFar)
        : source(damaged)
        , target(fresh)
        , progress(std::move(howFar))
    {}
    virtual ~RowSalvage() = default;
    RowSalvage(const RowSalvage &) = delete;
    RowSalvage &operator=(const RowSalvage &) = delete;

    qint64 copied() const { return count; }
    /// Blocked when the source could not be read for any other reason than damage: there may be more in it than was read.
    const Finding &obstacle() const { return blockedBy; }

protected:
    /// `select` has neither WHERE nor ORDER BY, and the table an `id`, which comes first; `insert` has a '?' for each
    /// column, and ignores a row whose id is there already. False when the target could not be written, or there is an
    /// obstacle.
    bool copy(const QString &select, const QString &insert);
    /// The first column of the source's first row; nothing when there is none that can be read.
    std::optional<qint64> read(const QString &select);
    /// What a total counts beyond the rows that were copied; the counter is of the table `lost`.
    bool putLost(const char *counter, qint64 amount);
    /// To be told of every error of the source.
    void note(const QSqlError &error);
    bool isBlocked() const { return blockedBy.verdict != Verdict::Usable; }

    /// Whether the target's table takes it.
    virtual bool isPlausible(const QSqlQuery &row) const = 0;
    /// It has been copied.
    virtual void countRow(const QSqlQuery &row) = 0;

    Database &source;
    Database &target;

private:
    enum class Passed { ToTheEnd, UpToTheDamage, NotDone };

    Passed pass(const QString &select, bool untilKnown);
    Passed passTail(const QString &select);
    std::optional<qint64> firstOfTail(const QString &select);
    bool copyRow(const QSqlQuery &row, bool &isNew);

    Progress progress;
    QSqlQuery putRow;
    int columnCount = 0;
    qint64 count = 0;
    qint64 highestCopied = 0; ///< id
    Finding blockedBy;
};

} // namespace handset::calllog
