// The meter's data sessions: refreshes, what they keep, resets, over a scripted handset.
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneTest.h"
#include "support/PrivateAccess.h"

#include <climits>

using handset::CallTime;
using handset::DataSession;
using handset::DataSessions;
using Meter = PHONE_UI_RecentCallMeter;

KAV_EXPOSE(TimeRecords, &Meter::recentDataTimes);
KAV_EXPOSE(VolumeRecords, &Meter::recentDataVolumes);
KAV_EXPOSE(AllDataTime, &Meter::allDataTime);

namespace {

const QString source = QStringLiteral("utility/PHONE_UI_RecentCallMeter");
constexpr int codes[] = {1, 2, -1, 256, INT_MAX, INT_MIN};

QString callTrace(const char *method)
{
    return shortTrace(source, method) + shortTrace(source, method);
}

QString paddingTrace(const QString &before, const QString &after)
{
    return longTrace(source, "formatTimeString",
                     QStringLiteral("formatTimeString begin,TIMESTR=%1.\\n").arg(before)) +
           longTrace(source, "formatTimeString",
                     QStringLiteral("formatTimeString after,TIMESTR=%1.\\n").arg(after));
}

DataSession session(quint8 id, const char *apn, CallTime duration = {}, quint32 sent = 0, quint32 received = 0)
{
    DataSession made;
    made.id = id;
    made.apn = apn;
    made.duration = duration;
    made.bytesSent = sent;
    made.bytesReceived = received;
    return made;
}

DataSessions threeSessions(quint32 count)
{
    DataSessions sessions;
    sessions.count = count;
    sessions.records = {session(7, "internet", {1, 2, 3}, 10, 20), session(8, "mms", {0, 10, 59}, 30, 40),
                        session(9, "wap", {99, 59, 9}, 50, 60)};
    return sessions;
}

QStringList times(Meter &meter)
{
    return {meter.getRDT_Session1(), meter.getRDT_Session2(), meter.getRDT_Session3()};
}

QStringList timeApns(Meter &meter)
{
    return {meter.getRDT_Session1_Apn(), meter.getRDT_Session2_Apn(), meter.getRDT_Session3_Apn()};
}

QStringList volumes(Meter &meter)
{
    return {meter.getRDV_Session1_Sent(), meter.getRDV_Session1_Received(), meter.getRDV_Session1_Total(),
            meter.getRDV_Session2_Sent(), meter.getRDV_Session2_Received(), meter.getRDV_Session2_Total(),
            meter.getRDV_Session3_Sent(), meter.getRDV_Session3_Received(), meter.getRDV_Session3_Total()};
}

QStringList volumeApns(Meter &meter)
{
    return {meter.getRDV_Session1_Apn(), meter.getRDV_Session2_Apn(), meter.getRDV_Session3_Apn()};
}

QStringList totals(Meter &meter)
{
    return {meter.getADV_Sessions_Sent(), meter.getADV_Sessions_Received(), meter.getADV_Sessions_Total()};
}

struct Call {
    const char *name;
    void (Meter::*call)();
    const char *operation;
};
constexpr Call calls[] = {
    {"getRDT", &Meter::getRDT, "PacketData::sessions"},
    {"getADT", &Meter::getADT, "PacketData::totalDuration"},
    {"getRDV", &Meter::getRDV, "PacketData::sessions"},
    {"getADV", &Meter::getADV, "PacketData::totalBytes"},
    {"resetAllDataSessionsTimer", &Meter::resetAllDataSessionsTimer, "PacketData::resetTotalDuration"},
    {"resetAllDataSessionsVolume", &Meter::resetAllDataSessionsVolume, "PacketData::resetTotalBytes"},
};

const QString zero = QStringLiteral("00:00:00");
const QString none = QStringLiteral("0 B");

} // namespace

class TestMeterData : public PhoneTest
{
    Q_OBJECT

private slots:
    void beforeARefreshEveryTextIsNullAndNothingIsAsked();
    void theWalkStopsAtTheCountAndAtThreeRecords_data();
    void theWalkStopsAtTheCountAndAtThreeRecords();
    void anEmptySlotLeavesAGapInTimes();
    void anEmptySlotLeavesAGapInVolumes();
    void aRefreshOfTimesIsTraced();
    void aRefreshOfVolumesIsTraced();
    void aTraceOfVolumesTellsThePlaceInTheBlock();
    void hoursOfThreeDigitsStayUnpadded();
    void theLongestApnIsReadWhole();
    void anApnIsLatin1();
    void anApnEndsAtItsNul();
    void aFailedRefreshLeavesDefaultsNotOldFigures_data();
    void aFailedRefreshLeavesDefaultsNotOldFigures();
    void aRefreshOfTimesClearsTheirIdsFirst();
    void aRefreshOfVolumesClearsTheIdsOfTimesAndKeepsItsOwn();
    void aFailedRefreshOfVolumesClearsTheIdsOfTimesAllTheSame();
    void aRefreshLeavesTheTextsOfTheOthersAlone();
    void anOperationThatFailsAloneTakesOnlyItsOwnTextsAway_data();
    void anOperationThatFailsAloneTakesOnlyItsOwnTextsAway();
    void aSessionsTotalWrapsAt32Bits();
    void aSessionsTotalFollowsTheWrapRuleEverywhere();
    void aSessionsTotalWrapsRightAboveTheGreatestNumber();
    void bytesAreNeverScaled();

    void theTotalTimeIsKeptUnpaddedAndPaddedWhenRead();
    void theTotalTimeOfAHundredHoursIsNeverPadded();
    void theTotalTimeIsTraced();
    void theTotalVolumesAreThePlatformsOwn();
    void theTotalVolumesAreTraced();
    void aFailedTotalIsTracedAndLeavesDefaults_data();
    void aFailedTotalIsTracedAndLeavesDefaults();

    void theTraceSurroundsTheCall_data();
    void theTraceSurroundsTheCall();
    void resettingTheTimerIsSilentEvenWhenItFails();
    void resettingTheVolumeTracesItsFailureOnly();
    void twoMetersKeepTheirTextsApart();

private:
    Meter meter;
};

void TestMeterData::beforeARefreshEveryTextIsNullAndNothingIsAsked()
{
    Meter fresh;
    const QStringList all = times(fresh) + timeApns(fresh) + volumes(fresh) + volumeApns(fresh) + totals(fresh);
    QCOMPARE(all.size(), 21);
    for (const QString &text : all)
        QVERIFY(text.isNull());
    QCOMPARE(journal.lines(), QStringList());
}

void TestMeterData::theWalkStopsAtTheCountAndAtThreeRecords_data()
{
    QTest::addColumn<quint32>("count");
    QTest::addColumn<int>("read");
    QTest::newRow("none") << 0u << 0;
    QTest::newRow("one") << 1u << 1;
    QTest::newRow("two") << 2u << 2;
    QTest::newRow("three") << 3u << 3;
    QTest::newRow("four are three") << 4u << 3;
    QTest::newRow("the greatest count is three") << 4294967295u << 3;
}

void TestMeterData::theWalkStopsAtTheCountAndAtThreeRecords()
{
    QFETCH(const quint32, count);
    QFETCH(const int, read);
    script().answer("PacketData::sessions", threeSessions(count));
    meter.getRDT();
    meter.getRDV();
    const QStringList allTimes = {"01:02:03", "00:10:59", "99:59:09"};
    const QStringList allApns = {"internet", "mms", "wap"};
    const QStringList allTotals = {"30 B", "70 B", "110 B"};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(times(meter).at(i), i < read ? allTimes.at(i) : zero);
        QCOMPARE(timeApns(meter).at(i), i < read ? allApns.at(i) : QString());
        QCOMPARE(timeApns(meter).at(i).isNull(), i >= read);
        QCOMPARE(volumes(meter).at(3 * i + 2), i < read ? allTotals.at(i) : none);
        QCOMPARE(volumeApns(meter).at(i), i < read ? allApns.at(i) : QString());
    }
    QCOMPARE(journal.lines(), QStringList({"PacketData::sessions", "PacketData::sessions"}));
}

void TestMeterData::anEmptySlotLeavesAGapInTimes()
{
    DataSessions sessions = threeSessions(2);
    sessions.records[0] = session(0, "ghost", {5, 5, 5});
    script().answer("PacketData::sessions", sessions);
    meter.getRDT();
    QCOMPARE(times(meter), QStringList({zero, "00:10:59", zero}));
    QVERIFY(meter.getRDT_Session1_Apn().isNull());
    QCOMPARE(meter.getRDT_Session2_Apn(), QString("mms"));
    QVERIFY(meter.getRDT_Session3_Apn().isNull());
}

void TestMeterData::anEmptySlotLeavesAGapInVolumes()
{
    DataSessions sessions = threeSessions(2);
    sessions.records[0] = session(0, "ghost", {}, 99, 99);
    script().answer("PacketData::sessions", sessions);
    meter.getRDV();
    QCOMPARE(volumes(meter), QStringList({none, none, none, "30 B", "40 B", "70 B", none, none, none}));
    QVERIFY(meter.getRDV_Session1_Apn().isNull());
}

void TestMeterData::aRefreshOfTimesIsTraced()
{
    DataSessions sessions = threeSessions(3);
    sessions.records[1].id = 0;
    script().answer("PacketData::sessions", sessions);
    meter.getRDT();
    QCOMPARE(
        traces->take(),
        callTrace("getRDT") + paddingTrace("1:2:3", "01:02:03") +
            longTrace(source, "getRDT",
                      "getRDT:The 0 session data: sessionId=7,Apn=internet,sessionTimes=01:02:03.") +
            paddingTrace("99:59:9", "99:59:09") +
            longTrace(source, "getRDT", "getRDT:The 2 session data: sessionId=9,Apn=wap,sessionTimes=99:59:09."));
}

void TestMeterData::aRefreshOfVolumesIsTraced()
{
    script().answer("PacketData::sessions", threeSessions(1));
    meter.getRDV();
    QCOMPARE(traces->take(),
             callTrace("getRDV") +
                 longTrace(source, "getRDV",
                           "The 0 session data== sessionId=7,Apn=internet,sentBytes=10 B,recvByte=20 B,"
                           "totalBytes=30 B."));
}

void TestMeterData::aTraceOfVolumesTellsThePlaceInTheBlock()
{
    DataSessions sessions = threeSessions(3);
    sessions.records[1].id = 0;
    script().answer("PacketData::sessions", sessions);
    meter.getRDV();
    QCOMPARE(traces->take(),
             callTrace("getRDV") +
                 longTrace(source, "getRDV",
                           "The 0 session data== sessionId=7,Apn=internet,sentBytes=10 B,recvByte=20 B,"
                           "totalBytes=30 B.") +
                 longTrace(source, "getRDV",
                           "The 2 session data== sessionId=9,Apn=wap,sentBytes=50 B,recvByte=60 B,"
                           "totalBytes=110 B."));
}

void TestMeterData::hoursOfThreeDigitsStayUnpadded()
{
    DataSessions sessions = threeSessions(2);
    sessions.records[0].duration = {100, 5, 3};
    sessions.records[1].duration = {4294967295u, 0, 0};
    script().answer("PacketData::sessions", sessions);
    meter.getRDT();
    QCOMPARE(times(meter), QStringList({"100:5:3", "4294967295:0:0", zero}));
}

void TestMeterData::theLongestApnIsReadWhole()
{
    DataSessions sessions = threeSessions(1);
    sessions.records[0].apn = QByteArray(101, 'a');
    script().answer("PacketData::sessions", sessions);
    meter.getRDT();
    meter.getRDV();
    QCOMPARE(meter.getRDT_Session1_Apn(), QString(101, QLatin1Char('a')));
    QCOMPARE(meter.getRDV_Session1_Apn(), QString(101, QLatin1Char('a')));
}

void TestMeterData::anApnIsLatin1()
{
    DataSessions sessions = threeSessions(1);
    sessions.records[0].apn = "caf\xE9.fr";
    script().answer("PacketData::sessions", sessions);
    meter.getRDT();
    QCOMPARE(meter.getRDT_Session1_Apn(), QString::fromLatin1("caf\xE9.fr"));
}

void TestMeterData::anApnEndsAtItsNul()
{
    DataSessions sessions = threeSessions(2);
    sessions.records[0].apn = QByteArray("net\0hidden", 10);
    sessions.records[1].apn = QByteArray("\0hidden", 7);
    script().answer("PacketData::sessions", sessions);
    meter.getRDT();
    meter.getRDV();
    QCOMPARE(timeApns(meter), QStringList({"net", "", ""}));
    QCOMPARE(volumeApns(meter), QStringList({"net", "", ""}));
}

void TestMeterData::aFailedRefreshLeavesDefaultsNotOldFigures_data()
{
    QTest::addColumn<int>("code");
    for (const int code : codes)
        QTest::addRow("code %d", code) << code;
}

void TestMeterData::aFailedRefreshLeavesDefaultsNotOldFigures()
{
    QFETCH(const int, code);
    script().answer("PacketData::sessions", threeSessions(3));
    meter.getRDT();
    meter.getRDV();
    script().fail("PacketData::sessions", code);
    traces->take();
    meter.getRDT();
    QCOMPARE(traces->take(), callTrace("getRDT") +
                                 longTrace(source, "getRDT",
                                           "PHONE_UI_RecentCallMeter::getRDT TAPI_GPRS_GetAllSessionInfo failed." +
                                               QString::number(code)));
    meter.getRDV();
    QCOMPARE(traces->take(), callTrace("getRDV") +
                                 longTrace(source, "getRDV",
                                           "PHONE_UI_RecentCallMeter::getRDV TAPI_GPRS_GetAllSessionInfo failed." +
                                               QString::number(code)));
    QCOMPARE(times(meter), QStringList({zero, zero, zero}));
    QCOMPARE(volumes(meter), QStringList(9, none));
    for (const QString &apn : timeApns(meter) + volumeApns(meter))
        QVERIFY(apn.isNull());
}

void TestMeterData::aRefreshOfTimesClearsTheirIdsFirst()
{
    const auto &records = meter.*exposed(TimeRecords());
    for (const bool fails : {false, true}) {
        script().answer("PacketData::sessions", threeSessions(3));
        meter.getRDT();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(records[i].sessionId, quint8(7 + i));
        script().answer("PacketData::sessions", DataSessions());
        if (fails)
            script().fail("PacketData::sessions", 1);
        meter.getRDT();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(records[i].sessionId, quint8(0));
    }
}

void TestMeterData::aRefreshOfVolumesClearsTheIdsOfTimesAndKeepsItsOwn()
{
    script().answer("PacketData::sessions", threeSessions(3));
    meter.getRDT();
    meter.getRDV();
    const auto &timeRecords = meter.*exposed(TimeRecords());
    const auto &volumeRecords = meter.*exposed(VolumeRecords());
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(timeRecords[i].sessionId, quint8(0));
        QCOMPARE(volumeRecords[i].sessionId, quint8(7 + i));
    }
    script().answer("PacketData::sessions", DataSessions());
    meter.getRDT();
    meter.getRDV();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(volumeRecords[i].sessionId, quint8(7 + i));
}

void TestMeterData::aFailedRefreshOfVolumesClearsTheIdsOfTimesAllTheSame()
{
    script().answer("PacketData::sessions", threeSessions(3));
    meter.getRDV();
    meter.getRDT();
    script().fail("PacketData::sessions", 1);
    meter.getRDV();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE((meter.*exposed(TimeRecords()))[i].sessionId, quint8(0));
        QCOMPARE((meter.*exposed(VolumeRecords()))[i].sessionId, quint8(7 + i));
    }
}

void TestMeterData::aRefreshLeavesTheTextsOfTheOthersAlone()
{
    using Refresh = void (Meter::*)();
    using Texts = QStringList (*)(Meter &);
    constexpr Refresh refreshes[] = {&Meter::getRDT, &Meter::getADT, &Meter::getRDV, &Meter::getADV};
    constexpr Texts texts[] = {[](Meter &m) { return times(m) + timeApns(m); },
                               [](Meter &m) { return QStringList(m.getADT_Sessions()); },
                               [](Meter &m) { return volumes(m) + volumeApns(m); }, totals};
    for (size_t changed = 0; changed < 4; ++changed) {
        script().answer("PacketData::sessions", threeSessions(3));
        script().answer("PacketData::totalDuration", CallTime{5, 3, 7});
        script().answer("PacketData::totalBytes", quint32(33), quint32(20), quint32(10));
        for (const Refresh refresh : refreshes)
            (meter.*refresh)();
        QList<QStringList> before;
        for (const Texts text : texts)
            before.append(text(meter));
        script().failAll(1);
        (meter.*refreshes[changed])();
        for (size_t kind = 0; kind < 4; ++kind)
            QCOMPARE(texts[kind](meter) == before.at(int(kind)), kind != changed);
    }
}

void TestMeterData::anOperationThatFailsAloneTakesOnlyItsOwnTextsAway_data()
{
    QTest::addColumn<QByteArray>("operation");
    for (const char *operation : {"PacketData::sessions", "PacketData::totalDuration", "PacketData::totalBytes",
                                  "PacketData::resetTotalDuration", "PacketData::resetTotalBytes"})
        QTest::newRow(operation) << QByteArray(operation);
}

void TestMeterData::anOperationThatFailsAloneTakesOnlyItsOwnTextsAway()
{
    QFETCH(const QByteArray, operation);
    script().answer("PacketData::sessions", threeSessions(3));
    script().answer("PacketData::totalDuration", CallTime{5, 3, 7});
    script().answer("PacketData::totalBytes", quint32(33), quint32(20), quint32(10));
    script().fail(operation.constData(), 4);
    meter.resetAllDataSessionsTimer();
    meter.resetAllDataSessionsVolume();
    meter.getRDT();
    meter.getADT();
    meter.getRDV();
    meter.getADV();
    const bool hasSessions = operation != "PacketData::sessions";
    const bool hasTime = operation != "PacketData::totalDuration";
    const bool hasBytes = operation != "PacketData::totalBytes";
    QCOMPARE(times(meter),
             hasSessions ? QStringList({"01:02:03", "00:10:59", "99:59:09"}) : QStringList({zero, zero, zero}));
    QCOMPARE(volumes(meter).at(8), hasSessions ? QString("110 B") : none);
    QCOMPARE(volumeApns(meter).at(2), hasSessions ? QString("wap") : QString());
    QCOMPARE(meter.getADT_Sessions(), hasTime ? QString("05:03:07") : zero);
    QCOMPARE(totals(meter), hasBytes ? QStringList({"10 B", "20 B", "33 B"}) : QStringList({none, none, none}));
    QCOMPARE(traces->text().count(" failed.4\""), operation == "PacketData::sessions"             ? 2
                                                  : operation == "PacketData::resetTotalDuration" ? 0
                                                                                                  : 1);
    QCOMPARE(journal.lines(),
             QStringList({"PacketData::resetTotalDuration", "PacketData::resetTotalBytes", "PacketData::sessions",
                          "PacketData::totalDuration", "PacketData::sessions", "PacketData::totalBytes"}));
}

void TestMeterData::aSessionsTotalWrapsAt32Bits()
{
    DataSessions sessions = threeSessions(1);
    sessions.records[0] = session(1, "x", {}, 4000000000u, 400000000u);
    script().answer("PacketData::sessions", sessions);
    meter.getRDV();
    QCOMPARE(volumes(meter).mid(0, 3), QStringList({"4000000000 B", "400000000 B", "105032704 B"}));
}

// All pairs of 256 values each, 2^24 + 2^16 + 2^8 + 1 apart, so that every byte takes part in carries.
void TestMeterData::aSessionsTotalFollowsTheWrapRuleEverywhere()
{
    const TraceSink quiet;
    journal.setMuted(true);
    constexpr quint32 spacing = 0x01010101u;
    for (quint32 i = 0; i < 256; ++i) {
        for (quint32 j = 0; j < 256; ++j) {
            DataSessions sessions = threeSessions(1);
            sessions.records[0] = session(1, "x", {}, i * spacing, j * spacing);
            script().answer("PacketData::sessions", sessions);
            meter.getRDV();
            const quint64 sum = (quint64(i) * spacing + quint64(j) * spacing) % (quint64(1) << 32);
            if (meter.getRDV_Session1_Total() != QString::number(sum) + QStringLiteral(" B"))
                QFAIL(qPrintable(QStringLiteral("%1 + %2").arg(i * spacing).arg(j * spacing)));
        }
    }
    journal.setMuted(false);
}

// For every number of sent bytes that is a multiple of 65536: what reaches the greatest number, and one byte more.
void TestMeterData::aSessionsTotalWrapsRightAboveTheGreatestNumber()
{
    const TraceSink quiet;
    journal.setMuted(true);
    DataSessions sessions = threeSessions(2);
    for (quint32 i = 1; i < 65536; ++i) {
        const quint32 sent = i << 16;
        sessions.records[0] = session(1, "x", {}, sent, ~sent);
        sessions.records[1] = session(2, "y", {}, sent, ~sent + 1);
        script().answer("PacketData::sessions", sessions);
        meter.getRDV();
        if (meter.getRDV_Session1_Total() != QLatin1String("4294967295 B") ||
            meter.getRDV_Session2_Total() != none)
            QFAIL(qPrintable(QString::number(sent)));
    }
    journal.setMuted(false);
}

void TestMeterData::bytesAreNeverScaled()
{
    DataSessions sessions = threeSessions(1);
    sessions.records[0] = session(1, "x", {}, 1048576, 0);
    script().answer("PacketData::sessions", sessions);
    meter.getRDV();
    QCOMPARE(meter.getRDV_Session1_Sent(), QString("1048576 B"));
}

void TestMeterData::theTotalTimeIsKeptUnpaddedAndPaddedWhenRead()
{
    script().answer("PacketData::totalDuration", CallTime{5, 3, 7});
    meter.getADT();
    QCOMPARE(meter.*exposed(AllDataTime()), QString("5:3:7"));
    QCOMPARE(meter.getADT_Sessions(), QString("05:03:07"));
    QCOMPARE(meter.*exposed(AllDataTime()), QString("05:03:07"));
    QCOMPARE(meter.getADT_Sessions(), QString("05:03:07"));
    QCOMPARE(journal.lines(), QStringList("PacketData::totalDuration"));
}

void TestMeterData::theTotalTimeOfAHundredHoursIsNeverPadded()
{
    script().answer("PacketData::totalDuration", CallTime{100, 0, 0});
    meter.getADT();
    QCOMPARE(meter.*exposed(AllDataTime()), QString("100:0:0"));
    QCOMPARE(meter.getADT_Sessions(), QString("100:0:0"));
}

void TestMeterData::theTotalTimeIsTraced()
{
    script().answer("PacketData::totalDuration", CallTime{5, 3, 7});
    meter.getADT();
    QCOMPARE(traces->take(), callTrace("getADT") + longTrace(source, "getADT", "getADT:ADT_Sessions_TIMES=5:3:7"));
}

void TestMeterData::theTotalVolumesAreThePlatformsOwn()
{
    // The total is no sum, and the three are not mixed up.
    script().answer("PacketData::totalBytes", quint32(4294967295u), quint32(20), quint32(10));
    meter.getADV();
    QCOMPARE(totals(meter), QStringList({"10 B", "20 B", "4294967295 B"}));
    QCOMPARE(journal.lines(), QStringList("PacketData::totalBytes"));
}

void TestMeterData::theTotalVolumesAreTraced()
{
    script().answer("PacketData::totalBytes", quint32(33), quint32(20), quint32(10));
    meter.getADV();
    QCOMPARE(traces->take(),
             callTrace("getADV") +
                 longTrace(source, "getADV", "getADV:ADV_IDV_Sent=10 B,ADV_IDV_Received=20 B,ADV_IDV_Total=33 B"));
}

void TestMeterData::aFailedTotalIsTracedAndLeavesDefaults_data()
{
    aFailedRefreshLeavesDefaultsNotOldFigures_data();
}

void TestMeterData::aFailedTotalIsTracedAndLeavesDefaults()
{
    QFETCH(const int, code);
    script().answer("PacketData::totalDuration", CallTime{5, 3, 7});
    script().answer("PacketData::totalBytes", quint32(33), quint32(20), quint32(10));
    meter.getADT();
    meter.getADV();
    script().failAll(code);
    traces->take();
    meter.getADT();
    QCOMPARE(traces->take(), callTrace("getADT") +
                                 longTrace(source, "getADT",
                                           "PHONE_UI_RecentCallMeter::getADT TAPI_GPRS_GetTotalDuration failed." +
                                               QString::number(code)));
    meter.getADV();
    QCOMPARE(traces->take(),
             callTrace("getADV") +
                 longTrace(source, "getADV",
                           "PHONE_UI_RecentCallMeter::getADV_IDV TAPI_GPRS_GetTotalDataBytes failed." +
                               QString::number(code)));
    QCOMPARE(meter.getADT_Sessions(), zero);
    QCOMPARE(totals(meter), QStringList({none, none, none}));
}

void TestMeterData::theTraceSurroundsTheCall_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(calls)); ++i)
        QTest::newRow(calls[i].name) << i;
}

void TestMeterData::theTraceSurroundsTheCall()
{
    QFETCH(const int, index);
    QString before;
    script().whenCalled(calls[index].operation, [&] { before = withoutLineNumbers(traces->text()); });
    (meter.*calls[index].call)();
    QCOMPARE(before, shortTrace(source, calls[index].name));
}

void TestMeterData::resettingTheTimerIsSilentEvenWhenItFails()
{
    for (const int code : {0, 1, -1}) {
        script().fail("PacketData::resetTotalDuration", code);
        meter.resetAllDataSessionsTimer();
        QCOMPARE(journal.take(), QStringList("PacketData::resetTotalDuration"));
        QCOMPARE(traces->take(), callTrace("resetAllDataSessionsTimer"));
    }
}

void TestMeterData::resettingTheVolumeTracesItsFailureOnly()
{
    meter.resetAllDataSessionsVolume();
    QCOMPARE(journal.take(), QStringList("PacketData::resetTotalBytes"));
    QCOMPARE(traces->take(), callTrace("resetAllDataSessionsVolume"));
    for (const int code : codes) {
        script().fail("PacketData::resetTotalBytes", code);
        meter.resetAllDataSessionsVolume();
        QCOMPARE(traces->take(), callTrace("resetAllDataSessionsVolume") +
                                     longTrace(source, "resetAllDataSessionsVolume",
                                               "PHONE_UI_RecentCallMeter::resetAllDataSessionsVolume "
                                               "TAPI_GPRS_ResetTotalDataBytes failed." +
                                                   QString::number(code)));
    }
}

void TestMeterData::twoMetersKeepTheirTextsApart()
{
    script().answer("PacketData::sessions", threeSessions(3));
    meter.getRDT();
    Meter other;
    script().answer("PacketData::sessions", DataSessions());
    other.getRDT();
    QCOMPARE(meter.getRDT_Session1(), QString("01:02:03"));
    QCOMPARE(other.getRDT_Session1(), zero);
}

KAV_TEST_GROUP(TestMeterData, QApplication);
#include "tst_meter_data.moc"
