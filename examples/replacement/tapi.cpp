// A telephony library of somebody else's, under the name of ours. It asks no telephone: all times are those of a call of
// 7 seconds, nothing costs anything, and whatever would be reset is refused. docs/replacing.md lists what it has to have.
#include "telephony/tapi.h"
#include "telephony/util.h"

#include <cstring>

namespace {

constexpr int done = 0;
constexpr int notAvailable = 2;
constexpr int refused = 6;

int sevenSeconds(TAPI_CallTime *time)
{
    *time = {0, 0, 7};
    return done;
}

int nothing(char *text)
{
    std::strcpy(text, "0");
    return done;
}

} // namespace

extern "C" {

int TAPI_CS_GetTotalCallTime(TAPI_CallTime *time)
{
    return sevenSeconds(time);
}

int TAPI_CS_ResetCallTime()
{
    return refused;
}

int TAPI_LOG_GetLastCallTime(TAPI_CallTime *time)
{
    return sevenSeconds(time);
}

int TAPI_LOG_GetDialedCallsTime(TAPI_CallTime *time)
{
    return sevenSeconds(time);
}

int TAPI_LOG_GetAnsweredCallsTime(TAPI_CallTime *time)
{
    return sevenSeconds(time);
}

int TAPI_LOG_GetLifetimeCallsTime(TAPI_CallTime *time)
{
    return sevenSeconds(time);
}

int TAPI_LOG_ResetDialedCallsTime()
{
    return refused;
}

int TAPI_LOG_ResetAnsweredCallsTime()
{
    return refused;
}

int TAPI_LOG_ResetAll()
{
    return refused;
}

int TAPI_CS_GetRemainCredit(char *text)
{
    return nothing(text);
}

int TAPI_CS_GetLastCallCost(char *text)
{
    return nothing(text);
}

int TAPI_LOG_GetDepositExpirationDate(TAPI_Date *)
{
    return notAvailable;
}

int TAPI_LOG_GetLastDeposit(char *text)
{
    return nothing(text);
}

int TAPI_LOG_GetDialedCallsCost(char *text)
{
    return nothing(text);
}

int TAPI_LOG_GetAnsweredCallsCost(char *text)
{
    return nothing(text);
}

int TAPI_LOG_GetAllCallsCost(char *text)
{
    return nothing(text);
}

int TAPI_LOG_ResetAllCallsCost()
{
    return refused;
}

int TAPI_LOG_ResetDialedCallsCost()
{
    return refused;
}

int TAPI_LOG_ResetAnsweredCallsCost()
{
    return refused;
}

int TAPI_GPRS_GetAllSessionInfo(TAPI_GPRS_SessionInfo *info)
{
    info->count = 0;
    return done;
}

int TAPI_GPRS_GetTotalDuration(TAPI_CallTime *duration)
{
    return sevenSeconds(duration);
}

int TAPI_GPRS_GetTotalDataBytes(uint32_t *total, uint32_t *received, uint32_t *sent)
{
    *total = *received = *sent = 0;
    return done;
}

int TAPI_GPRS_ResetTotalDuration()
{
    return refused;
}

int TAPI_GPRS_ResetTotalDataBytes()
{
    return refused;
}

int TAPI_SECURITY_GetAnyPinStatus(uint8_t, uint32_t *status)
{
    *status = 3; // nothing has to be entered
    return done;
}

int UTIL_GetTotalDuration(uint32_t *seconds)
{
    *seconds = 7;
    return done;
}

int UTIL_GetDataCallStaus(uint8_t *status)
{
    *status = 0; // none
    return done;
}

} // extern "C"
