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

    /// Neither is null.
    CallRecorder(std::unique_ptr<CallStore> store, std::shared_ptr<Clock> clock);
    ~CallRecorder();
    CallRecorder(const CallRecorder &) = delete;
    CallRecorder &operator=(const CallRecorder &) = delete;

    /// The call has been connected now; WrongState while another one is. Only one that answers Success is counted.
    int callConnected(const PastCall &call);
    /// The connected call has ended now; WrongState without one.
    int callEnded();
    /// A call has ended that was never connected.
    int callNotConnected(const PastCall &call);
    int addHistory(const QList<PastCall> &calls);
    /// Writes the time that the connected call has lasted so far; success without one.
    int checkpoint();

    bool isConnected() const { return running.has_value(); }
    /// How long the connected call has lasted, in milliseconds; 0 without one.
    qint64 connectedMs() const;

    /// Milliseconds, up to now.
    int figure(Counter counter, qint64 &ms) const;
    /// Zeroes the counters; of a running call only the time from now on counts for them.
    int reset(std::initializer_list<Counter> counters);

    /// For the data-call status byte.
    void setDataCallStatus(DataCalls::CallStatus status) { dataStatus = status; }
    DataCalls::CallStatus dataCallStatus() const { return dataStatus; }

    /// Called after a reset.
    void setResetListener(std::function<void()> listener) { onReset = std::move(listener); }

private:
    struct RunningCall {
        UnwrittenTime unwritten;
        qint64 writtenMs = 0;
        qint64 lastReading = 0; ///< of the monotonic clock
    };

    void readClock() const;

    std::unique_ptr<CallStore> store;
    std::shared_ptr<Clock> clock;
    mutable std::optional<RunningCall> running; ///< a query reads the clock, too
    DataCalls::CallStatus dataStatus = DataCalls::Idle;
    std::function<void()> onReset;
};

} // namespace handset::calllog
