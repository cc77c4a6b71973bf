// The backend "ofono": the telephone is a modem behind oFono.
#include "handset/Backend.h"
#include "live/LiveHandset.h"
#include "ofono/OfonoModem.h"

namespace {

handset::Opened openOfono(const handset::Settings &settings)
{
    return handset::live::open(settings, std::make_unique<handset::ofono::OfonoModem>());
}

} // namespace

KAV_HANDSET_BACKEND(openOfono)
