#include "Database.h"

#include "Status.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QVariant>
#include <QtSql/QSqlDriver>

#include <utility>

namespace handset::calllog {

namespace {

Q_LOGGING_CATEGORY(lcCallLog, "kav.handset.calllog")

QString newConnectionName()
{
    static int count = 0;
    return QStringLiteral("kav-calllog-%1").arg(++count);
}

// A process that only looks at the log must not make ours fail at once; none holds it for long.
constexpr auto options = "QSQLITE_BUSY_TIMEOUT=1000";

// SQLite has nothing against a statement that finds no row.
QSqlError missingRow()
{
    return {{}, QStringLiteral("a row is missing"), QSqlError::StatementError};
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
    QString settings = QString::fromLatin1(options);
    if (access == Access::ReadOnly)
        settings += QStringLiteral(";QSQLITE_OPEN_READONLY");
    connection.setConnectOptions(settings);
    connection.setDatabaseName(file);
    if (!connection.open())
        error = connection.lastError();
    else if (prepare(begin, QStringLiteral("BEGIN IMMEDIATE")))
        prepare(commit, QStringLiteral("COMMIT"));
}

Database::~Database()
{
    begin = QSqlQuery();
    commit = QSqlQuery();
    connection.close();
    connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

sqlite3 *Database::handle() const
{
    const QVariant handle = connection.driver()->handle();
    const auto *const held = static_cast<sqlite3 *const *>(handle.constData());
    return held && handle.typeName() == QByteArrayLiteral("sqlite3*") ? *held : nullptr;
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

bool Database::prepare(QSqlQuery &kept, const QString &statement)
{
    kept = query();
    if (kept.prepare(statement))
        return true;
    error = kept.lastError();
    return false;
}

bool Database::run(QSqlQuery &kept)
{
    if (kept.exec())
        return true;
    error = kept.lastError();
    return false;
}

bool Database::runOn(int rows, QSqlQuery &kept)
{
    if (!run(kept))
        return false;
    if (kept.numRowsAffected() == rows)
        return true;
    error = missingRow();
    return false;
}

bool Database::runForRow(QSqlQuery &kept)
{
    if (!run(kept))
        return false;
    if (kept.next())
        return true;
    error = kept.lastError().isValid() ? kept.lastError() : missingRow();
    return false;
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
