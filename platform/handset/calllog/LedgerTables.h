// The rows of calls and packet-data sessions, their totals and what is kept beside them: the SQL of the ledger.
#pragma once

#include "calllog/Database.h"
#include "calllog/Schema.h"
#include "calllog/Totals.h"
#include "charging/ChargingState.h"

#include <QtCore/QList>

#include <optional>
#include <utility>

namespace handset::calllog {

/// A moment of the boot clock.
struct Moment {
    qint64 ms = 0;
    QByteArray boot; ///< as Clock::boot()
    /// Of a process that does not record: at most so many ms after the recorder's last write count as running.
    std::optional<qint64> reachMs = {};
};

/// A moment for every row: now, and of what has ended and is not written yet, when that was.
struct Moments {
    Moment now;
    QList<std::pair<qint64, Moment>> ends; ///< by the row's id

    const Moment &of(qint64 id) const;
};

/// How far a running row is written.
struct Written {
    std::optional<Moment> until; ///< nothing in a row that an earlier version has left
    qint64 recordedMs = 0; ///< until where by the process that records; others may have written on from there

    /// The time since then, in ms, as far as the moment reaches; none when `now` is of another boot.
    qint64 passedUntil(const Moment &now) const;
    /// Goes on to `now`, as far as that reaches; stays where it is, or is nothing, in another boot and when `now` is before.
    void goOnUntil(const Moment &now);
};

/// How a running call is charged; the numbers are in the database.
enum class Charge {
    Limited = 0,   ///< by the tariff, until nothing more may be charged: then the handset ends it
    Unlimited = 1, ///< by the tariff, as long as it lasts
    Measured = 2   ///< by somebody else, who says what it has cost; not from the card and the account kept here
};

/// The row of a call that runs.
struct RunningCall {
    qint64 id = 0; ///< 0 until it has a row
    CallKind kind = CallKind::Voice;
    CallDirection direction = CallDirection::Dialed;
    QString number;
    qint64 startWallMs = 0;
    qint64 ms = 0;     ///< that it has lasted
    quint32 units = 0; ///< charged
    Written written;
    std::optional<qint64> mostMs; ///< that it can last before nothing more may be charged
    charging::Tariff tariff;
    Charge charge = Charge::Limited;
    bool isLast = true; ///< none has been connected since
    bool isLate = false;
    qint64 newMs = 0;     ///< of those that it has lasted: not in the totals yet
    quint32 newUnits = 0; ///< the same of those charged

    /// Brings it to a moment, and charges what has become due until then.
    void advance(const Moment &to, charging::ChargingState &state);
    /// How long it has lasted at that moment, beyond `ms`.
    qint64 passedUntil(const Moment &now) const;
    /// What has become due after `more` ms beyond `ms`.
    quint32 dueAfter(qint64 more) const;
};

/// What rows have counted of a call already.
struct Counted {
    qint64 ms = 0;
    qint64 units = 0;
};

/// The row of a session; it runs where the last three say something.
struct SessionRow {
    qint64 id = 0;
    QByteArray apn; ///< Latin-1
    SessionAmounts amounts;
    bool isRunning = false;
    Written written;
    qint64 sentPerSecond = 0; ///< bytes, 0 to 2^32 - 1; so the next
    qint64 receivedPerSecond = 0;

    /// What it has come to at that moment. Bytes are the rate times all of its time, the fraction cut off.
    SessionAmounts amountsAt(const Moment &now) const;
};

/// What is charged by and charged to, with the running calls, of one moment.
struct Standing {
    charging::ChargingState state;
    QList<RunningCall> calls; ///< in the order in which they were connected

    /// The one that was connected last; nothing without one.
    std::optional<RunningCall> call() const
    {
        return calls.isEmpty() ? std::nullopt : std::optional(calls.last());
    }
};

/// What is kept under a name, whole: the card, the account.
inline constexpr auto keptCardName = "card";
inline constexpr auto keptChargingName = "charging";
/// Kept from the first start on that has written the charging record with its check, which it then always has; with this
/// content, the card as well.
inline constexpr auto keptChecked = "checked";
inline constexpr auto bothChecked = "2";

/// Each operation is one statement. What returns a bool is false when that fails or a row is missing; the database has
/// the reason. What writes belongs into a transaction of the caller.
class LedgerTables
{
public:
    /// `connection` has the newest schema and outlives this.
    explicit LedgerTables(Database &connection)
        : database(connection)
    {}

    bool read(Standing &standing);
    /// Writes the card and the charging record where they differ from `before`.
    bool putState(const charging::ChargingState &before, const charging::ChargingState &after);

    /// A call that is over, or begins to run; `id` is the new row's.
    bool insert(const PastCall &call, CallState state);
    bool insert(RunningCall &call);
    /// How far it is, and its end where `state` is not Running.
    bool update(const RunningCall &call, CallState state);
    /// A call that is over, and was connected, costs so many units, or more already; `isFound` is false where there is
    /// none.
    bool raiseUnits(qint64 id, qint64 units, bool &isFound);
    /// Closes what a recorder has left that is no more: calls and sessions, with what is written of them.
    bool closeInterrupted();

    bool insert(SessionRow &session, qint64 startWallMs);
    bool update(const SessionRow &session, CallState state);
    bool running(QList<SessionRow> &sessions);
    /// What rows like that one, begun at `sinceWallMs` or later, have counted of a call or session that was interrupted,
    /// or is over and went on when that one began: at `call.startWallMs`, at `startWallMs`.
    bool counted(const PastCall &call, qint64 sinceWallMs, Counted &counted);
    bool counted(const QByteArray &apn, qint64 sinceWallMs, qint64 startWallMs, SessionAmounts &amounts);
    /// The `most` sessions that began last, the newest first.
    bool recent(int most, QList<SessionRow> &sessions);

    /// To the totals of a call's kind, of all, lifetime and, where it is, the last call.
    bool addTime(CallKind kind, CallDirection direction, qint64 ms, bool isLast);
    bool addCost(CallKind kind, CallDirection direction, qint64 units, bool isLast);
    bool addToSessions(const SessionAmounts &more);
    /// A total of calls at a moment, the running calls included where they count there.
    bool totalAt(Total total, const Moments &moments, qint64 &value);
    /// Those of the sessions, likewise.
    bool sessionTotalsAt(const Moments &moments, SessionAmounts &amounts);
    bool put(Total total, qint64 value);

    /// Null when nothing is kept under that name.
    bool kept(const QString &name, QByteArray &content);
    bool put(const QString &name, const QByteArray &content);

private:
    template <typename... Values>
    bool list(QList<SessionRow> &sessions, const char *select, const Values &...values);
    bool readTariff(const Statement &row, int column, RunningCall &call);
    bool addRunning(const Statement &row, Total total, const Moments &moments, qint64 &value);
    bool readState(charging::ChargingState &state, const QByteArray &card, const QByteArray &charging);

    Database &database;

    // What was read last, and what it means: reading it anew takes a while and nearly always comes to the same.
    QByteArray lastCard;
    QByteArray lastCharging;
    charging::ChargingState lastState;
    const charging::ChargingState newState; ///< of a log in which nothing has been kept yet
};

} // namespace handset::calllog
