#include "RowSalvage.h"

#include <QtSql/QSqlRecord>

#include <algorithm>

namespace handset::calllog {

namespace {

constexpr int idColumn = 0;

} // namespace

void RowSalvage::note(const QSqlError &error)
{
    if (error.isValid() && !isDamage(error) && !isBlocked())
        blockedBy = {Verdict::Blocked, sqlite::reason(error)};
}

// SQLite calls some failed reads (EIO) corrupt, too. So what is damaged is read twice: it still is then.

std::optional<qint64> RowSalvage::read(const QString &select)
{
    std::optional<qint64> number = source.number(select);
    if (!number)
        number = source.number(select);
    if (!number)
        note(source.lastError());
    return number;
}

bool RowSalvage::putLost(const char *counter, qint64 amount)
{
    const QString put = QStringLiteral("UPDATE lost SET value = %1 WHERE counter = '%2'");
    return target.run(put.arg(std::max<qint64>(amount, 0)).arg(QString::fromLatin1(counter)));
}

bool RowSalvage::copy(const QString &select, const QString &insert)
{
    if (!target.prepare(putRow, insert))
        return false;
    Passed passed = pass(select + QStringLiteral(" ORDER BY id"), false);
    while (passed == Passed::UpToTheDamage) {
        const qint64 before = count;
        const Passed again = pass(select + QStringLiteral(" WHERE id > %1 ORDER BY id").arg(highestCopied), false);
        if (again != Passed::NotDone && count == before)
            break;
        passed = again;
    }
    // From the other end as well, so that one damaged page in the middle costs no more than its own rows.
    if (passed == Passed::UpToTheDamage)
        passed = passTail(select);
    if (passed == Passed::NotDone)
        return false;
    progress.finish();
    return true;
}

// In the order of the ids as far as that goes: rows that are put in front of others leave half of each page empty.
RowSalvage::Passed RowSalvage::passTail(const QString &select)
{
    const QString backwards = select + QStringLiteral(" ORDER BY id DESC");
    if (const std::optional<qint64> first = firstOfTail(backwards)) {
        const QString forwards = select + QStringLiteral(" WHERE id >= %1 ORDER BY id").arg(*first);
        if (pass(forwards, false) == Passed::NotDone)
            return Passed::NotDone;
    }
    return isBlocked() ? Passed::NotDone : pass(backwards, true);
}

std::optional<qint64> RowSalvage::firstOfTail(const QString &select)
{
    QSqlQuery rows = source.query();
    rows.exec(select);
    Progress search = progress.overTheRest(QStringLiteral("Looking for the end of the damage"));
    std::optional<qint64> first;
    while (rows.next()) {
        search.oneIsDone();
        if (!isPlausible(rows))
            continue;
        if (rows.value(idColumn).toLongLong() <= highestCopied)
            break;
        first = rows.value(idColumn).toLongLong();
    }
    search.finish();
    note(rows.lastError());
    return first;
}

RowSalvage::Passed RowSalvage::pass(const QString &select, bool untilKnown)
{
    QSqlQuery rows = source.query();
    bool isNew = rows.exec(select);
    columnCount = rows.record().count();
    while (rows.next()) {
        if (isPlausible(rows) && !copyRow(rows, isNew))
            return Passed::NotDone;
        if (untilKnown && !isNew)
            break;
    }
    note(rows.lastError());
    if (isBlocked())
        return Passed::NotDone;
    return rows.lastError().isValid() ? Passed::UpToTheDamage : Passed::ToTheEnd;
}

bool RowSalvage::copyRow(const QSqlQuery &row, bool &isNew)
{
    for (int column = 0; column < columnCount; ++column)
        putRow.bindValue(column, row.value(column));
    if (!target.run(putRow))
        return false;
    isNew = putRow.numRowsAffected() > 0;
    if (isNew) {
        ++count;
        progress.oneIsDone();
        highestCopied = std::max(highestCopied, row.value(idColumn).toLongLong());
        countRow(row);
    }
    return true;
}

} // namespace handset::calllog
