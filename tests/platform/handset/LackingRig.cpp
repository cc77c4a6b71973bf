// A backend that has only the roles that every handset has.
#include "handset/DecoratedHandset.h"
#include "handset/SimulatedRig.h"

namespace handset::test {

namespace {

class LackingHandset final : public DecoratedHandset<LackingHandset>
{
public:
    using DecoratedHandset::DecoratedHandset;
};

class LackingRig final : public SimulatedRig
{
public:
    QStringList lackingRoles() const override
    {
        return {QStringLiteral("AdviceOfCharge"), QStringLiteral("PacketData"), QStringLiteral("SimSecurity")};
    }
    bool open() override
    {
        if (!SimulatedRig::open())
            return false;
        lacking = std::make_unique<LackingHandset>(phone->opened.handset);
        for (const QString &role : lackingRoles())
            lacking->takeAway(role);
        return true;
    }
    void close() override
    {
        lacking.reset();
        SimulatedRig::close();
    }
    Handset &handset() override { return *lacking; }

private:
    std::unique_ptr<LackingHandset> lacking;
};

} // namespace

std::unique_ptr<HandsetRig> makeRig()
{
    return std::make_unique<LackingRig>();
}

} // namespace handset::test
