// The meter's costs, credit and expiry date, over a scripted handset.
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneTest.h"

#include <climits>

using handset::Date;
using Meter = PHONE_UI_RecentCallMeter;

namespace {

const QString source = QStringLiteral("utility/PHONE_UI_RecentCallMeter");

struct Amount {
    const char *name;
    QString (Meter::*get)();
    const char *operation;
    int longest; // characters that fit the buffer beside its NUL
};
constexpr Amount amounts[] = {
    {"getCreditAvailable", &Meter::getCreditAvailable, "CallService::remainingCredit", 99},
    {"getLastDeposit", &Meter::getLastDeposit, "CallLog::lastDeposit", 49},
    {"getLastCallCost", &Meter::getLastCallCost, "CallService::lastCallCost", 49},
    {"getDialedCallsCost", &Meter::getDialedCallsCost, "CallLog::dialedCallsCost", 49},
    {"getAnsweredCallsCost", &Meter::getAnsweredCallsCost, "CallLog::answeredCallsCost", 49},
    {"getAllCallsCost", &Meter::getAllCallsCost, "CallLog::allCallsCost", 49},
};
static_assert(std::size(amounts) == 6);

struct Reset {
    const char *name;
    void (Meter::*reset)();
    const char *operation;
    const char *failure;
};
constexpr Reset resets[] = {
    {"resetAllCallCosts", &Meter::resetAllCallCosts, "CallLog::resetAllCallsCost",
     "PHONE_UI_RecentCallMeter::resetAllCallCosts TAPI_LOG_ResetAllCallsCost failed."},
    {"resetDialedCallCosts", &Meter::resetDialedCallCosts, "CallLog::resetDialedCallsCost",
     "PHONE_UI_RecentCallMeter::resetDialedCallCosts TAPI_LOG_ResetDialedCallsCost failed."},
    {"resetAnsweredCallCosts", &Meter::resetAnsweredCallCosts, "CallLog::resetAnsweredCallsCost",
     "PHONE_UI_RecentCallMeter::resetAnsweredCallCosts TAPI_LOG_ResetAnsweredCallsCost failed."},
};
static_assert(std::size(resets) == 3);

constexpr int codes[] = {1, 2, -1, 256, INT_MAX, INT_MIN};

QString callTrace(const char *method)
{
    return shortTrace(source, method) + shortTrace(source, method);
}

void addAmountRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(amounts)); ++i)
        QTest::newRow(amounts[i].name) << i;
}

void addResetRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(resets)); ++i)
        QTest::newRow(resets[i].name) << i;
}

} // namespace

class TestMeterCosts : public PhoneTest
{
    Q_OBJECT

private slots:
    void everyAmountAsksItsOwnFigureOnceBetweenItsTraces_data() { addAmountRows(); }
    void everyAmountAsksItsOwnFigureOnceBetweenItsTraces();
    void anAmountIsShownAsTheHandsetWroteIt_data();
    void anAmountIsShownAsTheHandsetWroteIt();
    void aFailedAmountIsZeroWithTwoDecimalsAndUntraced_data() { addAmountRows(); }
    void aFailedAmountIsZeroWithTwoDecimalsAndUntraced();
    void theLongestTextIsReadWholeAndALongerOneFails_data() { addAmountRows(); }
    void theLongestTextIsReadWholeAndALongerOneFails();
    void aDateIsShownWithColonsAndWithoutPadding_data();
    void aDateIsShownWithColonsAndWithoutPadding();
    void aFailedDateHasSlashesAndTwoDigits();
    void aDateIsAskedOnceBetweenItsTraces();
    void aResetAsksForItselfAndTracesOnlyItsCall_data() { addResetRows(); }
    void aResetAsksForItselfAndTracesOnlyItsCall();
    void aFailedResetTracesItsMessageAndTheCode_data() { addResetRows(); }
    void aFailedResetTracesItsMessageAndTheCode();
    void withoutAHandsetEveryFigureIsItsFallback();

private:
    Meter meter;
};

void TestMeterCosts::everyAmountAsksItsOwnFigureOnceBetweenItsTraces()
{
    QFETCH(const int, index);
    for (const Amount &amount : amounts)
        script().answer(amount.operation, QByteArray(amount.name));
    QString before;
    script().whenCalled(amounts[index].operation, [&] { before = withoutLineNumbers(traces->text()); });
    QCOMPARE((meter.*amounts[index].get)(), QString(amounts[index].name));
    QCOMPARE(before, shortTrace(source, amounts[index].name));
    QCOMPARE(journal.lines(), QStringList(amounts[index].operation));
    QCOMPARE(traces->take(), callTrace(amounts[index].name));
}

void TestMeterCosts::anAmountIsShownAsTheHandsetWroteIt_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("shown");
    QTest::newRow("decimals") << QByteArray("12.50") << "12.50";
    QTest::newRow("no decimals stay none") << QByteArray("12") << "12";
    QTest::newRow("many decimals are not rounded") << QByteArray("0.123456") << "0.123456";
    QTest::newRow("blanks are kept") << QByteArray(" 1.00 ") << " 1.00 ";
    QTest::newRow("letters are kept") << QByteArray("n/a") << "n/a";
    QTest::newRow("Latin-1 letters") << QByteArray("5 \xA3 \xFF") << QString::fromLatin1("5 \xA3 \xFF");
    QTest::newRow("an empty text is empty, not zero") << QByteArray("") << "";
}

void TestMeterCosts::anAmountIsShownAsTheHandsetWroteIt()
{
    QFETCH(const QByteArray, written);
    QFETCH(const QString, shown);
    for (const Amount &amount : amounts) {
        script().answer(amount.operation, written);
        QCOMPARE((meter.*amount.get)(), shown);
        QVERIFY(!(meter.*amount.get)().isNull());
    }
}

void TestMeterCosts::aFailedAmountIsZeroWithTwoDecimalsAndUntraced()
{
    QFETCH(const int, index);
    script().answer(amounts[index].operation, QByteArray("7.77"));
    for (const int code : codes) {
        script().fail(amounts[index].operation, code);
        traces->take();
        QCOMPARE((meter.*amounts[index].get)(), QString("0.00"));
        QCOMPARE(traces->take(), callTrace(amounts[index].name));
    }
    script().succeed(amounts[index].operation);
    QCOMPARE((meter.*amounts[index].get)(), QString("7.77"));
}

void TestMeterCosts::theLongestTextIsReadWholeAndALongerOneFails()
{
    QFETCH(const int, index);
    const QByteArray longest(amounts[index].longest, '9');
    script().answer(amounts[index].operation, longest);
    QCOMPARE((meter.*amounts[index].get)(), QString::fromLatin1(longest));
    script().answer(amounts[index].operation, QByteArray(longest + '9'));
    QCOMPARE((meter.*amounts[index].get)(), QString("0.00"));
}

void TestMeterCosts::aDateIsShownWithColonsAndWithoutPadding_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::addColumn<QString>("text");
    QTest::newRow("a date of one digit each") << 2006 << 3 << 9 << "2006:3:9";
    QTest::newRow("a date of two digits each") << 2026 << 12 << 31 << "2026:12:31";
    QTest::newRow("zeroes") << 0 << 0 << 0 << "0:0:0";
    QTest::newRow("the greatest numbers") << 65535 << 255 << 255 << "65535:255:255";
}

void TestMeterCosts::aDateIsShownWithColonsAndWithoutPadding()
{
    QFETCH(const int, year);
    QFETCH(const int, month);
    QFETCH(const int, day);
    QFETCH(const QString, text);
    script().answer("CallLog::depositExpirationDate", Date{quint16(year), quint8(month), quint8(day)});
    QCOMPARE(meter.getExpirationDate(), text);
}

void TestMeterCosts::aFailedDateHasSlashesAndTwoDigits()
{
    script().answer("CallLog::depositExpirationDate", Date{2006, 3, 9});
    for (const int code : codes) {
        script().fail("CallLog::depositExpirationDate", code);
        QCOMPARE(meter.getExpirationDate(), QString("2000/00/00"));
        QCOMPARE(traces->take(), callTrace("getExpirationDate"));
    }
}

void TestMeterCosts::aDateIsAskedOnceBetweenItsTraces()
{
    QString before;
    script().whenCalled("CallLog::depositExpirationDate", [&] { before = withoutLineNumbers(traces->text()); });
    meter.getExpirationDate();
    QCOMPARE(before, shortTrace(source, "getExpirationDate"));
    QCOMPARE(journal.lines(), QStringList("CallLog::depositExpirationDate"));
    QCOMPARE(traces->take(), callTrace("getExpirationDate"));
}

void TestMeterCosts::aResetAsksForItselfAndTracesOnlyItsCall()
{
    QFETCH(const int, index);
    QString before;
    script().whenCalled(resets[index].operation, [&] { before = withoutLineNumbers(traces->text()); });
    (meter.*resets[index].reset)();
    QCOMPARE(before, shortTrace(source, resets[index].name));
    QCOMPARE(journal.lines(), QStringList(resets[index].operation));
    QCOMPARE(traces->take(), callTrace(resets[index].name));
}

void TestMeterCosts::aFailedResetTracesItsMessageAndTheCode()
{
    QFETCH(const int, index);
    for (const int code : codes) {
        script().fail(resets[index].operation, code);
        journal.clear();
        (meter.*resets[index].reset)();
        QCOMPARE(journal.lines(), QStringList(resets[index].operation)); // and not a second time
        QCOMPARE(traces->take(),
                 callTrace(resets[index].name) +
                     longTrace(source, resets[index].name, resets[index].failure + QString::number(code)));
    }
}

void TestMeterCosts::withoutAHandsetEveryFigureIsItsFallback()
{
    handset::install(nullptr);
    for (const Amount &amount : amounts)
        QCOMPARE((meter.*amount.get)(), QString("0.00"));
    QCOMPARE(meter.getExpirationDate(), QString("2000/00/00"));
}

KAV_TEST_GROUP(TestMeterCosts, QApplication);
#include "tst_meter_costs.moc"
