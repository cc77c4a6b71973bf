// The trace function that every source file of the plug-in has.
#include "support/PhoneTest.h"

#include <QtCore/QProcess>

#define KAV_SOURCE "tests/source"
#include "utility/trace.h"

class TestTrace : public PhoneTest
{
    Q_OBJECT

private slots:
    void everyTraceOfThePluginIsOfLevel3();
    void levelsUpTo7AreWritten_data();
    void levelsUpTo7AreWritten();
    void levelsAbove7AreDropped_data();
    void levelsAbove7AreDropped();
    void argumentsAreFormattedAsByPrintf();
    void theShortFormSurroundsACall();
    void theLongFormQuotesTheMessageBetweenLineBreaks();
    void theLineIsTheOneThatTheTraceStandsIn();
    void withoutAStreamTracesGoToStandardOutput();
    void withAStreamNothingGoesToStandardOutput();
};

void TestTrace::everyTraceOfThePluginIsOfLevel3()
{
    QCOMPARE(traceLevel, 3);
}

void TestTrace::levelsUpTo7AreWritten_data()
{
    QTest::addColumn<int>("level");
    for (const int level : {-1, 0, 3, 6, 7})
        QTest::addRow("level %d", level) << level;
}

void TestTrace::levelsUpTo7AreWritten()
{
    QFETCH(const int, level);
    log(level, "text %d\n", level);
    QCOMPARE(traces->text(), QStringLiteral("text %1\n").arg(level));
}

void TestTrace::levelsAbove7AreDropped_data()
{
    QTest::addColumn<int>("level");
    for (const int level : {8, 9, 100, std::numeric_limits<int>::max()})
        QTest::addRow("level %d", level) << level;
}

void TestTrace::levelsAbove7AreDropped()
{
    QFETCH(const int, level);
    log(level, "text\n");
    QCOMPARE(traces->text(), QString());
}

void TestTrace::argumentsAreFormattedAsByPrintf()
{
    log(3, "%s %d %u %% %c", "text", -1, 4294967295u, 'x');
    QCOMPARE(traces->text(), QString("text -1 4294967295 % x"));
}

void TestTrace::theShortFormSurroundsACall()
{
    const int answer = KAV_TRACED(std::fprintf(libaplog_to_module_ptr, "call\n"));
    QCOMPARE(answer, 5);
    const QString trace = shortTrace("tests/source", "theShortFormSurroundsACall");
    QCOMPARE(traces->take(), trace + "call\n" + trace);
}

void TestTrace::theLongFormQuotesTheMessageBetweenLineBreaks()
{
    KAV_TRACE("it failed.%d", -3);
    KAV_TRACE("nothing to add");
    const QString function = QStringLiteral("theLongFormQuotesTheMessageBetweenLineBreaks");
    QCOMPARE(traces->take(), longTrace("tests/source", function, "it failed.-3") +
                                 longTrace("tests/source", function, "nothing to add"));
}

void TestTrace::theLineIsTheOneThatTheTraceStandsIn()
{
    const QString function = QStringLiteral("theLineIsTheOneThatTheTraceStandsIn");
    const int line = __LINE__ + 1;
    KAV_TRACED(0);
    KAV_TRACE("text");
    const QString call = QStringLiteral("tests/source,%1,%2 \n").arg(function).arg(line);
    const QString message = QStringLiteral("\ntests/source, %1, %2: \"text\"\n").arg(function).arg(line + 1);
    QCOMPARE(traces->text(), call + call + message);
}

namespace {

QString outputOfProbe(const QString &mode)
{
    QProcess probe;
    probe.start(QCoreApplication::applicationDirPath() + "/phone_probe", {mode});
    if (!probe.waitForFinished(60000) || probe.exitStatus() != QProcess::NormalExit || probe.exitCode() != 0)
        qFatal("the probe failed: %s", qPrintable(probe.readAllStandardError()));
    return withoutLineNumbers(QString::fromLatin1(probe.readAllStandardOutput()));
}

} // namespace

void TestTrace::withoutAStreamTracesGoToStandardOutput()
{
    const QString call = shortTrace("utility/PHONE_UI_RecentCallMeter", "getLastCallTimes");
    const QString output = outputOfProbe("untraced");
    QVERIFY2(output.startsWith(call + call + '\n'), qPrintable(output));
    QVERIFY2(output.contains(longTrace("utility/PHONE_UI_RecentCallMeter", "formatTimeString",
                                       "formatTimeString after,TIMESTR=01:02:03.\\n")),
             qPrintable(output));
}

void TestTrace::withAStreamNothingGoesToStandardOutput()
{
    const QString output = outputOfProbe("rows");
    QVERIFY2(!output.contains("PHONE_UI_RecentCallMeter"), qPrintable(output));
}

KAV_TEST_GROUP(TestTrace, QApplication);
#include "tst_trace.moc"
