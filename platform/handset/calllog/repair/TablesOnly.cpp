#include "calllog/repair/TablesOnly.h"

namespace handset::calllog {

namespace {

constexpr auto computes =
    " FROM sqlite_schema AS entry WHERE type IN ('view', 'trigger') OR sql LIKE 'CREATE VIRTUAL %'";
constexpr auto generates = " FROM sqlite_schema AS entry WHERE type = 'table' AND EXISTS"
                           " (SELECT 1 FROM pragma_table_xinfo(entry.name) WHERE hidden <> 0)";

bool takeOut(Database &copy, const char *entries)
{
    const QString where = QString::fromLatin1(entries);
    const std::optional<qint64> found = copy.number(QStringLiteral("SELECT count(*)") + where);
    if (found == qint64{0})
        return true;
    // The list is read anew after a reset, and is writable until then.
    return found && copy.run(QStringLiteral("DELETE") + where) &&
           copy.run(QStringLiteral("PRAGMA writable_schema = RESET")) &&
           copy.run(QStringLiteral("PRAGMA writable_schema = ON"));
}

} // namespace

bool leaveOnlyTables(Database &copy)
{
    return copy.run(QStringLiteral("PRAGMA writable_schema = ON")) && takeOut(copy, computes) &&
           takeOut(copy, generates);
}

} // namespace handset::calllog
