// The roles of the scripted telephone: per operation one line that plays it, and its name in the role's table.
#pragma once

#include "Script.h"

#include "AdviceOfCharge.h"
#include "CallLog.h"
#include "CallService.h"
#include "DataCalls.h"
#include "PacketData.h"
#include "SimSecurity.h"

class ScriptedCallService final : public handset::CallService
{
public:
    static constexpr const char *operations[] = {
        "CallService::totalCallTime",
        "CallService::resetCallTime",
        "CallService::remainingCredit",
        "CallService::lastCallCost",
    };

    explicit ScriptedCallService(Script &s)
        : script(s)
    {}

    int totalCallTime(handset::CallTime &time) override { return script.play("CallService::totalCallTime", time); }
    int resetCallTime() override { return script.play("CallService::resetCallTime"); }
    int remainingCredit(QByteArray &text) override { return script.play("CallService::remainingCredit", text); }
    int lastCallCost(QByteArray &text) override { return script.play("CallService::lastCallCost", text); }

private:
    Script &script;
};

class ScriptedCallLog final : public handset::CallLog
{
public:
    static constexpr const char *operations[] = {
        "CallLog::lastCallTime",
        "CallLog::dialedCallsTime",
        "CallLog::answeredCallsTime",
        "CallLog::lifetimeCallsTime",
        "CallLog::resetDialedCallsTime",
        "CallLog::resetAnsweredCallsTime",
        "CallLog::resetAll",
        "CallLog::depositExpirationDate",
        "CallLog::lastDeposit",
        "CallLog::dialedCallsCost",
        "CallLog::answeredCallsCost",
        "CallLog::allCallsCost",
        "CallLog::resetDialedCallsCost",
        "CallLog::resetAnsweredCallsCost",
        "CallLog::resetAllCallsCost",
    };

    explicit ScriptedCallLog(Script &s)
        : script(s)
    {}

    int lastCallTime(handset::CallTime &time) override { return script.play("CallLog::lastCallTime", time); }
    int dialedCallsTime(handset::CallTime &time) override { return script.play("CallLog::dialedCallsTime", time); }
    int answeredCallsTime(handset::CallTime &time) override
    {
        return script.play("CallLog::answeredCallsTime", time);
    }
    int lifetimeCallsTime(handset::CallTime &time) override
    {
        return script.play("CallLog::lifetimeCallsTime", time);
    }
    int resetDialedCallsTime() override { return script.play("CallLog::resetDialedCallsTime"); }
    int resetAnsweredCallsTime() override { return script.play("CallLog::resetAnsweredCallsTime"); }
    int resetAll() override { return script.play("CallLog::resetAll"); }
    int depositExpirationDate(handset::Date &date) override
    {
        return script.play("CallLog::depositExpirationDate", date);
    }
    int lastDeposit(QByteArray &text) override { return script.play("CallLog::lastDeposit", text); }
    int dialedCallsCost(QByteArray &text) override { return script.play("CallLog::dialedCallsCost", text); }
    int answeredCallsCost(QByteArray &text) override { return script.play("CallLog::answeredCallsCost", text); }
    int allCallsCost(QByteArray &text) override { return script.play("CallLog::allCallsCost", text); }
    int resetDialedCallsCost() override { return script.play("CallLog::resetDialedCallsCost"); }
    int resetAnsweredCallsCost() override { return script.play("CallLog::resetAnsweredCallsCost"); }
    int resetAllCallsCost() override { return script.play("CallLog::resetAllCallsCost"); }

private:
    Script &script;
};

class ScriptedDataCalls final : public handset::DataCalls
{
public:
    static constexpr const char *operations[] = {
        "DataCalls::refreshTotals",
        "DataCalls::totalDuration",
        "DataCalls::callStatus",
        "DataCalls::resetTotalDuration",
    };

    explicit ScriptedDataCalls(Script &s)
        : script(s)
    {}

    int refreshTotals() override { return script.play("DataCalls::refreshTotals"); }
    int totalDuration(quint32 &seconds) override { return script.play("DataCalls::totalDuration", seconds); }
    int callStatus(quint8 &status) override { return script.play("DataCalls::callStatus", status); }
    int resetTotalDuration() override { return script.play("DataCalls::resetTotalDuration"); }

private:
    Script &script;
};

class ScriptedAdviceOfCharge final : public handset::AdviceOfCharge
{
public:
    static constexpr const char *operations[] = {
        "AdviceOfCharge::updateRule",       "AdviceOfCharge::meterMaximum",
        "AdviceOfCharge::setMeterMaximum",  "AdviceOfCharge::disableMeterMaximum",
        "AdviceOfCharge::chargeType",       "AdviceOfCharge::setChargeType",
        "AdviceOfCharge::priceAndCurrency", "AdviceOfCharge::setPriceAndCurrency",
    };

    explicit ScriptedAdviceOfCharge(Script &s)
        : script(s)
    {}

    int updateRule(quint8 file, quint8 &rule) override
    {
        return script.playWith("AdviceOfCharge::updateRule", QString::number(file), rule);
    }
    int meterMaximum(QString &maximum, bool &enabled) override
    {
        return script.play("AdviceOfCharge::meterMaximum", maximum, enabled);
    }
    int setMeterMaximum(const QString &maximum) override
    {
        return script.playWith("AdviceOfCharge::setMeterMaximum", maximum);
    }
    int disableMeterMaximum() override { return script.play("AdviceOfCharge::disableMeterMaximum"); }
    int chargeType(quint8 &type) override { return script.play("AdviceOfCharge::chargeType", type); }
    int setChargeType(quint8 type) override
    {
        return script.playWith("AdviceOfCharge::setChargeType", QString::number(type));
    }
    int priceAndCurrency(QString &price, QString &currency) override
    {
        return script.play("AdviceOfCharge::priceAndCurrency", price, currency);
    }
    int setPriceAndCurrency(const QString &price, const QString &currency) override
    {
        return script.playWith("AdviceOfCharge::setPriceAndCurrency", price + QLatin1String(", ") + currency);
    }

private:
    Script &script;
};

class ScriptedPacketData final : public handset::PacketData
{
public:
    static constexpr const char *operations[] = {
        "PacketData::sessions",           "PacketData::totalDuration",   "PacketData::totalBytes",
        "PacketData::resetTotalDuration", "PacketData::resetTotalBytes",
    };

    explicit ScriptedPacketData(Script &s)
        : script(s)
    {}

    int sessions(handset::DataSessions &sessions) override
    {
        return script.play("PacketData::sessions", sessions);
    }
    int totalDuration(handset::CallTime &duration) override
    {
        return script.play("PacketData::totalDuration", duration);
    }
    int totalBytes(quint32 &total, quint32 &received, quint32 &sent) override
    {
        return script.play("PacketData::totalBytes", total, received, sent);
    }
    int resetTotalDuration() override { return script.play("PacketData::resetTotalDuration"); }
    int resetTotalBytes() override { return script.play("PacketData::resetTotalBytes"); }
    void setUpdateListener(const std::function<void()> &) override {} // a test's own messages are the only ones

private:
    Script &script;
};

class ScriptedSimSecurity final : public handset::SimSecurity
{
public:
    static constexpr const char *operations[] = {
        "SimSecurity::pinStatus",
        "SimSecurity::triesLeft",
        "SimSecurity::verifyPin",
    };

    explicit ScriptedSimSecurity(Script &s)
        : script(s)
    {}

    int pinStatus(quint8 pin, quint32 &status) override
    {
        return script.playWith("SimSecurity::pinStatus", QString::number(pin), status);
    }
    int triesLeft(quint8 pin, int &tries) override
    {
        return script.playWith("SimSecurity::triesLeft", QString::number(pin), tries);
    }
    int verifyPin(quint8 pin, const QByteArray &digits, bool &accepted) override
    {
        const QString arguments = QString::number(pin) + QLatin1String(", ") + QString::fromLatin1(digits);
        return script.playWith("SimSecurity::verifyPin", arguments, accepted);
    }

private:
    Script &script;
};
