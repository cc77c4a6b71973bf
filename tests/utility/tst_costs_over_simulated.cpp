// The Call Costs screen over calls that are really made and charged.
#include "utility/PHONE_UI_RecentCallCostsView.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"

#include "toolkit/ZMessageDlg.h"

#include "handset/AdviceOfCharge.h"
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "handset/Status.h"
#include "simulated/SimulatedHandset.h"

using namespace handset;
using ZKeys::PhoneKey;
using CallCosts = HostedScreen<PHONE_UI_RecentCallCostsView>;

namespace {

constexpr int rowOfSetup = 7;

/// Credit, expiry date, deposit, and the costs of the last, the dialed, the answered and of all calls.
QStringList rowsOf(const QStringList &values)
{
    constexpr const char *titles[] = {"Credit Available", "Expiration Date",   "Last Deposit",
                                      "Last Call Cost",   "Dialed Calls Cost", "Answered Calls Cost",
                                      "All Calls Cost",   "Call Cost Setup"};
    QStringList rows;
    for (int i = 0; i < int(std::size(titles)); ++i)
        rows.append(QLatin1String(titles[i]) + QLatin1Char('|') + values.value(i));
    return rows;
}

} // namespace

class TestCostsOverSimulated : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aNewHandsetHasFallbacksForItsAccountAndZeroCosts();
    void everyFigureFollowsFromTheCallsAndTheDeposit();
    void afterTheSetupAmountsAreInTheNewCurrency();
    void aResetZeroesItsOwnCostAlone();

private:
    bool payAndCall();

    std::shared_ptr<ManualClock> clock;
    simulated::SimulatedHandset *phone = nullptr;
};

void TestCostsOverSimulated::init()
{
    PhoneTest::init();
    clock = std::make_shared<ManualClock>(0);
    Settings settings;
    settings.clock = clock;
    const Opened opened = open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    phone = dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get());
    QVERIFY(phone);
    install(opened.handset);
}

void TestCostsOverSimulated::cleanup()
{
    install(nullptr);
    PhoneTest::cleanup();
}

// At a unit a second: 50 units paid in, 8 seconds dialed, then 3 seconds answered.
bool TestCostsOverSimulated::payAndCall()
{
    charging::Tariff tariff;
    tariff.unitsPerInterval = 10; // tenths
    tariff.interval = 10;         // tenths of a second
    simulated::Charging &charging = *phone->charging();
    if (charging.setTariff(CallDirection::Dialed, tariff) != Success ||
        charging.setTariff(CallDirection::Answered, tariff) != Success ||
        charging.topUp(QStringLiteral("50"), {2027, 3, 9}) != Success)
        return false;
    if (phone->dial(QStringLiteral("1"), CallKind::Voice) != Success || phone->remoteAnswer() != Success)
        return false;
    clock->advance(8000);
    if (phone->hangUp() != Success || phone->ring(QString()) != Success || phone->answer() != Success)
        return false;
    clock->advance(3000);
    return phone->hangUp() == Success;
}

void TestCostsOverSimulated::aNewHandsetHasFallbacksForItsAccountAndZeroCosts()
{
    QByteArray credit;
    QVERIFY(phone->callService()->remainingCredit(credit) != Success);
    const CallCosts screen("callCost");
    COMPARE_LINES(PhoneScreen::rows(screen.get()), rowsOf({"0.00 units", "2000/00/00", "0.00 units", "0.00 units",
                                                           "0.00 units", "0.00 units", "0.00 units"}));
}

void TestCostsOverSimulated::everyFigureFollowsFromTheCallsAndTheDeposit()
{
    QVERIFY(payAndCall());
    const CallCosts screen("callCost");
    COMPARE_LINES(PhoneScreen::rows(screen.get()), rowsOf({"39.00 units", "2027:3:9", "50.00 units", "3.00 units",
                                                           "8.00 units", "3.00 units", "11.00 units"}));
    screen->show();
    PhoneScreen::chooseRow(screen.get(), 0);
    QVERIFY(PhoneScreen::shownDialog());
    QCOMPARE(PhoneScreen::shownDialog()->message(), QString("Your current credit available is 39.00 units units"));
}

void TestCostsOverSimulated::afterTheSetupAmountsAreInTheNewCurrency()
{
    QVERIFY(payAndCall());
    const CallCosts screen("callCost");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), rowOfSetup);
    AdviceOfCharge *advice = phone->adviceOfCharge();
    QVERIFY(advice);
    QCOMPARE(advice->setPriceAndCurrency(QStringLiteral("0.25"), QStringLiteral("ATS")), int(Success));
    QCOMPARE(advice->setChargeType(1), int(Success));
    PhoneScreen::press(PhoneKey::RightSoftkey);
    COMPARE_LINES(PhoneScreen::rows(screen.get()),
                  rowsOf({"9.75 ATS", "2027:3:9", "12.50 ATS", "0.75 ATS", "2.00 ATS", "0.75 ATS", "2.75 ATS"}));
}

void TestCostsOverSimulated::aResetZeroesItsOwnCostAlone()
{
    QVERIFY(payAndCall());
    PHONE_UI_RecentCallMeter meter;
    meter.resetDialedCallCosts();
    QCOMPARE(meter.getDialedCallsCost(), QString("0.00"));
    QCOMPARE(meter.getAnsweredCallsCost(), QString("3.00"));
    QCOMPARE(meter.getAllCallsCost(), QString("11.00"));
    meter.resetAnsweredCallCosts();
    QCOMPARE(meter.getAnsweredCallsCost(), QString("0.00"));
    QCOMPARE(meter.getAllCallsCost(), QString("11.00"));
    meter.resetAllCallCosts();
    QCOMPARE(meter.getAllCallsCost(), QString("0.00"));
    QCOMPARE(meter.getLastCallCost(), QString("3.00"));
    QCOMPARE(meter.getCreditAvailable(), QString("39.00"));
    QCOMPARE(meter.getLastDeposit(), QString("50.00"));
    QCOMPARE(meter.getExpirationDate(), QString("2027:3:9"));
}

KAV_TEST_GROUP(TestCostsOverSimulated, QApplication);
#include "tst_costs_over_simulated.moc"
