// The packet-data sessions and their running totals in SQLite.
#pragma once

#include "Database.h"
#include "Schema.h"
#include "SessionCounter.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <initializer_list>

namespace handset::calllog {

/// A session as the log has it.
struct StoredSession {
    qint64 id = 0;
    QByteArray apn; ///< Latin-1
    SessionAmounts amounts;
};

/// What a running session has come to beyond what is in the database.
struct UnwrittenAmounts {
    qint64 session = 0; ///< the row's id
    SessionAmounts amounts;
};

/// As CallStore, for sessions: every operation answers handset::Success or handset::StorageFailed, and a failed one has
/// changed nothing. A write is one transaction and is on the disk when it has succeeded; the totals change in the
/// transaction of the row that they count. What an operation costs does not depend on how many sessions there are.
class SessionStore
{
public:
    /// `connection` has the newest schema and outlives this.
    explicit SessionStore(Database &connection);

    /// False when the tables are not as they should be: then every operation fails, and `connection` has the reason.
    bool isUsable() const { return usable; }

    /// Adds the row of a session that has just begun. `id` is the row's.
    int begin(const QByteArray &apn, qint64 startWallMs, qint64 &id);
    /// Adds the amounts to the row and to the totals.
    int count(const UnwrittenAmounts &more);
    /// The same, and the session is over. A row that is gone: as for CallStore::finishCall().
    int finish(const UnwrittenAmounts &more, RepeatedWrite &write);

    /// The `most` sessions that began last, the newest first.
    int recent(int most, QList<StoredSession> &sessions);
    int totals(SessionAmounts &amounts);
    /// Counts what the running session has come to (null for none), then zeroes the totals.
    int reset(std::initializer_list<SessionCounter> counters, const UnwrittenAmounts *running);

    /// For salvage, in the transaction of the caller.
    bool putTotal(SessionCounter counter, qint64 value);

private:
    bool prepareStatements();
    void bindMore(const UnwrittenAmounts &more, CallState state);
    bool addToRunning(const UnwrittenAmounts &more);
    bool addToTotals(const SessionAmounts &amounts);
    bool total(SessionCounter counter, qint64 &value);
    int status(bool succeeded) const { return database.status(succeeded); }

    Database &database;
    QSqlQuery insertStatement;
    QSqlQuery addStatement;
    QSqlQuery recentStatement;
    QSqlQuery addTotalStatement;
    QSqlQuery setTotalStatement;
    QSqlQuery totalStatement;
    bool usable;
};

} // namespace handset::calllog
