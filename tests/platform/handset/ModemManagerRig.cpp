// The handset as the backend of ModemManager puts it together: no advice of charge, so the own tariff charges.
#include "handset/live/LiveRig.h"
#include "handset/live/ScriptedModem.h"

namespace handset::test {

namespace {

class ModemManagerRig final : public LiveRig
{
    void make() override { desk.open(std::make_unique<ScriptedModem>()); }
};

} // namespace

std::unique_ptr<HandsetRig> makeRig()
{
    return std::make_unique<ModemManagerRig>();
}

} // namespace handset::test
