#include "calllog/PlainSqlite.h"

#include <QtCore/QFile>

#include <sqlite3.h>

#include <cerrno>
#include <utility>

namespace handset::calllog {

namespace {

constexpr int busyTimeoutMs = 1000;

int primary(int code)
{
    return code & 0xff;
}

} // namespace

void distrustTables(sqlite3 *connection)
{
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
}

PlainConnection::PlainConnection(const QString &file)
{
    const QByteArray name = file.isEmpty() ? QByteArrayLiteral(":memory:") : QFile::encodeName(file);
    const int flags = file.isEmpty() ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
    open = sqlite3_open_v2(name.constData(), &connection, flags | SQLITE_OPEN_NOMUTEX, nullptr) == SQLITE_OK;
    if (!open)
        return;
    sqlite3_busy_timeout(connection, busyTimeoutMs);
    distrustTables(connection);
}

PlainConnection::~PlainConnection()
{
    sqlite3_close(connection);
}

bool PlainConnection::run(const char *statement)
{
    return sqlite3_exec(connection, statement, nullptr, nullptr, nullptr) == SQLITE_OK;
}

PlainStatement::~PlainStatement()
{
    sqlite3_finalize(statement);
}

bool PlainStatement::prepare()
{
    if (!statement)
        code = primary(sqlite3_prepare_v3(handle, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    return statement;
}

bool PlainStatement::runWith(const PlainStatement &other)
{
    if (!prepare())
        return false;
    finish();
    for (int column = 0; column < sqlite3_column_count(other.statement); ++column)
        sqlite3_bind_value(statement, column + 1, sqlite3_column_value(other.statement, column));
    row = next();
    return code == 0;
}

void PlainStatement::finish()
{
    sqlite3_reset(statement);
    code = SQLITE_OK;
    row = false;
}

void PlainStatement::bind(int place, qint64 value)
{
    sqlite3_bind_int64(statement, place, value);
}

void PlainStatement::bind(int place, std::optional<qint64> value)
{
    if (value)
        bind(place, *value);
    else
        sqlite3_bind_null(statement, place);
}

void PlainStatement::bind(int place, const char *text)
{
    sqlite3_bind_text(statement, place, text, -1, SQLITE_STATIC);
}

void PlainStatement::bind(int place, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text(statement, place, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

void PlainStatement::bind(int place, const QByteArray &bytes)
{
    // The data of an empty array are not null, which would be a NULL.
    sqlite3_bind_blob(statement, place, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
}

bool PlainStatement::next()
{
    if (!prepare() || code != SQLITE_OK)
        return false;
    errno = 0; // what it is at a failure is told (sqlite::reason())
    const int result = primary(sqlite3_step(statement));
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        code = result;
    return result == SQLITE_ROW;
}

qint64 PlainStatement::number(int column) const
{
    return sqlite3_column_int64(statement, column);
}

bool PlainStatement::isNull(int column) const
{
    return sqlite3_column_type(statement, column) == SQLITE_NULL;
}

QByteArray PlainStatement::bytes(int column) const
{
    if (isNull(column))
        return {};
    // The data of an empty value are null.
    const auto *const bytes = static_cast<const char *>(sqlite3_column_blob(statement, column));
    return bytes ? QByteArray(bytes, sqlite3_column_bytes(statement, column)) : QByteArray("");
}

Interruption::Interruption(sqlite3 *connection, std::function<bool()> isEnough, int steps)
    : handle(connection)
    , asked(std::move(isEnough))
{
    const auto answer = [](void *self) { return static_cast<Interruption *>(self)->ask() ? 1 : 0; };
    sqlite3_progress_handler(handle, steps, answer, this);
}

bool Interruption::ask()
{
    try {
        return thrown || asked();
    } catch (...) {
        thrown = std::current_exception();
        return true;
    }
}

Interruption::~Interruption() noexcept(false)
{
    sqlite3_progress_handler(handle, 0, nullptr, nullptr);
    if (thrown && std::uncaught_exceptions() == 0)
        std::rethrow_exception(thrown);
}

} // namespace handset::calllog
