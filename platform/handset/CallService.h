// The call service: what the TAPI_CS_* functions ask.
#pragma once

#include "CallTime.h"

namespace handset {

class CallService
{
public:
    virtual ~CallService() = default;

    /// The time of all calls since the last resetCallTime(), a running call included.
    virtual int totalCallTime(CallTime &time) = 0;
    /// Zeroes the time of all calls and nothing else.
    virtual int resetCallTime() = 0;
};

} // namespace handset
