#include "ofono/OfonoHandset.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>

#include <algorithm>
#include <utility>

namespace handset::ofono {

OfonoHandset::OfonoHandset(std::unique_ptr<calllog::Ledger> opened, std::shared_ptr<Clock> clocks,
                           std::unique_ptr<OfonoModem> behind, int longestWaitMs,
                           live::InterfaceCounters interfaces)
    : LiveHandset(std::move(opened), std::move(clocks), std::move(behind), std::move(interfaces))
    , meter(static_cast<OfonoModem &>(modem()), longestWaitMs)
    , meteredCharges(meter, *ledger, ownAdviceOfCharge())
    , meteredFigures(*ledger, meter, meteredCharges)
{
    // Behind what records the same.
    connect(&modem(), &live::Modem::callReported, this, &OfonoHandset::callReported);
    connect(&modem(), &live::Modem::callGone, this, &OfonoHandset::callEnded);
    connect(&modem(), &live::Modem::lost, this, [this] {
        running.clear();
        known.clear();
        ended.reset();
        setGiven(0);
    });
    connect(&meter, &CallMeter::accumulatedRead, this, &OfonoHandset::accumulatedRead);
    connect(&meter, &CallMeter::zeroed, this, [this] { setGiven(0); });
    connect(&meter, &CallMeter::waiting, this, &OfonoHandset::tellWait);
    connect(&meter, &CallMeter::currentTold, this, &OfonoHandset::currentTold);
    connect(&meter, &CallMeter::changed, this, [this] {
        setCharge(meter.isThere() ? calllog::Charge::Measured : calllog::Charge::Unlimited);
        if (!meter.isThere())
            before.reset();
        emit changed();
    });
}

void OfonoHandset::awaitFigures(int longestMs, const std::function<bool()> &isGivenUp)
{
    keepChanges();
    const auto &behind = static_cast<const OfonoModem &>(modem());
    const QDeadlineTimer limit(longestMs);
    const auto waits = [&] {
        return (!behind.isKnown() || !meter.isAnswered()) && !limit.hasExpired() && !(isGivenUp && isGivenUp());
    };
    QTimer::singleShot(longestMs, &meter, [] {}); // ends the last wait
    while (waits())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
}

// At its beginning the meter is read once more, as it may have been late with the call before.
void OfonoHandset::callReported(const live::ReportedCall &call)
{
    if (call.phase == CallPhase::Over) {
        callEnded(call.id);
        return;
    }
    if (!known.contains(call.id)) {
        known.insert(call.id);
        meter.refresh();
    }
    const Metered cost = calls().costOf(call.id);
    if (!cost || running.contains(call.id))
        return;
    if (running.isEmpty())
        setGiven(0);
    running.insert(call.id, cost);
    connectedLast = call.id;
    ended.reset();
}

void OfonoHandset::callEnded(const QString &id)
{
    known.remove(id);
    const auto call = running.constFind(id);
    if (call == running.constEnd())
        return;
    ended = *call;
    running.erase(call);
    setGiven(given);
    meter.refresh();
}

// A meter that shows less has been reset: what it shows then is nobody's.
void OfonoHandset::accumulatedRead(quint32 units)
{
    const quint32 last = before.value_or(units);
    const quint32 more = units < last ? 0 : units - last;
    const quint32 seen = std::min(more, given);
    before = units;
    setGiven(units < last ? 0 : given - seen);
    const quint32 rest = more - seen;
    if (rest == 0)
        return;
    if (ended)
        charge(ended, rest);
    else if (const auto call = running.find(connectedLast); call != running.end())
        charge(*call, rest);
}

// The card may count when the call is over only: then it still has to come to what is given.
void OfonoHandset::setGiven(quint32 units)
{
    given = units;
    meteredFigures.setUnread(running.isEmpty() ? 0 : given);
}

// Of one call, while it is the only one.
void OfonoHandset::currentTold(quint32 units)
{
    if (running.size() != 1)
        return;
    const Metered call = *running.begin();
    const quint32 more = std::max(units, call->units) - call->units;
    setGiven(given + more);
    charge(call, more);
}

} // namespace handset::ofono
