// The handset as the backend of oFono puts it together, over a modem without a call meter: the own tariff charges.
#include "handset/live/LiveRig.h"
#include "handset/ofono/OfonoDesk.h"
#include "ofono/OfonoHandset.h"

namespace handset::test {

namespace {

class OfonoRig final : public LiveRig
{
    // Its bus has no daemon: what that would report, the rig says.
    void make() override
    {
        systemBus();
        desk.openWith([this](std::unique_ptr<calllog::Ledger> ledger, live::InterfaceCounters counters) {
            return std::make_unique<ofono::OfonoHandset>(std::move(ledger), desk.clock,
                                                         std::make_unique<ofono::OfonoModem>(),
                                                         ofono::CallMeter::usualWaitMs, std::move(counters));
        });
    }
};

} // namespace

std::unique_ptr<HandsetRig> makeRig()
{
    return std::make_unique<OfonoRig>();
}

} // namespace handset::test
