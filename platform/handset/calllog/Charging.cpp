#include "calllog/Charging.h"

#include "calllog/Ledger.h"
#include "charging/AmountText.h"

#include <QtCore/QDate>

#include <algorithm>

namespace handset::calllog {

using charging::Account;
using charging::ChargingState;

charging::Tariff Charging::tariff(CallDirection direction) const
{
    return isKnown(direction) ? ledger.standing().state.tariff(direction) : charging::Tariff{};
}

int Charging::setTariff(CallDirection direction, const charging::Tariff &tariff)
{
    if (!isKnown(direction) || !tariff.isValid())
        return InvalidArgument;
    return ledger.edit([&](ChargingState &state) {
        state.tariff(direction) = tariff;
        return int{Success};
    });
}

int Charging::topUp(const QString &amount, const Date &expires)
{
    return ledger.edit([&](ChargingState &state) {
        quint32 units = 0;
        if (const int status = charging::limitUnits(amount, state.chargeType, state.card.puct().price, units))
            return status;
        if (units == 0 || !QDate::isValid(expires.year, expires.month, expires.day))
            return int{InvalidArgument};
        const quint64 credit = state.account ? state.account->credit : 0;
        state.account = Account{std::min(credit + units, Account::greatestCredit), units, expires};
        return int{Success};
    });
}

std::optional<Account> Charging::account() const
{
    return ledger.standing().state.account;
}

std::optional<quint32> Charging::unitsLeft() const
{
    return ledger.standing().state.unitsLeft();
}

quint64 Charging::runningUnits() const
{
    const std::optional<RunningCall> call = ledger.standing().call();
    return call ? call->units : 0;
}

std::optional<qint64> Charging::msLeft() const
{
    const std::optional<RunningCall> call = ledger.standing().call();
    if (!call || !call->mostMs)
        return std::nullopt;
    return std::max<qint64>(*call->mostMs - call->ms, 0);
}

void Charging::callStopped()
{
    lastStop = ledger.standing().state.card.limitReached() ? StopReason::LimitReached : StopReason::CreditUsedUp;
}

} // namespace handset::calllog
