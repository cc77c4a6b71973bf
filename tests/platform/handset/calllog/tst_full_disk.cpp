// What a full disk does to calls and sessions: they end, and nothing of them is lost.
#include "calllog/Schema.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/HandsetTestKit.h"
#include "handset/PacketData.h"
#include "handset/Status.h"
#include "support/FullDisk.h"
#include "support/TestGroup.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <functional>

using namespace handset;
using namespace handset::test;
using calllog::CallState;
using simulated::SimulatedHandset;
using support::FullDisk;
using LineState = SimulatedHandset::LineState;

namespace {

constexpr Date dayOfExpiry{2027, 3, 9};

void expectFailure()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^The call log failed: ")));
}

void expectWritten()
{
    QTest::ignoreMessage(QtInfoMsg, "What could not be written to the call log has been written.");
}

struct CostsAndCredit {
    QByteArray last;
    QByteArray dialed;
    QByteArray all;
    QByteArray credit;

    friend bool operator==(const CostsAndCredit &, const CostsAndCredit &) = default;
};

CostsAndCredit costsAndCreditOf(const Phone &phone)
{
    CostsAndCredit costs;
    const bool told = phone.service().lastCallCost(costs.last) == Success &&
                      phone.log().dialedCallsCost(costs.dialed) == Success &&
                      phone.log().allCallsCost(costs.all) == Success &&
                      phone.service().remainingCredit(costs.credit) == Success;
    return told ? costs : CostsAndCredit{};
}

int statesIn(const QString &database, CallState state)
{
    const QString select = QStringLiteral("SELECT count(*) FROM calls WHERE state = %1");
    return LogFile(database).value(select.arg(static_cast<int>(state))).toInt();
}

} // namespace

class TestFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aConnectedCallEndsAndIsWrittenWhenThereIsRoom();
    void aDataCallEndsAndItsTotalIsTold();
    void aCallThatWasNotConnectedEndsAndIsWrittenWhenThereIsRoom_data();
    void aCallThatWasNotConnectedEndsAndIsWrittenWhenThereIsRoom();
    void aCallThatTheHandsetStopsEndsAndIsWrittenWhenThereIsRoom();
    void aSessionEndsAndIsWrittenWhenThereIsRoom();
    void whatIsOwedIsWrittenWithoutAnybodyAsking();
    void whatIsOwedIsWrittenBeforeTheNextCallBegins();
    void whatIsOwedIsWrittenBeforeTheNextSessionBegins();
    void whatIsOwedIsWrittenAtTheEndOfTheHandset();
    void thatAnEndIsNotWrittenIsSaidOnceAndOnceThatItIs();
    void thatAnEndIsLostIsSaidWhenTheHandsetEnds();
    void nothingIsWrittenToALogThatIsNoLongerThere_data();
    void nothingIsWrittenToALogThatIsNoLongerThere();
    void theNextCallIsNotConnectedAndCanBeEnded();
    void theNextCallIsRefusedForWhatTheOwedOneHasCost();
    void aSettingAndAResetWaitForWhatIsOwed_data();
    void aSettingAndAResetWaitForWhatIsOwed();
    void aCrashWhileAnEndIsOwedLosesWhatFollowedTheLastCheckpoint();
};

void TestFullDisk::aConnectedCallEndsAndIsWrittenWhenThereIsRoom()
{
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), dayOfExpiry), int(Success));
    QVERIFY(phone.dialed(50 * second));
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        QCOMPARE(phone->lineState(), LineState::Idle);
        QCOMPARE(phone->connectedMs(), qint64{0});
        QCOMPARE(phone->charging()->runningUnits(), quint64{0});
        QVERIFY(phone->owesRecord());
        QCOMPARE(spy.count(), 1);
        phone.clock->advance(7 * second); // after the call
        QCOMPARE(phone.figures(), (SixFigures{30, 80, 0, 0, 80, 80}));
        QCOMPARE(costsAndCreditOf(phone), (CostsAndCredit{"3.00", "8.00", "8.00", "92.00"}));
        QCOMPARE(phone->simCard().card().acm(), 8U);
        QCOMPARE(phone->checkpoint(), int(StorageFailed));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(statesIn(state.database(), CallState::Running), 1);
    }
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(phone.figures(), (SixFigures{30, 80, 0, 0, 80, 80}));
    QCOMPARE(costsAndCreditOf(phone), (CostsAndCredit{"3.00", "8.00", "8.00", "92.00"}));
    const LogFile file(state.database());
    QCOMPARE(file.calls().value(1).durationMs, 30 * second);
    QCOMPARE(file.calls().value(1).state, int(CallState::Finished));
    QCOMPARE(file.value(QStringLiteral("SELECT units FROM calls WHERE id = 2")), QVariant(3));
    phone.close();
    const Phone restarted(state.path());
    QCOMPARE(restarted.figures(), (SixFigures{30, 80, 0, 0, 80, 80}));
    QCOMPARE(costsAndCreditOf(restarted), (CostsAndCredit{"3.00", "8.00", "8.00", "92.00"}));
}

void TestFullDisk::aDataCallEndsAndItsTotalIsTold()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial(CallKind::Data));
    phone.clock->advance(30 * second);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        QCOMPARE(phone.data().refreshTotals(), int(Success));
        QCOMPARE(phone.figures(), (SixFigures{30, 0, 0, 30, 30, 30}));
        quint8 status = 0;
        QCOMPARE(phone.data().callStatus(status), int(Success));
        QCOMPARE(status, quint8{DataCalls::Released});
        QCOMPARE(phone.data().resetTotalDuration(), int(StorageFailed));
        QCOMPARE(phone.figures(), (SixFigures{30, 0, 0, 30, 30, 30}));
    }
    QCOMPARE(phone.data().resetTotalDuration(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.figures(), (SixFigures{30, 0, 0, 0, 30, 30}));
}

void TestFullDisk::aCallThatWasNotConnectedEndsAndIsWrittenWhenThereIsRoom_data()
{
    QTest::addColumn<bool>("incoming");
    QTest::newRow("a dialing one") << false;
    QTest::newRow("a ringing one") << true;
}

void TestFullDisk::aCallThatWasNotConnectedEndsAndIsWrittenWhenThereIsRoom()
{
    QFETCH(bool, incoming);
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dialed(4 * second));
    const qint64 began = phone.clock->wallMs();
    {
        const FullDisk full(0);
        const QString number = QStringLiteral("77");
        QCOMPARE(incoming ? phone->ring(number) : phone->dial(number, CallKind::Voice), int(Success));
        phone.clock->advance(second);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        QCOMPARE(phone->lineState(), LineState::Idle);
        QVERIFY(phone->owesRecord());
    }
    QCOMPARE(LogFile(state.database()).calls().size(), 1);
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    const LoggedCall call = LogFile(state.database()).calls().value(1);
    QCOMPARE(call.number, QStringLiteral("77"));
    QCOMPARE(call.state, int(CallState::NotConnected));
    QCOMPARE(call.direction, incoming ? 1 : 0);
    QCOMPARE(call.startedMs, began);
    QCOMPARE(phone.figures(), (SixFigures{4, 4, 0, 0, 4, 4}));
}

void TestFullDisk::aCallThatTheHandsetStopsEndsAndIsWrittenWhenThereIsRoom()
{
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->charging()->topUp(QStringLiteral("2"), dayOfExpiry), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(25 * second);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->checkpoint(), int(StorageFailed));
        QCOMPARE(phone->lineState(), LineState::Idle);
        QCOMPARE(phone->charging()->stopReason(), simulated::Charging::StopReason::CreditUsedUp);
        QVERIFY(phone->owesRecord());
        QCOMPARE(phone.figures(), (SixFigures{20, 20, 0, 0, 20, 20}));
        QCOMPARE(costsAndCreditOf(phone), (CostsAndCredit{"2.00", "2.00", "2.00", "0.00"}));
    }
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    phone.close();
    const Phone restarted(state.path());
    QCOMPARE(restarted.figures(), (SixFigures{20, 20, 0, 0, 20, 20}));
    QCOMPARE(costsAndCreditOf(restarted), (CostsAndCredit{"2.00", "2.00", "2.00", "0.00"}));
}

void TestFullDisk::aSessionEndsAndIsWrittenWhenThereIsRoom()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.session(50 * second, "x", 1, 2));
    QCOMPARE(phone->packets().startSession("y", 3, 4), int(Success));
    phone.clock->advance(5 * second);
    const QStringList sessions{QStringLiteral("2 y 5 15 20"), QStringLiteral("1 x 50 50 100")};
    int updates = 0;
    phone.packets().setUpdateListener([&] { ++updates; });
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->packets().stopSession(), int(Success));
        QVERIFY(!phone->packets().isSessionRunning());
        QVERIFY(phone->owesRecord());
        QCOMPARE(updates, 1);
        QCOMPARE(spy.count(), 1);
        phone.clock->advance(7 * second); // after the session
        QCOMPARE(phone.sessions(), sessions);
        QCOMPARE(phone.sessionTotals(), QStringLiteral("55 65 120 185"));
        QCOMPARE(phone->packets().startSession("z", 1, 1), int(StorageFailed));
        QCOMPARE(phone.packets().resetTotalBytes(), int(StorageFailed));
        QCOMPARE(phone->packets().stopSession(), int(WrongState));
        QCOMPARE(phone.sessionTotals(), QStringLiteral("55 65 120 185"));
    }
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.sessions(), sessions);
    phone.close();
    const Phone restarted(state.path());
    QCOMPARE(restarted.sessions(), sessions);
    QCOMPARE(restarted.sessionTotals(), QStringLiteral("55 65 120 185"));
}

void TestFullDisk::whatIsOwedIsWrittenWithoutAnybodyAsking()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    QTimer *const timer = phone->findChild<QTimer *>();
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        QVERIFY(timer->isActive());
    }
    timer->setInterval(1); // no need to wait for real seconds
    phone.clock->advance(5 * second);
    QTRY_VERIFY_WITH_TIMEOUT(!phone->owesRecord(), 60000);
    QCOMPARE(spy.count(), 2);
    QVERIFY(!timer->isActive());
    QCOMPARE(statesIn(state.database(), CallState::Finished), 1);
}

void TestFullDisk::whatIsOwedIsWrittenBeforeTheNextCallBegins()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
    }
    QCOMPARE(phone->dial(QStringLiteral("5"), CallKind::Voice), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(statesIn(state.database(), CallState::Finished), 1);
    QCOMPARE(phone->remoteAnswer(), int(Success));
    phone.clock->advance(2 * second);
    QCOMPARE(phone.figures(), (SixFigures{2, 32, 0, 0, 32, 32}));
}

void TestFullDisk::whatIsOwedIsWrittenBeforeTheNextSessionBegins()
{
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    phone.clock->advance(30 * second);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->packets().stopSession(), int(Success));
    }
    QCOMPARE(phone->packets().startSession("y", 1, 1), int(Success));
    QVERIFY(!phone->owesRecord());
    phone.clock->advance(2 * second);
    QCOMPARE(phone.sessions(), (QStringList{QStringLiteral("2 y 2 2 2"), QStringLiteral("1 x 30 30 30")}));
    QCOMPARE(phone.sessionTotals(), QStringLiteral("32 32 32 64"));
}

void TestFullDisk::whatIsOwedIsWrittenAtTheEndOfTheHandset()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dial());
        QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
        phone.clock->advance(30 * second);
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        QCOMPARE(phone->dial(QStringLiteral("5"), CallKind::Voice), int(Success));
        QCOMPARE(phone->hangUp(), int(Success));
        expectFailure();
        QCOMPARE(phone->packets().stopSession(), int(Success));
    }
    const LogFile file(state.database());
    QCOMPARE(file.calls().size(), 2);
    QCOMPARE(file.calls().value(0).durationMs, 30 * second);
    QCOMPARE(file.calls().value(0).state, int(CallState::Finished));
    QCOMPARE(file.calls().value(1).state, int(CallState::NotConnected));
    QCOMPARE(file.sessions(), QStringList{QStringLiteral("1 x 30000 30 30 1")});
}

void TestFullDisk::thatAnEndIsNotWrittenIsSaidOnceAndOnceThatItIs()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        expectFailure();
        QCOMPARE(phone->packets().stopSession(), int(Success));
        for (int attempt = 0; attempt < 3; ++attempt)
            QCOMPARE(phone->checkpoint(), int(StorageFailed)); // any warning fails the test
    }
    expectWritten(); // the call
    expectWritten(); // the session
    QCOMPARE(phone->checkpoint(), int(Success));
    // The next one is told again.
    QVERIFY(phone.dial());
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
    }
}

void TestFullDisk::thatAnEndIsLostIsSaidWhenTheHandsetEnds()
{
    const StateDir state;
    auto phone = std::make_unique<Phone>(state.path());
    QVERIFY(phone->dial());
    const FullDisk full(0);
    expectFailure();
    QCOMPARE((*phone)->hangUp(), int(Success));
    expectFailure();
    phone.reset();
}

void TestFullDisk::nothingIsWrittenToALogThatIsNoLongerThere_data()
{
    QTest::addColumn<bool>("isDirectory");
    QTest::newRow("the file is renamed") << false;
    QTest::newRow("the directory is renamed") << true;
}

// It went with the file, and was told to be kept.
void TestFullDisk::nothingIsWrittenToALogThatIsNoLongerThere()
{
    QFETCH(bool, isDirectory);
    const StateDir state;
    const QString place = isDirectory ? state.path() : state.database();
    const QString elsewhere = state.sibling(QStringLiteral("elsewhere"));
    Phone phone(state.path());
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    QVERIFY(QFile::rename(place, elsewhere));
    expectFailure();
    QCOMPARE(phone.log().resetAnsweredCallsTime(), int(StorageFailed));
    expectFailure();
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(phone->owesRecord());
    QCOMPARE(phone.figures(), (SixFigures{30, 30, 0, 0, 30, 30}));
    QVERIFY(QFile::rename(elsewhere, place));
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(statesIn(state.database(), CallState::Finished), 1);
}

void TestFullDisk::theNextCallIsNotConnectedAndCanBeEnded()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        for (int call = 0; call < 3; ++call) {
            QCOMPARE(phone->ring(QString::number(call)), int(Success));
            QCOMPARE(phone->answer(), int(StorageFailed));
            QCOMPARE(phone->lineState(), LineState::Ringing);
            QCOMPARE(phone->hangUp(), int(Success));
            QCOMPARE(phone->lineState(), LineState::Idle);
            QCOMPARE(phone.figures(), (SixFigures{30, 30, 0, 0, 30, 30}));
        }
    }
    QVERIFY(phone.answered(4 * second));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.figures(), (SixFigures{4, 30, 4, 0, 34, 34}));
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.size(), 5);
    QCOMPARE(calls[0].durationMs, 30 * second);
    for (int call = 0; call < 3; ++call) {
        QCOMPARE(calls[1 + call].number, QString::number(call));
        QCOMPARE(calls[1 + call].state, int(CallState::NotConnected));
    }
    QCOMPARE(calls[4].durationMs, 4 * second);
}

void TestFullDisk::theNextCallIsRefusedForWhatTheOwedOneHasCost()
{
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->charging()->topUp(QStringLiteral("3"), dayOfExpiry), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    const FullDisk full(0);
    expectFailure();
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone->dial(QStringLiteral("5"), CallKind::Voice), int(NotAllowed));
}

void TestFullDisk::aSettingAndAResetWaitForWhatIsOwed_data()
{
    QTest::addColumn<std::function<int(Phone &)>>("operation");
    QTest::addColumn<SixFigures>("after");
    QTest::addColumn<CostsAndCredit>("costsAfter");
    using Operation = std::function<int(Phone &)>;
    const SixFigures times{30, 30, 0, 0, 30, 30};
    const CostsAndCredit costs{"3.00", "3.00", "3.00", "97.00"};
    const auto row = [](const char *name, const Operation &operation, const SixFigures &after,
                        const CostsAndCredit &costsAfter) {
        QTest::newRow(name) << operation << after << costsAfter;
    };
    row(
        "dialed calls", [](Phone &p) { return p.log().resetDialedCallsTime(); }, {30, 0, 0, 0, 30, 30}, costs);
    row(
        "all calls", [](Phone &p) { return p.service().resetCallTime(); }, {30, 30, 0, 0, 0, 30}, costs);
    row("the call log", [](Phone &p) { return p.log().resetAll(); }, {0, 0, 0, 0, 30, 30},
        {"0.00", "0.00", "0.00", "97.00"});
    row("the costs of dialed calls", [](Phone &p) { return p.log().resetDialedCallsCost(); }, times,
        {"3.00", "0.00", "3.00", "97.00"});
    row("the meter", [](Phone &p) { return p.log().resetAllCallsCost(); }, times,
        {"3.00", "3.00", "0.00", "97.00"});
    row("a deposit", [](Phone &p) { return p->charging()->topUp(QStringLiteral("5"), dayOfExpiry); }, times,
        {"3.00", "3.00", "3.00", "102.00"});
    row("a history",
        [](Phone &p) {
            return p->addHistory({{CallKind::Voice, CallDirection::Answered, QStringLiteral("1"), 0, second}});
        },
        {1, 30, 1, 0, 31, 31}, {"0.00", "3.00", "3.00", "97.00"});
}

void TestFullDisk::aSettingAndAResetWaitForWhatIsOwed()
{
    using Operation = std::function<int(Phone &)>;
    QFETCH(Operation, operation);
    QFETCH(SixFigures, after);
    QFETCH(CostsAndCredit, costsAfter);
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), dayOfExpiry), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
        QCOMPARE(operation(phone), int(StorageFailed));
        QCOMPARE(phone.figures(), (SixFigures{30, 30, 0, 0, 30, 30}));
        QCOMPARE(costsAndCreditOf(phone), (CostsAndCredit{"3.00", "3.00", "3.00", "97.00"}));
    }
    QCOMPARE(operation(phone), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(phone.figures(), after);
    QCOMPARE(costsAndCreditOf(phone), costsAfter);
    phone.close();
    const Phone restarted(state.path());
    QCOMPARE(restarted.figures(), after);
    QCOMPARE(costsAndCreditOf(restarted), costsAfter);
}

void TestFullDisk::aCrashWhileAnEndIsOwedLosesWhatFollowedTheLastCheckpoint()
{
    const StateDir state;
    const QString copy = state.sibling(QStringLiteral("crashed"));
    Phone phone(state.path());
    QVERIFY(phone.dial());
    phone.clock->advance(30 * second);
    QCOMPARE(phone->checkpoint(), int(Success));
    phone.clock->advance(4 * second);
    {
        const FullDisk full(0);
        expectFailure();
        QCOMPARE(phone->hangUp(), int(Success));
    }
    QVERIFY(copyState(state.path(), copy));
    QCOMPARE(Phone(copy).figures(), (SixFigures{30, 30, 0, 0, 30, 30}));
    QCOMPARE(statesIn(copy + QStringLiteral("/calllog.db"), CallState::Interrupted), 1);
}

KAV_TEST_GROUP(TestFullDisk, QCoreApplication);
#include "tst_full_disk.moc"
