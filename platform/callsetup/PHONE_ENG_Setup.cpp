#include "callsetup/PHONE_ENG_Setup.h"

#include "handset/AdviceOfCharge.h"
#include "handset/Roles.h"

using handset::AdviceOfCharge;

namespace {

template <typename Call>
int withAdviceOfCharge(Call call)
{
    return withRole(&handset::Handset::adviceOfCharge, call);
}

// Passes on how a write went; what kept it from being done is told as a signal, too.
int reported(PHONE_ENG_Setup &engine, int status)
{
    if (status == handset::StorageFailed)
        emit engine.flashFull();
    else if (status == handset::NotAllowed)
        emit engine.sigSetupOpertionNotAllowed();
    return status;
}

} // namespace

PHONE_ENG_Setup::PHONE_ENG_Setup() = default;

PHONE_ENG_Setup::~PHONE_ENG_Setup() = default;

PHONE_ENG_Setup *PHONE_ENG_Setup::instance()
{
    // Lives until the process ends: libraries may still hold it while they are taken down.
    static auto *const engine = new PHONE_ENG_Setup;
    return engine;
}

int PHONE_ENG_Setup::getEFUpdateRule(unsigned char file, unsigned char &rule)
{
    return withAdviceOfCharge([&](AdviceOfCharge &advice) { return advice.updateRule(file, rule); });
}

int PHONE_ENG_Setup::getMeterMax(QString &maximum, bool &enabled)
{
    return withAdviceOfCharge([&](AdviceOfCharge &advice) { return advice.meterMaximum(maximum, enabled); });
}

int PHONE_ENG_Setup::setMeterMax(QString const &maximum)
{
    return reported(*this,
                    withAdviceOfCharge([&](AdviceOfCharge &advice) { return advice.setMeterMaximum(maximum); }));
}

int PHONE_ENG_Setup::disableCMM()
{
    return reported(*this,
                    withAdviceOfCharge([](AdviceOfCharge &advice) { return advice.disableMeterMaximum(); }));
}

int PHONE_ENG_Setup::getChargeType(unsigned char &type)
{
    return withAdviceOfCharge([&](AdviceOfCharge &advice) { return advice.chargeType(type); });
}

int PHONE_ENG_Setup::setChargeType(unsigned char type)
{
    return reported(*this, withAdviceOfCharge([&](AdviceOfCharge &advice) { return advice.setChargeType(type); }));
}

int PHONE_ENG_Setup::getPriceUnitCurrency(QString &price, QString &currency)
{
    return withAdviceOfCharge([&](AdviceOfCharge &advice) { return advice.priceAndCurrency(price, currency); });
}

int PHONE_ENG_Setup::setPriceUnitCurrency(QString const &price, QString const &currency)
{
    return reported(*this, withAdviceOfCharge([&](AdviceOfCharge &advice) {
        return advice.setPriceAndCurrency(price, currency);
    }));
}

void PHONE_ENG_Setup::updateCFFlag()
{
    emit updateCallForwardingFlag();
}
