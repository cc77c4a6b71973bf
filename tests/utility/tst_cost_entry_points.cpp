// The meter's calls of the telephony functions for costs, answered by this program in the place of the phone's library.
//
// The program exports functions of the same names, which the dynamic linker finds first. What no handset behind the
// library can do, they do: look at what is to be filled, write into it though they fail, write nothing, or write
// beyond the end of a text.
#include "utility/PHONE_UI_RecentCallCostSetupView.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"

#include "telephony/tapi.h"

#include <algorithm>
#include <iterator>
#include <limits>

using Meter = PHONE_UI_RecentCallMeter;

namespace {

struct Answers {
    int status = 0;
    QByteArray text; // written as it is, NULs and all; nothing when null
    bool writesDate = true;
};
Answers answers;

int answerText(const char *function, char *text, std::size_t size)
{
    const bool zeroed = std::all_of(text, text + size, [](char c) { return c == '\0'; });
    Journal::shared().record(QLatin1String(function) + QLatin1String(zeroed ? "(zeroed)" : "(not zeroed)"));
    std::copy(answers.text.begin(), answers.text.end(), text);
    return answers.status;
}

int answerReset(const char *function)
{
    Journal::shared().record(QLatin1String(function));
    return answers.status;
}

} // namespace

int TAPI_CS_GetRemainCredit(char *text)
{
    return answerText(__func__, text, TAPI_CREDIT_TEXT_SIZE);
}
int TAPI_CS_GetLastCallCost(char *text)
{
    return answerText(__func__, text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetLastDeposit(char *text)
{
    return answerText(__func__, text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetDialedCallsCost(char *text)
{
    return answerText(__func__, text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetAnsweredCallsCost(char *text)
{
    return answerText(__func__, text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetAllCallsCost(char *text)
{
    return answerText(__func__, text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetDepositExpirationDate(TAPI_Date *date)
{
    const bool zeroed = date->year == 0 && date->month == 0 && date->day == 0;
    Journal::shared().record(QLatin1String(__func__) + QLatin1String(zeroed ? "(zeroed)" : "(not zeroed)"));
    if (answers.writesDate)
        *date = {2006, 3, 9};
    return answers.status;
}
int TAPI_SECURITY_GetAnyPinStatus(uint8_t pin, uint32_t *status)
{
    Journal::shared().record(QStringLiteral("%1(%2, %3)").arg(QLatin1String(__func__)).arg(pin).arg(*status));
    return answers.status;
}
int TAPI_LOG_ResetAllCallsCost()
{
    return answerReset(__func__);
}
int TAPI_LOG_ResetDialedCallsCost()
{
    return answerReset(__func__);
}
int TAPI_LOG_ResetAnsweredCallsCost()
{
    return answerReset(__func__);
}

namespace {

struct Amount {
    const char *function;
    QString (Meter::*get)();
};
constexpr Amount amounts[] = {
    {"TAPI_CS_GetRemainCredit", &Meter::getCreditAvailable},
    {"TAPI_LOG_GetLastDeposit", &Meter::getLastDeposit},
    {"TAPI_CS_GetLastCallCost", &Meter::getLastCallCost},
    {"TAPI_LOG_GetDialedCallsCost", &Meter::getDialedCallsCost},
    {"TAPI_LOG_GetAnsweredCallsCost", &Meter::getAnsweredCallsCost},
    {"TAPI_LOG_GetAllCallsCost", &Meter::getAllCallsCost},
};
static_assert(std::size(amounts) == 6);

constexpr int failures[] = {1, -1, 256, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

void addAmountRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(amounts)); ++i)
        QTest::newRow(amounts[i].function) << i;
}

} // namespace

class TestCostEntryPoints : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();

    void anAmountIsAskedOnceOfItsOwnFunctionWithAZeroedBuffer_data() { addAmountRows(); }
    void anAmountIsAskedOnceOfItsOwnFunctionWithAZeroedBuffer();
    void aBufferThatIsLeftZeroGivesAnEmptyTextNotZero_data() { addAmountRows(); }
    void aBufferThatIsLeftZeroGivesAnEmptyTextNotZero();
    void whatFollowsTheEndOfAnAmountIsNotShown_data() { addAmountRows(); }
    void whatFollowsTheEndOfAnAmountIsNotShown();
    void whatAFailedAmountQueryWroteIsNotShown_data() { addAmountRows(); }
    void whatAFailedAmountQueryWroteIsNotShown();
    void aDateIsAskedOnceOfItsOwnFunctionWithAZeroedRecord();
    void aDateThatIsLeftZeroIsShownInTheShapeOfASuccess();
    void whatAFailedDateQueryWroteIsNotShown();
    void thePinStatusIsPresetBeforeItIsAsked();
    void everyResetCallsItsOwnFunctionOnce_data();
    void everyResetCallsItsOwnFunctionOnce();

private:
    Meter meter;
};

void TestCostEntryPoints::init()
{
    PhoneTest::init();
    answers = {};
}

void TestCostEntryPoints::anAmountIsAskedOnceOfItsOwnFunctionWithAZeroedBuffer()
{
    QFETCH(const int, index);
    answers.text = "12.50";
    for (int round = 0; round < 2; ++round) { // the second buffer must be as fresh as the first
        journal.clear();
        QCOMPARE((meter.*amounts[index].get)(), QString("12.50"));
        QCOMPARE(journal.lines(), QStringList(QLatin1String(amounts[index].function) + QLatin1String("(zeroed)")));
    }
}

void TestCostEntryPoints::aBufferThatIsLeftZeroGivesAnEmptyTextNotZero()
{
    QFETCH(const int, index);
    const QString text = (meter.*amounts[index].get)();
    QCOMPARE(text, QString(""));
    QVERIFY(!text.isNull());
}

void TestCostEntryPoints::whatFollowsTheEndOfAnAmountIsNotShown()
{
    QFETCH(const int, index);
    answers.text = QByteArray("0.30\0left over", 14);
    QCOMPARE((meter.*amounts[index].get)(), QString("0.30"));
    answers.text = QByteArray("\0left over", 10);
    QCOMPARE((meter.*amounts[index].get)(), QString(""));
}

void TestCostEntryPoints::whatAFailedAmountQueryWroteIsNotShown()
{
    QFETCH(const int, index);
    answers.text = "7.77";
    for (const int status : failures) {
        answers.status = status;
        QCOMPARE((meter.*amounts[index].get)(), QString("0.00"));
    }
}

void TestCostEntryPoints::aDateIsAskedOnceOfItsOwnFunctionWithAZeroedRecord()
{
    for (int round = 0; round < 2; ++round) {
        journal.clear();
        QCOMPARE(meter.getExpirationDate(), QString("2006:3:9"));
        QCOMPARE(journal.lines(), QStringList("TAPI_LOG_GetDepositExpirationDate(zeroed)"));
    }
}

void TestCostEntryPoints::aDateThatIsLeftZeroIsShownInTheShapeOfASuccess()
{
    answers.writesDate = false;
    QCOMPARE(meter.getExpirationDate(), QString("0:0:0"));
}

void TestCostEntryPoints::whatAFailedDateQueryWroteIsNotShown()
{
    for (const int status : failures) {
        answers.status = status;
        QCOMPARE(meter.getExpirationDate(), QString("2000/00/00"));
    }
}

void TestCostEntryPoints::thePinStatusIsPresetBeforeItIsAsked()
{
    PHONE_UI_RecentCallCostSetupView setup(nullptr, nullptr);
    setup.show();
    for (const int row : {0, 4}) {
        journal.clear();
        PhoneScreen::chooseRow(&setup, row);
        QCOMPARE(journal.lines().value(0), QString("TAPI_SECURITY_GetAnyPinStatus(1, 255)"));
        QMetaObject::invokeMethod(&setup, "slotClose");
    }
}

void TestCostEntryPoints::everyResetCallsItsOwnFunctionOnce_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("function");
    QTest::newRow("all calls") << 0 << "TAPI_LOG_ResetAllCallsCost";
    QTest::newRow("dialed calls") << 1 << "TAPI_LOG_ResetDialedCallsCost";
    QTest::newRow("answered calls") << 2 << "TAPI_LOG_ResetAnsweredCallsCost";
}

void TestCostEntryPoints::everyResetCallsItsOwnFunctionOnce()
{
    QFETCH(const int, index);
    QFETCH(const QString, function);
    constexpr void (Meter::*resets[])() = {&Meter::resetAllCallCosts, &Meter::resetDialedCallCosts,
                                           &Meter::resetAnsweredCallCosts};
    (meter.*resets[index])();
    QCOMPARE(journal.lines(), QStringList(function));
}

KAV_TEST_GROUP(TestCostEntryPoints, QApplication);
#include "tst_cost_entry_points.moc"
