// What a number of units costs, as the handset's own decimal text, and back.
#pragma once

#include "charging/UnitPrice.h"
#include "handset/AdviceOfCharge.h"

#include <QtCore/QByteArray>

namespace handset::charging {

/// The longest amount text. A caller's buffer has at least this much room beside its NUL.
inline constexpr qsizetype longestAmountText = 49;

/// A cost or credit as it is shown: `units` as they are (charge type InUnits) or times the price (InCurrency),
/// with two decimals, rounded half up, '.' in every language, no unit: "12.00", "2.76". InvalidArgument for a
/// charge type that is neither. Every number of units at every price fits longestAmountText, so it is never
/// TextTooLong.
int amountText(quint64 units, quint8 chargeType, const UnitPrice &price, QByteArray &text);

/// A credit limit of `units` in the unit of the charge type. As amountText(), but exact, with more decimals where
/// the price needs them ("0.333"), so that setting the limit that is shown changes nothing.
int limitText(quint32 units, quint8 chargeType, const UnitPrice &price, QString &text);

/// The units of a credit limit given as decimal text (as parseDecimal() reads it) in the unit of the charge type:
/// the amount, or the amount divided by the price, rounded down. 0 is written "0" in any number of digits and
/// means that there is no limit. InvalidArgument for
/// - a text that is no number, and a charge type that is neither,
/// - any amount in the currency while the price is 0: it says nothing about units,
/// - an amount above 0 that is less than one unit: rounded down it would lift the limit, not set a low one,
/// - more than maxUnits.
int limitUnits(QStringView text, quint8 chargeType, const UnitPrice &price, quint32 &units);

} // namespace handset::charging
