// The SIM file EF_PUCT: price per unit and currency table (3GPP TS 51.011, 10.3.11).
#pragma once

#include "charging/UnitPrice.h"

#include <array>

namespace handset::charging {

/// Three characters of currency code, then EPPU (12 bits: byte 4 and the low half of byte 5) and the exponent
/// (high half of byte 5: the lowest bit is the sign, 1 is negative, the other three the magnitude).
using PuctBytes = std::array<quint8, 5>;

/// A new card: no code, no price, as TS 51.011 suggests it.
inline constexpr PuctBytes newPuct{0xFF, 0xFF, 0xFF, 0x00, 0x00};

struct Puct {
    QString currency; ///< 0 to 3 characters of the default alphabet
    UnitPrice price;

    friend bool operator==(const Puct &, const Puct &) = default;
};

/// A code shorter than three characters is followed by bytes FF, as on a new card, so that every code is read back
/// as it was stored, blanks at its end too. InvalidArgument, and nothing written, for a code of more than three
/// characters or with one that the default alphabet does not have.
int encodePuct(const Puct &puct, PuctBytes &bytes);

/// Any five bytes can be read: the code ends at the first byte FF, and what is no character is '?'.
Puct decodePuct(const PuctBytes &bytes);

} // namespace handset::charging
