#include "calllog/Statement.h"

#include <sqlite3.h>

#include <cerrno>
#include <utility>

namespace handset::calllog {

namespace {

int primary(int code)
{
    return code & 0xff;
}

} // namespace

Statement::~Statement()
{
    sqlite3_finalize(statement);
}

bool Statement::prepare()
{
    errno = 0; // what it is at a failure is told (sqlite::reason()); so below
    if (!statement)
        code = primary(sqlite3_prepare_v3(handle, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    return statement;
}

bool Statement::runWith(const Statement &other)
{
    if (!prepare())
        return false;
    finish();
    for (int column = 0; column < sqlite3_column_count(other.statement); ++column)
        sqlite3_bind_value(statement, column + 1, sqlite3_column_value(other.statement, column));
    row = next();
    return code == 0;
}

void Statement::finish()
{
    sqlite3_reset(statement);
    code = SQLITE_OK;
    row = false;
}

void Statement::bind(int place, qint64 value)
{
    sqlite3_bind_int64(statement, place, value);
}

void Statement::bind(int place, std::optional<qint64> value)
{
    if (value)
        bind(place, *value);
    else
        sqlite3_bind_null(statement, place);
}

void Statement::bind(int place, const char *text)
{
    sqlite3_bind_text(statement, place, text, -1, SQLITE_STATIC);
}

void Statement::bind(int place, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text(statement, place, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

void Statement::bind(int place, const QByteArray &bytes)
{
    // The data of an empty array are not null, which would be a NULL.
    sqlite3_bind_blob(statement, place, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
}

bool Statement::next()
{
    if (!prepare() || code != SQLITE_OK)
        return false;
    errno = 0;
    const int result = primary(sqlite3_step(statement));
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        code = result;
    return result == SQLITE_ROW;
}

qint64 Statement::number(int column) const
{
    return sqlite3_column_int64(statement, column);
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(statement, column) == SQLITE_NULL;
}

QByteArray Statement::bytes(int column) const
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
