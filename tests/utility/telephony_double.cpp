// A telephony library of another make, under the same name: every time is 42:42:42, there is one data call of
// 42 seconds, and nothing else works. It has every function: a library that lacks one is refused when it is loaded.
#include "telephony/tapi.h"
#include "telephony/util.h"

namespace {

constexpr int notAvailable = 2;

int answerTime(TAPI_CallTime *time)
{
    *time = {42, 42, 42};
    return 0;
}

} // namespace

int TAPI_CS_GetTotalCallTime(TAPI_CallTime *time)
{
    return answerTime(time);
}
int TAPI_LOG_GetLastCallTime(TAPI_CallTime *time)
{
    return answerTime(time);
}
int TAPI_LOG_GetDialedCallsTime(TAPI_CallTime *time)
{
    return answerTime(time);
}
int TAPI_LOG_GetAnsweredCallsTime(TAPI_CallTime *time)
{
    return answerTime(time);
}
int TAPI_LOG_GetLifetimeCallsTime(TAPI_CallTime *time)
{
    return answerTime(time);
}
int UTIL_GetTotalDuration(uint32_t *seconds)
{
    *seconds = 42;
    return 0;
}
int UTIL_GetDataCallStaus(uint8_t *)
{
    return notAvailable;
}
int TAPI_CS_ResetCallTime()
{
    return notAvailable;
}
int TAPI_LOG_ResetDialedCallsTime()
{
    return notAvailable;
}
int TAPI_LOG_ResetAnsweredCallsTime()
{
    return notAvailable;
}
int TAPI_LOG_ResetAll()
{
    return notAvailable;
}
int TAPI_CS_GetRemainCredit(char *)
{
    return notAvailable;
}
int TAPI_CS_GetLastCallCost(char *)
{
    return notAvailable;
}
int TAPI_LOG_GetDepositExpirationDate(TAPI_Date *)
{
    return notAvailable;
}
int TAPI_LOG_GetLastDeposit(char *)
{
    return notAvailable;
}
int TAPI_LOG_GetDialedCallsCost(char *)
{
    return notAvailable;
}
int TAPI_LOG_GetAnsweredCallsCost(char *)
{
    return notAvailable;
}
int TAPI_LOG_GetAllCallsCost(char *)
{
    return notAvailable;
}
int TAPI_LOG_ResetAllCallsCost()
{
    return notAvailable;
}
int TAPI_LOG_ResetDialedCallsCost()
{
    return notAvailable;
}
int TAPI_LOG_ResetAnsweredCallsCost()
{
    return notAvailable;
}
int TAPI_GPRS_GetAllSessionInfo(TAPI_GPRS_SessionInfo *)
{
    return notAvailable;
}
int TAPI_GPRS_GetTotalDuration(TAPI_CallTime *)
{
    return notAvailable;
}
int TAPI_GPRS_GetTotalDataBytes(uint32_t *, uint32_t *, uint32_t *)
{
    return notAvailable;
}
int TAPI_GPRS_ResetTotalDuration()
{
    return notAvailable;
}
int TAPI_GPRS_ResetTotalDataBytes()
{
    return notAvailable;
}
int TAPI_SECURITY_GetAnyPinStatus(uint8_t, uint32_t *)
{
    return notAvailable;
}
