// The price of a charging unit, as far as the SIM can hold it.
#pragma once

#include "handset/Status.h"

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace handset::charging {

/// EPPU x 10^EX of EF_PUCT (3GPP TS 51.011, 10.3.11). What it holds is what is charged and shown: a price that
/// cannot be held exactly is rounded once, when it is set.
class UnitPrice
{
public:
    static constexpr int greatestEppu = 4095;
    static constexpr int leastExponent = -7;
    static constexpr int greatestExponent = 7;
    /// Decimals of the smallest step, 10^-7.
    static constexpr int decimals = 7;

    /// Nothing.
    constexpr UnitPrice() = default;

    /// `eppu` 0 to greatestEppu, `exponent` leastExponent to greatestExponent, kept as given; else
    /// InvalidArgument.
    static int fromParts(int eppu, int exponent, UnitPrice &price);

    /// The price nearest to a decimal text (as parseDecimal() reads it), with the shortest EPPU: "0.230" is 23 x
    /// 10^-2, "170" is 17 x 10^1. Halfway between two prices the greater is taken. InvalidArgument for a text that
    /// is no number and for one above the greatest price, 4095 x 10^7, however little.
    static int fromText(QStringView text, UnitPrice &price);

    int eppu() const { return significand; }
    int exponent() const { return power; }
    bool isZero() const { return significand == 0; }

    /// The price in 10^-7 of the currency, exactly; at most 4095 x 10^14.
    quint64 tenMillionths() const;

    /// Plain decimal digits, as few as say it exactly: "0.23", "170", "0". At most 11 characters.
    QString text() const;

    /// Equal parts; 23 x 10^-2 and 230 x 10^-3 are the same amount and two prices.
    friend bool operator==(const UnitPrice &, const UnitPrice &) = default;

private:
    constexpr UnitPrice(int eppu, int exponent)
        : significand(static_cast<qint16>(eppu))
        , power(static_cast<qint8>(exponent))
    {}

    static UnitPrice nearest(quint64 hundredMillionths);

    qint16 significand = 0;
    qint8 power = 0;
};

} // namespace handset::charging
