// The ground under tests of the live telephone: what the real ModemManager does with the AT modem.
#include "handset/live/RealModemManager.h"
#include "support/TestGroup.h"

#include <QtDBus/QDBusArgument>

using namespace handset::test;
using atmodem::CallRecord;
using atmodem::Dialed;
using atmodem::End;
using atmodem::Phone;

namespace {

// Numbers of Call.State.
constexpr int dialing = 1;
constexpr int ringingOut = 2;
constexpr int ringingIn = 3;
constexpr int active = 4;
constexpr int held = 5;
constexpr int waiting = 6;
constexpr int terminated = 7;

// Numbers of Call.StateReason.
constexpr uint unknown = 0;
constexpr uint started = 1;
constexpr uint accepted = 3;
constexpr uint ended = 4;
constexpr uint failed = 6;

constexpr uint pin2 = 3; ///< as UnlockRetries numbers the codes
constexpr uint puk2 = 5;

constexpr int searching = 7; ///< as Modem.State numbers it

} // namespace

#define COMES_ABOUT(...) QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), manager->story().constData())

class TestModemManagerDaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase() { manager.reset(); }

    void theModemComesUpWithItsCardAndRegistered();
    void aDialedCallIsFollowedAndEndsFromEitherSide_data();
    void aDialedCallIsFollowedAndEndsFromEitherSide();
    void anIncomingCallRingsIsAnsweredAndEnds();
    void anIncomingCallThatIsLostNeverConnects();
    void aRefusedCallNeverConnects_data();
    void aRefusedCallNeverConnects();
    void aCallThatIsRefusedAtOnceCannotBeStarted_data();
    void aCallThatIsRefusedAtOnceCannotBeStarted();
    void aWaitingCallIsTakenWhileTheOtherIsHeld();
    void aBearerConnectsAndCounts();
    void lossOfTheNetworkIsSignalled();
    void aDaemonThatIsKilledComesUpAgain();
    void aModemThatIsUnpluggedIsBackWithTheDaemon();

private:
    bool isState(const QString &call, int state) { return manager->stateOf(call) == state; }
    bool isCallAdded() { return manager->calls().size() == 1; }
    void leadPhone(const std::function<void(Phone &)> &how) { manager->modem().withPhone(how); }
    QVariantList reasons(const QString &call) { return changes(call, 2); }
    QVariantList states(const QString &call) { return changes(call, 1); }

    // The daemon may say twice that a call is over, where its look at the modem's calls meets the end.
    QVariantList changes(const QString &call, int position)
    {
        QVariantList found;
        QVariant state;
        for (const DaemonSignal &each : std::as_const(manager->heard().all)) {
            if (each.path != call || each.name != "StateChanged" || state == each.values.value(1))
                continue;
            state = each.values.value(1);
            found.append(each.values.value(position));
        }
        return found;
    }

    std::unique_ptr<RealModemManager> manager;
};

void TestModemManagerDaemon::initTestCase()
{
    manager = std::make_unique<RealModemManager>();
    QVERIFY2(manager->bringUp(), manager->story().constData());
}

void TestModemManagerDaemon::cleanup()
{
    leadPhone([](Phone &phone) {
        phone.hangUpAllThere();
        phone.dialed = Dialed::Led;
    });
    QVERIFY2(manager->isRidOfCalls(), manager->story().constData());
    manager->heard().all.clear();
}

void TestModemManagerDaemon::theModemComesUpWithItsCardAndRegistered()
{
    QCOMPARE(manager->modemProperty("Modem", "State"), QVariant(RealModemManager::modemRegistered));
    const QString card = manager->modemProperty("Modem", "Sim").toString();
    QCOMPARE(manager->property(card, "Sim", "SimIdentifier"), QVariant("8949020000012345678"));
    QCOMPARE(manager->property(card, "Sim", "Imsi"), QVariant("262017890123456"));
    QCOMPARE(manager->modemProperty("Modem", "UnlockRequired"), QVariant(1U));
    const QVariantMap tries = mapOf(manager->modemProperty("Modem", "UnlockRetries"));
    QCOMPARE(tries.value(QString::number(pin2)), QVariant(3U));
    QCOMPARE(tries.value(QString::number(puk2)), QVariant(10U));
    COMES_ABOUT(manager->modemProperty("Modem.Modem3gpp", "OperatorName") == "Test Net");
}

void TestModemManagerDaemon::aDialedCallIsFollowedAndEndsFromEitherSide_data()
{
    QTest::addColumn<bool>("isEndedHere");
    QTest::newRow("the owner hangs up") << true;
    QTest::newRow("the other side hangs up") << false;
}

void TestModemManagerDaemon::aDialedCallIsFollowedAndEndsFromEitherSide()
{
    QFETCH(const bool, isEndedHere);
    const QString call = manager->dial("5550001");
    QVERIFY2(!call.isEmpty(), manager->story().constData());
    COMES_ABOUT(isState(call, ringingOut));
    leadPhone([](Phone &phone) { phone.answer(); });
    COMES_ABOUT(isState(call, active));
    if (isEndedHere)
        QCOMPARE(manager->on(call, "Call", "Hangup").errorName(), QString());
    else
        leadPhone([](Phone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(isState(call, terminated));
    QCOMPARE(states(call), (QVariantList{dialing, ringingOut, active, terminated}));
    QCOMPARE(reasons(call), (QVariantList{started, unknown, unknown, isEndedHere ? ended : unknown}));

    const CallRecord record = manager->modem().records().last();
    QCOMPARE(record.number, QByteArray("5550001"));
    QCOMPARE(record.end, isEndedHere ? End::HungUpHere : End::HungUpThere);
    QVERIFY(record.connectedMs >= 0);
}

void TestModemManagerDaemon::anIncomingCallRingsIsAnsweredAndEnds()
{
    leadPhone([](Phone &phone) { phone.ring("5551234"); });
    COMES_ABOUT(isCallAdded());
    const QString call = manager->calls().first();
    COMES_ABOUT(isState(call, ringingIn));
    COMES_ABOUT(manager->property(call, "Call", "Number") == "5551234");
    QCOMPARE(manager->property(call, "Call", "Direction"), QVariant(1));
    manager->forgetOutput();
    QCOMPARE(manager->on(call, "Call", "Accept").errorName(), QString());
    COMES_ABOUT(isState(call, active));
    // Earlier it would not hear that the call ends, and would never ask.
    COMES_ABOUT(manager->hasSaid("modem is now in-call state"));
    leadPhone([](Phone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(isState(call, terminated));
    QCOMPARE(states(call), (QVariantList{active, terminated}));
    QCOMPARE(reasons(call), (QVariantList{accepted, unknown}));
}

void TestModemManagerDaemon::anIncomingCallThatIsLostNeverConnects()
{
    leadPhone([](Phone &phone) { phone.ring("5551234"); });
    COMES_ABOUT(isCallAdded());
    const QString call = manager->calls().first();
    leadPhone([](Phone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(isState(call, terminated));
    QCOMPARE(states(call), QVariantList{terminated});
}

void TestModemManagerDaemon::aRefusedCallNeverConnects_data()
{
    QTest::addColumn<End>("end");
    QTest::newRow("the other side is busy") << End::Busy;
    QTest::newRow("the network refuses it") << End::NoCarrier;
}

void TestModemManagerDaemon::aRefusedCallNeverConnects()
{
    QFETCH(const End, end);
    const QString call = manager->dial("5550002");
    COMES_ABOUT(isState(call, ringingOut));
    leadPhone([end](Phone &phone) { phone.refuse(end); });
    COMES_ABOUT(isState(call, terminated));
    QCOMPARE(states(call), (QVariantList{dialing, ringingOut, terminated}));
    QCOMPARE(manager->modem().records().last().connectedMs, -1);
}

void TestModemManagerDaemon::aCallThatIsRefusedAtOnceCannotBeStarted_data()
{
    QTest::addColumn<Dialed>("what");
    QTest::newRow("the other side is busy") << Dialed::Busy;
    QTest::newRow("the network refuses it") << Dialed::NoCarrier;
}

void TestModemManagerDaemon::aCallThatIsRefusedAtOnceCannotBeStarted()
{
    QFETCH(const Dialed, what);
    leadPhone([what](Phone &phone) { phone.dialed = what; });
    const QVariantMap wanted{{"number", "5550002"}};
    const QString call = valueOf(manager->onModem("Modem.Voice", "CreateCall", {wanted})).toString();
    // For busy lines, too.
    QCOMPARE(manager->on(call, "Call", "Start").errorName(),
             "org.freedesktop.ModemManager1.Error.Connection.NoDialtone");
    QCOMPARE(states(call), (QVariantList{dialing, terminated}));
    QCOMPARE(reasons(call), (QVariantList{started, failed}));
    QCOMPARE(manager->calls(), QStringList{call});
}

void TestModemManagerDaemon::aWaitingCallIsTakenWhileTheOtherIsHeld()
{
    leadPhone([](Phone &phone) { phone.dialed = Dialed::Answered; });
    const QString first = manager->dial("5550001");
    COMES_ABOUT(isState(first, active));
    leadPhone([](Phone &phone) { phone.ring("5550003"); });
    COMES_ABOUT(manager->calls().size() == 2);
    QStringList both = manager->calls();
    both.removeOne(first);
    const QString second = both.first();
    COMES_ABOUT(isState(second, waiting));
    QCOMPARE(manager->onModem("Modem.Voice", "HoldAndAccept").errorName(), QString());
    COMES_ABOUT(isState(first, held) && isState(second, active));
    QCOMPARE(manager->on(second, "Call", "Hangup").errorName(), QString());
    COMES_ABOUT(isState(second, terminated));
    QVERIFY(isState(first, held));
    QCOMPARE(states(second), (QVariantList{active, terminated}));
    QCOMPARE(manager->modem().records().last().end, End::HungUpHere);
}

void TestModemManagerDaemon::aBearerConnectsAndCounts()
{
    const QVariantMap wanted{{"apn", "internet"}};
    const QDBusMessage answer = manager->onModem("Modem.Simple", "Connect", {wanted});
    QVERIFY2(answer.errorName().isEmpty(), manager->story().constData());
    const QString bearer = valueOf(answer).toString();
    const auto get = [&](const char *name) { return manager->property(bearer, "Bearer", name); };
    QCOMPARE(get("Connected"), QVariant(true));
    QCOMPARE(manager->modemProperty("Modem", "State"), QVariant(RealModemManager::modemConnected));
    // What would be a network interface is the port that took the connection, for pppd to run on.
    QVERIFY(get("Interface").toString().startsWith("abstract:"));
    QCOMPARE(mapOf(get("Ip4Config")).value("method"), QVariant(1U));
    QCOMPARE(mapOf(get("Properties")).value("apn"), QVariant("internet"));
    QCOMPARE(get("ReloadStatsSupported"), QVariant(false));
    const QVariantMap stats = mapOf(get("Stats"));
    QCOMPARE(stats.value("rx-bytes"), QVariant(qulonglong(0)));
    QCOMPARE(stats.value("tx-bytes"), QVariant(qulonglong(0)));
    QCOMPARE(stats.value("attempts"), QVariant(1U));
    QVERIFY(stats.value("start-date").toULongLong() > 0);

    const QVariant thisBearer = QVariant::fromValue(QDBusObjectPath(bearer));
    QCOMPARE(manager->onModem("Modem.Simple", "Disconnect", {thisBearer}).errorName(), QString());
    COMES_ABOUT(manager->modemProperty("Modem", "State") == QVariant(RealModemManager::modemRegistered));
    QCOMPARE(get("Connected"), QVariant(false));
}

void TestModemManagerDaemon::lossOfTheNetworkIsSignalled()
{
    leadPhone([](Phone &phone) { phone.setRegistration(atmodem::Registration::Searching); });
    COMES_ABOUT(manager->modemProperty("Modem", "State").toInt() == searching);
    leadPhone([](Phone &phone) { phone.setRegistration(atmodem::Registration::Home); });
    COMES_ABOUT(manager->modemProperty("Modem", "State") == QVariant(RealModemManager::modemRegistered));
    QCOMPARE(states(manager->modemPath()), (QVariantList{searching, RealModemManager::modemRegistered}));
}

void TestModemManagerDaemon::aDaemonThatIsKilledComesUpAgain()
{
    leadPhone([](Phone &phone) { phone.dialed = Dialed::Answered; });
    const QString call = manager->dial("5550001");
    COMES_ABOUT(isState(call, active));
    QVERIFY(manager->kill());
    QVERIFY(!manager->hasName());
    QVERIFY2(manager->bringUp(), manager->story().constData());
    // It hangs up when it gets to know the modem.
    QVERIFY(manager->calls().isEmpty());
    QCOMPARE(manager->modem().records().last().end, End::HungUpHere);
}

void TestModemManagerDaemon::aModemThatIsUnpluggedIsBackWithTheDaemon()
{
    leadPhone([](Phone &phone) { phone.dialed = Dialed::Answered; });
    const QString call = manager->dial("5550001");
    COMES_ABOUT(isState(call, active));
    manager->forgetOutput();
    manager->modem().with([](atmodem::Modem &all) { all.unplug(); });
    COMES_ABOUT(manager->hasSaid("forced to close port"));
    // Without udev's word the daemon keeps the modem, and the call that went with it.
    QVERIFY(isState(call, active));
    QVERIFY(!manager->modemPath().isEmpty());
    QVERIFY(manager->kill());
    manager->modem().with([](atmodem::Modem &all) { all.plugIn(); });
    QVERIFY2(manager->bringUp(), manager->story().constData());
}

KAV_TEST_GROUP(TestModemManagerDaemon, QCoreApplication);
#include "tst_modemmanager_daemon.moc"
