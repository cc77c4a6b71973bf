#include "simulated/SimAccess.h"

#include "calllog/Ledger.h"
#include "charging/AmountText.h"

namespace handset::simulated {

using calllog::Standing;
using charging::ChargingState;
using charging::SimCard;

charging::SimCard SimAccess::card() const
{
    SimCard card;
    return ledger.card(card) == Success ? card : SimCard();
}

// --- advice of charge

int SimAccess::updateRule(quint8 file, quint8 &rule)
{
    return ledger.ask([&](const Standing &now) { return now.state.card.updateRule(file, rule); });
}

int SimAccess::meterMaximum(QString &maximum, bool &enabled)
{
    return ledger.ask([&](const Standing &now) {
        const int status = charging::limitText(now.state.card.acmMax(), now.state.chargeType,
                                               now.state.card.puct().price, maximum);
        if (status == Success)
            enabled = now.state.card.acmMax() != 0;
        return status;
    });
}

int SimAccess::setMeterMaximum(const QString &maximum)
{
    return ledger.edit([&](ChargingState &next) {
        quint32 units = 0;
        const int status = charging::limitUnits(maximum, next.chargeType, next.card.puct().price, units);
        return status == Success ? next.card.updateAcmMax(units) : status;
    });
}

int SimAccess::disableMeterMaximum()
{
    return ledger.edit([](ChargingState &next) { return next.card.updateAcmMax(0); });
}

int SimAccess::chargeType(quint8 &type)
{
    return ledger.ask([&](const Standing &now) {
        type = now.state.chargeType;
        return int{Success};
    });
}

int SimAccess::setChargeType(quint8 type)
{
    if (type != InUnits && type != InCurrency)
        return InvalidArgument;
    return ledger.edit([&](ChargingState &next) {
        next.chargeType = type;
        return int{Success};
    });
}

int SimAccess::priceAndCurrency(QString &price, QString &currency)
{
    return ledger.ask([&](const Standing &now) {
        const charging::Puct puct = now.state.card.puct();
        price = puct.price.text();
        currency = puct.currency;
        return int{Success};
    });
}

int SimAccess::setPriceAndCurrency(const QString &price, const QString &currency)
{
    return ledger.edit([&](ChargingState &next) { return next.card.updatePuct(price, currency); });
}

// --- security. PIN1 is switched off.

int SimAccess::pinStatus(quint8 pin, quint32 &status)
{
    if (pin != Pin1 && pin != Pin2)
        return InvalidArgument;
    return ledger.ask([&](const Standing &now) {
        status = pin == Pin1 ? NoEntryNeeded : now.state.card.pin2().status();
        return int{Success};
    });
}

int SimAccess::triesLeft(quint8 pin, int &tries)
{
    if (pin != Pin2)
        return pin == Pin1 ? NotAvailable : InvalidArgument;
    return ledger.ask([&](const Standing &now) {
        tries = now.state.card.pin2().triesLeft();
        return int{Success};
    });
}

// The try is on the disk before anyone learns how it went: switching off in between does not give it back.
int SimAccess::verifyPin(quint8 pin, const QByteArray &digits, bool &accepted)
{
    if (pin != Pin2)
        return pin == Pin1 ? NotAvailable : InvalidArgument;
    bool isRight = false;
    const int status = ledger.editCard([&](SimCard &card) { return card.pin2().verify(digits, isRight); });
    if (status == Success)
        accepted = isRight;
    return status;
}

// --- for who drives the simulation

int SimAccess::setUpdateRule(quint8 file, quint8 rule)
{
    return ledger.edit([&](ChargingState &next) { return next.card.setUpdateRule(file, rule); });
}

int SimAccess::setPin2Enabled(bool enabled)
{
    return ledger.editCard([&](SimCard &card) {
        card.pin2().setEnabled(enabled);
        return int{Success};
    });
}

int SimAccess::powerCycle()
{
    return ledger.editCard([](SimCard &card) {
        card.powerOff();
        return int{Success};
    });
}

int SimAccess::unblockPin2(QByteArrayView puk, QByteArrayView newPin, bool &accepted)
{
    bool isRight = false;
    const int status = ledger.editCard([&](SimCard &card) { return card.pin2().unblock(puk, newPin, isRight); });
    if (status == Success)
        accepted = isRight;
    return status;
}

} // namespace handset::simulated
