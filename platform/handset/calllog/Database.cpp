#include "calllog/Database.h"

#include "handset/Status.h"

#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>
#include <utility>

#include <sqlite3.h>

namespace handset::calllog {

namespace {

Q_LOGGING_CATEGORY(lcCallLog, "kav.handset.calllog")

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

} // namespace

QString sqlite::reason(sqlite3 *connection)
{
    const int error = systemError(sqlite3_extended_errcode(connection));
    const QString words = QString::fromUtf8(sqlite3_errmsg(connection));
    return error == 0 ? words : QStringLiteral("%1 (%2)").arg(words, QString::fromLocal8Bit(std::strerror(error)));
}

Database::Database(const QString &file, Access access)
{
    const int flags =
        access == Access::ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    errno = 0;
    open = sqlite3_open_v2(QFile::encodeName(file).constData(), &sqlite, flags | SQLITE_OPEN_NOMUTEX, nullptr) ==
           SQLITE_OK;
    if (!open) {
        fail();
        return;
    }
    // What cannot be opened for writing SQLite opens for reading, and says nothing; what follows fails without a reason.
    open = access == Access::ReadOnly || sqlite3_db_readonly(sqlite, "main") == 0;
    if (!open) {
        fail(QStringLiteral("it cannot be opened for writing (%1)")
                 .arg(QString::fromLocal8Bit(std::strerror(errno))));
        return;
    }
    sqlite3_busy_handler(sqlite, &waitInSqlite, this);
    sqlite3_db_config(sqlite, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
}

Database::~Database()
{
    statements.clear();
    sqlite3_close(sqlite);
}

void Database::setPatience(int milliseconds)
{
    patienceMs = milliseconds;
    waiting = nullptr;
}

void Database::setPatience(Waiting *ofOpening)
{
    waiting = ofOpening;
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
    std::this_thread::sleep_for(std::chrono::milliseconds(betweenTriesMs));
    return 1;
}

bool Database::waitForOthers()
{
    return waiting && waiting->pauseInSqlite(betweenTriesMs);
}

bool Database::run(const QString &statement)
{
    const QByteArray text = statement.toUtf8();
    Statement once(sqlite, text.constData());
    return once.run() || fail();
}

std::optional<qint64> Database::number(const QString &statement)
{
    const QByteArray text = statement.toUtf8();
    Statement once(sqlite, text.constData());
    return comesToRow(once) ? std::optional(once.number(0)) : std::nullopt;
}

QString Database::text(const QString &statement)
{
    const QByteArray text = statement.toUtf8();
    Statement once(sqlite, text.constData());
    return comesToRow(once) ? QString::fromUtf8(once.bytes(0)) : QString();
}

bool Database::comesToRow(Statement &once)
{
    if (once.run() && once.hasRow())
        return true;
    error = {};
    return once.error() == 0 ? false : fail();
}

bool Database::fail()
{
    error = {sqlite3_extended_errcode(sqlite), sqlite::reason(sqlite)};
    return false;
}

// SQLite has nothing against a statement that finds no row.
bool Database::missesRow()
{
    return fail(QStringLiteral("a row is missing"));
}

bool Database::fail(const QString &reason)
{
    error = {0, reason};
    return false;
}

bool Database::isInPlace()
{
    int hasMoved = 0;
    sqlite3_file_control(sqlite, nullptr, SQLITE_FCNTL_HAS_MOVED, &hasMoved);
    return hasMoved == 0 || fail(QStringLiteral("its file has been removed or renamed"));
}

void Database::takeBack()
{
    const sqlite::Failure reason = error;
    run(QStringLiteral("ROLLBACK"));
    if (reason.extendedCode == SQLITE_IOERR_FSYNC)
        hideFailedCommit();
    error = reason;
}

// What a commit wrote and could not sync is behind the end of the write-ahead log, whole. SQLite forgets it, but the next
// one who opens the log after this process has ended would take it for done. One page written in its place breaks its
// chain; that is not synced, as it is to hold as long as what it hides.
void Database::hideFailedCommit()
{
    const std::optional<qint64> version = number(QStringLiteral("PRAGMA user_version"));
    if (!version || !run(QStringLiteral("PRAGMA synchronous = OFF")))
        return;
    const std::optional<qint64> pages = number(QStringLiteral("PRAGMA wal_autocheckpoint"));
    run(QStringLiteral("PRAGMA wal_autocheckpoint = 0"));
    run(QStringLiteral("PRAGMA user_version = %1").arg(*version));
    run(QStringLiteral("PRAGMA wal_autocheckpoint = %1").arg(pages.value_or(1000)));
    run(QStringLiteral("PRAGMA synchronous = FULL"));
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
    qCWarning(lcCallLog, "The call log failed: %s", qUtf8Printable(error.reason));
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
