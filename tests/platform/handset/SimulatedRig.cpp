#include "handset/SimulatedRig.h"

std::unique_ptr<handset::test::HandsetRig> handset::test::makeRig()
{
    return std::make_unique<SimulatedRig>();
}
