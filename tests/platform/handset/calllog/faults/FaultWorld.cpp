#include "handset/calllog/faults/FaultWorld.h"

#include <algorithm>

namespace handset::faults {

namespace {

enum State { Finished = 1, NotConnected = 2, Interrupted = 3 };

qint64 unitsOf(qint64 ms)
{
    return ms / 10'000;
}

} // namespace

QByteArray World::callRow(qint64 id, int kind, int direction, qint64 ms, int state, qint64 units)
{
    return "call " + QByteArray::number(id) + " kind " + QByteArray::number(kind) + " direction " +
           QByteArray::number(direction) + " ms " + QByteArray::number(ms) + " state " +
           QByteArray::number(state) + " units " + QByteArray::number(units);
}

QByteArray World::sessionRow(qint64 id, qint64 ms, qint64 sent, qint64 received, int state)
{
    return "session " + QByteArray::number(id) + " ms " + QByteArray::number(ms) + " sent " +
           QByteArray::number(sent) + " received " + QByteArray::number(received) + " state " +
           QByteArray::number(state);
}

void World::connect(qint64 now)
{
    dialing = false;
    call = Running{++lastCall, now, 0};
    times[Last] = costs[LastCost] = 0;
}

void World::hangUp(qint64 now)
{
    hangsUpAt = now;
}

void World::startSession(qint64 now)
{
    session = Running{++lastSession, now, 0};
}

void World::stopSession(qint64 now)
{
    stopsAt = now;
}

void World::writeCall(qint64 now)
{
    if (!call)
        return;
    const qint64 ms = std::max(now - call->began, call->ms);
    const qint64 passed = ms - call->ms;
    const qint64 due = unitsOf(ms) - unitsOf(call->ms);
    call->ms = ms;
    for (const Time time : {Last, Dialed, All, Lifetime})
        times[time] += passed;
    costs[LastCost] += due;
    costs[DialedCost] += due;
    meter += due;
    if (credit >= 0)
        credit = std::max<qint64>(credit - due, 0);
}

void World::writeSession(qint64 now)
{
    if (!session)
        return;
    const qint64 before = session->ms;
    session->ms = std::max(now - session->began, session->ms);
    sessionTotals[Duration] += session->ms - before;
    sessionTotals[Sent] += session->ms * sentPerSecond / 1000 - before * sentPerSecond / 1000;
    sessionTotals[Received] += session->ms * receivedPerSecond / 1000 - before * receivedPerSecond / 1000;
}

void World::write(qint64 now)
{
    writeCall(now);
    writeSession(now);
}

void World::resetDialed(qint64 now)
{
    writeCall(now);
    times[Dialed] = 0;
}

void World::resetAll(qint64 now)
{
    writeCall(now);
    times[Last] = times[Dialed] = times[Answered] = 0;
    costs.fill(0);
    meter = 0;
}

void World::topUp(qint64 now, qint64 units)
{
    writeCall(now);
    credit = std::max<qint64>(credit, 0) + units;
}

void World::closeCall(int state)
{
    if (!call)
        return;
    rows << callRow(call->id, 0, 0, call->ms, state, unitsOf(call->ms));
    call.reset();
}

void World::closeSession(int state)
{
    if (!session)
        return;
    const qint64 ms = session->ms;
    rows << sessionRow(session->id, ms, ms * sentPerSecond / 1000, ms * receivedPerSecond / 1000, state);
    session.reset();
}

void World::settle()
{
    if (hangsUpAt && dialing)
        rows << callRow(++lastCall, 0, 0, 0, NotConnected, 0);
    if (hangsUpAt) {
        writeCall(*hangsUpAt);
        closeCall(Finished);
        dialing = false;
    }
    if (stopsAt) {
        writeSession(*stopsAt);
        closeSession(Finished);
    }
    hangsUpAt.reset();
    stopsAt.reset();
}

void World::crash()
{
    closeCall(Interrupted);
    closeSession(Interrupted);
    dialing = false;
    hangsUpAt.reset();
    stopsAt.reset();
}

QByteArrayList World::lines() const
{
    static constexpr std::array timeNames{"last", "dialed", "answered", "data", "all", "lifetime"};
    static constexpr std::array costNames{"last", "dialed", "answered"};
    static constexpr std::array totalNames{"duration", "sent", "received"};
    QByteArrayList all = rows;
    std::sort(all.begin(), all.end());
    for (std::size_t i = 0; i < times.size(); ++i)
        all << QByteArray("time ") + timeNames[i] + ' ' + QByteArray::number(times[i]);
    for (std::size_t i = 0; i < costs.size(); ++i)
        all << QByteArray("cost ") + costNames[i] + ' ' + QByteArray::number(costs[i]);
    for (std::size_t i = 0; i < sessionTotals.size(); ++i)
        all << QByteArray("sessions ") + totalNames[i] + ' ' + QByteArray::number(sessionTotals[i]);
    all << "meter " + QByteArray::number(meter) << "credit " + QByteArray::number(credit)
        << "tries " + QByteArray::number(tries);
    return all;
}

} // namespace handset::faults
