// A backend of somebody else's: one role, in a library of its own.
#include "handset/Backend.h"
#include "handset/DecoratedHandset.h"

namespace {

class OnlyTotalTime : public handset::DecoratedHandset<OnlyTotalTime>
{
public:
    std::optional<int> before(int, handset::CallTime &time)
    {
        time.hours = 42;
        return handset::Success;
    }
    using DecoratedHandset::before;
};

handset::Opened openOnlyTotalTime(const handset::Settings &settings)
{
    if (!settings.clock)
        return {nullptr, QStringLiteral("There is no clock."), {}};
    return {std::make_shared<OnlyTotalTime>(), {}, QStringLiteral("simulated is another")};
}

} // namespace

KAV_HANDSET_BACKEND(openOnlyTotalTime)
