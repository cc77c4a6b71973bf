#include "ChargeMeter.h"

#include "CallRecorder.h"

#include <algorithm>
#include <utility>

namespace handset::simulated {

namespace {

// The first of "card-kept-1", "card-kept-2", ... that is not in use.
QString unusedName(const calllog::CallRecorder &recorder, const QString &name)
{
    QString candidate;
    QByteArray content;
    int number = 0;
    do {
        candidate = QStringLiteral("%1-kept-%2").arg(name).arg(++number);
        content.clear();
    } while (recorder.kept(candidate, content) == Success && !content.isNull());
    return candidate;
}

struct KeptPart {
    const char *name;
    bool (*read)(const QByteArray &kept, ChargingState &state);
    const char *whatIsNew;
    bool isWrittenByEveryCharge;
};

constexpr std::array keptParts{
    KeptPart{keptCardName, &readCard, "The SIM card", true},
    KeptPart{keptChargingName, &readCharging, "The record of tariffs and account", false},
};

int hasCosts(const calllog::CallRecorder &recorder, bool &found)
{
    found = false;
    for (const calllog::CostCounterName &name : calllog::costCounterNames) {
        qint64 units = 0;
        if (const int status = recorder.cost(name.counter, units))
            return status;
        found = found || units > 0;
    }
    return Success;
}

} // namespace

int ChargeMeter::load(calllog::CallRecorder &recorder, QStringList &notices)
{
    keeper = &recorder;
    calllog::KeptValues aside;
    bool somethingIsNew = false;
    bool isWithoutCheck = false;
    bool wasCharged = false;
    if (const int status = hasCosts(recorder, wasCharged))
        return status;
    for (const KeptPart &part : keptParts) {
        const QString name = QString::fromLatin1(part.name);
        QByteArray content;
        if (const int status = recorder.kept(name, content))
            return status;
        const bool isMissing =
            content.isNull() || (isNeverWritten(content) && part.isWrittenByEveryCharge && wasCharged);
        if (!isMissing && part.read(content, kept)) {
            isWithoutCheck = isWithoutCheck || isUnchecked(content);
            continue;
        }
        somethingIsNew = true;
        const QString what = QLatin1String(part.whatIsNew);
        if (isMissing) {
            notices << QStringLiteral("%1 is missing from the call log; a new one was begun.").arg(what);
            continue;
        }
        aside << calllog::KeptValue{unusedName(recorder, name), content};
        notices << QStringLiteral("%1 could not be read; a new one was begun and the old one kept as \"%2\".")
                       .arg(what, aside.constLast().name);
    }
    // With the new ones in their places, so that this is told once.
    if (somethingIsNew && recorder.keep(keptValues(kept) + aside) != Success)
        notices << QStringLiteral("That could not be written.");
    // From now on a change of it is found. Where it cannot be written the next start tries again.
    if (isWithoutCheck && !somethingIsNew)
        recorder.keep(keptValues(kept));
    return Success;
}

int ChargeMeter::change(const ChargingState &next)
{
    return change(next, [this](const calllog::KeptValues &values) { return keeper->keep(values); });
}

int ChargeMeter::change(const ChargingState &next, const std::function<int(const calllog::KeptValues &)> &write)
{
    const ChargingState before = std::exchange(kept, next); // who is told of the change finds it made
    const int status = write(changedValues(before, next));
    if (status != Success)
        kept = before;
    return status;
}

quint32 ChargeMeter::dueUnits(qint64 connectedMs) const
{
    if (!running)
        return 0;
    const quint32 cost = running->tariff.units(sim::CallLeg{connectedMs, 0});
    return cost - std::min(cost, running->charged);
}

std::optional<qint64> ChargeMeter::longestMs() const
{
    const std::optional<quint32> left = kept.unitsLeft();
    if (!running || !left || !costsAnything(running->tariff))
        return std::nullopt;
    const quint64 cost = quint64{running->charged} + *left;
    if (cost > sim::maxUnits)
        return std::nullopt;
    return running->tariff.msUntil({}, static_cast<quint32>(cost));
}

calllog::Charge ChargeMeter::due(qint64 connectedMs) const
{
    const quint32 units = dueUnits(connectedMs);
    if (units == 0)
        return {};
    ChargingState next = kept;
    next.charge(units);
    return {units, changedValues(kept, next)};
}

void ChargeMeter::charged(const calllog::Charge &charge)
{
    const auto units = static_cast<quint32>(charge.units);
    kept.charge(units);
    if (running)
        running->charged += units;
}

} // namespace handset::simulated
