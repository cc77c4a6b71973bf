// The telephone behind the real ModemManager, which has the AT modem for hardware.
#include "handset/live/RealModemManager.h"
#include "handset/live/RealPhone.h"
#include "modemmanager/ModemManagerModem.h"
#include "support/TestGroup.h"

#include <QtCore/QElapsedTimer>
#include <QtDBus/QDBusObjectPath>

using namespace handset;
using namespace handset::test;
using atmodem::Dialed;
using atmodem::End;
using AtPhone = atmodem::Phone;

#define COMES_ABOUT(...) QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), story().constData())

class TestModemManagerReal : public QObject, private RealPhone<RealModemManager, live::LiveHandset>
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { daemon.reset(); }

    void anAnsweredCallLastsAsLongAsTheModemSays();
    void aDialedCallLastsAsLongAsTheModemSays_data();
    void aDialedCallLastsAsLongAsTheModemSays();
    void aLostCallIsLoggedWithoutTime();
    void aCallThatIsRefusedIsLoggedWithoutTime();
    void aCallThatIsRefusedAtOnceIsTold();
    void aWaitingCallIsTakenWhileTheOtherIsHeld();
    void bytesAreThoseOfTheInterface();
    void aConnectionWithoutAnInterfaceHasNoBytes();
    void whatTheDaemonHasNotIsNotAvailable();
    void theNetworkIsShownAndItsLossToo();
    void aCallEndsWithTheDaemonAndTheNextOneIsSeen();

private:
    bool ringAndTake(const char *number);
    QString connectData();
    bool disconnectData(const QString &bearer);
};

void TestModemManagerReal::initTestCase()
{
    daemon = std::make_unique<RealModemManager>();
    QVERIFY2(daemon->bringUp(), story().constData());
}

void TestModemManagerReal::init()
{
    QVERIFY(open([&](auto ledger, auto clock, auto counters) {
        return std::make_unique<live::LiveHandset>(
            std::move(ledger), clock, std::make_unique<modemmanager::ModemManagerModem>(daemon->busAddress()),
            std::move(counters));
    }));
    COMES_ABOUT(isRegistered());
    daemon->forgetOutput();
}

void TestModemManagerReal::cleanup()
{
    phone.reset();
    lead([](AtPhone &there) {
        there.hangUpAllThere();
        there.dialed = Dialed::Led;
    });
    QVERIFY2(daemon->isRidOfCalls(), story().constData());
}

// Until it says that it is in a call the daemon would not hear that the call ends.
bool TestModemManagerReal::ringAndTake(const char *number)
{
    lead([number](AtPhone &there) { there.ring(number); });
    return comesAbout([&] { return phaseOf(number) == CallPhase::Incoming; }) &&
           phone->modem().answer(idOf(number)) == Success &&
           comesAbout([&] { return phaseOf(number) == CallPhase::Active; }) &&
           comesAbout([&] { return daemon->hasSaid("modem is now in-call state"); });
}

void TestModemManagerReal::anAnsweredCallLastsAsLongAsTheModemSays()
{
    QVERIFY2(ringAndTake("5550003"), story().constData());
    COMES_ABOUT(record().durationMs() > 1500);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phaseOf("5550003"));
    QVERIFY2(row("5550003") == QLatin1String("1:1:0"), story().constData());
    QVERIFY(isAsLong("5550003"));
}

void TestModemManagerReal::aDialedCallLastsAsLongAsTheModemSays_data()
{
    QTest::addColumn<int>("takenMs");
    QTest::newRow("taken soon after the daemon has asked") << 400;
    QTest::newRow("taken before the daemon asks again") << 1500;
}

// The daemon asks the modem every 2 s whether a dialed call has been answered.
void TestModemManagerReal::aDialedCallLastsAsLongAsTheModemSays()
{
    QFETCH(const int, takenMs);
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Alerting);
    const auto asks = [&] { return daemon->modem().log().commands.count("AT+CLCC"); };
    const auto before = asks();
    COMES_ABOUT(asks() > before);
    QElapsedTimer sinceAsked;
    sinceAsked.start();
    COMES_ABOUT(sinceAsked.hasExpired(takenMs));
    lead([](AtPhone &there) { there.answer(); });
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Active);
    QElapsedTimer sinceTold;
    sinceTold.start();
    COMES_ABOUT(sinceTold.hasExpired(1200));
    QCOMPARE(phone->modem().hangUp(idOf("5550001")), int(Success));
    COMES_ABOUT(!phaseOf("5550001"));
    QCOMPARE(row("5550001"), "0:1:0");
    QCOMPARE(record().end, End::HungUpHere);
    QVERIFY(isAsLong("5550001"));
}

void TestModemManagerReal::aLostCallIsLoggedWithoutTime()
{
    lead([](AtPhone &there) { there.ring("5550004"); });
    COMES_ABOUT(phaseOf("5550004") == CallPhase::Incoming);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phaseOf("5550004"));
    QCOMPARE(row("5550004"), "1:2:0");
    QCOMPARE(ms("5550004"), 0);
}

void TestModemManagerReal::aCallThatIsRefusedIsLoggedWithoutTime()
{
    QCOMPARE(phone->modem().dial("5550002"), int(Success));
    COMES_ABOUT(phaseOf("5550002") == CallPhase::Alerting);
    lead([](AtPhone &there) { there.refuse(End::Busy); });
    COMES_ABOUT(!phaseOf("5550002"));
    QCOMPARE(row("5550002"), "0:2:0");
    QCOMPARE(ms("5550002"), 0);
}

void TestModemManagerReal::aCallThatIsRefusedAtOnceIsTold()
{
    QString told;
    connect(&phone->modem(), &live::Modem::refused, this, [&](const QString &why) { told = why; });
    lead([](AtPhone &there) { there.dialed = Dialed::Busy; });
    QCOMPARE(phone->modem().dial("5550002"), int(Success));
    COMES_ABOUT(!told.isEmpty());
    QVERIFY2(told.startsWith(QStringLiteral("The call cannot be made: ")), qPrintable(told));
    COMES_ABOUT(!phaseOf("5550002"));
    QCOMPARE(ms("5550002"), 0);
}

void TestModemManagerReal::aWaitingCallIsTakenWhileTheOtherIsHeld()
{
    QVERIFY2(ringAndTake("5550001"), story().constData());
    lead([](AtPhone &there) { there.ring("5550003"); });
    COMES_ABOUT(phaseOf("5550003") == CallPhase::Waiting);
    QCOMPARE(phone->modem().answer(idOf("5550003")), int(Success));
    COMES_ABOUT(phaseOf("5550001") == CallPhase::Held && phaseOf("5550003") == CallPhase::Active);
    COMES_ABOUT(record().durationMs() > 1200);
    QCOMPARE(phone->modem().hangUp(idOf("5550003")), int(Success));
    COMES_ABOUT(!phaseOf("5550003"));
    QCOMPARE(phaseOf("5550001"), CallPhase::Held);
    QVERIFY2(row("5550003") == QLatin1String("1:1:0"), story().constData());
    QVERIFY(isAsLong("5550003"));
    // The one that is held has gone on all the while.
    QCOMPARE(phone->modem().hangUp(idOf("5550001")), int(Success));
    COMES_ABOUT(!phaseOf("5550001"));
    QCOMPARE(row("5550001"), "1:1:0");
    QVERIFY(isAsLong("5550001", 1));
}

QString TestModemManagerReal::connectData()
{
    const QVariantMap wanted{{QStringLiteral("apn"), QStringLiteral("internet")}};
    const QDBusMessage answer = daemon->onModem("Modem.Simple", "Connect", {wanted});
    if (answer.type() == QDBusMessage::ErrorMessage)
        qWarning("The daemon does not connect: %s", qPrintable(answer.errorMessage()));
    return valueOf(answer).toString();
}

bool TestModemManagerReal::disconnectData(const QString &bearer)
{
    return daemon->onModem("Modem.Simple", "Disconnect", {QVariant::fromValue(QDBusObjectPath(bearer))})
               .errorName()
               .isEmpty() &&
           comesAbout([&] { return phone->sessions().reported().isEmpty(); });
}

// The daemon's own count stays at zero with such a modem, and says so.
void TestModemManagerReal::bytesAreThoseOfTheInterface()
{
    const QString bearer = connectData();
    COMES_ABOUT(phone->sessions().reported().size() == 1);
    const QString interface = phone->sessions().reported().constFirst().interface;
    QVERIFY(!interface.isEmpty());
    QVERIFY(setCounters(interface, 7, 5'000'000'000));
    QVERIFY2(disconnectData(bearer), story().constData());
    QCOMPARE(sessions(), "internet:7:5000000000:1");
}

void TestModemManagerReal::aConnectionWithoutAnInterfaceHasNoBytes()
{
    const QString bearer = connectData();
    COMES_ABOUT(phone->sessions().reported().size() == 1);
    QVERIFY2(disconnectData(bearer), story().constData());
    QCOMPARE(sessions(), "internet:0:0:1");
}

void TestModemManagerReal::whatTheDaemonHasNotIsNotAvailable()
{
    QCOMPARE(phone->simSecurity(), nullptr);
    QCOMPARE(phone->dataCalls(), nullptr);
    QString text = QStringLiteral("as it was");
    QString other = text;
    bool enabled = true;
    QCOMPARE(phone->adviceOfCharge()->meterMaximum(text, enabled), int(NotAvailable));
    QCOMPARE(phone->adviceOfCharge()->priceAndCurrency(text, other), int(NotAvailable));
    QCOMPARE(text + other, QStringLiteral("as it wasas it was"));
}

void TestModemManagerReal::theNetworkIsShownAndItsLossToo()
{
    COMES_ABOUT(phone->modem().state().network == "Test Net");
    lead([](AtPhone &there) { there.setRegistration(atmodem::Registration::Searching); });
    COMES_ABOUT(phone->modem().state().status == "searching");
    lead([](AtPhone &there) { there.setRegistration(atmodem::Registration::Home); });
    COMES_ABOUT(isRegistered());
}

// Started again it hangs up the call that goes on, so there is nothing to go on with.
void TestModemManagerReal::aCallEndsWithTheDaemonAndTheNextOneIsSeen()
{
    QVERIFY2(ringAndTake("5550003"), story().constData());
    QVERIFY(daemon->kill());
    COMES_ABOUT(!phaseOf("5550003"));
    COMES_ABOUT(!phone->modem().state().isThere);
    QVERIFY2(row("5550003") == QLatin1String("1:1:0"), story().constData());
    QVERIFY2(daemon->bringUp(), story().constData());
    COMES_ABOUT(isRegistered());
    lead([](AtPhone &there) { there.ring("5550005"); });
    COMES_ABOUT(phaseOf("5550005") == CallPhase::Incoming);
}

KAV_TEST_GROUP(TestModemManagerReal, QCoreApplication);
#include "tst_real.moc"
