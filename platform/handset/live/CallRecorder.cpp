#include "live/CallRecorder.h"

#include "calllog/Saturating.h"

#include <algorithm>
#include <utility>

namespace handset::live {

namespace {

/// How far two processes may be apart about when a call began, by the wall clock.
constexpr qint64 sameCallMs = 60'000;

bool isConnected(CallPhase phase)
{
    switch (phase) {
    case CallPhase::Active:
    case CallPhase::Held:
        return true;
    case CallPhase::Dialing:
    case CallPhase::Alerting:
    case CallPhase::Incoming:
    case CallPhase::Waiting:
    case CallPhase::Over:
        return false;
    }
    return false;
}

// One of which nothing is known is taken for a dialed one.
CallDirection directionOf(const ReportedCall &call)
{
    if (call.direction)
        return *call.direction;
    const bool comesIn = call.phase == CallPhase::Incoming || call.phase == CallPhase::Waiting;
    return comesIn ? CallDirection::Answered : CallDirection::Dialed;
}

} // namespace

CallRecorder::CallRecorder(calllog::Ledger &owner, const Clock &clocks, calllog::Charge how)
    : ledger(owner)
    , clock(clocks)
    , chargeNow(how)
{}

bool CallRecorder::report(const ReportedCall &call)
{
    const bool isNew = !calls.contains(call.id);
    if (call.phase == CallPhase::Over && isNew)
        return false;
    Followed &followed = calls[call.id];
    const bool wasConnected = followed.connectedAtMs.has_value();
    const QString number = call.number.isEmpty() ? followed.call.number : call.number;
    followed.call = call;
    followed.call.number = number;
    if (isNew) {
        followed.direction = directionOf(call);
        followed.startWallMs = call.connectedWallMs.value_or(clock.wallMs());
    }
    if (call.phase == CallPhase::Over)
        return gone(call.id);
    if (isConnected(call.phase) && !wasConnected) {
        connect(followed);
        begin(followed);
    }
    return isNew || wasConnected != followed.connectedAtMs.has_value();
}

// A call that was found has been connected for as long as the daemon says, or else nobody knows how long.
void CallRecorder::connect(Followed &followed) const
{
    followed.connectedAtMs = clock.monotonicMs();
    followed.beforeMs = followed.call.connectedBeforeMs;
    followed.charge = chargeNow;
    if (chargeNow == calllog::Charge::Measured)
        followed.cost = std::make_shared<Cost>();
    if (!followed.call.isFound)
        return;
    followed.mayBeKnown = true;
    if (followed.call.connectedWallMs)
        followed.beforeMs = calllog::elapsed(*followed.call.connectedWallMs, clock.wallMs());
    else
        followed.isLate = true;
}

qint64 CallRecorder::connectedMs(const Followed &followed) const
{
    return calllog::saturatingSum(followed.beforeMs,
                                  calllog::elapsed(*followed.connectedAtMs, clock.monotonicMs()));
}

std::optional<qint64> CallRecorder::connectedMs(const QString &id) const
{
    const auto found = calls.constFind(id);
    return found != calls.constEnd() && found->connectedAtMs ? std::optional(connectedMs(*found)) : std::nullopt;
}

PastCall CallRecorder::asPast(const Followed &followed, qint64 ms) const
{
    PastCall past;
    past.direction = followed.direction;
    past.number = followed.call.number;
    past.startWallMs = followed.startWallMs;
    past.durationMs = calllog::elapsed(followed.othersMs, ms);
    past.isLate = followed.isLate;
    return past;
}

// What a recorder that has ended before the call did, or has heard of its end sooner, has counted of it stays counted
// there. False when that cannot be read.
bool CallRecorder::takeOffKnown(PastCall &call, const std::shared_ptr<Cost> &cost, bool isFound)
{
    calllog::Counted counted;
    if (ledger.counted(call, call.startWallMs - sameCallMs, counted) != Success)
        return false;
    call.durationMs = calllog::elapsed(counted.ms, call.durationMs);
    // Of a call that was found the meter is read from then on.
    if (cost && !isFound)
        cost->known = static_cast<quint32>(std::min<qint64>(counted.units, cost->units));
    return true;
}

// What began nobody knows when cannot be found in the rows of the one who has recorded it until now: it counts from now on.
void CallRecorder::takeOver(Followed &followed) const
{
    if (!std::exchange(followed.isOthers, false))
        return;
    followed.mayBeKnown = false;
    followed.othersMs = connectedMs(followed);
    if (followed.cost)
        followed.cost->known = followed.cost->units;
}

void CallRecorder::begin(Followed &followed)
{
    if (!ledger.record()) {
        followed.mayBeKnown = true;
        followed.isOthers =
            followed.isOthers || (followed.isLate && ledger.whyNotRecording() == RecordedElsewhere);
        return;
    }
    takeOver(followed);
    ledger.repeat(again, [&] {
        PastCall call = asPast(followed, connectedMs(followed));
        if (followed.mayBeKnown && !takeOffKnown(call, followed.cost, followed.call.isFound))
            return int{StorageFailed};
        return ledger.beginCall(call, followed.row, followed.charge);
    });
    if (followed.row == 0 || !followed.cost)
        return;
    followed.cost->row = followed.row;
    charge(followed.cost, 0);
}

bool CallRecorder::retry()
{
    bool any = writeUnwritten();
    any = writeCosts() || any;
    for (Followed &followed : calls) {
        if (followed.connectedAtMs && followed.row == 0) {
            begin(followed);
            any = any || followed.row != 0;
        }
    }
    return any;
}

// What nobody records is this process's to keep, whether or not it can be written now.
void CallRecorder::finish(Followed &followed)
{
    if (followed.row != 0) {
        ledger.endCall(followed.row);
        return;
    }
    if (!ledger.record()) {
        if (ledger.whyNotRecording() == RecordedElsewhere)
            return;
        followed.mayBeKnown = true;
    }
    if (followed.isOthers)
        return;
    unwritten.append({asPast(followed, followed.connectedAtMs ? connectedMs(followed) : 0), followed.charge,
                      followed.mayBeKnown && followed.connectedAtMs.has_value(), followed.cost});
    writeUnwritten();
}

int CallRecorder::write(Over over)
{
    if (over.mayBeKnown) {
        const qint64 wholeMs = over.call.durationMs;
        if (!takeOffKnown(over.call, over.cost, false))
            return StorageFailed;
        if (over.call.durationMs == 0 && wholeMs > 0)
            return Success;
    }
    if (over.cost)
        over.call.units = over.cost->units - over.cost->known;
    qint64 row = 0;
    const int status = ledger.addHistory({over.call}, over.charge, &row);
    if (status == Success && over.cost)
        over.cost->row = row;
    return status;
}

// In their order, each by itself: what has been written is no longer owed.
bool CallRecorder::writeUnwritten()
{
    bool any = false;
    while (!unwritten.isEmpty() && ledger.record()) {
        if (ledger.repeat(again, [&] { return write(unwritten.constFirst()); }) != Success)
            return any;
        unwritten.removeFirst();
        any = true;
    }
    return any;
}

bool CallRecorder::charge(const std::shared_ptr<Cost> &cost, quint32 more)
{
    cost->units += more;
    if (cost->row == 0 || cost->units == 0)
        return false;
    if (!owedCosts.contains(cost))
        owedCosts.append(cost);
    return writeCosts();
}

// A row that somebody has removed costs nothing.
bool CallRecorder::writeCosts()
{
    bool any = false;
    while (!owedCosts.isEmpty()) {
        const Cost &cost = *owedCosts.constFirst();
        const int status =
            ledger.repeat(again, [&] { return ledger.setUnits(cost.row, cost.units - cost.known); });
        if (status == StorageFailed)
            return any;
        any = any || status == Success;
        owedCosts.removeFirst();
    }
    return any;
}

bool CallRecorder::gone(const QString &id)
{
    const auto found = calls.find(id);
    if (found == calls.end())
        return false;
    finish(*found);
    calls.erase(found);
    return true;
}

bool CallRecorder::allGone()
{
    const bool any = !calls.isEmpty();
    for (Followed &followed : calls)
        finish(followed);
    calls.clear();
    return any;
}

QList<ReportedCall> CallRecorder::reported() const
{
    QList<ReportedCall> all;
    for (const Followed &followed : calls)
        all.append(followed.call);
    return all;
}

} // namespace handset::live
