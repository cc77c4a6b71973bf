#include "CallFigures.h"

#include "AmountText.h"

#include <algorithm>
#include <limits>

namespace handset::calllog {

namespace {

int amount(quint64 units, const charging::ChargingState &state, QByteArray &text)
{
    return charging::amountText(units, state.chargeType, state.card.puct().price, text);
}

int zeroMeter(charging::ChargingState &state)
{
    return state.card.resetAcm();
}

} // namespace

int CallFigures::time(Total total, CallTime &time)
{
    qint64 ms = 0;
    const int status = ledger.figure(total, ms);
    if (status == Success)
        time = CallTime::fromSeconds(static_cast<quint64>(ms) / 1000);
    return status;
}

int CallFigures::cost(Total total, QByteArray &text)
{
    qint64 units = 0;
    if (const int status = ledger.figure(total, units))
        return status;
    Standing now;
    const int status = ledger.standing(now);
    return status == Success ? amount(static_cast<quint64>(units), now.state, text) : status;
}

int CallFigures::allCallsCost(QByteArray &text)
{
    Standing now;
    const int status = ledger.standing(now);
    return status == Success ? amount(now.state.card.acm(), now.state, text) : status;
}

int CallFigures::account(charging::Account &account, charging::ChargingState &state)
{
    Standing now;
    if (const int status = ledger.standing(now))
        return status;
    if (!now.state.account)
        return NotAvailable;
    account = *now.state.account;
    state = now.state;
    return Success;
}

int CallFigures::remainingCredit(QByteArray &text)
{
    charging::Account paid;
    charging::ChargingState state;
    const int status = account(paid, state);
    return status == Success ? amount(paid.credit, state, text) : status;
}

int CallFigures::lastDeposit(QByteArray &text)
{
    charging::Account paid;
    charging::ChargingState state;
    const int status = account(paid, state);
    return status == Success ? amount(paid.deposit, state, text) : status;
}

int CallFigures::depositExpirationDate(Date &date)
{
    charging::Account paid;
    charging::ChargingState state;
    const int status = account(paid, state);
    if (status == Success)
        date = paid.expires;
    return status;
}

int CallFigures::resetAllCallsCost()
{
    return ledger.edit(&zeroMeter);
}

int CallFigures::resetAll()
{
    return ledger.edit(&zeroMeter, {Total::LastTime, Total::DialedTime, Total::AnsweredTime, Total::LastCost,
                                    Total::DialedCost, Total::AnsweredCost});
}

int CallFigures::totalDuration(quint32 &seconds)
{
    qint64 ms = 0;
    const int status = ledger.figure(Total::DataTime, ms);
    if (status == Success)
        seconds = static_cast<quint32>(std::min<qint64>(ms / 1000, std::numeric_limits<quint32>::max()));
    return status;
}

int CallFigures::callStatus(quint8 &value)
{
    value = dataStatus;
    return Success;
}

} // namespace handset::calllog
