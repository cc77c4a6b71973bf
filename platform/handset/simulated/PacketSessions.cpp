#include "PacketSessions.h"

#include "Saturating.h"

#include <algorithm>
#include <limits>

namespace handset::simulated {

using calllog::SessionAmounts;
using calllog::SessionCounter;
using calllog::StoredSession;

namespace {

bool isApn(const QByteArray &name)
{
    return !name.isEmpty() && name.size() <= PacketControl::longestApn && !name.contains('\0');
}

SessionAmounts sum(const SessionAmounts &a, const SessionAmounts &b)
{
    return {calllog::saturatingSum(a.ms, b.ms), calllog::saturatingSum(a.sent, b.sent),
            calllog::saturatingSum(a.received, b.received)};
}

CallTime toTime(qint64 ms)
{
    return CallTime::fromSeconds(static_cast<quint64>(ms) / 1000);
}

quint32 toCounter(qint64 bytes)
{
    return static_cast<quint32>(std::min<qint64>(bytes, std::numeric_limits<quint32>::max()));
}

// Rows are numbered on from 1 for ever, sessions from 1 to 255 and then from 1 again.
quint8 toId(qint64 row)
{
    return static_cast<quint8>((static_cast<quint64>(row) - 1) % 255 + 1);
}

DataSession toRecord(const StoredSession &session)
{
    return {toId(session.id), toCounter(session.amounts.sent), toCounter(session.amounts.received),
            toTime(session.amounts.ms), session.apn};
}

} // namespace

SessionAmounts PacketSessions::RunningSession::amounts() const
{
    return {ms, calllog::saturatingAmount(sentPerSecond, ms), calllog::saturatingAmount(receivedPerSecond, ms)};
}

// The difference of two amounts that are cut off, not an amount of its own: fractions of a byte are never lost.
calllog::UnwrittenAmounts PacketSessions::RunningSession::unwritten() const
{
    const SessionAmounts now = amounts();
    return {id, {now.ms - written.ms, now.sent - written.sent, now.received - written.received}};
}

PacketSessions::PacketSessions(calllog::Database &database, std::shared_ptr<Clock> clocks)
    : store(database)
    , clock(std::move(clocks))
{}

PacketSessions::~PacketSessions()
{
    owedWrite = {}; // what cannot be written now is lost, and that is told
    if (running)
        end();
    else
        writeOwed();
}

// Time is added reading by reading, so that a clock that goes back takes nothing away that was already reported.
void PacketSessions::readClock()
{
    const qint64 now = clock->monotonicMs();
    running->ms = calllog::saturatingSum(running->ms, calllog::elapsed(running->lastReading, now));
    running->lastReading = now;
}

std::optional<calllog::UnwrittenAmounts> PacketSessions::unwritten()
{
    if (!running)
        return owed;
    readClock();
    return running->unwritten();
}

int PacketSessions::sessions(DataSessions &sessions)
{
    DataSessions told;
    QList<StoredSession> recent;
    if (const int status = store.recent(static_cast<int>(told.records.size()), recent))
        return status;
    const auto more = unwritten();
    for (StoredSession &session : recent) {
        if (more && session.id == more->session)
            session.amounts = sum(session.amounts, more->amounts);
        told.records[told.count++] = toRecord(session);
    }
    sessions = told;
    return Success;
}

int PacketSessions::totals(SessionAmounts &amounts)
{
    SessionAmounts stored;
    if (const int status = store.totals(stored))
        return status;
    const auto more = unwritten();
    amounts = more ? sum(stored, more->amounts) : stored;
    return Success;
}

int PacketSessions::totalDuration(CallTime &duration)
{
    SessionAmounts all;
    if (const int status = totals(all))
        return status;
    duration = toTime(all.ms);
    return Success;
}

int PacketSessions::totalBytes(quint32 &total, quint32 &received, quint32 &sent)
{
    SessionAmounts all;
    if (const int status = totals(all))
        return status;
    total = toCounter(calllog::saturatingSum(all.sent, all.received));
    received = toCounter(all.received);
    sent = toCounter(all.sent);
    return Success;
}

int PacketSessions::reset(std::initializer_list<SessionCounter> counters)
{
    if (const int status = writeOwed())
        return status;
    const auto more = unwritten();
    if (const int status = store.reset(counters, more ? &*more : nullptr))
        return status;
    if (running)
        running->written = running->amounts();
    tellChange();
    return Success;
}

int PacketSessions::resetTotalDuration()
{
    return reset({SessionCounter::Duration});
}

int PacketSessions::resetTotalBytes()
{
    return reset({SessionCounter::Sent, SessionCounter::Received});
}

int PacketSessions::startSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond)
{
    if (!isApn(apn))
        return InvalidArgument;
    if (running)
        return WrongState;
    if (const int status = writeOwed())
        return status;
    RunningSession begun;
    if (const int status = store.begin(apn, clock->wallMs(), begun.id))
        return status;
    begun.sentPerSecond = sentPerSecond;
    begun.receivedPerSecond = receivedPerSecond;
    begun.lastReading = clock->monotonicMs();
    running = begun;
    tellUpdate();
    tellChange();
    return Success;
}

// The session is over at once, whether its end can be written now or not.
void PacketSessions::end()
{
    owed = unwritten();
    running.reset();
    writeOwed();
    tellUpdate();
}

int PacketSessions::writeOwed()
{
    const int status = owed ? store.finish(*owed, owedWrite) : int{Success};
    if (status == Success)
        owed.reset();
    return status;
}

int PacketSessions::stopSession()
{
    if (!running)
        return WrongState;
    end();
    tellChange();
    return Success;
}

int PacketSessions::checkpoint()
{
    if (const int status = writeOwed())
        return status;
    if (!running)
        return Success;
    readClock();
    const int status = store.count(running->unwritten());
    if (status == Success)
        running->written = running->amounts();
    return status;
}

void PacketSessions::tick()
{
    if (!running)
        return;
    readClock();
    if (running->ms - running->toldMs < updateIntervalMs)
        return;
    running->toldMs = running->ms;
    tellUpdate();
}

void PacketSessions::tellUpdate() const
{
    if (onUpdate)
        onUpdate();
}

void PacketSessions::tellChange() const
{
    if (onChange)
        onChange();
}

} // namespace handset::simulated
