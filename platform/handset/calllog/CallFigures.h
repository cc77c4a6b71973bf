// The roles of a handset that are answered from the calls of the ledger.
#pragma once

#include "calllog/Ledger.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/KeptCalls.h"

namespace handset::calllog {

/// Times in whole seconds of what the ledger has in milliseconds, the fraction cut off; costs from the totals, the SIM's
/// meter and the account, in the unit of the charge type.
class CallFigures : public CallLog, public CallService, public DataCalls, public KeptCalls
{
public:
    /// `owner` outlives this.
    explicit CallFigures(Ledger &owner)
        : ledger(owner)
    {}

    int lastCallTime(CallTime &time) override { return this->time(Total::LastTime, time); }
    int dialedCallsTime(CallTime &time) override { return this->time(Total::DialedTime, time); }
    int answeredCallsTime(CallTime &time) override { return this->time(Total::AnsweredTime, time); }
    int lifetimeCallsTime(CallTime &time) override { return this->time(Total::LifetimeTime, time); }
    int resetDialedCallsTime() override { return ledger.reset({Total::DialedTime}); }
    int resetAnsweredCallsTime() override { return ledger.reset({Total::AnsweredTime}); }
    int resetAll() override;
    int depositExpirationDate(Date &date) override;
    int lastDeposit(QByteArray &text) override;
    int dialedCallsCost(QByteArray &text) override { return cost(Total::DialedCost, text); }
    int answeredCallsCost(QByteArray &text) override { return cost(Total::AnsweredCost, text); }
    int allCallsCost(QByteArray &text) override;
    int resetDialedCallsCost() override { return ledger.reset({Total::DialedCost}); }
    int resetAnsweredCallsCost() override { return ledger.reset({Total::AnsweredCost}); }
    int resetAllCallsCost() override;

    int totalCallTime(CallTime &time) override { return this->time(Total::AllTime, time); }
    int resetCallTime() override { return ledger.reset({Total::AllTime}); }
    int remainingCredit(QByteArray &text) override;
    int lastCallCost(QByteArray &text) override { return cost(Total::LastCost, text); }

    int refreshTotals() override { return ledger.isConnected() ? ledger.checkpoint() : int{Success}; }
    int totalDuration(quint32 &seconds) override;
    int callStatus(quint8 &value) override;
    int resetTotalDuration() override { return ledger.reset({Total::DataTime}); }

    int newest(qint64 before, int most, QList<KeptCall> &calls) override;
    int count(qint64 first, qint64 before, qint64 &count) override;
    int remove(qint64 id) override;
    int removeBefore(qint64 wallMs, qint64 &count) override;

    /// What callStatus() returns in the process that records; elsewhere that follows from the rows, which know of a call
    /// from its connection to its end.
    void setCallStatus(CallStatus status) { dataStatus = status; }

protected:
    /// What so many units are as a text of this phone's.
    virtual int amount(quint64 units, QByteArray &text);

private:
    int time(Total total, CallTime &time);
    int cost(Total total, QByteArray &text);
    template <typename Look>
    int askAccount(Look look);

    Ledger &ledger;
    CallStatus dataStatus = Idle;
};

} // namespace handset::calllog
