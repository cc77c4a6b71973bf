// The call log: what the TAPI_LOG_* functions ask.
#pragma once

#include "CallTime.h"
#include "Date.h"
#include "Status.h"

#include <QtCore/QByteArray>

namespace handset {

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
    /// Zeroes every counter of the call log in one operation: last, dialed and answered calls; not the lifetime
    /// total, and nothing of the call service's or of the data calls'.
    virtual int resetAll() = 0;

    /// The day until which the last deposit is good.
    virtual int depositExpirationDate(Date &date)
    {
        Q_UNUSED(date)
        return NotAvailable;
    }
    /// The last deposit and the accumulated costs since their resets, as the telephone's own decimal texts (Latin-1,
    /// without a unit).
    virtual int lastDeposit(QByteArray &text)
    {
        Q_UNUSED(text)
        return NotAvailable;
    }
    virtual int dialedCallsCost(QByteArray &text)
    {
        Q_UNUSED(text)
        return NotAvailable;
    }
    virtual int answeredCallsCost(QByteArray &text)
    {
        Q_UNUSED(text)
        return NotAvailable;
    }
    virtual int allCallsCost(QByteArray &text)
    {
        Q_UNUSED(text)
        return NotAvailable;
    }
    /// Each zeroes its own cost and nothing else.
    virtual int resetDialedCallsCost() { return NotAvailable; }
    virtual int resetAnsweredCallsCost() { return NotAvailable; }
    virtual int resetAllCallsCost() { return NotAvailable; }
};

} // namespace handset
