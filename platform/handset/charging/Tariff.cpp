#include "charging/Tariff.h"

#include "charging/Wide.h"

namespace handset::charging {

namespace {

constexpr qint64 msPerTick = 100;       // the charge clock's
constexpr Wide fractionsPerUnit = 1000; // tenths of a unit times hundredths of the scale

quint64 ticks(const CallLeg &leg)
{
    return static_cast<quint64>(std::max<qint64>(leg.durationMs, 0) / msPerTick);
}

quint16 lengthOfFirst(const Tariff &tariff)
{
    return tariff.firstInterval ? tariff.firstInterval : tariff.interval;
}

quint64 completeIntervals(const Tariff &tariff, quint64 passed)
{
    const quint16 first = lengthOfFirst(tariff);
    if (first == 0 || passed < first)
        return 0;
    return tariff.interval ? 1 + (passed - first) / tariff.interval : 1;
}

// What does not depend on time, in tenths of a unit before scaling.
Wide timelessTenths(const Tariff &tariff, quint64 segments)
{
    const quint64 intervals = tariff.segmentsPerDataInterval ? segments / tariff.segmentsPerDataInterval : 0;
    return tariff.unitsAtStart + Wide{tariff.unitsPerDataInterval} * intervals;
}

// The ticks after which so many intervals, one at least, are complete.
std::optional<quint64> ticksFor(const Tariff &tariff, quint64 intervals)
{
    const quint16 first = lengthOfFirst(tariff);
    if (first == 0 || (intervals > 1 && tariff.interval == 0))
        return std::nullopt;
    return first + (intervals - 1) * tariff.interval;
}

// The ticks after which a leg with so many segments costs `limit` units.
std::optional<quint64> ticksUntil(const Tariff &tariff, quint64 segments, quint32 limit)
{
    const Wide due = Wide{limit} * fractionsPerUnit;
    const Wide already = tariff.scale * timelessTenths(tariff, segments);
    if (already >= due)
        return 0;
    const Wide perInterval = Wide{tariff.scale} * tariff.unitsPerInterval;
    if (perInterval == 0)
        return std::nullopt;
    return ticksFor(tariff, static_cast<quint64>((due - already + perInterval - 1) / perInterval));
}

} // namespace

bool Tariff::isValid() const
{
    const std::array elements{unitsPerInterval,        interval,     scale, unitsAtStart, unitsPerDataInterval,
                              segmentsPerDataInterval, firstInterval};
    return std::all_of(elements.begin(), elements.end(),
                       [](quint16 element) { return element <= greatestElement; });
}

quint32 Tariff::units(const CallLeg &leg) const
{
    const Wide tenths =
        timelessTenths(*this, leg.segments) + Wide{unitsPerInterval} * completeIntervals(*this, ticks(leg));
    return static_cast<quint32>(std::min<Wide>(scale * tenths / fractionsPerUnit, maxUnits));
}

quint32 Tariff::units(std::span<const CallLeg> legs) const
{
    quint32 sum = 0;
    for (const CallLeg &leg : legs)
        sum = addUnits(sum, units(leg));
    return sum;
}

std::optional<qint64> Tariff::msUntil(const CallLeg &leg, quint32 limit) const
{
    if (limit > maxUnits)
        return std::nullopt;
    const std::optional<quint64> due = ticksUntil(*this, leg.segments, limit);
    if (!due)
        return std::nullopt;
    return std::max<qint64>(static_cast<qint64>(*due) * msPerTick - std::max<qint64>(leg.durationMs, 0), 0);
}

} // namespace handset::charging
