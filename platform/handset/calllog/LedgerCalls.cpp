#include "calllog/LedgerCalls.h"

#include "calllog/Listing.h"
#include "handset/Status.h"

namespace handset::calllog {

int LedgerCalls::newest(qint64 before, int most, QList<KeptCall> &calls)
{
    QList<ListedCall> found;
    if (const int status = newestCalls(ledger, before, most, found))
        return status;
    calls.clear();
    for (const auto &[id, call, state] : std::as_const(found))
        calls.append({id, call, state == CallState::Running, state != CallState::NotConnected});
    return Success;
}

int LedgerCalls::count(qint64 first, qint64 before, qint64 &count)
{
    return countCalls(ledger, first, before, count);
}

int LedgerCalls::remove(qint64 id)
{
    return ledger.changed(deleteCall(ledger, id));
}

int LedgerCalls::removeBefore(qint64 wallMs, qint64 &count)
{
    qint64 deleted = 0;
    if (const int status = deleteCalls(ledger, {std::numeric_limits<qint64>::min(), wallMs}, deleted))
        return status;
    count = deleted;
    return deleted > 0 ? ledger.changed(Success) : int{Success};
}

} // namespace handset::calllog
