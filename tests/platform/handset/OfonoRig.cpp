// The backend of oFono over a modem whose SIM has advice of charge.
#include "handset/ofono/OfonoRig.h"

std::unique_ptr<handset::test::HandsetRig> handset::test::makeRig()
{
    return std::make_unique<MeteredOfonoRig>();
}
