// The calls and their running totals in SQLite.
#pragma once

#include "Call.h"
#include "Charge.h"
#include "Counter.h"
#include "Database.h"
#include "Schema.h"

#include <QtCore/QList>

#include <memory>
#include <span>

namespace handset::calllog {

class StateDirectory;

/// Connected time of a running call that is not in the database yet.
struct UnwrittenTime {
    qint64 call = 0; ///< the row's id
    Counter own = Counter::Dialed;
    qint64 ms = 0; ///< 0 or more
};

/// What a reset zeroes, and what is kept with it.
struct ResetPlan {
    std::span<const Counter> times;
    std::span<const CostCounter> costs;
    KeptValues kept;
};

/// Every operation answers handset::Success or handset::StorageFailed; a failed one has changed nothing. A write is
/// one transaction and is on the disk when it has succeeded; the totals change in the transaction of the row whose
/// time they count. What an operation costs does not depend on how many calls there are.
class CallStore
{
public:
    /// Takes over an open database that has the newest schema, and the directory that stays locked for it (null for
    /// none). Null when a statement cannot be prepared; `database` then still has the reason.
    static std::unique_ptr<CallStore> create(std::unique_ptr<Database> &database,
                                             std::unique_ptr<StateDirectory> &directory);
    ~CallStore();

    /// Adds the row of a call that has just been connected and makes it the last call. `call.durationMs` and
    /// `call.units` are not used. `id` is the row's.
    int beginCall(const PastCall &call, qint64 &id);
    /// Adds the time and the charge to the row and to the totals.
    int countTime(const UnwrittenTime &time, const Charge &charge);
    /// The same, and the call is over. A row that somebody has removed will not come back: there is a warning, and the
    /// totals count the call without it.
    int finishCall(const UnwrittenTime &time, const Charge &charge, RepeatedWrite &write);
    /// Adds the rows of calls that were never connected. Their durations and units are not used.
    int addUnconnected(const QList<PastCall> &calls, RepeatedWrite &write);
    /// Adds calls that are over, in their order, and counts them. The last connected one becomes the last call when
    /// `setLast`.
    int addHistory(const QList<PastCall> &calls, bool setLast, const KeptValues &kept = {});

    /// Milliseconds, 0 or more.
    int total(Counter counter, qint64 &ms);
    /// Units, 0 or more.
    int cost(CostCounter counter, qint64 &units);
    int reset(const ResetPlan &plan);

    /// Keeps values in place of those of the same names.
    int keep(const KeptValues &values);
    /// A value that was kept; null when there is none of that name.
    int kept(const QString &name, QByteArray &content);

    /// For salvage, in the transaction of the caller.
    bool putTotal(Counter counter, qint64 ms);
    bool putCost(CostCounter counter, qint64 units);
    bool putKept(const KeptValue &value);
    Database &connection() { return *database; }

private:
    CallStore() = default;
    bool prepareStatements();
    bool insertRow(const PastCall &call, CallState state);
    void bindTime(const UnwrittenTime &time, const Charge &charge, CallState state);
    bool addSums(const UnwrittenTime &time, const Charge &charge);
    bool addToTotals(Counter own, qint64 ms, bool toLast);
    bool addToCosts(Counter own, qint64 units, bool toLast);
    bool putAll(const KeptValues &values);
    bool insertPastCall(const PastCall &call);
    int status(bool succeeded) const { return database->status(succeeded); }

    // The order matters: statements go before their connection, the connection before the lock.
    std::unique_ptr<StateDirectory> lockedDirectory;
    std::unique_ptr<Database> database;
    QSqlQuery insertStatement;
    QSqlQuery timeStatement;
    QSqlQuery totalsStatement;
    QSqlQuery setTotalStatement;
    QSqlQuery totalStatement;
    QSqlQuery costsStatement;
    QSqlQuery setCostStatement;
    QSqlQuery costStatement;
    QSqlQuery keepStatement;
    QSqlQuery keptStatement;
};

} // namespace handset::calllog
