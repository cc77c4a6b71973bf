// Texts of the platform that fill their buffers without a NUL, written by this program in the place of the phone's
// library: nothing behind a buffer may be read. Queries that fail after writing give their fallbacks all the same.
#include "PHONE_UI_RecentCallMeter.h"

#include "PhoneTest.h"

#include "tapi.h"

#include <cstring>

using Meter = PHONE_UI_RecentCallMeter;

namespace {

int status = 0;

int fillText(char *text, std::size_t size)
{
    bool zeroed = true;
    for (std::size_t i = 0; i < size; ++i)
        zeroed = zeroed && text[i] == 0;
    Journal::shared().record(zeroed ? QStringLiteral("zeroed") : QStringLiteral("not zeroed"));
    std::memset(text, '7', size);
    return status;
}

} // namespace

int TAPI_CS_GetRemainCredit(char *text)
{
    return fillText(text, TAPI_CREDIT_TEXT_SIZE);
}
int TAPI_CS_GetLastCallCost(char *text)
{
    return fillText(text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetLastDeposit(char *text)
{
    return fillText(text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetDialedCallsCost(char *text)
{
    return fillText(text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetAnsweredCallsCost(char *text)
{
    return fillText(text, TAPI_AMOUNT_TEXT_SIZE);
}
int TAPI_LOG_GetAllCallsCost(char *text)
{
    return fillText(text, TAPI_AMOUNT_TEXT_SIZE);
}

int TAPI_GPRS_GetAllSessionInfo(TAPI_GPRS_SessionInfo *info)
{
    const TAPI_GPRS_SessionInfo zeroes = {};
    const bool zeroed = std::memcmp(info, &zeroes, sizeof zeroes) == 0;
    Journal::shared().record(zeroed ? QStringLiteral("zeroed") : QStringLiteral("not zeroed"));
    std::memset(info, 0xFF, sizeof *info);
    // The record's fields as the phone's memory has them, whatever this machine's byte order.
    constexpr quint8 bytes[] = {1, 0, 0, 0, 0x04, 0x03, 0x02, 0x01, 0x40, 0x30, 0x20, 0x10, 0x7B, 0, 0, 0, 4, 5};
    for (TAPI_GPRS_SessionRecord &record : info->records) {
        std::memcpy(&record, bytes, sizeof bytes);
        std::memset(record.apn, 'a', sizeof record.apn);
    }
    return status;
}

class TestFullBuffers : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void anAmountEndsWithItsBuffer_data();
    void anAmountEndsWithItsBuffer();
    void anAccessPointNameEndsWithItsRecord();
    void sessionFieldsAreLittleEndian();
    void whatAFailedQueryWroteIsNotShown();

private:
    Meter meter;
};

void TestFullBuffers::init()
{
    PhoneTest::init();
    status = 0;
}

void TestFullBuffers::anAmountEndsWithItsBuffer_data()
{
    QTest::addColumn<int>("figure");
    QTest::newRow("credit") << 0;
    QTest::newRow("deposit") << 1;
    QTest::newRow("last call") << 2;
    QTest::newRow("dialed calls") << 3;
    QTest::newRow("answered calls") << 4;
    QTest::newRow("all calls") << 5;
}

void TestFullBuffers::anAmountEndsWithItsBuffer()
{
    QFETCH(const int, figure);
    constexpr QString (Meter::*getters[])() = {&Meter::getCreditAvailable,   &Meter::getLastDeposit,
                                               &Meter::getLastCallCost,      &Meter::getDialedCallsCost,
                                               &Meter::getAnsweredCallsCost, &Meter::getAllCallsCost};
    QCOMPARE((meter.*getters[figure])(), QString(figure == 0 ? 100 : 50, QLatin1Char('7')));
    QCOMPARE(journal.lines(), QStringList("zeroed"));
}

void TestFullBuffers::anAccessPointNameEndsWithItsRecord()
{
    meter.getRDT();
    meter.getRDV();
    const QString whole(102, QLatin1Char('a'));
    QCOMPARE(meter.getRDT_Session1_Apn(), whole);
    QCOMPARE(meter.getRDT_Session3_Apn(), whole);
    QCOMPARE(meter.getRDV_Session1_Apn(), whole);
    QCOMPARE(meter.getRDV_Session3_Apn(), whole);
    QCOMPARE(journal.lines(), QStringList({"zeroed", "zeroed"}));
}

void TestFullBuffers::sessionFieldsAreLittleEndian()
{
    meter.getRDT();
    meter.getRDV();
    QCOMPARE(meter.getRDV_Session2_Sent(), QString("16909060 B"));      // 0x01020304
    QCOMPARE(meter.getRDV_Session2_Received(), QString("270544960 B")); // 0x10203040
    QCOMPARE(meter.getRDT_Session2(), QString("123:4:5"));
}

void TestFullBuffers::whatAFailedQueryWroteIsNotShown()
{
    status = 1;
    QCOMPARE(meter.getCreditAvailable(), QString("0.00"));
    QCOMPARE(meter.getAllCallsCost(), QString("0.00"));
    meter.getRDT();
    meter.getRDV();
    QCOMPARE(meter.getRDT_Session1(), QString("00:00:00"));
    QCOMPARE(meter.getRDV_Session1_Total(), QString("0 B"));
    QVERIFY(meter.getRDT_Session1_Apn().isNull());
}

KAV_TEST_MAIN(TestFullBuffers)
#include "tst_full_buffers.moc"
