// The operations of the telephone, by the names that the phone's libraries give them.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace host {

/// One row for every operation of every role, in the order of the roles in handset/Handset.h.
inline constexpr std::array<const char *, 39> operationNames{
    "TAPI_CS_GetTotalCallTime",
    "TAPI_CS_ResetCallTime",
    "TAPI_CS_GetRemainCredit",
    "TAPI_CS_GetLastCallCost",
    "TAPI_LOG_GetLastCallTime",
    "TAPI_LOG_GetDialedCallsTime",
    "TAPI_LOG_GetAnsweredCallsTime",
    "TAPI_LOG_GetLifetimeCallsTime",
    "TAPI_LOG_ResetDialedCallsTime",
    "TAPI_LOG_ResetAnsweredCallsTime",
    "TAPI_LOG_ResetAll",
    "TAPI_LOG_GetDepositExpirationDate",
    "TAPI_LOG_GetLastDeposit",
    "TAPI_LOG_GetDialedCallsCost",
    "TAPI_LOG_GetAnsweredCallsCost",
    "TAPI_LOG_GetAllCallsCost",
    "TAPI_LOG_ResetDialedCallsCost",
    "TAPI_LOG_ResetAnsweredCallsCost",
    "TAPI_LOG_ResetAllCallsCost",
    "PHONE_MsgClient::getTotalByteAndConnectedDuration",
    "UTIL_GetTotalDuration",
    "UTIL_GetDataCallStaus",
    "PHONE_MsgClient::resetTotalDuration",
    "PHONE_ENG_Setup::getEFUpdateRule",
    "PHONE_ENG_Setup::getMeterMax",
    "PHONE_ENG_Setup::setMeterMax",
    "PHONE_ENG_Setup::disableCMM",
    "PHONE_ENG_Setup::getChargeType",
    "PHONE_ENG_Setup::setChargeType",
    "PHONE_ENG_Setup::getPriceUnitCurrency",
    "PHONE_ENG_Setup::setPriceUnitCurrency",
    "TAPI_GPRS_GetAllSessionInfo",
    "TAPI_GPRS_GetTotalDuration",
    "TAPI_GPRS_GetTotalDataBytes",
    "TAPI_GPRS_ResetTotalDuration",
    "TAPI_GPRS_ResetTotalDataBytes",
    "TAPI_SECURITY_GetAnyPinStatus",
    "SETUP_SECURITY_Util::triesLeft", // a part of verifyPin, which goes on without it
    "SETUP_SECURITY_Util::verifyPin",
};
static_assert(operationNames.size() == 4 + 15 + 4 + 8 + 5 + 3);
static_assert(operationNames.back() != nullptr);

/// The row of `name`; -1 for none.
constexpr int operationIndex(std::string_view name)
{
    for (std::size_t index = 0; index < operationNames.size(); ++index) {
        if (name == operationNames[index])
            return static_cast<int>(index);
    }
    return -1;
}

} // namespace host
