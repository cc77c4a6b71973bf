// How the program ends when it is asked to from outside, and when nobody reads what it prints.
#include "handset/Handset.h"
#include "host/HostProcess.h"
#include "qt/qcop/FakeBus.h"
#include "simulated/SimulatedHandset.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int longestEndMs = 120'000;

// So long that reading it, damaged, says how far it is.
void makeLongLog(const QString &directory)
{
    handset::Settings settings;
    settings.stateDirectory = directory;
    const auto opened = handset::open(settings);
    auto *made = dynamic_cast<handset::simulated::SimulatedHandset *>(opened.handset.get());
    QVERIFY2(made, qPrintable(opened.error));
    const handset::simulated::PastCall call{handset::CallKind::Voice, handset::CallDirection::Dialed, "5550123", 0,
                                            1000};
    QCOMPARE(made->addHistory(QList<handset::simulated::PastCall>(60'000, call)), 0);
}

/// A named pipe that takes nothing more until it is drained.
class FullPipe
{
public:
    explicit FullPipe(const QString &fileName)
        : file(QFile::encodeName(fileName))
    {
        if (::mkfifo(file.constData(), 0600) == 0)
            end = ::open(file.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        while (::write(end, "\n", 1) == 1)
            ;
    }
    ~FullPipe() { ::close(end); }
    Q_DISABLE_COPY_MOVE(FullPipe)

    QString name() const { return QFile::decodeName(file); }
    void drain() const
    {
        char block[4096];
        while (::read(end, block, sizeof block) > 0)
            ;
    }

private:
    QByteArray file;
    int end = -1;
};

} // namespace

class TestEnds : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aSignalClosesTheWindowAndTheCallLogInOrder_data() { everySignal(); }
    void aSignalClosesTheWindowAndTheCallLogInOrder();
    void aSignalEndsATourWithTheRunningCallWritten_data() { everySignal(); }
    void aSignalEndsATourWithTheRunningCallWritten();
    void aSignalInASalvageLeavesItToTheNextStart_data() { everySignal(); }
    void aSignalInASalvageLeavesItToTheNextStart();
    void aTourSaysHowFarASalvageIs();
    void aSignalThatTheShellIgnoredStaysIgnored();
    void aReaderThatGoesIsAnErrorAndNoDeath_data();
    void aReaderThatGoesIsAnErrorAndNoDeath();
    void aClosedOutputIsAnErrorAndGetsIntoNoFile();
    void aScriptOfTooManyStepsIsRefused_data();
    void aScriptOfTooManyStepsIsRefused();
    void aScriptOfGigabytesIsRefused();
    void aSilentSessionBusIsToldAndHoldsUpNothing_data();
    void aSilentSessionBusIsToldAndHoldsUpNothing();

private:
    static void everySignal();
    QString path(const char *name) const { return home->filePath(QString::fromLatin1(name)); }
    QByteArray contents(const char *name) const;
    QString write(const char *name, const QByteArray &text) const;
    void start(QProcess &process, const QStringList &arguments) const;
    HostResult run(const QStringList &arguments) const
    {
        return runHost(arguments, hostEnvironment(home->path()));
    }

    std::unique_ptr<QTemporaryDir> home;
};

void TestEnds::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
}

void TestEnds::everySignal()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

QByteArray TestEnds::contents(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString TestEnds::write(const char *name, const QByteArray &text) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s cannot be written", name);
    return file.fileName();
}

void TestEnds::start(QProcess &process, const QStringList &arguments) const
{
    process.setProcessEnvironment(hostEnvironment(home->path()));
    process.start(QStringLiteral(KAV_HOST_PROGRAM), arguments);
}

// The window is open when its screen has asked the handset.
void TestEnds::aSignalClosesTheWindowAndTheCallLogInOrder()
{
    QFETCH(int, signal);
    QProcess process;
    start(process, {"--state", path("state"), "--screen", "callTime", "--trace", "-"});
    QVERIFY(process.waitForReadyRead(longestEndMs));
    QVERIFY(QFile::exists(path("state/calllog.db-wal")));
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(longestEndMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(!QFile::exists(path("state/calllog.db-wal"))); // SQLite's own sign of a database that was closed
}

// With a call of 65 seconds that goes on. The tour has more to print than a pipe holds, which is read no further: the
// signal finds it before its end, however late it comes.
void TestEnds::aSignalEndsATourWithTheRunningCallWritten()
{
    QFETCH(int, signal);
    const QString script = write("long.tour", "state kept\ndial 5550123\nanswer\nclock +65s\n" +
                                                  QByteArray("show\n").repeated(15'000));
    QProcess process;
    start(process, {"--tour", path("tour"), "--script", script, "--state", path("state")});
    QByteArray output;
    while (!output.contains("line connected")) {
        QVERIFY(process.waitForReadyRead(longestEndMs));
        output += process.readAllStandardOutput();
    }
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(longestEndMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 10);
    QVERIFY(process.readAllStandardError().contains("ended by a signal"));
    const QString look =
        write("look.tour", "state kept\nexpect line idle\nopen callTime\nexpect row 1 Dialed Calls | 00:01:05\n");
    const HostResult after = run({"--tour", path("tour"), "--script", look, "--state", path("state")});
    QVERIFY2(after.code == 0, qPrintable(after.errors));
}

// What the program says of the salvage finds a pipe that is full, so that the signal comes before the end of it.
void TestEnds::aSignalInASalvageLeavesItToTheNextStart()
{
    QFETCH(int, signal);
    makeLongLog(path("state"));
    QFile log(path("state/calllog.db"));
    QVERIFY(log.open(QIODevice::ReadWrite) && log.putChar('s')); // which a log of ours does not begin with
    log.close();
    const QByteArray damaged = contents("state/calllog.db");
    FullPipe errors(path("errors"));
    QProcess process;
    process.setStandardErrorFile(errors.name());
    QProcessEnvironment environment = hostEnvironment(home->path());
    environment.insert("QT_LOGGING_RULES", "*.warning=false"); // Qt has nothing to say before
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(KAV_HOST_PROGRAM), {"--state", path("state"), "--screen", "callTime"});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("state/calllog-copy.db")), longestEndMs);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QTRY_VERIFY_WITH_TIMEOUT((errors.drain(), process.state() == QProcess::NotRunning), longestEndMs);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(contents("state/calllog.db") == damaged);
    QVERIFY(!QFile::exists(path("state/calllog-kept-1.db")));
}

void TestEnds::aTourSaysHowFarASalvageIs()
{
    makeLongLog(path("state"));
    QFile log(path("state/calllog.db"));
    QVERIFY(log.open(QIODevice::ReadWrite) && log.putChar('s'));
    log.close();
    const QString script = write("look.tour", "state kept\nopen callTime\n");
    const HostResult result = run({"--tour", path("tour"), "--script", script, "--state", path("state")});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    const QRegularExpression told("^\\S*look\\.tour:1: .*: 100 %$", QRegularExpression::MultilineOption);
    QVERIFY2(told.match(result.errors).hasMatch(), qPrintable(result.errors));
}

void TestEnds::aSignalThatTheShellIgnoredStaysIgnored()
{
    QProcess process;
    process.setProcessEnvironment(hostEnvironment(home->path()));
    process.start("sh", {"-c", "trap '' HUP; exec \"$0\" --state none --screen callTime --trace -",
                         QStringLiteral(KAV_HOST_PROGRAM)});
    QVERIFY(process.waitForReadyRead(longestEndMs));
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGHUP), 0);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGTERM), 0);
    QVERIFY(process.waitForFinished(longestEndMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

void TestEnds::aReaderThatGoesIsAnErrorAndNoDeath_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("help") << QStringList{"--help"} << 7;
    QTest::newRow("a tour") << QStringList{"--tour", "TOUR", "--script", "SCRIPT"} << 7;
    QTest::newRow("a window that traces")
        << QStringList{"--state", "none", "--screen", "callTime", "--trace", "-", "--photo", "TOUR/window.png"}
        << 0;
}

void TestEnds::aReaderThatGoesIsAnErrorAndNoDeath()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QVERIFY(QDir(home->path()).mkpath("tour"));
    arguments.replaceInStrings("TOUR", path("tour"));
    arguments.replaceInStrings("SCRIPT", write("short.tour", "open callTime\n"));
    int pipe[2] = {};
    QCOMPARE(::pipe2(pipe, O_CLOEXEC), 0);
    ::close(pipe[0]);
    QProcess process;
    process.setChildProcessModifier([&pipe] {
        ::signal(SIGPIPE, SIG_DFL);
        ::dup2(pipe[1], STDOUT_FILENO);
    });
    start(process, arguments);
    QVERIFY(process.waitForFinished(longestEndMs));
    ::close(pipe[1]);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), code);
}

// What is opened first would get the number of the standard output, and the tour be printed into the call log.
void TestEnds::aClosedOutputIsAnErrorAndGetsIntoNoFile()
{
    const QString script = write("short.tour", "state kept\nopen callTime\n");
    QProcess process;
    process.setChildProcessModifier([] {
        ::close(STDIN_FILENO);
        ::close(STDOUT_FILENO);
    });
    start(process,
          {"--tour", path("tour"), "--script", script, "--state", path("state"), "--trace", path("trace")});
    QVERIFY(process.waitForFinished(longestEndMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 7);
    QFile trace(path("trace"));
    QVERIFY(trace.open(QIODevice::ReadOnly));
    QVERIFY(!trace.readAll().contains("expectations"));
}

void TestEnds::aScriptOfTooManyStepsIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("many steps") << QByteArray("show\n").repeated(100'000)
                                << "too.tour:20001: a script has no more";
    QTest::newRow("few steps with very many keys")
        << QByteArray("press down*1000 up*1000\n").repeated(50'000) << "too.tour:101: a script presses no more";
    QTest::newRow("one step with very many keys")
        << "press" + QByteArray(" down*1000").repeated(300'000) << "too.tour:1: a script presses no more";
    QTest::newRow("many mistakes") << QByteArray("nonsense\n").repeated(100'000)
                                   << "too.tour:20001: a script has no more";
}

void TestEnds::aScriptOfTooManyStepsIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, mistake);
    const QString script = write("too.tour", text);
    const HostResult result = run({"--tour", path("tour"), "--script", script});
    QCOMPARE(result.code, 6);
    QVERIFY2(result.errors.contains(mistake), qPrintable(result.errors.right(1'000)));
    QVERIFY(!QFile::exists(path("tour")));
}

void TestEnds::aScriptOfGigabytesIsRefused()
{
    const QString script = write("large.tour", {});
    QVERIFY(QFile::resize(script, qint64{40} * 1024 * 1024 * 1024)); // takes no room
    const HostResult result = run({"--tour", path("tour"), "--script", script});
    QCOMPARE(result.code, 6);
    QVERIFY2(result.errors.contains("it is larger than 4 MiB"), qPrintable(result.errors));
}

void TestEnds::aSilentSessionBusIsToldAndHoldsUpNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("a tour") << QStringList{"--tour", "TOUR", "--script", "SCRIPT"};
    QTest::newRow("a window") << QStringList{"--state", "none", "--photo", "TOUR/window.png"};
}

void TestEnds::aSilentSessionBusIsToldAndHoldsUpNothing()
{
    QFETCH(QStringList, arguments);
    QVERIFY(QDir(home->path()).mkpath("tour"));
    arguments.replaceInStrings("TOUR", path("tour"));
    arguments.replaceInStrings("SCRIPT", write("short.tour", "open callTime\n"));
    const FakeBus bus(FakeBus::Full);
    QProcessEnvironment environment = hostEnvironment(home->path());
    environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
    const HostResult result = runHost(arguments, environment);
    QCOMPARE(result.code, 0);
    QVERIFY2(result.errors.startsWith("kavrecentcalls: The session bus does not answer"),
             qPrintable(result.errors));
}

KAV_TEST_GROUP(TestEnds, QCoreApplication);
#include "tst_ends.moc"
