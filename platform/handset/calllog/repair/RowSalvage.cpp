#include "RowSalvage.h"

#include <QtSql/QSqlRecord>

namespace handset::calllog {

bool RowSalvage::copy(const QString &select, const QString &insert)
{
    if (!target.prepare(putRow, insert))
        return false;
    Passed passed = pass(select, false);
    // From the other end as well, so that one damaged page in the middle costs no more than its own rows.
    if (passed == Passed::UpToTheDamage)
        passed = pass(select + QStringLiteral(" DESC"), true);
    return passed != Passed::NotWritten;
}

RowSalvage::Passed RowSalvage::pass(const QString &select, bool untilKnown)
{
    QSqlQuery rows = source.query();
    bool isNew = rows.exec(select);
    columnCount = rows.record().count();
    while (rows.next()) {
        if (isPlausible(rows) && !copyRow(rows, isNew))
            return Passed::NotWritten;
        if (untilKnown && !isNew)
            break;
    }
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
        countRow(row);
    }
    return true;
}

} // namespace handset::calllog
