// The ground under tests of the live telephone: what the real ofonod does with the AT modem.
#include "handset/live/RealOfono.h"
#include "support/TestGroup.h"

#include <QtDBus/QDBusVariant>

using namespace handset::test;
using atmodem::CallRecord;
using atmodem::Dialed;
using atmodem::End;
using atmodem::Phone;

namespace {

QVariant inVariant(const QVariant &value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

QString path(const QDBusMessage &answer)
{
    return valueOf(answer).toString();
}

} // namespace

#define COMES_ABOUT(...) QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), ofono->story().constData())

class TestOfonoDaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase() { ofono.reset(); }

    void theModemComesUpWithItsCardAndRegistered();
    void aDialedCallIsFollowedAndEndsFromEitherSide_data();
    void aDialedCallIsFollowedAndEndsFromEitherSide();
    void anIncomingCallRingsIsAnsweredAndEnds();
    void anIncomingCallThatIsLostNeverConnects();
    void aRefusedCallNeverConnects_data();
    void aRefusedCallNeverConnects();
    void aCallThatIsRefusedAtOnceIsNoObject_data();
    void aCallThatIsRefusedAtOnceIsNoObject();
    void aWaitingCallIsTakenWhileTheOtherIsHeld();
    void theCallMeterIsPushedAndTheAccumulatedOneIsNot();
    void aCallEndsWhenTheMaximumIsReached();
    void priceAndCurrencyAreWrittenAndReadAgain();
    void aMeterIsResetUnderTheRightPin2();
    void triesOfPin2FallAndBlock();
    void aContextIsActivatedAndHasAnInterface();
    void lossOfTheNetworkIsSignalled();
    void aSilentModemKeepsTheDaemonAnswering();
    void aDaemonThatIsKilledComesUpAgain();
    void aModemThatIsUnpluggedComesBack();

private:
    QString dial(const char *number);
    bool isOnlyState(const char *state) { return ofono->onlyState() == QLatin1String(state); }
    int tries(const char *code);
    QDBusMessage resetMeter(const char *pin2)
    {
        return ofono->onModem("CallMeter", "Reset", {QString(QLatin1String(pin2))});
    }
    void leadPhone(const std::function<void(Phone &)> &how) { ofono->modem().withPhone(how); }

    std::unique_ptr<RealOfono> ofono;
};

void TestOfonoDaemon::initTestCase()
{
    ofono = std::make_unique<RealOfono>();
    QVERIFY2(ofono->bringUp(), ofono->story().constData());
}

void TestOfonoDaemon::cleanup()
{
    leadPhone([](Phone &phone) {
        phone.hangUpAllThere();
        phone.dialed = Dialed::Led;
        phone.sim.acmMax = 0;
    });
    COMES_ABOUT(ofono->calls().isEmpty());
    ofono->heard().all.clear();
}

QString TestOfonoDaemon::dial(const char *number)
{
    return path(
        ofono->onModem("VoiceCallManager", "Dial", {QString::fromLatin1(number), QStringLiteral("default")}));
}

int TestOfonoDaemon::tries(const char *code)
{
    return mapOf(ofono->property("SimManager", "Retries")).value(QString::fromLatin1(code), -1).toInt();
}

void TestOfonoDaemon::theModemComesUpWithItsCardAndRegistered()
{
    const QVariantMap card = ofono->properties("SimManager");
    QCOMPARE(card.value("Present"), QVariant(true));
    QCOMPARE(card.value("CardIdentifier"), QVariant("8949020000012345678"));
    QCOMPARE(card.value("PinRequired"), QVariant("none"));
    QCOMPARE(card.value("SubscriberNumbers"), QVariant(QStringList{"55500001"}));
    COMES_ABOUT(tries("pin2") == 3 && tries("puk2") == 10);
    const QVariantMap network = ofono->properties("NetworkRegistration");
    QCOMPARE(network.value("Status"), QVariant("registered"));
    QCOMPARE(network.value("Technology"), QVariant("lte"));
    COMES_ABOUT(ofono->property("NetworkRegistration", "Name").toString().startsWith("Test Net"));
}

void TestOfonoDaemon::aDialedCallIsFollowedAndEndsFromEitherSide_data()
{
    QTest::addColumn<bool>("isEndedHere");
    QTest::addColumn<QString>("reason");
    QTest::newRow("the owner hangs up") << true << "local";
    QTest::newRow("the other side hangs up") << false << "remote";
}

void TestOfonoDaemon::aDialedCallIsFollowedAndEndsFromEitherSide()
{
    QFETCH(const bool, isEndedHere);
    QFETCH(const QString, reason);
    const QString call = dial("5550001");
    QVERIFY2(!call.isEmpty(), ofono->story().constData());
    COMES_ABOUT(isOnlyState("alerting"));
    leadPhone([](Phone &phone) { phone.answer(); });
    COMES_ABOUT(isOnlyState("active"));
    QVERIFY(!ofono->calls().first().value("StartTime").toString().isEmpty());

    if (isEndedHere)
        QCOMPARE(ofono->on(call, "VoiceCall", "Hangup").type(), QDBusMessage::ReplyMessage);
    else
        leadPhone([](Phone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(ofono->calls().isEmpty() && ofono->heard().count("CallRemoved") == 1);
    QCOMPARE(ofono->heard().values(call, "DisconnectReason"), QVariantList{reason});
    QCOMPARE(ofono->heard().propertyValues(call, "State"), (QVariantList{"alerting", "active", "disconnected"}));

    const CallRecord record = ofono->modem().records().last();
    QCOMPARE(record.number, QByteArray("5550001"));
    QCOMPARE(record.end, isEndedHere ? End::HungUpHere : End::HungUpThere);
    QVERIFY(record.begunMs <= record.connectedMs && record.connectedMs <= record.endedMs);
}

void TestOfonoDaemon::anIncomingCallRingsIsAnsweredAndEnds()
{
    leadPhone([](Phone &phone) { phone.ring("5551234"); });
    COMES_ABOUT(isOnlyState("incoming"));
    const QString call = ofono->calls().firstKey();
    QCOMPARE(ofono->calls().first().value("LineIdentification"), QVariant("5551234"));
    QCOMPARE(ofono->on(call, "VoiceCall", "Answer").type(), QDBusMessage::ReplyMessage);
    COMES_ABOUT(isOnlyState("active"));
    leadPhone([](Phone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(ofono->calls().isEmpty() && ofono->heard().count("CallRemoved") == 1);
    QCOMPARE(ofono->heard().propertyValues(call, "State"), (QVariantList{"active", "disconnected"}));
    QVERIFY(ofono->modem().records().last().connectedMs >= 0);
}

void TestOfonoDaemon::anIncomingCallThatIsLostNeverConnects()
{
    leadPhone([](Phone &phone) { phone.ring("5551234"); });
    COMES_ABOUT(isOnlyState("incoming"));
    const QString call = ofono->calls().firstKey();
    leadPhone([](Phone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(ofono->calls().isEmpty() && ofono->heard().count("CallRemoved") == 1);
    QCOMPARE(ofono->heard().propertyValues(call, "State"), QVariantList{"disconnected"});
    QCOMPARE(ofono->modem().records().last().durationMs(), 0);
}

void TestOfonoDaemon::aRefusedCallNeverConnects_data()
{
    QTest::addColumn<End>("end");
    QTest::newRow("the other side is busy") << End::Busy;
    QTest::newRow("the network refuses it") << End::NoCarrier;
}

void TestOfonoDaemon::aRefusedCallNeverConnects()
{
    QFETCH(const End, end);
    const QString call = dial("5550002");
    COMES_ABOUT(isOnlyState("alerting"));
    leadPhone([end](Phone &phone) { phone.refuse(end); });
    COMES_ABOUT(ofono->calls().isEmpty() && ofono->heard().count("CallRemoved") == 1);
    QCOMPARE(ofono->heard().propertyValues(call, "State"), (QVariantList{"alerting", "disconnected"}));
    QCOMPARE(ofono->heard().values(call, "DisconnectReason"), QVariantList{"remote"});
    QCOMPARE(ofono->modem().records().last().connectedMs, -1);
}

void TestOfonoDaemon::aCallThatIsRefusedAtOnceIsNoObject_data()
{
    QTest::addColumn<Dialed>("what");
    QTest::newRow("the other side is busy") << Dialed::Busy;
    QTest::newRow("the network refuses it") << Dialed::NoCarrier;
}

void TestOfonoDaemon::aCallThatIsRefusedAtOnceIsNoObject()
{
    QFETCH(const Dialed, what);
    leadPhone([what](Phone &phone) { phone.dialed = what; });
    const QDBusMessage answer = ofono->onModem("VoiceCallManager", "Dial", {"5550002", "default"});
    QCOMPARE(answer.errorName(), "org.ofono.Error.Failed");
    QVERIFY(ofono->calls().isEmpty());
    QCOMPARE(ofono->heard().count("CallAdded"), 0);
    QCOMPARE(ofono->modem().records().last().connectedMs, -1);
}

void TestOfonoDaemon::aWaitingCallIsTakenWhileTheOtherIsHeld()
{
    leadPhone([](Phone &phone) { phone.dialed = Dialed::Answered; });
    const QString first = dial("5550001");
    COMES_ABOUT(isOnlyState("active"));
    leadPhone([](Phone &phone) { phone.ring("5550003"); });
    COMES_ABOUT(ofono->calls().size() == 2);
    const QString second = ofono->calls().lastKey();
    QCOMPARE(ofono->calls().value(second).value("State"), QVariant("waiting"));
    ofono->onModem("VoiceCallManager", "HoldAndAnswer");
    const auto state = [&](const QString &call) { return ofono->calls().value(call).value("State").toString(); };
    COMES_ABOUT(state(first) == "held" && state(second) == "active");
    ofono->onModem("VoiceCallManager", "SwapCalls");
    COMES_ABOUT(state(first) == "active" && state(second) == "held");
    leadPhone([](Phone &phone) { phone.hangUpThere("5550003"); });
    COMES_ABOUT(isOnlyState("active"));
    QCOMPARE(ofono->heard().propertyValues(second, "State"), (QVariantList{"active", "held", "disconnected"}));
}

void TestOfonoDaemon::theCallMeterIsPushedAndTheAccumulatedOneIsNot()
{
    leadPhone([](Phone &phone) { phone.dialed = Dialed::Answered; });
    const uint before = ofono->property("CallMeter", "AccumulatedCallMeter").toUInt();
    dial("5550001");
    COMES_ABOUT(isOnlyState("active"));
    leadPhone([](Phone &phone) { phone.tick(3); });
    const auto pushed = [&](const char *property) {
        return ofono->heard().propertyValues(RealOfono::modemPath(), QLatin1String(property));
    };
    COMES_ABOUT(pushed("CallMeter").contains(QVariant(3U)));
    QVERIFY(pushed("AccumulatedCallMeter").isEmpty());
    QCOMPARE(ofono->property("CallMeter", "AccumulatedCallMeter"), QVariant(before + 3));
    QCOMPARE(ofono->modem().records().last().units, 3U);
}

void TestOfonoDaemon::aCallEndsWhenTheMaximumIsReached()
{
    leadPhone([](Phone &phone) {
        phone.dialed = Dialed::Answered;
        phone.sim.acm = 0;
    });
    const QDBusMessage written = ofono->onModem("CallMeter", "SetProperty",
                                                {"AccumulatedCallMeterMaximum", inVariant(QVariant(5U)), "1234"});
    QCOMPARE(written.errorName(), QString());
    dial("5550001");
    COMES_ABOUT(isOnlyState("active"));
    leadPhone([](Phone &phone) { phone.tick(3); });
    COMES_ABOUT(ofono->heard().count("NearMaximumWarning") == 1);
    leadPhone([](Phone &phone) { phone.tick(2); });
    COMES_ABOUT(ofono->calls().isEmpty());
    QCOMPARE(ofono->modem().records().last().end, End::MaximumReached);
    QVERIFY(dial("5550001").isEmpty());
    leadPhone([](Phone &phone) { phone.sim.acm = 0; });
}

void TestOfonoDaemon::priceAndCurrencyAreWrittenAndReadAgain()
{
    const auto write = [&](const char *what, const QVariant &value) {
        return ofono->onModem("CallMeter", "SetProperty", {QLatin1String(what), inVariant(value), "1234"})
            .errorName();
    };
    QCOMPARE(write("PricePerUnit", 1.2345), QString());
    QCOMPARE(write("Currency", "USD"), QString());
    COMES_ABOUT(ofono->property("CallMeter", "Currency") == "USD");
    QCOMPARE(ofono->property("CallMeter", "PricePerUnit").toDouble(), 1.235);
    QCOMPARE(write("PricePerUnit", 1), "org.ofono.Error.InvalidArguments"); // not a double
    QCOMPARE(write("Currency", "EURO"), "org.ofono.Error.InvalidFormat");
    QCOMPARE(write("PricePerUnit", -1.0), "org.ofono.Error.InvalidFormat");
}

void TestOfonoDaemon::aMeterIsResetUnderTheRightPin2()
{
    leadPhone([](Phone &phone) { phone.sim.addUnits(70); });
    QCOMPARE(ofono->property("CallMeter", "AccumulatedCallMeter"), QVariant(70U));
    QCOMPARE(resetMeter("12").errorName(), "org.ofono.Error.InvalidFormat");
    QCOMPARE(resetMeter("1234").errorName(), QString());
    COMES_ABOUT(ofono->property("CallMeter", "AccumulatedCallMeter") == QVariant(0U));
}

void TestOfonoDaemon::triesOfPin2FallAndBlock()
{
    leadPhone([](Phone &phone) { phone.sim.addUnits(7); });
    for (const int left : {2, 1, 0}) {
        QCOMPARE(resetMeter("9999").errorName(), "org.ofono.Error.Failed");
        COMES_ABOUT(tries("pin2") == left);
    }
    QCOMPARE(resetMeter("1234").errorName(), "org.ofono.Error.Failed");
    QCOMPARE(ofono->property("CallMeter", "AccumulatedCallMeter"), QVariant(7U));

    // The daemon takes no PUK2, so a card that is blocked stays so until another telephone unblocks it.
    const QDBusMessage refused = ofono->onModem("SimManager", "ResetPin", {"puk2", "87654321", "1234"});
    QCOMPARE(refused.errorName(), "org.ofono.Error.InvalidFormat");
    QVERIFY(ofono->modem().withPhone(
        [](Phone &phone) { return phone.sim.unblockPin2("87654321", "1234") == atmodem::Sim::Access::Granted; }));
    // A write that succeeds gives the tries back, and the daemon does not ask for them.
    QCOMPARE(resetMeter("1234").errorName(), QString());
    QCOMPARE(ofono->modem().withPhone([](Phone &phone) { return phone.sim.pin2Tries; }), 3);
    QCOMPARE(tries("pin2"), 0);
}

void TestOfonoDaemon::aContextIsActivatedAndHasAnInterface()
{
    const QMap<QString, QVariantMap> contexts = objectsOf(ofono->onModem("ConnectionManager", "GetContexts"));
    QCOMPARE(contexts.size(), 1);
    const QString context = contexts.firstKey();
    const auto set = [&](const char *what, const QVariant &value) {
        return ofono->on(context, "ConnectionContext", "SetProperty", {QLatin1String(what), inVariant(value)})
            .errorName();
    };
    const auto get = [&](const char *what) {
        return mapOf(ofono->on(context, "ConnectionContext", "GetProperties")).value(QLatin1String(what));
    };
    QCOMPARE(set("AccessPointName", "internet"), QString());
    QCOMPARE(set("Active", true), QString());
    QCOMPARE(get("Active"), QVariant(true));
    const QVariantMap settings = mapOf(get("Settings"));
    QCOMPARE(settings.value("Interface"), QVariant("dummy0"));
    QCOMPARE(settings.value("Method"), QVariant("dhcp"));
    QCOMPARE(ofono->heard().propertyValues(context, "Active"), QVariantList{true});
    QCOMPARE(set("Active", false), QString());
    QCOMPARE(get("Active"), QVariant(false));
    QVERIFY(mapOf(get("Settings")).isEmpty());
}

void TestOfonoDaemon::lossOfTheNetworkIsSignalled()
{
    leadPhone([](Phone &phone) { phone.setRegistration(atmodem::Registration::Searching); });
    const auto status = [&] { return ofono->heard().propertyValues(RealOfono::modemPath(), "Status"); };
    COMES_ABOUT(status().contains("searching"));
    leadPhone([](Phone &phone) { phone.setRegistration(atmodem::Registration::Home); });
    COMES_ABOUT(status().contains("registered"));
    COMES_ABOUT(ofono->property("ConnectionManager", "Attached").toBool());
}

void TestOfonoDaemon::aSilentModemKeepsTheDaemonAnswering()
{
    ofono->modem().with([](atmodem::Modem &all) { all.setSilent(true); });
    QCOMPARE(ofono->property("SimManager", "Present"), QVariant(true));
    ofono->modem().with([](atmodem::Modem &all) { all.setSilent(false); });
}

void TestOfonoDaemon::aDaemonThatIsKilledComesUpAgain()
{
    leadPhone([](Phone &phone) { phone.dialed = Dialed::Answered; });
    dial("5550001");
    COMES_ABOUT(isOnlyState("active"));
    QVERIFY(ofono->kill());
    QVERIFY(!ofono->hasName());
    QVERIFY2(ofono->bringUp(), ofono->story().constData());
    // It finds the call again, and has forgotten since when.
    COMES_ABOUT(isOnlyState("active"));
    QCOMPARE(ofono->calls().first().value("StartTime"), QVariant("1970-01-01T00:00:00+0000"));
}

void TestOfonoDaemon::aModemThatIsUnpluggedComesBack()
{
    leadPhone([](Phone &phone) { phone.dialed = Dialed::Answered; });
    const QString call = dial("5550001");
    COMES_ABOUT(isOnlyState("active"));
    ofono->modem().with([](atmodem::Modem &all) { all.unplug(); });
    COMES_ABOUT(!ofono->property("Modem", "Powered").toBool());
    // The modem loses its interfaces, and no call is said to have ended.
    QVERIFY(ofono->property("Modem", "Interfaces").toStringList().isEmpty());
    QCOMPARE(ofono->heard().propertyValues(RealOfono::modemPath(), "Interfaces").last(), QVariant(QStringList()));
    QCOMPARE(ofono->heard().count("CallRemoved"), 0);
    QVERIFY(!ofono->heard().propertyValues(call, "State").contains("disconnected"));
    ofono->modem().with([](atmodem::Modem &all) { all.plugIn(); });
    QVERIFY2(ofono->bringUpModem(), ofono->story().constData());
}

KAV_TEST_GROUP(TestOfonoDaemon, QCoreApplication);
#include "tst_ofono_daemon.moc"
