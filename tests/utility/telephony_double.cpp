// A telephony library of another make, under the same name: every time is 42:42:42, there is one data call of
// 42 seconds, and nothing else works.
#include "tapi.h"
#include "util.h"

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
