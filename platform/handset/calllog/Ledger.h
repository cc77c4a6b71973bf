// The one owner of what is known: running calls and sessions, their totals, what they cost and what that is taken from.
#pragma once

#include "calllog/LedgerTables.h"
#include "calllog/StateDirectory.h"
#include "handset/Clock.h"

#include <QtCore/QStringList>

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>

namespace handset::calllog {

struct Traces;

/// All of it stands in the database, so that any process may ask and change it; see "The ledger" in docs/handset.md.
/// Operations return a number of handset/Status.h; a failed one has changed nothing. What an operation costs does not
/// depend on how many calls and sessions there are.
///
/// One call and one session at a time, which the process that records begins and ends: RecordedElsewhere in any other.
/// Both can always be ended. An end that cannot be written is owed: the moment is kept here, every figure of this
/// process counts up to it, and it is written before anything else is; a row that somebody has removed will not come
/// back, and the totals count it all the same. The end of this ends both.
class Ledger
{
public:
    /// How often checkpoint() is called at least while a call is connected or a session runs: a crash may lose 10 s.
    static constexpr int checkpointIntervalMs = 5000;

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
    /// written of it, and the card has been off.
    bool record();
    /// What who wants this process to record is told when it does not: RecordedElsewhere, or StorageFailed when it has
    /// taken that over and cannot write what another has left.
    int whyNotRecording() const;

    // --- the call

    /// Whether a call like this may begin: NotAllowed where it would be charged and nothing more may be.
    int permits(const PastCall &call);
    /// The call has been connected now; its duration and units are not used. InvalidArgument for one of no known kind or
    /// direction, WrongState while another is connected, NotAllowed as above.
    int beginCall(const PastCall &call);
    /// The connected call has ended now; WrongState without one. It is over whatever else this returns.
    int endCall();
    /// A call has ended that was never connected. InvalidArgument as above; it is over whatever else this returns.
    int addUnconnected(const PastCall &call);
    /// Adds calls that are over, in their order, counted and charged as if they had been made. The last connected one
    /// becomes the last call unless a call is connected now. InvalidArgument as above.
    int addHistory(const QList<PastCall> &calls);
    bool isConnected() const { return ownCall && !callEnded; }
    bool owesCall() const { return callEnded || !unconnected.isEmpty(); }

    // --- the packet-data session

    int beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond);
    int endSession();
    bool isSessionRunning() const { return ownSession && !sessionEnded; }
    bool owesSession() const { return sessionEnded.has_value(); }

    // --- what is asked: up to now

    /// Of calls: milliseconds or units.
    int figure(Total total, qint64 &value);
    /// The card with what has been charged: what is due on the running call comes with its next checkpoint.
    int card(charging::SimCard &card);
    /// What has become due on the running call and is not written yet; 0 without one.
    quint32 dueUnits();
    /// The `most` sessions that began last, the newest first.
    int sessions(int most, QList<SessionRow> &sessions);
    int sessionTotals(SessionAmounts &amounts);
    /// What `look` answers of the running call, and of what calls are charged by and charged to, with what is due on the
    /// running one.
    int ask(const std::function<int(const Standing &now)> &look);
    /// The same to look at: as of a new handset when it cannot be read.
    Standing standing();

    // --- what is changed

    /// Changes the state that it is given, or returns why not.
    using Change = std::function<int(charging::ChargingState &state)>;
    /// Writes how far the running call is and what has become due on it, and then what `change` makes of the state; then
    /// `zeroed` totals of calls are 0. All of that in one transaction.
    int edit(const Change &change, std::initializer_list<Total> zeroed = {});
    /// Zeroes totals of calls.
    int reset(std::initializer_list<Total> zeroed);
    /// The same of sessions.
    int resetSessions(std::initializer_list<Total> zeroed);
    /// Changes what the card keeps beside its files, and writes nothing else.
    int editCard(const std::function<int(charging::SimCard &card)> &change);
    /// Writes what is owed, and how far the running call is and what it costs; success with none of them.
    int checkpoint();
    int checkpointSession();

    /// For who looks at the file beside.
    Database &connection() { return *database; }
    /// What the call log had to tell of its opening; else the next start tells it again.
    void noticeIsTold();

    /// Called when something has been changed by edit(), a reset, or the beginning or end of a session.
    void setChangeListener(std::function<void()> listener) { onChange = std::move(listener); }

private:
    struct Entry;

    Moment nowFor(bool isOwn) const;
    Moment callsNow() const { return callEnded ? *callEnded : nowFor(ownCall.has_value()); }
    Moment sessionsNow() const { return sessionEnded ? *sessionEnded : nowFor(ownSession.has_value()); }
    template <typename Work>
    int transact(Work work, RepeatedWrite *end = nullptr);
    bool write(Entry &entry);
    bool putHistory(const QList<PastCall> &calls, Entry &entry);
    int transactSession(std::initializer_list<Total> zeroed, RepeatedWrite *end = nullptr);
    int writeOwedCall();
    int writeOwedSession();
    int find(Traces &traces);
    bool putNewInPlaceOf(const Traces &traces, QStringList &notices);
    bool putChecks();
    int changed(int status) const;

    // The order matters: statements go before their connection, the connection before the lock.
    std::unique_ptr<StateDirectory> directory;
    std::unique_ptr<Database> database;
    LedgerTables tables;
    std::unique_ptr<Clock> clock;
    bool recording = false;
    // What this has begun, as it was written last: its row is what counts, as long as nobody removes that.
    std::optional<RunningCall> ownCall;
    std::optional<SessionRow> ownSession;
    // Ends that are not written yet.
    std::optional<Moment> callEnded;
    std::optional<Moment> sessionEnded;
    QList<PastCall> unconnected;
    RepeatedWrite callEnd;
    RepeatedWrite sessionEnd;
    std::function<void()> onChange;
};

} // namespace handset::calllog
