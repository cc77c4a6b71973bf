// The C functions and the message client over calls that are really made.
#include <QtTest/QTest>

#include "handset/Clock.h"
#include "handset/Handset.h"
#include "handset/Status.h"
#include "message/PHONE_MsgClient.h"
#include "simulated/SimulatedHandset.h"
#include "support/TestGroup.h"
#include "telephony/tapi.h"
#include "telephony/util.h"

using namespace handset;

namespace {

using TimeQuery = int (*)(TAPI_CallTime *);

QString timeOf(TimeQuery query)
{
    TAPI_CallTime time = {};
    const int status = query(&time);
    if (status != Success)
        return QStringLiteral("status %1").arg(status);
    return QStringLiteral("%1:%2:%3").arg(time.hours).arg(time.minutes).arg(time.seconds);
}

/// Last, dialed, answered, data (in seconds), all, lifetime.
QStringList figures()
{
    uint32_t data = 0;
    const int status = UTIL_GetTotalDuration(&data);
    return {timeOf(&TAPI_LOG_GetLastCallTime),      timeOf(&TAPI_LOG_GetDialedCallsTime),
            timeOf(&TAPI_LOG_GetAnsweredCallsTime), status == Success ? QString::number(data) : QString(),
            timeOf(&TAPI_CS_GetTotalCallTime),      timeOf(&TAPI_LOG_GetLifetimeCallsTime)};
}

QStringList list(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

class TestOverSimulated : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { install(nullptr); }

    void theSixFiguresFollowFromTheCalls();
    void eachResetZeroesItsOwnFigures();
    void theDataCallStatusFollowsTheLine();
    void refreshingAndResettingThroughTheMessageClient();
    void timesBeyondTheRecordStopAtItsEnd();

private:
    bool call(CallKind kind, qint64 ms);
    bool answeredCall(qint64 ms);

    std::shared_ptr<ManualClock> clock;
    simulated::SimulatedHandset *phone = nullptr;
};

void TestOverSimulated::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    clock = std::make_shared<ManualClock>(0);
    Settings settings;
    settings.clock = clock;
    const Opened opened = open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    phone = dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get());
    QVERIFY(phone);
    install(opened.handset);
}

bool TestOverSimulated::call(CallKind kind, qint64 ms)
{
    if (phone->dial(QStringLiteral("1"), kind) != Success || phone->remoteAnswer() != Success)
        return false;
    clock->advance(ms);
    return phone->hangUp() == Success;
}

bool TestOverSimulated::answeredCall(qint64 ms)
{
    if (phone->ring(QString()) != Success || phone->answer() != Success)
        return false;
    clock->advance(ms);
    return phone->hangUp() == Success;
}

void TestOverSimulated::theSixFiguresFollowFromTheCalls()
{
    QCOMPARE(figures(), list("0:0:0 0:0:0 0:0:0 0 0:0:0 0:0:0"));
    QVERIFY(call(CallKind::Voice, 3'723'000));
    QVERIFY(answeredCall(59'999));
    QVERIFY(call(CallKind::Data, 100'001));
    QCOMPARE(figures(), list("0:1:40 1:2:3 0:0:59 100 1:4:43 1:4:43"));
}

void TestOverSimulated::eachResetZeroesItsOwnFigures()
{
    QVERIFY(call(CallKind::Voice, 5000));
    QVERIFY(answeredCall(6000));
    QVERIFY(call(CallKind::Data, 7000));
    QCOMPARE(TAPI_LOG_ResetDialedCallsTime(), int(Success));
    QCOMPARE(figures(), list("0:0:7 0:0:0 0:0:6 7 0:0:18 0:0:18"));
    QCOMPARE(TAPI_LOG_ResetAnsweredCallsTime(), int(Success));
    QCOMPARE(figures(), list("0:0:7 0:0:0 0:0:0 7 0:0:18 0:0:18"));
    QCOMPARE(TAPI_CS_ResetCallTime(), int(Success));
    QCOMPARE(figures(), list("0:0:7 0:0:0 0:0:0 7 0:0:0 0:0:18"));
    QVERIFY(answeredCall(1000));
    QCOMPARE(TAPI_LOG_ResetAll(), int(Success));
    QCOMPARE(figures(), list("0:0:0 0:0:0 0:0:0 7 0:0:1 0:0:19"));
}

void TestOverSimulated::theDataCallStatusFollowsTheLine()
{
    const auto status = [] {
        uint8_t value = 99;
        return UTIL_GetDataCallStaus(&value) == Success ? int(value) : -1;
    };
    QCOMPARE(status(), 0);
    QCOMPARE(phone->dial(QStringLiteral("1"), CallKind::Data), int(Success));
    QCOMPARE(status(), 1);
    QCOMPARE(phone->remoteAnswer(), int(Success));
    QCOMPARE(status(), 3);
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(status(), 2);
}

void TestOverSimulated::refreshingAndResettingThroughTheMessageClient()
{
    PHONE_MsgClient client(nullptr);
    QCOMPARE(phone->dial(QStringLiteral("1"), CallKind::Data), int(Success));
    QCOMPARE(phone->remoteAnswer(), int(Success));
    clock->advance(42'500);
    QCOMPARE(client.getTotalByteAndConnectedDuration(), int(Success));
    QCOMPARE(figures().at(3), QStringLiteral("42"));
    QCOMPARE(client.resetTotalDuration(false), int(Success));
    QCOMPARE(figures().at(3), QStringLiteral("42"));
    QCOMPARE(client.resetTotalDuration(true), int(Success));
    QCOMPARE(figures(), list("0:0:42 0:0:0 0:0:0 0 0:0:42 0:0:42"));
}

void TestOverSimulated::timesBeyondTheRecordStopAtItsEnd()
{
    constexpr qint64 longest = std::numeric_limits<qint64>::max();
    QCOMPARE(phone->addHistory({{CallKind::Data, CallDirection::Dialed, {}, 0, longest},
                                {CallKind::Voice, CallDirection::Dialed, {}, 0, longest}}),
             int(Success));
    const QString most = QStringLiteral("4294967295:59:59");
    QCOMPARE(figures(),
             (QStringList{most, most, QStringLiteral("0:0:0"), QStringLiteral("4294967295"), most, most}));
}

KAV_TEST_GROUP(TestOverSimulated, QCoreApplication);
#include "tst_over_simulated.moc"
