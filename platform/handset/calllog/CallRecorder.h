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
/// the recorder ends the connected call.
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
    /// The connected call has ended now; WrongState without one.
    int callEnded();
    /// A call has ended that was never connected.
    int callNotConnected(const PastCall &call);
    int addHistory(const QList<PastCall> &calls, const KeptValues &kept = {});
    /// Writes the time that the connected call has lasted so far, and what it costs; success without one.
    int checkpoint();

    bool isConnected() const { return running.has_value(); }
    /// How long the connected call has lasted, in milliseconds; 0 without one. It does not grow beyond
    /// CallCharges::longestMs().
    qint64 connectedMs() const;

    /// Milliseconds, up to now.
    int figure(Counter counter, qint64 &ms) const;
    /// What the connected call's cost adds to beside the last call's; nothing for a data call, and without one.
    std::optional<CostCounter> runningCostCounter() const;
    /// Units, as written.
    int cost(CostCounter counter, qint64 &units) const;
    /// Zeroes the counters and keeps the values; of a running call only the time from now on counts. A charge that is
    /// due is left due: checkpoint() first where it is to count before the reset.
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

    void readClock() const;
    Charge due() const;
    void timeIsWritten();
    void written(const Charge &charge);

    std::unique_ptr<CallStore> store;
    std::shared_ptr<Clock> clock;
    CallCharges *charges;
    mutable std::optional<RunningCall> running; ///< a query reads the clock, too
    DataCalls::CallStatus dataStatus = DataCalls::Idle;
    std::function<void()> onChange;
};

} // namespace handset::calllog
