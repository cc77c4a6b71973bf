// What every handset that keeps its calls in a ledger has of it.
#pragma once

#include "calllog/CallFigures.h"
#include "calllog/Charging.h"
#include "calllog/PacketFigures.h"
#include "handset/Handset.h"

#include <memory>
#include <utility>

namespace handset::calllog {

/// The roles that the ledger answers. What is made of it adds the line: one that is driven by hand, or a modem's.
class LedgerHandset : public Handset
{
public:
    CallService *callService() override { return &figures; }
    CallLog *callLog() override { return &figures; }
    DataCalls *dataCalls() override { return &figures; }
    PacketData *packetData() override { return &packetFigures; }
    KeptCalls *keptCalls() override { return &figures; }
    Charging *charging() override { return &charges; }
    bool owesRecord() const override { return ledger->owesCall() || ledger->owesSession(); }
    void setChangeListener(const std::function<void()> &listener) override { onChange = listener; }

protected:
    /// Neither is null. This process records from now on, when nobody else does.
    LedgerHandset(std::unique_ptr<Ledger> opened, std::shared_ptr<Clock> clocks)
        : ledger(std::move(opened))
        , clock(std::move(clocks))
    {
        ledger->record();
    }

    const std::unique_ptr<Ledger> ledger;
    const std::shared_ptr<Clock> clock;
    CallFigures figures{*ledger};
    PacketFigures packetFigures{*ledger};
    Charging charges{*ledger};
    std::function<void()> onChange;
};

} // namespace handset::calllog
