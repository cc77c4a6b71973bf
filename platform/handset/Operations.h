// The one list of what a handset can be asked, and the one vocabulary for it.
#pragma once

#include <array>
#include <string_view>

// OPERATION(role, operation, parameters, arguments...) for every operation of every role. Parameters that are const go
// in, the others come out. Their names and the decorator (DecoratedHandset.h) are made of these rows; a new operation is
// a declaration in its role, a row here, and what the backends answer.
// clang-format off
#define KAV_CALL_SERVICE_OPERATIONS(OPERATION) \
    OPERATION(CallService, totalCallTime, (CallTime &time), time) \
    OPERATION(CallService, resetCallTime, ()) \
    OPERATION(CallService, remainingCredit, (QByteArray &text), text) \
    OPERATION(CallService, lastCallCost, (QByteArray &text), text)
#define KAV_CALL_LOG_OPERATIONS(OPERATION) \
    OPERATION(CallLog, lastCallTime, (CallTime &time), time) \
    OPERATION(CallLog, dialedCallsTime, (CallTime &time), time) \
    OPERATION(CallLog, answeredCallsTime, (CallTime &time), time) \
    OPERATION(CallLog, lifetimeCallsTime, (CallTime &time), time) \
    OPERATION(CallLog, resetDialedCallsTime, ()) \
    OPERATION(CallLog, resetAnsweredCallsTime, ()) \
    OPERATION(CallLog, resetAll, ()) \
    OPERATION(CallLog, depositExpirationDate, (Date &date), date) \
    OPERATION(CallLog, lastDeposit, (QByteArray &text), text) \
    OPERATION(CallLog, dialedCallsCost, (QByteArray &text), text) \
    OPERATION(CallLog, answeredCallsCost, (QByteArray &text), text) \
    OPERATION(CallLog, allCallsCost, (QByteArray &text), text) \
    OPERATION(CallLog, resetDialedCallsCost, ()) \
    OPERATION(CallLog, resetAnsweredCallsCost, ()) \
    OPERATION(CallLog, resetAllCallsCost, ())
#define KAV_DATA_CALLS_OPERATIONS(OPERATION) \
    OPERATION(DataCalls, refreshTotals, ()) \
    OPERATION(DataCalls, totalDuration, (quint32 &seconds), seconds) \
    OPERATION(DataCalls, callStatus, (quint8 &status), status) \
    OPERATION(DataCalls, resetTotalDuration, ())
#define KAV_ADVICE_OF_CHARGE_OPERATIONS(OPERATION) \
    OPERATION(AdviceOfCharge, updateRule, (const quint8 file, quint8 &rule), file, rule) \
    OPERATION(AdviceOfCharge, meterMaximum, (QString &maximum, bool &enabled), maximum, enabled) \
    OPERATION(AdviceOfCharge, setMeterMaximum, (const QString &maximum), maximum) \
    OPERATION(AdviceOfCharge, disableMeterMaximum, ()) \
    OPERATION(AdviceOfCharge, chargeType, (quint8 &type), type) \
    OPERATION(AdviceOfCharge, setChargeType, (const quint8 type), type) \
    OPERATION(AdviceOfCharge, priceAndCurrency, (QString &price, QString &currency), price, currency) \
    OPERATION(AdviceOfCharge, setPriceAndCurrency, (const QString &price, const QString &currency), price, currency)
#define KAV_PACKET_DATA_OPERATIONS(OPERATION) \
    OPERATION(PacketData, sessions, (DataSessions &sessions), sessions) \
    OPERATION(PacketData, totalDuration, (CallTime &duration), duration) \
    OPERATION(PacketData, totalBytes, (quint32 &total, quint32 &received, quint32 &sent), total, received, sent) \
    OPERATION(PacketData, resetTotalDuration, ()) \
    OPERATION(PacketData, resetTotalBytes, ())
#define KAV_SIM_SECURITY_OPERATIONS(OPERATION) \
    OPERATION(SimSecurity, pinStatus, (const quint8 pin, quint32 &status), pin, status) \
    OPERATION(SimSecurity, triesLeft, (const quint8 pin, int &tries), pin, tries) \
    OPERATION(SimSecurity, verifyPin, (const quint8 pin, const QByteArray &digits, bool &accepted), pin, digits, accepted)
#define KAV_HANDSET_OPERATIONS(OPERATION) \
    KAV_CALL_SERVICE_OPERATIONS(OPERATION) \
    KAV_CALL_LOG_OPERATIONS(OPERATION) \
    KAV_DATA_CALLS_OPERATIONS(OPERATION) \
    KAV_ADVICE_OF_CHARGE_OPERATIONS(OPERATION) \
    KAV_PACKET_DATA_OPERATIONS(OPERATION) \
    KAV_SIM_SECURITY_OPERATIONS(OPERATION)
// clang-format on

namespace handset {

#define KAV_NAME(role, operation, ...) #role "::" #operation,
/// "Role::operation", in the order of the roles in Handset.h.
inline constexpr std::array operationNames{KAV_HANDSET_OPERATIONS(KAV_NAME)};
#undef KAV_NAME

/// The row of `name`; -1 for none.
constexpr int operationIndex(std::string_view name)
{
    for (std::size_t index = 0; index < operationNames.size(); ++index) {
        if (name == operationNames[index])
            return static_cast<int>(index);
    }
    return -1;
}

} // namespace handset
