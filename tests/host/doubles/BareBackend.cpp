// A handset that has no role and keeps nothing, in a library of its own.
#include "handset/Backend.h"
#include "support/LackingHandset.h"

namespace {

handset::Opened openBare(const handset::Settings &settings)
{
    if (settings.clock)
        return {std::make_shared<LackingHandset>(), {}, {}};
    return {nullptr, QStringLiteral("There is no clock."), {}};
}

} // namespace

KAV_HANDSET_BACKEND(openBare)
