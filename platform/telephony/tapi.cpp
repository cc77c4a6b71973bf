#include "telephony/tapi.h"

#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/PacketData.h"
#include "handset/Roles.h"
#include "handset/SimSecurity.h"

#include <QtCore/QtEndian>

#include <cstring>

using handset::CallLog;
using handset::CallService;
using handset::Handset;
using handset::PacketData;
using handset::SimSecurity;

namespace {

template <typename Role>
int queryTime(Role *(Handset::*role)(), int (Role::*query)(handset::CallTime &), TAPI_CallTime *time)
{
    if (!time)
        return handset::InvalidArgument;
    return withRole(role, [&](Role &target) {
        handset::CallTime answer;
        const int status = (target.*query)(answer);
        if (status == handset::Success)
            *time = {answer.hours, answer.minutes, answer.seconds};
        return status;
    });
}

template <typename Role>
int queryText(Role *(Handset::*role)(), int (Role::*query)(QByteArray &), char *text, qsizetype size)
{
    if (!text)
        return handset::InvalidArgument;
    return withRole(role, [&](Role &target) {
        QByteArray answer;
        const int status = (target.*query)(answer);
        if (status != handset::Success)
            return status;
        if (answer.size() >= size)
            return static_cast<int>(handset::TextTooLong);
        std::memcpy(text, answer.constData(), static_cast<std::size_t>(answer.size()) + 1);
        return status;
    });
}

int queryAmount(int (CallLog::*query)(QByteArray &), char *text)
{
    return queryText(&Handset::callLog, query, text, TAPI_AMOUNT_TEXT_SIZE);
}

void fillRecord(TAPI_GPRS_SessionRecord &record, const handset::DataSession &session)
{
    record.sessionId = session.id;
    record.bytesSent = qToLittleEndian(session.bytesSent);
    record.bytesReceived = qToLittleEndian(session.bytesReceived);
    record.hours = qToLittleEndian(session.duration.hours);
    record.minutes = session.duration.minutes;
    record.seconds = session.duration.seconds;
    std::memcpy(record.apn, session.apn.constData(), static_cast<std::size_t>(session.apn.size()));
}

int fillBlock(TAPI_GPRS_SessionInfo &block, const handset::DataSessions &sessions)
{
    TAPI_GPRS_SessionInfo filled = {};
    filled.count = qToLittleEndian(sessions.count);
    for (std::size_t i = 0; i < sessions.records.size(); ++i) {
        if (sessions.records[i].apn.size() >= static_cast<qsizetype>(sizeof filled.records[i].apn))
            return handset::TextTooLong;
        fillRecord(filled.records[i], sessions.records[i]);
    }
    block = filled;
    return handset::Success;
}

template <typename Role>
int command(Role *(Handset::*role)(), int (Role::*operation)())
{
    return withRole(role, [&](Role &target) { return (target.*operation)(); });
}

} // namespace

int TAPI_CS_GetTotalCallTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callService, &CallService::totalCallTime, time);
}

int TAPI_CS_ResetCallTime()
{
    return command(&Handset::callService, &CallService::resetCallTime);
}

int TAPI_LOG_GetLastCallTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::lastCallTime, time);
}

int TAPI_LOG_GetDialedCallsTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::dialedCallsTime, time);
}

int TAPI_LOG_GetAnsweredCallsTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::answeredCallsTime, time);
}

int TAPI_LOG_GetLifetimeCallsTime(TAPI_CallTime *time)
{
    return queryTime(&Handset::callLog, &CallLog::lifetimeCallsTime, time);
}

int TAPI_LOG_ResetDialedCallsTime()
{
    return command(&Handset::callLog, &CallLog::resetDialedCallsTime);
}

int TAPI_LOG_ResetAnsweredCallsTime()
{
    return command(&Handset::callLog, &CallLog::resetAnsweredCallsTime);
}

int TAPI_LOG_ResetAll()
{
    return command(&Handset::callLog, &CallLog::resetAll);
}

int TAPI_CS_GetRemainCredit(char *text)
{
    return queryText(&Handset::callService, &CallService::remainingCredit, text, TAPI_CREDIT_TEXT_SIZE);
}

int TAPI_CS_GetLastCallCost(char *text)
{
    return queryText(&Handset::callService, &CallService::lastCallCost, text, TAPI_AMOUNT_TEXT_SIZE);
}

int TAPI_LOG_GetDepositExpirationDate(TAPI_Date *date)
{
    if (!date)
        return handset::InvalidArgument;
    return withRole(&Handset::callLog, [&](CallLog &log) {
        handset::Date answer;
        const int status = log.depositExpirationDate(answer);
        if (status == handset::Success)
            *date = {answer.year, answer.month, answer.day};
        return status;
    });
}

int TAPI_LOG_GetLastDeposit(char *text)
{
    return queryAmount(&CallLog::lastDeposit, text);
}

int TAPI_LOG_GetDialedCallsCost(char *text)
{
    return queryAmount(&CallLog::dialedCallsCost, text);
}

int TAPI_LOG_GetAnsweredCallsCost(char *text)
{
    return queryAmount(&CallLog::answeredCallsCost, text);
}

int TAPI_LOG_GetAllCallsCost(char *text)
{
    return queryAmount(&CallLog::allCallsCost, text);
}

int TAPI_LOG_ResetAllCallsCost()
{
    return command(&Handset::callLog, &CallLog::resetAllCallsCost);
}

int TAPI_LOG_ResetDialedCallsCost()
{
    return command(&Handset::callLog, &CallLog::resetDialedCallsCost);
}

int TAPI_LOG_ResetAnsweredCallsCost()
{
    return command(&Handset::callLog, &CallLog::resetAnsweredCallsCost);
}

int TAPI_GPRS_GetAllSessionInfo(TAPI_GPRS_SessionInfo *info)
{
    if (!info)
        return handset::InvalidArgument;
    return withRole(&Handset::packetData, [&](PacketData &packetData) {
        handset::DataSessions answer;
        const int status = packetData.sessions(answer);
        return status == handset::Success ? fillBlock(*info, answer) : status;
    });
}

int TAPI_GPRS_GetTotalDuration(TAPI_CallTime *duration)
{
    return queryTime(&Handset::packetData, &PacketData::totalDuration, duration);
}

int TAPI_GPRS_GetTotalDataBytes(uint32_t *total, uint32_t *received, uint32_t *sent)
{
    if (!total || !received || !sent)
        return handset::InvalidArgument;
    return withRole(&Handset::packetData, [&](PacketData &packetData) {
        quint32 totalBytes = 0;
        quint32 receivedBytes = 0;
        quint32 sentBytes = 0;
        const int status = packetData.totalBytes(totalBytes, receivedBytes, sentBytes);
        if (status == handset::Success) {
            *total = totalBytes;
            *received = receivedBytes;
            *sent = sentBytes;
        }
        return status;
    });
}

int TAPI_GPRS_ResetTotalDuration()
{
    return command(&Handset::packetData, &PacketData::resetTotalDuration);
}

int TAPI_GPRS_ResetTotalDataBytes()
{
    return command(&Handset::packetData, &PacketData::resetTotalBytes);
}

int TAPI_SECURITY_GetAnyPinStatus(uint8_t pin, uint32_t *status)
{
    if (!status)
        return handset::InvalidArgument;
    return withRole(&Handset::simSecurity, [&](SimSecurity &security) {
        quint32 answer = 0;
        const int result = security.pinStatus(pin, answer);
        if (result == handset::Success)
            *status = answer;
        return result;
    });
}
