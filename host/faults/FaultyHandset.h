// A telephone some of whose operations fail, in front of another.
#pragma once

#include "FaultyRoles.h"

#include <memory>

namespace host {

/// What the phone's libraries talk to, so that it can be seen what they do when the telephone does not answer. An
/// operation that fails answers its code, does not reach the telephone behind and writes no output; all others are
/// the telephone's. A role that the telephone has not is null here too.
class FaultyHandset final : public handset::Handset
{
public:
    /// `telephone` is not null.
    explicit FaultyHandset(std::shared_ptr<handset::Handset> telephone)
        : behind(std::move(telephone))
    {}

    Faults &faults() { return failing; }

    handset::CallService *callService() override { return inFront(behind->callService(), service); }
    handset::CallLog *callLog() override { return inFront(behind->callLog(), log); }
    handset::DataCalls *dataCalls() override { return inFront(behind->dataCalls(), data); }
    handset::AdviceOfCharge *adviceOfCharge() override { return inFront(behind->adviceOfCharge(), charge); }
    handset::PacketData *packetData() override { return inFront(behind->packetData(), packets); }
    handset::SimSecurity *simSecurity() override { return inFront(behind->simSecurity(), sim); }

private:
    template <typename Role, typename Faulty>
    static Role *inFront(Role *real, Faulty &faulty)
    {
        return real ? &faulty : nullptr;
    }

    std::shared_ptr<handset::Handset> behind;
    Faults failing;
    FaultyCallService service{*behind, failing};
    FaultyCallLog log{*behind, failing};
    FaultyDataCalls data{*behind, failing};
    FaultyAdviceOfCharge charge{*behind, failing};
    FaultyPacketData packets{*behind, failing};
    FaultySimSecurity sim{*behind, failing};
};

} // namespace host
