#include "calllog/Database.h"

#include "handset/Status.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QVariant>
#include <QtSql/QSqlDriver>

#include <cerrno>
#include <cstring>
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

constexpr int betweenTriesMs = 2;

// What the system said when SQLite failed with that code, as it has left it behind: it keeps that for itself, and not
// always. That there is no such file, or none that is open, says nothing: SQLite asks for some which need not be there.
int systemError(int code)
{
    switch (code & 0xff) {
    case SQLITE_FULL:
        return ENOSPC;
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
        return code == SQLITE_IOERR_SHORT_READ || errno == ENOENT || errno == EBADF ? 0 : errno;
    }
    return 0;
}

QString withSystemError(const QString &words, int error)
{
    return error == 0 ? words : QStringLiteral("%1 (%2)").arg(words, QString::fromLocal8Bit(std::strerror(error)));
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

QString sqlite::reason(sqlite3 *connection)
{
    const int error = systemError(sqlite3_extended_errcode(connection));
    return withSystemError(QString::fromUtf8(sqlite3_errmsg(connection)), error);
}

Database::Database(const QString &file, Access access)
    : name(newConnectionName())
    , connection(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name))
{
    if (access == Access::ReadOnly)
        connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    connection.setDatabaseName(file);
    errno = 0;
    if (!connection.open()) {
        note(connection.lastError());
        return;
    }
    const QVariant handle = connection.driver()->handle();
    const auto *const held = static_cast<sqlite3 *const *>(handle.constData());
    sqlite = held && handle.typeName() == QByteArrayLiteral("sqlite3*") ? *held : nullptr;
    sqlite3_busy_handler(sqlite, &waitInSqlite, this);
    distrustTables(sqlite);
}

Database::~Database()
{
    statements.clear();
    connection.close();
    connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

void Database::setPatience(int milliseconds)
{
    patienceMs = milliseconds;
    waiting = nullptr;
    holders = nullptr;
}

void Database::setPatience(Waiting &wait, Holders whoWrites)
{
    waiting = &wait;
    holders = std::move(whoWrites);
}

// Whoever writes at the same time is done in a few milliseconds. SQLite's own way waits longer from try to try, and so
// may never meet a moment in which a busy one does not write.
int Database::waitInSqlite(void *self, int tries)
{
    auto &database = *static_cast<Database *>(self);
    if (database.waiting)
        return database.waitForOthers() ? 1 : 0;
    if (tries >= database.patienceMs / betweenTriesMs)
        return 0;
    ::usleep(betweenTriesMs * 1000);
    return 1;
}

bool Database::waitForOthers()
{
    return waiting && waiting->pauseInSqlite(betweenTriesMs, holders);
}

// The driver does not say what the system has said.
void Database::note(const QSqlError &last)
{
    const QString words = withSystemError(sqlite::reason(last), systemError(last.nativeErrorCode().toInt()));
    error = QSqlError(last.driverText(), words, last.type(), last.nativeErrorCode());
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
    errno = 0;
    if (once.exec(statement))
        return true;
    note(once.lastError());
    return false;
}

std::optional<qint64> Database::number(const QString &statement)
{
    QSqlQuery once = query();
    errno = 0;
    if (once.exec(statement) && once.next())
        return once.value(0).toLongLong();
    note(once.lastError());
    return std::nullopt;
}

QString Database::text(const QString &statement)
{
    QSqlQuery once = query();
    errno = 0;
    if (once.exec(statement) && once.next())
        return once.value(0).toString();
    note(once.lastError());
    return {};
}

bool Database::fail()
{
    error = QSqlError({}, sqlite::reason(sqlite), QSqlError::StatementError,
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
    if (repeating && std::exchange(repeating->hasFailed, true))
        return StorageFailed;
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

int Database::Repeating::done(int status) const
{
    if (status == Success && std::exchange(database.repeating->hasFailed, false))
        qCInfo(lcCallLog, "What could not be written to the call log has been written.");
    return status;
}

void Database::warnOfMissingRow(const char *owner)
{
    qCWarning(lcCallLog, "The row of a %s is gone from the call log; its totals count it all the same.", owner);
}

} // namespace handset::calllog
