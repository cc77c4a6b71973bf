// What every backend must do alike, written against the interfaces alone: times of calls and packet data.
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/EachOperation.h"
#include "handset/HandsetRig.h"
#include "handset/HandsetTestKit.h"
#include "handset/KeptCalls.h"
#include "handset/PacketData.h"
#include "handset/Status.h"
#include "support/LackingHandset.h"
#include "support/TestGroup.h"

#include <functional>
#include <utility>

using namespace handset;
using namespace handset::test;

namespace {

using Reset = std::function<int(Handset &)>;

struct NamedReset {
    const char *name;
    Reset run;
    SixFigures kept; ///< 1 where the reset leaves the figure alone
};

const NamedReset resets[] = {
    {"dialed calls", [](Handset &h) { return h.callLog()->resetDialedCallsTime(); }, {1, 0, 1, 1, 1, 1}},
    {"answered calls", [](Handset &h) { return h.callLog()->resetAnsweredCallsTime(); }, {1, 1, 0, 1, 1, 1}},
    {"data calls",
     [](Handset &h) { return h.dataCalls() ? h.dataCalls()->resetTotalDuration() : int(Success); },
     {1, 1, 1, 0, 1, 1}},
    {"all calls", [](Handset &h) { return h.callService()->resetCallTime(); }, {1, 1, 1, 1, 0, 1}},
    {"the whole call log", [](Handset &h) { return h.callLog()->resetAll(); }, {0, 0, 0, 1, 1, 1}},
};

SixFigures masked(const SixFigures &figures, const SixFigures &mask)
{
    return {figures.last * mask.last, figures.dialed * mask.dialed, figures.answered * mask.answered,
            figures.data * mask.data, figures.all * mask.all,       figures.lifetime * mask.lifetime};
}

/// A backend without the role says so, of each of its operations.
#define KAV_NEED_ROLE(role)                                                                                       \
    if (rig->lackingRoles().contains(QStringLiteral(role)))                                                       \
    return roleIsNotAvailable(QStringLiteral(role))

} // namespace

class TestContract : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup()
    {
        install(nullptr);
        rig.reset();
    }

    void aNewHandsetHasTheRolesOfItsBackend();
    void anOperationOfAnAbsentRoleIsNotAvailable_data();
    void anOperationOfAnAbsentRoleIsNotAvailable();
    void aNewHandsetHasNoTime();
    void aNewHandsetHasHadNoSession();
    void aCallCountsForItsOwnFigure_data();
    void aCallCountsForItsOwnFigure();
    void figuresAreCutToWholeSecondsOnlyWhenTheyAreAsked();
    void aRunningCallIsCountedUpToNow();
    void aCallThatWasNeverConnectedCountsNowhere_data();
    void aCallThatWasNeverConnectedCountsNowhere();
    void theLastCallIsTheOneConnectedLast();
    void aResetZeroesItsOwnFiguresAndNothingElse_data();
    void aResetZeroesItsOwnFiguresAndNothingElse();
    void aResetDuringACallLetsTheRestOfItCount_data();
    void aResetDuringACallLetsTheRestOfItCount();
    void aResetFigureCountsTheNextCall();
    void theDataCallStatusFollowsTheCall();
    void aVoiceCallLeavesTheDataCallStatusAlone();
    void theDataCallTotalCanBeResetDuringADataCall();
    void refreshingTheDataCallTotalChangesNoFigure();
    void figuresAndResetsSurviveARestart();
    void theDataCallStatusOfANewStartIsIdle();
    void callsAreKeptOneByOneTheNewestFirst();
    void aDeletedCallStaysInEveryTotal();
    void whatRunsIsNotDeleted();
    void deletingIsToldToTheChangeListener();

    void sessionsStandNewestFirst();
    void aRunningSessionIsCountedUpToNow();
    void eachPacketDataResetZeroesItsOwnTotal();
    void aResetDuringASessionLetsTheRestOfItCount();
    void packetDataAndCallsKnowNothingOfEachOther();
    void sessionsAndTheirTotalsSurviveARestart();

private:
    void roleIsNotAvailable(const QString &role);
    int run(const NamedReset &reset) { return rig->allowWrite() ? reset.run(rig->handset()) : -1; }
    bool call(CallKind kind, CallDirection direction, qint64 ms);
    bool everyKindOfCall();
    bool dataCall(qint64 ms);
    SixFigures shown(SixFigures figures) const;
    bool session(const QByteArray &apn, qint64 ms, quint32 sentPerSecond, quint32 receivedPerSecond);
    QStringList sessions() { return sessionsOf(rig->handset()); }
    QString sessionTotals() { return sessionTotalsOf(rig->handset()); }
    SixFigures figures() { return figuresOf(rig->handset()); }
    quint8 status();

    QList<KeptCall> keptCalls(int most = 100);

    std::unique_ptr<HandsetRig> rig;
};

void TestContract::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    rig = makeRig();
    QVERIFY(rig->open());
}

void TestContract::roleIsNotAvailable(const QString &role)
{
    install(std::shared_ptr<Handset>(std::shared_ptr<void>(), &rig->handset()));
    int asked = 0;
    for (std::size_t i = 0; i < operationNames.size(); ++i) {
        if (!QByteArrayView(operationNames[i]).startsWith(role.toLatin1() + "::"))
            continue;
        QCOMPARE(askEach[i](), int(NotAvailable));
        ++asked;
    }
    QVERIFY(asked > 0);
}

bool TestContract::call(CallKind kind, CallDirection direction, qint64 ms)
{
    if (!rig->begin(kind, direction) || !rig->connectCall())
        return false;
    rig->pass(ms);
    return rig->end();
}

bool TestContract::everyKindOfCall()
{
    return call(CallKind::Voice, CallDirection::Dialed, 100 * second) &&
           call(CallKind::Voice, CallDirection::Answered, 20 * second) && dataCall(3 * second);
}

// Where there are none, a voice call that is answered takes its place.
bool TestContract::dataCall(qint64 ms)
{
    return rig->hasDataCalls() ? call(CallKind::Data, CallDirection::Dialed, ms)
                               : call(CallKind::Voice, CallDirection::Answered, ms);
}

// What the figures are when such a call has taken the place of every data call.
SixFigures TestContract::shown(SixFigures figures) const
{
    if (!rig->hasDataCalls())
        figures.answered += std::exchange(figures.data, 0);
    return figures;
}

bool TestContract::session(const QByteArray &apn, qint64 ms, quint32 sentPerSecond, quint32 receivedPerSecond)
{
    if (!rig->beginSession(apn, sentPerSecond, receivedPerSecond))
        return false;
    rig->pass(ms);
    return rig->endSession();
}

quint8 TestContract::status()
{
    quint8 value = 99;
    if (rig->handset().dataCalls()->callStatus(value) != Success)
        QTest::qFail("the data-call status cannot be read", __FILE__, __LINE__);
    return value;
}

void TestContract::aNewHandsetHasTheRolesOfItsBackend()
{
    Handset &handset = rig->handset();
    QVERIFY(handset.callLog());
    QVERIFY(handset.callService());
    const QStringList lacking = rig->lackingRoles();
    QCOMPARE(handset.dataCalls() == nullptr, lacking.contains(QStringLiteral("DataCalls")));
    QCOMPARE(handset.packetData() == nullptr, lacking.contains(QStringLiteral("PacketData")));
    QCOMPARE(handset.adviceOfCharge() == nullptr, lacking.contains(QStringLiteral("AdviceOfCharge")));
    QCOMPARE(handset.simSecurity() == nullptr, lacking.contains(QStringLiteral("SimSecurity")));
}

void TestContract::anOperationOfAnAbsentRoleIsNotAvailable_data()
{
    QTest::addColumn<int>("operation");
    for (std::size_t i = 0; i < operationNames.size(); ++i)
        QTest::newRow(operationNames[i]) << static_cast<int>(i);
}

// A role that the backend has is taken away for it.
void TestContract::anOperationOfAnAbsentRoleIsNotAvailable()
{
    QFETCH(int, operation);
    const auto index = static_cast<std::size_t>(operation);
    const QString role = QString::fromLatin1(operationNames[index]).section(QStringLiteral("::"), 0, 0);
    const QStringList taken = rig->lackingRoles().contains(role) ? QStringList() : QStringList(role);
    install(std::make_shared<LackingHandset>(std::shared_ptr<Handset>(std::shared_ptr<void>(), &rig->handset()),
                                             taken));
    QCOMPARE(askEach[index](), int(NotAvailable));
}

void TestContract::aNewHandsetHasNoTime()
{
    QCOMPARE(figures(), SixFigures());
    if (rig->hasDataCalls())
        QCOMPARE(status(), quint8(DataCalls::Idle));
}

void TestContract::aNewHandsetHasHadNoSession()
{
    KAV_NEED_ROLE("PacketData");
    QCOMPARE(sessions(), QStringList());
    QCOMPARE(sessionTotals(), QStringLiteral("0 0 0 0"));
}

void TestContract::aCallCountsForItsOwnFigure_data()
{
    QTest::addColumn<CallKind>("kind");
    QTest::addColumn<CallDirection>("direction");
    QTest::addColumn<SixFigures>("expected");

    QTest::newRow("a dialed voice call is dialed")
        << CallKind::Voice << CallDirection::Dialed << SixFigures{65, 65, 0, 0, 65, 65};
    QTest::newRow("an answered voice call is answered")
        << CallKind::Voice << CallDirection::Answered << SixFigures{65, 0, 65, 0, 65, 65};
    QTest::newRow("a data call is no dialed call")
        << CallKind::Data << CallDirection::Dialed << SixFigures{65, 0, 0, 65, 65, 65};
}

void TestContract::aCallCountsForItsOwnFigure()
{
    QFETCH(CallKind, kind);
    QFETCH(CallDirection, direction);
    if (kind == CallKind::Data)
        KAV_NEED_ROLE("DataCalls");
    QVERIFY(call(kind, direction, 65 * second));
    QTEST(figures(), "expected");
}

void TestContract::figuresAreCutToWholeSecondsOnlyWhenTheyAreAsked()
{
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 1999));
    QCOMPARE(figures(), (SixFigures{1, 1, 0, 0, 1, 1}));
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 1));
    QCOMPARE(figures(), (SixFigures{0, 2, 0, 0, 2, 2}));
}

void TestContract::aRunningCallIsCountedUpToNow()
{
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 10 * second));
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Answered));
    rig->pass(30 * second); // it rings
    QCOMPARE(figures(), (SixFigures{10, 10, 0, 0, 10, 10}));
    QVERIFY(rig->connectCall());
    QCOMPARE(figures(), (SixFigures{0, 10, 0, 0, 10, 10}));
    rig->pass(4 * second);
    QCOMPARE(figures(), (SixFigures{4, 10, 4, 0, 14, 14}));
    rig->pass(2 * hour);
    QVERIFY(rig->end());
    QCOMPARE(figures(), (SixFigures{7204, 10, 7204, 0, 7214, 7214}));
    rig->pass(hour); // nobody calls
    QCOMPARE(figures(), (SixFigures{7204, 10, 7204, 0, 7214, 7214}));
}

void TestContract::aCallThatWasNeverConnectedCountsNowhere_data()
{
    QTest::addColumn<CallKind>("kind");
    QTest::addColumn<CallDirection>("direction");

    QTest::newRow("a dialed voice call without an answer") << CallKind::Voice << CallDirection::Dialed;
    QTest::newRow("a missed call") << CallKind::Voice << CallDirection::Answered;
    QTest::newRow("a data call without an answer") << CallKind::Data << CallDirection::Dialed;
}

void TestContract::aCallThatWasNeverConnectedCountsNowhere()
{
    QFETCH(CallKind, kind);
    QFETCH(CallDirection, direction);
    if (kind == CallKind::Data)
        KAV_NEED_ROLE("DataCalls");
    QVERIFY(everyKindOfCall());
    QVERIFY(rig->begin(kind, direction));
    rig->pass(50 * second);
    QVERIFY(rig->end());
    QCOMPARE(figures(), shown({3, 100, 20, 3, 123, 123}));
}

void TestContract::theLastCallIsTheOneConnectedLast()
{
    QVERIFY(everyKindOfCall());
    QCOMPARE(figures().last, quint64{3});
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 41 * second));
    QCOMPARE(figures().last, quint64{41});
    QVERIFY(call(CallKind::Voice, CallDirection::Answered, 0));
    QCOMPARE(figures().last, quint64{0});
}

void TestContract::aResetZeroesItsOwnFiguresAndNothingElse_data()
{
    QTest::addColumn<int>("reset");
    for (int i = 0; i < static_cast<int>(std::size(resets)); ++i)
        QTest::newRow(resets[i].name) << i;
}

void TestContract::aResetZeroesItsOwnFiguresAndNothingElse()
{
    QFETCH(int, reset);
    if (resets[reset].kept.data == 0)
        KAV_NEED_ROLE("DataCalls");
    QVERIFY(everyKindOfCall());
    const SixFigures before = figures();
    QCOMPARE(before, shown({3, 100, 20, 3, 123, 123}));
    QCOMPARE(run(resets[reset]), int(Success));
    QCOMPARE(figures(), masked(before, resets[reset].kept));
    QCOMPARE(run(resets[reset]), int(Success));
    QCOMPARE(figures(), masked(before, resets[reset].kept));
}

void TestContract::aResetDuringACallLetsTheRestOfItCount_data()
{
    aResetZeroesItsOwnFiguresAndNothingElse_data();
}

void TestContract::aResetDuringACallLetsTheRestOfItCount()
{
    QFETCH(int, reset);
    if (resets[reset].kept.data == 0)
        KAV_NEED_ROLE("DataCalls");
    QVERIFY(everyKindOfCall());
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Dialed));
    QVERIFY(rig->connectCall());
    rig->pass(50 * second);
    const SixFigures before = figures();
    QCOMPARE(before, shown({50, 150, 20, 3, 173, 173}));
    QCOMPARE(run(resets[reset]), int(Success));
    SixFigures expected = masked(before, resets[reset].kept);
    QCOMPARE(figures(), expected);

    rig->pass(7 * second);
    expected.last += 7;
    expected.dialed += 7;
    expected.all += 7;
    expected.lifetime += 7;
    QCOMPARE(figures(), expected);
    QVERIFY(rig->end());
    QCOMPARE(figures(), expected);
}

void TestContract::aResetFigureCountsTheNextCall()
{
    QVERIFY(everyKindOfCall());
    for (const NamedReset &reset : resets)
        QCOMPARE(run(reset), int(Success));
    QCOMPARE(figures(), (SixFigures{0, 0, 0, 0, 0, 123}));
    QVERIFY(everyKindOfCall());
    QCOMPARE(figures(), shown({3, 100, 20, 3, 123, 246}));
}

void TestContract::theDataCallStatusFollowsTheCall()
{
    KAV_NEED_ROLE("DataCalls");
    QVERIFY(rig->begin(CallKind::Data, CallDirection::Dialed));
    QCOMPARE(status(), quint8(DataCalls::SettingUp));
    QVERIFY(rig->connectCall());
    QCOMPARE(status(), quint8(DataCalls::Connected));
    QVERIFY(rig->end());
    QCOMPARE(status(), quint8(DataCalls::Released));
    QVERIFY(rig->begin(CallKind::Data, CallDirection::Dialed));
    QCOMPARE(status(), quint8(DataCalls::SettingUp));
    QVERIFY(rig->end());
    QCOMPARE(status(), quint8(DataCalls::Released));
}

void TestContract::aVoiceCallLeavesTheDataCallStatusAlone()
{
    KAV_NEED_ROLE("DataCalls");
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Dialed));
    QCOMPARE(status(), quint8(DataCalls::Idle));
    QVERIFY(rig->connectCall());
    QCOMPARE(status(), quint8(DataCalls::Idle));
    QVERIFY(rig->end());
    QCOMPARE(status(), quint8(DataCalls::Idle));
    QVERIFY(call(CallKind::Data, CallDirection::Dialed, second));
    QVERIFY(call(CallKind::Voice, CallDirection::Answered, second));
    QCOMPARE(status(), quint8(DataCalls::Released));
}

void TestContract::theDataCallTotalCanBeResetDuringADataCall()
{
    KAV_NEED_ROLE("DataCalls");
    QVERIFY(rig->begin(CallKind::Data, CallDirection::Dialed));
    QCOMPARE(rig->handset().dataCalls()->resetTotalDuration(), int(Success));
    QVERIFY(rig->connectCall());
    rig->pass(9 * second);
    QCOMPARE(figures().data, quint64{9});
    QCOMPARE(rig->handset().dataCalls()->resetTotalDuration(), int(Success));
    QCOMPARE(figures(), (SixFigures{9, 0, 0, 0, 9, 9}));
    rig->pass(2 * second);
    QVERIFY(rig->end());
    QCOMPARE(figures(), (SixFigures{11, 0, 0, 2, 11, 11}));
}

void TestContract::refreshingTheDataCallTotalChangesNoFigure()
{
    KAV_NEED_ROLE("DataCalls");
    DataCalls &calls = *rig->handset().dataCalls();
    QCOMPARE(calls.refreshTotals(), int(Success));
    QCOMPARE(figures(), SixFigures());
    QVERIFY(rig->begin(CallKind::Data, CallDirection::Dialed));
    QCOMPARE(calls.refreshTotals(), int(Success));
    QVERIFY(rig->connectCall());
    for (quint64 expected = 3; expected <= 9; expected += 3) {
        rig->pass(3 * second);
        QCOMPARE(calls.refreshTotals(), int(Success));
        QCOMPARE(figures(), (SixFigures{expected, 0, 0, expected, expected, expected}));
    }
}

void TestContract::figuresAndResetsSurviveARestart()
{
    QVERIFY(everyKindOfCall());
    QCOMPARE(rig->handset().callLog()->resetDialedCallsTime(), int(Success));
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 1500));
    QVERIFY(call(CallKind::Voice, CallDirection::Answered, 700));
    const SixFigures before = figures();
    QCOMPARE(before, shown({0, 1, 20, 3, 125, 125}));
    for (int start = 0; start < 3; ++start) {
        rig->close();
        QVERIFY(rig->open());
        QCOMPARE(figures(), before);
    }
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 500)); // the fractions were kept, too
    QCOMPARE(figures().dialed, quint64{2});
}

void TestContract::theDataCallStatusOfANewStartIsIdle()
{
    KAV_NEED_ROLE("DataCalls");
    QVERIFY(call(CallKind::Data, CallDirection::Dialed, second));
    rig->close();
    QVERIFY(rig->open());
    QCOMPARE(status(), quint8(DataCalls::Idle));
}

QList<KeptCall> TestContract::keptCalls(int most)
{
    QList<KeptCall> calls;
    KeptCalls *const kept = rig->handset().keptCalls();
    return kept && kept->newest(KeptCalls::endOfTime, most, calls) == Success ? calls : QList<KeptCall>();
}

void TestContract::callsAreKeptOneByOneTheNewestFirst()
{
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 3 * second));
    QVERIFY(call(CallKind::Voice, CallDirection::Answered, 0));
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Dialed));
    QVERIFY(rig->connectCall());
    rig->pass(5 * second);
    const QList<KeptCall> calls = keptCalls();
    QCOMPARE(calls.size(), 3);
    QVERIFY(calls[0].id > calls[1].id && calls[1].id > calls[2].id);
    QVERIFY(calls[0].isRunning && !calls[1].isRunning && !calls[2].isRunning);
    QCOMPARE(calls[0].call.durationMs, 5 * second);
    QCOMPARE(calls[1].call.direction, CallDirection::Answered);
    QCOMPARE(calls[2].call.durationMs, 3 * second);
    QCOMPARE(keptCalls(1).size(), 1);
    QList<KeptCall> older;
    QCOMPARE(rig->handset().keptCalls()->newest(calls[1].id, 100, older), int{Success});
    QCOMPARE(older, QList<KeptCall>{calls[2]});
    qint64 count = 0;
    QCOMPARE(rig->handset().keptCalls()->count(calls[2].id, calls[0].id, count), int{Success});
    QCOMPARE(count, 2);
    QVERIFY(rig->end());
}

void TestContract::aDeletedCallStaysInEveryTotal()
{
    QVERIFY(everyKindOfCall());
    const SixFigures before = figures();
    const QList<KeptCall> calls = keptCalls();
    QVERIFY(calls.size() >= 2);
    KeptCalls &kept = *rig->handset().keptCalls();
    QCOMPARE(kept.remove(calls[1].id), int{Success});
    QCOMPARE(kept.remove(calls[1].id), int{InvalidArgument});
    QCOMPARE(keptCalls().size(), calls.size() - 1);
    qint64 count = 0;
    QCOMPARE(kept.removeBefore(calls[0].call.startWallMs + 1, count), int{Success});
    QCOMPARE(count, calls.size() - 1);
    QVERIFY(keptCalls().isEmpty());
    QCOMPARE(figures(), before);
    rig->close();
    QVERIFY(rig->open());
    QCOMPARE(figures(), before);
}

void TestContract::whatRunsIsNotDeleted()
{
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Dialed));
    QVERIFY(rig->connectCall());
    const QList<KeptCall> calls = keptCalls();
    QCOMPARE(calls.size(), 1);
    qint64 count = -1;
    QCOMPARE(rig->handset().keptCalls()->remove(calls[0].id), int{WrongState});
    QCOMPARE(rig->handset().keptCalls()->removeBefore(KeptCalls::endOfTime, count), int{Success});
    QCOMPARE(count, 0);
    rig->pass(2 * second);
    QVERIFY(rig->end());
    QCOMPARE(figures().last, quint64{2});
    QCOMPARE(keptCalls().size(), 1);
}

void TestContract::deletingIsToldToTheChangeListener()
{
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, second));
    int told = 0;
    rig->handset().setChangeListener([&] { ++told; });
    QCOMPARE(rig->handset().keptCalls()->remove(keptCalls().value(0).id), int{Success});
    QCOMPARE(told, 1);
    rig->handset().setChangeListener({});
}

void TestContract::sessionsStandNewestFirst()
{
    KAV_NEED_ROLE("PacketData");
    QVERIFY(session("first", second, 1, 10));
    QCOMPARE(sessions(), QStringList{QStringLiteral("1 first 1 1 10")});
    QVERIFY(session("second", 2 * second, 2, 20));
    QVERIFY(session("third", 3 * second, 3, 30));
    QVERIFY(session("fourth", 4 * second, 4, 40));
    QCOMPARE(sessions(), (QStringList{QStringLiteral("4 fourth 4 16 160"), QStringLiteral("3 third 3 9 90"),
                                      QStringLiteral("2 second 2 4 40")}));
    QCOMPARE(sessionTotals(), QStringLiteral("10 30 300 330"));
}

void TestContract::aRunningSessionIsCountedUpToNow()
{
    KAV_NEED_ROLE("PacketData");
    QVERIFY(session("before", 2 * second, 5, 0));
    QVERIFY(rig->beginSession("now", 3, 100));
    const QString before = QStringLiteral("1 before 2 10 0");
    QCOMPARE(sessions(), (QStringList{QStringLiteral("2 now 0 0 0"), before}));
    rig->pass(4500); // bytes that a modem's daemon counts are read every 4 s
    QCOMPARE(sessions(), (QStringList{QStringLiteral("2 now 4 13 450"), before}));
    QCOMPARE(sessionTotals(), QStringLiteral("6 23 450 473"));
    rig->pass(2 * hour);
    const QStringList both{QStringLiteral("2 now 7204 21613 720450"), before};
    QCOMPARE(sessions(), both);
    QVERIFY(rig->endSession());
    rig->pass(hour);
    QCOMPARE(sessions(), both);
    QCOMPARE(sessionTotals(), QStringLiteral("7206 21623 720450 742073"));
}

void TestContract::eachPacketDataResetZeroesItsOwnTotal()
{
    KAV_NEED_ROLE("PacketData");
    QVERIFY(session("internet", 7 * second, 1, 2));
    const QStringList before = sessions();
    QCOMPARE(rig->handset().packetData()->resetTotalDuration(), int(Success));
    QCOMPARE(sessionTotals(), QStringLiteral("0 7 14 21"));
    QVERIFY(session("wap", second, 1, 2));
    QCOMPARE(rig->handset().packetData()->resetTotalBytes(), int(Success));
    QCOMPARE(sessionTotals(), QStringLiteral("1 0 0 0"));
    QCOMPARE(sessions(), QStringList{QStringLiteral("2 wap 1 1 2")} + before);
}

void TestContract::aResetDuringASessionLetsTheRestOfItCount()
{
    KAV_NEED_ROLE("PacketData");
    QVERIFY(session("before", 10 * second, 1, 2));
    QVERIFY(rig->beginSession("now", 10, 20));
    rig->pass(5 * second);
    QCOMPARE(rig->handset().packetData()->resetTotalBytes(), int(Success));
    QCOMPARE(sessionTotals(), QStringLiteral("15 0 0 0"));
    rig->pass(4 * second);
    QCOMPARE(rig->handset().packetData()->resetTotalDuration(), int(Success));
    QCOMPARE(sessionTotals(), QStringLiteral("0 40 80 120"));
    rig->pass(second);
    QVERIFY(rig->endSession());
    QCOMPARE(sessionTotals(), QStringLiteral("1 50 100 150"));
    QCOMPARE(sessions().first(), QStringLiteral("2 now 10 100 200"));
}

void TestContract::packetDataAndCallsKnowNothingOfEachOther()
{
    KAV_NEED_ROLE("PacketData");
    QVERIFY(rig->beginSession("internet", 1, 1));
    QVERIFY(dataCall(5 * second));
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Dialed));
    QVERIFY(rig->connectCall());
    rig->pass(2 * second);
    QVERIFY(rig->endSession());
    rig->pass(second);
    QVERIFY(rig->end());
    QCOMPARE(figures(), shown({3, 3, 0, 5, 8, 8}));
    QCOMPARE(sessionTotals(), QStringLiteral("7 7 7 14"));
    for (const NamedReset &reset : resets)
        QCOMPARE(run(reset), int(Success));
    QCOMPARE(sessionTotals(), QStringLiteral("7 7 7 14"));
    QVERIFY(dataCall(4 * second));
    QCOMPARE(rig->handset().packetData()->resetTotalDuration(), int(Success));
    QCOMPARE(rig->handset().packetData()->resetTotalBytes(), int(Success));
    QCOMPARE(figures(), shown({4, 0, 0, 4, 4, 12}));
}

void TestContract::sessionsAndTheirTotalsSurviveARestart()
{
    KAV_NEED_ROLE("PacketData");
    QVERIFY(session("first", 1500, 1, 1));
    QCOMPARE(rig->handset().packetData()->resetTotalBytes(), int(Success));
    QVERIFY(session("second", 1600, 10, 10));
    const QStringList before = sessions();
    QCOMPARE(before, (QStringList{QStringLiteral("2 second 1 16 16"), QStringLiteral("1 first 1 1 1")}));
    for (int start = 0; start < 3; ++start) {
        rig->close();
        QVERIFY(rig->open());
        QCOMPARE(sessions(), before);
        QCOMPARE(sessionTotals(), QStringLiteral("3 16 16 32"));
    }
    QVERIFY(session("third", 900, 0, 0)); // the fractions were kept, too
    QCOMPARE(sessionTotals(), QStringLiteral("4 16 16 32"));
    QCOMPARE(sessions().first(), QStringLiteral("3 third 0 0 0"));
}

KAV_TEST_GROUP(TestContract, QCoreApplication);
#include "tst_contract.moc"
