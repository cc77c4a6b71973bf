// Texts of the platform that fill their buffers without a NUL, written by this program in the place of the phone's
// library: nothing behind a buffer may be read. Queries that fail after writing give their fallbacks all the same.
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneTest.h"

#include "telephony/tapi.h"

#include <array>
#include <cstring>

using Meter = PHONE_UI_RecentCallMeter;

namespace {

int status = 0;

// The block of the sessions as it lies in the phone's memory.
using Block = std::array<unsigned char, 364>;
constexpr std::size_t recordOffsets[] = {4, 124, 244};
Block block;

// Every record full to its last byte, and a count that is beyond all records.
Block fullBlock()
{
    Block full;
    full.fill(0xFF);
    // The record's fields as the phone's memory has them, whatever this machine's byte order.
    constexpr quint8 fields[] = {1, 0, 0, 0, 0x04, 0x03, 0x02, 0x01, 0x40, 0x30, 0x20, 0x10, 0x7B, 0, 0, 0, 4, 5};
    for (const std::size_t record : recordOffsets) {
        std::memcpy(&full[record], fields, sizeof fields);
        std::memset(&full[record + 18], 'a', 102);
    }
    return full;
}

void put(std::size_t offset, const QByteArray &bytes)
{
    std::memcpy(&block[offset], bytes.constData(), std::size_t(bytes.size()));
}

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
    static_assert(sizeof *info == sizeof(Block));
    std::memcpy(info, block.data(), sizeof *info);
    return status;
}

int TAPI_GPRS_GetTotalDuration(TAPI_CallTime *duration)
{
    const bool zeroed = duration->hours == 0 && duration->minutes == 0 && duration->seconds == 0;
    Journal::shared().record(zeroed ? QStringLiteral("zeroed") : QStringLiteral("not zeroed"));
    *duration = {1, 2, 3};
    return status;
}

int TAPI_GPRS_GetTotalDataBytes(uint32_t *total, uint32_t *received, uint32_t *sent)
{
    const bool zeroed = *total == 0 && *received == 0 && *sent == 0;
    Journal::shared().record(zeroed ? QStringLiteral("zeroed") : QStringLiteral("not zeroed"));
    *total = 4294967295u;
    *received = 222;
    *sent = 111;
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
    void theCountIsLittleEndian();
    void everyFieldIsReadAtItsPlaceInTheBlock();
    void theTotalsComeInTheOrderTotalReceivedSent();
    void whatAFailedQueryWroteIsNotShown();

private:
    Meter meter;
};

void TestFullBuffers::init()
{
    PhoneTest::init();
    status = 0;
    block = fullBlock();
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

void TestFullBuffers::theCountIsLittleEndian()
{
    put(0, QByteArray("\1\0\0\0", 4));
    meter.getRDV();
    QCOMPARE(meter.getRDV_Session1_Total(), QString("287454020 B"));
    QCOMPARE(meter.getRDV_Session2_Total(), QString("0 B"));
    put(0, QByteArray("\0\0\0\1", 4)); // 16777216
    meter.getRDV();
    QCOMPARE(meter.getRDV_Session3_Total(), QString("287454020 B"));
}

void TestFullBuffers::everyFieldIsReadAtItsPlaceInTheBlock()
{
    block.fill(0xEE); // what no field covers is not looked at
    put(0, QByteArray("\3\0\0\0", 4));
    put(4, QByteArray("\xFF", 1));
    put(8, QByteArray("\0\0\0\x80\1\0\0\0\0\1\0\0\x3B\x3A", 14) + QByteArray("first\0", 6));
    put(124, QByteArray("\0", 1));
    put(244, QByteArray("\1", 1));
    put(248, QByteArray("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x09\0\0\0\0\1", 14) + QByteArray("third\0", 6));
    meter.getRDT();
    meter.getRDV();
    QCOMPARE(meter.getRDT_Session1() + meter.getRDT_Session1_Apn(), QString("256:59:58first"));
    QCOMPARE(meter.getRDT_Session2() + meter.getRDT_Session2_Apn(), QString("00:00:00"));
    QCOMPARE(meter.getRDT_Session3() + meter.getRDT_Session3_Apn(), QString("09:00:01third"));
    QCOMPARE(meter.getRDV_Session1_Sent(), QString("2147483648 B"));
    QCOMPARE(meter.getRDV_Session1_Received(), QString("1 B"));
    QCOMPARE(meter.getRDV_Session1_Apn(), QString("first"));
    QCOMPARE(meter.getRDV_Session2_Sent(), QString("0 B"));
    QCOMPARE(meter.getRDV_Session3_Sent(), QString("4294967295 B"));
    QCOMPARE(meter.getRDV_Session3_Total(), QString("4294967294 B"));
}

void TestFullBuffers::theTotalsComeInTheOrderTotalReceivedSent()
{
    meter.getADV();
    QCOMPARE(meter.getADV_Sessions_Sent(), QString("111 B"));
    QCOMPARE(meter.getADV_Sessions_Received(), QString("222 B"));
    QCOMPARE(meter.getADV_Sessions_Total(), QString("4294967295 B"));
    meter.getADT();
    QCOMPARE(meter.getADT_Sessions(), QString("01:02:03"));
    QCOMPARE(journal.lines(), QStringList({"zeroed", "zeroed"}));
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
    meter.getADT();
    meter.getADV();
    QCOMPARE(meter.getADT_Sessions(), QString("00:00:00"));
    QCOMPARE(meter.getADV_Sessions_Sent(), QString("0 B"));
    QCOMPARE(meter.getADV_Sessions_Total(), QString("0 B"));
}

KAV_TEST_GROUP(TestFullBuffers, QApplication);
#include "tst_full_buffers.moc"
