#include "CallRecorder.h"

#include "Saturating.h"
#include "Status.h"

#include <algorithm>

namespace handset::calllog {

namespace {

bool countsIn(Counter counter, Counter own)
{
    return counter == Counter::Last || counter == Counter::All || counter == Counter::Lifetime || counter == own;
}

bool countsIn(CostCounter counter, Counter own)
{
    return counter == CostCounter::Last || counter == ownCostCounter(own);
}

// Whatever else could never be written.
bool isRecordable(const PastCall &call)
{
    return isKnown(call.kind) && isKnown(call.direction);
}

} // namespace

CallRecorder::CallRecorder(std::unique_ptr<CallStore> callStore, std::shared_ptr<Clock> clocks,
                           CallCharges *callCharges)
    : store(std::move(callStore))
    , clock(std::move(clocks))
    , charges(callCharges)
{}

CallRecorder::~CallRecorder()
{
    owedWrite = {}; // what cannot be written now is lost, and that is told
    if (running)
        callEnded();
    else
        writeOwed();
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

// In the order of the calls. What has been written is no longer owed, whatever becomes of the rest.
int CallRecorder::writeOwed()
{
    if (owed) {
        if (const int status = store->finishCall(owed->time, owed->charge, owedWrite))
            return status;
        owed.reset();
    }
    if (!owedUnconnected.isEmpty()) {
        if (const int status = store->addUnconnected(owedUnconnected, owedWrite))
            return status;
        owedUnconnected.clear();
    }
    return Success;
}

int CallRecorder::callConnected(const PastCall &call)
{
    if (!isRecordable(call))
        return InvalidArgument;
    if (running)
        return WrongState;
    if (const int status = writeOwed())
        return status;
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
    owed = OwedEnd{running->unwritten, due()};
    if (charges)
        charges->charged(owed->charge);
    running.reset();
    return writeOwed();
}

int CallRecorder::callNotConnected(const PastCall &call)
{
    if (!isRecordable(call))
        return InvalidArgument;
    owedUnconnected.append(call);
    return writeOwed();
}

int CallRecorder::addHistory(const QList<PastCall> &calls, const KeptValues &values)
{
    return std::all_of(calls.begin(), calls.end(), isRecordable) ? store->addHistory(calls, !running, values)
                                                                 : int{InvalidArgument};
}

int CallRecorder::checkpoint()
{
    if (const int status = writeOwed())
        return status;
    if (!running)
        return Success;
    readClock();
    const Charge charge = due();
    if (const int status = store->countTime(running->unwritten, charge))
        return status;
    running->writtenMs = saturatingSum(running->writtenMs, running->unwritten.ms);
    running->unwritten.ms = 0;
    if (charges)
        charges->charged(charge);
    return Success;
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
    const UnwrittenTime *const unwritten = running ? &running->unwritten : owed ? &owed->time : nullptr;
    ms = unwritten && countsIn(counter, unwritten->own) ? saturatingSum(stored, unwritten->ms) : stored;
    return Success;
}

std::optional<CostCounter> CallRecorder::runningCostCounter() const
{
    return running ? ownCostCounter(running->unwritten.own) : std::nullopt;
}

int CallRecorder::cost(CostCounter counter, qint64 &units) const
{
    qint64 stored = 0;
    if (const int status = store->cost(counter, stored))
        return status;
    units = owed && countsIn(counter, owed->time.own) ? saturatingSum(stored, owed->charge.units) : stored;
    return Success;
}

int CallRecorder::reset(std::initializer_list<Counter> times, std::initializer_list<CostCounter> costs,
                        const KeptValues &values)
{
    const int status = store->reset({{times.begin(), times.size()}, {costs.begin(), costs.size()}, values});
    if (status != Success)
        return status;
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
