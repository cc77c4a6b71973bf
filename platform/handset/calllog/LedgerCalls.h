// The calls that a ledger keeps, one by one.
#pragma once

#include "calllog/Ledger.h"
#include "handset/KeptCalls.h"

namespace handset::calllog {

/// For every handset that has a ledger.
class LedgerCalls final : public KeptCalls
{
public:
    /// `owner` outlives this.
    explicit LedgerCalls(Ledger &owner)
        : ledger(owner)
    {}

    int newest(qint64 before, int most, QList<KeptCall> &calls) override;
    int count(qint64 first, qint64 before, qint64 &count) override;
    int remove(qint64 id) override;
    int removeBefore(qint64 wallMs, qint64 &count) override;

private:
    Ledger &ledger;
};

} // namespace handset::calllog
