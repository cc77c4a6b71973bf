// The one owner of what is known: running calls and sessions, their totals, what they cost and what that is taken from.
#pragma once

#include "calllog/LedgerTables.h"
#include "calllog/StateDirectory.h"
#include "handset/Clock.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>

namespace handset::calllog {

class CheckBeside;
struct Traces;

/// All of it stands in the database, so that any process may ask and change it; see "The ledger" in docs/handset.md.
/// Operations return a number of handset/Status.h; a failed one has changed nothing. What an operation costs does not
/// depend on how many calls and sessions there are.
///
/// Calls and sessions, any number of them at once, are begun and ended by the process that records, by the id of their
/// row: RecordedElsewhere in any other. They can always be ended. An end that cannot be written is owed: the moment is
/// kept here, every figure of this process counts up to it, and it is written before anything else is; a row that
/// somebody has removed will not come back, and the totals count it all the same. The end of this ends them all.
class Ledger
{
public:
    /// How often checkpoint() and checkpointSession() are called while a call is connected or a session runs: a crash may
    /// lose 5 s, and a timer that comes late costs no more than that.
    static constexpr int checkpointIntervalMs = 4000;
    /// How far beyond the recorder's last write any other process counts and writes what runs.
    static constexpr int trustedMs = 10'000;

    /// The database has the newest schema; `stateDirectory` is that of the database, shared, and null for one in memory.
    Ledger(std::unique_ptr<Database> opened, std::unique_ptr<StateDirectory> stateDirectory,
           std::shared_ptr<Clock> clocks);
    ~Ledger();
    Ledger(const Ledger &) = delete;
    Ledger &operator=(const Ledger &) = delete;

    /// To be called once, before anything else: looks at the card and the account. What cannot be used is kept under
    /// another name, and is new; `notices` gets a sentence about each. StorageFailed when that cannot be read.
    int load(QStringList &notices);
    /// Whether this process records. When nobody does it takes that over: what was running is closed with what was
    /// written of it, and the card has been off. That may wait a second for a busy log: for timers and beginnings.
    bool record();
    /// Status for an operation that only the recorder may do, in a process that is not it: RecordedElsewhere, or
    /// StorageFailed where nobody else is known to, and it cannot lock the directory or write what another has left.
    int whyNotRecording() const;
    /// Whether it does already; takes nothing over.
    bool isRecorder() const { return recording; }

    // --- the call

    /// Whether a call like this may begin: NotAllowed where it would be charged and nothing more may be.
    int permits(const PastCall &call);
    /// The call is connected now, and has been for its duration, which counts from now on; its units are not used. It is
    /// the last call until another begins. `id` is its row's, more than 0. InvalidArgument for one of no known kind or
    /// direction, NotAllowed as above where the charge is limited.
    int beginCall(const PastCall &call, qint64 &id, Charge charge = Charge::Limited);
    /// The call with that id has ended now; WrongState where none runs. It is over whatever else this returns.
    int endCall(qint64 id);
    /// A call whose charge is measured has cost so many units since its beginning; fewer than before change nothing. A
    /// meter may say so when the call is over. WrongState where there is none with that id, and for one that runs under
    /// a tariff.
    int setUnits(qint64 id, quint32 units);
    /// How much of this call other recorders have counted, in rows like it that began at `sinceWallMs` or later: they
    /// ended before the call did, or have heard of its end.
    int counted(const PastCall &call, qint64 sinceWallMs, Counted &counted);
    /// A call has ended that was never connected. InvalidArgument as above; it is over whatever else this returns.
    int addUnconnected(const PastCall &call);
    /// Adds calls that are over, in their order, counted and charged as if they had been made. The last connected one
    /// becomes the last call unless a call is connected now. Those that are measured cost the units that they have.
    /// InvalidArgument as above. `lastRow`, where it is not null, is the id of the last one's row.
    int addHistory(const QList<PastCall> &calls, Charge charge = Charge::Limited, qint64 *lastRow = nullptr);
    bool isConnected() const { return isAnyRunning(ownCalls); }
    bool owesCall() const { return isAnyOver(ownCalls) || !unconnected.isEmpty(); }

    // --- packet-data sessions

    /// A session begins now that has come to `before` already, and counts the given bytes each second, each way.
    int beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond, qint64 &id,
                     const SessionAmounts &before = {});
    /// As endCall(); that many bytes more have gone until then, as addBytes().
    int endSession(qint64 id, qint64 sent = 0, qint64 received = 0);
    /// That many bytes more have gone each way, 0 or more; as setUnits().
    int addBytes(qint64 id, qint64 sent, qint64 received);
    /// As that of calls, for a session that began at `startWallMs`.
    int counted(const QByteArray &apn, qint64 sinceWallMs, qint64 startWallMs, SessionAmounts &amounts);
    bool isSessionRunning() const { return isAnyRunning(ownSessions); }
    bool owesSession() const { return isAnyOver(ownSessions); }
    /// Whether one runs, whoever has begun it.
    bool seesSession();

    // --- what is asked: up to now

    /// Of calls: milliseconds or units.
    int figure(Total total, qint64 &value);
    /// The card with what has been charged: what is due on running calls comes with their next checkpoint.
    int card(charging::SimCard &card);
    /// What has become due on running calls and is not written yet; 0 without one.
    quint32 dueUnits();
    /// The `most` sessions that began last, the newest first.
    int sessions(int most, QList<SessionRow> &sessions);
    int sessionTotals(SessionAmounts &amounts);
    /// Calls `look` with the running calls, card, tariffs and account as of now; returns what it returns.
    int ask(const std::function<int(const Standing &now)> &look);
    /// The same to look at: as of a new handset when it cannot be read.
    Standing standing();

    // --- what is changed

    /// Changes the state that it is given, or returns why not.
    using Change = std::function<int(charging::ChargingState &state)>;
    /// Writes how far running calls are and what has become due on them, and then what `change` makes of the state; then
    /// `zeroed` totals of calls are 0. All of that in one transaction.
    int edit(const Change &change, std::initializer_list<Total> zeroed = {});
    /// Zeroes totals of calls.
    int reset(std::initializer_list<Total> zeroed);
    /// The same of sessions.
    int resetSessions(std::initializer_list<Total> zeroed);
    /// Changes what the card keeps beside its files, and writes nothing else.
    int editCard(const std::function<int(charging::SimCard &card)> &change);
    /// Writes what is owed, and how far the running calls are and what they cost; success with none of them.
    int checkpoint();
    int checkpointSession();

    /// Runs `work`, which is tried until it succeeds: only its first failure is a warning, and its success after that a
    /// message. Returns what it returns.
    template <typename Work>
    int repeat(RepeatedWrite &write, Work work)
    {
        const Database::Repeating repeating(*database, write);
        return repeating.done(work());
    }

    /// Writes how far running calls and sessions are, and leaves them to the next recorder, which finds them interrupted.
    void letGo();

    /// For who looks at the file beside.
    Database &connection() { return *database; }
    /// Reads `file`, that of this, through while it is in use; as CheckBeside.
    void readThrough(const QString &file, const std::function<void(const QString &)> &tell);
    /// What the call log had to tell of its opening, when the event loop runs or this ends; else the next start tells it
    /// again.
    void noticeIsTold();

    /// Called when something has been changed by edit(), a reset, or the beginning or end of a session.
    void setChangeListener(std::function<void()> listener) { onChange = std::move(listener); }
    /// Calls it where `status`, of a change that was made through the connection, is Success; returns that.
    int changed(int status) const;

private:
    void forgetNotice();
    struct Entry;

    /// A row that this process has begun, as written last. Used only where somebody has deleted the row.
    template <typename Row>
    struct Own {
        Row row;
        std::optional<Moment> ended = {}; ///< and that is not written yet
        SessionAmounts more = {};         ///< nor are these bytes of a session
    };
    template <typename Row>
    static bool isAnyRunning(const QList<Own<Row>> &own)
    {
        return std::any_of(own.begin(), own.end(), [](const Own<Row> &one) { return !one.ended; });
    }
    template <typename Row>
    static bool isAnyOver(const QList<Own<Row>> &own)
    {
        return std::any_of(own.begin(), own.end(), [](const Own<Row> &one) { return one.ended; });
    }
    template <typename Row>
    Moments momentsOf(const QList<Own<Row>> &own) const;
    template <typename Row>
    bool end(QList<Own<Row>> &own, qint64 id);
    template <typename Row>
    bool takeOwn(const QList<Own<Row>> &own, QList<Row> &rows, QList<qint64> &gone, bool isEnd);
    template <typename Row>
    static void refresh(QList<Own<Row>> &own, const QList<Row> &written);

    template <typename Work>
    int transact(Work work, RepeatedWrite *end = nullptr);
    template <typename Work>
    int transact(Entry &entry, Work work, RepeatedWrite *end);
    bool write(Entry &entry);
    bool writeCall(RunningCall &call, const Entry &entry);
    bool putHistory(const QList<PastCall> &calls, Charge charge, Entry &entry, qint64 &lastRow);
    int transactSessions(std::initializer_list<Total> zeroed, RepeatedWrite *end = nullptr);
    int writeOwedCall();
    int writeOwedSession();
    int find(Traces &traces);
    bool putNewInPlaceOf(const Traces &traces, QStringList &notices);
    bool putChecks();

    // The order matters: statements go before their connection, the connection before the lock.
    std::unique_ptr<StateDirectory> directory;
    std::unique_ptr<Database> database;
    LedgerTables tables;
    std::unique_ptr<Clock> clock;
    QObject here; ///< what comes from the event loop finds nobody when this is gone
    bool isNoticeTold = false;
    bool recording = false;
    bool isRecordedElsewhere = false; ///< when that was tried last
    QList<Own<RunningCall>> ownCalls;
    QList<Own<SessionRow>> ownSessions;
    QList<PastCall> unconnected; ///< that are not written yet
    RepeatedWrite callEnd;
    RepeatedWrite sessionEnd;
    std::function<void()> onChange;
    std::unique_ptr<CheckBeside> check; ///< goes before the connection that it stands beside
};

} // namespace handset::calllog
