#include "PHONE_MsgClient.h"

#include "DataCalls.h"
#include "Handset.h"
#include "Status.h"

namespace {

int withDataCalls(int (handset::DataCalls::*operation)())
{
    const std::shared_ptr<handset::Handset> telephone = handset::current();
    handset::DataCalls *calls = telephone ? telephone->dataCalls() : nullptr;
    return calls ? (calls->*operation)() : static_cast<int>(handset::NotAvailable);
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
