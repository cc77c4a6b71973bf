// The backend of oFono over a modem without a call meter.
#include "handset/ofono/OfonoRig.h"

std::unique_ptr<handset::test::HandsetRig> handset::test::makeRig()
{
    return std::make_unique<OfonoRig>();
}
