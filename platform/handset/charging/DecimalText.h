// Decimal numbers as text, exactly and in no language.
#pragma once

#include "charging/Wide.h"
#include "handset/Status.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringView>

namespace handset::charging {

/// A number of 0 or more, counted in 10^-n for an n that the context gives.
struct DecimalNumber {
    Wide count = 0;    ///< rounded down
    bool exact = true; ///< false: something that is not 0 was cut off
};

/// Reads digits with at most one '.', at least one digit, blanks around them allowed: "12.5", "0.000", ".5", "5.".
/// No sign, no exponent, no other digits than 0 to 9. `decimals` is n, 0 to 30; the text may have more decimals,
/// and be of any length. InvalidArgument for any other text and for a number that `count` cannot hold.
int parseDecimal(QStringView text, int decimals, DecimalNumber &number);

/// `count` x 10^-`decimals` as plain digits, with '.' where decimals follow: `minDecimals` of them, and more, up
/// to `decimals`, where they are needed to say it exactly. 0 <= minDecimals <= decimals <= 30. At most 40
/// characters.
QByteArray decimalText(Wide count, int decimals, int minDecimals);

} // namespace handset::charging
