// A backend that has only the roles that every handset has.
#include "handset/SimulatedRig.h"
#include "support/LackingHandset.h"

namespace handset::test {

namespace {

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
        lacking = std::make_unique<LackingHandset>(phone->opened.handset, lackingRoles());
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
