// The C functions as a table: what each asks of the telephone.
#pragma once

#include "tapi.h"
#include "util.h"

#include <array>
#include <cstring>

/// As many bytes as the longest output.
using Output = std::array<unsigned char, sizeof(TAPI_GPRS_SessionInfo)>;

struct ShimQuery {
    const char *name;
    const char *operation; ///< of the scripted telephone
    const char *role;
    int (*call)(void *output); ///< null is a null pointer
};

struct ShimCommand {
    const char *name;
    const char *operation;
    const char *role;
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

#define KAV_QUERY(function, operation, role, Value)                                                               \
    ShimQuery                                                                                                     \
    {                                                                                                             \
#function, operation, role, &callWith < &function, Value>                                                 \
    }

inline constexpr std::array shimQueries{
    KAV_QUERY(TAPI_CS_GetTotalCallTime, "CallService::totalCallTime", "CallService", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetLastCallTime, "CallLog::lastCallTime", "CallLog", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetDialedCallsTime, "CallLog::dialedCallsTime", "CallLog", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetAnsweredCallsTime, "CallLog::answeredCallsTime", "CallLog", TAPI_CallTime),
    KAV_QUERY(TAPI_LOG_GetLifetimeCallsTime, "CallLog::lifetimeCallsTime", "CallLog", TAPI_CallTime),
    KAV_QUERY(TAPI_CS_GetRemainCredit, "CallService::remainingCredit", "CallService", char),
    KAV_QUERY(TAPI_CS_GetLastCallCost, "CallService::lastCallCost", "CallService", char),
    KAV_QUERY(TAPI_LOG_GetDepositExpirationDate, "CallLog::depositExpirationDate", "CallLog", TAPI_Date),
    KAV_QUERY(TAPI_LOG_GetLastDeposit, "CallLog::lastDeposit", "CallLog", char),
    KAV_QUERY(TAPI_LOG_GetDialedCallsCost, "CallLog::dialedCallsCost", "CallLog", char),
    KAV_QUERY(TAPI_LOG_GetAnsweredCallsCost, "CallLog::answeredCallsCost", "CallLog", char),
    KAV_QUERY(TAPI_LOG_GetAllCallsCost, "CallLog::allCallsCost", "CallLog", char),
    KAV_QUERY(TAPI_GPRS_GetAllSessionInfo, "PacketData::sessions", "PacketData", TAPI_GPRS_SessionInfo),
    KAV_QUERY(TAPI_GPRS_GetTotalDuration, "PacketData::totalDuration", "PacketData", TAPI_CallTime),
    KAV_QUERY(UTIL_GetTotalDuration, "DataCalls::totalDuration", "DataCalls", uint32_t),
    KAV_QUERY(UTIL_GetDataCallStaus, "DataCalls::callStatus", "DataCalls", uint8_t),
    ShimQuery{"TAPI_GPRS_GetTotalDataBytes", "PacketData::totalBytes", "PacketData", &totalBytesInto},
    ShimQuery{"TAPI_SECURITY_GetAnyPinStatus", "SimSecurity::pinStatus", "SimSecurity", &pin2StatusInto},
};
static_assert(shimQueries.size() == 18, "every query of tapi.h and util.h");

inline constexpr std::array shimCommands{
    ShimCommand{"TAPI_CS_ResetCallTime", "CallService::resetCallTime", "CallService", &TAPI_CS_ResetCallTime},
    ShimCommand{"TAPI_LOG_ResetDialedCallsTime", "CallLog::resetDialedCallsTime", "CallLog",
                &TAPI_LOG_ResetDialedCallsTime},
    ShimCommand{"TAPI_LOG_ResetAnsweredCallsTime", "CallLog::resetAnsweredCallsTime", "CallLog",
                &TAPI_LOG_ResetAnsweredCallsTime},
    ShimCommand{"TAPI_LOG_ResetAll", "CallLog::resetAll", "CallLog", &TAPI_LOG_ResetAll},
    ShimCommand{"TAPI_LOG_ResetAllCallsCost", "CallLog::resetAllCallsCost", "CallLog",
                &TAPI_LOG_ResetAllCallsCost},
    ShimCommand{"TAPI_LOG_ResetDialedCallsCost", "CallLog::resetDialedCallsCost", "CallLog",
                &TAPI_LOG_ResetDialedCallsCost},
    ShimCommand{"TAPI_LOG_ResetAnsweredCallsCost", "CallLog::resetAnsweredCallsCost", "CallLog",
                &TAPI_LOG_ResetAnsweredCallsCost},
    ShimCommand{"TAPI_GPRS_ResetTotalDuration", "PacketData::resetTotalDuration", "PacketData",
                &TAPI_GPRS_ResetTotalDuration},
    ShimCommand{"TAPI_GPRS_ResetTotalDataBytes", "PacketData::resetTotalBytes", "PacketData",
                &TAPI_GPRS_ResetTotalDataBytes},
};
static_assert(shimCommands.size() == 9, "every reset of tapi.h");
