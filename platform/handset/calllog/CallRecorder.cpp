#include "CallRecorder.h"

#include "Saturating.h"
#include "Status.h"

#include <algorithm>

namespace handset::calllog {

CallRecorder::CallRecorder(std::unique_ptr<CallStore> callStore, std::shared_ptr<Clock> clocks,
                           CallCharges *callCharges)
    : store(std::move(callStore))
    , clock(std::move(clocks))
    , charges(callCharges)
{}

CallRecorder::~CallRecorder()
{
    if (running)
        callEnded();
}

// Time is added reading by reading, so that a clock that goes back takes nothing away that was already reported. The
// same holds for an end that is set to a moment that has gone by.
void CallRecorder::readClock() const
{
    const qint64 now = clock->monotonicMs();
    qint64 passed = elapsed(running->lastReading, now);
    running->lastReading = now;
    const qint64 before = saturatingSum(running->writtenMs, running->unwritten.ms);
    if (const std::optional<qint64> longest = charges ? charges->longestMs() : std::nullopt)
        passed = std::min(passed, elapsed(before, *longest));
    running->unwritten.ms = saturatingSum(running->unwritten.ms, passed);
}

Charge CallRecorder::due() const
{
    return charges ? charges->due(saturatingSum(running->writtenMs, running->unwritten.ms)) : Charge{};
}

void CallRecorder::timeIsWritten()
{
    running->writtenMs = saturatingSum(running->writtenMs, running->unwritten.ms);
    running->unwritten.ms = 0;
}

void CallRecorder::written(const Charge &charge)
{
    timeIsWritten();
    if (charges)
        charges->written(charge);
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
    const Charge charge = due();
    const int status = store->finishCall(running->unwritten, charge);
    if (status != Success)
        return status;
    written(charge);
    running.reset();
    return Success;
}

int CallRecorder::callNotConnected(const PastCall &call)
{
    return store->addUnconnected(call);
}

int CallRecorder::addHistory(const QList<PastCall> &calls, const KeptValues &values)
{
    return store->addHistory(calls, !running, values);
}

int CallRecorder::checkpoint()
{
    if (!running)
        return Success;
    readClock();
    const Charge charge = due();
    const int status = store->countTime(running->unwritten, charge);
    if (status == Success)
        written(charge);
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

std::optional<CostCounter> CallRecorder::runningCostCounter() const
{
    return running ? ownCostCounter(running->unwritten.own) : std::nullopt;
}

int CallRecorder::cost(CostCounter counter, qint64 &units) const
{
    return store->cost(counter, units);
}

int CallRecorder::reset(std::initializer_list<Counter> times, std::initializer_list<CostCounter> costs,
                        const KeptValues &values)
{
    if (running)
        readClock();
    const ResetPlan plan{{times.begin(), times.size()}, {costs.begin(), costs.size()}, values};
    const int status = store->reset(plan, running ? &running->unwritten : nullptr);
    if (status != Success)
        return status;
    if (running)
        timeIsWritten();
    if (onChange)
        onChange();
    return Success;
}

int CallRecorder::keep(const KeptValues &values)
{
    const int status = store->keep(values);
    if (status == Success && onChange)
        onChange();
    return status;
}

int CallRecorder::kept(const QString &name, QByteArray &content) const
{
    return store->kept(name, content);
}

} // namespace handset::calllog
