// The call log: what the TAPI_LOG_* functions ask.
#pragma once

#include "handset/CallTime.h"
#include "handset/Date.h"
#include "handset/Status.h"

#include <QtCore/QByteArray>

namespace handset {

/// The times and costs of calls. A voice call counts as dialed or as answered; a circuit-switched data call is neither,
/// but a last call and one of all calls. A call that was never connected counts nowhere. Times are whole seconds, the
/// fraction cut off, and count a running call up to now; amounts are in units or in the currency, as
/// AdviceOfCharge::chargeType() says. A reset during a call zeroes what was counted so far; the rest of the call
/// counts. All of it outlives a restart. StorageFailed where the log cannot be read or written.
class CallLog
{
public:
    virtual ~CallLog() = default;

    /// The time of the last call that was connected, the running one included.
    virtual int lastCallTime(CallTime &time) = 0;
    /// The time of all dialed calls since the last reset.
    virtual int dialedCallsTime(CallTime &time) = 0;
    /// The time of all answered calls since the last reset.
    virtual int answeredCallsTime(CallTime &time) = 0;
    /// The time of all calls ever. Nothing resets it.
    virtual int lifetimeCallsTime(CallTime &time) = 0;

    /// Each zeroes its own counter and nothing else.
    virtual int resetDialedCallsTime() = 0;
    virtual int resetAnsweredCallsTime() = 0;
    /// Zeroes every counter of the call log in one operation: the times of the last, dialed and answered calls, and
    /// the costs of the last, dialed, answered and all calls; not the lifetime total, and no time of the call
    /// service's or of the data calls'. NotAllowed, and nothing zeroed, when the SIM refuses.
    virtual int resetAll() = 0;

    /// The day until which the last deposit is good.
    virtual int depositExpirationDate(Date &date) = 0;
    /// The last deposit and the accumulated costs since their resets, as the handset's own decimal texts (Latin-1,
    /// without a unit), the running call included. NotAvailable for the deposit and its day where nothing has ever been
    /// paid in.
    virtual int lastDeposit(QByteArray &text) = 0;
    virtual int dialedCallsCost(QByteArray &text) = 0;
    virtual int answeredCallsCost(QByteArray &text) = 0;
    virtual int allCallsCost(QByteArray &text) = 0;
    /// Each zeroes its own cost and nothing else. The cost of all calls is the SIM's accumulated call meter: NotAllowed
    /// when the SIM refuses.
    virtual int resetDialedCallsCost() = 0;
    virtual int resetAnsweredCallsCost() = 0;
    virtual int resetAllCallsCost() = 0;
};

} // namespace handset
