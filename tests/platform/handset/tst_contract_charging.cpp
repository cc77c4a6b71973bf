// What every backend must do alike, written against the interfaces alone: costs, advice of charge and the SIM's PINs.
#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/HandsetRig.h"
#include "handset/HandsetTestKit.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <functional>

using namespace handset;
using namespace handset::test;

namespace {

constexpr Date someDay{2027, 3, 9};
constexpr quint8 simFiles[] = {AdviceOfCharge::AcmMaxFile, AdviceOfCharge::AcmFile, AdviceOfCharge::PuctFile};

/// What the four cost queries answer.
struct FourCosts {
    double last = 0;
    double dialed = 0;
    double answered = 0;
    double all = 0;

    friend bool operator==(const FourCosts &, const FourCosts &) = default;
};

char *toString(const FourCosts &costs)
{
    return QTest::toString(QStringLiteral("last %1, dialed %2, answered %3, all %4")
                               .arg(costs.last)
                               .arg(costs.dialed)
                               .arg(costs.answered)
                               .arg(costs.all));
}

FourCosts masked(const FourCosts &costs, const FourCosts &mask)
{
    return {costs.last * mask.last, costs.dialed * mask.dialed, costs.answered * mask.answered,
            costs.all * mask.all};
}

// Any amount is plain digits, with a point where decimals follow.
double number(const QString &text)
{
    static const QRegularExpression decimal(QStringLiteral("^[0-9]+([.][0-9]+)?$"));
    if (!decimal.match(text).hasMatch())
        QTest::qFail(qPrintable(QStringLiteral("\"%1\" is no decimal text").arg(text)), __FILE__, __LINE__);
    return text.toDouble();
}

template <typename Role>
double amount(Role &role, int (Role::*operation)(QByteArray &))
{
    QByteArray text;
    const int status = (role.*operation)(text);
    if (status != Success)
        QTest::qFail(qPrintable(QStringLiteral("a query answered %1").arg(status)), __FILE__, __LINE__);
    return number(QString::fromLatin1(text));
}

struct Limit {
    double amount = -1;
    bool enabled = false;

    friend bool operator==(const Limit &, const Limit &) = default;
};

char *toString(const Limit &limit)
{
    return QTest::toString(QStringLiteral("%1, %2")
                               .arg(limit.amount)
                               .arg(limit.enabled ? QLatin1String("on") : QLatin1String("off")));
}

struct Price {
    double perUnit = -1;
    QString currency = QStringLiteral("?");

    friend bool operator==(const Price &, const Price &) = default;
};

char *toString(const Price &price)
{
    return QTest::toString(QStringLiteral("%1 %2").arg(price.perUnit).arg(price.currency));
}

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

#define KAV_NEED_SIM_FILES()                                                                                      \
    if (!rig->hasSimFiles())                                                                                      \
    QSKIP("this backend has no files of the SIM")

#define KAV_NEED_PIN2()                                                                                           \
    if (!rig->hasSimSecurity())                                                                                   \
    QSKIP("this backend has no PIN2")

} // namespace

class TestContractCharging : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { rig.reset(); }

    void aNewHandsetHasNoCosts();
    void aNewHandsetKnowsNothingOfACredit();
    void aNewHandsetHasNoLimitAndNoPrice();
    void aNewHandsetAsksForPin2();

    void aCallCostsForItsOwnFigures_data();
    void aCallCostsForItsOwnFigures();
    void aCallThatWasNeverConnectedCostsNothing();
    void aRunningCallIsChargedUpToNow();
    void amountsFollowChargeTypeAndPrice();
    void creditAndDepositAreToldAsTheyWerePaidIn();
    void aCallTakesItsCostOffTheCredit();
    void aResetZeroesItsOwnFiguresAndNothingElse_data() { resetRows(); }
    void aResetZeroesItsOwnFiguresAndNothingElse();
    void aResetDuringACallLetsTheRestOfItCost_data() { resetRows(); }
    void aResetDuringACallLetsTheRestOfItCost();
    void costsAndCreditSurviveARestart();
    void theMeterIsResetOnlyAsTheSimAllows();

    void aFileThatTheBackendHasNotIsNotAvailable();
    void theUpdateRuleOfEveryFileIsTold();
    void whatIsNoFileHasNoUpdateRule();
    void theChargeTypeIsReadBackAsItWasSet();
    void whatIsNoChargeTypeIsRefused();
    void priceAndCurrencyAreReadBackAsTheyWereSet_data();
    void priceAndCurrencyAreReadBackAsTheyWereSet();
    void whatIsStoredForAPriceCanBeStoredAgain();
    void whatIsNoPriceIsRefused_data();
    void whatIsNoPriceIsRefused();
    void theMaximumIsReadBackAsItWasSet_data();
    void theMaximumIsReadBackAsItWasSet();
    void theMaximumCanBeSwitchedOffAndOnAgain();
    void aMaximumOfNothingIsNone();
    void whatIsNoMaximumIsRefused_data();
    void whatIsNoMaximumIsRefused();
    void withoutAPriceNoMaximumCanBeSetInTheCurrency();
    void settingsSurviveARestart();
    void aFileIsWrittenOnlyAsTheSimAllows_data();
    void aFileIsWrittenOnlyAsTheSimAllows();

    void theRightPin2IsAskedForNoMore();
    void aWrongPin2CostsATry();
    void aWrongPin2TakesBackWhatTheRightOneAllowed();
    void threeWrongPin2Block();
    void whatIsNoPinCostsNoTry_data();
    void whatIsNoPinCostsNoTry();
    void pin1CanOnlyBeAskedForItsStatus();
    void aPinThatDoesNotExistIsRefused();
    void triesSurviveARestartAndWhatWasEnteredDoesNot();

private:
    CallLog &log() { return *rig->handset().callLog(); }
    CallService &service() { return *rig->handset().callService(); }
    AdviceOfCharge &advice() { return *rig->handset().adviceOfCharge(); }
    SimSecurity &security() { return *rig->handset().simSecurity(); }

    bool call(CallKind kind, CallDirection direction, qint64 ms);
    bool everyKindOfCall();
    bool restart();
    FourCosts shown(FourCosts costs) const;
    FourCosts costs();
    double credit() { return amount(service(), &CallService::remainingCredit); }
    double deposit() { return amount(log(), &CallLog::lastDeposit); }
    int chargeType();
    Price price();
    int setPrice(const char *perUnit, const char *currency = "EUR");
    Limit limit();
    int setLimit(const char *maximum) { return advice().setMeterMaximum(QString::fromLatin1(maximum)); }
    quint32 pin2Status();
    int pin2Tries();
    bool enterRightPin2();
    bool enterWrongPin2();

    std::unique_ptr<HandsetRig> rig;
};

void TestContractCharging::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    rig = makeRig();
    QVERIFY(rig->open());
}

bool TestContractCharging::call(CallKind kind, CallDirection direction, qint64 ms)
{
    if (!rig->begin(kind, direction) || !rig->connectCall())
        return false;
    rig->pass(ms);
    return rig->end();
}

bool TestContractCharging::everyKindOfCall()
{
    return call(CallKind::Voice, CallDirection::Dialed, 100 * second) &&
           call(CallKind::Voice, CallDirection::Answered, 20 * second) &&
           (rig->hasDataCalls() ? call(CallKind::Data, CallDirection::Dialed, 3 * second)
                                : call(CallKind::Voice, CallDirection::Answered, 3 * second));
}

// What the costs are when a call that is answered has taken the place of every data call.
FourCosts TestContractCharging::shown(FourCosts costs) const
{
    if (!rig->hasDataCalls())
        costs.answered += 3;
    return costs;
}

bool TestContractCharging::restart()
{
    rig->close();
    return rig->open();
}

FourCosts TestContractCharging::costs()
{
    return {amount(service(), &CallService::lastCallCost), amount(log(), &CallLog::dialedCallsCost),
            amount(log(), &CallLog::answeredCallsCost), amount(log(), &CallLog::allCallsCost)};
}

int TestContractCharging::chargeType()
{
    quint8 type = 99;
    return advice().chargeType(type) == Success ? type : -1;
}

Price TestContractCharging::price()
{
    QString perUnit;
    QString currency;
    if (advice().priceAndCurrency(perUnit, currency) != Success)
        return {};
    return {number(perUnit), currency};
}

int TestContractCharging::setPrice(const char *perUnit, const char *currency)
{
    return advice().setPriceAndCurrency(QString::fromLatin1(perUnit), QString::fromLatin1(currency));
}

Limit TestContractCharging::limit()
{
    QString maximum;
    bool enabled = false;
    if (advice().meterMaximum(maximum, enabled) != Success)
        return {};
    return {number(maximum), enabled};
}

quint32 TestContractCharging::pin2Status()
{
    quint32 status = 99;
    return security().pinStatus(SimSecurity::Pin2, status) == Success ? status : 0;
}

int TestContractCharging::pin2Tries()
{
    int tries = -1;
    return security().triesLeft(SimSecurity::Pin2, tries) == Success ? tries : -2;
}

bool TestContractCharging::enterRightPin2()
{
    bool accepted = false;
    return security().verifyPin(SimSecurity::Pin2, rig->pin2(), accepted) == Success && accepted;
}

bool TestContractCharging::enterWrongPin2()
{
    QByteArray digits = rig->pin2();
    digits.back() = digits.back() == '0' ? '1' : '0';
    bool accepted = true;
    return security().verifyPin(SimSecurity::Pin2, digits, accepted) == Success && !accepted;
}

// --- a new handset

void TestContractCharging::aNewHandsetHasNoCosts()
{
    QCOMPARE(costs(), FourCosts());
}

void TestContractCharging::aNewHandsetKnowsNothingOfACredit()
{
    QByteArray text = "as it was";
    Date date = someDay;
    QCOMPARE(service().remainingCredit(text), int(NotAvailable));
    QCOMPARE(log().lastDeposit(text), int(NotAvailable));
    QCOMPARE(log().depositExpirationDate(date), int(NotAvailable));
    QCOMPARE(text, QByteArray("as it was"));
    QCOMPARE(date, someDay);
}

void TestContractCharging::aNewHandsetHasNoLimitAndNoPrice()
{
    KAV_NEED_SIM_FILES();
    QCOMPARE(chargeType(), int(AdviceOfCharge::InUnits));
    QCOMPARE(limit(), (Limit{0, false}));
    QCOMPARE(price(), (Price{0, QString()}));
}

void TestContractCharging::aNewHandsetAsksForPin2()
{
    KAV_NEED_PIN2();
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QCOMPARE(pin2Tries(), 3);
}

// --- costs and credit

void TestContractCharging::aCallCostsForItsOwnFigures_data()
{
    QTest::addColumn<CallKind>("kind");
    QTest::addColumn<CallDirection>("direction");
    QTest::addColumn<FourCosts>("expected");

    QTest::newRow("a dialed voice call is dialed")
        << CallKind::Voice << CallDirection::Dialed << FourCosts{65, 65, 0, 65};
    QTest::newRow("an answered voice call is answered")
        << CallKind::Voice << CallDirection::Answered << FourCosts{65, 0, 65, 65};
    QTest::newRow("a data call is no dialed call")
        << CallKind::Data << CallDirection::Dialed << FourCosts{65, 0, 0, 65};
}

void TestContractCharging::aCallCostsForItsOwnFigures()
{
    QFETCH(CallKind, kind);
    QFETCH(CallDirection, direction);
    if (kind == CallKind::Data && !rig->hasDataCalls())
        QSKIP("this backend has no data calls");
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

void TestContractCharging::amountsFollowChargeTypeAndPrice()
{
    KAV_NEED_SIM_FILES();
    QVERIFY(rig->chargeUnits());
    QVERIFY(everyKindOfCall());
    QVERIFY(rig->payIn(QStringLiteral("80"), someDay));
    QCOMPARE(setPrice("0.25"), int(Success));
    QCOMPARE(costs(), (FourCosts{3, 100, 20, 123}));
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(costs(), (FourCosts{0.75, 25, 5, 30.75}));
    QCOMPARE(credit(), 20.0);
    QCOMPARE(deposit(), 20.0);
    QCOMPARE(setPrice("2"), int(Success));
    QCOMPARE(costs(), (FourCosts{6, 200, 40, 246}));
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InUnits), int(Success));
    QCOMPARE(costs(), (FourCosts{3, 100, 20, 123}));
    QCOMPARE(credit(), 80.0);
}

void TestContractCharging::creditAndDepositAreToldAsTheyWerePaidIn()
{
    Date date;
    QVERIFY(rig->payIn(QStringLiteral("50"), someDay));
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
        QCOMPARE(resets[reset].run(rig->handset()), int(Success));
        QCOMPARE(costs(), masked(before, resets[reset].costsKept));
        QCOMPARE(figuresOf(rig->handset()), masked(timesBefore, resets[reset].timesKept));
        QCOMPARE(credit(), 877.0);
        QCOMPARE(deposit(), 1000.0);
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
    QCOMPARE(resets[reset].run(rig->handset()), int(Success));
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
        QCOMPARE(credit(), 377.0);
        QCOMPARE(deposit(), 500.0);
        Date date;
        QCOMPARE(log().depositExpirationDate(date), int(Success));
        QCOMPARE(date, someDay);
    }
}

void TestContractCharging::theMeterIsResetOnlyAsTheSimAllows()
{
    KAV_NEED_SIM_FILES();
    QVERIFY(rig->chargeUnits());
    QVERIFY(everyKindOfCall());
    const FourCosts before = costs();
    const SixFigures timesBefore = figuresOf(rig->handset());
    const auto nothingIsReset = [&] {
        return log().resetAllCallsCost() == NotAllowed && log().resetAll() == NotAllowed && costs() == before &&
               figuresOf(rig->handset()) == timesBefore;
    };
    QVERIFY(rig->setUpdateRule(AdviceOfCharge::AcmFile, AdviceOfCharge::UpdateUnderPin2));
    QVERIFY(nothingIsReset());
    QVERIFY(enterRightPin2());
    QVERIFY(rig->setUpdateRule(AdviceOfCharge::AcmFile, AdviceOfCharge::NoUpdate));
    QVERIFY(nothingIsReset());
    QVERIFY(rig->setUpdateRule(AdviceOfCharge::AcmFile, AdviceOfCharge::UpdateUnderPin2));
    QCOMPARE(log().resetAllCallsCost(), int(Success));
    QCOMPARE(costs(), (FourCosts{3, 100, 20, 0}));
    QCOMPARE(log().resetAll(), int(Success));
    QCOMPARE(costs(), FourCosts());
}

// --- advice of charge

void TestContractCharging::aFileThatTheBackendHasNotIsNotAvailable()
{
    if (rig->hasSimFiles())
        QSKIP("this backend has the files of the SIM");
    quint8 rule = 99;
    for (const quint8 file : simFiles)
        QCOMPARE(advice().updateRule(file, rule), int(NotAvailable));
    QCOMPARE(rule, quint8{99});
    QString text = QStringLiteral("as it was");
    QString other = text;
    bool enabled = true;
    QCOMPARE(advice().meterMaximum(text, enabled), int(NotAvailable));
    QCOMPARE(advice().priceAndCurrency(text, other), int(NotAvailable));
    QCOMPARE(text, QStringLiteral("as it was"));
    QCOMPARE(other, text);
    QVERIFY(enabled);
    QCOMPARE(setLimit("70"), int(NotAvailable));
    QCOMPARE(advice().disableMeterMaximum(), int(NotAvailable));
    QCOMPARE(setPrice("0.25"), int(NotAvailable));
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(NotAvailable));
    QCOMPARE(advice().setChargeType(255), int(InvalidArgument));
    QCOMPARE(chargeType(), int(AdviceOfCharge::InUnits));
}

void TestContractCharging::theUpdateRuleOfEveryFileIsTold()
{
    KAV_NEED_SIM_FILES();
    for (const quint8 file : simFiles) {
        quint8 rule = 99;
        for (const quint8 set :
             {AdviceOfCharge::UpdateUnderPin2, AdviceOfCharge::NoUpdate, AdviceOfCharge::FreeUpdate}) {
            QVERIFY(rig->setUpdateRule(file, set));
            QCOMPARE(advice().updateRule(file, rule), int(Success));
            QCOMPARE(rule, set);
        }
    }
}

void TestContractCharging::whatIsNoFileHasNoUpdateRule()
{
    KAV_NEED_SIM_FILES();
    quint8 rule = 99;
    for (const quint8 file : std::initializer_list<quint8>{0, 58, 60, 62, 63, 65, 255})
        QCOMPARE(advice().updateRule(file, rule), int(InvalidArgument));
    QCOMPARE(rule, quint8{99});
}

void TestContractCharging::theChargeTypeIsReadBackAsItWasSet()
{
    KAV_NEED_SIM_FILES();
    for (const quint8 type : {AdviceOfCharge::InCurrency, AdviceOfCharge::InCurrency, AdviceOfCharge::InUnits}) {
        QCOMPARE(advice().setChargeType(type), int(Success));
        QCOMPARE(chargeType(), int(type));
    }
}

void TestContractCharging::whatIsNoChargeTypeIsRefused()
{
    KAV_NEED_SIM_FILES();
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    for (const quint8 type : std::initializer_list<quint8>{2, 3, 128, 255}) {
        QCOMPARE(advice().setChargeType(type), int(InvalidArgument));
        QCOMPARE(chargeType(), int(AdviceOfCharge::InCurrency));
    }
}

void TestContractCharging::priceAndCurrencyAreReadBackAsTheyWereSet_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<double>("read");
    QTest::addColumn<QString>("currency");
    const auto row = [](const char *name, const QString &set, double read, const QString &currency) {
        QTest::newRow(name) << set << read << currency;
    };
    row("hundredths", QStringLiteral("0.23"), 0.23, QStringLiteral("EUR"));
    row("more decimals than are needed", QStringLiteral("12.500"), 12.5, QStringLiteral("USD"));
    row("a large price", QStringLiteral("1700"), 1700, QStringLiteral("JPY"));
    row("no price", QStringLiteral("0"), 0, QStringLiteral("GBP"));
    row("no currency", QStringLiteral("4"), 4, QString());
    row("an empty currency", QStringLiteral("4"), 4, QStringLiteral(""));
    row("a short currency", QStringLiteral("4"), 4, QStringLiteral("kr"));
}

void TestContractCharging::priceAndCurrencyAreReadBackAsTheyWereSet()
{
    KAV_NEED_SIM_FILES();
    QFETCH(QString, set);
    QFETCH(double, read);
    QFETCH(QString, currency);
    QCOMPARE(setPrice("9.99", "XXX"), int(Success));
    QCOMPARE(advice().setPriceAndCurrency(set, currency), int(Success));
    QCOMPARE(price(), (Price{read, currency}));
}

void TestContractCharging::whatIsStoredForAPriceCanBeStoredAgain()
{
    KAV_NEED_SIM_FILES();
    QCOMPARE(setPrice("0.3333333"), int(Success));
    QString stored;
    QString currency;
    QCOMPARE(advice().priceAndCurrency(stored, currency), int(Success));
    QVERIFY(qAbs(number(stored) - 0.3333333) < 0.0005); // EPPU has 12 bits
    QCOMPARE(advice().setPriceAndCurrency(stored, currency), int(Success));
    QString again;
    QCOMPARE(advice().priceAndCurrency(again, currency), int(Success));
    QCOMPARE(again, stored);
}

void TestContractCharging::whatIsNoPriceIsRefused_data()
{
    QTest::addColumn<QString>("perUnit");
    QTest::addColumn<QString>("currency");
    const QString euro = QStringLiteral("EUR");
    QTest::newRow("a null text") << QString() << euro;
    QTest::newRow("an empty text") << QStringLiteral("") << euro;
    QTest::newRow("a point alone") << QStringLiteral(".") << euro;
    QTest::newRow("a word") << QStringLiteral("dear") << euro;
    QTest::newRow("a comma") << QStringLiteral("0,5") << euro;
    QTest::newRow("less than nothing") << QStringLiteral("-1") << euro;
    QTest::newRow("an exponent") << QStringLiteral("1e2") << euro;
    QTest::newRow("more than EF_PUCT can hold") << QStringLiteral("40960000000") << euro;
    QTest::newRow("a code of four letters") << QStringLiteral("1") << QStringLiteral("EURO");
    QTest::newRow("a letter that the SIM does not have") << QStringLiteral("1") << QStringLiteral("E\u20ac1");
}

void TestContractCharging::whatIsNoPriceIsRefused()
{
    KAV_NEED_SIM_FILES();
    QFETCH(QString, perUnit);
    QFETCH(QString, currency);
    QCOMPARE(setPrice("0.23", "USD"), int(Success));
    QCOMPARE(advice().setPriceAndCurrency(perUnit, currency), int(InvalidArgument));
    QCOMPARE(price(), (Price{0.23, QStringLiteral("USD")}));
}

void TestContractCharging::theMaximumIsReadBackAsItWasSet_data()
{
    QTest::addColumn<quint8>("type");
    QTest::addColumn<QString>("set");
    QTest::addColumn<double>("read");
    const auto row = [](const char *name, AdviceOfCharge::ChargeType type, const char *set, double read) {
        QTest::newRow(name) << static_cast<quint8>(type) << QString::fromLatin1(set) << read;
    };
    row("one unit", AdviceOfCharge::InUnits, "1", 1);
    row("units", AdviceOfCharge::InUnits, "120", 120);
    row("the most units", AdviceOfCharge::InUnits, "16777215", 16777215);
    row("whole units in the currency", AdviceOfCharge::InCurrency, "10.25", 10.25);
    row("the currency, cut to whole units", AdviceOfCharge::InCurrency, "10.45", 10.25);
    row("the most units in the currency", AdviceOfCharge::InCurrency, "4194303.75", 4194303.75);
}

void TestContractCharging::theMaximumIsReadBackAsItWasSet()
{
    KAV_NEED_SIM_FILES();
    QFETCH(quint8, type);
    QFETCH(QString, set);
    QFETCH(double, read);
    QCOMPARE(setPrice("0.25"), int(Success));
    QCOMPARE(advice().setChargeType(type), int(Success));
    QCOMPARE(advice().setMeterMaximum(set), int(Success));
    QCOMPARE(limit(), (Limit{read, true}));
    QString text;
    bool enabled = false;
    QCOMPARE(advice().meterMaximum(text, enabled), int(Success));
    QCOMPARE(advice().setMeterMaximum(text), int(Success)); // what is shown can be set
    QCOMPARE(limit(), (Limit{read, true}));
}

void TestContractCharging::theMaximumCanBeSwitchedOffAndOnAgain()
{
    KAV_NEED_SIM_FILES();
    QCOMPARE(advice().disableMeterMaximum(), int(Success));
    QVERIFY(!limit().enabled);
    QCOMPARE(setLimit("70"), int(Success));
    QCOMPARE(advice().disableMeterMaximum(), int(Success));
    QVERIFY(!limit().enabled);
    QCOMPARE(setLimit("80"), int(Success));
    QCOMPARE(limit(), (Limit{80, true}));
}

void TestContractCharging::aMaximumOfNothingIsNone()
{
    KAV_NEED_SIM_FILES();
    QCOMPARE(setLimit("70"), int(Success));
    QCOMPARE(setLimit("0.00"), int(Success));
    QVERIFY(!limit().enabled);
}

void TestContractCharging::whatIsNoMaximumIsRefused_data()
{
    QTest::addColumn<QString>("maximum");
    QTest::newRow("a null text") << QString();
    for (const char *text :
         {"", ".", "abc", "-1", "1e3", "12,5", "16777216", "4294967297", "99999999999999999999999999"})
        QTest::newRow(*text ? text : "an empty text") << QString::fromLatin1(text);
    QTest::newRow("less than a unit") << QStringLiteral("0.5");
}

void TestContractCharging::whatIsNoMaximumIsRefused()
{
    KAV_NEED_SIM_FILES();
    QFETCH(QString, maximum);
    QCOMPARE(setLimit("70"), int(Success));
    QCOMPARE(advice().setMeterMaximum(maximum), int(InvalidArgument));
    QCOMPARE(limit(), (Limit{70, true}));
}

void TestContractCharging::withoutAPriceNoMaximumCanBeSetInTheCurrency()
{
    KAV_NEED_SIM_FILES();
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(setLimit("5"), int(InvalidArgument));
    QVERIFY(!limit().enabled);
    QCOMPARE(advice().disableMeterMaximum(), int(Success));
}

void TestContractCharging::settingsSurviveARestart()
{
    KAV_NEED_SIM_FILES();
    QCOMPARE(setPrice("0.25", "GBP"), int(Success));
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(setLimit("12.5"), int(Success));
    for (int start = 0; start < 3; ++start) {
        QVERIFY(restart());
        QCOMPARE(chargeType(), int(AdviceOfCharge::InCurrency));
        QCOMPARE(price(), (Price{0.25, QStringLiteral("GBP")}));
        QCOMPARE(limit(), (Limit{12.5, true}));
    }
}

void TestContractCharging::aFileIsWrittenOnlyAsTheSimAllows_data()
{
    QTest::addColumn<quint8>("rule");
    QTest::addColumn<bool>("entered");
    QTest::addColumn<bool>("allowed");
    const auto row = [](const char *name, AdviceOfCharge::UpdateRule rule, bool entered, bool allowed) {
        QTest::newRow(name) << static_cast<quint8>(rule) << entered << allowed;
    };
    row("free", AdviceOfCharge::FreeUpdate, false, true);
    row("PIN2, not entered", AdviceOfCharge::UpdateUnderPin2, false, false);
    row("PIN2, entered", AdviceOfCharge::UpdateUnderPin2, true, true);
    row("never, though PIN2 is entered", AdviceOfCharge::NoUpdate, true, false);
}

void TestContractCharging::aFileIsWrittenOnlyAsTheSimAllows()
{
    KAV_NEED_SIM_FILES();
    QFETCH(quint8, rule);
    QFETCH(bool, entered);
    QFETCH(bool, allowed);
    QCOMPARE(setPrice("0.25", "GBP"), int(Success));
    QCOMPARE(setLimit("70"), int(Success));
    for (const quint8 file : simFiles)
        QVERIFY(rig->setUpdateRule(file, rule));
    if (entered)
        QVERIFY(enterRightPin2());
    const int expected = allowed ? Success : NotAllowed;
    QCOMPARE(setPrice("1", "EUR"), expected);
    QCOMPARE(price(), (allowed ? Price{1, QStringLiteral("EUR")} : Price{0.25, QStringLiteral("GBP")}));
    QCOMPARE(setLimit("7"), expected);
    QCOMPARE(limit(), (Limit{allowed ? 7.0 : 70.0, true}));
    QCOMPARE(advice().disableMeterMaximum(), expected);
    QCOMPARE(limit().enabled, !allowed);
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success)); // no file of the SIM
}

// --- the SIM's PINs

void TestContractCharging::theRightPin2IsAskedForNoMore()
{
    KAV_NEED_PIN2();
    QVERIFY(enterRightPin2());
    QCOMPARE(pin2Status(), quint32{SimSecurity::NoEntryNeeded});
    QVERIFY(enterRightPin2());
    QCOMPARE(pin2Status(), quint32{SimSecurity::NoEntryNeeded});
    QCOMPARE(pin2Tries(), 3);
}

void TestContractCharging::aWrongPin2CostsATry()
{
    KAV_NEED_PIN2();
    QVERIFY(enterWrongPin2());
    QCOMPARE(pin2Tries(), 2);
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QVERIFY(enterWrongPin2());
    QCOMPARE(pin2Tries(), 1);
    QVERIFY(enterRightPin2()); // gives all tries back
    QCOMPARE(pin2Tries(), 3);
    QCOMPARE(pin2Status(), quint32{SimSecurity::NoEntryNeeded});
}

void TestContractCharging::aWrongPin2TakesBackWhatTheRightOneAllowed()
{
    KAV_NEED_PIN2();
    QVERIFY(enterRightPin2());
    QVERIFY(enterWrongPin2());
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QCOMPARE(pin2Tries(), 2);
}

void TestContractCharging::threeWrongPin2Block()
{
    KAV_NEED_PIN2();
    for (int tries = 3; tries > 0; --tries) {
        QCOMPARE(pin2Tries(), tries);
        QVERIFY(enterWrongPin2());
    }
    for (int start = 0; start < 2; ++start) {
        QCOMPARE(pin2Tries(), 0);
        QCOMPARE(pin2Status(), quint32{SimSecurity::Blocked});
        for (const bool untouched : {true, false}) {
            bool accepted = untouched;
            QCOMPARE(security().verifyPin(SimSecurity::Pin2, rig->pin2(), accepted), int(NotAllowed));
            QCOMPARE(accepted, untouched);
        }
        QVERIFY(restart());
    }
}

void TestContractCharging::whatIsNoPinCostsNoTry_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::newRow("a null array") << QByteArray();
    QTest::newRow("an empty array") << QByteArray("");
    QTest::newRow("three digits") << QByteArray("123");
    QTest::newRow("nine digits") << QByteArray("123456789");
    QTest::newRow("a letter") << QByteArray("12a4");
    QTest::newRow("a NUL") << QByteArray("123\0", 4);
}

void TestContractCharging::whatIsNoPinCostsNoTry()
{
    KAV_NEED_PIN2();
    QFETCH(QByteArray, digits);
    bool accepted = true;
    QCOMPARE(security().verifyPin(SimSecurity::Pin2, digits, accepted), int(InvalidArgument));
    QVERIFY(accepted);
    QCOMPARE(pin2Tries(), 3);
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
}

void TestContractCharging::pin1CanOnlyBeAskedForItsStatus()
{
    KAV_NEED_PIN2();
    quint32 status = 99;
    QCOMPARE(security().pinStatus(SimSecurity::Pin1, status), int(Success));
    QVERIFY(status >= SimSecurity::EntryNeeded && status <= SimSecurity::NoEntryNeeded);
    int tries = 99;
    bool accepted = true;
    QCOMPARE(security().triesLeft(SimSecurity::Pin1, tries), int(NotAvailable));
    QCOMPARE(security().verifyPin(SimSecurity::Pin1, rig->pin2(), accepted), int(NotAvailable));
    QCOMPARE(tries, 99);
    QVERIFY(accepted);
}

void TestContractCharging::aPinThatDoesNotExistIsRefused()
{
    KAV_NEED_PIN2();
    for (const quint8 pin : std::initializer_list<quint8>{2, 3, 255}) {
        quint32 status = 99;
        int tries = 99;
        bool accepted = true;
        QCOMPARE(security().pinStatus(pin, status), int(InvalidArgument));
        QCOMPARE(security().triesLeft(pin, tries), int(InvalidArgument));
        QCOMPARE(security().verifyPin(pin, rig->pin2(), accepted), int(InvalidArgument));
        QCOMPARE(status, 99U);
        QCOMPARE(tries, 99);
        QVERIFY(accepted);
    }
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
}

void TestContractCharging::triesSurviveARestartAndWhatWasEnteredDoesNot()
{
    KAV_NEED_PIN2();
    QVERIFY(enterRightPin2());
    QVERIFY(restart());
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QVERIFY(enterWrongPin2());
    QVERIFY(restart());
    QCOMPARE(pin2Tries(), 2);
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QVERIFY(enterRightPin2());
    QCOMPARE(pin2Tries(), 3);
}

KAV_TEST_GROUP(TestContractCharging, QCoreApplication);
#include "tst_contract_charging.moc"
