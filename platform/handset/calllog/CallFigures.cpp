#include "calllog/CallFigures.h"

#include "calllog/Listing.h"
#include "charging/AmountText.h"

#include <algorithm>
#include <limits>

namespace handset::calllog {

namespace {

int amountIn(const charging::ChargingState &state, quint64 units, QByteArray &text)
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
    return amount(static_cast<quint64>(units), text);
}

int CallFigures::amount(quint64 units, QByteArray &text)
{
    return ledger.ask([&](const Standing &now) { return amountIn(now.state, units, text); });
}

int CallFigures::allCallsCost(QByteArray &text)
{
    return ledger.ask([&](const Standing &now) { return amountIn(now.state, now.state.card.acm(), text); });
}

template <typename Look>
int CallFigures::askAccount(Look look)
{
    return ledger.ask([&](const Standing &now) {
        return now.state.account ? look(*now.state.account, now.state) : int{NotAvailable};
    });
}

int CallFigures::remainingCredit(QByteArray &text)
{
    return askAccount(
        [&](const auto &account, const auto &state) { return amountIn(state, account.credit, text); });
}

int CallFigures::lastDeposit(QByteArray &text)
{
    return askAccount(
        [&](const auto &account, const auto &state) { return amountIn(state, account.deposit, text); });
}

int CallFigures::depositExpirationDate(Date &date)
{
    return askAccount([&](const auto &account, const auto &) {
        date = account.expires;
        return int{Success};
    });
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
    if (ledger.isRecorder()) {
        value = dataStatus;
        return Success;
    }
    return ledger.ask([&](const Standing &now) {
        const bool isOn = std::any_of(now.calls.begin(), now.calls.end(),
                                      [](const RunningCall &call) { return call.kind == CallKind::Data; });
        value = isOn ? Connected : Idle;
        return int{Success};
    });
}

int CallFigures::newest(qint64 before, int most, QList<KeptCall> &calls)
{
    QList<ListedCall> found;
    if (const int status = newestCalls(ledger, before, most, found))
        return status;
    calls.clear();
    for (const auto &[id, call, state] : std::as_const(found))
        calls.append({id, call, state == CallState::Running, state != CallState::NotConnected});
    return Success;
}

int CallFigures::count(qint64 first, qint64 before, qint64 &count)
{
    return countCalls(ledger, first, before, count);
}

int CallFigures::remove(qint64 id)
{
    return ledger.changed(deleteCall(ledger, id));
}

int CallFigures::removeBefore(qint64 wallMs, qint64 &count)
{
    qint64 deleted = 0;
    if (const int status = deleteCalls(ledger, {std::numeric_limits<qint64>::min(), wallMs}, deleted))
        return status;
    count = deleted;
    return deleted > 0 ? ledger.changed(Success) : int{Success};
}

} // namespace handset::calllog
