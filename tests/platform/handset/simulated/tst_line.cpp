// The line that is driven by hand.
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "simulated/ReadyMadeHistory.h"
#include "support/TestGroup.h"

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <limits>

using namespace handset;
using namespace handset::test;
using simulated::SimulatedHandset;
using LineState = SimulatedHandset::LineState;

namespace {

enum class Action { Dial, DialData, RemoteAnswer, Ring, Answer, HangUp };

int perform(Phone &phone, Action action)
{
    switch (action) {
    case Action::Dial:
        return phone->dial(QStringLiteral("112"), CallKind::Voice);
    case Action::DialData:
        return phone->dial(QStringLiteral("112"), CallKind::Data);
    case Action::RemoteAnswer:
        return phone->remoteAnswer();
    case Action::Ring:
        return phone->ring(QStringLiteral("112"));
    case Action::Answer:
        return phone->answer();
    case Action::HangUp:
        return phone->hangUp();
    }
    return -1;
}

bool bringTo(Phone &phone, LineState state)
{
    switch (state) {
    case LineState::Idle:
        return true;
    case LineState::Dialing:
        return phone->dial(QStringLiteral("99"), CallKind::Voice) == Success;
    case LineState::Ringing:
        return phone->ring(QStringLiteral("99")) == Success;
    case LineState::Connected:
        return phone.dial();
    }
    return false;
}

struct Step {
    const char *name;
    LineState from;
    Action action;
    LineState to; ///< the same as `from` where the action is not possible
};

constexpr Step steps[] = {
    {"an idle line dials", LineState::Idle, Action::Dial, LineState::Dialing},
    {"an idle line dials a data call", LineState::Idle, Action::DialData, LineState::Dialing},
    {"an idle line rings", LineState::Idle, Action::Ring, LineState::Ringing},
    {"an idle line has nobody to answer us", LineState::Idle, Action::RemoteAnswer, LineState::Idle},
    {"an idle line has nobody to be answered", LineState::Idle, Action::Answer, LineState::Idle},
    {"an idle line cannot be hung up", LineState::Idle, Action::HangUp, LineState::Idle},
    {"a dialing line is answered by the other side", LineState::Dialing, Action::RemoteAnswer,
     LineState::Connected},
    {"a dialing line is hung up", LineState::Dialing, Action::HangUp, LineState::Idle},
    {"a dialing line does not dial again", LineState::Dialing, Action::Dial, LineState::Dialing},
    {"a dialing line does not ring", LineState::Dialing, Action::Ring, LineState::Dialing},
    {"a dialing line is not answered by us", LineState::Dialing, Action::Answer, LineState::Dialing},
    {"a ringing line is answered by us", LineState::Ringing, Action::Answer, LineState::Connected},
    {"a ringing line is hung up", LineState::Ringing, Action::HangUp, LineState::Idle},
    {"a ringing line does not dial", LineState::Ringing, Action::Dial, LineState::Ringing},
    {"a ringing line does not ring again", LineState::Ringing, Action::Ring, LineState::Ringing},
    {"a ringing line is not answered by the other side", LineState::Ringing, Action::RemoteAnswer,
     LineState::Ringing},
    {"a connected line is hung up", LineState::Connected, Action::HangUp, LineState::Idle},
    {"a connected line does not dial", LineState::Connected, Action::Dial, LineState::Connected},
    {"a connected line does not ring", LineState::Connected, Action::Ring, LineState::Connected},
    {"a connected line is not answered again", LineState::Connected, Action::Answer, LineState::Connected},
    {"a connected line is not answered again by the other side", LineState::Connected, Action::RemoteAnswer,
     LineState::Connected},
};

constexpr qint64 maximum = std::numeric_limits<qint64>::max();
/// As far as hours, minutes and seconds can say.
constexpr quint64 longestTime = quint64{4'294'967'295} * 3600 + 59 * 60 + 59;

} // namespace

class TestLine : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theLineGoesFromStateToState_data();
    void theLineGoesFromStateToState();
    void aNumberIsWhatCanBeDialed_data();
    void aNumberIsWhatCanBeDialed();
    void aKindOfCallThatIsNoneIsNotDialed();
    void aDirectionThatIsNoneHasNoTariff();
    void aCallerMayWithholdTheNumber();
    void anIdleLineHasNoCall();
    void aConnectedLineSaysHowLong();
    void whatChangesIsSignalledOnce();
    void whatDoesNotHappenIsNotSignalled();
    void historyCountsAsIfItHadBeenMade();
    void historyDuringACallLeavesTheLastCallAlone();
    void historyWithOneBadCallIsRefusedAsAWhole_data();
    void historyWithOneBadCallIsRefusedAsAWhole();
    void theReadyMadeHistoryIsADozenCallsInThePast();
    void figuresStopAtTheirEndInsteadOfWrapping();
    void aCallLongerThanAnyClockStopsAtTheEnd();
    void theCheckpointComesByItselfWithinTenSeconds();
};

void TestLine::theLineGoesFromStateToState_data()
{
    QTest::addColumn<int>("step");
    for (int i = 0; i < static_cast<int>(std::size(steps)); ++i)
        QTest::newRow(steps[i].name) << i;
}

void TestLine::theLineGoesFromStateToState()
{
    QFETCH(int, step);
    const Step &row = steps[step];
    Phone phone;
    QVERIFY(bringTo(phone, row.from));
    const QString numberBefore = phone->number();
    const bool possible = row.from != row.to;
    QCOMPARE(perform(phone, row.action), int(possible ? Success : WrongState));
    QCOMPARE(phone->lineState(), row.to);
    if (!possible)
        QCOMPARE(phone->number(), numberBefore);
}

void TestLine::aNumberIsWhatCanBeDialed_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<bool>("valid");
    QTest::newRow("one digit") << QStringLiteral("7") << true;
    QTest::newRow("every key") << QStringLiteral("+0123456789*#") << true;
    QTest::newRow("80 digits") << QString(80, QLatin1Char('5')) << true;
    QTest::newRow("81 digits") << QString(81, QLatin1Char('5')) << false;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("an empty text") << QStringLiteral("") << false;
    QTest::newRow("a letter") << QStringLiteral("12a4") << false;
    QTest::newRow("a blank") << QStringLiteral("12 4") << false;
    QTest::newRow("a digit of another script") << QString(QChar(0x0664)) << false;
    QTest::newRow("a zero character") << QString(QChar(0)) << false;
}

void TestLine::aNumberIsWhatCanBeDialed()
{
    QFETCH(QString, number);
    QFETCH(bool, valid);
    Phone phone;
    QCOMPARE(phone->dial(number, CallKind::Voice), int(valid ? Success : InvalidArgument));
    QCOMPARE(phone->lineState(), valid ? LineState::Dialing : LineState::Idle);
    if (valid)
        QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone->ring(number), int(valid || number.isEmpty() ? Success : InvalidArgument));
}

void TestLine::aKindOfCallThatIsNoneIsNotDialed()
{
    const StateDir state;
    Phone phone(state.path());
    for (const int kind : {2, -1, 255}) {
        QCOMPARE(phone->dial(QStringLiteral("1234"), static_cast<CallKind>(kind)), int(InvalidArgument));
        QCOMPARE(phone->lineState(), LineState::Idle);
    }
    QVERIFY(phone.dialed(second));
    QCOMPARE(phone.figures(), (SixFigures{1, 1, 0, 0, 1, 1}));
}

void TestLine::aDirectionThatIsNoneHasNoTariff()
{
    Phone phone;
    charging::Tariff dear;
    dear.unitsAtStart = 10;
    for (const int number : {2, -1, 255}) {
        const auto none = static_cast<CallDirection>(number);
        QCOMPARE(phone->charging()->setTariff(none, dear), int(InvalidArgument));
        QVERIFY(phone->charging()->tariff(none) == charging::Tariff());
    }
    QVERIFY(phone->charging()->tariff(CallDirection::Answered) == charging::Tariff());
}

void TestLine::aCallerMayWithholdTheNumber()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.answered(3 * second, QString()));
    QCOMPARE(phone.figures().answered, quint64{3});
    phone.close();
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls[0].number, QStringLiteral(""));
}

void TestLine::anIdleLineHasNoCall()
{
    Phone phone;
    QVERIFY(phone.dial(CallKind::Data, QStringLiteral("0191")));
    QCOMPARE(phone->callKind(), CallKind::Data);
    QCOMPARE(phone->number(), QStringLiteral("0191"));
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone->callKind(), CallKind::Voice);
    QVERIFY(phone->number().isNull());
    QCOMPARE(phone->connectedMs(), qint64{0});
}

void TestLine::aConnectedLineSaysHowLong()
{
    Phone phone;
    QCOMPARE(phone->ring(QStringLiteral("5")), int(Success));
    phone.clock->advance(4000);
    QCOMPARE(phone->connectedMs(), qint64{0});
    QCOMPARE(phone->answer(), int(Success));
    phone.clock->advance(1234);
    QCOMPARE(phone->connectedMs(), qint64{1234});
    QCOMPARE(phone->checkpoint(), int(Success));
    phone.clock->advance(1);
    QCOMPARE(phone->connectedMs(), qint64{1235});
    QCOMPARE(phone.log().resetAll(), int(Success));
    QCOMPARE(phone->connectedMs(), qint64{1235});
}

void TestLine::whatChangesIsSignalledOnce()
{
    Phone phone;
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    int expected = 0;
    const auto signalledAfter = [&](int status) { return status == Success && spy.count() == ++expected; };
    QVERIFY(signalledAfter(phone->dial(QStringLiteral("1"), CallKind::Voice)));
    QVERIFY(signalledAfter(phone->remoteAnswer()));
    QVERIFY(signalledAfter(phone.log().resetDialedCallsTime()));
    QVERIFY(signalledAfter(phone.log().resetAnsweredCallsTime()));
    QVERIFY(signalledAfter(phone.log().resetAll()));
    QVERIFY(signalledAfter(phone.service().resetCallTime()));
    QVERIFY(signalledAfter(phone.data().resetTotalDuration()));
    QVERIFY(signalledAfter(phone->hangUp()));
    QVERIFY(signalledAfter(phone->ring(QString())));
    QVERIFY(signalledAfter(phone->answer()));
    QVERIFY(signalledAfter(phone->hangUp()));
    QVERIFY(signalledAfter(phone->addHistory(simulated::readyMadeHistory(0))));
}

void TestLine::whatDoesNotHappenIsNotSignalled()
{
    Phone phone;
    QSignalSpy spy(phone.operator->(), &SimulatedHandset::changed);
    QCOMPARE(phone->hangUp(), int(WrongState));
    QCOMPARE(phone->answer(), int(WrongState));
    QCOMPARE(phone->remoteAnswer(), int(WrongState));
    QCOMPARE(phone->dial(QStringLiteral("x"), CallKind::Voice), int(InvalidArgument));
    QCOMPARE(phone->addHistory({{CallKind::Voice, CallDirection::Dialed, {}, 0, -1}}), int(InvalidArgument));
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone.figures(), SixFigures());
    QCOMPARE(spy.count(), 0);
}

void TestLine::historyCountsAsIfItHadBeenMade()
{
    Phone phone;
    QVERIFY(phone.dialed(100 * second));
    QCOMPARE(phone->addHistory({{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 5000, 10 * second},
                                {CallKind::Data, CallDirection::Dialed, QStringLiteral("2"), 3000, 20 * second},
                                {CallKind::Data, CallDirection::Answered, QStringLiteral("3"), 3000, 2 * second},
                                {CallKind::Voice, CallDirection::Answered, {}, 4000, 30 * second},
                                {CallKind::Voice, CallDirection::Answered, {}, -9000, 0}}),
             int(Success));
    QCOMPARE(phone.figures(), (SixFigures{30, 110, 30, 22, 162, 162}));
    QCOMPARE(phone->addHistory({}), int(Success));
    QCOMPARE(phone->addHistory({{CallKind::Voice, CallDirection::Answered, {}, 0, 0}}), int(Success));
    QCOMPARE(phone.figures(), (SixFigures{30, 110, 30, 22, 162, 162}));
}

void TestLine::historyDuringACallLeavesTheLastCallAlone()
{
    Phone phone;
    QVERIFY(phone.dial());
    phone.clock->advance(6 * second);
    QCOMPARE(phone->addHistory({{CallKind::Voice, CallDirection::Answered, {}, 0, 30 * second}}), int(Success));
    QCOMPARE(phone.figures(), (SixFigures{6, 6, 30, 0, 36, 36}));
    phone.clock->advance(second);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone.figures(), (SixFigures{7, 7, 30, 0, 37, 37}));
}

void TestLine::historyWithOneBadCallIsRefusedAsAWhole_data()
{
    constexpr auto none = 2;
    QTest::addColumn<PastCall>("bad");
    const PastCall good{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 0, second};
    PastCall call = good;
    call.durationMs = -1;
    QTest::newRow("a negative duration") << call;
    call.durationMs = std::numeric_limits<qint64>::min();
    QTest::newRow("the most negative duration") << call;
    call = good;
    call.number = QStringLiteral("x");
    QTest::newRow("a number with a letter") << call;
    call.number = QString(81, QLatin1Char('1'));
    QTest::newRow("a number that is too long") << call;
    call = good;
    call.kind = static_cast<CallKind>(none);
    QTest::newRow("a kind that is none") << call;
    call = good;
    call.direction = static_cast<CallDirection>(none);
    QTest::newRow("a direction that is none") << call;
}

void TestLine::historyWithOneBadCallIsRefusedAsAWhole()
{
    QFETCH(PastCall, bad);
    Phone phone;
    const PastCall good{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 0, second};
    QCOMPARE(phone->addHistory({good, bad}), int(InvalidArgument));
    QCOMPARE(phone.figures(), SixFigures());
}

void TestLine::theReadyMadeHistoryIsADozenCallsInThePast()
{
    constexpr qint64 now = 1'900'000'000'000;
    const QList<PastCall> history = simulated::readyMadeHistory(now);
    QCOMPARE(history.size(), 12);
    qint64 previous = std::numeric_limits<qint64>::min();
    for (const PastCall &call : history) {
        QVERIFY(call.startWallMs > previous);
        QVERIFY(call.startWallMs + call.durationMs < now);
        previous = call.startWallMs;
    }
    Phone phone;
    QCOMPARE(phone->addHistory(history), int(Success));
    // dialed 3:12 + 1:05 + 1:07:09 + 0:09; answered 12:48 + 0:41 + 8:02 + 4:26; data 25:30 + 1:02:17
    QCOMPARE(phone.figures(), (SixFigures{266, 4295, 1557, 5267, 11119, 11119}));
}

void TestLine::figuresStopAtTheirEndInsteadOfWrapping()
{
    Phone phone;
    const PastCall voice{CallKind::Voice, CallDirection::Dialed, {}, 0, maximum};
    const PastCall data{CallKind::Data, CallDirection::Dialed, {}, 0, maximum};
    QCOMPARE(phone->addHistory({voice, voice, data, data}), int(Success));
    QCOMPARE(phone->addHistory({voice, data}), int(Success));
    QVERIFY(phone.dialed(5 * second));
    QVERIFY(phone.dialed(5 * second, CallKind::Data));
    constexpr quint64 most = longestTime;
    constexpr quint64 mostOfData = std::numeric_limits<quint32>::max();
    QCOMPARE(phone.figures(), (SixFigures{5, most, 0, mostOfData, most, most}));
    QVERIFY(phone.dial());
    phone.clock->advance(hour);
    QCOMPARE(phone.figures(), (SixFigures{3600, most, 0, mostOfData, most, most}));
}

void TestLine::aCallLongerThanAnyClockStopsAtTheEnd()
{
    const StateDir state;
    Phone phone(state.path(), std::make_shared<ManualClock>(0));
    QVERIFY(phone.dial());
    QCOMPARE(phone->checkpoint(), int(Success));
    phone.clock->advance(maximum);
    constexpr quint64 most = longestTime;
    QCOMPARE(phone.figures(), (SixFigures{most, most, 0, 0, most, most}));
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->connectedMs(), maximum);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone.figures(), (SixFigures{most, most, 0, 0, most, most}));
    phone.close();
    QCOMPARE(LogFile(state.database()).calls().value(0).durationMs, maximum);
}

void TestLine::theCheckpointComesByItselfWithinTenSeconds()
{
    const StateDir state;
    Phone phone(state.path());
    auto *timer = phone->findChild<QTimer *>();
    QVERIFY(timer);
    QVERIFY(timer->interval() > 0 && timer->interval() * 21 / 20 <= 10000); // a coarse timer may be 5 % late
    QVERIFY(!timer->isSingleShot());
    QVERIFY(!timer->isActive());
    QVERIFY(phone.dial());
    QVERIFY(timer->isActive());

    phone.clock->advance(77 * second);
    const LogFile file(state.database());
    QCOMPARE(file.calls().value(0).durationMs, qint64{0});
    QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
    QCOMPARE(file.calls().value(0).durationMs, 77 * second);

    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(!timer->isActive());
}

KAV_TEST_GROUP(TestLine, QCoreApplication);
#include "tst_line.moc"
