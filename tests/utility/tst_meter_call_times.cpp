// The meter's call times and resets, over a scripted handset.
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneTest.h"
#include "support/PrivateAccess.h"

#include <climits>
#include <limits>

using handset::CallTime;

using Meter = PHONE_UI_RecentCallMeter;
KAV_EXPOSE(FormatTimeString, &Meter::formatTimeString);

namespace {

const QString source = QStringLiteral("utility/PHONE_UI_RecentCallMeter");

struct Getter {
    const char *name;
    QString (Meter::*get)();
    const char *operation;
};
constexpr Getter getters[] = {
    {"getLastCallTimes", &Meter::getLastCallTimes, "CallLog::lastCallTime"},
    {"getDialedCallsTimes", &Meter::getDialedCallsTimes, "CallLog::dialedCallsTime"},
    {"getAnsweredCallsTimes", &Meter::getAnsweredCallsTimes, "CallLog::answeredCallsTime"},
    {"getAllCallsTimes", &Meter::getAllCallsTimes, "CallService::totalCallTime"},
    {"getLifeTimeCallsTimes", &Meter::getLifeTimeCallsTimes, "CallLog::lifetimeCallsTime"},
};
static_assert(std::size(getters) == 5);

struct Reset {
    const char *name;
    void (Meter::*reset)();
    const char *operation;
};
constexpr Reset silentResets[] = {
    {"resetDialedCallsTimer", &Meter::resetDialedCallsTimer, "CallLog::resetDialedCallsTime"},
    {"resetAnsweredCallsTimer", &Meter::resetAnsweredCallsTimer, "CallLog::resetAnsweredCallsTime"},
    {"resetAllCallsTimer", &Meter::resetAllCallsTimer, "CallService::resetCallTime"},
};

struct Code {
    const char *name;
    int code;
};
constexpr Code failures[] = {
    {"1", 1}, {"2", 2}, {"-1", -1}, {"256", 256}, {"the largest int", INT_MAX}, {"the smallest int", INT_MIN},
};

// The trace of one telephony call.
QString callTrace(const char *method)
{
    return shortTrace(source, method) + shortTrace(source, method);
}

QString formatTrace(const char *moment, const QString &text)
{
    return longTrace(source, "formatTimeString",
                     QStringLiteral("formatTimeString %1,TIMESTR=%2.\\n").arg(moment, text));
}

} // namespace

class TestMeterCallTimes : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aFreshMeterHasNoParentNameOrQuestion();
    void aDeletedMeterAsksNothing();
    void theMetaObjectHasTheClassAndNothingOfItsOwn();

    void everyGetterAsksItsOwnFigureOnce_data();
    void everyGetterAsksItsOwnFigureOnce();
    void everyCallOfAGetterAsksAfresh_data();
    void everyCallOfAGetterAsksAfresh();
    void aFailedQueryGivesZeroes_data();
    void aFailedQueryGivesZeroes();
    void aFailureIsForgottenByTheNextQuery();
    void aTimeIsShownAs_data();
    void aTimeIsShownAs();
    void aMissingRoleGivesZeroes();
    void aMissingHandsetGivesZeroes();

    void aPaddedTimeIsTraced_data();
    void aPaddedTimeIsTraced();
    void aTimeOfThreeDigitHoursHasNoTraceAfterwards();
    void aFailedQueryTracesTheCallOnly_data();
    void aFailedQueryTracesTheCallOnly();
    void theTraceSurroundsTheCall_data();
    void theTraceSurroundsTheCall();

    void aResetAsksForItselfAndIsTraced_data();
    void aResetAsksForItselfAndIsTraced();
    void aFailedResetIsReportedNowhere_data();
    void aFailedResetIsReportedNowhere();
    void resettingEverythingIsOneOperation();
    void aFailedResetOfEverythingIsTraced_data();
    void aFailedResetOfEverythingIsTraced();

    void textsArePaddedInPlace_data();
    void textsArePaddedInPlace();

private:
    std::unique_ptr<Meter> meter;
};

void TestMeterCallTimes::init()
{
    PhoneTest::init();
    meter = std::make_unique<Meter>();
}

void TestMeterCallTimes::cleanup()
{
    meter.reset();
    PhoneTest::cleanup();
}

void TestMeterCallTimes::aFreshMeterHasNoParentNameOrQuestion()
{
    QVERIFY(!meter->parent());
    QVERIFY(meter->objectName().isEmpty());
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
}

void TestMeterCallTimes::aDeletedMeterAsksNothing()
{
    meter->getLastCallTimes();
    journal.clear();
    traces->take();
    meter.reset();
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
}

void TestMeterCallTimes::theMetaObjectHasTheClassAndNothingOfItsOwn()
{
    const QMetaObject *meta = meter->metaObject();
    QCOMPARE(meter->className(), "PHONE_UI_RecentCallMeter");
    QCOMPARE(meta->className(), "PHONE_UI_RecentCallMeter");
    QCOMPARE(meta->superClass()->className(), "QObject");
    QCOMPARE(meta->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta->enumeratorCount(), 0);
    QVERIFY(meter->inherits("QObject"));
}

void TestMeterCallTimes::everyGetterAsksItsOwnFigureOnce_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(getters)); ++i)
        QTest::newRow(getters[i].name) << i;
}

void TestMeterCallTimes::everyGetterAsksItsOwnFigureOnce()
{
    QFETCH(const int, index);
    for (quint8 i = 0; i < std::size(getters); ++i)
        script().answer(getters[i].operation, CallTime{10u + i, quint8(20 + i), quint8(30 + i)});
    const QString text = (meter.get()->*getters[index].get)();
    QCOMPARE(text, QStringLiteral("%1:%2:%3").arg(10 + index).arg(20 + index).arg(30 + index));
    QCOMPARE(journal.lines(), QStringList(getters[index].operation));
}

void TestMeterCallTimes::everyCallOfAGetterAsksAfresh_data()
{
    everyGetterAsksItsOwnFigureOnce_data();
}

void TestMeterCallTimes::everyCallOfAGetterAsksAfresh()
{
    QFETCH(const int, index);
    const Getter &getter = getters[index];
    script().answer(getter.operation, CallTime{1, 2, 3});
    QCOMPARE((meter.get()->*getter.get)(), QString("01:02:03"));
    script().answer(getter.operation, CallTime{11, 12, 13});
    QCOMPARE((meter.get()->*getter.get)(), QString("11:12:13"));
    QCOMPARE(journal.lines(), QStringList({getter.operation, getter.operation}));
}

void TestMeterCallTimes::aFailedQueryGivesZeroes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("code");
    for (int i = 0; i < int(std::size(getters)); ++i) {
        for (const Code &failure : failures)
            QTest::addRow("%s fails with %s", getters[i].name, failure.name) << i << failure.code;
    }
}

void TestMeterCallTimes::aFailedQueryGivesZeroes()
{
    QFETCH(const int, index);
    QFETCH(const int, code);
    script().answer(getters[index].operation, CallTime{12, 34, 56});
    script().fail(getters[index].operation, code);
    QCOMPARE((meter.get()->*getters[index].get)(), QString("00:00:00"));
    QCOMPARE(journal.lines(), QStringList(getters[index].operation));
}

void TestMeterCallTimes::aFailureIsForgottenByTheNextQuery()
{
    script().answer("CallLog::lastCallTime", CallTime{12, 34, 56});
    QCOMPARE(meter->getLastCallTimes(), QString("12:34:56"));
    script().fail("CallLog::lastCallTime", 1);
    QCOMPARE(meter->getLastCallTimes(), QString("00:00:00"));
    script().succeed("CallLog::lastCallTime");
    QCOMPARE(meter->getLastCallTimes(), QString("12:34:56"));
}

void TestMeterCallTimes::aTimeIsShownAs_data()
{
    QTest::addColumn<quint32>("hours");
    QTest::addColumn<quint8>("minutes");
    QTest::addColumn<quint8>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, quint32 hours, int minutes, int seconds, const char *text) {
        QTest::newRow(name) << hours << quint8(minutes) << quint8(seconds) << QString(text);
    };
    row("zeroes are padded", 0, 0, 0, "00:00:00");
    row("every field of one digit is padded", 5, 3, 7, "05:03:07");
    row("minutes alone are padded", 12, 3, 45, "12:03:45");
    row("seconds alone are padded", 12, 34, 5, "12:34:05");
    row("hours alone are padded", 1, 23, 45, "01:23:45");
    row("minutes and seconds are padded", 12, 3, 4, "12:03:04");
    row("hours and minutes are padded", 1, 2, 34, "01:02:34");
    row("hours and seconds are padded", 9, 59, 5, "09:59:05");
    row("ten hours are padded behind", 10, 0, 0, "10:00:00");
    row("full fields stay", 99, 59, 59, "99:59:59");
    row("99 hours are padded", 99, 0, 9, "99:00:09");
    row("three-digit hours stop all padding", 123, 4, 5, "123:4:5");
    row("100 hours are not padded", 100, 5, 3, "100:5:3");
    row("100 hours and nothing", 100, 0, 0, "100:0:0");
    row("999 hours", 999, 59, 9, "999:59:9");
    row("four-digit hours are not cut", 1000, 0, 0, "1000:0:0");
    row("the most hours there are", std::numeric_limits<quint32>::max(), 0, 5, "4294967295:0:5");
    row("hours beyond a signed number", 2147483648u, 59, 59, "2147483648:59:59");
    row("75 minutes stay 75", 5, 75, 7, "05:75:07");
    row("99 seconds stay 99", 5, 3, 99, "05:03:99");
}

void TestMeterCallTimes::aTimeIsShownAs()
{
    QFETCH(const quint32, hours);
    QFETCH(const quint8, minutes);
    QFETCH(const quint8, seconds);
    QFETCH(const QString, text);
    for (const Getter &getter : getters) {
        script().answer(getter.operation, CallTime{hours, minutes, seconds});
        QCOMPARE((meter.get()->*getter.get)(), text);
    }
}

void TestMeterCallTimes::aMissingRoleGivesZeroes()
{
    (*handset)->takeAway("CallLog");
    (*handset)->takeAway("CallService");
    for (const Getter &getter : getters)
        QCOMPARE((meter.get()->*getter.get)(), QString("00:00:00"));
}

void TestMeterCallTimes::aMissingHandsetGivesZeroes()
{
    handset.reset();
    for (const Getter &getter : getters)
        QCOMPARE((meter.get()->*getter.get)(), QString("00:00:00"));
}

void TestMeterCallTimes::aPaddedTimeIsTraced_data()
{
    everyGetterAsksItsOwnFigureOnce_data();
}

void TestMeterCallTimes::aPaddedTimeIsTraced()
{
    QFETCH(const int, index);
    script().answer(getters[index].operation, CallTime{5, 3, 7});
    (meter.get()->*getters[index].get)();
    QCOMPARE(traces->take(),
             callTrace(getters[index].name) + formatTrace("begin", "5:3:7") + formatTrace("after", "05:03:07"));
}

void TestMeterCallTimes::aTimeOfThreeDigitHoursHasNoTraceAfterwards()
{
    script().answer("CallLog::lastCallTime", CallTime{100, 5, 3});
    meter->getLastCallTimes();
    QCOMPARE(traces->take(), callTrace("getLastCallTimes") + formatTrace("begin", "100:5:3"));

    script().answer("CallLog::lastCallTime", CallTime{99, 59, 59});
    meter->getLastCallTimes();
    QCOMPARE(traces->take(),
             callTrace("getLastCallTimes") + formatTrace("begin", "99:59:59") + formatTrace("after", "99:59:59"));
}

void TestMeterCallTimes::aFailedQueryTracesTheCallOnly_data()
{
    everyGetterAsksItsOwnFigureOnce_data();
}

void TestMeterCallTimes::aFailedQueryTracesTheCallOnly()
{
    QFETCH(const int, index);
    script().fail(getters[index].operation, -7);
    (meter.get()->*getters[index].get)();
    QCOMPARE(traces->take(), callTrace(getters[index].name));
}

void TestMeterCallTimes::theTraceSurroundsTheCall_data()
{
    everyGetterAsksItsOwnFigureOnce_data();
}

void TestMeterCallTimes::theTraceSurroundsTheCall()
{
    QFETCH(const int, index);
    QString before;
    script().whenCalled(getters[index].operation, [&] { before = withoutLineNumbers(traces->text()); });
    (meter.get()->*getters[index].get)();
    QCOMPARE(before, shortTrace(source, getters[index].name));
}

void TestMeterCallTimes::aResetAsksForItselfAndIsTraced_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(silentResets)); ++i)
        QTest::newRow(silentResets[i].name) << i;
}

void TestMeterCallTimes::aResetAsksForItselfAndIsTraced()
{
    QFETCH(const int, index);
    QString before;
    script().whenCalled(silentResets[index].operation, [&] { before = withoutLineNumbers(traces->text()); });
    (meter.get()->*silentResets[index].reset)();
    QCOMPARE(journal.lines(), QStringList(silentResets[index].operation));
    QCOMPARE(before, shortTrace(source, silentResets[index].name));
    QCOMPARE(traces->take(), callTrace(silentResets[index].name));
}

void TestMeterCallTimes::aFailedResetIsReportedNowhere_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("code");
    for (int i = 0; i < int(std::size(silentResets)); ++i) {
        for (const Code &failure : failures)
            QTest::addRow("%s fails with %s", silentResets[i].name, failure.name) << i << failure.code;
    }
}

void TestMeterCallTimes::aFailedResetIsReportedNowhere()
{
    QFETCH(const int, index);
    QFETCH(const int, code);
    script().fail(silentResets[index].operation, code);
    (meter.get()->*silentResets[index].reset)();
    QCOMPARE(journal.lines(), QStringList(silentResets[index].operation));
    QCOMPARE(traces->take(), callTrace(silentResets[index].name));
}

void TestMeterCallTimes::resettingEverythingIsOneOperation()
{
    QString before;
    script().whenCalled("CallLog::resetAll", [&] { before = withoutLineNumbers(traces->text()); });
    meter->resetAll();
    QCOMPARE(before, shortTrace(source, "resetAll"));
    QCOMPARE(journal.lines(), QStringList("CallLog::resetAll"));
    QCOMPARE(traces->take(), callTrace("resetAll"));
}

void TestMeterCallTimes::aFailedResetOfEverythingIsTraced_data()
{
    QTest::addColumn<int>("code");
    for (const Code &failure : failures)
        QTest::addRow("it fails with %s", failure.name) << failure.code;
}

void TestMeterCallTimes::aFailedResetOfEverythingIsTraced()
{
    QFETCH(const int, code);
    script().fail("CallLog::resetAll", code);
    meter->resetAll();
    const QString message =
        QStringLiteral("PHONE_UI_RecentCallMeter::resetAll TAPI_LOG_ResetAll failed.%1").arg(code);
    QCOMPARE(traces->take(), callTrace("resetAll") + longTrace(source, "resetAll", message));
}

void TestMeterCallTimes::textsArePaddedInPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("padded");
    QTest::newRow("one digit everywhere") << "5:3:7"
                                          << "05:03:07";
    QTest::newRow("hours of two digits") << "12:3:45"
                                         << "12:03:45";
    QTest::newRow("a colon at 3 leaves the text untouched") << "100:5:3"
                                                            << "100:5:3";
    QTest::newRow("a colon far behind leaves the text untouched") << "4294967295:0:0"
                                                                  << "4294967295:0:0";
    QTest::newRow("minutes of three digits are split by the fixed places") << "5:100:7"
                                                                           << "05:0100:7";
    QTest::newRow("a text without colons is padded at the fixed places") << "1234567"
                                                                         << "012034567";
    // What is inserted behind the end has blanks before it.
    QTest::newRow("an empty text is padded as if it had colons") << ""
                                                                 << "0  0";
    QTest::newRow("a text of one character is padded") << "5"
                                                       << "05 0";
    QTest::newRow("a text of two characters is padded") << "5:"
                                                        << "05:0";
}

void TestMeterCallTimes::textsArePaddedInPlace()
{
    QFETCH(const QString, text);
    QFETCH(const QString, padded);
    QString changed = text;
    const QString answer = (meter.get()->*exposed(FormatTimeString()))(changed);
    QCOMPARE(answer, padded);
    QCOMPARE(changed, padded);
}

KAV_TEST_GROUP(TestMeterCallTimes, QApplication);
#include "tst_meter_call_times.moc"
