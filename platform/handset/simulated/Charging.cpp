#include "Charging.h"

#include "AmountText.h"

#include <QtCore/QDate>

#include <algorithm>

namespace handset::simulated {

sim::Tariff Charging::tariff(CallDirection direction) const
{
    return isKnown(direction) ? meter.state().tariff(direction) : sim::Tariff{};
}

int Charging::setTariff(CallDirection direction, const sim::Tariff &tariff)
{
    if (!isKnown(direction) || !tariff.isValid())
        return InvalidArgument;
    if (const int status = recorder.checkpoint())
        return status;
    ChargingState next = meter.state();
    next.tariff(direction) = tariff;
    return meter.change(next);
}

int Charging::topUp(const QString &amount, const Date &expires)
{
    if (const int status = recorder.checkpoint())
        return status;
    ChargingState next = meter.state();
    quint32 units = 0;
    if (const int status = sim::limitUnits(amount, next.chargeType, next.card.puct().price, units))
        return status;
    if (units == 0 || !QDate::isValid(expires.year, expires.month, expires.day))
        return InvalidArgument;
    const quint64 credit = next.account ? next.account->credit : 0;
    next.account = Account{std::min(credit + units, Account::greatestCredit), units, expires};
    return meter.change(next);
}

std::optional<Account> Charging::account() const
{
    ChargingState now = meter.state();
    now.charge(meter.dueUnits(recorder.connectedMs()));
    return now.account;
}

std::optional<quint32> Charging::unitsLeft() const
{
    ChargingState now = meter.state();
    now.charge(meter.dueUnits(recorder.connectedMs()));
    return now.unitsLeft();
}

quint64 Charging::runningUnits() const
{
    return quint64{meter.chargedUnits()} + meter.dueUnits(recorder.connectedMs());
}

std::optional<qint64> Charging::msLeft() const
{
    const std::optional<qint64> longest = meter.longestMs();
    if (!longest || !recorder.isConnected())
        return std::nullopt;
    return std::max<qint64>(*longest - recorder.connectedMs(), 0);
}

bool Charging::permits(const sim::Tariff &tariff) const
{
    return meter.state().unitsLeft() != 0U || !costsAnything(tariff);
}

bool Charging::isTimeUp() const
{
    return msLeft() == qint64{0};
}

void Charging::callStopped()
{
    lastStop = meter.state().card.limitReached() ? StopReason::LimitReached : StopReason::CreditUsedUp;
}

} // namespace handset::simulated
