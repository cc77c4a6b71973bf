#include "live/SessionRecorder.h"

#include "calllog/Saturating.h"
#include "handset/PacketData.h"

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
    followed.unwritten.sent = calllog::saturatingSum(followed.unwritten.sent, added(before.sent, now->sent));
    followed.unwritten.received =
        calllog::saturatingSum(followed.unwritten.received, added(before.received, now->received));
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

void SessionRecorder::begin(Followed &followed)
{
    if (!ledger.record()) {
        followed.mayBeKnown = true;
        return;
    }
    const QByteArray apn = shownApn(followed.session.apn);
    const qint64 seenMs = calllog::elapsed(followed.seenAtMs, clock.monotonicMs());
    read(followed);
    calllog::SessionAmounts before{seenMs, followed.unwritten.sent, followed.unwritten.received};
    if (followed.session.isFound)
        before.ms = calllog::saturatingSum(before.ms, followed.session.ms.value_or(0));
    if (followed.mayBeKnown) {
        calllog::SessionAmounts counted;
        if (ledger.interrupted(apn, followed.startWallMs - sameSessionMs, counted) != Success)
            return;
        before = {calllog::elapsed(counted.ms, before.ms), calllog::elapsed(counted.sent, before.sent),
                  calllog::elapsed(counted.received, before.received)};
    }
    if (ledger.beginSession(apn, 0, 0, followed.row, before) == Success)
        followed.unwritten = {};
}

bool SessionRecorder::write(Followed &followed)
{
    if (followed.unwritten.sent == 0 && followed.unwritten.received == 0)
        return false;
    if (ledger.addBytes(followed.row, followed.unwritten.sent, followed.unwritten.received) != Success)
        return false;
    followed.unwritten = {};
    return true;
}

bool SessionRecorder::count()
{
    bool any = false;
    for (Followed &followed : sessions) {
        if (followed.row == 0) {
            begin(followed);
        } else {
            read(followed);
            any = write(followed) || any;
        }
    }
    return any;
}

void SessionRecorder::finish(Followed &followed)
{
    if (followed.row == 0)
        return;
    read(followed);
    write(followed);
    ledger.endSession(followed.row);
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

QList<ReportedSession> SessionRecorder::reported() const
{
    QList<ReportedSession> all;
    for (const Followed &followed : sessions)
        all.append(followed.session);
    return all;
}

} // namespace handset::live
