// What calls cost: the SIM's meter, the tariffs, the account, and the end of a call that nothing more may be charged
// for.
#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <functional>
#include <limits>

using namespace handset;
using namespace handset::test;
using LineState = simulated::SimulatedHandset::LineState;
using StopReason = simulated::Charging::StopReason;
using simulated::Account;

namespace {

constexpr Date someDay{2027, 3, 9};

charging::Tariff perSeconds(quint16 tenthsOfUnits, quint16 seconds, quint16 tenthsAtStart = 0)
{
    charging::Tariff tariff;
    tariff.unitsPerInterval = tenthsOfUnits;
    tariff.interval = static_cast<quint16>(seconds * 10);
    tariff.unitsAtStart = tenthsAtStart;
    return tariff;
}

/// What the four cost queries answer.
struct FourCosts {
    QByteArray last = "0.00";
    QByteArray dialed = "0.00";
    QByteArray answered = "0.00";
    QByteArray all = "0.00";

    friend bool operator==(const FourCosts &, const FourCosts &) = default;
};

char *toString(const FourCosts &costs)
{
    return QTest::toString(QStringLiteral("last %1, dialed %2, answered %3, all %4")
                               .arg(QString::fromLatin1(costs.last), QString::fromLatin1(costs.dialed),
                                    QString::fromLatin1(costs.answered), QString::fromLatin1(costs.all)));
}

FourCosts costsOf(const Phone &phone)
{
    FourCosts costs{"?", "?", "?", "?"};
    const bool done = phone.service().lastCallCost(costs.last) == Success &&
                      phone.log().dialedCallsCost(costs.dialed) == Success &&
                      phone.log().answeredCallsCost(costs.answered) == Success &&
                      phone.log().allCallsCost(costs.all) == Success;
    return done ? costs : FourCosts{"failed", "failed", "failed", "failed"};
}

QByteArray creditOf(const Phone &phone)
{
    QByteArray text;
    const int status = phone.service().remainingCredit(text);
    return status == Success ? text : "status " + QByteArray::number(status);
}

AdviceOfCharge &advice(const Phone &phone)
{
    return *phone.handset().adviceOfCharge();
}

/// Every call costs a unit a second.
bool makeExpensive(Phone &phone)
{
    return phone->charging()->setTariff(CallDirection::Dialed, perSeconds(10, 1)) == Success &&
           phone->charging()->setTariff(CallDirection::Answered, perSeconds(10, 1)) == Success;
}

} // namespace

class TestCharging : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aNewHandsetHasChargedNothing();
    void aDialedCallCostsAUnitForEveryCompleteInterval_data();
    void aDialedCallCostsAUnitForEveryCompleteInterval();
    void aCallCostsForItsOwnFigures_data();
    void aCallCostsForItsOwnFigures();
    void anAnsweredCallIsFreeUntilATariffSaysOtherwise();
    void aCallThatWasNeverConnectedCostsNothing();
    void theRunningCallIsCharged();
    void aTariffHoldsFromTheNextCallOn();
    void aTariffOutOfItsRangeIsRefused();
    void amountsFollowTheChargeType();
    void amountsFollowThePrice();
    void historyIsChargedAsIfItHadBeenMade();
    void aResetZeroesItsOwnCostAndNothingElse_data();
    void aResetZeroesItsOwnCostAndNothingElse();
    void aResetDuringACallLetsTheRestOfItCost_data();
    void aResetDuringACallLetsTheRestOfItCost();
    void theMeterIsResetOnlyAsTheSimAllows();
    void theMeterStopsAt24Bits();

    void aCallEndsWhenTheMeterReachesItsMaximum();
    void timeBeyondTheMaximumIsNotCountedBeforeTheEndIsNoticed();
    void noChargedCallBeginsAtTheMaximum();
    void aFreeCallGoesOnBeyondTheMaximum();
    void anEmergencyCallGoesOnBeyondTheMaximumAndCostsNothing_data();
    void anEmergencyCallGoesOnBeyondTheMaximumAndCostsNothing();
    void anIncomingCallFromAnEmergencyNumberIsCharged();
    void theWarningComesThirtySecondsBeforeTheEnd();
    void aLowerMaximumEndsTheRunningCall();
    void aHigherMaximumLetsTheRunningCallGoOn();
    void withoutAMaximumACallGoesOn();
    void aSetUpChargeBeyondTheMaximumEndsTheCallAtOnce();
    void theLineIsFreeAgainAfterTheEnd();

    void nothingIsKnownOfACreditThatWasNeverPaidIn();
    void aDepositCanBeSeenAndSpent();
    void aCallEndsWhenTheCreditIsUsedUp();
    void theNearerOfMaximumAndCreditEndsTheCall();
    void aDepositDuringACallLetsItGoOn();
    void whatIsNoDepositIsRefused_data();
    void whatIsNoDepositIsRefused();
    void theCreditStopsAtItsEnd();

    void everythingIsKeptOverARestart();
    void unitsAreOnTheDiskWithinASecond();
    void aFailedWriteLeavesUnitsDue();
    void unitsThatCannotBeWrittenAreNotTriedAtEveryTick();
    void aCrashAfterAResetOfATimeChargesTheWholeCall_data();
    void aCrashAfterAResetOfATimeChargesTheWholeCall();
    void whatAChargeLeavesAloneIsNotWritten();
    void aFailedWriteChangesNoSetting_data();
    void aFailedWriteChangesNoSetting();
    void aDamagedCardIsKeptAsideAndToldOnce();
    void aDamagedAccountIsKeptAsideAndTheCardStays_data();
    void aDamagedAccountIsKeptAsideAndTheCardStays();
    void aChangedAccountIsTold_data();
    void aChangedAccountIsTold();
    void anAccountOfTheFirstVersionIsRead();
    void whatIsMissingOfTheCardIsToldAndNeverNewInSilence_data();
    void whatIsMissingOfTheCardIsToldAndNeverNewInSilence();
    void aCardSetBackToNeverWrittenIsToldOnce();
    void aCardSetBackToNeverWrittenIsToldWhereNothingWasChargedAsWell();
    void aCardThatAnEarlierProgramHasNotWrittenYetIsBelievedOnce();
    void anAccountThatHadACheckIsNeverWithoutOneInSilence_data();
    void anAccountThatHadACheckIsNeverWithoutOneInSilence();
    void aCardThatWasNeverChangedIsNotMissing();
    void aDamagedLogKeepsCostsAndCard();
    void everyChangeIsSignalledOnce();
};

void TestCharging::aNewHandsetHasChargedNothing()
{
    const Phone phone;
    QCOMPARE(costsOf(phone), FourCosts());
    QCOMPARE(phone->charging()->unitsLeft(), std::nullopt);
    QCOMPARE(phone->charging()->msLeft(), std::nullopt);
    QCOMPARE(phone->charging()->runningUnits(), quint64{0});
    QCOMPARE(phone->charging()->stopReason(), StopReason::None);
    QCOMPARE(phone->simCard().card().acm(), 0U);
}

void TestCharging::aDialedCallCostsAUnitForEveryCompleteInterval_data()
{
    QTest::addColumn<qint64>("ms");
    QTest::addColumn<QByteArray>("cost");
    QTest::newRow("a tenth less than one") << qint64{9'900} << QByteArray("0.00");
    QTest::newRow("a millisecond less than one") << qint64{9'999} << QByteArray("0.00");
    QTest::newRow("exactly one") << qint64{10'000} << QByteArray("1.00");
    QTest::newRow("nearly two") << qint64{19'999} << QByteArray("1.00");
    QTest::newRow("an hour") << 60 * minute << QByteArray("360.00");
}

void TestCharging::aDialedCallCostsAUnitForEveryCompleteInterval()
{
    QFETCH(qint64, ms);
    QFETCH(QByteArray, cost);
    Phone phone;
    QVERIFY(phone.dialed(ms));
    QCOMPARE(costsOf(phone), (FourCosts{cost, cost, "0.00", cost}));
    QCOMPARE(phone->simCard().card().acm(), cost.toDouble());
}

void TestCharging::aCallCostsForItsOwnFigures_data()
{
    QTest::addColumn<CallKind>("kind");
    QTest::addColumn<CallDirection>("direction");
    QTest::addColumn<QList<QByteArray>>("costs");
    const QByteArray none = "0.00";
    const QByteArray five = "5.00";
    QTest::newRow("a dialed call") << CallKind::Voice << CallDirection::Dialed
                                   << QList<QByteArray>{five, five, none, five};
    QTest::newRow("an answered call") << CallKind::Voice << CallDirection::Answered
                                      << QList<QByteArray>{five, none, five, five};
    QTest::newRow("a data call") << CallKind::Data << CallDirection::Dialed
                                 << QList<QByteArray>{five, none, none, five};
}

void TestCharging::aCallCostsForItsOwnFigures()
{
    QFETCH(CallKind, kind);
    QFETCH(CallDirection, direction);
    QFETCH(QList<QByteArray>, costs);
    Phone phone;
    QVERIFY(makeExpensive(phone));
    const bool isDialed = direction == CallDirection::Dialed;
    QVERIFY(isDialed ? phone.dial(kind) : phone.answer());
    const FourCosts expected{costs[0], costs[1], costs[2], costs[3]};
    phone.clock->advance(5 * second);
    QCOMPARE(costsOf(phone), expected); // due
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(costsOf(phone), expected); // written
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(costsOf(phone), expected); // over
}

void TestCharging::anAnsweredCallIsFreeUntilATariffSaysOtherwise()
{
    Phone phone;
    QVERIFY(phone.answered(hour));
    QCOMPARE(costsOf(phone), FourCosts());
    QCOMPARE(phone->charging()->setTariff(CallDirection::Answered, perSeconds(5, 30)), int(Success));
    QVERIFY(phone.answered(2 * minute));
    QCOMPARE(costsOf(phone), (FourCosts{"2.00", "0.00", "2.00", "2.00"}));
}

void TestCharging::aCallThatWasNeverConnectedCostsNothing()
{
    Phone phone;
    QCOMPARE(phone->charging()->setTariff(CallDirection::Dialed, perSeconds(10, 1, 100)), int(Success));
    QCOMPARE(phone->dial(QStringLiteral("1"), CallKind::Voice), int(Success));
    phone.clock->advance(minute);
    QCOMPARE(costsOf(phone), FourCosts());
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(costsOf(phone), FourCosts());
}

void TestCharging::theRunningCallIsCharged()
{
    Phone phone;
    QVERIFY(phone.dialed(30 * second));
    QVERIFY(phone.dial());
    QCOMPARE(costsOf(phone), (FourCosts{"0.00", "3.00", "0.00", "3.00"}));
    phone.clock->advance(25 * second);
    QCOMPARE(phone->charging()->runningUnits(), quint64{2});
    QCOMPARE(costsOf(phone), (FourCosts{"2.00", "5.00", "0.00", "5.00"}));
    QCOMPARE(phone->checkpoint(), int(Success));
    phone.clock->advance(5 * second);
    QCOMPARE(phone->charging()->runningUnits(), quint64{3});
    QCOMPARE(costsOf(phone), (FourCosts{"3.00", "6.00", "0.00", "6.00"}));
}

void TestCharging::aTariffHoldsFromTheNextCallOn()
{
    Phone phone;
    QVERIFY(phone.dial());
    phone.clock->advance(15 * second);
    QCOMPARE(phone->charging()->setTariff(CallDirection::Dialed, perSeconds(10, 1)), int(Success));
    QCOMPARE(phone->charging()->tariff(CallDirection::Dialed), perSeconds(10, 1));
    phone.clock->advance(5 * second);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(costsOf(phone).last, QByteArray("2.00"));
    QVERIFY(phone.dialed(20 * second));
    QCOMPARE(costsOf(phone).last, QByteArray("20.00"));
}

void TestCharging::aTariffOutOfItsRangeIsRefused()
{
    Phone phone;
    const charging::Tariff before = phone->charging()->tariff(CallDirection::Answered);
    charging::Tariff tariff;
    tariff.scale = charging::Tariff::greatestElement + 1;
    QCOMPARE(phone->charging()->setTariff(CallDirection::Answered, tariff), int(InvalidArgument));
    QCOMPARE(phone->charging()->tariff(CallDirection::Answered), before);
}

void TestCharging::amountsFollowTheChargeType()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(advice(phone).setPriceAndCurrency(QStringLiteral("0.23"), QStringLiteral("EUR")), int(Success));
    QVERIFY(phone.dialed(12 * second));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    QCOMPARE(costsOf(phone), (FourCosts{"12.00", "12.00", "0.00", "12.00"}));
    QCOMPARE(creditOf(phone), QByteArray("100.00"));
    QCOMPARE(advice(phone).setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(costsOf(phone), (FourCosts{"2.76", "2.76", "0.00", "2.76"}));
    QCOMPARE(creditOf(phone), QByteArray("23.00"));
    QByteArray deposit;
    QCOMPARE(phone.log().lastDeposit(deposit), int(Success));
    QCOMPARE(deposit, QByteArray("23.00"));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("2.30"), someDay), int(Success));
    QCOMPARE(phone->charging()->account()->credit, quint64{110});
    QCOMPARE(advice(phone).setChargeType(2), int(InvalidArgument));
    quint8 type = 9;
    QCOMPARE(advice(phone).chargeType(type), int(Success));
    QCOMPARE(type, quint8{1});
}

void TestCharging::amountsFollowThePrice()
{
    Phone phone;
    QVERIFY(phone.dialed(40 * second));
    QCOMPARE(advice(phone).setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(costsOf(phone).last, QByteArray("0.00"));
    QCOMPARE(advice(phone).setPriceAndCurrency(QStringLiteral("1.2345"), QStringLiteral("EUR")), int(Success));
    QString price;
    QString currency;
    QCOMPARE(advice(phone).priceAndCurrency(price, currency), int(Success));
    QCOMPARE(price, QStringLiteral("1.235")); // EPPU has 12 bits
    QCOMPARE(currency, QStringLiteral("EUR"));
    QCOMPARE(costsOf(phone).last, QByteArray("4.94"));
}

void TestCharging::historyIsChargedAsIfItHadBeenMade()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("20")), int(Success));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("25"), someDay), int(Success));
    QCOMPARE(phone->addHistory({{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 0, 10 * second, 999},
                                {CallKind::Data, CallDirection::Dialed, QStringLiteral("2"), 0, 5 * second},
                                {CallKind::Voice, CallDirection::Dialed, QStringLiteral("112"), 0, 7 * second},
                                {CallKind::Voice, CallDirection::Answered, {}, 0, 15 * second},
                                {CallKind::Voice, CallDirection::Dialed, {}, 0, 0}}),
             int(Success));
    QCOMPARE(costsOf(phone), (FourCosts{"15.00", "10.00", "15.00", "30.00"}));
    QCOMPARE(creditOf(phone), QByteArray("0.00"));
}

void TestCharging::aResetZeroesItsOwnCostAndNothingElse_data()
{
    QTest::addColumn<std::function<int(CallLog &)>>("reset");
    QTest::addColumn<QList<QByteArray>>("costs");
    QTest::addColumn<bool>("timesToo");
    using Reset = std::function<int(CallLog &)>;
    const QByteArray none = "0.00";
    QTest::newRow("dialed calls") << Reset([](CallLog &log) { return log.resetDialedCallsCost(); })
                                  << QList<QByteArray>{"4.00", none, "4.00", "7.00"} << false;
    QTest::newRow("answered calls") << Reset([](CallLog &log) { return log.resetAnsweredCallsCost(); })
                                    << QList<QByteArray>{"4.00", "3.00", none, "7.00"} << false;
    QTest::newRow("all calls") << Reset([](CallLog &log) { return log.resetAllCallsCost(); })
                               << QList<QByteArray>{"4.00", "3.00", "4.00", none} << false;
    QTest::newRow("the whole call log")
        << Reset([](CallLog &log) { return log.resetAll(); }) << QList<QByteArray>{none, none, none, none} << true;
}

void TestCharging::aResetZeroesItsOwnCostAndNothingElse()
{
    using Reset = std::function<int(CallLog &)>;
    QFETCH(Reset, reset);
    QFETCH(QList<QByteArray>, costs);
    QFETCH(bool, timesToo);
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("50"), someDay), int(Success));
    QVERIFY(phone.dialed(3 * second));
    QVERIFY(phone.answered(4 * second));
    const SixFigures before = phone.figures();
    QCOMPARE(reset(phone.log()), int(Success));
    QCOMPARE(costsOf(phone), (FourCosts{costs[0], costs[1], costs[2], costs[3]}));
    QCOMPARE(creditOf(phone), QByteArray("43.00"));
    QCOMPARE(phone.figures(), timesToo ? (SixFigures{0, 0, 0, 0, before.all, before.lifetime}) : before);
}

void TestCharging::aResetDuringACallLetsTheRestOfItCost_data()
{
    aResetZeroesItsOwnCostAndNothingElse_data();
}

void TestCharging::aResetDuringACallLetsTheRestOfItCost()
{
    using Reset = std::function<int(CallLog &)>;
    QFETCH(Reset, reset);
    QFETCH(QList<QByteArray>, costs);
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.dial());
    phone.clock->advance(3 * second);
    QCOMPARE(reset(phone.log()), int(Success));
    phone.clock->advance(2 * second);
    QCOMPARE(phone->hangUp(), int(Success));
    const auto after = [&](int figure) {
        return costs[figure] == "0.00" ? QByteArray("2.00") : QByteArray("5.00");
    };
    QCOMPARE(costsOf(phone), (FourCosts{after(0), after(1), "0.00", after(3)}));
}

void TestCharging::theMeterIsResetOnlyAsTheSimAllows()
{
    Phone phone;
    QVERIFY(phone.dialed(minute));
    const FourCosts before = costsOf(phone);
    const SixFigures timesBefore = phone.figures();
    for (const quint8 rule : {AdviceOfCharge::NoUpdate, AdviceOfCharge::UpdateUnderPin2}) {
        QCOMPARE(phone->simCard().setUpdateRule(AdviceOfCharge::AcmFile, rule), int(Success));
        QCOMPARE(phone.log().resetAllCallsCost(), int(NotAllowed));
        QCOMPARE(phone.log().resetAll(), int(NotAllowed));
        QCOMPARE(costsOf(phone), before);
        QCOMPARE(phone.figures(), timesBefore);
    }
    QCOMPARE(phone.log().resetDialedCallsCost(), int(Success)); // not a file of the SIM
    QCOMPARE(phone->simCard().setPin2Enabled(false), int(Success));
    QCOMPARE(phone.log().resetAll(), int(Success));
    QCOMPARE(costsOf(phone), FourCosts());
}

void TestCharging::theMeterStopsAt24Bits()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.dialed(qint64{charging::maxUnits - 1} * second));
    QCOMPARE(phone->simCard().card().acm(), charging::maxUnits - 1);
    QVERIFY(phone.dialed(5 * second));
    QCOMPARE(phone->simCard().card().acm(), charging::maxUnits);
    QCOMPARE(costsOf(phone), (FourCosts{"5.00", "16777219.00", "0.00", "16777215.00"}));
    QVERIFY(phone.dialed(std::numeric_limits<qint64>::max() / 4));
    QCOMPARE(costsOf(phone).last, QByteArray("16777215.00"));
    QCOMPARE(phone->simCard().card().acm(), charging::maxUnits);
}

// --- the maximum of the meter

void TestCharging::aCallEndsWhenTheMeterReachesItsMaximum()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.dialed(5 * second));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("12")), int(Success));
    QVERIFY(phone.dial());
    QCOMPARE(phone->charging()->unitsLeft(), 7U);
    phone.clock->advance(6900);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Connected);
    QCOMPARE(phone->charging()->stopReason(), StopReason::None);
    phone.clock->advance(5 * second); // late
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Idle);
    QCOMPARE(phone->charging()->stopReason(), StopReason::LimitReached);
    QCOMPARE(costsOf(phone), (FourCosts{"7.00", "12.00", "0.00", "12.00"}));
    QCOMPARE(phone.figures().last, quint64{7});
    phone.close();
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls[1].durationMs, qint64{7000});
    QCOMPARE(calls[1].state, 1); // finished
}

void TestCharging::timeBeyondTheMaximumIsNotCountedBeforeTheEndIsNoticed()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("10")), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(hour);
    QCOMPARE(phone->connectedMs(), 10 * second);
    QCOMPARE(phone.figures().all, quint64{10});
    QCOMPARE(costsOf(phone).all, QByteArray("10.00"));
    QCOMPARE(phone->charging()->msLeft(), qint64{0});
    QCOMPARE(phone->charging()->unitsLeft(), 0U);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone.figures().all, quint64{10});
}

void TestCharging::noChargedCallBeginsAtTheMaximum()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.dialed(5 * second));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("5")), int(Success));
    QCOMPARE(phone->dial(QStringLiteral("1"), CallKind::Voice), int(NotAllowed));
    QCOMPARE(phone->dial(QStringLiteral("1"), CallKind::Data), int(NotAllowed));
    QCOMPARE(phone->lineState(), LineState::Idle);
    QCOMPARE(phone->ring(QStringLiteral("1")), int(Success));
    QCOMPARE(phone->answer(), int(NotAllowed));
    QCOMPARE(phone->lineState(), LineState::Ringing);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone.log().resetAllCallsCost(), int(Success));
    QVERIFY(phone.dialed(3 * second));
    QCOMPARE(costsOf(phone).all, QByteArray("3.00"));
}

void TestCharging::aFreeCallGoesOnBeyondTheMaximum()
{
    Phone phone;
    QVERIFY(phone.dialed(minute));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("6")), int(Success));
    QVERIFY(phone.answer());
    QCOMPARE(phone->charging()->msLeft(), std::nullopt);
    phone.clock->advance(hour);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Connected);
    QCOMPARE(phone.figures().answered, quint64{3600});
}

void TestCharging::anEmergencyCallGoesOnBeyondTheMaximumAndCostsNothing_data()
{
    QTest::addColumn<QString>("number");
    for (const char *number : simulated::SimulatedHandset::emergencyNumbers)
        QTest::newRow(number) << QString::fromLatin1(number);
}

void TestCharging::anEmergencyCallGoesOnBeyondTheMaximumAndCostsNothing()
{
    QFETCH(QString, number);
    Phone phone;
    QVERIFY(phone.dialed(minute));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("6")), int(Success));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("1"), someDay), int(Success));
    QVERIFY(phone.dial(CallKind::Voice, number));
    phone.clock->advance(hour);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Connected);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(phone.figures().last, quint64{3600});
    QCOMPARE(costsOf(phone), (FourCosts{"0.00", "6.00", "0.00", "6.00"}));
    QCOMPARE(creditOf(phone), QByteArray("1.00"));
}

void TestCharging::anIncomingCallFromAnEmergencyNumberIsCharged()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.answered(3 * second, QStringLiteral("112")));
    QCOMPARE(costsOf(phone).answered, QByteArray("3.00"));
}

void TestCharging::theWarningComesThirtySecondsBeforeTheEnd()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("100")), int(Success));
    QVERIFY(phone.dial());
    QCOMPARE(phone->charging()->msLeft(), 100 * second);
    phone.clock->advance(69'999);
    QCOMPARE(phone->charging()->msLeft(), qint64{30'001});
    QVERIFY(*phone->charging()->msLeft() > simulated::Charging::warningMs);
    phone.clock->advance(1);
    QCOMPARE(phone->charging()->msLeft(), simulated::Charging::warningMs);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->charging()->msLeft(), simulated::Charging::warningMs);
}

void TestCharging::aLowerMaximumEndsTheRunningCall()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.dial());
    phone.clock->advance(8500);
    QSignalSpy spy(phone.operator->(), &simulated::SimulatedHandset::changed);
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("5")), int(Success));
    QCOMPARE(phone->lineState(), LineState::Idle);
    QCOMPARE(phone->charging()->stopReason(), StopReason::LimitReached);
    QVERIFY(spy.count() >= 1);
    QCOMPARE(phone.figures().last, quint64{8}); // what was told is not taken back
    QCOMPARE(costsOf(phone), (FourCosts{"8.00", "8.00", "0.00", "8.00"}));
}

void TestCharging::aHigherMaximumLetsTheRunningCallGoOn()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("10")), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(9 * second);
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("20")), int(Success));
    phone.clock->advance(10 * second);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Connected);
    QCOMPARE(phone->charging()->msLeft(), 1 * second);
}

void TestCharging::withoutAMaximumACallGoesOn()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("10")), int(Success));
    QVERIFY(phone.dial());
    QCOMPARE(advice(phone).disableMeterMaximum(), int(Success));
    phone.clock->advance(hour);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Connected);
    QCOMPARE(costsOf(phone).last, QByteArray("3600.00"));
}

void TestCharging::aSetUpChargeBeyondTheMaximumEndsTheCallAtOnce()
{
    Phone phone;
    QCOMPARE(phone->charging()->setTariff(CallDirection::Dialed, perSeconds(10, 1, 50)), int(Success));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("3")), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(second);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Idle);
    QCOMPARE(phone.figures().last, quint64{0});
    QCOMPARE(costsOf(phone).last, QByteArray("5.00"));
}

void TestCharging::theLineIsFreeAgainAfterTheEnd()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("2")), int(Success));
    QVERIFY(phone.dial(CallKind::Data));
    phone.clock->advance(minute);
    QCOMPARE(phone->checkpoint(), int(Success));
    quint8 status = 99;
    QCOMPARE(phone.data().callStatus(status), int(Success));
    QCOMPARE(status, quint8{DataCalls::Released});
    QVERIFY(phone->number().isNull());
    QCOMPARE(advice(phone).disableMeterMaximum(), int(Success));
    QVERIFY(phone.dial());
    QCOMPARE(phone->charging()->stopReason(), StopReason::None);
    QCOMPARE(phone->charging()->runningUnits(), quint64{0});
}

// --- the account

void TestCharging::nothingIsKnownOfACreditThatWasNeverPaidIn()
{
    const Phone phone;
    QByteArray text = "as before";
    Date date{1999, 12, 31};
    QCOMPARE(phone.service().remainingCredit(text), int(NotAvailable));
    QCOMPARE(phone.log().lastDeposit(text), int(NotAvailable));
    QCOMPARE(phone.log().depositExpirationDate(date), int(NotAvailable));
    QCOMPARE(text, QByteArray("as before"));
    QCOMPARE(date, (Date{1999, 12, 31}));
    QCOMPARE(phone->charging()->account(), std::nullopt);
}

void TestCharging::aDepositCanBeSeenAndSpent()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("30"), someDay), int(Success));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("20.9"), Date{2028, 2, 29}), int(Success));
    QByteArray deposit;
    Date expires;
    QCOMPARE(phone.log().lastDeposit(deposit), int(Success));
    QCOMPARE(deposit, QByteArray("20.00"));
    QCOMPARE(phone.log().depositExpirationDate(expires), int(Success));
    QCOMPARE(expires, (Date{2028, 2, 29}));
    QVERIFY(phone.dial());
    phone.clock->advance(8 * second);
    QCOMPARE(creditOf(phone), QByteArray("42.00")); // due
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(creditOf(phone), QByteArray("42.00")); // paid
    QCOMPARE(phone->charging()->account(), (Account{42, 20, {2028, 2, 29}}));
}

void TestCharging::aCallEndsWhenTheCreditIsUsedUp()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("9"), someDay), int(Success));
    QVERIFY(phone.dial());
    QCOMPARE(phone->charging()->msLeft(), 9 * second);
    phone.clock->advance(minute);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->lineState(), LineState::Idle);
    QCOMPARE(phone->charging()->stopReason(), StopReason::CreditUsedUp);
    QCOMPARE(creditOf(phone), QByteArray("0.00")); // known, and nothing
    QCOMPARE(phone->dial(QStringLiteral("1"), CallKind::Voice), int(NotAllowed));
    QVERIFY(phone.dial(CallKind::Voice, QStringLiteral("112")));
}

void TestCharging::theNearerOfMaximumAndCreditEndsTheCall()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("9"), someDay), int(Success));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("4")), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(minute);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->charging()->stopReason(), StopReason::LimitReached);
    QCOMPARE(creditOf(phone), QByteArray("5.00"));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("100")), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(minute);
    QCOMPARE(phone->checkpoint(), int(Success));
    QCOMPARE(phone->charging()->stopReason(), StopReason::CreditUsedUp);
    QCOMPARE(costsOf(phone).all, QByteArray("9.00"));
}

void TestCharging::aDepositDuringACallLetsItGoOn()
{
    Phone phone;
    QVERIFY(makeExpensive(phone));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("10"), someDay), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(9 * second);
    QCOMPARE(phone->charging()->topUp(QStringLiteral("10"), someDay), int(Success));
    QCOMPARE(phone->charging()->msLeft(), 11 * second);
    QCOMPARE(creditOf(phone), QByteArray("11.00"));
}

void TestCharging::whatIsNoDepositIsRefused_data()
{
    QTest::addColumn<QString>("amount");
    QTest::addColumn<int>("month");
    QTest::newRow("nothing") << QString() << 1;
    QTest::newRow("no number") << QStringLiteral("ten") << 1;
    QTest::newRow("less than nothing") << QStringLiteral("-5") << 1;
    QTest::newRow("zero") << QStringLiteral("0.00") << 1;
    QTest::newRow("less than a unit") << QStringLiteral("0.99") << 1;
    QTest::newRow("more than 24 bits") << QStringLiteral("16777216") << 1;
    QTest::newRow("a day that does not exist") << QStringLiteral("10") << 13;
}

void TestCharging::whatIsNoDepositIsRefused()
{
    QFETCH(QString, amount);
    QFETCH(int, month);
    const Phone phone;
    const Date expires{2027, static_cast<quint8>(month), 1};
    QCOMPARE(phone->charging()->topUp(amount, expires), int(InvalidArgument));
    QCOMPARE(phone->charging()->account(), std::nullopt);
}

void TestCharging::theCreditStopsAtItsEnd()
{
    const Phone phone;
    for (int i = 0; i < 257; ++i)
        QCOMPARE(phone->charging()->topUp(QStringLiteral("16777215"), someDay), int(Success));
    QCOMPARE(phone->charging()->account()->credit, Account::greatestCredit);
    QCOMPARE(creditOf(phone), QByteArray("4294967295.00"));
}

// --- what is kept

void TestCharging::everythingIsKeptOverARestart()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(makeExpensive(phone));
        QCOMPARE(advice(phone).setPriceAndCurrency(QStringLiteral("0.05"), QStringLiteral("GBP")), int(Success));
        QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("500")), int(Success));
        QCOMPARE(advice(phone).setChargeType(AdviceOfCharge::InCurrency), int(Success));
        QCOMPARE(phone->charging()->topUp(QStringLiteral("20.00"), someDay), int(Success));
        QCOMPARE(phone->simCard().setUpdateRule(AdviceOfCharge::PuctFile, 4), int(Success));
        QVERIFY(phone.dialed(20 * second));
        QVERIFY(phone.answered(40 * second));
    }
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.isEmpty(), qPrintable(phone.opened.notice));
    QCOMPARE(costsOf(phone), (FourCosts{"2.00", "1.00", "2.00", "3.00"}));
    QCOMPARE(creditOf(phone), QByteArray("17.00"));
    QCOMPARE(phone->charging()->account(), (Account{340, 400, someDay}));
    QCOMPARE(phone->charging()->tariff(CallDirection::Answered), perSeconds(10, 1));
    QString maximum;
    bool enabled = false;
    QCOMPARE(advice(phone).meterMaximum(maximum, enabled), int(Success));
    QCOMPARE(maximum, QStringLiteral("25.00"));
    QVERIFY(enabled);
    QCOMPARE(phone->simCard().card().acm(), 60U);
    quint8 rule = 0;
    QCOMPARE(advice(phone).updateRule(AdviceOfCharge::PuctFile, rule), int(Success));
    QCOMPARE(rule, quint8{4});
}

void TestCharging::unitsAreOnTheDiskWithinASecond()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.dial());
    phone.clock->advance(4 * second);
    const auto unitsOnDisk = [&] {
        return LogFile(state.database()).value(QStringLiteral("SELECT units FROM costs WHERE counter = 'dialed'"));
    };
    QCOMPARE(unitsOnDisk(), QVariant(0));
    auto *timer = phone->findChild<QTimer *>();
    QVERIFY(timer->isActive());
    QVERIFY(timer->interval() <= second);
    QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
    QCOMPARE(unitsOnDisk(), QVariant(4));
    QCOMPARE(LogFile(state.database()).value(QStringLiteral("SELECT units FROM calls")), QVariant(4));
}

// A locked log holds each attempt up for a second: with one a second nobody could use the screens.
void TestCharging::unitsThatCannotBeWrittenAreNotTriedAtEveryTick()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(makeExpensive(phone));
    QVERIFY(phone.dial());
    auto *timer = phone->findChild<QTimer *>();
    const LogFile file(state.database());
    QVERIFY(file.run(QStringLiteral("CREATE TRIGGER full BEFORE UPDATE ON costs BEGIN"
                                    " SELECT RAISE(ABORT, 'full'); END")));
    for (int attempt = 0; attempt < 3; ++attempt) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("The call log failed: full")));
        for (int tick = 0; tick < 4; ++tick) {
            phone.clock->advance(second);
            QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
        }
    }
    QVERIFY(file.run(QStringLiteral("DROP TRIGGER full")));
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(costsOf(phone), (FourCosts{"12.00", "12.00", "0.00", "12.00"}));
}

void TestCharging::aFailedWriteLeavesUnitsDue()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(makeExpensive(phone));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(4 * second);
    const LogFile file(state.database());
    QVERIFY(file.run(QStringLiteral("CREATE TRIGGER full BEFORE UPDATE ON costs BEGIN"
                                    " SELECT RAISE(ABORT, 'full'); END")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("The call log failed: full")));
    QCOMPARE(phone->checkpoint(), int(StorageFailed));
    QCOMPARE(costsOf(phone), (FourCosts{"4.00", "4.00", "0.00", "4.00"})); // still due
    QCOMPARE(phone->simCard().card().acm(), 0U);
    QVERIFY(file.run(QStringLiteral("DROP TRIGGER full")));
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(costsOf(phone), (FourCosts{"4.00", "4.00", "0.00", "4.00"}));
    QCOMPARE(phone->simCard().card().acm(), 4U);
    QCOMPARE(creditOf(phone), QByteArray("96.00"));
}

void TestCharging::aCrashAfterAResetOfATimeChargesTheWholeCall_data()
{
    QTest::addColumn<std::function<int(Phone &)>>("reset");
    using Reset = std::function<int(Phone &)>;
    const auto row = [](const char *name, const Reset &reset) { QTest::newRow(name) << reset; };
    row("dialed calls", [](Phone &p) { return p.log().resetDialedCallsTime(); });
    row("answered calls", [](Phone &p) { return p.log().resetAnsweredCallsTime(); });
    row("data calls", [](Phone &p) { return p.data().resetTotalDuration(); });
    row("all calls", [](Phone &p) { return p.service().resetCallTime(); });
}

void TestCharging::aCrashAfterAResetOfATimeChargesTheWholeCall()
{
    using Reset = std::function<int(Phone &)>;
    QFETCH(Reset, reset);
    const StateDir state;
    const QString copy = state.sibling(QStringLiteral("crashed"));
    Phone phone(state.path());
    QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    QVERIFY(phone.dial());
    phone.clock->advance(40 * second);
    QCOMPARE(reset(phone), int(Success));
    QVERIFY(copyState(state.path(), copy));
    const LogFile crashed(copy + QStringLiteral("/calllog.db"));
    QCOMPARE(crashed.value(QStringLiteral("SELECT duration_ms FROM calls")), QVariant(40 * second));
    QCOMPARE(crashed.value(QStringLiteral("SELECT units FROM calls")), QVariant(4));
    QCOMPARE(costsOf(Phone(copy)), (FourCosts{"4.00", "4.00", "0.00", "4.00"}));
    QCOMPARE(creditOf(Phone(copy)), QByteArray("96.00"));
    phone.clock->advance(20 * second);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(costsOf(phone), (FourCosts{"6.00", "6.00", "0.00", "6.00"})); // and not twice
    QCOMPARE(creditOf(phone), QByteArray("94.00"));
}

void TestCharging::whatAChargeLeavesAloneIsNotWritten()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(makeExpensive(phone));
    const LogFile file(state.database());
    for (const char *change : {"INSERT", "UPDATE"})
        QVERIFY(file.run(QStringLiteral("CREATE TRIGGER charging_%1 BEFORE %1 ON kept WHEN NEW.name = 'charging'"
                                        " BEGIN SELECT RAISE(ABORT, 'written'); END")
                             .arg(QLatin1String(change))));
    QVERIFY(phone.dialed(4 * second));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("500")), int(Success));
    QCOMPARE(phone->simCard().card().acm(), 4U);
    const QVariant card = file.value(QStringLiteral("SELECT hex(content) FROM kept WHERE name = 'card'"));
    QCOMPARE(phone->simCard().powerCycle(), int(Success)); // nothing of that outlasts it anyway
    QCOMPARE(phone->charging()->setTariff(CallDirection::Dialed, phone->charging()->tariff(CallDirection::Dialed)),
             int(Success));
    QCOMPARE(file.value(QStringLiteral("SELECT hex(content) FROM kept WHERE name = 'card'")), card);
}

void TestCharging::aFailedWriteChangesNoSetting_data()
{
    QTest::addColumn<std::function<int(Phone &)>>("operation");
    using Operation = std::function<int(Phone &)>;
    const auto row = [](const char *name, const Operation &operation) { QTest::newRow(name) << operation; };
    row("the maximum", [](Phone &p) { return advice(p).setMeterMaximum(QStringLiteral("7")); });
    row("no maximum", [](Phone &p) { return advice(p).disableMeterMaximum(); });
    row("the charge type", [](Phone &p) { return advice(p).setChargeType(1); });
    row("price and currency",
        [](Phone &p) { return advice(p).setPriceAndCurrency(QStringLiteral("2"), QStringLiteral("USD")); });
    row("the meter", [](Phone &p) { return p.log().resetAllCallsCost(); });
    row("the whole call log", [](Phone &p) { return p.log().resetAll(); });
    row("a tariff", [](Phone &p) { return p->charging()->setTariff(CallDirection::Dialed, perSeconds(1, 1)); });
    row("a deposit", [](Phone &p) { return p->charging()->topUp(QStringLiteral("7"), someDay); });
    row("an update rule", [](Phone &p) { return p->simCard().setUpdateRule(AdviceOfCharge::AcmFile, 6); });
    row("asking for PIN2", [](Phone &p) { return p->simCard().setPin2Enabled(false); });
    row("a history", [](Phone &p) {
        return p->addHistory({{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 0, 10 * second}});
    });
}

void TestCharging::aFailedWriteChangesNoSetting()
{
    using Operation = std::function<int(Phone &)>;
    QFETCH(Operation, operation);
    const StateDir state;
    Phone phone(state.path());
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("500")), int(Success));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    QVERIFY(phone.dialed(50 * second));
    const charging::SimFiles filesBefore = phone->simCard().card().files();
    const charging::Pin2Record pinBefore = phone->simCard().card().pin2().record();
    const FourCosts costsBefore = costsOf(phone);
    const SixFigures timesBefore = phone.figures();
    const std::optional<Account> accountBefore = phone->charging()->account();
    const charging::Tariff tariffBefore = phone->charging()->tariff(CallDirection::Dialed);
    const LogFile file(state.database());
    for (const char *change : {"INSERT", "UPDATE"})
        QVERIFY(file.run(QStringLiteral("CREATE TRIGGER full_%1 BEFORE %1 ON kept BEGIN"
                                        " SELECT RAISE(ABORT, 'full'); END")
                             .arg(QLatin1String(change))));
    QSignalSpy spy(phone.operator->(), &simulated::SimulatedHandset::changed);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("The call log failed: full")));
    QCOMPARE(operation(phone), int(StorageFailed));
    QCOMPARE(phone->simCard().card().files(), filesBefore);
    QCOMPARE(phone->simCard().card().pin2().record(), pinBefore);
    QCOMPARE(costsOf(phone), costsBefore);
    QCOMPARE(phone.figures(), timesBefore);
    QCOMPARE(phone->charging()->account(), accountBefore);
    QCOMPARE(phone->charging()->tariff(CallDirection::Dialed), tariffBefore);
    quint8 type = 9;
    QCOMPARE(advice(phone).chargeType(type), int(Success));
    QCOMPARE(type, quint8{0});
    QCOMPARE(spy.count(), 0);
}

void TestCharging::aDamagedCardIsKeptAsideAndToldOnce()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dialed(50 * second));
        QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    }
    {
        const LogFile file(state.database());
        QVERIFY(file.run(QStringLiteral("UPDATE kept SET content = x'4B53494D0107' WHERE name = 'card'")));
    }
    {
        const Phone phone(state.path());
        QCOMPARE(phone.opened.notice,
                 QStringLiteral("The SIM card could not be read; a new one was begun and the old "
                                "one kept as \"card-kept-1\"."));
        QCOMPARE(phone->simCard().card().acm(), 0U);
        QCOMPARE(creditOf(phone), QByteArray("100.00"));
        QCOMPARE(costsOf(phone), (FourCosts{"5.00", "5.00", "0.00", "0.00"}));
    }
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.isEmpty(), qPrintable(phone.opened.notice));
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT hex(content) FROM kept WHERE name = 'card-kept-1'")),
             QVariant(QStringLiteral("4B53494D0107")));
}

void TestCharging::aDamagedAccountIsKeptAsideAndTheCardStays_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray tariffs = R"("dialed":[10,100,100,0,0,0,0],"answered":[0,0,100,0,0,0,0])";
    const auto row = [&](const char *name, const QByteArray &content) { QTest::newRow(name) << content; };
    row("nothing", "");
    row("no JSON", "{\"version\":1,");
    row("no object", "[1]");
    row("a later version", R"({"version":3,"chargeType":0,)" + tariffs + "}");
    row("no check", R"({"version":2,"chargeType":0,)" + tariffs + "}");
    row("a check that is not its own",
        R"({"version":2,"check":"00112233445566778899aabbccddeeff00112233","chargeType":0,)" + tariffs + "}");
    row("an earlier version with a check", R"({"version":1,"check":"","chargeType":0,)" + tariffs + "}");
    row("a charge type that does not exist", R"({"version":1,"chargeType":2,)" + tariffs + "}");
    row("a tariff with six elements",
        R"({"version":1,"chargeType":0,"dialed":[10,100,100,0,0,0],"answered":[0,0,100,0,0,0,0]})");
    row("an element out of range",
        R"({"version":1,"chargeType":0,"dialed":[10,8192,100,0,0,0,0],"answered":[0,0,100,0,0,0,0]})");
    row("an element that is no whole number",
        R"({"version":1,"chargeType":0,"dialed":[10,0.5,100,0,0,0,0],"answered":[0,0,100,0,0,0,0]})");
    row("a credit below nothing",
        R"({"version":1,"chargeType":0,"credit":-1,"deposit":1,"expires":[2027,1,1],)" + tariffs + "}");
    row("a credit beyond its end",
        R"({"version":1,"chargeType":0,"credit":4294967296,"deposit":1,"expires":[2027,1,1],)" + tariffs + "}");
    row("a day that does not exist",
        R"({"version":1,"chargeType":0,"credit":1,"deposit":1,"expires":[2027,2,29],)" + tariffs + "}");
}

void TestCharging::aDamagedAccountIsKeptAsideAndTheCardStays()
{
    QFETCH(QByteArray, content);
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dialed(50 * second));
        QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    }
    {
        const LogFile file(state.database());
        QVERIFY(file.run(QStringLiteral("UPDATE kept SET content = x'%1' WHERE name = 'charging'")
                             .arg(QString::fromLatin1(content.toHex()))));
    }
    {
        const Phone phone(state.path());
        QVERIFY2(phone.opened.notice.contains(QStringLiteral("kept as \"charging-kept-1\"")),
                 qPrintable(phone.opened.notice));
        QCOMPARE(phone->charging()->account(), std::nullopt);
        QCOMPARE(phone->simCard().card().acm(), 5U);
    }
    QVERIFY(Phone(state.path()).opened.notice.isEmpty());
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT content FROM kept WHERE name = 'charging-kept-1'")).toByteArray(),
             content);
}

void TestCharging::aChangedAccountIsTold_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("the credit") << QStringLiteral("\"credit\":100") << QStringLiteral("\"credit\":900");
    QTest::newRow("the deposit") << QStringLiteral("\"deposit\":100") << QStringLiteral("\"deposit\":101");
    QTest::newRow("its day") << QStringLiteral("[2027,") << QStringLiteral("[2028,");
    QTest::newRow("what a unit of time costs")
        << QStringLiteral("\"dialed\":[10,") << QStringLiteral("\"dialed\":[1,");
    QTest::newRow("the charge type") << QStringLiteral("\"chargeType\":0") << QStringLiteral("\"chargeType\":1");
    QTest::newRow("the version, set back to the one that has no check")
        << QStringLiteral("\"version\":2") << QStringLiteral("\"version\":1");
}

void TestCharging::aChangedAccountIsTold()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    const StateDir state;
    {
        Phone phone(state.path());
        QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    }
    {
        const LogFile file(state.database());
        const QString select = QStringLiteral("SELECT content FROM kept WHERE name = 'charging'");
        const QByteArray before = file.value(select).toByteArray();
        QVERIFY(file.run(QStringLiteral("UPDATE kept SET content = CAST(replace(content, '%1', '%2') AS BLOB)"
                                        " WHERE name = 'charging'")
                             .arg(from, to)));
        QVERIFY(file.value(select).toByteArray() != before);
    }
    {
        const Phone phone(state.path());
        QCOMPARE(phone.opened.notice,
                 QStringLiteral("The record of tariffs and account could not be read; a new one "
                                "was begun and the old one kept as \"charging-kept-1\"."));
        QCOMPARE(phone->charging()->account(), std::nullopt);
    }
    QCOMPARE(Phone(state.path()).opened.notice, QString());
}

void TestCharging::anAccountOfTheFirstVersionIsRead()
{
    const StateDir state;
    QVERIFY(Phone(state.path()));
    const QByteArray record = R"({"answered":[0,0,100,0,0,0,0],"chargeType":1,"credit":75,"deposit":100,)"
                              R"("dialed":[20,100,100,0,0,0,0],"expires":[2027,6,30],"version":1})";
    const LogFile earlier(state.database());
    QVERIFY(earlier.run(QStringLiteral("DELETE FROM kept WHERE name = 'checked'")));
    QVERIFY(earlier.run(QStringLiteral("UPDATE kept SET content = x'%1' WHERE name = 'charging'")
                            .arg(QString::fromLatin1(record.toHex()))));
    const QString version =
        QStringLiteral("SELECT CAST(content AS TEXT) LIKE '%\"version\":2%' FROM kept WHERE name = 'charging'");
    for (int start = 0; start < 2; ++start) { // the second reads what the first has written
        const Phone phone(state.path());
        QCOMPARE(phone.opened.notice, QString());
        QCOMPARE(phone->charging()->account(), (Account{75, 100, {2027, 6, 30}}));
        QCOMPARE(phone->charging()->tariff(CallDirection::Dialed), perSeconds(20, 10));
        QCOMPARE(LogFile(state.database()).value(version), QVariant(1)); // from the first start on it has a check
        QCOMPARE(advice(phone).setChargeType(start == 0 ? AdviceOfCharge::InUnits : AdviceOfCharge::InCurrency),
                 int(Success));
    }
}

void TestCharging::whatIsMissingOfTheCardIsToldAndNeverNewInSilence_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("notice");
    QTest::newRow("the card") << QStringLiteral("card")
                              << QStringLiteral("The SIM card is missing from the call log; a new one was begun.");
    QTest::newRow("the account") << QStringLiteral("charging")
                                 << QStringLiteral(
                                        "The record of tariffs and account is missing from the call log; "
                                        "a new one was begun.");
}

void TestCharging::whatIsMissingOfTheCardIsToldAndNeverNewInSilence()
{
    QFETCH(QString, name);
    QFETCH(QString, notice);
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dialed(50 * second));
        bool accepted = true;
        QCOMPARE(phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "0000", accepted), int(Success));
        QCOMPARE(phone->simCard().card().pin2().triesLeft(), 2);
    }
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM kept WHERE name = '%1'").arg(name)));
    QCOMPARE(Phone(state.path()).opened.notice, notice);
    QCOMPARE(Phone(state.path()).opened.notice, QString());
}

// What a new call log has in its place says the same in a log with costs: every charge writes the card.
void TestCharging::aCardSetBackToNeverWrittenIsToldOnce()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(50 * second));
    QVERIFY(LogFile(state.database())
                .run(QStringLiteral("UPDATE kept SET content = CAST('new' AS BLOB) WHERE name = 'card'")));
    QCOMPARE(Phone(state.path()).opened.notice,
             QStringLiteral("The SIM card is missing from the call log; a new one was begun."));
    QCOMPARE(Phone(state.path()).opened.notice, QString());
}

void TestCharging::aCardSetBackToNeverWrittenIsToldWhereNothingWasChargedAsWell()
{
    const StateDir state;
    {
        Phone phone(state.path());
        bool accepted = true;
        QCOMPARE(phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "0000", accepted), int(Success));
        QCOMPARE(phone->simCard().card().pin2().triesLeft(), 2);
    }
    QVERIFY(LogFile(state.database())
                .run(QStringLiteral("UPDATE kept SET content = CAST('new' AS BLOB) WHERE name = 'card'")));
    QCOMPARE(Phone(state.path()).opened.notice,
             QStringLiteral("The SIM card is missing from the call log; a new one was begun."));
    QCOMPARE(Phone(state.path()).opened.notice, QString());
}

// An earlier program wrote the card with its first change only.
void TestCharging::aCardThatAnEarlierProgramHasNotWrittenYetIsBelievedOnce()
{
    const StateDir state;
    QCOMPARE(Phone(state.path()).opened.notice, QString());
    const auto setBack = QStringLiteral("UPDATE kept SET content = CAST('new' AS BLOB) WHERE name = 'card'");
    QVERIFY(LogFile(state.database())
                .run(QStringLiteral("UPDATE kept SET content = CAST('1' AS BLOB) WHERE name = 'checked'")));
    QVERIFY(LogFile(state.database()).run(setBack));
    QCOMPARE(Phone(state.path()).opened.notice, QString());
    QVERIFY(LogFile(state.database()).run(setBack));
    QVERIFY(!Phone(state.path()).opened.notice.isEmpty());
}

void TestCharging::anAccountThatHadACheckIsNeverWithoutOneInSilence_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("notice");
    QTest::newRow("set back to never written")
        << QByteArray("new")
        << QStringLiteral("The record of tariffs and account is missing from the call log; a new one was begun.");
    QTest::newRow("of the version that has no check")
        << QByteArray(R"({"answered":[0,0,100,0,0,0,0],"chargeType":0,"credit":900,"deposit":900,)"
                      R"("dialed":[10,100,100,0,0,0,0],"expires":[2027,6,30],"version":1})")
        << QStringLiteral("The record of tariffs and account could not be read; a new one was begun and the old "
                          "one kept as \"charging-kept-1\".");
}

void TestCharging::anAccountThatHadACheckIsNeverWithoutOneInSilence()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, notice);
    const StateDir state;
    {
        Phone phone(state.path());
        QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    }
    QVERIFY(LogFile(state.database())
                .run(QStringLiteral("UPDATE kept SET content = x'%1' WHERE name = 'charging'")
                         .arg(QString::fromLatin1(content.toHex()))));
    QCOMPARE(Phone(state.path()).opened.notice, notice);
    QCOMPARE(Phone(state.path()).opened.notice, QString());
}

void TestCharging::aCardThatWasNeverChangedIsNotMissing()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.answered(50 * second)); // which costs nothing
    }
    Phone phone(state.path());
    QCOMPARE(phone.opened.notice, QString());
    QCOMPARE(phone->simCard().card().acm(), 0U);
}

void TestCharging::aDamagedLogKeepsCostsAndCard()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dialed(50 * second));
        QCOMPARE(phone.log().resetDialedCallsCost(), int(Success));
        QVERIFY(phone.dialed(20 * second));
        QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), someDay), int(Success));
    }
    {
        const LogFile file(state.database());
        QVERIFY(file.run(QStringLiteral("DELETE FROM totals WHERE counter = 'all'"))); // enough to be damaged
    }
    const Phone phone(state.path());
    QVERIFY(!phone.opened.notice.isEmpty());
    QCOMPARE(costsOf(phone), (FourCosts{"2.00", "2.00", "0.00", "7.00"}));
    QCOMPARE(creditOf(phone), QByteArray("100.00"));
}

void TestCharging::everyChangeIsSignalledOnce()
{
    Phone phone;
    QSignalSpy spy(phone.operator->(), &simulated::SimulatedHandset::changed);
    int expected = 0;
    const auto signalledAfter = [&](int status) { return status == Success && spy.count() == ++expected; };
    QVERIFY(signalledAfter(advice(phone).setMeterMaximum(QStringLiteral("7"))));
    QVERIFY(signalledAfter(advice(phone).disableMeterMaximum()));
    QVERIFY(signalledAfter(advice(phone).setChargeType(1)));
    QVERIFY(signalledAfter(advice(phone).setPriceAndCurrency(QStringLiteral("2"), QStringLiteral("USD"))));
    QVERIFY(signalledAfter(phone.log().resetDialedCallsCost()));
    QVERIFY(signalledAfter(phone.log().resetAnsweredCallsCost()));
    QVERIFY(signalledAfter(phone.log().resetAllCallsCost()));
    QVERIFY(signalledAfter(phone.log().resetAll()));
    QVERIFY(signalledAfter(phone->charging()->setTariff(CallDirection::Dialed, perSeconds(10, 1))));
    QVERIFY(signalledAfter(phone->charging()->topUp(QStringLiteral("14"), someDay)));
    QVERIFY(signalledAfter(phone->simCard().setUpdateRule(AdviceOfCharge::AcmFile, 6)));
    QVERIFY(signalledAfter(phone->simCard().setPin2Enabled(false)));
    QVERIFY(signalledAfter(phone->simCard().powerCycle()));
    QVERIFY(phone.dial());
    phone.clock->advance(minute);
    expected = static_cast<int>(spy.count());
    QVERIFY(signalledAfter(phone->checkpoint())); // ends the call
}

KAV_TEST_GROUP(TestCharging, QCoreApplication);
#include "tst_charging.moc"
