#include "handset/Backend.h"
#include "live/LiveHandset.h"
#include "modemmanager/ModemManagerModem.h"

namespace handset::modemmanager {

namespace {

// A daemon that is not there yet is waited for; a bus that is not there is an error at the start alone.
Opened open(const Settings &settings)
{
    auto modem = std::make_unique<ModemManagerModem>();
    if (const QString error = modem->connectToBus(settings.patience.bus); !error.isEmpty())
        return {nullptr, error, {}};
    return live::open(settings, std::move(modem));
}

Awaited await(const std::function<void()> &here)
{
    return live::await(std::make_unique<ModemManagerModem>(), here);
}

} // namespace

} // namespace handset::modemmanager

KAV_HANDSET_BACKEND(handset::modemmanager::open)
KAV_HANDSET_PRESENCE(handset::modemmanager::isModemPresent, handset::modemmanager::await)
