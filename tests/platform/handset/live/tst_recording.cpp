// What a daemon reports, as the ledger has it afterwards.
#include "handset/OtherProcess.h"
#include "handset/live/LiveDesk.h"
#include "handset/live/ScriptedModem.h"
#include "support/FullDisk.h"
#include "support/TestGroup.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

using namespace handset;
using namespace handset::test;
using live::Bytes;
using live::ReportedCall;
using live::ReportedSession;

namespace {

/// A live handset over a scripted modem.
class Desk : public LiveDesk
{
public:
    explicit Desk(std::shared_ptr<ManualClock> shared = nullptr)
        : LiveDesk(std::move(shared))
    {
        open();
    }

    void open()
    {
        auto scripted = std::make_unique<ScriptedModem>();
        modem = scripted.get();
        LiveDesk::open(std::move(scripted));
    }
    void call(const QString &id, CallPhase phase, const QString &number = QStringLiteral("5550123"))
    {
        emit modem->callReported({id, phase, {}, number, {}, false});
    }
    void session(const QString &id, std::optional<Bytes> counted = {}, const QString &interface = {})
    {
        emit modem->sessionReported({id, "internet", interface, counted, {}, {}, false});
    }

    ScriptedModem *modem = nullptr;
};

/// A desk beside another process that records the same call, which is connected now; or has been for two minutes when the
/// desk comes, with a session, and is found by it.
class Beside : public Desk
{
public:
    enum class Comes { Before, Later };

    explicit Beside(Comes comes = Comes::Before)
    {
        close();
        recorder = std::make_unique<OtherProcess>(state.path());
        isReady = recorder->firstLine() == "holding" &&
                  recorder->ask("wall " + QByteArray::number(clock->wallMs())) == "0";
        if (comes == Comes::Later) {
            isReady = isReady && recorder->ask("dial 5550123") == "0" && recorder->ask("connect") == "0" &&
                      recorder->ask("start-session") == "0" && passBoth(2 * minute);
            open();
            return;
        }
        open();
        isReady = isReady && !phone->isRecording() && recorder->ask("dial 5550123") == "0" &&
                  recorder->ask("connect") == "0";
        call(QStringLiteral("/call/1"), CallPhase::Dialing);
        call(QStringLiteral("/call/1"), CallPhase::Active);
    }
    /// On both clocks.
    bool passBoth(qint64 ms) const
    {
        clock->advance(ms);
        return recorder->ask("advance " + QByteArray::number(ms)) == "0" && recorder->ask("checkpoint") == "0";
    }

    std::unique_ptr<OtherProcess> recorder;
    bool isReady = false;
};

const QString one = QStringLiteral("/call/1");
const QString two = QStringLiteral("/call/2");

} // namespace

class TestRecording : public QObject
{
    Q_OBJECT

private slots:
    void theLineShowsAndAsksForWhatTheDaemonHas();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aBusThatIsSilentAtTheStartIsWaitedFor();
    void aBusThatIsNotThereAtTheStartIsNotWaitedFor();

    void aDialedCallCountsFromItsConnection();
    void anAnsweredCallIsTheOtherSides();
    void aCallThatIsNotTakenIsLoggedWithoutTime_data();
    void aCallThatIsNotTakenIsLoggedWithoutTime();
    void aHeldCallGoesOnCounting();
    void twoCallsAtOnceAreTwoRows();
    void aCallThatVanishesIsOver();
    void allCallsAreOverWhenTheModemIsLost();
    void anEndIsWrittenBeforeTheNextIsRead();
    void aCallThatIsReportedOverAndNeverBeganIsNone();
    void aCallThatWasFoundCountsFromItsStart();
    void aCallThatWasFoundWithoutAStartIsMarkedLate();
    void aCallGoesOnUnderTheNextRecorderWithoutCountingTwice();
    void aCallThatIsFoundBesideItsRecorderIsCountedOnce_data();
    void aCallThatIsFoundBesideItsRecorderIsCountedOnce();
    void whoTakesTheRecordingOverTellsAndWritesOnTime();
    void aWallClockThatIsSetChangesNoDuration();
    void aCallThatCannotBeBegunIsWrittenLater();
    void aCallThatEndsBeforeItCouldBeWrittenIsNotLost();
    void aCallThatEndsBeforeAnyTickAfterItsRecorderDiedIsCountedOnce();
    void aCallThatItsRecorderEndedBeforeItWentIsNotCountedAgain();
    void aCallThatEndsOnAFullDiskAfterItsRecorderDiedIsCountedOnce();
    void theNextCallToTheSameNumberIsCountedWhole();
    void whatCannotBeWrittenIsToldOnceHoweverOftenItIsTried();
    void bytesAreThoseOfTheDaemon();
    void bytesAreThoseOfTheInterface();
    void aCounterThatBeginsAnewAddsAndNeverSubtracts();
    void anInterfaceThatGoesAndComesBackAddsWhatItHasThen();
    void anotherInterfaceDoesNotBringItsOldBytes();
    void aSessionThatLosesItsInterfaceKeepsWhatThatHadCounted();
    void aSessionGoesOnUnderTheNextRecorderWithoutCountingTwice();
    void aSessionThatIsFoundBesideItsRecorderIsCountedOnce_data();
    void aSessionThatIsFoundBesideItsRecorderIsCountedOnce();
    void twoSessionsAtOnceCountTheirOwn();
    void aSessionThatEndsBeforeItCouldBeWrittenIsNotLost();
    void theBytesOfASessionThatEndsOnAFullDiskAreKept();
    void aSessionThatEndsBeforeAnyTickAfterItsRecorderWentIsKept();
    void aRunningCallIsWrittenOnTimeByATickThatIsEarly();
    void aCallThatIsWrittenAtLastIsAnnounced();
    void onlyTheRecorderTellsOfSessions();
    void whoDoesNotRecordSaysWhoDoes();
    void aCallOfADeadRecorderIsWrittenWhenTheLogCanBeRead();
    void aSessionOfADeadRecorderIsWrittenWhenTheLogCanBeRead();
    void aSessionThatItsRecorderHasCountedWholeGetsNoRow();
    void aCallThatEndsUnansweredAfterItsRecorderDiedIsLogged();
    void aSessionThatIsCountedByAnotherThanBeforeBeginsThere();
    void bytesThatCannotBeWrittenAreWrittenLater();
    void severalThatCouldNotBeWrittenAreWrittenTogether();
    void aCounterThatIsNoneCountsNothing_data();
    void aCounterThatIsNoneCountsNothing();
    void theReportListsSessionsInTheirOrder();
    void whatIsGoneOrUnknownChangesNothing();
    void aLogThatCannotBeOpenedIsAnErrorAndNoTelephone();
    void aBigLogIsReadThroughBesideItsUse();
    void whatAReaderChangesIsAnnounced();
    void nothingWakesUpWhileNothingRuns();
    void whatTheModemDoesNotHaveIsNotAvailable();
    void theOwnTariffChargesCallsAndEndsNone();
};

void TestRecording::aDialedCallCountsFromItsConnection()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    desk.pass(3 * second);
    desk.call(one, CallPhase::Alerting);
    desk.pass(4 * second);
    QCOMPARE(desk.all(), 0u);
    desk.call(one, CallPhase::Active);
    desk.pass(65 * second);
    QCOMPARE(desk.dialed(), 65u);
    desk.call(one, CallPhase::Over);
    desk.pass(hour);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:65000:1"));
}

void TestRecording::anAnsweredCallIsTheOtherSides()
{
    Desk desk;
    desk.call(one, CallPhase::Incoming, {});
    desk.call(one, CallPhase::Incoming); // the number comes later
    desk.call(one, CallPhase::Active, {});
    desk.pass(second);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("1:5550123:1000:1"));
}

void TestRecording::aCallThatIsNotTakenIsLoggedWithoutTime_data()
{
    QTest::addColumn<CallPhase>("phase");
    QTest::addColumn<QString>("row");
    QTest::newRow("dialed, busy") << CallPhase::Dialing << QStringLiteral("0:5550123:0:2");
    QTest::newRow("dialed, not answered") << CallPhase::Alerting << QStringLiteral("0:5550123:0:2");
    QTest::newRow("missed") << CallPhase::Incoming << QStringLiteral("1:5550123:0:2");
    QTest::newRow("waiting, refused") << CallPhase::Waiting << QStringLiteral("1:5550123:0:2");
}

void TestRecording::aCallThatIsNotTakenIsLoggedWithoutTime()
{
    QFETCH(CallPhase, phase);
    QFETCH(QString, row);
    Desk desk;
    desk.call(one, phase);
    desk.pass(10 * second);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), row);
}

void TestRecording::aHeldCallGoesOnCounting()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    desk.call(one, CallPhase::Active);
    desk.pass(second);
    desk.call(one, CallPhase::Held);
    desk.pass(second);
    desk.call(one, CallPhase::Active);
    desk.pass(second);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:3000:1"));
}

void TestRecording::twoCallsAtOnceAreTwoRows()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing, QStringLiteral("1"));
    desk.call(one, CallPhase::Active, QStringLiteral("1"));
    desk.pass(10 * second);
    desk.call(two, CallPhase::Waiting, QStringLiteral("2"));
    desk.pass(second);
    desk.call(one, CallPhase::Held, QStringLiteral("1"));
    desk.call(two, CallPhase::Active, QStringLiteral("2"));
    desk.pass(5 * second);
    QCOMPARE(desk.dialed(), 16u);
    QCOMPARE(desk.answered(), 5u);
    QCOMPARE(desk.last(), 5u);
    QCOMPARE(desk.all(), 21u);
    desk.call(two, CallPhase::Over);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:1:16000:1 1:2:5000:1"));
}

void TestRecording::aCallThatVanishesIsOver()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    desk.call(one, CallPhase::Active);
    desk.pass(second);
    emit desk.modem->callGone(one);
    desk.pass(second);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:1000:1"));
    emit desk.modem->callGone(one); // and once more is nothing
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:1000:1"));
}

void TestRecording::allCallsAreOverWhenTheModemIsLost()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing, QStringLiteral("1"));
    desk.call(one, CallPhase::Active, QStringLiteral("1"));
    desk.call(two, CallPhase::Waiting, QStringLiteral("2"));
    desk.session(QStringLiteral("/s"));
    desk.pass(second);
    emit desk.modem->lost();
    desk.pass(second);
    QCOMPARE(
        desk.rows(QStringLiteral("number || ':' || duration_ms || ':' || state")).split(QLatin1Char(' ')).size(),
        2);
    QVERIFY(desk.calls().contains(QStringLiteral("0:1:1000:1")));
    QVERIFY(desk.calls().contains(QStringLiteral("1:2:0:2")));
    QCOMPARE(desk.sessions(), QStringLiteral("internet:1000:0:0:1"));
}

void TestRecording::anEndIsWrittenBeforeTheNextIsRead()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    desk.call(one, CallPhase::Active);
    desk.clock->advance(1234);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:1234:1")); // in the file, without any tick
}

void TestRecording::aCallThatIsReportedOverAndNeverBeganIsNone()
{
    Desk desk;
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QString());
}

void TestRecording::aCallThatWasFoundCountsFromItsStart()
{
    Desk desk;
    emit desk.modem->callReported({one, CallPhase::Active, CallDirection::Answered, QStringLiteral("7"),
                                   desk.clock->wallMs() - 90 * second, true});
    desk.pass(10 * second);
    QCOMPARE(desk.answered(), 100u);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("1:7:100000:1"));
    QCOMPARE(desk.rows(QStringLiteral("late")), QStringLiteral("0"));
}

void TestRecording::aCallThatWasFoundWithoutAStartIsMarkedLate()
{
    Desk desk;
    emit desk.modem->callReported(
        {one, CallPhase::Active, CallDirection::Dialed, QStringLiteral("7"), std::nullopt, true});
    desk.pass(10 * second);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:7:10000:1"));
    QCOMPARE(desk.rows(QStringLiteral("late")), QStringLiteral("1"));
}

void TestRecording::aCallGoesOnUnderTheNextRecorderWithoutCountingTwice()
{
    Desk desk;
    const qint64 connected = desk.clock->wallMs() + 2 * second;
    desk.call(one, CallPhase::Dialing);
    desk.pass(2 * second);
    desk.call(one, CallPhase::Active);
    desk.pass(20 * second);
    desk.open(); // another recorder, a moment later
    desk.clock->advance(3 * second);
    emit desk.modem->callReported(
        {one, CallPhase::Active, CallDirection::Dialed, QStringLiteral("5550123"), connected, true});
    desk.pass(5 * second);
    QCOMPARE(desk.dialed(), 28u);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:20000:3 0:5550123:8000:1"));
}

void TestRecording::aCallThatIsFoundBesideItsRecorderIsCountedOnce_data()
{
    QTest::addColumn<bool>("endsAtOnce");
    QTest::addColumn<QString>("calls");
    // The other one has ended its call as interrupted.
    QTest::newRow("it goes on") << false << QStringLiteral("0:5550123:150000:3 0:5550123:10000:1");
    QTest::newRow("it ends before anybody has noticed") << true << QStringLiteral("0:5550123:150000:3");
}

// Nobody knows when it began, and so which rows of the other's are its own.
void TestRecording::aCallThatIsFoundBesideItsRecorderIsCountedOnce()
{
    QFETCH(bool, endsAtOnce);
    Beside desk(Beside::Comes::Later);
    QVERIFY(desk.isReady);
    emit desk.modem->callReported(
        {one, CallPhase::Active, CallDirection::Dialed, QStringLiteral("5550123"), {}, true});
    QVERIFY(desk.passBoth(30 * second));
    desk.tick();
    desk.recorder->kill();
    if (!endsAtOnce) {
        desk.tick();
        desk.pass(10 * second);
    }
    QCOMPARE(desk.phone->calls().connectedMs(one), (endsAtOnce ? 30 : 40) * second);
    desk.call(one, CallPhase::Over);
    desk.tick();
    QTEST(desk.calls(), "calls");
}

void TestRecording::whoTakesTheRecordingOverTellsAndWritesOnTime()
{
    Beside desk;
    QVERIFY(desk.isReady);
    int told = 0;
    desk.phone->setChangeListener([&] { ++told; });
    const auto interval = [&] { return desk.phone->findChild<QTimer *>()->interval(); };
    QVERIFY(desk.passBoth(10 * second));
    desk.tick();
    QVERIFY(!desk.phone->isRecording());
    QCOMPARE(interval(), live::LiveHandset::shownIntervalMs);
    desk.recorder->kill();
    desk.tick();
    QVERIFY(desk.phone->isRecording());
    QVERIFY(desk.phone->lineControl()->report().isRecorder);
    QCOMPARE(told, 1);
    QCOMPARE(interval(), calllog::Ledger::checkpointIntervalMs); // nobody looks
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:10000:3 0:5550123:0:0"));
    desk.pass(calllog::Ledger::checkpointIntervalMs);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:10000:3 0:5550123:4000:0"));
    desk.phone->setChangeListener({});
}

void TestRecording::aWallClockThatIsSetChangesNoDuration()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    desk.call(one, CallPhase::Active);
    desk.pass(second);
    desk.clock->setWallMs(desk.clock->wallMs() + 24 * hour);
    desk.pass(second);
    desk.clock->setWallMs(desk.clock->wallMs() - 48 * hour);
    desk.pass(second);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:3000:1"));
}

void TestRecording::aCallThatCannotBeBegunIsWrittenLater()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.call(one, CallPhase::Active);
        desk.clock->advance(4 * second);
    }
    desk.pass(6 * second);
    QCOMPARE(desk.dialed(), 10u);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:10000:1"));
}

void TestRecording::aCallThatEndsBeforeItCouldBeWrittenIsNotLost()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.call(one, CallPhase::Active);
        desk.clock->advance(4 * second);
        desk.call(one, CallPhase::Over);
        QVERIFY(desk.phone->owesRecord());
    }
    desk.pass(6 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:4000:1"));
    QCOMPARE(desk.dialed(), 4u);
}

void TestRecording::aCallThatEndsBeforeAnyTickAfterItsRecorderDiedIsCountedOnce()
{
    Beside desk;
    QVERIFY(desk.isReady);
    QVERIFY(desk.passBoth(20 * second));
    desk.clock->advance(3 * second);
    desk.recorder->kill();
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:20000:3 0:5550123:3000:1"));
    QCOMPARE(desk.dialed(), 23u);
}

void TestRecording::aCallThatItsRecorderEndedBeforeItWentIsNotCountedAgain()
{
    Beside desk;
    QVERIFY(desk.isReady);
    QVERIFY(desk.passBoth(20 * second));
    QCOMPARE(desk.recorder->ask("hang-up"), QByteArray("0"));
    desk.recorder->close();
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.dialed(), 20u);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:20000:1"));
}

void TestRecording::aCallThatEndsOnAFullDiskAfterItsRecorderDiedIsCountedOnce()
{
    Beside desk;
    QVERIFY(desk.isReady);
    QVERIFY(desk.passBoth(20 * second));
    desk.clock->advance(3 * second);
    desk.recorder->kill();
    {
        const support::FullDisk full(0);
        desk.call(one, CallPhase::Over);
        QVERIFY(desk.phone->owesRecord());
    }
    desk.pass(5 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:20000:3 0:5550123:3000:1"));
    QCOMPARE(desk.dialed(), 23u);
}

void TestRecording::theNextCallToTheSameNumberIsCountedWhole()
{
    Beside desk;
    QVERIFY(desk.isReady);
    QVERIFY(desk.passBoth(20 * second));
    QCOMPARE(desk.recorder->ask("hang-up"), QByteArray("0"));
    desk.call(one, CallPhase::Over);
    QVERIFY(desk.passBoth(3 * second));
    QCOMPARE(desk.recorder->ask("dial 5550123"), QByteArray("0"));
    QCOMPARE(desk.recorder->ask("connect"), QByteArray("0"));
    desk.call(two, CallPhase::Dialing);
    desk.call(two, CallPhase::Active);
    desk.clock->advance(7 * second);
    desk.recorder->kill();
    desk.call(two, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:20000:1 0:5550123:0:3 0:5550123:7000:1"));
    QCOMPARE(desk.dialed(), 27u);
}

void TestRecording::whatCannotBeWrittenIsToldOnceHoweverOftenItIsTried()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.call(one, CallPhase::Active);
        desk.pass(6 * second);
        desk.pass(6 * second);
        desk.call(one, CallPhase::Over);
        desk.pass(6 * second);
        desk.pass(6 * second);
        QVERIFY(desk.phone->owesRecord());
    }
    QTest::ignoreMessage(QtInfoMsg, "What could not be written to the call log has been written.");
    desk.pass(6 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:12000:1"));
}

void TestRecording::bytesAreThoseOfTheDaemon()
{
    Desk desk;
    const QString id = QStringLiteral("/bearer/1");
    desk.setInterface(QStringLiteral("wwan0"), 1'000'000, 1'000'000);
    desk.session(id, Bytes{0, 0}, QStringLiteral("wwan0"));
    desk.pass(10 * second);
    desk.session(id, Bytes{1000, 5'000'000'000}, QStringLiteral("wwan0"));
    desk.pass(10 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:20000:1000:5000000000:0"));
    desk.session(id, Bytes{1001, 5'000'000'002}, QStringLiteral("wwan0"));
    emit desk.modem->sessionGone(id);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:20000:1001:5000000002:1"));
}

void TestRecording::bytesAreThoseOfTheInterface()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 100, 200);
    desk.session(QStringLiteral("/b"), {}, QStringLiteral("wwan0"));
    desk.setInterface(QStringLiteral("wwan0"), 107, 5'000'000'200);
    desk.pass(10 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:10000:7:5000000000:0"));
    desk.setInterface(QStringLiteral("wwan0"), 110, 5'000'000'300);
    emit desk.modem->sessionGone(QStringLiteral("/b"));
    QCOMPARE(desk.sessions(), QStringLiteral("internet:10000:10:5000000100:1"));
}

void TestRecording::aCounterThatBeginsAnewAddsAndNeverSubtracts()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 0, 0);
    desk.session(QStringLiteral("/b"), {}, QStringLiteral("wwan0"));
    desk.setInterface(QStringLiteral("wwan0"), 1000, 2000);
    desk.pass(10 * second);
    desk.setInterface(QStringLiteral("wwan0"), 3, 4);
    desk.pass(10 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:20000:1003:2004:0"));
}

void TestRecording::anInterfaceThatGoesAndComesBackAddsWhatItHasThen()
{
    Desk desk;
    desk.session(QStringLiteral("/b"), {}, QStringLiteral("ppp0")); // made with the connection
    desk.pass(10 * second);
    desk.setInterface(QStringLiteral("ppp0"), 10, 20);
    desk.pass(10 * second);
    QVERIFY(QDir(desk.interfaces.filePath(QStringLiteral("ppp0"))).removeRecursively());
    desk.pass(10 * second);
    desk.setInterface(QStringLiteral("ppp0"), 1, 2);
    desk.pass(10 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:40000:11:22:0"));
}

void TestRecording::anotherInterfaceDoesNotBringItsOldBytes()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 0, 0);
    desk.setInterface(QStringLiteral("wwan1"), 5000, 5000);
    desk.session(QStringLiteral("/b"), {}, QStringLiteral("wwan0"));
    desk.setInterface(QStringLiteral("wwan0"), 10, 20);
    desk.pass(10 * second);
    desk.session(QStringLiteral("/b"), {}, QStringLiteral("wwan1"));
    desk.setInterface(QStringLiteral("wwan1"), 5001, 5002);
    desk.pass(10 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:20000:11:22:0"));
}

void TestRecording::aSessionThatLosesItsInterfaceKeepsWhatThatHadCounted()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 100, 200);
    desk.session(QStringLiteral("/b"), {}, QStringLiteral("wwan0"));
    desk.setInterface(QStringLiteral("wwan0"), 107, 209);
    desk.session(QStringLiteral("/b")); // the daemon takes it away before it tells the end
    emit desk.modem->sessionGone(QStringLiteral("/b"));
    QCOMPARE(desk.sessions(), QStringLiteral("internet:0:7:9:1"));
}

void TestRecording::aSessionGoesOnUnderTheNextRecorderWithoutCountingTwice()
{
    Desk desk;
    const qint64 since = desk.clock->wallMs();
    desk.session(QStringLiteral("/b"), Bytes{0, 0});
    desk.pass(10 * second);
    desk.session(QStringLiteral("/b"), Bytes{10, 20});
    desk.pass(10 * second);
    desk.open();
    desk.clock->advance(5 * second);
    emit desk.modem->sessionReported(
        {QStringLiteral("/b"), "internet", {}, Bytes{15, 25}, 25 * second, since, true});
    desk.pass(10 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:20000:10:20:3 internet:15000:5:5:0"));
    QCOMPARE(sessionTotalsOf(*desk.phone), QStringLiteral("35 15 25 40"));
}

void TestRecording::aSessionThatIsFoundBesideItsRecorderIsCountedOnce_data()
{
    QTest::addColumn<bool>("endsAtOnce");
    QTest::addColumn<QString>("sessions");
    QTest::newRow("it goes on") << false << QStringLiteral("x:150000:1500:3000:3 x:10000:100:200:1");
    QTest::newRow("it ends before anybody has noticed") << true << QStringLiteral("x:150000:1500:3000:3");
}

// As of a call. The bytes are the interface's, of which the other counts the same.
void TestRecording::aSessionThatIsFoundBesideItsRecorderIsCountedOnce()
{
    QFETCH(bool, endsAtOnce);
    Beside desk(Beside::Comes::Later);
    QVERIFY(desk.isReady);
    const QString id = QStringLiteral("/b");
    desk.setInterface(QStringLiteral("wwan0"), 1200, 2400);
    emit desk.modem->sessionReported({id, "x", QStringLiteral("wwan0"), {}, {}, {}, true});
    QVERIFY(desk.passBoth(30 * second));
    desk.setInterface(QStringLiteral("wwan0"), 1500, 3000);
    desk.tick();
    desk.recorder->kill();
    if (!endsAtOnce) {
        desk.tick();
        desk.setInterface(QStringLiteral("wwan0"), 1600, 3200);
        desk.pass(10 * second);
    }
    emit desk.modem->sessionGone(id);
    desk.tick();
    QTEST(desk.sessions(), "sessions");
}

void TestRecording::twoSessionsAtOnceCountTheirOwn()
{
    Desk desk;
    desk.session(QStringLiteral("/a"), Bytes{0, 0});
    desk.session(QStringLiteral("/b"), Bytes{0, 0});
    desk.session(QStringLiteral("/a"), Bytes{1, 2});
    desk.session(QStringLiteral("/b"), Bytes{3, 4});
    desk.pass(10 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:10000:1:2:0 internet:10000:3:4:0"));
}

void TestRecording::aSessionThatEndsBeforeItCouldBeWrittenIsNotLost()
{
    Desk desk;
    const QString id = QStringLiteral("/b");
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.session(id, Bytes{0, 0});
        desk.clock->advance(4 * second);
        desk.session(id, Bytes{10, 20});
        emit desk.modem->sessionGone(id);
        QVERIFY(desk.phone->owesRecord());
        desk.pass(6 * second);
        QVERIFY(desk.phone->owesRecord());
    }
    desk.pass(6 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.sessions(), QStringLiteral("internet:4000:10:20:1"));
    QCOMPARE(sessionTotalsOf(*desk.phone), QStringLiteral("4 10 20 30"));
}

void TestRecording::theBytesOfASessionThatEndsOnAFullDiskAreKept()
{
    Desk desk;
    const QString id = QStringLiteral("/b");
    desk.session(id, Bytes{0, 0});
    desk.session(id, Bytes{1, 2});
    desk.pass(6 * second);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.clock->advance(4 * second);
        desk.session(id, Bytes{10, 20});
        emit desk.modem->sessionGone(id);
        QVERIFY(desk.phone->owesRecord());
    }
    desk.pass(6 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.sessions(), QStringLiteral("internet:10000:10:20:1"));
    QCOMPARE(sessionTotalsOf(*desk.phone), QStringLiteral("10 10 20 30"));
}

void TestRecording::aSessionThatEndsBeforeAnyTickAfterItsRecorderWentIsKept()
{
    Beside desk;
    QVERIFY(desk.isReady);
    const QString id = QStringLiteral("/b");
    desk.session(id, Bytes{0, 0});
    desk.clock->advance(4 * second);
    desk.session(id, Bytes{10, 20});
    desk.recorder->kill();
    emit desk.modem->sessionGone(id);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:4000:10:20:1"));
}

// The timer's clock and the boot clock need not agree to the millisecond.
void TestRecording::aRunningCallIsWrittenOnTimeByATickThatIsEarly()
{
    Desk desk;
    desk.call(one, CallPhase::Dialing);
    desk.call(one, CallPhase::Active);
    desk.pass(calllog::Ledger::checkpointIntervalMs - 1);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:%1:0").arg(calllog::Ledger::checkpointIntervalMs - 1));
}

void TestRecording::aCallThatIsWrittenAtLastIsAnnounced()
{
    Desk desk;
    int told = 0;
    desk.call(one, CallPhase::Dialing);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.call(one, CallPhase::Active);
        desk.phone->setChangeListener([&] { ++told; });
        desk.pass(6 * second);
        QCOMPARE(told, 0);
    }
    desk.pass(6 * second); // begun late
    QCOMPARE(told, 1);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.call(one, CallPhase::Over);
        QCOMPARE(told, 2);
    }
    desk.pass(6 * second); // ended late
    QCOMPARE(told, 3);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:12000:1"));
}

void TestRecording::onlyTheRecorderTellsOfSessions()
{
    Beside desk;
    QVERIFY(desk.isReady);
    int told = 0;
    desk.phone->packetData()->setUpdateListener([&] { ++told; });
    desk.session(QStringLiteral("/b"), Bytes{0, 0});
    desk.pass(6 * second);
    emit desk.modem->sessionGone(QStringLiteral("/b"));
    QCOMPARE(told, 0);
    desk.session(QStringLiteral("/b"), Bytes{0, 0});
    desk.recorder->kill();
    desk.pass(6 * second);
    QVERIFY(desk.phone->isRecording());
    QVERIFY(told > 0);
}

void TestRecording::whatAReaderChangesIsAnnounced()
{
    Beside desk;
    QVERIFY(desk.isReady);
    int told = 0;
    desk.phone->setChangeListener([&] { ++told; });
    QCOMPARE(desk.phone->callLog()->resetDialedCallsTime(), int(Success));
    QCOMPARE(told, 1);
    QCOMPARE(desk.phone->charging()->topUp(QStringLiteral("2"), {2030, 1, 1}), int(Success));
    QCOMPARE(told, 2);
    desk.call(two, CallPhase::Waiting); // of calls the recorder tells
    QCOMPARE(told, 2);
    desk.recorder->kill(); // a takeover is told
    desk.pass(second);
    QCOMPARE(told, 3);
}

void TestRecording::nothingWakesUpWhileNothingRuns()
{
    Desk desk;
    const auto isAwake = [&] {
        const QList<QTimer *> timers = desk.phone->findChildren<QTimer *>();
        return std::any_of(timers.begin(), timers.end(), [](QTimer *timer) { return timer->isActive(); });
    };
    QVERIFY(!isAwake());
    desk.call(one, CallPhase::Dialing);
    desk.call(one, CallPhase::Active);
    QVERIFY(isAwake());
    desk.call(one, CallPhase::Over);
    QVERIFY(!isAwake());
    desk.session(QStringLiteral("/b"));
    QVERIFY(isAwake());
    emit desk.modem->sessionGone(QStringLiteral("/b"));
    QVERIFY(!isAwake());
}

void TestRecording::whatTheModemDoesNotHaveIsNotAvailable()
{
    Desk desk;
    QVERIFY(!desk.phone->dataCalls());
    QVERIFY(!desk.phone->simSecurity());
    QString text(QStringLiteral("kept"));
    bool enabled = true;
    quint8 rule = 9;
    AdviceOfCharge &advice = *desk.phone->adviceOfCharge();
    QCOMPARE(advice.meterMaximum(text, enabled), int(NotAvailable));
    QCOMPARE(advice.priceAndCurrency(text, text), int(NotAvailable));
    QCOMPARE(advice.updateRule(AdviceOfCharge::AcmMaxFile, rule), int(NotAvailable));
    QCOMPARE(advice.setMeterMaximum(QStringLiteral("5")), int(NotAvailable));
    QCOMPARE(advice.disableMeterMaximum(), int(NotAvailable));
    QCOMPARE(advice.setPriceAndCurrency(QStringLiteral("1"), QStringLiteral("EUR")), int(NotAvailable));
    QCOMPARE(text, QStringLiteral("kept"));
    QCOMPARE(rule, quint8(9));
    quint8 type = 9;
    QCOMPARE(advice.chargeType(type), int(Success));
    QCOMPARE(type, quint8(AdviceOfCharge::InUnits));
    QCOMPARE(advice.setChargeType(AdviceOfCharge::InCurrency), int(NotAvailable));
    QCOMPARE(advice.setChargeType(AdviceOfCharge::InUnits), int(Success));
    QCOMPARE(advice.setChargeType(7), int(InvalidArgument));
    QByteArray credit("kept");
    QCOMPARE(desk.phone->callService()->remainingCredit(credit), int(NotAvailable));
    QCOMPARE(credit, QByteArray("kept"));
}

void TestRecording::theOwnTariffChargesCallsAndEndsNone()
{
    Desk desk;
    QCOMPARE(desk.phone->charging()->topUp(QStringLiteral("2"), {2030, 1, 1}), int(Success));
    desk.call(one, CallPhase::Dialing);
    desk.call(one, CallPhase::Active);
    desk.pass(minute); // six units, of which two can be paid
    QByteArray text;
    QCOMPARE(desk.phone->callService()->lastCallCost(text), int(Success));
    QCOMPARE(text, QByteArray("6.00"));
    QCOMPARE(desk.phone->callService()->remainingCredit(text), int(Success));
    QCOMPARE(text, QByteArray("0.00"));
    desk.pass(minute);
    desk.call(one, CallPhase::Over);
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:120000:1"));
    QVERIFY(desk.modem->asked == QStringList{QStringLiteral("start")});
}

// The bus of one daemon may have been too busy to answer in time, and that of the other, which is the same, not.
void TestRecording::aBusThatIsSilentAtTheStartIsWaitedFor()
{
    auto late = std::make_unique<ScriptedModem>();
    late->busError = QStringLiteral("it does not answer");
    late->isSilent = true;
    ScriptedModem &modem = *late;
    bool isHere = false;
    const Awaited awaited = live::await(std::move(late), [&] { isHere = true; });
    QCOMPARE(awaited.error, QStringLiteral("it does not answer"));
    QVERIFY(awaited.watch);
    emit modem.stateChanged();
    QTRY_VERIFY(isHere);
}

void TestRecording::aBusThatIsNotThereAtTheStartIsNotWaitedFor()
{
    auto none = std::make_unique<ScriptedModem>();
    none->busError = QStringLiteral("nobody is there");
    const Awaited awaited = live::await(std::move(none), [] {});
    QCOMPARE(awaited.error, QStringLiteral("nobody is there"));
    QVERIFY(!awaited.watch);
}

void TestRecording::theLineShowsAndAsksForWhatTheDaemonHas()
{
    Desk desk;
    LineControl *const line = desk.phone->lineControl();
    QVERIFY(line);
    QCOMPARE(line->report().daemon, QStringLiteral("script"));
    QCOMPARE(line->report().modem, QStringLiteral("Modem"));
    QVERIFY(line->report().hasModem && line->report().isRecorder && !line->report().isChargedByModem);
    desk.call(QStringLiteral("2"), CallPhase::Active);
    desk.pass(5'000);
    desk.call(QStringLiteral("1"), CallPhase::Waiting, QStringLiteral("777"));
    const QList<LineCall> calls = line->report().calls;
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls[0].id, QStringLiteral("2")); // who is connected is the first
    QCOMPARE(calls[0].connectedMs, 5'000);
    QVERIFY(calls[1].phase == CallPhase::Waiting);
    QCOMPARE(calls[1].number, QStringLiteral("777"));
    QCOMPARE(calls[1].connectedMs, 0);

    desk.session(QStringLiteral("data"), Bytes{10, 20}, QStringLiteral("wwan0"));
    desk.session(QStringLiteral("data"), Bytes{15, 21}, QStringLiteral("wwan0"));
    desk.pass(5'000);
    const QList<LineSession> sessions = line->report().sessions;
    QCOMPARE(sessions.size(), 1);
    QCOMPARE(sessions[0].interface, QStringLiteral("wwan0"));
    QCOMPARE(sessions[0].sent, std::optional<qint64>(15));
    QCOMPARE(sessions[0].received, std::optional<qint64>(21));

    desk.modem->asked.clear();
    QCOMPARE(line->dial(QStringLiteral("5")), int(Success));
    QCOMPARE(line->answer(QStringLiteral("1")), int(Success));
    QCOMPARE(line->hangUp(QStringLiteral("2")), int(Success));
    QCOMPARE(desk.modem->asked.join(u'|'), QStringLiteral("dial 5|answer 1|hang up 2"));
    QStringList refusals;
    line->setRefusalListener([&](const QString &why) { refusals << why; });
    emit desk.modem->refused(QStringLiteral("No."));
    line->setRefusalListener({});
    emit desk.modem->refused(QStringLiteral("Never."));
    QCOMPARE(refusals, QStringList("No."));
}

void TestRecording::whoDoesNotRecordSaysWhoDoes()
{
    Beside desk;
    QVERIFY(desk.isReady);
    QVERIFY(!desk.phone->lineControl()->report().isRecorder);
    QVERIFY(desk.phone->lineControl()->report().isRecordedElsewhere);
    desk.call(one, CallPhase::Over); // nothing runs any more that would tell of it
    const QSignalSpy changed(desk.phone.get(), &live::LiveHandset::changed);
    desk.tick();
    QCOMPARE(changed.count(), 0);
    desk.recorder->kill();
    desk.tick();
    QCOMPARE(changed.count(), 1);
    QVERIFY(desk.phone->lineControl()->report().isRecorder);
    QVERIFY(!desk.phone->lineControl()->report().isRecordedElsewhere);
}

// While the table is away, as when it cannot be read.
void TestRecording::aCallOfADeadRecorderIsWrittenWhenTheLogCanBeRead()
{
    Beside desk;
    QVERIFY(desk.isReady);
    QVERIFY(desk.passBoth(20 * second));
    const LogFile log(desk.state.database());
    desk.recorder->kill();
    QVERIFY(desk.phone->isRecording());
    QVERIFY(log.run(QStringLiteral("ALTER TABLE calls RENAME TO away")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed: no such table")));
    desk.clock->advance(2 * second);
    desk.call(two, CallPhase::Incoming);
    desk.call(one, CallPhase::Over);
    QVERIFY(desk.phone->owesRecord());
    desk.pass(5 * second);
    QVERIFY(desk.phone->owesRecord());
    QVERIFY(log.run(QStringLiteral("ALTER TABLE away RENAME TO calls")));
    desk.pass(5 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:20000:3 0:5550123:2000:1"));
}

void TestRecording::aSessionOfADeadRecorderIsWrittenWhenTheLogCanBeRead()
{
    Beside desk(Beside::Comes::Later);
    QVERIFY(desk.isReady);
    const QString id = QStringLiteral("/b");
    emit desk.modem->sessionReported(
        {id, "x", {}, Bytes{1210, 2420}, 2 * minute, desk.clock->wallMs() - 2 * minute, true});
    const LogFile log(desk.state.database());
    desk.recorder->kill();
    QVERIFY(desk.phone->isRecording());
    QVERIFY(log.run(QStringLiteral("ALTER TABLE sessions RENAME TO away")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed: no such table")));
    desk.clock->advance(second);
    emit desk.modem->sessionGone(id);
    QVERIFY(desk.phone->owesRecord());
    QVERIFY(log.run(QStringLiteral("ALTER TABLE away RENAME TO sessions")));
    desk.pass(5 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.sessions(), QStringLiteral("x:120000:1200:2400:3 x:1000:10:20:1"));
}

void TestRecording::aSessionThatItsRecorderHasCountedWholeGetsNoRow()
{
    Beside desk(Beside::Comes::Later);
    QVERIFY(desk.isReady);
    const QString before = desk.sessions();
    const QString id = QStringLiteral("/b");
    emit desk.modem->sessionReported(
        {id, "x", {}, Bytes{0, 0}, 2 * minute, desk.clock->wallMs() - 2 * minute, true});
    desk.recorder->kill();
    emit desk.modem->sessionGone(id);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.sessions().count(QLatin1Char(' ')), before.count(QLatin1Char(' ')));
}

void TestRecording::aCallThatEndsUnansweredAfterItsRecorderDiedIsLogged()
{
    Beside desk;
    QVERIFY(desk.isReady);
    desk.call(two, CallPhase::Incoming, QStringLiteral("42"));
    desk.recorder->kill();
    {
        const support::FullDisk full(0);
        desk.call(two, CallPhase::Over, {});
        desk.tick();
        QVERIFY(desk.phone->owesRecord());
    }
    desk.pass(5 * second);
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.calls(), QStringLiteral("0:5550123:0:3 1:42:0:2 0:5550123:5000:0"));
}

void TestRecording::aSessionThatIsCountedByAnotherThanBeforeBeginsThere()
{
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 100, 200);
    const auto report = [&](std::optional<Bytes> counted) {
        desk.session(QStringLiteral("/b"), counted, QStringLiteral("wwan0"));
    };
    report(Bytes{10, 20}); // by the daemon
    report({});            // by the interface, which shows what has gone before
    desk.setInterface(QStringLiteral("wwan0"), 101, 202);
    desk.pass(5 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:5000:11:22:0"));
}

void TestRecording::bytesThatCannotBeWrittenAreWrittenLater()
{
    Desk desk;
    const QString id = QStringLiteral("/b");
    desk.session(id, Bytes{0, 0});
    desk.session(id, Bytes{0, 5}); // one way alone
    desk.pass(5 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:5000:0:5:0"));
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        desk.session(id, Bytes{7, 5});
        desk.pass(5 * second);
    }
    QCOMPARE(desk.sessions(), QStringLiteral("internet:5000:0:5:0"));
    desk.pass(5 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:15000:7:5:0"));
}

void TestRecording::severalThatCouldNotBeWrittenAreWrittenTogether()
{
    Desk desk;
    int told = 0;
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call log failed")));
        for (const QString &id : {one, two}) {
            desk.call(id, CallPhase::Incoming);
            desk.call(id, CallPhase::Active);
        }
        desk.session(QStringLiteral("/a"), Bytes{0, 0});
        desk.session(QStringLiteral("/b"), Bytes{0, 0});
        const auto sessions = desk.phone->lineControl()->report().sessions;
        QCOMPARE(sessions.size(), 2);
        QVERIFY(!sessions.constFirst().sent && !sessions.constFirst().received); // as nothing is recorded of it
    }
    QObject::connect(desk.phone.get(), &live::LiveHandset::changed, [&told] { ++told; });
    desk.pass(5 * second);
    QVERIFY(told > 0);
    QCOMPARE(desk.calls(), QStringLiteral("1:5550123:5000:0 1:5550123:5000:0"));
    QCOMPARE(desk.sessions(), QStringLiteral("internet:5000:0:0:0 internet:5000:0:0:0"));
    desk.session(QStringLiteral("/a"), Bytes{1, 1});
    desk.session(QStringLiteral("/b"), Bytes{1, 1});
    desk.pass(5 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:10000:1:1:0 internet:10000:1:1:0"));
}

void TestRecording::aCounterThatIsNoneCountsNothing_data()
{
    QTest::addColumn<QString>("interface");
    QTest::newRow("one that says a word") << "word";
    QTest::newRow("one way alone") << "half";
    QTest::newRow("a name that leads up") << "../wwan0";
    QTest::newRow("a name that leads to the folder itself") << ".";
    QTest::newRow("a name of two folders") << "wwan0/x";
}

void TestRecording::aCounterThatIsNoneCountsNothing()
{
    QFETCH(QString, interface);
    Desk desk;
    desk.setInterface(QStringLiteral("wwan0"), 1, 1);
    for (const char *name : {"word", "half"})
        desk.setInterface(QLatin1String(name), 1, 1);
    QVERIFY(writeFile(desk.interfaces.filePath("word/statistics/tx_bytes"), "many\n"));
    QVERIFY(QFile::remove(desk.interfaces.filePath("half/statistics/rx_bytes")));
    desk.session(QStringLiteral("/b"), {}, interface);
    desk.pass(5 * second);
    QCOMPARE(desk.sessions(), QStringLiteral("internet:5000:0:0:0"));
}

void TestRecording::theReportListsSessionsInTheirOrder()
{
    Desk desk;
    const auto report = [&](const char *id, const char *apn, const char *interface) {
        emit desk.modem->sessionReported(
            {QString::fromLatin1(id), apn, QString::fromLatin1(interface), Bytes{1, 2}, {}, {}, false});
    };
    report("/c", "b", "wwan1");
    report("/a", "b", "wwan0");
    report("/b", "a", "wwan2");
    QStringList lines;
    for (const LineSession &session : desk.phone->lineControl()->report().sessions)
        lines << QStringLiteral("%1 %2 %3")
                     .arg(QString::fromLatin1(session.apn), session.interface)
                     .arg(session.sent.value_or(-1));
    QCOMPARE(lines, QStringList({"a wwan2 1", "b wwan0 1", "b wwan1 1"}));
}

void TestRecording::whatIsGoneOrUnknownChangesNothing()
{
    Desk desk;
    emit desk.modem->sessionGone(QStringLiteral("/nothing"));
    emit desk.modem->callGone(QStringLiteral("/nothing"));
    QVERIFY(!desk.phone->calls().connectedMs(QStringLiteral("/nothing")));
    QVERIFY(!desk.phone->sessions().bytesOf(QStringLiteral("/nothing")));
    QCOMPARE(desk.calls() + desk.sessions(), QString());
}

void TestRecording::aLogThatCannotBeOpenedIsAnErrorAndNoTelephone()
{
    const StateDir state;
    QVERIFY(writeFile(state.path(), "in its place"));
    Settings settings;
    settings.stateDirectory = state.path();
    settings.clock = std::make_shared<ManualClock>();
    const Opened opened = live::open(settings, std::make_unique<ScriptedModem>());
    QVERIFY(!opened.handset);
    QCOMPARE(opened.error,
             QStringLiteral("The state directory \"%1\" cannot be used: Not a directory.").arg(state.path()));
}

void TestRecording::aBigLogIsReadThroughBesideItsUse()
{
    const StateDir state;
    QList<PastCall> calls;
    for (int i = 0; i < 20'000; ++i)
        calls.append({CallKind::Voice, CallDirection::Dialed, QString::number(i), i * minute, second});
    QCOMPARE(Phone(state.path())->addHistory(calls), int(Success));
    const LogFile log(state.database());
    QVERIFY(log.run(QStringLiteral("UPDATE totals SET ms = ms + 1 WHERE counter = 'lifetime'")));
    QStringList told;
    Settings settings;
    settings.stateDirectory = state.path();
    settings.clock = std::make_shared<ManualClock>();
    settings.tell = [&told](const QString &notice) { told << notice; };
    const Opened opened = live::open(settings, std::make_unique<ScriptedModem>());
    QVERIFY2(opened.handset, qPrintable(opened.error));
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(told.constFirst().startsWith(QStringLiteral("The call log is damaged. The next start begins")));
}

KAV_TEST_GROUP(TestRecording, QCoreApplication);
#include "tst_recording.moc"
