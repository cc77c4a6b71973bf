// Charging units as the SIM counts them.
#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <array>

namespace handset::charging {

/// A meter has 24 bits (3GPP TS 51.011, 10.3.9): it stops here, it does not wrap.
inline constexpr quint32 maxUnits = 0xFFFFFF;

/// A meter as it stands in EF_ACM and EF_ACMmax: three bytes, the highest first.
using UnitBytes = std::array<quint8, 3>;

/// The sum of two numbers of units, at most maxUnits.
constexpr quint32 addUnits(quint32 a, quint32 b)
{
    const quint32 room = maxUnits - std::min(a, maxUnits);
    return b >= room ? maxUnits : a + b;
}

/// More than maxUnits is stored as maxUnits.
constexpr UnitBytes encodeUnits(quint32 units)
{
    const quint32 stored = std::min(units, maxUnits);
    return {static_cast<quint8>(stored >> 16), static_cast<quint8>(stored >> 8), static_cast<quint8>(stored)};
}

/// 0 to maxUnits.
constexpr quint32 decodeUnits(const UnitBytes &bytes)
{
    return quint32{bytes[0]} << 16 | quint32{bytes[1]} << 8 | bytes[2];
}

} // namespace handset::charging
