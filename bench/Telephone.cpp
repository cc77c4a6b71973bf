#include "bench/Telephone.h"

#include "bench/CallLogs.h"
#include "bench/SessionBus.h"
#include "bench/daemons/FakeModemManager.h"
#include "bench/daemons/FakeOfono.h"
#include "calllog/OpenLedger.h"
#include "handset/AdviceOfCharge.h"
#include "modemmanager/ModemManagerModem.h"
#include "ofono/OfonoHandset.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>

#include <functional>

namespace bench {

namespace {

using handset::test::FakeModemManager;
using handset::test::FakeOfono;
namespace live = handset::live;

constexpr int oldCalls = 100;
constexpr int longestMs = 120'000; // under valgrind, too
constexpr qint64 sessionMs = 65'000;
constexpr qint64 sentBytes = 97'500;
constexpr qint64 receivedBytes = 780'000;
const QString apn = QStringLiteral("internet");
const QString number = QStringLiteral("+4930555010");

class SimulatedTelephone final : public Telephone
{
public:
    explicit SimulatedTelephone(const std::shared_ptr<const QTemporaryDir> &log)
        : benched(CallLogs::openIn(log))
    {
        time = benched.clock;
        handset::simulated::SimulatedHandset &phone = *benched.handset;
        phone.adviceOfCharge()->setPriceAndCurrency(QStringLiteral("0.25"), QStringLiteral("EUR"));
        phone.adviceOfCharge()->setChargeType(handset::AdviceOfCharge::InCurrency);
        phone.adviceOfCharge()->setMeterMaximum(QStringLiteral("100"));
        phone.packets().startSession(apn.toLatin1(), sentBytes * 1000 / sessionMs,
                                     receivedBytes * 1000 / sessionMs);
        time->advance(sessionMs);
        phone.packets().stopSession();
    }
    std::shared_ptr<handset::Handset> handset() override { return benched.handset; }
    bool connectCall() override
    {
        return benched.handset->ring(number) == handset::Success && benched.handset->answer() == handset::Success;
    }
    bool endCall() override { return benched.handset->hangUp() == handset::Success; }

private:
    BenchedHandset benched;
};

/// The daemon is on the bus of this run, in this process.
class LiveTelephone : public Telephone
{
    // Last of all to go.
    const std::shared_ptr<const QTemporaryDir> directory;
    const QTemporaryDir interfaces;

public:
    explicit LiveTelephone(std::shared_ptr<const QTemporaryDir> log)
        : directory(std::move(log))
    {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    }
    std::shared_ptr<handset::Handset> handset() override { return phone; }
    bool connectCall() override
    {
        ++calls;
        ringAndAnswer();
        return until([this] {
            const QList<live::ReportedCall> all = phone->calls().reported();
            return all.size() == 1 && phone->calls().rowOf(all.constFirst().id) != 0;
        });
    }
    bool endCall() override
    {
        hangUp();
        return until([this] { return phone->calls().reported().isEmpty(); });
    }

protected:
    template <typename Make>
    bool open(Make make)
    {
        handset::calllog::OpenedLedger opened = handset::calllog::openLedger(directory->path(), time);
        if (!opened.ledger)
            return false;
        phone = make(std::move(opened.ledger), live::InterfaceCounters(interfaces.path()));
        return until([this] { return phone->modem().state().isThere; });
    }
    bool recordSession()
    {
        count(0, 0);
        connectData();
        if (!until([this] { return !phone->sessions().reported().isEmpty(); }))
            return false;
        count(sentBytes, receivedBytes);
        time->advance(sessionMs);
        disconnectData();
        return until([this] { return phone->sessions().reported().isEmpty(); });
    }
    static bool until(const std::function<bool()> &state)
    {
        QElapsedTimer since;
        since.start();
        while (!state() && !since.hasExpired(longestMs))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return state();
    }

    std::shared_ptr<live::LiveHandset> phone;
    int calls = 0;

private:
    virtual void ringAndAnswer() = 0;
    virtual void hangUp() = 0;
    virtual void connectData() = 0;
    virtual void disconnectData() = 0;

    void count(qint64 sent, qint64 received) const
    {
        const QString folder = interfaces.filePath(QStringLiteral("wwan0/statistics"));
        QDir().mkpath(folder);
        for (const auto &[name, bytes] : {std::pair("/tx_bytes", sent), std::pair("/rx_bytes", received)}) {
            QFile counter(folder + QLatin1String(name));
            if (counter.open(QIODevice::WriteOnly))
                counter.write(QByteArray::number(bytes) + '\n');
        }
    }
};

class OfonoTelephone final : public LiveTelephone
{
public:
    explicit OfonoTelephone(std::shared_ptr<const QTemporaryDir> log)
        : LiveTelephone(std::move(log))
    {}
    bool open()
    {
        fake.answers[QStringLiteral("CallMeter")] = {{QStringLiteral("AccumulatedCallMeter"), 40U},
                                                     {QStringLiteral("AccumulatedCallMeterMaximum"), 100U},
                                                     {QStringLiteral("PricePerUnit"), 0.25},
                                                     {QStringLiteral("Currency"), QStringLiteral("EUR")}};
        fake.answers[QStringLiteral("SimManager")] = {{QStringLiteral("PinRequired"), QStringLiteral("none")}};
        fake.setInterfaces({QStringLiteral("VoiceCallManager"), QStringLiteral("ConnectionManager"),
                            QStringLiteral("SimManager"), QStringLiteral("CallMeter")});
        fake.appear();
        return LiveTelephone::open([this](auto ledger, auto counters) {
                   auto made = std::make_shared<handset::ofono::OfonoHandset>(
                       std::move(ledger), time, std::make_unique<handset::ofono::OfonoModem>(),
                       handset::ofono::CallMeter::usualWaitMs, std::move(counters));
                   made->awaitFigures(longestMs);
                   made->adviceOfCharge()->setChargeType(handset::AdviceOfCharge::InCurrency);
                   return made;
               }) &&
               recordSession();
    }

private:
    void ringAndAnswer() override
    {
        fake.addCall(call(), {{QStringLiteral("State"), QStringLiteral("incoming")},
                              {QStringLiteral("LineIdentification"), number}});
        fake.setCall(call(), "State", QStringLiteral("active"));
    }
    void hangUp() override
    {
        fake.setCall(call(), "State", QStringLiteral("disconnected"));
        fake.removeCall(call());
    }
    void connectData() override
    {
        fake.addContext(context, {{QStringLiteral("Active"), true},
                                  {QStringLiteral("AccessPointName"), apn},
                                  {QStringLiteral("Settings"),
                                   QVariantMap{{QStringLiteral("Interface"), QStringLiteral("wwan0")}}}});
    }
    void disconnectData() override { fake.removeContext(context); }
    QString call() const { return FakeOfono::modem + QStringLiteral("/voicecall%1").arg(calls); }

    const QString context = FakeOfono::modem + QStringLiteral("/context1");
    FakeOfono fake{qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS")};
};

class ModemManagerTelephone final : public LiveTelephone
{
public:
    explicit ModemManagerTelephone(std::shared_ptr<const QTemporaryDir> log)
        : LiveTelephone(std::move(log))
    {}
    bool open()
    {
        fake.addModem(fake.modem);
        fake.appear();
        return LiveTelephone::open([this](auto ledger, auto counters) {
                   return std::make_shared<live::LiveHandset>(
                       std::move(ledger), time,
                       std::make_unique<handset::modemmanager::ModemManagerModem>(live::systemBusAddress()),
                       std::move(counters));
               }) &&
               recordSession();
    }

private:
    void ringAndAnswer() override
    {
        fake.addCall(call(), handset::test::Incoming, handset::test::RingingIn, number);
        fake.moveCall(call(), handset::test::Active);
    }
    void hangUp() override
    {
        fake.moveCall(call(), handset::test::Terminated);
        fake.deleteCall(call());
    }
    void connectData() override
    {
        fake.addBearer(bearer, {{QStringLiteral("Connected"), true},
                                {QStringLiteral("Interface"), QStringLiteral("wwan0")},
                                {QStringLiteral("Properties"), QVariantMap{{QStringLiteral("apn"), apn}}}});
    }
    void disconnectData() override
    {
        fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), false}});
    }
    QString call() const { return QStringLiteral("/org/freedesktop/ModemManager1/Call/%1").arg(calls); }

    const QString bearer = QStringLiteral("/org/freedesktop/ModemManager1/Bearer/1");
    FakeModemManager fake{qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS")};
};

template <typename Live>
std::unique_ptr<Telephone> makeLive(std::shared_ptr<const QTemporaryDir> log)
{
    auto made = std::make_unique<Live>(std::move(log));
    return made->open() ? std::move(made) : nullptr;
}

} // namespace

QString Telephone::prepare(const QString &directory)
{
    return CallLogs(directory).prepare(oldCalls);
}

std::unique_ptr<Telephone> Telephone::make(Kind kind, const QString &directory)
{
    auto log = CallLogs(directory).copy(oldCalls);
    if (!log)
        return nullptr;
    switch (kind) {
    case Kind::Simulated:
        return std::make_unique<SimulatedTelephone>(log);
    case Kind::Ofono:
        return makeLive<OfonoTelephone>(log);
    case Kind::ModemManager:
        return makeLive<ModemManagerTelephone>(log);
    }
    return nullptr;
}

} // namespace bench
