// A modem behind a ModemManager that does what it should not, recorded as its calls and connections were.
#include "bench/daemons/FakeModemManager.h"
#include "handset/live/LiveDesk.h"
#include "handset/live/OtherLanguage.h"
#include "modemmanager/ModemManagerModem.h"
#include "qt/qcop/BusSocket.h"
#include "qt/qcop/PrivateBus.h"
#include "support/TestGroup.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtTest/QSignalSpy>

#include <limits>

#include <poll.h>
#include <unistd.h>

using namespace handset;
using namespace handset::test;

namespace {

const QString one = QStringLiteral("/org/freedesktop/ModemManager1/Call/1");
const QString two = QStringLiteral("/org/freedesktop/ModemManager1/Call/2");
const QString bearer = QStringLiteral("/org/freedesktop/ModemManager1/Bearer/1");
const QString refusal = QStringLiteral("org.freedesktop.ModemManager1.Error.Core.Failed: no carrier");

QVariantMap stats(quint64 sent, quint64 received, quint64 startSeconds = 0, quint32 seconds = 0)
{
    return {{QStringLiteral("tx-bytes"), sent},
            {QStringLiteral("rx-bytes"), received},
            {QStringLiteral("start-date"), startSeconds},
            {QStringLiteral("duration"), seconds}};
}

/// A live handset over ModemManager's modem, on a bus of its own. The daemon runs, and has a modem.
class Desk : public LiveDesk
{
public:
    explicit Desk(bool isThere = true)
        : fake(bus.address())
    {
        fake.addModem(fake.modem);
        if (isThere)
            fake.appear();
    }

    /// Opens the handset, and waits until it has seen all that is there.
    void open(live::Patience patience = {60'000, 60'000, 50})
    {
        auto made = std::make_unique<modemmanager::ModemManagerModem>(bus.address(), patience);
        modem = made.get();
        QObject::connect(modem, &live::Modem::refused, modem, [this](const QString &why) { refused << why; });
        LiveDesk::open(std::move(made));
    }
    void openAndSettle()
    {
        open();
        QTRY_VERIFY(fake.asked.contains(QStringLiteral("ListCalls")));
        settle();
    }
    /// Waits until everything that the daemon has sent until now has come, and what was asked then is answered: by asking
    /// it on the modem's own connection, whose answers come in their order.
    void settle()
    {
        for (int turn = 0; turn < 3; ++turn) {
            const QDBusMessage question = QDBusMessage::createMethodCall(
                QStringLiteral("org.freedesktop.ModemManager1"), fake.modem, QString(), fake.settleMethod);
            const QDBusPendingCallWatcher answer(ofModem().asyncCall(question));
            QSignalSpy answered(&answer, &QDBusPendingCallWatcher::finished);
            QVERIFY(answered.wait(60'000));
        }
    }
    /// The connection that the modem has made last; they are numbered in the process.
    static QDBusConnection ofModem()
    {
        static int newest = 1;
        const auto numbered = [](int number) {
            return QDBusConnection(QStringLiteral("kav-org.freedesktop.ModemManager1-%1").arg(number));
        };
        constexpr int mostBetween = 100;
        for (int number = newest + mostBetween; number > newest; --number)
            if (numbered(number).isConnected())
                newest = number;
        return numbered(newest);
    }
    live::ModemState modemState() const { return phone->modem().state(); }
    qsizetype running() const { return phone->calls().reported().size(); }

    PrivateBus bus;
    FakeModemManager fake;
    modemmanager::ModemManagerModem *modem = nullptr;
    QStringList refused;
};

} // namespace

class TestModem : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void callsAreRecordedInBothDirections();
    void aDialedCallIsTakenHalfwayBetweenTwoQuestions_data();
    void aDialedCallIsTakenHalfwayBetweenTwoQuestions();
    void twoCallsAtOnceAreTwoRows();
    void aCallThatIsOverBeforeItCouldBeLookedAtIsRecorded();
    void aCallThatIsMadeAndNeverBegunIsNone();
    void aCallThatIsFoundIsMarkedLate();
    void aCallThatIsFoundRingingIsNotLate();
    void aCallWhoseObjectStaysIsOverAllTheSame();
    void aCallWhoseObjectGoesIsOver();
    void aCallIsOverWhenItsInterfaceIsRemoved();
    void aCallIsOverWhenTheModemIsRemoved();
    void aCallIsOverWhenTheDaemonVanishesAndTheNextOneCountsItself();
    void aCallIsOverWhenTheBusGoesAndTheNextOneIsFollowed();
    void theDaemonMayComeLater();
    void theModemMayComeLater();
    void aModemThatIsUnpluggedAndComesBackIsFollowedAgain();
    void aModemWithCallsGoesBeforeOneWithout();
    void anotherModemTakesThePlaceOfTheOneThatHasGone();
    void bytesAreThoseOfTheDaemonWhereItCanReadThem();
    void bytesAreThoseOfTheInterfaceWhereItCannot();
    void aConnectionThatIsMadeAgainBeginsAnew();
    void theCountOfTheConnectionBeforeIsNotCountedAgain();
    void aConnectionThatIsFoundCountsFromItsStart();
    void aBearerThatIsTakenAwayIsOver();
    void aValueOfAWrongTypeIsIgnoredWithOneWarning();
    void aDaemonThatSaysNothingHoldsNothingUp();
    void aDaemonThatDoesNotLetThisUserTalkToItIsSaidToBeSo();
    void aDaemonThatAnswersLateIsAskedAgain();
    void dialingAsksForACallAndBeginsIt();
    void aCallIsAnsweredAndHungUp();
    void aWaitingCallIsTakenWithTheOtherOnHold();
    void whatIsRefusedIsToldInWords_data();
    void whatIsRefusedIsToldInWords();
    void whatCannotBeDoneAtTheMomentIsTriedAgain();
    void whatIsNoNumberOrNoCallIsRefusedAtOnce();
    void theStateOfTheModemIsInWords_data();
    void theStateOfTheModemIsInWords();
    void withoutABusThereIsAnError();
    void aBusThatComesBackSilentHoldsNothingUp();
    void aDaemonThatDoesNotTellItsModemsIsSaidToBeSo_data();
    void aDaemonThatDoesNotTellItsModemsIsSaidToBeSo();
    void whatComesBeforeTheListOfModemsIsInTheList();
    void whatComesAndGoesBesideTheModemChangesNothing();
    void withoutCallsThereIsNothingToAnswerOrEnd();
    void callsThatAreNotListedAreFollowedWhenTheyAreTold();
    void aCallThatGoesWhileItIsLookedAtIsNone();
    void aNumberThatComesLaterIsTheCallsNumber();
    void aCallThatIsNotToldIsFollowedByItsStates();
    void bytesThatAreToldByHalfAreNotCounted();
    void aStartThatNoClockHasIsNone();
    void aBearerThatIsNotToldOrNotConnectedIsNoSession();
    void whatCannotBeDoneForTooLongIsTold();
    void aCallThatWasNotMadeIsNotBegun();
    void anAnswerThatTheBusGaveUpIsAskedForAgain_data();
    void anAnswerThatTheBusGaveUpIsAskedForAgain();
};

void TestModem::callsAreRecordedInBothDirections()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("5550123"));
    desk.fake.moveCall(one, RingingOut);
    desk.settle();
    desk.pass(5 * second);
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(65 * second);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    desk.fake.addCall(two, Incoming, RingingIn, QStringLiteral("42"));
    desk.fake.moveCall(two, Active);
    desk.settle();
    desk.pass(7 * second);
    desk.fake.moveCall(two, Terminated);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:65000:1 1:42:7000:1"));
    QCOMPARE(desk.rows(QStringLiteral("late")), QStringLiteral("0 0"));
}

void TestModem::aDialedCallIsTakenHalfwayBetweenTwoQuestions_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<quint32>("port");
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("the daemon asks a modem of AT commands")
        << QStringLiteral("generic") << 3U << +Outgoing << true;
    QTest::newRow("a modem tells by itself") << QStringLiteral("huawei") << 3U << +Outgoing << false;
    QTest::newRow("a modem without AT commands tells") << QStringLiteral("generic") << 6U << +Outgoing << false;
    QTest::newRow("a call that is taken here") << QStringLiteral("generic") << 3U << +Incoming << false;
}

// Two states apart by a time that is known to lie between two others.
void TestModem::aDialedCallIsTakenHalfwayBetweenTwoQuestions()
{
    QFETCH(const QString, plugin);
    QFETCH(const quint32, port);
    QFETCH(const int, direction);
    QFETCH(const bool, isAsked);
    Desk desk;
    desk.fake.describe(plugin, {{QStringLiteral("ttyOther"), 3}, {QStringLiteral("port0"), port}});
    desk.openAndSettle();
    QElapsedTimer most;
    most.start();
    desk.fake.addCall(one, direction, direction == Outgoing ? RingingOut : RingingIn, QStringLiteral("1"));
    desk.settle();
    QElapsedTimer least;
    least.start();
    QTRY_VERIFY(least.hasExpired(100));
    desk.fake.moveCall(one, Active);
    const qint64 leastMs = std::min<qint64>(least.elapsed(), 2000) / 2;
    desk.settle();
    const qint64 mostMs = std::min<qint64>(most.elapsed(), 2000) / 2;
    desk.fake.moveCall(one, Held);
    desk.fake.moveCall(one, Active);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    const qint64 ms = desk.rows(QStringLiteral("duration_ms")).toLongLong();
    QVERIFY2(isAsked ? ms >= leastMs && ms <= mostMs : ms == 0, qPrintable(QString::number(ms)));
}

void TestModem::twoCallsAtOnceAreTwoRows()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(10 * second);
    desk.fake.addCall(two, Incoming, Waiting, QStringLiteral("2"));
    desk.fake.moveCall(one, Held);
    desk.fake.moveCall(two, Active);
    desk.settle();
    desk.pass(5 * second);
    desk.fake.moveCall(two, Terminated);
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(second);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("0:1:16000:1 1:2:5000:1"));
}

void TestModem::aCallThatIsOverBeforeItCouldBeLookedAtIsRecorded()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Incoming, RingingIn, QStringLiteral("1"));
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("1:1:0:2"));
    desk.fake.addCall(two, Outgoing, Dialing, QStringLiteral("2"));
    desk.fake.moveCall(two, Terminated);
    desk.fake.deleteCall(two);
    desk.settle();
    QCOMPARE(desk.rows(QStringLiteral("duration_ms || ':' || state")), QStringLiteral("0:2 0:2"));
}

void TestModem::aCallThatIsMadeAndNeverBegunIsNone()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Unknown, QStringLiteral("1"));
    desk.settle();
    desk.fake.deleteCall(one);
    desk.settle();
    QCOMPARE(desk.calls(), QString());
}

void TestModem::aCallThatIsFoundIsMarkedLate()
{
    Desk desk;
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"), false);
    desk.openAndSettle();
    desk.pass(9 * second);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("1:1:9000:1"));
    QCOMPARE(desk.rows(QStringLiteral("late")), QStringLiteral("1"));
}

void TestModem::aCallThatIsFoundRingingIsNotLate()
{
    Desk desk;
    desk.fake.addCall(one, Incoming, RingingIn, QStringLiteral("1"), false);
    desk.openAndSettle();
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(9 * second);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("1:1:9000:1"));
    QCOMPARE(desk.rows(QStringLiteral("late")), QStringLiteral("0"));
}

void TestModem::aCallWhoseObjectStaysIsOverAllTheSame()
{
    Desk desk;
    desk.fake.addCall(two, Outgoing, Terminated, QStringLiteral("old"), false);
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(second);
    desk.fake.moveCall(one, Terminated);
    // The daemon may say it twice.
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.running(), 0);
    desk.fake.set(one, QStringLiteral("Call"), {{QStringLiteral("Number"), QStringLiteral("other")}});
    desk.pass(hour);
    desk.settle();
    QCOMPARE(desk.running(), 0);
    QCOMPARE(desk.calls(), QStringLiteral("0:1:1000:1"));
}

void TestModem::aCallWhoseObjectGoesIsOver()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(second);
    desk.fake.deleteCall(one);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("0:1:1000:1"));
}

void TestModem::aCallIsOverWhenItsInterfaceIsRemoved()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(second);
    desk.fake.removeInterfaces(desk.fake.modem, {QStringLiteral("org.freedesktop.ModemManager1.Modem.Voice")});
    desk.settle();
    desk.pass(second);
    QCOMPARE(desk.calls(), QStringLiteral("0:1:1000:1"));
    QCOMPARE(desk.modem->dial(QStringLiteral("1")), int(NotAvailable));
    desk.fake.callPaths.clear();
    desk.fake.addInterface(desk.fake.modem, QStringLiteral("Modem.Voice"));
    desk.settle();
    desk.fake.addCall(two, Incoming, Active, QStringLiteral("2"));
    desk.settle();
    QCOMPARE(desk.running(), 1);
}

void TestModem::aCallIsOverWhenTheModemIsRemoved()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(second);
    desk.fake.removeModem(desk.fake.modem);
    QTRY_COMPARE(desk.calls(), QStringLiteral("0:1:1000:1"));
    QVERIFY(!desk.modemState().isThere);
    QCOMPARE(desk.modemState().status, QStringLiteral("no modem"));
}

void TestModem::aCallIsOverWhenTheDaemonVanishesAndTheNextOneCountsItself()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(second);
    desk.fake.vanish();
    QTRY_COMPARE(desk.calls(), QStringLiteral("0:1:1000:1"));
    QCOMPARE(desk.modemState().status, QStringLiteral("ModemManager is not running"));
    desk.fake.callPaths.clear();
    desk.fake.asked.clear();
    desk.fake.appear();
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("ListCalls")));
    desk.settle();
    desk.fake.addCall(two, Incoming, RingingIn, QStringLiteral("2"));
    desk.fake.moveCall(two, Active);
    desk.settle();
    desk.pass(2 * second);
    desk.fake.moveCall(two, Terminated);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("0:1:1000:1 1:2:2000:1"));
}

void TestModem::aCallIsOverWhenTheBusGoesAndTheNextOneIsFollowed()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(second);
    desk.bus.kill();
    QTRY_COMPARE(desk.calls(), QStringLiteral("0:1:1000:1"));
    QVERIFY(desk.bus.start());
    FakeModemManager another(desk.bus.address());
    another.addModem(another.modem);
    another.appear();
    QTRY_VERIFY(desk.modemState().isThere);
    QTRY_VERIFY(another.asked.contains(QStringLiteral("ListCalls")));
    another.addCall(two, Incoming, RingingIn, QStringLiteral("2"));
    another.moveCall(two, Active);
    QTRY_COMPARE(desk.running(), 1);
}

void TestModem::theDaemonMayComeLater()
{
    Desk desk(false);
    desk.open();
    QVERIFY(!desk.modemState().isThere);
    QCOMPARE(desk.modemState().status, QStringLiteral("ModemManager is not running"));
    QCOMPARE(desk.modem->dial(QStringLiteral("1")), int(NotAvailable));
    desk.fake.appear();
    QTRY_VERIFY(desk.modemState().isThere);
}

void TestModem::theModemMayComeLater()
{
    Desk desk;
    desk.fake.removeModem(desk.fake.modem);
    desk.open();
    QTRY_COMPARE(desk.modemState().status, QStringLiteral("no modem"));
    desk.fake.addModem(desk.fake.modem, false);
    QTRY_VERIFY(desk.modemState().isThere);
    QCOMPARE(desk.modem->dial(QStringLiteral("1")), int(NotAvailable));
    desk.fake.addInterface(desk.fake.modem, QStringLiteral("Modem.Voice"));
    QTRY_COMPARE(desk.modem->dial(QStringLiteral("1")), int(Success));
}

// The daemon lives, and says nothing of what the modem was doing.
void TestModem::aModemThatIsUnpluggedAndComesBackIsFollowedAgain()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 0, 0);
    desk.openAndSettle();
    const QVariantMap connected{{QStringLiteral("Connected"), true},
                                {QStringLiteral("Interface"), QStringLiteral("wwan0")}};
    desk.fake.addCall(one, Outgoing, Dialing, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.fake.addBearer(bearer, connected);
    desk.settle();
    desk.setInterface(QStringLiteral("wwan0"), 10, 20);
    desk.pass(3 * second);
    desk.fake.removeModem(desk.fake.modem);
    QTRY_VERIFY(!desk.modemState().isThere);
    QCOMPARE(desk.calls(), QStringLiteral("0:1:3000:1"));
    QCOMPARE(desk.sessions(), QStringLiteral("-:3000:10:20:1"));
    desk.clock->advance(hour);

    desk.fake.objects.clear();
    desk.fake.callPaths.clear();
    desk.fake.modem = QStringLiteral("/org/freedesktop/ModemManager1/Modem/1");
    desk.fake.addModem(desk.fake.modem);
    QTRY_VERIFY(desk.modemState().isThere);
    desk.setInterface(QStringLiteral("wwan0"), 0, 0); // made again
    desk.fake.addCall(two, Incoming, RingingIn, QStringLiteral("2"));
    desk.fake.moveCall(two, Active);
    desk.fake.addBearer(bearer, connected);
    desk.settle();
    desk.setInterface(QStringLiteral("wwan0"), 3, 4);
    desk.pass(5 * second);
    desk.fake.moveCall(two, Terminated);
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), false}});
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("0:1:3000:1 1:2:5000:1"));
    QCOMPARE(desk.rows(QStringLiteral("late")), QStringLiteral("0 0"));
    QCOMPARE(desk.sessions(), QStringLiteral("-:3000:10:20:1 -:5000:3:4:1"));
}

void TestModem::aModemWithCallsGoesBeforeOneWithout()
{
    Desk desk;
    desk.fake.removeModem(desk.fake.modem);
    desk.fake.addModem(QStringLiteral("/org/freedesktop/ModemManager1/Modem/2"), false);
    desk.fake.modem = QStringLiteral("/org/freedesktop/ModemManager1/Modem/10");
    desk.fake.addModem(desk.fake.modem);
    desk.openAndSettle();
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"));
    QTRY_COMPARE(desk.running(), 1);
}

void TestModem::anotherModemTakesThePlaceOfTheOneThatHasGone()
{
    Desk desk;
    const QString other = QStringLiteral("/org/freedesktop/ModemManager1/Modem/1");
    desk.fake.addModem(other);
    desk.openAndSettle();
    desk.fake.removeModem(desk.fake.modem);
    desk.fake.set(other, QStringLiteral("Modem"), {{QStringLiteral("Model"), QStringLiteral("Two")}});
    QTRY_COMPARE(desk.modemState().name, QStringLiteral("Fake Two"));
}

void TestModem::bytesAreThoseOfTheDaemonWhereItCanReadThem()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 9, 9);
    desk.openAndSettle();
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), false},
                                 {QStringLiteral("Properties"),
                                  QVariantMap{{QStringLiteral("apn"), QStringLiteral("internet")}}}});
    desk.settle();
    QCOMPARE(desk.sessions(), QString());
    desk.fake.set(bearer, QStringLiteral("Bearer"),
                  {{QStringLiteral("Connected"), true},
                   {QStringLiteral("Interface"), QStringLiteral("wwan0")},
                   {QStringLiteral("ReloadStatsSupported"), true},
                   {QStringLiteral("Stats"), stats(0, 0, 1'800'000'000)}});
    desk.settle();
    desk.pass(10 * second);
    desk.fake.set(bearer, QStringLiteral("Bearer"),
                  {{QStringLiteral("Stats"), stats(1234, 5'000'000'000, 1'800'000'000)}});
    desk.settle();
    desk.pass(10 * second);
    // The last count comes with the end.
    desk.fake.set(bearer, QStringLiteral("Bearer"),
                  {{QStringLiteral("Connected"), false},
                   {QStringLiteral("Interface"), QString()},
                   {QStringLiteral("Stats"), stats(2234, 6'000'000'000, 1'800'000'000)}});
    desk.settle();
    QCOMPARE(desk.sessions(), QStringLiteral("internet:20000:2234:6000000000:1"));
}

void TestModem::bytesAreThoseOfTheInterfaceWhereItCannot()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 100, 200);
    desk.openAndSettle();
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), false},
                                 {QStringLiteral("Properties"),
                                  QVariantMap{{QStringLiteral("apn"), QStringLiteral("internet")}}}});
    desk.fake.set(bearer, QStringLiteral("Bearer"),
                  {{QStringLiteral("Connected"), true},
                   {QStringLiteral("Interface"), QStringLiteral("wwan0")},
                   {QStringLiteral("ReloadStatsSupported"), false},
                   {QStringLiteral("Stats"), stats(0, 0)}});
    desk.settle();
    desk.setInterface(QStringLiteral("wwan0"), 1100, 5200);
    desk.pass(10 * second);
    desk.setInterface(QStringLiteral("wwan0"), 1101, 5202);
    desk.fake.set(bearer, QStringLiteral("Bearer"),
                  {{QStringLiteral("Connected"), false},
                   {QStringLiteral("Interface"), QString()},
                   {QStringLiteral("Stats"), stats(0, 0)}});
    desk.settle();
    QCOMPARE(desk.sessions(), QStringLiteral("internet:10000:1001:5002:1"));
}

void TestModem::aConnectionThatIsMadeAgainBeginsAnew()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addBearer(bearer,
                        {{QStringLiteral("Connected"), false}, {QStringLiteral("ReloadStatsSupported"), true}});
    for (const quint64 round : {quint64{1}, quint64{2}}) {
        desk.fake.set(bearer, QStringLiteral("Bearer"),
                      {{QStringLiteral("Connected"), true}, {QStringLiteral("Stats"), stats(0, 0, round)}});
        desk.settle();
        desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Stats"), stats(100, 1000, round)}});
        desk.fake.set(bearer, QStringLiteral("Bearer"),
                      {{QStringLiteral("Connected"), false}, {QStringLiteral("Stats"), stats(110, 1010, round)}});
        desk.settle();
    }
    QCOMPARE(desk.sessions(), QStringLiteral("-:0:110:1010:1 -:0:110:1010:1"));
}

void TestModem::theCountOfTheConnectionBeforeIsNotCountedAgain()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), true},
                                 {QStringLiteral("ReloadStatsSupported"), true},
                                 {QStringLiteral("Stats"), stats(50, 60, 1)}});
    desk.settle();
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), false}});
    desk.settle();
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), true}}); // and no new Stats yet
    desk.settle();
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Stats"), stats(7, 8, 2)}});
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), false}});
    desk.settle();
    QCOMPARE(desk.sessions(), QStringLiteral("-:0:50:60:1 -:0:7:8:1"));
}

void TestModem::aConnectionThatIsFoundCountsFromItsStart()
{
    Desk desk;
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), true},
                                 {QStringLiteral("ReloadStatsSupported"), true},
                                 {QStringLiteral("Stats"), stats(50, 60, 1'799'999'000, 900)}});
    desk.openAndSettle();
    desk.pass(10 * second);
    desk.fake.set(
        bearer, QStringLiteral("Bearer"),
        {{QStringLiteral("Connected"), false}, {QStringLiteral("Stats"), stats(51, 62, 1'799'999'000, 910)}});
    desk.settle();
    QCOMPARE(desk.sessions(), QStringLiteral("-:910000:51:62:1"));
}

void TestModem::aBearerThatIsTakenAwayIsOver()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), true}});
    desk.settle();
    desk.pass(3 * second);
    desk.fake.set(desk.fake.modem, QStringLiteral("Modem"),
                  {{QStringLiteral("Bearers"), QVariant::fromValue(QList<QDBusObjectPath>())}});
    desk.settle();
    QCOMPARE(desk.sessions(), QStringLiteral("-:3000:0:0:1"));
}

void TestModem::aValueOfAWrongTypeIsIgnoredWithOneWarning()
{
    Desk desk;
    for (const char *name : {"State", "Number", "Connected", "Stats", "Bearers"})
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression(QStringLiteral("^ModemManager's %1 cannot be used: ").arg(QLatin1String(name))));
    desk.openAndSettle();
    // State is one kind whoever has it: the modem's comes before.
    desk.fake.set(desk.fake.modem, QStringLiteral("Modem"), {{QStringLiteral("State"), QStringLiteral("eight")}});
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"), false);
    desk.fake.objects[one][QStringLiteral("org.freedesktop.ModemManager1.Call")] = {
        {QStringLiteral("State"), 4u}, {QStringLiteral("Direction"), 1}, {QStringLiteral("Number"), 42}};
    desk.fake.send(desk.fake.modem, QStringLiteral("org.freedesktop.ModemManager1.Modem.Voice"),
                   QStringLiteral("CallAdded"), {QVariant::fromValue(QDBusObjectPath(one))});
    desk.settle();
    QCOMPARE(desk.running(), 0); // nobody knows its state
    desk.fake.moveCall(one, Active);
    desk.settle();
    QCOMPARE(desk.running(), 1);
    // Signals of another signature are none.
    desk.fake.send(one, QStringLiteral("org.freedesktop.ModemManager1.Call"), QStringLiteral("StateChanged"),
                   {QStringLiteral("active"), QStringLiteral("over")});
    desk.fake.send(desk.fake.modem, QStringLiteral("org.freedesktop.ModemManager1.Modem.Voice"),
                   QStringLiteral("CallAdded"), {7});
    desk.fake.send(QStringLiteral("/org/freedesktop/ModemManager1"),
                   QStringLiteral("org.freedesktop.DBus.ObjectManager"), QStringLiteral("InterfacesAdded"),
                   {7, 8});
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), 1}, {QStringLiteral("Stats"), 5}});
    desk.settle();
    QCOMPARE(desk.sessions(), QString());
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), true}});
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), QStringLiteral("no")}});
    desk.settle();
    QCOMPARE(desk.sessions(), QStringLiteral("-:0:0:0:1"));
    desk.fake.set(desk.fake.modem, QStringLiteral("Modem"), {{QStringLiteral("Bearers"), 3}});
    desk.settle();
    QCOMPARE(desk.running(), 1);
}

void TestModem::aDaemonThatSaysNothingHoldsNothingUp()
{
    Desk desk;
    desk.fake.silent = {QStringLiteral("GetManagedObjects"), QStringLiteral("ListCalls"),
                        QStringLiteral("GetAll")};
    desk.open({300'000, 300'000, 50});
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("GetManagedObjects")));
    QCOMPARE(desk.modemState().status, QStringLiteral("asking ModemManager"));
    QCOMPARE(desk.all(), 0u);
    QCOMPARE(desk.phone->callService() != nullptr, true);
    desk.close(); // and does not wait for the answer either
    QVERIFY(!desk.phone);
}

void TestModem::aDaemonThatDoesNotLetThisUserTalkToItIsSaidToBeSo()
{
    Desk desk;
    desk.fake.errors[QStringLiteral("GetManagedObjects")] =
        QStringLiteral("org.freedesktop.DBus.Error.AccessDenied: not you");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not you")));
    desk.open();
    QTRY_COMPARE(desk.modemState().status, QStringLiteral("ModemManager does not let this user talk to it"));
    desk.fake.errors.clear();
    desk.fake.vanish();
    desk.fake.appear();
    QTRY_VERIFY(desk.modemState().isThere);
}

void TestModem::aDaemonThatAnswersLateIsAskedAgain()
{
    Desk desk;
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"), false);
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), true}});
    for (const char *method : {"GetManagedObjects", "ListCalls", "GetAll"})
        desk.fake.silent.insert(QLatin1String(method));
    // However often an answer comes too late on a busy machine, it is asked for once more.
    constexpr int answerMs = 100;
    constexpr int tryMs = 60'000;
    desk.open({answerMs, answerMs, answerMs});
    for (const char *method : {"GetManagedObjects", "ListCalls", "GetAll"}) {
        const QString name = QLatin1String(method);
        QTRY_VERIFY_WITH_TIMEOUT(desk.fake.asked.count(name) > 1, tryMs);
        desk.fake.silent.remove(name);
    }
    QTRY_COMPARE_WITH_TIMEOUT(desk.running(), 1, tryMs);
    QTRY_COMPARE_WITH_TIMEOUT(desk.phone->sessions().reported().size(), 1, tryMs);
}

void TestModem::dialingAsksForACallAndBeginsIt()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.asked.clear();
    QCOMPARE(desk.modem->dial(QStringLiteral("+495550123")), int(Success));
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("Start 101")));
    QVERIFY(desk.fake.asked.contains(QStringLiteral("+495550123")));
    QCOMPARE(desk.refused, QStringList());
}

void TestModem::aCallIsAnsweredAndHungUp()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Incoming, RingingIn, QStringLiteral("1"));
    QTRY_COMPARE(desk.running(), 1);
    QCOMPARE(desk.modem->answer(one), int(Success));
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("Accept 1")));
    desk.fake.moveCall(one, Active);
    desk.settle();
    QCOMPARE(desk.modem->hangUp(one), int(Success));
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("Hangup 1")));
}

void TestModem::aWaitingCallIsTakenWithTheOtherOnHold()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"));
    desk.fake.addCall(two, Incoming, Waiting, QStringLiteral("2"));
    QTRY_COMPARE(desk.running(), 2);
    QCOMPARE(desk.modem->answer(two), int(Success));
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("HoldAndAccept")));
}

void TestModem::whatIsRefusedIsToldInWords_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<bool>("isSilent");
    QTest::addColumn<QString>("words");
    QTest::newRow("a call that cannot be made")
        << QStringLiteral("CreateCall") << false << QStringLiteral("The call cannot be made: no carrier.");
    QTest::newRow("a call that cannot be begun")
        << QStringLiteral("Start") << false << QStringLiteral("The call cannot be made: no carrier.");
    QTest::newRow("a call that nobody answers for")
        << QStringLiteral("Start") << true
        << QStringLiteral("The call cannot be made: ModemManager does not answer.");
    QTest::newRow("an answer") << QStringLiteral("Accept") << false
                               << QStringLiteral("The call cannot be answered: no carrier.");
    QTest::newRow("an end") << QStringLiteral("Hangup") << false
                            << QStringLiteral("The call cannot be ended: no carrier.");
    QTest::newRow("an end that nobody answers for")
        << QStringLiteral("Hangup") << true
        << QStringLiteral("The call cannot be ended: ModemManager does not answer.");
}

void TestModem::whatIsRefusedIsToldInWords()
{
    QFETCH(QString, method);
    QFETCH(bool, isSilent);
    QFETCH(QString, words);
    Desk desk;
    desk.open({isSilent ? 2'000 : 60'000, isSilent ? 2'000 : 60'000, 50});
    desk.fake.addCall(one, Incoming, RingingIn, QStringLiteral("1"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.running(), 1, 60'000);
    if (isSilent)
        desk.fake.silent.insert(method);
    else
        desk.fake.errors.insert(method, refusal);
    const int status = method == QLatin1String("Accept")   ? desk.modem->answer(one)
                       : method == QLatin1String("Hangup") ? desk.modem->hangUp(one)
                                                           : desk.modem->dial(QStringLiteral("5550123"));
    QCOMPARE(status, int(Success));
    QTRY_COMPARE_WITH_TIMEOUT(desk.refused, QStringList{words}, 60'000);
    // One that could not be begun is not left with the modem.
    const bool isTakenBack = method == QLatin1String("Start") && !isSilent;
    QTRY_COMPARE(desk.fake.asked.contains(QStringLiteral("DeleteCall")), isTakenBack);
}

void TestModem::whatCannotBeDoneAtTheMomentIsTriedAgain()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.errors.insert(QStringLiteral("CreateCall"),
                            QStringLiteral("org.freedesktop.ModemManager1.Error.Core.InProgress: busy"));
    desk.fake.errorsLeft.insert(QStringLiteral("CreateCall"), 2);
    desk.modem->dial(QStringLiteral("5550123"));
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("Start 101")));
    QCOMPARE(desk.fake.asked.count(QStringLiteral("CreateCall")), 3);
    QCOMPARE(desk.refused, QStringList());
}

void TestModem::whatIsNoNumberOrNoCallIsRefusedAtOnce()
{
    Desk desk;
    desk.openAndSettle();
    QCOMPARE(desk.modem->dial(QString()), int(InvalidArgument));
    QCOMPARE(desk.modem->dial(QStringLiteral("12;34")), int(InvalidArgument));
    QCOMPARE(desk.modem->answer(one), int(InvalidArgument));
    QCOMPARE(desk.modem->hangUp(QStringLiteral("nothing")), int(InvalidArgument));
}

void TestModem::theStateOfTheModemIsInWords_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<uint>("lock");
    QTest::addColumn<QString>("words");
    QTest::newRow("failed") << -1 << 1u << QStringLiteral("failed");
    QTest::newRow("locked by the PIN") << 2 << 2u << QStringLiteral("locked: PIN");
    QTest::newRow("above all that are known") << 99 << 1u << QStringLiteral("unknown");
    QTest::newRow("below all that are known") << -7 << 1u << QStringLiteral("unknown");
    QTest::newRow("locked by the PUK") << 2 << 4u << QStringLiteral("locked: PUK");
    QTest::newRow("locked by something else") << 2 << 99u << QStringLiteral("locked");
    QTest::newRow("searching") << 7 << 1u << QStringLiteral("searching");
    QTest::newRow("connected") << 11 << 1u << QStringLiteral("connected");
    QTest::newRow("a state of a later daemon") << 99 << 1u << QStringLiteral("unknown");
}

void TestModem::theStateOfTheModemIsInWords()
{
    QFETCH(int, state);
    QFETCH(uint, lock);
    QFETCH(QString, words);
    Desk desk;
    desk.openAndSettle();
    desk.fake.set(desk.fake.modem, QStringLiteral("Modem"),
                  {{QStringLiteral("State"), state}, {QStringLiteral("UnlockRequired"), lock}});
    desk.settle();
    QCOMPARE(desk.modemState().status, words);
    {
        const OtherLanguage other;
        QCOMPARE(desk.modemState().status, QString(QLatin1Char('[') + words + QLatin1Char(']')));
    }
    QCOMPARE(desk.modemState().name, QStringLiteral("Fake One"));
    QVERIFY(desk.modemState().network.startsWith(QStringLiteral("Network")));
}

void TestModem::withoutABusThereIsAnError()
{
    PrivateBus bus(false);
    modemmanager::ModemManagerModem modem(bus.address(), {5'000, 5'000, 50});
    QVERIFY(modem.connectToBus().startsWith(QStringLiteral("There is no system bus: ")));
    // And the bus may come later.
    QVERIFY(bus.start());
    FakeModemManager fake(bus.address());
    fake.addModem(fake.modem);
    fake.appear();
    QTRY_VERIFY(modem.state().isThere);
}

void TestModem::aBusThatComesBackSilentHoldsNothingUp()
{
    PrivateBus bus;
    FakeModemManager first(bus.address());
    first.addModem(first.modem);
    first.appear();
    modemmanager::ModemManagerModem modem(bus.address(), {5'000, 5'000, 50});
    QCOMPARE(modem.connectToBus(60'000), QString());
    QTRY_VERIFY(modem.state().isThere);
    bus.kill();
    const QString path = bus.address().section(u'=', 1);
    QVERIFY(QFile::remove(path));
    const int silent = listeningSocket(Door::File, path);
    QTRY_VERIFY(!modem.state().isThere);
    // Whoever waited there for what the bus says would never get to look at it.
    pollfd caller{silent, POLLIN, 0};
    QTRY_VERIFY_WITH_TIMEOUT(poll(&caller, 1, 0) == 1, 60'000);
    close(silent);
    QVERIFY(QFile::remove(path));
    QVERIFY(bus.start());
    FakeModemManager started(bus.address());
    started.addModem(started.modem);
    started.appear();
    QTRY_VERIFY_WITH_TIMEOUT(modem.state().isThere, 60'000);
}

void TestModem::aDaemonThatDoesNotTellItsModemsIsSaidToBeSo_data()
{
    QTest::addColumn<QString>("error");
    QTest::newRow("an error") << QStringLiteral("org.freedesktop.DBus.Error.Failed: out of order");
    QTest::newRow("an answer to something else") << QString();
}

void TestModem::aDaemonThatDoesNotTellItsModemsIsSaidToBeSo()
{
    QFETCH(QString, error);
    Desk desk;
    const QString method = QStringLiteral("GetManagedObjects");
    if (error.isEmpty())
        desk.fake.answers[method] = 7;
    else
        desk.fake.errors[method] = error;
    QTest::ignoreMessage(QtWarningMsg, error.isEmpty()
                                           ? "ModemManager's GetManagedObjects cannot be used: i"
                                           : "ModemManager's GetManagedObjects cannot be used: out of order");
    desk.open();
    QTRY_COMPARE(desk.modemState().status, QStringLiteral("ModemManager does not tell its modems"));
    QVERIFY(!desk.modemState().isThere);
    // What it says of them nonetheless is of a list that nobody has.
    desk.fake.addModem(desk.fake.modem);
    desk.fake.removeInterfaces(desk.fake.modem, {QStringLiteral("org.freedesktop.ModemManager1.Modem.Voice")});
    desk.settle();
    QVERIFY(!desk.modemState().isThere);
}

void TestModem::whatComesBeforeTheListOfModemsIsInTheList()
{
    Desk desk;
    desk.fake.silent.insert(QStringLiteral("GetManagedObjects"));
    desk.open({100, 60'000, 50});
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("GetManagedObjects")));
    const QString other = QStringLiteral("/org/freedesktop/ModemManager1/Modem/1");
    desk.fake.addModem(other);
    desk.fake.removeModem(desk.fake.modem);
    desk.settle();
    QCOMPARE(desk.modemState().status, QStringLiteral("asking ModemManager"));
    desk.fake.silent.clear();
    desk.fake.modem = other;
    QTRY_VERIFY(desk.modemState().isThere);
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"));
    QTRY_COMPARE(desk.running(), 1);
}

void TestModem::whatComesAndGoesBesideTheModemChangesNothing()
{
    Desk desk;
    const QString other = QStringLiteral("/org/freedesktop/ModemManager1/Modem/1");
    desk.openAndSettle();
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"));
    QTRY_COMPARE(desk.running(), 1);
    desk.fake.addModem(other);
    desk.fake.set(other, QStringLiteral("Modem"), {{QStringLiteral("Model"), QStringLiteral("Two")}});
    desk.fake.set(other, QStringLiteral("Modem.Signal"), {{QStringLiteral("Rate"), 5u}}); // which it has not
    desk.fake.set(QStringLiteral("/org/freedesktop/ModemManager1/Modem/2"), QStringLiteral("Modem"),
                  {{QStringLiteral("Model"), QStringLiteral("Three")}}); // of which nobody was told
    desk.fake.removeInterfaces(other, {QStringLiteral("org.freedesktop.ModemManager1.Modem.Modem3gpp")});
    desk.fake.set(other, QStringLiteral("Modem.Modem3gpp"),
                  {{QStringLiteral("OperatorName"), QStringLiteral("No")}});
    desk.fake.addInterface(desk.fake.modem, QStringLiteral("Modem.Location"));
    desk.settle();
    QCOMPARE(desk.modemState().name, QStringLiteral("Fake One"));
    desk.fake.removeModem(other);
    desk.fake.removeModem(other); // again
    desk.settle();
    QCOMPARE(desk.modemState().name, QStringLiteral("Fake One"));
    QCOMPARE(desk.running(), 1);
    desk.pass(3 * second);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.calls(), QStringLiteral("1:1:3000:1"));
}

void TestModem::withoutCallsThereIsNothingToAnswerOrEnd()
{
    Desk desk;
    desk.fake.removeInterfaces(desk.fake.modem, {QStringLiteral("org.freedesktop.ModemManager1.Modem.Voice")});
    desk.open();
    QTRY_VERIFY(desk.modemState().isThere);
    QCOMPARE(desk.modem->dial(QStringLiteral("5550123")), int(NotAvailable));
    QCOMPARE(desk.modem->answer(one), int(NotAvailable));
    QCOMPARE(desk.modem->hangUp(one), int(NotAvailable));
    QVERIFY(!desk.fake.asked.contains(QStringLiteral("CreateCall")));
}

void TestModem::callsThatAreNotListedAreFollowedWhenTheyAreTold()
{
    Desk desk;
    desk.fake.errors[QStringLiteral("ListCalls")] = refusal;
    QTest::ignoreMessage(QtWarningMsg, "ModemManager's ListCalls cannot be used: no carrier");
    desk.openAndSettle();
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"));
    QTRY_COMPARE(desk.running(), 1);
}

void TestModem::aCallThatGoesWhileItIsLookedAtIsNone()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.addCall(one, Incoming, RingingIn, QStringLiteral("1"));
    desk.fake.deleteCall(one); // before it is asked for what it is
    desk.settle();
    QCOMPARE(desk.running(), 0);
    // Nor one that does not say, of whose states nothing is heard.
    desk.fake.errors[QStringLiteral("GetAll")] = refusal;
    desk.fake.addCall(two, Incoming, RingingIn, QStringLiteral("2"));
    desk.settle();
    QCOMPARE(desk.running(), 0);
    desk.fake.deleteCall(two);
    desk.settle();
    QCOMPARE(desk.calls(), QString());
}

void TestModem::aNumberThatComesLaterIsTheCallsNumber()
{
    Desk desk;
    desk.openAndSettle();
    const auto tell = [&](const char *name, const QString &value) {
        desk.fake.set(one, QStringLiteral("Call"), {{QLatin1String(name), value}});
    };
    desk.fake.addCall(one, Outgoing, Unknown, QString());
    desk.settle();
    tell("Number", QStringLiteral("4"));
    desk.settle();
    QCOMPARE(desk.running(), 0); // it has not begun
    desk.fake.moveCall(one, Active);
    desk.settle();
    tell("Number", QStringLiteral("42"));
    tell("Number", QStringLiteral("42"));
    tell("AudioPort", QStringLiteral("none"));
    desk.settle();
    desk.pass(second);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.rows(QStringLiteral("duration_ms")), QStringLiteral("1000"));
}

void TestModem::aCallThatIsNotToldIsFollowedByItsStates()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.errors[QStringLiteral("GetAll")] = refusal;
    desk.fake.addCall(one, Incoming, RingingIn, QStringLiteral("1"));
    desk.fake.moveCall(one, Active);
    desk.settle();
    desk.pass(2 * second);
    desk.fake.moveCall(one, Terminated);
    desk.settle();
    QCOMPARE(desk.rows(QStringLiteral("duration_ms || ':' || state")), QStringLiteral("2000:1"));
}

void TestModem::bytesThatAreToldByHalfAreNotCounted()
{
    Desk desk;
    desk.openAndSettle();
    for (const char *missing : {"tx-bytes", "rx-bytes"}) {
        QVariantMap half = stats(1000, 2000);
        half.remove(QLatin1String(missing));
        desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), true},
                                     {QStringLiteral("ReloadStatsSupported"), true},
                                     {QStringLiteral("Stats"), half}});
        desk.settle();
        desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), false}});
        desk.settle();
        desk.fake.set(desk.fake.modem, QStringLiteral("Modem"),
                      {{QStringLiteral("Bearers"), QVariant::fromValue(QList<QDBusObjectPath>())}});
        desk.settle();
    }
    QCOMPARE(desk.sessions(), QStringLiteral("-:0:0:0:1 -:0:0:0:1"));
}

void TestModem::aStartThatNoClockHasIsNone()
{
    Desk desk;
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), true},
                                 {QStringLiteral("ReloadStatsSupported"), true},
                                 {QStringLiteral("Stats"), stats(5, 6, std::numeric_limits<quint64>::max(), 60)}});
    desk.openAndSettle();
    desk.pass(second);
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), false}});
    desk.settle();
    QCOMPARE(desk.sessions(), QStringLiteral("-:61000:5:6:1"));
}

void TestModem::aBearerThatIsNotToldOrNotConnectedIsNoSession()
{
    Desk desk;
    desk.openAndSettle();
    const QVariant none = QVariant::fromValue(QList<QDBusObjectPath>());
    desk.fake.errors[QStringLiteral("GetAll")] = refusal;
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), true}});
    desk.settle();
    desk.fake.set(bearer, QStringLiteral("Bearer"), {{QStringLiteral("Connected"), true}});
    desk.fake.set(bearer + u'7', QStringLiteral("Bearer"), {{QStringLiteral("Connected"), true}}); // nobody's
    desk.fake.set(desk.fake.modem, QStringLiteral("Modem"), {{QStringLiteral("Bearers"), none}});
    desk.settle();
    desk.fake.errors.clear();
    desk.fake.objects.remove(bearer + u'7');
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), false}});
    desk.fake.set(desk.fake.modem, QStringLiteral("Modem"),
                  {{QStringLiteral("Bearers"), none}}); // while it is asked
    desk.settle();
    desk.fake.addBearer(bearer, {{QStringLiteral("Connected"), false}});
    desk.settle();
    desk.fake.set(desk.fake.modem, QStringLiteral("Modem"), {{QStringLiteral("Bearers"), none}});
    desk.settle();
    QCOMPARE(desk.sessions(), QString());
}

void TestModem::whatCannotBeDoneForTooLongIsTold()
{
    Desk desk;
    desk.open({1'000, 60'000, 50});
    QTRY_VERIFY(desk.modemState().isThere);
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"));
    QTRY_COMPARE(desk.running(), 1);
    desk.fake.errors.insert(QStringLiteral("Hangup"),
                            QStringLiteral("org.freedesktop.ModemManager1.Error.Core.Retry: later"));
    QCOMPARE(desk.modem->hangUp(one), int(Success));
    QTRY_COMPARE(desk.refused, QStringList{QStringLiteral("The call cannot be ended: later.")});
    QVERIFY(desk.fake.asked.count(QStringLiteral("Hangup 1")) > 1);
}

void TestModem::aCallThatWasNotMadeIsNotBegun()
{
    Desk desk;
    desk.openAndSettle();
    desk.fake.answers[QStringLiteral("CreateCall")] = QStringLiteral("done");
    QCOMPARE(desk.modem->dial(QStringLiteral("5550123")), int(Success));
    QTRY_VERIFY(desk.fake.asked.contains(QStringLiteral("CreateCall")));
    desk.settle();
    QVERIFY(desk.fake.asked.filter(QStringLiteral("Start")).isEmpty());
    QCOMPARE(desk.refused.size(), 1); // nothing is dialed, and nobody else would say so
}

void TestModem::anAnswerThatTheBusGaveUpIsAskedForAgain_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("error");
    for (const char *method : {"GetManagedObjects", "ListCalls", "GetAll"})
        for (const char *error : {"NoReply", "Timeout", "TimedOut"})
            QTest::addRow("%s, %s", method, error)
                << QString::fromLatin1(method)
                << QStringLiteral("org.freedesktop.DBus.Error.%1: too late").arg(QLatin1String(error));
}

void TestModem::anAnswerThatTheBusGaveUpIsAskedForAgain()
{
    QFETCH(QString, method);
    QFETCH(QString, error);
    Desk desk;
    desk.fake.errors[method] = error;
    desk.fake.errorsLeft[method] = 1;
    desk.fake.addCall(one, Incoming, Active, QStringLiteral("1"), false);
    desk.open();
    QTRY_COMPARE(desk.running(), 1);
    QCOMPARE(desk.fake.asked.count(method), 2);
}

KAV_TEST_GROUP(TestModem, QCoreApplication);
#include "tst_modem.moc"
