#include "SimAccess.h"

#include "AmountText.h"

namespace handset::simulated {

// What is due on a running call is charged first, under the settings that it came due with.
template <typename Edit>
int SimAccess::edit(Edit edit)
{
    if (const int status = recorder.checkpoint())
        return status;
    ChargingState next = meter.state();
    const int status = edit(next);
    return status == Success ? meter.change(next) : status;
}

// --- advice of charge

int SimAccess::updateRule(quint8 file, quint8 &rule)
{
    return card().updateRule(file, rule);
}

int SimAccess::meterMaximum(QString &maximum, bool &enabled)
{
    const ChargingState &state = meter.state();
    const int status = sim::limitText(state.card.acmMax(), state.chargeType, state.card.puct().price, maximum);
    if (status == Success)
        enabled = state.card.acmMax() != 0;
    return status;
}

int SimAccess::setMeterMaximum(const QString &maximum)
{
    return edit([&](ChargingState &next) {
        quint32 units = 0;
        const int status = sim::limitUnits(maximum, next.chargeType, next.card.puct().price, units);
        return status == Success ? next.card.updateAcmMax(units) : status;
    });
}

int SimAccess::disableMeterMaximum()
{
    return edit([](ChargingState &next) { return next.card.updateAcmMax(0); });
}

int SimAccess::chargeType(quint8 &type)
{
    type = meter.state().chargeType;
    return Success;
}

int SimAccess::setChargeType(quint8 type)
{
    if (type != InUnits && type != InCurrency)
        return InvalidArgument;
    return edit([&](ChargingState &next) {
        next.chargeType = type;
        return Success;
    });
}

int SimAccess::priceAndCurrency(QString &price, QString &currency)
{
    const sim::Puct puct = card().puct();
    price = puct.price.text();
    currency = puct.currency;
    return Success;
}

int SimAccess::setPriceAndCurrency(const QString &price, const QString &currency)
{
    return edit([&](ChargingState &next) { return next.card.updatePuct(price, currency); });
}

// --- security. PIN1 is switched off.

int SimAccess::pinStatus(quint8 pin, quint32 &status)
{
    if (pin != Pin1 && pin != Pin2)
        return InvalidArgument;
    status = pin == Pin1 ? NoEntryNeeded : card().pin2().status();
    return Success;
}

int SimAccess::triesLeft(quint8 pin, int &tries)
{
    if (pin != Pin2)
        return pin == Pin1 ? NotAvailable : InvalidArgument;
    tries = card().pin2().triesLeft();
    return Success;
}

// The try is on the disk before anyone learns how it went: switching off in between does not give it back.
int SimAccess::verifyPin(quint8 pin, const QByteArray &digits, bool &accepted)
{
    if (pin != Pin2)
        return pin == Pin1 ? NotAvailable : InvalidArgument;
    bool isRight = false;
    const int status = edit([&](ChargingState &next) { return next.card.pin2().verify(digits, isRight); });
    if (status == Success)
        accepted = isRight;
    return status;
}

// --- for who drives the simulation

int SimAccess::setUpdateRule(quint8 file, quint8 rule)
{
    return edit([&](ChargingState &next) { return next.card.setUpdateRule(file, rule); });
}

int SimAccess::setPin2Enabled(bool enabled)
{
    return edit([&](ChargingState &next) {
        next.card.pin2().setEnabled(enabled);
        return Success;
    });
}

int SimAccess::powerCycle()
{
    return edit([](ChargingState &next) {
        next.card.powerOff();
        return Success;
    });
}

int SimAccess::unblockPin2(QByteArrayView puk, QByteArrayView newPin, bool &accepted)
{
    bool isRight = false;
    const int status = edit([&](ChargingState &next) { return next.card.pin2().unblock(puk, newPin, isRight); });
    if (status == Success)
        accepted = isRight;
    return status;
}

} // namespace handset::simulated
