// What a modem behind oFono reports, whatever the daemon says.
#include "handset/CallLog.h"
#include "handset/HandsetTestKit.h"
#include "handset/live/OtherLanguage.h"
#include "handset/ofono/OfonoDesk.h"
#include "ofono/OfonoHandset.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>

using namespace handset;
using namespace handset::test;

namespace {

const QString one = OfonoDesk::one;
const QString two = OfonoDesk::two;
const QString context = OfonoDesk::context;

const QVariantMap anOnlineModem(const QStringList &interfaces = {})
{
    return {{QStringLiteral("Online"), true}, {QStringLiteral("Interfaces"), interfaces}};
}

} // namespace

class TestModem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(systemBus().isRunning()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aCallIsFollowedFromItsFirstState();
    void aCallThatIsFoundHasItsStart_data();
    void aCallThatIsFoundHasItsStart();
    void aCallThatIsFoundRingingIsSeenToBeConnected();
    void aCallThatTheDaemonHasFoundIsFound();
    void aWithheldNumberIsNone();
    void twoCallsAreFollowedEachByItself();
    void aCallOverBeforeItIsRemovedEndsOnce();
    void callsAreOverWhenTheirInterfaceVanishes();
    void callsAreFoundWhenTheirInterfaceComesBack();
    void allIsLostWhenTheModemIsRemoved();
    void allIsLostWhenTheDaemonEnds();
    void anAnswerOfADaemonThatHasEndedIsNotTheNextOnes();
    void aDaemonThatAnswersLateIsAskedAgain();
    void aBusThatIsCutAndComesBack();
    void theModemThatIsOnlineIsTheOne();
    void aModemThatIsOfflineStaysWhileNoOtherIsOnline();
    void aContextIsASessionWhileItIsActive();
    void aContextWithTheOtherProtocolHasAnInterface();
    void sessionsAreOverWhenTheirInterfaceVanishes();
    void aContextThatIsRemovedIsOver();
    void aContextThatWasActiveIsFound();
    void theNetworkIsTold();
    void aValueOfAWrongTypeIsIgnoredAndToldOnce_data();
    void aValueOfAWrongTypeIsIgnoredAndToldOnce();
    void aListOfAWrongTypeIsIgnored();
    void whatIsAskedGoesToTheDaemon();
    void whatCannotBeAskedIsNot();
    void aRefusalIsToldInWords_data();
    void aRefusalIsToldInWords();
    void aSilentDaemonIsToldAndNothingWaits();
    void aCallThatTheNetworkRefusesIsTold();
    void theBackendIsALibraryThatTheFactoryFinds();
    void aDaemonThatDoesNotLetThisUserTalkToItIsSaidToBeSo();
    void theFiguresAreThereWhenItIsOpened();
    void whatHappensWhileItIsOpenedIsTold();
    void openingWaitsForNobodyAndForNobodyLong();
    void aDaemonThatDoesNotTellItsModemsIsSaidToBeSo();
    void whatIsSaidOfNobodyKnownChangesNothing();
    void aCallIsDialedByItsFirstStateAndFoundWhenItIsOn_data();
    void aCallIsDialedByItsFirstStateAndFoundWhenItIsOn();
    void withoutCallsThereIsNothingToAnswerOrEnd();
    void dataConnectionsThatAreNotListedAreFollowedWhenTheyAreTold();
    void aNetworkThatIsNotToldIsNone();
    void anAnswerThatTheBusGaveUpIsAskedForAgain_data();
    void anAnswerThatTheBusGaveUpIsAskedForAgain();
    void aCallWithoutAStateIsNotToldYet();
    void aModemThatIsToldTwiceIsOne();
};

void TestModem::aCallIsFollowedFromItsFirstState()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.addCall(one, callIn("dialing"));
    desk.fake.setCall(one, "State", "alerting");
    desk.fake.setCall(one, "State", "active");
    desk.fake.setCall(one, "StartTime", "2026-11-22T18:00:00+0000");
    desk.fake.setCall(one, "State", "disconnected");
    desk.fake.removeCall(one);
    QTRY_COMPARE(desk.heard->told.size(), 6);
    QCOMPARE(desk.heard->told,
             QStringList({"voicecall01 dialing 5550123", "voicecall01 alerting 5550123",
                          "voicecall01 active 5550123", "voicecall01 active 5550123 1795370400000",
                          "voicecall01 over 5550123 1795370400000", "voicecall01 gone"}));
    QCOMPARE(desk.fake.asked.count("VoiceCallManager.GetCalls"), 1);
}

void TestModem::aCallThatIsFoundHasItsStart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("started");
    QTest::newRow("in the zone of Greenwich") << "2026-11-22T18:00:00+0000"
                                              << " 1795370400000";
    QTest::newRow("in a zone east of it") << "2026-11-22T19:30:00+0130"
                                          << " 1795370400000";
    QTest::newRow("in a zone west of it") << "2026-11-22T10:00:00-0800"
                                          << " 1795370400000";
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("one that is no time") << "1970-01-01T00:00:00+0000"
                                         << ""; // of a daemon that came after the call
}

void TestModem::aCallThatIsFoundHasItsStart()
{
    QFETCH(const QString, text);
    QFETCH(const QString, started);
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    QVariantMap call = callIn("active");
    if (!text.isEmpty())
        call["StartTime"] = text;
    desk.fake.addCall(one, call);
    desk.start();
    QTRY_COMPARE(desk.heard->told, QStringList("voicecall01 active 5550123" + started + " found"));
}

void TestModem::aCallThatIsFoundRingingIsSeenToBeConnected()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.addCall(one, callIn("incoming"));
    desk.start();
    QTRY_COMPARE(desk.heard->last(), "voicecall01 incoming 5550123 found");
    desk.fake.setCall(one, "State", "active");
    QTRY_COMPARE(desk.heard->last(), "voicecall01 active 5550123");
}

void TestModem::aCallThatTheDaemonHasFoundIsFound()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.addCall(one, callIn("active")); // after it was asked
    desk.fake.setCall(one, "State", "held");
    QTRY_COMPARE(desk.heard->told, QStringList({"voicecall01 active 5550123 found", "voicecall01 held 5550123"}));
}

void TestModem::aWithheldNumberIsNone()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.addCall(one, callIn("incoming", "withheld"));
    desk.start();
    QTRY_COMPARE(desk.heard->last(), "voicecall01 incoming  found");
}

void TestModem::twoCallsAreFollowedEachByItself()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.addCall(one, callIn("dialing", "1"));
    desk.fake.setCall(one, "State", "active");
    desk.fake.addCall(two, callIn("waiting", "2"));
    desk.fake.setCall(one, "State", "held");
    desk.fake.setCall(two, "State", "active");
    desk.fake.removeCall(one);
    QTRY_COMPARE(desk.heard->told,
                 QStringList({"voicecall01 dialing 1", "voicecall01 active 1", "voicecall02 waiting 2",
                              "voicecall01 held 1", "voicecall02 active 2", "voicecall01 gone"}));
}

void TestModem::aCallOverBeforeItIsRemovedEndsOnce()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.removeCall(two); // of which nobody has heard
    desk.fake.setCall(two, "State", "active");
    desk.fake.addCall(one, callIn("incoming"));
    desk.fake.removeCall(one);
    QTRY_COMPARE(desk.heard->told, QStringList({"voicecall01 incoming 5550123", "voicecall01 gone"}));
}

void TestModem::callsAreOverWhenTheirInterfaceVanishes()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager", "NetworkRegistration"});
    desk.fake.addCall(one, callIn("active"));
    desk.start();
    QTRY_COMPARE(desk.heard->last(), "voicecall01 active 5550123 found");
    desk.fake.setInterfaces({"NetworkRegistration"});
    QTRY_COMPARE(desk.heard->last(), "voicecall01 gone");
    QCOMPARE(desk.modem->dial("5550123"), int(NotAvailable));
    // What the daemon still says of it belongs to nothing.
    desk.fake.setCall(one, "State", "held");
    desk.fake.removeCall(one);
    desk.fake.addContext(context, {{"Active", true}});
    desk.fake.setInterfaces({"ConnectionManager"});
    QTRY_COMPARE(desk.heard->last(), "context1   found");
    QCOMPARE(desk.heard->told.size(), 3);
}

void TestModem::callsAreFoundWhenTheirInterfaceComesBack()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_COMPARE(desk.fake.asked.count("VoiceCallManager.GetCalls"), 1);
    desk.fake.setInterfaces({});
    desk.fake.addCall(one, callIn("active"));
    desk.fake.setInterfaces({"VoiceCallManager"});
    QTRY_COMPARE(desk.heard->told, QStringList("voicecall01 active 5550123 found"));
}

void TestModem::allIsLostWhenTheModemIsRemoved()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.addCall(one, callIn("active"));
    desk.start();
    QTRY_COMPARE(desk.heard->told.size(), 1);
    QVERIFY(desk.modem->state().isThere);
    desk.fake.removeModem(FakeOfono::modem);
    QTRY_COMPARE(desk.heard->last(), "lost");
    QVERIFY(!desk.modem->state().isThere);
    QCOMPARE(desk.modem->state().status, "no modem");
    QCOMPARE(desk.modem->hangUp(one), int(NotAvailable));
    desk.fake.addModem(FakeOfono::modem, anOnlineModem({"org.ofono.VoiceCallManager"}));
    QTRY_COMPARE(desk.heard->last(), "voicecall01 active 5550123 found");
}

void TestModem::allIsLostWhenTheDaemonEnds()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.addCall(one, callIn("active"));
    desk.look(); // before there is a daemon
    QVERIFY(!desk.modem->state().isThere);
    QCOMPARE(desk.modem->state().status, "oFono is not running");
    desk.fake.appear();
    QTRY_COMPARE(desk.heard->last(), "voicecall01 active 5550123 found");
    desk.fake.disappear();
    QTRY_COMPARE(desk.heard->last(), "lost");
    QVERIFY(!desk.modem->state().isThere);
    QCOMPARE(desk.modem->state().status, "oFono is not running");
    desk.fake.appear();
    QTRY_COMPARE(desk.heard->last(), "voicecall01 active 5550123 found");
    desk.fake.setCall(one, "State", "held");
    QTRY_COMPARE(desk.heard->last(), "voicecall01 held 5550123");
    QCOMPARE(desk.heard->told.size(), 4);
}

void TestModem::anAnswerOfADaemonThatHasEndedIsNotTheNextOnes()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.silent.insert("Manager.GetModems");
    desk.start();
    QTRY_COMPARE(desk.fake.asked.count("Manager.GetModems"), 1);
    desk.fake.disappear();
    desk.fake.silent.clear();
    desk.fake.appear();
    desk.fake.addCall(one, callIn("incoming"));
    QTRY_VERIFY(desk.heard->last().startsWith("voicecall01 incoming"));
    QCOMPARE(desk.fake.asked.count("Manager.GetModems"), 2);
}

void TestModem::aDaemonThatAnswersLateIsAskedAgain()
{
    OfonoDesk desk({200, 60'000, 100});
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.silent.insert("Manager.GetModems");
    desk.start();
    QTRY_VERIFY_WITH_TIMEOUT(desk.fake.asked.count("Manager.GetModems") > 1, 60'000);
    desk.fake.silent.clear();
    desk.fake.addCall(one, callIn("incoming"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.heard->last().startsWith("voicecall01 incoming"), 60'000);
}

void TestModem::aBusThatIsCutAndComesBack()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.addCall(one, callIn("active"));
    desk.start();
    QTRY_COMPARE(desk.heard->told.size(), 1);
    systemBus().kill();
    QTRY_COMPARE(desk.heard->last(), "lost");
    desk.fake.disappear();
    QVERIFY(systemBus().start());
    desk.fake.appear();
    QTRY_COMPARE(desk.heard->last(), "voicecall01 active 5550123 found");
}

void TestModem::theModemThatIsOnlineIsTheOne()
{
    OfonoDesk desk;
    desk.fake.set(FakeOfono::modem, "Modem", "Online", false);
    desk.fake.addModem("/fake_1", {{"Online", true}, {"Name", "second"}});
    desk.start();
    QTRY_COMPARE(desk.modem->state().name, "second");
    desk.fake.set(FakeOfono::modem, "Modem", "Name", "first");
    desk.fake.set(FakeOfono::modem, "Modem", "Online", true);
    desk.fake.set("/fake_1", "Modem", "Name", "still the second");
    QTRY_COMPARE(desk.modem->state().name, "still the second");
    desk.fake.set("/fake_1", "Modem", "Online", false);
    QTRY_COMPARE(desk.modem->state().name, "first");
    QCOMPARE(desk.heard->told, QStringList("lost"));
}

void TestModem::aModemThatIsOfflineStaysWhileNoOtherIsOnline()
{
    OfonoDesk desk;
    desk.fake.set(FakeOfono::modem, "Modem", "Manufacturer", "Maker");
    desk.fake.set(FakeOfono::modem, "Modem", "Model", "M1");
    desk.start();
    QTRY_COMPARE(desk.modem->state().name, "Maker M1");
    desk.fake.set(FakeOfono::modem, "Modem", "Online", false);
    QTRY_COMPARE(desk.modem->state().status, "offline");
    {
        const OtherLanguage other;
        QCOMPARE(desk.modem->state().status, "[offline]");
    }
    QVERIFY(desk.heard->told.isEmpty());
}

void TestModem::aContextIsASessionWhileItIsActive()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"ConnectionManager"});
    desk.fake.addContext(context, {{"Active", false}, {"AccessPointName", "internet"}, {"Type", "internet"}});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("ConnectionManager.GetContexts"));
    desk.fake.setContext(context, "Settings", QVariantMap{{"Interface", "wwan0"}, {"Method", "dhcp"}});
    desk.fake.setContext(context, "Active", true);
    QTRY_COMPARE(desk.heard->told, QStringList("context1 internet wwan0"));
    desk.fake.setContext(context, "Settings", QVariantMap());
    desk.fake.setContext(context, "Active", false);
    QTRY_COMPARE(desk.heard->last(), "context1 gone");
    QCOMPARE(desk.heard->told.size(), 3);
}

void TestModem::aContextWithTheOtherProtocolHasAnInterface()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"ConnectionManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("ConnectionManager.GetContexts"));
    desk.fake.addContext(context, {{"Active", true},
                                   {"AccessPointName", "six"},
                                   {"Settings", QVariantMap()},
                                   {"IPv6.Settings", QVariantMap{{"Interface", "wwan6"}}}});
    QTRY_COMPARE(desk.heard->told, QStringList("context1 six wwan6"));
}

void TestModem::sessionsAreOverWhenTheirInterfaceVanishes()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"ConnectionManager"});
    desk.fake.addContext(context, {{"Active", true}});
    desk.start();
    QTRY_COMPARE(desk.heard->told.size(), 1);
    desk.fake.setInterfaces({});
    QTRY_COMPARE(desk.heard->last(), "context1 gone");
}

void TestModem::aContextThatIsRemovedIsOver()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"ConnectionManager"});
    desk.fake.addContext(context, {{"Active", true}});
    desk.fake.addContext(FakeOfono::modem + "/context2", {{"Active", false}});
    desk.start();
    QTRY_COMPARE(desk.heard->told.size(), 1);
    desk.fake.removeContext(FakeOfono::modem + "/context2");
    desk.fake.removeContext(context);
    QTRY_COMPARE(desk.heard->told.size(), 2);
    QCOMPARE(desk.heard->last(), "context1 gone");
}

void TestModem::aContextThatWasActiveIsFound()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"ConnectionManager"});
    desk.fake.addContext(
        context,
        {{"Active", true}, {"AccessPointName", "internet"}, {"Settings", QVariantMap{{"Interface", "wwan0"}}}});
    desk.start();
    QTRY_COMPARE(desk.heard->told, QStringList("context1 internet wwan0 found"));
}

void TestModem::theNetworkIsTold()
{
    OfonoDesk desk;
    desk.fake.answers["NetworkRegistration"] = {{"Name", "Test Net"}, {"Status", "registered"}};
    desk.fake.setInterfaces({"NetworkRegistration"});
    desk.start();
    QTRY_COMPARE(desk.modem->state().status, "registered");
    QCOMPARE(desk.modem->state().network, "Test Net");
    desk.fake.set(FakeOfono::modem, "NetworkRegistration", "Status", "searching");
    QTRY_COMPARE(desk.modem->state().status, "searching");
    for (const char *status : {"unregistered", "registered", "searching", "denied", "unknown", "roaming"}) {
        const OtherLanguage other;
        desk.fake.set(FakeOfono::modem, "NetworkRegistration", "Status", status);
        QTRY_COMPARE(desk.modem->state().status, QStringLiteral("[%1]").arg(status));
    }
    desk.fake.set(FakeOfono::modem, "NetworkRegistration", "Status", "a word of a later daemon");
    QTRY_COMPARE(desk.modem->state().status, "a word of a later daemon");
    desk.fake.setInterfaces({});
    QTRY_COMPARE(desk.modem->state().network, QString());
}

void TestModem::aValueOfAWrongTypeIsIgnoredAndToldOnce_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *path, const char *interface, const char *name, const QVariant &value) {
        QTest::addRow("%s.%s", interface, name) << path << interface << name << value;
    };
    row("/fake_0", "Modem", "Interfaces", 7);
    row("/fake_0", "Modem", "Online", "yes");
    row("/fake_0", "Modem", "Name", QVariantMap{{"a", 1}});
    row("/fake_0", "NetworkRegistration", "Status", 3.5);
    row("/fake_0", "NetworkRegistration", "Name", QStringList{"a"});
    row("/fake_0/voicecall01", "VoiceCall", "State", 4);
    row("/fake_0/voicecall01", "VoiceCall", "State", "sleeping");
    row("/fake_0/voicecall01", "VoiceCall", "LineIdentification", true);
    row("/fake_0/voicecall01", "VoiceCall", "StartTime", "yesterday");
    row("/fake_0/voicecall01", "VoiceCall", "StartTime", 12U);
    row("/fake_0/context1", "ConnectionContext", "Active", "yes");
    row("/fake_0/context1", "ConnectionContext", "Settings", "wwan0");
    row("/fake_0/context1", "ConnectionContext", "Settings", QVariantMap{{"Interface", 5}});
    row("/fake_0/context1", "ConnectionContext", "AccessPointName", 9);
}

void TestModem::aValueOfAWrongTypeIsIgnoredAndToldOnce()
{
    QFETCH(const QString, path);
    QFETCH(const QString, interface);
    QFETCH(const QString, name);
    QFETCH(const QVariant, value);
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager", "ConnectionManager", "NetworkRegistration"});
    desk.fake.addCall(one, callIn("active"));
    desk.fake.addContext(context, {{"Active", true}, {"Settings", QVariantMap{{"Interface", "wwan0"}}}});
    desk.start();
    QTRY_COMPARE(desk.heard->told.size(), 2);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("oFono says something of .*") + name));
    for (int i = 0; i < 2; ++i) // the second one is no warning
        desk.fake.set(path, qPrintable(interface), qPrintable(name), value);
    desk.fake.setCall(one, "State", "held");
    QTRY_COMPARE(desk.heard->last(), "voicecall01 held 5550123");
    QVERIFY(!desk.heard->told.contains("lost") && !desk.heard->told.contains("context1 gone"));
}

void TestModem::aListOfAWrongTypeIsIgnored()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.errors["VoiceCallManager.GetCalls"] << "Failed";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("oFono says something of the calls that there are"));
    desk.start();
    QTRY_COMPARE(desk.fake.asked.count("VoiceCallManager.GetCalls"), 1);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("oFono says something of VoiceCallManager.CallAdded"));
    desk.fake.tell(FakeOfono::modem, "VoiceCallManager", "CallAdded", {QStringLiteral("no path")});
    desk.fake.tell(FakeOfono::modem, "VoiceCallManager", "CallAdded", {5});
    desk.fake.addCall(one, callIn("incoming"));
    QTRY_COMPARE(desk.heard->told, QStringList("voicecall01 incoming 5550123"));
}

void TestModem::whatIsAskedGoesToTheDaemon()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.addCall(one, callIn("incoming"));
    desk.start();
    QTRY_COMPARE(desk.heard->told.size(), 1);
    desk.fake.asked.clear();
    QCOMPARE(desk.modem->answer(one), int(Success));
    QCOMPARE(desk.modem->hangUp(one), int(Success));
    QCOMPARE(desk.modem->dial("+49*21#"), int(Success));
    QTRY_COMPARE(desk.fake.asked,
                 QStringList({"VoiceCall.Answer", "VoiceCall.Hangup", "VoiceCallManager.Dial +49*21# "}));
    QCOMPARE(desk.heard->told.size(), 1);
}

void TestModem::whatCannotBeAskedIsNot()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    QCOMPARE(ofono::OfonoModem().dial("5550123"), int(NotAvailable));
    desk.start();
    QTRY_COMPARE(desk.fake.asked.size(), 2);
    QCOMPARE(desk.modem->dial(QString()), int(InvalidArgument));
    QCOMPARE(desk.modem->dial("call me"), int(InvalidArgument));
    QCOMPARE(desk.modem->answer(one), int(InvalidArgument));
    QCOMPARE(desk.modem->hangUp("no path"), int(InvalidArgument));
    QCOMPARE(desk.fake.asked.size(), 2);
}

void TestModem::aRefusalIsToldInWords_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("reason");
    QTest::newRow("busy") << "InProgress"
                          << "it is busy";
    QTest::newRow("no number") << "InvalidFormat"
                               << "that is no number to call";
    QTest::newRow("never heard of") << "Peculiar"
                                    << "it failed (Peculiar)";
}

void TestModem::aRefusalIsToldInWords()
{
    QFETCH(const QString, error);
    QFETCH(const QString, reason);
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.errors["VoiceCallManager.Dial"] << error;
    QCOMPARE(desk.modem->dial("5550123"), int(Success));
    QTRY_COMPARE(desk.heard->told, QStringList("The telephone does not dial: " + reason + "."));
}

void TestModem::aSilentDaemonIsToldAndNothingWaits()
{
    OfonoDesk desk({60'000, 1, 100}); // for dialing no time at all: there is no answer that could be late
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.fake.silent.insert("VoiceCallManager.Dial");
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    QCOMPARE(desk.modem->dial("5550123"), int(Success));
    QVERIFY(desk.heard->told.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(desk.heard->told, QStringList("The telephone does not dial: it does not answer."),
                              60'000);
}

void TestModem::aCallThatTheNetworkRefusesIsTold()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    for (const char *state : {"alerting", "active", "dialing"}) {
        desk.fake.addCall(one, callIn("dialing"));
        desk.fake.setCall(one, "State", state);
        desk.fake.tell(one, "VoiceCall", "DisconnectReason", {QStringLiteral("network")});
        desk.fake.setCall(one, "State", "disconnected");
        desk.fake.removeCall(one);
    }
    QTRY_COMPARE(desk.heard->told.count("voicecall01 gone"), 3);
    QCOMPARE(desk.heard->told.count("The network has not put the call through."), 2);
    desk.fake.addCall(two, callIn("incoming"));
    desk.fake.tell(two, "VoiceCall", "DisconnectReason", {QStringLiteral("network")});
    desk.fake.removeCall(two);
    QTRY_COMPARE(desk.heard->last(), "voicecall02 gone");
}

// A bus that a busy machine does not let answer for a quarter of a second is not what these are about.
static Settings ofSystemBus()
{
    Settings settings;
    settings.backend = QStringLiteral("ofono");
    settings.patience.bus = 60'000;
    return settings;
}

void TestModem::theBackendIsALibraryThatTheFactoryFinds()
{
    FakeOfono fake(systemBus().address());
    fake.setInterfaces({"VoiceCallManager"});
    fake.addCall(one, callIn("active"));
    fake.appear();
    Settings settings = ofSystemBus();
    const auto clock = std::make_shared<ManualClock>();
    settings.clock = clock;
    const Opened opened = handset::open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    QTRY_COMPARE(fake.asked.count("VoiceCallManager.GetCalls"), 1);
    const auto counts = [&] {
        clock->advance(second);
        CallTime time;
        return opened.handset->callLog()->dialedCallsTime(time) == Success && time.seconds > 0;
    };
    QTRY_VERIFY(counts());
}

// As the usual policy of the bus has it for who is neither root nor at the console.
void TestModem::aDaemonThatDoesNotLetThisUserTalkToItIsSaidToBeSo()
{
    OfonoDesk desk;
    desk.fake.errors["Manager.GetModems"] = QStringList("org.freedesktop.DBus.Error.AccessDenied");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("oFono does not tell its modems"));
    desk.start();
    QTRY_COMPARE(desk.modem->state().status, "oFono does not let this user talk to it");
    QVERIFY(desk.modem->isKnown());
    QVERIFY(!desk.modem->state().isThere);
    desk.fake.disappear();
    QTRY_COMPARE(desk.modem->state().status, "oFono is not running");
    desk.fake.appear();
    QTRY_VERIFY(desk.modem->state().isThere);
}

// Without a turn of the event loop: a screen may be opened at once.
void TestModem::theFiguresAreThereWhenItIsOpened()
{
    FakeOfono fake(systemBus().address());
    fake.answers["CallMeter"] = {{"AccumulatedCallMeter", 40U},
                                 {"AccumulatedCallMeterMaximum", 100U},
                                 {"PricePerUnit", 0.25},
                                 {"Currency", "EUR"}};
    fake.answers["SimManager"] = {
        {"PinRequired", "none"},
        {"Retries", QVariant::fromValue(QMap<QString, uchar>{{QStringLiteral("pin2"), uchar{2}}})}};
    fake.errors["CallMeter.GetProperties"] = QStringList("InProgress"); // at first
    fake.setInterfaces({"SimManager", "CallMeter"});
    fake.appear();
    Settings settings = ofSystemBus();
    settings.patience.operation = 60'000;
    const Opened opened = handset::open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    QString maximum;
    bool enabled = false;
    QCOMPARE(opened.handset->adviceOfCharge()->meterMaximum(maximum, enabled), int(Success));
    QCOMPARE(maximum, QStringLiteral("100.00"));
    int tries = 0;
    QCOMPARE(opened.handset->simSecurity()->triesLeft(SimSecurity::Pin2, tries), int(Success));
    QCOMPARE(tries, 2);
}

// Figures that come late keep the opening waiting; the call is the recorder's by then, before anybody listens.
void TestModem::whatHappensWhileItIsOpenedIsTold()
{
    FakeOfono fake(systemBus().address());
    fake.setInterfaces({"VoiceCallManager", "CallMeter"});
    fake.silent.insert("CallMeter.GetProperties");
    fake.addCall(one, callIn("active"));
    fake.appear();
    Settings settings = ofSystemBus();
    const Opened opened = handset::open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    int told = 0;
    opened.handset->setChangeListener([&] { ++told; });
    QCOMPARE(told, 1);
    opened.handset->setChangeListener([&] { ++told; });
    QCOMPARE(told, 1);
    opened.handset->setChangeListener({});
}

void TestModem::openingWaitsForNobodyAndForNobodyLong()
{
    Settings settings = ofSystemBus();
    settings.patience.operation = 600'000;
    QVERIFY(handset::open(settings).handset); // no daemon
    FakeOfono fake(systemBus().address());
    fake.setInterfaces({"SimManager", "CallMeter"});
    fake.silent.insert("CallMeter.GetProperties");
    fake.appear();
    settings.patience.operation = 200;
    const Opened opened = handset::open(settings);
    const auto *const handset = dynamic_cast<const ofono::OfonoHandset *>(opened.handset.get());
    QVERIFY(handset);
    QVERIFY(!handset->callMeter().isAnswered()); // else it would have waited for that
    QString text;
    QCOMPARE(opened.handset->adviceOfCharge()->priceAndCurrency(text, text), int(NotAvailable));
}

void TestModem::aDaemonThatDoesNotTellItsModemsIsSaidToBeSo()
{
    OfonoDesk desk;
    desk.fake.errors["Manager.GetModems"] << "org.freedesktop.DBus.Error.Failed";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^oFono does not tell its modems: "));
    desk.start();
    QTRY_COMPARE(desk.modem->state().status, QStringLiteral("oFono does not tell its modems"));
    QVERIFY(!desk.modem->state().isThere);
    // A modem that it tells of then is there all the same.
    desk.fake.addModem("/later", {{"Online", true}});
    desk.fake.setInterfaces({"VoiceCallManager"}, "/later");
    desk.fake.disappear();
    desk.fake.appear();
    QTRY_VERIFY(desk.modem->state().isThere);
}

void TestModem::whatIsSaidOfNobodyKnownChangesNothing()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager", "ConnectionManager", "NetworkRegistration"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls") &&
                desk.fake.asked.contains("ConnectionManager.GetContexts"));
    desk.fake.addCall(one, callIn("active"));
    QTRY_VERIFY(!desk.heard->told.isEmpty());
    const QStringList before = desk.heard->told;
    desk.fake.tell("/other_9", "Modem", "PropertyChanged",
                   {"Name", QVariant::fromValue(QDBusVariant(QStringLiteral("Nobody")))});
    desk.fake.tell("/other_9/context1", "ConnectionContext", "PropertyChanged",
                   {"Active", QVariant::fromValue(QDBusVariant(true))});
    desk.fake.tell("/other_9/voicecall01", "VoiceCall", "DisconnectReason", {"remote"});
    desk.fake.tell("/other_9", "NetworkRegistration", "PropertyChanged",
                   {"Name", QVariant::fromValue(QDBusVariant(QStringLiteral("Elsewhere")))});
    desk.fake.tell("/other_9", "CallMeter", "PropertyChanged",
                   {"CallMeter", QVariant::fromValue(QDBusVariant(9U))});
    desk.fake.tell(one, "VoiceCall", "PropertyChanged",
                   {"State", QVariant::fromValue(QDBusVariant(QStringLiteral("held")))});
    QTRY_VERIFY(desk.heard->last().contains("held"));
    QCOMPARE(desk.heard->told.size(), before.size() + 1);
    QVERIFY(desk.modem->state().network != "Elsewhere");
}

void TestModem::aCallIsDialedByItsFirstStateAndFoundWhenItIsOn_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QString>("told");
    QTest::newRow("held") << QByteArray("held") << "voicecall01 held 5550123 found";
    QTest::newRow("alerting") << QByteArray("alerting") << "voicecall01 alerting 5550123";
}

void TestModem::aCallIsDialedByItsFirstStateAndFoundWhenItIsOn()
{
    QFETCH(const QByteArray, state);
    QFETCH(const QString, told);
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.addCall(one, callIn(state.constData()));
    QTRY_COMPARE(desk.heard->last(), told);
}

void TestModem::withoutCallsThereIsNothingToAnswerOrEnd()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"NetworkRegistration"});
    desk.start();
    QTRY_VERIFY(desk.modem->state().isThere);
    QCOMPARE(desk.modem->answer(one), int(NotAvailable));
    QCOMPARE(desk.modem->hangUp(one), int(NotAvailable));
    QCOMPARE(desk.modem->dial("5550123"), int(NotAvailable));
}

void TestModem::dataConnectionsThatAreNotListedAreFollowedWhenTheyAreTold()
{
    OfonoDesk desk;
    desk.fake.errors["ConnectionManager.GetContexts"] << "Failed";
    desk.fake.setInterfaces({"ConnectionManager"});
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("the data connections that there are"));
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("ConnectionManager.GetContexts"));
    desk.fake.addContext(OfonoDesk::context, {{"AccessPointName", "internet"}, {"Active", true}});
    QTRY_VERIFY(desk.heard->last().startsWith("context1 internet"));
}

void TestModem::aNetworkThatIsNotToldIsNone()
{
    OfonoDesk desk;
    desk.fake.answers["NetworkRegistration"] = {{"Name", "Network"}, {"Status", "registered"}};
    desk.fake.errors["NetworkRegistration.GetProperties"] << "Failed";
    desk.fake.setInterfaces({"NetworkRegistration"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("NetworkRegistration.GetProperties"));
    desk.fake.set(FakeOfono::modem, "NetworkRegistration", "Name", "Told");
    QTRY_COMPARE(desk.modem->state().network, QStringLiteral("Told"));
}

void TestModem::anAnswerThatTheBusGaveUpIsAskedForAgain_data()
{
    QTest::addColumn<QString>("error");
    for (const char *error : {"NoReply", "Timeout", "TimedOut"})
        QTest::newRow(error) << QStringLiteral("org.freedesktop.DBus.Error.%1").arg(QLatin1String(error));
}

void TestModem::anAnswerThatTheBusGaveUpIsAskedForAgain()
{
    QFETCH(const QString, error);
    OfonoDesk desk;
    desk.fake.errors["Manager.GetModems"] << error;
    desk.start();
    QTRY_VERIFY(desk.modem->state().isThere);
    QCOMPARE(desk.fake.asked.count("Manager.GetModems"), 2);
}

void TestModem::aCallWithoutAStateIsNotToldYet()
{
    OfonoDesk desk;
    desk.fake.setInterfaces({"VoiceCallManager"});
    desk.start();
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.addCall(one, {{"LineIdentification", "5550123"}});
    desk.fake.setCall(one, "State", "active");
    QTRY_COMPARE(desk.heard->told, QStringList("voicecall01 active 5550123"));
}

void TestModem::aModemThatIsToldTwiceIsOne()
{
    OfonoDesk desk;
    desk.start();
    QTRY_VERIFY(desk.modem->state().isThere);
    desk.fake.addModem(FakeOfono::modem, {{"Online", true}, {"Name", "again"}});
    QTRY_COMPARE(desk.modem->state().name, "again");
    desk.fake.removeModem(FakeOfono::modem);
    QTRY_VERIFY(!desk.modem->state().isThere);
}

KAV_TEST_GROUP(TestModem, QCoreApplication);
#include "tst_modem.moc"
