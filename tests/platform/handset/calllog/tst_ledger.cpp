// One ledger, several processes: one records, any of them asks, resets and sets.
#include "calllog/Schema.h"
#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/HandsetTestKit.h"
#include "handset/OtherProcess.h"
#include "handset/PacketData.h"
#include "handset/SharedClock.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <memory>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace handset;
using namespace handset::test;
using calllog::CallState;
using LineState = simulated::SimulatedHandset::LineState;

namespace {

constexpr qint64 writtenEvery = 5 * second;

/// A process that records, and this one, which does not.
struct Two {
    explicit Two(const StateDir &state)
        : recorder(std::make_unique<OtherProcess>(state.path()))
        , isReady(recorder->firstLine() == "holding")
        , phone(state.path())
    {}

    /// The recorder writes as often as its timer would have it.
    void pass(qint64 ms)
    {
        for (; ms > writtenEvery; ms -= writtenEvery) {
            jump(writtenEvery);
            recorder->ask("checkpoint");
        }
        jump(ms);
    }
    /// Both clocks, which stand for one.
    void jump(qint64 ms)
    {
        recorder->ask("advance " + QByteArray::number(ms));
        phone.clock->advance(ms);
    }
    bool dial() { return recorder->ask("dial 5") == "0" && recorder->ask("connect") == "0"; }
    explicit operator bool() const { return isReady && phone && !phone->isRecording(); }

    std::unique_ptr<OtherProcess> recorder;
    bool isReady;
    Phone phone;
};

QByteArray costTextsOf(const Phone &phone)
{
    QByteArray last("?");
    QByteArray all("?");
    QByteArray credit("none");
    phone.service().lastCallCost(last);
    phone.log().allCallsCost(all);
    phone.service().remainingCredit(credit);
    return last + ' ' + all + ' ' + credit;
}

int stateOf(const StateDir &state, int id)
{
    const QString select = QStringLiteral("SELECT state FROM calls WHERE id = %1");
    return LogFile(state.database()).value(select.arg(id)).toInt();
}

/// Holds a lock of a state directory, as a process does that has it for itself.
class Lock
{
public:
    Lock(const QString &path, int mode)
        : fd(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        taken = ::flock(fd, mode | LOCK_NB) == 0;
    }
    ~Lock() { ::close(fd); }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

    bool taken;

private:
    int fd;
};

} // namespace

class TestLedger : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theRunningCallIsCountedUpToNowEverywhere();
    void theRunningSessionIsCountedUpToNowEverywhere();
    void theLineIsSeenEverywhere();
    void whoOpensWhileTheFirstUnitIsDueLeavesTheCardAlone();
    void theDataCallStatusIsSeenEverywhere();
    void aSessionIsSeenEverywhereAndStoppedByItsRecorderAlone();
    void aResetElsewhereZeroesWhatWasCountedAndTheRestCounts();
    void aResetOfTheMeterElsewhereIsOne();
    void aLowerLimitElsewhereEndsTheCall();
    void aDepositElsewhereLetsTheCallGoOn();
    void pin2IsEnteredForEveryProcess();
    void aWrongPin2CostsATryEverywhere();
    void aPinTryWritesTheCardAndNothingElse();
    void historyIsAddedElsewhere();
    void anEndThatIsWrittenElsewhereIsSeenAtOnce();

    void aCallOfWhichNothingIsWrittenGoesOnForTenSecondsElsewhere();
    void theTenSecondsBeginWithTheRecordersWriteAndNoOther();
    void anEndThatIsOwedIsNotOutlivedElsewhere();
    void whatCannotBeClosedIsNotCountedOn();
    void whoIsLeftRecordsWhenTheRecorderIsKilled();
    void whoIsLeftRecordsWhenTheRecorderIsClosed();
    void aLookTakesNothingOver();
    void theRecorderPassesOnWithoutAnybodyAsking();
    void theRecorderPassesOnAtTheFirstLookAfterItsEnd();
    void aCardIsOffWhenTheRecorderIsGone();

    void aRowOfAnotherBootCountsAsItIsWritten();
    void aRebootInTheMiddleOfACallClosesItWithWhatWasWritten();
    void aWallClockThatIsSetByADayChangesNoDuration();

    void anOlderLogIsMigratedWhileAReaderWaits_data();
    void anOlderLogIsMigratedWhileAReaderWaits();
    void whoHasAnOlderLogOpenIsNamed();
};

void TestLedger::theRunningCallIsCountedUpToNowEverywhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(12 * second);
    QCOMPARE(two.phone.figures(), (SixFigures{12, 12, 0, 0, 12, 12}));
    QCOMPARE(costTextsOf(two.phone), QByteArray("1.00 1.00 none"));
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    two.pass(9 * second);
    QCOMPARE(two.phone.figures(), (SixFigures{21, 21, 0, 0, 21, 21}));
    QCOMPARE(costTextsOf(two.phone), QByteArray("2.00 2.00 none"));
    QCOMPARE(two.recorder->ask("times"), QByteArray("21 21 0 21"));
    QCOMPARE(two.recorder->ask("costs"), QByteArray("2.00 2.00 none"));
}

void TestLedger::theRunningSessionIsCountedUpToNowEverywhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QCOMPARE(two.recorder->ask("start-session"), QByteArray("0"));
    two.pass(3500);
    QCOMPARE(two.phone.sessions(), QStringList{QStringLiteral("1 x 3 35 70")});
    QCOMPARE(two.phone.sessionTotals(), QStringLiteral("3 35 70 105"));
    QCOMPARE(two.phone.packets().resetTotalBytes(), int(Success));
    two.pass(1500);
    QCOMPARE(two.phone.sessionTotals(), QStringLiteral("5 15 30 45"));
    QCOMPARE(two.recorder->ask("sessions"), QByteArray("1 5 5 45"));
}

void TestLedger::theLineIsSeenEverywhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QCOMPARE(two.phone->lineState(), LineState::Idle);
    QVERIFY(two.phone->number().isNull());
    QVERIFY(two.dial());
    two.pass(4 * second);
    QCOMPARE(two.phone->lineState(), LineState::Connected);
    QCOMPARE(two.phone->number(), QStringLiteral("5"));
    QCOMPARE(two.phone->connectedMs(), 4 * second);
    QCOMPARE(two.phone->charging()->runningUnits(), quint64{0});
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(two.phone->lineState(), LineState::Idle);
}

void TestLedger::aResetElsewhereZeroesWhatWasCountedAndTheRestCounts()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(12 * second);
    QCOMPARE(two.phone.log().resetDialedCallsTime(), int(Success));
    QCOMPARE(two.recorder->ask("times"), QByteArray("12 0 0 12"));
    two.pass(5 * second);
    QCOMPARE(two.recorder->ask("times"), QByteArray("17 5 0 17"));
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(two.phone.figures(), (SixFigures{17, 5, 0, 0, 17, 17}));
    const LogFile file(state.database());
    QCOMPARE(file.calls().value(0).durationMs, 17 * second);
    QCOMPARE(file.calls().value(0).state, int(CallState::Finished));
}

void TestLedger::aResetOfTheMeterElsewhereIsOne()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(25 * second);
    QCOMPARE(two.phone.log().resetAll(), int(Success));
    two.pass(5 * second);
    // The tariff goes on where it was: the third unit is due at 30 s.
    QCOMPARE(two.recorder->ask("costs"), QByteArray("1.00 1.00 none"));
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(LogFile(state.database()).value(QStringLiteral("SELECT units FROM calls")), QVariant(3));
    QCOMPARE(costTextsOf(two.phone), QByteArray("1.00 1.00 none"));
}

void TestLedger::aLowerLimitElsewhereEndsTheCall()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(25 * second);
    QCOMPARE(two.phone.handset().adviceOfCharge()->setMeterMaximum(QStringLiteral("2")), int(Success));
    two.jump(hour);
    QCOMPARE(two.recorder->ask("times"), QByteArray("25 25 0 25")); // what was told is not taken back
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    QCOMPARE(two.recorder->ask("line"), QByteArray("0 0"));
    QCOMPARE(stateOf(state, 1), int(CallState::Finished));
}

void TestLedger::aDepositElsewhereLetsTheCallGoOn()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QCOMPARE(two.recorder->ask("pay 2"), QByteArray("0"));
    QVERIFY(two.dial());
    two.pass(15 * second);
    QCOMPARE(two.phone->charging()->msLeft(), 5 * second);
    QCOMPARE(two.phone->charging()->topUp(QStringLiteral("1"), {2030, 1, 1}), int(Success));
    two.pass(10 * second);
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    QCOMPARE(two.recorder->ask("line"), QByteArray("3 25000"));
    QCOMPARE(two.recorder->ask("costs"), QByteArray("2.00 2.00 1.00"));
}

void TestLedger::pin2IsEnteredForEveryProcess()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QCOMPARE(two.recorder->ask("guard"), QByteArray("0"));
    AdviceOfCharge &advice = *two.phone.handset().adviceOfCharge();
    QCOMPARE(advice.setMeterMaximum(QStringLiteral("7")), int(NotAllowed));
    bool accepted = false;
    QCOMPARE(two.phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "1234", accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(two.recorder->ask("pin-status"), QByteArray("3 3"));
    QCOMPARE(two.recorder->ask("limit 8"), QByteArray("0"));
    QCOMPARE(advice.setMeterMaximum(QStringLiteral("7")), int(Success));
    QCOMPARE(two.recorder->ask("pin 9999"), QByteArray("0 0"));
    QCOMPARE(advice.setMeterMaximum(QStringLiteral("8")), int(NotAllowed));
}

void TestLedger::aWrongPin2CostsATryEverywhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    bool accepted = true;
    SimSecurity &security = *two.phone.handset().simSecurity();
    QCOMPARE(security.verifyPin(SimSecurity::Pin2, "9999", accepted), int(Success));
    QVERIFY(!accepted);
    QCOMPARE(two.recorder->ask("pin 9998"), QByteArray("0 0"));
    int tries = 0;
    QCOMPARE(security.triesLeft(SimSecurity::Pin2, tries), int(Success));
    QCOMPARE(tries, 1);
    QCOMPARE(security.verifyPin(SimSecurity::Pin2, "9997", accepted), int(Success));
    QCOMPARE(two.recorder->ask("pin-status"), QByteArray("2 0"));
}

void TestLedger::aPinTryWritesTheCardAndNothingElse()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    phone.clock->advance(25 * second);
    const auto everythingElse = [&] {
        return LogFile(state.database())
            .value(
                QStringLiteral("SELECT group_concat(id || '/' || duration_ms || '/' || units || '/' || written_ms)"
                               " || (SELECT group_concat(ms) FROM totals)"
                               " || (SELECT group_concat(units) FROM costs)"
                               " || (SELECT group_concat(hex(content)) FROM kept WHERE name <> 'card')"
                               " FROM calls"))
            .toString();
    };
    const QString before = everythingElse();
    QVERIFY(!before.isEmpty());
    bool accepted = true;
    QCOMPARE(phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "9999", accepted), int(Success));
    QCOMPARE(everythingElse(), before);
    QCOMPARE(phone.figures().last, quint64{25});
}

void TestLedger::historyIsAddedElsewhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(15 * second);
    QCOMPARE(
        two.phone->addHistory({{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 0, 40 * second}}),
        int(Success));
    two.pass(15 * second);
    QCOMPARE(two.recorder->ask("times"), QByteArray("30 70 0 70"));
    QCOMPARE(two.recorder->ask("costs"), QByteArray("3.00 7.00 none"));
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(two.phone.figures(), (SixFigures{30, 70, 0, 0, 70, 70}));
}

void TestLedger::anEndThatIsWrittenElsewhereIsSeenAtOnce()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(3 * second);
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    two.pass(hour);
    QCOMPARE(two.phone.figures(), (SixFigures{3, 3, 0, 0, 3, 3}));
}

void TestLedger::aCallOfWhichNothingIsWrittenGoesOnForTenSecondsElsewhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    QCOMPARE(two.recorder->ask("start-session"), QByteArray("0"));
    two.jump(hour);
    QCOMPARE(two.phone.figures(), (SixFigures{10, 10, 0, 0, 10, 10}));
    QCOMPARE(two.phone.sessions(), QStringList{QStringLiteral("1 x 10 100 200")});
    QCOMPARE(two.phone.log().resetDialedCallsTime(), int(Success));
    QCOMPARE(two.recorder->ask("times"), QByteArray("3600 3590 0 3600")); // who records it knows
    QCOMPARE(two.phone.packets().resetTotalBytes(), int(Success));
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(two.phone.figures(), (SixFigures{3600, 3590, 0, 0, 3600, 3600}));
    QCOMPARE(LogFile(state.database()).calls().value(0).durationMs, hour);
}

// What another process writes says nothing of whether the recorder goes on.
void TestLedger::theTenSecondsBeginWithTheRecordersWriteAndNoOther()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    QCOMPARE(two.recorder->ask("start-session"), QByteArray("0"));
    two.jump(6 * second);
    for (int edits = 0; edits < 3; ++edits) {
        QCOMPARE(two.phone.log().resetDialedCallsTime(), int(Success));
        QCOMPARE(two.phone.packets().resetTotalBytes(), int(Success));
        two.jump(6 * second);
    }
    QCOMPARE(two.phone.figures(), (SixFigures{10, 0, 0, 0, 10, 10}));
    QCOMPARE(two.phone.sessions(), QStringList{QStringLiteral("1 x 10 100 200")});
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    two.jump(hour);
    QCOMPARE(two.phone.figures(), (SixFigures{34, 24, 0, 0, 34, 34}));
    QCOMPARE(two.phone.sessions(), QStringList{QStringLiteral("1 x 34 340 680")});
}

// The recorder has ended the call and cannot write that; the other process can write again before it does.
void TestLedger::anEndThatIsOwedIsNotOutlivedElsewhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(8 * second);
    const LogFile file(state.database());
    QVERIFY(file.run(QStringLiteral("BEGIN IMMEDIATE")));
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    two.recorder->ask("advance " + QByteArray::number(4 * hour));
    two.recorder->pause(); // as it tries again every second
    QVERIFY(file.run(QStringLiteral("ROLLBACK")));
    for (int edits = 0; edits < 3; ++edits) {
        two.phone.clock->advance(hour);
        QCOMPARE(two.phone.log().resetAnsweredCallsTime(), int(Success));
    }
    two.phone.clock->advance(hour);
    QCOMPARE(two.phone.figures(), (SixFigures{15, 15, 0, 0, 15, 15}));
    two.recorder->resume();
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    QCOMPARE(file.calls().value(0).durationMs, 15 * second); // ten beyond what was written last
    QCOMPARE(two.phone.figures(), (SixFigures{15, 15, 0, 0, 15, 15}));
}

void TestLedger::whatCannotBeClosedIsNotCountedOn()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(8 * second);
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    const LogFile file(state.database());
    QVERIFY(file.run(QStringLiteral("BEGIN IMMEDIATE")));
    two.recorder->kill();
    two.phone.clock->advance(hour);
    QCOMPARE(two.phone->dial(QStringLiteral("6"), CallKind::Voice), int(StorageFailed));
    QCOMPARE(two.phone.figures(), (SixFigures{8, 8, 0, 0, 8, 8}));
    QVERIFY(file.run(QStringLiteral("ROLLBACK")));
    QCOMPARE(two.phone->dial(QStringLiteral("6"), CallKind::Voice), int(Success));
    QCOMPARE(file.calls().value(0).durationMs, 8 * second);
    QCOMPARE(file.calls().value(0).state, int(CallState::Interrupted));
}

// Nothing has been charged by then: neither the costs nor the card have it.
void TestLedger::whoOpensWhileTheFirstUnitIsDueLeavesTheCardAlone()
{
    const StateDir state;
    OtherProcess recorder(state.path());
    QCOMPARE(recorder.firstLine(), QByteArray("holding"));
    QCOMPARE(recorder.ask("dial 5"), QByteArray("0"));
    QCOMPARE(recorder.ask("connect"), QByteArray("0"));
    recorder.ask("advance 12000");
    const auto clock = std::make_shared<ManualClock>(qint64{1'800'000'000'000});
    clock->advance(12 * second);
    const Phone phone(state.path(), clock);
    QCOMPARE(phone.opened.notice, QString());
    QCOMPARE(costTextsOf(phone), QByteArray("1.00 1.00 none"));
}

void TestLedger::theDataCallStatusIsSeenEverywhere()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    const auto status = [&] {
        quint8 value = 99;
        return two.phone.data().callStatus(value) == Success ? int{value} : -1;
    };
    QCOMPARE(status(), int(DataCalls::Idle));
    QVERIFY(two.dial());
    QCOMPARE(status(), int(DataCalls::Idle)); // a voice call leaves it alone
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(two.recorder->ask("dial-data 5"), QByteArray("0"));
    QCOMPARE(two.recorder->ask("connect"), QByteArray("0"));
    QCOMPARE(status(), int(DataCalls::Connected));
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(status(), int(DataCalls::Idle));
}

void TestLedger::aSessionIsSeenEverywhereAndStoppedByItsRecorderAlone()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(!two.phone->packets().isSessionRunning());
    QCOMPARE(two.recorder->ask("start-session"), QByteArray("0"));
    QVERIFY(two.phone->packets().isSessionRunning());
    QCOMPARE(two.phone->packets().stopSession(), int(RecordedElsewhere));
    QVERIFY(two.phone->packets().isSessionRunning());
}

void TestLedger::whoIsLeftRecordsWhenTheRecorderIsKilled()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QCOMPARE(two.phone->dial(QStringLiteral("1"), CallKind::Voice), int(RecordedElsewhere));
    QCOMPARE(two.phone->ring(QStringLiteral("1")), int(RecordedElsewhere));
    QCOMPARE(two.phone->hangUp(), int(RecordedElsewhere));
    QCOMPARE(two.phone->answer(), int(RecordedElsewhere));
    QCOMPARE(two.phone->remoteAnswer(), int(RecordedElsewhere));
    QCOMPARE(two.phone->packets().stopSession(), int(RecordedElsewhere));
    QCOMPARE(two.phone->packets().startSession("x", 1, 1), int(RecordedElsewhere));
    QVERIFY(two.dial());
    two.pass(7 * second);
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    two.pass(4 * second);
    two.recorder->kill();
    QTRY_VERIFY_WITH_TIMEOUT(two.phone->isRecording(), 60'000);
    QCOMPARE(two.phone.figures(), (SixFigures{7, 7, 0, 0, 7, 7}));
    QCOMPARE(stateOf(state, 1), int(CallState::Interrupted));
    QVERIFY(two.phone.dialed(2 * second));
    QCOMPARE(two.phone.figures(), (SixFigures{2, 9, 0, 0, 9, 9}));
}

void TestLedger::whoIsLeftRecordsWhenTheRecorderIsClosed()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(7 * second);
    two.recorder->close();
    QTRY_VERIFY_WITH_TIMEOUT(two.phone->isRecording(), 60'000);
    QCOMPARE(two.phone.figures(), (SixFigures{7, 7, 0, 0, 7, 7}));
    QCOMPARE(stateOf(state, 1), int(CallState::Finished));
}

// Who draws a panel asks for ten things; a takeover waits for a busy log.
void TestLedger::aLookTakesNothingOver()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    const auto isLeft = [&] { return Lock(state.file(QStringLiteral("recorder")), LOCK_EX).taken; };
    QVERIFY(!isLeft());
    two.recorder->kill();
    QVERIFY(isLeft());
    QVERIFY(!two.phone->isRecording());
    QVERIFY(isLeft());
    QCOMPARE(two.phone->lineState(), simulated::SimulatedHandset::LineState::Connected);
    QCOMPARE(two.phone->callKind(), CallKind::Voice);
    QCOMPARE(two.phone->number(), QStringLiteral("5"));
    QVERIFY(isLeft());
    two.phone->changedElsewhere();
    QVERIFY(isLeft());
    QCOMPARE(two.phone->packets().stopSession(), int(RecordedElsewhere));
    QCOMPARE(two.phone->hangUp(), int(RecordedElsewhere));
    QCOMPARE(two.phone->answer(), int(RecordedElsewhere));
    QVERIFY(isLeft());
    QTRY_VERIFY_WITH_TIMEOUT(two.phone->isRecording(), 60'000);
    QVERIFY(!isLeft());
}

void TestLedger::theRecorderPassesOnWithoutAnybodyAsking()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    auto *const timer = two.phone->findChild<QTimer *>();
    QVERIFY(timer->isActive());
    QVERIFY(timer->interval() <= 500);
    QSignalSpy spy(two.phone.operator->(), &simulated::SimulatedHandset::changed);
    two.recorder->kill();
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 60'000);
    QVERIFY(!timer->isActive());
    QCOMPARE(stateOf(state, 1), int(CallState::Interrupted));
    QVERIFY(two.phone.dial());
    QCOMPARE(timer->interval(), 1000);
}

// How often it looks, and that one look is enough, is what the time of the change comes to on a machine that is not busy.
void TestLedger::theRecorderPassesOnAtTheFirstLookAfterItsEnd()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    auto *const timer = two.phone->findChild<QTimer *>();
    QVERIFY(timer->isActive() && timer->interval() <= 500);
    QSignalSpy spy(two.phone.operator->(), &simulated::SimulatedHandset::changed);
    const auto look = [timer] { return QMetaObject::invokeMethod(timer, "timeout"); };
    QVERIFY(look());
    QCOMPARE(spy.count(), 0);
    two.recorder->kill();
    QVERIFY(look()); // with no event loop in between
    QCOMPARE(spy.count(), 1);
    QCOMPARE(two.phone->dial(QStringLiteral("1"), CallKind::Voice), int(Success));
}

void TestLedger::aCardIsOffWhenTheRecorderIsGone()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    bool accepted = false;
    SimSecurity &security = *two.phone.handset().simSecurity();
    QCOMPARE(security.verifyPin(SimSecurity::Pin2, "1234", accepted), int(Success));
    two.recorder->kill();
    QTRY_VERIFY_WITH_TIMEOUT(two.phone->isRecording(), 60'000);
    quint32 status = 0;
    QCOMPARE(security.pinStatus(SimSecurity::Pin2, status), int(Success));
    QCOMPARE(status, quint32{SimSecurity::EntryNeeded});
}

void TestLedger::aRowOfAnotherBootCountsAsItIsWritten()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    two.pass(7 * second);
    QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    two.phone.clock->reboot(hour); // as in a container with a clock of its own
    QCOMPARE(two.phone.figures(), (SixFigures{7, 7, 0, 0, 7, 7}));
    QCOMPARE(two.phone.service().resetCallTime(), int(Success));
    QCOMPARE(two.recorder->ask("advance 3000"), QByteArray("0"));
    QCOMPARE(two.recorder->ask("times"), QByteArray("10 10 0 10"));
}

void TestLedger::aRebootInTheMiddleOfACallClosesItWithWhatWasWritten()
{
    const StateDir state;
    const auto clock = std::make_shared<ManualClock>(0);
    const QString copy = state.sibling(QStringLiteral("off"));
    clock->advance(hour);
    {
        Phone phone(state.path(), clock);
        QVERIFY(phone.dial());
        QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
        clock->advance(5 * second);
        QCOMPARE(phone->checkpoint(), int(Success));
        clock->advance(3 * second);
        QVERIFY(copyState(state.path(), copy)); // as it is when the power goes
    }
    for (const qint64 sinceBoot : {qint64{0}, 10 * hour}) {
        clock->reboot(sinceBoot);
        const Phone phone(copy, clock);
        QCOMPARE(phone.figures(), (SixFigures{5, 5, 0, 0, 5, 5}));
        QCOMPARE(phone.sessionTotals(), QStringLiteral("5 5 5 10"));
        QCOMPARE(LogFile(copy + QStringLiteral("/calllog.db")).value(QStringLiteral("SELECT state FROM calls")),
                 QVariant(int(CallState::Interrupted)));
    }
}

void TestLedger::aWallClockThatIsSetByADayChangesNoDuration()
{
    const StateDir state;
    Two two(state);
    QVERIFY(two);
    QVERIFY(two.dial());
    for (const qint64 day : {24 * hour, -24 * hour}) {
        two.pass(2 * second);
        QCOMPARE(two.recorder->ask("wall " + QByteArray::number(day)), QByteArray("0"));
        two.phone.clock->setWallMs(-day);
        QCOMPARE(two.recorder->ask("checkpoint"), QByteArray("0"));
    }
    QCOMPARE(two.phone.figures(), (SixFigures{4, 4, 0, 0, 4, 4}));
    QCOMPARE(two.recorder->ask("hang-up"), QByteArray("0"));
    QCOMPARE(two.phone.figures(), (SixFigures{4, 4, 0, 0, 4, 4}));
}

void TestLedger::anOlderLogIsMigratedWhileAReaderWaits_data()
{
    QTest::addColumn<int>("version");
    for (int version = 1; version < static_cast<int>(calllog::migrations().size()); ++version)
        QTest::addRow("of version %d", version) << version;
}

// The first process takes the directory for itself, and the others wait for it.
void TestLedger::anOlderLogIsMigratedWhileAReaderWaits()
{
    QFETCH(int, version);
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    {
        calllog::Database database(state.database(), calllog::Database::Access::ReadWrite);
        QVERIFY(calllog::migrate(database, calllog::migrations().first(static_cast<std::size_t>(version))));
        QVERIFY(
            database.run(QStringLiteral("INSERT INTO calls (id, kind, direction, number, started_ms, duration_ms,"
                                        " state) VALUES (1, 0, 0, '12', 0, 61000, 0)")));
        QVERIFY(
            database.run(QStringLiteral("UPDATE totals SET ms = 61000 WHERE counter IN ('last', 'dialed', 'all',"
                                        " 'lifetime')")));
    }
    auto migrating = std::make_unique<Lock>(state.file(QStringLiteral("lock")), LOCK_EX);
    QVERIFY(migrating->taken);
    OtherProcess one(state.path());
    OtherProcess other(state.path());
    for (const OtherProcess *waiting : {&one, &other})
        QTRY_VERIFY_WITH_TIMEOUT(waiting->hasOpen(state.file(QStringLiteral("lock"))), 60'000);
    migrating.reset();
    QCOMPARE(one.firstLine(), QByteArray("holding"));
    QCOMPARE(other.firstLine(), QByteArray("holding"));
    QCOMPARE(one.ask("times"), QByteArray("61 61 0 61"));
    QCOMPARE(other.ask("times"), QByteArray("61 61 0 61"));
    QVERIFY((one.ask("recording") == "yes") != (other.ask("recording") == "yes"));
    QCOMPARE(stateOf(state, 1), int(CallState::Interrupted));
    QCOMPARE(LogFile(state.database()).value(QStringLiteral("PRAGMA user_version")).toULongLong(),
             calllog::migrations().size());
}

void TestLedger::whoHasAnOlderLogOpenIsNamed()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    OtherProcess holder(state.path());
    QCOMPARE(holder.firstLine(), QByteArray("holding"));
    QVERIFY(takeBackTo(state.database(), 3));
    const Phone phone(state.path(), nullptr, {}, hardlyAny);
    QVERIFY(!phone);
    QVERIFY2(
        phone.opened.error.contains(QStringLiteral("it was written by an earlier version, and only who has the "
                                                   "directory alone can put that right; it is in use by "
                                                   "handset_other_p (process ")),
        qPrintable(phone.opened.error));
}

KAV_TEST_GROUP(TestLedger, QCoreApplication);
#include "tst_ledger.moc"
