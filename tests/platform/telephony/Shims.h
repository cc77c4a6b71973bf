// The C functions as a table: what each asks of the handset.
#pragma once

#include "telephony/tapi.h"
#include "telephony/util.h"

#include <array>
#include <cstring>

/// As many bytes as the longest output.
using Output = std::array<unsigned char, sizeof(TAPI_GPRS_SessionInfo)>;

struct ShimQuery {
    const char *name;
    const char *operation;     ///< of the scripted handset
    int (*call)(void *output); ///< null is a null pointer
};

struct ShimCommand {
    const char *name;
    const char *operation;
    int (*call)();
};

template <auto function, typename Value>
int callWith(void *output)
{
    return function(static_cast<Value *>(output));
}

/// The three counters one behind the other.
inline int totalBytesInto(void *output)
{
    auto *counters = static_cast<uint32_t *>(output);
    return counters ? TAPI_GPRS_GetTotalDataBytes(counters, counters + 1, counters + 2)
                    : TAPI_GPRS_GetTotalDataBytes(nullptr, nullptr, nullptr);
}

inline int pin2StatusInto(void *output)
{
    return TAPI_SECURITY_GetAnyPinStatus(1, static_cast<uint32_t *>(output));
}

#define KAV_QUERY(function, operation, Value)                                                                     \
    ShimQuery                                                                                                     \
    {                                                                                                             \
#function, operation, &callWith < &function, Value>                                                       \
    }

inline constexpr std::array shimQueries{
    KAV_QUERY(TAPI_CS_GetTotalCallTime, "CallService::totalCallTime", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetLastCallTime, "CallLog::lastCallTime", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetDialedCallsTime, "CallLog::dialedCallsTime", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetAnsweredCallsTime, "CallLog::answeredCallsTime", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetLifetimeCallsTime, "CallLog::lifetimeCallsTime", TAPI_CallTime),
    KAV_QUERY(TAPI_CS_GetRemainCredit, "CallService::remainingCredit", char),
    KAV_QUERY(TAPI_CS_GetLastCallCost, "CallService::lastCallCost", char),
    KAV_QUERY(TAPI_LOG_GetDepositExpirationDate, "CallLog::depositExpirationDate", TAPI_Date),
    KAV_QUERY(TAPI_LOG_GetLastDeposit, "CallLog::lastDeposit", char),
    KAV_QUERY(TAPI_LOG_GetDialedCallsCost, "CallLog::dialedCallsCost", char),
    KAV_QUERY(TAPI_LOG_GetAnsweredCallsCost, "CallLog::answeredCallsCost", char),
    KAV_QUERY(TAPI_LOG_GetAllCallsCost, "CallLog::allCallsCost", char),
    KAV_QUERY(TAPI_GPRS_GetAllSessionInfo, "PacketData::sessions", TAPI_GPRS_SessionInfo),
    KAV_QUERY(TAPI_GPRS_GetTotalDuration, "PacketData::totalDuration", TAPI_CallTime),
    KAV_QUERY(UTIL_GetTotalDuration, "DataCalls::totalDuration", uint32_t),
    KAV_QUERY(UTIL_GetDataCallStaus, "DataCalls::callStatus", uint8_t),
    ShimQuery{"TAPI_GPRS_GetTotalDataBytes", "PacketData::totalBytes", &totalBytesInto},
    ShimQuery{"TAPI_SECURITY_GetAnyPinStatus", "SimSecurity::pinStatus", &pin2StatusInto},
};
static_assert(shimQueries.size() == 18, "every query of tapi.h and util.h");

inline constexpr std::array shimCommands{
    ShimCommand{"TAPI_CS_ResetCallTime", "CallService::resetCallTime", &TAPI_CS_ResetCallTime},
    ShimCommand{"TAPI_LOG_ResetDialedCallsTime", "CallLog::resetDialedCallsTime", &TAPI_LOG_ResetDialedCallsTime},
    ShimCommand{"TAPI_LOG_ResetAnsweredCallsTime", "CallLog::resetAnsweredCallsTime",
                &TAPI_LOG_ResetAnsweredCallsTime},
    ShimCommand{"TAPI_LOG_ResetAll", "CallLog::resetAll", &TAPI_LOG_ResetAll},
    ShimCommand{"TAPI_LOG_ResetAllCallsCost", "CallLog::resetAllCallsCost", &TAPI_LOG_ResetAllCallsCost},
    ShimCommand{"TAPI_LOG_ResetDialedCallsCost", "CallLog::resetDialedCallsCost", &TAPI_LOG_ResetDialedCallsCost},
    ShimCommand{"TAPI_LOG_ResetAnsweredCallsCost", "CallLog::resetAnsweredCallsCost",
                &TAPI_LOG_ResetAnsweredCallsCost},
    ShimCommand{"TAPI_GPRS_ResetTotalDuration", "PacketData::resetTotalDuration", &TAPI_GPRS_ResetTotalDuration},
    ShimCommand{"TAPI_GPRS_ResetTotalDataBytes", "PacketData::resetTotalBytes", &TAPI_GPRS_ResetTotalDataBytes},
};
static_assert(shimCommands.size() == 9, "every reset of tapi.h");
