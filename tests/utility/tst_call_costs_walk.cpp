// Thousands of random keys on the Call Costs screen, over a handset that answers at random, beside a model that says
// what a person must see.
#include "utility/PHONE_UI_RecentCallCostsView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"

#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>

#include <array>

using handset::Date;
using ZKeys::PhoneKey;
using CallCosts = HostedScreen<PHONE_UI_RecentCallCostsView>;

namespace {

constexpr int keyCount = 5000;
constexpr int figureCount = 7;
constexpr int dateRow = 1;
constexpr int setupRow = 7;

// The setup has a test of its own: here it is only moved in and left, by the keys that leave.
constexpr PhoneKey keys[] = {PhoneKey::Up,          PhoneKey::Down,         PhoneKey::Select,
                             PhoneKey::LeftSoftkey, PhoneKey::RightSoftkey, PhoneKey::Clear};

constexpr const char *operations[figureCount] = {"CallService::remainingCredit", "CallLog::depositExpirationDate",
                                                 "CallLog::lastDeposit",         "CallService::lastCallCost",
                                                 "CallLog::dialedCallsCost",     "CallLog::answeredCallsCost",
                                                 "CallLog::allCallsCost"};
constexpr const char *messages[figureCount] = {
    "Your current credit available is %1 units", "Your remaining credit will expire on %1",
    "Your last deposit amount was %1",           "The cost of your last call was %1",
    "The cost of your dialed calls is %1",       "The cost of your answered calls is %1",
    "The cost of all your calls is %1"};
constexpr const char *currencies[] = {"EUR", "GBP", "ATS", "gbp", "", "PYK"};

// What the handset has, and how it answers now.
struct HandsetState {
    std::array<QByteArray, figureCount> amounts; // the date's place is not used
    Date date{2006, 3, 9};
    std::array<bool, figureCount> fails{};
    quint8 chargeType = 0;
    bool typeFails = false;
    QString currency = QStringLiteral("EUR");
    bool currencyFails = false;

    QString unit() const
    {
        if (typeFails || chargeType > 1 || (chargeType == 1 && currencyFails))
            return QString();
        return chargeType == 0 ? QStringLiteral("units") : currency;
    }
    QString figure(size_t row) const
    {
        if (row == dateRow)
            return fails[row] ? QStringLiteral("2000/00/00")
                              : QString::asprintf("%d:%d:%d", date.year, date.month, date.day);
        return fails[row] ? QStringLiteral("0.00") : QString::fromLatin1(amounts[row]);
    }
};

// What a person sees, and what the keys do.
struct Person {
    std::array<QString, figureCount> values;
    QString unit;
    QString told; // the message on show; null when there is none
    bool inSetup = false;
    int left = 0; // how often the screen asked to be closed
};

} // namespace

class TestCallCostsWalk : public PhoneTest
{
    Q_OBJECT

private slots:
    void everyKeyDoesWhatThePersonExpects_data();
    void everyKeyDoesWhatThePersonExpects();

private:
    void changeHandset(QRandomGenerator &random);
    void scriptHandset();
    QString valueNow(size_t row) const;
    void readAllInModel();
    void pressInModel(PhoneKey key, int currentRow);
    void compareWithScreen(const CallCosts &screen);

    HandsetState handset;
    Person person;
};

void TestCallCostsWalk::changeHandset(QRandomGenerator &random)
{
    const auto row = size_t(random.bounded(figureCount));
    handset.amounts[row] = QByteArray::number(random.bounded(1000)) + (random.bounded(2) ? ".50" : "");
    handset.date = {quint16(random.bounded(65536)), quint8(random.bounded(256)), quint8(random.bounded(256))};
    handset.fails[row] = random.bounded(4) == 0;
    handset.chargeType = quint8(random.bounded(3));
    handset.typeFails = random.bounded(8) == 0;
    handset.currency = QString::fromLatin1(currencies[random.bounded(int(std::size(currencies)))]);
    handset.currencyFails = random.bounded(8) == 0;
    scriptHandset();
}

void TestCallCostsWalk::scriptHandset()
{
    for (size_t row = 0; row < figureCount; ++row) {
        if (row == dateRow)
            script().answer(operations[row], handset.date);
        else
            script().answer(operations[row], handset.amounts[row]);
        script().fail(operations[row], handset.fails[row] ? -3 : 0);
    }
    script().answer("AdviceOfCharge::chargeType", handset.chargeType);
    script().fail("AdviceOfCharge::chargeType", handset.typeFails ? 1 : 0);
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), handset.currency);
    script().fail("AdviceOfCharge::priceAndCurrency", handset.currencyFails ? 2 : 0);
}

QString TestCallCostsWalk::valueNow(size_t row) const
{
    return row == dateRow ? handset.figure(row) : handset.figure(row) + QLatin1Char(' ') + person.unit;
}

void TestCallCostsWalk::readAllInModel()
{
    person.unit = handset.unit();
    for (size_t row = 0; row < figureCount; ++row)
        person.values[row] = valueNow(row);
}

void TestCallCostsWalk::pressInModel(PhoneKey key, int currentRow)
{
    const bool right = key == PhoneKey::RightSoftkey || key == PhoneKey::Clear;
    if (!person.told.isNull()) {
        // The right softkey of a notice has no caption; the clear key puts it away too.
        if (key == PhoneKey::LeftSoftkey || key == PhoneKey::Select || key == PhoneKey::Clear)
            person.told = QString();
    } else if (person.inSetup) {
        person.inSetup = !right;
        if (right)
            readAllInModel();
    } else if (key == PhoneKey::Select && currentRow == setupRow) {
        person.inSetup = true;
    } else if (key == PhoneKey::Select) {
        person.told = QString::fromLatin1(messages[currentRow]).arg(valueNow(size_t(currentRow)));
    } else if (right) {
        ++person.left;
    }
}

void TestCallCostsWalk::compareWithScreen(const CallCosts &screen)
{
    for (int row = 0; row < figureCount; ++row)
        QCOMPARE(PhoneScreen::value(screen.get(), row), person.values[size_t(row)]);
    QCOMPARE(PhoneScreen::value(screen.get(), setupRow), QString());
    QStringList shown;
    const auto dialogs = PhoneScreen::shownDialogs();
    for (const ZMessageDlg *dialog : dialogs)
        shown.append(dialog->message());
    COMPARE_LINES(shown, person.told.isNull() ? QStringList() : QStringList(person.told));
    QCOMPARE(screen->findChildren<ZKbMainWidget *>().size(), person.inSetup ? 1 : 0);
}

void TestCallCostsWalk::everyKeyDoesWhatThePersonExpects_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 20260731u, 4294967295u})
        QTest::addRow("seed %u", seed) << seed;
}

void TestCallCostsWalk::everyKeyDoesWhatThePersonExpects()
{
    QFETCH(const quint32, seed);
    QRandomGenerator random(seed);
    handset = {};
    person = {};
    handset.amounts.fill("1.00");
    scriptHandset();
    const CallCosts screen("callCost");
    screen->show();
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    readAllInModel();
    int details = 0;
    int setups = 0;
    for (int i = 0; i < keyCount; ++i) {
        if (random.bounded(4) == 0)
            changeHandset(random);
        PhoneKey key = keys[random.bounded(int(std::size(keys)))];
        if (person.inSetup && (key == PhoneKey::Select || key == PhoneKey::LeftSoftkey))
            key = PhoneKey::Down;
        const bool wasTold = !person.told.isNull();
        const bool wasInSetup = person.inSetup;
        pressInModel(key, PhoneScreen::list(screen.get())->currentItem());
        details += !wasTold && !person.told.isNull() ? 1 : 0;
        setups += !wasInSetup && person.inSetup ? 1 : 0;
        PhoneScreen::press(key);
        compareWithScreen(screen);
        QCOMPARE(closed.count(), person.left);
        if (QTest::currentTestFailed()) {
            qInfo("key %d of the walk: %d", i, int(key));
            return;
        }
    }
    // The walk came by everything there is.
    QVERIFY(person.left > 100);
    QVERIFY(details > 100);
    QVERIFY(setups > 50);
}

KAV_TEST_GROUP(TestCallCostsWalk, QApplication);
#include "tst_call_costs_walk.moc"
