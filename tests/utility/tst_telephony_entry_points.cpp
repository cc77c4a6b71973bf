// The plug-in's calls of the telephony functions, answered by this program in the place of the phone's library.
//
// The program exports functions of the same names, which the dynamic linker finds first. What no handset behind the
// library can do, they do: look at the record before it is filled, and write into it though they fail.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"

#include "telephony/tapi.h"
#include "telephony/util.h"

using ZKeys::PhoneKey;

namespace {

constexpr TAPI_CallTime garbage{77, 88, 99};
constexpr quint32 garbageSeconds = 4711;

struct Answers {
    int status = 0;
    TAPI_CallTime time{};
    quint32 seconds = 0;
    quint8 dataCallStatus = 0;
    bool silent = false; // success without writing anything
};
Answers answers;

int answerTime(const char *function, TAPI_CallTime *time)
{
    const bool zeroed = time->hours == 0 && time->minutes == 0 && time->seconds == 0;
    Journal::shared().record(QLatin1String(function) + QLatin1String(zeroed ? "(zeroed)" : "(not zeroed)"));
    if (!answers.silent)
        *time = answers.status == 0 ? answers.time : garbage;
    return answers.status;
}

int answerReset(const char *function)
{
    Journal::shared().record(QLatin1String(function));
    return answers.status;
}

} // namespace

int TAPI_CS_GetTotalCallTime(TAPI_CallTime *time)
{
    return answerTime(__func__, time);
}
int TAPI_LOG_GetLastCallTime(TAPI_CallTime *time)
{
    return answerTime(__func__, time);
}
int TAPI_LOG_GetDialedCallsTime(TAPI_CallTime *time)
{
    return answerTime(__func__, time);
}
int TAPI_LOG_GetAnsweredCallsTime(TAPI_CallTime *time)
{
    return answerTime(__func__, time);
}
int TAPI_LOG_GetLifetimeCallsTime(TAPI_CallTime *time)
{
    return answerTime(__func__, time);
}
int TAPI_CS_ResetCallTime()
{
    return answerReset(__func__);
}
int TAPI_LOG_ResetDialedCallsTime()
{
    return answerReset(__func__);
}
int TAPI_LOG_ResetAnsweredCallsTime()
{
    return answerReset(__func__);
}

int UTIL_GetTotalDuration(uint32_t *seconds)
{
    Journal::shared().record(QStringLiteral("UTIL_GetTotalDuration(%1)").arg(*seconds));
    if (!answers.silent)
        *seconds = answers.status == 0 ? answers.seconds : garbageSeconds;
    return answers.status;
}

int UTIL_GetDataCallStaus(uint8_t *status)
{
    Journal::shared().record(QLatin1String(__func__));
    if (!answers.silent)
        *status = answers.dataCallStatus;
    return answers.status;
}

class TestTelephonyEntryPoints : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();

    void everyFigureIsAskedOnceOfItsOwnFunction();
    void whatAFailedTimeQueryWroteIsNotShown_data();
    void whatAFailedTimeQueryWroteIsNotShown();
    void aQueryThatWritesNothingGivesZeroes();
    void numbersOutsideAClockAreShownAsTheyCome_data();
    void numbersOutsideAClockAreShownAsTheyCome();
    void whatAFailedDurationQueryWroteIsShown();
    void everyResetCallsItsOwnFunction_data();
    void everyResetCallsItsOwnFunction();
    void aStatusWrittenByAFailedQueryCounts_data();
    void aStatusWrittenByAFailedQueryCounts();
    void aStatusThatIsNeverWrittenDoesNothing();
};

using CallTimes = HostedScreen<PHONE_UI_RecentCallTimesView>;

void TestTelephonyEntryPoints::init()
{
    PhoneTest::init();
    answers = {};
}

void TestTelephonyEntryPoints::everyFigureIsAskedOnceOfItsOwnFunction()
{
    const CallTimes screen("callTime");
    // The refresh goes through the message client to the scripted handset.
    COMPARE_LINES(
        journal.lines(),
        QStringList({"DataCalls::refreshTotals", "UTIL_GetTotalDuration(0)", "TAPI_LOG_GetLastCallTime(zeroed)",
                     "TAPI_LOG_GetDialedCallsTime(zeroed)", "TAPI_LOG_GetAnsweredCallsTime(zeroed)",
                     "TAPI_CS_GetTotalCallTime(zeroed)", "TAPI_LOG_GetLifetimeCallsTime(zeroed)"}));
}

void TestTelephonyEntryPoints::whatAFailedTimeQueryWroteIsNotShown_data()
{
    QTest::addColumn<int>("status");
    for (const int status : {1, -1, 255, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("the query answers %d", status) << status;
}

void TestTelephonyEntryPoints::whatAFailedTimeQueryWroteIsNotShown()
{
    QFETCH(const int, status);
    answers.status = status;
    const CallTimes screen("callTime");
    for (const int row : {0, 1, 2, 4, 5})
        QCOMPARE(PhoneScreen::value(screen.get(), row), QString("00:00:00"));
}

void TestTelephonyEntryPoints::aQueryThatWritesNothingGivesZeroes()
{
    answers.silent = true;
    const CallTimes screen("callTime");
    for (int row = 0; row < 6; ++row)
        QCOMPARE(PhoneScreen::value(screen.get(), row), QString("00:00:00"));
}

void TestTelephonyEntryPoints::numbersOutsideAClockAreShownAsTheyCome_data()
{
    QTest::addColumn<quint8>("minutes");
    QTest::addColumn<quint8>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("75 minutes") << quint8(75) << quint8(7) << "05:75:07";
    QTest::newRow("60 seconds") << quint8(3) << quint8(60) << "05:03:60";
    // Behind three digits of minutes the fixed places are those of another field.
    QTest::newRow("255 minutes and seconds") << quint8(255) << quint8(255) << "05:0255:255";
}

void TestTelephonyEntryPoints::numbersOutsideAClockAreShownAsTheyCome()
{
    QFETCH(const quint8, minutes);
    QFETCH(const quint8, seconds);
    QFETCH(const QString, text);
    answers.time = {5, minutes, seconds};
    const CallTimes screen("callTime");
    for (const int row : {0, 1, 2, 4, 5})
        QCOMPARE(PhoneScreen::value(screen.get(), row), text);
}

void TestTelephonyEntryPoints::whatAFailedDurationQueryWroteIsShown()
{
    answers.status = 1;
    const CallTimes screen("callTime");
    QCOMPARE(PhoneScreen::value(screen.get(), 3), QString("01:18:31"));
}

void TestTelephonyEntryPoints::everyResetCallsItsOwnFunction_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("function");
    QTest::newRow("Dialed Calls") << 1 << "TAPI_LOG_ResetDialedCallsTime";
    QTest::newRow("Answered Calls") << 2 << "TAPI_LOG_ResetAnsweredCallsTime";
    QTest::newRow("All Calls") << 4 << "TAPI_CS_ResetCallTime";
}

void TestTelephonyEntryPoints::everyResetCallsItsOwnFunction()
{
    QFETCH(const int, row);
    QFETCH(const QString, function);
    const CallTimes screen("callTime");
    screen->show();
    journal.clear();
    PhoneScreen::chooseRow(screen.get(), row);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(journal.lines().value(0), function);
    QCOMPARE(journal.lines().filter("Reset"), QStringList(function));
}

void TestTelephonyEntryPoints::aStatusWrittenByAFailedQueryCounts_data()
{
    QTest::addColumn<quint8>("status");
    QTest::addColumn<bool>("reset");
    QTest::newRow("0 allows the reset") << quint8(0) << true;
    QTest::newRow("1 refuses it") << quint8(1) << false;
}

void TestTelephonyEntryPoints::aStatusWrittenByAFailedQueryCounts()
{
    QFETCH(const quint8, status);
    QFETCH(const bool, reset);
    const CallTimes screen("callTime");
    screen->show();
    journal.clear();
    answers.status = 1;
    answers.dataCallStatus = status;
    PhoneScreen::chooseRow(screen.get(), 3);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(journal.lines().value(0), QString("UTIL_GetDataCallStaus"));
    QCOMPARE(journal.count("DataCalls::resetTotalDuration"), reset ? 1 : 0);
    QCOMPARE(PhoneScreen::shownDialogs().size(), reset ? 0 : 1);
}

void TestTelephonyEntryPoints::aStatusThatIsNeverWrittenDoesNothing()
{
    answers.seconds = 3725;
    const CallTimes screen("callTime");
    screen->show();
    journal.clear();
    answers.silent = true;
    PhoneScreen::chooseRow(screen.get(), 3);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(journal.lines(), QStringList("UTIL_GetDataCallStaus"));
    QCOMPARE(PhoneScreen::value(screen.get(), 3), QString("01:02:05"));
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
}

KAV_TEST_GROUP(TestTelephonyEntryPoints, QApplication);
#include "tst_telephony_entry_points.moc"
