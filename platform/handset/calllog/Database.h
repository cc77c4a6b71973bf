// One connection to an SQLite database.
#pragma once

#include "calllog/Statement.h"
#include "calllog/Waiting.h"
#include "handset/Patience.h"

#include <map>
#include <optional>

namespace handset::calllog {

/// SQLite's primary result codes, as far as anything here depends on them.
namespace sqlite {
inline constexpr int Error = 1; ///< the statement does not fit the tables
inline constexpr int Busy = 5;
inline constexpr int Locked = 6;
inline constexpr int Corrupt = 11;
inline constexpr int Constraint = 19;
inline constexpr int NotADatabase = 26;

/// What SQLite says of the last error of a connection, and what the system said, which it leaves out. To be asked at
/// once.
QString reason(sqlite3 *connection);

struct Failure {
    int extendedCode = 0; ///< SQLite's result code; 0 for what SQLite has nothing against
    QString reason;

    int code() const { return extendedCode & 0xff; }
};
} // namespace sqlite

/// A write that is tried until it succeeds. Its failure is told once, and then its success.
struct RepeatedWrite {
    bool hasFailed = false;
};

/// Opens on construction, closes on destruction: every other statement prepared on it must be gone by then. Every
/// operation that returns false has left its reason in lastError(). What the tables, views and triggers of the database
/// call is not run, but for what cannot do any harm: somebody else may have written them.
class Database
{
public:
    enum class Access { ReadWrite, ReadOnly };

    /// `file` is an absolute path, or ":memory:".
    Database(const QString &file, Access access);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// SQLite's own connection.
    sqlite3 *handle() const { return sqlite; }
    bool isOpen() const { return open; }
    /// How long a statement waits for others that write, before it fails with sqlite::Busy.
    void setPatience(int milliseconds);
    /// The statements of an opening share its patience; where it is null they go on as before. It lives until the next
    /// setPatience().
    void setPatience(Waiting *ofOpening);
    /// Where SQLite itself does not wait: does so for a moment, or returns false when the patience of the opening is at
    /// its end.
    bool waitForOthers();
    const sqlite::Failure &lastError() const { return error; }

    /// Runs one statement whose result does not matter.
    bool run(const QString &statement);
    /// The first column of the first row; nothing, or an empty text, when there is no row or the statement failed.
    std::optional<qint64> number(const QString &statement);
    QString text(const QString &statement);
    /// The statement of this text, which is kept, as the text is: it is known by where that stands.
    Statement &statement(const char *text) { return statements.try_emplace(text, sqlite, text).first->second; }
    /// Runs such a statement, which may have a row then.
    template <typename... Values>
    bool run(const char *text, const Values &...values)
    {
        return statement(text).run(values...) || fail();
    }
    /// The same, for one that changes `rows` rows; false when it has changed any other number of them.
    template <typename... Values>
    bool runOn(int rows, const char *text, const Values &...values)
    {
        if (!run(text, values...))
            return false;
        const bool isRight = changedRows() == rows;
        statement(text).finish();
        return isRight || missesRow();
    }
    /// The same, for one that selects a row; false when there is none.
    template <typename... Values>
    bool runForRow(const char *text, const Values &...values)
    {
        return run(text, values...) && (statement(text).hasRow() || missesRow());
    }
    /// False, always: SQLite's last error, a row that should be there, or `reason`, is what lastError() has then.
    bool fail();
    bool missesRow();
    bool fail(const QString &reason);
    qint64 lastInsertId() const;
    /// By the statement that was run last.
    int changedRows() const;

    /// What an operation of the call log returns (handset/Status.h): StorageFailed, with a warning that says why, unless
    /// it has succeeded.
    int status(bool succeeded) const;
    /// The same, with the warning only for the first failure.
    int status(bool succeeded, RepeatedWrite &write) const;
    /// While this is there status() warns of the first failure of a repeated write only.
    class Repeating
    {
    public:
        Repeating(Database &owner, RepeatedWrite &write)
            : database(owner)
        {
            database.repeating = &write;
        }
        ~Repeating() { database.repeating = nullptr; }
        Q_DISABLE_COPY_MOVE(Repeating)

        /// What the whole of it has come to; returns that.
        int done(int status) const;

    private:
        Database &database;
    };
    /// Warns of a row that somebody has removed while its call or session was running; `owner` is which of them.
    static void warnOfMissingRow(const char *owner);

    /// Runs `work` in a transaction: all of it is in the database when this returns true, none of it otherwise; so
    /// where somebody has removed or renamed the file, which would take with it whatever is written.
    template <typename Work>
    bool inTransaction(Work work)
    {
        if (!run(beginSql))
            return false;
        if (isInPlace() && work() && run(commitSql))
            return true;
        takeBack();
        return false;
    }

private:
    static int waitInSqlite(void *self, int tries);
    bool isInPlace();
    bool comesToRow(Statement &once);
    void takeBack();
    void hideFailedCommit();

    static constexpr auto beginSql = "BEGIN IMMEDIATE";
    static constexpr auto commitSql = "COMMIT";

    sqlite3 *sqlite = nullptr;
    int patienceMs = Patience{}.operation;
    Waiting *waiting = nullptr;
    bool open = false;
    std::map<const char *, Statement> statements;
    sqlite::Failure error;
    RepeatedWrite *repeating = nullptr;
};

} // namespace handset::calllog
