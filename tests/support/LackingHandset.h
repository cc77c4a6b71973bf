// A handset that has not every role.
#pragma once

#include "handset/DecoratedHandset.h"

#include <QtCore/QStringList>

/// In front of another handset, without some of its roles ("CallLog"). It is not the simulated one, whatever is behind.
class LackingHandset final : public handset::DecoratedHandset<LackingHandset>
{
public:
    LackingHandset(std::shared_ptr<handset::Handset> other, const QStringList &roles)
        : DecoratedHandset(std::move(other))
    {
        for (const QString &role : roles)
            takeAway(role);
    }
    /// Without any role, and with nothing behind.
    LackingHandset()
        : LackingHandset(nullptr,
                         {"CallService", "CallLog", "DataCalls", "AdviceOfCharge", "PacketData", "SimSecurity"})
    {}
};
