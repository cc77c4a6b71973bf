// What the program answers to its command line, and how it ends.

#include "handset/Clock.h"
#include "handset/Handset.h"
#include "handset/HandsetTestKit.h"
#include "host/HostProcess.h"
#include "qt/qcop/PrivateBus.h"
#include "simulated/SimulatedHandset.h"
#include "support/TestGroup.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>
#include <memory>

// Far beyond the numbers that servers take.
static const QString deadDisplay = QStringLiteral(":59999");

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void helpAndVersionAreAnswered_data();
    void helpAndVersionAreAnswered();
    void aWrongCommandLineIsRefusedWithCode2_data();
    void aWrongCommandLineIsRefusedWithCode2();
    void aNameThatIsNotUtf8IsRefused_data();
    void aNameThatIsNotUtf8IsRefused();
    void callsOlderThanTheDaysToKeepAreDeletedAtTheStart();
    void aPluginThatCannotServeIsNamed_data();
    void aPluginThatCannotServeIsNamed();
    void aPluginWithoutAScreenIsSaid();
    void anotherLibraryOfTheSameNameTakesThePlaceOfThePlugin();
    void aReplacementLibraryThatLacksAFunctionIsToldAtTheStart_data();
    void aReplacementLibraryThatLacksAFunctionIsToldAtTheStart();
    void anUnusableStateDirectoryIsSaid();
    void aDamagedCallLogIsSaidAndKeptAside();
    void aTraceThatCannotBeOpenedLeavesWhatIsToBeSaidToTheNextStart();
    void aWindowWhoseHandsetCannotBeOpenedEndsLikewise_data();
    void aWindowWhoseHandsetCannotBeOpenedEndsLikewise();
    void aHandsetThatKeepsNothingFindsItsStateDirectoryMade();
    void aSecondStartOnTheSameStateIsShownAndRecordsNothing();
    void anUnknownBackendIsSaid();
    void aTelephoneThatIsChosenByItselfIsTheSimulationWithoutAModem();
    void aBusThatAnswersLateIsWaitedForByTheTelephoneThatWantsIt();
    void theTraceIsAppendedToItsFile();
    void theTraceGoesToStandardOutputWhenAskedTo();
    void theTraceIsKeptBesideTheStateByDefault();
    void theTraceIsDroppedWhereTheStateIsInMemory();
    void aTraceFileThatCannotBeOpenedIsSaid();
    void aCatalogueTranslatesMenuAndScreens();
    void aCatalogueThatCannotBeLoadedIsSaid_data();
    void aCatalogueThatCannotBeLoadedIsSaid();
    void aPlatformThatCannotBeUsedIsOneSentence_data();
    void aPlatformThatCannotBeUsedIsOneSentence();
    void qtsOwnOptionsReachQt();
    void aTourTakesNoOptionOfQt();
    void withoutADisplayTheWindowIsRefused();
    void aDisplayThatCannotBeReachedIsNamed_data();
    void aDisplayThatCannotBeReachedIsNamed();
    void aDisplayThatCannotBeReachedDoesNotHinderAPhotograph();
    void anInputMethodWithoutABusIsLeftToQt_data();
    void anInputMethodWithoutABusIsLeftToQt();
    void theWindowIsPhotographed();
    void everyTextOfASkinIsReadable_data();
    void everyTextOfASkinIsReadable();
    void thePageOfThePanelIsChosen();
    void aPhotographThatCannotBeWrittenIsSaid();

private:
    HostResult run(const QStringList &arguments) const { return runHost(arguments, environment); }
    // Opens the Call Times screen in a window, and ends.
    HostResult showCallTimes(const QStringList &more) const;
    QString path(const QString &name) const { return home->filePath(name); }
    QString contents(const QString &name) const;

    std::unique_ptr<QTemporaryDir> home;
    QProcessEnvironment environment;
};

void TestCommandLine::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    environment = hostEnvironment(home->path());
}

HostResult TestCommandLine::showCallTimes(const QStringList &more) const
{
    return run(QStringList{"--screen", "callTime", "--photo", path("window.png")} + more);
}

QString TestCommandLine::contents(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("(no file)");
}

// A line that the meter writes before and after each question to the handset.
static bool hasMeterTrace(const QString &text)
{
    static const QRegularExpression line(
        QStringLiteral("^utility/PHONE_UI_RecentCallMeter[^,]*,getLastCallTimes,\\d+ $"),
        QRegularExpression::MultilineOption);
    return line.match(text).hasMatch();
}

void TestCommandLine::helpAndVersionAreAnswered_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("text");
    QTest::newRow("help names the options") << QStringList{"--help"} << "--state <DIR>";
    QTest::newRow("help names the exit codes") << QStringList{"--help"} << "\n  5  the plug-in or";
    QTest::newRow("help names the screens") << QStringList{"-h"} << "callTime";
    QTest::newRow("help comes before other options") << QStringList{"--screen", "nowhere", "--help"} << "Usage:";
    QTest::newRow("version") << QStringList{"--version"} << "kavrecentcalls 1.";
}

void TestCommandLine::helpAndVersionAreAnswered()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, text);
    environment.remove("QT_QPA_PLATFORM"); // no display is needed
    const HostResult result = run(arguments);
    QCOMPARE(result.code, 0);
    QVERIFY2(result.output.contains(text), qPrintable(result.output));
    QVERIFY2(!result.errors.contains("input method"), qPrintable(result.errors));
}

void TestCommandLine::aWrongCommandLineIsRefusedWithCode2_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("text");
    QTest::newRow("an unknown option") << QStringList{"--frobnicate"} << "frobnicate";
    QTest::newRow("an option that only Qt has") << QStringList{"--help-all"} << "help-all";
    QTest::newRow("an argument that is no option") << QStringList{"call"} << "'call'";
    QTest::newRow("an option without its value") << QStringList{"--state"} << "state";
    QTest::newRow("an empty value") << QStringList{"--state", ""} << "'state' has an empty value";
    QTest::newRow("a screen that there is not") << QStringList{"--screen", "nowhere"} << "'nowhere'";
    QTest::newRow("a part of a day") << QStringList{"--keep-calls", "1.5"}
                                     << "'keep-calls' wants a number of days";
    QTest::newRow("days to keep on a tour") << QStringList{"--tour", "t", "--keep-calls", "1"} << "'keep-calls'";
    QTest::newRow("a script without a tour") << QStringList{"--script", "x"} << "'script' needs option 'tour'";
    QTest::newRow("a page that there is not") << QStringList{"--page", "nowhere"} << "'nowhere'";
    QTest::newRow("a skin that there is not") << QStringList{"--skin", "green"} << "'green'";
    QTest::newRow("a skin on a tour") << QStringList{"--tour", "t", "--skin", "dark"} << "'skin'";
    QTest::newRow("a page on a tour") << QStringList{"--tour", "t", "--page", "sim"} << "'page'";
    QTest::newRow("a screen on a tour") << QStringList{"--tour", "t", "--screen", "callTime"} << "'screen'";
    QTest::newRow("a page of a display that is alone") << QStringList{"--display", "--page", "sim"} << "'display'";
    QTest::newRow("a display that is alone on a tour") << QStringList{"--tour", "t", "--display"} << "'display'";
    QTest::newRow("a window's photograph on a tour") << QStringList{"--tour", "t", "--photo", "x"} << "'photo'";
}

void TestCommandLine::aWrongCommandLineIsRefusedWithCode2()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, text);
    const HostResult result = run(arguments);
    QCOMPARE(result.code, 2);
    QVERIFY2(result.errors.contains(text), qPrintable(result.errors));
    QCOMPARE(result.output, QString());
}

void TestCommandLine::aNameThatIsNotUtf8IsRefused_data()
{
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<QString>("others");
    QTest::newRow("of a trace file") << QByteArray("trace") << "--state none --photo window.png";
    QTest::newRow("of a photograph") << QByteArray("photo") << "--state none";
    QTest::newRow("of a tour's directory") << QByteArray("tour") << "";
    QTest::newRow("of a script") << QByteArray("script") << "--tour tour";
    QTest::newRow("of a catalogue") << QByteArray("translation") << "--state none --photo window.png";
}

// A shell makes the byte, as QProcess takes texts.
void TestCommandLine::aNameThatIsNotUtf8IsRefused()
{
    QFETCH(QByteArray, option);
    QFETCH(QString, others);
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(home->path());
    shell.start("sh", {"-c", QStringLiteral("exec \"$0\" %1 --%2 \"$(printf 'n\\377')\"").arg(others, option),
                       QStringLiteral(KAV_HOST_PROGRAM)});
    QVERIFY(shell.waitForFinished(60'000));
    const QByteArray errors = shell.readAllStandardError();
    QVERIFY2(errors.contains("The name that option '" + option + "' gives is not UTF-8."), errors.constData());
    QCOMPARE(shell.exitCode(), 2);
}

void TestCommandLine::callsOlderThanTheDaysToKeepAreDeletedAtTheStart()
{
    using handset::test::Phone;
    const QDateTime now = QDateTime::currentDateTime();
    for (const int daysAgo : {31, 29}) {
        const qint64 begun = now.addDays(-daysAgo).toMSecsSinceEpoch();
        Phone phone(path("state"), std::make_shared<handset::ManualClock>(begun));
        QVERIFY(phone.dialed(1000, handset::CallKind::Voice, QString::number(daysAgo)));
    }
    const handset::test::LogFile log(path("state/calllog.db"));
    QCOMPARE(showCallTimes({"--state", path("state")}).code, 0);
    QCOMPARE(log.calls().size(), 2);
    const HostResult result = showCallTimes({"--state", path("state"), "--keep-calls", "30"});
    QCOMPARE(result.code, 0);
    QCOMPARE(log.calls().size(), 1);
    QCOMPARE(log.calls().value(0).number, "29");
}

void TestCommandLine::aPluginThatCannotServeIsNamed_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("missing");
    const QString doubles = QStringLiteral(KAV_DOUBLES);
    QTest::newRow("no such library by name") << "libnothere.so.1"
                                             << "\"libnothere.so.1\" cannot be loaded";
    QTest::newRow("no such library by path") << "/nowhere/lib.so"
                                             << "\"/nowhere/lib.so\" cannot be loaded";
    QTest::newRow("no create function") << doubles + "/libnocreate.so"
                                        << "no function \"create_callTime\"";
    QTest::newRow("no destroy function") << doubles + "/libnodestroy.so"
                                         << "no function \"destroy_callTime\"";
}

void TestCommandLine::aPluginThatCannotServeIsNamed()
{
    QFETCH(QString, plugin);
    QFETCH(QString, missing);
    for (const QStringList &mode : {QStringList{"--state", "none"}, QStringList{"--tour", path("tour")}}) {
        const HostResult result = run(QStringList{"--plugin", plugin} + mode);
        QCOMPARE(result.code, 5);
        QVERIFY2(!result.errors.contains("No such plugin"), qPrintable(result.errors)); // Qt is not asked for one
        QVERIFY2(result.errors.contains(missing), qPrintable(result.errors));
    }
}

void TestCommandLine::aPluginWithoutAScreenIsSaid()
{
    const HostResult result = showCallTimes({"--state", "none", "--plugin", KAV_DOUBLES "/libnull.so"});
    QCOMPARE(result.code, 5);
    QVERIFY2(result.errors.contains("gives no screen \"callTime\""), qPrintable(result.errors));
}

void TestCommandLine::anotherLibraryOfTheSameNameTakesThePlaceOfThePlugin()
{
    environment.insert("LD_LIBRARY_PATH", KAV_DOUBLES "/replacement");
    environment.insert("KAV_RECORD", path("record"));
    const HostResult result = showCallTimes({"--state", "none"});
    QCOMPARE(result.code, 0);
    QVERIFY2(contents("record").startsWith("create callTime"), qPrintable(contents("record")));
}

void TestCommandLine::aReplacementLibraryThatLacksAFunctionIsToldAtTheStart_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("missing");
    // The rest of the row says who calls what is missing first.
    QTest::newRow("the telephony library, by a screen") << "telephony"
                                                        << "TAPI_LOG_GetLastCallTime";
    QTest::newRow("a log that looks for what it calls when it does, by itself") << "lazily"
                                                                                << "functionThatNobodyHas";
    QTest::newRow("the log, by the program at its end") << "log"
                                                        << "libaplog_close";
    // What is missed first, a function or a class, is the build's: it depends on what the compiler makes of either.
    QTest::newRow("the toolkit, by the program") << "toolkit"
                                                 << "(ZKbMainWidget|ZPopup)";
    QTest::newRow("the call setup, by a screen") << "callsetup"
                                                 << "PHONE_ENG_Setup";
    QTest::newRow("the message client, by a screen") << "message"
                                                     << "PHONE_MsgClient";
    QTest::newRow("the security library, by a screen") << "security"
                                                       << "SETUP_SECURITY_Util";
}

void TestCommandLine::aReplacementLibraryThatLacksAFunctionIsToldAtTheStart()
{
    QFETCH(QString, folder);
    QFETCH(QString, missing);
    environment.insert("LD_LIBRARY_PATH", KAV_DOUBLES "/lacking/" + folder);
    const HostResult result = run({"--state", "none", "--photo", path("window.png")});
    QCOMPARE(result.code, 5);
    const QRegularExpression told("^kavrecentcalls: .*undefined symbol: \\S*" + missing,
                                  QRegularExpression::MultilineOption);
    QVERIFY2(told.match(result.errors).hasMatch(), qPrintable(result.errors));
}

void TestCommandLine::anUnusableStateDirectoryIsSaid()
{
    QFile file(path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString directory = path("file/state");
    const HostResult result = showCallTimes({"--state", directory});
    QCOMPARE(result.code, 3);
    QVERIFY2(result.errors.contains(directory), qPrintable(result.errors));
}

void TestCommandLine::aDamagedCallLogIsSaidAndKeptAside()
{
    const QByteArray damaged("this has never been a database");
    QVERIFY(QDir().mkpath(path("state")));
    QFile file(path("state/calllog.db"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(damaged), damaged.size());
    file.close();
    const HostResult result = showCallTimes({"--state", path("state")});
    QCOMPARE(result.code, 0);
    QVERIFY2(result.errors.contains("calllog-kept-1.db"), qPrintable(result.errors));
    QCOMPARE(contents("state/calllog-kept-1.db"), QString::fromLatin1(damaged));
}

void TestCommandLine::aTraceThatCannotBeOpenedLeavesWhatIsToBeSaidToTheNextStart()
{
    QVERIFY(QDir().mkpath(path("state")));
    QFile file(path("state/calllog.db"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("this has never been a database") > 0);
    file.close();
    QCOMPARE(showCallTimes({"--state", path("state"), "--trace", "/dev/null/trace"}).code, 4);
    const HostResult next = showCallTimes({"--state", path("state")});
    QCOMPARE(next.code, 0);
    QVERIFY2(next.errors.contains("is not a call log; it was kept as"), qPrintable(next.errors));
}

void TestCommandLine::aWindowWhoseHandsetCannotBeOpenedEndsLikewise_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("named");
    QTest::newRow("no state directory") << QStringList{"--state", "/dev/null/state"} << 3 << "/dev/null/state";
    QTest::newRow("no trace file") << QStringList{"--state", "none", "--trace", "/dev/null/trace"} << 4
                                   << "/dev/null/trace";
    QTest::newRow("no such telephone") << QStringList{"--state", "none", "--backend", "pigeon"} << 3 << "pigeon";
}

// The window is there by then, and its event loop runs.
void TestCommandLine::aWindowWhoseHandsetCannotBeOpenedEndsLikewise()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, named);
    const HostResult result = run(arguments);
    QCOMPARE(result.code, code);
    QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
}

void TestCommandLine::aHandsetThatKeepsNothingFindsItsStateDirectoryMade()
{
    const HostResult result =
        showCallTimes({"--state", path("new/state"), "--backend", KAV_DOUBLES "/libbarebackend.so"});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QVERIFY(hasMeterTrace(contents("new/state/trace.log")));
    constexpr QFile::Permissions userAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                             QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
    for (const char *directory : {"new", "new/state"})
        QCOMPARE(QFile::permissions(path(directory)), userAlone);
}

void TestCommandLine::aSecondStartOnTheSameStateIsShownAndRecordsNothing()
{
    const auto clock = std::make_shared<handset::ManualClock>();
    const handset::Opened first = handset::open({"simulated", path("state"), clock});
    QVERIFY2(first.handset, qPrintable(first.error));
    auto &phone = dynamic_cast<handset::simulated::SimulatedHandset &>(*first.handset);
    QCOMPARE(phone.dial("1", handset::CallKind::Voice), 0);
    QCOMPARE(phone.remoteAnswer(), 0);
    clock->advance(65'000);
    const HostResult result = showCallTimes({"--state", path("state")});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QVERIFY(!QImage(path("window.png")).isNull());
    QVERIFY(phone.isRecording());
    QCOMPARE(phone.connectedMs(), 65'000);
    QCOMPARE(phone.hangUp(), 0);
}

void TestCommandLine::anUnknownBackendIsSaid()
{
    const HostResult result = showCallTimes({"--state", "none", "--backend", "pigeon"});
    QCOMPARE(result.code, 3);
    QVERIFY2(result.errors.contains("pigeon"), qPrintable(result.errors));
}

void TestCommandLine::aTelephoneThatIsChosenByItselfIsTheSimulationWithoutAModem()
{
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    const HostResult result = showCallTimes({"--state", path("state"), "--backend", "auto"});
    const HostResult named = showCallTimes({"--state", path("state"), "--backend", "ofono"});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QVERIFY(hasMeterTrace(contents("state/trace.log")));
    QCOMPARE(named.code, 3);
    QVERIFY2(named.errors.contains("There is no system bus: "), qPrintable(named.errors));
}

void TestCommandLine::aBusThatAnswersLateIsWaitedForByTheTelephoneThatWantsIt()
{
    PrivateBus bus;
    bus.halt();
    const std::unique_ptr<QThread> later(QThread::create([&bus] {
        // Longer than is waited otherwise.
        QThread::msleep(3 * static_cast<unsigned long>(handset::Patience().bus));
        bus.goOn();
    }));
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", bus.address());
    later->start();
    const HostResult result = showCallTimes({"--state", path("state"), "--backend", "ofono"});
    later->wait();
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestCommandLine::theTraceIsAppendedToItsFile()
{
    const QStringList arguments{"--state", "none", "--trace", path("trace")};
    QCOMPARE(showCallTimes(arguments).code, 0);
    const QString once = contents("trace");
    QVERIFY2(hasMeterTrace(once), qPrintable(once));
    QCOMPARE(showCallTimes(arguments).code, 0);
    QCOMPARE(contents("trace"), once + once);
}

void TestCommandLine::theTraceGoesToStandardOutputWhenAskedTo()
{
    const HostResult result = showCallTimes({"--state", "none", "--trace", "-"});
    QCOMPARE(result.code, 0);
    QVERIFY2(hasMeterTrace(result.output), qPrintable(result.output));
}

void TestCommandLine::theTraceIsKeptBesideTheStateByDefault()
{
    QCOMPARE(showCallTimes({"--state", path("state")}).code, 0);
    QVERIFY(hasMeterTrace(contents("state/trace.log")));
}

void TestCommandLine::theTraceIsDroppedWhereTheStateIsInMemory()
{
    const HostResult result = showCallTimes({"--state", "none"});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.output, QString());
    QVERIFY(!QFile::exists(path("data/kavcallmeter/trace.log")));
}

void TestCommandLine::aTraceFileThatCannotBeOpenedIsSaid()
{
    const QString file = path("missing/trace");
    const HostResult result = showCallTimes({"--state", "none", "--trace", file});
    QCOMPARE(result.code, 4);
    QVERIFY2(result.errors.contains(file), qPrintable(result.errors));
}

void TestCommandLine::aCatalogueTranslatesMenuAndScreens()
{
    QFile script(path("short.tour"));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("state empty\n"
                 "expect title Anrufe zuletzt gef\xc3\xbchrt\n"
                 "expect softkeys Open | Exit\n"
                 "press select\n"
                 "expect title Gespr\xc3\xa4"
                 "chszeiten\n"
                 "expect softkeys | Back\n");
    script.close();
    const HostResult result =
        run({"--tour", path("tour"), "--script", script.fileName(), "--translation", KAV_CATALOGUE});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestCommandLine::aCatalogueThatCannotBeLoadedIsSaid_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("there is none") << "/nowhere/texts.qm";
    QTest::newRow("it is no catalogue") << KAV_CATALOGUE_SOURCE;
    QTest::newRow("it is a directory") << QDir::tempPath();
}

void TestCommandLine::aCatalogueThatCannotBeLoadedIsSaid()
{
    QFETCH(QString, file);
    const HostResult result = showCallTimes({"--state", "none", "--translation", file});
    QCOMPARE(result.code, 8);
    QVERIFY2(result.errors.contains(file), qPrintable(result.errors));
}

void TestCommandLine::aPlatformThatCannotBeUsedIsOneSentence_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QString>("option");
    QTest::newRow("none of that name, in the environment") << "nosuch"
                                                           << "";
    QTest::newRow("an X server that does not answer, in the environment") << "xcb"
                                                                          << "";
    QTest::newRow("none of that name, on the command line") << "nosuch"
                                                            << "-platform nosuch";
    QTest::newRow("with two dashes and a sign") << "nosuch"
                                                << "--platform=nosuch";
}

void TestCommandLine::aPlatformThatCannotBeUsedIsOneSentence()
{
    QFETCH(QString, platform);
    QFETCH(QString, option);
    environment.insert("DISPLAY", deadDisplay);
    if (option.isEmpty())
        environment.insert("QT_QPA_PLATFORM", platform);
    const HostResult result = run(QStringList{"--state", "none"} + option.split(' ', Qt::SkipEmptyParts));
    QCOMPARE(result.code, 9);
    QCOMPARE(result.errors,
             QString("kavrecentcalls: The platform \"%1\" of Qt cannot be used: it is not installed, or has "
                     "nothing to show windows on.\n")
                 .arg(platform));
}

void TestCommandLine::qtsOwnOptionsReachQt()
{
    environment.remove("QT_QPA_PLATFORM");
    for (const QStringList &options : {QStringList{"-platform", "offscreen", "-style", "nosuch"},
                                       QStringList{"--platform=offscreen", "--style=nosuch"}}) {
        const HostResult result = showCallTimes(QStringList{"--state", "none"} + options);
        QCOMPARE(result.code, 0);
        QVERIFY2(result.errors.contains("nosuch"), qPrintable(result.errors));
    }
}

void TestCommandLine::aTourTakesNoOptionOfQt()
{
    const HostResult result = run({"--tour", path("tour"), "-style", "windows"});
    QCOMPARE(result.code, 2);
    QVERIFY2(result.errors.contains("'-style' of Qt does not go with option 'tour'"), qPrintable(result.errors));
}

void TestCommandLine::withoutADisplayTheWindowIsRefused()
{
    environment.remove("QT_QPA_PLATFORM");
    const HostResult result = run({"--state", "none"});
    QCOMPARE(result.code, 9);
    QVERIFY2(result.errors.contains("--tour"), qPrintable(result.errors));
}

void TestCommandLine::aDisplayThatCannotBeReachedIsNamed_data()
{
    QTest::addColumn<QString>("display");
    QTest::newRow("no server listens there") << deadDisplay;
    QTest::newRow("no server listens at a network address") << "127.0.0.1:9999";
    QTest::newRow("no display's name") << "nonsense";
}

void TestCommandLine::aDisplayThatCannotBeReachedIsNamed()
{
    QFETCH(QString, display);
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("DISPLAY", display);
    const HostResult result = run({"--state", "none"});
    QCOMPARE(result.code, 9);
    QCOMPARE(result.output, QString());
    QCOMPARE(
        result.errors,
        QString("kavrecentcalls: The display \"%1\" cannot be reached; --tour DIR needs none.\n").arg(display));
}

void TestCommandLine::aDisplayThatCannotBeReachedDoesNotHinderAPhotograph()
{
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("DISPLAY", deadDisplay);
    const HostResult result = showCallTimes({"--state", "none"});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QVERIFY(!QImage(path("window.png")).isNull());
}

void TestCommandLine::anInputMethodWithoutABusIsLeftToQt_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("a file without an address") << QByteArray("# nothing yet\nIBUS_DAEMON_PID=1\n");
    QTest::newRow("an address of nobody") << QByteArray("IBUS_ADDRESS=unix:path=/nowhere\n");
}

void TestCommandLine::anInputMethodWithoutABusIsLeftToQt()
{
    QFETCH(QByteArray, content);
    QFile file(path("ibus"));
    QVERIFY(content.isNull() || (file.open(QIODevice::WriteOnly) && file.write(content) == content.size()));
    file.close();
    environment.insert("QT_IM_MODULE", "ibus");
    environment.insert("IBUS_ADDRESS_FILE", content.isNull() ? home->path() : file.fileName());
    const HostResult result = showCallTimes({});
    QCOMPARE(result.code, 0);
    QVERIFY2(!result.errors.contains("input method"), qPrintable(result.errors));
    QVERIFY(QFileInfo::exists(path("window.png")));
}

void TestCommandLine::theWindowIsPhotographed()
{
    environment.remove("QT_QPA_PLATFORM");
    QCOMPARE(showCallTimes({"--state", "none"}).code, 0);
    const QImage photograph(path("window.png"));
    QVERIFY(photograph.width() > 600);
    QVERIFY(photograph.height() > 600);
}

namespace {

double luminance(QRgb color)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double contrast(QRgb one, QRgb other)
{
    const auto [dark, bright] = std::minmax({luminance(one), luminance(other)});
    return (bright + 0.05) / (dark + 0.05);
}

// What most of a place has.
QRgb background(const QImage &photograph, const QRect &place)
{
    QHash<QRgb, int> counts;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            ++counts[photograph.pixel(x, y)];
    }
    return std::max_element(counts.keyValueBegin(), counts.keyValueEnd(),
                            [](const auto &a, const auto &b) { return a.second < b.second; })
        .base()
        .key();
}

// Of the text there, to its background: of its strokes' middle, whose edges are of colours in between.
double contrastIn(const QImage &photograph, const QRect &place)
{
    const QRgb behind = background(photograph, place);
    double most = 1;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            most = std::max(most, contrast(photograph.pixel(x, y), behind));
    }
    return most;
}

} // namespace

void TestCommandLine::everyTextOfASkinIsReadable_data()
{
    QTest::addColumn<QString>("skin");
    QTest::newRow("light") << "light";
    QTest::newRow("dark") << "dark";
}

void TestCommandLine::everyTextOfASkinIsReadable()
{
    constexpr double leastContrast = 4.5;
    QFETCH(QString, skin);
    const HostResult result = showCallTimes({"--state", "none", "--skin", skin});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    const QImage photograph(path("window.png"));
    const QList<QPair<const char *, QRect>> texts{
        {"title", {58, 76, 120, 20}},
        {"focused row", {58, 103, 100, 18}},
        {"row", {58, 127, 100, 18}},
        {"value of a row", {220, 127, 64, 18}},
        {"right softkey", {240, 369, 46, 18}},
        {"heading of a section", {340, 24, 40, 16}},
        {"state of the line", {350, 52, 60, 16}},
        {"number", {414, 81, 70, 14}},
        {"button", {400, 112, 60, 16}},
        {"tab", {348, 219, 30, 16}},
        {"figure", {352, 285, 80, 14}},
    };
    for (const auto &[name, place] : texts) {
        const double found = contrastIn(photograph, place);
        QVERIFY2(found >= leastContrast,
                 qPrintable(QStringLiteral("%1: %2").arg(QLatin1StringView(name)).arg(found)));
    }
    const bool isDark = skin == QStringLiteral("dark");
    for (const QRect &place : {QRect(60, 300, 50, 50), QRect(2, 2, 10, 300)})
        QCOMPARE(qGray(background(photograph, place)) < 128, isDark);
}

void TestCommandLine::thePageOfThePanelIsChosen()
{
    QList<QImage> pictures;
    for (const char *page : {"calls", "charging", "sim", "data", "recent", "failures"}) {
        const HostResult result = showCallTimes({"--state", "none", "--page", page});
        QVERIFY2(result.code == 0, qPrintable(result.errors));
        const QImage picture(path("window.png"));
        QVERIFY(!picture.isNull());
        QVERIFY2(!pictures.contains(picture), page);
        pictures << picture;
    }
    QCOMPARE(showCallTimes({"--state", "none"}).code, 0);
    QCOMPARE(QImage(path("window.png")), pictures.first());
}

void TestCommandLine::aPhotographThatCannotBeWrittenIsSaid()
{
    const HostResult result = run({"--state", "none", "--photo", path("missing/window.png")});
    QCOMPARE(result.code, 7);
    QVERIFY2(result.errors.contains("missing/window.png"), qPrintable(result.errors));
}

KAV_TEST_GROUP(TestCommandLine, QCoreApplication);
#include "tst_commandline.moc"
