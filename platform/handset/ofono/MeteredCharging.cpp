#include "ofono/MeteredCharging.h"

#include "charging/AmountText.h"
#include "charging/ChargeUnits.h"
#include "charging/Pin2.h"
#include "charging/Puct.h"

namespace handset::ofono {

namespace {

using charging::UnitPrice;

const QString maximumProperty = QStringLiteral("AccumulatedCallMeterMaximum");
const QString priceProperty = QStringLiteral("PricePerUnit");
const QString currencyProperty = QStringLiteral("Currency");

// Exactly what the text says, as the variant's type must be this one.
QVariant asNumber(const UnitPrice &price)
{
    return price.text().toDouble();
}

} // namespace

void HeldPin::hold(const QByteArray &pin)
{
    drop();
    digits = QByteArray(pin.constData(), pin.size()); // bytes of its own, so that overwriting reaches them
}

void HeldPin::drop()
{
    digits.fill('\0');
    digits.clear();
}

MeteredCharging::MeteredCharging(CallMeter &callMeter, calllog::Ledger &owner, AdviceOfCharge &own)
    : meter(callMeter)
    , ledger(owner)
    , ownSettings(own)
{
    QObject::connect(&meter, &CallMeter::changed, &meter, [this] {
        if (!meter.isThere())
            pin2.drop();
    });
}

// The daemon asks for PIN2 with each write, whatever the card says.
int MeteredCharging::updateRule(quint8 file, quint8 &rule)
{
    if (!meter.isThere())
        return NotAvailable;
    switch (file) {
    case AcmMaxFile:
    case AcmFile:
    case PuctFile:
        rule = UpdateUnderPin2;
        return Success;
    }
    return InvalidArgument;
}

int MeteredCharging::unitOf(quint8 &type, UnitPrice &price)
{
    if (const int status = ownSettings.chargeType(type))
        return status;
    if (type == InCurrency && !meter.price())
        return NotAvailable;
    price = meter.price().value_or(UnitPrice());
    return Success;
}

int MeteredCharging::amount(quint64 units, QByteArray &text)
{
    quint8 type = InUnits;
    UnitPrice price;
    const int status = unitOf(type, price);
    return status == Success ? charging::amountText(units, type, price, text) : status;
}

int MeteredCharging::meterMaximum(QString &maximum, bool &enabled)
{
    quint8 type = InUnits;
    UnitPrice price;
    if (!meter.maximum())
        return NotAvailable;
    if (const int status = unitOf(type, price))
        return status;
    const int status = charging::limitText(*meter.maximum(), type, price, maximum);
    if (status == Success)
        enabled = *meter.maximum() != 0;
    return status;
}

int MeteredCharging::setMeterMaximum(const QString &maximum)
{
    quint8 type = InUnits;
    UnitPrice price;
    if (!meter.isThere())
        return NotAvailable;
    if (const int status = unitOf(type, price))
        return status;
    quint32 units = 0;
    const int status = charging::limitUnits(maximum, type, price, units);
    return status == Success ? writeMaximum(units) : status;
}

int MeteredCharging::disableMeterMaximum()
{
    return meter.isThere() ? writeMaximum(0) : int{NotAvailable};
}

int MeteredCharging::writeMaximum(quint32 units)
{
    return withPin([&] { return meter.write(maximumProperty, units, pin2.view()); });
}

int MeteredCharging::setChargeType(quint8 type)
{
    if (type != InCurrency || !meter.isThere())
        return ownSettings.setChargeType(type);
    return ledger.edit([&](charging::ChargingState &state) {
        state.chargeType = type;
        return int{Success};
    });
}

int MeteredCharging::priceAndCurrency(QString &price, QString &currency)
{
    if (!meter.price() || !meter.currency())
        return NotAvailable;
    price = meter.price()->text();
    currency = *meter.currency();
    return Success;
}

// Two writes. When the second one fails the old price is written back, so that what fails has changed nothing; where that
// fails too, the new price stands, and is what is shown.
int MeteredCharging::setPriceAndCurrency(const QString &price, const QString &currency)
{
    if (!meter.isThere())
        return NotAvailable;
    charging::Puct puct{currency, {}};
    charging::PuctBytes bytes;
    if (const int status = UnitPrice::fromText(price, puct.price))
        return status;
    if (const int status = charging::encodePuct(puct, bytes))
        return status;
    return withPin([&] {
        const std::optional<UnitPrice> before = meter.price();
        meter.beginSeries();
        CallMeter::Outcome outcome = meter.write(priceProperty, asNumber(puct.price), pin2.view());
        if (outcome == CallMeter::Outcome::Written) {
            outcome = meter.write(currencyProperty, currency, pin2.view());
            if (outcome != CallMeter::Outcome::Written && before)
                meter.write(priceProperty, asNumber(*before), pin2.view());
        }
        meter.endSeries();
        return outcome;
    });
}

// --- PIN2

// It is used once, whatever becomes of it.
template <typename Work>
int MeteredCharging::withPin(Work work)
{
    if (!pin2.isHeld())
        return NotAllowed;
    const std::optional<int> before = meter.tries();
    const CallMeter::Outcome outcome = work();
    pin2.drop();
    return statusOf(outcome, before);
}

int MeteredCharging::statusOf(CallMeter::Outcome outcome, std::optional<int> triesBefore)
{
    switch (outcome) {
    case CallMeter::Outcome::Written:
        return Success;
    case CallMeter::Outcome::Malformed:
        return InvalidArgument;
    case CallMeter::Outcome::NotThere:
        return NotAvailable;
    case CallMeter::Outcome::Refused:
        return meter.tries() && triesBefore && *meter.tries() >= *triesBefore ? StorageFailed : NotAllowed;
    case CallMeter::Outcome::Unanswered:
        break;
    }
    return StorageFailed;
}

int MeteredCharging::resetMeter()
{
    return withPin([&] { return meter.reset(pin2.view()); });
}

int MeteredCharging::pinStatus(quint8 pin, quint32 &status)
{
    if (pin == Pin1) {
        const QString required = meter.pinRequired();
        if (required.isEmpty())
            return NotAvailable;
        status = required == QLatin1String("pin")   ? EntryNeeded
                 : required == QLatin1String("puk") ? Blocked
                                                    : NoEntryNeeded;
        return Success;
    }
    if (pin != Pin2)
        return InvalidArgument;
    if (!meter.isThere())
        return NotAvailable;
    const bool isBlocked = meter.tries() == 0 || meter.pinRequired() == QLatin1String("puk2");
    status = isBlocked ? Blocked : pin2.isHeld() ? NoEntryNeeded : EntryNeeded;
    return Success;
}

int MeteredCharging::triesLeft(quint8 pin, int &tries)
{
    if (pin != Pin2)
        return pin == Pin1 ? NotAvailable : InvalidArgument;
    if (!meter.isThere() || !meter.tries())
        return NotAvailable;
    tries = *meter.tries();
    return Success;
}

int MeteredCharging::verifyPin(quint8 pin, const QByteArray &digits, bool &accepted)
{
    if (pin != Pin2)
        return pin == Pin1 ? NotAvailable : InvalidArgument;
    if (!meter.isThere() || !meter.toldMaximum())
        return NotAvailable;
    if (!charging::Pin2::isPin(digits))
        return InvalidArgument;
    const std::optional<int> before = meter.tries();
    if (before == 0)
        return NotAllowed;
    pin2.drop();
    meter.beginSeries();
    const CallMeter::Outcome outcome = meter.write(maximumProperty, *meter.toldMaximum(), digits);
    // Where nobody counts the tries, a wrong PIN2 is the likeliest reason.
    const bool isWrong = outcome == CallMeter::Outcome::Refused && (!before || meter.hasCostATry(*before));
    meter.endSeries();
    if (outcome == CallMeter::Outcome::Written)
        pin2.hold(digits);
    else if (!isWrong)
        return statusOf(outcome, before);
    accepted = outcome == CallMeter::Outcome::Written;
    return Success;
}

// --- figures

int MeteredFigures::amount(quint64 units, QByteArray &text)
{
    if (meter.isThere())
        return charging.amount(units, text);
    quint8 type = AdviceOfCharge::InUnits;
    if (const int status = charging.chargeType(type))
        return status;
    // The price went with the meter.
    return type == AdviceOfCharge::InUnits ? CallFigures::amount(units, text) : int{NotAvailable};
}

int MeteredFigures::allCallsCost(QByteArray &text)
{
    if (!meter.isThere())
        return CallFigures::allCallsCost(text);
    if (!meter.accumulated())
        return NotAvailable;
    return charging.amount(charging::addUnits(*meter.accumulated(), unread), text);
}

int MeteredFigures::resetAllCallsCost()
{
    return meter.isThere() ? charging.resetMeter() : CallFigures::resetAllCallsCost();
}

// The SIM first: when it refuses, nothing is zeroed.
int MeteredFigures::resetAll()
{
    if (meter.isThere())
        if (const int status = charging.resetMeter())
            return status;
    return CallFigures::resetAll();
}

int MeteredFigures::remainingCredit(QByteArray &text)
{
    return meter.isThere() ? int{NotAvailable} : CallFigures::remainingCredit(text);
}

int MeteredFigures::lastDeposit(QByteArray &text)
{
    return meter.isThere() ? int{NotAvailable} : CallFigures::lastDeposit(text);
}

int MeteredFigures::depositExpirationDate(Date &date)
{
    return meter.isThere() ? int{NotAvailable} : CallFigures::depositExpirationDate(date);
}

} // namespace handset::ofono
