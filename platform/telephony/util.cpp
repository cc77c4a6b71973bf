#include "telephony/util.h"

#include "handset/DataCalls.h"
#include "handset/Roles.h"

using handset::DataCalls;
using handset::Handset;

namespace {

template <typename Value>
int query(int (DataCalls::*operation)(Value &), Value *output)
{
    if (!output)
        return handset::InvalidArgument;
    return withRole(&Handset::dataCalls, [&](DataCalls &calls) {
        Value answer = 0;
        const int status = (calls.*operation)(answer);
        if (status == handset::Success)
            *output = answer;
        return status;
    });
}

} // namespace

int UTIL_GetTotalDuration(uint32_t *seconds)
{
    return query(&DataCalls::totalDuration, seconds);
}

int UTIL_GetDataCallStaus(uint8_t *status)
{
    return query(&DataCalls::callStatus, status);
}
