// Copies the rows of a table that can still be read.
#pragma once

#include "Database.h"

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
    RowSalvage(Database &damaged, Database &fresh)
        : source(damaged)
        , target(fresh)
    {}
    virtual ~RowSalvage() = default;
    RowSalvage(const RowSalvage &) = delete;
    RowSalvage &operator=(const RowSalvage &) = delete;

    qint64 copied() const { return count; }

protected:
    /// `select` has the rows in ascending order of their ids; `insert` has a '?' for each of its columnCount, and
    /// ignores a row whose id is there already. False when the target could not be written.
    bool copy(const QString &select, const QString &insert);

    /// Whether the target's table takes it.
    virtual bool isPlausible(const QSqlQuery &row) const = 0;
    /// It has been copied.
    virtual void countRow(const QSqlQuery &row) = 0;

    Database &source;
    Database &target;

private:
    enum class Passed { ToTheEnd, UpToTheDamage, NotWritten };

    Passed pass(const QString &select, bool untilKnown);
    bool copyRow(const QSqlQuery &row, bool &isNew);

    QSqlQuery putRow;
    int columnCount = 0;
    qint64 count = 0;
};

} // namespace handset::calllog
