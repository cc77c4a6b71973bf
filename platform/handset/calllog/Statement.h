// Statements of an SQLite connection, and what stops them.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <exception>
#include <functional>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace handset::calllog {

/// A statement, row by row; one that is kept is run again with other values. It is prepared when it is run first: opening
/// a log is for nothing but a look at some figures, most of the time.
class Statement
{
public:
    /// `text` stays where it is.
    Statement(sqlite3 *connection, const char *text)
        : handle(connection)
        , sql(text)
    {}
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    /// Begins anew with `values` in the places of its '?', in their order: integers, texts, bytes, nothing (NULL). Runs to
    /// the first row, or to the end of a statement that has none; false on a failure.
    template <typename... Values>
    bool run(const Values &...values)
    {
        if (!prepare())
            return false;
        finish();
        int place = 0;
        (bind(++place, values), ...);
        row = next();
        return code == 0;
    }
    /// The same with the values of the row that another statement has come to.
    bool runWith(const Statement &other);
    /// Whether the last run() has come to a row.
    bool hasRow() const { return row; }
    /// An unfinished SELECT would keep the write-ahead log from being emptied.
    void finish();

    /// Moves to the next row, the first one at first; false at the end and on a failure.
    bool next();
    /// SQLite's primary result code of a failure; 0 as long as there is none.
    int error() const { return code; }
    qint64 number(int column) const;
    bool isNull(int column) const;
    /// Of a text or of bytes; a null array for NULL.
    QByteArray bytes(int column) const;

private:
    bool prepare();
    void bind(int place, qint64 value);
    void bind(int place, int value) { bind(place, qint64{value}); }
    void bind(int place, std::optional<qint64> value);
    void bind(int place, const char *text); ///< which stays where it is
    void bind(int place, const QString &text);
    void bind(int place, const QByteArray &bytes);

    sqlite3 *handle;
    const char *sql;
    sqlite3_stmt *statement = nullptr;
    int code = 0;
    bool row = false;
};

/// While this lives, statements of a connection fail with SQLITE_INTERRUPT as soon as `isEnough` says so. It is asked
/// every `steps` steps of SQLite's virtual machine; a thousand take some microseconds. What it throws interrupts the
/// statement, too, and goes on at the end of this: SQLite itself must not be left by an exception.
class Interruption
{
public:
    Interruption(sqlite3 *connection, std::function<bool()> isEnough, int steps = 1000);
    ~Interruption() noexcept(false);
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

private:
    bool ask();

    sqlite3 *handle;
    std::function<bool()> asked;
    std::exception_ptr thrown;
};

} // namespace handset::calllog
