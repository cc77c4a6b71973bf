// A handset that has no role and keeps nothing, in the place of the simulated one.
#include "simulated/SimulatedBackend.h"

namespace {

class BareHandset : public handset::Handset
{
public:
    handset::CallService *callService() override { return nullptr; }
    handset::CallLog *callLog() override { return nullptr; }
    handset::DataCalls *dataCalls() override { return nullptr; }
};

} // namespace

Q_DECL_EXPORT handset::Opened handset::simulated::open(const Settings &)
{
    return {std::make_shared<BareHandset>(), {}, {}};
}
