#include "charging/AmountText.h"

#include "charging/ChargeUnits.h"
#include "charging/DecimalText.h"

#include <limits>

namespace handset::charging {

namespace {

constexpr int shownDecimals = 2;
constexpr Wide oneUnit = 10'000'000; // in 10^-7, as a price
constexpr Wide oneHundredth = oneUnit / 100;

// The longest text stays below the limit: 2^64 units at the greatest price.
static_assert([] {
    Wide most =
        Wide{std::numeric_limits<quint64>::max()} * UnitPrice::greatestEppu * oneUnit * oneUnit / oneHundredth;
    qsizetype length = 1;
    for (; most != 0; most /= 10)
        ++length;
    return length <= longestAmountText;
}());

// What a unit counts for, in 10^-7.
int worthOfUnit(quint8 chargeType, const UnitPrice &price, Wide &worth)
{
    switch (chargeType) {
    case AdviceOfCharge::InUnits:
        worth = oneUnit;
        return Success;
    case AdviceOfCharge::InCurrency:
        worth = price.tenMillionths();
        return Success;
    }
    return InvalidArgument;
}

} // namespace

int amountText(quint64 units, quint8 chargeType, const UnitPrice &price, QByteArray &text)
{
    Wide worth = 0;
    const int status = worthOfUnit(chargeType, price, worth);
    if (status != Success)
        return status;
    text = decimalText((units * worth + oneHundredth / 2) / oneHundredth, shownDecimals, shownDecimals);
    return Success;
}

int limitText(quint32 units, quint8 chargeType, const UnitPrice &price, QString &text)
{
    Wide worth = 0;
    const int status = worthOfUnit(chargeType, price, worth);
    if (status != Success)
        return status;
    text = QString::fromLatin1(decimalText(units * worth, UnitPrice::decimals, shownDecimals));
    return Success;
}

int limitUnits(QStringView text, quint8 chargeType, const UnitPrice &price, quint32 &units)
{
    Wide worth = 0;
    DecimalNumber amount;
    if (worthOfUnit(chargeType, price, worth) != Success || worth == 0 ||
        parseDecimal(text, UnitPrice::decimals, amount) != Success)
        return InvalidArgument;
    const Wide whole = amount.count / worth;
    const bool isZero = amount.count == 0 && amount.exact;
    if (whole > maxUnits || (whole == 0 && !isZero))
        return InvalidArgument;
    units = static_cast<quint32>(whole);
    return Success;
}

} // namespace handset::charging
