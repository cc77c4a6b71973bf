#include "CallFigures.h"

#include "AmountText.h"
#include "Saturating.h"

#include <algorithm>

namespace handset::simulated {

using calllog::CostCounter;
using calllog::Counter;

int CallFigures::amount(quint64 units, QByteArray &text) const
{
    const ChargingState &state = meter.state();
    return sim::amountText(units, state.chargeType, state.card.puct().price, text);
}

int CallFigures::cost(CostCounter counter, QByteArray &text) const
{
    qint64 units = 0;
    const int status = recorder.cost(counter, units);
    if (status != Success)
        return status;
    const bool counts = counter == CostCounter::Last || recorder.runningCostCounter() == counter;
    const qint64 due = counts ? dueUnits() : 0;
    return amount(static_cast<quint64>(calllog::saturatingSum(units, due)), text);
}

int CallFigures::remainingCredit(QByteArray &text)
{
    const std::optional<Account> &account = meter.state().account;
    if (!account)
        return NotAvailable;
    return amount(account->credit - std::min<quint64>(account->credit, dueUnits()), text);
}

int CallFigures::lastCallCost(QByteArray &text)
{
    return cost(CostCounter::Last, text);
}

int CallFigures::depositExpirationDate(Date &date)
{
    const std::optional<Account> &account = meter.state().account;
    if (!account)
        return NotAvailable;
    date = account->expires;
    return Success;
}

int CallFigures::lastDeposit(QByteArray &text)
{
    const std::optional<Account> &account = meter.state().account;
    return account ? amount(account->deposit, text) : static_cast<int>(NotAvailable);
}

int CallFigures::dialedCallsCost(QByteArray &text)
{
    return cost(CostCounter::Dialed, text);
}

int CallFigures::answeredCallsCost(QByteArray &text)
{
    return cost(CostCounter::Answered, text);
}

int CallFigures::allCallsCost(QByteArray &text)
{
    return amount(sim::addUnits(meter.state().card.acm(), dueUnits()), text);
}

int CallFigures::reset(CostCounter counter)
{
    const int status = recorder.checkpoint();
    return status == Success ? recorder.reset({}, {counter}) : status;
}

int CallFigures::resetDialedCallsCost()
{
    return reset(CostCounter::Dialed);
}

int CallFigures::resetAnsweredCallsCost()
{
    return reset(CostCounter::Answered);
}

int CallFigures::resetMeter(std::initializer_list<Counter> times, std::initializer_list<CostCounter> costs)
{
    if (const int status = recorder.checkpoint())
        return status;
    ChargingState next = meter.state();
    if (const int status = next.card.resetAcm())
        return status;
    return meter.change(next,
                        [&](const calllog::KeptValues &values) { return recorder.reset(times, costs, values); });
}

int CallFigures::resetAllCallsCost()
{
    return resetMeter({}, {});
}

int CallFigures::resetAll()
{
    return resetMeter({Counter::Last, Counter::Dialed, Counter::Answered},
                      {CostCounter::Last, CostCounter::Dialed, CostCounter::Answered});
}

} // namespace handset::simulated
