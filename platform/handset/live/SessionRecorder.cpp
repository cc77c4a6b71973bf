#include "live/SessionRecorder.h"

#include "calllog/Saturating.h"
#include "handset/PacketData.h"
#include "handset/Status.h"

#include <utility>

namespace handset::live {

namespace {

/// As of calls: how far two processes may be apart about when a session began, by the wall clock.
constexpr qint64 sameSessionMs = 60'000;

// From one reading of a counter to the next; one that shows less has begun anew.
qint64 added(qint64 before, qint64 now)
{
    return now < before ? now : now - before;
}

// What the phone's record has room for; the ledger wants one.
QByteArray shownApn(const QByteArray &apn)
{
    const QByteArray shown = apn.split('\0').constFirst().left(DataSession::longestApn);
    return shown.isEmpty() ? QByteArray("-") : shown;
}

} // namespace

std::optional<Bytes> SessionRecorder::readingOf(const Followed &followed) const
{
    return followed.session.counted ? followed.session.counted : counters.read(followed.session.interface);
}

// An interface that is not there yet begins at 0 when it comes.
void SessionRecorder::read(Followed &followed) const
{
    const std::optional<Bytes> now = readingOf(followed);
    if (!now)
        return;
    const Bytes before = followed.read.value_or(Bytes{});
    const Bytes more{added(before.sent, now->sent), added(before.received, now->received)};
    for (Bytes *counted : {&followed.unwritten, &followed.all}) {
        counted->sent = calllog::saturatingSum(counted->sent, more.sent);
        counted->received = calllog::saturatingSum(counted->received, more.received);
    }
    followed.read = now;
}

bool SessionRecorder::report(const ReportedSession &session)
{
    const bool isNew = !sessions.contains(session.id);
    Followed &followed = sessions[session.id];
    // Another counter than before: what that had counted until now is this session's, what this one shows now is not.
    const bool isOtherCounter = !isNew && (session.interface != followed.session.interface ||
                                           session.counted.has_value() != followed.session.counted.has_value());
    if (isOtherCounter)
        read(followed);
    followed.session = session;
    if (isNew) {
        followed.seenAtMs = clock.monotonicMs();
        followed.startWallMs = session.sinceWallMs.value_or(clock.wallMs());
        followed.mayBeKnown = session.isFound;
        // The daemon counts this connection, the kernel whatever went through the interface before.
        followed.read = session.counted ? Bytes{} : counters.read(session.interface);
        begin(followed);
    } else if (isOtherCounter) {
        followed.read = readingOf(followed);
    }
    return isNew;
}

// What it has come to until now.
SessionRecorder::Over SessionRecorder::asOver(const Followed &followed) const
{
    Over over{shownApn(followed.session.apn),
              followed.startWallMs,
              {calllog::elapsed(followed.seenAtMs, clock.monotonicMs()), followed.unwritten.sent,
               followed.unwritten.received},
              followed.mayBeKnown};
    if (followed.session.isFound)
        over.amounts.ms = calllog::saturatingSum(over.amounts.ms, followed.session.ms.value_or(0));
    over.amounts.ms = calllog::elapsed(followed.othersMs, over.amounts.ms);
    return over;
}

// Without what others have counted of it. One of which they have counted all gets no row, and `row` stays as it is.
int SessionRecorder::insert(Over over, qint64 &row)
{
    if (over.mayBeKnown) {
        calllog::SessionAmounts known;
        if (ledger.counted(over.apn, over.startWallMs - sameSessionMs, over.startWallMs, known) != Success)
            return StorageFailed;
        calllog::SessionAmounts &amounts = over.amounts;
        const qint64 wholeMs = amounts.ms;
        amounts = {calllog::elapsed(known.ms, amounts.ms), calllog::elapsed(known.sent, amounts.sent),
                   calllog::elapsed(known.received, amounts.received)};
        if (wholeMs > 0 && amounts.ms == 0 && amounts.sent == 0 && amounts.received == 0)
            return Success;
    }
    return ledger.beginSession(over.apn, 0, 0, row, over.amounts);
}

// As of calls.
void SessionRecorder::takeOver(Followed &followed) const
{
    read(followed);
    if (!std::exchange(followed.isOthers, false))
        return;
    followed.mayBeKnown = false;
    followed.othersMs = asOver(followed).amounts.ms;
    followed.unwritten = {};
}

void SessionRecorder::begin(Followed &followed)
{
    if (!ledger.record()) {
        followed.mayBeKnown = true;
        const bool isOfUnknownStart = followed.session.isFound && !followed.session.sinceWallMs;
        followed.isOthers =
            followed.isOthers || (isOfUnknownStart && ledger.whyNotRecording() == RecordedElsewhere);
        return;
    }
    takeOver(followed);
    ledger.repeat(again, [&] { return insert(asOver(followed), followed.row); });
    if (followed.row != 0)
        followed.unwritten = {};
}

bool SessionRecorder::write(Followed &followed)
{
    const Bytes &more = followed.unwritten;
    if (more.sent == 0 && more.received == 0)
        return false;
    if (ledger.repeat(again, [&] { return ledger.addBytes(followed.row, more.sent, more.received); }) != Success)
        return false;
    followed.unwritten = {};
    return true;
}

bool SessionRecorder::count()
{
    bool any = writeUnwritten();
    for (Followed &followed : sessions) {
        if (followed.row == 0) {
            begin(followed);
            any = any || followed.row != 0;
        } else {
            read(followed);
            any = write(followed) || any;
        }
    }
    return any;
}

// What nobody records is this process's to keep, whether or not it can be written now.
void SessionRecorder::finish(Followed &followed)
{
    read(followed);
    if (followed.row != 0) {
        ledger.endSession(followed.row, followed.unwritten.sent, followed.unwritten.received);
        return;
    }
    if (!ledger.record()) {
        if (ledger.whyNotRecording() == RecordedElsewhere)
            return;
        followed.mayBeKnown = true;
    }
    if (followed.isOthers)
        return;
    unwritten.append(asOver(followed));
    writeUnwritten();
}

bool SessionRecorder::writeUnwritten()
{
    bool any = false;
    while (!unwritten.isEmpty() && ledger.record()) {
        qint64 row = 0;
        if (ledger.repeat(again, [&] { return insert(unwritten.constFirst(), row); }) != Success)
            return any;
        if (row != 0)
            ledger.endSession(row);
        unwritten.removeFirst();
        any = true;
    }
    return any;
}

bool SessionRecorder::gone(const QString &id)
{
    const auto found = sessions.find(id);
    if (found == sessions.end())
        return false;
    finish(*found);
    sessions.erase(found);
    return true;
}

bool SessionRecorder::allGone()
{
    const bool any = !sessions.isEmpty();
    for (Followed &followed : sessions)
        finish(followed);
    sessions.clear();
    return any;
}

std::optional<Bytes> SessionRecorder::bytesOf(const QString &id) const
{
    const auto found = sessions.constFind(id);
    return found != sessions.constEnd() && found->row != 0 ? std::optional(found->all) : std::nullopt;
}

QList<ReportedSession> SessionRecorder::reported() const
{
    QList<ReportedSession> all;
    for (const Followed &followed : sessions)
        all.append(followed.session);
    return all;
}

} // namespace handset::live
