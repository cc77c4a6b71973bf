// A call log as lean as C and SQLite make it.
#pragma once

#include "handset/Call.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace bench {

/// The tables that the handset writes when a call is made, in a database of its own, written with SQLite's C
/// functions: statements are prepared once, and every row is found by its key. As durable as the handset's: a
/// write-ahead log, and synced at the end of each of the two transactions of a call.
class LeanLog
{
public:
    /// Makes the database, with the calls and totals of the handset's log in `handsetLog`.
    LeanLog(const QString &file, const QString &handsetLog);
    ~LeanLog();
    LeanLog(const LeanLog &) = delete;
    LeanLog &operator=(const LeanLog &) = delete;

    /// A voice call that was dialed: one transaction when it is connected, one when it is over.
    bool record(const handset::PastCall &call);

    /// What the two logs have that is not the same; empty for nothing.
    QString difference(const QString &handsetLog);

    /// Why nothing can be recorded; empty if it can.
    QString error() const { return problem; }

private:
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

    bool run(const char *sql);
    Statement prepare(const char *sql);
    bool step(const Statement &statement);
    /// False where that is not in so many rows.
    bool add(const Statement &statement, qint64 number, int rowCount);
    bool begin(const handset::PastCall &call);
    bool finish(const handset::PastCall &call);
    bool attach(const QString &handsetLog);

    sqlite3 *database = nullptr;
    QString problem;
    QByteArray card; ///< of the same size as the handset's
    Statement beginTransaction, commit, insertCall, finishCall, clearLastTime, clearLastCost, addTime, addCost,
        putCard;
};

} // namespace bench
