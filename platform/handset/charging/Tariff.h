// From the time and the data of a call to charging units.
#pragma once

#include "charging/ChargeUnits.h"

#include <QtCore/QtGlobal>

#include <optional>
#include <span>

namespace handset::charging {

/// One call, or one leg of a call with several parties.
struct CallLeg {
    qint64 durationMs = 0; ///< connected time; less than 0 counts as 0
    quint64 segments = 0;  ///< of data, 64 octets each

    friend bool operator==(const CallLeg &, const CallLeg &) = default;
};

/// The charge advice information elements e1 to e7 (3GPP TS 22.024). Ranges and steps are those of the network's
/// message (TS 24.080), 0 to 8191 each; whole numbers only.
///
/// A leg costs e3 x (e4 + e1 x INT(duration / (e7, e2)) + e5 x INT(segments / e6)) units: a unit is due when its
/// interval is complete. The first interval is e7 long and the others e2; an e7 of 0 makes the first as long as
/// the others, an e2 of 0 leaves it alone. An interval of no length at all (e7 and e2, or e6) is never complete.
/// The clock counts whole tenths of a second. A fraction of a unit that e1, e3, e4 or e5 leave is kept until it
/// adds up to a whole one: the sum is rounded down, once.
struct Tariff {
    static constexpr quint16 greatestElement = 8191;

    quint16 unitsPerInterval = 0;        ///< e1, tenths of a unit
    quint16 interval = 0;                ///< e2, tenths of a second
    quint16 scale = 100;                 ///< e3, hundredths
    quint16 unitsAtStart = 0;            ///< e4, tenths of a unit
    quint16 unitsPerDataInterval = 0;    ///< e5, tenths of a unit
    quint16 segmentsPerDataInterval = 0; ///< e6
    quint16 firstInterval = 0;           ///< e7, tenths of a second

    /// Every element is in its range.
    bool isValid() const;

    /// What the leg costs: 0 to maxUnits, where it saturates. Never less for a longer leg or one with more segments.
    quint32 units(const CallLeg &leg) const;

    /// Each leg alone, added up to at most maxUnits.
    quint32 units(std::span<const CallLeg> legs) const;

    /// How long until the leg, if it goes on without data, costs at least `limit` units: 0 when it does so
    /// already, nothing when it never will. `limit` counts from the leg's own start; the next unit is due in
    /// msUntil(leg, units(leg) + 1).
    std::optional<qint64> msUntil(const CallLeg &leg, quint32 limit) const;

    friend bool operator==(const Tariff &, const Tariff &) = default;
};

} // namespace handset::charging
