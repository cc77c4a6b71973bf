// The telephone behind the real ofonod, which has the AT modem for hardware.
#include "handset/live/RealOfono.h"
#include "handset/live/RealPhone.h"
#include "ofono/OfonoHandset.h"
#include "support/TestGroup.h"

#include <QtDBus/QDBusVariant>

using namespace handset;
using namespace handset::test;
using atmodem::Dialed;
using AtPhone = atmodem::Phone;

#define COMES_ABOUT(...) QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), story().constData())

class TestReal : public QObject, private RealPhone<RealOfono, ofono::OfonoHandset>
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { daemon.reset(); }

    void aDialedCallLastsAsLongAsTheModemSays();
    void anAnsweredCallLastsAsLongAsTheModemSays();
    void aLostCallIsLoggedWithoutTime();
    void aRefusedCallIsToldAndIsNone();
    void aWaitingCallIsTakenWhileTheOtherIsHeld();
    void callsCostWhatTheCardHasCounted();
    void theFilesOfTheCardAreWrittenUnderPin2();
    void threeWrongPin2BlockIt();
    void bytesAreThoseOfTheInterface();
    void aCallEndsWithTheDaemonAndTheNextOneIsSeen();
    void aCallEndsWithTheModemThatIsUnpluggedAndTheNextOneIsSeen();
    void aCardThatCannotBeReadHasNoFigures();

private:
    bool isReady() const
    {
        return isRegistered() && phone->callMeter().accumulated() && phone->callMeter().tries();
    }
    QString cost(int (CallLog::*query)(QByteArray &))
    {
        QByteArray text;
        const int status = (phone->callLog()->*query)(text);
        return status == Success ? QString::fromLatin1(text) : QStringLiteral("-%1").arg(status);
    }
    bool enterPin(const char *digits, bool &accepted)
    {
        return phone->simSecurity()->verifyPin(SimSecurity::Pin2, digits, accepted) == Success;
    }
};

void TestReal::initTestCase()
{
    daemon = std::make_unique<RealOfono>();
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", daemon->busAddress().toLocal8Bit());
    QVERIFY2(daemon->bringUp(), story().constData());
}

void TestReal::init()
{
    QVERIFY(open([](auto ledger, auto clock, auto counters) {
        return std::make_unique<ofono::OfonoHandset>(std::move(ledger), clock,
                                                     std::make_unique<ofono::OfonoModem>(),
                                                     ofono::CallMeter::usualWaitMs, std::move(counters));
    }));
    COMES_ABOUT(isReady());
}

void TestReal::cleanup()
{
    phone.reset();
    lead([](AtPhone &there) {
        while (there.hangUpThere()) {
        }
        there.dialed = Dialed::Led;
    });
    COMES_ABOUT(daemon->calls().isEmpty());
}

void TestReal::aDialedCallLastsAsLongAsTheModemSays()
{
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Alerting);
    lead([](AtPhone &there) { there.answer(); });
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Active);
    COMES_ABOUT(record().durationMs() > 1500);
    QCOMPARE(phone->modem().hangUp(idOf("5550001")), int(Success));
    COMES_ABOUT(!phaseOf("5550001"));
    QCOMPARE(row("5550001"), "0:1:0");
    QVERIFY(isAsLong("5550001"));
}

void TestReal::anAnsweredCallLastsAsLongAsTheModemSays()
{
    lead([](AtPhone &there) { there.ring("5550003"); });
    COMES_ABOUT(phaseOf("5550003") == CallPhase::Incoming);
    QCOMPARE(phone->modem().answer(idOf("5550003")), int(Success));
    COMES_ABOUT(phaseOf("5550003") == CallPhase::Active);
    COMES_ABOUT(record().durationMs() > 1500);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phaseOf("5550003"));
    QCOMPARE(row("5550003"), "1:1:0");
    QVERIFY(isAsLong("5550003"));
}

void TestReal::aLostCallIsLoggedWithoutTime()
{
    lead([](AtPhone &there) { there.ring("5550004"); });
    COMES_ABOUT(phaseOf("5550004") == CallPhase::Incoming);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phaseOf("5550004"));
    QCOMPARE(row("5550004"), "1:2:0");
    QCOMPARE(ms("5550004"), 0);
}

void TestReal::aRefusedCallIsToldAndIsNone()
{
    QString told;
    connect(&phone->modem(), &live::Modem::refused, this, [&](const QString &why) { told = why; });
    lead([](AtPhone &there) { there.dialed = Dialed::Busy; });
    QCOMPARE(phone->modem().dial("5550002"), int(Success));
    COMES_ABOUT(!told.isEmpty());
    QCOMPARE(told, "The telephone does not dial: it failed (Failed).");
    QCOMPARE(row("5550002"), QString());
}

void TestReal::aWaitingCallIsTakenWhileTheOtherIsHeld()
{
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Active);
    lead([](AtPhone &there) { there.ring("5550003"); });
    COMES_ABOUT(phaseOf("5550003") == CallPhase::Waiting);
    QCOMPARE(phone->modem().answer(idOf("5550003")), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Held && phaseOf("5550003") == CallPhase::Active);
    COMES_ABOUT(record().durationMs() > 1200);
    lead([](AtPhone &there) { there.hangUpThere("5550003"); });
    COMES_ABOUT(phone->calls().reported().size() == 1);
    QCOMPARE(row("5550003"), "1:1:0");
    QVERIFY(isAsLong("5550003"));
    lead([](AtPhone &there) {
        while (there.hangUpThere()) {
        }
        there.hangUpThere("5550001");
    });
    COMES_ABOUT(phone->calls().reported().isEmpty());
    QVERIFY(isAsLong("5550001", 1));
}

void TestReal::callsCostWhatTheCardHasCounted()
{
    const uint before = *phone->callMeter().accumulated();
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Active);
    lead([](AtPhone &there) { there.tick(3); });
    COMES_ABOUT(cost(&CallLog::dialedCallsCost) == "3.00"); // told while it is on
    lead([](AtPhone &there) {
        there.isMeterPushed = false;
        there.tick(4);
        there.hangUpThere();
        there.isMeterPushed = true;
    });
    COMES_ABOUT(cost(&CallLog::dialedCallsCost) == "7.00");
    QCOMPARE(record().units, 7U);
    QCOMPARE(cost(&CallLog::answeredCallsCost), "0.00");
    QCOMPARE(cost(&CallLog::allCallsCost), QString::number(before + 7) + ".00");
}

void TestReal::theFilesOfTheCardAreWrittenUnderPin2()
{
    AdviceOfCharge &advice = *phone->adviceOfCharge();
    QString price;
    QString currency;
    bool accepted = false;
    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(advice.setPriceAndCurrency("0.23", "USD"), int(Success));
    QCOMPARE(advice.priceAndCurrency(price, currency), int(Success));
    QCOMPARE(price + ' ' + currency, "0.23 USD");
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.price.text(); }), QByteArray("0.23"));

    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(advice.setMeterMaximum("5000"), int(Success));
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acmMax; }), 5000U);
    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acmMax; }), 5000U); // as it was
    QCOMPARE(advice.disableMeterMaximum(), int(Success));
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acmMax; }), 0U);

    lead([](AtPhone &there) { there.sim.addUnits(9); });
    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(phone->callLog()->resetAllCallsCost(), int(Success));
    QCOMPARE(cost(&CallLog::allCallsCost), "0.00");
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acm; }), 0U);
}

void TestReal::threeWrongPin2BlockIt()
{
    for (int left = 2; left >= 0; --left) {
        bool accepted = true;
        QVERIFY(enterPin("9999", accepted));
        QVERIFY(!accepted);
        int tries = -1;
        QCOMPARE(phone->simSecurity()->triesLeft(SimSecurity::Pin2, tries), int(Success));
        QCOMPARE(tries, left);
        QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.pin2Tries; }), left);
    }
    quint32 status = 0;
    QCOMPARE(phone->simSecurity()->pinStatus(SimSecurity::Pin2, status), int(Success));
    QCOMPARE(status, quint32(SimSecurity::Blocked));
    lead([](AtPhone &there) { there.sim.unblockPin2("87654321", "1234"); });
}

void TestReal::bytesAreThoseOfTheInterface()
{
    QVERIFY(setCounters(QStringLiteral("dummy0"), 1000, 2000));
    const QString context = objectsOf(daemon->onModem("ConnectionManager", "GetContexts")).firstKey();
    const auto set = [&](const char *what, const QVariant &value) {
        return daemon
            ->on(context, "ConnectionContext", "SetProperty",
                 {QLatin1String(what), QVariant::fromValue(QDBusVariant(value))})
            .errorName();
    };
    QCOMPARE(set("AccessPointName", "internet"), QString());
    QCOMPARE(set("Active", true), QString());
    COMES_ABOUT(phone->sessions().reported().size() == 1);
    QCOMPARE(phone->sessions().reported().constFirst().interface, "dummy0");
    QVERIFY(setCounters(QStringLiteral("dummy0"), 1007, 5'000'002'000));
    QCOMPARE(set("Active", false), QString());
    COMES_ABOUT(phone->sessions().reported().isEmpty());
    QCOMPARE(sessions(), "internet:7:5000000000:1");
}

void TestReal::aCallEndsWithTheDaemonAndTheNextOneIsSeen()
{
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Active);
    QVERIFY(daemon->kill());
    COMES_ABOUT(!phaseOf("5550001"));
    QCOMPARE(row("5550001"), "0:1:0");
    QVERIFY2(daemon->bringUp(), story().constData());
    COMES_ABOUT(isRegistered() && phaseOf("5550001") == CallPhase::Active);
    // It goes on, since nobody knows when.
    CallTime all;
    QCOMPARE(phone->callLog()->lifetimeCallsTime(all), int(Success));
    QCOMPARE(all.hours, 0U);
    QCOMPARE(row("5550001"), "0:0:1");
    lead([](AtPhone &there) {
        while (there.hangUpThere()) {
        }
    });
    COMES_ABOUT(!phaseOf("5550001"));
    lead([](AtPhone &there) { there.ring("5550005"); });
    COMES_ABOUT(phaseOf("5550005") == CallPhase::Incoming);
}

void TestReal::aCallEndsWithTheModemThatIsUnpluggedAndTheNextOneIsSeen()
{
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Active);
    daemon->modem().with([](atmodem::Modem &all) { all.unplug(); });
    COMES_ABOUT(!phaseOf("5550001"));
    QCOMPARE(row("5550001"), "0:1:0");
    daemon->modem().with([](atmodem::Modem &all) { all.plugIn(); });
    QVERIFY2(daemon->bringUpModem(), story().constData());
    COMES_ABOUT(isReady());
    lead([](AtPhone &there) { there.ring("5550006"); });
    COMES_ABOUT(phaseOf("5550006") == CallPhase::Incoming);
    QCOMPARE(phone->modem().answer(idOf("5550006")), int(Success));
    COMES_ABOUT(phaseOf("5550006") == CallPhase::Active);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phaseOf("5550006"));
    QCOMPARE(row("5550006"), "1:1:0");
}

void TestReal::aCardThatCannotBeReadHasNoFigures()
{
    const auto readsAgain = [&](bool isReadable) {
        lead([isReadable](AtPhone &there) { there.sim.isMeterReadable = isReadable; });
        daemon->modem().with([](atmodem::Modem &all) { all.unplug(); });
        COMES_ABOUT(!phone->callMeter().isThere());
        daemon->modem().with([](atmodem::Modem &all) { all.plugIn(); });
        QVERIFY2(daemon->bringUpModem(), story().constData());
        COMES_ABOUT(phone->callMeter().isAnswered() && phone->callMeter().toldMaximum());
    };
    const QString notAvailable = QStringLiteral("-%1").arg(NotAvailable);
    readsAgain(false);
    QCOMPARE(phone->callMeter().toldMaximum(), 0U);
    QCOMPARE(cost(&CallLog::allCallsCost), notAvailable);
    readsAgain(true);
    QVERIFY(cost(&CallLog::allCallsCost) != notAvailable);
}

KAV_TEST_GROUP(TestReal, QCoreApplication);
#include "tst_real.moc"
