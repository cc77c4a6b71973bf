#include "message/PHONE_MsgClient.h"

#include "handset/DataCalls.h"
#include "handset/Roles.h"

namespace {

int withDataCalls(int (handset::DataCalls::*operation)())
{
    return withRole(&handset::Handset::dataCalls,
                    [operation](handset::DataCalls &calls) { return (calls.*operation)(); });
}

} // namespace

PHONE_MsgClient::PHONE_MsgClient(QObject *parent, const char *name)
    : QObject(parent)
{
    setObjectName(QString::fromLatin1(name));
}

PHONE_MsgClient::~PHONE_MsgClient() = default;

int PHONE_MsgClient::getTotalByteAndConnectedDuration()
{
    return withDataCalls(&handset::DataCalls::refreshTotals);
}

int PHONE_MsgClient::resetTotalDuration(bool confirmed)
{
    if (!confirmed)
        return handset::Success;
    return withDataCalls(&handset::DataCalls::resetTotalDuration);
}
