// The backend "ofono": the handset is a modem behind oFono.
#include "handset/Backend.h"
#include "ofono/OfonoHandset.h"

namespace handset::ofono {

namespace {

// A daemon that is not there yet is waited for; a bus that is not there is an error at the start alone.
Opened open(const Settings &settings)
{
    auto modem = std::make_unique<OfonoModem>();
    if (const QString error = modem->connectToBus(settings.patience.bus); !error.isEmpty())
        return {nullptr, error, {}};
    std::shared_ptr<OfonoHandset> handset;
    Opened opened = live::open(settings, [&](std::unique_ptr<calllog::Ledger> ledger) {
        handset = std::make_shared<OfonoHandset>(std::move(ledger), settings.clock, std::move(modem));
        return handset;
    });
    if (handset)
        handset->awaitFigures(settings.patience.operation, settings.isGivenUp);
    return opened;
}

Awaited await(const std::function<void()> &here)
{
    return live::await(std::make_unique<OfonoModem>(), here);
}

} // namespace

} // namespace handset::ofono

KAV_HANDSET_BACKEND(handset::ofono::open)
KAV_HANDSET_PRESENCE(handset::ofono::isModemPresent, handset::ofono::await)
