// The roles of a telephone some of whose operations fail: per operation one line with its name.
#pragma once

#include "AdviceOfCharge.h"
#include "CallLog.h"
#include "CallService.h"
#include "DataCalls.h"
#include "Faults.h"
#include "Handset.h"
#include "PacketData.h"
#include "SimSecurity.h"

namespace host {

/// A role in front of the same role of another telephone, which has it whenever it is asked through this.
template <typename Role, Role *(handset::Handset::*accessor)()>
class FaultyRole : public Role
{
public:
    /// Both outlive this.
    FaultyRole(handset::Handset &telephone, const Faults &telephoneFaults)
        : behind(telephone)
        , faults(telephoneFaults)
    {}

protected:
    template <int operation, typename... Parameters, typename... Arguments>
    int run(int (Role::*call)(Parameters...), Arguments &...arguments)
    {
        static_assert(operation >= 0, "an operation has a row in the table of names");
        if (const int code = faults.code(operation))
            return code;
        return (real().*call)(arguments...);
    }
    Role &real() { return *(behind.*accessor)(); }

private:
    handset::Handset &behind;
    const Faults &faults;
};

class FaultyCallService final : public FaultyRole<handset::CallService, &handset::Handset::callService>
{
public:
    using FaultyRole::FaultyRole;

    int totalCallTime(handset::CallTime &time) override
    {
        return run<operationIndex("TAPI_CS_GetTotalCallTime")>(&CallService::totalCallTime, time);
    }
    int resetCallTime() override
    {
        return run<operationIndex("TAPI_CS_ResetCallTime")>(&CallService::resetCallTime);
    }
    int remainingCredit(QByteArray &text) override
    {
        return run<operationIndex("TAPI_CS_GetRemainCredit")>(&CallService::remainingCredit, text);
    }
    int lastCallCost(QByteArray &text) override
    {
        return run<operationIndex("TAPI_CS_GetLastCallCost")>(&CallService::lastCallCost, text);
    }
};

class FaultyCallLog final : public FaultyRole<handset::CallLog, &handset::Handset::callLog>
{
public:
    using FaultyRole::FaultyRole;

    int lastCallTime(handset::CallTime &time) override
    {
        return run<operationIndex("TAPI_LOG_GetLastCallTime")>(&CallLog::lastCallTime, time);
    }
    int dialedCallsTime(handset::CallTime &time) override
    {
        return run<operationIndex("TAPI_LOG_GetDialedCallsTime")>(&CallLog::dialedCallsTime, time);
    }
    int answeredCallsTime(handset::CallTime &time) override
    {
        return run<operationIndex("TAPI_LOG_GetAnsweredCallsTime")>(&CallLog::answeredCallsTime, time);
    }
    int lifetimeCallsTime(handset::CallTime &time) override
    {
        return run<operationIndex("TAPI_LOG_GetLifetimeCallsTime")>(&CallLog::lifetimeCallsTime, time);
    }
    int resetDialedCallsTime() override
    {
        return run<operationIndex("TAPI_LOG_ResetDialedCallsTime")>(&CallLog::resetDialedCallsTime);
    }
    int resetAnsweredCallsTime() override
    {
        return run<operationIndex("TAPI_LOG_ResetAnsweredCallsTime")>(&CallLog::resetAnsweredCallsTime);
    }
    int resetAll() override { return run<operationIndex("TAPI_LOG_ResetAll")>(&CallLog::resetAll); }
    int depositExpirationDate(handset::Date &date) override
    {
        return run<operationIndex("TAPI_LOG_GetDepositExpirationDate")>(&CallLog::depositExpirationDate, date);
    }
    int lastDeposit(QByteArray &text) override
    {
        return run<operationIndex("TAPI_LOG_GetLastDeposit")>(&CallLog::lastDeposit, text);
    }
    int dialedCallsCost(QByteArray &text) override
    {
        return run<operationIndex("TAPI_LOG_GetDialedCallsCost")>(&CallLog::dialedCallsCost, text);
    }
    int answeredCallsCost(QByteArray &text) override
    {
        return run<operationIndex("TAPI_LOG_GetAnsweredCallsCost")>(&CallLog::answeredCallsCost, text);
    }
    int allCallsCost(QByteArray &text) override
    {
        return run<operationIndex("TAPI_LOG_GetAllCallsCost")>(&CallLog::allCallsCost, text);
    }
    int resetDialedCallsCost() override
    {
        return run<operationIndex("TAPI_LOG_ResetDialedCallsCost")>(&CallLog::resetDialedCallsCost);
    }
    int resetAnsweredCallsCost() override
    {
        return run<operationIndex("TAPI_LOG_ResetAnsweredCallsCost")>(&CallLog::resetAnsweredCallsCost);
    }
    int resetAllCallsCost() override
    {
        return run<operationIndex("TAPI_LOG_ResetAllCallsCost")>(&CallLog::resetAllCallsCost);
    }
};

class FaultyDataCalls final : public FaultyRole<handset::DataCalls, &handset::Handset::dataCalls>
{
public:
    using FaultyRole::FaultyRole;

    int refreshTotals() override
    {
        return run<operationIndex("PHONE_MsgClient::getTotalByteAndConnectedDuration")>(&DataCalls::refreshTotals);
    }
    int totalDuration(quint32 &seconds) override
    {
        return run<operationIndex("UTIL_GetTotalDuration")>(&DataCalls::totalDuration, seconds);
    }
    int callStatus(quint8 &status) override
    {
        return run<operationIndex("UTIL_GetDataCallStaus")>(&DataCalls::callStatus, status);
    }
    int resetTotalDuration() override
    {
        return run<operationIndex("PHONE_MsgClient::resetTotalDuration")>(&DataCalls::resetTotalDuration);
    }
};

class FaultyAdviceOfCharge final : public FaultyRole<handset::AdviceOfCharge, &handset::Handset::adviceOfCharge>
{
public:
    using FaultyRole::FaultyRole;

    int updateRule(quint8 file, quint8 &rule) override
    {
        return run<operationIndex("PHONE_ENG_Setup::getEFUpdateRule")>(&AdviceOfCharge::updateRule, file, rule);
    }
    int meterMaximum(QString &maximum, bool &enabled) override
    {
        return run<operationIndex("PHONE_ENG_Setup::getMeterMax")>(&AdviceOfCharge::meterMaximum, maximum,
                                                                   enabled);
    }
    int setMeterMaximum(const QString &maximum) override
    {
        return run<operationIndex("PHONE_ENG_Setup::setMeterMax")>(&AdviceOfCharge::setMeterMaximum, maximum);
    }
    int disableMeterMaximum() override
    {
        return run<operationIndex("PHONE_ENG_Setup::disableCMM")>(&AdviceOfCharge::disableMeterMaximum);
    }
    int chargeType(quint8 &type) override
    {
        return run<operationIndex("PHONE_ENG_Setup::getChargeType")>(&AdviceOfCharge::chargeType, type);
    }
    int setChargeType(quint8 type) override
    {
        return run<operationIndex("PHONE_ENG_Setup::setChargeType")>(&AdviceOfCharge::setChargeType, type);
    }
    int priceAndCurrency(QString &price, QString &currency) override
    {
        return run<operationIndex("PHONE_ENG_Setup::getPriceUnitCurrency")>(&AdviceOfCharge::priceAndCurrency,
                                                                            price, currency);
    }
    int setPriceAndCurrency(const QString &price, const QString &currency) override
    {
        return run<operationIndex("PHONE_ENG_Setup::setPriceUnitCurrency")>(&AdviceOfCharge::setPriceAndCurrency,
                                                                            price, currency);
    }
};

class FaultyPacketData final : public FaultyRole<handset::PacketData, &handset::Handset::packetData>
{
public:
    using FaultyRole::FaultyRole;

    int sessions(handset::DataSessions &sessions) override
    {
        return run<operationIndex("TAPI_GPRS_GetAllSessionInfo")>(&PacketData::sessions, sessions);
    }
    int totalDuration(handset::CallTime &duration) override
    {
        return run<operationIndex("TAPI_GPRS_GetTotalDuration")>(&PacketData::totalDuration, duration);
    }
    int totalBytes(quint32 &total, quint32 &received, quint32 &sent) override
    {
        return run<operationIndex("TAPI_GPRS_GetTotalDataBytes")>(&PacketData::totalBytes, total, received, sent);
    }
    int resetTotalDuration() override
    {
        return run<operationIndex("TAPI_GPRS_ResetTotalDuration")>(&PacketData::resetTotalDuration);
    }
    int resetTotalBytes() override
    {
        return run<operationIndex("TAPI_GPRS_ResetTotalDataBytes")>(&PacketData::resetTotalBytes);
    }
    // No operation of the phone's libraries: it cannot fail.
    void setUpdateListener(const std::function<void()> &listener) override { real().setUpdateListener(listener); }
};

class FaultySimSecurity final : public FaultyRole<handset::SimSecurity, &handset::Handset::simSecurity>
{
public:
    using FaultyRole::FaultyRole;

    int pinStatus(quint8 pin, quint32 &status) override
    {
        return run<operationIndex("TAPI_SECURITY_GetAnyPinStatus")>(&SimSecurity::pinStatus, pin, status);
    }
    int triesLeft(quint8 pin, int &tries) override
    {
        return run<operationIndex("SETUP_SECURITY_Util::triesLeft")>(&SimSecurity::triesLeft, pin, tries);
    }
    int verifyPin(quint8 pin, const QByteArray &digits, bool &accepted) override
    {
        return run<operationIndex("SETUP_SECURITY_Util::verifyPin")>(&SimSecurity::verifyPin, pin, digits,
                                                                     accepted);
    }
};

} // namespace host
