#include "calllog/Database.h"

#include "handset/Status.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QVariant>
#include <QtSql/QSqlDriver>

#include <utility>

#include <sqlite3.h>

#include <unistd.h>

namespace handset::calllog {

namespace {

Q_LOGGING_CATEGORY(lcCallLog, "kav.handset.calllog")

QString newConnectionName()
{
    static int count = 0;
    return QStringLiteral("kav-calllog-%1").arg(++count);
}

// Whoever writes at the same time is done in a few milliseconds. SQLite's own way waits longer from try to try, and so
// may never meet a moment in which a busy one does not write.
int waitForOthers(void *patienceMs, int tries)
{
    constexpr int betweenTriesMs = 2;
    if (tries >= *static_cast<const int *>(patienceMs) / betweenTriesMs)
        return 0;
    ::usleep(betweenTriesMs * 1000);
    return 1;
}

} // namespace

int sqlite::code(const QSqlError &error)
{
    return error.nativeErrorCode().toInt() & 0xff;
}

QString sqlite::reason(const QSqlError &error)
{
    return error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
}

Database::Database(const QString &file, Access access)
    : name(newConnectionName())
    , connection(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name))
{
    if (access == Access::ReadOnly)
        connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    connection.setDatabaseName(file);
    if (!connection.open()) {
        error = connection.lastError();
        return;
    }
    const QVariant handle = connection.driver()->handle();
    const auto *const held = static_cast<sqlite3 *const *>(handle.constData());
    sqlite = held && handle.typeName() == QByteArrayLiteral("sqlite3*") ? *held : nullptr;
    sqlite3_busy_handler(sqlite, &waitForOthers, &patienceMs);
}

Database::~Database()
{
    statements.clear();
    connection.close();
    connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

QSqlQuery Database::query() const
{
    QSqlQuery fresh(connection);
    fresh.setForwardOnly(true);
    return fresh;
}

bool Database::run(const QString &statement)
{
    QSqlQuery once = query();
    if (once.exec(statement))
        return true;
    error = once.lastError();
    return false;
}

std::optional<qint64> Database::number(const QString &statement)
{
    QSqlQuery once = query();
    if (once.exec(statement) && once.next())
        return once.value(0).toLongLong();
    error = once.lastError();
    return std::nullopt;
}

QString Database::text(const QString &statement)
{
    QSqlQuery once = query();
    if (once.exec(statement) && once.next())
        return once.value(0).toString();
    error = once.lastError();
    return {};
}

bool Database::fail()
{
    error = QSqlError({}, QString::fromUtf8(sqlite3_errmsg(sqlite)), QSqlError::StatementError,
                      QString::number(sqlite3_extended_errcode(sqlite)));
    return false;
}

// SQLite has nothing against a statement that finds no row.
bool Database::missesRow()
{
    return fail(QStringLiteral("a row is missing"));
}

bool Database::fail(const QString &reason)
{
    error = QSqlError({}, reason, QSqlError::StatementError);
    return false;
}

bool Database::isInPlace()
{
    int hasMoved = 0;
    sqlite3_file_control(sqlite, nullptr, SQLITE_FCNTL_HAS_MOVED, &hasMoved);
    return hasMoved == 0 || fail(QStringLiteral("its file has been removed or renamed"));
}

int Database::changedRows() const
{
    return sqlite3_changes(sqlite);
}

qint64 Database::lastInsertId() const
{
    return sqlite3_last_insert_rowid(sqlite);
}

int Database::status(bool succeeded) const
{
    if (succeeded)
        return Success;
    qCWarning(lcCallLog, "The call log failed: %s", qUtf8Printable(sqlite::reason(error)));
    return StorageFailed;
}

int Database::status(bool succeeded, RepeatedWrite &write) const
{
    const bool hadFailed = std::exchange(write.hasFailed, !succeeded);
    if (!hadFailed)
        return status(succeeded);
    if (succeeded)
        qCInfo(lcCallLog, "What could not be written to the call log has been written.");
    return succeeded ? Success : StorageFailed;
}

void Database::warnOfMissingRow(const char *owner)
{
    qCWarning(lcCallLog, "The row of a %s is gone from the call log; its totals count it all the same.", owner);
}

} // namespace handset::calllog
