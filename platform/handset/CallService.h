// The call service: what the TAPI_CS_* functions ask.
#pragma once

#include "handset/CallTime.h"
#include "handset/Status.h"

#include <QtCore/QByteArray>

namespace handset {

/// The total time of calls and the prepaid credit. Times and amounts are as CallLog's; StorageFailed where the call log
/// cannot be read or written.
class CallService
{
public:
    virtual ~CallService() = default;

    /// The time of all calls since the last resetCallTime(), a running call included.
    virtual int totalCallTime(CallTime &time) = 0;
    /// Zeroes the time of all calls and nothing else.
    virtual int resetCallTime() = 0;

    /// The prepaid credit left, as the handset's own decimal text (Latin-1, without a unit); what a running call has
    /// cost so far is taken off. NotAvailable where nothing has ever been paid in.
    virtual int remainingCredit(QByteArray &text) = 0;
    /// The cost of the last call that was connected, likewise, the running one included.
    virtual int lastCallCost(QByteArray &text) = 0;
};

} // namespace handset
