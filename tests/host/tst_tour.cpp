// The tour: what it prints, photographs, expects, and how it fails.

#include "handset/Handset.h"
#include "host/HostProcess.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtTest/QTest>

class TestTour : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theShippedTourMeetsItsExpectations();
    void theShippedTourComesOutTheSameEveryTime();
    void screensAndDialogsArePrintedAsText();
    void whatIsMetIsPhotographedWithoutBeingAskedFor();
    void aDialogWithoutAParentIsOnThePhotograph();
    void aFailedExpectationTellsItsLine_data();
    void aFailedExpectationTellsItsLine();
    void theTourGoesOnAfterAFailedExpectation();
    void mistakesInTheScriptAreAllTold();
    void aScriptThatCannotBeReadIsSaid_data();
    void aScriptThatCannotBeReadIsSaid();
    void aDirectoryThatCannotBeMadeIsSaid();
    void aPhotographThatCannotBeWrittenEndsTheTour();
    void aTextThatCannotBeWrittenIsSaid();
    void theTourTouchesNoStateThatIsNotNamed();
    void aKeptStateNeedsItsDirectory();
    void aKeptStateIsThereAtTheNextStart();
    void anUnusableKeptStateIsSaid();
    void tracesAreDroppedUnlessAskedFor();
    void callsAreChargedAsTheScriptSays();
    void theClockEndsACallThatReachesItsLimit();
    void whatTheHandsetRefusesIsTold_data();
    void whatTheHandsetRefusesIsTold();
    void thatAnotherProcessRecordsIsTold();
    void aTextIsTypedIntoAnEntryField();
    void rulesAndPin2GuardTheSetup();
    void operationsFailUntilTheyWorkAgain();
    void aSessionCountsAndABroadcastIsHeard();
    void aDialogThatBlocksItsScreenIsAnsweredByTheNextSteps();
    void aDialogThatBlocksGivesUpBeforeItsScreenGoes();

private:
    HostResult play(const QByteArray &script, const QStringList &more = {});
    QString path(const QString &name) const { return home->filePath(name); }
    QImage photograph(const QString &name) const { return QImage(path("tour/" + name)); }
    QStringList recorded() const; // by the plug-in's double
    void writeFile(const QString &name, const QByteArray &text) const;

    std::unique_ptr<QTemporaryDir> home;
    QProcessEnvironment environment;
};

void TestTour::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    environment = hostEnvironment(home->path());
    environment.remove("QT_QPA_PLATFORM"); // the tour sees to that itself
}

void TestTour::writeFile(const QString &name, const QByteArray &text) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QStringList TestTour::recorded() const
{
    QFile file(path("record"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                                          : QStringList();
}

HostResult TestTour::play(const QByteArray &script, const QStringList &more)
{
    writeFile("a.tour", script);
    return runHost(QStringList{"--tour", path("tour"), "--script", path("a.tour")} + more, environment);
}

void TestTour::theShippedTourMeetsItsExpectations()
{
    const HostResult result = runHost({"--tour", path("tour")}, environment);
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    const QDir directory(path("tour"));
    const QStringList photographs = directory.entryList({"*.png"}, QDir::Files);
    QVERIFY(photographs.size() >= 120);
    for (const QString &name : photographs)
        QCOMPARE(photograph(name).size(), QSize(240, 320));
    for (const char *name : {"menu",
                             "call-times-empty",
                             "call-times",
                             "reset-dialed-calls",
                             "reset-answered-calls",
                             "reset-data-calls",
                             "reset-all-calls",
                             "refused-while-calling",
                             "call-costs-units",
                             "call-costs",
                             "credit-available",
                             "expiration-date",
                             "last-deposit",
                             "last-call-cost",
                             "dialed-calls-cost",
                             "answered-calls-cost",
                             "all-calls-cost",
                             "call-costs-failing",
                             "call-cost-setup",
                             "credit-limit-choice",
                             "adjust-credit-limit-typed",
                             "currency-choice",
                             "currency-list",
                             "currency-list-letter",
                             "currency-code",
                             "cost-per-minute",
                             "all-costs-reset",
                             "call-cost-setup-never",
                             "enter-pin2",
                             "wrong-pin2",
                             "pin2-blocked",
                             "data-times-empty",
                             "data-times",
                             "data-time",
                             "reset-data-times",
                             "data-volumes",
                             "data-volume",
                             "data-volume-all",
                             "reset-data-volumes",
                             "data-volumes-long"})
        QVERIFY2(photographs.contains(QString(name) + ".png"), name);
}

void TestTour::theShippedTourComesOutTheSameEveryTime()
{
    const HostResult first = runHost({"--tour", path("tour")}, environment);
    environment.insert("TZ", "Pacific/Auckland");
    environment.insert("QT_FONT_DPI", "144");
    environment.insert("QT_SCALE_FACTOR", "2");
    environment.insert("QT_STYLE_OVERRIDE", "windows");
    const HostResult second = runHost({"--tour", path("again")}, environment);
    QCOMPARE(second.code, 0);
    QCOMPARE(QString(second.output).replace(path("again"), path("tour")), first.output);
    const QStringList photographs = QDir(path("tour")).entryList({"*.png"}, QDir::Files);
    QCOMPARE(QDir(path("again")).entryList({"*.png"}, QDir::Files), photographs);
    for (const QString &name : photographs)
        QVERIFY2(photograph(name) == QImage(path("again/" + name)), qPrintable(name));
}

void TestTour::screensAndDialogsArePrintedAsText()
{
    const HostResult result = play("state empty\n"
                                   "call dialed voice 65s\n"
                                   "open callTime\n"
                                   "press down select\n");
    QCOMPARE(result.code, 0);
    const QString screen = QStringLiteral("open callTime\n"
                                          "  title Call Times\n"
                                          "  rows 6\n"
                                          "  row 0 Last Call | 00:01:05\n"
                                          "  row 1 Dialed Calls | 00:01:05\n"
                                          "  row 2 Answered Calls | 00:00:00\n"
                                          "  row 3 Data Calls | 00:00:00\n"
                                          "  row 4 All Calls | 00:01:05\n"
                                          "  row 5 Lifetime Calls | 00:01:05\n"
                                          "  focus 0\n"
                                          "  softkeys | Back\n"
                                          "  line idle\n");
    QVERIFY2(result.output.contains(screen), qPrintable(result.output));
    const QString dialog = QStringLiteral("  header Reset Timer\n"
                                          "  message Would you like to reset the Dialed Calls timer?\n"
                                          "  softkeys Yes | No\n");
    QVERIFY2(result.output.contains(dialog), qPrintable(result.output));
}

void TestTour::whatIsMetIsPhotographedWithoutBeingAskedFor()
{
    QCOMPARE(play("open callTime\npress down select right clear\n").code, 0);
    // The screen is met three times; coming back from the dialog the focus bar is elsewhere.
    const QStringList expected{"01-recent-calls.png", "02-call-times.png", "03-reset-timer.png",
                               "04-call-times.png"};
    QCOMPARE(QDir(path("tour")).entryList({"*.png"}, QDir::Files, QDir::Name), expected);
}

// How many pixels two pictures of the same size differ in.
static int differences(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y);
    }
    return count;
}

void TestTour::aDialogWithoutAParentIsOnThePhotograph()
{
    const HostResult result = play("dial 123 data\n"
                                   "open callTime\n"
                                   "press down*3\n"
                                   "photo without\n"
                                   "press select left\n"
                                   "photo with\n"
                                   "press left\n"
                                   "photo after\n");
    QCOMPARE(result.code, 0);
    QVERIFY(differences(photograph("without.png"), photograph("with.png")) > 5000);
    QCOMPARE(differences(photograph("without.png"), photograph("after.png")), 0);
    // It does not darken the screen around it.
    QCOMPARE(photograph("with.png").pixel(120, 20), photograph("without.png").pixel(120, 20));
}

void TestTour::aFailedExpectationTellsItsLine_data()
{
    QTest::addColumn<QByteArray>("expectation");
    QTest::addColumn<QString>("seen");
    QTest::newRow("another title") << QByteArray("title Call Costs") << "title Call Times";
    QTest::newRow("another value") << QByteArray("row 1 Dialed Calls | 00:01:05")
                                   << "row 1 Dialed Calls | 00:00:00";
    QTest::newRow("a value left out") << QByteArray("row 1 Dialed Calls") << "row 1 Dialed Calls | 00:00:00";
    QTest::newRow("a row that there is not") << QByteArray("row 6 More | 1") << "no row 6";
    QTest::newRow("another number of rows") << QByteArray("rows 5") << "rows 6";
    QTest::newRow("another focus") << QByteArray("focus 1") << "focus 0";
    QTest::newRow("other softkeys") << QByteArray("softkeys Select | Back") << "softkeys | Back";
    QTest::newRow("a dialog that is not open") << QByteArray("header Reset Timer") << "no header";
    QTest::newRow("a message where there is none") << QByteArray("message \"\"") << "no message";
    QTest::newRow("no title where there is one") << QByteArray("no title") << "title Call Times";
    QTest::newRow("another line state") << QByteArray("line ringing") << "line idle";
    QTest::newRow("a separator that is a row") << QByteArray("separator 0 Last Call") << "no separator 0";
    QTest::newRow("a row that is not disabled") << QByteArray("disabled 0") << "no disabled 0";
    QTest::newRow("a trailing blank too many") << QByteArray("title \"Call Times \"") << "title Call Times";
}

void TestTour::aFailedExpectationTellsItsLine()
{
    QFETCH(QByteArray, expectation);
    QFETCH(QString, seen);
    const HostResult result = play("# a comment\n\nopen callTime\nexpect " + expectation + "\n");
    QCOMPARE(result.code, 1);
    const QString place = path("a.tour") + ":4: ";
    QVERIFY2(result.errors.contains(place + "expected: " + expectation + '\n'), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(place + "seen:     " + seen + '\n'), qPrintable(result.errors));
    QVERIFY2(result.output.contains("0 of 1 expectations met"), qPrintable(result.output));
}

void TestTour::theTourGoesOnAfterAFailedExpectation()
{
    const HostResult result = play("expect title Nothing\n"
                                   "hangup\n"
                                   "open callTime\n"
                                   "expect title Call Times\n"
                                   "photo last\n");
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains(":1: expected: title Nothing"), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(":2: seen:     WrongState, "), qPrintable(result.errors));
    QVERIFY2(!result.errors.contains(":4:"), qPrintable(result.errors));
    QVERIFY(!photograph("last.png").isNull());
}

void TestTour::mistakesInTheScriptAreAllTold()
{
    const HostResult result = play("state empty\nfly away\npress sideways\nphoto ../outside\n");
    QCOMPARE(result.code, 6);
    QVERIFY2(result.errors.contains(path("a.tour") + ":2: unknown word \"fly\""), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(path("a.tour") + ":3: there is no key \"sideways\""),
             qPrintable(result.errors));
    QVERIFY2(result.errors.contains(path("a.tour") + ":4: a photograph's name"), qPrintable(result.errors));
    QVERIFY(!QDir(path("tour")).exists());
}

void TestTour::aScriptThatCannotBeReadIsSaid_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("there is none") << "/nowhere/a.tour";
    QTest::newRow("it is a directory") << QDir::tempPath();
}

void TestTour::aScriptThatCannotBeReadIsSaid()
{
    QFETCH(QString, script);
    const HostResult result = runHost({"--tour", path("tour"), "--script", script}, environment);
    QCOMPARE(result.code, 6);
    QVERIFY2(result.errors.contains('"' + script + "\" cannot be read"), qPrintable(result.errors));
}

void TestTour::aDirectoryThatCannotBeMadeIsSaid()
{
    writeFile("file", {});
    const HostResult result = runHost({"--tour", path("file/tour")}, environment);
    QCOMPARE(result.code, 7);
    QVERIFY2(result.errors.contains(path("file/tour")), qPrintable(result.errors));
    QVERIFY2(result.errors.startsWith("kavrecentcalls: "), qPrintable(result.errors)); // no line of the script's
}

void TestTour::aTextThatCannotBeWrittenIsSaid()
{
    const QFileInfo full("/dev/full");
    if (!full.exists() || full.isFile())
        QSKIP("there is no device that is full here");
    writeFile("a.tour", "open callTime\n");
    const HostResult result =
        runHost({"--tour", path("tour"), "--script", path("a.tour")}, environment, "/dev/full");
    QCOMPARE(result.errors, "kavrecentcalls: The text of the tour cannot be written.\n");
    QCOMPARE(result.code, 7);
}

void TestTour::aPhotographThatCannotBeWrittenEndsTheTour()
{
    QVERIFY(QDir().mkpath(path("tour/taken.png"))); // a directory in its place
    const HostResult result = play("photo taken\nopen callTime\n");
    QCOMPARE(result.code, 7);
    QVERIFY2(result.errors.contains(path("tour/taken.png")), qPrintable(result.errors));
    QVERIFY(!result.output.contains("Call Times | "));
    QVERIFY(!result.output.contains("open callTime"));
}

void TestTour::theTourTouchesNoStateThatIsNotNamed()
{
    QCOMPARE(play("state ready-made\ncall dialed voice 1s\nstate empty\nopen callTime\nexpect row 4 All Calls | "
                  "00:00:00\n")
                 .code,
             0);
    QVERIFY(!QDir(path("data")).exists());
}

void TestTour::aKeptStateNeedsItsDirectory()
{
    for (const QStringList &more : {QStringList{}, QStringList{"--state", "none"}}) {
        const HostResult result = play("call dialed voice 65s\nstate kept\n", more);
        QCOMPARE(result.code, 2);
        QCOMPARE(result.output, QString()); // said before anything is played
        QVERIFY2(result.errors.contains("a.tour:2: "), qPrintable(result.errors));
        QVERIFY2(result.errors.contains("option 'state'"), qPrintable(result.errors));
    }
}

void TestTour::aKeptStateIsThereAtTheNextStart()
{
    const QStringList kept{"--state", path("state")};
    QCOMPARE(play("state kept\ncall answered voice 2m5s\ncall dialed data 1h\n", kept).code, 0);
    const HostResult next = play("state kept\n"
                                 "open callTime\n"
                                 "expect row 0 Last Call | 01:00:00\n"
                                 "expect row 1 Dialed Calls | 00:00:00\n"
                                 "expect row 2 Answered Calls | 00:02:05\n"
                                 "expect row 3 Data Calls | 01:00:00\n"
                                 "expect row 4 All Calls | 01:02:05\n"
                                 "expect row 5 Lifetime Calls | 01:02:05\n"
                                 "press down*2 select left clear\n"
                                 "state kept\n"
                                 "open callTime\n"
                                 "expect row 2 Answered Calls | 00:00:00\n"
                                 "expect row 5 Lifetime Calls | 01:02:05\n",
                                 kept);
    QVERIFY2(next.code == 0, qPrintable(next.errors));
}

void TestTour::anUnusableKeptStateIsSaid()
{
    writeFile("file", {});
    const HostResult result = play("\nstate kept\n", {"--state", path("file/state")});
    QCOMPARE(result.code, 3);
    QVERIFY2(result.errors.contains("a.tour:2: "), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(path("file/state")), qPrintable(result.errors));
}

void TestTour::tracesAreDroppedUnlessAskedFor()
{
    QVERIFY(!play("open callTime\n").output.contains("utility/"));
    QVERIFY(play("open callTime\n", {"--trace", "-"}).output.contains("utility/PHONE_UI_RecentCallMeter"));
}

void TestTour::callsAreChargedAsTheScriptSays()
{
    const HostResult result = play("price 0.23 EUR\n"
                                   "chargetype currency\n"
                                   "topup 20.00 2007-03-09\n"
                                   "tariff dialed 1 per 10s start 2\n"
                                   "tariff answered 0.5 per 1m\n"
                                   "call dialed voice 65s\n"
                                   "call answered voice 2m\n"
                                   "open callCost\n"
                                   "expect row 0 Credit Available | 17.71 EUR\n"
                                   "expect row 1 Expiration Date | 2007:3:9\n"
                                   "expect row 2 Last Deposit | 19.78 EUR\n"
                                   "expect row 3 Last Call Cost | 0.23 EUR\n"
                                   "expect row 4 Dialed Calls Cost | 1.84 EUR\n"
                                   "expect row 5 Answered Calls Cost | 0.23 EUR\n"
                                   "expect row 6 All Calls Cost | 2.07 EUR\n"
                                   "tariff dialed free\n"
                                   "chargetype units\n"
                                   "call dialed voice 1h\n"
                                   "open callCost\n"
                                   "expect row 6 All Calls Cost | 9.00 units\n");
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestTour::theClockEndsACallThatReachesItsLimit()
{
    const HostResult result = play("limit 3\n"
                                   "dial 5550123\n"
                                   "answer\n"
                                   "clock +29s\n"
                                   "expect line connected\n"
                                   "clock +1s\n"
                                   "expect line idle\n"
                                   "limit off\n"
                                   "call dialed voice 10s\n"
                                   "limit 5\n"
                                   "call dialed voice 1h\n"
                                   "open callTime\n"
                                   "expect row 0 Last Call | 00:00:10\n");
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestTour::whatTheHandsetRefusesIsTold_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("seen");
    QTest::newRow("a currency of four letters")
        << QByteArray("\nprice 1 EURO\n") << "InvalidArgument, a value is out of range";
    QTest::newRow("a limit that no meter holds")
        << QByteArray("\nlimit 16777216\n") << "InvalidArgument, a value is out of range";
    QTest::newRow("a deposit of nothing")
        << QByteArray("\ntopup 0 2007-03-09\n") << "InvalidArgument, a value is out of range";
    QTest::newRow("a price that nobody may write")
        << QByteArray("rule puct never\nprice 1 EUR\n") << "NotAllowed, the SIM or the network does not allow it";
    QTest::newRow("a call that may not be charged") << QByteArray("limit 1\ncall dialed voice 10s\ndial 1\n")
                                                    << "NotAllowed, the SIM or the network does not allow it";
    QTest::newRow("a second session") << QByteArray("session start a 1 1\nsession start b 1 1\n")
                                      << "WrongState, it is not possible now";
    QTest::newRow("the end of no session")
        << QByteArray("\nsession stop\n") << "WrongState, it is not possible now";
}

void TestTour::whatTheHandsetRefusesIsTold()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, seen);
    const HostResult result = play(script);
    QCOMPARE(result.code, 1);
    const QString place = QString("%1:%2: ").arg(path("a.tour")).arg(script.count('\n'));
    QVERIFY2(result.errors.contains(place + QString("seen:     %1\n").arg(seen)), qPrintable(result.errors));
}

void TestTour::thatAnotherProcessRecordsIsTold()
{
    handset::Settings settings;
    settings.stateDirectory = path("state");
    const handset::Opened recorder = handset::open(settings);
    QVERIFY2(recorder.handset, qPrintable(recorder.error));
    const HostResult result = play("state kept\ndial 1\n", {"--state", path("state")});
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains("seen:     RecordedElsewhere, another process records the calls\n"),
             qPrintable(result.errors));
}

void TestTour::aTextIsTypedIntoAnEntryField()
{
    const HostResult result = play("limit 5\n"
                                   "open callCost\n"
                                   "press down*7 select\n"
                                   "press down*5 select\n"
                                   "expect header Adjust Credit Limit\n"
                                   "press \"1Ab.\" 5 # \"6\"\n"
                                   "expect entry 1Ab.6\n");
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestTour::rulesAndPin2GuardTheSetup()
{
    const HostResult result = play("rule acmmax pin2\n"
                                   "rule acm never\n"
                                   "open callCost\n"
                                   "press down*7 select\n"
                                   "expect disabled 0\n"
                                   "expect no disabled 4\n"
                                   "press down*4 select\n"
                                   "expect header Enter PIN2\n"
                                   "press 1 2 3 4 left\n"
                                   "expect header Credit Limit\n"
                                   "press right\n"
                                   "press select\n"
                                   "expect header Credit Limit\n"
                                   "press right\n"
                                   "pin2 forgotten\n"
                                   "press select\n"
                                   "expect header Enter PIN2\n"
                                   "press right\n"
                                   "pin2 off\n"
                                   "press select\n"
                                   "expect header Credit Limit\n"
                                   "press right\n"
                                   "pin2 on\n"
                                   "press select\n"
                                   "expect header Enter PIN2\n");
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestTour::operationsFailUntilTheyWorkAgain()
{
    const HostResult result = play("call dialed voice 65s\n"
                                   "fail CallLog::lastCallTime 3\n"
                                   "fail CallLog::dialedCallsTime -1\n"
                                   "open callTime\n"
                                   "expect row 0 Last Call | 00:00:00\n"
                                   "expect row 1 Dialed Calls | 00:00:00\n"
                                   "expect row 4 All Calls | 00:01:05\n"
                                   "fail CallLog::lastCallTime 0\n"
                                   "open callTime\n"
                                   "expect row 0 Last Call | 00:01:05\n"
                                   "expect row 1 Dialed Calls | 00:00:00\n"
                                   "fail nothing\n"
                                   "open callTime\n"
                                   "expect row 1 Dialed Calls | 00:01:05\n"
                                   "fail CallLog::lastCallTime 3\n"
                                   "state empty\n"
                                   "call dialed voice 5s\n"
                                   "open callTime\n"
                                   "expect row 0 Last Call | 00:00:05\n");
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestTour::aSessionCountsAndABroadcastIsHeard()
{
    const HostResult result = play("open dataVolume\n"
                                   "expect row 1 GPRS Data Session 1\n"
                                   "session start internet 100 2000\n"
                                   "expect row 1 internet\n"
                                   "clock +10s\n"
                                   "session stop\n"
                                   "fail PacketData::sessions 2\n"
                                   "expect row 1 internet\n"
                                   "broadcast\n"
                                   "expect row 1 GPRS Data Session 1\n"
                                   "fail nothing\n"
                                   "open dataTime\n"
                                   "expect row 1 internet | 00:00:10\n"
                                   "expect row 5 Total Time | 00:00:10\n");
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestTour::aDialogThatBlocksItsScreenIsAnsweredByTheNextSteps()
{
    environment.insert("KAV_RECORD", path("record"));
    const HostResult result = play("open callTime\n"
                                   "press select\n"
                                   "expect header Question\n"
                                   "photo question\n"
                                   "press left\n"
                                   "expect title Recording\n"
                                   "press select right select\n"
                                   "expect header Question\n"
                                   "press left right\n"
                                   "expect title Recent Calls\n",
                                   {"--plugin", KAV_DOUBLES "/librecording.so"});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QCOMPARE(photograph("question.png").size(), QSize(240, 320));
    const QStringList expected{"create callTime in a parent",
                               "show",
                               "ask",
                               "yes",
                               "ask",
                               "no",
                               "ask",
                               "yes",
                               "emit",
                               "emitted",
                               "destroy callTime",
                               "deleted"};
    QCOMPARE(recorded(), expected);
}

void TestTour::aDialogThatBlocksGivesUpBeforeItsScreenGoes()
{
    environment.insert("KAV_RECORD", path("record"));
    const HostResult result = play("open callTime\n"
                                   "press select\n"
                                   "open callTime\n"
                                   "expect title Recording\n"
                                   "press select\n"
                                   "state empty\n"
                                   "expect title Recent Calls\n"
                                   "open callTime\n"
                                   "press select\n",
                                   {"--plugin", KAV_DOUBLES "/librecording.so"});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QStringList calls = recorded();
    calls.removeAll("show"); // again, too, when the display comes back
    const QStringList once{"create callTime in a parent", "ask", "given up", "destroy callTime", "deleted"};
    QCOMPARE(calls, once + once + once);
}

KAV_TEST_GROUP(TestTour, QCoreApplication);
#include "tst_tour.moc"
