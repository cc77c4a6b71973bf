// A handset that has no role and keeps nothing, in a library of its own.
#include "handset/Backend.h"

namespace {

class BareHandset : public handset::Handset
{
public:
    handset::CallService *callService() override { return nullptr; }
    handset::CallLog *callLog() override { return nullptr; }
    handset::DataCalls *dataCalls() override { return nullptr; }
};

handset::Opened openBare(const handset::Settings &settings)
{
    if (settings.clock)
        return {std::make_shared<BareHandset>(), {}, {}};
    return {nullptr, QStringLiteral("There is no clock."), {}};
}

} // namespace

KAV_HANDSET_BACKEND(openBare)
