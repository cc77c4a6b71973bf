#include "live/CallRecorder.h"

#include "calllog/Saturating.h"

#include <algorithm>

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
    , charge(how)
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
    followed.charge = charge;
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
    past.durationMs = ms;
    past.isLate = followed.isLate;
    return past;
}

// What a recorder that has ended before the call did has counted of it stays counted there.
void CallRecorder::begin(Followed &followed)
{
    PastCall call = asPast(followed, connectedMs(followed));
    if (!ledger.record()) {
        followed.mayBeKnown = true;
        return;
    }
    if (followed.mayBeKnown) {
        qint64 counted = 0;
        if (ledger.interrupted(call, call.startWallMs - sameCallMs, counted) != Success)
            return;
        call.durationMs = calllog::elapsed(counted, call.durationMs);
    }
    ledger.beginCall(call, followed.row, followed.charge);
}

void CallRecorder::retry()
{
    writeUnwritten();
    for (Followed &followed : calls)
        if (followed.connectedAtMs && followed.row == 0)
            begin(followed);
}

void CallRecorder::finish(const Followed &followed)
{
    if (followed.row != 0) {
        ledger.endCall(followed.row);
    } else if (ledger.record()) {
        unwritten.append({asPast(followed, followed.connectedAtMs ? connectedMs(followed) : 0), followed.charge});
        writeUnwritten();
    }
}

// In their order, each by itself: what has been written is no longer owed.
void CallRecorder::writeUnwritten()
{
    while (!unwritten.isEmpty()) {
        const auto &[call, how] = unwritten.constFirst();
        if (ledger.addHistory({call}, how) != Success)
            return;
        unwritten.removeFirst();
    }
}

bool CallRecorder::gone(const QString &id)
{
    const auto found = calls.constFind(id);
    if (found == calls.constEnd())
        return false;
    finish(*found);
    calls.erase(found);
    return true;
}

bool CallRecorder::allGone()
{
    const bool any = !calls.isEmpty();
    for (const Followed &followed : std::as_const(calls))
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
