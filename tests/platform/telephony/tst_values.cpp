// What the C functions hand over, up to the ends of every range.
#include "support/PhoneTest.h"

#include "handset/Status.h"
#include "telephony/tapi.h"
#include "telephony/util.h"

#include <QtCore/QtEndian>

#include <limits>

using handset::CallTime;

namespace {

constexpr quint32 most32 = std::numeric_limits<quint32>::max();

struct NamedTimeQuery {
    const char *operation;
    int (*call)(TAPI_CallTime *time);
};

constexpr NamedTimeQuery timeQueries[] = {
    {"CallService::totalCallTime", &TAPI_CS_GetTotalCallTime},
    {"CallLog::lastCallTime", &TAPI_LOG_GetLastCallTime},
    {"CallLog::dialedCallsTime", &TAPI_LOG_GetDialedCallsTime},
    {"CallLog::answeredCallsTime", &TAPI_LOG_GetAnsweredCallsTime},
    {"CallLog::lifetimeCallsTime", &TAPI_LOG_GetLifetimeCallsTime},
    {"PacketData::totalDuration", &TAPI_GPRS_GetTotalDuration},
};

struct TextQuery {
    const char *operation;
    int (*call)(char *text);
    int size; ///< of the buffer
};

constexpr TextQuery textQueries[] = {
    {"CallService::remainingCredit", &TAPI_CS_GetRemainCredit, TAPI_CREDIT_TEXT_SIZE},
    {"CallService::lastCallCost", &TAPI_CS_GetLastCallCost, TAPI_AMOUNT_TEXT_SIZE},
    {"CallLog::lastDeposit", &TAPI_LOG_GetLastDeposit, TAPI_AMOUNT_TEXT_SIZE},
    {"CallLog::dialedCallsCost", &TAPI_LOG_GetDialedCallsCost, TAPI_AMOUNT_TEXT_SIZE},
    {"CallLog::answeredCallsCost", &TAPI_LOG_GetAnsweredCallsCost, TAPI_AMOUNT_TEXT_SIZE},
    {"CallLog::allCallsCost", &TAPI_LOG_GetAllCallsCost, TAPI_AMOUNT_TEXT_SIZE},
};

} // namespace

class TestValues : public PhoneTest
{
    Q_OBJECT

private slots:
    void timesArriveFieldByField_data();
    void timesArriveFieldByField();
    void theDataCallTotalArrivesWhole_data();
    void theDataCallTotalArrivesWhole();
    void everyDataCallStatusArrives();
    void textsArriveUpToTheSizeOfTheBuffer();
    void aTextThatDoesNotFitIsRefused();
    void aDateArrivesFieldByField();
    void aSessionArrivesLittleEndian();
    void anAccessPointNameOf101CharactersArrivesWhole();
    void anAccessPointNameWithoutRoomForItsEndIsRefused();
    void byteTotalsArriveInTheirOrder();
    void thePinIsPassedOn();
};

void TestValues::timesArriveFieldByField_data()
{
    QTest::addColumn<quint32>("hours");
    QTest::addColumn<quint8>("minutes");
    QTest::addColumn<quint8>("seconds");
    QTest::newRow("nothing") << 0u << quint8(0) << quint8(0);
    QTest::newRow("every field its own") << 1u << quint8(2) << quint8(3);
    QTest::newRow("the last second of a day") << 23u << quint8(59) << quint8(59);
    QTest::newRow("hours beyond 16 bits") << 65536u << quint8(0) << quint8(1);
    QTest::newRow("the most there is") << most32 << quint8(59) << quint8(59);
    QTest::newRow("minutes and seconds that a telephone should not say") << 0u << quint8(255) << quint8(60);
}

void TestValues::timesArriveFieldByField()
{
    QFETCH(const quint32, hours);
    QFETCH(const quint8, minutes);
    QFETCH(const quint8, seconds);
    for (const NamedTimeQuery &query : timeQueries) {
        script().answer(query.operation, CallTime{hours, minutes, seconds});
        TAPI_CallTime time = {};
        QCOMPARE(query.call(&time), int(handset::Success));
        QCOMPARE(time.hours, hours);
        QCOMPARE(time.minutes, minutes);
        QCOMPARE(time.seconds, seconds);
    }
}

void TestValues::theDataCallTotalArrivesWhole_data()
{
    QTest::addColumn<quint32>("seconds");
    QTest::newRow("0") << 0u;
    QTest::newRow("beyond 16 bits") << 65537u;
    QTest::newRow("beyond 31 bits") << 0x80000000u;
    QTest::newRow("the most there is") << most32;
}

void TestValues::theDataCallTotalArrivesWhole()
{
    QFETCH(const quint32, seconds);
    script().answer("DataCalls::totalDuration", seconds);
    uint32_t answer = 12345;
    QCOMPARE(UTIL_GetTotalDuration(&answer), int(handset::Success));
    QCOMPARE(answer, seconds);
}

void TestValues::everyDataCallStatusArrives()
{
    for (int status = 0; status <= 255; ++status) {
        script().answer("DataCalls::callStatus", static_cast<quint8>(status));
        uint8_t answer = static_cast<uint8_t>(~status);
        QCOMPARE(UTIL_GetDataCallStaus(&answer), int(handset::Success));
        QCOMPARE(int(answer), status);
    }
}

void TestValues::textsArriveUpToTheSizeOfTheBuffer()
{
    // What phones' programs were compiled with.
    QCOMPARE(int{TAPI_CREDIT_TEXT_SIZE}, 100);
    QCOMPARE(int{TAPI_AMOUNT_TEXT_SIZE}, 50);
    char nextGround = '#';
    for (const TextQuery &query : textQueries) {
        for (const int length : {0, 1, query.size - 2, query.size - 1}) {
            const QByteArray text(length, '\xe9');
            script().answer(query.operation, text);
            // Another character each time: what lies behind a text in memory may be what was filled in before.
            const char ground = nextGround++;
            QByteArray buffer(query.size + 1, ground);
            QCOMPARE(query.call(buffer.data()), int(handset::Success));
            QCOMPARE(QByteArray(buffer.constData()), text);
            QCOMPARE(buffer.mid(length + 1), QByteArray(query.size - length, ground));
        }
    }
}

void TestValues::aTextThatDoesNotFitIsRefused()
{
    for (const TextQuery &query : textQueries) {
        for (const int length : {query.size, query.size + 1, 5000}) {
            script().answer(query.operation, QByteArray(length, '1'));
            QByteArray buffer(query.size + 1, '#');
            QCOMPARE(query.call(buffer.data()), int(handset::TextTooLong));
            QCOMPARE(buffer, QByteArray(query.size + 1, '#'));
        }
    }
}

void TestValues::aDateArrivesFieldByField()
{
    script().answer("CallLog::depositExpirationDate", handset::Date{65535, 12, 31});
    TAPI_Date date = {};
    QCOMPARE(TAPI_LOG_GetDepositExpirationDate(&date), int(handset::Success));
    QCOMPARE(int(date.year), 65535);
    QCOMPARE(int(date.month), 12);
    QCOMPARE(int(date.day), 31);
}

void TestValues::aSessionArrivesLittleEndian()
{
    handset::DataSessions sessions;
    sessions.count = 2;
    sessions.records[1] = {255, 0x01020304, most32, {0x0a0b0c0d, 59, 58}, "web.example"};
    script().answer("PacketData::sessions", sessions);
    TAPI_GPRS_SessionInfo info = {};
    QCOMPARE(TAPI_GPRS_GetAllSessionInfo(&info), int(handset::Success));
    const QByteArray bytes(reinterpret_cast<const char *>(&info), sizeof info);
    QCOMPARE(bytes.left(4), QByteArray("\2\0\0\0", 4));
    QCOMPARE(bytes.mid(4, 120), QByteArray(120, '\0'));
    QCOMPARE(bytes.mid(124, 4), QByteArray("\xff\0\0\0", 4));
    QCOMPARE(bytes.mid(128, 14), QByteArray("\4\3\2\1\xff\xff\xff\xff\x0d\x0c\x0b\x0a\x3b\x3a", 14));
    QCOMPARE(bytes.mid(142, 102), QByteArray("web.example").leftJustified(102, '\0'));
    QCOMPARE(bytes.mid(244), QByteArray(120, '\0'));
}

void TestValues::anAccessPointNameOf101CharactersArrivesWhole()
{
    handset::DataSessions sessions;
    sessions.count = 3;
    for (handset::DataSession &session : sessions.records)
        session = {1, 0, 0, {}, QByteArray(101, 'a')};
    script().answer("PacketData::sessions", sessions);
    TAPI_GPRS_SessionInfo info = {};
    QCOMPARE(TAPI_GPRS_GetAllSessionInfo(&info), int(handset::Success));
    for (const TAPI_GPRS_SessionRecord &record : info.records)
        QCOMPARE(QByteArray(record.apn, sizeof record.apn), QByteArray(101, 'a') + '\0');
}

void TestValues::anAccessPointNameWithoutRoomForItsEndIsRefused()
{
    for (const int length : {102, 103, 4000}) {
        handset::DataSessions sessions;
        sessions.count = 1;
        sessions.records[0] = {1, 0, 0, {}, QByteArray(length, 'a')};
        script().answer("PacketData::sessions", sessions);
        TAPI_GPRS_SessionInfo info = {};
        info.count = 99;
        QCOMPARE(TAPI_GPRS_GetAllSessionInfo(&info), int(handset::TextTooLong));
        QCOMPARE(info.count, 99u);
    }
}

void TestValues::byteTotalsArriveInTheirOrder()
{
    script().answer("PacketData::totalBytes", most32, quint32{2}, quint32{3});
    uint32_t total = 0;
    uint32_t received = 0;
    uint32_t sent = 0;
    QCOMPARE(TAPI_GPRS_GetTotalDataBytes(&total, &received, &sent), int(handset::Success));
    QCOMPARE(total, most32);
    QCOMPARE(received, 2u);
    QCOMPARE(sent, 3u);
}

void TestValues::thePinIsPassedOn()
{
    script().answer("SimSecurity::pinStatus", most32);
    for (const int pin : {0, 1, 255}) {
        uint32_t status = 0;
        journal.clear();
        QCOMPARE(TAPI_SECURITY_GetAnyPinStatus(static_cast<uint8_t>(pin), &status), int(handset::Success));
        QCOMPARE(status, most32);
        QCOMPARE(journal.lines().size(), 1);
        QVERIFY2(journal.lines().first().contains(QString::number(pin)), qPrintable(journal.lines().first()));
    }
}

KAV_TEST_GROUP(TestValues, QApplication);
#include "tst_values.moc"
