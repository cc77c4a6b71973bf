// Measures the call on the line and keeps the log and the totals up to date with it.
#pragma once

#include "Call.h"
#include "CallStore.h"
#include "Clock.h"
#include "DataCalls.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>

namespace handset::calllog {

/// One call at a time. Operations answer a number of handset/Status.h; a failed one has changed nothing. The end of
/// the recorder ends the connected call. A call of no known kind or direction is InvalidArgument.
///
/// A call can always be ended: an end that cannot be written is kept here, counts in every figure, and is written with
/// the next operation that writes. Until then each of these fails, checkpoint() and callConnected() among them.
class CallRecorder
{
public:
    /// How often checkpoint() is called at least while a call is connected: it may lose 10 s at the most.
    static constexpr int checkpointIntervalMs = 5000;

    /// Neither of the first two is null; `charges` is null where calls cost nothing, and outlives this.
    CallRecorder(std::unique_ptr<CallStore> store, std::shared_ptr<Clock> clock, CallCharges *charges = nullptr);
    ~CallRecorder();
    CallRecorder(const CallRecorder &) = delete;
    CallRecorder &operator=(const CallRecorder &) = delete;

    /// The call has been connected now; WrongState while another one is. Only one that answers Success is counted.
    int callConnected(const PastCall &call);
    /// The connected call has ended now; WrongState without one. It is over whatever else this answers: StorageFailed
    /// is one that is kept, see above.
    int callEnded();
    /// A call has ended that was never connected. StorageFailed as above.
    int callNotConnected(const PastCall &call);
    /// Whether the end of a call is kept that could not be written yet.
    bool owesEnd() const { return owed || !owedUnconnected.isEmpty(); }
    int addHistory(const QList<PastCall> &calls, const KeptValues &kept = {});
    /// Writes what is owed, and the time that the connected call has lasted so far with what it costs; success with
    /// none of them.
    int checkpoint();

    bool isConnected() const { return running.has_value(); }
    /// How long the connected call has lasted, in milliseconds; 0 without one. It does not grow beyond
    /// CallCharges::longestMs().
    qint64 connectedMs() const;

    /// Milliseconds, up to now.
    int figure(Counter counter, qint64 &ms) const;
    /// What the connected call's cost adds to beside the last call's; nothing for a data call, and without one.
    std::optional<CostCounter> runningCostCounter() const;
    /// Units, as charged.
    int cost(CostCounter counter, qint64 &units) const;
    /// Zeroes the counters and keeps the values. Of a running call what follows its last checkpoint() goes on to count:
    /// that comes first, so that its time and its charge are written together.
    int reset(std::initializer_list<Counter> times, std::initializer_list<CostCounter> costs = {},
              const KeptValues &kept = {});
    /// As CallStore::keep(), CallStore::kept().
    int keep(const KeptValues &values);
    int kept(const QString &name, QByteArray &content) const;

    /// The database that the calls are in.
    Database &connection() { return store->connection(); }

    /// For the data-call status byte.
    void setDataCallStatus(DataCalls::CallStatus status) { dataStatus = status; }
    DataCalls::CallStatus dataCallStatus() const { return dataStatus; }

    /// Called after a reset, and after values have been kept.
    void setChangeListener(std::function<void()> listener) { onChange = std::move(listener); }

private:
    struct RunningCall {
        UnwrittenTime unwritten;
        qint64 writtenMs = 0;
        qint64 lastReading = 0; ///< of the monotonic clock
    };

    /// The end of a connected call that is not in the database yet.
    struct OwedEnd {
        UnwrittenTime time;
        Charge charge;
    };

    void readClock() const;
    Charge due() const;
    int writeOwed();

    std::unique_ptr<CallStore> store;
    std::shared_ptr<Clock> clock;
    CallCharges *charges;
    mutable std::optional<RunningCall> running; ///< a query reads the clock, too
    std::optional<OwedEnd> owed;                ///< there is no running call then
    QList<PastCall> owedUnconnected;
    RepeatedWrite owedWrite;
    DataCalls::CallStatus dataStatus = DataCalls::Idle;
    std::function<void()> onChange;
};

} // namespace handset::calllog
