#include "tapi.h"

#include "CallLog.h"
#include "CallService.h"
#include "Roles.h"

using handset::CallLog;
using handset::CallService;
using handset::Handset;

namespace {

template <typename Role>
int queryTime(Role *(Handset::*role)(), int (Role::*query)(handset::CallTime &), TAPI_CallTime *time)
{
    if (!time)
        return handset::InvalidArgument;
    return withRole(role, [&](Role &target) {
        handset::CallTime answer;
        const int status = (target.*query)(answer);
        if (status == handset::Success)
            *time = {answer.hours, answer.minutes, answer.seconds};
        return status;
    });
}

template <typename Role>
int command(Role *(Handset::*role)(), int (Role::*operation)())
{
    return withRole(role, [&](Role &target) { return (target.*operation)(); });
}

} // namespace

int TAPI_CS_GetTotalCallTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callService, &CallService::totalCallTime, time);
}

int TAPI_CS_ResetCallTime()
{
    return command(&Handset::callService, &CallService::resetCallTime);
}

int TAPI_LOG_GetLastCallTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::lastCallTime, time);
}

int TAPI_LOG_GetDialedCallsTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::dialedCallsTime, time);
}

int TAPI_LOG_GetAnsweredCallsTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::answeredCallsTime, time);
}

int TAPI_LOG_GetLifetimeCallsTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::lifetimeCallsTime, time);
}

int TAPI_LOG_ResetDialedCallsTime()
{
    return command(&Handset::callLog, &CallLog::resetDialedCallsTime);
}

int TAPI_LOG_ResetAnsweredCallsTime()
{
    return command(&Handset::callLog, &CallLog::resetAnsweredCallsTime);
}

int TAPI_LOG_ResetAll()
{
    return command(&Handset::callLog, &CallLog::resetAll);
}
