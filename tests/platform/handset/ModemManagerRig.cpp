// The handset as the backend of ModemManager puts it together: no advice of charge, so the own tariff charges.
#include "bench/daemons/FakeModemManager.h"
#include "handset/live/LiveRig.h"
#include "modemmanager/ModemManagerModem.h"
#include "qt/qcop/PrivateBus.h"

namespace handset::test {

namespace {

PrivateBus &bus()
{
    static PrivateBus only;
    return only;
}

class ModemManagerRig final : public LiveRig
{
    bool makePhone() override
    {
        if (!fake) {
            fake = std::make_unique<FakeModemManager>(bus().address());
            fake->addModem(fake->modem);
            fake->appear();
        }
        desk.open(std::make_unique<modemmanager::ModemManagerModem>(bus().address()));
        return desk.phone != nullptr;
    }
    bool isReady() override { return desk.phone->modem().state().isThere; }
    QString call() const { return QStringLiteral("/org/freedesktop/ModemManager1/Call/%1").arg(calls); }
    QString bearer() const { return QStringLiteral("/org/freedesktop/ModemManager1/Bearer/%1").arg(sessions); }
    void addCall(CallDirection direction) override
    {
        const bool isDialed = direction == CallDirection::Dialed;
        fake->addCall(call(), isDialed ? Outgoing : Incoming, isDialed ? Dialing : RingingIn, number);
    }
    void answerCall() override { fake->moveCall(call(), Active); }
    void endCall() override
    {
        fake->moveCall(call(), Terminated);
        fake->deleteCall(call());
    }
    void addSession(const QString &apn, const QString &interface) override
    {
        fake->addBearer(bearer(), {{QStringLiteral("Connected"), true},
                                   {QStringLiteral("Interface"), interface},
                                   {QStringLiteral("ReloadStatsSupported"), false},
                                   {QStringLiteral("Properties"), QVariantMap{{QStringLiteral("apn"), apn}}}});
    }
    void removeSession() override
    {
        fake->set(bearer(), QStringLiteral("Bearer"), {{QStringLiteral("Connected"), false}});
    }

    std::unique_ptr<FakeModemManager> fake;
};

} // namespace

std::unique_ptr<HandsetRig> makeRig()
{
    return std::make_unique<ModemManagerRig>();
}

} // namespace handset::test
