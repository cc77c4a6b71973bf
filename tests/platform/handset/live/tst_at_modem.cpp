// The AT modem by itself: what it answers, and what it keeps.
#include "support/TestGroup.h"
#include "support/atmodem/Interpreter.h"

using namespace atmodem;

namespace {

/// A phone with one port, and what came out of it.
struct Desk {
    Phone phone;
    CommandLog log;
    QByteArray out;
    Interpreter port{phone, log, [this](const QByteArray &bytes) { out += bytes; }};

    Desk()
    {
        ask("ATE0");
        ask("AT+CMEE=1;+CFUN=1");
    }
    /// The lines of the answer, joined by '|'.
    QByteArray ask(const QByteArray &command)
    {
        out.clear();
        port.receive(command + '\r');
        return said();
    }
    QByteArray said()
    {
        QList<QByteArray> lines;
        for (const QByteArray &line : std::exchange(out, QByteArray()).split('\n')) {
            if (!line.trimmed().isEmpty())
                lines.append(line.trimmed());
        }
        return lines.join('|');
    }
};

} // namespace

class TestAtModem : public QObject
{
    Q_OBJECT

private slots:
    void anUnknownCommandIsAnErrorAndNoted();
    void aLineOfSeveralCommandsEndsAtTheFirstError();
    void aPriceIsTheNearestThatACardCanKeep_data();
    void aPriceIsTheNearestThatACardCanKeep();
    void metersStopAtTheirLargestValue();
    void aWrongPin2CostsOneTryAndARightOneGivesThemBack();
    void callsAreListedWithTheirStates();
    void atTheMaximumOnlyEmergencyCallsAreAllowed();
    void aDataPortIsDeafUntilTheNetworkEndsIt();
    void aMeterHeldBackIsNotPushed();
};

void TestAtModem::anUnknownCommandIsAnErrorAndNoted()
{
    Desk desk;
    QCOMPARE(desk.ask("AT+NONSENSE=1"), "ERROR");
    QCOMPARE(desk.log.unknown, QList<QByteArray>{"+NONSENSE=1"});
    QCOMPARE(desk.ask("AT+CPIN?"), "+CPIN: READY|OK");
    QCOMPARE(desk.log.unknown.size(), 1);
    QCOMPARE(desk.log.commands.last(), "AT+CPIN?");
}

void TestAtModem::aLineOfSeveralCommandsEndsAtTheFirstError()
{
    Desk desk;
    QCOMPARE(desk.ask("ATE0V1X4&C1+CREG=2;+CREG?"), "+CREG: 2,1,\"00C3\",\"0000A1B2\",7|OK");
    QCOMPARE(desk.ask("AT+CPIN?;+NONSENSE;+CIMI"), "+CPIN: READY|ERROR");
    QCOMPARE(desk.ask("AT"), "OK");
}

void TestAtModem::aPriceIsTheNearestThatACardCanKeep_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("read");
    QTest::newRow("two digits after the point") << QByteArray("0.230000") << QByteArray("0.23");
    QTest::newRow("five digits are one too many") << QByteArray("1.234500") << QByteArray("1.235");
    QTest::newRow("nine tenths of a cent round up") << QByteArray("4.0959") << QByteArray("4.1");
    QTest::newRow("a large number keeps four digits") << QByteArray("123456") << QByteArray("123500");
    QTest::newRow("nothing") << QByteArray("0.000000") << QByteArray("0");
    QTest::newRow("the smallest") << QByteArray("0.0000001") << QByteArray("0.0000001");
    QTest::newRow("too small is nothing") << QByteArray("0.00000001") << QByteArray("0");
    QTest::newRow("too large is the largest") << QByteArray("99999999999") << QByteArray("40950000000");
}

void TestAtModem::aPriceIsTheNearestThatACardCanKeep()
{
    QFETCH(const QByteArray, written);
    QFETCH(const QByteArray, read);
    Desk desk;
    QCOMPARE(desk.ask("AT+CPUC=\"USD\",\"" + written + "\",\"1234\""), "OK");
    QCOMPARE(desk.ask("AT+CPUC?"), "+CPUC: \"USD\",\"" + read + "\"|OK");
}

void TestAtModem::metersStopAtTheirLargestValue()
{
    Desk desk;
    desk.phone.sim.acm = Sim::largestMeter - 1;
    QCOMPARE(desk.ask("AT+CAOC=2"), "OK");
    desk.phone.ring("5551234");
    QCOMPARE(desk.ask("ATA"), "OK");
    QVERIFY(desk.phone.tick(5));
    QCOMPARE(desk.said(), "+CCCM: \"000005\"");
    QCOMPARE(desk.ask("AT+CACM?"), "+CACM: \"FFFFFF\"|OK");
}

void TestAtModem::aWrongPin2CostsOneTryAndARightOneGivesThemBack()
{
    Desk desk;
    QCOMPARE(desk.ask("AT+CACM=\"9999\""), "+CME ERROR: 16");
    QCOMPARE(desk.ask("AT+CPINR=\"SIM PIN2\""), "+CPINR: SIM PIN2,2,3|OK");
    QCOMPARE(desk.ask("AT+CACM=\"1234\""), "OK");
    QCOMPARE(desk.ask("AT+CSIM=10,\"0020008100\""), "+CSIM: 4,\"63C3\"|OK");
    for (const char *answer : {"+CME ERROR: 16", "+CME ERROR: 16", "+CME ERROR: 18", "+CME ERROR: 18"})
        QCOMPARE(desk.ask("AT+CAMM=\"00000A\",\"9999\""), answer);
    QCOMPARE(desk.ask("AT+CACM=\"1234\""), "+CME ERROR: 18");
    QCOMPARE(desk.ask("AT+CPIN=\"87654321\",\"5678\""), "OK");
    QCOMPARE(desk.ask("AT+CAMM=\"00000A\",\"5678\""), "OK");
    QCOMPARE(desk.ask("AT+CAMM?"), "+CAMM: \"00000A\"|OK");
}

void TestAtModem::callsAreListedWithTheirStates()
{
    Desk desk;
    desk.ask("AT+CLIP=1;+CCWA=1;+CRC=1");
    desk.phone.ring("5551234");
    QCOMPARE(desk.said(), "+CRING: VOICE|+CLIP: \"5551234\",129,,,,0");
    QCOMPARE(desk.ask("ATA"), "OK");
    desk.phone.ring("5550003");
    QCOMPARE(desk.said(), "+CCWA: \"5550003\",129,1,,0");
    QCOMPARE(desk.ask("AT+CHLD=2"), "OK");
    QCOMPARE(desk.ask("AT+CLCC"), "+CLCC: 1,1,1,0,0,\"5551234\",129|+CLCC: 2,1,0,0,0,\"5550003\",129|OK");
    QVERIFY(desk.phone.hangUpThere("5551234"));
    QCOMPARE(desk.said(), "NO CARRIER");
    QCOMPARE(desk.ask("AT+CHLD=1"), "OK");
    QCOMPARE(desk.ask("AT+CLCC"), "OK");
    const QList<CallRecord> records = desk.phone.records();
    QCOMPARE(records.size(), 2);
    QCOMPARE(records[0].end, End::HungUpThere);
    QCOMPARE(records[1].end, End::HungUpHere);
    QCOMPARE(records[1].durationMs(), records[1].endedMs - records[1].connectedMs);
}

void TestAtModem::atTheMaximumOnlyEmergencyCallsAreAllowed()
{
    Desk desk;
    desk.phone.sim.acm = desk.phone.sim.acmMax = 10;
    QCOMPARE(desk.ask("ATD5551234;"), "+CME ERROR: 3");
    QCOMPARE(desk.ask("ATD112;"), "OK");
    QTRY_COMPARE(desk.ask("AT+CLCC"), "+CLCC: 1,0,3,0,0,\"112\",129|OK");
}

void TestAtModem::aDataPortIsDeafUntilTheNetworkEndsIt()
{
    Desk desk;
    QCOMPARE(desk.ask("AT+CGDCONT=1,\"IP\",\"internet\""), "OK");
    QCOMPARE(desk.ask("ATD*99***1#"), "CONNECT");
    QCOMPARE(desk.ask("AT"), "");
    QCOMPARE(desk.port.dataBytes, 3);
    desk.phone.endData();
    QCOMPARE(desk.said(), "NO CARRIER");
    QCOMPARE(desk.ask("AT+CGACT?"), "+CGACT: 1,0|OK");
}

void TestAtModem::aMeterHeldBackIsNotPushed()
{
    Desk desk;
    QCOMPARE(desk.ask("AT+CAOC=2"), "OK");
    desk.phone.ring("5551234");
    desk.ask("ATA");
    desk.phone.isMeterPushed = false;
    QVERIFY(desk.phone.tick(5));
    QCOMPARE(desk.said(), "");
    QCOMPARE(desk.ask("AT+CAOC"), "+CAOC: \"000005\"|OK");
}

KAV_TEST_GROUP(TestAtModem, QCoreApplication);
#include "tst_at_modem.moc"
