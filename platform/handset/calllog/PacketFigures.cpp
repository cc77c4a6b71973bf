#include "calllog/PacketFigures.h"

#include "calllog/Ledger.h"
#include "calllog/Saturating.h"

#include <algorithm>
#include <limits>

namespace handset::calllog {

namespace {

bool isApn(const QByteArray &name)
{
    return !name.isEmpty() && name.size() <= PacketFigures::longestApn && !name.contains('\0');
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

DataSession toRecord(const SessionRow &session)
{
    return {toId(session.id), toCounter(session.amounts.sent), toCounter(session.amounts.received),
            toTime(session.amounts.ms), session.apn};
}

} // namespace

PacketFigures::~PacketFigures()
{
    stopSession();
}

int PacketFigures::sessions(DataSessions &sessions)
{
    DataSessions told;
    QList<SessionRow> recent;
    if (const int status = ledger.sessions(static_cast<int>(told.records.size()), recent))
        return status;
    for (const SessionRow &session : recent)
        told.records[told.count++] = toRecord(session);
    sessions = told;
    return Success;
}

int PacketFigures::totalDuration(CallTime &duration)
{
    SessionAmounts all;
    const int status = ledger.sessionTotals(all);
    if (status == Success)
        duration = toTime(all.ms);
    return status;
}

int PacketFigures::totalBytes(quint32 &total, quint32 &received, quint32 &sent)
{
    SessionAmounts all;
    if (const int status = ledger.sessionTotals(all))
        return status;
    total = toCounter(saturatingSum(all.sent, all.received));
    received = toCounter(all.received);
    sent = toCounter(all.sent);
    return Success;
}

int PacketFigures::resetTotalDuration()
{
    return ledger.resetSessions({Total::SessionTime});
}

int PacketFigures::resetTotalBytes()
{
    return ledger.resetSessions({Total::BytesSent, Total::BytesReceived});
}

bool PacketFigures::isSessionRunning() const
{
    return ledger.seesSession();
}

int PacketFigures::startSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond)
{
    if (!isApn(apn))
        return InvalidArgument;
    if (ledger.isSessionRunning())
        return WrongState;
    if (const int status = ledger.beginSession(apn, sentPerSecond, receivedPerSecond, sessionId))
        return status;
    toldMs = 0;
    tellUpdate();
    return Success;
}

int PacketFigures::stopSession()
{
    const int status = ledger.endSession(sessionId);
    if (status == WrongState)
        return ledger.isRecorder() ? status : ledger.whyNotRecording();
    tellUpdate();
    return Success;
}

void PacketFigures::tick()
{
    QList<SessionRow> newest;
    if (!ledger.isSessionRunning() || ledger.sessions(1, newest) != Success || newest.isEmpty())
        return;
    const qint64 ms = newest.constFirst().amounts.ms;
    if (ms - toldMs < updateIntervalMs)
        return;
    toldMs = ms;
    tellUpdate();
}

void PacketFigures::tellUpdate() const
{
    if (onUpdate)
        onUpdate();
}

} // namespace handset::calllog
