// What a user types for a limit and a price, and what is made of it.
#include "fuzz/Fuzz.h"

#include "charging/AmountText.h"
#include "charging/ChargeUnits.h"
#include "charging/Puct.h"
#include "handset/AdviceOfCharge.h"
#include "handset/Status.h"

using namespace handset;
using namespace handset::charging;

namespace {

// As a text, the units are read back as the same, or as none where a unit has no price.
void tryLimit(QStringView typed, quint8 chargeType, const UnitPrice &price)
{
    quint32 units = 0;
    if (limitUnits(typed, chargeType, price, units) != Success)
        return;
    REQUIRE(units <= maxUnits);
    QString told;
    REQUIRE(limitText(units, chargeType, price, told) == Success);
    quint32 again = 0;
    REQUIRE(limitUnits(told, chargeType, price, again) == Success);
    REQUIRE(again == units);
    QByteArray amount;
    REQUIRE(amountText(units, chargeType, price, amount) == Success);
    REQUIRE(amount.size() <= longestAmountText);
}

} // namespace

void tryBytes(QByteArrayView bytes)
{
    Taker taker(bytes);
    const quint8 chargeType = taker.byte();
    const QString code = QString::fromUtf8(taker.text(12));
    const QString priceText = QString::fromUtf8(taker.text(40));
    const QString typed = QString::fromUtf8(taker.all());

    UnitPrice price;
    if (UnitPrice::fromText(priceText, price) == Success) {
        UnitPrice again;
        REQUIRE(UnitPrice::fromText(price.text(), again) == Success);
        REQUIRE(again.tenMillionths() == price.tenMillionths());
    }
    PuctBytes kept{};
    if (encodePuct({code, price}, kept) == Success) {
        REQUIRE(decodePuct(kept).currency == code);
        REQUIRE(decodePuct(kept).price.tenMillionths() == price.tenMillionths());
    }
    for (const quint8 type : {quint8{AdviceOfCharge::InUnits}, quint8{AdviceOfCharge::InCurrency}, chargeType})
        tryLimit(typed, type, price);
}
