#include "CallRecorder.h"

#include "Saturating.h"
#include "Status.h"

namespace handset::calllog {

CallRecorder::CallRecorder(std::unique_ptr<CallStore> callStore, std::shared_ptr<Clock> clocks)
    : store(std::move(callStore))
    , clock(std::move(clocks))
{}

CallRecorder::~CallRecorder()
{
    if (running)
        callEnded();
}

// Time is added reading by reading, so that a clock that goes back takes nothing away that was already reported.
void CallRecorder::readClock() const
{
    const qint64 now = clock->monotonicMs();
    running->unwritten.ms = saturatingSum(running->unwritten.ms, elapsed(running->lastReading, now));
    running->lastReading = now;
}

int CallRecorder::callConnected(const PastCall &call)
{
    if (running)
        return WrongState;
    RunningCall begun;
    const int status = store->beginCall(call, begun.unwritten.call);
    if (status != Success)
        return status;
    begun.unwritten.own = ownCounter(call.kind, call.direction);
    begun.lastReading = clock->monotonicMs();
    running = begun;
    return Success;
}

int CallRecorder::callEnded()
{
    if (!running)
        return WrongState;
    readClock();
    const int status = store->finishCall(running->unwritten);
    if (status == Success)
        running.reset();
    return status;
}

int CallRecorder::callNotConnected(const PastCall &call)
{
    return store->addUnconnected(call);
}

int CallRecorder::addHistory(const QList<PastCall> &calls)
{
    return store->addHistory(calls, !running);
}

int CallRecorder::checkpoint()
{
    if (!running)
        return Success;
    readClock();
    const int status = store->countTime(running->unwritten);
    if (status == Success) {
        running->writtenMs = saturatingSum(running->writtenMs, running->unwritten.ms);
        running->unwritten.ms = 0;
    }
    return status;
}

qint64 CallRecorder::connectedMs() const
{
    if (!running)
        return 0;
    readClock();
    return saturatingSum(running->writtenMs, running->unwritten.ms);
}

int CallRecorder::figure(Counter counter, qint64 &ms) const
{
    qint64 stored = 0;
    const int status = store->total(counter, stored);
    if (status != Success)
        return status;
    if (running)
        readClock();
    const bool counts = running && (counter == Counter::Last || counter == Counter::All ||
                                    counter == Counter::Lifetime || counter == running->unwritten.own);
    ms = counts ? saturatingSum(stored, running->unwritten.ms) : stored;
    return Success;
}

int CallRecorder::reset(std::initializer_list<Counter> counters)
{
    if (running)
        readClock();
    const int status = store->reset({counters.begin(), counters.size()}, running ? &running->unwritten : nullptr);
    if (status != Success)
        return status;
    if (running) {
        running->writtenMs = saturatingSum(running->writtenMs, running->unwritten.ms);
        running->unwritten.ms = 0;
    }
    if (onReset)
        onReset();
    return Success;
}

} // namespace handset::calllog
