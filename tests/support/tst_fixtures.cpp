// The fixtures themselves: a fixture that lies makes every test lie.
#include "support/AllocationFailure.h"
#include "support/PhoneTest.h"
#include "support/RecordingTranslator.h"

#include "log/aplog.h"

#include <climits>
#include <new>

using handset::CallTime;

class TestFixtures : public PhoneTest
{
    Q_OBJECT

private slots:
    void everyOperationIsRecordedUnderItsName();
    void anUnscriptedOperationSucceedsWithZeroes();
    void aScriptedOperationAnswersItsOutputs();
    void aFailingOperationWritesNoOutputs_data();
    void aFailingOperationWritesNoOutputs();
    void anEffectRunsBeforeTheAnswer();
    void aRoleThatIsTakenAwayIsNull();
    void theInstalledHandsetIsTheScriptedOne();
    void capturedTracesAreComparedWithoutLineNumbers();
    void theTraceStreamComesBackAfterACapture();
    void theTranslatorTellsAnEmptyTextFromAMissingOne();
    void allocationsOfOthersNeverFail();
};

void TestFixtures::everyOperationIsRecordedUnderItsName()
{
    ScriptedHandset &phone = *handset->operator->();
    CallTime time;
    handset::Date date;
    handset::DataSessions sessions;
    QByteArray bytes;
    QString text;
    bool flag = false;
    quint8 byte = 0;
    quint32 word = 0;
    int number = 0;
    const auto service = phone.callService();
    service->totalCallTime(time), service->resetCallTime(), service->remainingCredit(bytes);
    service->lastCallCost(bytes);
    const auto log = phone.callLog();
    log->lastCallTime(time), log->dialedCallsTime(time), log->answeredCallsTime(time),
        log->lifetimeCallsTime(time);
    log->resetDialedCallsTime(), log->resetAnsweredCallsTime(), log->resetAll(), log->depositExpirationDate(date);
    log->lastDeposit(bytes), log->dialedCallsCost(bytes), log->answeredCallsCost(bytes), log->allCallsCost(bytes);
    log->resetDialedCallsCost(), log->resetAnsweredCallsCost(), log->resetAllCallsCost();
    const auto data = phone.dataCalls();
    data->refreshTotals(), data->totalDuration(word), data->callStatus(byte), data->resetTotalDuration();
    const auto charge = phone.adviceOfCharge();
    charge->updateRule(59, byte), charge->meterMaximum(text, flag), charge->setMeterMaximum(text);
    charge->disableMeterMaximum(), charge->chargeType(byte), charge->setChargeType(1);
    charge->priceAndCurrency(text, text), charge->setPriceAndCurrency(text, text);
    const auto packets = phone.packetData();
    packets->sessions(sessions), packets->totalDuration(time), packets->totalBytes(word, word, word);
    packets->resetTotalDuration(), packets->resetTotalBytes();
    const auto sim = phone.simSecurity();
    sim->pinStatus(1, word), sim->triesLeft(1, number), sim->verifyPin(1, bytes, flag);

    QStringList recorded;
    for (const QString &line : journal.take())
        recorded.append(line.section(QLatin1Char('('), 0, 0));
    recorded.sort();
    QStringList known;
    for (const char *operation : handset::operationNames)
        known.append(QString::fromLatin1(operation));
    known.sort();
    QCOMPARE(recorded, known);
}

void TestFixtures::anUnscriptedOperationSucceedsWithZeroes()
{
    CallTime time;
    QCOMPARE((*handset)->callLog()->lastCallTime(time), 0);
    QCOMPARE(time, CallTime());
}

void TestFixtures::aScriptedOperationAnswersItsOutputs()
{
    script().answer("CallLog::lastCallTime", CallTime{5, 3, 7});
    script().answer("PacketData::totalBytes", 3u, 2u, 1u);
    CallTime time;
    quint32 total = 0, received = 0, sent = 0;
    QCOMPARE((*handset)->callLog()->lastCallTime(time), 0);
    QCOMPARE((*handset)->packetData()->totalBytes(total, received, sent), 0);
    QCOMPARE(time, (CallTime{5, 3, 7}));
    QCOMPARE(total, 3u);
    QCOMPARE(received, 2u);
    QCOMPARE(sent, 1u);
}

void TestFixtures::aFailingOperationWritesNoOutputs_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("a positive code") << 1;
    QTest::newRow("a negative code") << -1;
    QTest::newRow("the largest code") << INT_MAX;
    QTest::newRow("the smallest code") << INT_MIN;
}

void TestFixtures::aFailingOperationWritesNoOutputs()
{
    QFETCH(const int, code);
    script().answer("CallLog::lastCallTime", CallTime{5, 3, 7});
    script().fail("CallLog::lastCallTime", code);
    CallTime time{1, 2, 3};
    QCOMPARE((*handset)->callLog()->lastCallTime(time), code);
    QCOMPARE(time, (CallTime{1, 2, 3}));

    script().succeed("CallLog::lastCallTime");
    QCOMPARE((*handset)->callLog()->lastCallTime(time), 0);
    QCOMPARE(time, (CallTime{5, 3, 7}));

    script().failAll(code);
    QCOMPARE((*handset)->callService()->resetCallTime(), code);
}

void TestFixtures::anEffectRunsBeforeTheAnswer()
{
    script().whenCalled("CallLog::lastCallTime", [this] {
        script().answer("CallLog::lastCallTime", CallTime{9, 9, 9});
    });
    CallTime time;
    (*handset)->callLog()->lastCallTime(time);
    QCOMPARE(time, (CallTime{9, 9, 9}));
}

void TestFixtures::aRoleThatIsTakenAwayIsNull()
{
    (*handset)->takeAway(QStringLiteral("CallLog"));
    QVERIFY(!(*handset)->callLog());
    QVERIFY((*handset)->callService());
}

void TestFixtures::theInstalledHandsetIsTheScriptedOne()
{
    QCOMPARE(handset::current().get(), handset->operator->());
    handset.reset();
    QVERIFY(!handset::current());
}

void TestFixtures::capturedTracesAreComparedWithoutLineNumbers()
{
    std::fprintf(libaplog_to_module_ptr, "a/source,function,%d \n", 4711);
    std::fprintf(libaplog_to_module_ptr, "\n%s, %s, %d: \"%s\"\n", "a/source", "function", 12, "it failed.5");
    std::fprintf(libaplog_to_module_ptr, "a/source,function,0 \n");
    QCOMPARE(traces->take(), shortTrace("a/source", "function") +
                                 longTrace("a/source", "function", "it failed.5") + "a/source,function,0 \n");
    QCOMPARE(traces->take(), QString());
}

void TestFixtures::theTraceStreamComesBackAfterACapture()
{
    FILE *const outer = libaplog_to_module_ptr;
    {
        const TraceCapture inner;
        QVERIFY(libaplog_to_module_ptr != outer);
    }
    QCOMPARE(libaplog_to_module_ptr, outer);
    traces.reset();
    QVERIFY(!libaplog_to_module_ptr);
}

void TestFixtures::theTranslatorTellsAnEmptyTextFromAMissingOne()
{
    RecordingTranslator translator;
    translator.add("EMPTY", "");
    QCOMPARE(QCoreApplication::translate("Context", "EMPTY", "English"), QString());
    QCOMPARE(QCoreApplication::translate("Context", "MISSING", "English"), QString("MISSING"));
    QCOMPARE(lines(translator.take()), QStringList({"Context, EMPTY, English", "Context, MISSING, English"}));
}

void TestFixtures::allocationsOfOthersNeverFail()
{
    const AllocationFailure failure(1);
    const std::unique_ptr<int> number(new (std::nothrow) int(1));
    const std::unique_ptr<int[]> numbers(new (std::nothrow) int[4]);
    QVERIFY(number && numbers);
    QCOMPARE(AllocationFailure::count(), 0);
    QVERIFY(!AllocationFailure::happened());
}

KAV_TEST_GROUP(TestFixtures, QApplication);
#include "tst_fixtures.moc"
