// What every backend with advice of charge must do alike, written against the interfaces alone: the files of the SIM, and
// PIN2, which guards them.
#include "handset/ChargingContract.h"
#include "support/TestGroup.h"

using namespace handset;
using namespace handset::test;

class TestContractSim : public ChargingContract
{
    Q_OBJECT

private slots:
    void init() { openRig(); }
    void cleanup() { rig.reset(); }

    void aNewHandsetHasNoLimitAndNoPrice();
    void aNewHandsetAsksForPin2();
    void amountsFollowChargeTypeAndPrice();
    void theMeterIsResetOnlyAsTheSimAllows();
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
};

void TestContractSim::aNewHandsetHasNoLimitAndNoPrice()
{
    QCOMPARE(chargeType(), int(AdviceOfCharge::InUnits));
    QCOMPARE(limit(), (Limit{0, false}));
    QCOMPARE(price(), (Price{0, rig->newCurrency()}));
}

void TestContractSim::aNewHandsetAsksForPin2()
{
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QCOMPARE(pin2Tries(), 3);
}

void TestContractSim::amountsFollowChargeTypeAndPrice()
{
    const auto inCurrency = [this](double price) {
        const FourCosts units = shown({3, 100, 20, 123});
        return FourCosts{units.last * price, units.dialed * price, units.answered * price, units.all * price};
    };
    QVERIFY(rig->chargeUnits());
    QVERIFY(everyKindOfCall());
    QVERIFY(rig->payIn(QStringLiteral("80"), someDay));
    QCOMPARE(setPrice("0.25"), int(Success));
    QCOMPARE(costs(), shown({3, 100, 20, 123}));
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(costs(), inCurrency(0.25));
    if (rig->hasAccount()) {
        QCOMPARE(credit(), 20.0);
        QCOMPARE(deposit(), 20.0);
    }
    QCOMPARE(setPrice("2"), int(Success));
    QCOMPARE(costs(), inCurrency(2));
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InUnits), int(Success));
    QCOMPARE(costs(), shown({3, 100, 20, 123}));
    if (rig->hasAccount())
        QCOMPARE(credit(), 80.0);
}

void TestContractSim::theMeterIsResetOnlyAsTheSimAllows()
{
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
    if (rig->updateRules().contains(AdviceOfCharge::NoUpdate)) {
        QVERIFY(rig->setUpdateRule(AdviceOfCharge::AcmFile, AdviceOfCharge::NoUpdate));
        QVERIFY(nothingIsReset());
        QVERIFY(rig->setUpdateRule(AdviceOfCharge::AcmFile, AdviceOfCharge::UpdateUnderPin2));
    }
    QCOMPARE(log().resetAllCallsCost(), int(Success));
    QCOMPARE(costs(), shown({3, 100, 20, 0}));
    QVERIFY(allowWrite());
    QCOMPARE(log().resetAll(), int(Success));
    QCOMPARE(costs(), FourCosts());
}

void TestContractSim::theUpdateRuleOfEveryFileIsTold()
{
    for (const quint8 file : simFiles) {
        quint8 rule = 99;
        for (const quint8 set : rig->updateRules()) {
            QVERIFY(rig->setUpdateRule(file, set));
            QCOMPARE(advice().updateRule(file, rule), int(Success));
            QCOMPARE(rule, set);
        }
    }
}

void TestContractSim::whatIsNoFileHasNoUpdateRule()
{
    quint8 rule = 99;
    for (const quint8 file : std::initializer_list<quint8>{0, 58, 60, 62, 63, 65, 255})
        QCOMPARE(advice().updateRule(file, rule), int(InvalidArgument));
    QCOMPARE(rule, quint8{99});
}

void TestContractSim::theChargeTypeIsReadBackAsItWasSet()
{
    for (const quint8 type : {AdviceOfCharge::InCurrency, AdviceOfCharge::InCurrency, AdviceOfCharge::InUnits}) {
        QCOMPARE(advice().setChargeType(type), int(Success));
        QCOMPARE(chargeType(), int(type));
    }
}

void TestContractSim::whatIsNoChargeTypeIsRefused()
{
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    for (const quint8 type : std::initializer_list<quint8>{2, 3, 128, 255}) {
        QCOMPARE(advice().setChargeType(type), int(InvalidArgument));
        QCOMPARE(chargeType(), int(AdviceOfCharge::InCurrency));
    }
}

void TestContractSim::priceAndCurrencyAreReadBackAsTheyWereSet_data()
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

void TestContractSim::priceAndCurrencyAreReadBackAsTheyWereSet()
{
    QFETCH(QString, set);
    QFETCH(double, read);
    QFETCH(QString, currency);
    QCOMPARE(setPrice("9.99", "XXX"), int(Success));
    QVERIFY(allowWrite());
    QCOMPARE(advice().setPriceAndCurrency(set, currency), int(Success));
    QCOMPARE(price(), (Price{read, currency}));
}

void TestContractSim::whatIsStoredForAPriceCanBeStoredAgain()
{
    QCOMPARE(setPrice("0.3333333"), int(Success));
    QString stored;
    QString currency;
    QCOMPARE(advice().priceAndCurrency(stored, currency), int(Success));
    QVERIFY(qAbs(number(stored) - 0.3333333) < 0.0005); // EPPU has 12 bits
    QVERIFY(allowWrite());
    QCOMPARE(advice().setPriceAndCurrency(stored, currency), int(Success));
    QString again;
    QCOMPARE(advice().priceAndCurrency(again, currency), int(Success));
    QCOMPARE(again, stored);
}

void TestContractSim::whatIsNoPriceIsRefused_data()
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

void TestContractSim::whatIsNoPriceIsRefused()
{
    QFETCH(QString, perUnit);
    QFETCH(QString, currency);
    QCOMPARE(setPrice("0.23", "USD"), int(Success));
    QVERIFY(allowWrite());
    QCOMPARE(advice().setPriceAndCurrency(perUnit, currency), int(InvalidArgument));
    QCOMPARE(price(), (Price{0.23, QStringLiteral("USD")}));
}

void TestContractSim::theMaximumIsReadBackAsItWasSet_data()
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

void TestContractSim::theMaximumIsReadBackAsItWasSet()
{
    QFETCH(quint8, type);
    QFETCH(QString, set);
    QFETCH(double, read);
    QCOMPARE(setPrice("0.25"), int(Success));
    QCOMPARE(advice().setChargeType(type), int(Success));
    QCOMPARE(setLimit(set), int(Success));
    QCOMPARE(limit(), (Limit{read, true}));
    QString text;
    bool enabled = false;
    QCOMPARE(advice().meterMaximum(text, enabled), int(Success));
    QCOMPARE(setLimit(text), int(Success)); // what is shown can be set
    QCOMPARE(limit(), (Limit{read, true}));
}

void TestContractSim::theMaximumCanBeSwitchedOffAndOnAgain()
{
    QCOMPARE(disableLimit(), int(Success));
    QVERIFY(!limit().enabled);
    QCOMPARE(setLimit("70"), int(Success));
    QCOMPARE(disableLimit(), int(Success));
    QVERIFY(!limit().enabled);
    QCOMPARE(setLimit("80"), int(Success));
    QCOMPARE(limit(), (Limit{80, true}));
}

void TestContractSim::aMaximumOfNothingIsNone()
{
    QCOMPARE(setLimit("70"), int(Success));
    QCOMPARE(setLimit("0.00"), int(Success));
    QVERIFY(!limit().enabled);
}

void TestContractSim::whatIsNoMaximumIsRefused_data()
{
    QTest::addColumn<QString>("maximum");
    QTest::newRow("a null text") << QString();
    for (const char *text :
         {"", ".", "abc", "-1", "1e3", "12,5", "16777216", "4294967297", "99999999999999999999999999"})
        QTest::newRow(*text ? text : "an empty text") << QString::fromLatin1(text);
    QTest::newRow("less than a unit") << QStringLiteral("0.5");
}

void TestContractSim::whatIsNoMaximumIsRefused()
{
    QFETCH(QString, maximum);
    QCOMPARE(setLimit("70"), int(Success));
    QCOMPARE(setLimit(maximum), int(InvalidArgument));
    QCOMPARE(limit(), (Limit{70, true}));
}

void TestContractSim::withoutAPriceNoMaximumCanBeSetInTheCurrency()
{
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(setLimit("5"), int(InvalidArgument));
    QVERIFY(!limit().enabled);
    QCOMPARE(disableLimit(), int(Success));
}

void TestContractSim::settingsSurviveARestart()
{
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

void TestContractSim::aFileIsWrittenOnlyAsTheSimAllows_data()
{
    QTest::addColumn<quint8>("rule");
    QTest::addColumn<bool>("entered");
    QTest::addColumn<bool>("allowed");
    const QList<quint8> rules = makeRig()->updateRules();
    const auto row = [&](const char *name, AdviceOfCharge::UpdateRule rule, bool entered, bool allowed) {
        if (rules.contains(rule))
            QTest::newRow(name) << static_cast<quint8>(rule) << entered << allowed;
    };
    row("free", AdviceOfCharge::FreeUpdate, false, true);
    row("PIN2, not entered", AdviceOfCharge::UpdateUnderPin2, false, false);
    row("PIN2, entered", AdviceOfCharge::UpdateUnderPin2, true, true);
    row("never, though PIN2 is entered", AdviceOfCharge::NoUpdate, true, false);
}

void TestContractSim::aFileIsWrittenOnlyAsTheSimAllows()
{
    QFETCH(quint8, rule);
    QFETCH(bool, entered);
    QFETCH(bool, allowed);
    QCOMPARE(setPrice("0.25", "GBP"), int(Success));
    QCOMPARE(setLimit("70"), int(Success));
    for (const quint8 file : simFiles)
        QVERIFY(rig->setUpdateRule(file, rule));
    const auto enter = [&] { return !entered || enterRightPin2(); };
    const int expected = allowed ? Success : NotAllowed;
    QVERIFY(enter());
    QCOMPARE(advice().setPriceAndCurrency(QStringLiteral("1"), QStringLiteral("EUR")), expected);
    QCOMPARE(price(), (allowed ? Price{1, QStringLiteral("EUR")} : Price{0.25, QStringLiteral("GBP")}));
    QVERIFY(enter());
    QCOMPARE(advice().setMeterMaximum(QStringLiteral("7")), expected);
    QCOMPARE(limit(), (Limit{allowed ? 7.0 : 70.0, true}));
    QVERIFY(enter());
    QCOMPARE(advice().disableMeterMaximum(), expected);
    QCOMPARE(limit().enabled, !allowed);
    QCOMPARE(advice().setChargeType(AdviceOfCharge::InCurrency), int(Success)); // no file of the SIM
}

void TestContractSim::theRightPin2IsAskedForNoMore()
{
    QVERIFY(enterRightPin2());
    QCOMPARE(pin2Status(), quint32{SimSecurity::NoEntryNeeded});
    QVERIFY(enterRightPin2());
    QCOMPARE(pin2Status(), quint32{SimSecurity::NoEntryNeeded});
    QCOMPARE(pin2Tries(), 3);
}

void TestContractSim::aWrongPin2CostsATry()
{
    QVERIFY(enterWrongPin2());
    QCOMPARE(pin2Tries(), 2);
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QVERIFY(enterWrongPin2());
    QCOMPARE(pin2Tries(), 1);
    QVERIFY(enterRightPin2()); // gives all tries back
    QCOMPARE(pin2Tries(), 3);
    QCOMPARE(pin2Status(), quint32{SimSecurity::NoEntryNeeded});
}

void TestContractSim::aWrongPin2TakesBackWhatTheRightOneAllowed()
{
    QVERIFY(enterRightPin2());
    QVERIFY(enterWrongPin2());
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
    QCOMPARE(pin2Tries(), 2);
}

void TestContractSim::threeWrongPin2Block()
{
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

void TestContractSim::whatIsNoPinCostsNoTry_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::newRow("a null array") << QByteArray();
    QTest::newRow("an empty array") << QByteArray("");
    QTest::newRow("three digits") << QByteArray("123");
    QTest::newRow("nine digits") << QByteArray("123456789");
    QTest::newRow("a letter") << QByteArray("12a4");
    QTest::newRow("a NUL") << QByteArray("123\0", 4);
}

void TestContractSim::whatIsNoPinCostsNoTry()
{
    QFETCH(QByteArray, digits);
    bool accepted = true;
    QCOMPARE(security().verifyPin(SimSecurity::Pin2, digits, accepted), int(InvalidArgument));
    QVERIFY(accepted);
    QCOMPARE(pin2Tries(), 3);
    QCOMPARE(pin2Status(), quint32{SimSecurity::EntryNeeded});
}

void TestContractSim::pin1CanOnlyBeAskedForItsStatus()
{
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

void TestContractSim::aPinThatDoesNotExistIsRefused()
{
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

void TestContractSim::triesSurviveARestartAndWhatWasEnteredDoesNot()
{
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

KAV_TEST_GROUP(TestContractSim, QCoreApplication);
#include "tst_contract_sim.moc"
