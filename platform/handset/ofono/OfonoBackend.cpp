// The backend "ofono": the telephone is a modem behind oFono.
#include "handset/Backend.h"
#include "ofono/OfonoHandset.h"

namespace {

handset::Opened openOfono(const handset::Settings &settings)
{
    return handset::live::open(settings, [&](std::unique_ptr<handset::calllog::Ledger> ledger) {
        return std::make_shared<handset::ofono::OfonoHandset>(std::move(ledger), settings.clock,
                                                              std::make_unique<handset::ofono::OfonoModem>());
    });
}

} // namespace

KAV_HANDSET_BACKEND(openOfono)
