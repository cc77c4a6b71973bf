// What every backend must do alike, written against the interfaces alone: what calls cost, and who pays.
#include "handset/ChargingContract.h"
#include "support/TestGroup.h"

#include <functional>

using namespace handset;
using namespace handset::test;

namespace {

struct NamedReset {
    const char *name;
    std::function<int(Handset &)> run;
    FourCosts costsKept; ///< 1 where the reset leaves the cost alone
    SixFigures timesKept;
};

const NamedReset resets[] = {
    {"dialed calls",
     [](Handset &h) { return h.callLog()->resetDialedCallsCost(); },
     {1, 0, 1, 1},
     {1, 1, 1, 1, 1, 1}},
    {"answered calls",
     [](Handset &h) { return h.callLog()->resetAnsweredCallsCost(); },
     {1, 1, 0, 1},
     {1, 1, 1, 1, 1, 1}},
    {"all calls", [](Handset &h) { return h.callLog()->resetAllCallsCost(); }, {1, 1, 1, 0}, {1, 1, 1, 1, 1, 1}},
    {"the whole call log", [](Handset &h) { return h.callLog()->resetAll(); }, {0, 0, 0, 0}, {0, 0, 0, 1, 1, 1}},
    {"the time of dialed calls",
     [](Handset &h) { return h.callLog()->resetDialedCallsTime(); },
     {1, 1, 1, 1},
     {1, 0, 1, 1, 1, 1}},
    {"the time of answered calls",
     [](Handset &h) { return h.callLog()->resetAnsweredCallsTime(); },
     {1, 1, 1, 1},
     {1, 1, 0, 1, 1, 1}},
    {"the time of all calls",
     [](Handset &h) { return h.callService()->resetCallTime(); },
     {1, 1, 1, 1},
     {1, 1, 1, 1, 0, 1}},
};

SixFigures masked(const SixFigures &figures, const SixFigures &mask)
{
    return {figures.last * mask.last, figures.dialed * mask.dialed, figures.answered * mask.answered,
            figures.data * mask.data, figures.all * mask.all,       figures.lifetime * mask.lifetime};
}

void resetRows()
{
    QTest::addColumn<int>("reset");
    for (int i = 0; i < static_cast<int>(std::size(resets)); ++i)
        QTest::newRow(resets[i].name) << i;
}

} // namespace

class TestContractCharging : public ChargingContract
{
    Q_OBJECT

private slots:
    void init() { openRig(); }
    void cleanup() { rig.reset(); }

    void aNewHandsetHasNoCosts();
    void aNewHandsetKnowsNothingOfACredit();
    void aCallCostsForItsOwnFigures_data();
    void aCallCostsForItsOwnFigures();
    void aCallThatWasNeverConnectedCostsNothing();
    void aRunningCallIsChargedUpToNow();
    void creditAndDepositAreToldAsTheyWerePaidIn();
    void aCallTakesItsCostOffTheCredit();
    void aResetZeroesItsOwnFiguresAndNothingElse_data() { resetRows(); }
    void aResetZeroesItsOwnFiguresAndNothingElse();
    void aResetDuringACallLetsTheRestOfItCost_data() { resetRows(); }
    void aResetDuringACallLetsTheRestOfItCost();
    void costsAndCreditSurviveARestart();
    void aFileAnswersToEveryOperationOrToNone();

private:
    void creditIsNotAvailable();
    int run(int reset) { return allowWrite() ? resets[reset].run(rig->handset()) : -1; }
};

void TestContractCharging::aNewHandsetHasNoCosts()
{
    QCOMPARE(costs(), FourCosts());
}

void TestContractCharging::aNewHandsetKnowsNothingOfACredit()
{
    creditIsNotAvailable();
}

// Who does not pay from the account is told nothing of it.
void TestContractCharging::creditIsNotAvailable()
{
    QByteArray text = "as it was";
    Date date = someDay;
    QCOMPARE(service().remainingCredit(text), int(NotAvailable));
    QCOMPARE(log().lastDeposit(text), int(NotAvailable));
    QCOMPARE(log().depositExpirationDate(date), int(NotAvailable));
    QCOMPARE(text, QByteArray("as it was"));
    QCOMPARE(date, someDay);
}

void TestContractCharging::aCallCostsForItsOwnFigures_data()
{
    QTest::addColumn<CallKind>("kind");
    QTest::addColumn<CallDirection>("direction");
    QTest::addColumn<FourCosts>("expected");

    QTest::newRow("a dialed voice call is dialed")
        << CallKind::Voice << CallDirection::Dialed << FourCosts{65, 65, 0, 65};
    QTest::newRow("an answered voice call is answered")
        << CallKind::Voice << CallDirection::Answered << FourCosts{65, 0, 65, 65};
    if (makeRig()->hasDataCalls())
        QTest::newRow("a data call is no dialed call")
            << CallKind::Data << CallDirection::Dialed << FourCosts{65, 0, 0, 65};
}

void TestContractCharging::aCallCostsForItsOwnFigures()
{
    QFETCH(CallKind, kind);
    QFETCH(CallDirection, direction);
    QVERIFY(rig->chargeUnits());
    QVERIFY(call(kind, direction, 65 * second));
    QTEST(costs(), "expected");
}

void TestContractCharging::aCallThatWasNeverConnectedCostsNothing()
{
    QVERIFY(rig->chargeUnits());
    QVERIFY(everyKindOfCall());
    for (const CallDirection direction : {CallDirection::Dialed, CallDirection::Answered}) {
        QVERIFY(rig->begin(CallKind::Voice, direction));
        rig->pass(50 * second);
        QVERIFY(rig->end());
        QCOMPARE(costs(), shown({3, 100, 20, 123}));
    }
}

void TestContractCharging::aRunningCallIsChargedUpToNow()
{
    QVERIFY(rig->chargeUnits());
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 10 * second));
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Answered));
    QCOMPARE(costs(), (FourCosts{10, 10, 0, 10}));
    QVERIFY(rig->connectCall());
    QCOMPARE(costs(), (FourCosts{0, 10, 0, 10}));
    rig->pass(4 * second);
    QCOMPARE(costs(), (FourCosts{4, 10, 4, 14}));
    rig->pass(2 * hour);
    QVERIFY(rig->end());
    QCOMPARE(costs(), (FourCosts{7204, 10, 7204, 7214}));
}

void TestContractCharging::creditAndDepositAreToldAsTheyWerePaidIn()
{
    Date date;
    QVERIFY(rig->payIn(QStringLiteral("50"), someDay));
    if (!rig->hasAccount())
        return creditIsNotAvailable();
    QCOMPARE(log().depositExpirationDate(date), int(Success));
    QCOMPARE(date, someDay);
    QCOMPARE(credit(), 50.0);
    QCOMPARE(deposit(), 50.0);
    const Date later{2028, 2, 29};
    QVERIFY(rig->payIn(QStringLiteral("20"), later));
    QCOMPARE(log().depositExpirationDate(date), int(Success));
    QCOMPARE(date, later);
    QCOMPARE(credit(), 70.0);
    QCOMPARE(deposit(), 20.0);
}

void TestContractCharging::aCallTakesItsCostOffTheCredit()
{
    QVERIFY(rig->chargeUnits());
    QVERIFY(rig->payIn(QStringLiteral("100"), someDay));
    QVERIFY(call(CallKind::Voice, CallDirection::Dialed, 30 * second));
    if (!rig->hasAccount())
        return creditIsNotAvailable();
    QCOMPARE(credit(), 70.0);
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Answered));
    QVERIFY(rig->connectCall());
    rig->pass(7 * second);
    QCOMPARE(credit(), 63.0);
    QVERIFY(rig->end());
    QCOMPARE(credit(), 63.0);
    QCOMPARE(deposit(), 100.0);
}

void TestContractCharging::aResetZeroesItsOwnFiguresAndNothingElse()
{
    QFETCH(int, reset);
    QVERIFY(rig->chargeUnits());
    QVERIFY(rig->payIn(QStringLiteral("1000"), someDay));
    if (rig->hasSimFiles())
        QCOMPARE(setLimit("5000"), int(Success));
    QVERIFY(everyKindOfCall());
    const FourCosts before = costs();
    const SixFigures timesBefore = figuresOf(rig->handset());
    QCOMPARE(before, shown({3, 100, 20, 123}));
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(run(reset), int(Success));
        QCOMPARE(costs(), masked(before, resets[reset].costsKept));
        QCOMPARE(figuresOf(rig->handset()), masked(timesBefore, resets[reset].timesKept));
        if (rig->hasAccount()) {
            QCOMPARE(credit(), 877.0);
            QCOMPARE(deposit(), 1000.0);
        }
        if (rig->hasSimFiles())
            QCOMPARE(limit(), (Limit{5000, true}));
    }
}

void TestContractCharging::aResetDuringACallLetsTheRestOfItCost()
{
    QFETCH(int, reset);
    QVERIFY(rig->chargeUnits());
    QVERIFY(everyKindOfCall());
    QVERIFY(rig->begin(CallKind::Voice, CallDirection::Dialed));
    QVERIFY(rig->connectCall());
    rig->pass(50 * second);
    const FourCosts before = costs();
    QCOMPARE(before, shown({50, 150, 20, 173}));
    QCOMPARE(run(reset), int(Success));
    FourCosts expected = masked(before, resets[reset].costsKept);
    QCOMPARE(costs(), expected);

    rig->pass(7 * second);
    expected.last += 7;
    expected.dialed += 7;
    expected.all += 7;
    QCOMPARE(costs(), expected);
    QVERIFY(rig->end());
    QCOMPARE(costs(), expected);
}

void TestContractCharging::costsAndCreditSurviveARestart()
{
    QVERIFY(rig->chargeUnits());
    QVERIFY(rig->payIn(QStringLiteral("500"), someDay));
    QVERIFY(everyKindOfCall());
    QCOMPARE(log().resetAnsweredCallsCost(), int(Success));
    for (int start = 0; start < 3; ++start) {
        QVERIFY(restart());
        QCOMPARE(costs(), (FourCosts{3, 100, 0, 123}));
        if (!rig->hasAccount())
            continue;
        QCOMPARE(credit(), 377.0);
        QCOMPARE(deposit(), 500.0);
        Date date;
        QCOMPARE(log().depositExpirationDate(date), int(Success));
        QCOMPARE(date, someDay);
    }
}

void TestContractCharging::aFileAnswersToEveryOperationOrToNone()
{
    const int expected = rig->hasSimFiles() ? Success : NotAvailable;
    quint8 rule = 99;
    for (const quint8 file : simFiles)
        QCOMPARE(advice().updateRule(file, rule), expected);
    QString maximum = QStringLiteral("as it was");
    QString price = maximum;
    QString currency = maximum;
    bool enabled = true;
    QCOMPARE(advice().meterMaximum(maximum, enabled), expected);
    QCOMPARE(advice().priceAndCurrency(price, currency), expected);
    if (!rig->hasSimFiles()) {
        QCOMPARE(rule, quint8{99});
        for (const QString &text : {maximum, price, currency})
            QCOMPARE(text, QStringLiteral("as it was"));
        QVERIFY(enabled);
    }
    QCOMPARE(setLimit("70"), expected);
    QCOMPARE(disableLimit(), expected);
    QCOMPARE(setPrice("0.25"), expected);
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), expected);
    QCOMPARE(advice().setChargeType(255), int(InvalidArgument));
    QCOMPARE(chargeType(), int(rig->hasSimFiles() ? AdviceOfCharge::InCurrency : AdviceOfCharge::InUnits));
}

KAV_TEST_GROUP(TestContractCharging, QCoreApplication);
#include "tst_contract_charging.moc"
