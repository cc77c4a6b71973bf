#include "calllog/repair/RowSalvage.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QCoreApplication>

#include <algorithm>

namespace handset::calllog {

namespace {

constexpr int idColumn = 0;

} // namespace

// The plus sign keeps SQLite from looking for the first id, which may be anywhere in a damaged table. No log gets as far
// as the highest one; a damaged page may.
RowSalvage::Statements RowSalvage::statementsFor(const SalvagedTable &table, DamagedLog &source)
{
    const QString has = QStringLiteral("SELECT count(*) FROM pragma_table_info('%1') WHERE name = '%2'");
    QByteArrayList names;
    QByteArray types;
    for (const auto &[name, type] : table.columns) {
        if (source.number(has.arg(QLatin1String(table.name), QLatin1String(name))) == qint64{0})
            continue;
        names << name;
        types += QByteArray(" AND typeof(") + name + ") = '" + type + '\'';
    }
    const QByteArray list = names.join(", ");
    return {"SELECT " + list + " FROM " + table.name + " WHERE +id BETWEEN 1 AND 1000000000000" + types,
            "INSERT INTO " + QByteArray(table.name) + " (" + list + ") VALUES (" +
                QByteArrayList(names.size(), "?").join(", ") + ") ON CONFLICT (id) DO NOTHING"};
}

std::optional<qint64> DamagedLog::number(const QString &select)
{
    std::optional<qint64> number = database.number(select);
    if (!number)
        number = database.number(select);
    if (!number)
        note(database.lastError());
    return number;
}

bool DamagedLog::note(const Statement &rows)
{
    if (rows.error() == 0)
        return true;
    database.fail();
    note(database.lastError());
    return false;
}

void DamagedLog::note(const sqlite::Failure &error)
{
    if (error.code() != 0 && !isDamage(error) && !isBlocked())
        blockedBy = {Verdict::Blocked, error.reason};
}

RowSalvage::RowSalvage(DamagedLog &damaged, Database &fresh, const SalvagedTable &which,
                       const ProgressListener &listener)
    : source(damaged)
    , target(fresh)
    , table(which)
    , statements(statementsFor(which, damaged))
    , putRow(fresh.handle(), statements.insert.constData())
    , progress(listener, QString::fromLatin1(which.step),
               damaged.connection()
                   .number(QStringLiteral("SELECT max(id) FROM ") + QLatin1String(which.name))
                   .value_or(0))
{}

bool RowSalvage::copy()
{
    Passed passed = source.isBlocked() ? Passed::NotDone : pass(" ORDER BY id", false);
    while (passed == Passed::UpToTheDamage) {
        const qint64 before = count;
        const Passed again = pass(" AND id > " + QByteArray::number(highestCopied) + " ORDER BY id", false);
        if (again != Passed::NotDone && count == before)
            break;
        passed = again;
    }
    // From the other end as well, so that one damaged page in the middle costs no more than its own rows.
    if (passed == Passed::UpToTheDamage)
        passed = passTail();
    progress.finish();
    return passed != Passed::NotDone;
}

// In the order of the ids as far as that goes: rows that are put in front of others leave half of each page empty.
RowSalvage::Passed RowSalvage::passTail()
{
    const QByteArray backwards(" ORDER BY id DESC");
    if (const std::optional<qint64> first = firstOfTail(backwards)) {
        if (pass(" AND id >= " + QByteArray::number(*first) + " ORDER BY id", false) == Passed::NotDone)
            return Passed::NotDone;
    }
    return source.isBlocked() ? Passed::NotDone : pass(backwards, true);
}

std::optional<qint64> RowSalvage::firstOfTail(const QByteArray &rest)
{
    const QByteArray sql = statements.select + rest;
    Statement rows(source.connection().handle(), sql.constData());
    Progress search =
        progress.overTheRest(QCoreApplication::translate("handset", "Looking for the end of the damage"));
    std::optional<qint64> first;
    while (rows.next()) {
        search.oneIsDone();
        if (!isRight(rows))
            continue;
        if (rows.number(idColumn) <= highestCopied)
            break;
        first = rows.number(idColumn);
    }
    search.finish();
    source.note(rows);
    return first;
}

RowSalvage::Passed RowSalvage::pass(const QByteArray &rest, bool untilKnown)
{
    const QByteArray sql = statements.select + rest;
    Statement rows(source.connection().handle(), sql.constData());
    bool isKnown = false;
    while (!(untilKnown && isKnown) && rows.next())
        if (isRight(rows) && !copyRow(rows, isKnown))
            return Passed::NotDone;
    const bool isRead = source.note(rows);
    if (source.isBlocked())
        return Passed::NotDone;
    return isRead ? Passed::ToTheEnd : Passed::UpToTheDamage;
}

// One that a check of its table refuses is none.
bool RowSalvage::copyRow(const Statement &row, bool &isKnown)
{
    if (!putRow.runWith(row))
        return putRow.error() == sqlite::Constraint || target.fail();
    isKnown = target.changedRows() == 0;
    if (isKnown)
        return true;
    ++count;
    progress.oneIsDone();
    highestCopied = std::max(highestCopied, row.number(idColumn));
    return true;
}

} // namespace handset::calllog
