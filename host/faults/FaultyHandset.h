// A handset some of whose operations fail, in front of another.
#pragma once

#include "handset/DecoratedHandset.h"
#include "host/faults/Faults.h"

namespace host {

/// What the phone's libraries talk to, so that it can be seen what they do when the handset does not answer. An
/// operation that fails returns its code, does not reach the handset behind and writes no output; all others are
/// the handset's. A role that the handset has not is null here too.
class FaultyHandset final : public handset::DecoratedHandset<FaultyHandset>
{
public:
    using DecoratedHandset::DecoratedHandset;

    Faults &faults() { return failing; }

    template <typename... Arguments>
    std::optional<int> before(int operation, Arguments &...)
    {
        const int code = failing.code(operation);
        return code == 0 ? std::nullopt : std::optional(code);
    }

private:
    Faults failing;
};

} // namespace host
